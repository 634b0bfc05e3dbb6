// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MonitorCore/MonitorSnapshot.h"

#include <span>
#include <string>
#include <string_view>

// How the monitor's figures read in a terminal.
namespace Cli
{

// What people call a metric, such as "Memory in use".
std::string_view metricTitle(MonitorCore::MetricID metric);

// "18 %", "9.4 GB", "12.1 MB/s", "3 h 05 min": at most nine cells wide.
std::string amountText(double value, MonitorCore::MetricUnit unit);

// The amount, or the word for why there is none.
std::string readingText(const MonitorCore::MetricReading &reading);
std::string_view stateText(MonitorCore::MetricState state);

// "3 d 4 h", "4 h 12 min", "12 min".
std::string spanText(double seconds);

// A bar of so many cells, of which `share` (0 to 1) is full.
std::string barText(double share, int cells);

// The last values as columns of eighths, newest at the right; the tallest possible is `most`.
std::string sparkline(std::span<const double> values, double most, int cells);

// The text in so many cells: cut with a mark where it is longer, filled where it is shorter.
std::string fitted(std::string_view text, int cells);

} // namespace Cli
