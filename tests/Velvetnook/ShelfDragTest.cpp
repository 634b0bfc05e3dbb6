// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Store/StateStore.h"
#include "tests/EndToEnd/Program.h"
#include "tests/TemporaryFolder.h"
#include "tests/Velvetnook/XDesktop.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

// Files carried between the real program and another one, by the pointer.
namespace
{

using namespace std::chrono_literals;

void movePointer(int x, int y)
{
    XDesktop::run({"xdotool", "mousemove", std::to_string(x), std::to_string(y)});
    std::this_thread::sleep_for(40ms);
}

// In steps, as a hand does.
void carry(int fromX, int fromY, int toX, int toY)
{
    constexpr int kSteps = 12;
    for (int step = 1; step <= kSteps; ++step) {
        movePointer(fromX + (toX - fromX) * step / kSteps,
                    fromY + (toY - fromY) * step / kSteps);
    }
}

void press() { XDesktop::run({"xdotool", "mousedown", "1"}); }
void release() { XDesktop::run({"xdotool", "mouseup", "1"}); }

class ShelfDragTest : public testing::Test
{
protected:
    ShelfDragTest()
    {
        setenv("XDG_RUNTIME_DIR", m_runtime.path().c_str(), 1);
        setenv("KEST_DATA_DIR", m_data.path().c_str(), 1);
        setenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere", 1);
        auto store = KestCore::StateStore::open(m_data.database()).value();
        store
            .change([](KestCore::NativeState &state) -> Base::Result<void> {
                state.devotional.onboardingComplete = true;
                state.settings["notch.openDelay"] = "0.1";
                std::erase(state.enabled, "shelf");
                state.enabled.emplace_back("shelf");
                return {};
            })
            .value();
        std::ofstream{m_file} << "carried";
    }

    void start()
    {
        m_program = Child{{VELVETNOOK_PROGRAM}};
        ASSERT_TRUE(XDesktop::waitFor([&] { return m_desktop.notch().has_value(); }));
        m_partner = Child{{DRAG_PARTNER, m_file, m_log, "60", "560"}};
        ASSERT_TRUE(XDesktop::waitFor([] {
            return XDesktop::run({"xdotool", "search", "--onlyvisible", "--name", "Partner"}) ==
                   0;
        }));
        std::this_thread::sleep_for(500ms);
    }

    bool isOpen() const
    {
        const auto place = m_desktop.notch();
        return place && place->height >= 320;
    }
    std::string shelf() const { return runKest(m_data.path(), {"shelf", "list"}).out; }
    std::string log() const
    {
        std::ostringstream text;
        text << std::ifstream{m_log}.rdbuf();
        return text.str();
    }

    TemporaryFolder m_runtime;
    TemporaryFolder m_data;
    TemporaryFolder m_folder;
    std::string m_file = m_folder.path() / "carried file.txt";
    std::string m_log = m_folder.path() / "log";
    XDesktop m_desktop;
    Child m_program;
    Child m_partner;
};

TEST_F(ShelfDragTest, AFileIsCarriedToTheClosedNotchAndOutOfItAgain)
{
    start();
    movePointer(120, 620);
    press();
    carry(120, 620, 640, 60);
    carry(640, 60, 640, 2);
    EXPECT_TRUE(XDesktop::waitFor([&] { return isOpen(); })) << "a drag does not open it";
    carry(640, 2, 640, 160);
    release();
    EXPECT_TRUE(XDesktop::waitFor([&] {
        return shelf().find("carried file.txt") != std::string::npos;
    })) << shelf();

    std::this_thread::sleep_for(1s); // until its card stands
    movePointer(400, 100);
    press();
    carry(400, 100, 300, 300);
    carry(300, 300, 120, 620);
    release();
    EXPECT_TRUE(XDesktop::waitFor([&] { return !log().empty(); })) << "nothing was dropped";
    EXPECT_NE(log().find("carried%20file.txt"), std::string::npos) << log();
    EXPECT_TRUE(std::filesystem::exists(m_file));
}

} // namespace
