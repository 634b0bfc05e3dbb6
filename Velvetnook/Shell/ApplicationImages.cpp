// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Shell/ApplicationImages.h"

#include <QFileInfo>
#include <QIcon>
#include <QImageReader>
#include <QPixmap>
#include <QUrl>

#include <algorithm>

namespace Velvetnook
{

namespace
{

constexpr int kLargestSide = 256;
constexpr int kLargestSource = 4096;
constexpr qint64 kLargestFile = 4 * 1024 * 1024;
constexpr int kUsualSide = 32;

// Only a regular file: to open a pipe would wait for whoever writes to it.
QImage readPicture(const QString &path, const QSize &size)
{
    const QFileInfo file{path};
    if (!file.isFile() || file.size() > kLargestFile) {
        return {};
    }
    QImageReader reader{path};
    const QSize own = reader.size();
    if (!own.isValid() || own.width() > kLargestSource || own.height() > kLargestSource) {
        return {};
    }
    reader.setScaledSize(own.scaled(size, Qt::KeepAspectRatio));
    return reader.read();
}

QString withoutEnding(const QString &name)
{
    for (const char *ending : {".png", ".svg", ".xpm"}) {
        if (name.endsWith(QLatin1String{ending})) {
            return name.chopped(4);
        }
    }
    return name;
}

} // namespace

ApplicationImages::ApplicationImages() : QQuickImageProvider{QQuickImageProvider::Image} {}

QImage ApplicationImages::requestImage(const QString &id, QSize *size,
                                       const QSize &requestedSize)
{
    const QSize wanted = requestedSize.isEmpty()
                             ? QSize{kUsualSide, kUsualSide}
                             : requestedSize.boundedTo({kLargestSide, kLargestSide});
    const QString name = QUrl::fromPercentEncoding(id.toLatin1());
    QImage image;
    if (name.startsWith(u'/')) {
        image = readPicture(name, wanted);
    } else if (!name.contains(u'/')) {
        image = QIcon::fromTheme(withoutEnding(name)).pixmap(wanted).toImage();
    }
    if (size != nullptr) {
        *size = image.size();
    }
    return image;
}

} // namespace Velvetnook
