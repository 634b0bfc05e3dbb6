// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QQuickPaintedItem>

namespace Velvetnook
{

// Round beads on a circle, the first at the top and on clockwise: `lit` of `total` are counted.
// A single bead fills the item. Painted as one picture, as true circles at any size.
class Beads : public QQuickPaintedItem
{
    Q_OBJECT
    Q_PROPERTY(int total MEMBER m_total NOTIFY changed)
    Q_PROPERTY(int lit MEMBER m_lit NOTIFY changed)
    Q_PROPERTY(qreal ringRadius MEMBER m_ringRadius NOTIFY changed)
    Q_PROPERTY(qreal beadRadius MEMBER m_beadRadius NOTIFY changed)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    Q_PROPERTY(QColor restColor MEMBER m_restColor NOTIFY changed)

public:
    explicit Beads(QQuickItem *parent = nullptr);
    void paint(QPainter *painter) override;

signals:
    void changed();

private:
    int m_total = 1;
    int m_lit = 1;
    qreal m_ringRadius = 0;
    qreal m_beadRadius = 0;
    QColor m_color;
    QColor m_restColor;
};

} // namespace Velvetnook
