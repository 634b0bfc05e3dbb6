// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Surfaces/CompanionState.h"
#include "Velvetnook/Application/ViewModels/Settings/ShortcutSettings.h"
#include "tests/Velvetnook/RunningModel.h"

#include <gtest/gtest.h>

using namespace Velvetnook;

namespace
{

constexpr int kControl = Qt::ControlModifier;
constexpr int kShift = Qt::ShiftModifier;

class ShortcutsTest : public testing::Test
{
protected:
    std::string keysOf(const char *target) const
    {
        for (const QVariant &row : m_page.rows()) {
            if (row.toMap().value("target") == QLatin1String{target}) {
                return row.toMap().value("keys").toStringList().join(u'+').toStdString();
            }
        }
        return "no row";
    }
    void press(int key, int modifiers, quint32 scanCode = 0)
    {
        m_page.press(key, modifiers, scanCode);
        m_running.settle();
    }

    RunningModel m_running;
    ShortcutSettings m_page{m_running.model(), m_running.formatting()};
};

TEST_F(ShortcutsTest, TakesTheKeyThatIsMeantOnAnyKeyboard)
{
    struct Case {
        const char *name;
        int key;
        int modifiers;
        quint32 scanCode;
        const char *keys;
    };
    for (const auto &[name, key, modifiers, scanCode, keys] : {
             Case{"a letter", Qt::Key_K, kControl, 45, "Ctrl+K"},
             Case{"a letter of another script", 0x0646, kControl, 45, "Ctrl+K"},
             Case{"a digit that a shift makes a sign", Qt::Key_Exclam, kControl | kShift, 10,
                  "Ctrl+Shift+1"},
             Case{"a function key alone", Qt::Key_F9, 0, 75, "F9"},
             Case{"the tab that a shift turns", Qt::Key_Backtab, kControl | kShift, 23,
                  "Ctrl+Shift+Tab"},
         }) {
        SCOPED_TRACE(name);
        m_page.record("notch");
        press(key, modifiers, scanCode);
        EXPECT_EQ(m_page.recording(), "");
        EXPECT_EQ(keysOf("notch"), keys);
    }
    EXPECT_EQ(m_running.model().companion().shortcuts.size(), 2U);
}

TEST_F(ShortcutsTest, RefusesWhatWouldBeInTheWayAndGoesOnRecording)
{
    struct Case {
        const char *name;
        int key;
        int modifiers;
        const char *refusal; // a part of it
    };
    m_page.record("notes");
    for (const auto &[name, key, modifiers, refusal] : {
             Case{"a letter alone", Qt::Key_K, 0, "Hold Ctrl"},
             Case{"a letter with a shift", Qt::Key_K, kShift, "Hold Ctrl"},
             Case{"the palette's own", Qt::Key_Space, kControl | kShift,
                  "opens Palette already"},
             Case{"a key without a name", Qt::Key_VolumeUp, kControl, "cannot be taken"},
         }) {
        SCOPED_TRACE(name);
        press(key, modifiers);
        EXPECT_TRUE(m_page.refusal().contains(QLatin1String{refusal}))
            << qPrintable(m_page.refusal());
        EXPECT_EQ(m_page.recording(), "notes");
    }
    press(Qt::Key_Control, kControl); // on the way to the others
    EXPECT_EQ(m_page.recording(), "notes");
    press(Qt::Key_Escape, 0);
    EXPECT_EQ(m_page.recording(), "");
    EXPECT_EQ(keysOf("notes"), "no row");
    EXPECT_EQ(m_running.model().companion().shortcuts.size(), 1U);
}

TEST_F(ShortcutsTest, TakesAKeyAwayAndKeepsTheRowOfASurface)
{
    EXPECT_EQ(keysOf("command"), "Ctrl+Shift+Space");
    m_page.remove("command");
    m_running.settle();
    EXPECT_EQ(keysOf("command"), "");
    m_page.record("notes");
    press(Qt::Key_Space, kControl | kShift); // free now
    EXPECT_EQ(keysOf("notes"), "Ctrl+Shift+Space");
}

} // namespace
