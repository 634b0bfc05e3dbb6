// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/NotesViewModel.h"

#include "KestCore/Models/UtilityPayloads.h"
#include "KestCore/Tools/Notes.h"
#include "tests/Velvetnook/RunningModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

namespace
{

using namespace Velvetnook;

class NotesViewModelTest : public testing::Test
{
protected:
    void SetUp() override { begin(); }

    void begin()
    {
        notes = std::make_unique<NotesViewModel>(running.model(), running.formatting());
        tester = std::make_unique<QAbstractItemModelTester>(
            notes->list(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    }

    // As after an end of the program.
    void restart()
    {
        tester.reset();
        notes.reset();
        running.restart();
        begin();
    }

    QString write(const char *text)
    {
        notes->create();
        notes->edit(QString::fromUtf8(text));
        notes->leave();
        running.settle();
        return notes->current();
    }

    QStringList titles() const
    {
        QStringList list;
        for (int row = 0; row < notes->list()->rowCount(); ++row) {
            list << notes->list()->index(row, 0).data(NoteList::title).toString();
        }
        return list;
    }

    // What another program does to a note.
    void changeOutside(const QString &id, const char *text)
    {
        running.model().perform([=](KestCore::StateStore &store) -> Base::Result<Committed> {
            KestCore::RecordList list{store, KestCore::kNoteKind, RunningModel::kStart};
            if (text == nullptr) {
                KEST_TRY([[maybe_unused]] const auto gone, list.remove(id.toStdString()));
            } else {
                KEST_TRY([[maybe_unused]] const auto edited,
                         list.edit(id.toStdString(), [&](KestCore::LocalRecord &note) {
                             return KestCore::changeNote(note, {.title = {}, .text = text});
                         }));
            }
            KEST_TRY(KestCore::Snapshot snapshot, store.snapshot());
            return committedAll(std::move(snapshot));
        });
    }

    RunningModel running;
    std::unique_ptr<NotesViewModel> notes;
    std::unique_ptr<QAbstractItemModelTester> tester;
};

TEST_F(NotesViewModelTest, WhatIsTypedIsOnTheDiskWhenTheViewCloses)
{
    notes->chooseScratchpad();
    notes->edit("on my mind");
    notes->create();
    notes->edit("first line\nsecond");
    restart(); // the view model goes without another word

    EXPECT_EQ(titles(), (QStringList{"Scratchpad", "first line"}));
    EXPECT_EQ(notes->text(), "on my mind");
    notes->choose(notes->list()->index(1, 0).data(NoteList::noteId).toString());
    EXPECT_EQ(notes->text(), "first line\nsecond");
}

TEST_F(NotesViewModelTest, ANewNoteThatIsSavedWhileItIsWrittenStaysOneNote)
{
    notes->create();
    notes->edit("one");
    notes->leave();
    notes->edit("one two");
    notes->leave(); // the store has not told the id of the first yet
    notes->edit("one two three");
    running.settle();
    EXPECT_EQ(notes->text(), "one two three"); // the older answers took nothing back
    notes->leave();
    running.settle();

    ASSERT_EQ(titles().size(), 2);
    EXPECT_EQ(running.model().recordsOfKind("note").front().body,
              R"({"text":"one two three"})");
    EXPECT_EQ(notes->current().toStdString(), running.model().recordsOfKind("note").front().id);
}

TEST_F(NotesViewModelTest, TypingIsSavedByItselfAfterAPause)
{
    notes->chooseScratchpad();
    notes->edit("left alone");
    EXPECT_TRUE(RunningModel::waitUntil(
        [&] { return !running.model().recordsOfKind("scratchpad").empty(); }));
}

TEST_F(NotesViewModelTest, AnotherProgramsChangeNeverOverwritesWhatIsTyped)
{
    const QString id = write("kept");
    changeOutside(id, "changed outside");
    running.settle();
    EXPECT_EQ(notes->text(), "changed outside"); // nothing was typed here

    notes->edit("typed here");
    changeOutside(id, "changed again");
    running.settle();
    EXPECT_EQ(notes->text(), "typed here");
    notes->leave();
    running.settle();
    EXPECT_EQ(running.model().recordsOfKind("note").front().body, R"({"text":"typed here"})");
}

TEST_F(NotesViewModelTest, ANoteThatIsRemovedElsewhereWhileItIsWrittenIsKeptAsANewOne)
{
    const QString id = write("kept");
    notes->edit("kept and more");
    changeOutside(id, nullptr);
    running.settle();
    notes->leave();
    running.settle();

    const auto kept = running.model().recordsOfKind("note");
    ASSERT_EQ(kept.size(), 1U);
    EXPECT_EQ(kept.front().title, "kept and more");
    EXPECT_EQ(notes->current().toStdString(), kept.front().id);
}

TEST_F(NotesViewModelTest, RemovedAndEmptiedNotesComeBackForHalfAMinute)
{
    write("below");
    const QString id = write("above");
    QSignalSpy removed{notes.get(), &NotesViewModel::removed};
    for (const bool isEmptied : {false, true}) {
        SCOPED_TRACE(isEmptied);
        if (isEmptied) {
            notes->edit("  \n");
            notes->leave();
        } else {
            notes->remove(id);
        }
        running.settle();
        EXPECT_EQ(titles(), (QStringList{"Scratchpad", "below"}));
        EXPECT_TRUE(notes->isScratchpad());
        notes->restore();
        running.settle();
        EXPECT_EQ(titles(), (QStringList{"Scratchpad", "above", "below"}));
        EXPECT_EQ(notes->text(), "above");
    }
    EXPECT_EQ(removed.size(), 2);

    notes->remove(id);
    running.settle();
    running.pass(Base::Seconds{31});
    QSignalSpy said{&running.model(), &ApplicationModel::said};
    notes->restore();
    running.settle();
    EXPECT_EQ(titles(), (QStringList{"Scratchpad", "below"}));
    EXPECT_EQ(said.size(), 1);
}

TEST_F(NotesViewModelTest, ARefusedTextStaysWithItsReasonAndTheStoredOneStaysToo)
{
    const QString id = write("short");
    const QString tooLong{1'000'001, u'a'};
    notes->edit(tooLong);
    notes->chooseScratchpad(); // left before the store has answered
    running.settle();
    EXPECT_TRUE(notes->refusal().isEmpty());
    EXPECT_EQ(running.model().recordsOfKind("note").front().title, "short");

    notes->choose(id);
    EXPECT_EQ(notes->text(), tooLong);
    EXPECT_EQ(notes->refusal(), "A note holds at most 1,000,000 bytes");
    notes->edit("short again");
    EXPECT_TRUE(notes->refusal().isEmpty());
    notes->leave();
    running.settle();
    EXPECT_EQ(titles(), (QStringList{"Scratchpad", "short again"}));
}

TEST_F(NotesViewModelTest, NewTextsThatAreRefusedKeepALineEachAndAreTriedAgain)
{
    QSignalSpy said{&running.model(), &Velvetnook::ApplicationModel::said};
    const auto writeTooMuch = [&](QChar letter) {
        notes->create();
        notes->edit(QString{3, letter} + QString{1'000'000, u'\n'});
    };
    writeTooMuch(u'a');
    writeTooMuch(u'b');
    notes->chooseScratchpad();
    running.settle();
    EXPECT_EQ(titles(), (QStringList{"aaa", "bbb", "Scratchpad"}));
    EXPECT_EQ(said.size(), 2);

    const QString first = notes->list()->index(0, 0).data(NoteList::noteId).toString();
    notes->choose(first);
    running.settle(); // both were tried again, and nothing new is said
    EXPECT_TRUE(notes->text().startsWith("aaa"));
    EXPECT_FALSE(notes->refusal().isEmpty());
    EXPECT_EQ(said.size(), 2);
    notes->edit("aaa");
    notes->chooseScratchpad();
    running.settle();
    EXPECT_EQ(titles(), (QStringList{"bbb", "Scratchpad", "aaa"}));
}

TEST_F(NotesViewModelTest, AnOwnTitleStaysAndAnEmptiedOneFollowsTheTextAgain)
{
    write("first line");
    notes->editTitle("My title");
    notes->edit("another line");
    notes->leave();
    running.settle();
    EXPECT_EQ(titles().last(), "My title");
    notes->editTitle("");
    EXPECT_EQ(notes->titleHint(), "another line");
    notes->leave();
    running.settle();
    EXPECT_EQ(titles().last(), "another line");
}

TEST_F(NotesViewModelTest, NotesMoveAmongTheirEqualsOnly)
{
    write("c");
    const QString b = write("b");
    const QString a = write("a");
    notes->move(a, 1);
    running.settle();
    EXPECT_EQ(titles(), (QStringList{"Scratchpad", "b", "a", "c"}));
    notes->setPinned(b, true);
    notes->move(a, -5); // not above what is pinned
    running.settle();
    EXPECT_EQ(titles(), (QStringList{"Scratchpad", "b", "a", "c"}));
    notes->move(a, 99);
    notes->move("no such note", 1);
    running.settle();
    EXPECT_EQ(titles(), (QStringList{"Scratchpad", "b", "c", "a"}));
}

TEST_F(NotesViewModelTest, ASearchFindsWordsInNotesAndOnTheScratchpad)
{
    notes->chooseScratchpad();
    notes->edit("lentils and DATES");
    write("Groceries\ndates, oil");
    write("Letter");
    notes->setQuery("dates");
    EXPECT_EQ(titles().size(), 2);
    EXPECT_FALSE(titles().contains("Letter"));
    notes->setQuery("zebra");
    EXPECT_TRUE(titles().isEmpty());
    EXPECT_FALSE(notes->findings().isEmpty());
    notes->setQuery("");
    EXPECT_EQ(titles().size(), 3);
}

} // namespace
