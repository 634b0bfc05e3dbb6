// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "BrowserBridge/WebSocket.h"

#include "Base/Base64.h"
#include "Base/Fault.h"

#include <fmt/format.h>
#include <openssl/evp.h>
#include <openssl/rand.h>

#include <algorithm>
#include <array>
#include <vector>

namespace BrowserBridge
{

namespace
{

template <std::size_t N>
std::array<unsigned char, N> randomBytes()
{
    std::array<unsigned char, N> bytes{};
    if (RAND_bytes(bytes.data(), static_cast<int>(bytes.size())) != 1) {
        Base::fatalFault("BrowserBridge", "there are no random numbers");
    }
    return bytes;
}

FrameMask randomMask()
{
    const auto bytes = randomBytes<4>();
    FrameMask mask{};
    std::ranges::copy(bytes, mask.begin());
    return mask;
}

} // namespace

std::string acceptFor(std::string_view key)
{
    const std::string salted = std::string{key} + "258EAFA5-E914-47DA-95CA-C5AB0DC85B11";
    std::vector<std::uint8_t> digest(EVP_MAX_MD_SIZE);
    unsigned size = 0;
    if (EVP_Digest(salted.data(), salted.size(), digest.data(), &size, EVP_sha1(), nullptr) !=
        1) {
        return {}; // which no server answers
    }
    digest.resize(size);
    return Base::toBase64(digest);
}

WebSocket::WebSocket(Loopback connection, std::string_view first)
    : m_connection(std::move(connection))
{
    m_frames.add(first);
}

Result<WebSocket> WebSocket::open(std::uint16_t port, std::string_view path, Deadline deadline)
{
    KEST_TRY(auto connection, Loopback::connect(port, deadline));
    const auto random = randomBytes<16>();
    const std::string key = Base::toBase64(random);
    KEST_CHECK(connection.send(fmt::format("GET {} HTTP/1.1\r\n"
                                           "Host: 127.0.0.1:{}\r\n"
                                           "Connection: Upgrade\r\n"
                                           "Upgrade: websocket\r\n"
                                           "Sec-WebSocket-Version: 13\r\n"
                                           "Sec-WebSocket-Key: {}\r\n\r\n",
                                           path, port, key)));
    KEST_TRY(const auto answer, receiveHead(connection));
    if (answer.head.status != 101 || answer.head.accept.empty() ||
        answer.head.accept != acceptFor(key)) {
        return std::unexpected(
            KestError::unavailable("The browser does not let itself be driven."));
    }
    return WebSocket{std::move(connection), answer.rest};
}

Result<void> WebSocket::send(Opcode opcode, std::string_view payload)
{
    return m_connection.send(encodeFrame(opcode, payload, randomMask()));
}

Result<void> WebSocket::sendText(std::string_view text) { return send(Opcode::text, text); }

Result<std::string> WebSocket::receiveText()
{
    while (true) {
        KEST_TRY(auto message, m_frames.next());
        if (!message) {
            KEST_TRY(const std::string bytes, m_connection.receive());
            m_frames.add(bytes);
            continue;
        }
        switch (message->opcode) {
        case Opcode::text:
            return std::move(message->payload);
        case Opcode::ping:
            KEST_CHECK(send(Opcode::pong, message->payload));
            break;
        case Opcode::close:
            return std::unexpected(
                KestError::unavailable("The browser has closed the connection."));
        default:
            break;
        }
    }
}

} // namespace BrowserBridge
