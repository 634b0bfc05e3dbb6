// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Store/StateStore.h"
#include "Velvetnook/Application/App.h"
#include "Velvetnook/Application/ViewModels/Settings/UpdateSettings.h"
#include "Velvetnook/Shots/Shot.h"

#include <QStandardItemModel>
#include <QTemporaryFile>

namespace Velvetnook
{

namespace
{

Shot page(const char *name, const char *view, std::function<void(ShotData &)> prepare = {},
          std::function<void(App &)> arrange = {})
{
    return {.name = QStringLiteral("settings-%1").arg(QLatin1String{name}),
            .surface = QStringLiteral("Settings"),
            .view = QLatin1String{view},
            .prepare = std::move(prepare),
            .arrange = std::move(arrange)};
}

Shot step(const char *name, int number, std::function<void(ShotData &)> prepare = {},
          std::function<void(App &)> arrange = {})
{
    return {.name = QStringLiteral("onboarding-%1").arg(QLatin1String{name}),
            .surface = QStringLiteral("Onboarding"),
            .view = {},
            .prepare =
                [prepare = std::move(prepare)](ShotData &data) {
                    data.state.devotional.onboardingComplete = false;
                    if (prepare) {
                        prepare(data);
                    }
                },
            .arrange =
                [number, arrange = std::move(arrange)](App &app) {
                    for (int done = 0; done < number; ++done) {
                        app.onboarding()->next();
                    }
                    if (arrange) {
                        arrange(app);
                    }
                }};
}

void forgetPlace(ShotData &data)
{
    for (const char *key : {"prayer.latitude", "prayer.longitude", "prayer.timezone",
                            "prayer.city", "prayer.country"}) {
        data.state.settings.erase(key);
    }
}

void remindUntilFive(ShotData &data)
{
    auto &preferences = data.state.devotional.preferences;
    preferences.reminderEnabled = true;
    preferences.activeHoursEnd = "17:00";
    preferences.weekdays = {1, 2, 3, 4, 5};
}

void keepAway(ShotData &data)
{
    data.state.settings["notch.exclusions"] = "vlc,mpv,Impress";
    data.state.settings["notch.pausedUntil"] = "1763130000000";
}

// What a desktop without a layer for panels would give.
void offerCapabilities(App &app)
{
    auto *list = new QStandardItemModel{&app};
    list->setItemRoleNames({{Qt::UserRole + 1, "name"},
                            {Qt::UserRole + 2, "level"},
                            {Qt::UserRole + 3, "levelText"},
                            {Qt::UserRole + 4, "reason"},
                            {Qt::UserRole + 5, "wayOut"}});
    const QStringList rows[]{
        {"Panel at the screen’s edge", "full", "Full", "The X server keeps it above.", ""},
        {"Key that works everywhere", "degraded", "Limited",
         "The session takes keys only from its own settings.",
         "Bind “kest palette toggle” in the desktop’s shortcut settings."},
        {"Tray icon", "off", "Off", "Nothing here shows tray icons.", ""}};
    for (const QStringList &row : rows) {
        auto *item = new QStandardItem;
        for (int column = 0; column < row.size(); ++column) {
            item->setData(row.at(column), Qt::UserRole + 1 + column);
        }
        list->appendRow(item);
    }
    app.settings()->about()->setCapabilities(list);
}

// A file that is a backup in its name only.
void openBrokenBackup(App &app)
{
    auto *file = new QTemporaryFile{&app};
    if (file->open() && file->write("{}") > 0 && file->flush()) {
        app.settings()->data()->openBackup(QUrl::fromLocalFile(file->fileName()));
    }
}

void addShortcuts(ShotData &data)
{
    data.companion.shortcuts.push_back({.id = "notes",
                                        .target = "notes",
                                        .keyCode = 45,
                                        .modifiers = {KestCore::ShortcutModifier::control,
                                                      KestCore::ShortcutModifier::option}});
}

// Of the palette, over which the notes' key is pressed.
void recordTakenKey(App &app)
{
    ShortcutSettings *const page = app.settings()->shortcuts();
    page->setState("notes", {.level = HotkeyState::Level::full, .reason = {}});
    page->record(QStringLiteral("command"));
    page->press(Qt::Key_N,
                static_cast<int>(Qt::ControlModifier) | static_cast<int>(Qt::AltModifier), 57);
}

// A feed that was signed once, with a key that signs nothing else.
constexpr auto kFeedKey = "3OvEsbcOi1LFZMu+BVsnLdPtlSCZHV0jmsWb4lmnG8w=";
constexpr auto kFeed =
    "NKlvekqgf0/5Lkidb0gSsimCeKAiK7XSJvqBofcGipgS3WYS0BG3sTVzPYIM"
    "JVDer9R1xT+GJ/YWgXVcRwjkAg==\n"
    R"({"version":"0.2.0","channel":"stable","notes":"A weather tool, and a)"
    R"( dock that keeps to its edge.\n)"
    R"(The counter starts in half the time.",)"
    R"("address":"https://example.org/velvetnook_0.2.0_amd64.deb","size":11,)"
    R"("sha256":"c67c199595622dfbdc9e415c4a0ad6166eb49cbf74c6aac7bb)"
    R"(3e958604d5ecb8","published":"2025-11-13T09:00:00Z"})"
    "\n";

void knowUpdate(ShotData &data)
{
    data.state.settings["update.allowed"] = "true";
    data.state.settings["update.checkedAt"] = "2025-11-14T09:12:00Z";
    data.state.settings["update.feed"] = kFeed;
}

void offerUpdate(App &app)
{
    auto *const updates = app.settings()->about()->updates();
    updates->setSource({.build = {.version = "0.1.0",
                                  .channel = KestCore::UpdateChannel::stable,
                                  .publicKey = kFeedKey,
                                  .address = "https://example.org"},
                        .openTransport = {}});
}

std::vector<Shot> pageShots()
{
    return {
        page("general", "general"),
        page("general-refused", "general", {},
             [](App &app) {
                 app.settings()->general()->setLaunchRefusal(
                     QStringLiteral("~/.config/autostart: Permission denied"));
             }),
        page("appearance", "appearance"),
        page("appearance-iris", "appearance",
             [](ShotData &data) {
                 data.state.settings["appearance.accent"] = "iris";
                 data.state.devotional.preferences.textSize = "large";
                 data.state.devotional.preferences.showTranslation = false;
             }),
        page("notch", "notch"),
        page("notch-away", "notch", keepAway,
             [](App &app) { app.settings()->notch()->addExclusion(QStringLiteral("a,b")); }),
        page("shortcuts", "shortcuts", addShortcuts),
        page("shortcuts-recording", "shortcuts", addShortcuts, recordTakenKey),

        page("reminders", "reminders", remindUntilFive),
        page("prayer", "prayer"),
        page("prayer-search", "prayer", {},
             [](App &app) { app.settings()->place()->search(QStringLiteral("cair")); }),
        page("prayer-refused", "prayer", forgetPlace,
             [](App &app) {
                 app.settings()->place()->setField(QStringLiteral("latitude"),
                                                   QStringLiteral("95"));
                 app.settings()->place()->setField(QStringLiteral("timezone"),
                                                   QStringLiteral("Europe/Londn"));
             }),
        page("tools", "tools"),
        page("data", "data"),
        page("data-reset", "data", {},
             [](App &app) { app.settings()->data()->ask(QStringLiteral("reset")); }),
        page("data-refused", "data", {}, openBrokenBackup),
        page("about", "about", {}, offerCapabilities),
        page("about-update", "about", knowUpdate, offerUpdate),
        page("about-allowed", "about", {}, offerUpdate),
        page("search", "notch", {},
             [](App &app) { app.settings()->setQuery(QStringLiteral("pa")); }),
    };
}

std::vector<Shot> stepShots()
{
    return {
        step("welcome", 0),
        step("phrase", 1),
        step("place", 2),
        step("place-search", 2, forgetPlace,
             [](App &app) { app.settings()->place()->search(QStringLiteral("lon")); }),
        step("place-none", 2, forgetPlace),
        step("reminders", 3, remindUntilFive),
        step("done", 4),
    };
}

} // namespace

std::vector<Shot> settingsShots()
{
    std::vector<Shot> shots = stepShots();
    for (Shot &shot : pageShots()) {
        shots.push_back(std::move(shot));
    }
    return shots;
}

} // namespace Velvetnook
