// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

class QScreen;

namespace Velvetnook
{

// Names a screen by what it is, not by where it is plugged in: the same number after a restart
// and when it comes back. Two screens of one model without serial numbers differ by their
// connector.
std::uint32_t screenId(const QScreen &screen);

// The screen that was chosen, or the primary one while that is not there. Null without screens.
QScreen *chosenScreen(std::optional<std::uint32_t> id);

} // namespace Velvetnook
