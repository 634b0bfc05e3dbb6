// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Surfaces/CompanionState.h"
#include "Velvetnook/Application/ViewModels/DockViewModel.h"
#include "tests/Velvetnook/Stage.h"

#include <QDropEvent>
#include <QMimeData>

namespace
{

using namespace Velvetnook;

// The dock as it is drawn, on a screen of 800 × 600: slots at x 764, tiles from x 406 on.
class DockSurfaceTest : public testing::Test
{
protected:
    void show(const char *language = "en")
    {
        m_stage.running().change([&](KestCore::NativeState &state) {
            state.settings["appearance.language"] = language;
            state.settings["appearance.reduceMotion"] = "true";
        });
        m_stage.running().model().changeCompanion([](KestCore::CompanionState &companion) {
            companion.dock.enabled = true;
            companion.workspaces.front().homeWidgets.clear();
        });
        m_stage.running().settle();
        m_surface = m_stage.show("DockSurface { readonly property QtObject dock: App.dock }");
        m_dock = m_surface->property("dock").value<DockViewModel *>();
        m_dock->setScreen({800, 600}, {0, 0, 800, 600});
        m_dock->setOpen(true);
        ASSERT_TRUE(QTest::qWaitFor([&] { return first() != nullptr; }));
        QTest::qWait(250); // the fade
    }
    QQuickItem *first() const
    {
        QMetaObject::invokeMethod(m_surface, "focusPanel");
        QQuickItem *item = m_surface->window()->activeFocusItem();
        return item != nullptr && item->property("itemId").isValid() ? item : nullptr;
    }
    QString focused() const
    {
        const QQuickItem *item = m_surface->window()->activeFocusItem();
        return item == nullptr ? QString{} : item->property("title").toString();
    }
    void drop(const QPointF &at, const QList<QUrl> &urls)
    {
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter{at.toPoint(), Qt::CopyAction, &data, Qt::NoButton,
                              Qt::NoModifier};
        QCoreApplication::sendEvent(&m_stage.window(), &enter);
        QDragMoveEvent move{at.toPoint(), Qt::CopyAction, &data, Qt::NoButton, Qt::NoModifier};
        QCoreApplication::sendEvent(&m_stage.window(), &move);
        QDropEvent event{at, Qt::CopyAction, &data, Qt::NoButton, Qt::NoModifier};
        QCoreApplication::sendEvent(&m_stage.window(), &event);
        m_stage.running().settle();
    }
    std::string targets(std::size_t workspace)
    {
        std::string all;
        for (const auto &item :
             m_stage.running().model().companion().workspaces[workspace].items) {
            all += item.target + " ";
        }
        return all;
    }

    Stage m_stage;
    QQuickItem *m_surface = nullptr;
    DockViewModel *m_dock = nullptr;
};

TEST_F(DockSurfaceTest, TakesADropBetweenTilesAndOnASlot)
{
    show();
    const QQuickItem *tile = first();
    ASSERT_NE(tile, nullptr);
    drop(tile->mapToScene({tile->width() - 1, 20}), {QUrl{"file:///tmp/a"}});
    EXPECT_EQ(targets(0), "dhikr /tmp/a prayer names timers notes ");
    const QPointF slot{m_dock->tab().center().x(), m_dock->tab().bottom() - 40};
    drop(slot, {QUrl{"https://example.org/"}});
    EXPECT_EQ(m_dock->current(), 2); // shown, so that one sees where it has gone
    EXPECT_EQ(targets(2), "claude stats clipboard shelf https://example.org ");
}

TEST_F(DockSurfaceTest, KeysWalkMoveAndRemove)
{
    show();
    ASSERT_NE(first(), nullptr);
    struct Step {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        const char *focused;
    };
    for (const auto &[key, modifiers, wanted] : {
             Step{Qt::Key_Right, Qt::NoModifier, "Prayer"},
             Step{Qt::Key_Down, Qt::NoModifier, "Notes"}, // the nearest of the next line
             Step{Qt::Key_Down, Qt::NoModifier, "Notes"},
             Step{Qt::Key_Up, Qt::NoModifier, "Counter"},
             Step{Qt::Key_Left, Qt::NoModifier, "Counter"},
             Step{Qt::Key_Right, Qt::AltModifier, "Counter"}, // carried along
             Step{Qt::Key_Right, Qt::NoModifier, "Names"},
         }) {
        SCOPED_TRACE(wanted);
        m_stage.press(key, modifiers);
        m_stage.running().settle();
        EXPECT_EQ(focused(), wanted);
    }
    EXPECT_EQ(targets(0), "prayer dhikr names timers notes ");
    m_stage.press(Qt::Key_Delete);
    m_stage.running().settle();
    EXPECT_EQ(targets(0), "prayer dhikr timers notes ");
    ASSERT_NE(first(), nullptr);
    m_stage.press(Qt::Key_Menu);
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_dock->dialogDepth() == 1; }));
    m_stage.press(Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_dock->dialogDepth() == 0; }));
    EXPECT_EQ(focused(), "Prayer"); // the menu gives the focus back
}

TEST_F(DockSurfaceTest, InArabicTheEdgeStaysAndTheTilesMirror)
{
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    show("ar");
    const QQuickItem *tile = first();
    ASSERT_NE(tile, nullptr);
    EXPECT_EQ(m_dock->tab().right(), 798);
    EXPECT_GT(tile->mapToScene({}).x(), m_dock->panel().center().x());
    m_stage.press(Qt::Key_Left); // the next one in reading order
    EXPECT_LT(m_surface->window()->activeFocusItem()->mapToScene({}).x(),
              tile->mapToScene({}).x());
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

} // namespace
