// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Capabilities.h"

#include <QCoreApplication>

namespace Velvetnook
{

namespace
{

using Level = Capability::Level;

QString tr(const char *text) { return QCoreApplication::translate("Velvetnook", text); }

bool isWayland(const SessionFacts &facts) { return facts.sessionType == u"wayland"; }

Capability sessionType(const SessionFacts &facts)
{
    Capability found{.id = QStringLiteral("session"), .name = tr("Session")};
    if (!facts.hasXServer) {
        found.reason =
            isWayland(facts) ? tr("Wayland without XWayland") : tr("There is no display.");
        found.wayOut = isWayland(facts)
                           ? tr("Install XWayland and log in again.")
                           : tr("Log in to a desktop, or use kest in this terminal.");
    } else if (isWayland(facts)) {
        found.level = Level::degraded;
        found.reason = tr("Wayland, reached through XWayland");
        found.wayOut = tr("Choose an X11 session when you log in.");
    } else {
        found.level = Level::full;
        found.reason = tr("X11");
    }
    return found;
}

Capability edgePanel(const SessionFacts &facts)
{
    Capability found{.id = QStringLiteral("edge"), .name = tr("Strip at the screen's edge")};
    if (!facts.hasXServer) {
        found.reason = tr("Only an X server lets a program place its window.");
    } else if (isWayland(facts)) {
        found.level = Level::degraded;
        found.reason = tr("Through XWayland other windows and full screens may cover it.");
        found.wayOut = tr("Choose an X11 session when you log in.");
    } else if (!facts.tellsFullScreen) {
        // It keeps itself above the others; what to give way to it must be told.
        found.level = Level::degraded;
        found.reason =
            facts.windowManager.isEmpty()
                ? tr("No window manager says when a window fills the screen: it stays over it.")
                : tr("%1 does not say when a window fills the screen: it stays over it.")
                      .arg(facts.windowManager);
    } else {
        found.level = Level::full;
        found.reason = tr("It stands above other windows and gives way to full screens.");
    }
    return found;
}

Capability compositing(const SessionFacts &facts)
{
    Capability found{.id = QStringLiteral("compositing"), .name = tr("Shadows and soft edges")};
    if (facts.composites || (facts.hasXServer && isWayland(facts))) {
        found.level = Level::full;
        found.reason = tr("The screen is composited.");
    } else if (facts.hasXServer) {
        found.level = Level::degraded;
        found.reason =
            tr("The screen is not composited: edges are hard, shadows are left out.");
        found.wayOut = tr("Turn on compositing, or start a compositor such as picom.");
    } else {
        found.reason = tr("There is no display.");
    }
    return found;
}

Level levelOf(HotkeyState::Level level)
{
    switch (level) {
    case HotkeyState::Level::full:
        return Level::full;
    case HotkeyState::Level::degraded:
        return Level::degraded;
    case HotkeyState::Level::off:
        return Level::off;
    case HotkeyState::Level::untried:
        break;
    }
    return Level::unknown;
}

Capability hotkey(const SessionFacts &facts)
{
    Capability found{.id = QStringLiteral("hotkey"),
                     .name = tr("Key for the palette"),
                     .level = levelOf(facts.hotkey.level),
                     .reason = facts.hotkey.reason};
    if (found.level == Level::unknown) {
        found.reason = tr("Not tried here: only the running application asks for it.");
    } else if (found.level == Level::full && found.reason.isEmpty()) {
        found.reason = tr("Works in every window.");
    }
    const bool isTheDesktops = !facts.hasXServer || isWayland(facts);
    if (isTheDesktops && found.level != Level::full) {
        found.wayOut =
            tr("In the desktop's keyboard settings, bind a key to: kest palette toggle");
    }
    return found;
}

Capability notifications(const SessionFacts &facts)
{
    Capability found{.id = QStringLiteral("notifications"), .name = tr("Notifications")};
    if (!facts.hasNotifications) {
        found.reason = facts.hasSessionBus ? tr("Nothing in this session shows notifications.")
                                           : tr("There is no session bus.");
        found.wayOut = tr("Start a notification service, such as the desktop's own or dunst.");
    } else if (!facts.notificationAbilities.isEmpty() &&
               !facts.notificationAbilities.contains(u"actions")) {
        found.level = Level::degraded;
        found.reason = tr("They are shown without buttons.");
    } else {
        found.level = Level::full;
        found.reason = tr("Shown by the desktop");
    }
    return found;
}

Capability tray(const SessionFacts &facts)
{
    Capability found{.id = QStringLiteral("tray"), .name = tr("Tray icon")};
    if (facts.hasTrayHost) {
        found.level = Level::full;
        found.reason = tr("Shown by the desktop");
        return found;
    }
    found.reason = facts.hasTrayWatcher ? tr("No panel of this session shows tray icons.")
                                        : tr("There is no tray in this session.");
    found.wayOut = facts.desktop.contains(u"GNOME")
                       ? tr("Turn on the AppIndicator extension of GNOME Shell "
                            "(gnome-shell-extension-appindicator).")
                       : tr("Add a tray to the desktop's panel. The strip does all of it too.");
    return found;
}

Capability secrets(const SessionFacts &facts)
{
    Capability found{.id = QStringLiteral("secrets"), .name = tr("Keyring")};
    if (facts.hasSecrets) {
        found.level = Level::full;
        found.reason = tr("Secrets are kept in the desktop's keyring.");
    } else {
        found.reason = tr("There is no keyring (Secret Service) here.");
        found.wayOut = tr("Install gnome-keyring or KeePassXC and unlock it.");
    }
    return found;
}

Capability sound(const SessionFacts &facts)
{
    Capability found{.id = QStringLiteral("sound"), .name = tr("Sounds")};
    if (!facts.soundServer.isEmpty()) {
        found.level = Level::full;
        found.reason = tr("Played through the session's sound server");
    } else {
        found.reason = tr("There is no sound server in this session.");
        found.wayOut = tr("Start PipeWire or PulseAudio.");
    }
    return found;
}

Capability look(const SessionFacts &facts)
{
    Capability found{.id = QStringLiteral("look"), .name = tr("Dark and light of the desktop")};
    if (facts.hasSettingsPortal) {
        found.level = Level::full;
        found.reason = tr("Followed as it changes");
    } else {
        found.reason = tr("This desktop does not tell how it looks.");
        found.wayOut =
            tr("Choose dark or light in the settings, or install xdg-desktop-portal.");
    }
    return found;
}

Capability sleep(const SessionFacts &facts)
{
    Capability found{.id = QStringLiteral("sleep"), .name = tr("Sleep and waking")};
    // The clock itself sees a suspend, so nothing is ever missed.
    found.level = facts.hasLogin ? Level::full : Level::degraded;
    found.reason = facts.hasLogin
                       ? tr("Told by the system")
                       : tr("Seen by the clock alone; the screen's lock is not known.");
    return found;
}

} // namespace

QString textOf(Capability::Level level)
{
    switch (level) {
    case Level::full:
        return tr("full");
    case Level::degraded:
        return tr("degraded");
    case Level::off:
        return tr("off");
    case Level::unknown:
        break;
    }
    return tr("unknown");
}

std::vector<Capability> capabilitiesOf(const SessionFacts &facts)
{
    return {sessionType(facts),   edgePanel(facts), compositing(facts), hotkey(facts),
            notifications(facts), tray(facts),      secrets(facts),     sound(facts),
            look(facts),          sleep(facts)};
}

QString describe(const std::vector<Capability> &capabilities)
{
    QString text;
    for (const Capability &one : capabilities) {
        text += QStringLiteral("%1 %2 %3\n")
                    .arg(textOf(one.level), -9)
                    .arg(one.name, -30)
                    .arg(one.reason);
        if (!one.wayOut.isEmpty()) {
            text += QStringLiteral("%1%2\n").arg(QString{}, 41).arg(one.wayOut);
        }
    }
    return text;
}

} // namespace Velvetnook
