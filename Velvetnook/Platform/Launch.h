// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <span>

namespace Velvetnook
{

// What the command line asks of a start.
struct Launch {
    enum class Wish : std::uint8_t {
        start,
        help,
        version,
        capabilities,
        misuse // `problem` says what nobody understands
    };

    Wish wish = Wish::start;
    QString action{};     // what the running application is to do; empty: come forward
    bool isQuiet = false; // a start at login: a second one leaves the first alone
    QString problem{};

    // `arguments` without the program's name.
    static Launch from(std::span<const char *const> arguments);
    static const char *helpText();

    bool operator==(const Launch &) const = default;
};

} // namespace Velvetnook
