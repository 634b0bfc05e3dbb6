// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "HttpTransport/HttpTransport.h"

#include "Base/Module.h"

#include <cstdlib>

namespace Web
{

namespace
{

std::unexpected<Base::KestError> missing(const std::string &reason)
{
    return std::unexpected(Base::KestError::unavailable(
        "The part that speaks to web services cannot be loaded: " + reason));
}

} // namespace

TransportOptions optionsOfEnvironment()
{
    const char *file = std::getenv("KEST_CA_FILE");
    return {.extraAuthorities = file == nullptr ? "" : file};
}

Base::Result<std::unique_ptr<Base::HttpTransport>>
openTransport(const TransportOptions &options)
{
    const auto symbol = Base::loadFromModule("KestHttpTransport.so", "kestMakeHttpTransport");
    if (!symbol) {
        return missing(symbol.error());
    }
    const auto make = reinterpret_cast<MakeHttpTransport *>(*symbol);
    std::unique_ptr<Base::HttpTransport> transport{make(options)};
    if (transport == nullptr) {
        return missing("libcurl does not start");
    }
    return transport;
}

} // namespace Web
