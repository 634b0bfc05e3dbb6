// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Linux/XClipboardWatch.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <array>
#include <utility>

namespace Velvetnook
{

XClipboardWatch::Signal::Signal() : m_file{eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)} {}

XClipboardWatch::Signal::~Signal() { close(m_file); }

void XClipboardWatch::Signal::raise() const { eventfd_write(m_file, 1); }

void XClipboardWatch::Signal::lower() const
{
    eventfd_t count = 0;
    eventfd_read(m_file, &count);
}

std::unique_ptr<ClipboardWatch> XClipboardWatch::begin(ClipboardDesktop::Changed changed)
{
    std::unique_ptr<XClipboardWatch> watch{new XClipboardWatch{std::move(changed)}};
    auto selection = XSelection::open(watch->m_end.file());
    if (!selection) {
        return nullptr;
    }
    watch->m_pasteboard = std::make_unique<XPasteboard>(std::move(selection));
    watch->m_worker = std::jthread{[watch = watch.get()] { watch->run(); }};
    return watch;
}

XClipboardWatch::XClipboardWatch(ClipboardDesktop::Changed changed)
    : m_changed{std::move(changed)}
{
}

XClipboardWatch::~XClipboardWatch()
{
    {
        const std::scoped_lock lock{m_mutex};
        m_isEnding = true;
    }
    m_end.raise();
}

void XClipboardWatch::ask(Task task)
{
    {
        const std::scoped_lock lock{m_mutex};
        m_tasks.push_back(std::move(task));
    }
    m_asked.raise();
}

void XClipboardWatch::doTasks()
{
    m_asked.lower();
    while (true) {
        Task task;
        {
            const std::scoped_lock lock{m_mutex};
            if (m_isEnding || m_tasks.empty()) {
                return;
            }
            task = std::move(m_tasks.front());
            m_tasks.pop_front();
        }
        task(*m_pasteboard);
    }
}

void XClipboardWatch::run()
{
    XSelection &selection = m_pasteboard->selection();
    std::int64_t told = 0;
    bool isServed = true; // the server may go before us
    while (true) {
        doTasks();
        if (const std::int64_t change = selection.changeCount(); change != told) {
            told = change;
            m_changed();
        }
        isServed = isServed && xcb_connection_has_error(selection.server()) == 0;
        const int server = isServed ? xcb_get_file_descriptor(selection.server()) : -1;
        std::array<pollfd, 3> files{{{.fd = m_end.file(), .events = POLLIN, .revents = 0},
                                     {.fd = m_asked.file(), .events = POLLIN, .revents = 0},
                                     {.fd = server, .events = POLLIN, .revents = 0}}};
        poll(files.data(), files.size(), -1);
        if (files[0].revents != 0) {
            return;
        }
    }
}

} // namespace Velvetnook
