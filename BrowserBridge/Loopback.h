// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/File.h"
#include "Base/Result.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace BrowserBridge
{

using Base::KestError;
using Base::Result;
using Deadline = std::chrono::steady_clock::time_point;

// A connection to a port of this computer, 127.0.0.1, and to nowhere else: there is no way to
// name another host. Every call ends at the deadline.
class Loopback
{
public:
    // Fails with unavailable when nothing listens there.
    [[nodiscard]] static Result<Loopback> connect(std::uint16_t port, Deadline deadline);

    std::uint16_t port() const { return m_port; }
    [[nodiscard]] Result<void> send(std::string_view bytes);
    // What has come, at least one byte. Fails with unavailable when the other side is gone.
    [[nodiscard]] Result<std::string> receive();

private:
    Loopback(Base::FileDescriptor socket, std::uint16_t port, Deadline deadline);
    [[nodiscard]] Result<void> wait(short events) const;

    Base::FileDescriptor m_socket;
    std::uint16_t m_port;
    Deadline m_deadline;
};

// The first line and the headers of an answer over HTTP, and how many bytes of what came they
// take. Nothing until they are whole.
struct ResponseHead {
    int status{};
    std::size_t size{};
    std::optional<std::size_t> contentLength{};
    std::string accept{}; // Sec-WebSocket-Accept
};
// Fails with unavailable for what is no such answer.
[[nodiscard]] Result<std::optional<ResponseHead>> parseHead(std::string_view bytes);

// Receives a head, and the bytes that came behind it.
struct HeadAndRest {
    ResponseHead head{};
    std::string rest{};
};
[[nodiscard]] Result<HeadAndRest> receiveHead(Loopback &connection);

// The body of an answer of status 200, of at most 64 KiB.
[[nodiscard]] Result<std::string> get(Loopback &connection, std::string_view path);

} // namespace BrowserBridge
