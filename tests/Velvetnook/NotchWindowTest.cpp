// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Store/StateStore.h"
#include "tests/EndToEnd/Program.h"
#include "tests/TemporaryFolder.h"
#include "tests/Velvetnook/XDesktop.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <thread>

// The real program on a screen of its own, used by its pointer and its keyboard.
namespace
{

using namespace std::chrono_literals;

class NotchWindowTest : public testing::Test
{
protected:
    NotchWindowTest()
    {
        setenv("XDG_RUNTIME_DIR", m_runtime.path().c_str(), 1);
        setenv("KEST_DATA_DIR", m_data.path().c_str(), 1);
        setenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere", 1);
        set("notch.openDelay", "0.1");
    }

    // Before the program starts.
    void set(const std::string &key, const std::string &value)
    {
        auto store = KestCore::StateStore::open(m_data.database()).value();
        ASSERT_TRUE(store.change([&](KestCore::NativeState &state) -> Base::Result<void> {
            state.devotional.onboardingComplete = true;
            state.settings[key] = value;
            return {};
        }));
    }

    void start(std::vector<std::string> arguments = {})
    {
        arguments.insert(arguments.begin(), VELVETNOOK_PROGRAM);
        m_program = Child{arguments};
        ASSERT_TRUE(XDesktop::waitFor([&] { return isStrip(); })) << "no strip was shown";
    }

    // Whether a window with this title is in sight.
    static bool isInSight(const std::string &title)
    {
        return XDesktop::run({"xdotool", "search", "--onlyvisible", "--name", title}) == 0;
    }

    bool isStrip() const
    {
        const auto place = m_desktop.notch();
        return place && place->height < 60;
    }
    bool isOpen() const
    {
        const auto place = m_desktop.notch();
        return place && place->height >= 320;
    }
    static void movePointer(int x, int y)
    {
        XDesktop::run({"xdotool", "mousemove", std::to_string(x), std::to_string(y)});
    }
    static void enter() { movePointer(640, 5); }
    static void leave() { movePointer(640, 600); }

    // What kest says while the application runs.
    std::string kest(std::vector<std::string> arguments) const
    {
        const Outcome outcome = runKest(m_data.path(), std::move(arguments));
        EXPECT_EQ(outcome.status, 0) << outcome.err;
        return outcome.out;
    }

    TemporaryFolder m_runtime;
    TemporaryFolder m_data;
    XDesktop m_desktop;
    Child m_program;
};

TEST_F(NotchWindowTest, StandsAtTheTopCentreAndIsNoLargerThanTheStrip)
{
    start();
    const auto place = m_desktop.notch();
    ASSERT_TRUE(place);
    EXPECT_EQ(place->y, 0);
    EXPECT_EQ(2 * place->x + place->width, 1280);
    EXPECT_LE(place->width, 260 + 2 * 12);
    EXPECT_EQ(place->height, 32);
}

TEST_F(NotchWindowTest, HoverOpensAfterTheDelayAndLeavingCloses)
{
    set("notch.openDelay", "1.5");
    start();
    XDesktop::run({"xdotool", "mousemove", "640", "5", "mousemove", "640", "600"});
    EXPECT_FALSE(XDesktop::waitFor([&] { return isOpen(); }, 2500ms)) << "opened without rest";

    const auto before = std::chrono::steady_clock::now();
    enter();
    ASSERT_TRUE(XDesktop::waitFor([&] { return isOpen(); }));
    EXPECT_GE(std::chrono::steady_clock::now() - before, 1500ms) << "opened before its time";
    movePointer(640, 200);
    EXPECT_FALSE(XDesktop::waitFor([&] { return isStrip(); }, 1500ms)) << "closed in use";
    leave();
    EXPECT_TRUE(XDesktop::waitFor([&] { return isStrip(); }));
}

TEST_F(NotchWindowTest, APressOnTheStripKeepsItClosedUntilThePointerWasAway)
{
    set("notch.openDelay", "1");
    start();
    enter();
    XDesktop::run({"xdotool", "click", "1"});
    EXPECT_FALSE(XDesktop::waitFor([&] { return isOpen(); }, 2500ms));
    leave();
    enter();
    EXPECT_TRUE(XDesktop::waitFor([&] { return isOpen(); }));
}

TEST_F(NotchWindowTest, AClickOnTheRingIsCountedAndKept)
{
    start();
    enter();
    ASSERT_TRUE(XDesktop::waitFor([&] { return isOpen(); }));
    const auto counted = [&] {
        movePointer(450, 162);
        XDesktop::run({"xdotool", "click", "1"});
        return kest({"show", "--json"}).find("\"count\":0") == std::string::npos;
    };
    EXPECT_TRUE(XDesktop::waitFor(counted));
    m_program = Child{};
    const auto store = KestCore::StateStore::open(m_data.database());
    ASSERT_TRUE(store);
    EXPECT_GE(store->state().devotional.session.count, 1);
}

TEST_F(NotchWindowTest, OpenedByACommandItStaysAndGivesTheKeyboardBack)
{
    const xcb_window_t other = m_desktop.openWindow("writer", {100, 400, 300, 200});
    start();
    ASSERT_EQ(m_desktop.focus(), other);
    kest({"notch", "open"});
    ASSERT_TRUE(XDesktop::waitFor([&] { return isOpen() && m_desktop.focus() != other; }));
    leave();
    EXPECT_FALSE(XDesktop::waitFor([&] { return isStrip(); }, 1500ms)) << "did not stay";
    XDesktop::run({"xdotool", "key", "Escape"});
    EXPECT_TRUE(XDesktop::waitFor([&] { return isStrip(); }));
    EXPECT_TRUE(XDesktop::waitFor([&] { return m_desktop.focus() == other; }));
}

TEST_F(NotchWindowTest, OpenedByThePointerItTakesNoKeyboard)
{
    const xcb_window_t other = m_desktop.openWindow("writer", {100, 400, 300, 200});
    start();
    enter();
    ASSERT_TRUE(XDesktop::waitFor([&] { return isOpen(); }));
    EXPECT_EQ(m_desktop.focus(), other);
}

TEST_F(NotchWindowTest, KeepsAwayFromAFullScreenAndFromExcludedApplications)
{
    set("notch.exclusions", "other, Theatre");
    start();
    const xcb_window_t film = m_desktop.openWindow("film", {100, 400, 300, 200});
    m_desktop.setFullScreen(film, true);
    EXPECT_TRUE(XDesktop::waitFor([&] { return !m_desktop.notch(); }));
    m_desktop.setFullScreen(film, false);
    EXPECT_TRUE(XDesktop::waitFor([&] { return isStrip(); }));
    const xcb_window_t stage = m_desktop.openWindow("theatre", {500, 400, 300, 200});
    EXPECT_TRUE(XDesktop::waitFor([&] { return !m_desktop.notch(); }));
    m_desktop.activate(film);
    EXPECT_TRUE(XDesktop::waitFor([&] { return isStrip(); }));
    m_desktop.activate(stage);
    EXPECT_TRUE(XDesktop::waitFor([&] { return !m_desktop.notch(); }));
    m_desktop.closeWindow(stage);
    EXPECT_TRUE(XDesktop::waitFor([&] { return isStrip(); }));
}

TEST_F(NotchWindowTest, FollowsAScreenThatChangesItsSize)
{
    start();
    if (XDesktop::run({"xrandr", "--size", "1024x768"}) != 0) {
        GTEST_SKIP() << "this X server cannot change its size";
    }
    EXPECT_TRUE(XDesktop::waitFor([&] {
        const auto place = m_desktop.notch();
        return place && 2 * place->x + place->width == 1024;
    }));
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

// Something that is dragged out of the panel must not close it on the way.
TEST_F(NotchWindowTest, StaysOpenWhileAButtonIsHeldOutsideOfIt)
{
    start();
    enter();
    ASSERT_TRUE(XDesktop::waitFor([&] { return isOpen(); }));
    movePointer(640, 200);
    EXPECT_FALSE(XDesktop::waitFor([&] { return isStrip(); }, 1000ms)) << "closed in use";
    XDesktop::run({"xdotool", "mousedown", "1"});
    leave();
    EXPECT_FALSE(XDesktop::waitFor([&] { return isStrip(); }, 1500ms)) << "closed in a drag";
    XDesktop::run({"xdotool", "mouseup", "1"});
}

TEST_F(NotchWindowTest, AQuietStartOpensNothingAndAnOrdinaryOneTheFirstSteps)
{
    for (const bool isQuiet : {true, false}) {
        {
            auto store = KestCore::StateStore::open(m_data.database()).value();
            ASSERT_TRUE(store.change([](KestCore::NativeState &state) -> Base::Result<void> {
                state.devotional.onboardingComplete = false;
                return {};
            }));
        }
        start(isQuiet ? std::vector<std::string>{"--background"} : std::vector<std::string>{});
        EXPECT_EQ(XDesktop::waitFor([] { return isInSight("Welcome to Velvetnook"); },
                                    isQuiet ? 3000ms : 20'000ms),
                  !isQuiet);
        m_program = {};
    }
}

TEST_F(NotchWindowTest, AtRestItSleeps)
{
    start();
    enter();
    ASSERT_TRUE(XDesktop::waitFor([&] { return isOpen(); })); // everything has been made
    leave();
    ASSERT_TRUE(XDesktop::waitFor([&] { return isStrip(); }));
    std::this_thread::sleep_for(5s);
    const int before = wakeUps(m_program.id());
    std::this_thread::sleep_for(10s);
    EXPECT_LE(wakeUps(m_program.id()) - before, 10);
}

TEST_F(NotchWindowTest, SaysSoWithoutADisplay)
{
    unsetenv("DISPLAY");
    EXPECT_EQ(XDesktop::run({VELVETNOOK_PROGRAM}), 1);
}

} // namespace
