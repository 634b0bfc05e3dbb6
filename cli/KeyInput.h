// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Console.h"

#include <string>
#include <string_view>

namespace Cli
{

// Keeps what is in memory out of a core dump, for a command that handles keys.
void forbidCoreDumps();

// One line from standard input, without the blanks around it: asked for on a terminal, where
// nothing of it shows, else read as it comes. Fails when there is none, when it is longer than
// `longest` bytes and when the user gives up. The caller wipes it.
[[nodiscard]] Result<std::string> readKey(std::string_view question, std::size_t longest);

} // namespace Cli
