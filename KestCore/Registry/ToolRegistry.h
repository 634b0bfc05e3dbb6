// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Vocabulary.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace KestCore
{

// What the system knows of one tool before it runs.
struct ToolDescriptor {
    std::string id{};
    std::string title{};
    std::string icon{};
    std::string category{};                 // "faith" marks the devotional tools
    std::vector<std::string> permissions{}; // the system permissions that it needs
    std::string background{};               // what it does while it is not shown
    bool pinnable{};
    std::string status{}; // how mature it is
    std::string summary{};
    std::vector<std::string> configuration{}; // the settings keys that belong to it

    bool operator==(const ToolDescriptor &) const = default;
};

consteval auto jsonFields(Of<ToolDescriptor>)
{
    using R = ToolDescriptor;
    return std::tuple{
        json::Field{"id", &R::id},
        json::Field{"title", &R::title},
        json::Field{"icon", &R::icon},
        json::Field{"category", &R::category},
        json::Field{"permissions", &R::permissions},
        json::Field{"background", &R::background},
        json::Field{"pinnable", &R::pinnable},
        json::Field{"status", &R::status},
        json::Field{"summary", &R::summary},
        json::Field{"configuration", &R::configuration},
    };
}
static_assert(json::coversAllMembers<ToolDescriptor>());

// The catalogue of tools: data that ships with the program, read on first use and kept.
class ToolRegistry
{
public:
    ToolRegistry() = delete;

    // Every tool, in the order of the catalogue, which is also the natural display order.
    static const std::vector<ToolDescriptor> &tools();
    static bool knows(std::string_view id);
    static bool knowsAll(std::span<const std::string> ids);

    // The ids of the tools that are not devotional, in the order given.
    static std::vector<std::string>
    nonDevotionalIds(std::span<const ToolDescriptor> tools = ToolRegistry::tools());

    // Puts every tool that `order` lacks at its end, in catalogue order, so that a tool that
    // came with an update is found. Says whether there was one.
    static bool appendMissing(std::vector<std::string> &order);
};

} // namespace KestCore
