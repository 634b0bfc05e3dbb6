// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Surfaces/NotchInteraction.h"

#include <algorithm>
#include <cmath>

namespace KestCore
{

namespace
{

constexpr double kCloseGrace = 0.35;

InteractionState restingState(bool compactWhenIdle)
{
    return compactWhenIdle ? InteractionState::compact : InteractionState::hidden;
}

} // namespace

double usableOpenDelay(double seconds)
{
    return std::isfinite(seconds) ? std::clamp(seconds, kShortestOpenDelay, kLongestOpenDelay)
                                  : kUsualOpenDelay;
}

void NotchInteraction::pointer(bool inside, bool pressed, double now, double openDelay)
{
    if (state == InteractionState::suppressed) {
        return;
    }
    if (!inside) {
        rearm = true;
    }
    if (pressed) {
        pointerPressed();
        return;
    }
    if (state == InteractionState::interacting) {
        state = InteractionState::expanded;
    }
    if (inside) {
        pointerInside(now, openDelay);
    } else {
        pointerOutside(now);
    }
}

void NotchInteraction::pointerPressed()
{
    switch (state) {
    case InteractionState::hoverOpening:
        state = InteractionState::compact;
        deadline.reset();
        rearm = false;
        break;
    case InteractionState::expanded:
    case InteractionState::closing:
    case InteractionState::interacting:
        state = InteractionState::interacting;
        deadline.reset();
        break;
    default:
        break;
    }
}

void NotchInteraction::pointerInside(double now, double openDelay)
{
    switch (state) {
    case InteractionState::closing:
        state = InteractionState::expanded;
        deadline.reset();
        break;
    case InteractionState::hoverOpening:
        openWhenDue(now);
        break;
    case InteractionState::hidden:
    case InteractionState::compact:
        if (rearm) {
            state = InteractionState::hoverOpening;
            deadline = now + usableOpenDelay(openDelay);
            openWhenDue(now);
        }
        break;
    default:
        break;
    }
}

void NotchInteraction::pointerOutside(double now)
{
    if (state == InteractionState::hoverOpening) {
        state = InteractionState::compact;
        deadline.reset();
    } else if (state == InteractionState::expanded && !keyboardSticky) {
        state = InteractionState::closing;
        deadline = now + kCloseGrace;
    }
}

void NotchInteraction::openWhenDue(double now)
{
    if (deadline && *deadline <= now) {
        open(false);
    }
}

void NotchInteraction::tick(bool compactWhenIdle, double now)
{
    if (state == InteractionState::closing && deadline && *deadline <= now) {
        reset(compactWhenIdle);
    }
}

void NotchInteraction::open(bool sticky)
{
    state = InteractionState::expanded;
    deadline.reset();
    keyboardSticky = sticky;
    rearm = false;
}

void NotchInteraction::suppress()
{
    state = InteractionState::suppressed;
    deadline.reset();
    keyboardSticky = false;
}

void NotchInteraction::reset(bool compactWhenIdle)
{
    state = restingState(compactWhenIdle);
    deadline.reset();
    keyboardSticky = false;
    rearm = false;
}

} // namespace KestCore
