// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickImageProvider>

namespace Velvetnook
{

// "image://shadow/STEP/THEME": the shadow of a square of twice its reach, for a border image
// of nine parts. STEP is "raised" or "floating".
class ShadowImages : public QQuickImageProvider
{
public:
    ShadowImages();
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;

    // How far the shadow of a step reaches around its surface.
    static int reach(const QString &step);
};

} // namespace Velvetnook
