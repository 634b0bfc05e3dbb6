// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickImageProvider>

namespace Velvetnook
{

// "image://icon/NAME/RRGGBB/STROKE": an icon of the set in a colour and with a stroke, drawn at
// the size that the image asks for. With "/filled" its outline is filled too; the colour may
// carry its opacity first (AARRGGBB).
class IconImages : public QQuickImageProvider
{
public:
    IconImages();
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};

} // namespace Velvetnook
