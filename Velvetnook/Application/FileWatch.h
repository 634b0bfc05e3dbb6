// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QStringList>
#include <QTimer>

namespace Velvetnook
{

// Tells that something has changed in folders or files, once for what comes together. Paths
// that are not there are left out, and of too many the rest.
class FileWatch : public QObject
{
    Q_OBJECT

public:
    static constexpr qsizetype kMost = 128;

    explicit FileWatch(QObject *parent = nullptr);

    // These and no others.
    void watch(const QStringList &paths);
    void stop() { watch({}); }
    QStringList watched() const { return m_watcher.directories() + m_watcher.files(); }

signals:
    void changed();

private:
    QFileSystemWatcher m_watcher;
    QTimer m_pause;
};

} // namespace Velvetnook
