// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Platform/Linux/BusMenu.h"
#include "Velvetnook/Platform/Tray.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusError>
#include <QDBusObjectPath>
#include <QDBusServiceWatcher>
#include <QImage>

namespace Velvetnook
{

// How a picture travels: its size and its pixels as ARGB, the highest byte first.
struct TrayPixmap {
    int width{};
    int height{};
    QByteArray pixels{};
};
struct TrayToolTip {
    QString icon{};
    QList<TrayPixmap> pixmaps{};
    QString title{};
    QString text{};
};
QDBusArgument &operator<<(QDBusArgument &out, const TrayPixmap &pixmap);
const QDBusArgument &operator>>(const QDBusArgument &in, TrayPixmap &pixmap);
QDBusArgument &operator<<(QDBusArgument &out, const TrayToolTip &tip);
const QDBusArgument &operator>>(const QDBusArgument &in, TrayToolTip &tip);

TrayPixmap toTrayPixmap(const QImage &image);

// A StatusNotifierItem. It registers itself whenever a watcher appears.
class BusTray : public Tray
{
    Q_OBJECT

public:
    // `pictures` is the icon in its sizes.
    BusTray(const QDBusConnection &bus, QString id, const QList<QImage> &pictures,
            QObject *parent = nullptr);
    ~BusTray() override;
    BusTray(const BusTray &) = delete;
    BusTray &operator=(const BusTray &) = delete;

    void begin();
    void show(std::vector<TrayItem> menu, const QString &toolTip) override;
    ServiceState state() const override { return m_state; }

    QString id() const { return m_id; }
    const QList<TrayPixmap> &pixmaps() const { return m_pixmaps; }
    const QString &toolTip() const { return m_toolTip; }

signals:
    void toolTipChanged();

private slots:
    void askForHost();

private:
    void registerItem();
    void refuse(const QDBusError &error);
    void setState(ServiceState state);

    QDBusConnection m_bus;
    QString m_id;
    QString m_name; // ours on the bus, for the watcher
    QList<TrayPixmap> m_pixmaps;
    QString m_toolTip;
    BusMenu m_menu;
    QDBusServiceWatcher m_watcher;
    ServiceState m_state;
};

// What the bus may ask of it.
class BusTrayAdaptor : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category CONSTANT)
    Q_PROPERTY(QString Id READ id CONSTANT)
    Q_PROPERTY(QString Title READ title CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(int WindowId READ windowId CONSTANT)
    Q_PROPERTY(QString IconName READ noName CONSTANT)
    Q_PROPERTY(QList<Velvetnook::TrayPixmap> IconPixmap READ iconPixmap CONSTANT)
    Q_PROPERTY(QString OverlayIconName READ noName CONSTANT)
    Q_PROPERTY(QList<Velvetnook::TrayPixmap> OverlayIconPixmap READ noPixmap CONSTANT)
    Q_PROPERTY(QString AttentionIconName READ noName CONSTANT)
    Q_PROPERTY(QList<Velvetnook::TrayPixmap> AttentionIconPixmap READ noPixmap CONSTANT)
    Q_PROPERTY(QString AttentionMovieName READ noName CONSTANT)
    Q_PROPERTY(Velvetnook::TrayToolTip ToolTip READ toolTip)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu CONSTANT)
    Q_PROPERTY(QDBusObjectPath Menu READ menu CONSTANT)

public:
    explicit BusTrayAdaptor(BusTray &tray);

    static QString category() { return QStringLiteral("ApplicationStatus"); }
    QString id() const { return m_tray.id(); }
    static QString title() { return QStringLiteral("Velvetnook"); }
    static QString status() { return QStringLiteral("Active"); }
    static int windowId() { return 0; }
    static QString noName() { return {}; }
    static QList<TrayPixmap> noPixmap() { return {}; }
    QList<TrayPixmap> iconPixmap() const { return m_tray.pixmaps(); }
    TrayToolTip toolTip() const;
    static bool itemIsMenu() { return false; }
    static QDBusObjectPath menu();

    // NOLINTBEGIN(readability-identifier-naming): the names are the interface's
public slots:
    void ContextMenu(int x, int y);
    void Activate(int x, int y);
    void SecondaryActivate(int x, int y);
    void Scroll(int delta, const QString &orientation);

signals:
    void NewTitle();
    void NewIcon();
    void NewAttentionIcon();
    void NewOverlayIcon();
    void NewToolTip();
    void NewStatus(const QString &status);
    // NOLINTEND(readability-identifier-naming)

private:
    BusTray &m_tray;
};

} // namespace Velvetnook

Q_DECLARE_METATYPE(Velvetnook::TrayPixmap)
Q_DECLARE_METATYPE(Velvetnook::TrayToolTip)
