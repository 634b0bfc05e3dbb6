// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace Velvetnook
{

// The seconds of a length as people type it: "25" and "25 min" are minutes, "1:30" minutes and
// seconds, "1:30:00" hours before them, "1 h 30", "90 s", "2 d"; digits of any script. Nothing
// for what is no length.
std::optional<double> secondsFromText(const QString &text);

} // namespace Velvetnook
