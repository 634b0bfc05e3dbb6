// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"

#include <cstdint>
#include <expected>
#include <optional>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

namespace Base
{

struct HttpHeader {
    std::string name{};
    std::string value{};
};

struct HttpRequest {
    std::string url{}; // http or https
    std::vector<HttpHeader> headers{};
    Seconds timeout{60};               // for the whole exchange, redirects included
    std::size_t mostBytes = 8'000'000; // of the body as it is used, after decompression; that
                                       // of an answer which is no success is cut there
};

// The answer that a chain of redirects ended with.
struct HttpResponse {
    int status{};
    std::vector<HttpHeader> headers{};
    std::string body{};

    // The last value of that name, whatever its case.
    std::optional<std::string_view> header(std::string_view name) const;
};

// Why there is no answer. An answer of any status is none of these.
struct HttpFailure {
    enum class Kind : std::uint8_t {
        cancelled, // the stop token asked for it
        tooLarge,  // the body is larger than the request allows
        refused,   // what was asked for, or where it led, is not allowed
        noAnswer,  // no such host, no connection, no trust, too late, or cut off
    };

    Kind kind{};
    std::string message{}; // for a log; holds no header's value and no query
};

template <class T>
using HttpResult = std::expected<T, HttpFailure>;

// Asks web servers. One call at a time; a call returns within 100 ms of a stop.
class HttpTransport
{
public:
    HttpTransport() = default;
    virtual ~HttpTransport() = default;
    HttpTransport(const HttpTransport &) = delete;
    HttpTransport &operator=(const HttpTransport &) = delete;

    [[nodiscard]] virtual HttpResult<HttpResponse> get(const HttpRequest &request,
                                                       const std::stop_token &stop) = 0;
};

} // namespace Base
