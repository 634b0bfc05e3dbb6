// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Surfaces/CompanionLayout.h"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <cmath>

namespace KestCore
{

// gtest finds it by this name.
// NOLINTNEXTLINE(misc-use-internal-linkage,readability-identifier-naming)
void PrintTo(const EdgeFrames &frames, std::ostream *out)
{
    const auto print = [&](const Rect &r) {
        *out << "[" << r.x << " " << r.y << " " << r.width << " " << r.height << "] ";
    };
    print(frames.tab);
    if (frames.panel) {
        print(*frames.panel);
    }
    *out << frames.pointer;
}

} // namespace KestCore

namespace KestCoreTests
{

using namespace KestCore;

namespace
{

constexpr Rect kScreen{.x = 100, .y = 50, .width = 1000, .height = 800};

bool isInside(const Rect &inner, const Rect &outer)
{
    constexpr double kSlack = 1e-6;
    return inner.x >= outer.x + 8 - kSlack && inner.maxX() <= outer.maxX() - 8 + kSlack &&
           inner.y >= outer.y + 8 - kSlack && inner.maxY() <= outer.maxY() - 8 + kSlack;
}

bool isSound(const Rect &rect)
{
    return std::isfinite(rect.x) && std::isfinite(rect.y) && rect.width >= 0 &&
           rect.height >= 0 && std::isfinite(rect.width) && std::isfinite(rect.height);
}

} // namespace

TEST(CompanionLayout, StandsAtItsEdge)
{
    struct Case {
        std::string_view edge;
        std::string_view size;
        bool floating;
        Rect tab;
    };
    for (const auto &[edge, size, floating, tab] : {
             Case{"left", "small", true, {102, 353, 68, 194}},
             Case{"left", "large", false, {100, 345, 84, 210}},
             Case{"right", "medium", true, {1022, 349, 76, 202}},
             Case{"right", "mini", false, {1032, 353, 68, 194}},
             Case{"top", "huge", false, {1032, 353, 68, 194}},
             Case{"bottom", "small", true, {510, 52, 180, 76}},
             Case{"bottom", "large", false, {502, 50, 196, 92}},
         }) {
        const auto frames = layOutDock(
            {.screen = kScreen, .edge = edge, .iconSize = size, .floating = floating});
        EXPECT_EQ(frames, (EdgeFrames{.tab = tab})) << edge << " " << size;
    }
}

TEST(CompanionLayout, OpensItsPanelBesideTheTab)
{
    struct Case {
        std::string_view edge;
        PanelSize wanted;
        std::optional<double> anchor;
        Rect panel;
        double pointer;
    };
    for (const auto &[edge, wanted, anchor, panel, pointer] : {
             Case{"left", {300, 400}, {}, {180, 250, 314, 400}, 0.5},
             Case{"right", {300, 400}, {}, {706, 250, 314, 400}, 0.5},
             Case{"left", {300, 400}, 350, {180, 150, 314, 400}, 0.5},
             Case{"left", {300, 400}, 158, {180, 58, 314, 400}, 0.25},
             Case{"left", {300, 400}, 60, {180, 58, 314, 400}, 0.1},
             Case{"left", {300, 400}, 742, {180, 442, 314, 400}, 0.75},
             Case{"left", {300, 400}, 9000, {180, 442, 314, 400}, 0.9},
             Case{"left", {898, 784}, {}, {180, 58, 912, 784}, 0.5},
             Case{"left", {899, 785}, {}, {180, 58, 912, 784}, 0.5},
             Case{"right", {5000, 5000}, {}, {108, 58, 912, 784}, 0.5},
             Case{"bottom", {300, 400}, {}, {450, 138, 300, 414}, 0.5},
             Case{"bottom", {300, 400}, 183, {108, 138, 300, 414}, 0.25},
             Case{"bottom", {300, 400}, 0, {108, 138, 300, 414}, 0.1},
             Case{"bottom", {300, 400}, 9000, {792, 138, 300, 414}, 0.9},
             Case{"bottom", {5000, 5000}, {}, {108, 138, 984, 704}, 0.5},
         }) {
        const auto frames = layOutDock({.screen = kScreen,
                                        .edge = edge,
                                        .iconSize = "small",
                                        .floating = true,
                                        .panel = wanted,
                                        .anchor = anchor});
        EXPECT_EQ(frames, (EdgeFrames{frames.tab, panel, pointer})) << edge << " " << pointer;
    }
}

RC_GTEST_PROP(CompanionLayout, KeepsEveryPanelOnTheScreen, ())
{
    const auto length = [](int from, int to) { return *rc::gen::inRange(from, to) / 4.0; };
    const DockPlace place{
        .screen = {length(-8000, 8000), length(-8000, 8000), length(0, 8000), length(0, 8000)},
        .edge = *rc::gen::element<std::string_view>("left", "right", "bottom"),
        .iconSize = *rc::gen::element<std::string_view>("small", "medium", "large"),
        .floating = *rc::gen::arbitrary<bool>(),
        .panel = PanelSize{length(-40, 12000), length(-40, 12000)},
        .anchor =
            *rc::gen::arbitrary<bool>() ? std::optional{length(-40000, 40000)} : std::nullopt,
    };
    const auto frames = layOutDock(place);
    RC_ASSERT(isSound(frames.tab));
    RC_ASSERT(isSound(frames.panel.value()));
    RC_ASSERT(frames.pointer >= 0.1 && frames.pointer <= 0.9);
    if (frames.panel->width > 0 && frames.panel->height > 0) {
        RC_ASSERT(isInside(*frames.panel, place.screen));
    }
}

} // namespace KestCoreTests
