// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Linux/BusActivation.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QEventLoop>

#include <algorithm>
#include <utility>

namespace Velvetnook
{

namespace
{

const QString kInterface = QStringLiteral("org.freedesktop.Application");

// What the desktop gave this process so that a window may take the focus.
QVariantMap ownPlatformData()
{
    QVariantMap data;
    const QString activation = qEnvironmentVariable("XDG_ACTIVATION_TOKEN");
    const QString startup = qEnvironmentVariable("DESKTOP_STARTUP_ID");
    if (!activation.isEmpty()) {
        data.insert(QStringLiteral("activation-token"), activation);
    }
    if (!startup.isEmpty()) {
        data.insert(QStringLiteral("desktop-startup-id"), startup);
    }
    return data;
}

} // namespace

bool isDesktopAction(const QString &name)
{
    return std::ranges::any_of(kDesktopActions,
                               [&](const char *known) { return name == QLatin1String{known}; });
}

BusActivation::BusActivation(QDBusConnection bus, QString name, QObject *parent)
    : Activation{parent}, m_bus{std::move(bus)}, m_name{std::move(name)}
{
    new BusActivationAdaptor{*this};
}

BusActivation::~BusActivation()
{
    if (m_isHolder) {
        m_bus.unregisterService(m_name);
        m_bus.unregisterObject(pathOf(m_name));
    }
}

QString BusActivation::pathOf(const QString &name)
{
    return u'/' + QString{name}.replace(u'.', u'/').replace(u'-', u'_');
}

BusActivation::Start BusActivation::claim(const Launch &launch)
{
    if (!m_bus.isConnected()) {
        return Start::undecided;
    }
    // The object first: whoever sees the name may call it at once.
    m_bus.registerObject(pathOf(m_name), this, QDBusConnection::ExportAdaptors);
    const auto reply =
        m_bus.interface()->registerService(m_name, QDBusConnectionInterface::DontQueueService,
                                           QDBusConnectionInterface::DontAllowReplacement);
    if (!reply.isValid()) {
        return Start::undecided;
    }
    if (reply.value() == QDBusConnectionInterface::ServiceRegistered) {
        m_isHolder = true;
        if (!launch.action.isEmpty()) {
            m_early.push_back(launch.action);
        }
        return Start::first;
    }
    m_bus.unregisterObject(pathOf(m_name));
    return askHolder(launch) ? Start::second : Start::unanswered;
}

bool BusActivation::askHolder(const Launch &launch)
{
    const bool isAction = !launch.action.isEmpty();
    if (launch.isQuiet && !isAction) {
        return true;
    }
    auto call = QDBusMessage::createMethodCall(m_name, pathOf(m_name), kInterface,
                                               isAction ? QStringLiteral("ActivateAction")
                                                        : QStringLiteral("Activate"));
    call.setAutoStartService(false);
    if (isAction) {
        call << launch.action << QVariantList{};
    }
    call << ownPlatformData();
    const QDBusPendingCallWatcher watcher{
        m_bus.asyncCall(call, static_cast<int>(m_patience.count()))};
    if (!watcher.isFinished()) {
        QEventLoop loop;
        connect(&watcher, &QDBusPendingCallWatcher::finished, &loop, &QEventLoop::quit);
        loop.exec();
    }
    return !watcher.isError();
}

void BusActivation::ask(const QString &action, const QVariantMap &platformData)
{
    const QString startup = platformData.value(QStringLiteral("desktop-startup-id")).toString();
    m_token = platformData.value(QStringLiteral("activation-token"), startup).toString();
    if (m_hasBegun) {
        emit actionWanted(action);
    } else {
        m_early.push_back(action);
    }
}

void BusActivation::begin()
{
    m_hasBegun = true;
    for (const QString &action : std::exchange(m_early, {})) {
        emit actionWanted(action);
    }
}

BusActivationAdaptor::BusActivationAdaptor(BusActivation &activation)
    : QDBusAbstractAdaptor{&activation}, m_activation{activation}
{
}

void BusActivationAdaptor::Activate(const QVariantMap &platformData)
{
    m_activation.ask(QStringLiteral("open"), platformData);
}

// Velvetnook opens no files; who hands it one sees it come forward.
void BusActivationAdaptor::Open(const QStringList &, const QVariantMap &platformData)
{
    Activate(platformData);
}

void BusActivationAdaptor::ActivateAction(const QString &actionName, const QVariantList &,
                                          const QVariantMap &platformData)
{
    if (isDesktopAction(actionName)) {
        m_activation.ask(actionName, platformData);
    }
}

} // namespace Velvetnook
