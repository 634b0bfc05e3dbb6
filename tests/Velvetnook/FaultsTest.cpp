// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Store/StateStore.h"
#include "tests/EndToEnd/Program.h"
#include "tests/TemporaryFolder.h"
#include "tests/Velvetnook/XDesktop.h"

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <algorithm>
#include <csignal>
#include <fstream>
#include <iterator>
#include <thread>

// The real program where something that it stands on gives way.
namespace
{

using namespace std::chrono_literals;

std::string textOf(const std::filesystem::path &file)
{
    std::ifstream in{file, std::ios::binary};
    return {std::istreambuf_iterator<char>{in}, {}};
}

class FaultsTest : public testing::Test
{
protected:
    FaultsTest()
    {
        setenv("XDG_RUNTIME_DIR", m_runtime.path().c_str(), 1);
        setenv("KEST_DATA_DIR", m_data.path().c_str(), 1);
        setenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere", 1);
    }

    void start()
    {
        m_program = Child{{"sh", "-c", R"(exec "$0" 2>"$1")", VELVETNOOK_PROGRAM,
                           (m_runtime.path() / "messages").string()}};
    }
    std::string messages() const { return textOf(m_runtime.path() / "messages"); }
    bool isSaying(const std::string &words) const
    {
        return XDesktop::waitFor(
            [&] { return messages().starts_with("velvetnook: " + words); });
    }

    Base::Result<void> prepare() const
    {
        KEST_TRY(auto store, KestCore::StateStore::open(m_data.database()));
        return store.change([](KestCore::NativeState &state) -> Base::Result<void> {
            state.devotional.onboardingComplete = true;
            state.settings["appearance.reduceMotion"] = "true";
            return {};
        });
    }
    void startWithPanel(const std::string &tool)
    {
        ASSERT_TRUE(prepare());
        start();
        ASSERT_TRUE(XDesktop::waitFor(
            [&] { return runKest(m_data.path(), {"notch", "open", tool}).status == 0; }));
        ASSERT_TRUE(XDesktop::waitFor([&] {
            const auto place = m_desktop.notch();
            return place && place->height >= 320;
        }));
        std::this_thread::sleep_for(500ms);
    }
    void expectPage(const std::string &text) const
    {
        auto store = KestCore::StateStore::open(m_data.database());
        ASSERT_TRUE(store);
        const auto snapshot = store->snapshot().value();
        EXPECT_TRUE(std::ranges::any_of(snapshot.records, [&](const auto &record) {
            return record->body.find(text) != std::string::npos;
        })) << "what was typed is not kept";
    }
    bool isCount(int count) const
    {
        const std::string wanted = "\"count\":" + std::to_string(count) + ",";
        return XDesktop::waitFor([&] {
            return runKest(m_data.path(), {"show", "--json"}).out.find(wanted) !=
                   std::string::npos;
        });
    }
    static void type(const char *text)
    {
        XDesktop::run({"xdotool", "mousemove", "700", "160", "click", "1"});
        XDesktop::run({"xdotool", "type", text});
        std::this_thread::sleep_for(200ms); // it has arrived, and waits for a pause
    }

    TemporaryFolder m_runtime;
    TemporaryFolder m_data;
    XDesktop m_desktop;
    Child m_program;
};

TEST_F(FaultsTest, ADisplayThatCannotBeUsedIsSaidFirstAndEndsInOrder)
{
    const std::string server = std::getenv("DISPLAY");
    const struct {
        const char *name;
        const char *value;
    } chosen[]{{"WAYLAND_DISPLAY", "wayland-nobody"},
               {"QT_QPA_PLATFORM", "xcb"}, // asked for, so it is not looked at before
               {"DISPLAY", ":987"}};
    unsetenv("DISPLAY");
    for (const auto &[name, value] : chosen) {
        SCOPED_TRACE(name);
        setenv(name, value, 1);
        start();
        EXPECT_EQ(m_program.wait(), 1);
        EXPECT_TRUE(isSaying("There is no display here")) << messages();
        unsetenv(name);
    }
    setenv("DISPLAY", server.c_str(), 1);
}

TEST_F(FaultsTest, WhatIsBeingWrittenOutlivesTheDisplay)
{
    startWithPanel("notes");
    type("kept to the end");
    m_desktop.stopServer();
    EXPECT_EQ(m_program.wait(), 1);
    EXPECT_TRUE(isSaying("The display has gone")) << messages();
    expectPage("kept to the end");
}

TEST_F(FaultsTest, WhatIsBeingWrittenOutlivesTheSession)
{
    startWithPanel("notes");
    type("kept at the logout");
    kill(m_program.id(), SIGTERM);
    EXPECT_EQ(m_program.wait(), 0);
    expectPage("kept at the logout");
}

TEST_F(FaultsTest, ACountThatCannotBeSavedIsNoneAndTheNextOnesAre)
{
    startWithPanel("dhikr");
    XDesktop::run({"xdotool", "mousemove", "450", "162", "click", "1"});
    ASSERT_TRUE(isCount(1));
    const auto allow = [&](rlim_t bytes) {
        const rlimit limit{.rlim_cur = bytes, .rlim_max = RLIM_INFINITY};
        ASSERT_EQ(prlimit(m_program.id(), RLIMIT_FSIZE, &limit, nullptr), 0);
    };
    std::this_thread::sleep_for(1s); // the store is back from kest: a count would wait for it
    allow(1);
    XDesktop::run({"xdotool", "click", "1"});
    std::this_thread::sleep_for(500ms);
    allow(RLIM_INFINITY);
    EXPECT_TRUE(isCount(1)) << "counted what was not saved";
    XDesktop::run({"xdotool", "click", "1"});
    EXPECT_TRUE(isCount(2));
}

TEST_F(FaultsTest, DataThatCannotBeReadIsLeftAsItIs)
{
    const struct {
        const char *bytes;
        const char *words;
    } stores[]{{"this is not a database, and long enough to be seen as none", "file is not"},
               {"", "The local data was saved by a newer Velvetnook"}};
    for (const auto &[bytes, words] : stores) {
        SCOPED_TRACE(words);
        std::filesystem::remove(m_data.database());
        if (*bytes != '\0') {
            std::ofstream{m_data.database()} << bytes;
        } else {
            ASSERT_TRUE(KestCore::StateStore::open(m_data.database()));
            std::fstream file{m_data.database(),
                              std::ios::binary | std::ios::in | std::ios::out};
            file.seekp(63); // the last byte of the version, in the header of the file
            file.put('\x63');
        }
        const std::string before = textOf(m_data.database());
        start();
        EXPECT_TRUE(isSaying(words)) << messages();
        EXPECT_NE(messages().find(m_data.database().string()), std::string::npos);
        std::this_thread::sleep_for(1s); // its window comes
        XDesktop::run({"xdotool", "key", "Escape"});
        EXPECT_EQ(m_program.wait(), 1);
        EXPECT_EQ(textOf(m_data.database()), before);
    }
}

} // namespace
