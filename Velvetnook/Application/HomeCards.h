// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Models/NativeState.h"
#include "KestCore/Surfaces/CompanionState.h"

#include <string>
#include <vector>

namespace Velvetnook
{

// One card of the home view and where it stands: columns are 4, a row is as many as it takes.
struct HomeCard {
    std::string tool{};
    int row{};
    int column{};
    int columns{}; // that it is wide

    bool operator==(const HomeCard &) const = default;
};

// The cards in their places. Setting "home.widgets" names them in the user's order, with
// commas between; else the devotional ones and the timer stand beside the widgets of the
// chosen workspace. A tool that has no card or is turned off is left out. Each takes the first
// place that is wide enough.
std::vector<HomeCard> homeCards(const KestCore::NativeState &state,
                                const KestCore::CompanionState &companion);

} // namespace Velvetnook
