// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/ViewModels/Settings/SettingsPage.h"

#include <functional>

namespace Velvetnook
{

// What of the clipboard is kept, for how long, and of which applications nothing is.
class ClipboardPage : public SettingsPage
{
    Q_OBJECT
    Q_PROPERTY(bool records READ records WRITE setRecords NOTIFY changed)
    Q_PROPERTY(bool paused READ paused WRITE setPaused NOTIFY changed)
    Q_PROPERTY(bool pastes READ pastes WRITE setPastes NOTIFY changed)
    Q_PROPERTY(QString days READ days WRITE setDays NOTIFY changed)
    Q_PROPERTY(QVariantList dayChoices READ dayChoices NOTIFY wordsChanged)
    Q_PROPERTY(QString count READ count WRITE setCount NOTIFY changed)
    Q_PROPERTY(QVariantList countChoices READ countChoices NOTIFY wordsChanged)
    Q_PROPERTY(QString bytes READ bytes WRITE setBytes NOTIFY changed)
    Q_PROPERTY(QVariantList byteChoices READ byteChoices NOTIFY wordsChanged)
    Q_PROPERTY(QStringList exclusions READ exclusions NOTIFY changed)
    Q_PROPERTY(QString exclusionRefusal READ exclusionRefusal NOTIFY changed)

public:
    using Applications = std::function<QStringList()>;

    using SettingsPage::SettingsPage;

    void setApplications(Applications applications)
    {
        m_applications = std::move(applications);
    }

    bool records() const;
    bool paused() const;
    bool pastes() const;
    QString days() const;
    QVariantList dayChoices() const;
    QString count() const;
    QVariantList countChoices() const;
    QString bytes() const;
    QVariantList byteChoices() const;
    QStringList exclusions() const;
    QString exclusionRefusal() const { return m_exclusionRefusal; }

    void setRecords(bool on);
    void setPaused(bool on);
    void setPastes(bool on);
    void setDays(const QString &days);
    void setCount(const QString &count);
    void setBytes(const QString &bytes);

    // Those that run now and are not excluded yet.
    Q_INVOKABLE QStringList running() const;
    // False, with a refusal, for a name that can't be one; it stays in its field.
    Q_INVOKABLE bool addExclusion(const QString &name);
    Q_INVOKABLE void removeExclusion(const QString &name);

signals:
    void clearWanted(); // of all but the favourites

private:
    QVariantList numbers(std::span<const qlonglong> values, const QString &current,
                         const std::function<QString(qlonglong)> &label) const;
    void changeExclusions(std::function<void(QStringList &)> edit);

    Applications m_applications;
    QString m_exclusionRefusal;
};

} // namespace Velvetnook
