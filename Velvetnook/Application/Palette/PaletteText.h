// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "Velvetnook/Application/Palette/PaletteRow.h"

#include <QString>

#include <string>
#include <string_view>
#include <vector>

namespace KestCore
{
struct LocalRecord;
struct Timer;
struct UnitConversion;
} // namespace KestCore

// How the palette words what it offers.
namespace Velvetnook
{

class ApplicationModel;
class Formatting;

// A text of the palette in the language of the interface.
QString paletteTr(const char *text);

// One of today's prayer times; `id` is its name in English.
struct PaletteMoment {
    std::string id{};
    QString title{};
    Base::Instant at{};
};
std::vector<PaletteMoment> momentsOfToday(const ApplicationModel &model);

// "Pause Focus", "Resume Stopwatch" or, of one that is over, "Start Focus again": what
// choosing it does.
QString timerStepTitle(const KestCore::Timer &timer, const Formatting &formatting,
                       Base::Instant now);

QString headOf(PaletteGroup group);

// The result of a conversion as a row of its own, and the same number in other units.
std::vector<KestCore::UnitConversion> conversionsFor(const KestCore::UnitConversion &typed);
// "7.45645430685 mi"; empty where there is no result.
QString resultOf(const KestCore::UnitConversion &conversion, const Formatting &formatting);

// Words the rows. Looks things up as they are now.
class PaletteText
{
public:
    PaletteText(const ApplicationModel &model, const Formatting &formatting)
        : m_model(model), m_formatting(formatting)
    {
    }

    // What of the title answers to `query` is marked.
    PaletteRow rowOf(const PaletteThing &thing, const QString &query) const;

private:
    PaletteRow worded(const PaletteThing &thing) const;
    PaletteRow phraseRow(const PaletteThing &thing) const;
    PaletteRow sessionRow(const PaletteThing &thing) const;
    PaletteRow toolRow(const PaletteThing &thing) const;
    PaletteRow actionRow(const PaletteThing &thing) const;
    PaletteRow timerRow(const PaletteThing &thing) const;
    PaletteRow momentRow(const PaletteThing &thing) const;
    PaletteRow emojiRow(const PaletteThing &thing) const;
    PaletteRow recordRow(const PaletteThing &thing) const;
    const KestCore::LocalRecord *record(std::string_view id) const;
    QString nextPrayer() const;
    QString day(double milliseconds) const;

    const ApplicationModel &m_model;
    const Formatting &m_formatting;
};

} // namespace Velvetnook
