// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "BrowserBridge/DevTools.h"
#include "BrowserBridge/Loopback.h"
#include "BrowserBridge/WebSocketFrames.h"
#include "KestCore/Media/BrowserPlayback.h"

#include <cstdlib>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace
{

using namespace BrowserBridge;

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

// What a page answers. What is accepted keeps the rules and is the same after another round.
void readResponse(std::string_view text)
{
    const auto parsed = KestCore::BrowserPlayback::parse(text);
    if (!parsed) {
        return;
    }
    if (const auto &playback = *parsed) {
        require(playback->validate().has_value());
        const auto again = Base::json::encode(*playback);
        require(again && Base::json::decode<KestCore::BrowserPlayback>(
                             std::string_view{*again}) == *playback);
    }
}

// The messages, with the failure that ended them, if one did.
std::vector<Message> readFrames(std::string_view bytes, std::size_t step)
{
    FrameReader reader;
    std::vector<Message> messages;
    for (; !bytes.empty(); bytes.remove_prefix(std::min(step, bytes.size()))) {
        reader.add(bytes.substr(0, step));
        while (true) {
            const auto next = reader.next();
            if (!next) {
                messages.push_back({.payload = next.error().message});
                return messages;
            }
            const auto &message = *next;
            if (!message) {
                break;
            }
            require(message->payload.size() <= FrameReader::kLargestMessage);
            messages.push_back(*message);
        }
    }
    return messages;
}

// However the bytes are cut, they are the same messages.
void readFramesInPieces(std::string_view bytes)
{
    const auto whole = readFrames(bytes, bytes.size() + 1);
    require(readFrames(bytes, 1) == whole && readFrames(bytes, 7) == whole);
}

void readHead(std::string_view bytes)
{
    const auto parsed = parseHead(bytes);
    if (!parsed) {
        return;
    }
    const auto &head = *parsed;
    require(!head || head->size <= bytes.size());
}

void readVersion(std::string_view text)
{
    const auto path = debuggerPath(text, 9222);
    require(!path || (path->starts_with('/') && !path->contains('\r') && !path->contains(' ')));
}

} // namespace

// The first byte picks the reader.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0) {
        return 0;
    }
    const std::string_view bytes{reinterpret_cast<const char *>(data) + 1, size - 1};
    switch (data[0]) {
    case 'f':
        readFramesInPieces(bytes);
        break;
    case 'h':
        readHead(bytes);
        break;
    case 'v':
        readVersion(bytes);
        break;
    default:
        readResponse(bytes);
        break;
    }
    return 0;
}
