// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Tools/Units.h"
#include "Velvetnook/Application/Palette/PaletteCatalogue.h"
#include "Velvetnook/Application/Palette/PaletteText.h"

#include <QString>

#include <optional>
#include <vector>

namespace Velvetnook
{

// A row that is offered, and the conversion that it shows where it is one.
struct PaletteOffer {
    PaletteThing thing{};
    std::optional<KestCore::UnitConversion> conversion{};
    int tab = 0; // the number of its tab in the panel, with which Ctrl opens it; 0: none

    bool operator==(const PaletteOffer &) const = default;
};

// What the palette offers for a line: what goes on and what can be opened for an empty one,
// else what is worked out of the line and what is found by it.
class PaletteSearch
{
public:
    PaletteSearch(const ApplicationModel &model, const Formatting &formatting);

    // Takes in what has changed.
    void refresh() { m_catalogue.refresh(); }
    void find(const QString &query);

    const std::vector<PaletteOffer> &offers() const { return m_offers; }
    // How many were found, of which not all are offered.
    std::size_t found() const { return m_found; }
    PaletteRow rowOf(const PaletteOffer &offer, const QString &query) const;
    QString resultOf(const KestCore::UnitConversion &conversion) const;

private:
    void offerSession();
    void offerTimers();
    void offerTabs();
    void offerUnits(const QString &query);
    void offerTimer(const QString &query);
    void offerFound(const QString &query);

    const ApplicationModel &m_model;
    const Formatting &m_formatting;
    PaletteCatalogue m_catalogue;
    PaletteText m_text;
    std::vector<PaletteOffer> m_offers;
    std::size_t m_found = 0;
};

} // namespace Velvetnook
