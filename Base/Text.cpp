// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/Text.h"

#include "Base/Fault.h"
#include "Base/Secret.h"

#include <unicode/locid.h>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/uclean.h>
#include <unicode/unistr.h>
#include <unicode/utf8.h>

#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace Base
{

namespace
{

const icu::Normalizer2 &normalizer(const icu::Normalizer2 *(*get)(UErrorCode &))
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2 *found = get(status);
    if (U_FAILURE(status) != 0 || found == nullptr) {
        fatalFault("Base/Text", "the Unicode normalisation data is missing");
    }
    return *found;
}

icu::UnicodeString decompose(const icu::UnicodeString &text)
{
    UErrorCode status = U_ZERO_ERROR;
    return normalizer(icu::Normalizer2::getNFDInstance).normalize(text, status);
}

std::uint32_t foldOptions()
{
    const std::string_view language = icu::Locale::getDefault().getLanguage();
    const bool hasDotlessI = language == "tr" || language == "az";
    return hasDotlessI ? U_FOLD_CASE_EXCLUDE_SPECIAL_I : U_FOLD_CASE_DEFAULT;
}

// Visits each code point, or a negative number for bytes that are none, with where it begins
// and ends.
template <class Visit>
void forEachCodePoint(std::string_view text, const Visit &visit)
{
    const auto *bytes = reinterpret_cast<const std::uint8_t *>(text.data());
    const auto size = static_cast<std::int32_t>(text.size());
    for (std::int32_t at = 0, next = 0; at < size; at = next) {
        UChar32 character = 0;
        // NOLINTNEXTLINE(bugprone-inc-dec-in-conditions): ICU's macro
        U8_NEXT(bytes, next, size, character);
        visit(character, static_cast<std::size_t>(at), static_cast<std::size_t>(next));
    }
}

bool actsOnTerminal(UChar32 character)
{
    const auto type = u_charType(character);
    const bool turnsText = (character >= 0x202A && character <= 0x202E) ||
                           (character >= 0x2066 && character <= 0x2069);
    return turnsText || type == U_CONTROL_CHAR || type == U_LINE_SEPARATOR ||
           type == U_PARAGRAPH_SEPARATOR;
}

bool beginsCharacter(char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }

void *allocate(const void * /*context*/, std::size_t size) { return std::malloc(size); }

void release(const void * /*context*/, void *memory)
{
    OPENSSL_cleanse(memory, malloc_usable_size(memory));
    std::free(memory);
}

void *reallocate(const void *context, void *memory, std::size_t size)
{
    void *const larger = std::malloc(size);
    if (larger != nullptr && memory != nullptr) {
        std::memcpy(larger, memory, std::min(size, malloc_usable_size(memory)));
        release(context, memory);
    }
    return larger;
}

std::size_t cellsOf(char32_t point)
{
    const auto letter = static_cast<UChar32>(point);
    constexpr std::uint32_t kNoCells = U_GC_MN_MASK | U_GC_ME_MASK | U_GC_CF_MASK;
    if ((U_GET_GC_MASK(letter) & kNoCells) != 0) {
        return 0;
    }
    const int width = u_getIntPropertyValue(letter, UCHAR_EAST_ASIAN_WIDTH);
    return width == U_EA_WIDE || width == U_EA_FULLWIDTH ? 2 : 1;
}

} // namespace

std::size_t countCodePoints(std::string_view text)
{
    return static_cast<std::size_t>(std::ranges::count_if(text, beginsCharacter));
}

std::string_view firstCharacters(std::string_view text, std::size_t most)
{
    std::size_t characters = 0;
    const auto isBeyond = [&](char c) { return beginsCharacter(c) && characters++ == most; };
    const auto *const end = std::ranges::find_if(text, isBeyond);
    return text.substr(0, static_cast<std::size_t>(end - text.begin()));
}

std::u32string codePoints(std::string_view text)
{
    std::u32string points;
    forEachCodePoint(text, [&](UChar32 point, std::size_t /*begin*/, std::size_t /*end*/) {
        points += point < 0 ? U'\uFFFD' : static_cast<char32_t>(point);
    });
    return points;
}

std::size_t countCells(std::string_view text)
{
    std::size_t cells = 0;
    for (const char32_t point : codePoints(text)) {
        cells += cellsOf(point);
    }
    return cells;
}

std::string_view firstCells(std::string_view text, std::size_t most)
{
    std::size_t characters = 0;
    std::size_t cells = 0;
    for (const char32_t point : codePoints(text)) {
        cells += cellsOf(point);
        if (cells > most) {
            break;
        }
        ++characters;
    }
    return firstCharacters(text, characters);
}

void wipeUnicodeMemory()
{
    UErrorCode status = U_ZERO_ERROR;
    u_setMemoryFunctions(nullptr, allocate, reallocate, release, &status);
    if (U_FAILURE(status) != 0) {
        fatalFault("Base/Text", "the Unicode library does not let its memory be wiped");
    }
}

std::string foldCaseAndDiacritics(std::string_view text)
{
    auto folded = icu::UnicodeString::fromUTF8(text).foldCase(foldOptions());
    const auto decomposed = decompose(folded);
    icu::UnicodeString bare;
    for (std::int32_t at = 0; at < decomposed.length(); at = decomposed.moveIndex32(at, 1)) {
        const UChar32 character = decomposed.char32At(at);
        if (u_charType(character) != U_NON_SPACING_MARK) {
            bare.append(character);
        }
    }
    UErrorCode status = U_ZERO_ERROR;
    std::string out;
    normalizer(icu::Normalizer2::getNFCInstance).normalize(bare, status).toUTF8String(out);
    return out;
}

std::string lowerAscii(std::string_view text)
{
    std::string lower{text};
    std::ranges::transform(lower, lower.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return lower;
}

std::string_view trimmed(std::string_view text)
{
    std::size_t begin = text.size();
    std::size_t end = text.size();
    forEachCodePoint(text, [&](UChar32 character, std::size_t at, std::size_t next) {
        // A byte that is no character is no blank either.
        if (character < 0 || u_isUWhiteSpace(character) == 0) {
            begin = std::min(begin, at);
            end = next;
        }
    });
    return text.substr(begin, end - begin);
}

std::string printable(std::string_view text, Layout layout)
{
    std::string shown;
    forEachCodePoint(text, [&](UChar32 character, std::size_t at, std::size_t next) {
        const bool isLayout = character == '\t' || character == '\n';
        if (character < 0) {
            shown += "\uFFFD";
        } else if (isLayout ? layout == Layout::flat : actsOnTerminal(character)) {
            shown += "\u00B7";
        } else {
            shown += text.substr(at, next - at);
        }
    });
    return shown;
}

void replaceAll(std::string &text, std::string_view from, std::string_view to)
{
    for (std::size_t at = text.find(from); at != std::string::npos;
         at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
}

std::vector<std::string_view> split(std::string_view text, char separator)
{
    std::vector<std::string_view> pieces;
    while (true) {
        const std::size_t end = text.find(separator);
        pieces.push_back(text.substr(0, end));
        if (end == std::string_view::npos) {
            return pieces;
        }
        text.remove_prefix(end + 1);
    }
}

} // namespace Base
