// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPainterPath>
#include <QQuickPaintedItem>
#include <QVariantList>

namespace Velvetnook
{

// The hours of a forecast, painted as one picture: the line of the temperature with a ring at
// every second hour, and the rain as bars on the ground. The words stand beside it in QML.
class WeatherChart : public QQuickPaintedItem
{
    Q_OBJECT
    Q_PROPERTY(QVariantList columns MEMBER m_columns NOTIFY changed) // {y, rain, value}
    Q_PROPERTY(bool mirrored MEMBER m_mirrored NOTIFY changed)
    Q_PROPERTY(QColor ink MEMBER m_ink NOTIFY changed)
    Q_PROPERTY(QColor ground MEMBER m_ground NOTIFY changed)
    Q_PROPERTY(QColor line MEMBER m_line NOTIFY changed)

public:
    explicit WeatherChart(QQuickItem *parent = nullptr);
    void paint(QPainter *painter) override;

    // Where a column stands, and where the line passes it.
    Q_INVOKABLE qreal columnX(int index) const;
    Q_INVOKABLE qreal lineY(int index) const;

signals:
    void changed();

private:
    QPainterPath linePath() const;

    QVariantList m_columns;
    bool m_mirrored = false;
    QColor m_ink;
    QColor m_ground;
    QColor m_line;
};

} // namespace Velvetnook
