// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "Velvetnook/Application/ViewModels/Settings/SettingsPage.h"

#include <functional>
#include <optional>

namespace Velvetnook
{

// The strip at the screen's edge: what it shows, how it opens, where it keeps away.
class NotchSettings : public SettingsPage
{
    Q_OBJECT
    Q_PROPERTY(bool pinEnabled READ pinEnabled WRITE setPinEnabled NOTIFY changed)
    Q_PROPERTY(QString pinSize READ pinSize WRITE setPinSize NOTIFY changed)
    Q_PROPERTY(QVariantList pinSizes READ pinSizes NOTIFY wordsChanged)
    Q_PROPERTY(QString pinDisplay READ pinDisplay WRITE setPinDisplay NOTIFY changed)
    Q_PROPERTY(QVariantList pinDisplays READ pinDisplays NOTIFY wordsChanged)
    Q_PROPERTY(QString pinMode READ pinMode WRITE setPinMode NOTIFY changed)
    Q_PROPERTY(QVariantList pinModes READ pinModes NOTIFY wordsChanged)
    Q_PROPERTY(double openDelay READ openDelay WRITE setOpenDelay NOTIFY changed) // seconds
    Q_PROPERTY(QString openDelayText READ openDelayText NOTIFY changed)
    Q_PROPERTY(bool hiddenAtRest READ hiddenAtRest WRITE setHiddenAtRest NOTIFY changed)
    Q_PROPERTY(bool overlay READ overlay WRITE setOverlay NOTIFY changed)
    Q_PROPERTY(QString screen READ screen WRITE setScreen NOTIFY changed)
    Q_PROPERTY(QVariantList screens READ screens NOTIFY screensChanged)
    Q_PROPERTY(QStringList exclusions READ exclusions NOTIFY changed)
    Q_PROPERTY(QString exclusionRefusal READ exclusionRefusal NOTIFY changed)
    Q_PROPERTY(bool isPaused READ isPaused NOTIFY changed)
    Q_PROPERTY(QString pausedText READ pausedText NOTIFY changed)

public:
    NotchSettings(ApplicationModel &model, const Formatting &formatting,
                  QObject *parent = nullptr);

    bool pinEnabled() const;
    QString pinSize() const;
    QVariantList pinSizes() const;
    QString pinDisplay() const;
    QVariantList pinDisplays() const;
    QString pinMode() const;
    QVariantList pinModes() const;
    double openDelay() const;
    QString openDelayText() const;
    bool hiddenAtRest() const;
    bool overlay() const;
    QString screen() const; // its number, empty for the main one
    QVariantList screens() const;
    QStringList exclusions() const;
    QString exclusionRefusal() const { return m_exclusionRefusal; }
    bool isPaused() const;
    QString pausedText() const;

    void setPinEnabled(bool on);
    void setPinSize(const QString &value);
    void setPinDisplay(const QString &value);
    void setPinMode(const QString &value);
    void setOpenDelay(double seconds);
    void setHiddenAtRest(bool on);
    void setOverlay(bool on);
    void setScreen(const QString &value);

    // False, with a refusal, for a name that can't be one; it stays in its field.
    Q_INVOKABLE bool addExclusion(const QString &name);
    Q_INVOKABLE void removeExclusion(const QString &name);
    Q_INVOKABLE void pauseForMinutes(int minutes);
    Q_INVOKABLE void pauseUntilTomorrow();
    Q_INVOKABLE void resume();

signals:
    void screensChanged();

private:
    void changeExclusions(std::function<void(QStringList &)> edit);
    void pauseUntil(double milliseconds);

    QString m_exclusionRefusal;
    Base::Instant m_pauseToldAt; // the time up to which ends of pauses were told
};

} // namespace Velvetnook
