// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include <QImage>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>

#include <cstdio>

// DrawIcons DRAWING SIZE PICTURE: draws the icon at one of the sizes that desktops look for.
// Runs while the program is built.
int main(int argc, char **argv)
{
    if (argc != 4) {
        std::fputs("DrawIcons DRAWING SIZE PICTURE\n", stderr);
        return 2;
    }
    QSvgRenderer drawing{QString::fromLocal8Bit(argv[1])};
    const int size = QString::fromLocal8Bit(argv[2]).toInt();
    if (!drawing.isValid() || size < 1 || size > 4096) {
        std::fprintf(stderr, "DrawIcons: %s cannot be drawn at %s\n", argv[1], argv[2]);
        return 1;
    }
    QImage picture{size, size, QImage::Format_ARGB32_Premultiplied};
    picture.fill(Qt::transparent);
    QPainter painter{&picture};
    drawing.render(&painter);
    painter.end();
    if (!picture.save(QString::fromLocal8Bit(argv[3]), "PNG")) {
        std::fprintf(stderr, "DrawIcons: %s cannot be written\n", argv[3]);
        return 1;
    }
    return 0;
}
