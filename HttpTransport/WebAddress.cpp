// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "HttpTransport/WebAddress.h"

#include <curl/curl.h>

#include <algorithm>
#include <memory>

namespace Web
{

namespace
{

using Handle = std::unique_ptr<CURLU, void (*)(CURLU *)>;

std::optional<std::string> partOf(const Handle &address, CURLUPart part)
{
    char *text = nullptr;
    if (curl_url_get(address.get(), part, &text, CURLU_DEFAULT_PORT) != CURLUE_OK) {
        return std::nullopt;
    }
    std::string copy{text};
    curl_free(text);
    return copy;
}

std::string lowered(std::string text)
{
    std::ranges::transform(text, text.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return text;
}

} // namespace

// The library that will follow the address reads it here too: two readers could be fooled into
// seeing two hosts.
std::optional<WebAddress> parseWebAddress(const std::string &url)
{
    const Handle address{curl_url(), curl_url_cleanup};
    if (!address || curl_url_set(address.get(), CURLUPART_URL, url.c_str(), 0) != CURLUE_OK) {
        return std::nullopt;
    }
    const auto scheme = partOf(address, CURLUPART_SCHEME);
    const auto host = partOf(address, CURLUPART_HOST);
    const auto port = partOf(address, CURLUPART_PORT);
    const bool hasUser = partOf(address, CURLUPART_USER) || partOf(address, CURLUPART_PASSWORD);
    if (!scheme || !host || host->empty() || !port || hasUser) {
        return std::nullopt;
    }
    WebAddress found{.scheme = lowered(*scheme), .host = lowered(*host), .port = *port};
    const bool isWeb = found.scheme == "http" || found.scheme == "https";
    return isWeb ? std::optional{std::move(found)} : std::nullopt;
}

} // namespace Web
