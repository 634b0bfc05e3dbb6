// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/SharedList.h"
#include "KestCore/Models/Snapshot.h"
#include "KestCore/Surfaces/PaletteIndex.h"
#include "Velvetnook/Application/Palette/PaletteRow.h"

#include <QString>

#include <string>
#include <vector>

namespace Velvetnook
{

class ApplicationModel;
class Formatting;

struct PaletteFound {
    PaletteThing thing{};
    KestCore::PaletteFit fit{};
    bool isHabit = false; // chosen before
};

// Everything that the palette can find, in the language of the interface and in English. What
// never changes is taken in once, records when they have changed, and what depends on the
// moment, such as the timers, each time that it is brought up to date.
class PaletteCatalogue
{
public:
    PaletteCatalogue(const ApplicationModel &model, const Formatting &formatting)
        : m_model(model), m_formatting(formatting)
    {
    }

    void refresh();
    std::vector<PaletteFound> search(const QString &query);
    std::size_t size() const { return m_things.size(); }

private:
    void add(PaletteThing thing, const QString &title, std::vector<std::string> names = {},
             std::string_view keywords = {});
    void addFixed();
    void addTools();
    void addPages();
    void addPhrases();
    void addEmoji();
    bool haveRecordsChanged() const;
    void addRecords();
    void addActions();
    void addMoments();
    void addTimers();
    void weigh();
    void truncate(std::size_t first);

    const ApplicationModel &m_model;
    const Formatting &m_formatting;
    KestCore::PaletteIndex m_index;
    std::vector<PaletteThing> m_things;
    QString m_language;
    std::vector<std::string> m_enabled; // the tools that were on
    std::size_t m_fixed = 0;
    std::size_t m_withRecords = 0;
    std::vector<bool> m_habits;                 // of each thing, where there are any
    std::vector<KestCore::RecordRef> m_records; // the notes and links that are in it
};

} // namespace Velvetnook
