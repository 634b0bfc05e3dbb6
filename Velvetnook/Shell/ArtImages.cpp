// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Shell/ArtImages.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace Velvetnook
{

namespace
{

constexpr qint64 kLargestFile = 16'000'000; // bytes
constexpr int kLargestSide = 8000;          // pixels, of the picture as it is stored
constexpr int kLargestShown = 600;
constexpr qreal kCorner = 20.0 / 196.0; // of the side

// The middle of the picture, just large enough for the square.
QImage readSquare(const QString &path, int side)
{
    const QFileInfo file{path};
    if (!file.isFile() || file.size() > kLargestFile) { // a pipe would never end
        return {};
    }
    QImageReader reader{path};
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QSize stored = reader.size();
    if (!stored.isValid() || std::max(stored.width(), stored.height()) > kLargestSide) {
        return {};
    }
    reader.setScaledSize(stored.scaled(side, side, Qt::KeepAspectRatioByExpanding));
    const QImage whole = reader.read();
    return whole.copy((whole.width() - side) / 2, (whole.height() - side) / 2, side, side);
}

} // namespace

ArtImages::ArtImages() : QQuickImageProvider{Image, ForceAsynchronousImageLoading} {}

QImage ArtImages::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    const QByteArray path = QByteArray::fromBase64(id.section(u'/', 0, 0).toLatin1(),
                                                   QByteArray::Base64UrlEncoding);
    const int side = std::clamp(requestedSize.width(), 1, kLargestShown);
    const QImage square = readSquare(QString::fromUtf8(path), side);
    if (square.isNull()) {
        return {};
    }
    QImage image{side, side, QImage::Format_ARGB32_Premultiplied};
    image.fill(Qt::transparent);
    QPainter painter{&image};
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath outline;
    outline.addRoundedRect(image.rect(), side * kCorner, side * kCorner);
    painter.setPen(Qt::NoPen);
    painter.setBrush(square);
    painter.drawPath(outline);
    if (size != nullptr) {
        *size = image.size();
    }
    return image;
}

} // namespace Velvetnook
