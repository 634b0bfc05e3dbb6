// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Shell/WeatherChart.h"

#include <QPainter>

#include <algorithm>

namespace Velvetnook
{

namespace
{

constexpr qreal kColumn = 31; // at most: few hours do not stand far apart
constexpr qreal kTop = 26;    // of the warmest
constexpr qreal kRange = 40;
constexpr qreal kGround = 104;
constexpr qreal kBar = 24;
constexpr qreal kBarWidth = 8;
constexpr qreal kRing = 3.5;

qreal numberOf(const QVariant &column, const char *name)
{
    return column.toMap().value(QLatin1String{name}).toDouble();
}

} // namespace

WeatherChart::WeatherChart(QQuickItem *parent) : QQuickPaintedItem{parent}
{
    setAntialiasing(true);
    connect(this, &WeatherChart::changed, this, [this] { update(); });
}

qreal WeatherChart::columnX(int index) const
{
    const qreal x = kColumn * (index + 0.5);
    return m_mirrored ? width() - x : x;
}

qreal WeatherChart::lineY(int index) const
{
    return kTop + kRange * numberOf(m_columns.value(index), "y");
}

// A smooth curve through all points: each is passed in the direction from the one before it
// to the one behind it.
QPainterPath WeatherChart::linePath() const
{
    QPainterPath path;
    const int last = static_cast<int>(m_columns.size()) - 1;
    const auto point = [&](int index) {
        const int at = std::clamp(index, 0, last);
        return QPointF{columnX(at), lineY(at)};
    };
    path.moveTo(point(0));
    for (int at = 0; at < last; ++at) {
        path.cubicTo(point(at) + (point(at + 1) - point(at - 1)) / 6,
                     point(at + 1) - (point(at + 2) - point(at)) / 6, point(at + 1));
    }
    return path;
}

void WeatherChart::paint(QPainter *painter)
{
    painter->setRenderHint(QPainter::Antialiasing);
    QColor faint = m_ink;
    faint.setAlphaF(0.38F);
    painter->setPen(Qt::NoPen);
    painter->setBrush(faint);
    const int count = static_cast<int>(m_columns.size());
    for (int at = 0; at < count; ++at) {
        const qreal height = std::clamp(numberOf(m_columns[at], "rain"), 0.0, 1.0) * kBar;
        if (height > 0) {
            const qreal shown = std::max(height, 2.0);
            const qreal corner = std::min(3.0, shown / 2);
            painter->drawRoundedRect(
                QRectF{columnX(at) - kBarWidth / 2, kGround - shown, kBarWidth, shown}, corner,
                corner);
        }
    }
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen{m_line, 1});
    painter->drawLine(QPointF{0, kGround + 0.5}, QPointF{width(), kGround + 0.5});
    if (count == 0) {
        return;
    }
    painter->setPen(QPen{m_ink, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
    painter->drawPath(linePath());
    painter->setBrush(m_ground);
    for (int at = 0; at < count; at += 2) {
        painter->drawEllipse(QPointF{columnX(at), lineY(at)}, kRing, kRing);
    }
}

} // namespace Velvetnook
