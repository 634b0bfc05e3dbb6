// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Shell/DayArc.h"

#include "Velvetnook/Shell/RoundPen.h"

#include <QPainter>
#include <QPolygonF>

namespace Velvetnook
{

namespace
{

constexpr qreal kWidth = 280;
constexpr qreal kHeight = 112;
constexpr qreal kTop = 8;

} // namespace

DayArc::DayArc(QQuickItem *parent) : QQuickPaintedItem{parent}
{
    setAntialiasing(true);
    connect(this, &DayArc::changed, this, [this] { update(); });
}

QPointF DayArc::placed(const QPointF &part) const
{
    const qreal x = part.x() * kWidth;
    return {m_mirrored ? width() - x : x, kTop + part.y() * kHeight};
}

void DayArc::paint(QPainter *painter)
{
    painter->setRenderHint(QPainter::Antialiasing);
    QPen dots = roundPen(m_line, 1);
    dots.setDashPattern({0.01, 6});
    painter->setPen(dots);
    painter->drawLine(placed({0, m_horizon}), placed({1, m_horizon}));
    paintLine(*painter, m_coming, m_track);
    paintLine(*painter, m_gone, m_accent);
    for (const QVariant &mark : m_marks) {
        paintMark(*painter, mark.toMap());
    }
    if (m_hasSun) {
        QColor halo = m_accent;
        halo.setAlphaF(0.18F);
        painter->setPen(Qt::NoPen);
        painter->setBrush(halo);
        painter->drawEllipse(placed(m_sun), 12, 12);
        painter->setBrush(m_body);
        painter->drawEllipse(placed(m_sun), 6.5, 6.5);
    }
}

void DayArc::paintLine(QPainter &painter, const QList<QPointF> &points,
                       const QColor &color) const
{
    QPolygonF line;
    for (const QPointF &point : points) {
        line.append(placed(point));
    }
    painter.setPen(roundPen(color, 2.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(line);
}

void DayArc::paintMark(QPainter &painter, const QVariantMap &mark) const
{
    const bool isPast = mark[QStringLiteral("isPast")].toBool();
    const bool isNext = mark[QStringLiteral("isNext")].toBool();
    const QPointF centre =
        placed({mark[QStringLiteral("x")].toDouble(), mark[QStringLiteral("y")].toDouble()});
    painter.setPen(QPen{isPast || isNext ? m_accent : m_rest, 2});
    painter.setBrush(isPast ? m_accent : m_ground);
    const qreal radius = isNext ? 5 : 4;
    painter.drawEllipse(centre, radius, radius);
}

} // namespace Velvetnook
