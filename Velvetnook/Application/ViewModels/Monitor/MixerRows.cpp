// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Monitor/MixerRows.h"

#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/Monitor/AmountText.h"

#include <algorithm>

namespace Velvetnook
{

namespace
{

enum Role : std::uint16_t {
    titleRole = Qt::UserRole,
    noteRole,
    levelRole,
    levelTextRole,
    isMutedRole,
    isPlayingRole
};

} // namespace

MixerRows::MixerRows(const Formatting &formatting, QObject *parent)
    : QAbstractListModel{parent}, m_formatting{formatting}
{
}

void MixerRows::begin(MakeServer make)
{
    m_make = std::move(make);
    if (m_isWatched) {
        setWatched(false);
        setWatched(true);
    }
}

void MixerRows::setWatched(bool watched)
{
    if (m_isWatched == watched) {
        return;
    }
    m_isWatched = watched;
    if (watched && m_make) {
        m_server = m_make();
        connect(m_server.get(), &SoundServer::streamsChanged, this, &MixerRows::follow);
        connect(m_server.get(), &SoundServer::problemChanged, this, &MixerRows::changed);
    } else if (m_server) {
        m_server->disconnect(this);
        m_server.reset();
    }
    follow();
}

QString MixerRows::availability() const
{
    if (!m_server || !m_server->problem().isEmpty()) {
        return QStringLiteral("offline");
    }
    return m_streams.empty() ? QStringLiteral("empty") : QStringLiteral("ready");
}

QString MixerRows::problem() const { return m_server ? m_server->problem() : QString{}; }

// Places whose stream stays are told as changed: a slider that is being dragged goes on.
void MixerRows::follow()
{
    auto wanted = m_server ? m_server->streams() : std::vector<AudioStream>{};
    const bool isSame =
        std::ranges::equal(m_streams, wanted, {}, &AudioStream::index, &AudioStream::index);
    if (!isSame) {
        beginResetModel();
        m_streams = std::move(wanted);
        endResetModel();
    } else {
        for (std::size_t at = 0; at < wanted.size(); ++at) {
            if (m_streams[at] != wanted[at]) {
                m_streams[at] = std::move(wanted[at]);
                const QModelIndex place = index(static_cast<int>(at));
                emit dataChanged(place, place);
            }
        }
    }
    emit changed();
}

int MixerRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_streams.size());
}

QVariant MixerRows::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const AudioStream &stream = m_streams[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
    case titleRole:
        return stream.application.empty() ? QString::fromStdString(stream.title)
                                          : QString::fromStdString(stream.application);
    case noteRole:
        return stream.application.empty() ? QString{} : QString::fromStdString(stream.title);
    case levelRole:
        return stream.level;
    case levelTextRole:
        return stream.isMuted ? tr("Muted") : percentText(m_formatting, stream.level * 100, 0);
    case isMutedRole:
        return stream.isMuted;
    case isPlayingRole:
        return stream.isPlaying;
    default:
        return {};
    }
}

QHash<int, QByteArray> MixerRows::roleNames() const
{
    return {{titleRole, "title"},     {noteRole, "note"},
            {levelRole, "level"},     {levelTextRole, "levelText"},
            {isMutedRole, "isMuted"}, {isPlayingRole, "isPlaying"}};
}

void MixerRows::setLevel(int row, double level)
{
    const auto at = static_cast<std::size_t>(row);
    if (m_server && at < m_streams.size()) {
        m_server->setLevel(m_streams[at].index, level);
    }
}

void MixerRows::setMuted(int row, bool isMuted)
{
    const auto at = static_cast<std::size_t>(row);
    if (m_server && at < m_streams.size()) {
        m_server->setMuted(m_streams[at].index, isMuted);
    }
}

} // namespace Velvetnook
