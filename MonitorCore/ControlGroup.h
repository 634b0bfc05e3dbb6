// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace MonitorCore
{

// Whom the processes of a control group belong to, as the units of systemd tell it.
struct ControlGroupOwner {
    enum class Kind : std::uint8_t { unknown, application, service };

    Kind kind{};
    std::string id{}; // a desktop-file id without ending; "name.service", of any instance

    bool operator==(const ControlGroupOwner &) const = default;
};

// Reads a path such as "/user.slice/.../app.slice/app-gnome-org.example.Mail-412.scope". The
// outermost unit that names somebody wins: what an application or a service starts in groups
// of its own still belongs to it. Login sessions, the managers of users, the bus and scopes
// of no application name nobody, since unlike programs share them.
ControlGroupOwner ownerOf(std::string_view controlGroup);

} // namespace MonitorCore
