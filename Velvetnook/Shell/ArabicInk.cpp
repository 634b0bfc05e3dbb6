// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Shell/ArabicInk.h"

#include <QFontMetricsF>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Velvetnook
{

namespace
{

constexpr int kMeasuredSize = 100;
constexpr qsizetype kRemembered = 512;
constexpr qreal kSmallest = 24;
constexpr qreal kStep = 2;

} // namespace

ArabicInk::ArabicInk(QString family, QObject *parent)
    : QObject{parent}, m_family{std::move(family)}
{
}

ArabicInk::Measure ArabicInk::measure(const QString &text, qreal pixelSize) const
{
    auto known = m_known.constFind(text);
    if (known == m_known.constEnd()) {
        QFont font{m_family};
        font.setPixelSize(kMeasuredSize);
        font.setHintingPreference(QFont::PreferNoHinting);
        const QFontMetricsF metrics{font};
        // The outline and not the metrics' tight rectangle: that one forgets how far a mark is
        // moved from its letter.
        QPainterPath outline;
        outline.addText({}, font, text);
        if (m_known.size() >= kRemembered) {
            m_known.clear();
        }
        known = m_known.insert(text, {metrics.horizontalAdvance(text), outline.boundingRect()});
    }
    const qreal scale = pixelSize / kMeasuredSize;
    const QRectF &ink = known->ink;
    return {known->advance * scale, QRectF{ink.x() * scale, ink.y() * scale,
                                           ink.width() * scale, ink.height() * scale}};
}

qreal ArabicInk::advance(const QString &text, qreal pixelSize) const
{
    return measure(text, pixelSize).advance;
}

QRectF ArabicInk::bounds(const QString &text, qreal pixelSize) const
{
    return measure(text, pixelSize).ink;
}

qreal ArabicInk::overhang(const QString &text, qreal pixelSize) const
{
    const Measure measured = measure(text, pixelSize);
    return std::ceil(
        std::max({0.0, -measured.ink.left(), measured.ink.right() - measured.advance}));
}

qreal ArabicInk::width(const QString &text, qreal pixelSize) const
{
    return std::ceil(advance(text, pixelSize) + 2 * overhang(text, pixelSize));
}

qreal ArabicInk::fittedSize(const QString &text, qreal wanted, qreal maximumWidth) const
{
    qreal size = wanted;
    while (size > kSmallest && width(text, size) > maximumWidth) {
        size = std::max(kSmallest, size - kStep);
    }
    return size;
}

} // namespace Velvetnook
