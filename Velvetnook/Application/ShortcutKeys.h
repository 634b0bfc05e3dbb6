// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace KestCore
{
struct ShortcutBinding;
}

namespace Velvetnook
{

// A key of a stored shortcut, which is numbered by where keys lie on a keyboard.
struct ShortcutKey {
    std::int64_t code;
    std::uint32_t keysym; // what the X server calls it
    const char *name;
};

std::optional<ShortcutKey> shortcutKey(std::int64_t code);

// The key that Qt names so. Where the keyboard writes another script than the Latin, or a shift
// makes another sign of a digit, the key's place says which is meant.
std::optional<ShortcutKey> pressedKey(int key, quint32 scanCode);

// "Ctrl+Shift+Space".
QString shortcutText(const KestCore::ShortcutBinding &binding);

// "CTRL+SHIFT+space", as the desktops' shared notation of shortcuts has it.
QString shortcutTrigger(const KestCore::ShortcutBinding &binding);

} // namespace Velvetnook
