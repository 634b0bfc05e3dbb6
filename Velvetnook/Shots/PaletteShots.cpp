// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/JsonWriter.h"
#include "KestCore/Models/UtilityPayloads.h"
#include "KestCore/Tools/Notes.h"
#include "KestCore/Tools/TimerList.h"
#include "Velvetnook/Application/App.h"
#include "Velvetnook/Shots/Shot.h"

namespace Velvetnook
{

namespace
{

void addTimer(ShotData &data, KestCore::TimerMode mode, double minutes, double passed,
              bool isRunning)
{
    const Base::Instant begun = kShotTime - Base::Seconds{passed};
    auto timer =
        KestCore::makeTimer({.mode = mode,
                             .minutes = minutes > 0 ? std::optional{minutes} : std::nullopt,
                             .title = {}},
                            {}, data.state.settings, begun);
    if (!timer) {
        return;
    }
    if (!isRunning) {
        KestCore::pauseTimer(timer->state, kShotTime);
    }
    if (auto saved = KestCore::savedTimer(*timer, kShotTime)) {
        saved->id = "timer-" + std::to_string(data.records.size());
        data.records.push_back(*std::move(saved));
    }
}

void addNote(ShotData &data, const char *title, const char *text, double daysAgo)
{
    auto note = KestCore::makeNote({.title = title, .text = text});
    if (note) {
        note->id = "note-" + std::to_string(data.records.size());
        note->kind = KestCore::kNoteKind;
        note->updated = Base::milliseconds1970(kShotTime - Base::Seconds{daysAgo * 86'400});
        data.records.push_back(*std::move(note));
    }
}

void prepare(ShotData &data)
{
    auto &devotional = data.state.devotional;
    devotional.selectedDhikrId = "subhanallah";
    devotional.session.count = 21;
    devotional.session.target = 33;
    for (std::int64_t count = 0; count < 21; ++count) {
        devotional.session.history.push_back(count);
    }
    devotional.session.startedAt = Base::milliseconds1970(kShotTime - Base::Seconds{300});
    addTimer(data, KestCore::TimerMode::pomodoro, 25, 628, true);
    addTimer(data, KestCore::TimerMode::stopwatch, 0, 188, false);
    addNote(data, "Groceries for Sunday", "Groceries for Sunday\nTea, lemons, bread flour", 1);
    addNote(data, "A note whose title is so long that it has to end somewhere in the middle",
            "and a text that is as long as it, so that one of the two must give way to it", 40);
}

std::function<void(App &)> typing(const QString &line, int actionsOf = -1)
{
    return [line, actionsOf](App &app) {
        app.palette()->begin();
        app.palette()->setQuery(line);
        if (actionsOf >= 0) {
            app.palette()->setCurrent(actionsOf);
            app.palette()->showActions();
        }
    };
}

Shot shot(const char *name, const QString &line, int actionsOf = -1)
{
    return {.name = QLatin1String{name},
            .surface = QStringLiteral("Palette"),
            .view = {},
            .prepare = prepare,
            .arrange = typing(line, actionsOf)};
}

} // namespace

std::vector<Shot> paletteShots()
{
    std::vector<Shot> shots{
        shot("palette-empty", {}),
        shot("palette-found", QStringLiteral("su")),
        shot("palette-units", QStringLiteral("12 km in mi")),
        shot("palette-nothing", QStringLiteral("zqx")),
        shot("palette-arabic", QStringLiteral("سبح")),
        shot("palette-many", QStringLiteral("a")),
        shot("palette-timer", QStringLiteral("timer 10")),
        shot("palette-settings", QStringLiteral("theme")),
        shot("palette-longest", QStringLiteral("allahumma anta rabbi")),
        shot("palette-long", QStringLiteral("a note whose title")),
        shot("palette-actions", QStringLiteral("subhan"), 0),
    };
    shots.push_back({.name = QStringLiteral("palette-fresh"),
                     .surface = QStringLiteral("Palette"),
                     .view = {},
                     .prepare = {},
                     .arrange = typing({})});
    return shots;
}

} // namespace Velvetnook
