// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MonitorCore/MonitorSnapshot.h"

#include <QList>
#include <QObject>
#include <QString>

namespace Velvetnook
{

class Formatting;

// One figure of the machine with the way it went in the last minute.
class MonitorTile : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString metric READ metric CONSTANT) // of its history
    Q_PROPERTY(QString icon READ icon CONSTANT)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString value READ value NOTIFY changed) // an em dash where there is none
    Q_PROPERTY(QString whole READ whole NOTIFY changed) // the same with its unit
    Q_PROPERTY(QString rest READ rest NOTIFY changed)   // "of 16 GB", one step back
    Q_PROPERTY(QString note READ note NOTIFY changed)
    Q_PROPERTY(QString problem READ problem NOTIFY changed) // why there is none
    Q_PROPERTY(bool isMissing READ isMissing NOTIFY changed)
    Q_PROPERTY(QList<qreal> series READ series NOTIFY changed) // 0 to 1, the newest last

public:
    enum class Kind : std::uint8_t { cpu, memory, disk, network };

    MonitorTile(Kind kind, const Formatting &formatting, QObject *parent = nullptr);

    QString metric() const;
    QString icon() const;
    QString title() const;
    QString value() const { return m_value; }
    QString whole() const { return m_whole; }
    QString rest() const { return m_rest; }
    QString note() const { return m_note; }
    QString problem() const { return m_problem; }
    bool isMissing() const { return !m_problem.isEmpty(); }
    QList<qreal> series() const;

    void setCores(int cores) { m_cores = cores; }
    // One that was shown already, only in other words, leaves the line as it is.
    void show(const MonitorCore::MonitorSnapshot &snapshot, bool isNew);
    void clear();

signals:
    void changed();

private:
    using Snapshot = MonitorCore::MonitorSnapshot;

    void showCpu(const Snapshot &snapshot);
    void showMemory(const Snapshot &snapshot);
    void showDisk(const Snapshot &snapshot);
    void showNetwork(const Snapshot &snapshot);
    void showRate(const Snapshot &snapshot, MonitorCore::MetricID in, MonitorCore::MetricID out,
                  bool isSum);
    // What is there; else nothing, and `problem` says why.
    std::optional<double> read(const Snapshot &snapshot, MonitorCore::MetricID metric);
    void append(double value);

    Kind m_kind;
    const Formatting &m_formatting;
    int m_cores = 0;
    bool m_isNew = false;
    QString m_value;
    QString m_whole;
    QString m_rest;
    QString m_note;
    QString m_problem;
    QList<qreal> m_series; // as measured
    double m_most = 0;     // that the measured can be; 0: no limit
};

} // namespace Velvetnook
