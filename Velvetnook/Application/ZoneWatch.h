// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>

namespace Velvetnook
{

// Tells that the machine was given another time zone: that the file which says so is another.
class ZoneWatch : public QObject
{
    Q_OBJECT

public:
    explicit ZoneWatch(QString file, QObject *parent = nullptr);

signals:
    void zoneChanged();

private:
    void look();

    QString m_file;
    QString m_seen;
    QFileSystemWatcher m_watcher;
};

} // namespace Velvetnook
