// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "tests/Velvetnook/SpokenTree.h"

#include <QDBusArgument>
#include <QDBusReply>
#include <QDBusVariant>

#include <cstdlib>
#include <utility>

namespace
{

constexpr const char *kAccessible = "org.a11y.atspi.Accessible";
constexpr unsigned kEnabled = 8; // numbers of states, as the bus knows them
constexpr unsigned kFocusable = 11;
constexpr unsigned kFocused = 12;
constexpr unsigned kShowing = 25;

using Place = std::pair<QString, QString>; // service and path

std::vector<Place> childrenIn(const QDBusMessage &answer)
{
    std::vector<Place> children;
    if (answer.arguments().isEmpty()) {
        return children;
    }
    const auto list = answer.arguments().constFirst().value<QDBusArgument>();
    for (list.beginArray(); !list.atEnd();) {
        QString service;
        QDBusObjectPath path;
        list.beginStructure();
        list >> service >> path;
        list.endStructure();
        children.emplace_back(service, path.path());
    }
    list.endArray();
    return children;
}

} // namespace

SpokenTree::SpokenTree()
{
    setenv("DBUS_SESSION_BUS_ADDRESS", m_session.address().toUtf8().constData(), 1);
    setenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1", 1);
    m_launcher = Child{{"/usr/libexec/at-spi-bus-launcher", "--launch-immediately"}};
    QDBusConnection session = m_session.connect();
    QString address;
    XDesktop::waitFor([&] {
        const QDBusReply<QString> reply = session.call(QDBusMessage::createMethodCall(
            "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress"));
        address = reply.value();
        return !address.isEmpty();
    });
    m_bus = std::make_unique<QDBusConnection>(
        QDBusConnection::connectToBus(address, QStringLiteral("spoken") + address));
}

QDBusMessage SpokenTree::ask(const QString &service, const QString &path, const char *interface,
                             const char *method, const QVariantList &arguments)
{
    auto message = QDBusMessage::createMethodCall(service, path, interface, method);
    message.setArguments(arguments);
    return m_bus->call(message);
}

void SpokenTree::readInto(std::vector<Spoken> &found, const QString &service,
                          const QString &path)
{
    const QDBusReply<QDBusVariant> name =
        ask(service, path, "org.freedesktop.DBus.Properties", "Get", {kAccessible, "Name"});
    const QDBusReply<QString> role = ask(service, path, kAccessible, "GetRoleName");
    const auto states = ask(service, path, kAccessible, "GetState");
    std::uint64_t bits = 0;
    if (!states.arguments().isEmpty()) {
        const auto words =
            qdbus_cast<QList<uint>>(states.arguments().constFirst().value<QDBusArgument>());
        for (qsizetype at = 0; at < words.size() && at < 2; ++at) {
            bits |= std::uint64_t{words.at(at)} << (32U * static_cast<unsigned>(at));
        }
    }
    const auto is = [&](unsigned state) { return (bits >> state & 1U) != 0; };
    found.push_back({.path = path.toStdString(),
                     .role = role.value().toStdString(),
                     .name = name.value().variant().toString().toStdString(),
                     .isFocusable = is(kFocusable),
                     .isFocused = is(kFocused),
                     .isShowing = is(kShowing),
                     .isEnabled = is(kEnabled)});
    for (const auto &[childService, child] :
         childrenIn(ask(service, path, kAccessible, "GetChildren"))) {
        readInto(found, childService, child);
    }
}

std::vector<Spoken> SpokenTree::read()
{
    std::vector<Spoken> found;
    for (const auto &[service, path] :
         childrenIn(ask("org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root",
                        kAccessible, "GetChildren"))) {
        readInto(found, service, path);
    }
    return found;
}
