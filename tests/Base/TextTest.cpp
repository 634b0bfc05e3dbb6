// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/Text.h"

#include <gmock/gmock.h>
#include <unicode/locid.h>

#include <cstdlib>

namespace BaseTests
{

namespace
{

std::string foldedIn(const char *language, std::string_view text)
{
    const icu::Locale before = icu::Locale::getDefault();
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale::setDefault(icu::Locale{language}, status);
    auto folded = Base::foldCaseAndDiacritics(text);
    icu::Locale::setDefault(before, status);
    return folded;
}

} // namespace

TEST(Text, CountsCodePoints)
{
    EXPECT_EQ(Base::countCodePoints(""), 0U);
    EXPECT_EQ(Base::countCodePoints("abc"), 3U);
    EXPECT_EQ(Base::countCodePoints("\u00E9\u0627\u064B"), 3U);
    EXPECT_EQ(Base::countCodePoints("\U0001F468\u200D\U0001F466"), 3U);
}

TEST(Text, FoldsByTheRulesOfTheLanguage)
{
    struct Case {
        const char *language;
        std::string_view text;
        std::string_view folded;
    };
    for (const auto &[language, text, folded] : {
             Case{"en", "\u1E62a\u1E25\u012B\u1E25 AL-Bukh\u0101r\u012B", "sahih al-bukhari"},
             Case{"en", "e\u0301 = \u00C9", "e = e"},
             Case{"en", "STRASSE Stra\u00DFe", "strasse strasse"},
             Case{"en", "\u0391\u0392\u03A3", "\u03B1\u03B2\u03C3"},
             Case{"en", "I \u0130 i", "i i i"},
             Case{"tr", "I \u0130 i \u0131", "\u0131 i i \u0131"},
             Case{"az", "I", "\u0131"},
             Case{"en", "\u0628\u0650\u0633\u0652\u0645\u0650 \u0623",
                  "\u0628\u0633\u0645 \u0627"},
             Case{"en", "\uD55C\uAE00", "\uD55C\uAE00"},
             Case{"en", "\U0001F4FF", "\U0001F4FF"},
             Case{"en", "", ""},
         }) {
        EXPECT_EQ(foldedIn(language, text), folded) << language << " " << text;
    }
}

// ICU reads the environment once, so each setting is looked at in a process of its own.
TEST(TextDeathTest, TakesTheLanguageFromTheEnvironment)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    for (const char *variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        SCOPED_TRACE(variable);
        EXPECT_EXIT(
            {
                for (const char *other : {"LC_ALL", "LC_CTYPE", "LC_MESSAGES", "LANG"}) {
                    ::unsetenv(other);
                }
                ::setenv(variable, "tr_TR.UTF-8", 1);
                ::_exit(Base::foldCaseAndDiacritics("I") == "\u0131" ? 0 : 1);
            },
            testing::ExitedWithCode(0), "");
    }
}

TEST(Text, SplitsAtEverySeparator)
{
    using Pieces = std::vector<std::string_view>;
    EXPECT_EQ(Base::split("", ','), Pieces{""});
    EXPECT_EQ(Base::split("a", ','), Pieces{"a"});
    EXPECT_EQ(Base::split("a,,b", ','), (Pieces{"a", "", "b"}));
    EXPECT_EQ(Base::split(",a,", ','), (Pieces{"", "a", ""}));
}

TEST(Text, NothingPrintableActsOnTheTerminal)
{
    struct Case {
        std::string_view text;
        std::string_view shown;
    };
    for (const auto &[text, shown] : {
             Case{"\x1b[2J\r\a\x7f", "\u00B7[2J\u00B7\u00B7\u00B7"},
             Case{"\u009B2J \u0085", "\u00B72J \u00B7"},
             Case{"a\u2028b\u2029", "a\u00B7b\u00B7"},
             Case{"\u202Aa\u202E \u2066b\u2069", "\u00B7a\u00B7 \u00B7b\u00B7"},
             Case{"\u0642\u0627\u0644\u200F:\u200D\u061C", // marks of direction, a joiner
                  "\u0642\u0627\u0644\u200F:\u200D\u061C"},
             Case{"\xC2\x9B", "\u00B7"},
             Case{"a\x9B\xE2\x80", "a\uFFFD\uFFFD"},
             Case{"\U0001F54C\u00A0", "\U0001F54C\u00A0"},
             Case{"", ""},
         }) {
        EXPECT_EQ(Base::printable(text), shown);
        EXPECT_EQ(Base::printable(text, Base::Layout::kept), shown);
    }
    EXPECT_EQ(Base::printable("a\tb\n"), "a\u00B7b\u00B7");
    EXPECT_EQ(Base::printable("a\tb\n\r", Base::Layout::kept), "a\tb\n\u00B7");
}

} // namespace BaseTests
