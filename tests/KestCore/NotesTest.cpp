// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/Notes.h"

#include "KestCore/Tools/Messages.h"
#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace KestCoreTests
{

using namespace KestCore;

namespace
{

const Base::Instant kNow = Base::fromSeconds1970(1'800'000'000);

std::string titleOf(const NoteChange &given)
{
    const auto note = makeNote(given);
    return note ? note->title : note.error().message;
}

std::string repeated(std::string_view text, int times)
{
    std::string all;
    for (int n = 0; n < times; ++n) {
        all += text;
    }
    return all;
}

std::vector<LocalRecord> someNotes()
{
    std::vector<LocalRecord> notes;
    for (const auto &[title, text] :
         std::initializer_list<std::pair<const char *, const char *>>{
             {"Plan", "Buy whole milk\nand bread"},
             {"Milky way", "stars"},
             {"Caf\u00E9", "R\u00E9sum\u00E9 for \u00C5sa\nTHE END"},
             {"Dua", "\u0627\u0644\u0644\u0651\u064E\u0647\u064F\u0645\u0651\u064E "
                     "\u0623\u0639\u0650\u0646\u0651\u064A\nal-Qur\u02BE\u0101n"},
             {"milk", ""},
             {"Skim milk, whole", "x"},
         }) {
        notes.push_back(*makeNote({.title = title, .text = text}));
    }
    return notes;
}

std::vector<std::string> found(std::string_view query)
{
    std::vector<std::string> lines;
    for (const auto &hit : searchNotes(someNotes(), query)) {
        lines.push_back(hit.record.title + "|" + hit.excerpt);
    }
    return lines;
}

} // namespace

TEST(Notes, GoByTheirTitleOrTheirFirstLine)
{
    struct Case {
        NoteChange given;
        std::string title;
    };
    const std::string needs = "A note needs a title or a text";
    const std::string oneLine = "A title is one line of at most 200 characters";
    for (const auto &[given, title] : {
             Case{{.title = " Given "}, "Given"},
             Case{{.title = "Given", .text = "first\nsecond"}, "Given"},
             Case{{.text = "\n \t\n  first\tline \r\nsecond"}, "first line"},
             Case{{.title = " ", .text = "first"}, "first"},
             Case{{.text = repeated("\u0646", 200)}, repeated("\u0646", 200)},
             Case{{.text = repeated("\u0646", 201)}, repeated("\u0646", 199) + "\u2026"},
             Case{{.title = repeated("\u0646", 201)}, oneLine},
             Case{{.title = "a\nb"}, oneLine},
             Case{{.title = "a\u2028b"}, oneLine},
             Case{{.title = "a\u0085b"}, oneLine},
             Case{{.title = "\u3000\u00A0", .text = "\u200B\n\u00A0first\u2028x"}, "first"},
             Case{{.title = "\u200B", .text = "\u2060 \u3164"}, needs},
             Case{{}, needs},
             Case{{.title = "", .text = " \n "}, needs},
             Case{{.text = std::string(1'000'001, 'x')},
                  "A note holds at most 1,000,000 bytes"},
         }) {
        EXPECT_EQ(titleOf(given), title);
    }
    EXPECT_TRUE(makeNote({.text = std::string(1'000'000, 'x')}));
}

TEST(Notes, ATitleFromTheTextFollowsItAndAGivenOneStays)
{
    auto follows = *makeNote({.text = "one\nmore"});
    ASSERT_TRUE(changeNote(follows, {.text = "two"}));
    EXPECT_EQ(follows.title, "two");
    auto given = *makeNote({.title = "Given", .text = "one"});
    ASSERT_TRUE(changeNote(given, {.text = "two"}));
    EXPECT_EQ(given.title, "Given");
    ASSERT_TRUE(changeNote(given, {.title = ""}));
    EXPECT_EQ(given.title, "two");
    const LocalRecord before = given;
    EXPECT_FALSE(changeNote(given, {.text = ""}));
    EXPECT_EQ(given, before);
}

TEST(Notes, AreFoundWhateverTheMarksAndTheBestFirst)
{
    using testing::ElementsAre;
    EXPECT_THAT(found("milk"),
                ElementsAre("milk|", "Milky way|", "Skim milk, whole|", "Plan|Buy whole milk"));
    EXPECT_THAT(found("MILK Whole"), ElementsAre("Skim milk, whole|", "Plan|Buy whole milk"));
    EXPECT_THAT(found("plan bread"), ElementsAre("Plan|and bread"));
    EXPECT_THAT(found("cafe"), ElementsAre("Caf\u00E9|"));
    EXPECT_THAT(found("resume asa"), ElementsAre("Caf\u00E9|R\u00E9sum\u00E9 for \u00C5sa"));
    EXPECT_THAT(found("the end"), ElementsAre("Caf\u00E9|THE END"));
    EXPECT_THAT(found("\u0627\u0639\u0646\u064A \u0627\u0644\u0644\u0647\u0645"),
                ElementsAre(testing::StartsWith("Dua|\u0627\u0644\u0644")));
    EXPECT_THAT(found("quran"), ElementsAre("Dua|al-Qur\u02BE\u0101n"));
    EXPECT_THAT(found("milk stars bread"), ElementsAre());
    // A sign counts where there is nothing else.
    EXPECT_THAT(found(" - "), ElementsAre("Dua|al-Qur\u02BE\u0101n"));
    EXPECT_THAT(found("- milky"), ElementsAre("Milky way|"));
    EXPECT_THAT(found("\u2014"), ElementsAre());
    EXPECT_THAT(found("\u0640"), ElementsAre());
    EXPECT_EQ(found(" ").size(), someNotes().size());
}

TEST(Notes, ALongLineIsShownFromWhereTheWordIs)
{
    const std::string line = repeated("word ", 100) + "needle " + repeated("word ", 100);
    const auto hits = searchNotes({*makeNote({.title = "t", .text = line})}, "NEEDLE");
    EXPECT_THAT(hits.at(0).excerpt,
                testing::StartsWith("\u2026word word word word word needle"));
    EXPECT_LT(hits.at(0).excerpt.size(), 130U);
}

TEST(Scratchpad, KeepsEverythingOrRefuses)
{
    const TemporaryFolder folder;
    auto store = *StateStore::open(folder.database());
    const auto text = [&] { return readScratchpad(store)->text; };
    EXPECT_EQ(text(), "");
    EXPECT_EQ(readScratchpad(store)->updated, std::nullopt);
    for (const char *line : {"one", "two\n", "three"}) {
        ASSERT_TRUE(appendToScratchpad(store, line, kNow));
    }
    EXPECT_EQ(text(), "one\ntwo\nthree");
    EXPECT_EQ(readScratchpad(store)->updated, kNow);
    // With the line's end between them exactly the most that fits, and then one more.
    const std::string rest(1'000'000 - text().size() - 1, 'x');
    ASSERT_TRUE(appendToScratchpad(store, rest, kNow));
    EXPECT_EQ(text().size(), 1'000'000U);
    EXPECT_EQ(appendToScratchpad(store, "", kNow).error().message,
              "The scratchpad holds at most 1,000,000 bytes");
    EXPECT_FALSE(replaceScratchpad(store, std::string(1'000'001, 'x'), kNow));
    EXPECT_EQ(text().size(), 1'000'000U);
    ASSERT_TRUE(replaceScratchpad(store, "new", kNow));
    EXPECT_EQ(text(), "new");
    EXPECT_EQ(store.recordsOfKind("scratchpad")->size(), 1U);
}

TEST(Scratchpad, IsTheSamePageUnderAnyId)
{
    const TemporaryFolder folder;
    auto store = *StateStore::open(folder.database());
    const auto page = [](const char *id, const char *body, double updated) {
        return LocalRecord{
            .id = id, .kind = "scratchpad", .title = "t", .body = body, .updated = updated};
    };
    ASSERT_TRUE(store.changeRecords(
        {.written = {page("old", R"({"text":"a"})", 1), page("new", R"({"text":"b"})", 2),
                     page("older", R"({"text":"c"})", 0)}}));
    EXPECT_EQ(readScratchpad(store)->text, "b");
    ASSERT_TRUE(appendToScratchpad(store, "more", kNow));
    EXPECT_EQ(readScratchpad(store)->text, "b\nmore");
    EXPECT_EQ(store.record("new")->value().body, R"({"text":"b\nmore"})");
    EXPECT_EQ(store.recordsOfKind("scratchpad")->size(), 3U);
}

TEST(Messages, AreOneLineOfUpTo200Characters)
{
    for (const auto &text :
         {std::string{}, std::string{" \n"}, std::string{"a\nb"}, std::string{"a\x1b[2J"},
          std::string{"\u3000\u200B"}, repeated("\u0646", 201)}) {
        EXPECT_EQ(makeMessage({.text = text}).error().message,
                  "A message is one line of 1 to 200 characters");
    }
    auto message = *makeMessage({.text = repeated("\u0646", 200)});
    ASSERT_TRUE(changeMessage(message, {.animation = MessageAnimation::rainbow}));
    EXPECT_EQ(message.title, repeated("\u0646", 200));
    EXPECT_EQ(message.body,
              "{\"text\":\"" + repeated("\u0646", 200) + "\",\"animation\":\"rainbow\"}");
    ASSERT_TRUE(changeMessage(message, {.text = " new "}));
    EXPECT_EQ(message.body, R"({"text":"new","animation":"rainbow"})");
}

} // namespace KestCoreTests
