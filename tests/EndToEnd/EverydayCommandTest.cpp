// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/File.h"
#include "KestCore/Store/StateStore.h"
#include "tests/EndToEnd/Program.h"
#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <sys/stat.h>

#include <cstdlib>
#include <fstream>

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::Not;
using testing::StartsWith;
using Words = std::vector<std::string>;

namespace
{

constexpr int kRefused = 1;
constexpr int kWrongUsage = 2;

// The values of a key in a JSON answer, in order.
Words valuesOf(const std::string &json, const std::string &key)
{
    const std::string begin = "\"" + key + "\":\"";
    Words values;
    for (auto at = json.find(begin); at != std::string::npos; at = json.find(begin, at)) {
        at += begin.size();
        values.push_back(json.substr(at, json.find('"', at) - at));
    }
    return values;
}

Words titles(const TemporaryFolder &folder, const char *tool)
{
    return valuesOf(runKest(folder.path(), {"--json", tool, "list"}).out, "title");
}

std::string idOf(const TemporaryFolder &folder, const char *tool, std::size_t line)
{
    return valuesOf(runKest(folder.path(), {"--json", tool, "list"}).out, "id").at(line);
}

// Runs a line of shell with kest as $K; gives what it prints.
std::string shell(const TemporaryFolder &folder, const std::string &line)
{
    const auto out = folder.path() / "shell-out";
    const std::string command = "K='" KEST_PROGRAM " --data-dir " + folder.path().string() +
                                "'; (" + line + ") >" + out.string() + " 2>&1";
    EXPECT_EQ(std::system(command.c_str()), 0) << line;
    return Base::readFile(out).value_or("");
}

} // namespace

TEST(EverydayCommands, KeepNotesInTheOrderThatIsWanted)
{
    const TemporaryFolder folder;
    const auto kest = [&](Words words) { return runKest(folder.path(), std::move(words)); };
    for (const char *title : {"three", "two", "one"}) {
        ASSERT_EQ(kest({"note", "add", title, "text of " + std::string{title}}).status, 0);
    }
    EXPECT_THAT(titles(folder, "note"), ElementsAre("one", "two", "three"));
    const std::string two = idOf(folder, "note", 1);
    EXPECT_THAT(kest({"--json", "note", "pin", two}).out,
                MatchesRegex(R"(\[\{"id":"[0-9A-F-]{36}","title":"two","text":"text of two",)"
                             R"("pinned":true,"updated":"20[0-9T:.-]+Z"\}\])"
                             "\n"));
    EXPECT_EQ(kest({"note", "move", idOf(folder, "note", 1), "99"}).status, 0);
    EXPECT_THAT(titles(folder, "note"), ElementsAre("two", "three", "one"));
    ASSERT_EQ(kest({"note", "edit", two.substr(0, 8), "--text", "deux"}).status, 0);
    EXPECT_EQ(kest({"note", "show", two}).out, "deux\n");

    ASSERT_EQ(kest({"note", "remove", two}).status, 0);
    EXPECT_EQ(kest({"note", "show", two}).err, "kest: No item has the id \"" + two + "\"\n");
    EXPECT_THAT(titles(folder, "note"), ElementsAre("three", "one"));
    EXPECT_EQ(kest({"link", "restore"}).status, kRefused);
    ASSERT_EQ(kest({"note", "restore"}).status, 0);
    EXPECT_THAT(titles(folder, "note"), ElementsAre("two", "three", "one"));
    EXPECT_THAT(kest({"note", "list"}).out, AllOf(HasSubstr("*  two"), HasSubstr("   three")));
    EXPECT_THAT(valuesOf(kest({"--json", "note", "search", "TEXT", "of"}).out, "excerpt"),
                ElementsAre("text of three", "text of one"));
}

TEST(EverydayCommands, TakeTextsFromStandardInput)
{
    const TemporaryFolder folder;
    EXPECT_THAT(shell(folder, "printf 'first\\nrest\\n' | $K note add --json"),
                HasSubstr(R"("title":"first","text":"first\nrest","pinned")"));
    EXPECT_THAT(shell(folder, "printf x | $K note add Title - --json"),
                HasSubstr(R"("title":"Title","text":"x")"));
    EXPECT_EQ(shell(folder, "$K note scratchpad --append one && printf two |"
                            "$K note scratchpad --append - && $K note scratchpad"),
              "one\ntwo\n");
    EXPECT_THAT(shell(folder, "! head -c 1000001 /dev/zero | tr '\\0' x |"
                              "$K note scratchpad --replace"),
                StartsWith("kest: The scratchpad holds at most 1,000,000 bytes"));
    EXPECT_EQ(shell(folder, "printf new | $K note scratchpad --replace;"
                            "$K note scratchpad"),
              "new\n");
    EXPECT_EQ(shell(folder, "! printf '\\377' | $K note add"),
              "kest: Text that is not valid UTF-8 cannot be saved\n");
}

TEST(EverydayCommands, ReadTheTextOfANoteWhereThereIsOne)
{
    const TemporaryFolder folder;
    const auto added = [&](const std::string &line) {
        const std::string out = shell(folder, line);
        return valuesOf(out, "title").at(0) + "|" + valuesOf(out, "text").at(0);
    };
    const auto file = folder.path() / "file";
    std::ofstream{file} << "text\nof a file";
    struct Case {
        std::string line;
        std::string note;
    };
    for (const auto &[line, note] : {
             Case{"printf important | $K note add Shopping --json", "Shopping|important"},
             Case{"$K note add Shopping --json <" + file.string(), "Shopping|text\\nof a file"},
             Case{"true | $K note add Shopping --json", "Shopping|"},
             Case{"$K note add Shopping --json </dev/null", "Shopping|"},
             Case{"$K note add Shopping --json <&-", "Shopping|"},
             Case{"printf x | $K note add - --json", "x|x"},
             Case{"printf x | $K note add - - --json", "-|x"},
             Case{"printf x | $K note add --text - --json", "x|x"},
             Case{"printf x | $K note add T --text given --json", "T|given"},
             Case{"printf x | $K note add T --text '' --json", "T|"},
             Case{"printf x | $K note add T given --json", "T|given"},
         }) {
        EXPECT_EQ(added(line), note) << line;
    }
}

TEST(EverydayCommands, NothingIsEmptiedByACommandThatFailed)
{
    const TemporaryFolder folder;
    EXPECT_EQ(shell(folder, "printf kept | $K note scratchpad --replace;"
                            "! false | $K note scratchpad --replace; $K note scratchpad"),
              "kest: Standard input is empty; --clear empties the scratchpad\nkept\n");
    EXPECT_EQ(shell(folder, "$K note scratchpad --clear; $K note scratchpad"), "");
    ASSERT_EQ(runKest(folder.path(), {"note", "add", "Title", "kept"}).status, 0);
    const std::string id = idOf(folder, "note", 0);
    EXPECT_EQ(shell(folder, "! false | $K note edit " + id + " --text -; $K note show " + id),
              "kest: Standard input is empty; --text \"\" empties the note\nkept\n");
    EXPECT_EQ(runKest(folder.path(), {"note", "edit", id, "--text", ""}).status, 0);
    EXPECT_EQ(runKest(folder.path(), {"note", "show", id}).out, "");
}

TEST(EverydayCommands, RefuseAndChangeNothing)
{
    const TemporaryFolder folder;
    ASSERT_EQ(runKest(folder.path(), {"link", "add", "e.org"}).status, 0);
    ASSERT_EQ(runKest(folder.path(), {"shelf", "add-text", "t"}).status, 0);
    const std::string before = runKest(folder.path(), {"records", "--json"}).out;
    struct Case {
        Words words;
        int status;
        const char *message;
    };
    for (const auto &[words, status, message] : {
             Case{{"link", "add", "https://E.org/"},
                  kRefused,
                  "kest: This address is saved already, as \"e.org\"\n"},
             Case{{"link", "add", "data:x"}, kRefused, "kest: Only http:// and https://"},
             Case{{"link", "edit", "zzz", "--title", "x"},
                  kRefused,
                  "kest: No item has the id \"zzz\"\n"},
             Case{{"link", "pin", ""}, kRefused, "kest: No item has the id \"\"\n"},
             Case{{"link", "open", "zzz"}, kRefused, "kest: No item has the id \"zzz\"\n"},
             Case{{"link", "edit", "zzz"}, kWrongUsage, ""},
             Case{{"note", "add", " "}, kRefused, "kest: A note needs a title or a text\n"},
             Case{{"note", "add"}, kRefused, "kest: A note needs a title or a text\n"},
             Case{{"note", "restore"},
                  kRefused,
                  "kest: Nothing was removed in the last 30 seconds\n"},
             Case{{"note", "scratchpad", "--replace", "--append", "x"}, kWrongUsage, ""},
             Case{{"note", "scratchpad", "--replace", "--clear"}, kWrongUsage, ""},
             Case{{"note", "add", "x", "y", "--text", "z"}, kWrongUsage, ""},
             Case{{"shelf", "add", "/no/such/file"},
                  kRefused,
                  "kest: /no/such/file: No such file or directory\n"},
             Case{{"shelf", "clear"},
                  kRefused,
                  "kest: Confirm before clearing the shelf, as --yes does\n"},
             Case{{"shelf", "move", "x", "0"}, kWrongUsage, ""},
             Case{{"message", "add", "a\nb"}, kRefused, "kest: A message is one line"},
             Case{{"message", "add", "a", "--animation", "jump"}, kWrongUsage, ""},
             Case{{"emoji", "use", "x"}, kRefused, "kest: \"x\" is no emoji\n"},
             Case{{"emoji", "cat", "--tone", "blue"}, kWrongUsage, ""},
             Case{{"emoji", "use", "\U0001F44D\U0001F3FB\U0001F3FB"}, kRefused, "kest: "},
             Case{{"emoji"}, kWrongUsage, ""},
             Case{{"emoji", "recent", "x"}, kWrongUsage, ""},
             Case{{"emoji", "use", "\U0001F44D", "x"}, kWrongUsage, ""},
             Case{{"shelf", "show", "zzz"}, kRefused, "kest: No item has the id \"zzz\"\n"},
             Case{{"note"}, kWrongUsage, ""},
         }) {
        SCOPED_TRACE(testing::PrintToString(words));
        const auto outcome = runKest(folder.path(), words);
        EXPECT_EQ(outcome.status, status);
        EXPECT_EQ(outcome.out, "");
        EXPECT_THAT(outcome.err, StartsWith(message));
        EXPECT_NE(outcome.err, "");
    }
    EXPECT_EQ(runKest(folder.path(), {"records", "--json"}).out, before);
}

TEST(EverydayCommands, ARemovedLinkComesBackBesideItsTwin)
{
    const TemporaryFolder folder;
    const auto kest = [&](Words words) { return runKest(folder.path(), std::move(words)); };
    ASSERT_EQ(kest({"link", "add", "e.org", "--title", "Old", "--note", "n"}).status, 0);
    ASSERT_EQ(kest({"link", "remove", idOf(folder, "link", 0)}).status, 0);
    ASSERT_EQ(kest({"link", "add", "e.org", "--title", "New"}).status, 0);
    EXPECT_EQ(kest({"link", "restore"}).status, 0);
    EXPECT_THAT(titles(folder, "link"), testing::UnorderedElementsAre("Old", "New"));
    EXPECT_EQ(kest({"link", "edit", idOf(folder, "link", 0), "--note", "m"}).status, 0);
    EXPECT_EQ(kest({"link", "search", "e.org", "M"}).status, 0);
}

TEST(EverydayCommands, OpenALinkAsOneArgument)
{
    const TemporaryFolder folder;
    const auto opener = folder.path() / "xdg-open";
    std::ofstream{opener}
        << "#!/bin/sh\nprintf '%s|' $# \"$@\" > \"$(dirname \"$0\")/opened\"\n";
    ASSERT_EQ(chmod(opener.c_str(), 0700), 0);
    const std::string address = "https://e.org/$(touch${IFS}x);'&q=\"1\"";
    ASSERT_EQ(runKest(folder.path(), {"link", "add", address}).status, 0);
    const std::string id = idOf(folder, "link", 0);
    EXPECT_EQ(shell(folder, "PATH=" + folder.path().string() + ":$PATH $K link open " + id),
              "");
    EXPECT_EQ(Base::readFile(folder.path() / "opened").value_or(""), "1|" + address + "|");
    EXPECT_THAT(shell(folder, "! PATH=/nowhere $K link open " + id),
                StartsWith("kest: xdg-open could not be started"));
}

TEST(EverydayCommands, TheShelfTellsWhereFilesAreAndLeavesThemAlone)
{
    const TemporaryFolder folder;
    const auto kest = [&](Words words) { return runKest(folder.path(), std::move(words)); };
    const auto stays = folder.path() / "stays";
    const auto moves = folder.path() / "moves";
    const auto goes = folder.path() / "goes";
    for (const auto &file : {stays, moves, goes}) {
        std::ofstream{file} << file.string();
    }
    ASSERT_EQ(kest({"shelf", "add", stays, moves, goes}).status, 0);
    std::filesystem::rename(moves, folder.path() / "moved");
    std::filesystem::remove(goes);
    const auto list = kest({"--json", "shelf", "list"});
    EXPECT_THAT(valuesOf(list.out, "state"), ElementsAre("present", "moved", "missing"));
    EXPECT_THAT(valuesOf(list.out, "foundAt"), ElementsAre((folder.path() / "moved").string()));
    EXPECT_EQ(kest({"shelf", "show", idOf(folder, "shelf", 1)}).out,
              (folder.path() / "moved").string() + "\n");
    EXPECT_EQ(kest({"shelf", "show", idOf(folder, "shelf", 2)}).err,
              "kest: \"" + goes.string() + "\" is missing from its folder\n");
    ASSERT_EQ(kest({"shelf", "clear", "--yes"}).status, 0);
    EXPECT_EQ(kest({"--json", "shelf", "list"}).out, "[]\n");
    EXPECT_EQ(Base::readFile(stays).value_or(""), stays.string());
    ASSERT_EQ(kest({"shelf", "restore"}).status, 0);
    EXPECT_EQ(kest({"--json", "shelf", "list"}).out, list.out);

    const std::string text = std::string(300, 'x') + "\nsecond line";
    ASSERT_EQ(kest({"shelf", "add-text", text}).status, 0);
    EXPECT_EQ(kest({"shelf", "show", idOf(folder, "shelf", 3)}).out, text + "\n");
}

TEST(EverydayCommands, KeepMessagesAndFindEmoji)
{
    const TemporaryFolder folder;
    const auto kest = [&](Words words) { return runKest(folder.path(), std::move(words)); };
    ASSERT_EQ(kest({"message", "add", "Salam", "--animation", "wave"}).status, 0);
    ASSERT_EQ(kest({"message", "add", "Bismillah"}).status, 0);
    ASSERT_EQ(kest({"message", "move", idOf(folder, "message", 1), "1"}).status, 0);
    EXPECT_THAT(valuesOf(kest({"--json", "message", "list"}).out, "animation"),
                ElementsAre("scroll", "wave"));

    EXPECT_THAT(
        kest({"--json", "emoji", "thumbs", "up"}).out,
        StartsWith("[{\"emoji\":\"\U0001F44D\",\"name\":\"thumbs up\",\"arabicName\":"));
    ASSERT_EQ(kest({"settings", "set", "emoji.skinTone", "dark"}).status, 0);
    EXPECT_THAT(kest({"emoji", "thumbs up"}).out,
                StartsWith("\U0001F44D\U0001F3FF  thumbs up"));
    EXPECT_THAT(kest({"emoji", "thumbs up", "--tone", "light"}).out,
                StartsWith("\U0001F44D\U0001F3FB"));
    EXPECT_EQ(kest({"emoji", "use", "\U0001F54C"}).out, "\U0001F54C\n");
    EXPECT_THAT(kest({"--json", "emoji", "recent"}).out,
                AllOf(HasSubstr("\"name\":\"mosque\""), HasSubstr("\"uses\":1,")));
    EXPECT_THAT(kest({"complete", "--", "message", "add", "x", "--animation"}).out,
                HasSubstr("rainbow\n"));
}

// As a backup may bring them: a time for which there is no date, and ids much alike.
TEST(EverydayCommands, LiveWithRecordsFromElsewhere)
{
    const TemporaryFolder folder;
    const auto kest = [&](Words words) { return runKest(folder.path(), std::move(words)); };
    const auto put = [&](const char *id, const char *kind, const char *body) {
        auto store = *KestCore::StateStore::open(folder.database());
        ASSERT_TRUE(store.changeRecords(
            {.written = {
                 {.id = id, .kind = kind, .title = id, .body = body, .updated = 1e15}}}));
    };
    put("abcdef1", "note", R"({"text":"one"})");
    put("ABCDEF2", "note", R"({"text":"two"})");
    put("page", "scratchpad", R"({"text":"a page"})");
    put("mosque", "emoji", "{\"emoji\":\"\U0001F54C\",\"uses\":2}");
    EXPECT_THAT(kest({"note", "list"}).out,
                AllOf(HasSubstr("abcdef1 "), HasSubstr("ABCDEF2 ")));
    EXPECT_THAT(kest({"note", "search", "two"}).out, StartsWith("ABCDEF2 "));
    EXPECT_EQ(kest({"--json", "note", "show", "abcdef1"}).out,
              R"([{"id":"abcdef1","title":"abcdef1","text":"one","pinned":false}])"
              "\n");
    EXPECT_EQ(kest({"--json", "note", "scratchpad"}).out, R"({"text":"a page"})"
                                                          "\n");
    EXPECT_THAT(kest({"--json", "emoji", "recent"}).out, HasSubstr("\"uses\":2}]"));
    const auto removed = kest({"note", "remove", "abcdef1"});
    EXPECT_EQ(removed.status, 0) << removed.err;
    EXPECT_THAT(titles(folder, "note"), ElementsAre("ABCDEF2"));
}

TEST(EverydayCommands, StoredTextsCannotDriveTheTerminal)
{
    const TemporaryFolder folder;
    {
        auto store = *KestCore::StateStore::open(folder.database());
        ASSERT_TRUE(store.changeRecords(
            {.written = {{.id = "\x1b[2J",
                          .kind = "link",
                          .title = "\x1b[2J",
                          .body = R"({"url":"https://e\u001b[2J","note":"\u001b[2J"})"},
                         {.id = "2",
                          .kind = "emoji",
                          .title = "\x1b[2J",
                          .body = R"({"emoji":"\u001b[2J","uses":1})"}}}));
    }
    for (const Words &words :
         {Words{"link", "list"}, {"link", "search", "e"}, {"emoji", "recent"}}) {
        const auto outcome = runKest(folder.path(), words);
        EXPECT_EQ(outcome.status, 0) << outcome.err;
        EXPECT_THAT(outcome.out, AllOf(HasSubstr("[2J"), Not(HasSubstr("\x1b"))));
    }
}

TEST(EverydayCommands, RefusalsCannotDriveTheTerminal)
{
    const TemporaryFolder folder;
    const std::string drives = "\x1b[2J\u009B\u202E\u2028";
    {
        auto store = *KestCore::StateStore::open(folder.database());
        ASSERT_TRUE(store.changeRecords({.written = {{.id = "1",
                                                      .kind = "link",
                                                      .title = drives,
                                                      .body = R"({"url":"https://e.org"})"}}}));
    }
    struct Case {
        Words words;
        int status;
    };
    for (const auto &[words, status] : {
             Case{{"link", "add", "https://e.org"}, kRefused}, // names the stored title
             Case{{"link", "pin", drives}, kRefused},
             Case{{"link", "pin", "1", drives}, kWrongUsage},
             Case{{drives}, kWrongUsage},
         }) {
        SCOPED_TRACE(testing::PrintToString(words));
        const auto outcome = runKest(folder.path(), words);
        EXPECT_EQ(outcome.status, status);
        EXPECT_THAT(outcome.err, AllOf(HasSubstr("·[2J···"), testing::EndsWith("\n")));
        for (const char *part : {"\x1b", "\u009B", "\u202E", "\u2028"}) {
            EXPECT_THAT(outcome.err, Not(HasSubstr(part)));
        }
    }
}
