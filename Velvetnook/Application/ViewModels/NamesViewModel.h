// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/ViewModels/PhraseList.h"

#include <QObject>
#include <QString>

#include <string>
#include <string_view>

namespace KestCore
{
struct Pin;
}

namespace Velvetnook
{

class ApplicationModel;

// What QML shows of the phrases and the Names: a list to search and the card of one of them.
class NamesViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(
        QString tab READ tab WRITE setTab NOTIFY listChanged) // names, phrases, favourites
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY listChanged)
    Q_PROPERTY(QString searchHint READ searchHint NOTIFY listChanged)
    Q_PROPERTY(QAbstractItemModel *list READ list CONSTANT)
    Q_PROPERTY(bool isListEmpty READ isListEmpty NOTIFY listChanged)
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY listChanged)
    Q_PROPERTY(int row READ row WRITE setRow NOTIFY currentChanged)  // -1: not in the list
    Q_PROPERTY(QString position READ position NOTIFY currentChanged) // "5 of 99"

    Q_PROPERTY(bool isName READ isName NOTIFY currentChanged)
    Q_PROPERTY(QString arabic READ arabic NOTIFY currentChanged)
    Q_PROPERTY(QString title READ title NOTIFY currentChanged)
    // These three are empty in an Arabic interface, which does without.
    Q_PROPERTY(QString transliteration READ transliteration NOTIFY currentChanged)
    Q_PROPERTY(QString translation READ translation NOTIFY currentChanged)
    Q_PROPERTY(QString meaning READ meaning NOTIFY currentChanged)
    Q_PROPERTY(QString source READ source NOTIFY currentChanged)
    Q_PROPERTY(QString sourceUrl READ sourceUrl NOTIFY currentChanged)
    Q_PROPERTY(bool isNameOfTheDay READ isNameOfTheDay NOTIFY currentChanged)
    Q_PROPERTY(bool isFavourite READ isFavourite NOTIFY marksChanged)
    Q_PROPERTY(bool isPinned READ isPinned NOTIFY marksChanged)
    Q_PROPERTY(bool isCounted READ isCounted NOTIFY marksChanged)

public:
    NamesViewModel(ApplicationModel &model, const Formatting &formatting,
                   QObject *parent = nullptr);

    QString tab() const;
    void setTab(const QString &tab);
    QString query() const { return m_query; }
    void setQuery(const QString &query);
    QString searchHint() const;
    QAbstractItemModel *list() { return &m_list; }
    bool isListEmpty() const { return m_list.rowCount() == 0; }
    QString emptyText() const;
    int row() const { return m_list.rowOf(m_current->id); }
    void setRow(int row);
    QString position() const;

    bool isName() const;
    QString arabic() const;
    QString title() const;
    QString transliteration() const;
    QString translation() const;
    QString meaning() const;
    QString source() const;
    QString sourceUrl() const;
    bool isNameOfTheDay() const;
    bool isFavourite() const;
    bool isPinned() const;
    bool isCounted() const;

    // Goes to the tab of a tool of the panel, "names" or "tasbih", unless that is open already.
    Q_INVOKABLE void openTool(const QString &id);
    // To the card of one of them, whatever is searched for.
    Q_INVOKABLE void open(const QString &id);
    Q_INVOKABLE void openToday(); // the Name of the day
    Q_INVOKABLE void move(int rows);
    // Phrases only: the Names are no favourites.
    Q_INVOKABLE void toggleFavourite();
    Q_INVOKABLE void togglePin();
    // Makes the phrase the one that is counted; a Name cannot be.
    Q_INVOKABLE void selectForCounter();

signals:
    void listChanged();
    void currentChanged();
    void marksChanged();

private:
    enum class Tab : std::uint8_t { names, phrases, favourites };

    void follow();
    void showList();
    void showTab(Tab tab);
    void setCurrent(const KestCore::Phrase &phrase);
    const std::vector<KestCore::Phrase> &source(Tab tab) const;
    std::vector<const KestCore::Phrase *> favourites() const;
    KestCore::Pin pinOfCurrent() const;

    ApplicationModel &m_model;
    const Formatting &m_formatting;
    PhraseList m_list;
    Tab m_tab = Tab::names;
    QString m_tool;
    QString m_query;
    const KestCore::Phrase *m_current; // of the catalogue, which never goes
    QString m_wording;
};

} // namespace Velvetnook
