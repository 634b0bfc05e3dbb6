// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/Fault.h"

#include <cstdio>
#include <cstdlib>

namespace Base
{

void fatalFault(std::string_view source, std::string_view message)
{
    std::fprintf(stderr, "Fatal error: %.*s: %.*s\n", static_cast<int>(source.size()),
                 source.data(), static_cast<int>(message.size()), message.data());
    std::fflush(nullptr);
    std::abort();
}

} // namespace Base
