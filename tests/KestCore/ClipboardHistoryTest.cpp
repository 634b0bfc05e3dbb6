// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clipboard/ClipboardHistory.h"

#include "Base/Base64.h"
#include "Base/File.h"
#include "KestCore/Clipboard/ClipboardPrivacy.h"
#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace KestCoreTests
{

using namespace KestCore;
using Base::AesKey;
using Base::Bytes;
using enum ClipboardKind;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

constexpr const char *kUnreadable = "This saved entry cannot be opened.";

const Base::Instant kStart = Base::fromSeconds1970(1'800'000'000);

Base::Instant after(double seconds) { return kStart + Base::Seconds{seconds}; }

AesKey fixedKey(std::uint8_t first = 1)
{
    return *AesKey::fromBytes(std::array<std::uint8_t, 32>{first});
}

class ClipboardHistoryTest : public testing::Test
{
protected:
    std::string add(const std::string &content, double seconds)
    {
        return history.add({.kind = text, .text = content}, after(seconds))->id;
    }
    std::string addImage(std::size_t size, double seconds)
    {
        return history.add({.kind = image, .image = Bytes(size)}, after(seconds))->id;
    }
    void set(const std::string &key, const std::string &value)
    {
        ASSERT_TRUE(store.change([&](NativeState &state) -> Result<void> {
            state.settings[key] = value;
            return {};
        }));
    }
    std::vector<std::string> displays(const Result<std::vector<ClipboardListing>> &listings)
    {
        std::vector<std::string> texts;
        for (const auto &[entry, display, isReadable] : listings.value()) {
            texts.push_back((entry.favourite ? "*" : "") + display);
            EXPECT_EQ(isReadable, !display.contains("This saved "));
        }
        return texts;
    }
    std::vector<std::string> listed() { return displays(history.list()); }

    // The pairs of records are whole: for each content one index row, and nothing else.
    void expectWholePairs()
    {
        std::set<std::string> contents;
        std::set<std::string> indexed;
        const auto records = store.recordsOfKind("clipboard").value();
        for (const LocalRecord &record : records) {
            if (record.id.starts_with("clipboard-index:")) {
                indexed.insert(record.id.substr(16));
            } else {
                contents.insert(record.id);
            }
        }
        EXPECT_EQ(contents, indexed);
    }

    TemporaryFolder folder;
    StateStore store = StateStore::open(folder.database()).value();
    ClipboardHistory history{store, fixedKey()};
};

} // namespace

TEST_F(ClipboardHistoryTest, ListsFavouritesFirstAndThenTheNewest)
{
    EXPECT_THAT(listed(), IsEmpty());
    const std::string first = add("first", 1);
    add("second", 2);
    add("sk_live_0123456789abcdef", 3);
    addImage(3, 4);
    ASSERT_TRUE(
        history.add({.kind = files, .files = {{"a.txt", {1}}, {"b.txt", {2}}}}, after(5)));
    ASSERT_TRUE(history.setFavourite(first, true));
    EXPECT_THAT(listed(), ElementsAre("*first", "a.txt, b.txt", "Copied image",
                                      ClipboardPrivacy::kHidden, "second"));
    const auto record = store.record(first).value();
    EXPECT_EQ(record->extra, (std::map<std::string, std::string>{{"format", "rich-v1"},
                                                                 {"favorite", "true"}}));
    EXPECT_EQ(ClipboardCipher::open(record->body, fixedKey())->text, "first");
    ASSERT_TRUE(history.setFavourite(first, false));
    EXPECT_EQ(store.record(first).value()->extra.contains("favorite"), false);
    EXPECT_EQ(listed().back(), "first");
    expectWholePairs();
}

TEST_F(ClipboardHistoryTest, ShowsTheBeginningOfALongTextInWholeCharacters)
{
    std::string longText;
    for (int n = 0; n < 201; ++n) {
        longText += "\u0646";
    }
    add(longText, 1);
    EXPECT_THAT(listed(), ElementsAre(longText.substr(0, 400)));
}

TEST_F(ClipboardHistoryTest, MovesEqualContentInsteadOfDoublingIt)
{
    const std::string id = add("same", 1);
    add("between", 2);
    ASSERT_TRUE(history.setFavourite(id, true));
    EXPECT_EQ(add("same", 3), id);
    EXPECT_NE(history.add({.kind = link, .text = "same"}, after(4))->id, id);
    EXPECT_THAT(listed(), ElementsAre("*same", "same", "between"));
    EXPECT_EQ(history.find(id)->createdAt, after(3));
    EXPECT_EQ(store.record(id).value()->updated, Base::milliseconds1970(after(3)));
    expectWholePairs();
}

TEST_F(ClipboardHistoryTest, KeepsFavouritesThroughRetentionAndClearing)
{
    const std::string star = addImage(1'000, 0);
    ASSERT_TRUE(history.setFavourite(star, true));
    set("clipboard.maxCount", "2");
    set("clipboard.maxBytes", "1000");
    add("one", 1);
    addImage(600, 2);
    add("three", 3);
    EXPECT_THAT(listed(), ElementsAre("*Copied image", "three", "Copied image"));
    addImage(601, 4); // the two images together are beyond the budget
    EXPECT_THAT(listed(), ElementsAre("*Copied image", "Copied image", "three"));
    EXPECT_EQ(history.list()->at(1).entry.byteCount, 601);
    expectWholePairs();

    EXPECT_FALSE(history.add({.kind = image, .image = Bytes(1'001)}, after(5)));
    EXPECT_EQ(listed().size(), 3U);

    ASSERT_TRUE(history.applyRetention(after(30 * 86'400.0 + 3)));
    EXPECT_THAT(listed(), ElementsAre("*Copied image", "Copied image", "three"));
    ASSERT_TRUE(history.applyRetention(after(30 * 86'400.0 + 3.5)));
    EXPECT_THAT(listed(), ElementsAre("*Copied image", "Copied image"));
    ASSERT_TRUE(history.clear());
    EXPECT_THAT(listed(), ElementsAre("*Copied image"));
    expectWholePairs();
}

TEST_F(ClipboardHistoryTest, FindsWordsInTextsAndLinksWhateverTheirCase)
{
    add("Crème brûlée", 1);
    add(std::string(500, 'x') + " the needle", 2);
    ASSERT_TRUE(history.add({.kind = link, .text = "https://creme.example"}, after(3)));
    ASSERT_TRUE(history.add({.kind = files, .files = {{"creme.txt", {1}}}}, after(4)));
    add("creme sk_live_0123456789abcdef", 5);
    add("\u0623\u064E\u062D\u0645\u062F", 6); // with a hamza and a haraka
    EXPECT_THAT(displays(history.search("CREME")),
                ElementsAre("https://creme.example", "Crème brûlée"));
    EXPECT_EQ(displays(history.search("Needle")).size(), 1U);
    EXPECT_EQ(displays(history.search("\u0627\u062D\u0640\u0645\u062F")).size(), 1U);
    for (const char *const words : {"nothing", "hidden", "remove this"}) {
        EXPECT_THAT(displays(history.search(words)), IsEmpty()) << words;
    }
    ClipboardHistory other{store, fixedKey(2)};
    EXPECT_THAT(displays(other.search("cannot be opened")), IsEmpty());
    for (const char *const words : {"", " \n", "\u064E"}) {
        EXPECT_FALSE(history.search(words)) << words;
    }
}

TEST_F(ClipboardHistoryTest, FindsEntriesByTheBeginningOfTheirIds)
{
    ASSERT_TRUE(store.changeRecords(
        {.written = {
             contentRecord({.id = "AB1"}, *ClipboardCipher::seal({.text = "1"}, fixedKey())),
             contentRecord({.id = "AB12"},
                           *ClipboardCipher::seal({.text = "2"}, fixedKey()))}}));
    struct Case {
        const char *id;
        const char *found;
    };
    for (const auto &[id, found] :
         {Case{"AB1", "AB1"}, Case{"ab12", "AB12"}, Case{"ab", ""}, Case{"B", ""}}) {
        const auto entry = history.find(id);
        EXPECT_EQ(entry ? entry->id : "", found) << id;
    }
    ASSERT_TRUE(history.remove("AB1"));
    EXPECT_EQ(history.find("ab")->id, "AB12");
    expectWholePairs();
}

TEST_F(ClipboardHistoryTest, MakesUpForRowsThatAreMissingOrAlone)
{
    const std::string kept = add("kept", 1);
    const std::string lost = add("lost", 2);
    const std::string gone = add("gone", 3);
    ASSERT_TRUE(history.setFavourite(lost, true));
    LocalRecord broken = store.record(clipboardIndexId(kept)).value().value();
    broken.body = "{}";
    ASSERT_TRUE(store.changeRecords(
        {.written = {broken, {.id = "older", .kind = "clipboard", .body = "plain"}},
         .removed = {clipboardIndexId(lost), gone}}));
    EXPECT_THAT(listed(), ElementsAre("*lost", "kept", kUnreadable));
    EXPECT_EQ(history.find(kept)->createdAt, after(1));
    EXPECT_EQ(history.content("older").error().message, kUnreadable);
    ASSERT_TRUE(history.remove(history.find("old")->id));
    expectWholePairs();
    const auto revision = store.state().revision;
    EXPECT_EQ(listed().size(), 2U);
    EXPECT_EQ(store.state().revision, revision) << "a sound index is not written again";
}

TEST_F(ClipboardHistoryTest, SaysWhatCannotBeOpenedAndLosesNothing)
{
    const std::string picture = addImage(5, 2);
    const std::string line = add("text", 1);
    ASSERT_TRUE(store.changeRecords({.removed = {clipboardIndexId(line)}}));
    ClipboardHistory other{store, fixedKey(2)};
    EXPECT_THAT(displays(other.list()),
                ElementsAre("This saved image is damaged.", kUnreadable));
    EXPECT_EQ(other.content(picture).error().message, "This saved image is damaged.");
    EXPECT_FALSE(other.content(line));
    EXPECT_EQ(history.content("none").error().message, "This item was removed.");
    ASSERT_TRUE(other.setFavourite(line, true));
    EXPECT_THAT(listed(), ElementsAre("*text", "Copied image")) << "the right key is back";
}

TEST_F(ClipboardHistoryTest, KeepsTheFavouritesOfOtherBuilds)
{
    const auto markElsewhere = [&](const std::string &id) {
        LocalRecord record = store.record(id).value().value();
        record.extra["favorite"] = "true";
        ASSERT_TRUE(store.changeRecords({.written = {record}}));
    };
    markElsewhere(add("one", 1));
    add("two", 2);
    set("clipboard.maxCount", "1");
    add("three", 3);
    EXPECT_THAT(listed(), ElementsAre("*one", "three"));
    const std::string again = add("four", 4);
    markElsewhere(again);
    EXPECT_EQ(add("four", 5), again);
    EXPECT_THAT(listed(), ElementsAre("*four", "*one"));
    add("five", 6);
    ASSERT_TRUE(store.changeRecords(
        {.written = {{.id = "A", .kind = "clipboard"},
                     {.id = "B", .kind = "clipboard", .extra = {{"favorite", "true"}}}}}));
    ASSERT_TRUE(history.clear());
    EXPECT_THAT(listed(), ElementsAre("*four", "*one", std::string{"*"} + kUnreadable));
}

TEST_F(ClipboardHistoryTest, TakesWhatIsNewWhateverTheClockSaidBefore)
{
    set("clipboard.maxCount", "1");
    add("ahead", 300 * 86'400.0);
    add("now", 1);
    EXPECT_THAT(listed(), ElementsAre("now"));
    add("same time", 1);
    EXPECT_THAT(listed(), ElementsAre("same time"));
}

TEST_F(ClipboardHistoryTest, LeavesNoTraceOfTheContentOnTheDisk)
{
    const std::string secret = "correct horse battery staple 4711";
    const std::string id = add(secret, 1);
    add("filler so that there is a log", 2);
    ASSERT_EQ(displays(history.search("battery")).size(), 1U);
    ASSERT_TRUE(history.setFavourite(id, true));
    const auto traces = [&](const std::string &wanted) {
        int count = 0;
        for (const auto &file : std::filesystem::recursive_directory_iterator{folder.path()}) {
            count += Base::readFile(file.path())->contains(wanted) ? 1 : 0;
        }
        return count;
    };
    const auto base64 = Base::toBase64(Bytes{secret.begin(), secret.end()});
    EXPECT_GE(traces(id), 1) << "what is there is found";
    EXPECT_TRUE(std::filesystem::exists(folder.path() / "kest.sqlite-wal"));
    for (const std::string &trace : {secret, std::string{"battery"}, base64.substr(0, 40)}) {
        EXPECT_EQ(traces(trace), 0) << trace;
    }
    ASSERT_TRUE(history.remove(id));
    EXPECT_EQ(traces("battery"), 0);
}

} // namespace KestCoreTests
