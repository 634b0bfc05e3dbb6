// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/JsonReader.h"

#include "tests/Base/SampleRecord.h"

#include <gmock/gmock.h>

#include <limits>

namespace BaseTests
{

namespace
{

// What is wrong with the document, or what it says.
template <class T>
std::string refusalOf(std::string_view document)
{
    const auto decoded = json::decode<T>(document);
    if (decoded) {
        return "accepted";
    }
    EXPECT_EQ(decoded.error().kind, Base::KestError::Kind::invalidData);
    EXPECT_FALSE(decoded.error().message.empty());
    return decoded.error().message;
}

std::string beadNamed(std::string_view escaped)
{
    return R"({"count":1,"name":")" + std::string{escaped} + R"("})";
}

std::string nested(std::size_t depth)
{
    return R"({"name":"","count":1,"else":)" + std::string(depth, '[') +
           std::string(depth, ']') + "}";
}

} // namespace

TEST(JsonReader, TakesKeysInAnyOrderAndPassesOverUnknownOnes)
{
    const Bead bead{.name = "one", .count = 3, .weight = 1.0};
    for (const std::string_view document : {
             R"({"name":"one","count":3,"weight":1})",
             R"({"weight":1.0,"count":3,"name":"one"})",
             R"({"a":{"name":[1,null,{"b":"\n"}],"c":-1e3},"weight":1,"count":3,"name":"one"})",
             R"({"n\u0061me":"one","count":3,"weight":1})",
             R"({"nam":"x","names":"y","name":"one","count":3,"weight":1e0})",
             R"({"x":1,"x":2,"name":"one","count":3,"weight":1})",
             " \t\r\n{ \"name\" : \"one\" , \"count\" : 3 , \"weight\" : 1 } \n ",
         }) {
        const auto decoded = json::decode<Bead>(document);
        EXPECT_TRUE(decoded && *decoded == bead) << document;
    }
    EXPECT_EQ(json::decode<Bead>(R"({"name":"","count":0,"weight":null})").value(), Bead{});
    EXPECT_EQ(json::decode<Bead>(R"({"name":"","count":0})").value(), Bead{});
}

TEST(JsonReader, NamesThePlaceAndReasonOfARefusal)
{
    struct Case {
        std::string_view document;
        std::string_view message;
    };
    for (const auto &[document, message] : {
             Case{R"({"name":"x"})", "count: missing"},
             Case{R"({"count":1,"weight":2})", "name: missing"},
             Case{R"({"name":"x","count":1,"name":"x"})", "name: key given twice"},
             Case{R"({"name":"x","count":1,"\u006eame":"x"})", "name: key given twice"},
             Case{R"({"name":"x","count":1,"weight":null,"weight":1})",
                  "weight: key given twice"},
             Case{R"({"name":null,"count":1})", "name: wrong type"},
             Case{R"({"name":1,"count":1})", "name: wrong type"},
             Case{R"({"name":"x","count":"1"})", "count: wrong type"},
             Case{R"({"name":"x","count":4294967296})", "count: number does not fit"},
             Case{R"({"name":"x","count":1,"weight":true})", "weight: wrong type"},
             Case{R"({"name":"x","count":1} {})", "text behind the document"},
             Case{R"({"name":"x","count":1}[})", "text behind the document"},
             Case{R"([])", "wrong type"},
             Case{R"("name")", "wrong type"},
         }) {
        EXPECT_EQ(refusalOf<Bead>(document), message) << document;
    }
    EXPECT_EQ(refusalOf<std::vector<Bead>>(R"([{"name":"x","count":1},{"name":"x"}])"),
              "1.count: missing");
    EXPECT_EQ(refusalOf<Sample>(R"({"beads":[{"name":"x","count":-1}]})").substr(0, 13),
              "beads.0.count");
    EXPECT_EQ(refusalOf<Sample>(R"({"attributes":{"a":"1","a":"2"}})"),
              "attributes.a: key given twice");
    EXPECT_EQ(refusalOf<Sample>(R"({"colours":["red","Red"]})"), "colours.1: unknown word");
    EXPECT_EQ(refusalOf<Sample>(R"({"bytes":"AP8"})"), "bytes: not Base64");
}

TEST(JsonReader, KeepsIntegersWithinTheirType)
{
    using Wide = std::vector<std::int64_t>;
    EXPECT_EQ(json::decode<Wide>("[9223372036854775807,-9223372036854775808,-0]").value(),
              (Wide{std::numeric_limits<std::int64_t>::max(),
                    std::numeric_limits<std::int64_t>::min(), 0}));
    EXPECT_EQ(json::decode<std::vector<std::uint32_t>>("[0,4294967295]").value()[1],
              4'294'967'295U);
    for (const std::string_view bad :
         {"[9223372036854775808]", "[-9223372036854775809]", "[1.0]", "[1e3]", "[01]", "[+1]",
          "[0x10]", "[--1]", "[1,]", "[,1]", "[1 2]", "[true]", "[null]"}) {
        EXPECT_NE(refusalOf<Wide>(bad), "accepted") << bad;
    }
    for (const std::string_view bad : {"[1e400]", "[-1e400]", "[.5]", "[1.]", "[1e]", "[NaN]",
                                       "[Infinity]", "[nul]", "[\"1\"]", "[1.5.5]", "[00.5]"}) {
        EXPECT_NE(refusalOf<std::vector<double>>(bad), "accepted") << bad;
    }
}

TEST(JsonReader, UnescapesText)
{
    EXPECT_EQ(
        json::decode<Bead>(beadNamed(R"(\u0041\n\t\r\b\f\"\\\/\u00e9\ud83d\udcff\u0000.)"))
            .value()
            .name,
        (std::string{"A\n\t\r\b\f\"\\/\u00E9\U0001F4FF\0.", 17}));
}

TEST(JsonReader, RefusesTextThatIsNoText)
{
    for (const std::string_view bad :
         {R"(\ud800)", R"(\ude00)", R"(\ud800x)", R"(\ud800\n)", R"(\ud800\u0041)",
          R"(\ud83d\ud83d\udcff)", R"(\x41)", R"(\u12)", R"(\u12g4)", R"(\)", "\x80",
          "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xE2\x82", "\n", "\x1F"}) {
        const std::string text{bad};
        for (const std::string &document :
             {beadNamed(text), R"({"name":"","count":1,")" + text + R"(":1})",
              R"({"name":"","count":1,"else":")" + text + R"("})",
              R"({"name":"","count":1,"else":[{"a":")" + text + R"("}]})",
              R"({"name":"","count":1,"else":{")" + text + R"(":1}})"}) {
            EXPECT_NE(refusalOf<Bead>(document), "accepted") << document;
        }
        const auto key = R"({"attributes":{")" + text + R"(":"1"}})";
        EXPECT_FALSE(refusalOf<Sample>(key).contains("missing")) << key;
    }
}

TEST(JsonReader, ChecksWhatItPassesOver)
{
    for (const std::string_view bad :
         {"tru", "truex", "nulls", "01", "1.", "[1,]", "[1 2]", "{\"a\"}", "{\"a\":}", "{a:1}",
          "{\"a\":1,}", "[1}", "{\"a\":1]", "'x'", "", "-", "1e999"}) {
        EXPECT_NE(refusalOf<Bead>(R"({"name":"","count":1,"else":)" + std::string{bad} + "}"),
                  "accepted")
            << bad;
    }
    EXPECT_TRUE(json::decode<Bead>(nested(60)));
    EXPECT_EQ(refusalOf<Bead>(nested(100)), "unknown key: nested too deeply");
    EXPECT_NE(refusalOf<Bead>(nested(200'000)), "accepted");
    EXPECT_NE(refusalOf<std::vector<Bead>>(std::string(200'000, '[')), "accepted");
}

TEST(JsonReader, ReadsLargeDocumentsAndRepeatedSetMembers)
{
    const std::string longName(300'000, 'x');
    EXPECT_EQ(json::decode<Bead>(beadNamed(longName)).value().name, longName);
    EXPECT_EQ(json::decode<std::set<Colour>>(R"(["blue","red","blue"])").value(),
              (std::set{Colour::red, Colour::blue}));
}

TEST(EnumText, TellsWordsApartExactly)
{
    EXPECT_EQ(Base::fromText<Colour>("blue"), Colour::blue);
    for (const std::string_view unknown : {"", "Blue", "blu", "blue ", "bluee"}) {
        EXPECT_EQ(Base::fromText<Colour>(unknown), std::nullopt) << unknown;
    }
    EXPECT_EQ(Base::textOf(static_cast<Colour>(9)), "");
}

} // namespace BaseTests
