// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/DesktopServices.h"

#include "HttpTransport/HttpTransport.h"
#include "SecretService/SecretService.h"
#include "Velvetnook/Platform/Linux/BusPlayers.h"
#include "Velvetnook/Platform/Linux/PulseMixer.h"

namespace Velvetnook
{

namespace
{

Base::Result<std::vector<BrowserBridge::BrowserTab>> browserTabs(std::uint16_t port)
{
    KEST_TRY(auto bridge, BrowserBridge::Bridge::open(port));
    return bridge.tabs();
}

Base::Result<std::optional<KestCore::BrowserPlayback>>
playInTab(const KestCore::ConnectedTab &tab,
          const KestCore::BrowserPlaybackScript::Action &action)
{
    KEST_TRY(auto bridge, BrowserBridge::Bridge::open(tab.port));
    KEST_TRY(const bool isOpen, bridge.hasTab(tab.tab));
    if (!isOpen) {
        return std::unexpected(BrowserBridge::tabGone());
    }
    return bridge.run(tab.tab, action);
}

} // namespace

ToolServices desktopServices(const QDBusConnection &session)
{
    return {.openTransport = [] { return Web::openTransport(); },
            .openSecrets = Keyring::open,
            .browserTabs = browserTabs,
            .playInTab = playInTab,
            .makePlayers = [session](QObject *parent) -> Players * {
                return new BusPlayers{session, parent};
            },
            .makeSoundMixer = [](QObject *parent) -> SoundMixer * {
                return new PulseMixer{parent};
            }};
}

} // namespace Velvetnook
