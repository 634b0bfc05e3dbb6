// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/TrayMenu.h"

#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/CounterSteps.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/LocalDay.h"
#include "Velvetnook/Application/PrayerWatch.h"

#include <QCoreApplication>

namespace Velvetnook
{

namespace
{

QString tr(const char *text) { return QCoreApplication::translate("Velvetnook", text); }

QString countLine(const KestCore::NativeState &state, const Formatting &formatting)
{
    const auto &session = state.devotional.session;
    const QString phrase = formatting.isRightToLeft()
                               ? QString::fromStdString(selectedPhrase(state).arabic)
                               : phraseTitle(selectedPhrase(state));
    const QString count = formatting.number(session.count);
    if (!session.target) {
        return tr("Count %1 (%2)").arg(phrase, count);
    }
    return tr("Count %1 (%2 of %3)").arg(phrase, count, formatting.number(*session.target));
}

} // namespace

QString nextPrayerLine(const ApplicationModel &model, const Formatting &formatting,
                       const PrayerWatch &prayers)
{
    const auto &inputs = prayers.inputs();
    if (!inputs) {
        return tr("Choose a place for prayer times");
    }
    const auto next = prayers.nextPrayer(model.now());
    if (!next) {
        return tr("No prayer times today");
    }
    return tr("%1 at %2")
        .arg(prayerName(next->prayer), formatting.timeIn(inputs->calendar, next->at));
}

std::vector<TrayItem> trayMenu(const ApplicationModel &model, const Formatting &formatting,
                               const PrayerWatch &prayers)
{
    const auto line = [](const char *key, const QString &label) {
        return TrayItem{.key = QString::fromLatin1(key), .label = label};
    };
    auto count = line("count", countLine(model.state(), formatting));
    count.isEnabled = !model.state().devotional.session.isPaused;
    return {line("open", tr("Open Velvetnook")),
            count,
            {},
            line("prayer", nextPrayerLine(model, formatting, prayers)),
            endOfPause(model) ? line("resume-reminders", tr("Resume reminders"))
                              : line("pause-reminders", tr("Pause reminders for an hour")),
            {},
            line("settings", tr("Settings…")),
            line("quit", tr("Quit"))};
}

} // namespace Velvetnook
