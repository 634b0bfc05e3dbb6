// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariantMap>

namespace Velvetnook
{

class Formatting;

// What a list shows of a file. Looking can take long where the file is on a slow disk: not for
// the main thread.
struct FileGlance {
    QString path{};
    QString badge{}; // up to four letters of its kind, "PDF"; empty for a folder
    QString
        family{}; // "folder", "picture", "text", "page", "table", "archive", "media", "other"
    qint64 size = -1;    // bytes; -1 where it is not known
    qint64 modifiedMs{}; // since 1970
    bool isThere{};
    bool hasPreview{}; // it is a picture, or the file manager has drawn one of it

    bool operator==(const FileGlance &) const = default;
};

FileGlance glanceAt(const QString &path);
// By its name alone.
FileGlance glanceByName(const QString &path);

// "214 kB", "3.1 MB".
QString sizeText(const Formatting &formatting, qint64 bytes);
// Where file managers keep the picture that they have drawn of a file; empty without one.
QString thumbnailOf(const QString &path);
// The picture of it that PreviewImages draws; empty where there is none.
QString previewOf(const FileGlance &glance);
// What another program is given when the file is dragged to it.
QVariantMap dragDataOf(const QString &path);
// With "~" for the user's own folder.
QString folderText(const QString &path);

} // namespace Velvetnook
