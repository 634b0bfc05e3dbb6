// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/FileWatch.h"

#include <QFileInfo>

#include <chrono>

namespace Velvetnook
{

namespace
{

// Within which changes are told as one.
constexpr std::chrono::milliseconds kTogether{300};
constexpr qint64 kClockStepMs = 20; // files are stamped by a clock that moves in steps

// Returns those of the new ones that have changed since they were asked for.
QStringList follow(QFileSystemWatcher &watcher, QStringList wanted, const QDateTime &since)
{
    QStringList gone;
    for (const QString &path : watcher.directories() + watcher.files()) {
        if (wanted.removeAll(path) == 0) {
            gone.push_back(path);
        }
    }
    if (!gone.isEmpty()) {
        watcher.removePaths(gone);
    }
    QStringList changed;
    if (!wanted.isEmpty()) {
        watcher.addPaths(wanted);
    }
    for (const QString &path : wanted) {
        const QDateTime written = QFileInfo{path}.lastModified();
        if (written.isValid() && written >= since) {
            changed.push_back(path);
        }
    }
    return changed;
}

} // namespace

FileWatch::FileWatch(QObject *parent) : QObject{parent}
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(kTogether);
    connect(&m_pause, &QTimer::timeout, this, &FileWatch::changed);
}

FileWatch::~FileWatch()
{
    m_thread.quit();
    m_thread.wait();
}

void FileWatch::start()
{
    m_watcher = new QFileSystemWatcher;
    m_watcher->moveToThread(&m_thread);
    connect(&m_thread, &QThread::finished, m_watcher, &QObject::deleteLater);
    connect(m_watcher, &QFileSystemWatcher::directoryChanged, this, &FileWatch::hear);
    connect(m_watcher, &QFileSystemWatcher::fileChanged, this, &FileWatch::hear);
    m_thread.start();
}

// It may have been on its way when its path was wanted no longer.
void FileWatch::hear(const QString &path)
{
    if (m_wanted.contains(path) && !m_pause.isActive()) {
        m_pause.start();
    }
}

void FileWatch::watch(const QStringList &paths, const QDateTime &since)
{
    QStringList wanted = paths.mid(0, kMost);
    wanted.removeAll(QString{});
    wanted.removeDuplicates();
    m_wanted = wanted;
    if (wanted.isEmpty()) {
        m_pause.stop();
    }
    if (m_watcher == nullptr && wanted.isEmpty()) {
        return;
    }
    if (m_watcher == nullptr) {
        start();
    }
    const QDateTime from = since.addMSecs(-kClockStepMs);
    QMetaObject::invokeMethod(m_watcher, [this, watcher = m_watcher, wanted, from] {
        for (const QString &path : follow(*watcher, wanted, from)) {
            QMetaObject::invokeMethod(this, [this, path] { hear(path); }, Qt::QueuedConnection);
        }
    });
}

} // namespace Velvetnook
