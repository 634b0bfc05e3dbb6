// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Shell/Picture.h"

#include <QPainter>
#include <QPainterPath>

namespace Velvetnook
{

Picture::Picture(QQuickItem *parent) : QQuickPaintedItem{parent}
{
    connect(this, &Picture::changed, this, [this] { update(); });
}

void Picture::setImage(const QImage &image)
{
    m_image = image;
    emit changed();
}

void Picture::paint(QPainter *painter)
{
    if (m_image.isNull()) {
        return;
    }
    QSizeF drawn = m_image.size();
    drawn.scale(size(), Qt::KeepAspectRatioByExpanding);
    QRectF place{QPointF{}, drawn};
    place.moveCenter(boundingRect().center());
    QPainterPath shape;
    shape.addRoundedRect(boundingRect(), m_corner, m_corner);
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter->setClipPath(shape);
    painter->drawImage(place, m_image);
}

} // namespace Velvetnook
