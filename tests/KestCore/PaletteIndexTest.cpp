// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Surfaces/PaletteIndex.h"

#include "KestCore/Devotional/Content.h"
#include "KestCore/Surfaces/PaletteUses.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace
{

using namespace KestCore;

constexpr std::array kTitles{
    "Sunrise",    "sun",          "Groceries for Sunday", "Resume Stopwatch",
    "Timers",     "Prayer",       "Focus timer",          "Al-Quddūs",
    "سُبْحَانَ ٱللَّهِ", "Qurʾan notes", "sunset over the bay",  "Appearance",
};

PaletteIndex sampleIndex()
{
    PaletteIndex index;
    for (const char *title : kTitles) {
        const std::vector<std::string> names = std::string_view{title} == "Appearance"
                                                   ? std::vector<std::string>{"المظهر"}
                                                   : std::vector<std::string>{};
        index.add(
            {.title = title,
             .names = names,
             .keywords = std::string_view{title} == "Appearance" ? "theme dark colour" : ""});
    }
    return index;
}

std::vector<std::string> found(PaletteIndex &index, std::string_view query)
{
    std::vector<std::string> titles;
    for (const PaletteMatch &match : index.search(query)) {
        titles.emplace_back(kTitles.at(match.item));
    }
    return titles;
}

TEST(PaletteIndex, RanksExactBeforePrefixBeforeWordBeforeLetters)
{
    PaletteIndex index = sampleIndex();
    using Titles = std::vector<std::string>;
    const struct {
        const char *query;
        Titles titles;
    } cases[] = {
        {"sun", {"sun", "Sunrise", "sunset over the bay", "Groceries for Sunday"}},
        {"su",
         {"sun", "Sunrise", "sunset over the bay", "Groceries for Sunday", "Resume Stopwatch"}},
        {"SÛN", {"sun", "Sunrise", "sunset over the bay", "Groceries for Sunday"}},
        {"timer", {"Timers", "Focus timer"}},
        {"quddus", {"Al-Quddūs"}},
        {"al quddus", {"Al-Quddūs"}},
        {"quran", {"Qurʾan notes"}},
        {"notes quran", {"Qurʾan notes"}},
        {"سبحان", {"سُبْحَانَ ٱللَّهِ"}},
        {"المظهر", {"Appearance"}},
        {"dark", {"Appearance"}},
        {"ark", {}}, // a keyword counts from its beginning only
        {"prayr", {"Prayer"}},
        {"gfs", {"Groceries for Sunday"}},
        {"zqx", {}},
        {"", {}},
        {" - ", {}},
    };
    for (const auto &[query, titles] : cases) {
        SCOPED_TRACE(query);
        EXPECT_EQ(found(index, query), titles);
    }
}

TEST(PaletteIndex, PutsWhatIsChosenOftenFirstButNeverBeforeABetterFit)
{
    PaletteIndex index = sampleIndex();
    index.setWeight(10, 3); // "sunset over the bay"
    index.setWeight(2, 900);
    EXPECT_EQ(found(index, "sun"),
              (std::vector<std::string>{"sun", "sunset over the bay", "Sunrise",
                                        "Groceries for Sunday"}));
    index.setWeight(10, 0);
    EXPECT_EQ(found(index, "sun")[1], "Sunrise");
}

TEST(PaletteIndex, ForgetsWhatWasTruncatedAndTakesNewThings)
{
    PaletteIndex index = sampleIndex();
    index.truncate(2);
    EXPECT_EQ(index.size(), 2U);
    EXPECT_EQ(found(index, "timers").size(), 0U);
    EXPECT_EQ(index.add({.title = "Timers"}), 2U);
    EXPECT_EQ(index.search("timers").size(), 1U);
}

// Whatever is typed, it finds the same as a plain look at every title would.
TEST(PaletteIndex, FindsEveryTitleThatHasTheLettersInOnePiece)
{
    PaletteIndex index;
    std::vector<std::string> titles;
    std::mt19937 random{7};
    for (int item = 0; item < 3000; ++item) {
        std::string title;
        for (auto letters = 3 + random() % 20; letters > 0; --letters) {
            title += "abcde "[random() % 6];
        }
        titles.push_back(paletteForm(title));
        index.add({.title = title});
    }
    for (int round = 0; round < 300; ++round) {
        std::string query;
        for (unsigned letters = 1 + random() % 4; letters > 0; --letters) {
            query += "abcde"[random() % 5];
        }
        std::vector<bool> isFound(titles.size());
        PaletteFit before{};
        for (const PaletteMatch &match : index.search(query)) {
            isFound[match.item] = match.fit <= PaletteFit::inside;
            EXPECT_LE(before, match.fit);
            before = match.fit;
            const bool isExact = match.fit == PaletteFit::exact;
            EXPECT_EQ(isExact, titles[match.item] == query);
        }
        for (std::size_t item = 0; item < titles.size(); ++item) {
            EXPECT_EQ(isFound[item], titles[item].contains(query)) << titles[item] << query;
        }
    }
}

TEST(PaletteIndex, MarksWhatAnswersInTheTitleAsItIsWritten)
{
    const struct {
        const char *title;
        const char *query;
        const char *marked;
    } cases[] = {
        {"Subḥāna llāh", "subhana", "[Subḥāna] llāh"},
        {"Subḥāna llāh", "hana", "Sub[ḥāna] llāh"},
        {"Groceries for Sunday", "sun", "Groceries for [Sun]day"},
        {"Al-Quddūs", "al qu", "[Al-Qu]ddūs"},
        {"Focus timer", "timer foc", "[Foc]us [timer]"},
        {"Prayer", "prayr", "[Pray]e[r]"},
        {"سُبْحَانَ ٱللَّهِ", "سبح", "[سُبْحَانَ] ٱللَّهِ"},
        {"Units", "zz", "Units"},
        {"Units", "", "Units"},
    };
    for (const auto &[title, query, marked] : cases) {
        std::string text = title;
        auto spans = matchedSpans(title, query);
        for (auto span = spans.rbegin(); span != spans.rend(); ++span) {
            text.insert(span->begin + span->size, "]").insert(span->begin, "[");
        }
        EXPECT_EQ(text, marked) << query;
    }
}

// The marks must never cut a character in two, whatever is typed at whatever title.
TEST(PaletteIndex, MarksWholeCharacters)
{
    for (const Phrase &phrase : contentCatalogue().names) {
        for (const std::string &title : {phrase.arabic, phrase.transliteration}) {
            for (const char *query : {"a", "al", "ar", "ال", "ح", "r m", "mlk"}) {
                for (const PaletteSpan &span : matchedSpans(title, query)) {
                    ASSERT_LE(span.begin + span.size, title.size());
                    ASSERT_GT(span.size, 0U);
                    EXPECT_NE(static_cast<unsigned char>(title[span.begin]) & 0xC0U, 0x80U);
                    EXPECT_NE(
                        static_cast<unsigned char>((title + '.')[span.begin + span.size]) &
                            0xC0U,
                        0x80U);
                }
            }
        }
    }
}

constexpr Base::Instant kNow{Base::Seconds{1'763'125'560.0}};

TEST(PaletteUses, WeighsLessAsTimePassesAndForgetsTheLightest)
{
    std::string setting = "nonsense that an older build has left";
    for (int use = 0; use < 3; ++use) {
        setting = withPaletteUse(setting, "tool:prayer", kNow).value();
    }
    ASSERT_EQ(readPaletteUses(setting).size(), 1U);
    const PaletteUse prayer = readPaletteUses(setting).front();
    EXPECT_DOUBLE_EQ(weightAt(prayer, kNow), 3);
    EXPECT_NEAR(weightAt(prayer, kNow + Base::Seconds{14 * 86'400.0}), 1.5, 1e-9);
    EXPECT_DOUBLE_EQ(weightAt(prayer, kNow - Base::Seconds{86'400.0}), 3); // a clock set back

    for (int other = 0; other < 300; ++other) {
        setting = withPaletteUse(setting, "note:" + std::to_string(other), kNow).value();
    }
    const auto uses = readPaletteUses(setting);
    EXPECT_EQ(uses.size(), kMostPaletteUses);
    EXPECT_EQ(uses.front().key, "note:299"); // new, so it is given its chance
    EXPECT_EQ(uses[1].key, "tool:prayer");
}

} // namespace
