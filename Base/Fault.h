// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace Base
{

// Ends the process over a fault of the build itself (a missing or broken resource, an
// impossible value), never over something a user did. `source` names the part of the
// system that cannot go on, such as "KestCore/Models".
[[noreturn]] void fatalFault(std::string_view source, std::string_view message);

} // namespace Base
