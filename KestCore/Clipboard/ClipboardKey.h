// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/AesGcm.h"
#include "Base/SecretStore.h"
#include "KestCore/Registry/Availability.h"
#include "KestCore/Vocabulary.h"

#include <chrono>
#include <filesystem>
#include <stop_token>

namespace KestCore
{

inline constexpr std::string_view kClipboardKeyAccount = "clipboard.key";
inline constexpr std::chrono::milliseconds kClipboardKeyPatience{5000}; // for who makes one

// The key that the system keeps, or nothing when it keeps none yet.
[[nodiscard]] Base::SecretResult<std::optional<Base::AesKey>>
keptClipboardKey(Base::SecretStore &secrets);

// The same, or a new one, which is kept before anybody gets it. Without a place to keep it
// there is no key, and so no history. Two that made a key at once would each seal under its
// own, and one of the two is lost: so it is made under a lock of its own beside the database,
// which nobody else waits for. Needs no store; the keyring may take its time.
[[nodiscard]] Base::SecretResult<Base::AesKey>
clipboardKey(Base::SecretStore &secrets, const std::filesystem::path &database,
             const std::stop_token &stop = {});

// How the clipboard tool stands when its key could not be had.
Availability availabilityOf(Base::SecretFailure::Kind kind);

} // namespace KestCore
