// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Assistants/UsageLogs.h"

#include "tests/TemporaryFolder.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <fstream>

using namespace Assistants;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{

namespace fs = std::filesystem;
using KestCore::AssistantState;

const Base::Instant kNow = Base::fromIso8601("2026-11-21T12:00:00Z").value();
const fs::path kClaude = ".claude/projects/-home-u-nook/one.jsonl";
const fs::path kCodex = ".codex/sessions/2026/11/21/rollout-1.jsonl";

// A line as Claude Code writes it.
std::string answer(std::string_view id, int output, std::string_view time = "11:00:00",
                   std::string_view day = "2026-11-21", std::string_view stop = "tool_use")
{
    return fmt::format(
        R"({{"parentUuid":null,"cwd":"/home/u/nook","sessionId":"s-1","message":{{"id":"{}",)"
        R"("type":"message","role":"assistant","model":"claude-x","content":[{{"type":"text",)"
        R"("text":"a secret \"usage\":{{ of\n words"}}],"stop_reason":"{}","usage":{{)"
        R"("input_tokens":10,"cache_creation_input_tokens":100,"cache_read_input_tokens":1000,)"
        R"("output_tokens":{},"service_tier":"standard"}}}},"requestId":"r","type":"assistant",)"
        R"("timestamp":"{}T{}.250Z"}})"
        "\n",
        id, stop, output, day, time);
}

std::string question(std::string_view time)
{
    return fmt::format(R"({{"type":"user","message":{{"role":"user","content":"hidden"}},)"
                       R"("sessionId":"s-1","timestamp":"2026-11-21T{}Z"}})"
                       "\n",
                       time);
}

// A count as Codex writes it; the total so far, of which a fifth came from the cache.
std::string count(int total, std::string_view limits = "null")
{
    return fmt::format(R"({{"timestamp":"2026-11-21T11:00:00.000Z","type":"event_msg",)"
                       R"("payload":{{"type":"token_count","info":{{"total_token_usage":)"
                       R"({{"input_tokens":{},"cached_input_tokens":{},"output_tokens":7}}}},)"
                       R"("rate_limits":{}}}}})"
                       "\n",
                       total, total / 5, limits);
}

const std::string kCodexHead =
    R"({"timestamp":"2026-11-21T10:59:00Z","type":"session_meta","payload":{"id":"c-1",)"
    R"("cwd":"/srv/garden/"}})"
    "\n"
    R"({"timestamp":"2026-11-21T10:59:01Z","type":"turn_context","payload":{"cwd":)"
    R"("/srv/garden","model":"gpt-y"}})"
    "\n";

class Logs : public testing::Test
{
protected:
    void write(const fs::path &name, std::string_view text,
               std::ios::openmode mode = std::ios::app)
    {
        const fs::path file = m_home.path() / name;
        fs::create_directories(file.parent_path());
        std::ofstream{file, mode | std::ios::binary} << text;
    }
    std::vector<ToolUse> report(std::int64_t days = 7)
    {
        m_logs.refresh();
        return m_logs.report(KestCore::Calendar::inZone("UTC").value(), kNow, days);
    }
    // Tokens of the answers of the only tool; nothing where no tool has any.
    std::optional<std::int64_t> output()
    {
        const auto tools = report();
        return tools.empty() ? std::nullopt : tools.at(0).week.output;
    }

    TemporaryFolder m_home;
    UsageLogs m_logs{m_home.path(), kNow - Base::Seconds{30 * 86'400}};
};

} // namespace

TEST_F(Logs, CountsAnAnswerOnceInWhicheverFilesItStands)
{
    write(kClaude, answer("a", 1) + answer("a", 50) + answer("b", 5));
    write(".claude/projects/-home-u-nook/two.jsonl", answer("a", 50) + answer("a", 3));
    const auto tools = report();
    ASSERT_THAT(tools, SizeIs(1));
    const TokenCounts whole{.input = 20, .output = 55, .cacheWrite = 200, .cacheRead = 2000};
    EXPECT_EQ(tools[0].tool, "claude-code");
    EXPECT_THAT(tools[0].models,
                ElementsAre(NamedUse{.name = "claude-x", .answers = 2, .tokens = whole}));
    EXPECT_THAT(tools[0].projects,
                ElementsAre(NamedUse{.name = "nook", .answers = 2, .tokens = whole}));
    EXPECT_THAT(tools[0].limits, IsEmpty()); // as the tool writes none
}

TEST_F(Logs, AddsUpByLocalDayWindowAndWeek)
{
    write(kClaude, answer("a", 1, "10:00:00", "2026-11-13") + // before the week
                       answer("b", 2, "23:30:00", "2026-11-20") +
                       answer("c", 4, "01:00:00") + // in the window of b
                       answer("d", 8, "08:00:00") + answer("e", 16, "11:59:00"));
    const auto tools = report(2);
    ASSERT_THAT(tools, SizeIs(1));
    EXPECT_THAT(tools[0].days,
                ElementsAre(Field(&DayUse::answers, 1), Field(&DayUse::answers, 3)));
    EXPECT_EQ(tools[0].week.output, 30);
    ASSERT_TRUE(tools[0].window);
    EXPECT_EQ(tools[0].window->tokens.output, 24);
    EXPECT_EQ(Base::toIso8601(tools[0].window->begin), "2026-11-21T08:00:00Z");

    const auto cairo = KestCore::Calendar::inZone("Africa/Cairo").value();
    EXPECT_EQ(m_logs.report(cairo, kNow, 2)[0].days.size(), 1U);
    EXPECT_FALSE(m_logs.report(cairo, kNow + Base::Seconds{3600}, 2)[0].window);
}

TEST_F(Logs, TellsNothingWhereTheToolTellsNothing)
{
    write(kClaude, R"({"type":"assistant","message":{"id":"a","usage":{"output_tokens":5}},)"
                   R"("timestamp":"2026-11-21T11:00:00Z"})"
                   "\n");
    EXPECT_EQ(report()[0].week, (TokenCounts{.output = 5}));
    EXPECT_EQ(report()[0].models[0].name, "");
}

TEST_F(Logs, ReadsWhatTheTotalsOfCodexGrowBy)
{
    const std::string limits =
        R"({"primary":{"used_percent":12.5,"window_minutes":300,"resets_in_seconds":7200},)"
        R"("secondary":{"used_percent":40,"window_minutes":10080,"resets_at":1795600000}})";
    write(kCodex, kCodexHead + count(100) + count(100, limits) + count(250) + count(50));
    const auto tools = report();
    ASSERT_THAT(tools, SizeIs(1));
    // 100, and 150 more, and 50 of a count that began anew.
    EXPECT_EQ(tools[0].week, (TokenCounts{.input = 240, .output = 14, .cacheRead = 60}));
    EXPECT_EQ(tools[0].models[0].name, "gpt-y");
    EXPECT_EQ(tools[0].projects[0].name, "garden");
    ASSERT_THAT(tools[0].limits, SizeIs(2));
    EXPECT_EQ(tools[0].limits[0].usedPercent, 12.5);
    EXPECT_EQ(Base::toIso8601(*tools[0].limits[0].resetsAt), "2026-11-21T13:00:00Z");
    const auto utc = KestCore::Calendar::inZone("UTC").value();
    EXPECT_THAT(m_logs.report(utc, kNow + Base::Seconds{2 * 3600}, 7)[0].limits, SizeIs(1));
}

TEST_F(Logs, TakesALineOnceItIsWholeAndOnlyOnce)
{
    const std::string line = answer("b", 5);
    write(kClaude, answer("a", 1) + line.substr(0, 200));
    EXPECT_EQ(output(), 1);
    const auto before = m_logs.totals().bytes;
    EXPECT_EQ(output(), 1);
    write(kClaude, line.substr(200));
    EXPECT_EQ(output(), 6);
    EXPECT_LE(m_logs.totals().bytes - before, 200 + line.size());
}

TEST_F(Logs, NoticesFilesThatWereCutReplacedOrRemoved)
{
    write(kClaude, answer("a", 1) + answer("b", 2));
    EXPECT_EQ(output(), 3);
    write(kClaude, answer("c", 4), std::ios::trunc);
    EXPECT_EQ(output(), 4);
    write(".claude/new", answer("d", 8) + answer("e", 16) + answer("f", 32));
    fs::rename(m_home.path() / ".claude/new", m_home.path() / kClaude);
    EXPECT_EQ(output(), 56);
    // Written anew and longer, under the same number.
    write(kClaude,
          question("10:00:00.12") + answer("g", 64) + answer("h", 1) + answer("i", 1) +
              answer("j", 1),
          std::ios::trunc);
    EXPECT_EQ(output(), 67);
    fs::remove(m_home.path() / kClaude);
    EXPECT_EQ(output(), std::nullopt);
}

TEST_F(Logs, PassesOverAndCountsWhatIsHostile)
{
    const std::string deep(1000, '[');
    const std::string huge(LogFollower::kLongestLine, 'x');
    struct Case {
        const char *name;
        std::string line;
        std::uint64_t damaged;
        std::uint64_t tooLong;
    };
    for (const auto &[name, line, damaged, tooLong] : {
             Case{"cut", R"({"type":"assistant","message":{"usage":{)", 1, 0},
             Case{"deep", R"({"x":)" + deep + R"(,"usage":{}})", 1, 0},
             Case{"no text", "{\"type\":\"\xFF\",\"usage\":{}}", 1, 0},
             Case{"huge", R"({"usage":{},"x":")" + huge + "\"}", 0, 1},
             Case{"negative",
                  R"({"type":"assistant","timestamp":"2026-11-21T11:00:00Z",)"
                  R"("message":{"id":"n","usage":{"input_tokens":-1}}})",
                  1, 0},
             Case{"no time",
                  R"({"type":"assistant","timestamp":"9999-11-21T11:00:00Z",)"
                  R"("message":{"id":"n","usage":{"input_tokens":1}}})",
                  1, 0},
             Case{"another kind", R"({"type":"user","usage":{}})", 0, 0},
         }) {
        SCOPED_TRACE(name);
        write(kClaude, answer("a", 1) + line + "\n" + answer("b", 2), std::ios::trunc);
        UsageLogs logs{m_home.path(), kNow - Base::Seconds{86'400}};
        logs.refresh();
        EXPECT_EQ(logs.totals().damagedLines, damaged);
        EXPECT_EQ(logs.totals().longLines, tooLong);
        const auto utc = KestCore::Calendar::inZone("UTC").value();
        EXPECT_EQ(logs.report(utc, kNow, 7).at(0).week.output, 3);
    }
}

TEST_F(Logs, SaysWhoWorksAndWhoWaits)
{
    write(kClaude, answer("a", 1, "11:59:30") + "{\"type\":\"summary\"}\n");
    struct Case {
        const char *name;
        std::string line;
        double secondsLater;
        AssistantState state;
    };
    for (const auto &[name, line, secondsLater, state] : {
             Case{"at work", "", 0, AssistantState::working},
             Case{"asked", question("11:58:00"), 0, AssistantState::working},
             Case{"silent", "", 1000, AssistantState::idle},
             Case{"done", answer("b", 1, "11:59:00", "2026-11-21", "end_turn"), 3600,
                  AssistantState::waiting},
             Case{"unknown", "{\"type\":\"summary\"}\n", 3600, AssistantState::waiting},
         }) {
        SCOPED_TRACE(name);
        write(kClaude, line);
        m_logs.refresh();
        const auto sessions = m_logs.sessions(kNow + Base::Seconds{secondsLater});
        ASSERT_THAT(sessions, SizeIs(1));
        EXPECT_EQ(sessions[0].state, state);
        EXPECT_EQ(sessions[0].session, "s-1");
        EXPECT_EQ(sessions[0].folder, "nook");
    }
}
