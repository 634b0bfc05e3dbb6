// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Notch/KeySummons.h"

#include "Velvetnook/Application/App.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Summons.h"
#include "Velvetnook/Platform/GlobalKeys.h"

namespace Velvetnook
{

namespace
{

void obey(App &app, const QString &target)
{
    using KestCore::QuickSurface;
    using KestCore::SurfaceStep;
    if (const auto surface = Base::fromText<QuickSurface>(target.toStdString())) {
        summon(app, *surface, SurfaceStep::toggle);
    } else {
        summon(app, QuickSurface::notch, SurfaceStep::open, target);
    }
}

} // namespace

void followKeys(GlobalKeys &keys, ApplicationModel &model, App &app)
{
    ShortcutSettings *const page = app.settings()->shortcuts();
    const auto tell = [&keys, &model, page] {
        for (const KestCore::ShortcutBinding &each : model.companion().shortcuts) {
            page->setState(each.target, keys.stateOf(each.target));
        }
    };
    QObject::connect(&keys, &GlobalKeys::statesChanged, page, tell);
    QObject::connect(page, &ShortcutSettings::recordingChanged, &keys,
                     [&keys, page] { keys.setPaused(!page->recording().isEmpty()); });
    QObject::connect(&keys, &GlobalKeys::summoned, app.panel(),
                     [&app](const QString &target) { obey(app, target); });
    tell();
}

} // namespace Velvetnook
