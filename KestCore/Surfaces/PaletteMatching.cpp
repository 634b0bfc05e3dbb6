// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Surfaces/PaletteMatching.h"

#include "Base/Text.h"
#include "KestCore/Surfaces/PaletteIndex.h"

#include <algorithm>
#include <string>

namespace KestCore
{

namespace detail
{

namespace
{

// Each letter begins a word, as "rs" does in "resume stopwatch".
std::optional<FuzzyMatch> initials(std::string_view title, std::string_view query)
{
    FuzzyMatch match{.positions = {}, .cost = 0};
    std::size_t next = 0;
    for (std::size_t at = 0; at < query.size();) {
        const std::size_t size = codePointSize(query, at);
        const std::string_view letter = query.substr(at, size);
        while (next < title.size() &&
               !(beginsWord(title, next) && title.substr(next).starts_with(letter))) {
            ++next;
        }
        if (next >= title.size()) {
            return std::nullopt;
        }
        match.positions.push_back(next);
        next += size;
        at += size;
    }
    return match.positions.size() > 1 ? std::optional{std::move(match)} : std::nullopt;
}

// Tries one beginning; the letters then come as early as they can.
std::optional<FuzzyMatch> fuzzyFrom(std::string_view title, std::string_view query,
                                    std::size_t first)
{
    FuzzyMatch match;
    std::size_t pieces = 0;
    std::size_t expected = std::string_view::npos;
    std::size_t next = first;
    for (std::size_t at = 0; at < query.size();) {
        const std::size_t size = codePointSize(query, at);
        const std::size_t found = title.find(query.substr(at, size), next);
        if (found == std::string_view::npos || (at == 0 && found != first)) {
            return std::nullopt;
        }
        pieces += found != expected ? 1 : 0;
        match.positions.push_back(found);
        next = found + size;
        expected = next;
        at += size;
    }
    const std::size_t skipped = next - first - query.size();
    if (skipped > query.size() || pieces > match.positions.size() - 1) {
        return std::nullopt;
    }
    match.cost = static_cast<std::uint32_t>(pieces * 64 + skipped);
    return match;
}

} // namespace

std::size_t codePointSize(std::string_view text, std::size_t at)
{
    std::size_t end = at + 1;
    while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) {
        ++end;
    }
    return end - at;
}

std::optional<FuzzyMatch> fuzzyMatch(std::string_view title, std::string_view query)
{
    std::optional<FuzzyMatch> best = initials(title, query);
    for (std::size_t at = 0; !best && at < title.size(); ++at) {
        if (title[at] != query.front() || !beginsWord(title, at)) {
            continue;
        }
        best = fuzzyFrom(title, query, at);
    }
    return best;
}

std::size_t findBest(std::string_view text, std::string_view wanted)
{
    const std::size_t first = text.find(wanted);
    for (std::size_t at = first; at != std::string_view::npos; at = text.find(wanted, at + 1)) {
        if (beginsWord(text, at)) {
            return at;
        }
    }
    return first;
}

} // namespace detail

namespace
{

// A title in its compared form, which remembers where each byte came from.
struct TracedForm {
    std::string form{};
    std::vector<PaletteSpan> origins{}; // one a byte of the form
};

bool isArabic(std::string_view character)
{
    const auto lead = static_cast<unsigned char>(character.front());
    return lead >= 0xD8 && lead <= 0xDB;
}

TracedForm tracedForm(std::string_view title)
{
    TracedForm traced;
    for (std::size_t at = 0; at < title.size();) {
        const std::size_t size = detail::codePointSize(title, at);
        const std::string_view character = title.substr(at, size);
        std::string form = paletteForm(character);
        const bool isGap = form.empty() && size == 1 && character != "'" && character != "`";
        if (isGap && !traced.form.empty() && !traced.form.ends_with(' ')) {
            form.assign(1, ' ');
        }
        for (const char byte : form) {
            traced.form += byte;
            traced.origins.push_back({.begin = at, .size = size});
        }
        // Marks belong to the letter before them.
        if (form.empty() && size > 1 && !traced.origins.empty()) {
            auto &letter = traced.origins.back();
            letter.size = at + size - letter.begin;
        }
        at += size;
    }
    return traced;
}

PaletteSpan wholeArabicWords(std::string_view title, PaletteSpan span)
{
    if (!isArabic(title.substr(span.begin, 1))) {
        return span;
    }
    std::size_t begin = span.begin;
    std::size_t end = span.begin + span.size;
    while (begin > 0 && title[begin - 1] != ' ') {
        --begin;
    }
    while (end < title.size() && title[end] != ' ') {
        ++end;
    }
    return {.begin = begin, .size = end - begin};
}

class Marks
{
public:
    explicit Marks(std::string_view title) : m_title(title), m_traced(tracedForm(title)) {}

    const std::string &form() const { return m_traced.form; }

    void mark(std::size_t at, std::size_t size)
    {
        const auto &first = m_traced.origins[at];
        const auto &last = m_traced.origins[at + size - 1];
        const auto span = wholeArabicWords(
            m_title, {.begin = first.begin, .size = last.begin + last.size - first.begin});
        m_spans.push_back(span);
    }

    std::vector<PaletteSpan> merged()
    {
        std::ranges::sort(m_spans, {}, &PaletteSpan::begin);
        std::vector<PaletteSpan> result;
        for (const PaletteSpan &span : m_spans) {
            if (!result.empty() && span.begin <= result.back().begin + result.back().size) {
                const std::size_t end =
                    std::max(result.back().begin + result.back().size, span.begin + span.size);
                result.back().size = end - result.back().begin;
            } else {
                result.push_back(span);
            }
        }
        return result;
    }

private:
    std::string_view m_title;
    TracedForm m_traced;
    std::vector<PaletteSpan> m_spans;
};

bool markAllWords(Marks &marks, std::string_view form)
{
    bool hasAny = false;
    for (const std::string_view word : Base::split(form, ' ')) {
        const std::size_t at = detail::findBest(marks.form(), word);
        if (at != std::string::npos && detail::beginsWord(marks.form(), at)) {
            marks.mark(at, word.size());
            hasAny = true;
        }
    }
    return hasAny;
}

} // namespace

std::vector<PaletteSpan> matchedSpans(std::string_view title, std::string_view query)
{
    const std::string form = paletteForm(query);
    if (form.empty()) {
        return {};
    }
    Marks marks{title};
    if (const std::size_t at = detail::findBest(marks.form(), form); at != std::string::npos) {
        marks.mark(at, form.size());
        return marks.merged();
    }
    if (form.contains(' ') && markAllWords(marks, form)) {
        return marks.merged();
    }
    if (const auto fuzzy = detail::fuzzyMatch(marks.form(), form)) {
        for (const std::size_t at : fuzzy->positions) {
            marks.mark(at, detail::codePointSize(marks.form(), at));
        }
    }
    return marks.merged();
}

} // namespace KestCore
