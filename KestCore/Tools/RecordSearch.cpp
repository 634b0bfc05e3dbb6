// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/RecordSearch.h"

#include "Base/Text.h"
#include "KestCore/SearchForm.h"
#include "KestCore/Tools/Texts.h"

#include <fmt/format.h>

#include <algorithm>
#include <tuple>

namespace KestCore
{

namespace
{

constexpr std::size_t kLongestExcerpt = 120;
constexpr std::size_t kShownBefore = 5; // words before the one that was found

using Words = std::vector<std::string_view>;

Words wordsOf(std::string_view text)
{
    Words words;
    while (!(text = trimmed(text)).empty()) {
        const std::size_t end = std::min(text.find_first_of(" \t\r\n\v\f"), text.size());
        words.push_back(text.substr(0, end));
        text.remove_prefix(end);
    }
    return words;
}

struct Query {
    std::string form{};
    Words words{}; // of the form
};

// How well a text fits, the best first.
enum class Fit : std::uint8_t { exact, prefix, wordStart, inside, words, none };

Fit fitOf(std::string_view form, const Query &query)
{
    const std::size_t first = form.find(query.form);
    if (first == 0) {
        return form.size() == query.form.size() ? Fit::exact : Fit::prefix;
    }
    for (std::size_t at = first; at != std::string_view::npos;
         at = form.find(query.form, at + 1)) {
        if (form[at - 1] == ' ' || form[at - 1] == '\n') {
            return Fit::wordStart;
        }
    }
    if (first != std::string_view::npos) {
        return Fit::inside;
    }
    const bool hasAll = std::ranges::all_of(
        query.words, [&](std::string_view word) { return form.contains(word); });
    return hasAll ? Fit::words : Fit::none;
}

bool holdsAWord(std::string_view text, const Query &query)
{
    const std::string form = looseSearchForm(text);
    return std::ranges::any_of(query.words,
                               [&](std::string_view word) { return form.contains(word); });
}

// A long line shows from a little before what was found in it.
std::string excerptOf(std::string_view line, const Query &query)
{
    const Words words = wordsOf(line);
    const auto found = std::ranges::find_if(
        words, [&](std::string_view word) { return holdsAWord(word, query); });
    const auto at = found == words.end() ? 0 : static_cast<std::size_t>(found - words.begin());
    if (at <= kShownBefore || Base::countCodePoints(line) <= kLongestExcerpt) {
        return shortened(trimmed(line), kLongestExcerpt);
    }
    const auto cut = static_cast<std::size_t>(words[at - kShownBefore].data() - line.data());
    return shortened("\u2026" + std::string{trimmed(line.substr(cut))}, kLongestExcerpt);
}

// The line that fits best; of equal ones the first.
std::string bestLine(std::string_view text, const Query &query)
{
    std::string_view best;
    auto bestFit = std::tuple{Fit::none, std::size_t{0}};
    for (const std::string_view line : Base::split(text, '\n')) {
        const std::string form = looseSearchForm(line);
        const auto held = std::ranges::count_if(
            query.words, [&](std::string_view word) { return form.contains(word); });
        const auto fit =
            std::tuple{fitOf(form, query), query.words.size() - static_cast<std::size_t>(held)};
        if (held > 0 && (best.empty() || fit < bestFit)) {
            best = line;
            bestFit = fit;
        }
    }
    return best.empty() ? "" : excerptOf(best, query);
}

struct Ranked {
    std::tuple<Fit, Fit> rank{Fit::none, Fit::none}; // of the title, then of the text
    RecordHit hit{};
};

} // namespace

std::vector<RecordHit> searchRecords(const std::vector<LocalRecord> &records,
                                     std::string_view query, const SearchedText &textOf)
{
    Query wanted{.form = looseSearchForm(trimmed(query))};
    wanted.words = wordsOf(wanted.form);
    std::vector<Ranked> found;
    for (const LocalRecord &record : records) {
        const std::string text = textOf(record);
        const std::string title = looseSearchForm(record.title);
        const std::string form = looseSearchForm(text);
        const std::tuple rank{fitOf(title, wanted), fitOf(form, wanted)};
        if (rank == std::tuple{Fit::none, Fit::none} &&
            fitOf(fmt::format("{}\n{}", title, form), wanted) == Fit::none) {
            continue;
        }
        found.push_back(
            {.rank = rank, .hit = {.record = record, .excerpt = bestLine(text, wanted)}});
    }
    std::ranges::stable_sort(found, {}, &Ranked::rank);
    std::vector<RecordHit> hits;
    for (Ranked &ranked : found) {
        hits.push_back(std::move(ranked.hit));
    }
    return hits;
}

} // namespace KestCore
