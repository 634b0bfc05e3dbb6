// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/JsonWriter.h"
#include "KestCore/Models/UtilityPayloads.h"
#include "KestCore/Surfaces/PaletteUses.h"
#include "KestCore/Tools/Notes.h"
#include "KestCore/Tools/TimerList.h"
#include "Velvetnook/Application/App.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/Languages.h"
#include "Velvetnook/Application/Palette/PaletteActions.h"
#include "Velvetnook/Application/Palette/PaletteRows.h"
#include "tests/TemporaryFolder.h"

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace
{

using namespace Velvetnook;

const Base::Instant kNow{Base::Seconds{1'763'125'560.0}}; // London, Friday 13:06

class PaletteTest : public testing::Test
{
protected:
    PaletteTest()
    {
        auto store = KestCore::StateStore::open(m_folder.database()).value();
        EXPECT_TRUE(store.change([](KestCore::NativeState &state) -> Result<void> {
            state.devotional.onboardingComplete = true;
            state.settings["appearance.language"] = "en";
            state.settings["prayer.latitude"] = "51.5074";
            state.settings["prayer.longitude"] = "-0.1278";
            state.settings["prayer.timezone"] = "Europe/London";
            return {};
        }));
        auto note = KestCore::makeNote({.title = "Groceries <b>", .text = "Tea\nlemons"});
        note->id = "groceries";
        note->kind = KestCore::kNoteKind;
        EXPECT_TRUE(store.changeRecords({.written = {*note}, .removed = {}}));
        auto first = committedAll(store.snapshot().value());
        m_model = std::make_unique<ApplicationModel>(
            std::make_unique<StateKeeper>(m_folder.database(), std::move(store)),
            std::move(first), [] { return kNow; });
        m_app = std::make_unique<App>(*m_model);
        m_languages = std::make_unique<Languages>(*m_model, *m_app->format());
        palette().begin();
    }

    PaletteViewModel &palette() { return *m_app->palette(); }
    const std::vector<PaletteRow> &rows()
    {
        return static_cast<PaletteRows *>(palette().rows())->rows();
    }
    QStringList titles()
    {
        QStringList list;
        for (const PaletteRow &row : rows()) {
            list.append(row.spoken);
        }
        return list;
    }
    QStringList heads()
    {
        QStringList list;
        for (const PaletteRow &row : rows()) {
            if (!row.head.isEmpty()) {
                list.append(row.head);
            }
        }
        return list;
    }
    template <class Condition>
    bool waitUntil(Condition condition)
    {
        QElapsedTimer timer;
        timer.start();
        while (!condition() && timer.elapsed() < 20'000) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        }
        return condition();
    }

    TemporaryFolder m_folder;
    std::unique_ptr<ApplicationModel> m_model;
    std::unique_ptr<App> m_app;
    std::unique_ptr<Languages> m_languages;
};

TEST_F(PaletteTest, OffersWhatFitsTheLine)
{
    const struct {
        const char *line;
        const char *head;
        const char *title;
    } cases[] = {
        {"prayer", "Tools", "Prayer"},
        {"sunrise", "Tools", "Sunrise"},
        {"subhanallah", "Phrases", "Subḥāna llāh"},
        {"سبحان الله", "Phrases", "Subḥāna llāh"},
        {"rahman", "Names", "Ar-Raḥmān"},
        {"الرحمن", "Names", "Ar-Raḥmān"},
        {"lemons", "Notes", "Groceries <b>"},
        {"grinning face", "Emoji", "grinning face"},
        {"dark", "Settings", "Appearance"},
        {"12 km in mi", "Units", "7.45645430685 mi"},
        {"100 °C to °F", "Units", "212 °F"},
        {"timer 10", "Tools", "Start a timer of 10 minutes"},
        {"90 min", "Tools", "Start a timer of 90 minutes"},
        {"new note", "Tools", "New note"},
    };
    for (const auto &[line, head, title] : cases) {
        SCOPED_TRACE(line);
        palette().setQuery(QString::fromUtf8(line));
        ASSERT_FALSE(rows().empty());
        EXPECT_EQ(rows().front().head, head);
        EXPECT_EQ(rows().front().spoken, title);
    }
    palette().setQuery(QStringLiteral("zqxj"));
    EXPECT_TRUE(palette().isNothingFound());
    palette().setQuery(QStringLiteral("   "));
    EXPECT_FALSE(palette().isNothingFound());
}

TEST_F(PaletteTest, KeepsTheWordsOfOthersOutOfItsMarkup)
{
    palette().setQuery(QStringLiteral("groceries"));
    EXPECT_EQ(rows().front().title, "<m>Groceries</m> &lt;b&gt;");
    palette().setQuery(QStringLiteral("<b>"));
    EXPECT_FALSE(rows().front().title.contains(QStringLiteral("<b>")));
}

TEST_F(PaletteTest, PutsTheGroupOfTheBestMatchFirstAndTheOthersInTheirOrder)
{
    palette().setQuery(QStringLiteral("su"));
    const QStringList order{"Phrases", "Names", "Tools",     "Units",
                            "Emoji",   "Notes", "Bookmarks", "Settings"};
    const QStringList shown = heads();
    EXPECT_EQ(shown.front(), "Phrases"); // though there is an emoji with a shorter name
    ASSERT_GE(shown.size(), 3);
    for (qsizetype head = 2; head < shown.size(); ++head) {
        EXPECT_LT(order.indexOf(shown[head - 1]), order.indexOf(shown[head]));
    }
    EXPECT_EQ(palette().headCount(), shown.size());
}

TEST_F(PaletteTest, MovesRoundItsEndsAndStepsBackBeforeItCloses)
{
    QAbstractItemModelTester tester{palette().rows()};
    palette().setQuery(QStringLiteral("su"));
    const int last = palette().rows()->rowCount() - 1;
    palette().move(-1);
    EXPECT_EQ(palette().current(), last);
    palette().move(1);
    EXPECT_EQ(palette().current(), 0);
    palette().move(-8);
    EXPECT_EQ(palette().current(), 0);
    palette().move(100);
    EXPECT_EQ(palette().current(), last);
    palette().setCurrent(1);
    const QStringList before = titles();
    palette().showActions();
    EXPECT_EQ(palette().subject(), before[1]);
    EXPECT_NE(titles(), before);
    EXPECT_TRUE(palette().back());
    EXPECT_EQ(titles(), before);
    EXPECT_EQ(palette().current(), 1);
    EXPECT_TRUE(palette().back());
    EXPECT_TRUE(palette().query().isEmpty());
    EXPECT_FALSE(palette().back());
}

TEST_F(PaletteTest, LearnsWhatIsChosenAfterASearchAndForgetsItWhenAsked)
{
    palette().setQuery(QStringLiteral("sc"));
    const auto before = titles();
    const auto tool = before.indexOf(QStringLiteral("Scratchpad"));
    ASSERT_GE(tool, 0);
    QSignalSpy closed{&palette(), &PaletteViewModel::closeWanted};
    QSignalSpy opened{m_app->panel(), &PanelViewModel::openWanted};
    palette().setCurrent(static_cast<int>(tool));
    palette().activate();
    EXPECT_EQ(closed.count(), 1);
    EXPECT_EQ(opened.count(), 1);
    EXPECT_EQ(m_app->panel()->tool(), "scratchpad");
    ASSERT_TRUE(
        waitUntil([&] { return !m_model->setting(KestCore::kPaletteUsesKey).empty(); }));
    palette().begin();
    palette().setQuery(QStringLiteral("sc"));
    EXPECT_EQ(titles().front(), "Scratchpad");

    palette().setQuery(QStringLiteral("forget what"));
    palette().activate();
    EXPECT_TRUE(waitUntil([&] { return m_model->setting(KestCore::kPaletteUsesKey).empty(); }));
}

TEST_F(PaletteTest, DoesWhatItSays)
{
    palette().setQuery(QStringLiteral("count one"));
    palette().activate();
    ASSERT_TRUE(waitUntil([&] { return m_model->state().devotional.session.count == 1; }));
    palette().begin();
    EXPECT_EQ(rows().front().head, "Continue");
    palette().setQuery(QStringLiteral("undo"));
    palette().activate();
    ASSERT_TRUE(waitUntil([&] { return m_model->state().devotional.session.count == 0; }));
    palette().begin();
    palette().setQuery(QStringLiteral("undo"));
    EXPECT_FALSE(titles().contains(QStringLiteral("Undo the last count")));

    palette().setQuery(QStringLiteral("alhamdulillah"));
    palette().activate();
    EXPECT_TRUE(waitUntil(
        [&] { return m_model->state().devotional.selectedDhikrId.contains("alhamdulillah"); }));

    palette().setQuery(QStringLiteral("timer 10"));
    palette().activate();
    ASSERT_TRUE(waitUntil([&] { return m_model->recordsOfKind("timer").size() == 1; }));
    const auto timers = KestCore::timersOf(m_model->recordsOfKind("timer")).value();
    EXPECT_TRUE(timers.front().state.running);
    EXPECT_DOUBLE_EQ(timers.front().state.duration, 600);
    palette().begin();
    EXPECT_TRUE(rows().front().note.contains(QStringLiteral("10:00")));

    palette().setQuery(QStringLiteral("pause timer"));
    palette().activate();
    EXPECT_TRUE(waitUntil([&] {
        return !KestCore::timersOf(m_model->recordsOfKind("timer"))->front().state.running;
    }));
}

TEST_F(PaletteTest, CopiesResultsEmojiAndNotes)
{
    const QClipboard &clipboard = *QGuiApplication::clipboard();
    palette().setQuery(QStringLiteral("12 km in mi"));
    palette().activate();
    EXPECT_EQ(clipboard.text(), "7.45645430685 mi");
    palette().activateOther();
    EXPECT_EQ(m_app->panel()->tool(), "units");
    palette().setQuery(QStringLiteral("grinning face"));
    palette().activate();
    EXPECT_EQ(clipboard.text(), QStringLiteral("😀"));
    EXPECT_TRUE(waitUntil([&] { return m_model->recordsOfKind("emoji").size() == 1; }));
    palette().setQuery(QStringLiteral("groceries"));
    palette().showActions();
    palette().move(1);
    palette().activate();
    EXPECT_EQ(clipboard.text(), QStringLiteral("Tea\nlemons"));
}

TEST_F(PaletteTest, SpeaksTheLanguageOfTheInterface)
{
    palette().setQuery(QStringLiteral("timer 10"));
    palette().activate();
    ASSERT_TRUE(waitUntil([&] { return m_model->recordsOfKind("timer").size() == 1; }));
    m_model->changeSetting("appearance.language", "ar");
    ASSERT_TRUE(waitUntil([&] { return m_app->format()->isRightToLeft(); }));
    palette().begin();
    EXPECT_EQ(rows().front().spoken, QStringLiteral("مؤقّت"));
    palette().setQuery(QStringLiteral("subhanallah"));
    EXPECT_EQ(rows().front().spoken, rows().front().arabic);
    EXPECT_TRUE(rows().front().isArabic);
    EXPECT_TRUE(rows().front().note.isEmpty()) << qPrintable(rows().front().note);
}

// No view of the notes stands, as after a tab was left with an emptied one.
TEST_F(PaletteTest, ANoteThatWasRemovedCanBeHadBackWithoutItsView)
{
    m_app->notes()->remove(QStringLiteral("groceries"));
    ASSERT_TRUE(waitUntil([&] { return !m_app->panel()->message().isEmpty(); }));
    EXPECT_EQ(m_app->panel()->messageAction(), "Undo");
    EXPECT_TRUE(m_model->recordsOfKind(KestCore::kNoteKind).empty());
    m_app->panel()->takeMessageAction();
    EXPECT_TRUE(
        waitUntil([&] { return m_model->recordsOfKind(KestCore::kNoteKind).size() == 1; }));
}

TEST_F(PaletteTest, ATimerThatIsOverIsBegunAgainAndNotPaused)
{
    auto timer = KestCore::makeTimer(
        {.mode = KestCore::TimerMode::countdown, .minutes = 5, .title = "Tea"}, {}, {},
        kNow - Base::Seconds{3600});
    ASSERT_TRUE(timer);
    m_model->changeRecords({.written = {timer->record}, .removed = {}});
    ASSERT_TRUE(waitUntil([&] { return m_model->recordsOfKind("timer").size() == 1; }));
    palette().begin();
    EXPECT_FALSE(titles().contains(QStringLiteral("Tea")));
    palette().setQuery(QStringLiteral("tea"));
    ASSERT_TRUE(titles().contains(QStringLiteral("Start Tea again")));
    palette().setCurrent(static_cast<int>(titles().indexOf(QStringLiteral("Start Tea again"))));
    palette().activate();
    EXPECT_TRUE(waitUntil([&] {
        const auto timers = KestCore::timersOf(m_model->recordsOfKind("timer")).value();
        return timers.front().state.running && !KestCore::hasEnded(timers.front().state, kNow);
    }));
}

TEST(TypedTimer, ReadsMinutesAndHoursAndNothingElse)
{
    const struct {
        const char *line;
        std::optional<int> minutes;
    } cases[] = {
        {"timer 10", 10}, {"10 min", 10},   {"2h", 120},     {"١٠ دقائق", 10},
        {"TIMER 5 m", 5}, {"45 timer", 45}, {"10", {}},      {"10 km", {}},
        {"timer 0", {}},  {"timer", {}},    {"99999 h", {}}, {"min 10", {}},
    };
    for (const auto &[line, minutes] : cases) {
        EXPECT_EQ(typedTimer(QString::fromUtf8(line)), minutes) << line;
    }
}

} // namespace

int main(int argc, char **argv)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv("LC_ALL", "C.UTF-8", 1);
    const QGuiApplication application{argc, argv};
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
