// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QList>
#include <QPointF>
#include <QQuickPaintedItem>

namespace Velvetnook
{

// A series over a while: means as a line, with a band up to the peaks, three lines of the grid
// and a mark. Points are in parts of the width and of the height from below; where nothing is
// known the line is broken. Time runs with the reading direction.
class HistoryChart : public QQuickPaintedItem
{
    Q_OBJECT
    Q_PROPERTY(QList<QPointF> means MEMBER m_means NOTIFY changed)
    Q_PROPERTY(QList<QPointF> peaks MEMBER m_peaks NOTIFY changed)
    Q_PROPERTY(qreal gap MEMBER m_gap NOTIFY changed)
    Q_PROPERTY(bool hasMark MEMBER m_hasMark NOTIFY changed)
    Q_PROPERTY(QPointF mark MEMBER m_mark NOTIFY changed)
    Q_PROPERTY(bool mirrored MEMBER m_mirrored NOTIFY changed)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    Q_PROPERTY(QColor ground MEMBER m_ground NOTIFY changed)
    Q_PROPERTY(QColor line MEMBER m_line NOTIFY changed)
    Q_PROPERTY(QColor dots MEMBER m_dots NOTIFY changed)

public:
    explicit HistoryChart(QQuickItem *parent = nullptr);
    void paint(QPainter *painter) override;

signals:
    void changed();

private:
    QPointF placed(const QPointF &part) const;
    void paintGrid(QPainter &painter) const;
    void paintPiece(QPainter &painter, qsizetype first, qsizetype last) const;
    void paintMark(QPainter &painter) const;

    QList<QPointF> m_means;
    QList<QPointF> m_peaks; // one for each of the means
    qreal m_gap = 1;
    bool m_hasMark = false;
    QPointF m_mark;
    bool m_mirrored = false;
    QColor m_color;
    QColor m_ground;
    QColor m_line;
    QColor m_dots;
};

} // namespace Velvetnook
