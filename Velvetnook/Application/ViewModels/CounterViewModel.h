// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "KestCore/Devotional/Counting.h"

#include <QObject>
#include <QString>
#include <QVariantList>

#include <optional>

namespace Velvetnook
{

class ApplicationModel;
class Formatting;

// What QML shows of the counter. Every number is the committed one; a step that the store
// refused changes nothing here and is told through the model's `failed`.
class CounterViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(qlonglong count READ count NOTIFY countChanged)
    Q_PROPERTY(QString countText READ countText NOTIFY countChanged)
    Q_PROPERTY(qlonglong target READ target NOTIFY targetChanged) // 0: an open count
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY isEmptyChanged)
    Q_PROPERTY(bool canUndo READ canUndo NOTIFY canUndoChanged)
    Q_PROPERTY(bool isPaused READ isPaused NOTIFY isPausedChanged)
    Q_PROPERTY(bool isReached READ isReached NOTIFY isReachedChanged)
    Q_PROPERTY(QString status READ status NOTIFY statusChanged)    // "of 33", "Paused" …
    Q_PROPERTY(QString progress READ progress NOTIFY countChanged) // "21 of 33"
    Q_PROPERTY(QString footer READ footer NOTIFY footerChanged)
    Q_PROPERTY(QString arabic READ arabic NOTIFY phraseChanged)
    Q_PROPERTY(QString title READ title NOTIFY phraseChanged)
    // Empty where the user, or the language of the interface, does without.
    Q_PROPERTY(QString transliteration READ transliteration NOTIFY phraseChanged)
    Q_PROPERTY(QString translation READ translation NOTIFY phraseChanged)
    Q_PROPERTY(QVariantList targets READ targets NOTIFY targetsChanged) // {value, label}
    Q_PROPERTY(int chosenTarget READ chosenTarget NOTIFY targetChanged) // a row of `targets`
    Q_PROPERTY(QString targetError READ targetError NOTIFY targetErrorChanged)
    // What the view is in the middle of.
    Q_PROPERTY(bool isEnteringTarget READ isEnteringTarget WRITE setEnteringTarget NOTIFY
                   isEnteringTargetChanged)
    Q_PROPERTY(
        bool isAskingReset READ isAskingReset WRITE setAskingReset NOTIFY isAskingResetChanged)
    Q_PROPERTY(QString resetQuestion READ resetQuestion NOTIFY countChanged)

public:
    CounterViewModel(ApplicationModel &model, const Formatting &formatting,
                     QObject *parent = nullptr);

    qlonglong count() const { return m_shown.count; }
    QString countText() const { return m_shown.countText; }
    qlonglong target() const { return m_shown.target; }
    bool isEmpty() const { return m_shown.count == 0; }
    bool canUndo() const { return m_shown.canUndo; }
    bool isPaused() const { return m_shown.isPaused; }
    bool isReached() const { return m_shown.isReached; }
    QString status() const { return m_shown.status; }
    QString progress() const;
    QString footer() const { return m_shown.footer; }
    QString arabic() const { return m_shown.arabic; }
    QString title() const { return m_shown.title; }
    QString transliteration() const { return m_shown.transliteration; }
    QString translation() const { return m_shown.translation; }
    QVariantList targets() const;
    int chosenTarget() const;
    QString targetError() const { return m_targetError; }
    bool isEnteringTarget() const { return m_isEnteringTarget; }
    void setEnteringTarget(bool isEntering);
    bool isAskingReset() const { return m_isAskingReset; }
    void setAskingReset(bool isAsking);
    QString resetQuestion() const;

    Q_INVOKABLE void increment();
    Q_INVOKABLE void undo();
    Q_INVOKABLE void togglePause();
    Q_INVOKABLE void finish();
    // An unconfirmed one is refused while something is counted.
    Q_INVOKABLE void reset(bool isConfirmed);
    Q_INVOKABLE void setTarget(qlonglong value); // 0: an open count
    // What the user typed: it becomes the target, or `targetError` says why not.
    Q_INVOKABLE void enterTarget(const QString &text);
    Q_INVOKABLE void clearTargetError() { showTargetError({}); }
    Q_INVOKABLE void selectNext(int places);

signals:
    void countChanged();
    void targetChanged();
    void isEmptyChanged();
    void canUndoChanged();
    void isPausedChanged();
    void isReachedChanged();
    void statusChanged();
    void footerChanged();
    void phraseChanged();
    void targetsChanged();
    void targetErrorChanged();
    void isEnteringTargetChanged();
    void isAskingResetChanged();
    // Once a session; `withSound` when the user wants to hear it.
    void targetReached(bool withSound);

private:
    struct Shown {
        qlonglong count{};
        QString countText{};
        qlonglong target{};
        bool canUndo{};
        bool isPaused{};
        bool isReached{};
        QString status{};
        QString footer{};
        QString arabic{};
        QString title{};
        QString transliteration{};
        QString translation{};
        QString digits{}; // the ones that the labels of targets are written with
        std::vector<std::int64_t> savedTargets{};
    };

    void follow();
    void tellPhrase(const Shown &before);
    Shown shownNow() const;
    void showPhrase(Shown &shown) const;
    QString statusOf(const Shown &shown) const;
    QString footerOf(const Shown &shown) const;
    QString startedText(Base::Instant at) const;
    void step(const KestCore::CountAction &action);
    void showTargetError(const QString &message);

    ApplicationModel &m_model;
    const Formatting &m_formatting;
    Shown m_shown;
    std::optional<Base::Instant> m_pausedAt; // known only for a pause that began here
    QString m_targetError;
    bool m_isEnteringTarget = false;
    bool m_isAskingReset = false;
};

} // namespace Velvetnook
