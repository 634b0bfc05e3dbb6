// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "BrowserBridge/Loopback.h"
#include "BrowserBridge/WebSocketFrames.h"

namespace BrowserBridge
{

// A WebSocket to a server on this computer. Any failure ends its use.
class WebSocket
{
public:
    // `path` begins with a slash.
    [[nodiscard]] static Result<WebSocket> open(std::uint16_t port, std::string_view path,
                                                Deadline deadline);

    [[nodiscard]] Result<void> sendText(std::string_view text);
    // The next text. Pings are answered on the way.
    [[nodiscard]] Result<std::string> receiveText();

private:
    WebSocket(Loopback connection, std::string_view first);
    [[nodiscard]] Result<void> send(Opcode opcode, std::string_view payload);

    Loopback m_connection;
    FrameReader m_frames;
};

// What a server answers to this key, so that nothing else is taken for one.
std::string acceptFor(std::string_view key);

} // namespace BrowserBridge
