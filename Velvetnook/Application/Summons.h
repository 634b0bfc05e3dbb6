// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Surfaces/ApplicationCommand.h"
#include "KestCore/Surfaces/NotchInteraction.h"

#include <QString>

namespace Velvetnook
{

class App;

// Opens a surface, closes it, or does whichever it is not, for all who ask from elsewhere: a
// key, the dock, kest. The panel then shows the tool, if one is named; the settings have a
// window of their own. Where there is no dock, the settings about it open instead.
void summon(App &app, KestCore::QuickSurface surface, KestCore::SurfaceStep how,
            const QString &tool = {});

} // namespace Velvetnook
