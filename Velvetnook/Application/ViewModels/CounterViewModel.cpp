// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/CounterViewModel.h"

#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/CounterSteps.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/LocalDay.h"
#include "Velvetnook/Application/QtText.h"

#include <QRegularExpression>
#include <QVariantMap>

#include <algorithm>

namespace Velvetnook
{

namespace
{

// A whole number as people write one, with any digits and with or without marks for the
// thousands. Nothing for all else; the counter's own words fit a 0.
qlonglong typedNumber(const QString &text)
{
    static const QRegularExpression kGrouped{
        QStringLiteral("^\\d{1,3}([,.٬ \u00A0\u202F]\\d{3})+$")};
    static const QRegularExpression kMarks{QStringLiteral("[,.٬ \u00A0\u202F]")};
    QString latin = latinDigits(text.trimmed());
    if (kGrouped.match(latin).hasMatch()) {
        latin.remove(kMarks);
    }
    return latin.toLongLong();
}

} // namespace

CounterViewModel::CounterViewModel(ApplicationModel &model, const Formatting &formatting,
                                   QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting}
{
    // Here and not above: the footer reads a member that is made after this one.
    m_shown = shownNow();
    connect(&m_model, &ApplicationModel::stateChanged, this, &CounterViewModel::follow);
    connect(&m_model, &ApplicationModel::calendarChanged, this, &CounterViewModel::follow);
    connect(&formatting, &Formatting::wordsChanged, this, [this] {
        follow();
        emit countChanged(); // its sentence is another one also where its digits are the same
        emit targetsChanged();
    });
}

void CounterViewModel::showPhrase(Shown &shown) const
{
    const auto &devotional = m_model.state().devotional;
    const KestCore::Phrase &phrase = selectedPhrase(m_model.state());
    const bool isArabic = m_formatting.isRightToLeft();
    shown.arabic = QString::fromStdString(phrase.arabic);
    shown.title = isArabic ? shown.arabic : phraseTitle(phrase);
    if (devotional.preferences.showTransliteration && !isArabic) {
        shown.transliteration = phraseTitle(phrase);
    }
    if (devotional.preferences.showTranslation && !isArabic && phrase.translation) {
        shown.translation = QString::fromStdString(*phrase.translation);
    }
}

CounterViewModel::Shown CounterViewModel::shownNow() const
{
    const auto &devotional = m_model.state().devotional;
    const KestCore::Session &session = devotional.session;
    Shown shown;
    shown.count = session.count;
    shown.countText = m_formatting.number(session.count);
    shown.target = session.target.value_or(0);
    shown.canUndo = !session.history.empty();
    shown.isPaused = session.isPaused;
    shown.isReached = session.target && session.count >= *session.target;
    shown.digits = m_formatting.number(1);
    shown.savedTargets = devotional.preferences.savedTargets;
    showPhrase(shown);
    shown.status = statusOf(shown);
    shown.footer = footerOf(shown);
    return shown;
}

void CounterViewModel::follow()
{
    if (!m_model.state().devotional.session.isPaused) {
        m_pausedAt.reset();
    } else if (!m_shown.isPaused) {
        m_pausedAt = m_model.now();
    }
    const Shown before = std::exchange(m_shown, shownNow());
    if (before.countText != m_shown.countText) {
        emit countChanged();
    }
    if ((before.count == 0) != (m_shown.count == 0)) {
        emit isEmptyChanged();
    }
    if (before.target != m_shown.target) {
        emit targetChanged();
        emit countChanged(); // "21 of 33" speaks of both
    }
    if (before.isPaused != m_shown.isPaused) {
        emit isPausedChanged();
    }
    if (before.isReached != m_shown.isReached) {
        emit isReachedChanged();
    }
    if (before.canUndo != m_shown.canUndo) {
        emit canUndoChanged();
    }
    tellPhrase(before);
}

void CounterViewModel::tellPhrase(const Shown &before)
{
    if (before.status != m_shown.status) {
        emit statusChanged();
    }
    if (before.footer != m_shown.footer) {
        emit footerChanged();
    }
    if (before.title != m_shown.title || before.transliteration != m_shown.transliteration ||
        before.translation != m_shown.translation) {
        emit phraseChanged();
    }
    if (before.savedTargets != m_shown.savedTargets || before.digits != m_shown.digits) {
        emit targetsChanged();
        emit targetChanged();
    }
}

QString CounterViewModel::statusOf(const Shown &shown) const
{
    if (shown.isPaused) {
        return tr("Paused");
    }
    if (shown.isReached) {
        return tr("Target reached");
    }
    return shown.target > 0 ? tr("of %1").arg(m_formatting.number(shown.target))
                            : tr("open count");
}

QString CounterViewModel::startedText(Base::Instant at) const
{
    return tr("Started %1").arg(momentText(at, m_model, m_formatting));
}

QString CounterViewModel::footerOf(const Shown &shown) const
{
    if (shown.isPaused) {
        return m_pausedAt ? tr("Paused at %1 since %2")
                                .arg(shown.countText, m_formatting.time(*m_pausedAt))
                          : tr("Paused at %1").arg(shown.countText);
    }
    if (shown.isReached) {
        return tr("%1 reached. Counting on keeps this session open.")
            .arg(m_formatting.number(shown.target));
    }
    if (shown.target == 0) {
        return tr("Open count · one turn of the ring is %1").arg(m_formatting.number(33));
    }
    const auto &startedAt = m_model.state().devotional.session.startedAt;
    return startedAt ? startedText(Base::fromMilliseconds1970(*startedAt))
                     : tr("Not started yet");
}

QString CounterViewModel::progress() const
{
    return m_shown.target > 0
               ? tr("%1 of %2").arg(m_shown.countText, m_formatting.number(m_shown.target))
               : m_shown.countText;
}

QVariantList CounterViewModel::targets() const
{
    QVariantList list;
    for (const std::int64_t value : m_shown.savedTargets) {
        list.append(QVariantMap{{QStringLiteral("value"), static_cast<qlonglong>(value)},
                                {QStringLiteral("label"), m_formatting.number(value)}});
    }
    return list;
}

int CounterViewModel::chosenTarget() const
{
    const auto &saved = m_shown.savedTargets;
    const auto found = std::ranges::find(saved, m_shown.target);
    return found == saved.end() ? -1 : static_cast<int>(found - saved.begin());
}

QString CounterViewModel::resetQuestion() const
{
    if (!m_model.state().devotional.preferences.historyEnabled) {
        return tr("Your %1 counts will be gone; the history is off.").arg(m_shown.countText);
    }
    if (m_shown.count == 1) {
        return tr("Your one count will not be kept in the history. Finish keeps it.");
    }
    return tr("Your %1 counts will not be kept in the history. Finish keeps them.")
        .arg(m_shown.countText);
}

void CounterViewModel::step(const KestCore::CountAction &action)
{
    stepCounter(m_model, action, [this](Result<bool> reached) {
        if (!reached) {
            emit m_model.failed(engineText(reached.error().message));
            return;
        }
        if (*reached) {
            const auto &preferences = m_model.state().devotional.preferences;
            emit targetReached(preferences.soundEnabled && preferences.completionSound);
        }
    });
}

void CounterViewModel::increment() { step(KestCore::Increment{}); }

void CounterViewModel::undo() { step(KestCore::Undo{}); }

void CounterViewModel::togglePause() { step(KestCore::TogglePause{}); }

void CounterViewModel::finish()
{
    const std::size_t before = m_model.state().devotional.records.size();
    stepCounter(m_model, KestCore::Finish{}, [this, before](Result<bool> done) {
        const auto &records = m_model.state().devotional.records;
        if (!done) {
            emit m_model.failed(engineText(done.error().message));
        } else if (records.size() > before) {
            const std::int64_t count = records[records.size() - 1].count;
            m_model.say(tr("%1 kept in the history.").arg(m_formatting.number(count)));
        }
    });
}

void CounterViewModel::reset(bool isConfirmed) { step(KestCore::ResetSession{isConfirmed}); }

void CounterViewModel::setTarget(qlonglong value)
{
    step(KestCore::SetTarget{value == 0 ? std::nullopt : std::optional<std::int64_t>{value}});
}

void CounterViewModel::enterTarget(const QString &text)
{
    const KestCore::SetTarget action{typedNumber(text)};
    stepCounter(m_model, action, [this](Result<bool> done) {
        if (!done) {
            showTargetError(engineText(done.error().message));
            return;
        }
        setEnteringTarget(false);
    });
}

void CounterViewModel::setEnteringTarget(bool isEntering)
{
    showTargetError({});
    if (m_isEnteringTarget != isEntering) {
        m_isEnteringTarget = isEntering;
        emit isEnteringTargetChanged();
    }
}

void CounterViewModel::setAskingReset(bool isAsking)
{
    if (m_isAskingReset != isAsking) {
        m_isAskingReset = isAsking;
        emit isAskingResetChanged();
    }
}

void CounterViewModel::selectNext(int places) { selectNextPhrase(m_model, places); }

void CounterViewModel::showTargetError(const QString &message)
{
    if (m_targetError != message) {
        m_targetError = message;
        emit targetErrorChanged();
    }
}

} // namespace Velvetnook
