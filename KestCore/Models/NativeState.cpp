// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Models/NativeState.h"

#include "Base/JsonReader.h"
#include "Base/JsonWriter.h"
#include "Base/Text.h"
#include "KestCore/Registry/ToolRegistry.h"

#include <algorithm>

template Base::Result<KestCore::NativeState>
Base::json::decode<KestCore::NativeState>(const Base::json::PaddedText &);
template Base::Result<std::string> Base::json::encode(const KestCore::NativeState &);
template Base::Result<Base::json::EncodedAround>
Base::json::encodeAroundSharedList(const KestCore::NativeState &);
template Base::Result<std::string> Base::json::encode(const KestCore::Settings &);

namespace KestCore
{

namespace
{

constexpr std::size_t kMostSettings = 500;
constexpr std::size_t kLongestKey = 100;
constexpr std::size_t kLongestValue = 100'000;

KestError invalidNativeSettings() { return KestError::invalidData("Invalid native settings"); }

bool isAtMost(std::string_view text, std::size_t characters)
{
    return text.size() <= characters || Base::countCodePoints(text) <= characters;
}

bool areValid(const Settings &settings)
{
    return settings.size() <= kMostSettings &&
           std::ranges::all_of(settings, [](const auto &entry) {
               return isAtMost(entry.first, kLongestKey) &&
                      isAtMost(entry.second, kLongestValue);
           });
}

bool isValid(const NativeState &state)
{
    return state.version == 3 && state.revision >= 0 && ToolRegistry::knowsAll(state.enabled) &&
           ToolRegistry::knowsAll(state.order) &&
           ToolRegistry::knowsAll(state.navigationFavorites) &&
           ToolRegistry::knows(state.pin.tool) && areValid(state.settings);
}

bool staysQuiet(const ToolDescriptor &tool)
{
    return tool.background == "none" || tool.background == "schedule";
}

} // namespace

bool settingIsTrue(const Settings &settings, const std::string &key)
{
    const auto found = settings.find(key);
    return found != settings.end() && found->second == "true";
}

Result<void> validate(const NativeState &state)
{
    if (!isValid(state)) {
        return std::unexpected(invalidNativeSettings());
    }
    return validate(state.devotional);
}

NativeState defaultNativeState()
{
    NativeState state{.version = 3, .devotional = defaultDevotionalState()};
    for (const ToolDescriptor &tool : ToolRegistry::tools()) {
        state.order.push_back(tool.id);
        if (!staysQuiet(tool)) {
            continue;
        }
        state.enabled.push_back(tool.id);
        if (tool.id == "home" || tool.pinnable) {
            state.navigationFavorites.push_back(tool.id);
        }
    }
    state.pin = {.tool = "dhikr", .item = state.devotional.selectedDhikrId};
    return state;
}

Result<NativeState> decodeNativeState(const json::PaddedText &text)
{
    auto state = json::decode<NativeState>(text);
    if (!state) {
        return std::unexpected(invalidNativeSettings());
    }
    return state;
}

} // namespace KestCore
