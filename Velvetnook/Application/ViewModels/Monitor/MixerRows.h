// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/Levels/SoundServer.h"

#include <QAbstractListModel>

#include <functional>
#include <memory>
#include <vector>

namespace Velvetnook
{

class Formatting;

// The applications that have a sound, and how loud each is. Asks the sound server only while
// somebody looks.
class MixerRows : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(bool watched READ watched WRITE setWatched NOTIFY changed)
    Q_PROPERTY(QString availability READ availability NOTIFY changed)
    Q_PROPERTY(QString problem READ problem NOTIFY changed)

public:
    using MakeServer = std::function<std::shared_ptr<SoundServer>()>;

    explicit MixerRows(const Formatting &formatting, QObject *parent = nullptr);

    void begin(MakeServer make);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    bool watched() const { return m_isWatched; }
    void setWatched(bool watched);
    QString availability() const;
    QString problem() const;

    Q_INVOKABLE void setLevel(int row, double level);
    Q_INVOKABLE void setMuted(int row, bool isMuted);

signals:
    void changed();

private:
    void follow();

    const Formatting &m_formatting;
    MakeServer m_make;
    std::shared_ptr<SoundServer> m_server;
    std::vector<AudioStream> m_streams;
    bool m_isWatched = false;
};

} // namespace Velvetnook
