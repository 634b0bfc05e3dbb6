// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"

#include <QObject>

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

namespace Velvetnook
{

class ApplicationModel;

// Changes what is pinned to the notch as time goes by.
class RotationAlarm : public QObject
{
    Q_OBJECT

public:
    explicit RotationAlarm(ApplicationModel &model, QObject *parent = nullptr);

private:
    std::optional<Base::Instant> due(Base::Instant now) const;
    void followState();
    void rotate(Base::Instant now);

    ApplicationModel &m_model;
    std::pair<std::string, std::int64_t> m_wanted{}; // mode and minutes
    Base::Instant m_next{};
    std::optional<Base::Instant> m_retryAt{}; // after a change that was refused
    bool m_isRotating = false;
};

} // namespace Velvetnook
