// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Platform/Tray.h"

#include <QDBusAbstractAdaptor>
#include <QDBusArgument>
#include <QDBusVariant>
#include <QStringList>
#include <QVariantMap>

namespace Velvetnook
{

// How a menu travels: com.canonical.dbusmenu's own structures.
struct MenuLayout {
    int id{};
    QVariantMap properties{};
    QVariantList children{};
};
struct MenuProperties {
    int id{};
    QVariantMap properties{};
};
struct MenuEvent {
    int id{};
    QString kind{};
    QDBusVariant data{};
    uint time{};
};
QDBusArgument &operator<<(QDBusArgument &out, const MenuLayout &layout);
const QDBusArgument &operator>>(const QDBusArgument &in, MenuLayout &layout);
QDBusArgument &operator<<(QDBusArgument &out, const MenuProperties &item);
const QDBusArgument &operator>>(const QDBusArgument &in, MenuProperties &item);
QDBusArgument &operator<<(QDBusArgument &out, const MenuEvent &event);
const QDBusArgument &operator>>(const QDBusArgument &in, MenuEvent &event);

// The object that holds the menu on the bus.
class BusMenu : public QObject
{
    Q_OBJECT

public:
    explicit BusMenu(QObject *parent = nullptr);

    // Whether this is another menu than before.
    bool setItems(std::vector<TrayItem> items);
    uint revision() const { return m_revision; }
    // A line has its index + 1; the whole menu is 0, which is not a line.
    int count() const { return static_cast<int>(m_items.size()); }
    QVariantMap properties(int id) const;
    void choose(int id);

signals:
    void chosen(const QString &key);
    void wanted();
    void changed();

private:
    std::vector<TrayItem> m_items;
    uint m_revision = 1;
};

// What the bus may ask of it.
class BusMenuAdaptor : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version CONSTANT)
    Q_PROPERTY(QString TextDirection READ textDirection CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath CONSTANT)

public:
    explicit BusMenuAdaptor(BusMenu &menu);

    static uint version() { return 3; }
    static QString textDirection();
    static QString status() { return QStringLiteral("normal"); }
    static QStringList iconThemePath() { return {}; }

    // NOLINTBEGIN(readability-identifier-naming): the names are the interface's
public slots:
    uint GetLayout(int parentId, int recursionDepth, const QStringList &propertyNames,
                   Velvetnook::MenuLayout &layout);
    QList<Velvetnook::MenuProperties> GetGroupProperties(const QList<int> &ids,
                                                         const QStringList &propertyNames);
    QDBusVariant GetProperty(int id, const QString &name);
    void Event(int id, const QString &eventId, const QDBusVariant &data, uint timestamp);
    QList<int> EventGroup(const QList<Velvetnook::MenuEvent> &events);
    bool AboutToShow(int id);
    QList<int> AboutToShowGroup(const QList<int> &ids, QList<int> &idErrors);

signals:
    void LayoutUpdated(uint revision, int parent);
    // NOLINTEND(readability-identifier-naming)

private:
    BusMenu &m_menu;
};

} // namespace Velvetnook

Q_DECLARE_METATYPE(Velvetnook::MenuLayout)
Q_DECLARE_METATYPE(Velvetnook::MenuProperties)
Q_DECLARE_METATYPE(Velvetnook::MenuEvent)
