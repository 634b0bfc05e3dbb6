// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

namespace MonitorLinux
{

// A score for comparing, no measurement: a core kept busy scores 100, and a megabyte a second
// to or from a disk or the network scores 1, as much as a hundredth of a core.
inline double energyScore(double percentOfOneCore, double bytesPerSecond)
{
    return percentOfOneCore + bytesPerSecond / 1e6;
}

} // namespace MonitorLinux
