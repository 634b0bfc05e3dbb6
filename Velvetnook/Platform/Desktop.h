// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/NotificationRequest.h"
#include "Velvetnook/Platform/Notifications.h"

#include <QDBusConnection>
#include <QObject>
#include <QSet>

#include <memory>
#include <string>

namespace Velvetnook
{

class Activation;
class App;
class ApplicationModel;
class Autostart;
class BusNotifications;
class BusTray;
class CapabilityList;
class LoginPower;
class PortalLook;
class PrayerWatch;
class PulseSounds;
class SessionProbe;

// Everything between the application and the desktop's services. Costs nothing until `begin`,
// which is for when the first frame has been drawn.
class Desktop : public QObject
{
    Q_OBJECT

public:
    // On the buses of this session, which are joined by `begin`.
    Desktop(App &app, ApplicationModel &model, QObject *parent = nullptr);
    Desktop(App &app, ApplicationModel &model, QDBusConnection session, QDBusConnection system,
            std::unique_ptr<Autostart> autostart, QObject *parent = nullptr);
    ~Desktop() override;
    Desktop(const Desktop &) = delete;
    Desktop &operator=(const Desktop &) = delete;

    void begin();
    // Does what other starts and the desktop ask for.
    void follow(Activation &activation);
    // One of kDesktopActions, or a key of the tray's menu.
    void act(const QString &action);

    // Null before `begin`.
    LoginPower *power() { return m_power; }

signals:
    void lookChanged(bool isDark, bool reducesMotion, bool wantsContrast);

private:
    void followNotifications();
    void followSounds();
    void followTray();
    void followLook();
    void followAutostart();
    void followCapabilities();
    void followClipboard();

    void post(const NotificationRequest &request);
    void hearAnswer(const QString &id, Notifications::Answer answer);
    void showTray();
    void openTool(const QString &id);
    void count();
    void pauseReminders(bool isPaused);
    void carryOutLaunchAtLogin();

    App &m_app;
    ApplicationModel &m_model;
    QDBusConnection m_session;
    QDBusConnection m_system;
    bool m_joinsBuses = false;
    std::unique_ptr<Autostart> m_autostart;
    std::string m_launchAtLogin; // the setting as it was carried out
    QSet<QString> m_withSound;   // notifications that we play a sound for once they are shown
    bool m_isTrayDue = false;

    // Made by `begin`.
    BusNotifications *m_notifications = nullptr;
    PulseSounds *m_sounds = nullptr;
    PrayerWatch *m_prayers = nullptr;
    BusTray *m_tray = nullptr;
    LoginPower *m_power = nullptr;
    PortalLook *m_look = nullptr;
    SessionProbe *m_probe = nullptr;
    CapabilityList *m_capabilities;
};

} // namespace Velvetnook
