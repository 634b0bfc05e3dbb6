// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "RunningModel.h"
#include "Velvetnook/Application/FridayPrompt.h"
#include "Velvetnook/Application/HomeCards.h"
#include "Velvetnook/Application/TimerSteps.h"
#include "Velvetnook/Application/ToolChoice.h"
#include "Velvetnook/Application/ViewModels/HomeViewModel.h"
#include "Velvetnook/Application/ViewModels/NamesViewModel.h"

#include <QSignalSpy>

namespace
{

using KestCore::Settings;
using Velvetnook::HomeCard;
using Velvetnook::HomeViewModel;
using Velvetnook::NamesViewModel;

Base::Instant at(const char *text) { return Base::fromIso8601(text).value(); }

TEST(FridayPrompt, ComesOnceOnAFridayAtItsTime)
{
    struct Case {
        const char *name;
        const char *now; // in London
        Settings settings;
        const char *due; // empty: not at all
    };
    const Settings on{{"friday.enabled", "true"}};
    const auto with = [&](const char *key, const char *value) {
        Settings settings = on;
        settings[key] = value;
        return settings;
    };
    const auto london = KestCore::Calendar::inZone("Europe/London").value();
    for (const auto &[name, now, settings, due] : {
             Case{"off", "2025-11-14T08:00:00Z", {}, ""},
             Case{"not exactly on", "2025-11-14T08:00:00Z", {{"friday.enabled", "1"}}, ""},
             Case{"before its time", "2025-11-14T08:00:00Z", on, "2025-11-14T09:00:00Z"},
             Case{"late on the day", "2025-11-14T23:59:00Z", on, "2025-11-14T09:00:00Z"},
             Case{"just after midnight", "2025-11-14T00:00:00Z", on, "2025-11-14T09:00:00Z"},
             Case{"Saturday lets it go", "2025-11-15T00:00:00Z", on, "2025-11-21T09:00:00Z"},
             Case{"Thursday", "2025-11-13T23:59:59Z", on, "2025-11-14T09:00:00Z"},
             Case{"shown", "2025-11-14T10:00:00Z", with("friday.lastShown", "2025-11-14"),
                  "2025-11-21T09:00:00Z"},
             Case{"shown a week ago", "2025-11-14T10:00:00Z",
                  with("friday.lastShown", "2025-11-07"), "2025-11-14T09:00:00Z"},
             Case{"own time", "2025-11-14T10:00:00Z", with("friday.time", "11:30"),
                  "2025-11-14T11:30:00Z"},
             Case{"no time", "2025-11-14T08:00:00Z", with("friday.time", "25:00"),
                  "2025-11-14T09:00:00Z"},
             Case{"over the end of summer time", "2025-10-25T10:00:00Z", on,
                  "2025-10-31T09:00:00Z"},
             Case{"into summer time", "2026-03-28T10:00:00Z", on, "2026-04-03T08:00:00Z"},
         }) {
        SCOPED_TRACE(name);
        const auto found = Velvetnook::fridayDue(at(now), settings, london);
        EXPECT_EQ(found ? Base::toIso8601(*found).value() : "", due);
    }
}

std::string drawn(const std::vector<HomeCard> &cards)
{
    std::string text;
    for (const HomeCard &card : cards) {
        text += card.tool + "@" + std::to_string(card.row) + "," + std::to_string(card.column) +
                " ";
    }
    return text;
}

TEST(HomeCards, StandWhereTheyHaveRoom)
{
    struct Case {
        const char *name;
        const char *widgets; // nullptr: not set
        const char *workspace;
        const char *cards;
        const char *off = "";
    };
    for (const auto &[name, widgets, workspace, cards, off] : {
             Case{"the first workspace", nullptr, "faith",
                  "dhikr@0,0 prayer@0,2 weather@0,3 names@1,0 timers@1,1 stats@1,2 "},
             Case{"no such workspace", nullptr, "none",
                  "dhikr@0,0 prayer@0,2 names@0,3 timers@1,0 "},
             Case{"named, in their order", "stats,timers,dhikr", "faith",
                  "stats@0,0 timers@0,2 dhikr@1,0 "},
             Case{"a narrow one fills a gap", "prayer,stats,dhikr,names", "faith",
                  "prayer@0,0 stats@0,1 dhikr@1,0 names@0,3 "},
             Case{"twice, unknown and empty ones", ",names,,screen-time,names,", "faith",
                  "names@0,0 "},
             Case{"none", "", "faith", ""},
             Case{"a tool that is off", "prayer,names,timers", "faith",
                  "prayer@0,0 timers@0,1 ", "names"},
         }) {
        SCOPED_TRACE(name);
        auto state = KestCore::defaultNativeState();
        for (const char *tool : {"weather", "stats"}) { // which the user turns on
            Velvetnook::setToolOn(state, tool, true);
        }
        std::erase(state.enabled, off);
        if (widgets != nullptr) {
            state.settings["home.widgets"] = widgets;
        }
        auto companion = KestCore::defaultCompanionState();
        companion.selectedWorkspaceID = workspace;
        EXPECT_EQ(drawn(Velvetnook::homeCards(state, companion)), cards);
    }
}

Settings london()
{
    return {{"prayer.latitude", "51.5074"},
            {"prayer.longitude", "-0.1278"},
            {"prayer.timezone", "Europe/London"},
            {"prayer.city", "London"}};
}

TEST(HomeView, CountsDownOnlyWhileItIsShown)
{
    RunningModel running{[](KestCore::NativeState &state) { state.settings = london(); }};
    HomeViewModel home{running.model(), running.formatting()};
    QSignalSpy changed{&home, &HomeViewModel::changed};
    running.pass(Base::Seconds{600});
    running.change([](KestCore::NativeState &state) { ++state.devotional.session.count; });
    EXPECT_EQ(changed.count(), 0);

    home.setShown(true);
    running.settle();
    EXPECT_EQ(home.prayerTitle(), "Asr");
    const auto left = [&] { return home.prayerLeft().front().toMap()["value"].toInt(); };
    const int before = left();
    EXPECT_EQ(home.prayerLeft().size(), 1);
    running.pass(Base::Seconds{30});
    running.pass(Base::Seconds{31});
    EXPECT_EQ(left(), before - 1);
    EXPECT_GT(changed.count(), 1);

    running.pass(Base::Seconds{3'600}); // past Asr
    EXPECT_EQ(home.prayerTitle(), "Maghrib");
    home.setShown(false);
    running.settle();
    changed.clear();
    running.pass(Base::Seconds{600});
    EXPECT_EQ(changed.count(), 0);
}

TEST(HomeView, ShowsTheTimerThatGoesOnAndNotOneThatIsOver)
{
    RunningModel running;
    HomeViewModel home{running.model(), running.formatting()};
    home.setShown(true);
    const auto begin = [&](const char *title, double minutes) {
        Velvetnook::beginTimer(
            running.model(),
            {.mode = KestCore::TimerMode::countdown, .minutes = minutes, .title = title});
        running.settle();
    };
    begin("Tea", 1);
    running.pass(Base::Seconds{120});
    EXPECT_EQ(home.timerNote(), "finished");
    begin("Bread", 50);
    EXPECT_EQ(home.timerTitle(), "Bread");
    EXPECT_EQ(home.timerText(), "50:00");
}

// Another alarm of the same moment has all of them asked again before they are called.
TEST(HomeView, CountsDownThoughAllIsAskedAgainInThatMoment)
{
    RunningModel running{[](KestCore::NativeState &state) { state.settings = london(); }};
    HomeViewModel home{running.model(), running.formatting()};
    home.setShown(true);
    running.settle();
    QSignalSpy changed{&home, &HomeViewModel::changed};
    for (int minute = 0; minute < 10; ++minute) {
        running.passAndAskAgain(Base::Seconds{60.01});
    }
    EXPECT_GE(changed.count(), 10);
}

TEST(HomeView, SaysOfWhichDayACountIs)
{
    RunningModel running{[](KestCore::NativeState &state) {
        state.devotional.session.count = 21;
        state.devotional.session.startedAt =
            Base::milliseconds1970(RunningModel::kStart - Base::Seconds{3 * 86'400});
    }};
    const HomeViewModel home{running.model(), running.formatting()};
    EXPECT_TRUE(home.counterNote().endsWith("since Tuesday 11 November, 13:06"))
        << home.counterNote().toStdString();
}

TEST(HomeView, AsksForAPlaceWhereThereIsNone)
{
    RunningModel running;
    HomeViewModel home{running.model(), running.formatting()};
    home.setShown(true);
    EXPECT_TRUE(home.prayerLeft().empty());
    EXPECT_EQ(home.prayerNote(), "Choose where you are");
    EXPECT_EQ(home.timerText(), "");
}

TEST(NamesView, FindsOneAndKeepsItWhileItIsStillThere)
{
    RunningModel running;
    NamesViewModel names{running.model(), running.formatting()};
    EXPECT_TRUE(names.isNameOfTheDay());
    names.open("as-salam");
    EXPECT_EQ(names.position(), "5 of 99");
    names.setQuery("salam");
    EXPECT_EQ(names.row(), 0);
    EXPECT_EQ(names.title(), "As-Salām");
    names.setQuery("malik");
    EXPECT_NE(names.title(), "As-Salām");
    names.setQuery("no such word");
    EXPECT_TRUE(names.isListEmpty());
    EXPECT_EQ(names.row(), -1);
    names.move(1); // nothing to move among
    names.setQuery({});
    names.move(-1'000);
    EXPECT_EQ(names.position(), "1 of 99");
    names.move(1'000);
    EXPECT_EQ(names.position(), "99 of 99");
}

TEST(NamesView, MarksFavouritesAndPinsDurably)
{
    RunningModel running;
    NamesViewModel names{running.model(), running.formatting()};
    QSignalSpy failed{&running.model(), &Velvetnook::ApplicationModel::failed};
    names.open("as-salam");
    names.toggleFavourite(); // the Names are none
    names.togglePin();
    running.settle();
    EXPECT_EQ(running.state().pin, (KestCore::Pin{.tool = "names", .item = "as-salam"}));
    EXPECT_TRUE(names.isPinned());
    names.togglePin();
    running.settle();
    EXPECT_FALSE(running.state().devotional.preferences.pinEnabled);

    names.open("la-hawla");
    names.toggleFavourite();
    names.togglePin();
    running.settle();
    EXPECT_EQ(running.state().devotional.favorites.back(), "la-hawla");
    EXPECT_TRUE(names.isPinned());
    names.setTab("favourites");
    EXPECT_EQ(names.list()->rowCount(), 4);
    for (int press = 0; press < 4; ++press) {
        names.setRow(0);
        names.toggleFavourite();
        running.settle();
    }
    EXPECT_TRUE(names.isListEmpty());
    EXPECT_EQ(failed.count(), 0);
}

} // namespace
