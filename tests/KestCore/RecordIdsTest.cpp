// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Models/RecordIds.h"

#include <gmock/gmock.h>

namespace KestCore
{

TEST(RecordIds, TheFirstCharactersAreEnoughWhileTheyAreUnique)
{
    const std::vector<std::string> ids{"AB12-x", "AB12-y", "AB", "cd34"};
    const std::string none = "No timer has the id ";
    struct Case {
        const char *typed;
        std::size_t found;
        std::string message;
    };
    for (const auto &[typed, found, message] : {
             Case{"AB12-x", 0, ""},
             Case{"ab12-Y", 1, ""},
             Case{"AB", 2, ""},
             Case{"CD", 3, ""},
             Case{"ab", 9, "3 ids begin with \"ab\"; write more of the id"},
             Case{"ab1", 9, "2 ids begin with "},
             Case{"", 9, none},
             Case{"x", 9, none},
             Case{"cd345", 9, none},
         }) {
        const auto verdict = findByIdPrefix(ids, typed, "timer");
        EXPECT_EQ(verdict.value_or(9), found) << typed;
        EXPECT_THAT(verdict ? "" : verdict.error().message, testing::StartsWith(message));
    }
    EXPECT_EQ(shortIdLength(ids), 6);
    EXPECT_EQ(shortIdLength(std::vector<std::string>{"AB12-x", "cd34"}), 4);
    EXPECT_EQ(shortIdLength({}), 4);
}

} // namespace KestCore
