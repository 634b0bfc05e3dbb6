// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/Summons.h"

#include "Velvetnook/Application/App.h"
#include "Velvetnook/Application/ViewModels/DockViewModel.h"

namespace Velvetnook
{

using KestCore::QuickSurface;
using KestCore::SurfaceStep;

namespace
{

template <class Surface>
void step(Surface &surface, SurfaceStep how)
{
    if (how == SurfaceStep::toggle) {
        emit surface.toggleWanted();
    } else if (how == SurfaceStep::close) {
        emit surface.closeWanted();
    } else if constexpr (requires { surface.openWanted(true); }) {
        emit surface.openWanted(true);
    } else {
        emit surface.openWanted();
    }
}

void stepDock(App &app, SurfaceStep how)
{
    if (app.dock()->isThere()) {
        step(*app.dock(), how);
    } else if (how != SurfaceStep::close) {
        emit app.dock()->settingsWanted();
    }
}

void stepPanel(App &app, SurfaceStep how, const QString &tool)
{
    app.panel()->openTool(tool);
    if (tool != QLatin1String{"settings"}) {
        step(*app.panel(), how);
    }
}

} // namespace

void summon(App &app, QuickSurface surface, SurfaceStep how, const QString &tool)
{
    switch (surface) {
    case QuickSurface::command:
        return step(*app.palette(), how);
    case QuickSurface::dock:
        return stepDock(app, how);
    case QuickSurface::notch:
        return stepPanel(app, how, tool);
    }
}

} // namespace Velvetnook
