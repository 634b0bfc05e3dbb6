// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Notch/NotchDriver.h"

#include "Velvetnook/Application/App.h"
#include "tests/Velvetnook/RunningModel.h"

#include <gtest/gtest.h>

namespace
{

using namespace Velvetnook;

// A driver on a clock of the test's own: its timers may ring, but time passes only by `wait`.
class NotchDriverTest : public testing::Test
{
protected:
    void start(const RunningModel::Prepare &prepare = {})
    {
        m_running.emplace(prepare);
        m_app.emplace(m_running->model());
        m_driver.emplace(m_running->model(), *m_app, [this] { return m_seconds; });
    }

    void wait(double seconds)
    {
        m_seconds += seconds;
        QMetaObject::invokeMethod(m_driver->findChild<QTimer *>(), "timeout");
    }
    void set(const std::string &key, const std::string &value)
    {
        m_running->change([&](KestCore::NativeState &state) { state.settings[key] = value; });
    }
    std::string state() const { return m_driver->state().toStdString(); }
    void hoverOpen()
    {
        m_driver->pointer(true, false);
        wait(0.2);
        ASSERT_EQ(state(), "expanded");
    }

    double m_seconds = 100;
    std::optional<RunningModel> m_running;
    std::optional<App> m_app;
    std::optional<NotchDriver> m_driver;
};

TEST_F(NotchDriverTest, TheFirstHoverOpensAndLeavingClosesAfterTheGrace)
{
    start();
    EXPECT_EQ(state(), "compact");
    m_driver->pointer(true, false);
    EXPECT_EQ(state(), "hoverOpening");
    wait(0.17);
    EXPECT_EQ(state(), "hoverOpening");
    wait(0.02);
    EXPECT_EQ(state(), "expanded");
    EXPECT_TRUE(m_app->panel()->isOpen());
    m_driver->pointer(false, false);
    wait(0.34);
    EXPECT_EQ(state(), "closing");
    wait(0.02);
    EXPECT_EQ(state(), "compact");
    m_driver->pointer(true, false); // it was away, so it opens again
    EXPECT_EQ(state(), "hoverOpening");
}

TEST_F(NotchDriverTest, AClosedPanelStaysClosedUnderThePointer)
{
    start();
    hoverOpen();
    m_driver->close();
    m_driver->pointer(true, false);
    EXPECT_EQ(state(), "compact");
}

TEST_F(NotchDriverTest, ADialogHoldsThePanelUntilTheLastIsGone)
{
    start();
    hoverOpen();
    m_app->panel()->beginDialog();
    m_app->panel()->beginDialog();
    m_driver->pointer(false, false);
    wait(1);
    EXPECT_EQ(state(), "expanded");
    m_app->panel()->endDialog();
    EXPECT_EQ(state(), "expanded");
    m_app->panel()->endDialog();
    EXPECT_EQ(state(), "closing");
}

TEST_F(NotchDriverTest, WhatIsTypedInStaysUntilTheKeyboardGoes)
{
    start();
    hoverOpen();
    m_driver->makeSticky();
    m_driver->pointer(false, false);
    wait(1);
    EXPECT_EQ(state(), "expanded");
    m_driver->release();
    EXPECT_EQ(state(), "closing");
}

TEST_F(NotchDriverTest, RestsHiddenWhereThatIsChosenAlsoAfterAHoverThatWasGivenUp)
{
    start([](KestCore::NativeState &state) {
        state.settings["notch.compactWhenIdle"] = "false";
    });
    EXPECT_EQ(state(), "hidden");
    m_driver->pointer(true, false);
    EXPECT_EQ(state(), "hoverOpening");
    m_driver->pointer(false, false);
    EXPECT_EQ(state(), "hidden");
    set("notch.compactWhenIdle", "true");
    EXPECT_EQ(state(), "compact");
}

TEST_F(NotchDriverTest, KeepsAway)
{
    struct Case {
        const char *name;
        bool isFullScreen;
        QStringList application;
        bool keepsAway;
    };
    start([](KestCore::NativeState &state) {
        state.settings["notch.exclusions"] = "Film, ,theatre";
    });
    for (const auto &[name, isFullScreen, application, keepsAway] : {
             Case{"a full screen", true, {"writer", "Writer"}, true},
             Case{"an excluded application, in other letters", false, {"film", "FILM"}, true},
             Case{"one after an empty name", false, {"theatre"}, true},
             Case{"one that only begins like it", false, {"films"}, false},
             Case{"one without a name", false, {}, false},
         }) {
        SCOPED_TRACE(name);
        m_driver->setForeground(isFullScreen, application);
        EXPECT_EQ(state(), keepsAway ? "suppressed" : "compact");
    }
}

TEST_F(NotchDriverTest, APauseEndsByItself)
{
    start();
    const double end = Base::milliseconds1970(RunningModel::kStart) + 60'000;
    set("notch.pausedUntil", std::to_string(static_cast<std::int64_t>(end)));
    EXPECT_EQ(state(), "suppressed");
    m_running->pass(Base::Seconds{59});
    EXPECT_EQ(state(), "suppressed");
    m_running->pass(Base::Seconds{2});
    EXPECT_EQ(state(), "compact");
}

TEST_F(NotchDriverTest, ACommandOpensOverAFullScreenAndThenItKeepsAwayAgain)
{
    start();
    m_driver->setForeground(true, {});
    emit m_app->panel()->openWanted(true);
    EXPECT_EQ(state(), "expanded");
    emit m_app->panel()->closeWanted();
    EXPECT_EQ(state(), "suppressed");
}

} // namespace
