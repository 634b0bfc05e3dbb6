// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/AesGcm.h"
#include "Base/SecretStore.h"
#include "KestCore/Registry/Availability.h"
#include "KestCore/Vocabulary.h"

namespace KestCore
{

inline constexpr std::string_view kClipboardKeyAccount = "clipboard.key";

// The key of the history: the one that the system keeps, or a new one, which is kept there
// before anybody gets it. Without a place to keep it there is no key, and so no history.
[[nodiscard]] Base::SecretResult<Base::AesKey> clipboardKey(Base::SecretStore &secrets);

// How the clipboard tool stands when its key could not be had.
Availability availabilityOf(Base::SecretFailure::Kind kind);

} // namespace KestCore
