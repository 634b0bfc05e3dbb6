// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Shell/Sparkline.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

#include <algorithm>

namespace Velvetnook
{

namespace
{

constexpr qreal kStroke = 1.6;
constexpr float kGround = 0.13F;
constexpr qreal kDot = 2.6;

} // namespace

Sparkline::Sparkline(QQuickItem *parent) : QQuickPaintedItem{parent}
{
    setAntialiasing(true);
    connect(this, &Sparkline::changed, this, [this] { update(); });
}

void Sparkline::paint(QPainter *painter)
{
    if (m_values.isEmpty()) {
        return;
    }
    painter->setRenderHint(QPainter::Antialiasing);
    if (m_corner > 0) { // round below only
        QPainterPath shape;
        shape.addRoundedRect(QRectF{0, -2 * m_corner, width(), height() + 2 * m_corner},
                             m_corner, m_corner);
        painter->setClipPath(shape);
    }
    const qreal left = m_inset;
    const qreal right = width() - m_inset;
    const qreal step = (right - left) / std::max(1, m_room - 1);
    const qreal high = height() - m_inset;
    QPolygonF line;
    for (qsizetype at = 0; at < m_values.size(); ++at) {
        const auto age = static_cast<qreal>(m_values.size() - 1 - at);
        const qreal x = right - age * step;
        const qreal y = height() - std::clamp(m_values[at], 0.0, 1.0) * high;
        line.append({m_mirrored ? width() - x : x, y});
    }
    QColor ground = m_color;
    ground.setAlphaF(kGround);
    QPolygonF area = line;
    area.append({line.last().x(), height()});
    area.append({line.first().x(), height()});
    painter->setPen(Qt::NoPen);
    painter->setBrush(ground);
    painter->drawPolygon(area);
    painter->setPen(QPen{m_color, kStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
    painter->setBrush(Qt::NoBrush);
    painter->drawPolyline(line);
    if (m_hasDot) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(m_color);
        painter->drawEllipse(line.last(), kDot, kDot);
    }
}

} // namespace Velvetnook
