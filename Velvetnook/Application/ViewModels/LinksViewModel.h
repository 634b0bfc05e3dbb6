// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/RowList.h"

#include <QObject>
#include <QUrl>

#include <functional>

namespace Velvetnook
{

class ApplicationModel;
class Formatting;

// One bookmark.
struct LinkRow {
    QString id{};
    QString title{};
    QString host{};
    QString letter{}; // of its tile
    QString url{};
    QString note{};

    bool operator==(const LinkRow &) const = default;
};

// What QML shows of the user's bookmarks.
class LinksViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QAbstractItemModel *list READ list CONSTANT)
    Q_PROPERTY(int count READ count NOTIFY listChanged) // of all of them
    Q_PROPERTY(int found READ found NOTIFY listChanged) // that are shown
    Q_PROPERTY(QString footer READ footer NOTIFY listChanged)
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged)
    Q_PROPERTY(QString refusal READ refusal NOTIFY refusalChanged)

public:
    LinksViewModel(ApplicationModel &model, const Formatting &formatting,
                   QObject *parent = nullptr);

    QAbstractItemModel *list() { return &m_list; }
    const std::vector<LinkRow> &rows() const { return m_list.rows(); }
    int count() const { return m_count; }
    int found() const { return m_list.rowCount(); }
    QString footer() const;
    QString query() const { return m_query; }
    QString refusal() const { return m_refusal; }
    void setQuery(const QString &query);

    // The address that the clipboard holds, for a new one; else empty.
    Q_INVOKABLE QString heldAddress() const;
    // A new one where there is no id. Answers with `saved`, or with a refusal.
    Q_INVOKABLE void save(const QString &id, const QString &url, const QString &title,
                          const QString &note);
    Q_INVOKABLE void dropRefusal();
    Q_INVOKABLE void open(const QString &id);
    Q_INVOKABLE void copy(const QString &id);
    // By so many lines, up when negative.
    Q_INVOKABLE void move(const QString &id, int lines);
    Q_INVOKABLE void remove(const QString &id);
    Q_INVOKABLE void restore();

signals:
    void listChanged();
    void queryChanged();
    void refusalChanged();
    void saved();
    void changed(const QString &message, const std::function<void()> &undo);
    void openWanted(const QUrl &url);

private:
    void show();
    void refuse(const QString &reason);

    ApplicationModel &m_model;
    const Formatting &m_formatting;
    RowList<LinkRow> m_list;
    int m_count = 0;
    QString m_query;
    QString m_refusal;
};

} // namespace Velvetnook
