// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/StateKeeper.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <deque>
#include <functional>

namespace Velvetnook
{

class ApplicationModel;

// Lends the store to one borrower after the other, and shows what each has left in it. What
// the application itself wants to change meanwhile waits and is done between two loans. A loan
// that lasts is told to the user; a store that cannot be had back is asked for again.
class StoreLender : public QObject
{
    Q_OBJECT

public:
    explicit StoreLender(ApplicationModel &model, QObject *parent = nullptr);

    // Calls `lent` when it is this borrower's turn and the store is free for it.
    void borrow(int borrower, std::function<void()> lent);
    // The borrower is done, or has gone before its turn.
    void giveBack(int borrower);

private:
    struct Borrower {
        int id;
        std::function<void()> lent;
    };

    void lendNext();
    void takeBack();
    void finish(Result<Committed> held);

    ApplicationModel &m_model;
    std::deque<Borrower> m_borrowers; // the first one has the store
    bool m_isAway = false;            // lent, or not back yet
    bool m_isReturning = false;
    QTimer m_longLoan;
    QTimer m_nextTry;
    std::chrono::milliseconds m_pause{}; // before it
};

} // namespace Velvetnook
