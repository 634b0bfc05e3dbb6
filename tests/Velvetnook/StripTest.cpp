// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/Messages.h"
#include "Velvetnook/Application/PrayerWatch.h"
#include "Velvetnook/Application/StripContent.h"
#include "Velvetnook/Application/ViewModels/StripViewModel.h"
#include "tests/Velvetnook/RunningModel.h"

#include <gtest/gtest.h>

namespace
{

using namespace Velvetnook;
using KestCore::NextPrayer;
using PrayerCore::Prayer;

constexpr Base::Instant kNow = RunningModel::kStart;
constexpr Base::Seconds kMinute{60};

KestCore::Timer timerWith(double secondsLeft)
{
    return KestCore::makeTimer({.mode = KestCore::TimerMode::pomodoro, .minutes = 25}, {}, {},
                               kNow - Base::Seconds{1500 - secondsLeft})
        .value();
}

// What the strip says, start and end in one.
std::string said(const StripContent &content)
{
    const QString start = content.text.isEmpty() ? content.arabic : content.text;
    return (content.kind + QStringLiteral(": ") + start + QStringLiteral(" | ") +
            content.trailing + content.trailingNote)
        .toStdString();
}

class StripTest : public testing::Test
{
protected:
    StripTest()
    {
        m_state = m_running.state();
        m_state.devotional.preferences.pinDisplay = "transliteration";
        m_state.devotional.session.count = 21;
        m_state.settings["prayer.strip"] = "true";
    }

    StripStep step(Base::Seconds later = {}) const
    {
        return stripStep(m_sources, m_running.formatting(), kNow + later);
    }

    RunningModel m_running;
    KestCore::NativeState m_state;
    StripSources m_sources{.state = m_state, .canBeSeen = true};
};

TEST_F(StripTest, ShowsTheFirstOfWhatThereIs)
{
    // Everything at once, then one after the other is taken away.
    m_sources.emphasisUntil = kNow + Base::Seconds{1};
    m_sources.message =
        ShortMessage{.text = QStringLiteral("Tea"), .until = kNow + kMinute / 60};
    m_sources.lastPrayer = NextPrayer{.prayer = Prayer::dhuhr, .at = kNow - 9 * kMinute};
    m_sources.nextPrayer = NextPrayer{.prayer = Prayer::asr, .at = kNow + 42 * kMinute};
    m_sources.timers = {timerWith(45)};
    m_sources.countedAt = kNow - kMinute;
    m_sources.waiting = WaitingAssistant{.title = QStringLiteral("Cursor"), .since = kNow};
    m_sources.nextEvent =
        UpcomingEvent{.title = QStringLiteral("Tea with Sara"), .start = kNow + 8 * kMinute};
    const auto shown = [&] { return said(step().content); };

    EXPECT_EQ(shown(), "pin: Subḥāna llāh | ");
    m_sources.emphasisUntil.reset();
    EXPECT_EQ(shown(), "message: Tea | ");
    m_sources.message.reset();
    EXPECT_EQ(shown(), "prayer: Dhuhr | now");
    m_sources.lastPrayer.reset();
    EXPECT_EQ(shown(), "timer: Focus | 0:45");
    m_sources.timers = {timerWith(872)};
    EXPECT_EQ(shown(), "count: Subḥāna llāh | 21 / 33");
    m_sources.countedAt.reset();
    EXPECT_EQ(shown(), "assistant: Cursor is waiting for you | ");
    m_sources.waiting.reset();
    EXPECT_EQ(shown(), "event: Tea with Sara | in 8 min");
    m_sources.nextEvent.reset();
    EXPECT_EQ(shown(), "timer: Subḥāna llāh | 14:32"); // trails the pinned phrase
    m_state.devotional.preferences.pinEnabled = false;
    EXPECT_EQ(shown(), "timer: Focus | 14:32");
    m_sources.timers.clear();
    EXPECT_EQ(shown(), "prayer: Asr | in 42 min");
    m_state.settings["prayer.strip"] = "false";
    EXPECT_EQ(shown(), "rest:  | ");
    m_state.devotional.preferences.pinEnabled = true;
    EXPECT_EQ(shown(), "pin: Subḥāna llāh | ");
}

TEST_F(StripTest, EachThingEndsAtItsMoment)
{
    m_state.devotional.preferences.pinEnabled = false;
    m_sources.lastPrayer = NextPrayer{.prayer = Prayer::dhuhr, .at = kNow};
    m_sources.nextPrayer = NextPrayer{.prayer = Prayer::asr, .at = kNow + 70 * kMinute};
    EXPECT_EQ(said(step(kPrayerNowTime - Base::Seconds{1}).content), "prayer: Dhuhr | now");
    EXPECT_EQ(said(step(kPrayerNowTime).content), "prayer: Asr | in 60 min");
    m_sources.lastPrayer.reset();
    EXPECT_EQ(said(step(9 * kMinute).content), "rest:  | "); // more than an hour
    m_sources.nextPrayer.reset();
    m_sources.countedAt = kNow;
    EXPECT_EQ(said(step(kCountingTime - Base::Seconds{1}).content),
              "count: Subḥāna llāh | 21 / 33");
    EXPECT_EQ(said(step(kCountingTime).content), "rest:  | ");
    m_sources.countedAt.reset();
    m_sources.waiting = WaitingAssistant{.title = QStringLiteral("Cursor"), .since = kNow};
    EXPECT_EQ(step().changesAt, kNow + kWaitingTime);
    EXPECT_EQ(said(step(kWaitingTime).content), "rest:  | ");
    m_sources.waiting.reset();
    m_sources.nextEvent = UpcomingEvent{.title = {}, .start = kNow + 12 * kMinute};
    EXPECT_EQ(step().changesAt, kNow + 2 * kMinute);
    EXPECT_EQ(said(step().content), "rest:  | ");
    EXPECT_EQ(said(step(2 * kMinute).content), "event: (no title) | in 10 min");
    EXPECT_EQ(said(step(12 * kMinute).content), "event: (no title) | now");
    EXPECT_EQ(said(step(12 * kMinute + kEventNowTime).content), "rest:  | ");
}

TEST_F(StripTest, LooksAgainOnlyWhenTheTextIsAnother)
{
    struct Case {
        const char *name;
        double secondsLeft;
        bool canBeSeen;
        double waits;
    };
    m_state.devotional.preferences.pinEnabled = false;
    for (const auto &[name, secondsLeft, canBeSeen, waits] : {
             Case{"seen: every second", 872.5, true, 0.5},
             Case{"unseen: every minute", 872, false, 32},
             Case{"the last minute, seen: every second", 45.5, true, 0.5},
             Case{"the last minute, unseen: its end", 45.5, false, 45.5},
             Case{"two minutes, unseen: before the last one", 119, false, 59},
         }) {
        SCOPED_TRACE(name);
        m_sources.timers = {timerWith(secondsLeft)};
        m_sources.canBeSeen = canBeSeen;
        const auto next = step().changesAt;
        ASSERT_TRUE(next);
        EXPECT_NEAR((*next - kNow).count(), waits, 0.02);
        // Nothing that stands there still stands a moment later for ever.
        EXPECT_NE(said(step(*next - kNow + Base::Seconds{0.02}).content),
                  canBeSeen ? said(step().content) : std::string{});
    }
}

TEST_F(StripTest, AtRestNothingWaits) { EXPECT_FALSE(step().changesAt); }

TEST(StripViewModelTest, SaysWhenATargetIsReachedAndThenCountsOn)
{
    RunningModel running{[](KestCore::NativeState &state) {
        state.devotional.session.target = 3;
        state.devotional.session.count = 2;
        state.devotional.session.history = {0, 1};
        state.devotional.session.startedAt = 0;
    }};
    StripViewModel strip{running.model(), running.formatting()};
    EXPECT_EQ(strip.kind(), QStringLiteral("pin")); // counted long ago
    running.change([](KestCore::NativeState &state) {
        state.devotional.session.count = 3;
        state.devotional.session.history = {0, 1, 2};
    });
    EXPECT_EQ(strip.trailingIcon(), QStringLiteral("check"));
    EXPECT_EQ(strip.hem(), 1);
    running.pass(kReachedTime + Base::Seconds{0.1});
    EXPECT_EQ(strip.trailingIcon(), QString{});
    EXPECT_EQ(strip.trailing() + strip.trailingNote(), QStringLiteral("3 / 3"));
    running.pass(kCountingTime);
    EXPECT_EQ(strip.kind(), QStringLiteral("pin"));
}

TEST(StripViewModelTest, AMessageWaitsUntilItCanBeSeenAndGoesInItsTime)
{
    RunningModel running;
    StripViewModel strip{running.model(), running.formatting()};
    strip.say(QStringLiteral("The disk is full"));
    running.pass(Base::Seconds{3600});
    strip.setVisible(true);
    EXPECT_EQ(strip.text(), QStringLiteral("The disk is full"));
    running.settle();
    running.pass(kShortMessageTime);
    EXPECT_EQ(strip.kind(), QStringLiteral("pin"));

    strip.say(QStringLiteral("again"));
    running.settle();
    running.pass(Base::Seconds{-86'400}); // the clock is set back
    emit running.model().clock().wallClockChanged();
    running.settle();
    EXPECT_EQ(strip.kind(), QStringLiteral("message"));
    running.pass(kShortMessageTime);
    EXPECT_EQ(strip.kind(), QStringLiteral("pin"));
    // What the open panel shows is not told a second time.
    strip.setPanelOpen(true);
    running.model().say(QStringLiteral("seen"));
    EXPECT_EQ(strip.kind(), QStringLiteral("pin"));
}

TEST(StripViewModelTest, ShowsANewMessageOnceAndNotThoseOfBefore)
{
    RunningModel running;
    StripViewModel strip{running.model(), running.formatting()};
    strip.setVisible(true);
    const auto write = [&](const char *text, Base::Seconds when) {
        auto message = KestCore::makeMessage({.text = text, .animation = {}}).value();
        message.kind = KestCore::kMessageKind;
        message.updated = Base::milliseconds1970(running.model().now() + when);
        running.model().changeRecords({.written = {message}, .removed = {}});
        running.settle();
    };
    write("old", -kMinute);
    EXPECT_EQ(strip.kind(), QStringLiteral("pin"));
    write("Tea is ready", Base::Seconds{1});
    EXPECT_EQ(strip.text(), QStringLiteral("Tea is ready"));
    running.pass(kShortMessageTime);
    EXPECT_EQ(strip.kind(), QStringLiteral("pin"));
    running.model().changeSetting("appearance.theme", "light");
    running.settle();
    EXPECT_EQ(strip.kind(), QStringLiteral("pin"));
    write("of tomorrow", Base::Seconds{86'400}); // hides none that comes after it
    running.pass(kShortMessageTime);
    write("of now", Base::Seconds{2});
    EXPECT_EQ(strip.text(), QStringLiteral("of now"));
}

TEST(StripViewModelTest, TellsAPrayerInTheTimeOfItsPlace)
{
    RunningModel running{[](KestCore::NativeState &state) {
        state.settings["prayer.latitude"] = "35.6762";
        state.settings["prayer.longitude"] = "139.6503";
        state.settings["prayer.timezone"] = "Asia/Tokyo";
        state.pin = {.tool = "prayer", .item = ""};
    }};
    StripViewModel strip{running.model(), running.formatting()};
    EXPECT_EQ(strip.text(), QStringLiteral("Fajr"));
    EXPECT_TRUE(strip.note().startsWith(u"04:")) << strip.note().toStdString();
}

} // namespace
