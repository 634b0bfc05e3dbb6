// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/Clipboard/CopiedFiles.h"

#include "Base/Text.h"

#include <QByteArray>
#include <QString>

#include <unistd.h>

namespace Velvetnook
{

namespace
{

// "file:///a%20b" and "file://localhost/a%20b"; nothing for any other address.
std::optional<QByteArray> localPath(std::string_view address)
{
    for (const std::string_view start : {"file://localhost/", "file:///"}) {
        if (address.starts_with(start)) {
            address.remove_prefix(start.size() - 1);
            return QByteArray::fromPercentEncoding(
                QByteArray{address.data(), static_cast<qsizetype>(address.size())});
        }
    }
    return std::nullopt;
}

// A name that is not in UTF-8 is shown as well as can be; the path stays as it is.
std::string nameOf(QByteArray path)
{
    while (path.size() > 1 && path.endsWith('/')) {
        path.chop(1);
    }
    const QByteArray last = path.mid(path.lastIndexOf('/') + 1);
    return QString::fromUtf8(last.isEmpty() ? path : last).toStdString();
}

} // namespace

std::optional<std::vector<KestCore::ClipboardFileReference>> filesOf(const std::string &list)
{
    std::vector<KestCore::ClipboardFileReference> files;
    for (const std::string_view line : Base::split(list, '\n')) {
        const std::string_view address = Base::trimmed(line);
        if (address.empty() || address.starts_with('#')) {
            continue;
        }
        const auto path = localPath(address);
        if (!path) {
            return std::nullopt;
        }
        files.push_back({.name = nameOf(*path), .bookmark = {path->begin(), path->end()}});
    }
    return files.empty() ? std::nullopt : std::optional{std::move(files)};
}

std::string pathOf(const KestCore::ClipboardFileReference &file)
{
    return {file.bookmark.begin(), file.bookmark.end()};
}

bool isReached(const KestCore::ClipboardFileReference &file)
{
    return access(pathOf(file).c_str(), R_OK) == 0;
}

} // namespace Velvetnook
