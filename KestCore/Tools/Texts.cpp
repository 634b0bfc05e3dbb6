// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/Texts.h"

#include "Base/Text.h"
#include "KestCore/Models/UtilityPayloads.h"

#include <fmt/format.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <algorithm>

namespace KestCore
{

namespace
{

constexpr std::string_view kBlanks = " \t\r\n\v\f";

} // namespace

std::string_view trimmed(std::string_view text)
{
    const std::size_t begin = text.find_first_not_of(kBlanks);
    return begin == std::string_view::npos
               ? std::string_view{}
               : text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

std::u32string codePointsOf(std::string_view text)
{
    const auto characters = icu::UnicodeString::fromUTF8(text);
    std::u32string points;
    for (std::int32_t at = 0; at < characters.length(); at = characters.moveIndex32(at, 1)) {
        points += static_cast<char32_t>(characters.char32At(at));
    }
    return points;
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
    const std::string_view rest = trimmed(text);
    std::string title{trimmed(rest.substr(0, rest.find_first_of("\r\n\v\f")))};
    Base::replaceAll(title, "\t", " ");
    return shortened(title, kLongestTitle);
}

Result<std::string> checkedTitle(std::string_view title)
{
    const std::string_view bare = trimmed(title);
    if (hasControls(bare) || Base::countCodePoints(bare) > kLongestTitle) {
        return std::unexpected(KestError::invalidData(
            fmt::format("A title is one line of at most {} characters", kLongestTitle)));
    }
    return std::string{bare};
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
