// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Devotional/Content.h"
#include "KestCore/Models/DevotionalState.h"

#include <gmock/gmock.h>
#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <array>
#include <regex>
#include <set>

namespace KestCoreTests
{

using namespace KestCore;

namespace
{

constexpr char32_t kSukun = 0x0652;
constexpr char32_t kShadda = 0x0651;
constexpr char32_t kDamma = 0x064F;
constexpr char32_t kKasra = 0x0650;

std::vector<Phrase> allPhrases()
{
    auto all = contentCatalogue().dhikr;
    all.insert(all.end(), contentCatalogue().names.begin(), contentCatalogue().names.end());
    return all;
}

std::u32string codePoints(std::string_view text)
{
    const auto utf16 = icu::UnicodeString::fromUTF8(text);
    std::u32string all;
    for (std::int32_t at = 0; at < utf16.length(); at = utf16.moveIndex32(at, 1)) {
        all += static_cast<char32_t>(utf16.char32At(at));
    }
    return all;
}

bool isMark(char32_t c) { return (c >= 0x064B && c <= kSukun) || c == 0x0670; }

// Tells how a consonant is said: fatha, damma, kasra, their doubled forms, or sukun.
bool isHaraka(char32_t c) { return isMark(c) && c != kShadda && c != 0x0670; }

struct Letter {
    char32_t base{};
    std::u32string marks{};

    bool has(char32_t mark) const { return marks.contains(mark); }
    bool isVoiced() const { return std::ranges::any_of(marks, isHaraka); }
};

std::vector<Letter> lettersOf(std::u32string_view word)
{
    std::vector<Letter> letters;
    for (const char32_t c : word) {
        if (!isMark(c)) {
            letters.push_back({.base = c});
        } else if (!letters.empty()) {
            letters.back().marks += c;
        }
    }
    return letters;
}

// A waw behind a damma and a ya behind a kasra may be read as long vowels.
bool mayBeLong(const std::vector<Letter> &letters, std::size_t at)
{
    const Letter &letter = letters[at];
    return at > 0 && ((letter.base == U'\u0648' && letters[at - 1].has(kDamma)) ||
                      (letter.base == U'\u064A' && letters[at - 1].has(kKasra)));
}

// Letters that may stand bare: the alefs, long vowels, and the article's lam that is
// assimilated to the doubled letter behind it.
bool mayBeBare(const std::vector<Letter> &letters, std::size_t at)
{
    constexpr std::u32string_view kAlefs = U"\u0627\u0671\u0649\u0622";
    const Letter &letter = letters[at];
    const bool isAssimilated = letter.base == U'\u0644' && at > 0 && at + 1 < letters.size() &&
                               letters[at - 1].base == U'\u0671' &&
                               letters[at + 1].has(kShadda);
    return letter.marks.empty() &&
           (kAlefs.contains(letter.base) || mayBeLong(letters, at) || isAssimilated);
}

std::vector<std::u32string> wordsOf(std::string_view text)
{
    std::vector<std::u32string> words(1);
    for (const char32_t c : codePoints(text)) {
        if (c == U' ' || c == U'\u060C') {
            words.emplace_back();
        } else {
            words.back() += c;
        }
    }
    std::erase_if(words, [](const auto &word) { return word.empty(); });
    return words;
}

bool isVocalised(std::u32string_view word)
{
    const auto letters = lettersOf(word);
    for (std::size_t at = 0; at < letters.size(); ++at) {
        if (!letters[at].isVoiced() && !mayBeBare(letters, at)) {
            return false;
        }
    }
    return !letters.empty();
}

// Whether the mark may go without a reader noticing: the letter would pass as a long vowel.
bool hidesALongVowel(std::u32string_view word, std::size_t mark)
{
    const auto letters = lettersOf(word.substr(0, mark + 1));
    return letters.back().marks.size() == 1 && mayBeLong(letters, letters.size() - 1);
}

} // namespace

TEST(Catalogue, HoldsNinetyNineNamesAndTheStarterCollection)
{
    EXPECT_EQ(contentCatalogue().names.size(), 99U);
    EXPECT_GE(contentCatalogue().dhikr.size(), 40U);
    EXPECT_FALSE(contentCatalogue().version.empty());
    std::set<std::string> ids;
    std::set<std::string> texts;
    const std::regex id{"[a-z]+(-[a-z]+)*"};
    for (const Phrase &phrase : allPhrases()) {
        EXPECT_TRUE(ids.insert(phrase.id).second) << phrase.id;
        EXPECT_TRUE(texts.insert(phrase.arabic).second) << phrase.id;
        EXPECT_TRUE(std::regex_match(phrase.id, id)) << phrase.id;
    }
}

TEST(Catalogue, HasEveryFieldAsComposedText)
{
    UErrorCode status = U_ZERO_ERROR;
    const auto &nfc = *icu::Normalizer2::getNFCInstance(status);
    for (const Phrase &phrase : allPhrases()) {
        for (const std::string &field :
             {phrase.arabic, phrase.transliteration, phrase.translation.value_or(""),
              phrase.meaning.value_or(""), phrase.source, phrase.sourceUrl.value_or("")}) {
            EXPECT_FALSE(field.empty() || field.front() == ' ' || field.back() == ' ')
                << phrase.id;
            EXPECT_FALSE(field.contains("  ")) << phrase.id << ": " << field;
            EXPECT_TRUE(nfc.isNormalizedUTF8(field, status)) << phrase.id << ": " << field;
        }
    }
    EXPECT_TRUE(U_SUCCESS(status));
}

TEST(Catalogue, VocalisesEveryWord)
{
    for (const Phrase &phrase : allPhrases()) {
        for (const char32_t c : codePoints(phrase.arabic)) {
            EXPECT_TRUE(c == U' ' || c == U'\u060C' || (c >= 0x0621 && c <= 0x064A) ||
                        c == 0x0671 || isMark(c))
                << phrase.id << " has U+" << std::hex << static_cast<std::uint32_t>(c);
        }
        for (const std::u32string &word : wordsOf(phrase.arabic)) {
            EXPECT_TRUE(isVocalised(word)) << phrase.id << ": " << phrase.arabic;
        }
    }
}

// The rule above is worth something only if it sees a single mark that went missing.
TEST(Catalogue, WouldMissAnyHarakaThatWentAstray)
{
    std::size_t marks = 0;
    std::size_t hidden = 0;
    for (const Phrase &phrase : allPhrases()) {
        for (const std::u32string &word : wordsOf(phrase.arabic)) {
            for (std::size_t at = 0; at < word.size(); ++at) {
                if (!isHaraka(word[at])) {
                    continue;
                }
                ++marks;
                std::u32string stripped = word;
                stripped.erase(at, 1);
                if (isVocalised(stripped)) {
                    ++hidden;
                    EXPECT_TRUE(hidesALongVowel(word, at)) << phrase.id << " " << phrase.arabic;
                }
            }
        }
    }
    EXPECT_GT(marks, 1500U);
    EXPECT_LT(hidden * 50, marks);
}

TEST(Catalogue, LinksToTheSourceThatItNames)
{
    struct Collection {
        std::string_view name;
        std::string_view address;
    };
    constexpr std::array kCollections{
        Collection{"Qur\u02BEan", "https://quran.com/"},
        Collection{"\u1E62a\u1E25\u012B\u1E25 al-Bukh\u0101r\u012B",
                   "https://sunnah.com/bukhari:"},
        Collection{"\u1E62a\u1E25\u012B\u1E25 Muslim", "https://sunnah.com/muslim:"},
        Collection{"J\u0101mi\u02BF at-Tirmidh\u012B", "https://sunnah.com/tirmidhi:"},
        Collection{"Sunan Ab\u012B D\u0101w\u016Bd", "https://sunnah.com/abudawud:"},
        Collection{"Sunan Ibn M\u0101ja", "https://sunnah.com/ibnmajah:"},
    };
    const std::regex place{R"( (\d+)(:(\d+)(–(\d+))?)?( \((in part|as a verb)\))?)"};
    const std::regex link{R"((\d+)[a-z]?(/(\d+)(-(\d+))?)?)"};
    for (const Phrase &phrase : allPhrases()) {
        SCOPED_TRACE(phrase.id + ": " + phrase.source);
        const auto *const at =
            std::ranges::find_if(kCollections, [&](const Collection &collection) {
                return phrase.source.starts_with(std::string{collection.name} + " ");
            });
        ASSERT_NE(at, kCollections.end());
        ASSERT_TRUE(phrase.sourceUrl.value().starts_with(at->address));
        std::smatch named;
        std::smatch linked;
        const std::string where = phrase.source.substr(at->name.size());
        const std::string path = phrase.sourceUrl->substr(at->address.size());
        ASSERT_TRUE(std::regex_match(where, named, place));
        ASSERT_TRUE(std::regex_match(path, linked, link));
        for (const std::size_t number : {1U, 3U, 5U}) {
            EXPECT_EQ(named[number], linked[number]) << path;
        }
        EXPECT_EQ(named[3].matched, at == kCollections.begin());
    }
}

TEST(Catalogue, GivesTheFirstRunAStateThatKeepsEveryRule)
{
    const DevotionalState &state = defaultDevotionalState();
    EXPECT_TRUE(validate(state));
    EXPECT_EQ(state.session.count, 0);
    EXPECT_TRUE(state.session.history.empty() && state.records.empty());
    EXPECT_FALSE(state.session.startedAt || state.pausedUntil || state.migrated);
}

} // namespace KestCoreTests
