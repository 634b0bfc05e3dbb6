// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/Base64.h"

#include <openssl/evp.h>

#include <algorithm>

namespace Base
{

namespace
{

constexpr std::size_t kChunk = std::size_t{1} << 29; // within OpenSSL's int, a multiple of 12

} // namespace

std::string toBase64(std::span<const std::uint8_t> bytes)
{
    constexpr std::size_t kStep = kChunk / 4 * 3;
    std::string text((bytes.size() + 2) / 3 * 4 + 1, '\0'); // OpenSSL ends each piece with NUL
    std::size_t at = 0;
    for (std::size_t from = 0; from < bytes.size(); from += kStep) {
        const auto piece = bytes.subspan(from, std::min(kStep, bytes.size() - from));
        at += static_cast<std::size_t>(
            EVP_EncodeBlock(reinterpret_cast<unsigned char *>(text.data() + at), piece.data(),
                            static_cast<int>(piece.size())));
    }
    text.resize(at);
    return text;
}

std::optional<Bytes> fromBase64(std::string_view text)
{
    if (text.size() % 4 != 0) {
        return std::nullopt;
    }
    Bytes bytes(text.size() / 4 * 3);
    std::size_t at = 0;
    for (std::size_t from = 0; from < text.size(); from += kChunk) {
        const std::string_view piece = text.substr(from, kChunk);
        const int written = EVP_DecodeBlock(
            bytes.data() + at, reinterpret_cast<const unsigned char *>(piece.data()),
            static_cast<int>(piece.size()));
        if (written < 0) {
            return std::nullopt;
        }
        at += static_cast<std::size_t>(written);
    }
    // The decoder counts each padding character as a byte of its own.
    const std::size_t padding =
        text.size() - std::min(text.size(), text.find_last_not_of('=') + 1);
    if (padding > 2) {
        return std::nullopt;
    }
    bytes.resize(at - padding);
    // OpenSSL trims blanks and forgives padding bits; only the canonical text is accepted.
    return toBase64(bytes) == text ? std::optional{std::move(bytes)} : std::nullopt;
}

} // namespace Base
