// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Linux/BusMenu.h"

#include <QDBusMetaType>
#include <QGuiApplication>

#include <utility>

namespace Velvetnook
{

QDBusArgument &operator<<(QDBusArgument &out, const MenuLayout &layout)
{
    out.beginStructure();
    out << layout.id << layout.properties;
    out.beginArray(QMetaType::fromType<QDBusVariant>());
    for (const QVariant &child : layout.children) {
        out << QDBusVariant{child};
    }
    out.endArray();
    out.endStructure();
    return out;
}

const QDBusArgument &operator>>(const QDBusArgument &in, MenuLayout &layout)
{
    in.beginStructure();
    in >> layout.id >> layout.properties;
    in.beginArray();
    layout.children.clear();
    while (!in.atEnd()) {
        QDBusVariant child;
        in >> child;
        layout.children.push_back(child.variant());
    }
    in.endArray();
    in.endStructure();
    return in;
}

QDBusArgument &operator<<(QDBusArgument &out, const MenuProperties &item)
{
    out.beginStructure();
    out << item.id << item.properties;
    out.endStructure();
    return out;
}

const QDBusArgument &operator>>(const QDBusArgument &in, MenuProperties &item)
{
    in.beginStructure();
    in >> item.id >> item.properties;
    in.endStructure();
    return in;
}

QDBusArgument &operator<<(QDBusArgument &out, const MenuEvent &event)
{
    out.beginStructure();
    out << event.id << event.kind << event.data << event.time;
    out.endStructure();
    return out;
}

const QDBusArgument &operator>>(const QDBusArgument &in, MenuEvent &event)
{
    in.beginStructure();
    in >> event.id >> event.kind >> event.data >> event.time;
    in.endStructure();
    return in;
}

BusMenu::BusMenu(QObject *parent) : QObject{parent}
{
    qDBusRegisterMetaType<MenuLayout>();
    qDBusRegisterMetaType<MenuProperties>();
    qDBusRegisterMetaType<QList<MenuProperties>>();
    qDBusRegisterMetaType<MenuEvent>();
    qDBusRegisterMetaType<QList<MenuEvent>>();
    new BusMenuAdaptor{*this};
}

bool BusMenu::setItems(std::vector<TrayItem> items)
{
    if (m_items == items) {
        return false;
    }
    m_items = std::move(items);
    ++m_revision;
    emit changed();
    return true;
}

QVariantMap BusMenu::properties(int id) const
{
    if (id == 0) {
        return {{QStringLiteral("children-display"), QStringLiteral("submenu")}};
    }
    const auto index = static_cast<std::size_t>(id - 1);
    if (index >= m_items.size()) {
        return {};
    }
    const TrayItem &item = m_items[index];
    if (item.key.isEmpty()) {
        return {{QStringLiteral("type"), QStringLiteral("separator")}};
    }
    // A single underscore would underline the letter after it.
    QString label = item.label;
    label.replace(u'_', QLatin1String{"__"});
    return {{QStringLiteral("label"), label}, {QStringLiteral("enabled"), item.isEnabled}};
}

void BusMenu::choose(int id)
{
    const auto index = static_cast<std::size_t>(id - 1);
    if (index < m_items.size() && m_items[index].isEnabled && !m_items[index].key.isEmpty()) {
        emit chosen(m_items[index].key);
    }
}

namespace
{

// No names: all of them.
QVariantMap only(QVariantMap properties, const QStringList &names)
{
    if (!names.isEmpty()) {
        properties.removeIf([&](const auto &entry) { return !names.contains(entry.key()); });
    }
    return properties;
}

} // namespace

BusMenuAdaptor::BusMenuAdaptor(BusMenu &menu) : QDBusAbstractAdaptor{&menu}, m_menu{menu}
{
    connect(&menu, &BusMenu::changed, this,
            [this] { emit LayoutUpdated(m_menu.revision(), 0); });
}

QString BusMenuAdaptor::textDirection()
{
    return QGuiApplication::layoutDirection() == Qt::RightToLeft ? QStringLiteral("rtl")
                                                                 : QStringLiteral("ltr");
}

uint BusMenuAdaptor::GetLayout(int parentId, int recursionDepth,
                               const QStringList &propertyNames, MenuLayout &layout)
{
    layout = {.id = parentId,
              .properties = only(m_menu.properties(parentId), propertyNames),
              .children = {}};
    if (parentId == 0 && recursionDepth != 0) {
        for (int id = 1; id <= m_menu.count(); ++id) {
            layout.children.push_back(QVariant::fromValue(
                MenuLayout{.id = id,
                           .properties = only(m_menu.properties(id), propertyNames),
                           .children = {}}));
        }
    }
    return m_menu.revision();
}

QList<MenuProperties> BusMenuAdaptor::GetGroupProperties(const QList<int> &ids,
                                                         const QStringList &propertyNames)
{
    QList<int> wanted = ids;
    if (wanted.isEmpty()) {
        for (int id = 0; id <= m_menu.count(); ++id) {
            wanted.push_back(id);
        }
    }
    QList<MenuProperties> found;
    for (const int id : std::as_const(wanted)) {
        if (id >= 0 && id <= m_menu.count()) {
            found.push_back(
                {.id = id, .properties = only(m_menu.properties(id), propertyNames)});
        }
    }
    return found;
}

QDBusVariant BusMenuAdaptor::GetProperty(int id, const QString &name)
{
    // A variant on the bus is never empty.
    return QDBusVariant{m_menu.properties(id).value(name, QString{})};
}

void BusMenuAdaptor::Event(int id, const QString &eventId, const QDBusVariant &, uint)
{
    if (eventId == u"clicked") {
        m_menu.choose(id);
    } else if (eventId == u"opened" && id == 0) {
        emit m_menu.wanted();
    }
}

QList<int> BusMenuAdaptor::EventGroup(const QList<MenuEvent> &events)
{
    QList<int> unknown;
    for (const MenuEvent &event : events) {
        if (event.id < 0 || event.id > m_menu.count()) {
            unknown.push_back(event.id);
        } else {
            Event(event.id, event.kind, event.data, event.time);
        }
    }
    return unknown;
}

bool BusMenuAdaptor::AboutToShow(int id)
{
    const uint before = m_menu.revision();
    if (id == 0) {
        emit m_menu.wanted();
    }
    return m_menu.revision() != before;
}

QList<int> BusMenuAdaptor::AboutToShowGroup(const QList<int> &ids, QList<int> &idErrors)
{
    idErrors.clear();
    QList<int> updated;
    for (const int id : ids) {
        if (AboutToShow(id)) {
            updated.push_back(id);
        }
    }
    return updated;
}

} // namespace Velvetnook
