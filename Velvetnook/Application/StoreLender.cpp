// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/StoreLender.h"

#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"

#include <algorithm>

namespace Velvetnook
{

using namespace std::chrono_literals;

namespace
{

constexpr auto kLongLoan = 3s;
constexpr auto kFirstTry = 250ms;
constexpr auto kLastTry = 8s;

} // namespace

StoreLender::StoreLender(ApplicationModel &model, QObject *parent)
    : QObject{parent}, m_model{model}
{
    m_longLoan.setSingleShot(true);
    m_longLoan.setInterval(kLongLoan);
    connect(&m_longLoan, &QTimer::timeout, this, [this] {
        m_model.say(tr("A kest command is using your data. What you do meanwhile is kept and "
                       "saved when it ends."));
    });
    m_nextTry.setSingleShot(true);
    connect(&m_nextTry, &QTimer::timeout, this, &StoreLender::takeBack);
}

void StoreLender::borrow(int borrower, std::function<void()> lent)
{
    m_borrowers.push_back({.id = borrower, .lent = std::move(lent)});
    if (!m_isAway) {
        lendNext();
    }
}

void StoreLender::lendNext()
{
    m_isAway = true;
    m_longLoan.start();
    m_model.keeper().lend([this, id = m_borrowers.front().id] {
        // The one that it is for may have gone while the store was being closed.
        if (!m_borrowers.empty() && m_borrowers.front().id == id && m_borrowers.front().lent) {
            m_borrowers.front().lent();
        }
    });
}

void StoreLender::giveBack(int borrower)
{
    const auto found = std::ranges::find(m_borrowers, borrower, &Borrower::id);
    if (found == m_borrowers.end()) {
        return;
    }
    const bool hasStore = m_isAway && found == m_borrowers.begin() && !m_isReturning;
    m_borrowers.erase(found);
    if (hasStore) {
        m_longLoan.stop();
        m_pause = kFirstTry;
        takeBack();
    }
}

void StoreLender::takeBack()
{
    m_isReturning = true;
    m_model.keeper().takeBack([this](Result<Committed> held) { finish(std::move(held)); });
}

void StoreLender::finish(Result<Committed> held)
{
    if (!held) {
        if (m_pause == kFirstTry) {
            emit m_model.failed(engineText(held.error().message));
        }
        m_nextTry.start(m_pause);
        m_pause = std::min<std::chrono::milliseconds>(m_pause * 2, kLastTry);
        return;
    }
    m_isAway = false;
    m_isReturning = false;
    m_model.adopt(std::move(*held));
    // Behind what has waited here: its changes are sent once this returns.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (!m_isAway && !m_borrowers.empty()) {
                lendNext();
            }
        },
        Qt::QueuedConnection);
}

} // namespace Velvetnook
