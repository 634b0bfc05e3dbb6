// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Assistants/HookFile.h"

#include "Assistants/UnifiedDiff.h"
#include "Base/File.h"
#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <fstream>

using namespace Assistants;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace
{

namespace fs = std::filesystem;

const HookTool &claude() { return *findHookTool("claude-code"); }
const HookTool &cursor() { return *findHookTool("cursor"); }

Base::Result<std::string> connected(const HookTool &tool, std::string_view text)
{
    return changedHooks(tool, HookChange::connect, text, "kest");
}
Base::Result<std::string> disconnected(const HookTool &tool, std::string_view text)
{
    return changedHooks(tool, HookChange::disconnect, text, "kest");
}

void write(const fs::path &file, std::string_view text)
{
    std::ofstream{file, std::ios::binary | std::ios::trunc} << text;
}

} // namespace

TEST(HookFile, ConnectsOnceAndTakesItBackToTheByte)
{
    struct Case {
        const char *name;
        const HookTool &tool;
        std::string text;
    };
    for (const auto &[name, tool, text] : {
             Case{"empty", claude(), "{}"},
             Case{"one line", claude(), R"({"model":"x","a":[1,2,{"b":null}]})"},
             Case{"tabs", claude(), "{\n\t\"model\": \"x\"\n}\n"},
             Case{"others' hooks", claude(),
                  "{\n    \"hooks\": {\n        \"Stop\": [\n            {\"hooks\":[{\"type\":"
                  "\"command\",\"command\":\"beep \\u0041\"}]}\n        ]\n    },\n    "
                  "\"z\" : 1\n}"},
             Case{"versions", cursor(),
                  "{ \"version\": 1, \"hooks\": { \"stop\": [ {\"command\":"
                  "\"./x.sh\"} ], \"other\": [] } }\n"},
         }) {
        SCOPED_TRACE(name);
        const auto with = connected(tool, text);
        ASSERT_TRUE(with) << with.error().message;
        EXPECT_THAT(*with, HasSubstr("kest hook " + std::string{tool.name}));
        EXPECT_EQ(connected(tool, *with), *with);
        EXPECT_EQ(disconnected(tool, *with), text) << *with;
        EXPECT_EQ(disconnected(tool, text), text);
    }
}

TEST(HookFile, WritesWhatTheToolReads)
{
    EXPECT_EQ(connected(cursor(), "{\n  \"version\": 1\n}\n").value(), R"({
  "version": 1,
  "hooks": {
    "beforeSubmitPrompt": [
      { "command": "kest hook cursor" }
    ],
    "afterFileEdit": [
      { "command": "kest hook cursor" }
    ],
    "stop": [
      { "command": "kest hook cursor" }
    ]
  }
}
)");
    EXPECT_THAT(connected(claude(), "{}").value(), HasSubstr(R"("Stop": [
      { "hooks": [{ "type": "command", "command": "kest hook claude-code", "timeout": 5 }] }
    ])"));
}

TEST(HookFile, RefusesWhatItDoesNotUnderstand)
{
    for (const char *text : {"", "[]", "{} x", "{\"a\":1,}", "// note\n{}", "{\"a\":1,\"a\":2}",
                             "{\"hooks\":[]}", "{\"hooks\":{\"Stop\":{}}}", "{\"hooks\":1}",
                             "{\"a\":tru}", "{\"a\":\"\xFF\"}", "{\"a\" \"b\"}"}) {
        SCOPED_TRACE(text);
        EXPECT_FALSE(connected(claude(), text));
        EXPECT_FALSE(disconnected(claude(), text));
    }
}

TEST(HookFile, KnowsItsOwnCommandsWhereverKestLies)
{
    for (const char *ours : {"kest hook claude-code", "/opt/x/kest hook claude-code ",
                             "'/home/a b/kest' hook claude-code"}) {
        EXPECT_TRUE(isOurHook(claude(), ours)) << ours;
    }
    for (const char *other : {"notkest hook claude-code", "kest hook cursor", "kest hook",
                              "beep; echo hook claude-code", "hook claude-code"}) {
        EXPECT_FALSE(isOurHook(claude(), other)) << other;
    }
}

TEST(HookFile, WritesThroughALinkAndKeepsACopy)
{
    TemporaryFolder home;
    EXPECT_THAT(planHooks(claude(), HookChange::connect, home.path(), "kest").error().message,
                HasSubstr("not here"));
    fs::create_directory(home.path() / ".claude");
    const fs::path file = home.path() / ".claude/settings.json";
    const fs::path real = home.path() / "dotfile";
    write(real, "{\"a\":1}");
    fs::create_symlink("../dotfile", file);

    const auto plan = planHooks(claude(), HookChange::connect, home.path(), "kest").value();
    ASSERT_TRUE(plan.isNeeded());
    EXPECT_EQ(Base::readFile(real), "{\"a\":1}"); // a plan changes nothing
    const auto copy = writeHooks(plan).value();
    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_EQ(Base::readFile(real), plan.after);
    EXPECT_EQ(Base::readFile(copy.value()), "{\"a\":1}");
    EXPECT_FALSE(planHooks(claude(), HookChange::connect, home.path(), "kest")->isNeeded());
    const auto other =
        planHooks(claude(), HookChange::connect, home.path(), "/opt/kest").value();
    EXPECT_EQ(writeHooks(other).value(), copy);
    EXPECT_EQ(Base::readFile(copy.value()), "{\"a\":1}"); // the file that was the user's alone

    const auto back = planHooks(claude(), HookChange::disconnect, home.path(), "kest").value();
    write(real, "{\"b\":2}");
    EXPECT_THAT(writeHooks(back).error().message, HasSubstr("has changed"));
    EXPECT_EQ(Base::readFile(real), "{\"b\":2}");

    fs::remove(real);
    EXPECT_THAT(planHooks(claude(), HookChange::connect, home.path(), "kest").error().message,
                HasSubstr("leads nowhere"));
    fs::create_directory(real);
    EXPECT_FALSE(planHooks(claude(), HookChange::connect, home.path(), "kest"));
}

TEST(UnifiedDiff, ShowsEachChangeWithItsContext)
{
    std::string before;
    for (int line = 1; line <= 30; ++line) {
        before += std::to_string(line) + "\n";
    }
    std::string after = before;
    after.replace(after.find("\n5\n") + 1, 2, "five\n");
    after.insert(after.find("\n25\n") + 1, "more\n");
    EXPECT_EQ(unifiedDiff(before, after, "a", "b"),
              "--- a\n+++ b\n"
              "@@ -2,7 +2,7 @@\n 2\n 3\n 4\n-5\n+five\n 6\n 7\n 8\n"
              "@@ -22,6 +22,7 @@\n 22\n 23\n 24\n+more\n 25\n 26\n 27\n");
    EXPECT_EQ(unifiedDiff("", "x", "a", "b"),
              "--- a\n+++ b\n@@ -0,0 +1,1 @@\n+x\n\\ No newline at end of file\n");
    EXPECT_EQ(unifiedDiff(before, before, "a", "b"), "");
}
