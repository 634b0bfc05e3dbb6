// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/Base64.h"

#include "Base/Uuid.h"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <map>
#include <set>

namespace BaseTests
{

using namespace Base;

TEST(Base64, WritesAndReadsThePublishedExamples)
{
    struct Case {
        std::string_view plain;
        std::string_view text;
    };
    for (const auto &[plain, text] :
         {Case{"", ""}, Case{"f", "Zg=="}, Case{"fo", "Zm8="}, Case{"foo", "Zm9v"},
          Case{"foobar", "Zm9vYmFy"}, Case{"\xFB\xFF\xBF", "+/+/"}}) {
        const Bytes bytes{plain.begin(), plain.end()};
        EXPECT_EQ(toBase64(bytes), text);
        EXPECT_EQ(fromBase64(text), bytes);
    }
}

TEST(Base64, TakesNothingButTheCanonicalText)
{
    for (const std::string_view bad :
         {"Z",    "Zg",       "Zg=",    "Zg===",  "Zh==",  "Zm9=",     "Zm8",   "====",
          "=Zg=", "Zg==Zg==", "Zm9v\n", "\nZm9v", "    ",  "\n\n\n\n", " Zg==", "Zg== ",
          "Zm 9", "Zm9_",     "Zm9-",   "Zm8-",   "Z\0==", "Zm9\xC3"}) {
        EXPECT_EQ(fromBase64(bad), std::nullopt) << bad;
    }
    EXPECT_EQ(fromBase64(std::string_view{"Zm\0v", 4}), std::nullopt);
}

RC_GTEST_PROP(Base64, RoundTripsAllBytes, (const Bytes &bytes))
{
    RC_ASSERT(fromBase64(toBase64(bytes)) == bytes);
}

RC_GTEST_PROP(Base64, HasOneTextForEachValue, ())
{
    const auto character =
        rc::gen::element('A', 'Z', 'a', 'z', '0', '9', '+', '/', '=', ' ', '-');
    const auto text = *rc::gen::container<std::string>(character);
    if (const auto bytes = fromBase64(text)) {
        RC_ASSERT(toBase64(*bytes) == text);
    }
}

TEST(Uuid, IsRandomUpperCaseAndCanonical)
{
    std::set<std::string> seen;
    std::vector<std::set<char>> digitsAt(36);
    for (int i = 0; i < 2000; ++i) {
        const std::string uuid = makeUuid();
        ASSERT_EQ(uuid.size(), 36U);
        EXPECT_TRUE(seen.insert(uuid).second);
        for (std::size_t at = 0; at < 36; ++at) {
            digitsAt[at].insert(uuid[at]);
        }
    }
    const std::string_view hex = "0123456789ABCDEF";
    const std::map<std::size_t, std::string_view> fixed{{8, "-"},  {13, "-"},    {14, "4"},
                                                        {18, "-"}, {19, "89AB"}, {23, "-"}};
    for (std::size_t at = 0; at < 36; ++at) {
        const auto known = fixed.find(at);
        const std::string_view expected = known == fixed.end() ? hex : known->second;
        EXPECT_EQ(digitsAt[at], (std::set<char>{expected.begin(), expected.end()})) << at;
    }
}

} // namespace BaseTests
