// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Assistants/HookEvent.h"

#include <gtest/gtest.h>

using Assistants::readHookEvent;
using KestCore::AssistantEvent;
using KestCore::AssistantSessions;
using KestCore::AssistantState;

namespace
{

const Base::Instant kNow = Base::fromSeconds1970(1.8e9);

AssistantEvent eventOf(std::string session, AssistantState state)
{
    return {.tool = "cursor", .session = std::move(session), .state = state};
}

} // namespace

TEST(HookEvent, TakesTheStateAndTheFolderAndNoWords)
{
    EXPECT_EQ(
        readHookEvent("claude-code",
                      R"({"session_id":"s\u001b1","transcript_path":"/x","cwd":"/home/u/nook",)"
                      R"("hook_event_name":"Notification","message":"secret"})")
            .value(),
        (AssistantEvent{.tool = "claude-code",
                        .session = "s\u00B71",
                        .state = AssistantState::waiting,
                        .folder = "nook"}));
    EXPECT_EQ(readHookEvent("cursor",
                            R"({"conversation_id":"c","hook_event_name":"beforeSubmitPrompt",)"
                            R"("prompt":"secret","workspace_roots":["/srv/a/"]})")
                  .value(),
              (AssistantEvent{.tool = "cursor",
                              .session = "c",
                              .state = AssistantState::working,
                              .folder = "a"}));
    EXPECT_EQ(readHookEvent("cursor", R"({"conversation_id":"c","hook_event_name":"new"})"),
              std::nullopt);
}

TEST(HookEvent, RefusesWhatIsNone)
{
    const std::string huge = R"({"hook_event_name":"Stop","session_id":"s","x":")" +
                             std::string(Assistants::kLongestHook, 'x') + "\"}";
    for (const std::string &text :
         {std::string{""}, std::string{"[]"}, std::string{R"({"hook_event_name":"Stop"})"},
          std::string{R"({"session_id":"s"})"},
          std::string{R"({"session_id":1,"hook_event_name":"Stop"})"},
          std::string{"{\"session_id\":\"\xC0\",\"hook_event_name\":\"Stop\"}"}, huge}) {
        EXPECT_FALSE(readHookEvent("claude-code", text)) << text.substr(0, 80);
    }
    EXPECT_FALSE(readHookEvent("../x", R"({"session_id":"s","hook_event_name":"Stop"})"));
}

TEST(AssistantSessions, KeepTheLastStateOfTheLastSessions)
{
    AssistantSessions sessions;
    EXPECT_TRUE(sessions.take(eventOf("a", AssistantState::working), kNow));
    EXPECT_FALSE(sessions.take(eventOf("a", AssistantState::working), kNow));
    EXPECT_TRUE(sessions.take(eventOf("a", AssistantState::waiting), kNow));
    EXPECT_EQ(sessions.at(kNow).at(0).last.state, AssistantState::waiting);
    EXPECT_EQ(sessions.at(kNow + KestCore::kWaitingSilence).at(0).last.state,
              AssistantState::idle);
    // Back from where it was idle is a change, though the last word was the same.
    EXPECT_TRUE(
        sessions.take(eventOf("a", AssistantState::waiting), kNow + KestCore::kWaitingSilence));

    for (int number = 0; number < 200; ++number) {
        sessions.take(eventOf("s" + std::to_string(number), AssistantState::working),
                      kNow + Base::Seconds{86'400.0 + number});
    }
    const auto kept = sessions.at(kNow + Base::Seconds{90'000});
    ASSERT_EQ(kept.size(), AssistantSessions::kMost);
    EXPECT_EQ(kept.front().last.session, "s199");
    EXPECT_TRUE(sessions.take(eventOf("s199", AssistantState::ended), kNow));
    EXPECT_EQ(sessions.at(kNow).front().last.session, "s198");
}
