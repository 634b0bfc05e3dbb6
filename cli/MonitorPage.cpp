// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/MonitorPage.h"

#include "cli/Console.h"
#include "cli/MonitorText.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

namespace Cli
{

namespace
{

using MonitorCore::MetricID;
using MonitorCore::MetricReading;
using MonitorCore::MetricState;
using MonitorCore::MetricUnit;
using Ink = Terminal::Ink;

constexpr std::size_t kPastKept = 1'000; // a wider sparkline begins further right
constexpr int kMeterRow = 2;
constexpr int kExtrasRow = kMeterRow + 4;
constexpr int kHeadRow = kExtrasRow + 2;
constexpr int kListRow = kHeadRow + 1;
constexpr int kTitleCells = 10;
constexpr int kValueCells = 26;
constexpr int kFigureCells = 11;
constexpr int kNarrow = 64;            // below it only load and memory are shown
constexpr double kLeastRate = 100'000; // a quiet line must not look like a busy one
// As wide as the usual terminal.
constexpr const char *kKeys =
    "q leave · ↑↓ select · k quit it · c m d e n sort · tab processes · / find · + -";

bool has(const MetricReading &reading)
{
    return reading.state == MetricState::available && reading.value;
}

void keep(std::vector<double> &past, double value)
{
    past.push_back(value);
    if (past.size() > kPastKept) {
        past.erase(past.begin());
    }
}

// The figures of one line, as wide as its head.
std::string figures(const UsageRow &row, int width)
{
    std::string text =
        fmt::format("{:>{}}{:>{}}", amountText(row.cpu, MetricUnit::percent), kFigureCells,
                    amountText(row.memory, MetricUnit::bytes), kFigureCells);
    if (width >= kNarrow) {
        text +=
            fmt::format("{:>{}}{:>{}}", amountText(row.disk, MetricUnit::bytesPerSecond),
                        kFigureCells, amountText(row.energy, MetricUnit::score), kFigureCells);
    }
    return text;
}

int nameCells(int width)
{
    return std::max(8, width - (width >= kNarrow ? 4 : 2) * kFigureCells - 1);
}

} // namespace

void MonitorPage::take(MonitorCore::MonitorSnapshot snapshot)
{
    m_snapshot = std::move(snapshot);
    if (m_snapshot.interval > 0) {
        keep(m_cpu, valueOf(MetricID::cpu));
        keep(m_memory, valueOf(MetricID::memoryUsed));
        keep(m_disk, valueOf(MetricID::diskRead) + valueOf(MetricID::diskWrite));
        keep(m_network, valueOf(MetricID::download) + valueOf(MetricID::upload));
    }
    list();
}

void MonitorPage::list()
{
    m_rows = usageRows(m_snapshot, m_choice.kind, m_choice.order, m_choice.filter);
    const auto same = std::ranges::find(m_rows, m_selectedId, &UsageRow::id);
    if (same != m_rows.end()) {
        m_selected = static_cast<std::size_t>(same - m_rows.begin());
    } else {
        m_selectedId.clear();
        m_selected = 0;
    }
}

void MonitorPage::move(int lines)
{
    if (m_rows.empty()) {
        return;
    }
    const auto last = static_cast<int>(m_rows.size()) - 1;
    // The first step only shows where the selection is.
    const int step = m_selectedId.empty() ? 0 : lines;
    m_selected =
        static_cast<std::size_t>(std::clamp(static_cast<int>(m_selected) + step, 0, last));
    m_selectedId = m_rows[m_selected].id;
}

std::optional<UsageRow> MonitorPage::selected() const
{
    return m_selectedId.empty() ? std::nullopt : std::optional{m_rows[m_selected]};
}

const MetricReading &MonitorPage::reading(MetricID metric) const
{
    static const MetricReading kNone{.state = MetricState::unsupported};
    const auto found = m_snapshot.readings.find(metric);
    return found == m_snapshot.readings.end() ? kNone : found->second;
}

double MonitorPage::valueOf(MetricID metric) const
{
    const MetricReading &known = reading(metric);
    return known.state == MetricState::available ? known.value.value_or(0) : 0;
}

double MonitorPage::highest(const std::vector<double> &past) const
{
    return past.empty() ? kLeastRate : std::max(kLeastRate, *std::ranges::max_element(past));
}

std::string MonitorPage::pairText(MetricID in, MetricID out) const
{
    if (!has(reading(in)) || !has(reading(out))) {
        return std::string{stateText(reading(in).state)};
    }
    return fmt::format("↓ {}  ↑ {}", readingText(reading(in)), readingText(reading(out)));
}

std::vector<MonitorPage::Meter> MonitorPage::meters() const
{
    const double total = valueOf(MetricID::memoryTotal);
    const double disk = valueOf(MetricID::diskTotal);
    const double diskUsed = disk - valueOf(MetricID::diskFree);
    const auto share = [&](MetricID metric, double part, double whole) {
        return has(reading(metric)) && whole > 0 ? std::optional{part / whole} : std::nullopt;
    };
    std::string memory = readingText(reading(MetricID::memoryUsed));
    if (total > 0) {
        memory += " of " + amountText(total, MetricUnit::bytes);
    }
    return {
        {.title = "Processor",
         .share = share(MetricID::cpu, valueOf(MetricID::cpu), 100),
         .text = readingText(reading(MetricID::cpu)),
         .past = &m_cpu,
         .most = 100},
        {.title = "Memory",
         .share = share(MetricID::memoryUsed, valueOf(MetricID::memoryUsed), total),
         .text = std::move(memory),
         .past = &m_memory,
         .most = total},
        {.title = "Disk",
         .share = share(MetricID::diskFree, diskUsed, disk),
         .text = pairText(MetricID::diskRead, MetricID::diskWrite),
         .past = &m_disk,
         .most = highest(m_disk)},
        {.title = "Network",
         .text = pairText(MetricID::download, MetricID::upload),
         .past = &m_network,
         .most = highest(m_network)},
    };
}

// What else the machine tells, and nothing of what it does not.
std::string MonitorPage::extras() const
{
    std::vector<std::string> parts;
    const auto add = [&](std::string_view title, MetricID metric) {
        if (has(reading(metric))) {
            parts.push_back(fmt::format("{} {}", title, readingText(reading(metric))));
        }
    };
    if (valueOf(MetricID::diskTotal) > 0) {
        parts.push_back(readingText(reading(MetricID::diskFree)) + " free");
    }
    add("pressure", MetricID::memoryPressure);
    add("graphics", MetricID::gpu);
    add("processor", MetricID::cpuTemperature);
    add("fan", MetricID::fanRPM);
    add("power", MetricID::powerWatts);
    add("battery", MetricID::battery);
    add("left", MetricID::batteryMinutes);
    for (const auto &accessory : m_snapshot.accessories) {
        parts.push_back(fmt::format("{} {}", printable(accessory.name),
                                    amountText(accessory.percent, MetricUnit::percent)));
    }
    return fmt::format("{}", fmt::join(parts, " · "));
}

std::string MonitorPage::summary() const
{
    std::size_t processes = 0;
    for (const auto &app : m_snapshot.apps) {
        processes += app.processes.size();
    }
    const std::int64_t hidden = m_snapshot.restrictedProcessCount;
    return fmt::format("up {} · {} applications, {} processes{} · every {} s",
                       spanText(m_snapshot.uptime), m_snapshot.apps.size(), processes,
                       hidden > 0 ? fmt::format(" ({} restricted)", hidden) : "",
                       m_choice.interval);
}

void MonitorPage::drawMeter(const Terminal &terminal, int row, const Meter &meter) const
{
    const int width = terminal.width();
    const int rest = std::max(0, width - kTitleCells - kValueCells - 2);
    const int barCells = std::min(40, rest / 2);
    terminal.write(row, 0, meter.title, Ink::strong);
    if (meter.share) {
        terminal.write(row, kTitleCells, barText(*meter.share, barCells), Ink::accent);
    }
    const int at = kTitleCells + barCells + 1;
    terminal.write(row, at, fitted(meter.text, kValueCells), Ink::plain);
    const int cells = width - at - kValueCells - 1;
    terminal.write(row, at + kValueCells, sparkline(*meter.past, meter.most, cells),
                   Ink::accent);
}

std::string MonitorPage::head(int width) const
{
    const auto mark = [&](RowOrder column, std::string_view title) {
        return fmt::format("{}{}", m_choice.order == column ? "▾" : "", title);
    };
    std::string name =
        mark(RowOrder::name, m_choice.kind == RowKind::application ? "Application" : "Process");
    if (!m_choice.filter.empty()) {
        name += fmt::format(" \"{}\"", m_choice.filter);
    }
    std::string text =
        fitted(name, nameCells(width)) +
        fmt::format("{:>{}}{:>{}}", mark(RowOrder::cpu, "of 1 core"), kFigureCells,
                    mark(RowOrder::memory, "memory"), kFigureCells);
    if (width >= kNarrow) {
        text += fmt::format("{:>{}}{:>{}}", mark(RowOrder::disk, "disk"), kFigureCells,
                            mark(RowOrder::energy, "energy"), kFigureCells);
    }
    return text;
}

int MonitorPage::listHeight(const Terminal &terminal)
{
    return std::max(0, terminal.height() - kListRow - 1);
}

void MonitorPage::drawList(const Terminal &terminal) const
{
    const int width = terminal.width();
    const auto height = static_cast<std::size_t>(listHeight(terminal));
    // The selection stays in sight.
    const std::size_t first = m_selected < height ? 0 : m_selected - height + 1;
    for (std::size_t at = first; at < std::min(m_rows.size(), first + height); ++at) {
        const UsageRow &row = m_rows[at];
        const std::size_t count = row.processes.size();
        const std::string name =
            printable(row.name) + (count > 1 ? fmt::format(" ({})", count) : "");
        const bool isSelected = at == m_selected && !m_selectedId.empty();
        terminal.write(kListRow + static_cast<int>(at - first), 0,
                       fitted(name, nameCells(width)) + figures(row, width),
                       isSelected ? Ink::selected : Ink::plain);
    }
}

void MonitorPage::drawFoot(const Terminal &terminal) const
{
    const int row = terminal.height() - 1;
    if (const auto &question = m_choice.question) {
        const std::size_t count = question->processes.size();
        terminal.write(
            row, 0,
            fmt::format("Quit {}{}? y quits, any other key does not.",
                        printable(question->name),
                        count > 1 ? fmt::format(" and its {} processes", count) : ""),
            Ink::warning);
    } else if (!m_choice.message.empty()) {
        terminal.write(row, 0, m_choice.message, Ink::warning);
    } else {
        terminal.write(row, 0, kKeys, Ink::faint);
    }
}

void MonitorPage::draw(const Terminal &terminal) const
{
    terminal.clear();
    terminal.write(0, 0, summary(), Ink::faint);
    int row = kMeterRow;
    for (const Meter &meter : meters()) {
        drawMeter(terminal, row++, meter);
    }
    terminal.write(kExtrasRow, kTitleCells, extras(), Ink::faint);
    terminal.write(kHeadRow, 0, head(terminal.width()), Ink::strong);
    drawList(terminal);
    drawFoot(terminal);
    terminal.show();
}

} // namespace Cli
