// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/RecentFiles.h"

#include <QDateTime>
#include <QFile>
#include <QStandardPaths>
#include <QUrl>
#include <QXmlStreamReader>

#include <algorithm>
#include <optional>
#include <set>

namespace Velvetnook
{

namespace
{

constexpr qint64 kLargestList = 16'000'000; // bytes

std::unexpected<Base::KestError> unreadable()
{
    return std::unexpected(
        Base::KestError::unavailable("The list of recent files cannot be read."));
}

std::optional<RecentFile> bookmarkFrom(QXmlStreamReader &reader)
{
    const QXmlStreamAttributes marks = reader.attributes();
    const QUrl url = QUrl::fromEncoded(marks.value(QLatin1String{"href"}).toUtf8());
    RecentFile file{.path = url.isLocalFile() ? url.toLocalFile() : QString{}};
    for (const char *name : {"added", "modified", "visited"}) {
        const QString time = marks.value(QLatin1String{name}).toString();
        const QDateTime moment = QDateTime::fromString(time, Qt::ISODateWithMs);
        file.usedMs = std::max(file.usedMs, moment.isValid() ? moment.toMSecsSinceEpoch() : 0);
    }
    bool isPrivate = false;
    int depth = 1;
    while (depth > 0 && !reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement()) {
            ++depth;
            isPrivate = isPrivate || reader.name() == u"private";
        } else if (reader.isEndElement()) {
            --depth;
        }
    }
    return !isPrivate && !file.path.isEmpty() ? std::optional{file} : std::nullopt;
}

} // namespace

QString recentFileList()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/recently-used.xbel");
}

Base::Result<std::vector<RecentFile>> recentFilesIn(const QByteArray &list, std::size_t most)
{
    std::vector<RecentFile> files;
    if (list.isEmpty()) {
        return files;
    }
    QXmlStreamReader reader{list};
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == u"bookmark") {
            if (auto file = bookmarkFrom(reader)) {
                files.push_back(*std::move(file));
            }
        }
    }
    if (reader.hasError()) {
        return unreadable();
    }
    std::ranges::stable_sort(files, std::greater{}, &RecentFile::usedMs);
    std::set<QString> seen;
    std::erase_if(files,
                  [&seen](const RecentFile &file) { return !seen.insert(file.path).second; });
    files.resize(std::min(files.size(), most));
    return files;
}

Base::Result<std::vector<RecentFile>> readRecentFiles(const QString &list, std::size_t most)
{
    QFile file{list};
    if (!file.exists()) {
        return std::vector<RecentFile>{};
    }
    if (!file.open(QIODevice::ReadOnly) || file.size() > kLargestList) {
        return unreadable();
    }
    const QByteArray bytes = file.readAll();
    return file.error() == QFileDevice::NoError ? recentFilesIn(bytes, most) : unreadable();
}

} // namespace Velvetnook
