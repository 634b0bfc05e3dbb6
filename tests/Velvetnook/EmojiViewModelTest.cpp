// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/EmojiViewModel.h"

#include "tests/Velvetnook/RunningModel.h"

#include <QSignalSpy>

#include <gmock/gmock.h>

namespace Velvetnook
{

namespace
{

class EmojiViewModelTest : public testing::Test
{
protected:
    QString at(int row, EmojiList::Role role = EmojiList::emoji)
    {
        return emoji.list()->index(row, 0).data(role).toString();
    }

    RunningModel running;
    EmojiViewModel emoji{running.model(), running.formatting()};
};

} // namespace

TEST_F(EmojiViewModelTest, ShowsWhatWasUsedAndPeopleBeforeThat)
{
    emoji.setShown(true);
    EXPECT_EQ(emoji.group(), QStringLiteral("people"));
    EXPECT_EQ(at(0), QStringLiteral("😀"));
    emoji.setQuery(QStringLiteral("lemon"));
    EXPECT_EQ(at(0), QStringLiteral("🍋"));
    emoji.copy(0);
    running.settle();
    emoji.setQuery(QStringLiteral("ليمون")); // the same in the other language
    EXPECT_EQ(at(0), QStringLiteral("🍋"));
    emoji.setQuery(QStringLiteral("grapes"));
    emoji.togglePin(0);
    running.settle();
    emoji.setGroup(QStringLiteral("recent"));
    EXPECT_EQ(emoji.query(), QString{});
    EXPECT_EQ(at(0), QStringLiteral("🍇")); // pinned
    EXPECT_EQ(at(1), QStringLiteral("🍋"));
    emoji.togglePin(0);
    EXPECT_TRUE(RunningModel::waitUntil(
        [&] { return !emoji.list()->index(0, 0).data(EmojiList::pinned).toBool(); }));
    emoji.setShown(false);
    EXPECT_EQ(emoji.list()->rowCount(), 0);
    emoji.setShown(true);
    EXPECT_EQ(emoji.group(), QStringLiteral("recent"));
    EXPECT_EQ(emoji.list()->rowCount(), 2);
}

TEST_F(EmojiViewModelTest, GivesSkinTonesToThoseThatTakeOne)
{
    emoji.setShown(true);
    emoji.setTone(QStringLiteral("dark"));
    running.settle();
    emoji.setQuery(QStringLiteral("thumbs up"));
    EXPECT_EQ(at(0), QStringLiteral("👍🏿"));
    EXPECT_EQ(emoji.tonesOf(0).size(), 6);
    const QSignalSpy copied{&emoji, &EmojiViewModel::copied};
    emoji.copyToned(0, QStringLiteral("light"));
    ASSERT_EQ(copied.size(), 1);
    EXPECT_EQ(copied[0][0].toString(), QStringLiteral("👍🏻"));
    emoji.copyToned(0, QStringLiteral("green"));
    EXPECT_EQ(copied.size(), 1);
    emoji.setQuery(QStringLiteral("lemon"));
    EXPECT_TRUE(emoji.tonesOf(0).isEmpty());
    EXPECT_TRUE(emoji.tonesOf(-1).isEmpty());
    EXPECT_TRUE(emoji.tonesOf(100'000).isEmpty());
}

// What cannot be pasted is only copied.
TEST_F(EmojiViewModelTest, PastesWhereThatCanBeDone)
{
    bool isPossible = false;
    int pastes = 0;
    emoji.setPasting({.isPossible = [&] { return isPossible; }, .begin = [&] { ++pastes; }});
    emoji.setShown(true);
    const QSignalSpy copied{&emoji, &EmojiViewModel::copied};
    const QSignalSpy used{&emoji, &EmojiViewModel::used};
    emoji.use(0);
    isPossible = true;
    emoji.use(0);
    emoji.use(-1);
    EXPECT_EQ(copied.size(), 1);
    EXPECT_EQ(used.size(), 1);
    EXPECT_EQ(pastes, 1);
}

} // namespace Velvetnook
