// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Serial.h"
#include "KestCore/Store/StateStore.h"

#include <QObject>

#include <deque>
#include <functional>
#include <optional>

namespace Velvetnook
{

using Base::KestError;
using Base::Result;

// What the store holds after an operation. Parts that the operation did not touch are absent.
struct Committed {
    std::optional<KestCore::NativeState> state{};
    std::optional<KestCore::CompanionState> companion{};
    std::optional<Base::SharedList<KestCore::RecordRef>> records{};
};

Committed committedAll(KestCore::Snapshot snapshot);

// The store, on a thread of its own. Lives on the main thread, and answers arrive there, in
// the order of the operations. The store can be lent to another program: what is asked while
// it is away waits and is done when it is back.
class StateKeeper : public QObject
{
    Q_OBJECT

public:
    using Operation = std::move_only_function<Result<Committed>(KestCore::StateStore &)>;
    using Answer = std::move_only_function<void(Result<Committed>)>;

    // `file` is where `store` was opened.
    StateKeeper(std::filesystem::path file, KestCore::StateStore store,
                QObject *parent = nullptr);
    ~StateKeeper() override;
    StateKeeper(const StateKeeper &) = delete;
    StateKeeper &operator=(const StateKeeper &) = delete;

    const std::filesystem::path &file() const { return m_file; }
    void perform(Operation operation, Answer answer);

    // Gives the store up for another program and calls `lent` once its lock is free.
    void lend(std::function<void()> lent);
    // Opens it again and tells what it holds now: nothing when nobody has changed it. When that
    // fails the store stays away, and what waits goes on waiting for a later call.
    void takeBack(std::function<void(Result<Committed>)> back);
    bool isLent() const { return m_isLent; }

    // Waits until all that was asked is done, also what waits for a store that is away. For the
    // end of the program: answers come only when the main loop goes on.
    void finish();

private:
    struct Slot {
        std::filesystem::path file;
        std::optional<KestCore::StateStore> store;
        std::int64_t lentRevision = 0; // what the store held then
    };
    struct Waiting {
        Operation operation;
        Answer answer;
    };

    [[nodiscard]] static Result<Committed> reopen(Slot &slot);
    void send(Operation operation, Answer answer);
    void sendWaiting();
    auto onMainThread();

    std::filesystem::path m_file;
    Base::Serial<Slot> m_slot;
    std::deque<Waiting> m_waiting;
    bool m_isLent = false;
};

} // namespace Velvetnook
