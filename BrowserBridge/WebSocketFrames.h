// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Result.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The frames of RFC 6455, as a client sends and receives them.
namespace BrowserBridge
{

using Base::KestError;
using Base::Result;

enum class Opcode : std::uint8_t {
    continuation = 0,
    text = 1,
    binary = 2,
    close = 8,
    ping = 9,
    pong = 10,
};

using FrameMask = std::array<char, 4>;

// One whole frame. A client masks what it sends, with four bytes that nobody can foresee.
std::string encodeFrame(Opcode opcode, std::string_view payload, const FrameMask &mask);

// A message of several frames counts as one; its opcode is the first frame's.
struct Message {
    Opcode opcode{};
    std::string payload{};

    bool operator==(const Message &) const = default;
};

// Puts messages together from the bytes of a server, however they are cut. After a failure
// the connection is of no use any more.
class FrameReader
{
public:
    static constexpr std::size_t kLargestMessage = 4'000'000; // bytes

    void add(std::string_view bytes) { m_bytes += bytes; }
    // The next message, or a control frame from among its fragments; nothing until more bytes
    // come. Fails with unavailable for what the protocol forbids and what is too large, before
    // that is held in memory.
    [[nodiscard]] Result<std::optional<Message>> next();

private:
    struct Head {
        bool isLast{};
        Opcode opcode{};
        std::size_t size{};      // of the head
        std::uint64_t payload{}; // bytes
    };

    [[nodiscard]] Result<std::optional<Head>> readHead() const;
    [[nodiscard]] Result<void> check(const Head &head) const;
    std::optional<Message> take(const Head &head);

    std::string m_bytes;
    std::optional<Message> m_begun; // the fragments so far
};

} // namespace BrowserBridge
