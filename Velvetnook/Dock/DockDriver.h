// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Edge/EdgeDriver.h"

#include <QTimer>

namespace Velvetnook
{

class DockViewModel;

// Decides when the dock's panel opens and closes and when a tab that hides comes out, by the
// rules of the notch.
class DockDriver final : public EdgeDriver
{
    Q_OBJECT

public:
    DockDriver(ApplicationModel &model, DockViewModel &dock, SteadyTime steady,
               QObject *parent = nullptr);

    void pointer(bool isInside, bool isPressed) override;
    // Something is dragged over it: it opens at once.
    void dragEntered();
    void setFullScreen(bool isFullScreen);

private:
    bool opensByHover() const override;
    int dialogDepth() const override;
    void adjust() override;
    void tellViews() override;
    void passTime() override;
    void activate(int workspace);
    void point(int workspace);

    DockViewModel &m_dock;
    QTimer m_turnTimer;   // until the pointer has rested on another slot
    QTimer m_hidingTimer; // until a tab that hides goes
    int m_pointed = -1;   // the slot under the pointer
    bool m_isFullScreen = false;
};

} // namespace Velvetnook
