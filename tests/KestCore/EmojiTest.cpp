// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/Emoji.h"

#include "Base/Text.h"
#include "KestCore/Tools/RecentEmoji.h"
#include "KestCore/Tools/Texts.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

namespace KestCoreTests
{

using namespace KestCore;

namespace
{

const Base::Instant kNow = Base::fromSeconds1970(1'800'000'000);
constexpr double kDay = 24 * 3600;

std::vector<std::string_view> found(std::string_view query, std::size_t limit = 1000)
{
    std::vector<std::string_view> texts;
    for (const Emoji *emoji : searchEmoji(query, limit)) {
        texts.push_back(emoji->text);
    }
    return texts;
}

std::string toned(std::string_view text, SkinTone tone)
{
    return withTone(*emojiOf(text)->emoji, tone);
}

// Signs that turn the direction of what stands behind them.
bool turnsDirection(std::string_view text)
{
    return std::ranges::any_of(codePointsOf(text), [](char32_t sign) {
        return (sign >= 0x202A && sign <= 0x202E) || (sign >= 0x2066 && sign <= 0x2069) ||
               sign == 0x200E || sign == 0x200F || sign == 0x061C;
    });
}

bool hasLetters(std::string_view words, bool arabic)
{
    return std::ranges::any_of(words, [&](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return arabic ? byte >= 0xD8 && byte <= 0xDB : c >= 'a' && c <= 'z';
    });
}

// The records after these uses, each of an emoji at so many seconds from now.
std::vector<LocalRecord> used(const std::vector<std::pair<std::string, double>> &uses)
{
    std::vector<LocalRecord> records;
    for (const auto &[emoji, seconds] : uses) {
        const auto changes = usingEmoji(records, emoji, kNow + Base::Seconds{seconds});
        for (const LocalRecord &written : changes->written) {
            std::erase_if(records, [&](const auto &old) { return old.id == written.id; });
            records.push_back(written);
        }
        std::erase_if(records, [&](const LocalRecord &record) {
            return std::ranges::find(changes->removed, record.id) != changes->removed.end();
        });
    }
    return records;
}

} // namespace

TEST(Emoji, TheListIsWhole)
{
    std::set<std::string_view> texts;
    std::size_t withTones = 0;
    for (const Emoji &emoji : allEmoji()) {
        SCOPED_TRACE(emoji.text);
        EXPECT_TRUE(texts.insert(emoji.text).second);
        EXPECT_EQ(emojiOf(emoji.text)->emoji, &emoji);
        EXPECT_EQ(emojiOf(emoji.text)->text, emoji.text);
        EXPECT_TRUE(hasLetters(emoji.words, false));
        EXPECT_TRUE(hasLetters(emoji.arabicWords, true));
        for (const auto &[words, name] :
             {std::pair{emoji.words, emoji.name}, {emoji.arabicWords, emoji.arabicName}}) {
            // The list is made by another program; both must fold words in the same way.
            EXPECT_FALSE(turnsDirection(name) || turnsDirection(words));
            const auto pieces = Base::split(words, '|');
            EXPECT_EQ(pieces.front(), emojiSearchForm(name));
            for (const std::string_view word : pieces) {
                EXPECT_EQ(emojiSearchForm(word), word);
            }
        }
        if (!emoji.toned.empty()) {
            ++withTones;
            const auto known = emojiOf(withTone(emoji, SkinTone::mediumDark));
            EXPECT_EQ(known->emoji, &emoji);
            EXPECT_EQ(known->text, withTone(emoji, SkinTone::mediumDark));
        }
    }
    EXPECT_GT(texts.size(), 1800U);
    EXPECT_GT(withTones, 300U);
}

TEST(Emoji, TonesGoToEachPersonAndToNothingElse)
{
    using enum SkinTone;
    for (const auto &[text, tone, expected] :
         std::initializer_list<std::tuple<const char *, SkinTone, const char *>>{
             {"\U0001F44D", dark, "\U0001F44D\U0001F3FF"},
             {"\U0001F44D", none, "\U0001F44D"},
             {"\u261D\uFE0F", light, "\u261D\U0001F3FB"},
             {"\U0001F575\uFE0F\u200D\u2640\uFE0F", medium,
              "\U0001F575\U0001F3FD\u200D\u2640\uFE0F"},
             {"\U0001F9D1\u200D\U0001F91D\u200D\U0001F9D1", mediumLight,
              "\U0001F9D1\U0001F3FC\u200D\U0001F91D\u200D\U0001F9D1\U0001F3FC"},
             {"\U0001F46B", mediumDark, "\U0001F46B\U0001F3FE"},
             {"\U0001F355", dark, "\U0001F355"},
             {"\U0001F468\u200D\U0001F469\u200D\U0001F467", dark,
              "\U0001F468\u200D\U0001F469\u200D\U0001F467"},
         }) {
        EXPECT_EQ(toned(text, tone), expected);
    }
    EXPECT_EQ(chosenTone({{"emoji.skinTone", "medium-dark"}}), mediumDark);
    EXPECT_EQ(chosenTone({{"emoji.skinTone", "green"}}), none);
    EXPECT_EQ(chosenTone({}), none);
}

TEST(Emoji, AreKnownInOneFormWhateverTheTone)
{
    // A woman and a man, a kiss, and two people, each of two tones.
    const std::string mixed = "\U0001F469\U0001F3FB\u200D\U0001F91D\u200D\U0001F468\U0001F3FF";
    const std::string kiss = "\U0001F9D1\U0001F3FB\u200D\u2764\uFE0F\u200D\U0001F48B\u200D"
                             "\U0001F9D1\U0001F3FE";
    const std::string pair = "\U0001F9D1\U0001F3FE\u200D\U0001F91D\u200D\U0001F9D1\U0001F3FB";
    for (const auto &[text, name, form] :
         std::initializer_list<std::tuple<std::string, const char *, std::string>>{
             {"\u2764", "red heart", "\u2764\uFE0F"},
             {"\u261D\uFE0F\U0001F3FE", "index pointing up", "\u261D\U0001F3FE"},
             {mixed, "woman and man holding hands", mixed},
             {"\U0001F469\U0001F3FB\u200D\U0001F91D\u200D\U0001F468\U0001F3FB",
              "woman and man holding hands", "\U0001F46B\U0001F3FB"},
             {"\U0001F469\u200D\U0001F91D\u200D\U0001F468", "woman and man holding hands",
              "\U0001F46B"},
             {kiss, "kiss", kiss},
             {pair, "people holding hands", pair},
             {"\U0001F1F8\U0001F1E6", "flag: Saudi Arabia", "\U0001F1F8\U0001F1E6"},
         }) {
        const auto known = emojiOf(text);
        ASSERT_TRUE(known) << text;
        EXPECT_EQ(known->emoji->name, name);
        EXPECT_EQ(known->text, form);
    }
}

TEST(Emoji, NothingElseIsOne)
{
    for (const char *text : {"", "x", "\uFE0F", "\U0001F3FB", "\U0001F355\U0001F3FB",
                             "\U0001F355\U0001F355", "\U0001F1F8",
                             // Two tones on a thumb, one before it, and one for two people.
                             "\U0001F44D\U0001F3FB\U0001F3FB", "\U0001F3FB\U0001F44D",
                             "\U0001F469\U0001F3FB\u200D\U0001F91D\u200D\U0001F468",
                             "\U0001F46B\U0001F3FB\U0001F3FC"}) {
        EXPECT_FALSE(emojiOf(text)) << text;
    }
}

TEST(Emoji, AreFoundInBothLanguagesTheBestFirst)
{
    for (const auto &[query, first] :
         std::initializer_list<std::pair<const char *, const char *>>{
             {"mosque", "\U0001F54C"},
             {":thumbs_up:", "\U0001F44D"},
             {"+1", "\U0001F44D"},
             {"RED  heart", "\u2764\uFE0F"},
             {"\u0645\u064E\u0633\u0652\u062C\u0650\u062F", "\U0001F54C"},
             {"\u0627\u0644\u0645\u0633\u062C\u062F", "\U0001F54C"},
             {"\u0645\u0635\u0627\u0641\u062D\u0647", "\U0001F91D"},
             {"saudi", "\U0001F1F8\U0001F1E6"},
             {"palms prayer", "\U0001F932"},
         }) {
        EXPECT_EQ(found(query, 1), std::vector<std::string_view>{first}) << query;
    }
    const auto cats = found("cat");
    const auto placeOf = [&](std::string_view emoji) {
        return std::ranges::find(cats, emoji) - cats.begin();
    };
    const std::string_view exact = "\U0001F408";     // cat
    const std::string_view wordStart = "\U0001F63A"; // "grinning cat", by the keyword cat
    const std::string_view inside = "\U0001F393";    // "graduation cap": edu-cat-ion
    EXPECT_EQ(placeOf(exact), 0);
    EXPECT_LT(placeOf(wordStart), placeOf(inside));
    EXPECT_TRUE(found("").empty());
    EXPECT_TRUE(found(":_:").empty());
    EXPECT_TRUE(found("|").empty());
    EXPECT_EQ(found("cat|face", 5), found("cat face", 5));
    EXPECT_TRUE(found("qwxzy").empty());
    EXPECT_TRUE(found("cat qwxzy").empty());
}

TEST(Emoji, ABrokenListIsRefusedByItsLine)
{
    for (const char *line : {"", "x", "x\tn\ta\tw", "x\tn\ta\tw\tv\tno tone", "x\tn\t\tw\tv",
                             "x\tn\ta\tw\tv\t\U0001F44D\U0001F3FB\ty\tz"}) {
        EXPECT_EQ(parseEmoji(std::string{"# a\n#\n"} + line + "\n").error().message,
                  std::string{"bad line 3: \""} + line + "\"");
    }
}

TEST(RecentEmoji, WeighUsesAgainstTime)
{
    const std::string pizza = "\U0001F355";
    const std::string thumb = "\U0001F44D\U0001F3FD";
    const std::string cat = "\U0001F408";
    // Three uses three weeks ago weigh less than one today; two a day ago weigh more.
    const auto records = used({{pizza, -21 * kDay},
                               {pizza, -21 * kDay},
                               {pizza, -21 * kDay},
                               {cat, -kDay},
                               {cat, -kDay},
                               {thumb, -60}});
    const auto recent = recentEmoji(records, kNow, 10);
    ASSERT_EQ(recent.size(), 3U);
    EXPECT_EQ(recent[0].emoji, cat);
    EXPECT_EQ(recent[1], (RecentEmoji{thumb, 1, kNow - Base::Seconds{60}}));
    EXPECT_EQ(recent[2].uses, 3);
    EXPECT_EQ(recentEmoji(records, kNow, 2).size(), 2U);
    EXPECT_FALSE(usingEmoji(records, "pizza", kNow));
    // From a clock that ran ahead: no more than its one use.
    EXPECT_EQ(recentEmoji(used({{cat, 0}, {cat, 0}, {thumb, 90 * kDay}}), kNow, 1)[0].emoji,
              cat);
}

// The groups follow one another without a gap, and each begins where its own kind does.
TEST(EmojiGroups, HoldEachEmojiOnce)
{
    std::size_t counted = 0;
    for (const auto &[group, text] : enumTexts(Base::Of<EmojiGroup>{})) {
        const auto emoji = emojiOfGroup(group);
        ASSERT_FALSE(emoji.empty()) << text;
        EXPECT_EQ(emoji.data(), allEmoji().data() + counted) << text;
        counted += emoji.size();
    }
    EXPECT_EQ(counted, allEmoji().size());
    EXPECT_EQ(emojiOfGroup(EmojiGroup::food).front().name, "grapes");
    EXPECT_EQ(emojiOfGroup(EmojiGroup::objects).front().name, "glasses");
}

TEST(RecentEmoji, TheLeastUsedOfManyAreForgotten)
{
    std::vector<std::pair<std::string, double>> uses{{"\U0001F408", -9 * kDay}};
    for (int at = 0; at < 110; ++at) {
        uses.emplace_back(allEmoji()[static_cast<std::size_t>(at)].text, at);
    }
    uses.emplace_back(allEmoji()[109].text, 110); // of which nothing has to go
    const auto records = used(uses);
    EXPECT_EQ(records.size(), 100U);
    EXPECT_EQ(recentEmoji(records, kNow, 1)[0].emoji, allEmoji()[109].text);
    EXPECT_TRUE(std::ranges::none_of(
        records, [](const LocalRecord &record) { return record.title == "cat"; }));
}

TEST(RecentEmoji, APinnedOneStandsFirstAndIsNotForgotten)
{
    const std::string cat = "\U0001F408";
    auto records = pinningEmoji({}, cat, kNow - Base::Seconds{400 * kDay})->written;
    EXPECT_TRUE(recentEmoji(records, kNow, 1)[0].isPinned);
    for (int at = 0; at < 110; ++at) {
        const auto changes =
            usingEmoji(records, allEmoji()[static_cast<std::size_t>(at)].text, kNow);
        std::erase_if(records, [&](const LocalRecord &record) {
            return std::ranges::find(changes->removed, record.id) != changes->removed.end();
        });
        records.push_back(changes->written.front());
    }
    EXPECT_EQ(recentEmoji(records, kNow, 1)[0].emoji, cat);
    const auto loose = pinningEmoji(records, cat, kNow)->written;
    EXPECT_FALSE(recentEmoji(loose, kNow, 1)[0].isPinned);
    EXPECT_EQ(loose[0].id, records[0].id);
    EXPECT_FALSE(pinningEmoji(records, "pizza", kNow));
}

TEST(RecentEmoji, OneEmojiIsOneHoweverItIsWritten)
{
    const auto one = recentEmoji(used({{"\u2764", -1}, {"\u2764\uFE0F", 0}}), kNow, 9);
    EXPECT_EQ(one, (std::vector<RecentEmoji>{{"\u2764\uFE0F", 2, kNow}}));

    // What was kept in two forms comes together.
    const auto kept = [](const char *id, const char *body) {
        return LocalRecord{.id = id, .kind = "emoji", .title = "t", .body = body};
    };
    const auto changes = usingEmoji(
        std::vector{kept("1", R"({"emoji":"\u2764","uses":3})"), kept("2", "?"),
                    kept("3", R"({"emoji":"\u2764\ufe0f","uses":9223372036854775807})")},
        "\u2764", kNow);
    EXPECT_EQ(changes->removed, std::vector<std::string>{"3"});
    ASSERT_EQ(changes->written.size(), 1U);
    EXPECT_EQ(changes->written[0].id, "1");
    EXPECT_EQ(recentEmoji(changes->written, kNow, 9)[0].uses, 9223372036854775807);
}

} // namespace KestCoreTests
