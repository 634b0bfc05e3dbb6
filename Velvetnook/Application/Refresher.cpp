// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/Refresher.h"

#include <utility>

namespace Velvetnook
{

// The queue of this object dies with it, after the coordinator's threads have ended, so no
// answer reaches what is gone.
void Refresher::refresh(std::string key, Base::Seconds lifetime, Fetch fetch, Done done)
{
    if (!m_coordinator) {
        m_coordinator = std::make_unique<KestCore::RefreshCoordinator>();
    }
    auto shared = std::make_shared<Done>(std::move(done));
    m_coordinator->refresh(
        std::move(key), lifetime, std::move(fetch),
        [this, shared = std::move(shared)](const KestCore::FetchAnswer &answer) {
            QMetaObject::invokeMethod(
                this, [shared, answer] { (*shared)(answer); }, Qt::QueuedConnection);
        });
}

void Refresher::cancelAll()
{
    if (m_coordinator) {
        (void)m_coordinator->cancelAll();
    }
}

} // namespace Velvetnook
