// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MonitorCore/MonitorSnapshot.h"

#include <string>
#include <string_view>
#include <vector>

namespace Cli
{

enum class RowKind : std::uint8_t { application, process };
enum class RowOrder : std::uint8_t { cpu, memory, disk, energy, name };

// One line of the monitor's list: an application, or one process.
struct UsageRow {
    std::string id{};
    std::string name{};
    std::vector<MonitorCore::ProcessKey> processes{};
    double cpu{}; // percent of one core
    double memory{};
    double disk{}; // read and written
    double energy{};

    bool operator==(const UsageRow &) const = default;
};

// Those whose name holds the text, whatever its case: the highest first, names in the order
// of the alphabet.
std::vector<UsageRow> usageRows(const MonitorCore::MonitorSnapshot &snapshot, RowKind kind,
                                RowOrder order, std::string_view filter);

} // namespace Cli
