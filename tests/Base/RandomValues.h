// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <rapidcheck.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

// Random values that RapidCheck's own generators would hardly meet: text of every length of
// UTF-8, and doubles of every magnitude.
namespace BaseTests
{

inline void appendUtf8(std::string &text, std::uint32_t c)
{
    const auto byte = [&](std::uint32_t bits) { text += static_cast<char>(bits); };
    const auto tail = [&](int shift) { byte(0x80 | ((c >> shift) & 0x3F)); };
    if (c < 0x80) {
        byte(c);
    } else if (c < 0x800) {
        byte(0xC0 | (c >> 6));
        tail(0);
    } else if (c < 0x10000) {
        byte(0xE0 | (c >> 12));
        tail(6);
        tail(0);
    } else {
        byte(0xF0 | (c >> 18));
        tail(12);
        tail(6);
        tail(0);
    }
}

inline rc::Gen<std::string> anyText()
{
    using rc::gen::inRange;
    const auto character = rc::gen::oneOf(
        inRange<std::uint32_t>(0, 0x80), inRange<std::uint32_t>(0, 0x80),
        rc::gen::element<std::uint32_t>('"', '\\', '\n', 0x1F, 0x20, 0x7F),
        inRange<std::uint32_t>(0x80, 0x800), inRange<std::uint32_t>(0x800, 0xD800),
        inRange<std::uint32_t>(0xE000, 0x10000), inRange<std::uint32_t>(0x10000, 0x110000));
    return rc::gen::map(rc::gen::container<std::vector<std::uint32_t>>(character),
                        [](const std::vector<std::uint32_t> &characters) {
                            std::string text;
                            for (const std::uint32_t c : characters) {
                                appendUtf8(text, c);
                            }
                            return text;
                        });
}

inline rc::Gen<double> anyFinite()
{
    const auto bits = rc::gen::resize(rc::kNominalSize, rc::gen::arbitrary<std::uint64_t>());
    return rc::gen::suchThat(
        rc::gen::map(bits, [](std::uint64_t b) { return std::bit_cast<double>(b); }),
        [](double value) { return std::isfinite(value); });
}

} // namespace BaseTests
