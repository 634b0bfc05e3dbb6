// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/Palette/PaletteDeeds.h"

#include "Base/JsonWriter.h"
#include "KestCore/Devotional/Content.h"
#include "KestCore/Models/UtilityPayloads.h"
#include "KestCore/Registry/ToolRegistry.h"
#include "KestCore/Surfaces/PaletteUses.h"
#include "KestCore/Tools/Emoji.h"
#include "KestCore/Tools/Links.h"
#include "KestCore/Tools/RecentEmoji.h"
#include "KestCore/Tools/RecordOrder.h"
#include "KestCore/Tools/Units.h"
#include "Velvetnook/Application/App.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/CounterSteps.h"
#include "Velvetnook/Application/Palette/PaletteText.h"
#include "Velvetnook/Application/QtText.h"
#include "Velvetnook/Application/TimerSteps.h"
#include "Velvetnook/Application/ToolChoice.h"
#include "Velvetnook/Application/ViewModels/DockViewModel.h"
#include "Velvetnook/Application/ViewModels/MusicViewModel.h"
#include "Velvetnook/Application/ViewModels/SoundMixViewModel.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QUrl>

#include <algorithm>

namespace Velvetnook
{

namespace
{

const KestCore::LocalRecord *recordOf(const ApplicationModel &model, std::string_view id)
{
    for (const KestCore::RecordRef &record : model.records()) {
        if (record->id == id) {
            return record.get();
        }
    }
    return nullptr;
}

} // namespace

std::vector<PaletteDeed> PaletteDeeds::of(const PaletteThing &thing)
{
    const QString id = QString::fromStdString(thing.id);
    const auto *record = recordOf(m_model, thing.id);
    switch (thing.kind) {
    case PaletteKind::phrase:
    case PaletteKind::name:
        return ofPhrase(thing);
    case PaletteKind::tool:
        return ofTool(thing.id);
    case PaletteKind::moment:
        return ofTool("prayer");
    case PaletteKind::page:
        return {{.text = paletteTr(QT_TRANSLATE_NOOP("Palette", "Open")),
                 .iconName = QStringLiteral("enter"),
                 .run = [this, id] { m_app.settings()->open(id); }}};
    case PaletteKind::action:
        return {{.text = paletteTr(QT_TRANSLATE_NOOP("Palette", "Do it")),
                 .iconName = QStringLiteral("enter"),
                 .run = [this, action = thing.id] { act(action); }}};
    case PaletteKind::timer:
        return ofTimer(thing);
    case PaletteKind::emoji:
        return ofEmoji(thing.id);
    case PaletteKind::note:
        return record == nullptr ? std::vector<PaletteDeed>{} : ofNote(*record);
    case PaletteKind::link:
        return record == nullptr ? std::vector<PaletteDeed>{} : ofLink(*record);
    case PaletteKind::unit:
        break;
    }
    return {};
}

std::vector<PaletteDeed> PaletteDeeds::of(const KestCore::UnitConversion &conversion,
                                          const QString &result)
{
    return {copying(paletteTr(QT_TRANSLATE_NOOP("Palette", "Copy")), result.toStdString()),
            {.text = paletteTr(QT_TRANSLATE_NOOP("Palette", "Open Units")),
             .iconName = QStringLiteral("units"),
             .run = [this, conversion] {
                 if (auto text = Base::json::encode(conversion)) {
                     m_model.changeSetting("units.conversion", *std::move(text));
                 }
                 openTool(QStringLiteral("units"));
             }}};
}

std::vector<PaletteDeed> PaletteDeeds::ofPhrase(const PaletteThing &thing)
{
    const bool isName = thing.kind == PaletteKind::name;
    const QString id = QString::fromStdString(thing.id);
    const auto &catalogue = KestCore::contentCatalogue();
    const auto &phrases = isName ? catalogue.names : catalogue.dhikr;
    const KestCore::Phrase &phrase = KestCore::phraseById(thing.id, phrases, phrases.front());
    std::vector<PaletteDeed> deeds;
    if (!isName) {
        deeds.push_back({.text = paletteTr(QT_TRANSLATE_NOOP("Palette", "Count this phrase")),
                         .iconName = QStringLiteral("dhikr"),
                         .run = [this, id = thing.id] {
                             selectPhrase(m_model, id);
                             openTool(QStringLiteral("dhikr"));
                         }});
    }
    deeds.push_back({.text = paletteTr(QT_TRANSLATE_NOOP("Palette", "Read its meaning")),
                     .iconName = QStringLiteral("names"),
                     .run = [this, id] {
                         openTool(QStringLiteral("names"));
                         m_app.names()->open(id);
                     }});
    deeds.push_back(
        copying(paletteTr(QT_TRANSLATE_NOOP("Palette", "Copy Arabic")), phrase.arabic));
    deeds.push_back(copying(paletteTr(QT_TRANSLATE_NOOP("Palette", "Copy transliteration")),
                            phrase.transliteration));
    deeds.push_back(pinning(isName ? "names" : "dhikr", thing.id));
    if (!isName) {
        deeds.push_back(favouring(thing.id));
    }
    return deeds;
}

std::vector<PaletteDeed> PaletteDeeds::ofTool(const std::string &id)
{
    const QString name = QString::fromStdString(id);
    std::vector<PaletteDeed> deeds{{.text = paletteTr(QT_TRANSLATE_NOOP("Palette", "Open")),
                                    .iconName = QStringLiteral("enter"),
                                    .run = [this, name] { openTool(name); }}};
    if (!KestCore::ToolRegistry::knows(id)) {
        return deeds;
    }
    const bool isInHeader = isFavourite(m_model.state(), id);
    deeds.push_back(
        {.text = isInHeader ? paletteTr(QT_TRANSLATE_NOOP("Palette", "Remove from the header"))
                            : paletteTr(QT_TRANSLATE_NOOP("Palette", "Add to the header")),
         .iconName = QStringLiteral("star"),
         .run = [this, id, isInHeader] {
             m_model.changeState([id, isInHeader](KestCore::NativeState &state) {
                 return setFavourite(state, id, !isInHeader);
             });
         }});
    return deeds;
}

std::vector<PaletteDeed> PaletteDeeds::ofTimer(const PaletteThing &thing)
{
    const auto *record = recordOf(m_model, thing.id);
    const auto state = record == nullptr ? KestCore::TimerState{}
                                         : KestCore::payloadOf<KestCore::TimerState>(*record);
    PaletteDeed open{.text = paletteTr(QT_TRANSLATE_NOOP("Palette", "Open Timers")),
                     .iconName = QStringLiteral("timers"),
                     .run = [this] { openTool(QStringLiteral("timers")); }};
    const bool isRunning = isGoing(state, m_model.now());
    const char *text = state.running ? QT_TRANSLATE_NOOP("Palette", "Pause")
                                     : QT_TRANSLATE_NOOP("Palette", "Resume");
    if (KestCore::hasEnded(state, m_model.now())) {
        text = QT_TRANSLATE_NOOP("Palette", "Start again");
    }
    PaletteDeed step{.text = paletteTr(text),
                     .iconName = isRunning ? QStringLiteral("pause") : QStringLiteral("play"),
                     .run = [this, id = thing.id] { stepTimer(id); }};
    return thing.group == PaletteGroup::resume ? std::vector{std::move(open), std::move(step)}
                                               : std::vector{std::move(step), std::move(open)};
}

std::vector<PaletteDeed> PaletteDeeds::ofEmoji(const std::string &text)
{
    const auto known = KestCore::emojiOf(text);
    if (!known) {
        return {};
    }
    const std::string toned =
        KestCore::withTone(*known->emoji, KestCore::chosenTone(m_model.state().settings));
    return {{.text = paletteTr(QT_TRANSLATE_NOOP("Palette", "Copy")),
             .iconName = QStringLiteral("copy"),
             .run =
                 [this, toned] {
                     copy(QString::fromStdString(toned));
                     useEmoji(toned);
                 }},
            copying(paletteTr(QT_TRANSLATE_NOOP("Palette", "Copy its name")),
                    std::string{known->emoji->name})};
}

std::vector<PaletteDeed> PaletteDeeds::ofNote(const KestCore::LocalRecord &note)
{
    const QString id = QString::fromStdString(note.id);
    const bool isPinned = KestCore::isPinned(note);
    return {{.text = paletteTr(QT_TRANSLATE_NOOP("Palette", "Open")),
             .iconName = QStringLiteral("enter"),
             .run =
                 [this, id] {
                     openTool(QStringLiteral("notes"));
                     m_app.notes()->choose(id);
                 }},
            copying(paletteTr(QT_TRANSLATE_NOOP("Palette", "Copy text")),
                    KestCore::payloadOf<KestCore::Note>(note).text),
            {.text = isPinned ? paletteTr(QT_TRANSLATE_NOOP("Palette", "Unpin"))
                              : paletteTr(QT_TRANSLATE_NOOP("Palette", "Pin to the top")),
             .iconName = QStringLiteral("pin"),
             .run = [this, id, isPinned] { m_app.notes()->setPinned(id, !isPinned); }}};
}

std::vector<PaletteDeed> PaletteDeeds::ofLink(const KestCore::LocalRecord &link)
{
    const auto address = KestCore::payloadOf<KestCore::SavedLink>(link).url;
    return {{.text = paletteTr(QT_TRANSLATE_NOOP("Palette", "Open in the browser")),
             .iconName = QStringLiteral("out"),
             .run =
                 [this, address] {
                     const QUrl url{QString::fromStdString(address)};
                     if (!KestCore::isWebAddress(address) || !QDesktopServices::openUrl(url)) {
                         m_model.say(paletteTr(
                             QT_TRANSLATE_NOOP("Palette", "No browser could be opened.")));
                     }
                 }},
            copying(paletteTr(QT_TRANSLATE_NOOP("Palette", "Copy address")), address)};
}

void PaletteDeeds::openTool(const QString &id)
{
    m_app.panel()->openTool(id);
    emit m_app.panel()->openWanted(true);
}

void PaletteDeeds::act(std::string_view id)
{
    if (id == "count") {
        m_app.counter()->increment();
    } else if (id == "undo") {
        m_app.counter()->undo();
    } else if (id == "finish") {
        m_app.counter()->finish();
    } else if (id == "pause" || id == "continue") {
        m_app.counter()->togglePause();
    } else if (id == "quiet-hour") {
        m_app.reminders()->pauseForHours(1);
    } else if (id == "quiet-day") {
        m_app.reminders()->pauseUntilTomorrow();
    } else if (id == "remind") {
        m_app.reminders()->endPause();
    } else if (id == "clipboard-pause" || id == "clipboard-resume") {
        m_model.changeSetting("clipboard.paused", id == "clipboard-pause" ? "true" : "false");
    } else if (id == "focus") {
        startTimer("pomodoro", 0);
    } else if (id == "stopwatch") {
        startTimer("stopwatch", 0);
    } else if (id == "music") {
        m_app.music()->playPause();
    } else if (id == "music-next") {
        m_app.music()->next();
    } else if (id == "sounds") {
        m_app.sounds()->playOrPause();
    } else if (id == "note") {
        openTool(QStringLiteral("notes"));
        m_app.notes()->create();
    } else if (id == "dock") {
        emit m_app.dock()->openWanted(true);
    } else if (id == "forget") {
        m_model.removeSetting(KestCore::kPaletteUsesKey);
    } else if (id == "quit") {
        QCoreApplication::quit();
    } else {
        startTimer("countdown", fromView(id).toDouble());
    }
}

void PaletteDeeds::copy(const QString &text) { QGuiApplication::clipboard()->setText(text); }

PaletteDeed PaletteDeeds::copying(const QString &label, const std::string &text)
{
    return {.text = label, .iconName = QStringLiteral("copy"), .run = [this, text] {
                copy(QString::fromStdString(text));
            }};
}

PaletteDeed PaletteDeeds::pinning(const std::string &tool, const std::string &item)
{
    return {.text = paletteTr(QT_TRANSLATE_NOOP("Palette", "Pin to the strip")),
            .iconName = QStringLiteral("pin"),
            .run = [this, pin = KestCore::Pin{.tool = tool, .item = item}] {
                m_model.changeState([pin](KestCore::NativeState &state) -> Result<void> {
                    state.pin = pin;
                    state.devotional.preferences.pinEnabled = true;
                    if (pin.tool == "names") {
                        state.devotional.selectedNameId = pin.item;
                    }
                    return {};
                });
            }};
}

PaletteDeed PaletteDeeds::favouring(const std::string &phrase)
{
    const auto &favourites = m_model.state().devotional.favorites;
    const bool isFavourite = std::ranges::find(favourites, phrase) != favourites.end();
    return {.text = isFavourite
                        ? paletteTr(QT_TRANSLATE_NOOP("Palette", "Remove from favourites"))
                        : paletteTr(QT_TRANSLATE_NOOP("Palette", "Add to favourites")),
            .iconName = QStringLiteral("star"),
            .run = [this, phrase] { toggleFavouritePhrase(m_model, phrase); }};
}

// As long as the mode usually takes where no minutes are given.
void PaletteDeeds::startTimer(std::string_view mode, double minutes)
{
    KestCore::NewTimer wanted{
        .mode = Base::fromText<KestCore::TimerMode>(mode).value_or(KestCore::TimerMode{})};
    if (minutes > 0) {
        wanted.minutes = minutes;
    }
    Velvetnook::beginTimer(m_model, std::move(wanted));
}

void PaletteDeeds::stepTimer(const std::string &id)
{
    for (const KestCore::Timer &timer : timersIn(m_model)) {
        if (timer.record.id == id) {
            toggleTimer(m_model, timer);
        }
    }
}

void PaletteDeeds::useEmoji(const std::string &text)
{
    const auto records = m_model.recordsOfKind(KestCore::kEmojiKind);
    if (auto changes = KestCore::usingEmoji(records, text, m_model.now())) {
        m_model.changeRecords(*std::move(changes));
    }
}

} // namespace Velvetnook
