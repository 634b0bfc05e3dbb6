// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Linux/BusTray.h"

#include "Velvetnook/Platform/Linux/BusCall.h"

#include <QCoreApplication>
#include <QDBusMetaType>
#include <QtEndian>

#include <utility>

namespace Velvetnook
{

namespace
{

using KestCore::Availability;

const QString kWatcher = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString kWatcherPath = QStringLiteral("/StatusNotifierWatcher");
const QString kItemPath = QStringLiteral("/StatusNotifierItem");
const QString kMenuPath = QStringLiteral("/StatusNotifierItem/Menu");

} // namespace

QDBusArgument &operator<<(QDBusArgument &out, const TrayPixmap &pixmap)
{
    out.beginStructure();
    out << pixmap.width << pixmap.height << pixmap.pixels;
    out.endStructure();
    return out;
}

const QDBusArgument &operator>>(const QDBusArgument &in, TrayPixmap &pixmap)
{
    in.beginStructure();
    in >> pixmap.width >> pixmap.height >> pixmap.pixels;
    in.endStructure();
    return in;
}

QDBusArgument &operator<<(QDBusArgument &out, const TrayToolTip &tip)
{
    out.beginStructure();
    out << tip.icon << tip.pixmaps << tip.title << tip.text;
    out.endStructure();
    return out;
}

const QDBusArgument &operator>>(const QDBusArgument &in, TrayToolTip &tip)
{
    in.beginStructure();
    in >> tip.icon >> tip.pixmaps >> tip.title >> tip.text;
    in.endStructure();
    return in;
}

TrayPixmap toTrayPixmap(const QImage &image)
{
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    TrayPixmap pixmap{.width = argb.width(), .height = argb.height(), .pixels = {}};
    for (int row = 0; row < argb.height(); ++row) {
        QByteArray line{reinterpret_cast<const char *>(argb.constScanLine(row)),
                        qsizetype{4} * argb.width()};
        qToBigEndian<quint32>(line.constData(), argb.width(), line.data());
        pixmap.pixels += line;
    }
    return pixmap;
}

BusTray::BusTray(const QDBusConnection &bus, QString id, const QList<QImage> &pictures,
                 QObject *parent)
    : Tray{parent}, m_bus{bus}, m_id{std::move(id)},
      m_name{QStringLiteral("org.kde.StatusNotifierItem-%1-1")
                 .arg(QCoreApplication::applicationPid())},
      m_watcher{kWatcher, bus, QDBusServiceWatcher::WatchForOwnerChange}
{
    qDBusRegisterMetaType<TrayPixmap>();
    qDBusRegisterMetaType<QList<TrayPixmap>>();
    qDBusRegisterMetaType<TrayToolTip>();
    for (const QImage &picture : pictures) {
        m_pixmaps.push_back(toTrayPixmap(picture));
    }
    new BusTrayAdaptor{*this};
    connect(&m_menu, &BusMenu::chosen, this, &Tray::chosen);
    connect(&m_menu, &BusMenu::wanted, this, &Tray::menuWanted);
    connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &, const QString &owner) {
                if (owner.isEmpty()) {
                    refuse({});
                } else {
                    registerItem();
                }
            });
    for (const char *signal :
         {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"}) {
        m_bus.connect(kWatcher, kWatcherPath, kWatcher, QLatin1String{signal}, this,
                      SLOT(askForHost()));
    }
}

BusTray::~BusTray()
{
    m_bus.unregisterObject(kItemPath, QDBusConnection::UnregisterTree);
    m_bus.unregisterService(m_name);
}

void BusTray::begin()
{
    m_bus.registerObject(kItemPath, this, QDBusConnection::ExportAdaptors);
    m_bus.registerObject(kMenuPath, &m_menu, QDBusConnection::ExportAdaptors);
    m_bus.registerService(m_name);
    registerItem();
}

void BusTray::registerItem()
{
    auto call = QDBusMessage::createMethodCall(kWatcher, kWatcherPath, kWatcher,
                                               QStringLiteral("RegisterStatusNotifierItem"));
    call << m_name;
    askBus<QDBusPendingReply<>>(m_bus, call, this, [this](const QDBusPendingReply<> &reply) {
        if (reply.isError()) {
            refuse(reply.error());
        } else {
            askForHost();
        }
    });
}

// A watcher keeps the list of icons; whether anything draws them is another question.
void BusTray::askForHost()
{
    auto call = QDBusMessage::createMethodCall(
        kWatcher, kWatcherPath, QStringLiteral("org.freedesktop.DBus.Properties"),
        QStringLiteral("Get"));
    call << kWatcher << QStringLiteral("IsStatusNotifierHostRegistered");
    askBus<QDBusPendingReply<QDBusVariant>>(
        m_bus, call, this, [this](const QDBusPendingReply<QDBusVariant> &reply) {
            if (reply.isError()) {
                refuse(reply.error());
            } else if (reply.value().variant().toBool()) {
                setState({.availability = Availability::ready, .message = {}});
            } else {
                setState({.availability = Availability::empty,
                          .message = tr("No panel of this session shows tray icons.")});
            }
        });
}

void BusTray::refuse(const QDBusError &error)
{
    if (error.type() == QDBusError::NoReply) {
        setState({.availability = Availability::error,
                  .message = tr("The session's tray does not answer.")});
        return;
    }
    setState({.availability = Availability::offline,
              .message = tr("There is no tray in this session.")});
}

void BusTray::show(std::vector<TrayItem> menu, const QString &toolTip)
{
    m_menu.setItems(std::move(menu));
    if (m_toolTip != toolTip) {
        m_toolTip = toolTip;
        emit toolTipChanged();
    }
}

void BusTray::setState(ServiceState state)
{
    if (m_state != state) {
        m_state = std::move(state);
        emit stateChanged();
    }
}

BusTrayAdaptor::BusTrayAdaptor(BusTray &tray) : QDBusAbstractAdaptor{&tray}, m_tray{tray}
{
    connect(&tray, &BusTray::toolTipChanged, this, &BusTrayAdaptor::NewToolTip);
}

TrayToolTip BusTrayAdaptor::toolTip() const
{
    return {.icon = {}, .pixmaps = {}, .title = title(), .text = m_tray.toolTip()};
}

QDBusObjectPath BusTrayAdaptor::menu() { return QDBusObjectPath{kMenuPath}; }

// The host shows our menu itself; one that does not asks for the panel instead.
void BusTrayAdaptor::ContextMenu(int, int) { emit m_tray.activated(); }

void BusTrayAdaptor::Activate(int, int) { emit m_tray.activated(); }

void BusTrayAdaptor::SecondaryActivate(int, int) { emit m_tray.activated(); }

void BusTrayAdaptor::Scroll(int, const QString &) {}

} // namespace Velvetnook
