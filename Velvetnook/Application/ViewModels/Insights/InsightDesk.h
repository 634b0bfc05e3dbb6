// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Result.h"
#include "KestCore/Clients/InsightPeriod.h"
#include "KestCore/Clients/InsightReport.h"
#include "SecretService/SecretService.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>

namespace Velvetnook
{

class Refresher;
struct ToolServices;

// Fetches reports with the keys of the keyring, and puts keys there. Keys stay on its thread.
class InsightDesk : public QObject
{
public:
    struct Question {
        KestCore::InsightProvider provider{};
        KestCore::InsightPeriod period{};
        std::string website{};
        std::optional<Base::Instant> waitsUntil{}; // what the provider said in an earlier run
        Keyring::Prompts prompts{};
        bool isFresh{}; // not one of the last minutes
    };
    struct Answer {
        std::optional<KestCore::InsightReport> report{};
        // Else why there is none.
        KestCore::Availability availability{};
        std::string message{};
        std::optional<Base::Instant> waitsUntil{};
    };
    // An empty text: it is done. Else why it is not.
    using Outcome = std::function<void(const std::string &problem)>;

    explicit InsightDesk(std::shared_ptr<const ToolServices> services,
                         QObject *parent = nullptr);
    ~InsightDesk() override;
    InsightDesk(const InsightDesk &) = delete;
    InsightDesk &operator=(const InsightDesk &) = delete;

    void load(const Question &question, std::function<void(Answer)> done);
    // Keeps a key that was checked; without one, forgets the one there is.
    void keep(KestCore::InsightProvider provider, std::optional<std::string> key, Outcome done);

private:
    struct Owned;
    struct Service;

    static Base::Result<void> makeClient(Owned &owned);
    static Answer ask(Owned &owned, const Question &question, const std::stop_token &stop);
    static std::string put(Owned &owned, KestCore::InsightProvider provider,
                           const std::optional<std::string> &key, const std::stop_token &stop);
    Service &service();

    std::shared_ptr<const ToolServices> m_services;
    std::stop_source m_end;
    int m_keys = 0; // that were kept or forgotten: a report is that of its key
    std::shared_ptr<Service> m_service;
    std::unique_ptr<Refresher> m_refresher; // last: it uses the service
};

} // namespace Velvetnook
