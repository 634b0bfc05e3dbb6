// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace Web
{

// Where an address leads. Its path and query are of no concern here, as they may hold what must
// not be told.
struct WebAddress {
    std::string scheme{};
    std::string host{}; // in lower case, brackets around IPv6
    std::string port{}; // the scheme's own where the address names none

    // "127.0.0.1:8080", for messages.
    std::string place() const { return host + ":" + port; }
    bool isThisMachine() const
    {
        return host == "127.0.0.1" || host == "[::1]" || host == "localhost";
    }
    bool operator==(const WebAddress &) const = default;
};

// Nothing unless the text is one address of http or https, with a host and without a user's
// name or password.
std::optional<WebAddress> parseWebAddress(const std::string &url);

} // namespace Web
