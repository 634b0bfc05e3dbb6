// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/FileWatch.h"

#include <chrono>

namespace Velvetnook
{

namespace
{

// Within which changes are told as one.
constexpr std::chrono::milliseconds kTogether{300};

} // namespace

FileWatch::FileWatch(QObject *parent) : QObject{parent}
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(kTogether);
    connect(&m_pause, &QTimer::timeout, this, &FileWatch::changed);
    const auto begin = [this] {
        if (!m_pause.isActive()) {
            m_pause.start();
        }
    };
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, begin);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, begin);
}

void FileWatch::watch(const QStringList &paths)
{
    QStringList wanted = paths.mid(0, kMost);
    wanted.removeAll(QString{});
    wanted.removeDuplicates();
    QStringList gone;
    for (const QString &path : watched()) {
        if (wanted.removeAll(path) == 0) {
            gone.push_back(path);
        }
    }
    if (!gone.isEmpty()) {
        m_watcher.removePaths(gone);
    }
    if (!wanted.isEmpty()) {
        m_watcher.addPaths(wanted);
    }
    if (paths.isEmpty()) {
        m_pause.stop();
    }
}

} // namespace Velvetnook
