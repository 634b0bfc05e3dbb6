// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Shell/ShadowImages.h"

#include <QColor>

#include <algorithm>
#include <cmath>
#include <vector>

namespace Velvetnook
{

namespace
{

// One layer of a shadow: how far it falls, how soft it is and how strong.
struct Layer {
    int fall;
    double blur;
    double strength;
};

std::vector<Layer> layersOf(const QString &step, bool isDark)
{
    if (step == QLatin1String{"floating"}) {
        return {{24, 56, isDark ? 0.42 : 0.24}, {4, 14, isDark ? 0.28 : 0.12}};
    }
    return {{8, 24, isDark ? 0.35 : 0.16}};
}

// How much of a soft-edged span from `from` to `to` lies over `at`.
double coverage(double at, double from, double to, double deviation)
{
    const double scale = deviation * std::sqrt(2.0);
    return 0.5 * (std::erf((at - from) / scale) - std::erf((at - to) / scale));
}

} // namespace

ShadowImages::ShadowImages() : QQuickImageProvider{QQuickImageProvider::Image} {}

int ShadowImages::reach(const QString &step)
{
    return step == QLatin1String{"floating"} ? 80 : 32;
}

QImage ShadowImages::requestImage(const QString &id, QSize *size,
                                  const QSize & /*requestedSize*/)
{
    const QStringList parts = id.split(u'/');
    const bool isDark = parts.value(1) == QLatin1String{"dark"};
    const int margin = reach(parts.value(0));
    // The square has the room of two reaches, then come the margins: 4 reaches and one pixel
    // in the middle that is stretched.
    const int side = 4 * margin + 1;
    QImage image{side, side, QImage::Format_ARGB32_Premultiplied};
    const QColor tone = isDark ? QColor{4, 8, 6} : QColor{20, 30, 24};
    const auto layers = layersOf(parts.value(0), isDark);
    for (int y = 0; y < side; ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < side; ++x) {
            double light = 1; // what gets through all layers
            for (const Layer &layer : layers) {
                const double across = coverage(x + 0.5, margin, side - margin, layer.blur / 2);
                const double down =
                    coverage(y + 0.5 - layer.fall, margin, side - margin, layer.blur / 2);
                light *= 1 - layer.strength * across * down;
            }
            line[x] = qPremultiply(qRgba(tone.red(), tone.green(), tone.blue(),
                                         static_cast<int>(std::lround(255 * (1 - light)))));
        }
    }
    if (size != nullptr) {
        *size = image.size();
    }
    return image;
}

} // namespace Velvetnook
