// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/ViewModels/Settings/SettingsPage.h"

namespace Velvetnook
{

// Language, numbers, the start with the session, and what is kept of counting.
class GeneralSettings : public SettingsPage
{
    Q_OBJECT
    Q_PROPERTY(bool launchAtLogin READ launchAtLogin WRITE setLaunchAtLogin NOTIFY changed)
    // Why the desktop does not start the application by itself; empty when it does.
    Q_PROPERTY(QString launchRefusal READ launchRefusal NOTIFY changed)
    Q_PROPERTY(QString language READ language WRITE setLanguage NOTIFY changed)
    Q_PROPERTY(QVariantList languages READ languages NOTIFY wordsChanged)
    Q_PROPERTY(QString digits READ digits WRITE setDigits NOTIFY changed)
    Q_PROPERTY(QVariantList digitChoices READ digitChoices NOTIFY wordsChanged)
    Q_PROPERTY(QString clock READ clock WRITE setClock NOTIFY changed)
    Q_PROPERTY(QVariantList clocks READ clocks NOTIFY wordsChanged)
    Q_PROPERTY(bool keepsHistory READ keepsHistory WRITE setKeepsHistory NOTIFY changed)
    Q_PROPERTY(
        bool completionSound READ completionSound WRITE setCompletionSound NOTIFY changed)

public:
    using SettingsPage::SettingsPage;

    bool launchAtLogin() const;
    QString launchRefusal() const { return m_launchRefusal; }
    QString language() const;
    QVariantList languages() const;
    QString digits() const;
    QVariantList digitChoices() const;
    QString clock() const;
    QVariantList clocks() const;
    bool keepsHistory() const;
    bool completionSound() const;

    void setLaunchAtLogin(bool on);
    void setLanguage(const QString &value);
    void setDigits(const QString &value);
    void setClock(const QString &value);
    void setKeepsHistory(bool on);
    void setCompletionSound(bool on);

    // What the desktop, which follows the setting, answered; empty when it was done.
    void setLaunchRefusal(const QString &message);

private:
    QString m_launchRefusal;
};

} // namespace Velvetnook
