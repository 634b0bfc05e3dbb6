// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ShortcutKeys.h"

#include "KestCore/Surfaces/CompanionState.h"

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace Velvetnook
{

namespace
{

using KestCore::ShortcutModifier;

constexpr std::array kKeys{
    ShortcutKey{0, 'a', "A"},        ShortcutKey{11, 'b', "B"},
    ShortcutKey{8, 'c', "C"},        ShortcutKey{2, 'd', "D"},
    ShortcutKey{14, 'e', "E"},       ShortcutKey{3, 'f', "F"},
    ShortcutKey{5, 'g', "G"},        ShortcutKey{4, 'h', "H"},
    ShortcutKey{34, 'i', "I"},       ShortcutKey{38, 'j', "J"},
    ShortcutKey{40, 'k', "K"},       ShortcutKey{37, 'l', "L"},
    ShortcutKey{46, 'm', "M"},       ShortcutKey{45, 'n', "N"},
    ShortcutKey{31, 'o', "O"},       ShortcutKey{35, 'p', "P"},
    ShortcutKey{12, 'q', "Q"},       ShortcutKey{15, 'r', "R"},
    ShortcutKey{1, 's', "S"},        ShortcutKey{17, 't', "T"},
    ShortcutKey{32, 'u', "U"},       ShortcutKey{9, 'v', "V"},
    ShortcutKey{13, 'w', "W"},       ShortcutKey{7, 'x', "X"},
    ShortcutKey{16, 'y', "Y"},       ShortcutKey{6, 'z', "Z"},
    ShortcutKey{29, '0', "0"},       ShortcutKey{18, '1', "1"},
    ShortcutKey{19, '2', "2"},       ShortcutKey{20, '3', "3"},
    ShortcutKey{21, '4', "4"},       ShortcutKey{23, '5', "5"},
    ShortcutKey{22, '6', "6"},       ShortcutKey{26, '7', "7"},
    ShortcutKey{28, '8', "8"},       ShortcutKey{25, '9', "9"},
    ShortcutKey{49, ' ', "Space"},   ShortcutKey{36, 0xFF0D, "Enter"},
    ShortcutKey{48, 0xFF09, "Tab"},  ShortcutKey{53, 0xFF1B, "Esc"},
    ShortcutKey{122, 0xFFBE, "F1"},  ShortcutKey{120, 0xFFBF, "F2"},
    ShortcutKey{99, 0xFFC0, "F3"},   ShortcutKey{118, 0xFFC1, "F4"},
    ShortcutKey{96, 0xFFC2, "F5"},   ShortcutKey{97, 0xFFC3, "F6"},
    ShortcutKey{98, 0xFFC4, "F7"},   ShortcutKey{100, 0xFFC5, "F8"},
    ShortcutKey{101, 0xFFC6, "F9"},  ShortcutKey{109, 0xFFC7, "F10"},
    ShortcutKey{103, 0xFFC8, "F11"}, ShortcutKey{111, 0xFFC9, "F12"},
};

constexpr std::array kModifiers{
    std::pair{ShortcutModifier::control, "Ctrl"}, std::pair{ShortcutModifier::option, "Alt"},
    std::pair{ShortcutModifier::shift, "Shift"}, std::pair{ShortcutModifier::command, "Super"}};

} // namespace

std::optional<ShortcutKey> shortcutKey(std::int64_t code)
{
    const auto *const found = std::ranges::find(kKeys, code, &ShortcutKey::code);
    return found == kKeys.end() ? std::nullopt : std::optional{*found};
}

std::optional<ShortcutKey> pressedKey(int key, quint32 scanCode)
{
    // As an X server counts the places.
    struct Row {
        quint32 first;
        std::string_view keys;
    };
    static constexpr Row kRows[]{
        {10, "1234567890"}, {24, "QWERTYUIOP"}, {38, "ASDFGHJKL"}, {52, "ZXCVBNM"}};
    static constexpr std::array kNamed{
        std::pair{Qt::Key_Space, "Space"}, std::pair{Qt::Key_Return, "Enter"},
        std::pair{Qt::Key_Enter, "Enter"}, std::pair{Qt::Key_Tab, "Tab"},
        std::pair{Qt::Key_Backtab, "Tab"}, std::pair{Qt::Key_Escape, "Esc"}};
    QString name;
    const bool isPlain =
        (key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9);
    if (isPlain) {
        name = QChar{static_cast<char16_t>(key)};
    } else if (key >= Qt::Key_F1 && key <= Qt::Key_F12) {
        name = QStringLiteral("F%1").arg(key - Qt::Key_F1 + 1);
    } else if (const auto *const found = std::ranges::find(
                   kNamed, key, [](const auto &pair) { return static_cast<int>(pair.first); });
               found != kNamed.end()) {
        name = QLatin1String{found->second};
    } else if (key < Qt::Key_Escape) {
        for (const auto &[first, keys] : kRows) {
            if (scanCode >= first && scanCode - first < keys.size()) {
                name = QLatin1Char{keys[scanCode - first]};
            }
        }
    }
    const auto *const known = std::ranges::find_if(
        kKeys, [&](const ShortcutKey &each) { return name == QLatin1String{each.name}; });
    return known == kKeys.end() ? std::nullopt : std::optional{*known};
}

QString shortcutText(const KestCore::ShortcutBinding &binding)
{
    QStringList parts;
    for (const auto &[modifier, name] : kModifiers) {
        if (binding.modifiers.contains(modifier)) {
            parts.append(QLatin1String{name});
        }
    }
    const auto key = shortcutKey(binding.keyCode);
    parts.append(key ? QString::fromLatin1(key->name) : QString::number(binding.keyCode));
    return parts.join(u'+');
}

QString shortcutTrigger(const KestCore::ShortcutBinding &binding)
{
    static const QHash<QString, QString> kNotation{
        {QStringLiteral("Ctrl"), QStringLiteral("CTRL")},
        {QStringLiteral("Alt"), QStringLiteral("ALT")},
        {QStringLiteral("Shift"), QStringLiteral("SHIFT")},
        {QStringLiteral("Super"), QStringLiteral("LOGO")},
        {QStringLiteral("Space"), QStringLiteral("space")},
        {QStringLiteral("Enter"), QStringLiteral("Return")},
        {QStringLiteral("Esc"), QStringLiteral("Escape")}};
    QStringList parts = shortcutText(binding).split(u'+');
    for (QString &part : parts) {
        part = kNotation.value(part, part.size() == 1 ? part.toLower() : part);
    }
    return parts.join(u'+');
}

} // namespace Velvetnook
