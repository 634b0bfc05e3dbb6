// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/EnumText.h"

#include <cstdint>
#include <optional>

namespace KestCore
{

enum class InteractionState : std::uint8_t {
    hidden,       // nothing is shown
    compact,      // the closed strip is shown
    hoverOpening, // the pointer is on the strip and the open delay runs
    expanded,     // the panel is open
    interacting,  // a press or drag is in progress in the open panel
    closing,      // the pointer has left the open panel and the grace runs
    suppressed,   // switched off; no pointer event changes it
};

constexpr auto enumTexts(Base::Of<InteractionState>)
{
    using enum InteractionState;
    return Base::EnumTexts<InteractionState, 7>{{
        {hidden, "hidden"},
        {compact, "compact"},
        {hoverOpening, "hoverOpening"},
        {expanded, "expanded"},
        {interacting, "interacting"},
        {closing, "closing"},
        {suppressed, "suppressed"},
    }};
}

// The places from which the tools can be summoned.
enum class QuickSurface : std::uint8_t { notch, dock, command };

constexpr auto enumTexts(Base::Of<QuickSurface>)
{
    using enum QuickSurface;
    return Base::EnumTexts<QuickSurface, 3>{
        {{notch, "notch"}, {dock, "dock"}, {command, "command"}}};
}

// The shell's view of its surface.
struct SurfaceState {
    bool expanded{};
    bool externalDialogVisible{};
    int dialogDepth{}; // nested dialogs open over the surface
    bool suppressed{};

    bool operator==(const SurfaceState &) const = default;
};

// How long the pointer must rest on the strip to open it, in seconds.
inline constexpr double kShortestOpenDelay = 0.1;
inline constexpr double kUsualOpenDelay = 0.18;
inline constexpr double kLongestOpenDelay = 1.5;
// Within these; the usual delay for what is no number.
double usableOpenDelay(double seconds);

// Decides when the notch panel opens and closes. Owns no timer and no window: the shell feeds
// it what it observes, each with the time in seconds on one monotonic scale, and shows
// `state`. While `hoverOpening` the shell goes on sending pointer observations, as only they
// act on the open delay; while `closing` it sends ticks.
struct NotchInteraction {
    InteractionState state = InteractionState::compact;
    std::optional<double> deadline{}; // when the running delay ends
    bool keyboardSticky = false;      // must not close because the pointer is elsewhere
    bool rearm = true;                // hovering may open; set once the pointer was outside

    // One observation: whether the pointer is over the surface, whether a button is down or a
    // drag in progress on it, and the hover-open delay asked for, in seconds.
    void pointer(bool inside, bool pressed, double now, double openDelay);
    // Ends the close grace; at rest the strip shows when `compactWhenIdle`.
    void tick(bool compactWhenIdle, double now);
    void open(bool sticky);
    void suppress();
    void reset(bool compactWhenIdle);

    bool operator==(const NotchInteraction &) const = default;

private:
    void pointerPressed();
    void pointerInside(double now, double openDelay);
    void pointerOutside(double now);
    void openWhenDue(double now);
};

} // namespace KestCore
