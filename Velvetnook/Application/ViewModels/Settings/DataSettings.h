// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QUrl>

#include <memory>

namespace KestCore
{
class Backup;
} // namespace KestCore

namespace Velvetnook
{

class ApplicationModel;
class Formatting;

// The data as a whole: one file to carry it, and the ways to forget it. What fails leaves the
// data as it is and is told in the words of what refused it.
class DataSettings : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString folder READ folder CONSTANT)
    Q_PROPERTY(QUrl folderUrl READ folderUrl CONSTANT)
    Q_PROPERTY(QUrl suggestedFile READ suggestedFile CONSTANT)
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY changed)
    // What came of the last thing that was done, and whether it failed.
    Q_PROPERTY(QString message READ message NOTIFY changed)
    Q_PROPERTY(bool isFailure READ isFailure NOTIFY changed)
    // The question that stands: "import", "clear", "reset" or none.
    Q_PROPERTY(QString question READ question NOTIFY questionChanged)
    Q_PROPERTY(QString questionTitle READ questionTitle NOTIFY questionChanged)
    Q_PROPERTY(QString questionBody READ questionBody NOTIFY questionChanged)
    Q_PROPERTY(QString acceptText READ acceptText NOTIFY questionChanged)

public:
    DataSettings(ApplicationModel &model, const Formatting &formatting,
                 QObject *parent = nullptr);
    ~DataSettings() override;
    DataSettings(const DataSettings &) = delete;
    DataSettings &operator=(const DataSettings &) = delete;

    QString folder() const;
    QUrl folderUrl() const { return QUrl::fromLocalFile(folder()); }
    QUrl suggestedFile() const;
    bool isBusy() const { return m_isBusy; }
    QString message() const { return m_message; }
    bool isFailure() const { return m_isFailure; }
    QString question() const { return m_question; }
    QString questionTitle() const;
    QString questionBody() const;
    QString acceptText() const;

    Q_INVOKABLE void exportTo(const QUrl &file);
    // Reads and proves the file; where it is sound the question "import" follows.
    Q_INVOKABLE void openBackup(const QUrl &file);
    // Asks "clear" or "reset".
    Q_INVOKABLE void ask(const QString &question);
    Q_INVOKABLE void accept();
    Q_INVOKABLE void decline();

signals:
    void changed();
    void questionChanged();

private:
    struct Reading;

    void begin();
    void finish(const QString &message, bool isFailure);
    void compare(std::shared_ptr<const KestCore::Backup> backup);
    void askToImport(const Reading &reading);
    void importBackup();
    void clearHistory();
    void resetAll();

    ApplicationModel &m_model;
    const Formatting &m_formatting;
    bool m_isBusy = false;
    bool m_isFailure = false;
    QString m_message;
    QString m_question;
    QString m_importBody;
    std::shared_ptr<const KestCore::Backup> m_backup; // that the question is about
};

} // namespace Velvetnook
