// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ZoneWatch.h"

#include <QDateTime>
#include <QFileInfo>

#include <utility>

namespace Velvetnook
{

namespace
{

// Where the link leads, and which version of the file lies there.
QString versionOf(const QString &file)
{
    const QFileInfo info{file};
    return info.symLinkTarget() + QString::number(info.lastModified().toMSecsSinceEpoch());
}

} // namespace

// The link is replaced as a whole, so it is its folder that changes.
ZoneWatch::ZoneWatch(QString file, QObject *parent)
    : QObject{parent}, m_file{std::move(file)}, m_seen{versionOf(m_file)},
      m_watcher{{QFileInfo{m_file}.absolutePath()}}
{
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &ZoneWatch::look);
}

void ZoneWatch::look()
{
    QString now = versionOf(m_file);
    if (now != m_seen) {
        m_seen = std::move(now);
        emit zoneChanged();
    }
}

} // namespace Velvetnook
