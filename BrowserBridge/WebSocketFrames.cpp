// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "BrowserBridge/WebSocketFrames.h"

#include <algorithm>
#include <utility>

namespace BrowserBridge
{

namespace
{

constexpr unsigned kLastFrame = 0x80;
constexpr unsigned kReserved = 0x70;
constexpr unsigned kMasked = 0x80;
constexpr std::uint64_t kLargestShort = 125; // payload of a control frame, or of a short head
constexpr unsigned kTwoByteSize = 126;
constexpr unsigned kEightByteSize = 127;

unsigned byteAt(std::string_view bytes, std::size_t index)
{
    return static_cast<unsigned char>(bytes[index]);
}

std::uint64_t bigEndian(std::string_view bytes)
{
    std::uint64_t value = 0;
    for (std::size_t index = 0; index < bytes.size(); ++index) {
        value = value << 8 | byteAt(bytes, index);
    }
    return value;
}

void appendBigEndian(std::string &bytes, std::uint64_t value, unsigned count)
{
    for (unsigned left = count; left > 0; --left) {
        bytes += static_cast<char>(value >> (8 * (left - 1)) & 0xFF);
    }
}

bool isControl(Opcode opcode) { return std::to_underlying(opcode) >= 8; }

bool isKnown(unsigned opcode) { return opcode <= 2 || (opcode >= 8 && opcode <= 10); }

std::unexpected<KestError> broken(std::string_view how)
{
    return std::unexpected(
        KestError::unavailable("The browser breaks the protocol: " + std::string{how} + "."));
}

// The head's size for this second byte, and the least payload that may take so long a head.
struct SizeForm {
    std::size_t head{};
    std::uint64_t least{};
};

SizeForm sizeForm(unsigned shortSize)
{
    switch (shortSize) {
    case kTwoByteSize:
        return {.head = 4, .least = kLargestShort + 1};
    case kEightByteSize:
        return {.head = 10, .least = 0x10000};
    default:
        return {.head = 2, .least = 0};
    }
}

} // namespace

std::string encodeFrame(Opcode opcode, std::string_view payload, const FrameMask &mask)
{
    std::string frame;
    frame.reserve(payload.size() + 14);
    frame += static_cast<char>(kLastFrame | std::to_underlying(opcode));
    if (payload.size() <= kLargestShort) {
        frame += static_cast<char>(kMasked | payload.size());
    } else if (payload.size() < 0x10000) {
        frame += static_cast<char>(kMasked | kTwoByteSize);
        appendBigEndian(frame, payload.size(), 2);
    } else {
        frame += static_cast<char>(kMasked | kEightByteSize);
        appendBigEndian(frame, payload.size(), 8);
    }
    frame.append(mask.data(), mask.size());
    for (std::size_t index = 0; index < payload.size(); ++index) {
        frame += static_cast<char>(payload[index] ^ mask[index % mask.size()]);
    }
    return frame;
}

Result<std::optional<FrameReader::Head>> FrameReader::readHead() const
{
    const std::string_view bytes = m_bytes;
    if (bytes.size() < 2) {
        return std::nullopt;
    }
    const unsigned first = byteAt(bytes, 0);
    const unsigned second = byteAt(bytes, 1);
    if ((first & kReserved) != 0 || !isKnown(first & 0xF)) {
        return broken("a frame of an unknown kind");
    }
    if ((second & kMasked) != 0) {
        return broken("a masked frame");
    }
    const SizeForm form = sizeForm(second);
    if (bytes.size() < form.head) {
        return std::nullopt;
    }
    const Head head{.isLast = (first & kLastFrame) != 0,
                    .opcode = static_cast<Opcode>(first & 0xF),
                    .size = form.head,
                    .payload =
                        form.head == 2 ? second : bigEndian(bytes.substr(2, form.head - 2))};
    if (head.payload < form.least) {
        return broken("a size in a longer form than it needs");
    }
    KEST_CHECK(check(head));
    return head;
}

Result<void> FrameReader::check(const Head &head) const
{
    if (isControl(head.opcode)) {
        return head.isLast && head.payload <= kLargestShort ? Result<void>{}
                                                            : broken("a long control frame");
    }
    if ((head.opcode == Opcode::continuation) != m_begun.has_value()) {
        return broken("fragments out of order");
    }
    const std::size_t before = m_begun ? m_begun->payload.size() : 0;
    if (head.payload > kLargestMessage - before) {
        return std::unexpected(KestError::unavailable("The browser's answer is too large."));
    }
    return {};
}

std::optional<Message> FrameReader::take(const Head &head)
{
    std::string payload = m_bytes.substr(head.size, head.payload);
    m_bytes.erase(0, head.size + head.payload);
    if (isControl(head.opcode)) {
        return Message{.opcode = head.opcode, .payload = std::move(payload)};
    }
    if (m_begun) {
        m_begun->payload += payload;
    } else {
        m_begun = Message{.opcode = head.opcode, .payload = std::move(payload)};
    }
    return head.isLast ? std::exchange(m_begun, std::nullopt) : std::nullopt;
}

Result<std::optional<Message>> FrameReader::next()
{
    while (true) {
        KEST_TRY(const auto head, readHead());
        if (!head || m_bytes.size() - head->size < head->payload) {
            return std::nullopt;
        }
        if (auto message = take(*head)) {
            return message;
        }
    }
}

} // namespace BrowserBridge
