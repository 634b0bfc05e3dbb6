// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/FileOpening.h"

#include "Velvetnook/Application/App.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

#include <utility>

namespace Velvetnook
{

FileOpening::FileOpening(App &app, QDBusConnection session, QObject *parent)
    : QObject{parent}, m_app{app}, m_session{std::move(session)}
{
    connect(&app, &App::openWanted, this, &FileOpening::open);
    connect(&app, &App::revealWanted, this, &FileOpening::reveal);
}

void FileOpening::open(const QUrl &url)
{
    if (QDesktopServices::openUrl(url)) {
        emit m_app.panel()->closeWanted();
    } else {
        m_app.panel()->showMessage(tr("No program here opens this."));
    }
}

void FileOpening::reveal(const QString &path)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"),
        QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    call << QStringList{QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded())}
         << QString{};
    auto *watcher = new QDBusPendingCallWatcher{m_session.asyncCall(call), this};
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, path](QDBusPendingCallWatcher *finished) {
                finished->deleteLater();
                if (QDBusPendingReply<>{*finished}.isError()) {
                    open(QUrl::fromLocalFile(QFileInfo{path}.path()));
                } else {
                    emit m_app.panel()->closeWanted();
                }
            });
}

} // namespace Velvetnook
