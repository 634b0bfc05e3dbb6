// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/App.h"
#include "Velvetnook/Shots/Shot.h"

namespace Velvetnook
{

std::vector<Shot> galleryShots()
{
    std::vector<Shot> shots;
    for (const char *view : {"controls", "states", "more", "rings", "arabic"}) {
        shots.push_back({.name = QStringLiteral("gallery-%1").arg(QLatin1String{view}),
                         .surface = QStringLiteral("Gallery"),
                         .view = QLatin1String{view}});
    }
    return shots;
}

} // namespace Velvetnook
