// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/ScreenTime/ScreenActivity.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Velvetnook
{

class ApplicationModel;

// Counts how long which application is in front, while the tool is on and the user has turned
// counting on; otherwise it watches nothing. What is counted is written every five minutes and
// when somebody wants to see it, in one step; what cannot be written is kept for the next one.
class ScreenTimeService : public QObject
{
    Q_OBJECT

public:
    using MakeActivity = std::function<std::unique_ptr<ScreenActivity>()>;

    explicit ScreenTimeService(ApplicationModel &model, QObject *parent = nullptr);
    ~ScreenTimeService() override;
    ScreenTimeService(const ScreenTimeService &) = delete;
    ScreenTimeService &operator=(const ScreenTimeService &) = delete;

    void begin(MakeActivity make);
    bool isCounting() const { return m_tracker.has_value(); }
    // What cannot be told here; empty when nothing is counted.
    QString problem() const;
    // While somebody looks, what is counted is written each minute.
    void setWatched(bool watched);
    // Counts up to now and hands it to the store.
    void write();

signals:
    void countingChanged();

private:
    void follow();
    void start(const KestCore::ScreenTimeSettings &settings);
    void stop();
    void followApplication();
    void advance(Base::Instant now);
    std::optional<Base::Instant> nextStep(Base::Instant now) const;
    void keep(std::vector<KestCore::UsagePiece> pieces);

    ApplicationModel &m_model;
    MakeActivity m_make;
    std::unique_ptr<ScreenActivity> m_activity;
    std::optional<KestCore::ScreenTimeTracker> m_tracker;
    KestCore::ScreenTimeSettings m_settings;
    std::vector<KestCore::UsagePiece> m_pieces; // not on the disk yet
    std::optional<Base::Instant> m_steppedAt;
    std::optional<Base::Instant> m_writtenAt;
    bool m_isWatched = false;
};

} // namespace Velvetnook
