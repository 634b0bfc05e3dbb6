// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <expected>
#include <string>

namespace Base
{

// Loads one of this program's own modules, which bring libraries that most commands do without,
// and gives the address of `symbol` in it. The module lies beside the program, as it is built,
// or where it is installed, and nowhere else: who chooses the folder gets what is handed to the
// module. It stays for the life of the process, as the libraries below it cannot be unloaded.
// Fails with the reason, in the system's words.
std::expected<void *, std::string> loadFromModule(const std::string &module,
                                                  const char *symbol);

} // namespace Base
