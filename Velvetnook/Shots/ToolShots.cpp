// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/Json.h"
#include "KestCore/Models/UtilityPayloads.h"
#include "KestCore/Tools/RecordOrder.h"
#include "Velvetnook/Application/App.h"
#include "Velvetnook/Shots/Shot.h"

#include <QTimer>

namespace Velvetnook
{

namespace
{

constexpr double kDayMs = 86'400'000;

Shot tool(const char *name, const char *view, std::function<void(ShotData &)> prepare = {},
          std::function<void(App &)> arrange = {})
{
    return {.name = QLatin1String{name},
            .surface = QStringLiteral("Panel"),
            .view = QLatin1String{view},
            .prepare = std::move(prepare),
            .arrange = std::move(arrange)};
}

void addRecord(ShotData &data, const char *kind, const char *title, const std::string &text,
               double daysAgo)
{
    const double now = Base::milliseconds1970(kShotTime);
    const auto place = static_cast<std::int64_t>(data.records.size());
    KestCore::LocalRecord record{.id = "shot-" + std::to_string(place),
                                 .kind = kind,
                                 .title = title,
                                 .body = Base::json::encode(KestCore::Note{text}).value_or(""),
                                 .updated = now - 60'000 - daysAgo * kDayMs,
                                 .extra = {}};
    KestCore::setPosition(record, place);
    data.records.push_back(std::move(record));
}

void fillNotes(ShotData &data)
{
    addRecord(data, "scratchpad", "Scratchpad",
              "Call the library about the hold.\nPlan A: leave after Asr, back before "
              "Maghrib.\nTea, lemons, bread flour",
              0);
    addRecord(data, "note", "Groceries", "Dates\nOlive oil\nLentils, red", 1);
    addRecord(data, "note", "Reading list", "Riyāḍ aṣ-Ṣāliḥīn", 3);
    addRecord(data, "note", "Flat: questions", "Heating, keys, deposit", 6);
    KestCore::setPinned(data.records.at(1), true);
}

void fillLongNotes(ShotData &data)
{
    std::string text;
    for (int line = 1; line <= 2000; ++line) {
        text += "Line " + std::to_string(line) + " of a note that does not want to end.\n";
    }
    addRecord(data, "note",
              "A title that is much longer than any list could ever show on its one line", text,
              0.01);
    addRecord(data, "note", "ملاحظات الدرس", "قال الشيخ: ابدأ بنفسك ثم بمن تعول.", 2);
    for (int at = 0; at < 12; ++at) {
        addRecord(data, "note", ("Note " + std::to_string(at + 1)).c_str(), "text", 8 + at);
    }
}

void rememberConversions(ShotData &data)
{
    data.state.settings["units.conversion"] =
        R"({"category":"Length","from":"km","to":"mi","text":"12"})";
    data.state.settings["units.recent"] =
        R"([{"category":"Temperature","from":"°C","to":"°F","text":"100"},)"
        R"({"category":"Data","from":"GiB","to":"MB","text":"1"},)"
        R"({"category":"Mass","from":"kg","to":"lb","text":"5"},)"
        R"({"category":"Speed","from":"kn","to":"km/h","text":"12.5"}])";
}

void openFirstNote(App &app) { app.notes()->choose(QStringLiteral("shot-0")); }

// Once the view stands: what is refused goes with the view in which it was typed.
void typeInUnits(App &app, const char *line)
{
    QTimer::singleShot(600, app.units(), [units = app.units(), line] {
        units->setText(QString::fromUtf8(line));
    });
}

} // namespace

std::vector<Shot> toolShots()
{
    return {
        tool("units", "units", rememberConversions),
        tool("units-empty", "units", {}, [](App &app) { typeInUnits(app, ""); }),
        tool("units-typed", "units", {}, [](App &app) { typeInUnits(app, "100 °C in °F"); }),
        tool("units-refused", "units", {}, [](App &app) { typeInUnits(app, "5 kg to mi"); }),
        tool("units-long", "units", rememberConversions,
             [](App &app) { typeInUnits(app, "123456789012345678901234"); }),
        tool("notes", "scratchpad", fillNotes),
        tool("notes-empty", "notes"),
        tool("notes-open", "notes", fillNotes,
             [](App &app) { app.notes()->choose(QStringLiteral("shot-1")); }),
        tool("notes-found", "notes", fillNotes,
             [](App &app) { app.notes()->setQuery(QStringLiteral("asr")); }),
        tool("notes-none-found", "notes", fillNotes,
             [](App &app) { app.notes()->setQuery(QStringLiteral("zebra")); }),
        tool("notes-new", "notes", fillNotes, [](App &app) { app.notes()->create(); }),
        tool("notes-refused", "notes", fillNotes,
             [](App &app) {
                 app.notes()->choose(QStringLiteral("shot-2"));
                 app.notes()->edit(QString{QStringLiteral("one line more\n")}.repeated(80'000));
                 app.notes()->leave();
             }),
        tool("notes-long", "notes", fillLongNotes, openFirstNote),
    };
}

} // namespace Velvetnook
