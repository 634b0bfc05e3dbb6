// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/TypedConversion.h"

#include "Base/Text.h"
#include "KestCore/Tools/UnitNames.h"

#include <fmt/format.h>

#include <algorithm>
#include <vector>

namespace KestCore
{

namespace
{

// No conversion is longer, and all the work below grows with these.
constexpr std::size_t kLongestLine = 200; // bytes
constexpr std::size_t kMostWords = 10;

constexpr std::string_view kSeparators[] = {"to", "in", "into", "as", "="};

struct Spelling {
    std::string_view typed;
    std::string_view meant;
};

// A line cut into its number and the words behind it.
struct Cut {
    std::string number{};
    std::vector<std::string_view> words{};
};

bool isSeparator(std::string_view word)
{
    return std::ranges::find(kSeparators, Base::lowerAscii(word)) != std::end(kSeparators);
}

// Every blank is one space and every arrow a word.
std::string plainLine(std::string_view line)
{
    constexpr Spelling kPlain[] = {
        {"\u00A0", " "}, {"\u2009", " "}, {"\u202F", " "}, {"\t", " "},    {"\u2212", "-"},
        {"→", " to "},   {"⇒", " to "},   {"->", " to "},  {"=>", " to "}, {"=", " = "},
    };
    std::string plain{Base::trimmed(line)};
    for (const auto &[typed, meant] : kPlain) {
        Base::replaceAll(plain, typed, meant);
    }
    return plain;
}

// How far the number at the start goes: sign, digits with points or commas, exponent.
std::size_t numberEnd(std::string_view line)
{
    constexpr std::string_view kDigits = "0123456789";
    constexpr std::string_view kArabicSeparator = "\u066B";
    std::size_t at = line.starts_with('-') || line.starts_with('+') ? 1 : 0;
    bool hasDigit = false;
    while (at < line.size()) {
        const std::string_view rest = line.substr(at);
        if (rest.starts_with(kArabicSeparator)) {
            at += kArabicSeparator.size();
        } else if (kDigits.contains(rest[0]) || rest[0] == '.' || rest[0] == ',') {
            hasDigit = hasDigit || kDigits.contains(rest[0]);
            ++at;
        } else {
            break;
        }
    }
    if (!hasDigit) {
        return 0;
    }
    const std::size_t exponent = line.find_first_not_of("eE", at);
    if (exponent != at + 1) {
        return at;
    }
    const bool hasSign = line[exponent] == '-' || line[exponent] == '+';
    const std::size_t digits = exponent + (hasSign ? 1 : 0);
    const std::size_t end = std::min(line.find_first_not_of(kDigits, digits), line.size());
    return end > digits ? end : at;
}

// Points into `plain`.
Cut cut(std::string_view plain)
{
    const std::size_t end = numberEnd(plain);
    Cut parts{.number = std::string{plain.substr(0, end)}};
    for (const std::string_view word : Base::split(plain.substr(end), ' ')) {
        if (!word.empty()) {
            parts.words.push_back(word);
        }
    }
    return parts;
}

std::string joined(std::span<const std::string_view> words)
{
    return fmt::format("{}", fmt::join(words, " "));
}

std::optional<UnitConversion> between(const Cut &parts, std::size_t fromEnd,
                                      std::size_t toBegin)
{
    const std::span words{parts.words};
    if (toBegin >= words.size()) {
        return std::nullopt;
    }
    const UnitDefinition *from = unitNamed(joined(words.first(fromEnd)));
    const UnitDefinition *to = unitNamed(joined(words.subspan(toBegin)));
    if (from == nullptr || to == nullptr) {
        return std::nullopt;
    }
    return UnitConversion{.category = std::string{from->category},
                          .from = std::string{from->id},
                          .to = std::string{to->id},
                          .text = parts.number};
}

// The word between two units may be missing, and "in" may be an inch itself, so every place
// between two words is tried.
std::optional<UnitConversion> conversionOf(const Cut &parts)
{
    if (parts.number.empty() || parts.words.size() > kMostWords) {
        return std::nullopt;
    }
    for (std::size_t at = 1; at < parts.words.size(); ++at) {
        auto found = isSeparator(parts.words[at]) ? between(parts, at, at + 1) : std::nullopt;
        found = found ? found : between(parts, at, at);
        if (found) {
            return found;
        }
    }
    return std::nullopt;
}

KestError refusal(std::string message) { return KestError::invalidData(std::move(message)); }

KestError unknownUnit(std::string_view name)
{
    const auto near = unitsNear(name);
    if (!near.empty()) {
        return refusal(fmt::format("There is no unit \"{}\"; the nearest {} {}", name,
                                   near.size() == 1 ? "is" : "are", fmt::join(near, ", ")));
    }
    std::vector<std::string_view> all;
    std::ranges::transform(Units::all(), std::back_inserter(all), &UnitDefinition::id);
    return refusal(
        fmt::format("There is no unit \"{}\"; there are {}", name, fmt::join(all, ", ")));
}

// Why no conversion was found.
KestError reasonAgainst(const Cut &parts)
{
    const std::span words{parts.words};
    if (parts.number.empty()) {
        return refusal(std::string{kCannotConvert});
    }
    std::size_t fromEnd = words.size() == 2 ? 1 : 0;
    std::size_t toBegin = fromEnd;
    for (std::size_t at = 1; at + 1 < words.size() && fromEnd == 0; ++at) {
        fromEnd = isSeparator(words[at]) ? at : 0;
        toBegin = at + 1;
    }
    if (fromEnd > 0 && words.size() <= kMostWords) {
        for (const auto &name : {words.first(fromEnd), words.subspan(toBegin)}) {
            if (unitNamed(joined(name)) == nullptr) {
                return unknownUnit(joined(name));
            }
        }
    }
    return refusal("Write a number and two units, such as 5 km to mi");
}

} // namespace

std::optional<UnitConversion> typedConversion(std::string_view line)
{
    if (line.size() > kLongestLine) {
        return std::nullopt;
    }
    const std::string plain = plainLine(line);
    return conversionOf(cut(plain));
}

Result<UnitConversion> requireConversion(std::string_view line)
{
    const std::string plain = plainLine(line.substr(0, kLongestLine));
    const Cut parts = cut(plain);
    auto found = line.size() > kLongestLine ? std::nullopt : conversionOf(parts);
    if (!found) {
        return std::unexpected(reasonAgainst(parts));
    }
    return *std::move(found);
}

} // namespace KestCore
