// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPen>

namespace Velvetnook
{

// What our drawn figures are drawn with.
inline QPen roundPen(const QColor &color, qreal width)
{
    return {color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

} // namespace Velvetnook
