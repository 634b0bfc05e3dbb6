// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Surfaces/PaletteIndex.h"

#include "Base/Text.h"
#include "KestCore/Surfaces/PaletteMatching.h"
#include "KestCore/Tools/Emoji.h"

#include <algorithm>
#include <cstring>
#include <optional>

namespace KestCore
{

namespace
{

// A rank is one number, the lowest the best: fit, weight, distance, item.
constexpr unsigned kFitShift = 60;
constexpr unsigned kWeightShift = 44;
constexpr unsigned kDistanceShift = 28;
constexpr std::uint32_t kHighestWeight = 0xFFFF;
constexpr std::uint32_t kLongestDistance = 0xFFFF;
constexpr double kWeightSteps = 64;
constexpr std::uint64_t kNoRank = ~std::uint64_t{0};

struct Fit {
    PaletteFit fit{};
    std::uint32_t distance{};

    auto operator<=>(const Fit &) const = default;
};

// A bit for each letter and digit; all other bytes share the rest.
std::uint64_t letterBit(char byte)
{
    constexpr unsigned kDigits = 26;
    constexpr unsigned kOthers = 36;
    constexpr unsigned kOtherBits = 28;
    const auto value = static_cast<unsigned char>(byte);
    if (byte >= 'a' && byte <= 'z') {
        return std::uint64_t{1} << static_cast<unsigned>(byte - 'a');
    }
    if (byte >= '0' && byte <= '9') {
        return std::uint64_t{1} << (kDigits + static_cast<unsigned>(byte - '0'));
    }
    return std::uint64_t{1} << (kOthers + value % kOtherBits);
}

std::uint64_t lettersOf(std::string_view form)
{
    std::uint64_t letters = 0;
    for (const char byte : form) {
        if (byte != ' ' && byte != '\n') {
            letters |= letterBit(byte);
        }
    }
    return letters;
}

std::size_t placeOf(std::string_view text, std::string_view wanted, std::size_t from)
{
    if (from >= text.size()) {
        return std::string_view::npos;
    }
    const void *found =
        memmem(text.data() + from, text.size() - from, wanted.data(), wanted.size());
    return found == nullptr
               ? std::string_view::npos
               : static_cast<std::size_t>(static_cast<const char *>(found) - text.data());
}

// What one place in a line of names means.
Fit fitAt(std::string_view names, std::size_t at, std::size_t size)
{
    const std::size_t lineEnd = std::min(names.find('\n', at), names.size());
    if (at > 0 && names[at - 1] != '\n') {
        const auto fit = names[at - 1] == ' ' ? PaletteFit::wordStart : PaletteFit::inside;
        return {.fit = fit, .distance = static_cast<std::uint32_t>(lineEnd - at - size)};
    }
    return {.fit = lineEnd == at + size ? PaletteFit::exact : PaletteFit::prefix,
            .distance = static_cast<std::uint32_t>(lineEnd - at - size)};
}

std::optional<Fit> fitOfNames(std::string_view names, std::string_view wanted)
{
    std::optional<Fit> best;
    for (std::size_t at = placeOf(names, wanted, 0); at != std::string_view::npos;
         at = placeOf(names, wanted, at + 1)) {
        const Fit fit = fitAt(names, at, wanted.size());
        best = best ? std::min(*best, fit) : fit;
    }
    return best;
}

bool hasWordStart(std::string_view text, std::string_view wanted)
{
    for (std::size_t at = placeOf(text, wanted, 0); at != std::string_view::npos;
         at = placeOf(text, wanted, at + 1)) {
        if (detail::beginsWord(text, at)) {
            return true;
        }
    }
    return false;
}

} // namespace

struct PaletteIndex::Query {
    std::string form{};
    std::string squeezed{}; // without its spaces, where it has some
    std::vector<std::string_view> words{};
    std::uint64_t letters{};

    explicit Query(std::string_view text) : form(paletteForm(text))
    {
        letters = lettersOf(form);
        if (form.contains(' ')) {
            squeezed = form;
            std::erase(squeezed, ' ');
            words = Base::split(form, ' ');
        }
    }
};

std::string paletteForm(std::string_view text)
{
    std::string bare{text};
    for (const std::string_view dropped :
         {"\u02BE", "\u02BF", "\u2018", "\u2019", "\u0670", "'", "`"}) {
        Base::replaceAll(bare, dropped, "");
    }
    return emojiSearchForm(bare);
}

std::uint32_t PaletteIndex::add(const PaletteText &text)
{
    Item item{.begin = static_cast<std::uint32_t>(m_text.size())};
    m_text.append(paletteForm(text.title)).append("\n");
    for (const std::string &name : text.names) {
        m_text.append(paletteForm(name)).append("\n");
    }
    item.namesEnd = static_cast<std::uint32_t>(m_text.size());
    m_text.append(paletteForm(text.keywords));
    item.end = static_cast<std::uint32_t>(m_text.size());
    m_letters.push_back(lettersOf(std::string_view{m_text}.substr(item.begin)));
    m_items.push_back(item);
    return size() - 1;
}

void PaletteIndex::truncate(std::uint32_t first)
{
    if (first >= size()) {
        return;
    }
    m_text.resize(m_items[first].begin);
    m_items.resize(first);
    m_letters.resize(first);
}

void PaletteIndex::setWeight(std::uint32_t item, double weight)
{
    m_items[item].weight = static_cast<std::uint16_t>(
        std::clamp(weight * kWeightSteps, 0.0, static_cast<double>(kHighestWeight)));
}

// kNoRank where the item does not fit.
std::uint64_t PaletteIndex::rankOf(const Query &query, std::uint32_t number) const
{
    const Item &item = m_items[number];
    const std::string_view text{m_text};
    const auto names = text.substr(item.begin, item.namesEnd - item.begin);
    const auto keywords = text.substr(item.namesEnd, item.end - item.namesEnd);
    auto fit = fitOfNames(names, query.form);
    if (!query.squeezed.empty()) {
        if (const auto joined = fitOfNames(names, query.squeezed)) {
            fit = fit ? std::min(*fit, *joined) : *joined;
        }
    }
    if (!fit && !query.words.empty() &&
        std::ranges::all_of(query.words, [&](std::string_view word) {
            return hasWordStart(names, word) || hasWordStart(keywords, word);
        })) {
        fit = Fit{.fit = PaletteFit::allWords, .distance = 0};
    }
    if (!fit && hasWordStart(keywords, query.form)) {
        fit = Fit{.fit = PaletteFit::keyword, .distance = 0};
    }
    if (!fit) {
        const auto title = names.substr(0, names.find('\n'));
        const auto fuzzy = detail::fuzzyMatch(title, query.form);
        if (!fuzzy) {
            return kNoRank;
        }
        fit = Fit{.fit = PaletteFit::fuzzy, .distance = fuzzy->cost};
    }
    return (static_cast<std::uint64_t>(fit->fit) << kFitShift) |
           (static_cast<std::uint64_t>(kHighestWeight - item.weight) << kWeightShift) |
           (static_cast<std::uint64_t>(std::min(fit->distance, kLongestDistance))
            << kDistanceShift) |
           number;
}

std::vector<PaletteMatch> PaletteIndex::search(std::string_view text) const
{
    const Query query{text};
    if (query.form.empty()) {
        return {};
    }
    std::vector<std::uint64_t> ranks;
    const auto look = [&](std::uint32_t number) {
        if ((m_letters[number] & query.letters) == query.letters) {
            const std::uint64_t rank = rankOf(query, number);
            if (rank != kNoRank) {
                ranks.push_back(rank);
            }
        }
    };
    for (std::uint32_t number = 0; number < size(); ++number) {
        look(number);
    }
    std::ranges::sort(ranks);
    std::vector<PaletteMatch> matches;
    matches.reserve(ranks.size());
    for (const std::uint64_t rank : ranks) {
        matches.push_back({.item = static_cast<std::uint32_t>(rank % kMostItems),
                           .fit = static_cast<PaletteFit>(rank >> kFitShift)});
    }
    return matches;
}

} // namespace KestCore
