// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

class QScreen;

namespace Velvetnook
{

// The screen that was chosen, or the primary one while that is not there. Null without screens.
QScreen *chosenScreen(std::optional<std::uint32_t> id);

} // namespace Velvetnook
