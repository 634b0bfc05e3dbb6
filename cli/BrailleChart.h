// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace Cli
{

// Columns of dots, two columns and four dots to a cell. Each column is as high as its value
// (from 0 to 1) and at least one dot; one without a value stays empty. Rows from the top.
std::vector<std::string> brailleChart(const std::vector<std::optional<double>> &columns,
                                      int rows);

// The next number above that reads well: 1, 2 or 5 times a power of ten. 1 for nothing.
double roundLimit(double value);

} // namespace Cli
