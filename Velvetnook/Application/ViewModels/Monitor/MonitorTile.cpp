// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Monitor/MonitorTile.h"

#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/Monitor/AmountText.h"

#include <algorithm>
#include <cmath>

namespace Velvetnook
{

namespace
{

using MonitorCore::MetricID;
using MonitorCore::MetricState;

constexpr qsizetype kPoints = 30;
constexpr double kLongestStep = 20; // seconds; what is further apart is another line
constexpr double kLowestScale = 1e6;

} // namespace

MonitorTile::MonitorTile(Kind kind, const Formatting &formatting, QObject *parent)
    : QObject{parent}, m_kind{kind}, m_formatting{formatting}
{
    clear();
}

QString MonitorTile::metric() const
{
    switch (m_kind) {
    case Kind::cpu:
        return QStringLiteral("cpu");
    case Kind::memory:
        return QStringLiteral("memoryUsed");
    case Kind::disk:
        return QStringLiteral("diskRead");
    case Kind::network:
        break;
    }
    return QStringLiteral("download");
}

QString MonitorTile::icon() const
{
    switch (m_kind) {
    case Kind::cpu:
        return QStringLiteral("cpu");
    case Kind::memory:
        return QStringLiteral("memory");
    case Kind::disk:
        return QStringLiteral("disk");
    case Kind::network:
        break;
    }
    return QStringLiteral("net");
}

QString MonitorTile::title() const
{
    switch (m_kind) {
    case Kind::cpu:
        return tr("CPU");
    case Kind::memory:
        return tr("Memory");
    case Kind::disk:
        return tr("Disk");
    case Kind::network:
        break;
    }
    return tr("Network");
}

QList<qreal> MonitorTile::series() const
{
    double most = m_most;
    if (most <= 0) {
        for (const qreal value : m_series) {
            most = std::max(most, value);
        }
        most = std::max(kLowestScale, most) / 0.9; // the highest stays below the edge
    }
    QList<qreal> shares;
    shares.reserve(m_series.size());
    for (const qreal value : m_series) {
        shares.append(std::clamp(value / most, 0.0, 1.0));
    }
    return shares;
}

void MonitorTile::clear()
{
    m_value = QStringLiteral("—");
    m_whole = m_value;
    m_rest.clear();
    m_note.clear();
    m_problem = missingText(m_formatting, {.state = MetricState::warmingUp});
    m_series.clear();
    emit changed();
}

std::optional<double> MonitorTile::read(const Snapshot &snapshot, MetricID metric)
{
    const auto found = snapshot.readings.find(metric);
    if (found == snapshot.readings.end()) {
        m_problem = missingText(m_formatting, {.state = MetricState::unsupported});
        return std::nullopt;
    }
    m_problem = missingText(m_formatting, found->second);
    return m_problem.isEmpty() ? found->second.value : std::nullopt;
}

void MonitorTile::append(double value)
{
    if (!m_isNew) {
        return;
    }
    m_series.append(value);
    if (m_series.size() > kPoints) {
        m_series.removeFirst();
    }
}

void MonitorTile::show(const Snapshot &snapshot, bool isNew)
{
    m_isNew = isNew;
    if (snapshot.interval > kLongestStep) {
        m_series.clear();
    }
    m_value = QStringLiteral("—");
    m_whole = m_value;
    m_rest.clear();
    m_note.clear();
    switch (m_kind) {
    case Kind::cpu:
        showCpu(snapshot);
        break;
    case Kind::memory:
        showMemory(snapshot);
        break;
    case Kind::disk:
        showDisk(snapshot);
        break;
    case Kind::network:
        showNetwork(snapshot);
        break;
    }
    if (m_kind != Kind::memory) {
        m_whole = m_value;
    }
    emit changed();
}

void MonitorTile::showCpu(const Snapshot &snapshot)
{
    m_most = 100;
    if (m_cores > 0) {
        m_note =
            m_cores == 1 ? tr("one core") : tr("%1 cores").arg(m_formatting.number(m_cores));
    }
    if (const auto percent = read(snapshot, MetricID::cpu)) {
        m_value = percentText(m_formatting, *percent, 0);
        append(*percent);
    }
}

void MonitorTile::showMemory(const Snapshot &snapshot)
{
    const auto total = read(snapshot, MetricID::memoryTotal);
    const auto used = read(snapshot, MetricID::memoryUsed);
    if (!used) {
        return;
    }
    m_whole = bytesText(m_formatting, *used);
    m_value = m_whole;
    if (total && *total > 0) {
        m_most = *total;
        m_rest = tr("of %1", "9.4 of 16 GB").arg(bytesText(m_formatting, *total));
        // One unit is enough where both have it.
        const QString unit = m_rest.section(u' ', -1);
        if (m_value.endsWith(u' ' + unit)) {
            m_value.chop(unit.size() + 1);
        }
    }
    append(*used);
}

void MonitorTile::showRate(const Snapshot &snapshot, MetricID in, MetricID out, bool isSum)
{
    const auto second = read(snapshot, out);
    const auto first = read(snapshot, in); // its problem is the one that is told
    if (first) {
        const double rate = *first + (isSum ? second.value_or(0) : 0);
        m_value = rateText(m_formatting, rate);
        append(rate);
    }
    if (!isSum && second) {
        m_note = tr("↑ %1", "upload")
                     .arg(rateNumber(m_formatting, *second, first.value_or(*second)));
    }
}

void MonitorTile::showDisk(const Snapshot &snapshot)
{
    if (const auto free = read(snapshot, MetricID::diskFree)) {
        m_note = tr("%1 free").arg(bytesText(m_formatting, *free));
    }
    showRate(snapshot, MetricID::diskRead, MetricID::diskWrite, true);
}

void MonitorTile::showNetwork(const Snapshot &snapshot)
{
    showRate(snapshot, MetricID::download, MetricID::upload, false);
}

} // namespace Velvetnook
