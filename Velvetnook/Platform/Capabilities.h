// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/HotkeyState.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <vector>

namespace Velvetnook
{

// What was found out about the session.
struct SessionFacts {
    QString sessionType{}; // "x11", "wayland", "tty", as the session itself says
    QString desktop{};     // "GNOME", "KDE", as the session itself says
    bool hasXServer{};
    QString windowManager{}; // of the X server; empty: none that says so
    bool tellsFullScreen{};  // it says which window is in front, and which fills the screen
    bool composites{};       // the X server's screen is blended

    bool hasSessionBus{};
    bool hasNotifications{};
    QStringList notificationAbilities{}; // empty: not asked
    bool hasTrayWatcher{};
    bool hasTrayHost{};
    bool hasSecrets{};
    bool hasSettingsPortal{};
    bool hasLogin{};
    QString soundServer{}; // empty: none
    HotkeyState hotkey{};  // of the palette's key

    bool operator==(const SessionFacts &) const = default;
};

// One thing that the application can do as far as the session lets it.
struct Capability {
    enum class Level : std::uint8_t { full, degraded, off, unknown };

    QString id{};
    QString name{};
    Level level = Level::off;
    QString reason{}; // what the session gives, or what it lacks
    QString wayOut{}; // what the user can do about it; empty where nothing can be done

    bool operator==(const Capability &) const = default;
};

QString textOf(Capability::Level level);

// In the order in which they are shown.
std::vector<Capability> capabilitiesOf(const SessionFacts &facts);

// The same for a terminal, a few lines each.
QString describe(const std::vector<Capability> &capabilities);

} // namespace Velvetnook
