// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/Shelf.h"
#include "Stage.h"

// The keys in the views of the shelf and the calendar.
namespace
{

using namespace Velvetnook;

void shelve(RunningModel &running, const char *text)
{
    running.model().perform([text](KestCore::StateStore &store) -> Base::Result<Committed> {
        KestCore::RecordList shelf{store, KestCore::kShelfKind, RunningModel::kStart};
        KEST_TRY(auto record, KestCore::makeShelfText(text));
        KEST_TRY(record, shelf.add(std::move(record), KestCore::ListEnd::back));
        KEST_TRY(KestCore::Snapshot snapshot, store.snapshot());
        return committedAll(std::move(snapshot));
    });
    running.settle();
}

std::vector<std::string> titlesOnShelf(RunningModel &running)
{
    running.settle();
    std::vector<std::string> titles;
    for (const auto &record : running.model().recordsOfKind(KestCore::kShelfKind)) {
        titles.push_back(record.title);
    }
    return titles;
}

void type(Stage &stage, const char *text)
{
    for (; *text != '\0'; ++text) {
        QTest::keyClick(&stage.window(), *text);
    }
}

TEST(FileViewsTest, TheShelfHasItsKeysBackAfterANewName)
{
    Stage stage;
    shelve(stage.running(), "first");
    shelve(stage.running(), "second");
    ASSERT_NE(stage.show("ShelfView { width: 600; height: 220 }"), nullptr);
    stage.press(Qt::Key_F2);
    type(stage, "Delete me");
    EXPECT_EQ(titlesOnShelf(stage.running()), (std::vector<std::string>{"first", "second"}));
    stage.press(Qt::Key_Return);
    EXPECT_EQ(titlesOnShelf(stage.running()),
              (std::vector<std::string>{"Delete me", "second"}));
    stage.press(Qt::Key_F2);
    type(stage, "not this");
    stage.press(Qt::Key_Escape);
    stage.press(Qt::Key_Delete);
    EXPECT_EQ(titlesOnShelf(stage.running()), std::vector<std::string>{"second"});
    // Everything goes only after a question, whose safe answer has the keys.
    stage.press(Qt::Key_Delete, Qt::ShiftModifier);
    stage.press(Qt::Key_Return);
    EXPECT_EQ(titlesOnShelf(stage.running()).size(), 1U);
}

TEST(FileViewsTest, TheCalendarLeadsToItsFilesAndBack)
{
    Stage stage;
    QQuickItem *view = stage.show("CalendarView { width: 600; height: 220 }");
    ASSERT_NE(view, nullptr);
    const auto *model = view->property("model").value<QObject *>();
    ASSERT_NE(model, nullptr);
    stage.press(Qt::Key_C);
    type(stage, "cat.ics"); // its letters are no commands now
    stage.press(Qt::Key_Return);
    EXPECT_EQ(view->property("side"), "sources");
    EXPECT_NE(model->property("refusal").toString(), "");
    stage.press(Qt::Key_Escape);
    EXPECT_EQ(view->property("side"), "agenda");
    const QString before = model->property("date").toString();
    stage.press(Qt::Key_Down);
    EXPECT_NE(model->property("date").toString(), before) << "the month has no keys";
    stage.press(Qt::Key_T);
    EXPECT_EQ(model->property("date").toString(), before);
}

} // namespace
