// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/File.h"
#include "Base/Instant.h"
#include "tests/EndToEnd/Program.h"
#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <fstream>

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

namespace
{

namespace fs = std::filesystem;

// kest with a home of its own.
class AssistantCommand : public testing::Test
{
protected:
    AssistantCommand() { setenv("HOME", m_home.path().c_str(), 1); }
    void TearDown() override { setenv("HOME", m_before.c_str(), 1); }

    void write(const fs::path &name, const std::string &text) const
    {
        fs::create_directories((m_home.path() / name).parent_path());
        std::ofstream{m_home.path() / name} << text;
    }
    Outcome assistants(std::vector<std::string> words) const
    {
        words.insert(words.begin(), "assistants");
        return runKest(m_folder.path(), std::move(words));
    }

    std::string m_before = std::getenv("HOME") == nullptr ? "/" : std::getenv("HOME");
    TemporaryFolder m_home;
    TemporaryFolder m_folder;
};

} // namespace

TEST_F(AssistantCommand, TellsWhatTheLogsTellAndNoWordOfThem)
{
    EXPECT_THAT(assistants({}).out, HasSubstr("No coding assistant"));
    const std::string now = Base::toIso8601(Base::wallClock()).value();
    write(".claude/projects/x/one.jsonl",
          R"({"cwd":"/srv/nook","sessionId":"s","type":"assistant","timestamp":")" + now +
              R"(","message":{"id":"a","model":"model-x","content":"secret","usage":{)"
              R"("input_tokens":12,"output_tokens":345}}})"
              "\n{\"usage\":{\n");
    const auto shown = assistants({"--json"});
    EXPECT_THAT(shown.out,
                AllOf(HasSubstr(R"("models":[{"name":"model-x","answers":1,"tokens":)"
                                R"({"input":12,"output":345}}])"),
                      HasSubstr(R"("limits":[])"), HasSubstr(R"("skippedLines":1)"),
                      Not(HasSubstr("secret"))));
    EXPECT_THAT(assistants({}).out, AllOf(HasSubstr("not told"), HasSubstr("nook")));
    EXPECT_THAT(assistants({"sessions", "--json"}).out, HasSubstr(R"("state":"working")"));
}

TEST_F(AssistantCommand, WritesAHookFileOnlyWhenToldToAndTakesItBack)
{
    EXPECT_EQ(assistants({"connect", "cursor"}).status, 1); // it is not here
    EXPECT_EQ(assistants({"connect", "nothing"}).status, 1);
    const std::string before = "{\n  \"version\": 1\n}\n";
    write(".cursor/hooks.json", before);
    const auto file = m_home.path() / ".cursor/hooks.json";
    EXPECT_THAT(assistants({"connect", "cursor"}).out,
                AllOf(HasSubstr("+  \"hooks\": {"), HasSubstr("Nothing was written")));
    EXPECT_EQ(Base::readFile(file), before);
    EXPECT_THAT(assistants({"connect", "cursor", "--yes", "--json"}).out,
                HasSubstr(R"("written":true)"));
    EXPECT_THAT(Base::readFile(file).value(), HasSubstr("kest' hook cursor"));
    EXPECT_EQ(Base::readFile(file.string() + ".before-velvetnook"), before);
    EXPECT_EQ(assistants({"disconnect", "cursor", "--yes"}).status, 0);
    EXPECT_EQ(Base::readFile(file), before);
}

TEST_F(AssistantCommand, SaysWhyThereAreNoUpdates)
{
    const auto told = runKest(m_folder.path(), {"update", "--json"});
    EXPECT_THAT(told.out, HasSubstr(R"("mayCheck":false)"));
    EXPECT_EQ(runKest(m_folder.path(), {"update", "--check"}).status, 1);
}
