// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Models/LocalRecord.h"
#include "Velvetnook/Application/ViewModels/Notes/NoteList.h"

#include <QTimer>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace KestCore
{
class RecordList;
} // namespace KestCore

namespace Velvetnook
{

class ApplicationModel;
class Formatting;

// What QML shows of the notes and the scratchpad. One of them is open and can be written in;
// what is typed is made durable soon after, and at the latest when it is left. A text that the
// store refuses stays open. Left, it has a line in the list and comes back from there.
class NotesViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QAbstractItemModel *list READ list CONSTANT)
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged)
    Q_PROPERTY(QString findings READ findings NOTIFY listChanged) // where nothing is found
    Q_PROPERTY(QString footer READ footer NOTIFY listChanged)
    // Which is open: a note's id, "scratchpad", or nothing for a note that is not kept yet.
    Q_PROPERTY(QString current READ current NOTIFY currentChanged)
    Q_PROPERTY(bool isScratchpad READ isScratchpad NOTIFY currentChanged)
    Q_PROPERTY(bool isKept READ isKept NOTIFY currentChanged) // it is in the store
    Q_PROPERTY(bool isPinned READ isPinned NOTIFY listChanged)
    // As they are to be shown when `loaded` says so; what is typed does not change them.
    Q_PROPERTY(QString title READ title NOTIFY loaded)
    Q_PROPERTY(QString text READ text NOTIFY loaded)
    Q_PROPERTY(QString titleHint READ titleHint NOTIFY statusChanged) // what it goes by else
    Q_PROPERTY(QString status READ status NOTIFY statusChanged)
    Q_PROPERTY(QString refusal READ refusal NOTIFY statusChanged)

public:
    NotesViewModel(ApplicationModel &model, const Formatting &formatting,
                   QObject *parent = nullptr);
    ~NotesViewModel() override;
    NotesViewModel(const NotesViewModel &) = delete;
    NotesViewModel &operator=(const NotesViewModel &) = delete;

    QAbstractItemModel *list() { return &m_list; }
    QString query() const { return m_query; }
    QString findings() const;
    QString footer() const;
    QString current() const { return m_open.id; }
    bool isScratchpad() const;
    bool isKept() const { return !m_open.id.isEmpty(); }
    bool isPinned() const;
    QString title() const { return m_open.title; }
    QString text() const { return m_open.text; }
    QString titleHint() const;
    QString status() const;
    QString refusal() const { return m_open.refusal; }

    void setQuery(const QString &query);

    Q_INVOKABLE void choose(const QString &id);
    Q_INVOKABLE void chooseScratchpad();
    Q_INVOKABLE void create();
    Q_INVOKABLE void edit(const QString &text);
    Q_INVOKABLE void editTitle(const QString &title);
    // Makes durable what is not yet; for the view that is left, and the end of the program.
    Q_INVOKABLE void leave();
    Q_INVOKABLE void copy() const;
    Q_INVOKABLE void setPinned(const QString &id, bool pinned);
    // By so many lines, up when negative; over other pinned ones or other loose ones only.
    Q_INVOKABLE void move(const QString &id, int lines);
    Q_INVOKABLE void remove(const QString &id);
    Q_INVOKABLE void restore();

signals:
    void queryChanged();
    void listChanged();
    void currentChanged();
    void statusChanged();
    void loaded();
    // Of a removal that can be taken back for half a minute.
    void removed(const QString &message);

private:
    // What is open in the editor.
    struct Open {
        QString id{};
        QString key{}; // the line of a text that was refused and left
        // The same for the operations of the store, which are the first to know a new one.
        std::shared_ptr<std::string> storeId = std::make_shared<std::string>();
        QString title{}; // empty while it goes by its text
        QString text{};
        QString refusal{};
        std::optional<double> saved{}; // ms since 1970
        bool isTitleEdited{};
        bool isEdited{};
    };
    using Change = std::function<Base::Result<void>(KestCore::RecordList &)>;
    using Done = std::function<void()>;

    void follow();
    void followOpen();
    std::vector<NoteRow> rows() const;
    NoteRow rowOf(const KestCore::LocalRecord &record, const std::string &excerpt) const;
    Open opened(const KestCore::LocalRecord &record) const;
    void open(Open next);
    void touch();
    void save();
    void store(const Open &text);
    void keepRefused(Open refused, const QString &reason);
    static QString titleOf(const Open &note);
    static QString notSaved();
    void saveFinished(const Open &saved, const QString &id, const Base::Result<void> &result);
    bool isBlank() const;
    void change(Change change, Done done = {});

    ApplicationModel &m_model;
    const Formatting &m_formatting;
    NoteList m_list;
    QString m_query;
    Open m_open;
    std::vector<Open> m_refused; // texts that were left and could not be kept
    int m_unsaved = 0;           // new ones among them, so far
    QTimer m_pause;              // since the last key
    QTimer m_longest;            // since the first that is not durable
    int m_saving = 0;
};

} // namespace Velvetnook
