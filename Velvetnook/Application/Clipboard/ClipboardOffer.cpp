// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/Clipboard/ClipboardOffer.h"

#include "Velvetnook/Application/Clipboard/CopiedFiles.h"
#include "Velvetnook/Application/Clipboard/ImagePreview.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QUrl>

namespace Velvetnook
{

namespace
{

void setFiles(QMimeData &data, const std::vector<KestCore::ClipboardFileReference> &files)
{
    QList<QUrl> addresses;
    QByteArray forFileManagers{"copy"};
    for (const auto &file : files) {
        addresses.push_back(QUrl::fromLocalFile(QString::fromStdString(pathOf(file))));
        forFileManagers += '\n' + addresses.back().toEncoded();
    }
    data.setUrls(addresses);
    data.setData(QStringLiteral("x-special/gnome-copied-files"), forFileManagers);
}

} // namespace

bool putOnClipboard(const KestCore::ClipboardPayload &payload)
{
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()) == nullptr) {
        return false;
    }
    auto *data = new QMimeData; // the clipboard's own from below
    if (payload.text) {
        data->setText(QString::fromStdString(*payload.text));
    } else if (payload.image) {
        const QByteArray bytes{reinterpret_cast<const char *>(payload.image->data()),
                               static_cast<qsizetype>(payload.image->size())};
        data->setData(imageForm(bytes), bytes);
    } else {
        setFiles(*data, payload.files);
    }
    QClipboard *clipboard = QGuiApplication::clipboard();
    clipboard->setMimeData(data);
    return clipboard->ownsClipboard();
}

Base::Result<void> OfferingPasteboard::write(const KestCore::ClipboardPayload &payload)
{
    const bool isTaken = putOnClipboard(payload) && (!m_isOurs || m_isOurs());
    return isTaken ? Base::Result<void>{} : std::unexpected(Base::KestError::unavailable(""));
}

} // namespace Velvetnook
