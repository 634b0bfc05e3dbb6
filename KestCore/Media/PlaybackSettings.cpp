// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Media/PlaybackSettings.h"

#include "Base/Text.h"

namespace KestCore
{

namespace
{

constexpr const char *kPort = "playback.port";
constexpr const char *kTab = "playback.tab";
constexpr const char *kLastPlayer = "playback.lastPlayer";

std::string valueOf(const Settings &settings, const char *key)
{
    const auto found = settings.find(key);
    return found == settings.end() ? std::string{} : found->second;
}

} // namespace

std::optional<ConnectedTab> connectedTab(const Settings &settings)
{
    const auto port = Base::numberFrom<std::uint16_t>(valueOf(settings, kPort));
    ConnectedTab connected{.port = port.value_or(0), .tab = valueOf(settings, kTab)};
    return connected.port == 0 || connected.tab.empty() ? std::nullopt
                                                        : std::optional{std::move(connected)};
}

void connectTab(Settings &settings, const ConnectedTab &tab)
{
    settings.insert_or_assign(kPort, std::to_string(tab.port));
    settings.insert_or_assign(kTab, tab.tab);
}

void disconnectTab(Settings &settings)
{
    settings.erase(kPort);
    settings.erase(kTab);
}

std::string lastPlayer(const Settings &settings) { return valueOf(settings, kLastPlayer); }

void setLastPlayer(Settings &settings, std::string name)
{
    settings.insert_or_assign(kLastPlayer, std::move(name));
}

} // namespace KestCore
