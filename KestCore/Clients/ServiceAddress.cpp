// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clients/ServiceAddress.h"

#include <algorithm>
#include <cstdlib>

namespace KestCore
{

namespace
{

// "[::1]" or a name, without the port.
std::string_view hostIn(std::string_view authority)
{
    const std::size_t bracket = authority.starts_with('[') ? authority.find(']') : 0;
    return authority.substr(0, std::min(authority.find(':', bracket), authority.size()));
}

} // namespace

bool isPlainLetterOrDigit(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

bool isServiceAddress(std::string_view address)
{
    constexpr std::string_view kSecure = "https://";
    constexpr std::string_view kPlain = "http://";
    const bool isSecure = address.starts_with(kSecure);
    if (!isSecure && !address.starts_with(kPlain)) {
        return false;
    }
    address.remove_prefix(isSecure ? kSecure.size() : kPlain.size());
    const auto holdsOnly = [](std::string_view text, std::string_view signs) {
        return std::ranges::all_of(
            text, [&](char c) { return isPlainLetterOrDigit(c) || signs.contains(c); });
    };
    const std::string_view authority =
        address.substr(0, std::min(address.find('/'), address.size()));
    const std::string_view host = hostIn(authority);
    return !host.empty() && holdsOnly(authority, "-.:[]") &&
           holdsOnly(address.substr(authority.size()), "/-._~") &&
           (isSecure || host == "127.0.0.1" || host == "localhost" || host == "[::1]");
}

std::string serviceAddress(std::string_view usual, const char *variable)
{
    const char *const own = std::getenv(variable);
    std::string address{own == nullptr || *own == '\0' ? usual : own};
    address.resize(address.find_last_not_of('/') + 1);
    return address;
}

} // namespace KestCore
