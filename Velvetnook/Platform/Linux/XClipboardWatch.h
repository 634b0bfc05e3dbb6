// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/Clipboard/ClipboardDesktop.h"
#include "Velvetnook/Platform/Linux/XPasteboard.h"

#include <deque>
#include <mutex>
#include <thread>

namespace Velvetnook
{

// Sleeps until another application copies or something is asked, and tells of the one and does
// the other.
class XClipboardWatch : public ClipboardWatch
{
public:
    // Null where there is no X server that tells.
    static std::unique_ptr<ClipboardWatch> begin(ClipboardDesktop::Changed changed);
    ~XClipboardWatch() override;
    XClipboardWatch(const XClipboardWatch &) = delete;
    XClipboardWatch &operator=(const XClipboardWatch &) = delete;

    void ask(Task task) override;

private:
    // A number of the system that another thread can make readable.
    class Signal
    {
    public:
        Signal();
        ~Signal();
        Signal(const Signal &) = delete;
        Signal &operator=(const Signal &) = delete;

        int file() const { return m_file; }
        void raise() const;
        void lower() const;

    private:
        int m_file;
    };

    explicit XClipboardWatch(ClipboardDesktop::Changed changed);

    void run();
    void doTasks();

    ClipboardDesktop::Changed m_changed;
    Signal m_end;
    Signal m_asked;
    std::unique_ptr<XPasteboard> m_pasteboard;
    std::mutex m_mutex;
    std::deque<Task> m_tasks;
    bool m_isEnding = false;
    std::jthread m_worker; // last, so that it is joined before what it uses goes
};

} // namespace Velvetnook
