// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/Palette/PaletteText.h"

#include "KestCore/Devotional/Content.h"
#include "KestCore/Models/UtilityPayloads.h"
#include "KestCore/Registry/ToolRegistry.h"
#include "KestCore/Surfaces/PaletteIndex.h"
#include "KestCore/Tools/Emoji.h"
#include "KestCore/Tools/Links.h"
#include "KestCore/Tools/Notes.h"
#include "KestCore/Tools/Texts.h"
#include "KestCore/Tools/TimerList.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/CounterSteps.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/Palette/PaletteActions.h"
#include "Velvetnook/Application/PrayerWatch.h"
#include "Velvetnook/Application/QtText.h"
#include "Velvetnook/Application/SettingsPages.h"
#include "Velvetnook/Application/ToolTitles.h"

#include <QCoreApplication>

#include <algorithm>

namespace Velvetnook
{

namespace
{

// The title as markup, with what answers to the query between <m> and </m>.
QString marked(const QString &title, const QString &query)
{
    const std::string text = title.toStdString();
    const std::string_view view{text};
    QString result;
    std::size_t at = 0;
    for (const auto &[begin, size] : KestCore::matchedSpans(text, query.toStdString())) {
        result += fromView(view.substr(at, begin - at)).toHtmlEscaped();
        result += QStringLiteral("<m>") + fromView(view.substr(begin, size)).toHtmlEscaped() +
                  QStringLiteral("</m>");
        at = begin + size;
    }
    return result + fromView(view.substr(at)).toHtmlEscaped();
}

// The first line with something on it that is not the title again.
QString excerptOf(const KestCore::LocalRecord &note)
{
    const auto text = KestCore::payloadOf<KestCore::Note>(note).text;
    for (const auto &line : fromView(text).split(u'\n')) {
        const QString trimmed = line.trimmed();
        if (!trimmed.isEmpty() && trimmed != QString::fromStdString(note.title)) {
            return trimmed;
        }
    }
    return {};
}

QString timerIcon(const std::string &mode)
{
    if (mode == "pomodoro") {
        return QStringLiteral("focus");
    }
    return mode == "hydration" ? QStringLiteral("drop") : QStringLiteral("timers");
}

} // namespace

QString paletteTr(const char *text) { return QCoreApplication::translate("Palette", text); }

QString timerStepTitle(const KestCore::Timer &timer, const Formatting &formatting,
                       Base::Instant now)
{
    const char *step = timer.state.running ? QT_TRANSLATE_NOOP("Palette", "Pause %1")
                                           : QT_TRANSLATE_NOOP("Palette", "Resume %1");
    if (KestCore::hasEnded(timer.state, now)) {
        step = QT_TRANSLATE_NOOP("Palette", "Start %1 again");
    }
    return paletteTr(step).arg(timerTitle(timer, formatting));
}

QString headOf(PaletteGroup group)
{
    switch (group) {
    case PaletteGroup::resume:
        return paletteTr(QT_TRANSLATE_NOOP("Palette", "Continue"));
    case PaletteGroup::open:
        return paletteTr(QT_TRANSLATE_NOOP("Palette", "Open"));
    case PaletteGroup::phrases:
        return paletteTr(QT_TRANSLATE_NOOP("Palette", "Phrases"));
    case PaletteGroup::names:
        return paletteTr(QT_TRANSLATE_NOOP("Palette", "Names"));
    case PaletteGroup::tools:
        return paletteTr(QT_TRANSLATE_NOOP("Palette", "Tools"));
    case PaletteGroup::units:
        return paletteTr(QT_TRANSLATE_NOOP("Palette", "Units"));
    case PaletteGroup::emoji:
        return paletteTr(QT_TRANSLATE_NOOP("Palette", "Emoji"));
    case PaletteGroup::notes:
        return paletteTr(QT_TRANSLATE_NOOP("Palette", "Notes"));
    case PaletteGroup::links:
        return paletteTr(QT_TRANSLATE_NOOP("Palette", "Bookmarks"));
    case PaletteGroup::settings:
        return paletteTr(QT_TRANSLATE_NOOP("Palette", "Settings"));
    }
    return {};
}

PaletteRow PaletteText::rowOf(const PaletteThing &thing, const QString &query) const
{
    PaletteRow row = worded(thing);
    row.spoken = row.isArabic ? row.arabic : row.title;
    row.title = marked(row.title, query);
    return row;
}

PaletteRow PaletteText::worded(const PaletteThing &thing) const
{
    switch (thing.kind) {
    case PaletteKind::phrase:
        return thing.group == PaletteGroup::resume ? sessionRow(thing) : phraseRow(thing);
    case PaletteKind::name:
        return phraseRow(thing);
    case PaletteKind::tool:
        return toolRow(thing);
    case PaletteKind::page:
    case PaletteKind::action:
        return actionRow(thing);
    case PaletteKind::timer:
        return timerRow(thing);
    case PaletteKind::moment:
        return momentRow(thing);
    case PaletteKind::emoji:
        return emojiRow(thing);
    case PaletteKind::note:
    case PaletteKind::link:
        return recordRow(thing);
    case PaletteKind::unit:
        break; // worded where it is worked out
    }
    return {};
}

PaletteRow PaletteText::phraseRow(const PaletteThing &thing) const
{
    const auto &catalogue = KestCore::contentCatalogue();
    const bool isName = thing.kind == PaletteKind::name;
    const auto &phrases = isName ? catalogue.names : catalogue.dhikr;
    const KestCore::Phrase &phrase = KestCore::phraseById(thing.id, phrases, phrases.front());
    PaletteRow row{.iconName = isName ? QStringLiteral("names") : QStringLiteral("dhikr")};
    if (m_formatting.isRightToLeft()) {
        row.isArabic = true;
    } else {
        row.note = QString::fromStdString(phrase.translation.value_or(""));
    }
    row.title = phraseTitle(phrase);
    row.arabic = QString::fromStdString(phrase.arabic);
    return row;
}

PaletteRow PaletteText::sessionRow(const PaletteThing &thing) const
{
    PaletteRow row = phraseRow(thing);
    const auto &session = m_model.state().devotional.session;
    row.note = session.target ? paletteTr(QT_TRANSLATE_NOOP("Palette", "%1 of %2"))
                                    .arg(m_formatting.number(session.count),
                                         m_formatting.number(*session.target))
                              : m_formatting.number(session.count);
    return row;
}

PaletteRow PaletteText::toolRow(const PaletteThing &thing) const
{
    const QString id = QString::fromStdString(thing.id);
    PaletteRow row{.title = toolTitle(id), .iconName = id};
    if (thing.id == "history") {
        row.title = paletteTr(QT_TRANSLATE_NOOP("Palette", "History"));
    }
    if (thing.id == "prayer") {
        row.note = nextPrayer();
    }
    return row;
}

PaletteRow PaletteText::actionRow(const PaletteThing &thing) const
{
    if (thing.kind == PaletteKind::page) {
        for (const PageOfSettings &page : pagesOfSettings()) {
            if (thing.id == page.id) {
                return {.title = titleOf(page),
                        .note = toolTitle(QStringLiteral("settings")),
                        .iconName = QLatin1String{page.icon}};
            }
        }
        return {};
    }
    if (const PaletteAction *action = paletteAction(thing.id)) {
        return {.title = titleOf(*action), .iconName = QLatin1String{action->iconName}};
    }
    // What is left is a timer of so many minutes.
    const int minutes = QString::fromStdString(thing.id).toInt();
    return {.title = m_formatting.digits(QCoreApplication::translate(
                "Palette", "Start a timer of %n minute(s)", nullptr, minutes)),
            .note = toolTitle(QStringLiteral("timers")),
            .iconName = QStringLiteral("timers")};
}

PaletteRow PaletteText::timerRow(const PaletteThing &thing) const
{
    const auto *found = record(thing.id);
    const auto timers = found == nullptr ? Base::Result<std::vector<KestCore::Timer>>{}
                                         : KestCore::timersOf(std::span{found, 1});
    if (!timers || timers->empty()) {
        return {};
    }
    const KestCore::Timer &timer = timers->front();
    const QString time = m_formatting.duration(KestCore::remaining(timer.state, m_model.now()));
    PaletteRow row{.title = timerTitle(timer, m_formatting),
                   .iconName = timerIcon(timer.state.mode)};
    if (thing.group == PaletteGroup::resume) {
        row.note = KestCore::countsDown(timer.state)
                       ? paletteTr(QT_TRANSLATE_NOOP("Palette", "%1 left")).arg(time)
                       : time;
        return row;
    }
    row.title = timerStepTitle(timer, m_formatting, m_model.now());
    if (KestCore::hasEnded(timer.state, m_model.now())) {
        row.note = paletteTr(QT_TRANSLATE_NOOP("Palette", "Timers · finished"));
        return row;
    }
    const char *note = timer.state.running
                           ? QT_TRANSLATE_NOOP("Palette", "Timers · %1")
                           : QT_TRANSLATE_NOOP("Palette", "Timers · paused at %1");
    row.note = paletteTr(note).arg(time);
    return row;
}

PaletteRow PaletteText::momentRow(const PaletteThing &thing) const
{
    for (const PaletteMoment &moment : momentsOfToday(m_model)) {
        if (moment.id == thing.id) {
            const auto inputs = KestCore::prayerInputs(m_model.state().settings);
            return {.title = moment.title,
                    .note = paletteTr(QT_TRANSLATE_NOOP("Palette", "Prayer · %1"))
                                .arg(inputs ? m_formatting.timeIn(inputs->calendar, moment.at)
                                            : QString{}),
                    .iconName = QStringLiteral("prayer")};
        }
    }
    return {};
}

PaletteRow PaletteText::emojiRow(const PaletteThing &thing) const
{
    const auto known = KestCore::emojiOf(thing.id);
    if (!known) {
        return {};
    }
    const auto name =
        m_formatting.isRightToLeft() ? known->emoji->arabicName : known->emoji->name;
    return {.title = fromView(name),
            .emoji = QString::fromStdString(KestCore::withTone(
                *known->emoji, KestCore::chosenTone(m_model.state().settings)))};
}

PaletteRow PaletteText::recordRow(const PaletteThing &thing) const
{
    const auto *found = record(thing.id);
    if (found == nullptr) {
        return {};
    }
    PaletteRow row{.title = QString::fromStdString(found->title)};
    if (thing.kind == PaletteKind::note) {
        row.iconName = QStringLiteral("notes");
        row.note = excerptOf(*found);
        row.trailing = day(found->updated);
    } else {
        row.iconName = QStringLiteral("links");
        row.note =
            fromView(KestCore::hostOf(KestCore::payloadOf<KestCore::SavedLink>(*found).url));
    }
    return row;
}

const KestCore::LocalRecord *PaletteText::record(std::string_view id) const
{
    for (const KestCore::RecordRef &each : m_model.records()) {
        if (each->id == id) {
            return each.get();
        }
    }
    return nullptr;
}

} // namespace Velvetnook
