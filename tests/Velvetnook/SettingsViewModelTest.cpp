// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/SettingsViewModel.h"

#include "Velvetnook/Application/ToolChoice.h"
#include "Velvetnook/Application/ViewModels/OnboardingViewModel.h"
#include "Velvetnook/Application/ViewModels/PanelViewModel.h"
#include "Velvetnook/Application/ViewModels/UnitsViewModel.h"
#include "tests/Store/FaultVfs.h"
#include "tests/Velvetnook/RunningModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <array>
#include <fstream>

namespace
{

using namespace Velvetnook;

class SettingsViewModelTest : public testing::Test
{
protected:
    void addNote(const char *id)
    {
        running.model().changeRecords(
            {.written = {{.id = id, .kind = "note", .title = id, .body = R"({"text":""})"}},
             .removed = {}});
        running.settle();
    }
    void finish()
    {
        ASSERT_TRUE(RunningModel::waitUntil([&] { return !settings.data()->isBusy(); }));
    }
    QUrl file(const char *name) const
    {
        return QUrl::fromLocalFile(QString::fromStdString(running.path(name)));
    }
    std::string_view setting(const char *key)
    {
        running.settle();
        return running.model().setting(key);
    }

    RunningModel running;
    SettingsViewModel settings{running.model(), running.formatting()};
};

TEST_F(SettingsViewModelTest, ARefusedBackupKeepsTheDataAndSaysWhy)
{
    addNote("kept");
    const auto before = running.model().state();
    std::ofstream{running.path("empty.json")} << "{}";
    std::ofstream{running.path("older.json")}
        << R"({"format":"kest-native-backup","version":2})";
    std::ofstream{running.path("large.json")};
    std::filesystem::resize_file(running.path("large.json"), 50'000'001);
    struct Case {
        const char *name;
        const char *message;
    };
    for (const auto &[name, message] : {
             Case{"missing.json", "No such file"},
             Case{"empty.json", "Invalid backup"},
             Case{"older.json", "Invalid backup"},
             Case{"large.json", "Backup exceeds 50 MB"},
         }) {
        SCOPED_TRACE(name);
        settings.data()->openBackup(file(name));
        finish();
        EXPECT_TRUE(settings.data()->isFailure());
        EXPECT_TRUE(settings.data()->message().contains(message))
            << settings.data()->message().toStdString();
        EXPECT_TRUE(settings.data()->question().isEmpty());
        settings.data()->accept(); // nothing stands to be accepted
        EXPECT_EQ(running.model().state(), before);
        EXPECT_EQ(running.model().recordsOfKind("note").size(), 1U);
    }
}

TEST_F(SettingsViewModelTest, AnImportReplacesOnlyWhenItsQuestionIsAccepted)
{
    addNote("in the backup");
    settings.data()->exportTo(file("backup.json"));
    finish();
    EXPECT_FALSE(settings.data()->isFailure()) << settings.data()->message().toStdString();
    addNote("added later");
    for (const bool isAccepted : {false, true}) {
        SCOPED_TRACE(isAccepted);
        settings.data()->openBackup(file("backup.json"));
        finish();
        ASSERT_EQ(settings.data()->question(), "import");
        EXPECT_EQ(settings.data()->questionTitle(), "Replace local data?");
        EXPECT_TRUE(settings.data()->questionBody().contains("2 here, 1 in the backup"))
            << settings.data()->questionBody().toStdString();
        if (isAccepted) {
            settings.data()->accept();
        } else {
            settings.data()->decline();
        }
        finish();
        EXPECT_EQ(running.model().recordsOfKind("note").size(), isAccepted ? 1U : 2U);
    }
}

TEST_F(SettingsViewModelTest, AnExportThatFailsLeavesTheOldFile)
{
    std::ofstream{running.path("old.json")} << "old";
    std::filesystem::create_directory(running.path("folder"));
    settings.data()->exportTo(file("folder"));
    finish();
    EXPECT_TRUE(settings.data()->isFailure());
    EXPECT_FALSE(settings.data()->message().isEmpty());
    settings.data()->exportTo(file("nowhere/at/all.json"));
    finish();
    EXPECT_TRUE(settings.data()->isFailure());
}

TEST_F(SettingsViewModelTest, ClearingAndResettingAskFirstAndTakeOnlyWhatTheySay)
{
    addNote("note");
    running.model().changeSetting("appearance.theme", "dark");
    settings.data()->ask("reset");
    settings.data()->decline();
    running.settle();
    EXPECT_EQ(running.model().recordsOfKind("note").size(), 1U);
    settings.data()->ask("reset");
    settings.data()->accept();
    finish();
    EXPECT_TRUE(running.model().recordsOfKind("note").empty());
    EXPECT_EQ(setting("appearance.theme"), "dark");
    EXPECT_TRUE(running.model().state().devotional.onboardingComplete);
}

TEST_F(SettingsViewModelTest, ToolsMoveAmongThoseShownAndOthersKeepTheirPlaces)
{
    ToolSettings &tools = *settings.tools();
    const QAbstractItemModelTester tester{
        &tools, QAbstractItemModelTester::FailureReportingMode::Fatal};
    const auto order = [&] {
        running.settle();
        return running.model().state().order;
    };
    const auto idAt = [&](int row) {
        return tools.index(row).data(ToolSettings::toolId).toString().toStdString();
    };
    const auto before = order();
    for (const auto &[from, to] :
         {std::pair{-1, 0}, std::pair{0, -1}, std::pair{0, tools.rowCount()},
          std::pair{tools.rowCount(), 0}, std::pair{2, 2}}) {
        tools.move(from, to);
        EXPECT_EQ(order(), before);
    }
    const int last = tools.rowCount() - 1;
    const std::string first = idAt(0);
    const std::string second = idAt(1);
    tools.move(0, last);
    running.settle();
    EXPECT_EQ(idAt(last), first);
    EXPECT_EQ(idAt(0), second);
    tools.move(last, 0);
    EXPECT_EQ(order(), before); // with every tool that is not shown where it was
}

TEST_F(SettingsViewModelTest, TheHeaderTakesEightToolsAndTheStartStaysOn)
{
    ToolSettings &tools = *settings.tools();
    for (int row = 0; row < tools.rowCount(); ++row) {
        tools.setFavourite(tools.index(row).data(ToolSettings::toolId).toString(), true);
        running.settle();
    }
    ASSERT_GT(tools.rowCount(), 8);
    EXPECT_EQ(Velvetnook::tabCount(running.model().state()), 8U);
    const QString full = tools.favouritesNote();
    tools.setFavourite(tools.index(0).data(ToolSettings::toolId).toString(), false);
    running.settle();
    EXPECT_EQ(Velvetnook::tabCount(running.model().state()), 7U);
    EXPECT_NE(tools.favouritesNote(), full);

    const auto enabled = running.model().state().enabled;
    tools.setEnabled("home", false);
    tools.setEnabled("no-such-tool", true);
    running.settle();
    EXPECT_EQ(running.model().state().enabled, enabled);
}

TEST_F(SettingsViewModelTest, AToolThatIsTurnedOffIsNowhereInThePanel)
{
    PanelViewModel panel{running.model(), running.formatting()};
    const auto has = [](const QVariantList &list, const char *id) {
        return std::ranges::any_of(
            list, [&](const QVariant &each) { return each.toMap()["id"].toString() == id; });
    };
    for (const char *id : {"timers", "dhikr"}) {
        SCOPED_TRACE(id);
        settings.tools()->setFavourite(id, true);
        running.settle();
        panel.openTool(id);
        ASSERT_EQ(panel.tool(), id);
        ASSERT_TRUE(has(panel.tabs(), id));
        settings.tools()->setEnabled(id, false);
        running.settle();
        EXPECT_EQ(panel.tool(), "home");
        EXPECT_FALSE(has(panel.tabs(), id));
        EXPECT_FALSE(has(panel.allTools(), id));
        panel.openTool(id);
        EXPECT_EQ(panel.tool(), "home");
        EXPECT_FALSE(panel.message().isEmpty());
    }
    panel.openTool("history"); // goes with the counter
    EXPECT_EQ(panel.tool(), "home");
    EXPECT_EQ((PanelViewModel{running.model(), running.formatting()}.tool()), "home");
    settings.tools()->setEnabled("timers", true);
    running.settle();
    EXPECT_TRUE(has(panel.tabs(), "timers")) << "with the tab that it had";
}

TEST_F(SettingsViewModelTest, WhatCppWordsIsWordedAnewInAnotherLanguage)
{
    PanelViewModel panel{running.model(), running.formatting()};
    UnitsViewModel units{running.model(), running.formatting()};
    OnboardingViewModel onboarding{running.model(), running.formatting()};
    QSignalSpy pages{&settings, &SettingsViewModel::pagesChanged};
    QSignalSpy title{&settings, &SettingsViewModel::pageChanged};
    QSignalSpy shown{&panel, &PanelViewModel::wordsChanged};
    QSignalSpy categories{&units, &UnitsViewModel::wordsChanged};
    QSignalSpy targets{&onboarding, &OnboardingViewModel::wordsChanged};
    const auto count = [&] {
        QCoreApplication::processEvents();
        return std::array{pages.size(), title.size(), shown.size(), categories.size(),
                          targets.size()};
    };
    running.change([](KestCore::NativeState &state) { ++state.devotional.session.count; });
    EXPECT_EQ(count(), (std::array<qsizetype, 5>{})) << "a count changes no words";
    running.change(
        [](KestCore::NativeState &state) { state.settings["appearance.language"] = "ar"; });
    EXPECT_EQ(count(), (std::array<qsizetype, 5>{1, 1, 1, 1, 1}));
}

TEST_F(SettingsViewModelTest, APlaceByItsNumbersIsTakenOnlyWhole)
{
    PlaceSettings &place = *settings.place();
    struct Case {
        const char *field;
        const char *text;
        bool isRefused;
        const char *latitude; // that is kept then
    };
    for (const auto &[field, text, isRefused, latitude] : {
             Case{"latitude", "30,04", false, ""}, Case{"longitude", "٣١٫٢٤", false, ""},
             Case{"timezone", "Africa/Kairo", true, ""},
             Case{"timezone", "Africa/Cairo", false, "30.04"},
             Case{"latitude", "90.5", true, "30.04"}, Case{"latitude", "nan", true, "30.04"},
             Case{"latitude", "−90", false, "-90"}, Case{"longitude", "180.01", true, "-90"},
             Case{"longitude", "-180", false, "-90"}, Case{"country", "Egypt", true, "-90"},
             Case{"country", "eg", false, "-90"},
             Case{"latitude", "", false, "-90"}, // waits for its value
         }) {
        SCOPED_TRACE(text);
        place.setField(field, QString::fromUtf8(text));
        EXPECT_EQ(setting("prayer.latitude"), latitude);
        EXPECT_EQ(place.refusals()[field].toString().isEmpty(), !isRefused);
        // What was refused stays, also when something else is changed.
        running.model().changeSetting("appearance.theme", text);
        running.settle();
        if (isRefused) {
            EXPECT_EQ(place.fields()[field].toString(), QString::fromUtf8(text));
        }
    }
}

TEST_F(SettingsViewModelTest, ACityTakesThePlaceOfWhatWasRefusedAndOfTheCityBefore)
{
    PlaceSettings &place = *settings.place();
    place.setField("latitude", "95");
    place.search("London, GB");
    ASSERT_FALSE(place.found().isEmpty());
    place.choose(99);
    place.choose(-1);
    EXPECT_FALSE(place.isSet());
    place.choose(0);
    EXPECT_EQ(setting("prayer.timezone"), "Europe/London");
    EXPECT_EQ(place.refusals()["latitude"].toString(), "");
    EXPECT_EQ(place.fields()["timezone"].toString(), "Europe/London");
    EXPECT_TRUE(place.title().startsWith("London"));

    place.setField("latitude", "21.4");
    EXPECT_EQ(setting("prayer.city"), "");
    place.search("no such city at all");
    EXPECT_FALSE(place.findings().isEmpty());
}

TEST_F(SettingsViewModelTest, PrayerChoicesStayWithinTheirBounds)
{
    PrayerSettings &prayer = *settings.prayer();
    EXPECT_TRUE(prayer.times().isEmpty());
    settings.place()->search("London, GB");
    settings.place()->choose(0);
    running.settle();
    EXPECT_EQ(prayer.times().size(), 6);
    for (const auto &[name, minutes, kept] : {
             std::tuple{"fajr", 61, "60"},
             std::tuple{"isha", -1000, "-60"},
             std::tuple{"sunrise", 5, ""},
             std::tuple{"noon", 5, ""},
         }) {
        SCOPED_TRACE(name);
        prayer.setAdjustment(name, minutes);
        EXPECT_EQ(setting(("prayer.adjust." + std::string{name}).c_str()), kept);
    }
    prayer.setHijriOffset(9);
    EXPECT_EQ(setting("prayer.islamicDayOffset"), "2");
    EXPECT_EQ(prayer.hijriDate(), "25 Jumada I 1447");
    prayer.setMethod("no such method");
    running.settle();
    EXPECT_TRUE(prayer.times().isEmpty());
}

TEST_F(SettingsViewModelTest, TheStripsPauseEndsByItself)
{
    NotchSettings &notch = *settings.notch();
    notch.pauseForMinutes(30);
    running.settle();
    EXPECT_TRUE(notch.isPaused());
    QSignalSpy changed{&notch, &NotchSettings::changed};
    running.pass(Base::Seconds{30 * 60});
    EXPECT_FALSE(notch.isPaused());
    EXPECT_TRUE(RunningModel::waitUntil([&] { return !changed.isEmpty(); }));
    for (const auto &[text, seconds] :
         {std::pair{"inf", 0.18}, std::pair{"", 0.18}, std::pair{"-3", 0.1},
          std::pair{"9", 1.5}, std::pair{"0.4", 0.4}}) {
        running.model().changeSetting("notch.openDelay", text);
        running.settle();
        EXPECT_EQ(notch.openDelay(), seconds) << text;
    }
}

TEST_F(SettingsViewModelTest, ExclusionsAreNamesOfOneApplicationEach)
{
    NotchSettings &notch = *settings.notch();
    for (const char *refused : {"", "  ", "a,b"}) {
        EXPECT_FALSE(notch.addExclusion(refused));
        EXPECT_FALSE(notch.exclusionRefusal().isEmpty());
    }
    for (const char *name : {" vlc ", "VLC", "mpv"}) {
        EXPECT_TRUE(notch.addExclusion(name)); // while the one before is on its way
    }
    EXPECT_TRUE(notch.exclusionRefusal().isEmpty());
    EXPECT_EQ(setting("notch.exclusions"), "vlc,mpv");
    notch.removeExclusion("vlc");
    EXPECT_EQ(setting("notch.exclusions"), "mpv");
}

TEST_F(SettingsViewModelTest, WhatTheStoreRefusesIsToldUntilSomethingIsKept)
{
    settings.appearance()->setTextSize("huge");
    running.settle();
    EXPECT_EQ(settings.appearance()->textSize(), "medium");
    EXPECT_EQ(settings.refusal(), "Invalid devotional data; existing data has been preserved.");
    settings.appearance()->setTextSize("large");
    running.settle();
    EXPECT_TRUE(settings.refusal().isEmpty());
}

TEST_F(SettingsViewModelTest, PagesAreFoundByTheirWordsAndAnUnknownOneIsIgnored)
{
    settings.setQuery("hijri");
    ASSERT_EQ(settings.pages().size(), 1);
    EXPECT_EQ(settings.pages().front().toMap()["page"].toString(), "prayer");
    QSignalSpy wanted{&settings, &SettingsViewModel::openWanted};
    settings.open("no such page");
    EXPECT_EQ(settings.page(), "general");
    settings.open("prayer");
    EXPECT_EQ(wanted.size(), 2);
    EXPECT_EQ(settings.page(), "prayer");
}

TEST(OnboardingViewModel, IsShownOnceAndKeepsWhatWasChosen)
{
    RunningModel running;
    {
        OnboardingViewModel first{running.model(), running.formatting()};
        QSignalSpy opened{&first, &OnboardingViewModel::openWanted};
        QSignalSpy closed{&first, &OnboardingViewModel::closeWanted};
        first.openWhenNeeded();
        EXPECT_EQ(opened.size(), 1);
        first.back();
        EXPECT_EQ(first.step(), 0);
        first.choosePhrase("alhamdulillah");
        first.choosePhrase("no such phrase");
        first.chooseTarget(0);
        first.chooseTarget(99);
        for (int step = 0; step < OnboardingViewModel::kSteps; ++step) {
            first.next();
        }
        EXPECT_EQ(closed.size(), 1);
        EXPECT_EQ(first.step(), OnboardingViewModel::kSteps - 1);
        running.settle();
    }
    running.restart();
    OnboardingViewModel again{running.model(), running.formatting()};
    QSignalSpy opened{&again, &OnboardingViewModel::openWanted};
    again.openWhenNeeded();
    EXPECT_EQ(opened.size(), 0);
    EXPECT_EQ(again.phrase(), "alhamdulillah");
    EXPECT_EQ(again.target(), 99);
    EXPECT_EQ(running.model().state().pin.item, "alhamdulillah");
}

// The disk fills up at each of its writes once: what is shown is what is kept.
TEST(DataSettingsTest, AResetThatFailsHalfWayShowsWhatIsOnTheDisk)
{
    bool hasStruck = true;
    for (int call = 1; hasStruck && call < 100; ++call) {
        SCOPED_TRACE(call);
        FaultVfs disk; // before the store is opened
        RunningModel running{
            [](KestCore::NativeState &state) { state.devotional.session.count = 7; }};
        SettingsViewModel settings{running.model(), running.formatting()};
        disk.arm(FaultVfs::Fault::diskFull, call);
        settings.data()->ask("reset");
        settings.data()->accept();
        running.settle();
        hasStruck = disk.hasStruck();
        disk.disarm();
        const std::int64_t shown = running.state().devotional.session.count;
        running.restart();
        EXPECT_EQ(running.state().devotional.session.count, shown);
    }
    EXPECT_FALSE(hasStruck);
}

} // namespace
