// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Shell/ArabicInk.h"

#include <QFontMetricsF>

#include <algorithm>
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
        if (m_known.size() >= kRemembered) {
            m_known.clear();
        }
        known = m_known.insert(
            text, {metrics.horizontalAdvance(text), metrics.tightBoundingRect(text)});
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

qreal ArabicInk::fittedSize(const QString &text, qreal wanted, qreal maximumWidth) const
{
    const auto width = [&](qreal size) {
        const Measure measured = measure(text, size);
        return std::max(measured.advance, measured.ink.right()) -
               std::min(0.0, measured.ink.left());
    };
    qreal size = wanted;
    while (size > kSmallest && width(size) > maximumWidth) {
        size = std::max(kSmallest, size - kStep);
    }
    return size;
}

} // namespace Velvetnook
