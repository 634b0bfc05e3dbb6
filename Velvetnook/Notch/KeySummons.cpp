// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Notch/KeySummons.h"

#include "Velvetnook/Application/App.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Platform/GlobalKeys.h"

namespace Velvetnook
{

namespace
{

void summon(PanelViewModel &panel, const QString &target)
{
    if (target == QLatin1String{"notch"}) {
        emit panel.toggleWanted();
        return;
    }
    panel.openTool(target);
    if (target != QLatin1String{"settings"}) { // they have a window of their own
        emit panel.openWanted(true);
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
                     [&app](const QString &target) { summon(*app.panel(), target); });
    tell();
}

} // namespace Velvetnook
