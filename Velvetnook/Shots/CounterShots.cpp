// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/App.h"
#include "Velvetnook/Shots/Shot.h"

#include <numeric>

namespace Velvetnook
{

namespace
{

using KestCore::Session;

// A session that began at 13:02.
Session counted(std::int64_t count, std::optional<std::int64_t> target)
{
    Session session{.id = "shot", .count = count, .target = target};
    if (count > 0) {
        session.startedAt = Base::milliseconds1970(kShotTime) - 240'000;
        session.history.resize(static_cast<std::size_t>(std::min<std::int64_t>(count, 100)));
        std::iota(session.history.begin(), session.history.end(),
                  count - static_cast<std::int64_t>(session.history.size()));
    }
    return session;
}

Shot shot(const QString &name, const Session &session,
          const std::function<void(ShotData &)> &more = {},
          const std::function<void(App &)> &arrange = {})
{
    return {.name = name,
            .surface = QStringLiteral("Panel"),
            .view = QStringLiteral("dhikr"),
            .prepare =
                [=](ShotData &data) {
                    data.state.devotional.session = session;
                    data.state.devotional.preferences.savedTargets = {33, 99, 100, 1'000};
                    if (more) {
                        more(data);
                    }
                },
            .arrange = arrange};
}

Session paused(Session session)
{
    session.isPaused = true;
    return session;
}

void select(ShotData &data, const char *id) { data.state.devotional.selectedDhikrId = id; }

} // namespace

std::vector<Shot> counterShots()
{
    const Session usual = counted(21, 33);
    return {
        shot(QStringLiteral("counter"), usual),
        shot(QStringLiteral("counter-fresh"), counted(0, 33)),
        shot(QStringLiteral("counter-reached"), counted(33, 33)),
        shot(QStringLiteral("counter-beyond"), counted(41, 33)),
        shot(QStringLiteral("counter-paused"), paused(usual)),
        shot(QStringLiteral("counter-open"), counted(147, {})),
        shot(QStringLiteral("counter-hundred"), counted(64, 100)),
        shot(QStringLiteral("counter-thousand"), counted(612, 1'000)),
        shot(QStringLiteral("counter-most"), counted(1'234'567, 1'000'000)),
        shot(QStringLiteral("counter-phrase"), usual,
             [](ShotData &data) { select(data, "the-four-phrases"); }),
        shot(QStringLiteral("counter-longest"), usual,
             [](ShotData &data) { select(data, "sayyid-al-istighfar"); }),
        shot(QStringLiteral("counter-large"), usual,
             [](ShotData &data) { data.state.devotional.preferences.textSize = "large"; }),
        shot(QStringLiteral("counter-plain"), usual,
             [](ShotData &data) {
                 data.state.devotional.preferences.showTransliteration = false;
                 data.state.devotional.preferences.showTranslation = false;
             }),
        shot(QStringLiteral("counter-targets"), counted(21, 7'000),
             [](ShotData &data) {
                 data.state.devotional.preferences.savedTargets = {33,  99,  100,   1'000,
                                                                   500, 313, 7'000, 70};
             }),
        shot(QStringLiteral("counter-reset"), usual, {},
             [](App &app) { app.counter()->setAskingReset(true); }),
        shot(QStringLiteral("counter-entry"), usual, {},
             [](App &app) { app.counter()->setEnteringTarget(true); }),
        shot(QStringLiteral("counter-refused"), usual, {},
             [](App &app) {
                 app.counter()->setEnteringTarget(true);
                 app.counter()->enterTarget(QStringLiteral("0"));
             }),
    };
}

} // namespace Velvetnook
