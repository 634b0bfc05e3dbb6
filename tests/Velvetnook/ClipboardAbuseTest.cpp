// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "ClipboardLive.h"

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

} // namespace Velvetnook
