// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Shell/QiblaDial.h"

#include "Velvetnook/Shell/RoundPen.h"

#include <QPainter>

namespace Velvetnook
{

namespace
{

// Room for the sign of the Kaaba, which stands on the rim.
constexpr qreal kMargin = 8;

} // namespace

QiblaDial::QiblaDial(QQuickItem *parent) : QQuickPaintedItem{parent}
{
    setAntialiasing(true);
    connect(this, &QiblaDial::changed, this, [this] { update(); });
}

void QiblaDial::paint(QPainter *painter)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(width() / 2, height() / 2);
    const qreal radius = width() / 2 - kMargin;
    paintCard(*painter, radius);
    painter->rotate(m_degrees);
    paintPointer(*painter, radius);
    painter->setPen(QPen{m_accent, 2.2});
    painter->setBrush(m_ground);
    painter->drawEllipse(QPointF{}, 4, 4);
}

void QiblaDial::paintCard(QPainter &painter, qreal radius) const
{
    painter.setPen(QPen{m_outline, 1});
    painter.setBrush(m_card);
    painter.drawEllipse(QPointF{}, radius, radius);
    painter.save();
    for (int angle = 0; angle < 360; angle += 15) {
        const bool isQuarter = angle % 90 == 0;
        painter.setPen(roundPen(isQuarter ? m_letter : m_tick, 1.5));
        painter.drawLine(QPointF{0, -(radius - 6)},
                         QPointF{0, -(radius - 6 - (isQuarter ? 7 : 4))});
        painter.rotate(15);
    }
    painter.restore();
    QFont font{QStringLiteral("Inter")};
    font.setPixelSize(11);
    font.setWeight(QFont::DemiBold);
    painter.setFont(font);
    painter.setPen(m_letter);
    const qreal width = QFontMetricsF{font}.horizontalAdvance(m_north);
    painter.drawText(QPointF{-width / 2, -radius + 26}, m_north);
}

void QiblaDial::paintPointer(QPainter &painter, qreal radius) const
{
    painter.setPen(roundPen(m_accent, 2.2));
    painter.setBrush(Qt::NoBrush);
    painter.drawLine(QPointF{0, radius * 0.42}, QPointF{0, -radius * 0.52});
    const QPointF head[]{{-6.5, -radius * 0.42}, {0, -radius * 0.66}, {6.5, -radius * 0.42}};
    painter.drawPolyline(head, 3);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_accent);
    painter.drawRoundedRect(QRectF{-5.5, -radius - 4, 11, 11}, 2.5, 2.5);
}

} // namespace Velvetnook
