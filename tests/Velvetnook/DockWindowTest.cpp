// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/File.h"
#include "KestCore/Store/StateStore.h"
#include "tests/TemporaryFolder.h"
#include "tests/Velvetnook/XDesktop.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <thread>

// The real program with its dock on a screen of its own.
namespace
{

using namespace std::chrono_literals;

constexpr Place kTab{1209, 302, 70, 196}; // with its outline, where nothing mixes windows

class DockWindowTest : public testing::Test
{
protected:
    DockWindowTest()
    {
        setenv("XDG_RUNTIME_DIR", m_runtime.path().c_str(), 1);
        setenv("XDG_DATA_HOME", (m_runtime.path() / "share").c_str(), 1);
        setenv("KEST_DATA_DIR", m_data.path().c_str(), 1);
        setenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere", 1);
    }

    void prefer(const std::function<void(KestCore::CompanionState &)> &edit)
    {
        auto store = KestCore::StateStore::open(m_data.database()).value();
        ASSERT_TRUE(store.change([](KestCore::NativeState &state) -> Base::Result<void> {
            state.devotional.onboardingComplete = true;
            return {};
        }));
        KestCore::CompanionState companion = store.companion();
        companion.dock.enabled = true;
        edit(companion);
        ASSERT_TRUE(store.saveCompanion(companion));
    }
    void start()
    {
        m_program = Child{{VELVETNOOK_PROGRAM}};
        ASSERT_TRUE(XDesktop::waitFor([&] { return m_desktop.notch().has_value(); }));
    }
    void startWithDock()
    {
        start();
        ASSERT_TRUE(XDesktop::waitFor([&] { return m_desktop.palette().has_value(); }));
    }
    bool isOpen() const
    {
        const auto place = m_desktop.palette();
        return place && place->width > 380;
    }
    bool isClosed() const
    {
        const auto place = m_desktop.palette();
        return place && place->width < 100;
    }
    static void movePointer(int x, int y)
    {
        XDesktop::run({"xdotool", "mousemove", std::to_string(x), std::to_string(y)});
    }
    static void click() { XDesktop::run({"xdotool", "click", "1"}); }
    std::filesystem::path mark() const { return m_runtime.path() / "mark"; }
    void addApplication(KestCore::CompanionState &companion, const std::string &exec) const
    {
        const auto folder = m_runtime.path() / "share/applications";
        std::filesystem::create_directories(folder);
        std::ofstream{folder / "mark.desktop"}
            << "[Desktop Entry]\nType=Application\nName=Mark\nExec=" << exec << "\n";
        companion.workspaces.front().items = {{.id = "mark",
                                               .kind = KestCore::DockItemKind::app,
                                               .title = "Mark",
                                               .target = "mark"}};
    }

    TemporaryFolder m_runtime;
    TemporaryFolder m_data;
    XDesktop m_desktop;
    Child m_program;
};

TEST_F(DockWindowTest, IsNotThereUntilItIsTurnedOn)
{
    prefer([](KestCore::CompanionState &companion) { companion.dock.enabled = false; });
    start();
    EXPECT_FALSE(XDesktop::waitFor([&] { return m_desktop.palette().has_value(); }, 4000ms));
}

TEST_F(DockWindowTest, HoveringOpensItBesideTheTabAndLeavingClosesIt)
{
    prefer([](KestCore::CompanionState &companion) { companion.dock.hover = true; });
    const xcb_window_t other = m_desktop.openWindow("writer", {100, 400, 300, 200});
    startWithDock();
    EXPECT_EQ(m_desktop.palette(), kTab);
    movePointer(1244, 344);
    ASSERT_TRUE(XDesktop::waitFor([&] { return isOpen(); }));
    EXPECT_EQ(m_desktop.focus(), other) << "the pointer alone takes no keyboard";
    EXPECT_FALSE(XDesktop::waitFor([&] { return isClosed(); }, 1500ms)) << "closed in use";
    movePointer(640, 600);
    EXPECT_TRUE(XDesktop::waitFor([&] { return isClosed(); }));
    EXPECT_EQ(m_desktop.palette(), kTab);
}

TEST_F(DockWindowTest, APressStartsAnApplicationAndEscapeGivesTheKeyboardBack)
{
    prefer([&](KestCore::CompanionState &companion) {
        addApplication(companion, "/usr/bin/cp /proc/self/environ " + mark().string());
    });
    const xcb_window_t other = m_desktop.openWindow("writer", {100, 400, 300, 200});
    startWithDock();
    movePointer(1244, 344);
    click();
    ASSERT_TRUE(XDesktop::waitFor([&] { return isOpen(); }));
    ASSERT_TRUE(XDesktop::waitFor([&] { return m_desktop.focus() != other; }));
    XDesktop::run({"xdotool", "key", "Escape"});
    EXPECT_TRUE(XDesktop::waitFor([&] { return isClosed() && m_desktop.focus() == other; }));

    click();
    ASSERT_TRUE(XDesktop::waitFor([&] { return isOpen(); }));
    const auto startsIt = [&] {
        movePointer(918, 226); // the first tile
        click();
        return std::filesystem::exists(mark());
    };
    EXPECT_TRUE(XDesktop::waitFor(startsIt));
    EXPECT_TRUE(XDesktop::waitFor([&] { return isClosed(); }));
    // What the program has set for itself is not for others.
    const std::string given = Base::readFile(mark()).value();
    EXPECT_NE(given.find("DISPLAY="), std::string::npos);
    for (const char *own : {"QT_QPA_PLATFORM=", "FREETYPE_PROPERTIES="}) {
        EXPECT_EQ(given.find(own), std::string::npos) << own;
    }
}

TEST_F(DockWindowTest, KeysReachTheItemsAndLeaveInSteps)
{
    prefer([&](KestCore::CompanionState &companion) {
        addApplication(companion, "/usr/bin/touch " + mark().string());
    });
    startWithDock();
    movePointer(1244, 344);
    click();
    ASSERT_TRUE(XDesktop::waitFor([&] { return isOpen(); }));
    std::this_thread::sleep_for(500ms);
    XDesktop::run({"xdotool", "key", "F2"}); // the page of its name
    std::this_thread::sleep_for(500ms);
    XDesktop::run({"xdotool", "type", "Chalk"});
    XDesktop::run({"xdotool", "key", "Return"});
    std::this_thread::sleep_for(500ms);
    XDesktop::run({"xdotool", "key", "Return"});
    EXPECT_TRUE(XDesktop::waitFor([&] { return std::filesystem::exists(mark()); }));
    EXPECT_TRUE(XDesktop::waitFor([&] { return isClosed(); }));
    m_program = {};
    const auto store = KestCore::StateStore::open(m_data.database());
    ASSERT_TRUE(store);
    EXPECT_EQ(store->companion().workspaces.front().items.front().title, "Chalk");
}

TEST_F(DockWindowTest, TilesAreDraggedToTheirPlacesAndToOtherWorkspaces)
{
    prefer([](KestCore::CompanionState &) {});
    startWithDock();
    movePointer(1244, 344);
    click();
    ASSERT_TRUE(XDesktop::waitFor([&] { return isOpen(); }));
    std::this_thread::sleep_for(500ms);
    const auto drag = [](int toX, int toY) {
        movePointer(918, 226);
        XDesktop::run({"xdotool", "mousedown", "1"});
        for (const double share : {0.1, 0.5, 0.9, 1.0}) {
            movePointer(918 + static_cast<int>(share * (toX - 918)),
                        226 + static_cast<int>(share * (toY - 226)));
            std::this_thread::sleep_for(60ms);
        }
        XDesktop::run({"xdotool", "mouseup", "1"});
        std::this_thread::sleep_for(500ms);
    };
    drag(1100, 226); // the first one behind the third
    drag(1244, 400); // the one that is first now, to the slot below
    m_program = {};
    const auto store = KestCore::StateStore::open(m_data.database());
    ASSERT_TRUE(store);
    const auto targets = [&](std::size_t workspace) {
        std::string all;
        for (const auto &item : store->companion().workspaces[workspace].items) {
            all += item.target + " ";
        }
        return all;
    };
    EXPECT_EQ(targets(0), "names dhikr timers notes ");
    EXPECT_EQ(targets(1), "timers scratchpad shelf music prayer ");
}

// Sums the wake-ups of every thread of the program.
int wakeUps(pid_t program)
{
    int sum = 0;
    for (const auto &task :
         std::filesystem::directory_iterator{"/proc/" + std::to_string(program) + "/task"}) {
        std::ifstream status{task.path() / "status"};
        for (std::string word; status >> word;) {
            if (int count = 0; word == "voluntary_ctxt_switches:" && status >> count) {
                sum += count;
            }
        }
    }
    return sum;
}

TEST_F(DockWindowTest, AtRestItSleeps)
{
    prefer([](KestCore::CompanionState &companion) {
        companion.dock.hover = true;
        companion.workspaces.front().homeWidgets = {"prayer", "timers", "names"};
    });
    startWithDock();
    movePointer(1244, 344);
    ASSERT_TRUE(XDesktop::waitFor([&] { return isOpen(); })); // everything has been made
    movePointer(640, 600);
    ASSERT_TRUE(XDesktop::waitFor([&] { return isClosed(); }));
    std::this_thread::sleep_for(5s);
    const int before = wakeUps(m_program.id());
    std::this_thread::sleep_for(10s);
    EXPECT_LE(wakeUps(m_program.id()) - before, 10);
}

TEST_F(DockWindowTest, ALineForAShellIsNotStarted)
{
    prefer([&](KestCore::CompanionState &companion) {
        addApplication(companion, "/usr/bin/true; /usr/bin/touch " + mark().string());
    });
    startWithDock();
    movePointer(1244, 344);
    click();
    ASSERT_TRUE(XDesktop::waitFor([&] { return isOpen(); }));
    for (int times = 0; times < 5; ++times) {
        movePointer(918, 226);
        click();
        std::this_thread::sleep_for(300ms);
    }
    EXPECT_FALSE(std::filesystem::exists(mark()));
    EXPECT_TRUE(isOpen()); // and says why
}

TEST_F(DockWindowTest, ATabThatHidesLeavesOnlyASensor)
{
    prefer([](KestCore::CompanionState &companion) {
        companion.dock.mode = "edge";
        companion.dock.edge = "left";
        companion.dock.floating = false;
    });
    startWithDock();
    EXPECT_EQ(m_desktop.palette(), (Place{0, 303, 4, 194}));
    movePointer(1, 400);
    EXPECT_TRUE(XDesktop::waitFor([&] { return m_desktop.palette()->width >= 68; }));
    movePointer(640, 600);
    EXPECT_TRUE(XDesktop::waitFor([&] { return m_desktop.palette()->width == 4; }));
}

TEST_F(DockWindowTest, KeepsAwayFromAFullScreen)
{
    prefer([](KestCore::CompanionState &) {});
    startWithDock();
    const xcb_window_t film = m_desktop.openWindow("film", {100, 400, 300, 200});
    m_desktop.setFullScreen(film, true);
    EXPECT_TRUE(XDesktop::waitFor([&] { return !m_desktop.palette(); }));
    m_desktop.setFullScreen(film, false);
    EXPECT_TRUE(XDesktop::waitFor([&] { return isClosed(); }));
}

} // namespace
