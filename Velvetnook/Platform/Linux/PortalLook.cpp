// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Linux/PortalLook.h"

#include "Velvetnook/Platform/Linux/BusCall.h"

#include <QDBusArgument>
#include <QDBusMetaType>

namespace Velvetnook
{

namespace
{

using Groups = QMap<QString, QVariantMap>;

const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString kAppearance = QStringLiteral("org.freedesktop.appearance");
const QString kGnome = QStringLiteral("org.gnome.desktop.interface");
const QString kGnomeAccess = QStringLiteral("org.gnome.desktop.a11y.interface");

QString nameOf(const QString &group, const QString &key) { return group + u' ' + key; }

} // namespace

PortalLook::PortalLook(const QDBusConnection &bus, QObject *parent)
    : SessionLook{parent}, m_bus{bus},
      m_watcher{kService, bus, QDBusServiceWatcher::WatchForRegistration}
{
    qDBusRegisterMetaType<Groups>();
    // The bus looks for the types of a slot by name, and refuses one whose types it cannot
    // find.
    qRegisterMetaType<QDBusVariant>();
    m_bus.connect(kService, kPath, kInterface, QStringLiteral("SettingChanged"), this,
                  SLOT(hear(QString, QString, QDBusVariant)));
    connect(&m_watcher, &QDBusServiceWatcher::serviceRegistered, this, &PortalLook::read);
}

void PortalLook::begin() { read(); }

void PortalLook::read()
{
    auto call =
        QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("ReadAll"));
    call << QStringList{kAppearance, kGnome, kGnomeAccess};
    askBus<QDBusPendingReply<Groups>>(
        m_bus, call, this, [this](const QDBusPendingReply<Groups> &reply) {
            if (reply.isError()) {
                m_state = {.availability = KestCore::Availability::offline,
                           .message = tr("This desktop does not tell how it looks.")};
            } else {
                m_state = {.availability = KestCore::Availability::ready, .message = {}};
                const Groups groups = reply.value();
                for (auto group = groups.begin(); group != groups.end(); ++group) {
                    for (auto it = group->begin(); it != group->end(); ++it) {
                        m_values.insert(nameOf(group.key(), it.key()), it.value());
                    }
                }
            }
            follow();
        });
}

void PortalLook::hear(const QString &group, const QString &key, const QDBusVariant &value)
{
    if (group == kAppearance || group == kGnome || group == kGnomeAccess) {
        m_values.insert(nameOf(group, key), value.variant());
        follow();
    }
}

void PortalLook::follow()
{
    const auto value = [this](const QString &group, QLatin1String key) {
        return m_values.value(nameOf(group, key));
    };
    // 1 wants dark, 2 wants light, 0 and whatever comes later wants nothing.
    Look look;
    look.isDark = value(kAppearance, QLatin1String{"color-scheme"}).toUInt() != 2;
    look.wantsContrast = value(kAppearance, QLatin1String{"contrast"}).toUInt() == 1 ||
                         value(kGnomeAccess, QLatin1String{"high-contrast"}).toBool();
    const QVariant animations = value(kGnome, QLatin1String{"enable-animations"});
    look.reducesMotion = value(kAppearance, QLatin1String{"reduced-motion"}).toUInt() == 1 ||
                         (animations.isValid() && !animations.toBool());
    m_look = look;
    emit changed();
}

} // namespace Velvetnook
