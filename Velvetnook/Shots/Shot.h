// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Models/Snapshot.h"

#include <QString>

#include <functional>
#include <vector>

namespace Velvetnook
{

class App;

// Where every picture is taken: London, Friday 14 November 2025, 13:06.
inline const Base::Instant kShotTime{Base::Seconds{1'763'125'560.0}};

// What the store holds before the application starts.
struct ShotData {
    KestCore::NativeState state{};
    KestCore::CompanionState companion{};
    std::vector<KestCore::LocalRecord> records{};
};

// One picture: a surface in one of its states.
struct Shot {
    QString name{};    // the file's name begins with it
    QString surface{}; // "Panel": drawn by PanelSurface.qml, and so on
    QString view{};    // for the panel the tool's id, for the settings the page
    std::function<void(ShotData &)> prepare{};
    std::function<void(App &)> arrange{}; // before it is drawn, as a user would have left it
    Base::Seconds later{};                // how long after kShotTime
};

// One list for each area.
std::vector<Shot> counterShots();
std::vector<Shot> devotionalShots();
std::vector<Shot> prayerShots();
std::vector<Shot> toolShots();
std::vector<Shot> settingsShots();
std::vector<Shot> surfaceShots();
std::vector<Shot> paletteShots();
std::vector<Shot> clipboardShots();
std::vector<Shot> monitorShots();
std::vector<Shot> onlineShots();
std::vector<Shot> shelfShots();
std::vector<Shot> dockShots();
std::vector<Shot> assistantShots();
std::vector<Shot> galleryShots();

} // namespace Velvetnook
