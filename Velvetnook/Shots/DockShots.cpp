// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/App.h"
#include "Velvetnook/Application/ViewModels/DockViewModel.h"
#include "Velvetnook/Shots/Shot.h"

#include <algorithm>

namespace Velvetnook
{

namespace
{

using KestCore::DockItem;
using KestCore::DockItemKind;
using KestCore::DockPreferences;
using KestCore::ItemLifetime;

struct DockShot {
    const char *name{};
    int workspace = 0; // below 0: closed
    const char *page = "";
    std::function<void(DockPreferences &)> prefer{};
    std::function<void(ShotData &)> fill{};
    std::function<void(DockViewModel &)> arrange{};
};

Shot shot(const DockShot &wanted)
{
    return {.name = QStringLiteral("dock-%1").arg(QLatin1String{wanted.name}),
            .surface = QStringLiteral("Dock"),
            .view = QString::fromLatin1(wanted.page),
            .prepare =
                [wanted](ShotData &data) {
                    data.companion.dock.enabled = true;
                    if (wanted.prefer) {
                        wanted.prefer(data.companion.dock);
                    }
                    if (wanted.fill) {
                        wanted.fill(data);
                    }
                },
            .arrange =
                [wanted](App &app) {
                    DockViewModel *const dock = app.dock();
                    dock->setScreen({620, 560}, {0, 0, 620, 560});
                    dock->select(wanted.workspace);
                    dock->setOpen(wanted.workspace >= 0);
                    if (wanted.arrange) {
                        wanted.arrange(*dock);
                    }
                }};
}

DockItem item(const char *id, DockItemKind kind, const char *title, const char *target,
              ItemLifetime lifetime = ItemLifetime::permanent)
{
    return {.id = id,
            .kind = kind,
            .title = title,
            .target = target,
            .lifetime = lifetime,
            .createdAt = kShotTime};
}

void addWords(ShotData &data)
{
    data.companion.workspaces.front().items.push_back(item(
        "a", DockItemKind::link, "Astrolabe", "https://astrolabe.example", ItemLifetime::hour));
}

void fillAll(ShotData &data)
{
    addWords(data);
    auto &items = data.companion.workspaces.front().items;
    items.push_back(item("b", DockItemKind::divider, "", ""));
    items.push_back(item("c", DockItemKind::app, "Text Editor", "org.example.Editor"));
    items.push_back(item("d", DockItemKind::file, "a-rather-long-file-name.pdf", "/tmp/a.pdf"));
    items.push_back(item("e", DockItemKind::file, "رسالة", "/tmp/رسالة"));
    data.companion.workspaces.front().homeWidgets = {"prayer", "names"};
}

void lose(DockViewModel &dock)
{
    dock.setOpen(false);
    dock.setDesktop({.listApplications = {},
                     .findApplication = {},
                     .inspect =
                         [](const std::vector<DockItem> &items, const auto &answer) {
                             std::vector<DockFinding> found(items.size());
                             std::ranges::fill(found,
                                               DockFinding{.isThere = false, .iconName = {}});
                             answer(found);
                         },
                     .open = {}});
    dock.setOpen(true);
}

void offerApplications(DockViewModel &dock)
{
    dock.setDesktop({.listApplications =
                         [](const auto &answer) {
                             answer({{"calc", "Calculator", ""},
                                     {"cal", "Calendar", ""},
                                     {"files", "Files", ""},
                                     {"mail", "Mail", ""},
                                     {"maps", "Maps", ""},
                                     {"photos", "Photos", ""},
                                     {"term", "Terminal", ""},
                                     {"editor", "Text Editor", ""},
                                     {"video", "Videos", ""}});
                         },
                     .findApplication = {},
                     .inspect = {},
                     .open = {}});
}

void manyWorkspaces(ShotData &data)
{
    for (const char *name : {"Reading", "Travel"}) {
        data.companion.workspaces.push_back(
            {.id = name, .name = name, .items = {}, .homeWidgets = {}});
    }
}

} // namespace

std::vector<Shot> dockShots()
{
    const auto edge = [](const char *name) {
        return [name](DockPreferences &dock) { dock.edge = name; };
    };
    const auto size = [](const char *tab, const char *panel) {
        return [=](DockPreferences &dock) {
            dock.iconSize = tab;
            dock.panelSize = panel;
        };
    };
    return {
        shot({.name = "faith", .fill = addWords}),
        shot({.name = "left", .workspace = 1, .prefer = edge("left")}),
        shot({.name = "bottom", .workspace = 2, .prefer = edge("bottom")}),
        shot({.name = "closed", .workspace = -1}),
        shot({.name = "medium", .prefer = size("medium", "compact")}),
        shot({.name = "large", .prefer = size("large", "large")}),
        shot(
            {.name = "docked", .prefer = [](DockPreferences &dock) { dock.floating = false; }}),
        shot({.name = "docked-bottom",
              .prefer =
                  [](DockPreferences &dock) {
                      dock.floating = false;
                      dock.edge = "bottom";
                  }}),
        shot({.name = "all-kinds", .fill = fillAll}),
        shot({.name = "lost", .fill = fillAll, .arrange = lose}),
        shot({.name = "empty", .workspace = 4, .fill = manyWorkspaces}),
        shot({.name = "apps", .page = "apps", .arrange = offerApplications}),
        shot({.name = "no-apps", .page = "apps"}),
        shot({.name = "tools", .page = "tools"}),
        shot({.name = "link", .page = "link"}),
        shot({.name = "widgets", .page = "widgets"}),
        shot({.name = "name", .page = "name"}),
        shot({.name = "message",
              .arrange =
                  [](DockViewModel &dock) { dock.removeItem(QStringLiteral("faith.notes")); }}),
        {.name = QStringLiteral("settings-dock"),
         .surface = QStringLiteral("Settings"),
         .view = QStringLiteral("dock"),
         .prepare = [](ShotData &data) { data.companion.dock.enabled = true; }},
    };
}

} // namespace Velvetnook
