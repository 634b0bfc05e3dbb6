// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MonitorCore/MonitorSnapshot.h"
#include "cli/MonitorRows.h"
#include "cli/Terminal.h"

#include <optional>
#include <string>
#include <vector>

namespace Cli
{

// What the user chose to see, and what the page says and asks.
struct MonitorChoice {
    double interval = 2; // seconds
    RowKind kind{};
    RowOrder order{};
    std::string filter{};
    std::string message{};
    std::optional<UsageRow> question{}; // whether to quit this
};

// The live monitor's page: what it shows, and how that is drawn. The selection stays with what
// was selected while the list moves under it.
class MonitorPage
{
public:
    MonitorChoice &choice() { return m_choice; }

    void take(MonitorCore::MonitorSnapshot snapshot);
    // Makes the list anew after a change of what it shows.
    void list();
    void move(int lines);
    std::optional<UsageRow> selected() const;

    void draw(const Terminal &terminal) const;
    static int listHeight(const Terminal &terminal);

private:
    struct Meter {
        std::string_view title{};
        std::optional<double> share{};
        std::string text{};
        const std::vector<double> *past{};
        double most{};
    };

    const MonitorCore::MetricReading &reading(MonitorCore::MetricID metric) const;
    double valueOf(MonitorCore::MetricID metric) const;
    double highest(const std::vector<double> &past) const;
    std::string pairText(MonitorCore::MetricID in, MonitorCore::MetricID out) const;
    std::vector<Meter> meters() const;
    std::string extras() const;
    std::string summary() const;
    void drawMeter(const Terminal &terminal, int row, const Meter &meter) const;
    void drawList(const Terminal &terminal) const;
    void drawFoot(const Terminal &terminal) const;
    std::string head(int width) const;

    MonitorChoice m_choice{};
    MonitorCore::MonitorSnapshot m_snapshot{};
    std::vector<UsageRow> m_rows{};
    std::string m_selectedId{};
    std::size_t m_selected{};
    // The last minutes, oldest first.
    std::vector<double> m_cpu{};
    std::vector<double> m_memory{};
    std::vector<double> m_disk{};
    std::vector<double> m_network{};
};

} // namespace Cli
