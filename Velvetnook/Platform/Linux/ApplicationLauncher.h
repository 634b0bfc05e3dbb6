// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Serial.h"
#include "MonitorLinux/InstalledApps.h"
#include "Velvetnook/Application/DockDesktop.h"

#include <QObject>

#include <memory>

namespace Velvetnook
{

// Knows the applications of the desktop's menus and starts them, and has files and links opened
// by whatever the desktop opens them with. Nothing goes through a shell. It reads on a thread
// of its own, which is there from the first question on; answers arrive on the main thread, and
// never after this is gone.
class ApplicationLauncher : public QObject
{
    Q_OBJECT

public:
    explicit ApplicationLauncher(MonitorLinux::AppPlaces places, QObject *parent = nullptr);
    ~ApplicationLauncher() override;

    // Valid for as long as this is there.
    DockDesktop desktop();

private:
    using Places = MonitorLinux::AppPlaces;

    template <class Op, class Answer>
    void ask(Op op, Answer answer);

    Places m_places;
    std::unique_ptr<Base::Serial<Places>> m_reader;
};

} // namespace Velvetnook
