// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Shell/PreviewImages.h"

#include "Velvetnook/Application/FileGlance.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QPainterPath>
#include <QUrl>

#include <algorithm>

namespace Velvetnook
{

namespace
{

constexpr qint64 kMostPixels = 60'000'000; // of a file that is read; they take four bytes each
constexpr int kLargest = 2400;             // of what is drawn, either way
constexpr double kCorner = 10.0 / 66;      // of the height

QImage read(const QString &path, const QSize &wanted, Qt::AspectRatioMode mode)
{
    if (!QFileInfo{path}.isFile()) {
        return {}; // reading a pipe would wait for ever
    }
    QImageReader reader{path};
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (!size.isValid() || qint64{size.width()} * size.height() > kMostPixels) {
        return {};
    }
    const bool isTurned =
        (reader.transformation() & QImageIOHandler::TransformationRotate90) != 0;
    const QSize seen = isTurned ? size.transposed() : size;
    QSize scaled = seen.scaled(wanted, mode);
    if (scaled.width() > seen.width()) {
        scaled = seen; // nothing is gained by a small one being read larger
    }
    reader.setScaledSize(isTurned ? scaled.transposed() : scaled);
    return reader.read();
}

QImage filling(const QImage &picture, const QSize &wanted)
{
    QImage image{wanted, QImage::Format_ARGB32_Premultiplied};
    image.fill(Qt::transparent);
    QPainter painter{&image};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const double corner = wanted.height() * kCorner;
    QPainterPath outline;
    outline.addRoundedRect(QRectF{{}, QSizeF{wanted}}, corner, corner);
    const QSizeF size = QSizeF{picture.size()}.scaled(wanted, Qt::KeepAspectRatioByExpanding);
    const QPointF at{(wanted.width() - size.width()) / 2,
                     (wanted.height() - size.height()) / 2};
    QBrush brush{picture};
    brush.setTransform(
        QTransform{}
            .translate(at.x(), at.y())
            .scale(size.width() / picture.width(), size.height() / picture.height()));
    painter.fillPath(outline, brush);
    return image;
}

} // namespace

PreviewImages::PreviewImages()
    : QQuickImageProvider{QQuickImageProvider::Image,
                          QQuickImageProvider::ForceAsynchronousImageLoading}
{
}

QImage PreviewImages::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    const QStringList parts = id.split(u'/');
    const bool isWhole = parts.value(1) == QLatin1String{"whole"};
    const QString path = QUrl::fromPercentEncoding(parts.value(isWhole ? 2 : 1).toLatin1());
    const QSize wanted = requestedSize.boundedTo({kLargest, kLargest});
    if (wanted.isEmpty()) {
        return {};
    }
    const QString thumbnail =
        glanceByName(path).family == u"picture" ? QString{} : thumbnailOf(path);
    QImage image = read(thumbnail.isEmpty() ? path : thumbnail, wanted,
                        isWhole ? Qt::KeepAspectRatio : Qt::KeepAspectRatioByExpanding);
    if (!image.isNull() && !isWhole) {
        image = filling(image, wanted);
    }
    if (size != nullptr) {
        *size = image.size();
    }
    return image;
}

} // namespace Velvetnook
