// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Stage.h"

#include <QAccessible>
#include <QSignalSpy>

namespace
{

QVariant last(const QSignalSpy &spy)
{
    return spy.isEmpty() ? QVariant{} : spy.last().value(0);
}

QQuickItem *child(QQuickItem *item, const char *name)
{
    return item->findChild<QQuickItem *>(QString::fromLatin1(name));
}

TEST(Toggle, AsksForTheOtherStateAndDoesNotTakeIt)
{
    Stage stage;
    auto *root = stage.show("FocusScope { width: 90; height: 60; Toggle { objectName: "
                            "\"toggle\"; focus: true; name: \"Sound\" } }");
    auto *toggle = child(root, "toggle");
    QSignalSpy toggled{toggle, SIGNAL(toggled(bool))};
    stage.click(toggle);
    EXPECT_EQ(last(toggled), true);
    EXPECT_EQ(toggle->property("checked"), false) << "only its owner changes it";
    toggle->setProperty("checked", true);
    stage.press(Qt::Key_Tab);
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) {
        toggled.clear();
        stage.press(key);
        EXPECT_EQ(last(toggled), false);
    }
    toggle->setEnabled(false);
    toggled.clear();
    stage.click(toggle);
    EXPECT_EQ(toggled.count(), 0);
}

TEST(Segmented, MovesWithTheArrowsOfTheReadingDirection)
{
    struct Case {
        const char *name;
        const char *mirrored;
        Qt::Key key;
        int from;
        QVariant chosen;
    };
    for (const auto &[name, mirrored, key, from, chosen] : {
             Case{"right", "false", Qt::Key_Right, 1, 2},
             Case{"left", "false", Qt::Key_Left, 1, 0},
             Case{"no further", "false", Qt::Key_Right, 2, {}},
             Case{"mirrored right", "true", Qt::Key_Right, 1, 0},
             Case{"mirrored left", "true", Qt::Key_Left, 1, 2},
         }) {
        SCOPED_TRACE(name);
        Stage stage;
        auto *root = stage.show(
            QByteArray{"FocusScope { LayoutMirroring.enabled: "} + mirrored +
            "; LayoutMirroring.childrenInherit: true; Segmented { objectName: \"segmented\"; "
            "value: " +
            QByteArray::number(from) +
            "; options: [{value: 0, label: \"a\"}, {value: 1, label: \"b\"}, {value: 2, label: "
            "\"c\"}] } }");
        QSignalSpy spy{child(root, "segmented"), SIGNAL(chosen(QVariant))};
        stage.press(Qt::Key_Tab);
        stage.press(key);
        EXPECT_EQ(last(spy), chosen);
    }
}

TEST(Stepper, StaysWithinItsBounds)
{
    Stage stage;
    auto *stepper = stage.show("Stepper { value: 9; from: 0; to: 10; step: 3; name: \"Every\"; "
                               "text: value }");
    QSignalSpy moved{stepper, SIGNAL(moved(double))};
    stage.press(Qt::Key_Up);
    EXPECT_EQ(last(moved), 10.0);
    stage.press(Qt::Key_Minus);
    EXPECT_EQ(last(moved), 6.0);
    stepper->setProperty("value", 10);
    moved.clear();
    stage.press(Qt::Key_Plus);
    EXPECT_EQ(moved.count(), 0);
}

TEST(Picker, OpensTakesAndCloses)
{
    Stage stage;
    auto *picker =
        stage.show("Picker { value: 2; options: [{value: 1, label: \"one\"}, {value: 2, label: "
                   "\"two\"}, {value: 3, label: \"three\"}] }");
    QSignalSpy chosen{picker, SIGNAL(chosen(QVariant))};
    EXPECT_EQ(picker->property("text"), "two");
    stage.press(Qt::Key_Down);
    EXPECT_EQ(last(chosen), 3) << "arrows choose without opening";
    chosen.clear();
    stage.press(Qt::Key_Return);
    stage.press(Qt::Key_Up);
    EXPECT_EQ(chosen.count(), 0) << "in the open list an arrow only points";
    stage.press(Qt::Key_Return);
    EXPECT_EQ(last(chosen), 1);
    chosen.clear();
    stage.press(Qt::Key_Return);
    stage.press(Qt::Key_Up);
    stage.press(Qt::Key_Escape);
    EXPECT_EQ(stage.window().activeFocusItem(), picker);
    stage.press(Qt::Key_Down);
    EXPECT_EQ(last(chosen), 3) << "the focus is back and the value is as before";
}

TEST(PopupMenu, PassesOverWhatCannotBeTaken)
{
    Stage stage;
    auto *root = stage.show(
        "FocusScope { width: 300; height: 300; property int taken: -1; function openMenu() { "
        "menu.open() } PopupMenu { id: menu; onChosen: index => taken = index; items: [{text: "
        "\"a\"}, {text: \"b\", enabled: false}, {separator: true}, {text: \"c\"}] } }");
    QMetaObject::invokeMethod(root, "openMenu");
    QTest::qWait(1);
    stage.press(Qt::Key_Down);
    stage.press(Qt::Key_Down);
    stage.press(Qt::Key_Down); // there is nothing below
    stage.press(Qt::Key_Return);
    EXPECT_EQ(root->property("taken"), 3);
}

TEST(AskDialog, EscapeIsTheSafeAnswerAndTheFocusReturns)
{
    struct Case {
        const char *name;
        bool isDangerous;
        Qt::Key key;
        const char *answer;
    };
    for (const auto &[name, isDangerous, key, answer] : {
             Case{"Escape", false, Qt::Key_Escape, "rejected"},
             Case{"Escape from danger", true, Qt::Key_Escape, "rejected"},
             Case{"Enter", false, Qt::Key_Return, "accepted"},
             Case{"Enter does no harm", true, Qt::Key_Return, "rejected"},
         }) {
        SCOPED_TRACE(name);
        Stage stage;
        auto *root = stage.show(
            "FocusScope { objectName: \"surface\"; width: 500; height: 300; property string "
            "answered; property int presses; Item { objectName: \"main\"; focus: true; "
            "Keys.onPressed: presses += 1 } AskDialog { objectName: \"ask\"; title: \"Start?\"; "
            "onAccepted: answered = \"accepted\"; onRejected: answered = \"rejected\" } }");
        auto *ask = child(root, "ask");
        ask->setProperty("dangerous", isDangerous);
        QMetaObject::invokeMethod(ask, "open");
        stage.press(Qt::Key_X);
        EXPECT_EQ(root->property("presses"), 0) << "what is behind hears nothing";
        stage.press(key);
        EXPECT_EQ(root->property("answered"), answer);
        EXPECT_FALSE(ask->isVisible());
        stage.press(Qt::Key_X);
        EXPECT_EQ(root->property("presses"), 1);
    }
}

TEST(Field, KeepsARefusedTextAndSaysWhy)
{
    Stage stage;
    auto *field = stage.show("Field { width: 200; label: \"Target\" }");
    QSignalSpy edited{field, SIGNAL(edited(QString))};
    QSignalSpy accepted{field, SIGNAL(accepted())};
    stage.press(Qt::Key_0);
    EXPECT_EQ(last(edited), "0");
    stage.press(Qt::Key_Return);
    EXPECT_EQ(accepted.count(), 1);
    const double plain = field->implicitHeight();
    field->setProperty("error", "Target must be between 1 and 1,000,000");
    QTest::qWait(1);
    EXPECT_EQ(field->property("text"), "0");
    EXPECT_GT(field->implicitHeight(), plain + 16);
    edited.clear();
    field->setProperty("text", "5");
    EXPECT_EQ(edited.count(), 0) << "only typing edits";
}

TEST(ScrollBody, FollowsTheFocus)
{
    Stage stage;
    auto *body = stage.show("ScrollBody { width: 200; height: 100; Column { Repeater { model: "
                            "10; SecondaryButton { text: index } } } }");
    stage.press(Qt::Key_Tab);
    for (int step = 0; step < 6; ++step) {
        stage.press(Qt::Key_Tab);
    }
    const auto *focused = stage.window().activeFocusItem();
    const double top = focused->mapToItem(body, {}).y();
    EXPECT_GE(top, 0);
    EXPECT_LE(top + focused->height(), 100);
    EXPECT_GT(body->property("contentY").toDouble(), 0);
}

// Counting past the target lets the last bead stand; nothing else is lit than was counted.
TEST(BeadRing, LightsOneBeadForACount)
{
    struct Case {
        double count;
        double target;
        int beads;
        int on;
    };
    Stage stage;
    auto *ring = stage.show("BeadRing {}");
    for (const auto &[count, target, beads, on] :
         {Case{0, 33, 33, 0}, Case{21, 33, 33, 21}, Case{34, 33, 33, 33},
          Case{100, 100, 100, 100}, Case{5, 101, 0, 0}, Case{147, 0, 0, 0}}) {
        SCOPED_TRACE(target);
        ring->setProperty("target", target);
        ring->setProperty("count", count);
        EXPECT_EQ(ring->property("beads"), beads);
        EXPECT_EQ(ring->property("on"), on);
    }
}

struct Heard {
    const char *qml;
    QAccessible::Role role;
    const char *name;
};

TEST(Controls, TellAScreenReaderWhatTheyAre)
{
    QAccessible::setActive(true);
    for (const auto &[qml, role, name] : {
             Heard{"PrimaryButton { text: \"Finish\" }", QAccessible::Button, "Finish"},
             Heard{"IconButton { name: \"History\"; iconName: \"history\" }",
                   QAccessible::Button, "History"},
             Heard{"Chip { text: \"33\" }", QAccessible::Button, "33"},
             Heard{"Stepper { name: \"Every\" }", QAccessible::SpinBox, "Every"},
             Heard{"Picker { name: \"Method\" }", QAccessible::ComboBox, "Method"},
             Heard{"ListRow { title: \"As-Salām\" }", QAccessible::ListItem, "As-Salām"},
             Heard{"Segment { text: \"Week\" }", QAccessible::RadioButton, "Week"},
             Heard{"MenuRow { text: \"Pause\" }", QAccessible::MenuItem, "Pause"},
             Heard{"PanelTab { title: \"Timers\" }", QAccessible::PageTab, "Timers"},
             Heard{"HeaderButton { name: \"Search\" }", QAccessible::Button, "Search"},
             Heard{"ArabicText { text: \"ٱلسَّلَامُ\" }", QAccessible::StaticText, "ٱلسَّلَامُ"},
             Heard{"Digits { text: \"14:32\" }", QAccessible::StaticText, "14:32"},
             Heard{"ProgressRing { name: \"Focus\" }", QAccessible::ProgressBar, "Focus"},
             Heard{"AskDialog { title: \"Start?\"; visible: true }", QAccessible::Dialog,
                   "Start?"},
         }) {
        SCOPED_TRACE(qml);
        Stage stage;
        auto *item = stage.show(qml);
        ASSERT_NE(item, nullptr);
        auto *heard = QAccessible::queryAccessibleInterface(item);
        ASSERT_NE(heard, nullptr);
        EXPECT_EQ(heard->role(), role);
        EXPECT_EQ(heard->text(QAccessible::Name).toStdString(), name);
    }
}

TEST(Controls, AreClickedOnceByAScreenReader)
{
    QAccessible::setActive(true);
    for (const char *qml : {
             "PrimaryButton { text: \"a\" }",
             "IconButton { name: \"a\" }",
             "Chip { text: \"a\" }",
             "ListRow { title: \"a\" }",
             "ListRow { title: \"a\"; Accessible.role: Accessible.PageTab }",
             "Segment { text: \"a\" }",
             "MenuRow { text: \"a\" }",
             "PanelTab { title: \"a\" }",
             "HeaderButton { name: \"a\" }",
             "FooterLink { text: \"a\" }",
         }) {
        SCOPED_TRACE(qml);
        Stage stage;
        auto *item = stage.show(qml);
        ASSERT_NE(item, nullptr);
        const QSignalSpy clicked{item, SIGNAL(clicked())};
        auto *heard = QAccessible::queryAccessibleInterface(item);
        ASSERT_NE(heard, nullptr);
        ASSERT_NE(heard->actionInterface(), nullptr);
        heard->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        EXPECT_EQ(clicked.count(), 1);
    }
}

// The key of P of a keyboard that writes Arabic, and holding a key down.
TEST(CounterView, TakesItsLettersFromAnyKeyboardOncePerPress)
{
    Stage stage;
    ASSERT_NE(stage.show("CounterView { width: 600; height: 220; focus: true }"), nullptr);
    const auto isPaused = [&] {
        stage.running().settle();
        return stage.running().state().devotional.session.isPaused;
    };
    struct Case {
        const char *name;
        int key;
        quint32 place;
        bool isRepeat;
        bool isPaused; // after it
    };
    for (const auto &[name, key, place, isRepeat, expected] : {
             Case{"Latin", Qt::Key_P, 33, false, true},
             Case{"held", Qt::Key_P, 33, true, true},
             Case{"Latin elsewhere", Qt::Key_P, 40, false, false},
             Case{"Arabic", 0x062d, 33, false, true},
             Case{"Arabic, held", 0x062d, 33, true, true},
             Case{"Arabic at another place", 0x062d, 60, false, true},
         }) {
        SCOPED_TRACE(name);
        QKeyEvent event{QEvent::KeyPress, key,     Qt::NoModifier, place, 0, 0,
                        QString{},        isRepeat};
        QCoreApplication::sendEvent(&stage.window(), &event);
        EXPECT_EQ(isPaused(), expected);
    }
}

} // namespace
