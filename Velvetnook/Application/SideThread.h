// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Serial.h"

#include <QMetaObject>
#include <QObject>

#include <memory>
#include <optional>
#include <utility>

namespace Velvetnook
{

// A thread for what could hold up the drawing, with what only it touches. It is started by the
// first thing it is asked, and waits without waking.
template <class T>
class SideThread
{
public:
    // Runs `op` there and hands its result to `done` on the main thread, in the order of the
    // asking; not once `context` is gone.
    template <class Op, class Done>
    void ask(QObject *context, Op op, Done done)
    {
        if (!m_serial) {
            m_serial.emplace(T{});
        }
        m_serial->ask(
            std::move(op),
            [context](auto call) {
                auto shared = std::make_shared<decltype(call)>(std::move(call));
                QMetaObject::invokeMethod(
                    context, [shared] { (*shared)(); }, Qt::QueuedConnection);
            },
            std::move(done));
    }

    // The same without a result.
    template <class Op>
    void tell(QObject *context, Op op)
    {
        ask(
            context,
            [op = std::move(op)](T &held) mutable {
                op(held);
                return true;
            },
            [](bool) {});
    }

private:
    std::optional<Base::Serial<T>> m_serial;
};

} // namespace Velvetnook
