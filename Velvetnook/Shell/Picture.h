// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QQuickPaintedItem>

namespace Velvetnook
{

// A picture that a view model has in memory, filling its place with round corners. What it
// leaves free at the sides is cut.
class Picture : public QQuickPaintedItem
{
    Q_OBJECT
    Q_PROPERTY(QImage image READ image WRITE setImage NOTIFY changed)
    Q_PROPERTY(qreal corner MEMBER m_corner NOTIFY changed)

public:
    explicit Picture(QQuickItem *parent = nullptr);

    QImage image() const { return m_image; }
    void setImage(const QImage &image);
    void paint(QPainter *painter) override;

signals:
    void changed();

private:
    QImage m_image;
    qreal m_corner = 0;
};

} // namespace Velvetnook
