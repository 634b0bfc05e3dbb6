// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/SharedList.h"

#include <gmock/gmock.h>

#include <string>

namespace BaseTests
{

using List = Base::SharedList<std::string>;

TEST(SharedList, SharesOneBlockUntilOneSideChanges)
{
    const List first{{"a", "b"}};
    List second = first;
    EXPECT_TRUE(second.sharesBlockWith(first));
    EXPECT_EQ(&second[0], &first[0]);

    second.append(second[0]);
    EXPECT_FALSE(second.sharesBlockWith(first));
    EXPECT_EQ(first.items(), (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(second.items(), (std::vector<std::string>{"a", "b", "a"}));
    EXPECT_NE(first, second);
    EXPECT_EQ(second, (List{{"a", "b", "a"}}));
}

TEST(SharedList, RemembersWhatPassedForEveryCopyAndAfterAnAppend)
{
    const List first{{"a", "b"}};
    List second = first;
    EXPECT_EQ(first.verifiedCount(), 0U);
    first.rememberVerified(2);
    EXPECT_EQ(second.verifiedCount(), 2U);
    second.append("c");
    EXPECT_EQ(second.verifiedCount(), 2U);
    second.rememberVerified(3);
    EXPECT_EQ(first.verifiedCount(), 2U);
    EXPECT_EQ((List{{"a", "b"}}).verifiedCount(), 0U);
}

TEST(SharedList, NeedsNoBlockForNothing)
{
    List none;
    none.rememberVerified(0);
    EXPECT_TRUE(none.empty());
    EXPECT_EQ(none.begin(), none.end());
    EXPECT_EQ(none, List{std::vector<std::string>{}});
    none.append("a");
    EXPECT_EQ(none.size(), 1U);
    EXPECT_EQ(none.verifiedCount(), 0U);
}

} // namespace BaseTests
