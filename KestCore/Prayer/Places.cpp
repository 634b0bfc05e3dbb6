// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Prayer/Places.h"

#include "Base/Fault.h"
#include "Base/Text.h"
#include "KestCore/Devotional/Content.h"
#include "KestCore/Resources.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <compare>
#include <optional>
#include <string>
#include <tuple>

namespace KestCore
{

namespace
{

constexpr std::string_view kSource = "KestCore/Places";

template <class Number>
bool readNumber(std::string_view text, Number &value)
{
    const auto [stop, error] = std::from_chars(text.begin(), text.end(), value);
    return error == std::errc{} && stop == text.end();
}

// The fields of a line; nothing unless there are as many.
template <std::size_t count>
std::optional<std::array<std::string_view, count>> fieldsOf(std::string_view line)
{
    std::array<std::string_view, count> fields{};
    for (std::size_t at = 0; at + 1 < count; ++at) {
        const std::size_t end = line.find('\t');
        if (end == std::string_view::npos) {
            return std::nullopt;
        }
        fields[at] = line.substr(0, end);
        line.remove_prefix(end + 1);
    }
    fields[count - 1] = line;
    return line.contains('\t') ? std::nullopt : std::optional{fields};
}

// Reads the list line by line. "=" begins a country, "@" a time zone in it and ":" a region in
// that; the cities that follow are theirs.
class ListReader
{
public:
    bool read(std::string_view line)
    {
        switch (line.empty() ? '\0' : line.front()) {
        case '#':
            return true;
        case '=':
            return readCountry(line.substr(1));
        case '@':
            m_next.timeZone = line.substr(1);
            m_next.region = {};
            return !m_next.country.empty() && !m_next.timeZone.empty();
        case ':':
            m_next.region = line.substr(1);
            return !m_next.timeZone.empty();
        default:
            return readCity(line);
        }
    }

    std::vector<Place> take() { return std::move(m_places); }

private:
    bool readCountry(std::string_view line)
    {
        const auto fields = fieldsOf<3>(line);
        if (!fields) {
            return false;
        }
        const auto &[code, name, otherNames] = *fields;
        m_next = {.country = code, .countryName = name, .otherCountryNames = otherNames};
        return code.size() == 2 && !name.empty();
    }

    bool readCity(std::string_view line)
    {
        const auto fields = fieldsOf<6>(line);
        if (!fields || m_next.timeZone.empty()) {
            return false;
        }
        const auto &[name, asciiName, latitude, longitude, thousands, otherNames] = *fields;
        Place &place = m_places.emplace_back(m_next);
        place.name = name;
        place.asciiName = asciiName;
        place.otherNames = otherNames;
        const bool areNumbers = readNumber(latitude, place.latitude) &&
                                readNumber(longitude, place.longitude) &&
                                readNumber(thousands, place.population);
        // Written so that a number that is none fails.
        const bool areInRange = std::abs(place.latitude) <= 90.0 &&
                                std::abs(place.longitude) <= 180.0 && place.population >= 0 &&
                                place.population < 100'000;
        if (name.empty() || !areNumbers || !areInRange) {
            return false;
        }
        place.population *= 1000;
        return true;
    }

    Place m_next{}; // what the next city has from the lines above it
    std::vector<Place> m_places{};
};

bool isAscii(std::string_view text)
{
    return std::ranges::all_of(text,
                               [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// The product's form for searching; for ASCII, which most names are, without asking ICU.
std::string withoutCaseAndAccents(std::string_view text)
{
    std::string form;
    if (isAscii(text)) {
        form = text;
        std::ranges::transform(form, form.begin(), [](char c) {
            return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
        });
        return form;
    }
    form = normalizeForSearch(text);
    for (const std::string_view sign :
         {"\u02BB", "\u02BC", "\u02BE", "\u02BF", "\u2018", "\u2019"}) {
        Base::replaceAll(form, sign, "'");
    }
    for (const std::string_view dash : {"\u2010", "\u2013", "\u2014"}) {
        Base::replaceAll(form, dash, "-");
    }
    // In a Turkish session a capital I folds to the dotless one.
    Base::replaceAll(form, "\u0131", "i");
    // Arabic endings that are written either way, and the letters of Persian and Urdu keys.
    Base::replaceAll(form, "\u0629", "\u0647");
    Base::replaceAll(form, "\u0649", "\u064A");
    Base::replaceAll(form, "\u06CC", "\u064A");
    Base::replaceAll(form, "\u06A9", "\u0643");
    return form;
}

// What is compared: words with one space between, no apostrophes, hyphens or full stops.
std::string searchForm(std::string_view text)
{
    std::string form;
    for (const char c : withoutCaseAndAccents(text)) {
        const bool separates = c == ' ' || c == '-' || c == '\t';
        if (c == '\'' || c == '`' || c == '.' || (separates && form.ends_with(' '))) {
            continue;
        }
        if (!separates || !form.empty()) {
            form += separates ? ' ' : c;
        }
    }
    if (form.ends_with(' ')) {
        form.pop_back();
    }
    return form;
}

// How well a name fits, the best first.
enum class Fit : std::uint8_t { exact, sameCountry, prefix, wordStart, none };

Fit fitOf(std::string_view name, std::string_view wanted)
{
    if (name.starts_with(wanted)) {
        return name.size() == wanted.size() ? Fit::exact : Fit::prefix;
    }
    for (std::size_t at = name.find(wanted); at != std::string_view::npos;
         at = name.find(wanted, at + 1)) {
        if (name[at - 1] == ' ') {
            return Fit::wordStart;
        }
    }
    return Fit::none;
}

// One name of a place, in its form for searching.
struct Key {
    std::string text{};
    std::uint32_t place{};
    bool isOther{}; // weighs less than the place's own name
};

std::vector<Key> makeKeys(const std::vector<Place> &places)
{
    std::vector<Key> keys;
    for (std::uint32_t at = 0; at < places.size(); ++at) {
        const Place &place = places[at];
        keys.push_back({.text = searchForm(place.name), .place = at});
        if (!place.asciiName.empty()) {
            keys.push_back({.text = searchForm(place.asciiName), .place = at});
        }
        if (!place.otherNames.empty()) {
            for (const std::string_view other : Base::split(place.otherNames, ',')) {
                keys.push_back({.text = searchForm(other), .place = at, .isOther = true});
            }
        }
    }
    return keys;
}

const std::vector<Key> &allKeys()
{
    static const std::vector<Key> kKeys = makeKeys(allPlaces());
    return kKeys;
}

// One way to understand a query: a name, and perhaps the country or region that it is in.
struct Reading {
    std::string name{};
    std::string area{};
    bool isAreaPrefix{}; // the area may still be being typed
};

std::vector<Reading> readingsOf(std::string_view query)
{
    if (const auto comma = query.rfind(','); comma != std::string_view::npos) {
        return {{.name = searchForm(query.substr(0, comma)),
                 .area = searchForm(query.substr(comma + 1)),
                 .isAreaPrefix = true}};
    }
    const std::string words = searchForm(query);
    std::vector<Reading> readings{{.name = words}, {.area = words}};
    for (std::size_t space = words.find(' '); space != std::string::npos;
         space = words.find(' ', space + 1)) {
        readings.push_back({.name = words.substr(0, space), .area = words.substr(space + 1)});
    }
    return readings;
}

bool isInCountry(const Place &place, const Reading &reading)
{
    const auto fits = [&](std::string_view name) {
        const Fit fit = fitOf(searchForm(name), reading.area);
        return fit == Fit::exact || (reading.isAreaPrefix && fit == Fit::prefix);
    };
    return fits(place.countryName) ||
           std::ranges::any_of(Base::split(place.otherCountryNames, ','), fits);
}

bool isInArea(const Place &place, const Reading &reading)
{
    if (reading.area.empty() || searchForm(place.country) == reading.area ||
        isInCountry(place, reading)) {
        return true;
    }
    const Fit fit = fitOf(searchForm(place.region), reading.area);
    return fit == Fit::exact || (fit == Fit::prefix && reading.isAreaPrefix);
}

struct Match {
    Fit fit = Fit::none;
    bool isOther{};

    auto operator<=>(const Match &) const = default;
};

// The best match of each place so far.
using Matches = std::vector<Match>;

void matchNames(const Reading &reading, Matches &matches)
{
    for (const Key &key : allKeys()) {
        const Match match{.fit = fitOf(key.text, reading.name), .isOther = key.isOther};
        if (match.fit != Fit::none && match < matches[key.place] &&
            isInArea(allPlaces()[key.place], reading)) {
            matches[key.place] = match;
        }
    }
}

// A country's cities stand together in the list, so each country is looked at once.
void matchCountry(const Reading &reading, Matches &matches)
{
    const auto &places = allPlaces();
    bool isInside = false;
    for (std::size_t at = 0; at < places.size(); ++at) {
        if (at == 0 || places[at].country != places[at - 1].country) {
            isInside = isInCountry(places[at], reading);
        }
        if (isInside) {
            matches[at] = std::min(matches[at], Match{.fit = Fit::sameCountry});
        }
    }
}

} // namespace

Result<std::vector<Place>> parsePlaces(std::string_view text)
{
    ListReader reader;
    if (text.ends_with('\n')) {
        text.remove_suffix(1);
    }
    std::size_t number = 0;
    for (const std::string_view line : Base::split(text, '\n')) {
        ++number;
        if (!reader.read(line)) {
            return std::unexpected(
                KestError::invalidData(fmt::format("bad line {}: \"{}\"", number, line)));
        }
    }
    return reader.take();
}

const std::vector<Place> &allPlaces()
{
    static const std::string kText = coreBundle().read("cities", "tsv", kSource);
    static const std::vector<Place> kPlaces = [] {
        auto places = parsePlaces(kText);
        if (!places) {
            Base::fatalFault(kSource,
                             "the resource cities.tsv is broken: " + places.error().message);
        }
        return *std::move(places);
    }();
    return kPlaces;
}

std::vector<const Place *> searchPlaces(std::string_view query, std::size_t limit)
{
    const auto &places = allPlaces();
    Matches matches(places.size());
    for (const Reading &reading : readingsOf(query)) {
        if (!reading.name.empty()) {
            matchNames(reading, matches);
        } else if (!reading.area.empty()) {
            matchCountry(reading, matches);
        }
    }
    std::vector<std::size_t> found;
    for (std::size_t at = 0; at < places.size(); ++at) {
        if (matches[at].fit != Fit::none) {
            found.push_back(at);
        }
    }
    const auto isBetter = [&](std::size_t a, std::size_t b) {
        return std::tuple{matches[a], -places[a].population, a} <
               std::tuple{matches[b], -places[b].population, b};
    };
    std::ranges::sort(found, isBetter);
    found.resize(std::min(limit, found.size()));
    std::vector<const Place *> best;
    best.reserve(found.size());
    for (const std::size_t at : found) {
        best.push_back(&places[at]);
    }
    return best;
}

Settings settingsFor(const Place &place)
{
    return {
        {"prayer.latitude", fmt::format("{}", place.latitude)},
        {"prayer.longitude", fmt::format("{}", place.longitude)},
        {"prayer.timezone", std::string{place.timeZone}},
        {"prayer.country", std::string{place.country}},
        {"prayer.city", std::string{place.name}},
        {"prayer.locationMode", "manual"},
    };
}

} // namespace KestCore
