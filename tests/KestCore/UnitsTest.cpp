// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/Units.h"

#include "KestCore/Tools/TypedConversion.h"
#include "KestCore/Tools/UnitNames.h"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <limits>

namespace KestCore
{

namespace
{

using testing::ElementsAre;

std::string categoryOf(std::string_view unit)
{
    const auto *found = Units::find(unit);
    return std::string{found == nullptr ? "?" : found->category};
}

// What is shown, or "none".
std::string resultOf(std::string text, std::string from, std::string to,
                     const std::string &locale = "en_US")
{
    return Units::resultText({.category = categoryOf(from),
                              .from = std::move(from),
                              .to = std::move(to),
                              .text = std::move(text)},
                             locale)
        .value_or("none");
}

// "5 km mi", or "none".
std::string readingOf(std::string_view line)
{
    const auto found = typedConversion(line);
    return found ? found->text + "|" + found->from + "|" + found->to : "none";
}

} // namespace

TEST(Units, GivesTheResultAsText)
{
    struct Case {
        const char *text;
        const char *from;
        const char *to;
        const char *result;
    };
    for (const auto &[text, from, to, result] : {
             Case{"1", "m", "km", "0.001"},
             Case{"100", "°C", "°F", "212"},
             Case{"0", "K", "°C", "-273.15"},
             Case{"-40", "°F", "°C", "-40"},
             Case{"1", "GiB", "MB", "1073.741824"},
             Case{"1", "kn", "km/h", "1.852"},
             Case{"1", "mi", "ft", "5280"},
             Case{"1", "lb", "oz", "16"},
             Case{"1", "UK gal", "mL", "4546.09"},
             Case{"1", "US gal", "L", "3.785411784"},
             Case{"1", "acre", "ft²", "43560"},
             Case{"1", "km²", "m²", "1000000"}, // no grouping
             Case{"1e20", "m", "m", "100000000000000000000"},
             Case{"36", "km/h", "m/s", "10"},
             Case{"1", "mph", "m/s", "0.44704"},
             Case{"1024", "KiB", "MiB", "1"},
             Case{"-0", "m", "km", "0"},
             Case{"-5e-324", "m", "km", "0"},
             Case{"+5.", "m", "m", "5"},
             Case{".5e1", "m", "m", "5"},
             Case{" \t\u00A01\u2003\r\n", "m", "m", "1"},
             // Half to even at the twelfth digit, on the decimal that is shown.
             Case{"1.000000000005", "m", "m", "1"},
             Case{"1.000000000015", "m", "m", "1.00000000002"},
             Case{"100000000000.5", "m", "m", "100000000000"},
             Case{"100000000001.5", "m", "m", "100000000002"},
             Case{"999999999999.5", "m", "m", "1000000000000"},
             Case{"0.1234567890125", "m", "m", "0.123456789012"},
             Case{"", "m", "km", "none"},
             Case{"1 2", "m", "km", "none"},
             Case{"1,5", "m", "km", "none"},
             Case{"1e400", "m", "km", "none"},
             Case{"1e308", "km", "mm", "none"},
             Case{"inf", "m", "km", "none"},
             Case{"nan", "m", "km", "none"},
             Case{"0x10", "m", "km", "none"},
             Case{"5m", "m", "km", "none"},
             Case{"+-5", "m", "km", "none"},
             Case{"1", "kg", "m", "none"},
             Case{"1", "m", "M", "none"},
             Case{"1", "", "m", "none"},
         }) {
        EXPECT_EQ(resultOf(text, from, to), result) << text << " " << from << " " << to;
    }
}

TEST(Units, ReadsAndWritesNumbersAsTheLocaleDoes)
{
    EXPECT_EQ(resultOf(" 1,5\n", "km", "m", "de_DE"), "1500");
    EXPECT_EQ(resultOf("1,5", "m", "km", "de_DE.UTF-8"), "0,0015");
    EXPECT_EQ(resultOf("1.5", "m", "km", "de_DE"), "0,0015");
    EXPECT_EQ(resultOf("1.000,5", "m", "km", "de_DE"), "none");
    EXPECT_EQ(resultOf("1\u066B5", "m", "m", "ar_EG"), "\u0661\u066B\u0665");
    EXPECT_EQ(resultOf("1.5", "m", "km", "en_US_POSIX"), "0.0015");
}

TEST(Units, FailsWithOneMessage)
{
    const auto failure =
        Result<double>{std::unexpected(KestError::invalidData(std::string{kCannotConvert}))};
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(Units::convert("m", "kg", 1), failure);
    EXPECT_EQ(Units::convert("m", "x", 1), failure);
    EXPECT_EQ(Units::convert("", "m", 1), failure);
    EXPECT_EQ(Units::convert("m", "km", kInfinity), failure);
    EXPECT_EQ(Units::convert("m", "km", std::nan("")), failure);
    EXPECT_EQ(Units::convert("km", "mm", 1e308), failure);
    EXPECT_EQ(Units::convert("kn", "m/s", 1), 0.514444444444); // cut off there
    EXPECT_FALSE(Units::isValid({.category = "Mass"}));        // m and km are no masses
    EXPECT_TRUE(Units::isValid({}));
    EXPECT_EQ(Units::all().size(), 33);
}

RC_GTEST_PROP(Units, ThereAndBackIsTheSame, ())
{
    const auto unit = [] {
        return Units::all()[*rc::gen::inRange<std::size_t>(0, Units::all().size())];
    };
    const UnitDefinition from = unit();
    const UnitDefinition to = unit();
    const double value = *rc::gen::inRange(-1'000'000, 1'000'000) / 64.0;
    const auto there = Units::convert(from.id, to.id, value);
    RC_PRE(there.has_value());
    const double back = *Units::convert(to.id, from.id, *there);
    // An offset costs digits of a small value.
    const double offsets = (std::abs(from.offset) + std::abs(to.offset)) / from.factor;
    RC_ASSERT(std::abs(back - value) <= 1e-14 * (std::abs(value) + offsets));
}

TEST(TypedConversion, ReadsWhatPeopleType)
{
    struct Case {
        const char *line;
        const char *reading;
    };
    for (const auto &[line, reading] : {
             Case{"5 km to mi", "5|km|mi"},
             Case{"  5KM   TO  MI\n", "5|km|mi"},
             Case{"100°C in °F", "100|°C|°F"},
             Case{"100 º C in ℉", "100|°C|°F"},
             Case{"20 degrees celsius as degF", "20|°C|°F"},
             Case{"100 c to f", "100|°C|°F"},
             Case{"0 k to c", "0|K|°C"},
             Case{"5km mi", "5|km|mi"},
             Case{"3,5 kg → lb", "3,5|kg|lb"},
             Case{"3,5\u00A0kg\u2192lbs", "3,5|kg|lb"},
             Case{"1 us gal to l", "1|US gal|L"},
             Case{"1 US gal UK gal", "1|US gal|UK gal"},
             Case{"2 imperial gallons into millilitres", "2|UK gal|mL"},
             Case{"60 mph in km/h", "60|mph|km/h"},
             Case{"60 miles per hour = km / h", "60|mph|km/h"},
             Case{"3 metres per second to knots", "3|m/s|kn"},
             Case{"5 feet to cm", "5|ft|cm"},
             Case{"5' in in", "5|ft|in"},
             Case{"5 in in cm", "5|in|cm"},
             Case{"5 in cm", "5|in|cm"},
             Case{"5 cm in", "5|cm|in"},
             Case{"5 m to in", "5|m|in"},
             Case{"5 inches -> Meters", "5|in|m"},
             Case{"10 m2 ft^2", "10|m²|ft²"},
             Case{"10 square feet to sq. m", "10|ft²|m²"},
             Case{"1e3 kg lb", "1e3|kg|lb"},
             Case{"1e-3kg=>lb", "1e-3|kg|lb"},
             Case{"\u22125 c f", "-5|°C|°F"},
             Case{"-.5 m km", "-.5|m|km"},
             Case{"1 gb to GiB", "1|GB|GiB"},
             Case{"1 B in megabytes", "1|B|MB"},
             Case{"1 KB to b", "1|kB|B"},
             Case{"5 kg to m", "5|kg|m"}, // read, then refused
             Case{"", "none"},
             Case{"km to mi", "none"},
             Case{"5", "none"},
             Case{"5 km", "none"},
             Case{"5 km to", "none"},
             Case{"5 to mi", "none"},
             Case{"5 km mi cm", "none"},
             Case{"inf km to mi", "none"},
             Case{"nan m km", "none"},
             Case{"0x10 m km", "none"},
             Case{"- 5 m km", "none"},
             Case{"., m km", "none"},
             Case{"5 m to min", "none"},
             Case{"1 gal to l", "none"}, // whose?
             Case{"8 Mb to MB", "none"}, // bits
             Case{"8 mB to B", "none"},
             Case{"1 ML to L", "none"},
             Case{"1 Mm to km", "none"},
             Case{"5 kN to m/s", "none"}, // a force
             Case{"5 ° to K", "none"},
             Case{"call 5 km to mi", "none"},
         }) {
        EXPECT_EQ(readingOf(line), reading) << line;
    }
}

TEST(TypedConversion, EveryUnitIsCalledByItsIdInAnyCase)
{
    for (const UnitDefinition &unit : Units::all()) {
        EXPECT_EQ(unitNamed(unit.id), &unit) << unit.id;
        std::string lower{unit.id};
        std::ranges::transform(lower, lower.begin(), [](unsigned char c) {
            return static_cast<char>(c < 0x80 ? std::tolower(c) : c);
        });
        EXPECT_EQ(unitNamed(lower), &unit) << lower;
    }
}

TEST(TypedConversion, SaysWhatItDoesNotKnow)
{
    EXPECT_THAT(unitsNear("gal"), ElementsAre("US gal", "UK gal"));
    EXPECT_THAT(unitsNear("gallons"), ElementsAre("US gal", "UK gal"));
    EXPECT_THAT(unitsNear("Mb"), ElementsAre("MB"));
    EXPECT_THAT(unitsNear("kilmoeters"), ElementsAre("km"));
    EXPECT_THAT(unitsNear("parsec"), ElementsAre());
    struct Case {
        std::string line;
        std::string message;
    };
    const std::string generic = "Write a number and two units, such as 5 km to mi";
    for (const auto &[line, message] : {
             Case{"x km mi", std::string{kCannotConvert}},
             Case{"5 km", generic},
             Case{"5 km mi cm", generic},
             Case{"5 parsec to km", "There is no unit \"parsec\"; there are m, km, cm, "},
             Case{"5 km parsec", "There is no unit \"parsec\"; there are m, "},
             Case{"5 poud in kg", "There is no unit \"poud\"; the nearest is lb"},
             Case{"5 m in gal", "There is no unit \"gal\"; the nearest are US gal, UK gal"},
             Case{"5 " + std::string(100'000, 'x') + " to m", generic},
             Case{"5" + std::string(100'000, ' ') + "km", generic},
         }) {
        const auto verdict = requireConversion(line);
        EXPECT_THAT(verdict ? "" : verdict.error().message, testing::StartsWith(message));
        EXPECT_FALSE(verdict) << line.substr(0, 50);
    }
}

} // namespace KestCore
