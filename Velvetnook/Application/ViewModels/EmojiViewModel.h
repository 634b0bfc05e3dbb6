// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractListModel>
#include <QString>
#include <QVariantList>

#include <functional>
#include <string>
#include <vector>

namespace KestCore
{
struct Emoji;
}

namespace Velvetnook
{

class ApplicationModel;
class Formatting;

// One place of the grid: the emoji, and the form of it that is used if that is not the one with
// the chosen tone.
struct EmojiCell {
    const KestCore::Emoji *emoji{};
    std::string text{};
    bool isPinned{};

    bool operator==(const EmojiCell &) const = default;
};

// The emoji as they are shown, with their names in the interface's language.
class EmojiList : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role : std::uint16_t { emoji = Qt::UserRole, name, toned, pinned };

    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    const EmojiCell *cell(int index) const;
    void show(std::vector<EmojiCell> cells, bool isArabic);

private:
    std::vector<EmojiCell> m_cells;
    bool m_isArabic = false;
};

// What QML shows of the emoji: those used before, a group, or what a search finds.
class EmojiViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QAbstractItemModel *list READ list CONSTANT)
    Q_PROPERTY(QVariantList groups READ groups NOTIFY wordsChanged) // [{value, label, icon}]
    Q_PROPERTY(QString group READ group WRITE setGroup NOTIFY changed)
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY changed)
    Q_PROPERTY(QString findings READ findings NOTIFY changed) // where there is nothing to show
    Q_PROPERTY(QString tone READ tone WRITE setTone NOTIFY changed)
    Q_PROPERTY(QVariantList tones READ tones NOTIFY wordsChanged) // [{value, label, text}]
    Q_PROPERTY(QString hand READ hand NOTIFY changed)             // in the chosen tone
    Q_PROPERTY(bool pastes READ pastes NOTIFY changed)

public:
    // Whether what is used can be pasted, and what pastes it.
    struct Pasting {
        std::function<bool()> isPossible{};
        std::function<void()> begin{};
    };

    EmojiViewModel(ApplicationModel &model, const Formatting &formatting,
                   QObject *parent = nullptr);

    void setPasting(Pasting pasting) { m_pasting = std::move(pasting); }

    QAbstractItemModel *list() { return &m_list; }
    QVariantList groups() const;
    QString group() const { return m_group; }
    QString query() const { return m_query; }
    QString findings() const;
    QString tone() const;
    QVariantList tones() const;
    QString hand() const;
    bool pastes() const;

    void setGroup(const QString &group);
    void setQuery(const QString &query);
    void setTone(const QString &tone);

    // What is recent stays where it is while one looks at it.
    Q_INVOKABLE void setShown(bool isShown);
    Q_INVOKABLE void copy(int index);
    // Copies it and pastes it into the window that had the keyboard, where that can be done.
    Q_INVOKABLE void use(int index);
    // The same emoji in every tone, [{text, value}]; empty where it takes none.
    Q_INVOKABLE QVariantList tonesOf(int index) const;
    Q_INVOKABLE void copyToned(int index, const QString &tone);
    Q_INVOKABLE void togglePin(int index);

signals:
    void changed();
    void wordsChanged();
    void copied(const QString &text);
    void used(); // the panel makes way for the window that is pasted into

private:
    void show();
    std::vector<EmojiCell> cells() const;
    std::vector<EmojiCell> recentCells() const;
    QString take(const std::string &text);
    void take(int index, bool isUsed);

    ApplicationModel &m_model;
    const Formatting &m_formatting;
    EmojiList m_list;
    Pasting m_pasting;
    QString m_group;
    QString m_query;
    std::string m_shownTone;
};

} // namespace Velvetnook
