// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <concepts>
#include <condition_variable>
#include <deque>
#include <functional>
#include <future>
#include <mutex>
#include <stop_token>
#include <thread>
#include <type_traits>
#include <utility>

namespace Base
{

// Owns one T and runs every operation on it one at a time, in order, on a thread of its own.
// So T itself needs no lock and tests without threads. May be asked from any thread.
// Destruction waits until every operation already accepted has run.
template <class T>
class Serial
{
public:
    explicit Serial(T owned)
        : m_owned(std::move(owned)),
          m_worker([this](const std::stop_token &stop) { run(stop); })
    {
    }
    ~Serial() = default;
    Serial(const Serial &) = delete;
    Serial &operator=(const Serial &) = delete;

    // Runs `op` on the owned value; the future gives its result or what it threw. Do not
    // wait for the future on the thread that draws.
    template <std::invocable<T &> Op>
    [[nodiscard]] auto ask(Op op) -> std::future<std::invoke_result_t<Op &, T &>>
    {
        std::packaged_task<std::invoke_result_t<Op &, T &>(T &)> task{std::move(op)};
        auto answer = task.get_future();
        push(std::move(task));
        return answer;
    }

    // Runs `op` and hands its result to `done` through `resume`, which takes a callable and
    // runs it where the caller lives (the main loop). An `op` that throws ends the program.
    template <std::invocable<T &> Op, class Resume, class Done>
    void ask(Op op, Resume resume, Done done)
    {
        push([op = std::move(op), resume = std::move(resume),
              done = std::move(done)](T &owned) mutable noexcept {
            resume([done = std::move(done), value = op(owned)]() mutable {
                done(std::move(value));
            });
        });
    }

private:
    using Task = std::move_only_function<void(T &)>;

    void push(Task task)
    {
        {
            const std::scoped_lock lock{m_mutex};
            m_tasks.push_back(std::move(task));
        }
        m_wake.notify_one();
    }

    void run(const std::stop_token &stop)
    {
        std::unique_lock lock{m_mutex};
        while (m_wake.wait(lock, stop, [this] { return !m_tasks.empty(); })) {
            Task task = std::move(m_tasks.front());
            m_tasks.pop_front();
            lock.unlock();
            task(m_owned);
            task = nullptr; // what it captured dies before the next waits
            lock.lock();
        }
    }

    T m_owned;
    std::mutex m_mutex;
    std::condition_variable_any m_wake;
    std::deque<Task> m_tasks;
    std::jthread m_worker; // last, so that it is joined before what it uses goes
};

} // namespace Base
