// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/JsonWriter.h"

#include "Base/JsonReader.h"
#include "tests/Base/RandomValues.h"
#include "tests/Base/SampleRecord.h"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <limits>

namespace BaseTests
{

namespace
{

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

Base::KestError errorOf(const Base::Result<std::string> &encoded)
{
    return encoded ? Base::KestError::storage("encoded: " + *encoded) : encoded.error();
}

std::string textOfDouble(double value)
{
    return json::encode(std::vector<double>{value}).value();
}

Sample randomSample()
{
    using namespace rc;
    const auto bead = gen::exec([] {
        return Bead{.name = *anyText(),
                    .count = *gen::arbitrary<std::uint32_t>(),
                    .weight =
                        *gen::arbitrary<bool>() ? std::optional{*anyFinite()} : std::nullopt};
    });
    const auto colour = gen::element(Colour::red, Colour::green, Colour::blue);
    // Steps of 1/1024 second around 2001 are exact in both scales of an instant.
    const auto tick = gen::inRange<std::int64_t>(-1'000'000'000'000, 1'000'000'000'000);
    Sample sample;
    if (*gen::arbitrary<bool>()) {
        sample.note = *anyText();
    }
    sample.flag = *gen::arbitrary<bool>();
    sample.number = *gen::resize(kNominalSize, gen::arbitrary<std::int64_t>());
    sample.ratio = *anyFinite();
    sample.at = Base::fromSeconds2001(static_cast<double>(*tick) / 1024.0);
    sample.text = *anyText();
    sample.bytes = *gen::arbitrary<Base::Bytes>();
    sample.colour = *colour;
    sample.beads = *gen::container<std::vector<Bead>>(bead);
    sample.history =
        Base::SharedList<std::int64_t>{*gen::arbitrary<std::vector<std::int64_t>>()};
    sample.attributes =
        *gen::container<std::map<std::string, std::string>>(anyText(), anyText());
    const auto colours = *gen::container<std::vector<Colour>>(colour);
    sample.colours = {colours.begin(), colours.end()};
    return sample;
}

} // namespace

TEST(JsonWriter, WritesEveryTypeInTheOrderOfTheTable)
{
    EXPECT_EQ(json::encode(fullSample()).value(), kFullSampleText);
    EXPECT_EQ(json::decode<Sample>(kFullSampleText).value(), fullSample());
    EXPECT_EQ(json::encode(Sample{.at = Base::fromSeconds2001(0)}).value(),
              R"({"flag":false,"number":0,"ratio":0,"at":0,"text":"","bytes":"",)"
              R"("colour":"red","beads":[],"history":[],"attributes":{},"colours":[]})");
}

TEST(JsonWriter, WritesDoublesShortestAndWholeOnesWithoutFraction)
{
    struct Case {
        double value;
        std::string_view text;
    };
    for (const auto &[value, text] : {
             Case{0.0, "[0]"},
             Case{-0.0, "[-0]"},
             Case{1.0, "[1]"},
             Case{-1e15, "[-1000000000000000]"},
             Case{1'767'225'600'000.0, "[1767225600000]"},
             Case{9'007'199'254'740'991.0, "[9007199254740991]"},
             Case{9'007'199'254'740'992.0, "[9007199254740992]"},
             Case{0.1, "[0.1]"},
             Case{1e22, "[1e+22]"},
             Case{5e-324, "[5e-324]"},
             Case{1.7976931348623157e308, "[1.7976931348623157e+308]"},
         }) {
        EXPECT_EQ(textOfDouble(value), text);
        const double back = json::decode<std::vector<double>>(textOfDouble(value)).value()[0];
        EXPECT_EQ(std::bit_cast<std::uint64_t>(back), std::bit_cast<std::uint64_t>(value));
    }
}

TEST(JsonWriter, RefusesWhatJsonCannotCarry)
{
    const auto notFinite =
        Base::KestError::invalidData("A number that is not finite cannot be saved");
    EXPECT_EQ(errorOf(json::encode(Sample{.ratio = kNaN})), notFinite);
    EXPECT_EQ(errorOf(json::encode(Sample{.at = Base::fromSeconds2001(kInfinity)})), notFinite);
    EXPECT_EQ(errorOf(json::encode(Bead{.weight = -kInfinity})), notFinite);

    const auto notText =
        Base::KestError::invalidData("Text that is not valid UTF-8 cannot be saved");
    for (const std::string bad : {"\x80", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80",
                                  "\xE2\x82", "fine until \xFF"}) {
        EXPECT_EQ(errorOf(json::encode(Bead{.name = bad})), notText);
        EXPECT_EQ(errorOf(json::encode(Sample{.attributes = {{bad, ""}}})), notText);
    }
}

// The writer looks at eight bytes at once, so each special byte stands at every place of a
// word, behind and before every other.
TEST(JsonWriter, EscapesAtEveryPlaceOfAWord)
{
    const std::string_view specials{"\0\x1F\x20\"\\\n\r\t!]\x7F", 11};
    for (std::size_t at = 0; at < 20; ++at) {
        for (const char first : specials) {
            for (const char second : specials) {
                std::string name(21, 'a');
                name[at] = first;
                name[at + 1] = second;
                const auto text = json::encode(Bead{.name = name}).value();
                EXPECT_TRUE(std::ranges::none_of(
                    text, [](char c) { return static_cast<unsigned char>(c) < 0x20; }));
                EXPECT_EQ(json::decode<Bead>(text).value().name, name);
            }
        }
    }
    EXPECT_EQ(json::encode(Bead{.name = {'\0', '\x1F', '\b', '/'}}).value(),
              R"({"name":"\u0000\u001f\u0008/","count":0})");
}

RC_GTEST_PROP(JsonWriter, RoundTripsEveryRecord, ())
{
    const Sample sample = randomSample();
    const std::string text = json::encode(sample).value();
    RC_ASSERT(json::decode<Sample>(text).value() == sample);

    const auto around = json::encodeAroundSharedList(sample).value();
    RC_ASSERT(around.head + json::encode(sample.history).value() + around.tail == text);
}

RC_GTEST_PROP(JsonWriter, RoundTripsEveryDoubleBitByBit, ())
{
    const double value = *anyFinite();
    const double back = json::decode<std::vector<double>>(textOfDouble(value)).value()[0];
    RC_ASSERT(std::bit_cast<std::uint64_t>(back) == std::bit_cast<std::uint64_t>(value));
}

} // namespace BaseTests
