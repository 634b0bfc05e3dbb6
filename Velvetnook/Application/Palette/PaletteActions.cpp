// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/Palette/PaletteActions.h"

#include "KestCore/Tools/TimerState.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/LocalDay.h"
#include "Velvetnook/Application/QtText.h"
#include "Velvetnook/Application/ToolChoice.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace Velvetnook
{

namespace
{

constexpr std::array kActions{
    PaletteAction{"count", QT_TRANSLATE_NOOP("Palette", "Count one"), "plus",
                  "increment tap bead dhikr"},
    PaletteAction{"undo", QT_TRANSLATE_NOOP("Palette", "Undo the last count"), "undo",
                  "back wrong"},
    PaletteAction{"finish", QT_TRANSLATE_NOOP("Palette", "Finish the session"), "finish",
                  "end done save history"},
    PaletteAction{"pause", QT_TRANSLATE_NOOP("Palette", "Pause the counter"), "pause", "stop"},
    PaletteAction{"continue", QT_TRANSLATE_NOOP("Palette", "Continue counting"), "play",
                  "resume unpause"},
    PaletteAction{"quiet-hour", QT_TRANSLATE_NOOP("Palette", "Pause reminders for an hour"),
                  "bell-off", "quiet snooze silence mute notifications"},
    PaletteAction{"quiet-day", QT_TRANSLATE_NOOP("Palette", "Pause reminders until tomorrow"),
                  "bell-off", "quiet snooze silence mute notifications"},
    PaletteAction{"remind", QT_TRANSLATE_NOOP("Palette", "Resume reminders"), "bell",
                  "unmute notifications"},
    PaletteAction{"focus", QT_TRANSLATE_NOOP("Palette", "Start a focus timer"), "focus",
                  "pomodoro work concentrate"},
    PaletteAction{"stopwatch", QT_TRANSLATE_NOOP("Palette", "Start a stopwatch"), "timers",
                  "measure time"},
    PaletteAction{"music", QT_TRANSLATE_NOOP("Palette", "Play or pause the music"), "music",
                  "song track player media stop resume"},
    PaletteAction{"music-next", QT_TRANSLATE_NOOP("Palette", "Next song"), "next",
                  "skip track music player media"},
    PaletteAction{"sounds", QT_TRANSLATE_NOOP("Palette", "Play or pause the sounds"), "sounds",
                  "noise rain background mix silence"},
    PaletteAction{"note", QT_TRANSLATE_NOOP("Palette", "New note"), "notes",
                  "write add create"},
    PaletteAction{"dock", QT_TRANSLATE_NOOP("Palette", "Open the dock"), "dock",
                  "workspace side companion applications"},
    PaletteAction{"clipboard-pause", QT_TRANSLATE_NOOP("Palette", "Pause the clipboard"),
                  "clipboard", "stop recording copies private"},
    PaletteAction{"clipboard-resume", QT_TRANSLATE_NOOP("Palette", "Resume the clipboard"),
                  "clipboard", "record copies unpause"},
    PaletteAction{"forget", QT_TRANSLATE_NOOP("Palette", "Forget what I choose here"), "reset",
                  "reset learning ranking palette history"},
    PaletteAction{"quit", QT_TRANSLATE_NOOP("Palette", "Quit Velvetnook"), "x",
                  "exit close end"},
};

double unitMinutes(const QString &unit)
{
    return unit.startsWith(u'h') || unit.startsWith(u'س') ? 60 : 1;
}

} // namespace

std::span<const PaletteAction> paletteActions() { return kActions; }

const PaletteAction *paletteAction(std::string_view id)
{
    const auto *const found =
        std::ranges::find_if(kActions, [&](const auto &action) { return id == action.id; });
    return found == kActions.end() ? nullptr : found;
}

QString titleOf(const PaletteAction &action)
{
    return QCoreApplication::translate("Palette", action.title);
}

bool isPossible(const PaletteAction &action, const ApplicationModel &model)
{
    const auto &devotional = model.state().devotional;
    const std::string_view id{action.id};
    const bool isQuiet = endOfPause(model).has_value();
    if (id == "count" || id == "pause") {
        return !devotional.session.isPaused;
    }
    if (id == "continue") {
        return devotional.session.isPaused;
    }
    if (id == "undo") {
        return !devotional.session.history.empty();
    }
    if (id == "finish") {
        return devotional.session.count > 0;
    }
    if (id == "quiet-hour" || id == "quiet-day") {
        return !isQuiet && devotional.preferences.reminderEnabled;
    }
    if (id == "dock") {
        return model.companion().dock.enabled;
    }
    if (id == "sounds" || id.starts_with("music")) {
        return isToolOn(model.state(), id.substr(0, id.find('-')));
    }
    if (id == "clipboard-pause" || id == "clipboard-resume") {
        return isToolOn(model.state(), "clipboard") && model.isOn("clipboard.enabled") &&
               model.isOn("clipboard.paused") == (id == "clipboard-resume");
    }
    return id != "remind" || isQuiet;
}

std::optional<int> typedTimer(const QString &line)
{
    static const QRegularExpression kTimer{
        QStringLiteral("^\\s*(?:(timer|countdown|مؤقت)\\s+)?(\\d{1,6})\\s*"
                       "(m|min|mins|minutes?|h|hours?|دقيقة|دقائق|د|ساعة|ساعات)?\\s*"
                       "(timer|countdown)?\\s*$"),
        QRegularExpression::CaseInsensitiveOption};
    const auto match = kTimer.match(latinDigits(line));
    const QString unit = match.captured(3);
    if (!match.hasMatch() ||
        (match.captured(1).isEmpty() && unit.isEmpty() && match.captured(4).isEmpty())) {
        return std::nullopt;
    }
    const double minutes = match.captured(2).toDouble() * unitMinutes(unit.toLower());
    const bool isLength = minutes >= 1 && minutes <= KestCore::kMostTimerMinutes;
    return isLength ? std::optional{static_cast<int>(minutes)} : std::nullopt;
}

} // namespace Velvetnook
