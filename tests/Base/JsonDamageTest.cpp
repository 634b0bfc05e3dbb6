// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/JsonReader.h"
#include "Base/JsonWriter.h"
#include "tests/Base/SampleRecord.h"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

// Damaged and hostile documents: they are refused, or they say something that can be saved
// and read again as the same. What they never do is end the process.
namespace BaseTests
{

namespace
{

// False only for a document that is accepted and does not survive being saved.
template <class T>
bool isRefusedOrStable(std::string_view document)
{
    const auto decoded = json::decode<T>(document);
    if (!decoded) {
        return true;
    }
    const auto text = json::encode(*decoded);
    return text && json::decode<T>(*text) == decoded;
}

} // namespace

TEST(JsonDamage, RefusesEveryTruncation)
{
    for (std::size_t length = 0; length < kFullSampleText.size(); ++length) {
        EXPECT_FALSE(json::decode<Sample>(kFullSampleText.substr(0, length))) << length;
    }
}

TEST(JsonDamage, SurvivesEveryFlippedBit)
{
    std::size_t refused = 0;
    for (std::size_t bit = 0; bit < kFullSampleText.size() * 8; ++bit) {
        std::string damaged{kFullSampleText};
        damaged[bit / 8] = static_cast<char>(damaged[bit / 8] ^ (1 << (bit % 8)));
        EXPECT_TRUE(isRefusedOrStable<Sample>(damaged)) << damaged;
        refused += json::decode<Sample>(damaged) ? 0 : 1;
    }
    EXPECT_GT(refused, kFullSampleText.size() * 4);
}

RC_GTEST_PROP(JsonDamage, SurvivesArbitraryBytes, (const std::string &bytes))
{
    RC_ASSERT(isRefusedOrStable<Sample>(bytes));
    RC_ASSERT(isRefusedOrStable<std::vector<Bead>>(bytes));
}

RC_GTEST_PROP(JsonDamage, SurvivesArbitraryTokens, ())
{
    const auto token = rc::gen::element<std::string>(
        "{", "}", "[", "]", ":", ",", "\"name\"", "\"count\"", "\"weight\"", R"("\ud800")",
        R"("\u006eame")", "\"", "\\", "1", "-0", "4294967296", "1e999", "null", "true", " ",
        "\xFF", R"({"name":"a","count":1})");
    const auto tokens = *rc::gen::container<std::vector<std::string>>(token);
    std::string document;
    for (const std::string &piece : tokens) {
        document += piece;
    }
    RC_ASSERT(isRefusedOrStable<Bead>(document));
    RC_ASSERT(isRefusedOrStable<std::vector<Bead>>("[" + document + "]"));
}

RC_GTEST_PROP(JsonDamage, SurvivesReplacedStretches, (const std::string &patch))
{
    std::string document{kFullSampleText};
    const auto from = *rc::gen::inRange<std::size_t>(0, document.size());
    const auto count = *rc::gen::inRange<std::size_t>(0, 12);
    document.replace(from, count, patch);
    RC_ASSERT(isRefusedOrStable<Sample>(document));
}

} // namespace BaseTests
