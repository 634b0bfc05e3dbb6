// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "BrowserBridge/Loopback.h"

#include "Base/Text.h"

#include <fmt/format.h>

#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <ranges>

namespace BrowserBridge
{

namespace
{

constexpr std::size_t kLargestHead = 16'384;
constexpr std::size_t kLargestBody = 65'536;

KestError noAnswer(std::uint16_t port)
{
    return KestError::unavailable(fmt::format("The browser on port {} does not answer.", port));
}

KestError noBrowser(std::uint16_t port)
{
    return KestError::unavailable(
        fmt::format("No browser that may be driven listens on port {}.", port));
}

KestError noHttp() { return KestError::unavailable("What listens on the port is no browser."); }

sockaddr_in addressOf(std::uint16_t port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

// One header line into the head, if it is of those that count.
bool takeHeader(std::string_view line, ResponseHead &head)
{
    const std::size_t colon = line.find(':');
    if (colon == std::string_view::npos) {
        return false;
    }
    const std::string name = Base::lowerAscii(line.substr(0, colon));
    const std::string_view value = Base::trimmed(line.substr(colon + 1));
    if (name == "content-length") {
        head.contentLength = Base::numberFrom<std::size_t>(value);
        return head.contentLength.has_value();
    }
    if (name == "sec-websocket-accept") {
        head.accept = value;
    }
    return true;
}

std::optional<int> statusOf(std::string_view line)
{
    constexpr std::string_view kBegin = "HTTP/1.1 ";
    if (!line.starts_with(kBegin)) {
        return std::nullopt;
    }
    return Base::numberFrom<int>(line.substr(kBegin.size(), 3));
}

} // namespace

Loopback::Loopback(Base::FileDescriptor socket, std::uint16_t port, Deadline deadline)
    : m_socket(std::move(socket)), m_port(port), m_deadline(deadline)
{
}

Result<Loopback> Loopback::connect(std::uint16_t port, Deadline deadline)
{
    Base::FileDescriptor socket{
        ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)};
    const sockaddr_in address = addressOf(port);
    const int code =
        ::connect(socket.get(), reinterpret_cast<const sockaddr *>(&address), sizeof address);
    if (!socket.isOpen() || (code != 0 && errno != EINPROGRESS)) {
        return std::unexpected(noBrowser(port));
    }
    Loopback connection{std::move(socket), port, deadline};
    KEST_CHECK(connection.wait(POLLOUT));
    int error = 0;
    socklen_t size = sizeof error;
    if (getsockopt(connection.m_socket.get(), SOL_SOCKET, SO_ERROR, &error, &size) != 0 ||
        error != 0) {
        return std::unexpected(noBrowser(port));
    }
    return connection;
}

Result<void> Loopback::wait(short events) const
{
    while (true) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(
            m_deadline - std::chrono::steady_clock::now());
        pollfd waiting{.fd = m_socket.get(), .events = events, .revents = 0};
        const int ready =
            left.count() <= 0 ? 0 : poll(&waiting, 1, static_cast<int>(left.count()));
        if (ready > 0) {
            return {};
        }
        if (ready == 0 || errno != EINTR) {
            return std::unexpected(noAnswer(m_port));
        }
    }
}

Result<void> Loopback::send(std::string_view bytes)
{
    while (!bytes.empty()) {
        KEST_CHECK(wait(POLLOUT));
        const ssize_t sent = ::send(m_socket.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (sent < 0 && errno != EAGAIN && errno != EINTR) {
            return std::unexpected(noAnswer(m_port));
        }
        bytes.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(sent, 0)));
    }
    return {};
}

Result<std::string> Loopback::receive()
{
    std::array<char, 16'384> bytes{};
    while (true) {
        KEST_CHECK(wait(POLLIN));
        const ssize_t got = ::recv(m_socket.get(), bytes.data(), bytes.size(), 0);
        if (got > 0) {
            return std::string{bytes.data(), static_cast<std::size_t>(got)};
        }
        if (got == 0 || (errno != EAGAIN && errno != EINTR)) {
            return std::unexpected(noAnswer(m_port));
        }
    }
}

Result<std::optional<ResponseHead>> parseHead(std::string_view bytes)
{
    const std::size_t end = bytes.find("\r\n\r\n");
    if (end == std::string_view::npos && bytes.size() <= kLargestHead) {
        return std::nullopt;
    }
    if (end == std::string_view::npos) {
        return std::unexpected(noHttp());
    }
    const auto lines = Base::split(bytes.substr(0, end), '\n');
    const auto status = statusOf(lines.front());
    ResponseHead head{.status = status.value_or(0), .size = end + 4};
    const bool areHeaders = std::ranges::all_of(
        lines | std::views::drop(1), [&](auto line) { return takeHeader(line, head); });
    if (!status || !areHeaders) {
        return std::unexpected(noHttp());
    }
    return head;
}

Result<HeadAndRest> receiveHead(Loopback &connection)
{
    std::string bytes;
    while (true) {
        KEST_TRY(const std::string more, connection.receive());
        bytes += more;
        KEST_TRY(auto head, parseHead(bytes));
        if (head) {
            std::string rest = bytes.substr(head->size);
            return HeadAndRest{.head = *std::move(head), .rest = std::move(rest)};
        }
    }
}

Result<std::string> get(Loopback &connection, std::string_view path)
{
    KEST_CHECK(connection.send(fmt::format("GET {} HTTP/1.1\r\n"
                                           "Host: 127.0.0.1:{}\r\n"
                                           "Connection: close\r\n\r\n",
                                           path, connection.port())));
    KEST_TRY(auto answer, receiveHead(connection));
    const std::size_t size = answer.head.contentLength.value_or(kLargestBody + 1);
    if (answer.head.status != 200 || size > kLargestBody) {
        return std::unexpected(noHttp());
    }
    while (answer.rest.size() < size) {
        KEST_TRY(const std::string more, connection.receive());
        answer.rest += more;
    }
    answer.rest.resize(size);
    return std::move(answer.rest);
}

} // namespace BrowserBridge
