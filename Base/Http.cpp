// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/Http.h"

#include "Base/Text.h"

#include <algorithm>

namespace Base
{

std::optional<std::string_view> HttpResponse::header(std::string_view name) const
{
    const auto isNamed = [wanted = lowerAscii(name)](const HttpHeader &header) {
        return lowerAscii(header.name) == wanted;
    };
    const auto last = std::ranges::find_if(headers.rbegin(), headers.rend(), isNamed);
    return last == headers.rend() ? std::nullopt : std::optional<std::string_view>{last->value};
}

} // namespace Base
