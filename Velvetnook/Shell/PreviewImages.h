// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickImageProvider>

namespace Velvetnook
{

// "image://preview/MODIFIED/PATH": a picture of a file, no larger than is asked for, which is
// needed. It fills that size, with the corners of a card's picture; with "/whole" behind the
// time it is all of it, as large as fits. Drawn on a thread of Qt's own. A file that is too
// large, or no picture, has none.
class PreviewImages : public QQuickImageProvider
{
public:
    PreviewImages();
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};

} // namespace Velvetnook
