// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QList>
#include <QQuickPaintedItem>

namespace Velvetnook
{

// The last values of a figure as a line over a tinted ground. The newest stands where reading
// ends; a line that is not full yet leaves its beginning empty.
class Sparkline : public QQuickPaintedItem
{
    Q_OBJECT
    Q_PROPERTY(QList<qreal> values MEMBER m_values NOTIFY changed) // 0 to 1, the newest last
    Q_PROPERTY(int room MEMBER m_room NOTIFY changed)              // for so many values
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    Q_PROPERTY(bool hasDot MEMBER m_hasDot NOTIFY changed)
    Q_PROPERTY(bool mirrored MEMBER m_mirrored NOTIFY changed)
    Q_PROPERTY(qreal corner MEMBER m_corner NOTIFY changed) // of the card that it fills below
    Q_PROPERTY(qreal inset MEMBER m_inset NOTIFY changed)   // for the line and the dot

public:
    explicit Sparkline(QQuickItem *parent = nullptr);
    void paint(QPainter *painter) override;

signals:
    void changed();

private:
    QList<qreal> m_values;
    int m_room = 30;
    QColor m_color;
    bool m_hasDot = false;
    bool m_mirrored = false;
    qreal m_corner = 0;
    qreal m_inset = 0;
};

} // namespace Velvetnook
