// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/EndSignals.h"

#include <QSocketNotifier>

#include <sys/eventfd.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdint>

namespace Velvetnook
{

namespace
{

constexpr std::array kEnds{SIGINT, SIGTERM, SIGHUP};

std::atomic<int> theEvent = -1;
static_assert(std::atomic<int>::is_always_lock_free, "a signal's handler reads it");

void tell(int /*signal*/)
{
    const int before = errno;
    const std::uint64_t one = 1;
    [[maybe_unused]] const auto written = write(theEvent.load(), &one, sizeof one);
    errno = before;
}

void onEnds(void (*handler)(int))
{
    struct sigaction action{};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int end : kEnds) {
        sigaction(end, &action, nullptr);
    }
}

} // namespace

EndSignals::EndSignals(QObject *parent)
    : QObject{parent}, m_event{eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)}
{
    std::signal(SIGXFSZ, SIG_IGN);
    theEvent = m_event;
    auto *notifier = new QSocketNotifier{m_event, QSocketNotifier::Read, this};
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        std::uint64_t times = 0;
        if (read(m_event, &times, sizeof times) > 0) {
            emit endWanted();
        }
    });
    onEnds(tell);
}

EndSignals::~EndSignals()
{
    onEnds(SIG_DFL);
    theEvent = -1;
    close(m_event);
}

} // namespace Velvetnook
