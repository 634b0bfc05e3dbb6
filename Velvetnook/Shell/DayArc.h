// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPointF>
#include <QQuickPaintedItem>
#include <QVariantList>

namespace Velvetnook
{

// The sun's way over the day with the six times on it, painted as one picture. Its points are
// in parts of a frame of 280 by 112 that stands 8 below the top at the side where reading
// begins; time runs with the reading direction.
class DayArc : public QQuickPaintedItem
{
    Q_OBJECT
    Q_PROPERTY(QList<QPointF> gone MEMBER m_gone NOTIFY changed)
    Q_PROPERTY(QList<QPointF> coming MEMBER m_coming NOTIFY changed)
    Q_PROPERTY(QVariantList marks MEMBER m_marks NOTIFY changed) // {x, y, isPast, isNext}
    Q_PROPERTY(QPointF sun MEMBER m_sun NOTIFY changed)
    Q_PROPERTY(bool hasSun MEMBER m_hasSun NOTIFY changed)
    Q_PROPERTY(qreal horizon MEMBER m_horizon NOTIFY changed)
    Q_PROPERTY(bool mirrored MEMBER m_mirrored NOTIFY changed)
    Q_PROPERTY(QColor accent MEMBER m_accent NOTIFY changed)
    Q_PROPERTY(QColor ground MEMBER m_ground NOTIFY changed)
    Q_PROPERTY(QColor track MEMBER m_track NOTIFY changed)
    Q_PROPERTY(QColor rest MEMBER m_rest NOTIFY changed)
    Q_PROPERTY(QColor line MEMBER m_line NOTIFY changed)
    Q_PROPERTY(QColor body MEMBER m_body NOTIFY changed)

public:
    explicit DayArc(QQuickItem *parent = nullptr);
    void paint(QPainter *painter) override;

signals:
    void changed();

private:
    QPointF placed(const QPointF &part) const;
    void paintLine(QPainter &painter, const QList<QPointF> &points, const QColor &color) const;
    void paintMark(QPainter &painter, const QVariantMap &mark) const;

    QList<QPointF> m_gone;
    QList<QPointF> m_coming;
    QVariantList m_marks;
    QPointF m_sun;
    bool m_hasSun = false;
    qreal m_horizon = 0;
    bool m_mirrored = false;
    QColor m_accent;
    QColor m_ground;
    QColor m_track;
    QColor m_rest;
    QColor m_line;
    QColor m_body;
};

} // namespace Velvetnook
