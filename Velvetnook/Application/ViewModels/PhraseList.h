// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Devotional/Content.h"

#include <QAbstractListModel>

#include <cstdint>
#include <vector>

namespace Velvetnook
{

class Formatting;

// Phrases of the catalogue, each with its number there.
class PhraseList : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role : std::uint16_t { phraseId = Qt::UserRole, number, arabic, title };

    explicit PhraseList(const Formatting &formatting, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    // `all` is the list of the catalogue that the phrases are of.
    void show(const std::vector<KestCore::Phrase> &all,
              std::vector<const KestCore::Phrase *> phrases);
    const std::vector<const KestCore::Phrase *> &phrases() const { return m_phrases; }
    // The row of a phrase, -1 where it is not shown.
    int rowOf(std::string_view id) const;
    // Where a phrase stands in its list of the catalogue, from 1.
    qlonglong numberOf(const KestCore::Phrase &phrase) const;
    void reword();

private:
    const Formatting &m_formatting;
    const std::vector<KestCore::Phrase> *m_all = nullptr;
    std::vector<const KestCore::Phrase *> m_phrases;
};

} // namespace Velvetnook
