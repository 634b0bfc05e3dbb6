// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorLinux/ProcessEnding.h"
#include "cli/MonitorPage.h"
#include "cli/MonitorSampler.h"
#include "cli/MonitorText.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

// The live monitor: it samples, and obeys keys.
namespace Cli
{

namespace
{

constexpr double kFirstInterval = 0.5;
constexpr std::size_t kLongestFilter = 40;

class MonitorView
{
public:
    explicit MonitorView(double interval) { m_page.choice().interval = interval; }

    void run()
    {
        const Terminal terminal;
        // Rates begin with the second sample, which nobody likes to wait for.
        m_page.take(m_sampler.sample());
        double due = now() + std::min(m_page.choice().interval, kFirstInterval);
        while (!m_isLeaving) {
            if (now() >= due) {
                m_page.take(m_sampler.sample());
                due = now() + m_page.choice().interval;
            }
            m_page.draw(terminal);
            const double wait = std::clamp(due - now(), 0.0, kLongestPace);
            const int milliseconds = static_cast<int>(std::ceil(wait * 1000));
            if (const auto key = terminal.waitForKey(milliseconds)) {
                press(terminal, *key);
                due = std::min(due, now() + m_page.choice().interval);
            }
        }
    }

private:
    static double now() { return MonitorLinux::secondsSinceBoot(); }

    void press(const Terminal &terminal, int key)
    {
        m_page.choice().message.clear();
        if (const auto asked = std::exchange(m_page.choice().question, std::nullopt)) {
            if (key == 'y' || key == 'Y') {
                quit(*asked);
            }
            return;
        }
        if (!choose(key) && !walk(terminal, key)) {
            command(terminal, key);
        }
    }

    // What the list shows, and in which order.
    bool choose(int key)
    {
        constexpr std::pair<int, RowOrder> kOrders[] = {{'c', RowOrder::cpu},
                                                        {'m', RowOrder::memory},
                                                        {'d', RowOrder::disk},
                                                        {'e', RowOrder::energy},
                                                        {'n', RowOrder::name}};
        const auto *const order =
            std::ranges::find(kOrders, key, &std::pair<int, RowOrder>::first);
        if (order != std::end(kOrders)) {
            m_page.choice().order = order->second;
        } else if (key == '\t') {
            const bool isApps = m_page.choice().kind == RowKind::application;
            m_page.choice().kind = isApps ? RowKind::process : RowKind::application;
        } else {
            return false;
        }
        m_page.list();
        return true;
    }

    bool walk(const Terminal &terminal, int key)
    {
        const int page = std::max(1, MonitorPage::listHeight(terminal) - 1);
        switch (key) {
        case Terminal::kUp:
            m_page.move(-1);
            return true;
        case Terminal::kDown:
            m_page.move(1);
            return true;
        case Terminal::kPageUp:
            m_page.move(-page);
            return true;
        case Terminal::kPageDown:
            m_page.move(page);
            return true;
        default:
            return false;
        }
    }

    void command(const Terminal &terminal, int key)
    {
        switch (key) {
        case '/':
            m_page.choice().filter =
                terminal.readText("Find: ", kLongestFilter).value_or(std::string{});
            return m_page.list();
        case '+':
            m_page.choice().interval = std::max(kShortestPace, m_page.choice().interval / 2);
            return;
        case '-':
            m_page.choice().interval = std::min(kLongestPace, m_page.choice().interval * 2);
            return;
        case 'k':
            m_page.choice().question = m_page.selected();
            if (!m_page.choice().question) {
                m_page.choice().message = "Select something with ↑ and ↓ first.";
            }
            return;
        case 'q':
        case Terminal::kGone:
            m_isLeaving = true;
            return;
        default:
            return;
        }
    }

    void quit(const UsageRow &row)
    {
        const auto done = MonitorLinux::endProcesses(m_sampler.collector(), row.processes,
                                                     MonitorLinux::Ending::quit);
        m_page.choice().message =
            done ? fmt::format("Asked {} to quit.", printable(row.name)) : done.error().message;
    }

    MonitorSampler m_sampler;
    MonitorPage m_page;
    bool m_isLeaving = false;
};

} // namespace

Result<void> runMonitorView(const LiveArguments &args)
{
    if (!Console::isInteractive()) {
        return std::unexpected(KestError::unavailable(
            "The monitor needs a terminal; kest monitor --once works without one"));
    }
    if (!Terminal::isKnown()) {
        return std::unexpected(
            KestError::unavailable("This kind of terminal (TERM) is not known here"));
    }
    MonitorView{args.interval}.run();
    return {};
}

} // namespace Cli
