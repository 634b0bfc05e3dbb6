// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/PaletteViewModel.h"

#include "KestCore/Surfaces/PaletteUses.h"
#include "Velvetnook/Application/App.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/Palette/PaletteDeeds.h"
#include "Velvetnook/Application/Palette/PaletteRows.h"
#include "Velvetnook/Application/Palette/PaletteSearch.h"

#include <algorithm>
#include <span>

namespace Velvetnook
{

namespace
{

QVariantMap keyHint(const QString &key, const QString &text)
{
    return {{QStringLiteral("key"), key}, {QStringLiteral("text"), text}};
}

int headsAmong(std::span<const PaletteRow> rows)
{
    return static_cast<int>(
        std::ranges::count_if(rows, [](const PaletteRow &row) { return !row.head.isEmpty(); }));
}

} // namespace

PaletteViewModel::PaletteViewModel(App &app, ApplicationModel &model,
                                   const Formatting &formatting)
    : QObject{&app}, m_app{app}, m_model{model}, m_formatting{formatting},
      m_search{std::make_unique<PaletteSearch>(model, formatting)},
      m_deeds{std::make_unique<PaletteDeeds>(app, model)}, m_rows{new PaletteRows{this}}
{
}

PaletteViewModel::~PaletteViewModel() = default;

QAbstractItemModel *PaletteViewModel::rows() { return m_rows; }

bool PaletteViewModel::isNothingFound() const
{
    return m_search->offers().empty() && !m_query.trimmed().isEmpty();
}

int PaletteViewModel::headCount() const { return headsAmong(m_rows->rows()); }

int PaletteViewModel::headsInSight() const
{
    const std::span all{m_rows->rows()};
    return headsAmong(all.first(std::min(all.size(), static_cast<std::size_t>(mostRows()))));
}

QString PaletteViewModel::footer() const
{
    const auto &offers = m_search->offers();
    if (!m_subject.isEmpty() || offers.empty() || m_query.trimmed().isEmpty()) {
        return {};
    }
    return offers.front().conversion
               ? m_formatting.digits(tr("Up to 12 significant digits"))
               : m_formatting.digits(
                     tr("%n result(s)", nullptr, static_cast<int>(m_search->found())));
}

QVariantList PaletteViewModel::keys() const
{
    const auto &offers = m_search->offers();
    if (!m_subject.isEmpty()) {
        return {keyHint(QStringLiteral("↑↓"), tr("choose")), keyHint(tr("Enter"), tr("do it")),
                keyHint(tr("Esc"), tr("back"))};
    }
    if (offers.empty()) {
        return {keyHint(tr("Esc"), tr("clear"))};
    }
    if (offers.front().conversion) {
        return {keyHint(tr("Enter"), tr("copy")), keyHint(tr("Ctrl Enter"), tr("open Units"))};
    }
    return {keyHint(QStringLiteral("↑↓"), tr("choose")), keyHint(tr("Enter"), tr("open")),
            keyHint(tr("Tab"), tr("more actions"))};
}

void PaletteViewModel::begin()
{
    m_search->refresh();
    m_query.clear();
    find();
    emit queryChanged();
}

void PaletteViewModel::setQuery(const QString &query)
{
    if (query != m_query) {
        m_query = query;
        find();
        emit queryChanged();
    }
}

void PaletteViewModel::find()
{
    m_subject.clear();
    m_current = 0;
    m_search->find(m_query);
    show();
}

void PaletteViewModel::show()
{
    m_rows->show(m_subject.isEmpty() ? offeredRows() : actionRows());
    emit rowsChanged();
    emit currentChanged();
}

std::vector<PaletteRow> PaletteViewModel::offeredRows() const
{
    std::vector<PaletteRow> rows;
    const PaletteOffer *before = nullptr;
    const bool isSearch = !m_query.trimmed().isEmpty();
    for (const PaletteOffer &offer : m_search->offers()) {
        PaletteRow row = m_search->rowOf(offer, m_query);
        if (before == nullptr || before->thing.group != offer.thing.group) {
            row.head = headOf(offer.thing.group);
        }
        if (offer.tab > 0) {
            row.keyHint = tr("Ctrl %1").arg(m_formatting.number(offer.tab));
        } else if (isSearch) {
            row.enterHint = tr("Enter");
            row.enterNote = offer.conversion ? tr("copy") : QString{};
        }
        rows.push_back(std::move(row));
        before = &offer;
    }
    return rows;
}

std::vector<PaletteRow> PaletteViewModel::actionRows()
{
    std::vector<PaletteRow> rows;
    for (const PaletteDeed &deed : deedsOf(*m_subjectOffer)) {
        rows.push_back({.head = rows.empty() ? m_subject : QString{},
                        .title = deed.text.toHtmlEscaped(),
                        .spoken = deed.text,
                        .iconName = deed.iconName,
                        .enterHint = rows.empty() ? tr("Enter") : QString{}});
    }
    return rows;
}

std::vector<PaletteDeed> PaletteViewModel::deedsOf(const PaletteOffer &offer)
{
    return offer.conversion
               ? m_deeds->of(*offer.conversion, m_search->resultOf(*offer.conversion))
               : m_deeds->of(offer.thing);
}

void PaletteViewModel::setCurrent(int row)
{
    const int last = m_rows->rowCount() - 1;
    const int wanted = std::clamp(row, 0, std::max(last, 0));
    if (wanted != m_current) {
        m_current = wanted;
        emit currentChanged();
    }
}

void PaletteViewModel::move(int rows)
{
    const int count = m_rows->rowCount();
    if (count == 0) {
        return;
    }
    const bool isStep = rows == 1 || rows == -1;
    setCurrent(isStep ? (m_current + rows + count) % count : m_current + rows);
}

void PaletteViewModel::moveToEnd(bool isLast)
{
    setCurrent(isLast ? m_rows->rowCount() - 1 : 0);
}

const PaletteOffer *PaletteViewModel::currentOffer() const
{
    const auto &offers = m_search->offers();
    const auto row = static_cast<std::size_t>(m_current);
    return row < offers.size() ? &offers[row] : nullptr;
}

void PaletteViewModel::activate()
{
    if (!m_subject.isEmpty()) {
        run(PaletteOffer{*m_subjectOffer}, static_cast<std::size_t>(m_current));
    } else if (const PaletteOffer *offer = currentOffer()) {
        run(PaletteOffer{*offer}, 0);
    }
}

void PaletteViewModel::activateOther()
{
    const PaletteOffer *offer = m_subject.isEmpty() ? currentOffer() : nullptr;
    if (offer != nullptr) {
        run(PaletteOffer{*offer}, 1);
    }
}

// The palette goes first, so that what opens next gets the keyboard from who had it before.
void PaletteViewModel::run(const PaletteOffer &offer, std::size_t number)
{
    const auto deeds = deedsOf(offer);
    if (number >= deeds.size()) {
        return;
    }
    emit closeWanted();
    learn(offer);
    deeds[number].run();
}

void PaletteViewModel::learn(const PaletteOffer &offer)
{
    const bool isLasting = !offer.conversion && offer.thing.id != "forget";
    if (!isLasting || m_query.trimmed().isEmpty()) {
        return; // chosen without a search, there is nothing to find sooner the next time
    }
    m_model.changeState([key = keyOf(offer.thing),
                         now = m_model.now()](KestCore::NativeState &state) -> Result<void> {
        std::string &uses = state.settings[KestCore::kPaletteUsesKey];
        KEST_TRY(uses, KestCore::withPaletteUse(uses, key, now));
        return {};
    });
}

void PaletteViewModel::showActions()
{
    const PaletteOffer *offer = m_subject.isEmpty() ? currentOffer() : nullptr;
    if (offer == nullptr) {
        return;
    }
    m_subjectOffer = std::make_unique<PaletteOffer>(*offer);
    m_subjectRow = m_current;
    m_subject = m_rows->rows().at(static_cast<std::size_t>(m_current)).spoken;
    m_current = 0;
    show();
}

void PaletteViewModel::leaveActions()
{
    if (!m_subject.isEmpty()) {
        m_subject.clear();
        m_current = m_subjectRow;
        show();
    }
}

void PaletteViewModel::openTab(int number)
{
    if (number > m_app.panel()->tabs().size()) {
        return;
    }
    emit closeWanted();
    m_app.panel()->openTab(number - 1);
    emit m_app.panel()->openWanted(true);
}

bool PaletteViewModel::back()
{
    if (!m_subject.isEmpty()) {
        leaveActions();
        return true;
    }
    const bool hadQuery = !m_query.isEmpty();
    setQuery({});
    return hadQuery;
}

void PaletteViewModel::setHotkey(const QString &text, HotkeyState state)
{
    m_hotkeyText = text;
    m_hotkey = std::move(state);
    emit hotkeyChanged();
}

} // namespace Velvetnook
