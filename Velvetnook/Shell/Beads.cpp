// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Shell/Beads.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Velvetnook
{

Beads::Beads(QQuickItem *parent) : QQuickPaintedItem{parent}
{
    setAntialiasing(true);
    connect(this, &Beads::changed, this, [this] { update(); });
}

void Beads::paint(QPainter *painter)
{
    painter->setPen(Qt::NoPen);
    const QPointF centre{width() / 2, height() / 2};
    if (m_total <= 1 && m_ringRadius <= 0) {
        const qreal radius = std::min(width(), height()) / 2;
        painter->setBrush(m_color);
        painter->drawEllipse(centre, radius, radius);
        return;
    }
    for (int bead = 0; bead < m_total; ++bead) {
        const qreal angle = bead * 2 * std::numbers::pi / m_total;
        const QPointF at =
            centre + QPointF{m_ringRadius * std::sin(angle), -m_ringRadius * std::cos(angle)};
        painter->setBrush(bead < m_lit ? m_color : m_restColor);
        painter->drawEllipse(at, m_beadRadius, m_beadRadius);
    }
}

} // namespace Velvetnook
