// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Http.h"
#include "Base/Result.h"
#include "Base/SecretStore.h"
#include "BrowserBridge/BrowserBridge.h"
#include "KestCore/Media/PlaybackSettings.h"
#include "SecretService/SecretService.h"

#include <functional>
#include <memory>

class QObject;

namespace Velvetnook
{

class Players;
class SoundMixer;

// What the tools need of the world outside. Each is made when its tool first needs it; where
// one is missing, its tool says that this is so.
struct ToolServices {
    // These are called on a worker thread, and may block there.
    std::function<Base::Result<std::unique_ptr<Base::HttpTransport>>()> openTransport{};
    // Asks the user for a password only where that is allowed, and stops waiting for an answer
    // when asked to.
    std::function<Base::SecretResult<std::unique_ptr<Base::SecretStore>>(
        Keyring::Prompts, const std::stop_token &)>
        openSecrets{};
    std::function<Base::Result<std::vector<BrowserBridge::BrowserTab>>(std::uint16_t port)>
        browserTabs{};
    std::function<Base::Result<std::optional<KestCore::BrowserPlayback>>(
        const KestCore::ConnectedTab &tab,
        const KestCore::BrowserPlaybackScript::Action &action)>
        playInTab{};
    // On the main thread; what they make belongs to `parent`.
    std::function<Players *(QObject *parent)> makePlayers{};
    std::function<SoundMixer *(QObject *parent)> makeSoundMixer{};
};

} // namespace Velvetnook
