// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/FileGlance.h"
#include "Velvetnook/Application/FileWatch.h"
#include "Velvetnook/Application/RowList.h"
#include "Velvetnook/Application/SideThread.h"

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QUrl>

#include <functional>
#include <map>
#include <string>
#include <variant>
#include <vector>

namespace KestCore
{
struct LocalRecord;
} // namespace KestCore

namespace Velvetnook
{

class ApplicationModel;
class Formatting;

// One thing on the shelf.
struct ShelfRow {
    QString id{};
    QString title{};
    QString note{};
    QString
        family{}; // as of FileGlance; "words" and "link" of a text, "missing" of a lost file
    QString badge{};
    QString preview{};
    QString words{}; // the beginning of a text
    QString path{};  // where the file is now; empty of a text and of a lost file
    QVariantMap dragData{};

    bool operator==(const ShelfRow &) const = default;
};

// What QML shows of the shelf: files, which stay where they are, and texts. While it is shown
// it follows what becomes of the files; it never touches them. A picture that came without a
// file gets one beside the data, which goes once nothing on the shelf names it.
class ShelfViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QAbstractItemModel *list READ list CONSTANT)
    Q_PROPERTY(int count READ count NOTIFY listChanged)
    Q_PROPERTY(QString footer READ footer NOTIFY listChanged)
    // The view says whether it can be seen.
    Q_PROPERTY(bool isShown READ isShown WRITE setShown NOTIFY isShownChanged)

public:
    ShelfViewModel(ApplicationModel &model, const Formatting &formatting,
                   QObject *parent = nullptr);
    ~ShelfViewModel() override;
    ShelfViewModel(const ShelfViewModel &) = delete;
    ShelfViewModel &operator=(const ShelfViewModel &) = delete;

    QAbstractItemModel *list() { return &m_list; }
    const std::vector<ShelfRow> &rows() const { return m_list.rows(); }
    int count() const { return static_cast<int>(m_list.rows().size()); }
    QString footer() const;
    bool isShown() const { return m_isShown; }
    void setShown(bool isShown);

    // What was dropped or pasted: files, else addresses, a picture or a text. False where there
    // is nothing for the shelf in it.
    Q_INVOKABLE bool take(const QList<QUrl> &urls, const QString &text,
                          const QByteArray &picture = {});
    Q_INVOKABLE bool paste();
    Q_INVOKABLE void open(const QString &id);
    Q_INVOKABLE void reveal(const QString &id);
    // The file itself and its path, or the text.
    Q_INVOKABLE void copy(const QString &id);
    Q_INVOKABLE QString textOf(const QString &id) const;
    // What it goes by here; the file keeps its name.
    Q_INVOKABLE void rename(const QString &id, const QString &title);
    Q_INVOKABLE void remove(const QString &id);
    Q_INVOKABLE void clear();
    Q_INVOKABLE void restore();

signals:
    void listChanged();
    void isShownChanged();
    // Of a change that `undo` takes back.
    void changed(const QString &message, const std::function<void()> &undo);
    void openWanted(const QUrl &url);
    void revealWanted(const QString &path);

private:
    struct Seen {
        FileGlance glance{};
        bool isMissing{};
    };
    using Sight = std::map<std::string, Seen>; // by the record's id

    void follow();
    void look();
    void show();
    ShelfRow rowOf(const KestCore::LocalRecord &record) const;
    void describe(ShelfRow &row, const Seen &seen) const;
    void shelveFiles(const QList<QUrl> &urls);
    void shelveTexts(const QStringList &texts);
    void shelvePicture(const QByteArray &picture);
    void sweep();

    ApplicationModel &m_model;
    const Formatting &m_formatting;
    RowList<ShelfRow> m_list;
    Sight m_sight;
    std::vector<std::string> m_looked; // what was looked for last, as their bodies
    FileWatch m_watch;
    bool m_isShown = false;
    bool m_hasSwept = false;
    SideThread<std::monostate> m_side; // last: it is waited for before what it tells goes
};

} // namespace Velvetnook
