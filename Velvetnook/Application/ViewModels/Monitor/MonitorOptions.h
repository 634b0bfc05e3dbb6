// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QVariantList>

namespace Velvetnook
{

class Formatting;
class MonitorService;

// What the user has chosen of history and alerts. Shows what is committed.
class MonitorOptions : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool history READ history WRITE setHistory NOTIFY changed)
    Q_PROPERTY(bool isPaused READ isPaused WRITE setPaused NOTIFY changed)
    Q_PROPERTY(int retention READ retention WRITE setRetention NOTIFY changed) // days
    Q_PROPERTY(QString problem READ problem NOTIFY changed)
    Q_PROPERTY(bool alerts READ alerts WRITE setAlerts NOTIFY changed)
    Q_PROPERTY(double cpu READ cpu WRITE setCpu NOTIFY changed)             // percent
    Q_PROPERTY(double minutes READ minutes WRITE setMinutes NOTIFY changed) // of the load
    Q_PROPERTY(double growth READ growth WRITE setGrowth NOTIFY changed)    // in 256 MiB
    Q_PROPERTY(double disk READ disk WRITE setDisk NOTIFY changed)          // MB/s; 0: none
    Q_PROPERTY(QString cpuText READ cpuText NOTIFY changed)
    Q_PROPERTY(QString minutesText READ minutesText NOTIFY changed)
    Q_PROPERTY(QString growthText READ growthText NOTIFY changed)
    Q_PROPERTY(QString diskText READ diskText NOTIFY changed)
    Q_PROPERTY(QVariantList excluded READ excluded NOTIFY changed) // [{id, title}]

public:
    MonitorOptions(MonitorService &service, const Formatting &formatting,
                   QObject *parent = nullptr);

    bool history() const;
    bool isPaused() const;
    int retention() const;
    QString problem() const;
    bool alerts() const;
    double cpu() const;
    double minutes() const;
    double growth() const;
    double disk() const;
    QString cpuText() const;
    QString minutesText() const;
    QString growthText() const;
    QString diskText() const;
    QVariantList excluded() const;

    void setHistory(bool on);
    void setPaused(bool on);
    void setRetention(int days);
    void setAlerts(bool on);
    void setCpu(double percent);
    void setMinutes(double minutes);
    void setGrowth(double steps);
    void setDisk(double megabytes);

    // Whether the application raises no alerts.
    Q_INVOKABLE bool isExcluded(const QString &app) const;
    Q_INVOKABLE void setExcluded(const QString &app, bool on);

signals:
    void changed();

private:
    QString limitText(double megabytes) const;

    MonitorService &m_service;
    const Formatting &m_formatting;
};

} // namespace Velvetnook
