// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/SearchForm.h"

#include "Base/Text.h"

#include <algorithm>

namespace KestCore
{

namespace
{

constexpr std::string_view kPlainAlef = "\u0627";

// Harakat and Quranic marks U+064B to U+065F are D9 8B to D9 9F in UTF-8. The text stays where
// it is: of one that is secret, no copy may be left behind.
void removeArabicMarks(std::string &text)
{
    std::size_t kept = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto lead = static_cast<unsigned char>(text[at]);
        const auto next = at + 1 < text.size() ? static_cast<unsigned char>(text[at + 1]) : 0;
        const bool isHaraka = lead == 0xD9 && next >= 0x8B && next <= 0x9F;
        const bool isSuperscriptAlef = lead == 0xD9 && next == 0xB0;
        const bool isTatweel = lead == 0xD9 && next == 0x80;
        if (isHaraka || isSuperscriptAlef || isTatweel) {
            ++at;
            continue;
        }
        text[kept++] = text[at];
    }
    text.resize(kept);
}

} // namespace

std::string normalizeForSearch(std::string_view text)
{
    std::string form = Base::foldCaseAndDiacritics(text);
    removeArabicMarks(form);
    for (const std::string_view alef : {"\u0623", "\u0625", "\u0622"}) {
        Base::replaceAll(form, alef, kPlainAlef);
    }
    return form;
}

std::string looseSearchForm(std::string_view text)
{
    std::string form = normalizeForSearch(text);
    Base::replaceAll(form, "\u0671", kPlainAlef);
    for (const std::string_view dropped :
         {"\u02BE", "\u02BF", "\u2018", "\u2019", "'", "`", "-", "\u2013", "\u2014"}) {
        Base::replaceAll(form, dropped, "");
    }
    return form;
}

SearchFit fitOfWhole(std::string_view text, std::string_view wanted)
{
    const std::size_t first = text.find(wanted);
    if (first == 0) {
        return text.size() == wanted.size() ? SearchFit::exact : SearchFit::prefix;
    }
    for (std::size_t at = first; at != std::string_view::npos; at = text.find(wanted, at + 1)) {
        if (text[at - 1] == ' ' || text[at - 1] == '\n') {
            return SearchFit::wordStart;
        }
    }
    return first == std::string_view::npos ? SearchFit::none : SearchFit::inside;
}

bool hasAllWords(std::string_view text, std::span<const std::string_view> words)
{
    return std::ranges::all_of(words,
                               [&](std::string_view word) { return text.contains(word); });
}

} // namespace KestCore
