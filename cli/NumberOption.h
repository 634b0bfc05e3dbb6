// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <limits>
#include <string>

namespace CLI
{
class App;
class Option;
} // namespace CLI

namespace Cli
{

// A number within these bounds, both included.
struct NumberBounds {
    double lowest = std::numeric_limits<double>::lowest();
    double highest = std::numeric_limits<double>::max();
};

// Adds an option for a number, which is written with a point whatever the language, and is
// neither infinite nor "nan". CLI11's own reading follows the language and lets "nan" through.
CLI::Option *addNumber(CLI::App *command, const std::string &name,
                       const std::function<void(double)> &take, const std::string &help,
                       NumberBounds bounds = {});

} // namespace Cli
