// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Surfaces/CompanionLayout.h"

#include <algorithm>

namespace KestCore
{

namespace
{

constexpr double kScreenMargin = 8;  // kept free around the panel
constexpr double kTabGap = 10;       // between the tab and the panel
constexpr double kCalloutDepth = 14; // the panel's side that faces the tab has a callout
constexpr double kFloatingInset = 2;

double tabThickness(std::string_view iconSize)
{
    if (iconSize == "large") {
        return 84;
    }
    return iconSize == "medium" ? 76 : 68;
}

double atMost(double wanted, double room) { return std::max(0.0, std::min(wanted, room)); }

// Where a panel of this length starts so that it is centred on the anchor and stays inside.
double startAround(double anchor, double length, double low, double high)
{
    const double last = std::max(low + kScreenMargin, high - kScreenMargin - length);
    return std::clamp(anchor - length / 2, low + kScreenMargin, last);
}

double pointerAt(double anchor, double start, double length)
{
    return length > 0 ? std::clamp((anchor - start) / length, 0.1, 0.9) : 0.5;
}

EdgeFrames layOutAtBottom(const DockPlace &place, double thickness, double inset)
{
    const Rect &screen = place.screen;
    EdgeFrames frames;
    frames.tab = {.x = screen.midX() - (thickness + 112) / 2,
                  .y = screen.y + inset,
                  .width = thickness + 112,
                  .height = thickness + 8};
    if (!place.panel) {
        return frames;
    }
    const double anchor = place.anchor.value_or(frames.tab.midX());
    const double width = atMost(place.panel->width, screen.width - 2 * kScreenMargin);
    const double taken = inset + frames.tab.height + kTabGap + kScreenMargin;
    const double height = atMost(place.panel->height + kCalloutDepth, screen.height - taken);
    const double x = startAround(anchor, width, screen.x, screen.maxX());
    frames.panel = {.x = x, .y = frames.tab.maxY() + kTabGap, .width = width, .height = height};
    frames.pointer = pointerAt(anchor, x, width);
    return frames;
}

EdgeFrames layOutAtSide(const DockPlace &place, double thickness, double inset)
{
    const Rect &screen = place.screen;
    const bool isLeft = place.edge == "left";
    EdgeFrames frames;
    frames.tab = {.x = isLeft ? screen.x + inset : screen.maxX() - thickness - inset,
                  .y = screen.midY() - (thickness + 126) / 2,
                  .width = thickness,
                  .height = thickness + 126};
    if (!place.panel) {
        return frames;
    }
    const double anchor = place.anchor.value_or(frames.tab.midY());
    const double taken = inset + thickness + kTabGap + kScreenMargin;
    const double width = atMost(place.panel->width + kCalloutDepth, screen.width - taken);
    const double height = atMost(place.panel->height, screen.height - 2 * kScreenMargin);
    const double y = startAround(anchor, height, screen.y, screen.maxY());
    frames.panel = {.x = isLeft ? frames.tab.maxX() + kTabGap : frames.tab.x - kTabGap - width,
                    .y = y,
                    .width = width,
                    .height = height};
    frames.pointer = pointerAt(anchor, y, height);
    return frames;
}

} // namespace

EdgeFrames layOutDock(const DockPlace &place)
{
    const double thickness = tabThickness(place.iconSize);
    const double inset = place.floating ? kFloatingInset : 0;
    return place.edge == "bottom" ? layOutAtBottom(place, thickness, inset)
                                  : layOutAtSide(place, thickness, inset);
}

} // namespace KestCore
