// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "RunningModel.h"
#include "Velvetnook/Application/CounterSteps.h"
#include "Velvetnook/Application/ViewModels/CounterViewModel.h"
#include "tests/Store/FaultVfs.h"

#include <QSignalSpy>

namespace
{

using Velvetnook::CounterViewModel;

class Counter : public RunningModel
{
public:
    explicit Counter(const Prepare &prepare = {})
        : RunningModel{prepare}, view{model(), formatting()}
    {
    }

    CounterViewModel view;
};

void countTo(Counter &counter, std::int64_t count)
{
    while (counter.view.count() < count) {
        counter.view.increment();
        counter.settle();
    }
}

TEST(CounterView, MakesEveryOfManyQuickClicksADurableStep)
{
    Counter counter;
    const std::int64_t before = counter.state().revision;
    QSignalSpy reached{&counter.view, &CounterViewModel::targetReached};
    for (int click = 0; click < 200; ++click) {
        counter.view.increment();
    }
    EXPECT_EQ(counter.view.count(), 0) << "shown before it was committed";
    counter.settle();
    EXPECT_EQ(counter.view.count(), 200);
    EXPECT_EQ(counter.state().revision, before + 200);
    EXPECT_EQ(reached.count(), 1);
    counter.close();
    const auto store = KestCore::StateStore::open(counter.file()).value();
    EXPECT_EQ(store.state().devotional.session.count, 200);
}

// The data is lent to another program, and this one ends before it is back.
TEST(CounterView, KeepsWhatIsCountedOnLentDataWhenTheProgramEnds)
{
    for (const std::int64_t others : {0, 5}) {
        SCOPED_TRACE(others);
        Counter counter;
        countTo(counter, 2);
        bool isLent = false;
        counter.model().keeper().lend([&isLent] { isLent = true; });
        ASSERT_TRUE(RunningModel::waitUntil([&isLent] { return isLent; }));
        if (others > 0) {
            auto store = KestCore::StateStore::open(counter.file()).value();
            ASSERT_TRUE(store.change([&](KestCore::NativeState &state) -> Base::Result<void> {
                state.devotional.session.count += others;
                return {};
            }));
        }
        counter.view.increment();
        counter.view.increment();
        counter.close();
        const auto store = KestCore::StateStore::open(counter.file()).value();
        EXPECT_EQ(store.state().devotional.session.count, 4 + others);
    }
}

TEST(StateKeeper, DoesWhatWaitedBeforeWhatTheReturnOfTheDataBringsAbout)
{
    RunningModel running;
    Velvetnook::StateKeeper &keeper = running.model().keeper();
    std::vector<std::string> done; // on the store's thread, read once that is at rest
    const auto ask = [&](const char *what) {
        keeper.perform(
            [&done, what](KestCore::StateStore &) {
                done.emplace_back(what);
                return Velvetnook::Committed{};
            },
            [](const auto &) {});
    };
    bool isLent = false;
    keeper.lend([&isLent] { isLent = true; });
    ASSERT_TRUE(RunningModel::waitUntil([&isLent] { return isLent; }));
    ask("first");
    ask("second");
    keeper.takeBack([&](const auto &) { ask("third"); });
    ASSERT_TRUE(RunningModel::waitUntil([&keeper] { return !keeper.isLent(); }));
    keeper.finish();
    EXPECT_EQ(done, (std::vector<std::string>{"first", "second", "third"}));
}

TEST(CounterView, KeepsTheTrueNumberWhenTheDiskIsFull)
{
    FaultVfs disk; // before the store is opened
    Counter counter;
    countTo(counter, 3);
    QSignalSpy failed{&counter.model(), &Velvetnook::ApplicationModel::failed};
    QSignalSpy counted{&counter.view, &CounterViewModel::countChanged};
    disk.arm(FaultVfs::Fault::diskFull, 1);
    counter.view.increment();
    counter.settle();
    ASSERT_TRUE(disk.hasStruck());
    ASSERT_EQ(failed.count(), 1);
    EXPECT_NE(failed.front().front().toString(), QString{});
    EXPECT_EQ(counter.view.count(), 3);
    EXPECT_EQ(counted.count(), 0);

    disk.disarm();
    counter.view.increment();
    counter.settle();
    EXPECT_EQ(counter.view.count(), 4);
    EXPECT_EQ(failed.count(), 1);
}

TEST(CounterView, TellsOnlyWhatACountHasChanged)
{
    Counter counter;
    countTo(counter, 2);
    QSignalSpy count{&counter.view, &CounterViewModel::countChanged};
    QSignalSpy target{&counter.view, &CounterViewModel::targetChanged};
    QSignalSpy targets{&counter.view, &CounterViewModel::targetsChanged};
    QSignalSpy phrase{&counter.view, &CounterViewModel::phraseChanged};
    QSignalSpy status{&counter.view, &CounterViewModel::statusChanged};
    QSignalSpy footer{&counter.view, &CounterViewModel::footerChanged};
    counter.view.increment();
    counter.settle();
    EXPECT_EQ(count.count(), 1);
    EXPECT_EQ(
        target.count() + targets.count() + phrase.count() + status.count() + footer.count(), 0);
}

TEST(CounterView, ReadsATypedTargetOrSaysWhyNot)
{
    struct Case {
        const char *name;
        const char *typed;
        std::int64_t target; // 0: refused
    };
    for (const auto &[name, typed, target] : {
             Case{"plain", "40", 40},
             Case{"spaces around", " 40 ", 40},
             Case{"highest", "1000000", 1'000'000},
             Case{"with marks", "1,000,000", 1'000'000},
             Case{"Arabic digits", "٤٠", 40},
             Case{"Arabic with marks", "١٬٠٠٠", 1'000},
             Case{"marks in the wrong place", "10,00", 0},
             Case{"decimal", "1.5", 0},
             Case{"zero", "0", 0},
             Case{"negative", "-4", 0},
             Case{"one too many", "1,000,001", 0},
             Case{"longer than a number", "99999999999999999999", 0},
             Case{"words", "many", 0},
             Case{"nothing", "", 0},
         }) {
        SCOPED_TRACE(name);
        Counter counter;
        counter.view.setEnteringTarget(true);
        counter.view.enterTarget(QString::fromUtf8(typed));
        counter.settle();
        EXPECT_EQ(counter.view.target(), target == 0 ? 33 : target);
        EXPECT_EQ(counter.view.isEnteringTarget(), target == 0);
        EXPECT_EQ(counter.view.targetError(),
                  target == 0 ? "Target must be between 1 and 1,000,000" : "");
    }
}

TEST(CounterView, LeavesTheStoreAloneWhilePaused)
{
    Counter counter;
    countTo(counter, 1);
    counter.view.togglePause();
    counter.settle();
    const std::int64_t before = counter.state().revision;
    counter.view.increment();
    counter.settle();
    EXPECT_EQ(counter.view.count(), 1);
    EXPECT_EQ(counter.state().revision, before);
}

TEST(CounterView, AsksBeforeItGivesUpACount)
{
    Counter counter;
    countTo(counter, 2);
    QSignalSpy failed{&counter.model(), &Velvetnook::ApplicationModel::failed};
    counter.view.reset(false);
    counter.settle();
    ASSERT_EQ(failed.count(), 1);
    EXPECT_EQ(failed.front().front().toString(), "Confirm before resetting a nonempty session");
    EXPECT_EQ(counter.view.count(), 2);
    counter.view.reset(true);
    counter.settle();
    EXPECT_EQ(counter.view.count(), 0);
    EXPECT_TRUE(counter.state().devotional.records.empty());
}

TEST(CounterView, SaysInItsFooterHowTheSessionStands)
{
    struct Case {
        const char *name;
        std::int64_t target;
        std::int64_t count;
        bool isPaused;
        const char *footer;
    };
    for (const auto &[name, target, count, isPaused, footer] : {
             Case{"fresh", 33, 0, false, "Not started yet"},
             Case{"going on", 33, 2, false, "Started 13:06"},
             Case{"paused", 33, 2, true, "Paused at 2 since 13:06"},
             Case{"one below the target", 3, 2, false, "Started 13:06"},
             Case{"target", 3, 3, false, "3 reached. Counting on keeps this session open."},
             Case{"beyond", 3, 4, false, "3 reached. Counting on keeps this session open."},
             Case{"open", 0, 2, false, "Open count · one turn of the ring is 33"},
         }) {
        SCOPED_TRACE(name);
        Counter counter;
        counter.view.setTarget(target);
        counter.settle();
        countTo(counter, count);
        if (isPaused) {
            counter.view.togglePause();
            counter.settle();
        }
        EXPECT_EQ(counter.view.footer(), footer);
        EXPECT_EQ(counter.view.isReached(), target > 0 && count >= target);
    }
}

TEST(CounterView, NamesTheDayOfASessionThatBeganBefore)
{
    Counter counter;
    countTo(counter, 1);
    counter.pass(Base::Seconds{86'400});
    EXPECT_EQ(counter.view.footer(), "Started Friday 14 November, 13:06");
}

TEST(CounterView, DoesNotPretendToKnowWhenAnEarlierRunPaused)
{
    Counter counter{[](KestCore::NativeState &state) {
        state.devotional.session.count = 5;
        state.devotional.session.isPaused = true;
    }};
    EXPECT_EQ(counter.view.footer(), "Paused at 5");
}

TEST(CounterView, TurnsThePhrasesRoundBothEnds)
{
    Counter counter;
    const auto &all = KestCore::contentCatalogue().dhikr;
    const auto selected = [&] { return counter.state().devotional.selectedDhikrId; };
    counter.view.selectNext(-1);
    counter.settle();
    EXPECT_EQ(selected(), all.back().id);
    for (int press = 0; press < 3; ++press) {
        counter.view.selectNext(1); // quicker than the store answers
    }
    counter.settle();
    EXPECT_EQ(selected(), all[2].id);
}

TEST(CounterView, AsksForTheSoundOnlyWhereItIsWanted)
{
    for (const bool isWanted : {true, false}) {
        Counter counter{[=](KestCore::NativeState &state) {
            state.devotional.preferences.completionSound = isWanted;
            state.devotional.session.target = 1;
        }};
        QSignalSpy reached{&counter.view, &CounterViewModel::targetReached};
        counter.view.increment();
        counter.settle();
        ASSERT_EQ(reached.count(), 1);
        EXPECT_EQ(reached.front().front().toBool(), isWanted);
    }
}

} // namespace
