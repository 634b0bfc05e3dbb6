// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "SecretService/SecretService.h"

#include "Base/Module.h"

namespace Keyring
{

namespace
{

Base::SecretFailure missing(const std::string &reason)
{
    return {.kind = Base::SecretFailure::Kind::noService,
            .message = "The part that speaks to the keyring cannot be loaded: " + reason};
}

} // namespace

Base::SecretResult<std::unique_ptr<Base::SecretStore>> open(Prompts prompts,
                                                            const std::stop_token &stop)
{
    const auto symbol = Base::loadFromModule("KestSecretService.so", "kestMakeSecretStore");
    if (!symbol) {
        return std::unexpected(missing(symbol.error()));
    }
    const auto make = reinterpret_cast<MakeSecretStore *>(*symbol);
    return std::unique_ptr<Base::SecretStore>{make(prompts, stop)};
}

} // namespace Keyring
