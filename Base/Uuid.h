// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Base
{

// A fresh random (version 4) UUID in upper-case canonical form. Ends the process when the
// system has no randomness to give, since a guessable or repeated identifier loses records.
std::string makeUuid();

} // namespace Base
