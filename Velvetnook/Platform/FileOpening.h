// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>

class QUrl;

namespace Velvetnook
{

class App;

// Gives files and addresses to the programs that are for them, and shows files in the file
// manager: that of the bus, else the folder is opened by whatever opens folders. The panel goes
// out of the way.
class FileOpening : public QObject
{
    Q_OBJECT

public:
    FileOpening(App &app, QDBusConnection session, QObject *parent = nullptr);

    void open(const QUrl &url);
    void reveal(const QString &path);

private:
    App &m_app;
    QDBusConnection m_session;
};

} // namespace Velvetnook
