// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Http.h"
#include "KestCore/Clients/UpdateClient.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <stop_token>

namespace Velvetnook
{

class ApplicationModel;
class Formatting;

// Where updates come from: this program's own build, or that of a test.
struct UpdateSource {
    KestCore::UpdateBuild build{};
    bool isPackaged{};
    std::function<Base::Result<std::unique_ptr<Base::HttpTransport>>()> openTransport{};
};
UpdateSource ownUpdateSource(std::string version);

// Whether there is a newer version. Its server is asked once a day at most, and only once the
// user allowed it. What it says counts only with the signature of who made this build. Nothing
// is fetched or installed from here.
class UpdateSettings : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString channel READ channel NOTIFY changed)
    // Whether this build and this installation have updates of their own.
    Q_PROPERTY(bool isPossible READ isPossible NOTIFY changed)
    Q_PROPERTY(bool isAllowed READ isAllowed WRITE setAllowed NOTIFY changed)
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY changed)
    Q_PROPERTY(bool canAsk READ canAsk NOTIFY changed) // now
    Q_PROPERTY(QString note READ note NOTIFY changed)  // how it stands
    Q_PROPERTY(bool isRefused READ isRefused NOTIFY changed)
    // Of the newer version; empty when none is known.
    Q_PROPERTY(QString version READ version NOTIFY changed)
    Q_PROPERTY(QString notes READ notes NOTIFY changed)
    Q_PROPERTY(QString address READ address NOTIFY changed)
    Q_PROPERTY(QString sum READ sum NOTIFY changed)

public:
    UpdateSettings(ApplicationModel &model, const Formatting &formatting, UpdateSource source,
                   QObject *parent = nullptr);
    ~UpdateSettings() override;
    UpdateSettings(const UpdateSettings &) = delete;
    UpdateSettings &operator=(const UpdateSettings &) = delete;

    void setSource(UpdateSource source);

    QString channel() const;
    bool isPossible() const { return m_obstacle.isEmpty(); }
    bool isAllowed() const;
    void setAllowed(bool isAllowed);
    bool isBusy() const { return m_isBusy; }
    bool canAsk() const;
    QString note() const;
    bool isRefused() const { return !m_refusal.isEmpty(); }
    QString version() const;
    QString notes() const;
    QString address() const;
    QString sum() const;

    Q_INVOKABLE void ask();
    Q_INVOKABLE void copyAddress() const;

signals:
    void changed();
    void asked(); // and answered, or not

private:
    struct Outcome {
        KestCore::Settings known{};
        Base::Result<void> result{};
    };

    void follow();
    void take(const Outcome &outcome);
    std::optional<Base::Instant> dueAt(Base::Instant now) const;

    ApplicationModel &m_model;
    const Formatting &m_formatting;
    UpdateSource m_source;
    QString m_obstacle;       // why nobody is ever asked, whatever is allowed
    KestCore::Settings m_own; // the settings that matter here
    KestCore::UpdateKnowledge m_known;
    Base::Instant m_begunAt;
    std::optional<Base::Instant> m_askedAt; // in this run, kept or not
    QString m_refusal;
    bool m_isBusy = false;
    std::stop_source m_stop;
};

} // namespace Velvetnook
