// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Shell/ShadowImages.h"

#include <QColor>

#include <cmath>
#include <numbers>
#include <utility>
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

// How much of a soft-edged span between the margins of the square lies over each of its pixels.
std::vector<double> coverage(int side, int margin, double fall, double blur)
{
    const double scale = blur / 2 * std::numbers::sqrt2;
    std::vector<double> parts;
    for (int pixel = 0; pixel < side; ++pixel) {
        const double at = pixel + 0.5 - fall;
        parts.push_back(
            0.5 * (std::erf((at - margin) / scale) - std::erf((at - (side - margin)) / scale)));
    }
    return parts;
}

// What each layer takes of the light: the one part by column, the other by row.
struct Veil {
    std::vector<double> across;
    std::vector<double> down;
};

std::vector<Veil> veilsOf(const QString &step, bool isDark, int side, int margin)
{
    std::vector<Veil> veils;
    for (const Layer &layer : layersOf(step, isDark)) {
        Veil veil{.across = coverage(side, margin, 0, layer.blur),
                  .down = coverage(side, margin, layer.fall, layer.blur)};
        for (double &part : veil.down) {
            part *= layer.strength;
        }
        veils.push_back(std::move(veil));
    }
    return veils;
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
    const auto veils = veilsOf(parts.value(0), isDark, side, margin);
    for (int y = 0; y < side; ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < side; ++x) {
            double light = 1; // what gets through all layers
            for (const Veil &veil : veils) {
                light *= 1 - veil.across[static_cast<std::size_t>(x)] *
                                 veil.down[static_cast<std::size_t>(y)];
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
