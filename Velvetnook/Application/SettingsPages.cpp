// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/SettingsPages.h"

#include <QCoreApplication>

#include <array>

namespace Velvetnook
{

namespace
{

constexpr std::array kPages{
    PageOfSettings{
        "general", "settings", 0, QT_TRANSLATE_NOOP("Velvetnook::SettingsViewModel", "General"),
        QT_TRANSLATE_NOOP(
            "Velvetnook::SettingsViewModel",
            "language arabic english digits clock start login history sound onboarding")},
    PageOfSettings{"appearance", "palette", 0,
                   QT_TRANSLATE_NOOP("Velvetnook::SettingsViewModel", "Appearance"),
                   QT_TRANSLATE_NOOP(
                       "Velvetnook::SettingsViewModel",
                       "theme dark light accent colour color motion material text size surface "
                       "transliteration")},
    PageOfSettings{
        "notch", "notch", 0, QT_TRANSLATE_NOOP("Velvetnook::SettingsViewModel", "Notch"),
        QT_TRANSLATE_NOOP(
            "Velvetnook::SettingsViewModel",
            "strip panel open delay hidden hide screen display fullscreen applications pause "
            "pinned")},
    PageOfSettings{
        "dock", "dock", 0, QT_TRANSLATE_NOOP("Velvetnook::SettingsViewModel", "Dock"),
        QT_TRANSLATE_NOOP("Velvetnook::SettingsViewModel",
                          "workspaces edge side companion hover floating magnification")},
    PageOfSettings{
        "shortcuts", "keyboard", 0,
        QT_TRANSLATE_NOOP("Velvetnook::SettingsViewModel", "Shortcuts"),
        QT_TRANSLATE_NOOP("Velvetnook::SettingsViewModel", "keys palette hotkey keyboard")},
    PageOfSettings{
        "reminders", "bell", 1, QT_TRANSLATE_NOOP("Velvetnook::SettingsViewModel", "Reminders"),
        QT_TRANSLATE_NOOP("Velvetnook::SettingsViewModel",
                          "notification hours days weekdays interval pause sound test")},
    PageOfSettings{
        "prayer", "prayer", 1, QT_TRANSLATE_NOOP("Velvetnook::SettingsViewModel", "Prayer"),
        QT_TRANSLATE_NOOP(
            "Velvetnook::SettingsViewModel",
            "place city location method asr hanafi latitude qibla hijri adjustments times")},
    PageOfSettings{"tools", "grid", 2,
                   QT_TRANSLATE_NOOP("Velvetnook::SettingsViewModel", "Tools"),
                   QT_TRANSLATE_NOOP("Velvetnook::SettingsViewModel",
                                     "order favourites favorites tabs header")},
    PageOfSettings{"clipboard", "clipboard", 2,
                   QT_TRANSLATE_NOOP("Velvetnook::SettingsViewModel", "Clipboard"),
                   QT_TRANSLATE_NOOP("Velvetnook::SettingsViewModel",
                                     "copy paste history password exclude days limit")},
    PageOfSettings{
        "data", "database", 3,
        QT_TRANSLATE_NOOP("Velvetnook::SettingsViewModel", "Data & backup"),
        QT_TRANSLATE_NOOP("Velvetnook::SettingsViewModel",
                          "export import restore erase clear history reset folder file")},
    PageOfSettings{"about", "info", 3,
                   QT_TRANSLATE_NOOP("Velvetnook::SettingsViewModel", "About"),
                   QT_TRANSLATE_NOOP("Velvetnook::SettingsViewModel",
                                     "version licence license updates capabilities")},
};

QString translated(const char *text)
{
    return QCoreApplication::translate("Velvetnook::SettingsViewModel", text);
}

} // namespace

std::span<const PageOfSettings> pagesOfSettings() { return kPages; }

QString titleOf(const PageOfSettings &page) { return translated(page.title); }

QString wordsOf(const PageOfSettings &page) { return translated(page.words); }

} // namespace Velvetnook
