// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Clipboard/ClipboardHistory.h"
#include "Velvetnook/Application/Clipboard/ClipboardKeyring.h"
#include "Velvetnook/Application/Clipboard/ClipboardRecorder.h"
#include "Velvetnook/Application/ViewModels/Clipboard/ClipboardRows.h"

#include <QTimer>

#include <map>

namespace Velvetnook
{

// What QML shows of the clipboard's history. While the view is hidden none of it is in memory;
// recording goes on beside it.
class ClipboardViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QAbstractItemModel *list READ list CONSTANT)
    // "ready" with the list, else what stands in its place.
    Q_PROPERTY(QString availability READ availability NOTIFY changed)
    Q_PROPERTY(QString message READ message NOTIFY changed)
    Q_PROPERTY(QString note READ note NOTIFY changed)
    Q_PROPERTY(QString primaryText READ primaryText NOTIFY changed)
    Q_PROPERTY(QString filter READ filter WRITE setFilter NOTIFY listChanged)
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY listChanged)
    Q_PROPERTY(QString findings READ findings NOTIFY listChanged) // where nothing is found
    Q_PROPERTY(QString status READ status NOTIFY changed)
    Q_PROPERTY(QString statusSign READ statusSign NOTIFY changed) // "accent", "warn" or none
    Q_PROPERTY(QString statusAction READ statusAction NOTIFY changed)
    Q_PROPERTY(bool isPaused READ isPaused NOTIFY changed)
    Q_PROPERTY(bool pastes READ pastes NOTIFY changed)

public:
    ClipboardViewModel(ApplicationModel &model, const Formatting &formatting,
                       QObject *parent = nullptr);
    ~ClipboardViewModel() override;
    ClipboardViewModel(const ClipboardViewModel &) = delete;
    ClipboardViewModel &operator=(const ClipboardViewModel &) = delete;

    // Recording begins with this, where it is turned on.
    void setDesktop(ClipboardDesktop desktop);
    const ClipboardDesktop &desktop() const { return m_desktop; }
    ClipboardRecorder &recorder() { return m_recorder; }

    QAbstractItemModel *list() { return &m_list; }
    QString availability() const;
    QString message() const;
    QString note() const;
    QString primaryText() const;
    QString filter() const { return m_filter; }
    QString query() const { return m_query; }
    QString findings() const;
    QString status() const;
    QString statusSign() const;
    QString statusAction() const;
    bool isPaused() const;
    bool pastes() const;

    void setFilter(const QString &filter);
    void setQuery(const QString &query);

    // The view is seen, or no longer.
    Q_INVOKABLE void setShown(bool isShown);
    // Takes the one step that is offered in the place of the list, or in the footer.
    Q_INVOKABLE void takeStep();
    Q_INVOKABLE void takeStatusAction();
    // A card came into sight: what its content shows is wanted.
    Q_INVOKABLE void look(const QString &id);
    Q_INVOKABLE void copy(const QString &id);
    // Copies it and pastes it into the window that had the keyboard, where that can be done.
    Q_INVOKABLE void use(const QString &id);
    Q_INVOKABLE void toggleFavourite(const QString &id);
    Q_INVOKABLE void remove(const QString &id);
    Q_INVOKABLE void restore();
    Q_INVOKABLE void clear(); // all but the favourites

signals:
    void changed();
    void listChanged();
    void copied();
    void used(); // the panel makes way for the window that is pasted into
    void removed();

private:
    // What the store's thread has read; wiped when it is let go.
    struct Loaded {
        Loaded() = default;
        ~Loaded();
        Loaded(const Loaded &) = delete;
        Loaded &operator=(const Loaded &) = delete;

        std::vector<KestCore::ClipboardListing> listings{};
        int total = 0;
    };
    enum class Stage : std::uint8_t { asking, loaded, failed };
    using Work = std::function<Base::Result<void>(KestCore::ClipboardHistory &)>;
    using Done = std::function<void(const Base::Result<void> &)>;

    bool isOn() const;
    void follow();
    void countWithoutKey();
    void reload();
    void load(Base::AesKey key);
    void finishLoad(std::shared_ptr<Loaded> loaded, const Base::Result<void> &result);
    void letGo();
    void showRows();
    void showDetail(const QString &id, ClipboardDetail detail);
    void perform(Work work, Done done);
    void performAndTell(Work work);
    void take(const QString &id, bool isUsed);
    KestCore::Availability standing() const;

    ApplicationModel &m_model;
    const Formatting &m_formatting;
    ClipboardDesktop m_desktop;
    ClipboardKeyring m_keyring;
    ClipboardRecorder m_recorder;
    ClipboardList m_list;
    QString m_filter = QStringLiteral("all");
    QString m_query;
    bool m_isShown = false;
    Stage m_stage = Stage::asking;
    QString m_failure;
    int m_generation = 0; // of what was asked to be loaded
    std::shared_ptr<Loaded> m_loaded;
    std::map<QString, ClipboardDetail> m_details;
    std::vector<QString> m_lookedAt; // the oldest first
    std::shared_ptr<KestCore::RecordChanges> m_removed;
    bool m_isClearing = false; // once the key is there
    QTimer m_forget;           // what was removed
    QTimer m_typing;
};

} // namespace Velvetnook
