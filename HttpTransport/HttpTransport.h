// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Http.h"
#include "Base/Result.h"

#include <memory>
#include <string>

namespace Web
{

struct TransportOptions {
    // A PEM file of certificates to trust beside the system's, for a server of one's own.
    // None when empty.
    std::string extraAuthorities{};
};

// As the environment says: KEST_CA_FILE names the extra certificates.
TransportOptions optionsOfEnvironment();

// Asks web servers through libcurl, which is loaded here, on first use and for the life of the
// process. What it holds to:
// - Only https, and http to this machine alone (127.0.0.1, ::1, localhost), where no proxy
//   sees it: no key travels in the clear.
// - Certificates are verified. An address with a user's name or password in it is refused.
// - At most five redirects, none to another scheme. A request with an Authorization header is
//   not led to another host or port.
// - No cookies, no .netrc. Proxies are those of the environment.
// - The time limit holds for the whole exchange, however slowly a server drips.
// Fails with unavailable when the module is missing or does not fit.
[[nodiscard]] Base::Result<std::unique_ptr<Base::HttpTransport>>
openTransport(const TransportOptions &options = optionsOfEnvironment());

// What the module exports under the name kestMakeHttpTransport; the caller owns the transport.
using MakeHttpTransport = Base::HttpTransport *(const TransportOptions &options);

} // namespace Web
