// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/PhraseList.h"

#include "Velvetnook/Application/CounterSteps.h"
#include "Velvetnook/Application/Formatting.h"

#include <algorithm>

namespace Velvetnook
{

using KestCore::Phrase;

PhraseList::PhraseList(const Formatting &formatting, QObject *parent)
    : QAbstractListModel{parent}, m_formatting{formatting}
{
}

int PhraseList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_phrases.size());
}

QVariant PhraseList::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const Phrase &phrase = *m_phrases[static_cast<std::size_t>(index.row())];
    switch (role) {
    case phraseId:
        return QString::fromStdString(phrase.id);
    case number:
        return m_formatting.number(numberOf(phrase));
    case arabic:
        return QString::fromStdString(phrase.arabic);
    case title:
        return phraseTitle(phrase);
    default:
        return {};
    }
}

QHash<int, QByteArray> PhraseList::roleNames() const
{
    return {{phraseId, "phraseId"}, {number, "number"}, {arabic, "arabic"}, {title, "title"}};
}

void PhraseList::show(const std::vector<Phrase> &all, std::vector<const Phrase *> phrases)
{
    if (m_all == &all && m_phrases == phrases) {
        return;
    }
    beginResetModel();
    m_all = &all;
    m_phrases = std::move(phrases);
    endResetModel();
}

int PhraseList::rowOf(std::string_view id) const
{
    const auto found =
        std::ranges::find_if(m_phrases, [&](const Phrase *phrase) { return phrase->id == id; });
    return found == m_phrases.end() ? -1 : static_cast<int>(found - m_phrases.begin());
}

qlonglong PhraseList::numberOf(const Phrase &phrase) const
{
    return m_all == nullptr ? 0 : &phrase - m_all->data() + 1;
}

void PhraseList::reword()
{
    if (!m_phrases.empty()) {
        emit dataChanged(index(0), index(rowCount() - 1));
    }
}

} // namespace Velvetnook
