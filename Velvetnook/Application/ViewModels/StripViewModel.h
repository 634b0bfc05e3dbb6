// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/PrayerWatch.h"
#include "Velvetnook/Application/StripContent.h"

#include <QObject>
#include <QVariantMap>

#include <map>
#include <optional>
#include <string>

namespace Velvetnook
{

class ApplicationModel;

// What QML shows of the one thing that the closed strip shows.
class StripViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString kind READ kind NOTIFY changed)
    Q_PROPERTY(QString icon READ icon NOTIFY changed)
    Q_PROPERTY(QString iconTone READ iconTone NOTIFY changed)
    Q_PROPERTY(QString arabic READ arabic NOTIFY changed)
    Q_PROPERTY(QString text READ text NOTIFY changed)
    Q_PROPERTY(QString textTone READ textTone NOTIFY changed)
    Q_PROPERTY(QString note READ note NOTIFY changed)
    Q_PROPERTY(QString trailing READ trailing NOTIFY changed)
    Q_PROPERTY(QString trailingNote READ trailingNote NOTIFY changed)
    Q_PROPERTY(QString trailingTone READ trailingTone NOTIFY changed)
    Q_PROPERTY(QString trailingIcon READ trailingIcon NOTIFY changed)
    Q_PROPERTY(double ring READ ring NOTIFY changed)
    Q_PROPERTY(bool ringLeads READ ringLeads NOTIFY changed)
    Q_PROPERTY(double hem READ hem NOTIFY changed)
    Q_PROPERTY(QString hemTone READ hemTone NOTIFY changed)
    Q_PROPERTY(bool isCentred READ isCentred NOTIFY changed)
    Q_PROPERTY(bool showsBoth READ showsBoth NOTIFY changed)
    Q_PROPERTY(int baseWidth READ baseWidth NOTIFY changed)
    Q_PROPERTY(QString animation READ animation NOTIFY messageBegan)
    Q_PROPERTY(bool canBeSeen READ canBeSeen NOTIFY changed)
    Q_PROPERTY(bool isEmphasised READ isEmphasised NOTIFY changed)
    // One sentence for a screen reader.
    Q_PROPERTY(QString spoken READ spoken NOTIFY changed)

public:
    StripViewModel(ApplicationModel &model, const Formatting &formatting,
                   QObject *parent = nullptr);

    QString kind() const { return m_content.kind; }
    QString icon() const { return m_content.icon; }
    QString iconTone() const { return m_content.iconTone; }
    QString arabic() const { return m_content.arabic; }
    QString text() const { return m_content.text; }
    QString textTone() const { return m_content.textTone; }
    QString note() const { return m_content.note; }
    QString trailing() const { return m_content.trailing; }
    QString trailingNote() const { return m_content.trailingNote; }
    QString trailingTone() const { return m_content.trailingTone; }
    QString trailingIcon() const { return m_content.trailingIcon; }
    double ring() const { return m_content.ring; }
    bool ringLeads() const { return m_content.ringLeads; }
    double hem() const { return m_content.hem; }
    QString hemTone() const { return m_content.hemTone; }
    bool isCentred() const { return m_content.isCentred; }
    bool showsBoth() const { return m_content.showsBoth; }
    int baseWidth() const;
    QString animation() const;
    bool canBeSeen() const { return m_sources.canBeSeen; }
    bool isEmphasised() const;
    QString spoken() const;

    // Whether what is pinned is in view now.
    bool showsPin() const;

    // A short message for three seconds, once the strip can be seen.
    Q_INVOKABLE void say(const QString &text);
    void say(const QString &text, KestCore::MessageAnimation animation);
    // The assistant that waits for its user; nothing when none does.
    void showWaiting(std::optional<WaitingAssistant> waiting);
    // Draws the eye to the pinned phrase.
    Q_INVOKABLE void emphasise();
    // Nothing: there is none, or not wanted here.
    void setNextEvent(std::optional<UpcomingEvent> event);
    // Nothing: it is silent, or not wanted here.
    void setNowPlaying(std::optional<NowPlaying> nowPlaying);
    // The window says whether the strip can be seen.
    void setVisible(bool isVisible);
    // While something larger stands in its place.
    void setLent(bool isLent);
    // What is said while the panel is open stands there, and not here afterwards.
    void setPanelOpen(bool isOpen) { m_isPanelOpen = isOpen; }

signals:
    void changed();
    void messageBegan();

private:
    void followState();
    void followRecords();
    void followPrayers();
    void sayNewMessages();
    void followWallClock();
    void beginMessage();
    void refresh();

    ApplicationModel &m_model;
    const Formatting &m_formatting;
    PrayerWatch m_prayers;
    StripSources m_sources;
    StripContent m_content;
    std::optional<Base::Instant> m_changesAt;
    std::string m_sessionId;
    std::int64_t m_count = 0;
    bool m_isPanelOpen = false;
    // Messages count from here on, each once: by its id, when it was written.
    double m_messagesFrom = 0;
    std::map<std::string, double> m_seenMessages;
    bool m_knowsPrayers = false;
};

} // namespace Velvetnook
