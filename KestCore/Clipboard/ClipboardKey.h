// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/AesGcm.h"
#include "Base/SecretStore.h"
#include "KestCore/Registry/Availability.h"
#include "KestCore/Store/StateStore.h"
#include "KestCore/Vocabulary.h"

namespace KestCore
{

inline constexpr std::string_view kClipboardKeyAccount = "clipboard.key";

// The key that the system keeps, or nothing when it keeps none yet.
[[nodiscard]] Base::SecretResult<std::optional<Base::AesKey>>
keptClipboardKey(Base::SecretStore &secrets);

// The same, or a new one, which is kept before anybody gets it. Without a place to keep it
// there is no key, and so no history. Two that made a key at once would each seal under its
// own, and one of the two is lost: so only the owner of the store makes one.
[[nodiscard]] Base::SecretResult<Base::AesKey> clipboardKey(Base::SecretStore &secrets,
                                                            const StateStore &owned);

// How the clipboard tool stands when its key could not be had.
Availability availabilityOf(Base::SecretFailure::Kind kind);

} // namespace KestCore
