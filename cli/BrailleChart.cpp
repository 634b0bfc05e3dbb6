// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/BrailleChart.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace Cli
{

namespace
{

constexpr int kDotsInCell = 4;

// How many dots of the column stand in the cell whose lowest dot is number `base`.
int dotsIn(std::optional<double> value, int base, int rows)
{
    if (!value || !std::isfinite(*value)) {
        return 0;
    }
    const double share = std::clamp(*value, 0.0, 1.0);
    const auto dots = std::max(1, static_cast<int>(std::lround(share * rows * kDotsInCell)));
    return std::clamp(dots - base, 0, kDotsInCell);
}

// U+2800 and a bit for each dot.
std::string cell(int left, int right)
{
    // The bits of a column's dots from the bottom up; the block's numbering is historical.
    constexpr std::array<unsigned, 5> kLeft{0, 0x40, 0x44, 0x46, 0x47};
    constexpr std::array<unsigned, 5> kRight{0, 0x80, 0xA0, 0xB0, 0xB8};
    const unsigned bits =
        kLeft.at(static_cast<std::size_t>(left)) | kRight.at(static_cast<std::size_t>(right));
    return {static_cast<char>(0xE2), static_cast<char>(0xA0 + (bits >> 6U)),
            static_cast<char>(0x80 + (bits & 0x3FU))};
}

} // namespace

std::vector<std::string> brailleChart(const std::vector<std::optional<double>> &columns,
                                      int rows)
{
    std::vector<std::string> chart;
    for (int row = 0; row < rows; ++row) {
        const int base = (rows - 1 - row) * kDotsInCell;
        std::string line;
        for (std::size_t at = 0; at < columns.size(); at += 2) {
            const auto right = at + 1 < columns.size() ? columns[at + 1] : std::nullopt;
            line += cell(dotsIn(columns[at], base, rows), dotsIn(right, base, rows));
        }
        chart.push_back(std::move(line));
    }
    return chart;
}

double roundLimit(double value)
{
    if (!(value > 0) || !std::isfinite(value)) {
        return 1;
    }
    const double power = std::pow(10, std::floor(std::log10(value)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (value <= factor * power) {
            return factor * power;
        }
    }
    return 10 * power;
}

} // namespace Cli
