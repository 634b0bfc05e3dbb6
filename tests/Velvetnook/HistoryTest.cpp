// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "RunningModel.h"
#include "Velvetnook/Application/ViewModels/HistoryViewModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QThreadPool>

namespace
{

using KestCore::SessionRecord;
using Records = Base::SharedList<SessionRecord>;
using Velvetnook::HistoryTotals;
using Velvetnook::HistoryViewModel;

constexpr double kDay = 86'400'000; // ms

SessionRecord session(double endedAt, std::int64_t count, std::string phrase = "subhanallah")
{
    static int made = 0;
    return {.id = std::to_string(++made),
            .dhikrId = std::move(phrase),
            .count = count,
            .target = 33,
            .endedAt = endedAt};
}

double ms(const char *text) { return Base::milliseconds1970(Base::fromIso8601(text).value()); }

TEST(HistoryTotals, DividesDaysAtLocalMidnight)
{
    const auto london = KestCore::Calendar::inZone("Europe/London").value();
    const auto now = Base::fromIso8601("2025-10-28T12:00:00Z").value();
    // The clock went back on the 26th: the 22nd, six dates before, began at 23:00 UTC.
    const Records records{{
        session(ms("2025-09-28T22:59:59Z"), 1),     // 30 dates before
        session(ms("2025-09-28T23:00:00Z"), 10),    // 29
        session(ms("2025-10-21T22:59:59Z"), 100),   // 7
        session(ms("2025-10-21T23:00:00Z"), 1'000), // 6
        session(ms("2025-10-27T23:59:59Z"), 10'000),
        session(ms("2025-10-28T00:00:00Z"), 100'000, "alhamdulillah"),
        session(ms("2025-11-02T00:00:00Z"), 1'000'000), // the clock was set back since
    }};
    const HistoryTotals totals = Velvetnook::historyTotals(records, london, now);
    const auto count = [&](std::size_t period) { return totals.total.at(period).count; };
    EXPECT_EQ(count(0), 1'100'000);
    EXPECT_EQ(count(1), 1'111'000);
    EXPECT_EQ(count(2), 1'111'110);
    EXPECT_EQ(count(3), 1'111'111);
    EXPECT_EQ(totals.days.back(), 1'100'000);
    EXPECT_EQ(totals.days[28], 10'000);
    EXPECT_EQ(totals.days[23], 1'000);
    EXPECT_EQ(totals.days[22], 100);
    EXPECT_EQ(totals.days.front(), 10);
    ASSERT_EQ(totals.byPhrase[0].size(), 2U);
    EXPECT_EQ(totals.byPhrase[0].front().phraseId, "subhanallah");
    EXPECT_EQ(totals.byPhrase[0].back().total,
              (Velvetnook::PeriodTotal{.count = 100'000, .sessions = 1}));
}

Records manySessions(std::size_t count)
{
    std::vector<SessionRecord> list;
    const double end = Base::milliseconds1970(RunningModel::kStart);
    for (std::size_t n = 0; n < count; ++n) {
        const double age = static_cast<double>(count - n) * 600'000; // ten minutes apart
        list.push_back(session(end - age, static_cast<std::int64_t>(n % 100),
                               n % 3 == 0 ? "allahu-akbar" : "subhanallah"));
    }
    return Records{std::move(list)};
}

void finishOne(RunningModel &running)
{
    running.change([](KestCore::NativeState &state) {
        state.devotional.records.append(
            session(Base::milliseconds1970(RunningModel::kStart), 7));
    });
}

TEST(HistoryView, AddsManySessionsUpWithoutHoldingUpTheCounter)
{
    RunningModel running{
        [](KestCore::NativeState &state) { state.devotional.records = manySessions(99'999); }};
    HistoryViewModel history{running.model(), running.formatting()};
    history.setPeriod("all");
    QSignalSpy changed{&history, &HistoryViewModel::changed};
    EXPECT_EQ(history.total(), "") << "a number before they are added up";
    EXPECT_EQ(history.totalNote(), "");
    finishOne(running); // while the first adding up may be under way
    while (history.total() != "4,949,908") {
        ASSERT_TRUE(changed.wait()) << history.total().toStdString();
    }
    QThreadPool::globalInstance()->waitForDone();
    running.settle(); // an earlier adding up that ends last must not win
    EXPECT_EQ(history.total(), "4,949,908");
    EXPECT_EQ(history.totalNote(), "in all, 100,000 sessions");
    EXPECT_EQ(history.sessions()->rowCount(), 100'000);
}

TEST(HistoryView, PutsANewSessionFirst)
{
    RunningModel running{
        [](KestCore::NativeState &state) { state.devotional.records = manySessions(3); }};
    HistoryViewModel history{running.model(), running.formatting()};
    const QAbstractItemModelTester tester{
        history.sessions(), QAbstractItemModelTester::FailureReportingMode::Fatal};
    QSignalSpy inserted{history.sessions(), &QAbstractItemModel::rowsInserted};
    QSignalSpy reset{history.sessions(), &QAbstractItemModel::modelReset};
    finishOne(running);
    EXPECT_EQ(inserted.count(), 1);
    EXPECT_EQ(reset.count(), 0);
    const auto first = history.sessions()->index(0, 0);
    EXPECT_EQ(first.data(Velvetnook::SessionList::count).toString(), "7");
    EXPECT_EQ(first.data(Velvetnook::SessionList::day).toString(), "Today");

    running.change([](KestCore::NativeState &state) { state.devotional.records = {}; });
    EXPECT_EQ(reset.count(), 1);
    EXPECT_TRUE(history.isEmpty());
}

TEST(HistoryView, BeginsANewDayAtMidnight)
{
    RunningModel running;
    HistoryViewModel history{running.model(), running.formatting()};
    finishOne(running);
    EXPECT_EQ(history.total(), "7");
    EXPECT_EQ(history.totalNote(), "today, in one session");
    running.pass(Base::Seconds{kDay / 1000});
    EXPECT_EQ(history.total(), "0");
    const auto first = history.sessions()->index(0, 0);
    EXPECT_EQ(first.data(Velvetnook::SessionList::day).toString(), "Yesterday");
    running.pass(Base::Seconds{366 * kDay / 1000});
    EXPECT_EQ(first.data(Velvetnook::SessionList::day).toString(), "Friday 14 November 2025");
}

} // namespace
