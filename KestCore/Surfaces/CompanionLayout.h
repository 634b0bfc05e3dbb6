// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

namespace KestCore
{

// A rectangle in points, y growing upwards.
struct Rect {
    double x{};
    double y{};
    double width{};
    double height{};

    double maxX() const { return x + width; }
    double maxY() const { return y + height; }
    double midX() const { return x + width / 2; }
    double midY() const { return y + height / 2; }

    bool operator==(const Rect &) const = default;
};

// Where the dock stands.
struct EdgeFrames {
    Rect tab{};                  // the dock strip
    std::optional<Rect> panel{}; // absent when no panel is wanted
    double pointer = 0.5;        // the callout's place along the panel's facing side, from its
                                 // minimum y (side edges) or minimum x (bottom edge)

    bool operator==(const EdgeFrames &) const = default;
};

struct PanelSize {
    double width{};
    double height{};
};

struct DockPlace {
    Rect screen{};           // the visible frame of the screen
    std::string_view edge{}; // left, right, bottom; any other is laid out as right
    std::string_view iconSize{};
    bool floating{};
    std::optional<PanelSize> panel{}; // the panel size wanted
    std::optional<double> anchor{};   // along the edge; the tab's centre unless given
};

// The frames of the dock at a screen edge.
EdgeFrames layOutDock(const DockPlace &place);

} // namespace KestCore
