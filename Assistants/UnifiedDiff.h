// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace Assistants
{

// The change from one text to the other as a unified diff, three lines of context around each
// part; empty when they are equal. `before` and `after` name the two sides.
std::string unifiedDiff(std::string_view before, std::string_view after,
                        std::string_view beforeName, std::string_view afterName);

} // namespace Assistants
