// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// How the tiles and workspaces of the dock are told apart.
namespace KestCore
{
struct DockItem;
struct Workspace;
} // namespace KestCore

namespace Velvetnook
{

// The first letter of a title, as it stands on a tile without a picture.
QString dockLetter(const QString &title);
// Which of the muted colours such a tile has: always the same for the same target.
int dockTint(const QString &target);
// The source of an application's picture; empty without one.
QString dockIconSource(const QString &iconName);

// The workspaces of a first run are named in the language of the interface for as long as the
// user has not named them, and so are the items of tools.
QString workspaceTitle(const KestCore::Workspace &workspace);
QString workspaceIcon(const KestCore::Workspace &workspace);
QString dockItemTitle(const KestCore::DockItem &item);

} // namespace Velvetnook
