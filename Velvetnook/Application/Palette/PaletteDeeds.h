// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/Palette/PaletteRow.h"

#include <functional>
#include <string_view>
#include <vector>

namespace KestCore
{
struct LocalRecord;
struct Phrase;
struct UnitConversion;
} // namespace KestCore

namespace Velvetnook
{

class App;
class ApplicationModel;

// Something that can be done with what the palette shows.
struct PaletteDeed {
    QString text{};
    QString iconName{};
    std::function<void()> run{};
};

// Does what is chosen in the palette, through the models that the views themselves use.
class PaletteDeeds
{
public:
    PaletteDeeds(App &app, ApplicationModel &model) : m_app(app), m_model(model) {}

    // The first one is what Enter does. Empty for what is not there any more.
    std::vector<PaletteDeed> of(const PaletteThing &thing);
    std::vector<PaletteDeed> of(const KestCore::UnitConversion &conversion,
                                const QString &result);

private:
    std::vector<PaletteDeed> ofPhrase(const PaletteThing &thing);
    std::vector<PaletteDeed> ofTool(const std::string &id);
    std::vector<PaletteDeed> ofTimer(const PaletteThing &thing);
    std::vector<PaletteDeed> ofEmoji(const std::string &text);
    std::vector<PaletteDeed> ofNote(const KestCore::LocalRecord &note);
    std::vector<PaletteDeed> ofLink(const KestCore::LocalRecord &link);

    void openTool(const QString &id);
    void act(std::string_view id);
    void copy(const QString &text);
    PaletteDeed copying(const QString &label, const std::string &text);
    PaletteDeed pinning(const std::string &tool, const std::string &item);
    PaletteDeed favouring(const std::string &phrase);
    void startTimer(std::string_view mode, double minutes);
    void stepTimer(const std::string &id);
    void useEmoji(const std::string &text);

    App &m_app;
    ApplicationModel &m_model;
};

} // namespace Velvetnook
