// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/SecretStore.h"

#include <cstdint>
#include <memory>
#include <stop_token>

// libsecret has taken the folder's own name.
namespace Keyring
{

// Whether the desktop may ask the user to unlock the keyring. Never where nobody would see
// the question: the program would hang.
enum class Prompts : std::uint8_t { never, allowed };

// The desktop's Secret Service. Its library is loaded here, on first use and for the life of
// the process, as most commands do without it and start faster so. Each call ends in bounded
// time, and fails soon after `stop` is requested. Fails with noService when the module or the
// service is missing.
[[nodiscard]] Base::SecretResult<std::unique_ptr<Base::SecretStore>>
open(Prompts prompts, const std::stop_token &stop = {});

// What the module exports under the name kestMakeSecretStore; the caller owns the store.
using MakeSecretStore = Base::SecretStore *(Prompts prompts, const std::stop_token &stop);

} // namespace Keyring
