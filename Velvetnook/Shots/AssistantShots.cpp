// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/App.h"
#include "Velvetnook/Application/ViewModels/AssistantsViewModel.h"
#include "Velvetnook/Shots/Shot.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <fmt/format.h>

namespace Velvetnook
{

namespace
{

// A home that holds nothing but what is written here.
QDir freshHome()
{
    static const QTemporaryDir folder;
    QDir home{folder.path()};
    home.removeRecursively();
    home.mkpath(QStringLiteral("."));
    qputenv("HOME", folder.path().toLocal8Bit());
    return home;
}

void write(const QDir &home, const QString &name, const std::string &text)
{
    QFile file{home.filePath(name)};
    home.mkpath(QFileInfo{file}.path());
    if (file.open(QIODevice::WriteOnly)) {
        file.write(QByteArray::fromStdString(text));
    }
}

std::string answer(int number, const char *time, const char *stop, int output)
{
    return fmt::format(
        R"({{"cwd":"/home/u/prayer-core","sessionId":"s-1","message":{{"id":"{}","role":)"
        R"("assistant","model":"model-a","stop_reason":"{}","usage":{{"input_tokens":{},)"
        R"("cache_creation_input_tokens":9000,"cache_read_input_tokens":60000,)"
        R"("output_tokens":{}}}}},"type":"assistant","timestamp":"2025-11-14T{}Z"}})"
        "\n",
        number, stop, 10 * output, output, time);
}

void fill(const QDir &home)
{
    std::string log;
    for (int at = 0; at < 16; ++at) {
        log += answer(at, fmt::format("12:{:02}:00", 10 + 3 * at).c_str(), "tool_use", 1500);
    }
    write(home, QStringLiteral(".claude/projects/-home-u-prayer-core/one.jsonl"),
          log + answer(90, "13:02:00", "tool_use", 2400));
    write(home, QStringLiteral(".codex/sessions/2025/11/14/rollout-1.jsonl"),
          R"({"timestamp":"2025-11-14T11:18:00Z","type":"session_meta","payload":{"id":"c-1",)"
          R"("cwd":"/srv/garden"}})"
          "\n"
          R"({"timestamp":"2025-11-14T11:20:00Z","type":"event_msg","payload":{"type":)"
          R"("token_count","info":{"total_token_usage":{"input_tokens":500,)"
          R"("cached_input_tokens":100,"output_tokens":7}},"rate_limits":{"primary":)"
          R"({"used_percent":88,"window_minutes":300,"resets_at":1763136000},"secondary":)"
          R"({"used_percent":34,"window_minutes":10080,"resets_at":1763370000}}}})"
          "\n");
    write(home, QStringLiteral(".claude/settings.json"),
          "{\n  \"model\": \"model-a\",\n  \"hooks\": {\n    \"Stop\": [\n      {\n"
          "        \"hooks\": [\n          { \"type\": \"command\", \"command\": "
          "\"notify-send done\" }\n        ]\n      }\n    ]\n  }\n}\n");
    home.mkpath(QStringLiteral(".cursor"));
}

void hear(App &app, const char *tool, const char *folder, KestCore::AssistantState state)
{
    app.assistants()->take(
        {.tool = tool, .session = std::string{tool} + "-1", .state = state, .folder = folder});
}

Shot shot(const char *name, std::function<void(ShotData &)> prepare,
          std::function<void(App &)> arrange)
{
    return {.name = QStringLiteral("assistants%1").arg(QLatin1String{name}),
            .surface = QStringLiteral("Panel"),
            .view = QStringLiteral("claude"),
            .prepare = std::move(prepare),
            .arrange = std::move(arrange)};
}

void turnOn(ShotData &data)
{
    data.state.enabled.emplace_back("claude");
    data.state.navigationFavorites.emplace_back("claude");
}

void prepareLogs(ShotData &data)
{
    turnOn(data);
    fill(freshHome());
}

void prepareNothing(ShotData &data)
{
    turnOn(data);
    freshHome();
}

void enter(App &app)
{
    hear(app, "cursor", "dashboard", KestCore::AssistantState::waiting);
    app.assistants()->enter();
}

// Where the file cannot be understood.
void prepareDamage(ShotData &data)
{
    turnOn(data);
    const QDir home = freshHome();
    write(home, QStringLiteral(".claude/settings.json"), "{ \"hooks\": [ }\n");
}

} // namespace

std::vector<Shot> assistantShots()
{
    std::vector<Shot> shots{
        shot("", prepareLogs, enter),
        shot("-loading", prepareLogs, {}),
        shot("-none", prepareNothing, [](App &app) { app.assistants()->enter(); }),
        shot("-connections", prepareLogs,
             [](App &app) {
                 enter(app);
                 app.assistants()->connections()->open();
             }),
        shot("-change", prepareLogs,
             [](App &app) {
                 enter(app);
                 app.assistants()->connections()->open();
                 app.assistants()->connections()->plan(QStringLiteral("claude-code"), true);
             }),
        shot("-damaged", prepareDamage,
             [](App &app) {
                 app.assistants()->enter();
                 app.assistants()->connections()->open();
                 app.assistants()->connections()->plan(QStringLiteral("claude-code"), true);
             }),
    };
    shots.push_back({.name = QStringLiteral("assistants-strip"),
                     .surface = QStringLiteral("Strip"),
                     .prepare = prepareNothing,
                     .arrange = [](App &app) {
                         hear(app, "cursor", "dashboard", KestCore::AssistantState::waiting);
                     }});
    return shots;
}

} // namespace Velvetnook
