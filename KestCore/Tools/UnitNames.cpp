// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/UnitNames.h"

#include "Base/Text.h"

#include <algorithm>
#include <map>
#include <utility>

namespace KestCore
{

namespace
{

constexpr std::size_t kLongestName = 32; // bytes; the work below grows with them
constexpr std::size_t kMostNear = 4;

struct Alias {
    std::string_view name; // lower case, singular
    std::string_view id;
};

// Beside the ids themselves. Letters that several units could claim are decided here: m is
// the metre and never a minute, c and f are degrees, k is the kelvin, and a lower-case b is a
// byte as nobody types "gb" for bits. A gallon must say whose it is.
constexpr Alias kAliases[] = {
    {"metre", "m"},
    {"meter", "m"},
    {"kilometre", "km"},
    {"kilometer", "km"},
    {"kms", "km"},
    {"centimetre", "cm"},
    {"centimeter", "cm"},
    {"millimetre", "mm"},
    {"millimeter", "mm"},
    {"inch", "in"},
    {"inches", "in"},
    {"\"", "in"},
    {"″", "in"},
    {"foot", "ft"},
    {"feet", "ft"},
    {"'", "ft"},
    {"′", "ft"},
    {"mile", "mi"},
    {"kilogram", "kg"},
    {"kilogramme", "kg"},
    {"kilo", "kg"},
    {"kgs", "kg"},
    {"gram", "g"},
    {"gramme", "g"},
    {"pound", "lb"},
    {"lbs", "lb"},
    {"ounce", "oz"},
    {"c", "°C"},
    {"℃", "°C"},
    {"degc", "°C"},
    {"deg c", "°C"},
    {"degree c", "°C"},
    {"celsius", "°C"},
    {"degree celsius", "°C"},
    {"centigrade", "°C"},
    {"f", "°F"},
    {"℉", "°F"},
    {"degf", "°F"},
    {"deg f", "°F"},
    {"degree f", "°F"},
    {"fahrenheit", "°F"},
    {"degree fahrenheit", "°F"},
    {"\u212A", "K"}, // the sign, not the letter
    {"kelvin", "K"},
    {"m2", "m²"},
    {"sqm", "m²"},
    {"sq m", "m²"},
    {"square metre", "m²"},
    {"square meter", "m²"},
    {"km2", "km²"},
    {"sqkm", "km²"},
    {"sq km", "km²"},
    {"square kilometre", "km²"},
    {"square kilometer", "km²"},
    {"ft2", "ft²"},
    {"sqft", "ft²"},
    {"sq ft", "ft²"},
    {"square foot", "ft²"},
    {"square feet", "ft²"},
    {"ℓ", "L"},
    {"litre", "L"},
    {"liter", "L"},
    {"millilitre", "mL"},
    {"milliliter", "mL"},
    {"us gallon", "US gal"},
    {"american gallon", "US gal"},
    {"uk gallon", "UK gal"},
    {"imp gal", "UK gal"},
    {"imperial gallon", "UK gal"},
    {"mps", "m/s"},
    {"m/sec", "m/s"},
    {"metre per second", "m/s"},
    {"meter per second", "m/s"},
    {"kmh", "km/h"},
    {"kph", "km/h"},
    {"km/hr", "km/h"},
    {"kilometre per hour", "km/h"},
    {"kilometer per hour", "km/h"},
    {"mi/h", "mph"},
    {"mile per hour", "mph"},
    {"kt", "kn"},
    {"kts", "kn"},
    {"knot", "kn"},
    {"byte", "B"},
    {"kilobyte", "kB"},
    {"megabyte", "MB"},
    {"gigabyte", "GB"},
    {"kibibyte", "KiB"},
    {"mebibyte", "MiB"},
    {"gibibyte", "GiB"},
};

// Spellings whose case makes them another unit, one that is not in the table: bits, the
// megametre, the megalitre, a thousandth of a byte, the kilonewton.
constexpr std::string_view kOtherUnits[] = {"Kb", "Mb", "Gb", "Kib", "Mib", "Gib",
                                            "mB", "gB", "Mm", "ML",  "Ml",  "kN"};

// Every name by which a unit goes, in one spelling.
const std::map<std::string, const UnitDefinition *, std::less<>> &names()
{
    static const auto kNames = [] {
        std::map<std::string, const UnitDefinition *, std::less<>> made;
        for (const UnitDefinition &unit : Units::all()) {
            made.emplace(Base::lowerAscii(unit.id), &unit);
        }
        for (const auto &[name, id] : kAliases) {
            made.emplace(name, Units::find(id));
        }
        return made;
    }();
    return kNames;
}

struct Spelling {
    std::string_view typed;
    std::string_view meant;
};

// Signs that look or read like others, so that the table needs them only once.
constexpr Spelling kSpellings[] = {
    {"\u00BA", "°"}, {"\u02DA", "°"}, {"° ", "°"}, {"^2", "²"},
    {" /", "/"},     {"/ ", "/"},     {".", ""},
};

std::string normalized(std::string_view name)
{
    std::string spelling = Base::lowerAscii(name);
    for (const auto &[typed, meant] : kSpellings) {
        Base::replaceAll(spelling, typed, meant);
    }
    return spelling;
}

// "us gallons" and "metres per second" without the s; a short word such as "us" keeps its own.
std::string singular(const std::string &name)
{
    std::size_t begin = 0;
    for (const std::string_view word : Base::split(name, ' ')) {
        const std::size_t end = begin + word.size();
        if (word.size() >= 4 && word.ends_with('s')) {
            return name.substr(0, end - 1) + name.substr(end);
        }
        begin = end + 1;
    }
    return name;
}

// How many single steps (a letter more, less, other, or two swapped) part the texts.
std::size_t stepsBetween(std::string_view a, std::string_view b)
{
    std::vector<std::size_t> before;
    std::vector<std::size_t> last(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j) {
        last[j] = j;
    }
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::vector<std::size_t> row(b.size() + 1, i);
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t other = a[i - 1] == b[j - 1] ? 0 : 1;
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + other});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1]) {
                row[j] = std::min(row[j], before[j - 2] + 1);
            }
        }
        before = std::exchange(last, std::move(row));
    }
    return last.back();
}

bool hasWord(std::string_view name, std::string_view word)
{
    const auto words = Base::split(name, ' ');
    return std::ranges::find(words, word) != words.end();
}

} // namespace

const UnitDefinition *unitNamed(std::string_view name)
{
    if (const UnitDefinition *unit = Units::find(name)) {
        return unit;
    }
    if (name.size() > kLongestName ||
        std::ranges::find(kOtherUnits, name) != std::end(kOtherUnits)) {
        return nullptr;
    }
    const std::string spelling = normalized(name);
    for (const std::string &form : {spelling, singular(spelling)}) {
        if (const auto found = names().find(form); found != names().end()) {
            return found->second;
        }
    }
    return nullptr;
}

std::vector<std::string_view> unitsNear(std::string_view typed)
{
    const std::string wanted = singular(normalized(typed.substr(0, kLongestName)));
    // In a short name every letter counts.
    const std::size_t furthest = std::min<std::size_t>(wanted.size() / 2, 2);
    std::vector<std::pair<std::size_t, const UnitDefinition *>> near;
    for (const auto &[name, unit] : names()) {
        const std::size_t steps = hasWord(name, wanted) ? 0 : stepsBetween(wanted, name);
        if (steps <= furthest) {
            near.emplace_back(steps, unit);
        }
    }
    std::ranges::sort(near); // pointers into one table: its order
    std::vector<std::string_view> ids;
    for (const auto &[steps, unit] : near) {
        if (steps == near.front().first && ids.size() < kMostNear &&
            std::ranges::find(ids, unit->id) == ids.end()) {
            ids.push_back(unit->id);
        }
    }
    return ids;
}

} // namespace KestCore
