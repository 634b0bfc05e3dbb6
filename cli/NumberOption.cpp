// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/NumberOption.h"

#include "Base/Text.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

namespace Cli
{

CLI::Option *addNumber(CLI::App *command, const std::string &name,
                       const std::function<void(double)> &take, const std::string &help,
                       NumberBounds bounds)
{
    const auto read = [take, bounds](const std::string &text) {
        const auto number = Base::numberFrom<double>(text);
        if (!number || !(std::abs(*number) <= std::numeric_limits<double>::max())) {
            throw CLI::ValidationError(fmt::format("\"{}\" is no number", text));
        }
        if (*number < bounds.lowest || *number > bounds.highest) {
            throw CLI::ValidationError(
                fmt::format("{} is not within {} and {}", text, bounds.lowest, bounds.highest));
        }
        take(*number);
    };
    return command->add_option_function<std::string>(name, read, help);
}

} // namespace Cli
