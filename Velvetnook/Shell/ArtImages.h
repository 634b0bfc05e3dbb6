// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickImageProvider>

namespace Velvetnook
{

// Pictures of what plays, as "image://art/PATH/…": PATH is a file's, as base64 for addresses.
// Read on a thread of the engine's own, cut to a square with round corners, and never larger
// than they are shown. A file that is no picture, or a huge one, gives none.
class ArtImages : public QQuickImageProvider
{
public:
    ArtImages();
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};

} // namespace Velvetnook
