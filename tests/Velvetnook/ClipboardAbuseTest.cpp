// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "ClipboardLive.h"

#include <QTest>

// Programs that are slow, silent, greedy or without end, and what is written beside them.
namespace Velvetnook
{

using testing::HasSubstr;

TEST_F(ClipboardLiveTest, AsksAgainWhoIsSlowAndTellsOfWhoNeverAnswers)
{
    for (const int unanswered : {1, 2}) {
        const std::string text = "late by " + std::to_string(unanswered);
        peer.copy({.forms = {{"UTF8_STRING", text}}, .unanswered = unanswered});
        EXPECT_TRUE(RunningModel::waitUntil([&] {
            const auto titles = shown();
            return std::ranges::find(titles, text) != titles.end();
        })) << text;
    }
    const int before = peer.requests();
    peer.copy({.forms = {{"UTF8_STRING", "x"}}, .isSilent = true});
    EXPECT_TRUE(RunningModel::waitUntil([&] { return !tool->recorder().problem().isEmpty(); }));
    EXPECT_EQ(tool->status(), QStringLiteral("The application that copied does not answer."));
    EXPECT_EQ(peer.requests() - before, KestCore::ClipboardReader::kMostTries);
    EXPECT_EQ(shown().size(), 2U);
}

// Copying back does not wait for a program that is being asked, and where another program keeps
// the clipboard this is told and nothing of it is pasted.
TEST_F(ClipboardLiveTest, WritesBesideAReadingAndPastesOnlyWhatItWrote)
{
    int pasted = 0;
    bool isTaken = false;
    desktop.paste = [&pasted] { ++pasted; };
    desktop.isOurs = [&isTaken] { return isTaken; };
    tool->setDesktop(desktop);
    copyLast("kept");
    QStringList said;
    QObject::connect(&running.model(), &ApplicationModel::said, tool.get(),
                     [&said](const QString &text) { said.push_back(text); });
    int before = peer.requests();
    peer.copy({.forms = {{"UTF8_STRING", "x"}}, .isSilent = true});
    EXPECT_TRUE(RunningModel::waitUntil([&] { return peer.requests() > before; }));
    tool->use(idOf(0));
    EXPECT_TRUE(RunningModel::waitUntil([&] { return !said.isEmpty(); }));
    EXPECT_TRUE(tool->recorder().problem().isEmpty()) << "it has waited for the reading";
    EXPECT_THAT(said.value(0).toStdString(), HasSubstr("could not be updated"));
    EXPECT_EQ(pasted, 0);
    isTaken = true;
    tool->use(idOf(0));
    EXPECT_TRUE(RunningModel::waitUntil([&] { return pasted == 1; }));
    EXPECT_EQ(said.size(), 1);
}

// A clipboard manager takes over whatever is copied, also what we have written: it is known
// again, and neither side goes on.
TEST_F(ClipboardLiveTest, DoesNotAnswerWhoOffersAgainWhatItWrote)
{
    CopyingPeer manager{"Manager"};
    copyLast("mine");
    running.pass(Base::Seconds{60});
    copyLast("later");
    const auto before = shown();
    const int taken = peer.requests();
    for (int round = 0; round < 5; ++round) {
        bool isDone = false;
        tool->recorder().copy(KestCore::clipboardTextPayload("mine"),
                              [&isDone](const Base::Result<void> &result) {
                                  EXPECT_TRUE(result);
                                  isDone = true;
                              });
        EXPECT_TRUE(RunningModel::waitUntil([&] { return isDone; }));
        const int asked = manager.requests();
        manager.copyText("mine");
        EXPECT_TRUE(RunningModel::waitUntil([&] { return manager.requests() > asked + 1; }));
        running.settle();
    }
    EXPECT_EQ(shown(), before); // in this order: what is our own is no new copy
    EXPECT_EQ(peer.requests(), taken);
    copyLast("yours");
}

// Not only said to be so large.
TEST_F(ClipboardLiveTest, RefusesTwoHundredMegabytes)
{
    constexpr std::size_t kSize = 200'000'000;
    const std::string much(kSize, 'x');
    for (const std::size_t claimed : {kSize, std::size_t{1}}) {
        const std::size_t given = peer.given();
        peer.copy({.forms = {{"UTF8_STRING", much}}, .isInPieces = true, .claimed = claimed});
        EXPECT_TRUE(
            RunningModel::waitUntil([&] { return !tool->recorder().problem().isEmpty(); }));
        EXPECT_EQ(tool->status(), QStringLiteral("What was copied is too large to keep."));
        EXPECT_LT(peer.given() - given, 1'000'000U); // of it was asked for
        copyLast("after it " + std::to_string(claimed));
    }
}

// Two hundred times in two seconds, as a program does that has lost its way.
TEST_F(ClipboardLiveTest, KeepsUpWithOneThatCopiesAHundredTimesASecond)
{
    constexpr int kCopies = 200;
    copyLast("first");
    const int before = peer.requests();
    for (int copy = 0; copy < kCopies; ++copy) {
        peer.copy({.forms = {{"UTF8_STRING", "copy " + std::to_string(copy)}}});
        QTest::qWait(10);
    }
    EXPECT_TRUE(RunningModel::waitUntil([&] {
        const auto titles = shown();
        return std::ranges::find(titles, "copy 199") != titles.end();
    }));
    EXPECT_LT(peer.requests() - before, kCopies / 2);
    EXPECT_GT(shown().size(), 2U); // and it is recorded meanwhile
}

} // namespace Velvetnook
