// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/Base64.h"

#include <array>
#include <cstring>

namespace Base
{

namespace
{

constexpr std::string_view kAlphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

// Two characters for each twelve bits: half the look-ups of one character for six.
constexpr auto kPairs = [] {
    std::array<std::array<char, 2>, 4096> pairs{};
    for (std::size_t bits = 0; bits < pairs.size(); ++bits) {
        pairs[bits] = {kAlphabet[bits >> 6], kAlphabet[bits & 63]};
    }
    return pairs;
}();

constexpr std::uint32_t kForeign = 0x8000'0000; // no part of 24 bits, so it survives an "or"

// What a character stands for in each of the four places of a group, already shifted.
constexpr auto kPlaces = [] {
    std::array<std::array<std::uint32_t, 256>, 4> places{};
    for (std::size_t place = 0; place < 4; ++place) {
        places[place].fill(kForeign);
        for (std::uint32_t bits = 0; bits < 64; ++bits) {
            const auto character = static_cast<unsigned char>(kAlphabet[bits]);
            places[place][character] = bits << (6 * (3 - place));
        }
    }
    return places;
}();

std::uint32_t groupOf(const char *text)
{
    const auto at = [&](std::size_t place) {
        return kPlaces[place][static_cast<unsigned char>(text[place])];
    };
    return at(0) | at(1) | at(2) | at(3);
}

void putGroup(std::uint32_t bits, char *out)
{
    std::memcpy(out, kPairs[bits >> 12].data(), 2);
    std::memcpy(out + 2, kPairs[bits & 0xFFF].data(), 2);
}

// The last group, which may be padded. Only the text that its bytes would be written as is
// accepted, so padding bits that are not zero are not.
bool readLastGroup(std::string_view group, std::uint8_t *out, std::size_t count)
{
    char filled[4];
    group.copy(filled, 4);
    std::memset(filled + 1 + count, 'A', 3 - count);
    const std::uint32_t bits = groupOf(filled);
    for (std::size_t at = 0; at < count; ++at) {
        out[at] = static_cast<std::uint8_t>(bits >> (16 - 8 * at));
    }
    char written[4];
    writeBase64({out, count}, written);
    return (bits & kForeign) == 0 && group == std::string_view{written, 4};
}

} // namespace

void writeBase64(std::span<const std::uint8_t> bytes, char *out)
{
    std::size_t at = 0;
    for (; at + 3 <= bytes.size(); at += 3, out += 4) {
        putGroup((std::uint32_t{bytes[at]} << 16) | (std::uint32_t{bytes[at + 1]} << 8) |
                     bytes[at + 2],
                 out);
    }
    if (const std::size_t rest = bytes.size() - at; rest > 0) {
        const std::uint32_t second = rest == 2 ? bytes[at + 1] : 0U;
        putGroup((std::uint32_t{bytes[at]} << 16) | (second << 8), out);
        std::memset(out + 1 + rest, '=', 3 - rest);
    }
}

std::string toBase64(std::span<const std::uint8_t> bytes)
{
    std::string text;
    const std::size_t size = base64Size(bytes.size());
    // The size that the library hands over may be larger than what was asked for.
    text.resize_and_overwrite(size, [&](char *out, std::size_t) {
        writeBase64(bytes, out);
        return size;
    });
    return text;
}

std::optional<Bytes> fromBase64(std::string_view text)
{
    if (text.size() % 4 != 0) {
        return std::nullopt;
    }
    if (text.empty()) {
        return Bytes{};
    }
    const std::size_t padding =
        (text.ends_with('=') ? 1U : 0U) + (text.ends_with("==") ? 1U : 0U);
    Bytes bytes(text.size() / 4 * 3 - padding);
    const std::size_t whole = text.size() / 4 - 1;
    std::uint32_t foreign = 0;
    std::uint8_t *out = bytes.data();
    for (std::size_t group = 0; group < whole; ++group, out += 3) {
        const std::uint32_t bits = groupOf(text.data() + group * 4);
        foreign |= bits;
        out[0] = static_cast<std::uint8_t>(bits >> 16);
        out[1] = static_cast<std::uint8_t>(bits >> 8);
        out[2] = static_cast<std::uint8_t>(bits);
    }
    const bool isWhole = readLastGroup(text.substr(whole * 4), out, 3 - padding);
    return isWhole && (foreign & kForeign) == 0 ? std::optional{std::move(bytes)}
                                                : std::nullopt;
}

} // namespace Base
