// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "Base/Json.h"
#include "Base/SharedList.h"

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

// Records with a member of every type that the JSON codec knows.
namespace BaseTests
{

namespace json = Base::json;

enum class Colour : std::uint8_t { red, green, blue };

constexpr auto enumTexts(Base::Of<Colour>)
{
    using enum Colour;
    return Base::EnumTexts<Colour, 3>{{{red, "red"}, {green, "green"}, {blue, "blue"}}};
}

struct Bead {
    std::string name{};
    std::uint32_t count{};
    std::optional<double> weight{};

    bool operator==(const Bead &) const = default;
};
consteval auto jsonFields(Base::Of<Bead>)
{
    return std::tuple{json::Field{"name", &Bead::name}, json::Field{"count", &Bead::count},
                      json::Field{"weight", &Bead::weight}};
}
static_assert(json::coversAllMembers<Bead>());

struct Sample {
    std::optional<std::string> note{}; // first, so that the first comma can go missing
    bool flag{};
    std::int64_t number{};
    double ratio{};
    Base::Instant at{};
    std::string text{};
    Base::Bytes bytes{};
    Colour colour{};
    std::vector<Bead> beads{};
    Base::SharedList<std::int64_t> history{};
    std::map<std::string, std::string> attributes{};
    std::set<Colour> colours{};

    bool operator==(const Sample &) const = default;
};
consteval auto jsonFields(Base::Of<Sample>)
{
    using R = Sample;
    return std::tuple{
        json::Field{"note", &R::note},
        json::Field{"flag", &R::flag},
        json::Field{"number", &R::number},
        json::Field{"ratio", &R::ratio},
        json::Field{"at", &R::at},
        json::Field{"text", &R::text},
        json::Field{"bytes", &R::bytes},
        json::Field{"colour", &R::colour},
        json::Field{"beads", &R::beads},
        json::Field{"history", &R::history},
        json::Field{"attributes", &R::attributes},
        json::Field{"colours", &R::colours},
    };
}
static_assert(json::coversAllMembers<Sample>());

inline Sample fullSample()
{
    return {
        .note = "n",
        .flag = true,
        .number = -7,
        .ratio = 0.5,
        .at = Base::fromSeconds2001(86'400.25),
        .text = "a\"\\\n\u00E9\U0001F4FF",
        .bytes = {0, 255, 16},
        .colour = Colour::green,
        .beads = {{.name = "one", .count = 1, .weight = 2.5}, {.name = "two", .count = 2}},
        .history = Base::SharedList<std::int64_t>{{1, 2, 3}},
        .attributes = {{"b", "2"}, {"a", "1"}},
        .colours = {Colour::blue, Colour::red},
    };
}

inline constexpr std::string_view kFullSampleText =
    R"({"note":"n","flag":true,"number":-7,"ratio":0.5,"at":86400.25,)"
    "\"text\":\"a\\\"\\\\\\n\u00E9\U0001F4FF\","
    R"("bytes":"AP8Q","colour":"green",)"
    R"("beads":[{"name":"one","count":1,"weight":2.5},{"name":"two","count":2}],)"
    R"("history":[1,2,3],"attributes":{"a":"1","b":"2"},"colours":["red","blue"]})";

} // namespace BaseTests
