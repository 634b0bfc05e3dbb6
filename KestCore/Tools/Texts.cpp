// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/Texts.h"

#include "Base/Text.h"
#include "KestCore/Models/UtilityPayloads.h"

#include <fmt/format.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/utf8.h>

#include <algorithm>

namespace KestCore
{

namespace
{

// Up to where a line is broken, by any of the signs for that.
std::string_view firstLineOf(std::string_view text)
{
    std::size_t end = text.find_first_of("\r\n\v\f");
    for (const std::string_view sign : {"\u0085", "\u2028", "\u2029"}) {
        end = std::min(end, text.find(sign));
    }
    return text.substr(0, end);
}

} // namespace

std::u32string codePointsOf(std::string_view text)
{
    const auto characters = icu::UnicodeString::fromUTF8(text);
    std::u32string points;
    for (std::int32_t at = 0; at < characters.length(); at = characters.moveIndex32(at, 1)) {
        points += static_cast<char32_t>(characters.char32At(at));
    }
    return points;
}

bool isVisible(std::string_view text)
{
    return std::ranges::any_of(codePointsOf(text), [](char32_t character) {
        const auto code = static_cast<UChar32>(character);
        return u_isUWhiteSpace(code) == 0 && u_charType(code) != U_CONTROL_CHAR &&
               u_hasBinaryProperty(code, UCHAR_DEFAULT_IGNORABLE_CODE_POINT) == 0;
    });
}

std::vector<std::string_view> wordsOf(std::string_view text)
{
    const auto *bytes = reinterpret_cast<const std::uint8_t *>(text.data());
    const auto size = static_cast<std::int32_t>(text.size());
    std::vector<std::string_view> words;
    bool isInside = false;
    for (std::int32_t at = 0, next = 0; at < size; at = next) {
        UChar32 character = 0;
        // NOLINTNEXTLINE(bugprone-inc-dec-in-conditions): ICU's macro
        U8_NEXT(bytes, next, size, character);
        if (character >= 0 && u_isUWhiteSpace(character) != 0) {
            isInside = false;
            continue;
        }
        const char *begin = isInside ? words.back().data() : text.data() + at;
        const std::string_view word{begin, text.data() + next};
        if (isInside) {
            words.back() = word;
        } else {
            words.push_back(word);
        }
        isInside = true;
    }
    return words;
}

bool hasControls(std::string_view text)
{
    return std::ranges::any_of(codePointsOf(text), [](char32_t character) {
        const auto type = u_charType(static_cast<UChar32>(character));
        return type == U_CONTROL_CHAR || type == U_LINE_SEPARATOR ||
               type == U_PARAGRAPH_SEPARATOR;
    });
}

std::string shortened(std::string_view text, std::size_t most)
{
    if (Base::countCodePoints(text) <= most) {
        return std::string{text};
    }
    std::size_t end = 0;
    for (std::size_t begun = 0; begun < most; ++end) {
        const bool begins = (static_cast<unsigned char>(text[end]) & 0xC0) != 0x80;
        begun += begins ? 1 : 0;
    }
    return std::string{text.substr(0, end - 1)} + "\u2026";
}

std::string titleFromText(std::string_view text)
{
    const auto words = wordsOf(text);
    const auto first = std::ranges::find_if(words, isVisible);
    if (first == words.end()) {
        return "";
    }
    const auto begin = static_cast<std::size_t>(first->data() - text.data());
    std::string title{Base::trimmed(firstLineOf(text.substr(begin)))};
    Base::replaceAll(title, "\t", " ");
    return shortened(title, kLongestTitle);
}

Result<std::string> checkedTitle(std::string_view title)
{
    const std::string_view bare = Base::trimmed(title);
    if (hasControls(bare) || Base::countCodePoints(bare) > kLongestTitle) {
        return std::unexpected(KestError::invalidData(
            fmt::format("A title is one line of at most {} characters", kLongestTitle)));
    }
    return isVisible(bare) ? std::string{bare} : "";
}

Result<void> checkLength(std::string_view what, std::string_view text)
{
    if (text.size() > kLongestText) {
        return std::unexpected(
            KestError::invalidData(fmt::format("{} holds at most 1,000,000 bytes", what)));
    }
    return {};
}

} // namespace KestCore
