// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Devotional/Calendar.h"
#include "Velvetnook/Application/DueClock.h"
#include "Velvetnook/Application/StateKeeper.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace Velvetnook
{

// What the application knows: the last snapshot that the store answered with, and the road to
// change it. A change shows only once it is committed; a refused one leaves everything as it
// was and is told through `failed`, unless its caller takes the answer.
class ApplicationModel : public QObject
{
    Q_OBJECT

public:
    using Done = std::move_only_function<void(Result<void>)>;

    ApplicationModel(std::unique_ptr<StateKeeper> keeper, Committed first, TimeSource now,
                     QObject *parent = nullptr);

    const KestCore::NativeState &state() const { return m_state; }
    const KestCore::CompanionState &companion() const { return m_companion; }
    const Base::SharedList<KestCore::RecordRef> &records() const { return m_records; }
    std::vector<KestCore::LocalRecord> recordsOfKind(std::string_view kind) const;

    // The wall calendar of the user's time zone.
    const KestCore::Calendar &calendar() const { return m_calendar; }
    Base::Instant now() const { return m_clock.now(); }
    DueClock &clock() { return m_clock; }

    // A setting's text; empty when it is not set.
    std::string_view setting(std::string_view key) const;
    bool isOn(std::string_view key) const { return setting(key) == "true"; }

    // Changes the state in one durable step. The mutation runs on the store's thread.
    void changeState(KestCore::StateStore::StateMutation mutation, Done done = {});
    void changeSetting(std::string key, std::string value);
    void removeSetting(std::string key);
    void changeRecords(KestCore::RecordChanges changes, Done done = {});
    // Changes what the store holds at that moment, which another program may have changed.
    void changeCompanion(std::function<void(KestCore::CompanionState &)> edit, Done done = {});
    // Anything else that the store can do, such as clearing the history.
    void perform(StateKeeper::Operation operation, Done done = {});

    StateKeeper &keeper() { return *m_keeper; }
    // Takes in what another program has left in the store.
    void adopt(Committed committed);

    // Shows a message where the user looks (the panel's footer, or the strip).
    void say(const QString &message) { emit said(message); }

signals:
    void stateChanged();
    // The same, but for what is merely counted: who shows nothing of that has no work with
    // each count.
    void choicesChanged();
    void recordsChanged();
    void companionChanged();
    // The date, the time zone or the wall clock is another now.
    void calendarChanged();
    void said(const QString &message);
    void failed(const QString &message);

private:
    void finish(Result<Committed> committed, Done done);
    void followCalendar();

    std::unique_ptr<StateKeeper> m_keeper;
    KestCore::NativeState m_state;
    KestCore::CompanionState m_companion;
    Base::SharedList<KestCore::RecordRef> m_records;
    KestCore::Calendar m_calendar;
    DueClock m_clock;
};

} // namespace Velvetnook
