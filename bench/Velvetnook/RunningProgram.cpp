// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "bench/Velvetnook/RunningProgram.h"

#include "KestCore/Store/StateStore.h"
#include "Velvetnook/Platform/Xcb.h"
#include "bench/Bench.h"
#include "bench/Samples.h"

#include <fmt/format.h>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <optional>
#include <thread>
#include <utility>

namespace Velvetnook
{

namespace
{

using namespace std::chrono_literals;

// Looks at the screen on a connection of its own.
class Screen
{
public:
    Screen()
        : m_server{xcb_connect(nullptr, nullptr)},
          m_root{xcb_setup_roots_iterator(xcb_get_setup(m_server)).data->root}
    {
        const std::uint32_t white = 0xFFFFFF; // the strip is as black as an empty screen
        xcb_change_window_attributes(m_server, m_root, XCB_CW_BACK_PIXEL, &white);
        xcb_clear_area(m_server, 0, m_root, 0, 0, 0, 0);
        xcb_flush(m_server);
    }
    ~Screen() { xcb_disconnect(m_server); }
    Screen(const Screen &) = delete;
    Screen &operator=(const Screen &) = delete;

    bool isDrawnAtTop() const
    {
        const auto image = Xcb::reply(
            xcb_get_image_reply, m_server,
            xcb_get_image(m_server, XCB_IMAGE_FORMAT_Z_PIXMAP, m_root, 640, 3, 1, 1, ~0U));
        if (!image) {
            Bench::giveUp("the screen cannot be read");
        }
        const std::uint8_t *pixel = xcb_get_image_data(image.get());
        return (pixel[0] & pixel[1] & pixel[2]) != 0xFF;
    }

    void await(bool isDrawn) const
    {
        const auto end = std::chrono::steady_clock::now() + 20s;
        while (isDrawnAtTop() != isDrawn) {
            if (std::chrono::steady_clock::now() > end) {
                Bench::giveUp("nothing was drawn at the top edge");
            }
            std::this_thread::sleep_for(500us);
        }
    }

private:
    xcb_connection_t *m_server;
    xcb_window_t m_root;
};

} // namespace

Usage RunningProgram::usage() const
{
    Usage usage;
    const std::string tasks = fmt::format("/proc/{}/task", m_child.id());
    for (const auto &task : std::filesystem::directory_iterator{tasks}) {
        std::ifstream status{task.path() / "status"};
        for (std::string word; status >> word;) {
            double count = 0;
            if (word.ends_with("voluntary_ctxt_switches:") && status >> count) {
                usage.wakeUps += count; // both lines end so
            }
        }
        double nanoseconds = 0;
        std::ifstream{task.path() / "schedstat"} >> nanoseconds;
        usage.cpuSeconds += nanoseconds * 1e-9;
    }
    return usage;
}

double RunningProgram::memory() const
{
    std::ifstream rollup{fmt::format("/proc/{}/smaps_rollup", m_child.id())};
    for (std::string word; rollup >> word;) {
        double kibibytes = 0;
        if (word == "Pss:" && rollup >> kibibytes) {
            return kibibytes * 1024;
        }
    }
    Bench::giveUp("the memory of the program cannot be read");
}

double secondsToFirstFrame(const std::string &program)
{
    const Screen screen;
    screen.await(false);
    const auto start = std::chrono::steady_clock::now();
    const RunningProgram running{program};
    screen.await(true);
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void askKest(std::vector<std::string> words)
{
    words.insert(words.begin(), KEST_PROGRAM);
    if (XDesktop::run(words) != 0) {
        Bench::giveUp("kest " + words[1] + " failed");
    }
}

void prepareSession(const std::filesystem::path &folder, bool hasMotion)
{
    auto store = Bench::must(KestCore::StateStore::open(folder / "kest.sqlite"));
    Bench::must(store.change([&](KestCore::NativeState &state) -> Base::Result<void> {
        state = Bench::stateWithSessions(1'000); // a year of an ordinary user
        state.devotional.onboardingComplete = true;
        state.settings = {{"prayer.latitude", "30.06"},
                          {"prayer.longitude", "31.25"},
                          {"prayer.timezone", "Africa/Cairo"},
                          {"prayer.country", "EG"},
                          {"appearance.reduceMotion", hasMotion ? "false" : "true"}};
        return {};
    }));
    std::filesystem::permissions(folder, std::filesystem::perms::owner_all);
    setenv("KEST_DATA_DIR", folder.c_str(), 1);
    setenv("XDG_RUNTIME_DIR", folder.c_str(), 1);
    setenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere", 1);
}

} // namespace Velvetnook
