// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Media/BrowserPlayback.h"
#include "KestCore/Media/BrowserPlaybackScript.h"
#include "KestCore/Media/PlaybackSettings.h"

#include <QObject>
#include <QString>
#include <QVariantList>

#include <memory>
#include <optional>
#include <vector>

namespace Velvetnook
{

class ApplicationModel;
struct ToolServices;

// The browser's tab that the user connected, and the choice of it. No browser is asked unless
// one is connected or looked for.
class TabPlayback : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QVariantList tabs READ tabs NOTIFY tabsChanged) // {title, note}
    Q_PROPERTY(QString message READ message NOTIFY tabsChanged)
    Q_PROPERTY(bool isLooking READ isLooking NOTIFY tabsChanged)
    Q_PROPERTY(bool isConnected READ isConnected NOTIFY changed)
    Q_PROPERTY(int port READ port NOTIFY changed)

public:
    using Action = KestCore::BrowserPlaybackScript::Action;
    using Playback = std::optional<KestCore::BrowserPlayback>;

    TabPlayback(ApplicationModel &model, std::shared_ptr<const ToolServices> services,
                QObject *parent = nullptr);
    ~TabPlayback() override;
    TabPlayback(const TabPlayback &) = delete;
    TabPlayback &operator=(const TabPlayback &) = delete;

    QVariantList tabs() const;
    QString message() const { return m_message; }
    bool isLooking() const { return m_isLooking; }
    bool isConnected() const { return m_connected.has_value(); }
    int port() const;
    const Playback &playback() const { return m_playback; }
    QString problem() const { return m_problem; } // why the tab does not answer

    // Looks for the tabs of the browser that can be driven on that port.
    Q_INVOKABLE void look(int port);
    Q_INVOKABLE void connectTab(int index);
    Q_INVOKABLE void disconnectTab();

    // One question at a time; what is asked to be read meanwhile is dropped.
    void perform(const Action &action);

signals:
    void tabsChanged();
    void changed();
    void failed(const QString &message);

private:
    struct Worker;
    struct Tab {
        std::string id{};
        QString title{};
        QString address{};
    };
    using Answer = Base::Result<Playback>;

    Worker &worker();
    void follow();
    void take(const KestCore::ConnectedTab &asked, const Action &action, const Answer &answer);

    ApplicationModel &m_model;
    std::shared_ptr<const ToolServices> m_services;
    std::optional<KestCore::ConnectedTab> m_connected;
    Playback m_playback;
    QString m_problem;
    std::vector<Tab> m_tabs;
    QString m_message;
    std::uint16_t m_lookedAt = 0;
    bool m_isLooking = false;
    bool m_isReading = false;
    std::unique_ptr<Worker> m_worker; // last, so that it ends first
};

} // namespace Velvetnook
