// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/EmojiViewModel.h"

#include "KestCore/Tools/Emoji.h"
#include "KestCore/Tools/RecentEmoji.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/Formatting.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPointer>

#include <utility>

namespace Velvetnook
{

namespace
{

using KestCore::SkinTone;

constexpr std::size_t kMostRecent = 72;
constexpr std::size_t kMostFound = 120;
const QString kRecent = QStringLiteral("recent");
constexpr const char *kHand = "\u270B";

QString shown(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

int EmojiList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_cells.size());
}

QHash<int, QByteArray> EmojiList::roleNames() const
{
    return {{emoji, "emoji"}, {name, "name"}, {toned, "toned"}, {pinned, "pinned"}};
}

QVariant EmojiList::data(const QModelIndex &index, int role) const
{
    const EmojiCell *found = index.isValid() ? cell(index.row()) : nullptr;
    if (found == nullptr) {
        return {};
    }
    switch (role) {
    case emoji:
        return shown(found->text);
    case name:
        return shown(m_isArabic ? found->emoji->arabicName : found->emoji->name);
    case toned:
        return !found->emoji->toned.empty();
    case pinned:
        return found->isPinned;
    default:
        return {};
    }
}

const EmojiCell *EmojiList::cell(int index) const
{
    const auto at = static_cast<std::size_t>(index);
    return index >= 0 && at < m_cells.size() ? &m_cells[at] : nullptr;
}

void EmojiList::show(std::vector<EmojiCell> cells, bool isArabic)
{
    if (cells == m_cells && isArabic == m_isArabic) {
        return;
    }
    if (cells.size() == m_cells.size() && !cells.empty()) {
        m_cells = std::move(cells);
        m_isArabic = isArabic;
        emit dataChanged(index(0), index(rowCount() - 1));
        return;
    }
    beginResetModel();
    m_cells = std::move(cells);
    m_isArabic = isArabic;
    endResetModel();
}

EmojiViewModel::EmojiViewModel(ApplicationModel &model, const Formatting &formatting,
                               QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting}, m_group{kRecent}
{
    connect(&model, &ApplicationModel::choicesChanged, this, [this] {
        if (m_shownTone != m_model.setting("emoji.skinTone")) {
            show();
        }
        emit changed(); // whether something is pasted is a choice too
    });
    connect(&formatting, &Formatting::wordsChanged, this, [this] {
        show();
        emit wordsChanged();
    });
}

QVariantList EmojiViewModel::groups() const
{
    const auto group = [](const char *value, const QString &label, const char *icon) {
        return QVariantMap{{QStringLiteral("value"), QLatin1String{value}},
                           {QStringLiteral("label"), label},
                           {QStringLiteral("icon"), QLatin1String{icon}}};
    };
    return {group("recent", tr("Used before"), "history"),
            group("people", tr("Smileys and people"), "emoji"),
            group("nature", tr("Animals and nature"), "sun"),
            group("food", tr("Food and drink"), "cup"),
            group("travel", tr("Travel and places"), "place"),
            group("activities", tr("Activities"), "sparkle"),
            group("objects", tr("Objects, symbols and flags"), "target")};
}

std::vector<EmojiCell> EmojiViewModel::recentCells() const
{
    std::vector<EmojiCell> found;
    const auto records = m_model.recordsOfKind(KestCore::kEmojiKind);
    for (const auto &recent : KestCore::recentEmoji(records, m_model.now(), kMostRecent)) {
        if (const auto known = KestCore::emojiOf(recent.emoji)) {
            found.push_back(
                {.emoji = known->emoji, .text = known->text, .isPinned = recent.isPinned});
        }
    }
    return found;
}

std::vector<EmojiCell> EmojiViewModel::cells() const
{
    const SkinTone tone = KestCore::chosenTone(m_model.state().settings);
    std::vector<EmojiCell> found;
    const auto add = [&](const KestCore::Emoji &emoji) {
        found.push_back({.emoji = &emoji, .text = KestCore::withTone(emoji, tone)});
    };
    if (!m_query.trimmed().isEmpty()) {
        for (const auto *emoji : KestCore::searchEmoji(m_query.toStdString(), kMostFound)) {
            add(*emoji);
        }
        return found;
    }
    if (m_group == kRecent) {
        return recentCells();
    }
    const auto group = Base::fromText<KestCore::EmojiGroup>(m_group.toStdString());
    for (const auto &emoji :
         KestCore::emojiOfGroup(group.value_or(KestCore::EmojiGroup::people))) {
        add(emoji);
    }
    return found;
}

void EmojiViewModel::show()
{
    m_shownTone = m_model.setting("emoji.skinTone");
    m_list.show(cells(), m_formatting.isRightToLeft());
    emit changed();
}

void EmojiViewModel::setShown(bool isShown)
{
    if (!isShown) {
        m_query.clear();
        m_list.show({}, m_formatting.isRightToLeft());
        emit changed();
        return;
    }
    show();
    // Before anything was used the people stand there.
    if (m_group == kRecent && m_list.rowCount() == 0) {
        setGroup(QStringLiteral("people"));
    }
}

QString EmojiViewModel::findings() const
{
    if (m_list.rowCount() > 0) {
        return {};
    }
    return m_query.trimmed().isEmpty() ? tr("What you use shows here")
                                       : tr("No emoji by that name");
}

QString EmojiViewModel::tone() const
{
    const std::string_view text = Base::textOf(KestCore::chosenTone(m_model.state().settings));
    return shown(text);
}

QVariantList EmojiViewModel::tones() const
{
    const std::pair<SkinTone, QString> all[]{
        {SkinTone::none, tr("No skin tone")},        {SkinTone::light, tr("Light")},
        {SkinTone::mediumLight, tr("Medium light")}, {SkinTone::medium, tr("Medium")},
        {SkinTone::mediumDark, tr("Medium dark")},   {SkinTone::dark, tr("Dark")}};
    const auto hand = KestCore::emojiOf(kHand);
    QVariantList list;
    for (const auto &[tone, label] : all) {
        list.push_back(
            QVariantMap{{QStringLiteral("value"), shown(Base::textOf(tone))},
                        {QStringLiteral("label"), label},
                        {QStringLiteral("text"),
                         hand ? shown(KestCore::withTone(*hand->emoji, tone)) : QString{}}});
    }
    return list;
}

QString EmojiViewModel::hand() const
{
    const auto hand = KestCore::emojiOf(kHand);
    return hand ? shown(KestCore::withTone(*hand->emoji,
                                           KestCore::chosenTone(m_model.state().settings)))
                : QString{};
}

bool EmojiViewModel::pastes() const { return m_pasting.isPossible && m_pasting.isPossible(); }

void EmojiViewModel::setGroup(const QString &group)
{
    if (group != m_group || !m_query.isEmpty()) {
        m_group = group;
        m_query.clear();
        show();
    }
}

void EmojiViewModel::setQuery(const QString &query)
{
    if (query != m_query) {
        m_query = query;
        show();
    }
}

void EmojiViewModel::setTone(const QString &tone)
{
    m_model.changeSetting("emoji.skinTone", tone.toStdString());
}

// On the clipboard, and among those that were used.
QString EmojiViewModel::take(const std::string &text)
{
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()) != nullptr) {
        QGuiApplication::clipboard()->setText(shown(text));
    }
    const auto records = m_model.recordsOfKind(KestCore::kEmojiKind);
    auto changes = KestCore::usingEmoji(records, text, m_model.now());
    if (changes) {
        m_model.changeRecords(*std::move(changes));
    } else {
        m_model.say(engineText(changes.error().message));
    }
    return shown(text);
}

void EmojiViewModel::take(int index, bool isUsed)
{
    const EmojiCell *cell = m_list.cell(index);
    if (cell == nullptr) {
        return;
    }
    const QString text = take(cell->text);
    if (isUsed) {
        emit used();
        m_pasting.begin();
    } else {
        emit copied(text);
    }
}

void EmojiViewModel::copy(int index) { take(index, false); }

void EmojiViewModel::use(int index) { take(index, pastes()); }

QVariantList EmojiViewModel::tonesOf(int index) const
{
    const EmojiCell *cell = m_list.cell(index);
    QVariantList list;
    if (cell == nullptr || cell->emoji->toned.empty()) {
        return list;
    }
    for (const auto &[tone, text] : enumTexts(Base::Of<SkinTone>{})) {
        list.push_back(
            QVariantMap{{QStringLiteral("text"), shown(KestCore::withTone(*cell->emoji, tone))},
                        {QStringLiteral("value"), shown(text)}});
    }
    return list;
}

void EmojiViewModel::copyToned(int index, const QString &tone)
{
    const EmojiCell *cell = m_list.cell(index);
    const auto wanted = Base::fromText<SkinTone>(tone.toStdString());
    if (cell != nullptr && wanted) {
        emit copied(take(KestCore::withTone(*cell->emoji, *wanted)));
    }
}

void EmojiViewModel::togglePin(int index)
{
    const EmojiCell *cell = m_list.cell(index);
    if (cell == nullptr) {
        return;
    }
    const auto records = m_model.recordsOfKind(KestCore::kEmojiKind);
    auto changes = KestCore::pinningEmoji(records, cell->text, m_model.now());
    if (!changes) {
        m_model.say(engineText(changes.error().message));
        return;
    }
    m_model.changeRecords(*std::move(changes),
                          [self = QPointer{this}](const Base::Result<void> &result) {
                              if (self && !result) {
                                  self->m_model.say(engineText(result.error().message));
                              } else if (self) {
                                  self->show();
                              }
                          });
}

} // namespace Velvetnook
