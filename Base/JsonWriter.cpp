// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/JsonWriter.h"

#include "Base/Fault.h"
#include "Base/Secret.h"

#include <simdjson.h>

#include <bit>
#include <cmath>

namespace Base::json
{

namespace
{

constexpr bool needsEscape(char c)
{
    return static_cast<unsigned char>(c) < 0x20 || c == '"' || c == '\\';
}

// The bytes of a word that are below 0x20, a quote or a backslash have their high bit set in
// the result; bytes behind the first such one may be marked wrongly, so only the first counts.
constexpr std::uint64_t escapesIn(std::uint64_t word)
{
    constexpr std::uint64_t kOnes = 0x0101010101010101;
    constexpr std::uint64_t kHighs = 0x8080808080808080;
    const auto zeroBytes = [](std::uint64_t w) { return (w - kOnes) & ~w & kHighs; };
    const std::uint64_t control = (word - kOnes * 0x20) & ~word & kHighs;
    return control | zeroBytes(word ^ (kOnes * '"')) | zeroBytes(word ^ (kOnes * '\\'));
}

// How many leading bytes of `text` can be copied as they are.
std::size_t plainPrefix(std::string_view text)
{
    static_assert(std::endian::native == std::endian::little);
    std::size_t at = 0;
    for (; at + 8 <= text.size(); at += 8) {
        std::uint64_t word = 0;
        std::memcpy(&word, text.data() + at, 8);
        if (const std::uint64_t marks = escapesIn(word); marks != 0) {
            return at + static_cast<std::size_t>(std::countr_zero(marks)) / 8;
        }
    }
    while (at < text.size() && !needsEscape(text[at])) {
        ++at;
    }
    return at;
}

} // namespace

void Writer::string(std::string_view text)
{
    literal("\"");
    while (true) {
        const std::size_t plain = plainPrefix(text);
        literal(text.substr(0, plain));
        if (plain == text.size()) {
            break;
        }
        escapedCharacter(text[plain]);
        text.remove_prefix(plain + 1);
    }
    literal("\"");
}

void Writer::bytes(const Bytes &value)
{
    literal("\"");
    if (const std::size_t size = base64Size(value.size()); size <= kPieceSize) {
        writeBase64(value, room(size));
        m_pieceSize += size;
    } else {
        flush();
        const std::size_t before = m_text.size();
        m_text.resize_and_overwrite(before + size, [&](char *out, std::size_t) {
            writeBase64(value, out + before);
            return before + size;
        });
    }
    literal("\"");
}

void Writer::escapedCharacter(char c)
{
    switch (c) {
    case '"':
        return literal("\\\"");
    case '\\':
        return literal("\\\\");
    case '\n':
        return literal("\\n");
    case '\r':
        return literal("\\r");
    case '\t':
        return literal("\\t");
    default:
        constexpr std::string_view kDigits = "0123456789abcdef";
        const auto code = static_cast<unsigned char>(c);
        literal("\\u00");
        literal(kDigits.substr(code >> 4, 1));
        literal(kDigits.substr(code & 0x0F, 1));
    }
}

void Writer::number(double value)
{
    if (!std::isfinite(value)) {
        m_hasNonFinite = true;
        return;
    }
    constexpr double kExactIntegers = 9'007'199'254'740'992.0; // 2^53
    const bool isWhole = std::abs(value) < kExactIntegers && value == std::trunc(value);
    if (isWhole && !(value == 0 && std::signbit(value))) {
        integer(static_cast<std::int64_t>(value));
        return;
    }
    char *at = room(32);
    m_pieceSize += static_cast<std::size_t>(std::to_chars(at, at + 32, value).ptr - at);
}

Result<void> Writer::checkText() const
{
    if (m_hasNonFinite) {
        return std::unexpected(
            KestError::invalidData("A number that is not finite cannot be saved"));
    }
    if (!simdjson::validate_utf8(m_text.data(), m_text.size())) {
        return std::unexpected(
            KestError::invalidData("Text that is not valid UTF-8 cannot be saved"));
    }
    return {};
}

Result<std::string> Writer::finish()
{
    flush();
    KEST_CHECK(checkText());
    return std::move(m_text);
}

Result<std::string> Writer::finishSecret()
{
    const std::size_t used = m_text.empty() ? m_pieceSize : m_piece.size();
    flush();
    OPENSSL_cleanse(m_piece.data(), used);
    if (auto sound = checkText(); !sound) {
        wipe(m_text);
        return std::unexpected(std::move(sound).error());
    }
    return std::move(m_text);
}

Result<EncodedAround> Writer::finishAround()
{
    flush();
    KEST_CHECK(checkText());
    if (!m_cutAt) {
        fatalFault("Base/Json", "the record has no shared list to cut around");
    }
    return EncodedAround{.head = m_text.substr(0, *m_cutAt), .tail = m_text.substr(*m_cutAt)};
}

} // namespace Base::json
