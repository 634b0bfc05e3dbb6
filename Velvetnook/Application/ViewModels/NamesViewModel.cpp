// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/NamesViewModel.h"

#include "KestCore/Devotional/Rotation.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/CounterSteps.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/LocalDay.h"

#include <algorithm>
#include <array>

namespace Velvetnook
{

using KestCore::contentCatalogue;
using KestCore::Phrase;

namespace
{

constexpr std::array<const char *, 3> kTabs{"names", "phrases", "favourites"};

const Phrase &nameOf(std::string_view id)
{
    const auto &names = contentCatalogue().names;
    return KestCore::phraseById(id, names, names.front());
}

QString textOf(const std::optional<std::string> &text)
{
    return text ? QString::fromStdString(*text) : QString{};
}

} // namespace

NamesViewModel::NamesViewModel(ApplicationModel &model, const Formatting &formatting,
                               QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting}, m_list{formatting},
      m_current{&nameOf(KestCore::nameOfTheDay(model.now(), model.calendar()))},
      m_wording{wordingOf(formatting)}
{
    connect(&m_model, &ApplicationModel::choicesChanged, this, &NamesViewModel::follow);
    connect(&m_model, &ApplicationModel::calendarChanged, this,
            &NamesViewModel::currentChanged);
    showList();
}

void NamesViewModel::follow()
{
    if (m_tab == Tab::favourites) {
        showList();
    }
    if (const QString wording = wordingOf(m_formatting); wording != m_wording) {
        m_wording = wording;
        m_list.reword();
        emit listChanged();
        emit currentChanged();
    }
    emit marksChanged();
}

const std::vector<Phrase> &NamesViewModel::source(Tab tab) const
{
    return tab == Tab::names ? contentCatalogue().names : contentCatalogue().dhikr;
}

std::vector<const Phrase *> NamesViewModel::favourites() const
{
    const auto found = KestCore::searchPhrases(contentCatalogue().dhikr, m_query.toStdString());
    std::vector<const Phrase *> list;
    for (const std::string &id : m_model.state().devotional.favorites) {
        const auto at =
            std::ranges::find_if(found, [&](const Phrase *phrase) { return phrase->id == id; });
        if (at != found.end()) {
            list.push_back(*at);
        }
    }
    return list;
}

void NamesViewModel::showList()
{
    const auto &all = source(m_tab);
    m_list.show(all, m_tab == Tab::favourites
                         ? favourites()
                         : KestCore::searchPhrases(all, m_query.toStdString()));
    emit listChanged();
    emit currentChanged(); // its row may be another
}

QString NamesViewModel::tab() const
{
    return QLatin1String{kTabs.at(static_cast<std::size_t>(m_tab))};
}

void NamesViewModel::setTab(const QString &tab)
{
    for (std::size_t n = 0; n < kTabs.size(); ++n) {
        if (tab == QLatin1String{kTabs.at(n)}) {
            showTab(static_cast<Tab>(n));
        }
    }
}

// Each tab begins with what matters there: the Name of the day, the phrase that is counted.
void NamesViewModel::showTab(Tab tab)
{
    if (tab == m_tab) {
        return;
    }
    m_tab = tab;
    m_query.clear();
    showList();
    const bool isNames = tab == Tab::names;
    const Phrase *first = &nameOf(KestCore::nameOfTheDay(m_model.now(), m_model.calendar()));
    if (!isNames) {
        first = &selectedPhrase(m_model.state());
    }
    if (m_list.rowOf(first->id) < 0 && !m_list.phrases().empty()) {
        first = m_list.phrases().front();
    }
    setCurrent(*first);
}

void NamesViewModel::setQuery(const QString &query)
{
    if (query == m_query) {
        return;
    }
    m_query = query;
    showList();
    if (row() < 0 && !m_list.phrases().empty()) {
        setCurrent(*m_list.phrases().front());
    }
}

QString NamesViewModel::searchHint() const
{
    switch (m_tab) {
    case Tab::names:
        return tr("Search %1 Names").arg(m_formatting.number(std::ssize(source(m_tab))));
    case Tab::phrases:
        return tr("Search %1 phrases").arg(m_formatting.number(std::ssize(source(m_tab))));
    case Tab::favourites:
        break;
    }
    return tr("Search favourites");
}

QString NamesViewModel::emptyText() const
{
    return m_query.isEmpty() ? tr("No favourites yet") : tr("Nothing has these words");
}

void NamesViewModel::setRow(int row)
{
    if (row >= 0 && row < m_list.rowCount()) {
        setCurrent(*m_list.phrases()[static_cast<std::size_t>(row)]);
    }
}

void NamesViewModel::setCurrent(const Phrase &phrase)
{
    if (m_current != &phrase) {
        m_current = &phrase;
        emit currentChanged();
        emit marksChanged();
    }
}

QString NamesViewModel::position() const
{
    const auto number = [this](qlonglong value) { return m_formatting.number(value); };
    return row() < 0 ? QString{}
                     : tr("%1 of %2").arg(number(row() + 1), number(m_list.rowCount()));
}

bool NamesViewModel::isName() const
{
    return KestCore::isNameId(m_current->id) && m_tab == Tab::names;
}

QString NamesViewModel::arabic() const { return QString::fromStdString(m_current->arabic); }

QString NamesViewModel::title() const
{
    return m_formatting.isRightToLeft() ? arabic() : phraseTitle(*m_current);
}

QString NamesViewModel::transliteration() const
{
    return m_formatting.isRightToLeft() ? QString{} : phraseTitle(*m_current);
}

QString NamesViewModel::translation() const
{
    return m_formatting.isRightToLeft() ? QString{} : textOf(m_current->translation);
}

QString NamesViewModel::meaning() const
{
    return m_formatting.isRightToLeft() ? QString{} : textOf(m_current->meaning);
}

QString NamesViewModel::source() const { return QString::fromStdString(m_current->source); }

QString NamesViewModel::sourceUrl() const { return textOf(m_current->sourceUrl); }

bool NamesViewModel::isNameOfTheDay() const
{
    return isName() &&
           m_current->id == KestCore::nameOfTheDay(m_model.now(), m_model.calendar());
}

bool NamesViewModel::isFavourite() const
{
    const auto &favourites = m_model.state().devotional.favorites;
    return !isName() && std::ranges::find(favourites, m_current->id) != favourites.end();
}

KestCore::Pin NamesViewModel::pinOfCurrent() const
{
    return {.tool = isName() ? "names" : "dhikr", .item = m_current->id};
}

bool NamesViewModel::isPinned() const
{
    const KestCore::NativeState &state = m_model.state();
    return state.devotional.preferences.pinEnabled && state.pin == pinOfCurrent();
}

bool NamesViewModel::isCounted() const
{
    return !isName() && m_model.state().devotional.selectedDhikrId == m_current->id;
}

void NamesViewModel::openTool(const QString &id)
{
    const bool isPhrases = id == QLatin1String{"tasbih"};
    if (id != m_tool && (isPhrases || id == QLatin1String{"names"})) {
        m_tool = id;
        showTab(isPhrases ? Tab::phrases : Tab::names);
    }
}

void NamesViewModel::open(const QString &id)
{
    const std::string wanted = id.toStdString();
    if (KestCore::isNameId(wanted)) {
        showTab(Tab::names);
        setQuery({});
        setCurrent(nameOf(wanted));
    } else if (KestCore::isPhraseId(wanted)) {
        showTab(Tab::phrases);
        setQuery({});
        setCurrent(phraseOf(wanted));
    }
}

void NamesViewModel::openToday()
{
    open(QString::fromStdString(KestCore::nameOfTheDay(m_model.now(), m_model.calendar())));
}

void NamesViewModel::move(int rows)
{
    const int last = m_list.rowCount() - 1;
    if (last >= 0) {
        setRow(row() < 0 ? 0 : std::clamp(row() + rows, 0, last));
    }
}

void NamesViewModel::toggleFavourite()
{
    if (!isName()) {
        toggleFavouritePhrase(m_model, m_current->id);
    }
}

void NamesViewModel::togglePin()
{
    m_model.changeState([pin = pinOfCurrent()](KestCore::NativeState &state) -> Result<void> {
        auto &preferences = state.devotional.preferences;
        preferences.pinEnabled = !(preferences.pinEnabled && state.pin == pin);
        state.pin = pin;
        if (pin.tool == "names") {
            state.devotional.selectedNameId = pin.item;
        }
        return {};
    });
}

void NamesViewModel::selectForCounter()
{
    if (!isName()) {
        selectPhrase(m_model, m_current->id);
    }
}

} // namespace Velvetnook
