// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Secret.h"

#include <expected>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Base
{

// Why a secret could not be read or kept. That there is none is no failure.
struct SecretFailure {
    enum class Kind : std::uint8_t {
        noService, // nothing on this system keeps secrets, or it has nowhere to keep them
        locked,    // it is there and must be unlocked first
        failed,    // anything else
    };

    Kind kind{};
    std::string message{}; // shown to the user as it stands
};

template <class T = void>
using SecretResult = std::expected<T, SecretFailure>;

// Where the system keeps this program's secrets, each under the name of an account.
class SecretStore
{
public:
    SecretStore() = default;
    virtual ~SecretStore() = default;
    SecretStore(const SecretStore &) = delete;
    SecretStore &operator=(const SecretStore &) = delete;

    // Nothing when there is no such secret. Never nothing for one that is only locked.
    [[nodiscard]] virtual SecretResult<std::optional<SecretBytes>>
    read(std::string_view account) = 0;
    [[nodiscard]] virtual SecretResult<> write(std::string_view account,
                                               std::span<const std::uint8_t> secret) = 0;
    // There need not be one.
    [[nodiscard]] virtual SecretResult<> erase(std::string_view account) = 0;
};

} // namespace Base
