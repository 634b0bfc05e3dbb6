// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/Monitor/MonitorService.h"
#include "Velvetnook/Application/NotificationRequest.h"
#include "Velvetnook/Application/ViewModels/Monitor/MixerRows.h"
#include "Velvetnook/Application/ViewModels/Monitor/MonitorChart.h"
#include "Velvetnook/Application/ViewModels/Monitor/MonitorOptions.h"
#include "Velvetnook/Application/ViewModels/Monitor/MonitorRows.h"
#include "Velvetnook/Application/ViewModels/Monitor/MonitorTile.h"

#include <QImage>
#include <QObject>
#include <QString>
#include <QUrl>
#include <QVariantList>

#include <array>
#include <optional>

namespace Velvetnook
{

class ApplicationModel;
class Formatting;

// What QML shows of the machine: four figures, the applications with their processes, what else
// the machine tells, and what was recorded. Sampled only while one of it can be seen.
class MonitorViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool watched READ watched WRITE setWatched NOTIFY watchedChanged)
    Q_PROPERTY(bool homeWatched READ homeWatched WRITE setHomeWatched NOTIFY watchedChanged)
    Q_PROPERTY(QString availability READ availability NOTIFY changed)
    Q_PROPERTY(QVariantList tiles READ tiles CONSTANT) // CPU, memory, disk, network
    // overview, app, chart, machine, mixer or options
    Q_PROPERTY(QString page READ page NOTIFY pageChanged)
    Q_PROPERTY(Velvetnook::MonitorRows *apps READ apps CONSTANT)
    Q_PROPERTY(Velvetnook::MonitorRows *processes READ processes CONSTANT)  // of the chosen one
    Q_PROPERTY(Velvetnook::MonitorRows *readings READ readings CONSTANT)    // of the machine
    Q_PROPERTY(QString order READ order WRITE setOrder NOTIFY orderChanged) // cpu, memory, disk
    // While somebody points at the rows they stay where they are.
    Q_PROPERTY(bool isHeld READ isHeld WRITE setHeld NOTIFY heldChanged)
    Q_PROPERTY(QString appId READ appId NOTIFY appChanged)
    Q_PROPERTY(QString appTitle READ appTitle NOTIFY appChanged)
    Q_PROPERTY(QString appNote READ appNote NOTIFY appChanged)
    Q_PROPERTY(QString appPorts READ appPorts NOTIFY appChanged)
    Q_PROPERTY(bool isAppExcluded READ isAppExcluded NOTIFY appChanged) // from alerts
    Q_PROPERTY(bool isAppGone READ isAppGone NOTIFY appChanged)
    Q_PROPERTY(QString uptime READ uptime NOTIFY changed)
    Q_PROPERTY(QString restricted READ restricted NOTIFY changed) // empty: none is
    Q_PROPERTY(QString battery READ battery NOTIFY changed)       // empty: there is none
    Q_PROPERTY(QString alertApp READ alertApp NOTIFY alertsChanged)
    Q_PROPERTY(QString alertText READ alertText NOTIFY alertsChanged) // empty: no alert
    Q_PROPERTY(QString question READ question NOTIFY questionChanged) // empty: none is asked
    Q_PROPERTY(QString questionBody READ questionBody NOTIFY questionChanged)
    Q_PROPERTY(QString questionVerb READ questionVerb NOTIFY questionChanged)
    Q_PROPERTY(bool questionKills READ questionKills NOTIFY questionChanged)
    Q_PROPERTY(Velvetnook::MixerRows *mixer READ mixer CONSTANT)
    Q_PROPERTY(Velvetnook::MonitorChart *chart READ chart CONSTANT)
    Q_PROPERTY(Velvetnook::MonitorOptions *options READ options CONSTANT)

public:
    MonitorViewModel(ApplicationModel &model, const Formatting &formatting,
                     QObject *parent = nullptr);

    // What there is to sample with; before, nothing is shown.
    void begin(MonitorTools tools);
    MonitorService &service() { return m_service; }

    bool watched() const { return m_watched; }
    void setWatched(bool watched);
    bool homeWatched() const { return m_homeWatched; }
    void setHomeWatched(bool watched);
    QString availability() const;
    QVariantList tiles() const;
    QString page() const { return m_page; }
    MonitorRows *apps() { return &m_apps; }
    MonitorRows *processes() { return &m_processes; }
    MonitorRows *readings() { return &m_readings; }
    QString order() const { return m_order; }
    void setOrder(const QString &order);
    bool isHeld() const { return m_isHeld; }
    void setHeld(bool held);
    QString appId() const { return m_appId; }
    QString appTitle() const { return m_appTitle; }
    QString appNote() const { return m_appNote; }
    QString appPorts() const { return m_appPorts; }
    bool isAppGone() const { return m_isAppGone; }
    bool isAppExcluded() const { return m_options.isExcluded(m_appId); }
    QString uptime() const;
    QString restricted() const;
    QString battery() const;
    QString alertApp() const;
    QString alertText() const;
    QString question() const;
    QString questionBody() const;
    QString questionVerb() const;
    bool questionKills() const;
    MixerRows *mixer() { return &m_mixer; }
    MonitorChart *chart() { return &m_chart; }
    MonitorOptions *options() { return &m_options; }

    Q_INVOKABLE void showPage(const QString &page);
    Q_INVOKABLE void showApp(const QString &appId);
    Q_INVOKABLE void showChart(const QString &metric);
    // To the application that the alert is about.
    Q_INVOKABLE void review();
    Q_INVOKABLE void dismissAlert();
    // Asks before it ends one process, or with its id the whole application.
    Q_INVOKABLE void askToEnd(const QString &rowId, bool kills);
    Q_INVOKABLE void answer(bool isYes);
    // Where a picture can go without taking the place of another.
    Q_INVOKABLE QUrl freeImageFile() const;
    // Writes the picture of the view on its ground.
    Q_INVOKABLE void saveImage(const QImage &view, const QColor &ground, const QUrl &file);
    Q_INVOKABLE void askToClear();

signals:
    void watchedChanged();
    void changed();
    void pageChanged();
    void orderChanged();
    void heldChanged();
    void appChanged();
    void alertsChanged();
    void questionChanged();
    void said(const QString &message);
    void imageSaved(const QString &message, const QUrl &folder);
    void notificationWanted(const Velvetnook::NotificationRequest &request);
    void notificationObsolete(const QString &notificationId);

private:
    // What is to be ended, as it was when it was asked about.
    struct Question {
        QString title{};
        std::vector<MonitorCore::ProcessKey> processes{};
        bool isApplication{};
        bool kills{};
        bool clears{}; // the history instead
    };

    void follow();
    void take(bool isNew);
    void showApps();
    void showProcesses();
    void showReadings();
    void readPorts();
    const MonitorCore::AppUsage *shownApp() const;
    MonitorRow rowOf(const MonitorCore::AppUsage &app) const;
    MonitorRow rowOf(const MonitorCore::ProcessSample &process,
                     const MonitorCore::AppUsage &app) const;
    double shareOf(double cpu, double memory) const;
    void carryOut(const Question &question);

    ApplicationModel &m_model;
    const Formatting &m_formatting;
    MonitorService m_service;
    MonitorChart m_chart;
    MonitorOptions m_options;
    std::array<MonitorTile *, 4> m_tiles;
    MixerRows m_mixer;
    MonitorRows m_apps;
    MonitorRows m_processes;
    MonitorRows m_readings;
    QString m_page = QStringLiteral("overview");
    QString m_order = QStringLiteral("cpu");
    QString m_appId;
    QString m_appTitle;
    QString m_appNote;
    QString m_appPorts;
    bool m_isAppGone = false;
    std::optional<Question> m_question;
    bool m_isHeld = false;
    bool m_watched = false;
    bool m_homeWatched = false;
};

} // namespace Velvetnook
