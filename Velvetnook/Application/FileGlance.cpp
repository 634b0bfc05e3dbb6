// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/FileGlance.h"

#include "Velvetnook/Application/Formatting.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QStandardPaths>
#include <QUrl>

#include <algorithm>
#include <array>

namespace Velvetnook
{

namespace
{

constexpr qsizetype kLongestBadge = 4;
constexpr qint64 kLargestPicture = 50'000'000; // bytes

struct Family {
    const char *prefix;
    const char *family;
};
// The first that fits. What only looks like text, as drawings do, stands before the texts.
constexpr std::array kFamilies{
    Family{"image/svg", "page"},
    Family{"image/", "picture"},
    Family{"audio/", "media"},
    Family{"video/", "media"},
    Family{"application/pdf", "page"},
    Family{"application/epub", "page"},
    Family{"application/postscript", "page"},
    Family{"application/vnd.oasis.opendocument.spreadsheet", "table"},
    Family{"application/vnd.openxmlformats-officedocument.spreadsheetml", "table"},
    Family{"application/vnd.ms-excel", "table"},
    Family{"text/csv", "table"},
    Family{"application/vnd.oasis.opendocument", "text"},
    Family{"application/vnd.openxmlformats-officedocument", "text"},
    Family{"application/msword", "text"},
    Family{"application/rtf", "text"},
    Family{"text/", "text"},
};
constexpr std::array kArchives{"application/zip",
                               "application/gzip",
                               "application/x-tar",
                               "application/x-xz",
                               "application/x-7z-compressed",
                               "application/x-bzip",
                               "application/zstd",
                               "application/vnd.rar"};

QString familyOf(const QMimeType &type)
{
    for (const Family &family : kFamilies) {
        if (type.name().startsWith(QLatin1String{family.prefix})) {
            return QLatin1String{family.family};
        }
    }
    const bool isArchive = std::ranges::any_of(kArchives, [&type](const char *archive) {
        return type.inherits(QLatin1String{archive});
    });
    return isArchive ? QStringLiteral("archive") : QStringLiteral("other");
}

QString badgeOf(const QString &name)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    const QString ending = dot > 0 ? name.mid(dot + 1) : QString{};
    return ending.size() > kLongestBadge ? QString{} : ending.toUpper();
}

} // namespace

FileGlance glanceByName(const QString &path)
{
    static const QMimeDatabase kTypes;
    const QString name = QFileInfo{path}.fileName();
    return {.path = path,
            .badge = badgeOf(name),
            .family = familyOf(kTypes.mimeTypeForFile(name, QMimeDatabase::MatchExtension))};
}

FileGlance glanceAt(const QString &path)
{
    FileGlance glance = glanceByName(path);
    const QFileInfo info{path};
    glance.isThere = info.exists() || info.isSymLink();
    if (info.isDir()) {
        glance.family = QStringLiteral("folder");
        glance.badge.clear();
    } else if (info.isFile()) { // of what only has the name of one there is no picture
        glance.size = info.size();
    }
    glance.hasPreview = glance.family == u"picture"
                            ? glance.size > 0 && glance.size <= kLargestPicture
                            : glance.size > 0 && !thumbnailOf(path).isEmpty();
    glance.modifiedMs = glance.isThere ? info.lastModified().toMSecsSinceEpoch() : 0;
    return glance;
}

QString thumbnailOf(const QString &path)
{
    const QByteArray address = QUrl::fromLocalFile(path).toEncoded(QUrl::FullyEncoded);
    const QString name = QString::fromLatin1(
        QCryptographicHash::hash(address, QCryptographicHash::Md5).toHex() + ".png");
    const QString cache =
        QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    for (const char *size : {"large", "normal"}) {
        QString file =
            QStringLiteral("%1/thumbnails/%2/%3").arg(cache, QLatin1String{size}, name);
        if (QFileInfo::exists(file)) {
            return file;
        }
    }
    return {};
}

QString sizeText(const Formatting &formatting, qint64 bytes)
{
    static constexpr std::array kUnits{QT_TRANSLATE_NOOP("Velvetnook::FileGlance", "%1 bytes"),
                                       QT_TRANSLATE_NOOP("Velvetnook::FileGlance", "%1 kB"),
                                       QT_TRANSLATE_NOOP("Velvetnook::FileGlance", "%1 MB"),
                                       QT_TRANSLATE_NOOP("Velvetnook::FileGlance", "%1 GB"),
                                       QT_TRANSLATE_NOOP("Velvetnook::FileGlance", "%1 TB")};
    if (bytes < 0) {
        return {};
    }
    auto value = static_cast<double>(bytes);
    std::size_t unit = 0;
    // What would be told as 1,000 of a unit is 1 of the next.
    while (value >= 999.5 && unit + 1 < kUnits.size()) {
        value /= 1000;
        ++unit;
    }
    const int decimals = unit >= 2 && value < 9.95 ? 1 : 0;
    return QCoreApplication::translate("Velvetnook::FileGlance", kUnits.at(unit))
        .arg(formatting.decimal(value, decimals));
}

QString previewOf(const FileGlance &glance)
{
    if (!glance.hasPreview) {
        return {};
    }
    return QStringLiteral("image://preview/%1/%2")
        .arg(glance.modifiedMs)
        .arg(QString::fromLatin1(QUrl::toPercentEncoding(glance.path)));
}

QVariantMap dragDataOf(const QString &path)
{
    return {{QStringLiteral("text/uri-list"),
             QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded() + "\r\n")},
            {QStringLiteral("text/plain"), path}};
}

QString folderText(const QString &path)
{
    const QString folder = QFileInfo{path}.path();
    const QString home = QDir::homePath();
    if (folder == home) {
        return QStringLiteral("~");
    }
    return folder.startsWith(home + u'/') ? u'~' + folder.mid(home.size()) : folder;
}

} // namespace Velvetnook
