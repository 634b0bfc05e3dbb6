// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractListModel>
#include <QString>

#include <string>
#include <vector>

namespace Velvetnook
{

class ApplicationModel;

// The tools in the order in which they are shown: which are on, and which have a tab in the
// panel's header. A tool that this program has no view for is not in the list, and keeps its
// place in the order.
class ToolSettings : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(QString favouritesNote READ favouritesNote NOTIFY changed)

public:
    enum Role : std::uint16_t {
        toolId = Qt::UserRole,
        title,
        summary,
        icon,
        enabled,
        favourite,
        canTurnOff
    };

    explicit ToolSettings(ApplicationModel &model, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    QString favouritesNote() const;

    Q_INVOKABLE void setEnabled(const QString &tool, bool on);
    // Refused, with a note, beyond the eight that the header has room for.
    Q_INVOKABLE void setFavourite(const QString &tool, bool on);
    // Lines are counted among those shown; a line that is not there changes nothing.
    Q_INVOKABLE void move(int from, int to);

signals:
    void changed();

private:
    void follow();

    ApplicationModel &m_model;
    std::vector<std::string> m_shown; // tool ids
    bool m_isFull = false;            // a ninth favourite was asked for
};

} // namespace Velvetnook
