// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/Clipboard/ImagePreview.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>

namespace Velvetnook
{

namespace
{

using Base::KestError;

std::unexpected<KestError> refuse(const char *message)
{
    return std::unexpected(KestError::invalidData(message));
}

// Scaled to fill its place, and cut where it is wider or higher than that.
QImage previewOf(const QImage &image)
{
    constexpr QSize kPlace{ImagePreviews::kWidth, ImagePreviews::kHeight};
    const bool isSmall = image.width() <= kPlace.width() && image.height() <= kPlace.height();
    if (isSmall) {
        return image;
    }
    const QImage scaled =
        image.scaled(kPlace, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    QRect middle{QPoint{}, kPlace};
    middle.moveCenter(scaled.rect().center());
    return scaled.copy(middle.intersected(scaled.rect()));
}

Base::Result<Base::Bytes> pngOf(const QImage &image)
{
    QByteArray png;
    QBuffer buffer{&png};
    if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, "PNG")) {
        return refuse(KestCore::ImageCodec::kCannotEncodePreview);
    }
    return Base::Bytes{png.begin(), png.end()};
}

} // namespace

Base::Result<KestCore::PreparedImage> ImagePreviews::prepare(Base::Bytes image)
{
    QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char *>(image.data()),
                                               static_cast<qsizetype>(image.size()));
    QBuffer buffer{&bytes};
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader{&buffer};
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    KestCore::PreparedImage prepared;
    if (!size.isValid() || qsizetype{size.width()} * size.height() <= kMostPixels) {
        const QImage read = reader.read();
        if (read.isNull()) {
            return refuse(kCannotDecode);
        }
        KEST_TRY(prepared.thumbnail, pngOf(previewOf(read)));
    }
    prepared.image = std::move(image);
    return prepared;
}

QString imageForm(const QByteArray &image)
{
    QByteArray bytes = image;
    QBuffer buffer{&bytes};
    buffer.open(QIODevice::ReadOnly);
    const QByteArray format = QImageReader::imageFormat(&buffer);
    return QStringLiteral("image/%1")
        .arg(format.isEmpty() ? QStringLiteral("png") : QString::fromLatin1(format));
}

} // namespace Velvetnook
