// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/Palette/PaletteSearch.h"

#include "KestCore/Tools/TimerList.h"
#include "KestCore/Tools/TypedConversion.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/Palette/PaletteActions.h"
#include "Velvetnook/Application/TimerSteps.h"
#include "Velvetnook/Application/ToolChoice.h"

#include <algorithm>
#include <array>

namespace Velvetnook
{

namespace
{

constexpr std::size_t kGroups = static_cast<std::size_t>(PaletteGroup::settings) + 1;
constexpr std::size_t kOfBestGroup = 5;
constexpr std::size_t kOfGroup = 3;
constexpr std::size_t kEnough = 9; // of a better fit: then letters in a row are no match
constexpr std::size_t kMostTimers = 3;
constexpr std::size_t kMostOpen = 4;

std::size_t numberOf(PaletteGroup group) { return static_cast<std::size_t>(group); }

// There is an emoji for nearly every word: before the others they would only be in the way.
bool isAbove(PaletteGroup one, PaletteGroup other)
{
    return one != PaletteGroup::emoji && (other == PaletteGroup::emoji || one < other);
}

// The group of what is chosen most often among what fits best; without a habit, of those the
// one that stands first.
std::optional<PaletteGroup> bestGroup(const std::vector<PaletteFound> &all)
{
    if (all.empty()) {
        return std::nullopt;
    }
    PaletteGroup best = all.front().thing.group;
    for (const PaletteFound &found : all) {
        if (found.fit != all.front().fit || all.front().isHabit) {
            break;
        }
        best = isAbove(found.thing.group, best) ? found.thing.group : best;
    }
    return best;
}

} // namespace

PaletteSearch::PaletteSearch(const ApplicationModel &model, const Formatting &formatting)
    : m_model{model}, m_formatting{formatting}, m_catalogue{model, formatting},
      m_text{model, formatting}
{
}

void PaletteSearch::find(const QString &query)
{
    m_offers.clear();
    m_found = 0;
    if (query.trimmed().isEmpty()) {
        offerSession();
        offerTimers();
        offerTabs();
        return;
    }
    offerUnits(query);
    offerTimer(query);
    m_found = m_offers.size();
    offerFound(query);
}

void PaletteSearch::offerSession()
{
    const auto &devotional = m_model.state().devotional;
    if (devotional.session.count > 0) {
        m_offers.push_back({.thing = {.kind = PaletteKind::phrase,
                                      .group = PaletteGroup::resume,
                                      .id = devotional.selectedDhikrId}});
    }
}

void PaletteSearch::offerTimers()
{
    auto timers = timersIn(m_model);
    KestCore::sortForList(timers);
    std::size_t count = 0;
    for (const KestCore::Timer &timer : timers) {
        if (isGoing(timer.state, m_model.now()) && count++ < kMostTimers) {
            m_offers.push_back({.thing = {.kind = PaletteKind::timer,
                                          .group = PaletteGroup::resume,
                                          .id = timer.record.id}});
        }
    }
}

// The tabs of the panel, but for what goes on above.
void PaletteSearch::offerTabs()
{
    const bool counts = std::ranges::any_of(m_offers, [](const PaletteOffer &offer) {
        return offer.thing.kind == PaletteKind::phrase;
    });
    const bool hasTimers = std::ranges::any_of(m_offers, [](const PaletteOffer &offer) {
        return offer.thing.kind == PaletteKind::timer;
    });
    int tab = 0;
    std::size_t offered = 0;
    for (const std::string &id : m_model.state().navigationFavorites) {
        if (!hasTab(m_model.state(), id)) {
            continue;
        }
        ++tab;
        const bool isAbove = (counts && id == "dhikr") || (hasTimers && id == "timers");
        if (id == "home" || isAbove || tab > static_cast<int>(kMostFavourites) ||
            offered >= kMostOpen) {
            continue;
        }
        ++offered;
        m_offers.push_back(
            {.thing = {.kind = PaletteKind::tool, .group = PaletteGroup::open, .id = id},
             .tab = tab});
    }
}

void PaletteSearch::offerUnits(const QString &query)
{
    const auto typed = KestCore::typedConversion(query.toStdString());
    if (!typed) {
        return;
    }
    for (const auto &conversion : conversionsFor(*typed)) {
        if (!resultOf(conversion).isEmpty()) {
            m_offers.push_back({.thing = {.kind = PaletteKind::unit,
                                          .group = PaletteGroup::units,
                                          .id = conversion.to},
                                .conversion = conversion});
        }
    }
}

void PaletteSearch::offerTimer(const QString &query)
{
    if (const auto minutes = typedTimer(query)) {
        m_offers.push_back({.thing = {.kind = PaletteKind::action,
                                      .group = PaletteGroup::tools,
                                      .id = std::to_string(*minutes)}});
    }
}

void PaletteSearch::offerFound(const QString &query)
{
    std::array<std::vector<PaletteThing>, kGroups> groups;
    const auto all = m_catalogue.search(query);
    const auto best = bestGroup(all);
    std::size_t better = 0;
    for (const PaletteFound &found : all) {
        const bool isFuzzy = found.fit == KestCore::PaletteFit::fuzzy;
        if (isFuzzy && better >= kEnough) {
            break;
        }
        better += isFuzzy ? 0U : 1U;
        ++m_found;
        auto &group = groups.at(numberOf(found.thing.group));
        if (group.size() < (best == found.thing.group ? kOfBestGroup : kOfGroup)) {
            group.push_back(found.thing);
        }
    }
    const auto offer = [&](const std::vector<PaletteThing> &things) {
        for (const PaletteThing &thing : things) {
            m_offers.push_back({.thing = thing});
        }
    };
    if (best) {
        offer(groups.at(numberOf(*best)));
        groups.at(numberOf(*best)).clear();
    }
    std::ranges::for_each(groups, offer);
}

PaletteRow PaletteSearch::rowOf(const PaletteOffer &offer, const QString &query) const
{
    if (!offer.conversion) {
        return m_text.rowOf(offer.thing, query);
    }
    const KestCore::UnitConversion &conversion = *offer.conversion;
    const bool isAsked = m_offers.empty() || m_offers.front() == offer;
    const QString result = resultOf(conversion);
    return {.title = result.toHtmlEscaped(),
            .spoken = result,
            .note = isAsked ? m_formatting.digits(QString::fromStdString(conversion.text + " " +
                                                                         conversion.from))
                            : QString{},
            .iconName = QStringLiteral("units")};
}

QString PaletteSearch::resultOf(const KestCore::UnitConversion &conversion) const
{
    return Velvetnook::resultOf(conversion, m_formatting);
}

} // namespace Velvetnook
