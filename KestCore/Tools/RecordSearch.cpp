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
using Fit = SearchFit;

// Signs are left out of what is compared, unless there is nothing else in the query: a search
// for a hyphen means a hyphen. Stays where it is made, as the words are pieces of the form.
struct Query {
    explicit Query(std::string_view text)
    {
        for (auto *const one : {looseSearchForm, normalizeForSearch}) {
            if (words.empty()) {
                formOf = one;
                form = Base::trimmed(one(text));
                words = wordsOf(form);
            }
        }
    }
    Query(const Query &) = delete;
    Query &operator=(const Query &) = delete;
    ~Query() = default;

    std::string (*formOf)(std::string_view){};
    std::string form{};
    Words words{};
};

Fit fitOf(std::string_view form, const Query &query)
{
    const Fit whole = fitOfWhole(form, query.form);
    return whole == Fit::none && hasAllWords(form, query.words) ? Fit::allWords : whole;
}

bool holdsAWord(std::string_view text, const Query &query)
{
    const std::string form = query.formOf(text);
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
        return shortened(Base::trimmed(line), kLongestExcerpt);
    }
    const auto cut = static_cast<std::size_t>(words[at - kShownBefore].data() - line.data());
    return shortened("\u2026" + std::string{Base::trimmed(line.substr(cut))}, kLongestExcerpt);
}

// The line that fits best; of equal ones the first.
std::string bestLine(std::string_view text, const Query &query)
{
    std::string_view best;
    auto bestFit = std::tuple{Fit::none, std::size_t{0}};
    for (const std::string_view line : Base::split(text, '\n')) {
        const std::string form = query.formOf(line);
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
    const Query wanted{query};
    if (wanted.words.empty() && !Base::trimmed(query).empty()) {
        return {}; // marks alone
    }
    std::vector<Ranked> found;
    for (const LocalRecord &record : records) {
        const std::string text = textOf(record);
        const std::string title = wanted.formOf(record.title);
        const std::string form = wanted.formOf(text);
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
