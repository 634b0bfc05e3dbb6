// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "BrowserBridge/DevTools.h"

#include "Base/JsonReader.h"
#include "Base/JsonWriter.h"

#include <fmt/format.h>

#include <algorithm>

namespace Base::json
{

using namespace BrowserBridge;
template Result<Version> decode(const PaddedText &);
template Result<Contexts> decode(const PaddedText &);
template Result<Targets> decode(const PaddedText &);
template Result<Attached> decode(const PaddedText &);
template Result<Evaluated> decode(const PaddedText &);
template Result<Answer> decode(const PaddedText &);
template Result<std::string> encode(const Call &);

} // namespace Base::json

namespace BrowserBridge
{

namespace
{

bool isPath(std::string_view text)
{
    return text.starts_with('/') &&
           std::ranges::all_of(text, [](char c) { return c > ' ' && c <= '~'; });
}

} // namespace

Result<std::string> debuggerPath(std::string_view versionDocument, std::uint16_t port)
{
    const auto version = json::decode<Version>(versionDocument);
    if (!version) {
        return std::unexpected(
            KestError::unavailable("What listens on the port is no browser."));
    }
    const std::string_view address = version->webSocketDebuggerUrl;
    for (const std::string_view host : {"127.0.0.1", "localhost"}) {
        const std::string origin = fmt::format("ws://{}:{}", host, port);
        if (address.starts_with(origin) && isPath(address.substr(origin.size()))) {
            return std::string{address.substr(origin.size())};
        }
    }
    return std::unexpected(KestError::unavailable(
        "The browser names an address that is not its own port on this computer."));
}

} // namespace BrowserBridge
