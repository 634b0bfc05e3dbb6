// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/StateKeeper.h"

#include <cstdio>
#include <utility>

namespace Velvetnook
{

Committed committedAll(KestCore::Snapshot snapshot)
{
    return {.state = std::move(snapshot.state),
            .companion = std::move(snapshot.companion),
            .records = std::move(snapshot.records)};
}

StateKeeper::StateKeeper(std::filesystem::path file, KestCore::StateStore store,
                         QObject *parent)
    : QObject{parent}, m_file{file},
      m_slot{Slot{.file = std::move(file), .store = std::move(store)}}
{
}

StateKeeper::~StateKeeper() { finish(); }

void StateKeeper::finish()
{
    if (m_isLent && !m_waiting.empty()) {
        m_isLent = false;
        auto reopened = m_slot.ask([](Slot &slot) { return reopen(slot).has_value(); });
        if (!reopened.get()) {
            std::fprintf(stderr, "velvetnook: %zu changes could not be saved: %s\n",
                         m_waiting.size(), "another program has the data");
        }
        sendWaiting();
    }
    m_slot.ask([](Slot &) {}).wait();
}

// Hands a call to the main loop. The queue of this object dies with it, after the store's
// thread has ended, so no answer reaches what is gone.
auto StateKeeper::onMainThread()
{
    return [this](auto call) {
        auto shared = std::make_shared<decltype(call)>(std::move(call));
        QMetaObject::invokeMethod(this, [shared] { (*shared)(); }, Qt::QueuedConnection);
    };
}

void StateKeeper::perform(Operation operation, Answer answer)
{
    if (m_isLent) {
        m_waiting.push_back({.operation = std::move(operation), .answer = std::move(answer)});
        return;
    }
    send(std::move(operation), std::move(answer));
}

void StateKeeper::send(Operation operation, Answer answer)
{
    m_slot.ask(
        [operation = std::move(operation)](Slot &slot) mutable -> Result<Committed> {
            return slot.store ? operation(*slot.store)
                              : std::unexpected(
                                    KestError::unavailable("Another program has the data"));
        },
        onMainThread(), std::move(answer));
}

void StateKeeper::lend(std::function<void()> lent)
{
    m_isLent = true;
    m_slot.ask(
        [](Slot &slot) {
            if (slot.store) {
                slot.lentRevision = slot.store->state().revision;
                slot.store.reset();
            }
            return true;
        },
        onMainThread(), [lent = std::move(lent)](bool) { lent(); });
}

Result<Committed> StateKeeper::reopen(Slot &slot)
{
    KEST_TRY(auto opened, KestCore::StateStore::open(slot.file));
    opened.leaveClipboardOnDisk();
    // Every change raises the revision. Without one there is no need to read the records.
    if (opened.state().revision == slot.lentRevision) {
        slot.store = std::move(opened);
        return Committed{};
    }
    KEST_TRY(KestCore::Snapshot snapshot, opened.snapshot());
    slot.store = std::move(opened);
    return committedAll(std::move(snapshot));
}

void StateKeeper::takeBack(std::function<void(Result<Committed>)> back)
{
    m_slot.ask([](Slot &slot) { return reopen(slot); }, onMainThread(),
               [this, back = std::move(back)](Result<Committed> held) {
                   const bool isBack = held.has_value();
                   m_isLent = !isBack;
                   if (isBack) {
                       sendWaiting(); // before whatever else the answer makes anybody ask
                   }
                   back(std::move(held));
               });
}

void StateKeeper::sendWaiting()
{
    while (!m_waiting.empty()) {
        Waiting next = std::move(m_waiting.front());
        m_waiting.pop_front();
        send(std::move(next.operation), std::move(next.answer));
    }
}

} // namespace Velvetnook
