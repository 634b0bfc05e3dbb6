// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Insights/InsightDesk.h"

#include "Base/Json.h"
#include "Base/Secret.h"
#include "Base/Serial.h"
#include "KestCore/Clients/InsightKeys.h"
#include "KestCore/Clients/InsightSettings.h"
#include "Velvetnook/Application/Refresher.h"
#include "Velvetnook/Application/ToolServices.h"

#include <fmt/format.h>

#include <utility>

namespace Velvetnook
{

namespace
{

using KestCore::Availability;
using KestCore::InsightReport;

constexpr Base::Seconds kGoodFor{300};

InsightDesk::Answer refused(Availability availability, std::string message)
{
    return {.report = {}, .availability = availability, .message = std::move(message)};
}

InsightDesk::Answer refused(const Base::SecretFailure &failure)
{
    return refused(failure.kind == Base::SecretFailure::Kind::locked
                       ? Availability::permissionDenied
                       : Availability::error,
                   failure.message);
}

} // namespace

struct InsightDesk::Owned {
    std::shared_ptr<const ToolServices> services;
    std::unique_ptr<Base::HttpTransport> transport{};
    std::unique_ptr<KestCore::DirectInsightsClient> client{};
};

struct InsightDesk::Service {
    Base::Serial<Owned> owned;
};

InsightDesk::InsightDesk(std::shared_ptr<const ToolServices> services, QObject *parent)
    : QObject{parent}, m_services{std::move(services)}
{
}

// First nobody waits for the keyring any more, as the refresher waits for who does.
InsightDesk::~InsightDesk() { m_end.request_stop(); }

InsightDesk::Service &InsightDesk::service()
{
    if (!m_service) {
        // NOLINTNEXTLINE(modernize-make-shared): what is on its thread cannot be moved
        m_service.reset(new Service{Base::Serial<Owned>{Owned{.services = m_services}}});
        m_refresher = std::make_unique<Refresher>();
    }
    return *m_service;
}

Base::Result<void> InsightDesk::makeClient(Owned &owned)
{
    if (!owned.client) {
        KEST_TRY(owned.transport, owned.services->openTransport());
        owned.client = std::make_unique<KestCore::DirectInsightsClient>(
            *owned.transport, KestCore::insightHosts());
    }
    return {};
}

InsightDesk::Answer InsightDesk::ask(Owned &owned, const Question &question,
                                     const std::stop_token &stop)
{
    if (!owned.services->openSecrets || !owned.services->openTransport) {
        return refused(Availability::error, "There is no way to the providers here.");
    }
    const auto secrets = owned.services->openSecrets(question.prompts, stop);
    if (!secrets) {
        return refused(secrets.error());
    }
    const auto key = (*secrets)->read(KestCore::keyAccountOf(question.provider));
    if (!key) {
        return refused(key.error());
    }
    const auto &kept = *key;
    if (!kept) {
        return refused(Availability::unconfigured, {});
    }
    if (const auto made = makeClient(owned); !made) {
        return refused(Availability::error, made.error().message);
    }
    KestCore::DirectInsightsClient &client = *owned.client;
    if (question.waitsUntil && !client.waitsUntil(question.provider)) {
        client.waitUntil(question.provider, *question.waitsUntil);
    }
    const std::string_view word{reinterpret_cast<const char *>(kept->data()), kept->size()};
    auto report = client.load(question.provider, word, question.period, question.website,
                              Base::wallClock(), KestCore::InsightZone::ofHost(), stop);
    Answer answer;
    if (report) {
        answer = {.report = *std::move(report), .availability = Availability::ready};
    } else {
        answer =
            refused(KestCore::availabilityOf(report.error().kind), messageOf(report.error()));
    }
    answer.waitsUntil = client.waitsUntil(question.provider);
    return answer;
}

// The refresher keeps reports; why there is none it does not know how to carry.
void InsightDesk::load(const Question &question, std::function<void(Answer)> done)
{
    service();
    const std::string key =
        fmt::format("{}/{}/{}/{}", Base::textOf(question.provider),
                    Base::textOf(question.period), question.website, m_keys);
    auto answer = std::make_shared<Answer>();
    m_refresher->refresh(
        key, question.isFresh ? Base::Seconds{0} : kGoodFor,
        [service = m_service, question,
         answer](const std::stop_token &stop) -> Base::Result<Base::Bytes> {
            *answer =
                service->owned.ask([&](Owned &owned) { return ask(owned, question, stop); })
                    .get();
            if (!answer->report) {
                return std::unexpected(Base::KestError::unavailable(answer->message));
            }
            KEST_TRY(const std::string text, Base::json::encode(*answer->report));
            return Base::Bytes{text.begin(), text.end()};
        },
        [answer, done = std::move(done)](const KestCore::FetchAnswer &fetched) {
            if (fetched && !answer->report) { // fetched before, or by another question
                const std::string text{(*fetched)->begin(), (*fetched)->end()};
                if (auto report = Base::json::decode<InsightReport>(std::string_view{text})) {
                    *answer = {.report = *std::move(report),
                               .availability = Availability::ready};
                }
            } else if (!fetched && !answer->report &&
                       answer->availability != Availability::unconfigured &&
                       answer->message.empty()) {
                *answer = refused(Availability::error, fetched.error().message);
            }
            done(std::move(*answer));
        });
}

std::string InsightDesk::put(Owned &owned, KestCore::InsightProvider provider,
                             const std::optional<std::string> &key, const std::stop_token &stop)
{
    if (!owned.services->openSecrets) {
        return "There is no keyring (Secret Service) here to keep the key in.";
    }
    const auto secrets = owned.services->openSecrets(Keyring::Prompts::allowed, stop);
    if (!secrets) {
        return secrets.error().message;
    }
    const auto account = KestCore::keyAccountOf(provider);
    const auto bytes = [&key] {
        return std::span{reinterpret_cast<const std::uint8_t *>(key->data()), key->size()};
    };
    const auto done = key ? (*secrets)->write(account, bytes()) : (*secrets)->erase(account);
    return done ? std::string{} : done.error().message;
}

void InsightDesk::keep(KestCore::InsightProvider provider, std::optional<std::string> key,
                       Outcome done)
{
    ++m_keys;
    service().owned.ask(
        [provider, key = std::move(key), stop = m_end.get_token()](Owned &owned) mutable {
            const Base::WipeAtEnd wiping{key};
            return put(owned, provider, key, stop);
        },
        // The queue of this object dies with it, after its thread has ended.
        [this](auto call) {
            auto shared = std::make_shared<decltype(call)>(std::move(call));
            QMetaObject::invokeMethod(this, [shared] { (*shared)(); }, Qt::QueuedConnection);
        },
        [done = std::move(done)](const std::string &problem) { done(problem); });
}

} // namespace Velvetnook
