// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/Palette/PaletteCatalogue.h"

#include "KestCore/Devotional/Content.h"
#include "KestCore/Models/UtilityPayloads.h"
#include "KestCore/Registry/ToolRegistry.h"
#include "KestCore/Surfaces/PaletteUses.h"
#include "KestCore/Tools/Emoji.h"
#include "KestCore/Tools/Links.h"
#include "KestCore/Tools/Notes.h"
#include "KestCore/Tools/Texts.h"
#include "KestCore/Tools/TimerList.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/Palette/PaletteActions.h"
#include "Velvetnook/Application/Palette/PaletteText.h"
#include "Velvetnook/Application/QtText.h"
#include "Velvetnook/Application/SettingsPages.h"
#include "Velvetnook/Application/ToolChoice.h"
#include "Velvetnook/Application/ToolTitles.h"

#include <algorithm>
#include <unordered_map>

namespace Velvetnook
{

namespace
{

constexpr std::size_t kSearchedText = 400; // characters of a note

bool isListed(const KestCore::LocalRecord &record)
{
    return record.kind == KestCore::kNoteKind || record.kind == KestCore::kLinkKind;
}

// People leave out spaces and hyphens.
std::string joined(std::string_view text)
{
    std::string form = KestCore::paletteForm(text);
    std::erase(form, ' ');
    return form;
}

std::string keywordsOf(const KestCore::Emoji &emoji)
{
    std::string words{emoji.words};
    words.append("|").append(emoji.arabicWords);
    return words;
}

} // namespace

void PaletteCatalogue::refresh()
{
    if (m_language != m_formatting.language() || m_enabled != m_model.state().enabled) {
        m_language = m_formatting.language();
        m_enabled = m_model.state().enabled;
        truncate(0);
        addFixed();
        m_fixed = m_things.size();
        m_withRecords = 0;
    }
    if (m_withRecords == 0 || haveRecordsChanged()) {
        truncate(m_fixed);
        addRecords();
        m_withRecords = m_things.size();
    }
    truncate(m_withRecords);
    addActions();
    addMoments();
    addTimers();
    weigh();
}

std::vector<PaletteFound> PaletteCatalogue::search(const QString &query)
{
    std::vector<PaletteFound> found;
    for (const auto &match : m_index.search(query.toStdString())) {
        found.push_back({.thing = m_things[match.item],
                         .fit = match.fit,
                         .isHabit = !m_habits.empty() && m_habits[match.item]});
    }
    return found;
}

void PaletteCatalogue::add(PaletteThing thing, const QString &title,
                           std::vector<std::string> names, std::string_view keywords)
{
    m_index.add({.title = title.toStdString(), .names = names, .keywords = keywords});
    m_things.push_back(std::move(thing));
}

void PaletteCatalogue::truncate(std::size_t first)
{
    m_index.truncate(static_cast<std::uint32_t>(first));
    m_things.resize(std::min(first, m_things.size()));
}

void PaletteCatalogue::addFixed()
{
    addTools();
    addPages();
    addPhrases();
    addEmoji();
}

void PaletteCatalogue::addTools()
{
    for (const auto &tool : KestCore::ToolRegistry::tools()) {
        if (hasView(tool.id) && isToolOn(m_model.state(), tool.id)) {
            add({.kind = PaletteKind::tool, .group = PaletteGroup::tools, .id = tool.id},
                toolTitle(QString::fromStdString(tool.id)), {tool.title}, tool.summary);
        }
    }
    if (isToolOn(m_model.state(), "history")) {
        add({.kind = PaletteKind::tool, .group = PaletteGroup::tools, .id = "history"},
            paletteTr("History"), {"History"}, "sessions finished counts");
    }
}

void PaletteCatalogue::addPages()
{
    for (const PageOfSettings &page : pagesOfSettings()) {
        add({.kind = PaletteKind::page, .group = PaletteGroup::settings, .id = page.id},
            titleOf(page), {page.title}, std::string{"settings preferences "} + page.words);
    }
}

void PaletteCatalogue::addPhrases()
{
    const auto &catalogue = KestCore::contentCatalogue();
    const auto addAll = [this](const std::vector<KestCore::Phrase> &phrases, PaletteKind kind,
                               PaletteGroup group) {
        for (const KestCore::Phrase &phrase : phrases) {
            add({.kind = kind, .group = group, .id = phrase.id},
                QString::fromStdString(phrase.transliteration),
                {phrase.arabic, joined(phrase.transliteration), joined(phrase.arabic)},
                phrase.translation.value_or(""));
        }
    };
    addAll(catalogue.dhikr, PaletteKind::phrase, PaletteGroup::phrases);
    addAll(catalogue.names, PaletteKind::name, PaletteGroup::names);
}

void PaletteCatalogue::addEmoji()
{
    for (const KestCore::Emoji &emoji : KestCore::allEmoji()) {
        const std::string words = keywordsOf(emoji);
        add({.kind = PaletteKind::emoji,
             .group = PaletteGroup::emoji,
             .id = std::string{emoji.text}},
            fromView(emoji.name), {std::string{emoji.arabicName}}, words);
    }
}

bool PaletteCatalogue::haveRecordsChanged() const
{
    auto known = m_records.begin();
    for (const KestCore::RecordRef &record : m_model.records()) {
        if (isListed(*record) && (known == m_records.end() || *known++ != record)) {
            return true;
        }
    }
    return known != m_records.end();
}

void PaletteCatalogue::addRecords()
{
    m_records.clear();
    for (const KestCore::RecordRef &record : m_model.records()) {
        if (!isListed(*record)) {
            continue;
        }
        m_records.push_back(record);
        const QString title = QString::fromStdString(record->title);
        if (record->kind == KestCore::kNoteKind) {
            const auto note = KestCore::payloadOf<KestCore::Note>(*record);
            add({.kind = PaletteKind::note, .group = PaletteGroup::notes, .id = record->id},
                title, {}, KestCore::shortened(note.text, kSearchedText));
        } else {
            const auto link = KestCore::payloadOf<KestCore::SavedLink>(*record);
            add({.kind = PaletteKind::link, .group = PaletteGroup::links, .id = record->id},
                title, {std::string{KestCore::hostOf(link.url)}}, link.note.value_or(""));
        }
    }
}

void PaletteCatalogue::addActions()
{
    for (const PaletteAction &action : paletteActions()) {
        if (isPossible(action, m_model)) {
            add({.kind = PaletteKind::action, .group = PaletteGroup::tools, .id = action.id},
                titleOf(action), {action.title}, action.keywords);
        }
    }
}

void PaletteCatalogue::addMoments()
{
    for (const PaletteMoment &moment : momentsOfToday(m_model)) {
        add({.kind = PaletteKind::moment, .group = PaletteGroup::tools, .id = moment.id},
            moment.title, {moment.id}, {});
    }
}

void PaletteCatalogue::addTimers()
{
    const auto timers = KestCore::timersOf(m_model.recordsOfKind("timer"));
    if (!timers) {
        return;
    }
    for (const KestCore::Timer &timer : *timers) {
        add({.kind = PaletteKind::timer, .group = PaletteGroup::tools, .id = timer.record.id},
            timerStepTitle(timer, m_formatting, m_model.now()), {timer.record.title}, "timer");
    }
}

void PaletteCatalogue::weigh()
{
    std::unordered_map<std::string, double> weights;
    for (const auto &use :
         KestCore::readPaletteUses(m_model.setting(KestCore::kPaletteUsesKey))) {
        weights.emplace(use.key, KestCore::weightAt(use, m_model.now()));
    }
    if (weights.empty() && m_habits.empty()) {
        return;
    }
    m_habits.assign(weights.empty() ? 0 : m_things.size(), false);
    for (std::size_t item = 0; item < m_things.size(); ++item) {
        const auto found = weights.find(keyOf(m_things[item]));
        const bool isHabit = found != weights.end();
        m_index.setWeight(static_cast<std::uint32_t>(item), isHabit ? found->second : 0);
        if (isHabit) {
            m_habits[item] = true;
        }
    }
}

} // namespace Velvetnook
