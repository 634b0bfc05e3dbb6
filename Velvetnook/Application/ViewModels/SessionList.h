// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/SharedList.h"
#include "KestCore/Models/DevotionalState.h"

#include <QAbstractListModel>

#include <cstdint>

namespace Velvetnook
{

class ApplicationModel;
class Formatting;

// Finished sessions, newest first. Nothing is copied: a row is put into words when it is asked
// for, so a hundred thousand cost what the few that show cost.
class SessionList : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role : std::uint16_t {
        arabic = Qt::UserRole,
        title,
        count,
        target,
        reached,
        time,
        day
    };

    SessionList(const ApplicationModel &model, const Formatting &formatting,
                QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    // Takes in what the model holds now.
    void follow();
    // The same sessions in other words: another day, other digits.
    void reword();

private:
    const KestCore::SessionRecord &recordAt(int row) const;

    const ApplicationModel &m_model;
    const Formatting &m_formatting;
    Base::SharedList<KestCore::SessionRecord> m_records;
};

} // namespace Velvetnook
