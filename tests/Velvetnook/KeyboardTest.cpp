// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Store/StateStore.h"
#include "tests/EndToEnd/Program.h"
#include "tests/TemporaryFolder.h"
#include "tests/Velvetnook/SpokenTree.h"
#include "tests/Velvetnook/XDesktop.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <set>
#include <thread>

// The real program, used by its keyboard alone and heard through the desktop's assistive
// technology.
namespace
{

using namespace std::chrono_literals;

class KeyboardTest : public testing::Test
{
protected:
    KeyboardTest()
    {
        setenv("XDG_RUNTIME_DIR", m_runtime.path().c_str(), 1);
        setenv("KEST_DATA_DIR", m_data.path().c_str(), 1);
        auto store = KestCore::StateStore::open(m_data.database()).value();
        EXPECT_TRUE(store.change([&](KestCore::NativeState &state) -> Base::Result<void> {
            state.devotional.onboardingComplete = true;
            state.settings["appearance.reduceMotion"] = "true";
            return {};
        }));
    }

    void start()
    {
        m_program = Child{{VELVETNOOK_PROGRAM}};
        ASSERT_TRUE(XDesktop::waitFor([&] { return m_desktop.notch().has_value(); }));
        ASSERT_TRUE(XDesktop::waitFor(
            [&] { return runKest(m_data.path(), {"notch", "open"}).status == 0; }));
        ASSERT_TRUE(XDesktop::waitFor([&] { return !m_spoken.read().empty(); }))
            << "the application tells a screen reader nothing";
    }
    void openTool(const std::string &tool)
    {
        const Outcome outcome = runKest(m_data.path(), {"notch", "open", tool});
        ASSERT_EQ(outcome.status, 0) << outcome.err;
        ASSERT_TRUE(XDesktop::waitFor([&] { return focused().has_value(); })) << tool;
        std::this_thread::sleep_for(300ms); // the view comes in
    }
    static void press(const char *key) { XDesktop::run({"xdotool", "key", key}); }

    std::optional<Spoken> focused()
    {
        const auto all = m_spoken.read();
        // A scope of the focus is told as focused too; the innermost comes last.
        const auto found = std::find_if(all.rbegin(), all.rend(), [](const Spoken &one) {
            return one.isFocused && one.role != "frame" && one.role != "window";
        });
        return found == all.rend() ? std::nullopt : std::optional{*found};
    }
    bool isSettingsOpen()
    {
        return std::ranges::any_of(m_spoken.read(), [](const Spoken &one) {
            return one.name == "Search settings" && one.isShowing;
        });
    }
    static std::string told(const Spoken &one) { return one.role + " '" + one.name + "'"; }

    // Walks with Tab until it comes round and gives what it met.
    std::vector<Spoken> walk()
    {
        constexpr int kMostStops = 80;
        std::vector<Spoken> met;
        std::set<std::string> seen;
        for (int step = 0; step < kMostStops; ++step) {
            press("Tab");
            const auto now = focused();
            if (!now) {
                ADD_FAILURE() << "the focus was lost after "
                              << (met.empty() ? "the first Tab" : told(met.back()));
                return met;
            }
            if (!seen.insert(now->path).second) {
                if (now->path != met.front().path) {
                    ADD_FAILURE() << "Tab stays in a part: it came back to " << told(*now)
                                  << " from " << told(met.back());
                }
                return met;
            }
            met.push_back(*now);
        }
        ADD_FAILURE() << "Tab does not come round";
        return met;
    }

    void expectNamed(const std::vector<Spoken> &all, const std::string &where)
    {
        for (const Spoken &one : all) {
            if (one.isFocusable && one.isShowing && one.role != "label") {
                EXPECT_FALSE(one.name.empty()) << where << ": a nameless " << one.role;
            }
        }
    }
    void expectWalk(const std::string &where)
    {
        SCOPED_TRACE(where);
        expectNamed(m_spoken.read(), where);
        const auto met = walk();
        EXPECT_GT(met.size(), 2U);
        for (const Spoken &one : met) {
            EXPECT_TRUE(one.isShowing) << told(one) << " has the focus and is not to be seen";
            EXPECT_TRUE(one.isEnabled) << told(one) << " has the focus and does nothing";
            EXPECT_FALSE(one.name.empty()) << "a nameless " << one.role << " has the focus";
        }
    }

    TemporaryFolder m_runtime;
    TemporaryFolder m_data;
    XDesktop m_desktop;
    SpokenTree m_spoken;
    Child m_program;
};

TEST_F(KeyboardTest, TabComesRoundInEveryViewAndMeetsWhatHasAName)
{
    start();
    for (const char *tool :
         {"home", "dhikr", "names", "prayer", "friday", "timers", "units", "notes"}) {
        openTool(tool);
        expectWalk(tool);
    }
}

TEST_F(KeyboardTest, TabComesRoundInTheSettings)
{
    start();
    openTool("dhikr");
    press("ctrl+comma");
    ASSERT_TRUE(XDesktop::waitFor([&] { return isSettingsOpen(); }));
    expectWalk("settings");
    press("Escape");
    EXPECT_TRUE(XDesktop::waitFor([&] { return !isSettingsOpen(); }));
}

// Before anything in them was clicked, and also when they are opened again.
TEST_F(KeyboardTest, TheSettingsFollowTheFirstKey)
{
    start();
    for (const char *page : {"Appearance", "Notch"}) {
        openTool("dhikr");
        press("ctrl+comma");
        ASSERT_TRUE(XDesktop::waitFor([&] { return isSettingsOpen(); }));
        press("Down");
        EXPECT_TRUE(XDesktop::waitFor([&] {
            const auto now = focused();
            return now && now->name == page;
        })) << page;
        press("Escape");
        EXPECT_TRUE(XDesktop::waitFor([&] { return !isSettingsOpen(); }));
    }
}

TEST_F(KeyboardTest, ThePaletteIsTypedIntoAndRuns)
{
    start();
    press("Escape");
    ASSERT_TRUE(XDesktop::waitFor([&] { return m_desktop.notch()->height < 60; }));
    press("ctrl+shift+space");
    ASSERT_TRUE(XDesktop::waitFor([&] { return m_desktop.palette().has_value(); }));
    XDesktop::run({"xdotool", "type", "timers"});
    press("Return");
    EXPECT_TRUE(XDesktop::waitFor([&] { return !m_desktop.palette(); }));
    EXPECT_TRUE(XDesktop::waitFor([&] { return m_desktop.notch()->height >= 320; }));
    EXPECT_TRUE(XDesktop::waitFor([&] {
        return std::ranges::any_of(m_spoken.read(), [](const Spoken &one) {
            return one.isShowing && one.name.find("imer") != std::string::npos;
        });
    }));
}

TEST_F(KeyboardTest, ACountByKeyIsInTheStoreAndUndoTakesItBack)
{
    start();
    openTool("dhikr");
    const auto countIs = [&](const char *count) {
        return XDesktop::waitFor([&] {
            return runKest(m_data.path(), {"show", "--json"}).out.find(count) !=
                   std::string::npos;
        });
    };
    press("space");
    press("Return");
    EXPECT_TRUE(countIs(R"("count":2,)"));
    press("z");
    EXPECT_TRUE(countIs(R"("count":1,)"));
}

} // namespace
