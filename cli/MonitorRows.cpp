// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/MonitorRows.h"

#include "Base/Text.h"

#include <algorithm>

namespace Cli
{

namespace
{

using MonitorCore::AppUsage;
using MonitorCore::ProcessSample;

UsageRow rowOf(const AppUsage &app)
{
    UsageRow row{.id = app.id,
                 .name = app.name,
                 .cpu = app.cpu,
                 .memory = app.memory,
                 .disk = app.diskRead + app.diskWrite,
                 .energy = app.energy};
    for (const ProcessSample &process : app.processes) {
        row.processes.push_back(process.key);
    }
    return row;
}

UsageRow rowOf(const ProcessSample &process)
{
    return {.id = process.key.id(),
            .name = process.name,
            .processes = {process.key},
            .cpu = process.cpu,
            .memory = process.memory,
            .disk = process.diskRead + process.diskWrite,
            .energy = process.energy};
}

double figureOf(const UsageRow &row, RowOrder order)
{
    switch (order) {
    case RowOrder::cpu:
        return row.cpu;
    case RowOrder::memory:
        return row.memory;
    case RowOrder::disk:
        return row.disk;
    case RowOrder::energy:
        return row.energy;
    case RowOrder::name:
        break;
    }
    return 0;
}

} // namespace

std::vector<UsageRow> usageRows(const MonitorCore::MonitorSnapshot &snapshot, RowKind kind,
                                RowOrder order, std::string_view filter)
{
    const std::string wanted = Base::lowerAscii(filter);
    std::vector<UsageRow> rows;
    const auto add = [&](const auto &item) {
        if (Base::lowerAscii(item.name).contains(wanted)) {
            rows.push_back(rowOf(item));
        }
    };
    for (const AppUsage &app : snapshot.apps) {
        if (kind == RowKind::application) {
            add(app);
        } else {
            std::ranges::for_each(app.processes, add);
        }
    }
    // Equal ones keep one order from sample to sample, so that the list stands still.
    std::ranges::sort(rows, [&](const UsageRow &a, const UsageRow &b) {
        const double left = figureOf(a, order);
        const double right = figureOf(b, order);
        return left != right ? left > right : std::tie(a.name, a.id) < std::tie(b.name, b.id);
    });
    return rows;
}

} // namespace Cli
