// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Velvetnook
{

class ApplicationModel;

// What the palette does at once, without opening anything.
struct PaletteAction {
    const char *id;
    const char *title; // in English
    const char *iconName;
    const char *keywords;
};

std::span<const PaletteAction> paletteActions();
// Null for an id that is none.
const PaletteAction *paletteAction(std::string_view id);
QString titleOf(const PaletteAction &action);
// Whether it would do anything now.
bool isPossible(const PaletteAction &action, const ApplicationModel &model);

// The timer that a line such as "timer 10", "10 min" or "1 h" asks for, in minutes.
std::optional<int> typedTimer(const QString &line);

} // namespace Velvetnook
