// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Shell/HistoryChart.h"

#include <QPainter>
#include <QPolygonF>

namespace Velvetnook
{

namespace
{

constexpr qreal kInset = 5; // above and below, for the mark and the stroke
constexpr float kBand = 0.17F;

} // namespace

HistoryChart::HistoryChart(QQuickItem *parent) : QQuickPaintedItem{parent}
{
    setAntialiasing(true);
    connect(this, &HistoryChart::changed, this, [this] { update(); });
}

QPointF HistoryChart::placed(const QPointF &part) const
{
    const qreal x = part.x() * width();
    return {m_mirrored ? width() - x : x,
            height() - kInset - part.y() * (height() - 2 * kInset)};
}

void HistoryChart::paint(QPainter *painter)
{
    painter->setRenderHint(QPainter::Antialiasing);
    paintGrid(*painter);
    qsizetype first = 0;
    for (qsizetype at = 1; at <= m_means.size(); ++at) {
        const bool isEnd =
            at == m_means.size() || m_means[at].x() - m_means[at - 1].x() > m_gap;
        if (isEnd) {
            paintPiece(*painter, first, at);
            first = at;
        }
    }
    if (m_hasMark) {
        paintMark(*painter);
    }
}

void HistoryChart::paintGrid(QPainter &painter) const
{
    painter.setPen(QPen{m_line, 1});
    for (const qreal level : {0.0, 0.5, 1.0}) {
        painter.drawLine(placed({0, level}), placed({1, level}));
    }
}

void HistoryChart::paintPiece(QPainter &painter, qsizetype first, qsizetype last) const
{
    QPolygonF line;
    QPolygonF band;
    for (qsizetype at = first; at < last; ++at) {
        line.append(placed(m_means[at]));
        band.append(placed(at < m_peaks.size() ? m_peaks[at] : m_means[at]));
    }
    for (qsizetype at = line.size() - 1; at >= 0; --at) {
        band.append(line[at]);
    }
    QColor fill = m_color;
    fill.setAlphaF(kBand);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawPolygon(band);
    const QPen pen{m_color, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    if (line.size() == 1) { // a single point is seen too
        painter.drawPoint(line.first());
    } else {
        painter.drawPolyline(line);
    }
}

void HistoryChart::paintMark(QPainter &painter) const
{
    const QPointF at = placed(m_mark);
    QPen dots{m_dots, 1};
    dots.setDashPattern({2, 4});
    painter.setPen(dots);
    painter.drawLine(QPointF{at.x(), placed({0, 1}).y()}, QPointF{at.x(), placed({0, 0}).y()});
    painter.setPen(QPen{m_color, 2});
    painter.setBrush(m_ground);
    painter.drawEllipse(at, 4, 4);
}

} // namespace Velvetnook
