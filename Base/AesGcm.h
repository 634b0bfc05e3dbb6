// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Result.h"
#include "Base/Secret.h"

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Base
{

// A 256-bit key. There is one copy of it, wiped when it goes.
class AesKey
{
public:
    static constexpr std::size_t kSize = 32;

    // Ends the process when the system has no randomness to give.
    static AesKey random();
    // Nothing when there are not exactly 32 bytes.
    static std::optional<AesKey> fromBytes(std::span<const std::uint8_t> bytes);

    AesKey(AesKey &&other) noexcept;
    AesKey &operator=(AesKey &&other) noexcept;
    AesKey(const AesKey &) = delete;
    AesKey &operator=(const AesKey &) = delete;
    ~AesKey();

    std::span<const std::uint8_t, kSize> bytes() const { return m_bytes; }

private:
    AesKey() = default;

    std::array<std::uint8_t, kSize> m_bytes{};
};

// AES-256 in GCM mode without additional data. A sealed box is the nonce, the ciphertext and
// the tag behind each other.
inline constexpr std::size_t kNonceSize = 12;
inline constexpr std::size_t kTagSize = 16;

// Puts the ciphertext and the tag in the place of the text, in the text's own memory while it
// has room for the tag, and gives the nonce: a fresh random one. Ends the process when the
// system has no randomness, as a nonce used twice gives both texts away. On failure the text is
// gone.
[[nodiscard]] Result<std::array<std::uint8_t, kNonceSize>> encryptAesGcm(const AesKey &key,
                                                                         std::string &text);

// Fails with invalidData when the box is not exactly what was sealed under this key. The
// caller wipes what it gets. `room` bytes are kept free behind the text.
[[nodiscard]] Result<std::string>
openAesGcm(const AesKey &key, std::span<const std::uint8_t> box, std::size_t room = 0);

// HMAC-SHA-256 of the pieces behind each other, under a key derived from this one for
// `purpose`, so that no key does two kinds of work.
std::array<std::uint8_t, 32> keyedDigest(const AesKey &key, std::string_view purpose,
                                         std::span<const std::string_view> pieces);

} // namespace Base
