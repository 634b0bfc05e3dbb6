// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Surfaces/CompanionState.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace Velvetnook
{

// An application that the desktop knows.
struct DockApplication {
    QString id{};
    QString name{};
    QString iconName{}; // of an icon theme, or the path of a picture

    bool operator==(const DockApplication &) const = default;
};

// What is found where an item leads.
struct DockFinding {
    bool isThere = true;
    QString iconName{};

    bool operator==(const DockFinding &) const = default;
};

// What the dock asks of the desktop. Nothing here waits: answers come later, on the main
// thread, and one that is not given here is never called.
struct DockDesktop {
    std::function<void(std::function<void(std::vector<DockApplication>)>)> listApplications{};
    // The application of a desktop file; none for another file.
    std::function<void(const QString &path,
                       std::function<void(std::optional<DockApplication>)>)>
        findApplication{};
    std::function<void(std::vector<KestCore::DockItem>,
                       std::function<void(std::vector<DockFinding>)>)>
        inspect{};
    // Opens an application, a link or a file; an application with these addresses.
    std::function<void(const KestCore::DockItem &, const QStringList &addresses,
                       std::function<void(Base::Result<void>)>)>
        open{};
};

} // namespace Velvetnook
