// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickImageProvider>

namespace Velvetnook
{

// "image://application/ICON": the picture of an application, from the desktop's icon theme or,
// where the desktop file names a path, from that file. What is too large, or no picture, is
// none.
class ApplicationImages : public QQuickImageProvider
{
public:
    ApplicationImages();
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};

} // namespace Velvetnook
