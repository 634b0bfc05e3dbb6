// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/Monitor/MonitorWorker.h"

#include <QList>
#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVariantList>

#include <optional>

namespace Velvetnook
{

class ApplicationModel;
class Formatting;
class MonitorService;

// What was recorded of one metric, as a chart. The chosen column is the highest until the user
// points at another, which then stays chosen, and says who was highest then.
class MonitorChart : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString metric READ metric NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY changed)
    Q_PROPERTY(QVariantList metrics READ metrics NOTIFY changed) // [{value, label}]
    Q_PROPERTY(int hours READ hours WRITE setHours NOTIFY changed)
    Q_PROPERTY(QString availability READ availability NOTIFY changed)
    Q_PROPERTY(QString problem READ problem NOTIFY changed)
    Q_PROPERTY(QList<QPointF> means READ means NOTIFY changed) // 0 to 1 each way, 1 is high
    Q_PROPERTY(QList<QPointF> peaks READ peaks NOTIFY changed)
    Q_PROPERTY(double gap READ gap NOTIFY changed) // points further apart are not joined
    Q_PROPERTY(QStringList times READ times NOTIFY changed)                 // along the foot
    Q_PROPERTY(QString limitText READ limitText NOTIFY changed)             // of the upper edge
    Q_PROPERTY(int column READ column WRITE setColumn NOTIFY columnChanged) // -1: none
    Q_PROPERTY(QPointF mark READ mark NOTIFY columnChanged)
    Q_PROPERTY(QString markTime READ markTime NOTIFY columnChanged)
    Q_PROPERTY(QString markValue READ markValue NOTIFY columnChanged)
    Q_PROPERTY(QString markPeak READ markPeak NOTIFY columnChanged)
    Q_PROPERTY(QString markCauses READ markCauses NOTIFY columnChanged)
    Q_PROPERTY(QString footer READ footer NOTIFY changed)

public:
    MonitorChart(MonitorService &service, ApplicationModel &model, const Formatting &formatting,
                 QObject *parent = nullptr);

    QString metric() const;
    QString title() const;
    QString subtitle() const;
    QVariantList metrics() const;
    int hours() const { return m_hours; }
    void setHours(int hours);
    QString availability() const;
    QString problem() const { return m_problem; }
    QList<QPointF> means() const;
    QList<QPointF> peaks() const;
    double gap() const;
    QStringList times() const;
    QString limitText() const;
    int column() const { return m_column; }
    void setColumn(int column);
    QPointF mark() const;
    QString markTime() const;
    QString markValue() const;
    QString markPeak() const;
    QString markCauses() const { return m_causes; }
    QString footer() const;

    // What is read is read now, and again when it is asked for or followed.
    Q_INVOKABLE void open(const QString &metric);
    Q_INVOKABLE void pointAt(double part); // 0 to 1 of the chart's time
    Q_INVOKABLE void step(int distance);
    Q_INVOKABLE void refresh();
    // Reads anew once the time has moved on by a column. For who shows the chart.
    void follow();
    // Lets go of what was read.
    Q_INVOKABLE void leave();

signals:
    void changed();
    void columnChanged();

private:
    void read();
    void ask();
    void take(ChartAnswer answer);
    int columnOfMark() const;
    void choose(int column);
    void askCauses();
    const ChartColumn *chosen() const;
    double limit() const;

    MonitorService &m_service;
    ApplicationModel &m_model;
    const Formatting &m_formatting;
    MonitorCore::MetricID m_metric{};
    int m_hours = 24;
    Base::Instant m_from{};
    Base::Instant m_to{};
    std::vector<ChartColumn> m_columns;
    std::uintmax_t m_bytes = 0;
    QString m_problem;
    QString m_causes;
    int m_column = -1;
    int m_asked = 0; // answers to older questions are passed over
    int m_causesAsked = 0;
    bool m_isLoading = false;
    bool m_isOpen = false;
    std::optional<Base::Instant> m_pointedAt; // by the user; else the highest is chosen
};

} // namespace Velvetnook
