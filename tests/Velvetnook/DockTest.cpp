// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Surfaces/CompanionEdits.h"
#include "Velvetnook/Application/ViewModels/DockViewModel.h"
#include "Velvetnook/Dock/DockDriver.h"
#include "tests/Velvetnook/RunningModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

#include <fmt/core.h>
#include <gmock/gmock.h>

#include <random>

namespace
{

using namespace Velvetnook;
using KestCore::CompanionState;
using KestCore::DockItem;
using KestCore::DockItemKind;
using KestCore::ItemLifetime;
using testing::ElementsAre;

class DockTest : public testing::Test
{
protected:
    void change(const std::function<void(CompanionState &)> &edit)
    {
        m_running.model().changeCompanion(edit);
        m_running.settle();
    }
    void makeDock()
    {
        change([](CompanionState &companion) { companion.dock.enabled = true; });
        m_dock = std::make_unique<DockViewModel>(m_running.model(), m_running.formatting());
    }
    std::vector<std::string> titles() const
    {
        std::vector<std::string> found;
        for (const DockRow &row : m_dock->items()->rows()) {
            found.push_back(row.title.toStdString());
        }
        return found;
    }
    QString idOf(const char *title) const
    {
        for (const DockRow &row : m_dock->items()->rows()) {
            if (row.title == QLatin1String{title}) {
                return row.id;
            }
        }
        return {};
    }
    const CompanionState &stored() { return m_running.model().companion(); }

    RunningModel m_running;
    std::unique_ptr<DockViewModel> m_dock;
};

TEST_F(DockTest, StandsOnEveryEdgeWithItsPanelBesideIt)
{
    makeDock();
    m_dock->setScreen({1280, 800}, {0, 30, 1280, 770}); // a bar of the desktop above
    struct Case {
        const char *edge;
        QRectF tab;
        QRectF panel; // for the upper or left slot
    };
    for (const auto &[edge, tab, panel] : {
             Case{"right", {1210, 318, 68, 194}, {866, 162, 334, 396}},
             Case{"left", {2, 318, 68, 194}, {80, 162, 334, 396}},
             Case{"bottom", {550, 722, 180, 76}, {424, 302, 320, 410}},
             Case{"nonsense", {1210, 318, 68, 194}, {866, 162, 334, 396}},
         }) {
        SCOPED_TRACE(edge);
        change([&](CompanionState &companion) { companion.dock.edge = edge; });
        m_dock->setAnchor(QLatin1String{edge} == QLatin1String{"bottom"} ? 34 : 42);
        EXPECT_EQ(m_dock->tab(), tab);
        EXPECT_EQ(m_dock->panel(), panel);
        EXPECT_NEAR(m_dock->pointerShare(), 0.5, 0.001);
    }
    // At the end of the screen the panel stays inside and its pointer slides.
    change([](CompanionState &companion) { companion.dock.edge = "right"; });
    m_dock->setScreen({1280, 460}, {0, 0, 1280, 460});
    m_dock->setAnchor(0);
    EXPECT_EQ(m_dock->panel().top(), 8);
    EXPECT_LT(m_dock->pointerShare(), 0.4);
}

TEST_F(DockTest, TakesWhatIsDroppedAndSaysWhatItCannot)
{
    makeDock();
    m_dock->setDesktop(
        {.listApplications = {},
         .findApplication =
             [](const QString &path, const auto &answer) {
                 answer(path == QLatin1String{"/apps/paint.desktop"}
                            ? std::optional{DockApplication{"paint", "Paint", "paint"}}
                            : std::nullopt);
             },
         .inspect = {},
         .open = {}});
    m_dock->select(1);
    m_running.settle();
    struct Case {
        const char *url;
        const char *text;
        bool isTaken;
        const char *title;
    };
    for (const auto &[url, text, isTaken, title] : {
             Case{"file:///tmp/a%20b.txt", "", true, "a b.txt"},
             Case{"file:///", "", true, "/"},
             Case{"https://www.Example.org/x?y=1", "", true, "example.org"},
             Case{"file:///apps/paint.desktop", "", true, "Paint"},
             Case{"file:///apps/other.desktop", "", true, "other.desktop"},
             Case{"", "example.net/page\n", true, "example.net"},
             Case{"", "just some words", false, ""},
             Case{"javascript:alert(1)", "", false, ""},
             Case{"file://server/share/a", "", false, ""},
             Case{"", "", false, ""},
         }) {
        SCOPED_TRACE(*url == '\0' ? text : url);
        const auto before = m_dock->items()->rows().size();
        const QList<QUrl> urls = *url == '\0' ? QList<QUrl>{} : QList{QUrl{url}};
        EXPECT_EQ(m_dock->drop(1, urls, text, 0), isTaken);
        m_running.settle();
        EXPECT_EQ(m_dock->items()->rows().size(), before + (isTaken ? 1U : 0U));
        EXPECT_EQ(m_dock->message().isEmpty(), isTaken);
        if (isTaken) {
            EXPECT_EQ(titles().front(), title);
        }
        m_dock->takeMessageAction();
    }
    m_dock->drop(1, {QUrl{"https://example.org/x?y=1"}, QUrl{"file:///"}}, {});
    EXPECT_EQ(m_dock->message(), "This is in the workspace already");
    EXPECT_FALSE(m_dock->drop(99, {QUrl{"file:///tmp"}}, {}) && m_dock->message().isEmpty());
}

TEST_F(DockTest, WhatIsRemovedComesBackWhereItWas)
{
    makeDock();
    const auto before = titles();
    m_dock->removeItem(idOf("Prayer"));
    m_running.settle();
    EXPECT_EQ(titles().size(), before.size() - 1);
    EXPECT_EQ(m_dock->messageAction(), "Undo");
    m_dock->takeMessageAction();
    m_running.settle();
    EXPECT_EQ(titles(), before);

    m_dock->removeItem(idOf("Prayer"));
    m_running.pass(Base::Seconds{6}); // too late
    EXPECT_EQ(m_dock->message(), "");
    m_dock->takeMessageAction();
    m_running.settle();
    EXPECT_EQ(titles().size(), before.size() - 1);

    m_dock->removeWorkspace();
    m_running.settle();
    EXPECT_EQ(m_dock->title(), "Focus");
    m_dock->takeMessageAction();
    m_running.settle();
    EXPECT_EQ(stored().workspaces.front().id, "faith");
}

TEST_F(DockTest, SaysWhatAnotherProgramHasLeftNothingToDoFor)
{
    makeDock();
    const QString prayer = idOf("Prayer");
    const auto left = titles().size() - 1;
    // As another program changes the file: the store is there, and nothing is told of it.
    m_running.model().perform(
        [id = prayer.toStdString()](KestCore::StateStore &store) -> Base::Result<Committed> {
            CompanionState companion = store.companion();
            KEST_CHECK(KestCore::removeDockItem(companion, companion.selectedWorkspaceID, id));
            KEST_CHECK(store.saveCompanion(std::move(companion)));
            return Committed{};
        });
    EXPECT_TRUE(m_dock->renameItem(prayer, QStringLiteral("Times")));
    m_running.settle();
    EXPECT_TRUE(m_dock->message().startsWith(u"Not done: ")) << m_dock->message().toStdString();
    EXPECT_EQ(titles().size(), left);
}

TEST_F(DockTest, KeepsAtLeastOneWorkspaceAndRefusesNamesThatAreNone)
{
    makeDock();
    m_dock->addWorkspace();
    m_running.settle();
    EXPECT_EQ(m_dock->current(), 3);
    for (const char *name : {"", "  ", "a\nb"}) {
        EXPECT_FALSE(m_dock->renameWorkspace(name)) << name;
    }
    EXPECT_FALSE(m_dock->renameWorkspace(QString{81, u'x'}));
    EXPECT_TRUE(m_dock->renameWorkspace(QString{80, u'ي'}));
    m_dock->moveWorkspace(-1);
    m_running.settle();
    EXPECT_EQ(m_dock->current(), 2);
    m_dock->moveWorkspace(2); // beyond the end: stays
    EXPECT_EQ(m_dock->current(), 2);
    for (int times = 0; times < 5; ++times) {
        m_dock->removeWorkspace();
        m_running.settle();
    }
    EXPECT_EQ(m_dock->workspaces().size(), 1);
    EXPECT_EQ(m_dock->message(), "The last workspace stays");
    EXPECT_EQ(m_dock->current(), 0);
}

TEST_F(DockTest, ItemsOfAnHourGoByThemselvesAndThoseOfAnotherRunAtOnce)
{
    change([](CompanionState &companion) {
        DockItem item{.id = "old", .kind = DockItemKind::link, .title = "Old"};
        item.lifetime = ItemLifetime::session;
        item.sessionID = "another run";
        companion.workspaces.front().items.push_back(item);
    });
    makeDock();
    EXPECT_EQ(idOf("Old"), "");
    m_running.settle();
    m_running.pass(Base::Seconds{61});
    EXPECT_EQ(stored().workspaces.front().items.size(), 5U); // and not only out of sight

    m_dock->setLifetime(idOf("Notes"), "hour");
    m_dock->setLifetime(idOf("Names"), "session");
    m_running.settle();
    m_running.pass(Base::Seconds{3599});
    EXPECT_NE(idOf("Notes"), "");
    m_running.pass(Base::Seconds{2});
    EXPECT_EQ(idOf("Notes"), "");
    EXPECT_EQ(stored().workspaces.front().items.size(), 4U);
    EXPECT_NE(idOf("Names"), ""); // this run goes on

    m_dock->setLifetime(idOf("Timers"), "hour");
    m_dock->setLifetime(idOf("Timers"), "permanent");
    m_running.settle();
    m_running.pass(Base::Seconds{7200});
    EXPECT_NE(idOf("Timers"), "");
}

TEST_F(DockTest, OpensEachKindAndTellsWhyOneDoesNot)
{
    makeDock();
    std::vector<std::string> opened;
    Base::Result<void> outcome;
    m_dock->setDesktop(
        {.listApplications = {},
         .findApplication = {},
         .inspect =
             [](const std::vector<DockItem> &items, const auto &answer) {
                 answer(std::vector<DockFinding>(items.size(), {false, ""}));
             },
         .open =
             [&](const DockItem &item, const QStringList &addresses, const auto &answer) {
                 opened.push_back(item.target + " " + addresses.join(' ').toStdString());
                 answer(outcome);
             }});
    const QSignalSpy tools{m_dock.get(), &DockViewModel::toolWanted};
    const QSignalSpy closings{m_dock.get(), &DockViewModel::closeWanted};
    m_dock->openItem(idOf("Prayer"));
    EXPECT_EQ(tools.value(0).value(0), "prayer");
    m_dock->drop(0, {QUrl{"file:///tmp/gone"}}, {});
    EXPECT_EQ(m_dock->addLink("example.org", ""), "");
    m_dock->addDivider();
    m_running.settle();
    m_dock->openItem(m_dock->items()->rows().back().id); // the divider
    m_dock->openItem(idOf("gone"));
    m_dock->openItem(idOf("example.org"));
    EXPECT_THAT(opened, ElementsAre("/tmp/gone ", "https://example.org "));
    EXPECT_EQ(closings.size(), 3);

    outcome = std::unexpected(Base::KestError::unavailable("This file is not there any more"));
    m_dock->openItem(idOf("gone"));
    EXPECT_EQ(m_dock->message(), "gone: This file is not there any more");
    EXPECT_EQ(closings.size(), 3); // what is said can be read
    EXPECT_FALSE(m_dock->openWith(idOf("gone"), {QUrl{"file:///tmp/a"}}));
    EXPECT_TRUE(m_dock->items()->rows()[5].isThere);
    m_dock->setOpen(true);
    EXPECT_FALSE(m_dock->items()->rows()[5].isThere);
    EXPECT_NE(m_dock->addLink("ftp://example.org", ""), "");
    EXPECT_NE(m_dock->addLink("https://example.org/", "again"), "");
}

TEST_F(DockTest, LaysTilesInFoursAndDividersOnLinesOfTheirOwn)
{
    DockItems items;
    std::vector<DockRow> rows;
    for (const char *kind : {"tool", "tool", "divider", "app", "app", "app", "app", "divider",
                             "divider", "file"}) {
        rows.push_back({.id = QString::number(rows.size()), .kind = kind});
    }
    items.show(rows);
    std::vector<std::string> places;
    for (const DockRow &row : items.rows()) {
        places.push_back(fmt::format("{}.{}.{}", row.column, row.line, row.dividersAbove));
    }
    EXPECT_THAT(places, ElementsAre("0.0.0", "1.0.0", "0.1.0", "0.1.1", "1.1.1", "2.1.1",
                                    "3.1.1", "0.2.1", "0.2.2", "0.2.3"));
    EXPECT_EQ(items.lines(), 3);
    EXPECT_EQ(items.dividers(), 3);
}

TEST_F(DockTest, TheListChangesByTheSmallestSteps)
{
    DockItems items;
    const QAbstractItemModelTester tester{
        &items, QAbstractItemModelTester::FailureReportingMode::Fatal};
    const QSignalSpy resets{&items, &QAbstractItemModel::modelReset};
    std::mt19937 random{7};
    for (int round = 0; round < 200; ++round) {
        std::vector<DockRow> rows;
        for (int id = 0; id < 9; ++id) {
            if (random() % 3 != 0) {
                rows.push_back({.id = QString::number(id),
                                .kind = random() % 4 == 0 ? "divider" : "tool"});
            }
        }
        std::ranges::shuffle(rows, random);
        items.show(rows);
        ASSERT_EQ(items.rows().size(), rows.size());
        for (std::size_t at = 0; at < rows.size(); ++at) {
            ASSERT_EQ(items.rows()[at].id, rows[at].id);
        }
    }
    EXPECT_EQ(resets.size(), 0);
}

class DockDriverTest : public DockTest
{
protected:
    void makeDriver(bool hover)
    {
        change([hover](CompanionState &companion) { companion.dock.hover = hover; });
        makeDock();
        m_driver = std::make_unique<DockDriver>(m_running.model(), *m_dock,
                                                [this] { return m_seconds; });
    }
    // Lets the driver's own timer come due.
    bool opensWithin(double seconds)
    {
        m_seconds += seconds;
        return RunningModel::waitUntil([this] { return m_dock->isOpen(); });
    }
    bool closesWithin(double seconds)
    {
        m_seconds += seconds;
        return RunningModel::waitUntil([this] { return !m_dock->isOpen(); });
    }

    double m_seconds = 100;
    std::unique_ptr<DockDriver> m_driver;
};

TEST_F(DockDriverTest, HoveringOpensTheSlotUnderThePointerAndLeavingCloses)
{
    makeDriver(true);
    m_driver->pointer(true, false);
    m_dock->point(2);
    EXPECT_FALSE(m_dock->isOpen());
    ASSERT_TRUE(opensWithin(0.2));
    EXPECT_EQ(m_dock->current(), 2);
    m_driver->pointer(false, false);
    m_seconds += 0.2;
    m_driver->pointer(true, false); // back in time
    EXPECT_TRUE(m_dock->isOpen());
    m_driver->pointer(false, false);
    EXPECT_TRUE(closesWithin(0.4));
}

TEST_F(DockDriverTest, WithoutHoveringOnlyAPressOpensAndASecondOneCloses)
{
    makeDriver(false);
    m_driver->pointer(true, false);
    m_seconds += 60;
    m_driver->pointer(true, false);
    EXPECT_FALSE(m_dock->isOpen());
    m_dock->activate(1);
    EXPECT_TRUE(m_dock->isOpen());
    EXPECT_TRUE(m_driver->isSticky());
    m_driver->pointer(false, false);
    m_seconds += 60;
    m_driver->pointer(false, false);
    EXPECT_TRUE(m_dock->isOpen()); // it was opened by hand
    m_dock->activate(2);
    EXPECT_EQ(m_dock->current(), 2);
    EXPECT_TRUE(m_dock->isOpen());
    m_dock->activate(2);
    EXPECT_FALSE(m_dock->isOpen());
}

TEST_F(DockDriverTest, APressOnWhatHoveringHasOpenedKeepsIt)
{
    makeDriver(true);
    m_driver->pointer(true, false);
    m_dock->point(0);
    ASSERT_TRUE(opensWithin(0.2));
    m_dock->activate(0);
    EXPECT_TRUE(m_dock->isOpen());
    EXPECT_TRUE(m_driver->isSticky());
    m_driver->pointer(false, false);
    m_driver->release(); // another application was chosen
    EXPECT_TRUE(closesWithin(0.4));
}

TEST_F(DockDriverTest, ADialogHoldsThePanelAndAFullScreenHidesTheDock)
{
    makeDriver(true);
    m_driver->pointer(true, false);
    ASSERT_TRUE(opensWithin(0.2));
    m_dock->beginDialog();
    m_driver->pointer(false, false);
    m_seconds += 60;
    m_driver->pointer(false, false);
    EXPECT_TRUE(m_dock->isOpen());
    m_driver->setFullScreen(true);
    EXPECT_FALSE(m_dock->isOpen());
    EXPECT_TRUE(m_driver->isSuppressed());
    EXPECT_EQ(m_dock->dialogDepth(), 0);
    m_driver->open(true); // by a key, over the full screen
    EXPECT_TRUE(m_dock->isOpen());
    m_driver->close();
    EXPECT_TRUE(m_driver->isSuppressed());
    m_driver->setFullScreen(false);
    EXPECT_FALSE(m_driver->isSuppressed());
    EXPECT_FALSE(m_dock->isOpen());
}

TEST_F(DockDriverTest, ADragOpensAtOnceAndATabThatHidesComesOut)
{
    change([](CompanionState &companion) { companion.dock.mode = "edge"; });
    makeDriver(false);
    EXPECT_FALSE(m_dock->isTabShown());
    m_driver->pointer(true, false);
    EXPECT_TRUE(m_dock->isTabShown());
    m_driver->pointer(false, false);
    EXPECT_TRUE(RunningModel::waitUntil([this] { return !m_dock->isTabShown(); }));
    m_driver->dragEntered();
    EXPECT_TRUE(m_dock->isOpen());
    EXPECT_TRUE(m_dock->isTabShown());
    m_driver->pointer(false, false); // dragged on, elsewhere
    EXPECT_TRUE(closesWithin(0.4));
    EXPECT_TRUE(RunningModel::waitUntil([this] { return !m_dock->isTabShown(); }));
}

} // namespace
