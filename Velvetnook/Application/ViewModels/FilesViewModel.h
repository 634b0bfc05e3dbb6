// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/FileGlance.h"
#include "Velvetnook/Application/FileWatch.h"
#include "Velvetnook/Application/RowList.h"
#include "Velvetnook/Application/SideThread.h"

#include <QList>
#include <QObject>
#include <QUrl>

#include <functional>
#include <map>
#include <variant>
#include <vector>

namespace Velvetnook
{

class ApplicationModel;
class Formatting;

// One file or folder.
struct FileRow {
    QString id{}; // its path
    QString title{};
    QString note{};
    QString when{};
    QString family{}; // as of FileGlance; "missing" of a pinned one that is not there
    QString badge{};
    QString preview{};
    QVariantMap dragData{};
    bool isPinned{};

    bool operator==(const FileRow &) const = default;
};

// What QML shows of the files and folders that the user comes back to: those that the desktop's
// programs had open lately, and those that are pinned. They are looked at only while somebody
// looks at them here.
class FilesViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QAbstractItemModel *list READ list CONSTANT)
    Q_PROPERTY(QString section READ section WRITE setSection NOTIFY listChanged)
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged)
    Q_PROPERTY(QString availability READ availability NOTIFY listChanged)
    Q_PROPERTY(QString message READ message NOTIFY listChanged)
    Q_PROPERTY(QString note READ note NOTIFY listChanged)
    Q_PROPERTY(QString footer READ footer NOTIFY listChanged)
    Q_PROPERTY(bool isShown READ isShown WRITE setShown NOTIFY isShownChanged)

public:
    FilesViewModel(ApplicationModel &model, const Formatting &formatting,
                   QObject *parent = nullptr);

    QAbstractItemModel *list() { return &m_list; }
    const std::vector<FileRow> &rows() const { return m_list.rows(); }
    QString section() const; // "recent" or "pinned"
    void setSection(const QString &section);
    QString query() const { return m_query; }
    void setQuery(const QString &query);
    QString availability() const; // "loading", "ready", "empty", "error"
    QString message() const;
    QString note() const;
    QString footer() const;
    bool isShown() const { return m_isShown; }
    void setShown(bool isShown);

    Q_INVOKABLE void open(const QString &path);
    Q_INVOKABLE void reveal(const QString &path);
    Q_INVOKABLE void copyPath(const QString &path);
    Q_INVOKABLE void setPinned(const QString &path, bool isPinned);
    Q_INVOKABLE void pinUrls(const QList<QUrl> &urls);
    // Among the pinned ones, by so many lines.
    Q_INVOKABLE void move(const QString &path, int lines);
    Q_INVOKABLE void lookAgain() { look(); }

signals:
    void listChanged();
    void queryChanged();
    void isShownChanged();
    void changed(const QString &message, const std::function<void()> &undo);
    void openWanted(const QUrl &url);
    void revealWanted(const QString &path);

private:
    struct Recent {
        FileGlance glance{};
        qint64 usedMs{};
    };
    struct Sight {
        std::vector<Recent> recent{};
        std::map<QString, FileGlance> pinned{};
        QString failure{};
    };

    static Sight see(const QStringList &pinned);
    QStringList pinnedPaths() const;
    QString idOf(const QString &path) const;
    void follow();
    void look();
    void show();
    FileRow rowOf(const FileGlance &glance, bool isPinned) const;
    bool matches(const FileRow &row) const;
    void restore();

    ApplicationModel &m_model;
    const Formatting &m_formatting;
    RowList<FileRow> m_list;
    Sight m_sight;
    QStringList m_pinned; // as they were looked at
    bool m_isSeen = false;
    bool m_showsPinned = false;
    QString m_query;
    bool m_isShown = false;
    FileWatch m_watch;
    SideThread<std::monostate> m_side; // last: it is waited for before what it tells goes
};

} // namespace Velvetnook
