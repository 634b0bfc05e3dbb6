// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Shell/IconImages.h"

#include <QColor>
#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace Velvetnook
{

IconImages::IconImages() : QQuickImageProvider{QQuickImageProvider::Image} {}

QImage IconImages::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    const QStringList parts = id.split(u'/');
    QFile file{QStringLiteral(":/velvetnook/icons/%1.svg").arg(parts.value(0))};
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning("there is no icon %s", qPrintable(parts.value(0)));
        return {};
    }
    QByteArray drawing = file.readAll();
    const QColor colour{u'#' + parts.value(1, QStringLiteral("000000"))};
    drawing.replace("#000000", colour.name().toLatin1());
    if (parts.value(3) == QLatin1String{"filled"}) {
        drawing.replace("fill=\"none\"", "fill=\"" + colour.name().toLatin1() + "\"");
    }
    drawing.replace("stroke-width=\"1.6\"",
                    "stroke-width=\"" + parts.value(2, QStringLiteral("1.6")).toLatin1() +
                        "\"");
    const QSize wanted = requestedSize.isValid() ? requestedSize : QSize{24, 24};
    QImage image{wanted, QImage::Format_ARGB32_Premultiplied};
    image.fill(Qt::transparent);
    QPainter painter{&image};
    painter.setOpacity(colour.alphaF());
    QSvgRenderer{drawing}.render(&painter);
    if (size != nullptr) {
        *size = wanted;
    }
    return image;
}

} // namespace Velvetnook
