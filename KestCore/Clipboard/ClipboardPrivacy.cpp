// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clipboard/ClipboardPrivacy.h"

#include "Base/Fault.h"
#include "Base/Text.h"

#include <unicode/regex.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace KestCore
{

namespace
{

constexpr std::string_view kPatterns[] = {
    R"(\b(?:rk|sk)_(?:live|test)_[A-Za-z0-9]{16,}\b)", // payment services
    R"(\b(?:dft|df|sk-proj|sk-ant|ghp|gho|github_pat)_[A-Za-z0-9_-]{16,}\b)",
    R"(\bsk-(?:proj-|ant-)?[A-Za-z0-9_-]{20,}\b)",
    R"((?i)Authorization\s*[=:]\s*['\"]?Bearer\s+[A-Za-z0-9+/=_-]{16,})",
    R"(-----BEGIN (?:RSA |EC |OPENSSH )?PRIVATE KEY-----)",
};

// A key next to a letter of another script is a key all the same, so the ends of words are
// those of ASCII.
constexpr std::string_view kAsciiEdge =
    R"((?:(?<=[0-9A-Za-z_])(?![0-9A-Za-z_])|(?<![0-9A-Za-z_])(?=[0-9A-Za-z_])))";
constexpr std::string_view kAsciiSpace = R"([ \t\n\x0B\f\r])";

constexpr std::int32_t kMatchMemory = 64'000'000; // bytes; a key as long as a text may be

using Pattern = std::unique_ptr<const icu::RegexPattern>;

Pattern compile(std::string_view source)
{
    std::string text{source};
    Base::replaceAll(text, R"(\b)", kAsciiEdge);
    Base::replaceAll(text, R"(\s)", kAsciiSpace);
    UErrorCode status = U_ZERO_ERROR;
    UParseError place{};
    Pattern pattern{
        icu::RegexPattern::compile(icu::UnicodeString::fromUTF8(text), place, status)};
    if (U_FAILURE(status) != 0) {
        Base::fatalFault("KestCore/Clipboard", "a credential pattern does not compile");
    }
    return pattern;
}

const std::vector<Pattern> &patterns()
{
    static const std::vector<Pattern> kCompiled = [] {
        std::vector<Pattern> compiled;
        std::ranges::transform(kPatterns, std::back_inserter(compiled), compile);
        return compiled;
    }();
    return kCompiled;
}

bool isFoundIn(const icu::UnicodeString &text, const icu::RegexPattern &pattern,
               std::int32_t patience)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::RegexMatcher> matcher{pattern.matcher(text, status)};
    if (U_FAILURE(status) == 0) {
        matcher->setTimeLimit(patience, status);
        matcher->setStackLimit(kMatchMemory, status);
    }
    return U_FAILURE(status) != 0 || matcher->find(status) != 0 || U_FAILURE(status) != 0;
}

} // namespace

bool ClipboardPrivacy::isCredential(std::string_view text, std::int32_t patience)
{
    const auto searched = icu::UnicodeString::fromUTF8(
        icu::StringPiece{text.data(), static_cast<std::int32_t>(text.size())});
    return std::ranges::any_of(patterns(), [&](const Pattern &pattern) {
        return isFoundIn(searched, *pattern, patience);
    });
}

std::string_view ClipboardPrivacy::displayText(std::string_view text)
{
    return isCredential(text) ? kHidden : text;
}

} // namespace KestCore
