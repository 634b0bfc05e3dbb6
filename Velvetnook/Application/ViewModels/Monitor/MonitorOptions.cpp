// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Monitor/MonitorOptions.h"

#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/Monitor/AmountText.h"
#include "Velvetnook/Application/Monitor/MonitorService.h"

#include <QVariantMap>

#include <cmath>

namespace Velvetnook
{

namespace
{

using MonitorCore::MonitorPreferences;

constexpr double kGrowthStep = 268'435'456;
constexpr double kMegabyte = 1e6;
constexpr double kMinute = 60;

} // namespace

MonitorOptions::MonitorOptions(MonitorService &service, const Formatting &formatting,
                               QObject *parent)
    : QObject{parent}, m_service{service}, m_formatting{formatting}
{
    connect(&service, &MonitorService::preferencesChanged, this, &MonitorOptions::changed);
    connect(&service, &MonitorService::recordingChanged, this, &MonitorOptions::changed);
    connect(&formatting, &Formatting::wordsChanged, this, &MonitorOptions::changed);
}

bool MonitorOptions::history() const { return m_service.preferences().historyEnabled; }
bool MonitorOptions::isPaused() const { return m_service.preferences().historyPaused; }

int MonitorOptions::retention() const
{
    return static_cast<int>(m_service.preferences().retentionDays);
}

QString MonitorOptions::problem() const
{
    return m_service.preferencesProblem().isEmpty() ? m_service.recordingProblem()
                                                    : m_service.preferencesProblem();
}

bool MonitorOptions::alerts() const { return m_service.preferences().alertsEnabled; }
double MonitorOptions::cpu() const { return m_service.preferences().cpuThreshold; }
double MonitorOptions::minutes() const { return m_service.preferences().cpuDuration / kMinute; }

double MonitorOptions::growth() const
{
    return std::round(m_service.preferences().memoryGrowthBytes / kGrowthStep);
}

double MonitorOptions::disk() const
{
    return m_service.preferences().diskThreshold / kMegabyte;
}

QString MonitorOptions::cpuText() const { return percentText(m_formatting, cpu(), 0); }

QString MonitorOptions::minutesText() const
{
    return spanText(m_formatting, m_service.preferences().cpuDuration);
}

QString MonitorOptions::growthText() const
{
    return bytesText(m_formatting, m_service.preferences().memoryGrowthBytes);
}

QString MonitorOptions::limitText(double megabytes) const
{
    return megabytes > 0 ? rateText(m_formatting, megabytes * kMegabyte)
                         : tr("Off", "no threshold");
}

QString MonitorOptions::diskText() const { return limitText(disk()); }

QVariantList MonitorOptions::excluded() const
{
    QVariantList list;
    for (const std::string &app : m_service.preferences().excludedApps) {
        const QString id = QString::fromStdString(app);
        list.append(QVariantMap{{QStringLiteral("id"), id},
                                {QStringLiteral("title"), id.section(u'/', -1)}});
    }
    return list;
}

void MonitorOptions::setHistory(bool on)
{
    m_service.changePreferences([on](MonitorPreferences &wanted) {
        wanted.historyEnabled = on;
        wanted.historyPaused = false;
    });
}

void MonitorOptions::setPaused(bool on)
{
    m_service.changePreferences(
        [on](MonitorPreferences &wanted) { wanted.historyPaused = on; });
}

void MonitorOptions::setRetention(int days)
{
    m_service.changePreferences(
        [days](MonitorPreferences &wanted) { wanted.retentionDays = days; });
}

void MonitorOptions::setAlerts(bool on)
{
    m_service.changePreferences(
        [on](MonitorPreferences &wanted) { wanted.alertsEnabled = on; });
}

void MonitorOptions::setCpu(double percent)
{
    m_service.changePreferences(
        [percent](MonitorPreferences &wanted) { wanted.cpuThreshold = percent; });
}

void MonitorOptions::setMinutes(double minutes)
{
    m_service.changePreferences(
        [minutes](MonitorPreferences &wanted) { wanted.cpuDuration = minutes * kMinute; });
}

void MonitorOptions::setGrowth(double steps)
{
    m_service.changePreferences([steps](MonitorPreferences &wanted) {
        wanted.memoryGrowthBytes = steps * kGrowthStep;
    });
}

void MonitorOptions::setDisk(double megabytes)
{
    m_service.changePreferences([megabytes](MonitorPreferences &wanted) {
        wanted.diskThreshold = megabytes * kMegabyte;
    });
}

bool MonitorOptions::isExcluded(const QString &app) const
{
    return m_service.preferences().excludedApps.contains(app.toStdString());
}

void MonitorOptions::setExcluded(const QString &app, bool on)
{
    m_service.changePreferences([app = app.toStdString(), on](MonitorPreferences &wanted) {
        if (on) {
            wanted.excludedApps.insert(app);
        } else {
            wanted.excludedApps.erase(app);
        }
    });
}

} // namespace Velvetnook
