// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Registry/RefreshCoordinator.h"

#include <QObject>

#include <memory>

namespace Velvetnook
{

// Fetches on threads of their own and brings what they yield back to the main thread. Has no
// thread until the first fetch. Its end stops what runs, and waits for it.
class Refresher : public QObject
{
public:
    using Fetch = KestCore::RefreshCoordinator::Fetch;
    using Done = std::move_only_function<void(const KestCore::FetchAnswer &)>;

    using QObject::QObject;

    void refresh(std::string key, Base::Seconds lifetime, Fetch fetch, Done done);
    // Whoever waits is told that it was cancelled.
    void cancelAll();

private:
    std::unique_ptr<KestCore::RefreshCoordinator> m_coordinator;
};

} // namespace Velvetnook
