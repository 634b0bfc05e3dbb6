// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QObject>
#include <QStringList>
#include <QThread>
#include <QTimer>

namespace Velvetnook
{

// Tells that something has changed in folders or files, once for what comes together. Paths
// that are not there are left out, and of too many the rest. They are looked at on a thread of
// its own: a folder on a network that is gone holds up whoever asks for it.
class FileWatch : public QObject
{
    Q_OBJECT

public:
    static constexpr qsizetype kMost = 128;

    explicit FileWatch(QObject *parent = nullptr);
    ~FileWatch() override;
    FileWatch(const FileWatch &) = delete;
    FileWatch &operator=(const FileWatch &) = delete;

    // These and no others, from now on, or from when they were read: what has changed before
    // the thread comes to them is told.
    void watch(const QStringList &paths, const QDateTime &since = QDateTime::currentDateTime());
    void stop() { watch({}); }

signals:
    void changed();

private:
    void start();
    void hear(const QString &path);

    QStringList m_wanted;
    QTimer m_pause;
    QThread m_thread;
    QFileSystemWatcher *m_watcher = nullptr; // lives and dies on the thread
};

} // namespace Velvetnook
