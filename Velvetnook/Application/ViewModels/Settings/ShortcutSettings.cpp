// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Settings/ShortcutSettings.h"

#include "KestCore/Registry/ToolRegistry.h"
#include "KestCore/Surfaces/CompanionState.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/ShortcutKeys.h"
#include "Velvetnook/Application/ToolChoice.h"
#include "Velvetnook/Application/ToolTitles.h"

#include <QVariantMap>

#include <algorithm>
#include <array>

namespace Velvetnook
{

using KestCore::ShortcutBinding;
using KestCore::ShortcutModifier;

namespace
{

// The surfaces have their row whether they have a key or not.
constexpr std::array kSurfaces{"command", "notch", "dock"};

bool isSurface(const std::string &target)
{
    return std::ranges::find(kSurfaces, target) != kSurfaces.end();
}

std::set<ShortcutModifier> modifiersOf(int modifiers)
{
    constexpr std::array kPairs{std::pair{Qt::ControlModifier, ShortcutModifier::control},
                                std::pair{Qt::AltModifier, ShortcutModifier::option},
                                std::pair{Qt::ShiftModifier, ShortcutModifier::shift},
                                std::pair{Qt::MetaModifier, ShortcutModifier::command}};
    std::set<ShortcutModifier> held;
    for (const auto &[flag, modifier] : kPairs) {
        if ((static_cast<unsigned>(modifiers) & static_cast<unsigned>(flag)) != 0) {
            held.insert(modifier);
        }
    }
    return held;
}

bool isModifierKey(int key)
{
    constexpr std::array kKeys{
        Qt::Key_Control, Qt::Key_Shift,   Qt::Key_Alt,        Qt::Key_AltGr,   Qt::Key_Meta,
        Qt::Key_Super_L, Qt::Key_Super_R, Qt::Key_CapsLock,   Qt::Key_NumLock, Qt::Key_Hyper_L,
        Qt::Key_Hyper_R, Qt::Key_unknown, Qt::Key_Mode_switch};
    return std::ranges::any_of(kKeys, [key](Qt::Key each) { return each == key; });
}

// A key that writes or moves must be held together with one that does neither.
bool isFree(const ShortcutKey &key, const std::set<ShortcutModifier> &held)
{
    const bool isFunction = key.name[0] == 'F' && key.name[1] != '\0';
    return isFunction || held.size() > (held.contains(ShortcutModifier::shift) ? 1U : 0U);
}

} // namespace

ShortcutSettings::ShortcutSettings(ApplicationModel &model, const Formatting &formatting,
                                   QObject *parent)
    : QObject{parent}, m_model{model}
{
    connect(&model, &ApplicationModel::companionChanged, this, &ShortcutSettings::changed);
    connect(&model, &ApplicationModel::choicesChanged, this, &ShortcutSettings::changed);
    connect(&formatting, &Formatting::wordsChanged, this, &ShortcutSettings::changed);
}

const ShortcutBinding *ShortcutSettings::bindingOf(const std::string &target) const
{
    const auto &all = m_model.companion().shortcuts;
    const auto found = std::ranges::find(all, target, &ShortcutBinding::target);
    return found == all.end() ? nullptr : &*found;
}

QString ShortcutSettings::titleOf(const std::string &target)
{
    if (target == "command") {
        return tr("Palette");
    }
    if (target == "dock") {
        return tr("Dock");
    }
    return target == "notch" ? tr("Panel") : toolTitle(QString::fromStdString(target));
}

QString ShortcutSettings::iconOf(const std::string &target) const
{
    if (target == "command") {
        return QStringLiteral("search");
    }
    const auto &tools = KestCore::ToolRegistry::tools();
    const auto found = std::ranges::find(tools, target, &KestCore::ToolDescriptor::id);
    return found == tools.end() ? QString::fromStdString(isSurface(target) ? target : "notch")
                                : QString::fromStdString(found->icon);
}

QVariantMap ShortcutSettings::rowOf(const std::string &target) const
{
    const ShortcutBinding *const binding = bindingOf(target);
    const auto state = m_states.find(target);
    const HotkeyState told = state == m_states.end() ? HotkeyState{} : state->second;
    QStringList keys;
    QString note = tr("No key is set.");
    if (binding != nullptr) {
        keys = shortcutText(*binding).split(u'+');
        note = told.reason.isEmpty() && told.level == HotkeyState::Level::full
                   ? tr("It works over every application.")
                   : told.reason;
    }
    return {{QStringLiteral("target"), QString::fromStdString(target)},
            {QStringLiteral("title"), titleOf(target)},
            {QStringLiteral("icon"), iconOf(target)},
            {QStringLiteral("keys"), keys},
            {QStringLiteral("note"), note},
            {QStringLiteral("isFull"),
             binding == nullptr || told.level == HotkeyState::Level::full},
            {QStringLiteral("isSet"), binding != nullptr}};
}

QVariantList ShortcutSettings::rows() const
{
    QVariantList list;
    for (const char *const surface : kSurfaces) {
        list.push_back(rowOf(surface));
    }
    std::set<std::string> seen;
    for (const ShortcutBinding &binding : m_model.companion().shortcuts) {
        if (!isSurface(binding.target) && seen.insert(binding.target).second) {
            list.push_back(rowOf(binding.target));
        }
    }
    const std::string recorded = m_recording.toStdString();
    if (!recorded.empty() && !isSurface(recorded) && bindingOf(recorded) == nullptr) {
        list.push_back(rowOf(recorded));
    }
    return list;
}

QVariantList ShortcutSettings::addable() const
{
    QVariantList list;
    for (const KestCore::ToolDescriptor &tool : KestCore::ToolRegistry::tools()) {
        if (hasView(tool.id) && isToolOn(m_model.state(), tool.id) &&
            bindingOf(tool.id) == nullptr) {
            list.push_back(
                QVariantMap{{QStringLiteral("value"), QString::fromStdString(tool.id)},
                            {QStringLiteral("label"), titleOf(tool.id)}});
        }
    }
    return list;
}

void ShortcutSettings::setState(const std::string &target, const HotkeyState &state)
{
    HotkeyState &known = m_states[target];
    if (known != state) {
        known = state;
        emit changed();
    }
}

void ShortcutSettings::record(const QString &target)
{
    m_recording = target;
    refuse({});
    emit recordingChanged();
    emit changed();
}

void ShortcutSettings::cancel()
{
    if (!m_recording.isEmpty()) {
        record({});
    }
}

void ShortcutSettings::refuse(const QString &why)
{
    m_refusal = why;
    emit refusalChanged();
}

void ShortcutSettings::press(int key, int modifiers, quint32 scanCode)
{
    if (m_recording.isEmpty() || isModifierKey(key)) {
        return;
    }
    const auto held = modifiersOf(modifiers);
    if (key == Qt::Key_Escape && held.empty()) {
        return cancel();
    }
    const auto pressed = pressedKey(key, scanCode);
    if (!pressed) {
        return refuse(tr("This key cannot be taken. A letter, a digit or F1 to F12 can."));
    }
    if (!isFree(*pressed, held)) {
        return refuse(tr("Hold Ctrl, Alt or Super together with it."));
    }
    const std::string target = m_recording.toStdString();
    const ShortcutBinding wanted{
        .id = target, .target = target, .keyCode = pressed->code, .modifiers = held};
    for (const ShortcutBinding &other : m_model.companion().shortcuts) {
        if (other.target != target && other.keyCode == wanted.keyCode &&
            other.modifiers == wanted.modifiers) {
            return refuse(tr("%1 opens %2 already.", "Ctrl+K, Notes")
                              .arg(shortcutText(wanted), titleOf(other.target)));
        }
    }
    keep(wanted);
    cancel();
}

void ShortcutSettings::keep(const ShortcutBinding &binding)
{
    m_model.changeCompanion([binding](KestCore::CompanionState &companion) {
        const auto place =
            std::ranges::find(companion.shortcuts, binding.target, &ShortcutBinding::target);
        if (place == companion.shortcuts.end()) {
            companion.shortcuts.push_back(binding);
        } else {
            place->keyCode = binding.keyCode;
            place->modifiers = binding.modifiers;
        }
    });
}

void ShortcutSettings::remove(const QString &target)
{
    m_model.changeCompanion([target =
                                 target.toStdString()](KestCore::CompanionState &companion) {
        std::erase_if(companion.shortcuts,
                      [&](const ShortcutBinding &binding) { return binding.target == target; });
    });
}

} // namespace Velvetnook
