// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Models/UtilityPayloads.h"
#include "KestCore/Tools/ScreenTimeTotals.h"

#include <gmock/gmock.h>

using namespace KestCore;
using namespace std::chrono;
using testing::ElementsAre;
using testing::IsEmpty;
using Away = ScreenTimeTracker::Away;

namespace
{

const FocusedApplication kEditor{.id = "org.example.Editor", .name = "Editor"};
const FocusedApplication kMail{.id = "mail.desktop", .name = "Mail"};

Base::Instant at(const char *text) { return Base::fromIso8601(text).value(); }

// A tracker with an application in front and somebody who touches a key each minute.
class Desk
{
public:
    explicit Desk(Base::Instant start, const char *zone = "UTC",
                  ScreenTimeSettings settings = {.enabled = true})
        : m_now(start), m_tracker(std::move(settings), Calendar::inZone(zone).value())
    {
        m_tracker.focus(kEditor, m_now);
        m_tracker.input(m_now, m_now);
    }

    enum class Hands : std::uint8_t { typing, still };
    void pass(minutes time, Hands hands = Hands::typing)
    {
        for (minutes passed{}; passed < time; passed += minutes{1}) {
            m_now += minutes{1};
            if (hands == Hands::typing) {
                m_tracker.input(m_now, m_now);
            } else {
                m_tracker.advance(m_now);
            }
        }
    }
    void jump(Base::Seconds step) { m_now += step; }

    ScreenTimeTracker &tracker() { return m_tracker; }
    Base::Instant now() const { return m_now; }

    // Minutes by day, whatever the application.
    std::map<std::int64_t, double> minutesByDay()
    {
        std::map<std::int64_t, double> total;
        for (const UsagePiece &piece : m_tracker.take()) {
            total[piece.day] += piece.seconds.count() / 60;
        }
        return total;
    }
    double total()
    {
        double sum = 0;
        for (const auto &[day, time] : minutesByDay()) {
            sum += time;
        }
        return sum;
    }

private:
    Base::Instant m_now;
    ScreenTimeTracker m_tracker;
};

std::vector<LocalRecord> merged(std::vector<LocalRecord> stored, const RecordChanges &changes)
{
    for (const LocalRecord &record : changes.written) {
        std::erase_if(stored, [&](const LocalRecord &old) { return old.id == record.id; });
        stored.push_back(record);
    }
    return stored;
}

} // namespace

TEST(ScreenTimeTracker, CountsWhatIsInFront)
{
    Desk desk{at("2026-11-21T10:00:00Z")};
    desk.pass(10min);
    desk.tracker().focus(kMail, desk.now());
    desk.pass(5min);
    desk.tracker().focus(std::nullopt, desk.now());
    desk.pass(7min);
    desk.tracker().focus(kEditor, desk.now());
    desk.pass(1min);
    const auto pieces = desk.tracker().take();
    ASSERT_EQ(pieces.size(), 2U);
    EXPECT_EQ(pieces[0].application, kEditor);
    EXPECT_EQ(pieces[0].seconds, Base::Seconds{11min});
    EXPECT_EQ(pieces[0].stretch, Base::Seconds{16min});
    EXPECT_EQ(pieces[1].seconds, Base::Seconds{5min});
    EXPECT_THAT(desk.tracker().take(), IsEmpty());
}

TEST(ScreenTimeTracker, LeavesOutWhoIsAway)
{
    Desk idle{at("2026-11-21T10:00:00Z")};
    idle.pass(10min);
    idle.pass(60min, Desk::Hands::still);
    idle.pass(3min); // the first minute of it is still without a hand
    EXPECT_EQ(idle.total(), 10 + 5 + 2);
    for (const Away why : {Away::locked, Away::suspended}) {
        Desk desk{at("2026-11-21T10:00:00Z")};
        desk.pass(2min);
        desk.tracker().setAway(why, true, desk.now());
        desk.pass(30min);
        desk.tracker().setAway(why, false, desk.now());
        desk.pass(3min);
        const auto pieces = desk.tracker().take();
        ASSERT_EQ(pieces.size(), 1U);
        EXPECT_EQ(pieces[0].seconds, Base::Seconds{5min});
        EXPECT_EQ(pieces[0].stretch, Base::Seconds{3min});
    }
    Desk both{at("2026-11-21T10:00:00Z")};
    both.tracker().setAway(Away::locked, true, both.now());
    both.tracker().setAway(Away::suspended, true, both.now());
    both.tracker().setAway(Away::suspended, false, both.now());
    both.pass(5min);
    EXPECT_EQ(both.total(), 0);
}

TEST(ScreenTimeTracker, BoundsWhatAClockOrASleepMayAdd)
{
    Desk desk{at("2026-11-21T10:00:00Z")};
    desk.pass(10min);
    desk.jump(-3h);
    desk.pass(10min);
    EXPECT_EQ(desk.total(), 19); // the step itself counts nothing
    desk.jump(8h);               // nobody said that it slept
    desk.tracker().input(desk.now(), desk.now());
    EXPECT_EQ(desk.total(), 5);
}

TEST(ScreenTimeTracker, SplitsAtMidnightAndWhereTheZoneChanges)
{
    Desk desk{at("2026-11-20T23:55:00Z")};
    desk.pass(15min);
    const auto midnight = sys_days{2026y / November / 21}.time_since_epoch().count();
    EXPECT_THAT(desk.minutesByDay(),
                ElementsAre(testing::Pair(midnight - 1, 5), testing::Pair(midnight, 10)));
    // West, where it is still the day before.
    desk.tracker().setCalendar(Calendar::inZone("America/New_York").value(), desk.now());
    desk.pass(4min);
    EXPECT_THAT(desk.minutesByDay(), ElementsAre(testing::Pair(midnight - 1, 4)));
}

TEST(ScreenTimeTracker, CountsOnlyWhatItMay)
{
    const auto settings = [](const char *enabled, const char *excluded) {
        return screenTimeSettings({{"screen-time.enabled", enabled},
                                   {"screen-time.excluded", excluded},
                                   {"screen-time.idleMinutes", "0"}});
    };
    EXPECT_FALSE(screenTimeSettings({}).enabled);
    EXPECT_EQ(settings("true", "").idleLimit, Base::Seconds{5min});
    for (const auto &[name, chosen, expected] :
         {std::tuple{"off", settings("false", ""), 0.0},
          std::tuple{"another excluded", settings("true", "mail, games"), 5.0},
          std::tuple{"excluded", settings("true", "x, ORG.example.editor.desktop"), 0.0}}) {
        SCOPED_TRACE(name);
        Desk desk{at("2026-11-21T10:00:00Z"), "UTC", chosen};
        desk.pass(5min);
        EXPECT_EQ(desk.total(), expected);
    }
}

TEST(ScreenTimeTotals, KeepOneRecordADayAndApplication)
{
    const auto now = at("2026-11-21T12:00:00Z");
    const std::int64_t today = sys_days{2026y / November / 21}.time_since_epoch().count();
    const auto piece = [&](const FocusedApplication &application, std::int64_t day,
                           Base::Seconds seconds) {
        return UsagePiece{
            .application = application, .day = day, .seconds = seconds, .stretch = seconds};
    };
    std::vector<LocalRecord> stored;
    for (const auto &pieces : std::vector<std::vector<UsagePiece>>{
             {piece(kEditor, today, 30min), piece(kMail, today - 1, 2h)},
             {piece(kEditor, today, 10min), piece(kMail, today, 60min)},
             {piece(kMail, today - 7, 20min)}}) {
        auto changes = usageChanges(stored, pieces, today, now);
        stored = merged(std::move(stored), std::move(changes));
    }
    EXPECT_EQ(stored.size(), 4U);
    for (const LocalRecord &record : stored) {
        EXPECT_TRUE(validate(record)) << record.id;
    }
    const auto days = usageDays(stored, 2026y / November / 21, 2);
    ASSERT_EQ(days.size(), 2U);
    EXPECT_EQ(days[0].seconds, 7200);
    EXPECT_FALSE(days[0].change);
    EXPECT_EQ(days[1].seconds, 6000);
    EXPECT_EQ(days[1].change, -1200);
    EXPECT_EQ(days[1].longestStretch, 3600);
    EXPECT_THAT(days[1].applications,
                ElementsAre(ApplicationTotal{"mail.desktop", "Mail", 3600},
                            ApplicationTotal{"org.example.Editor", "Editor", 2400}));
    const auto week = usageTotal(stored, 2026y / November / 21, 6, 7);
    EXPECT_EQ(week.seconds, 13'200);
    EXPECT_EQ(week.change, 13'200 - 1200);

    // A day on the way west has more hours than a record may hold, and old days are forgotten.
    const std::vector long26{piece(kEditor, today, 26h)};
    const auto late = usageChanges(stored, long26, today + 90, now);
    ASSERT_EQ(late.written.size(), 1U);
    EXPECT_TRUE(validate(late.written[0]));
    EXPECT_THAT(late.removed, ElementsAre("usage:2026-11-14:mail.desktop"));
}
