// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <span>

namespace Velvetnook
{

// A page of the settings: the window lists it, the palette offers it.
struct PageOfSettings {
    const char *id;
    const char *icon;
    int group;
    const char *title; // in English
    const char *words; // in English: by which a search finds it, beside its title
};

std::span<const PageOfSettings> pagesOfSettings();

// In the language of the interface.
QString titleOf(const PageOfSettings &page);
QString wordsOf(const PageOfSettings &page);

} // namespace Velvetnook
