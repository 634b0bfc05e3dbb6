// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace KestCore
{

// Whether a service may live at this address, such as "https://example.org": it has no query
// and no name to log in with, and goes without encryption only on this machine.
bool isServiceAddress(std::string_view address);

// The service's usual address, or that of a mirror of one's own, which the environment's
// variable names; without a slash at its end.
std::string serviceAddress(std::string_view usual, const char *variable);

bool isPlainLetterOrDigit(char c); // of ASCII

} // namespace KestCore
