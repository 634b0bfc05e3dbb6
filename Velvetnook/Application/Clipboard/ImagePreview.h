// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Clipboard/Pasteboard.h"

#include <QByteArray>
#include <QString>

namespace Velvetnook
{

// Keeps a copied image as it is, and a small preview beside it. An image that would take too
// much memory to look at has none. Works on any thread.
class ImagePreviews : public KestCore::ImageCodec
{
public:
    static constexpr int kWidth = 162; // three times that of its place in a card
    static constexpr int kHeight = 108;
    static constexpr qsizetype kMostPixels = 24'000'000;

    Base::Result<KestCore::PreparedImage> prepare(Base::Bytes image) override;
};

// The MIME type of an image, such as "image/png".
QString imageForm(const QByteArray &image);

} // namespace Velvetnook
