// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <expected>
#include <string>
#include <utility>

namespace Base
{

// What went wrong, with a message that is shown to the user as it stands.
struct KestError {
    enum class Kind : std::uint8_t {
        invalidData, // a record failed to decode or validate
        storage,     // the database failed; the message is SQLite's own
        unavailable, // a resource or service is missing
    };

    Kind kind{};
    std::string message{};

    static KestError invalidData(std::string message)
    {
        return {Kind::invalidData, std::move(message)};
    }
    static KestError storage(std::string message)
    {
        return {Kind::storage, std::move(message)};
    }
    static KestError unavailable(std::string message)
    {
        return {Kind::unavailable, std::move(message)};
    }

    bool operator==(const KestError &) const = default;
};

template <class T = void>
using Result = std::expected<T, KestError>;

} // namespace Base

#define KEST_CAT_(a, b) a##b
#define KEST_CAT(a, b) KEST_CAT_(a, b)
#define KEST_TRY_(tmp, decl, ...)                                                              \
    auto tmp = (__VA_ARGS__);                                                                  \
    if (!tmp) [[unlikely]] {                                                                   \
        return std::unexpected(std::move(tmp).error());                                        \
    }                                                                                          \
    decl = *std::move(tmp)

// Declares or assigns `decl` from a Result, or returns its error from the enclosing function.
#define KEST_TRY(decl, ...) KEST_TRY_(KEST_CAT(kestTry, __LINE__), decl, __VA_ARGS__)

#define KEST_CHECK_(tmp, ...)                                                                  \
    do {                                                                                       \
        if (auto tmp = (__VA_ARGS__); !tmp) [[unlikely]] {                                     \
            return std::unexpected(std::move(tmp).error());                                    \
        }                                                                                      \
    } while (false)

// Returns the error of a Result<void> step from the enclosing function.
#define KEST_CHECK(...) KEST_CHECK_(KEST_CAT(kestStep, __LINE__), __VA_ARGS__)
