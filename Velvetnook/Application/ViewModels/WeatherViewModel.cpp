// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/WeatherViewModel.h"

#include "Base/Serial.h"
#include "KestCore/Clients/ServiceAddress.h"
#include "KestCore/Clients/WeatherClient.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/LocalDay.h"
#include "Velvetnook/Application/Refresher.h"
#include "Velvetnook/Application/ToolServices.h"
#include "Velvetnook/Application/ViewModels/Weather/WeatherText.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <utility>

namespace Velvetnook
{

namespace
{

using KestCore::Availability;

constexpr const char *kAllowed = "weather.network";
constexpr Base::Seconds kHour{3600};
// The service says itself how long a forecast is good; asked sooner, the client answers alone.
constexpr Base::Seconds kRefreshEvery{900};
constexpr Base::Seconds kRetryEvery{300};
constexpr Base::Seconds kFreshFor{12 * 3600}; // the service makes a new one several times a day

QString fromView(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

void log(std::string_view message)
{
    std::fprintf(stderr, "velvetnook: %.*s\n", static_cast<int>(message.size()),
                 message.data());
}

} // namespace

// What a fetch came to.
struct WeatherViewModel::Fetched {
    Base::Result<KestCore::WeatherForecast> forecast{
        std::unexpected(Base::KestError::unavailable("The refresh was cancelled."))};
    std::optional<Base::Instant> waitsUntil{};
};

struct WeatherViewModel::Service {
    struct Owned {
        std::shared_ptr<const ToolServices> services;
        std::unique_ptr<Base::HttpTransport> transport{};
        std::unique_ptr<KestCore::WeatherClient> client{};
    };

    explicit Service(std::shared_ptr<const ToolServices> services)
        : owned{Owned{.services = std::move(services)}}
    {
    }

    [[nodiscard]] static Base::Result<void> open(Owned &owned)
    {
        if (owned.client) {
            return {};
        }
        std::string address =
            KestCore::serviceAddress(KestCore::kWeatherService, "KEST_WEATHER_URL");
        if (!KestCore::isServiceAddress(address)) {
            return std::unexpected(Base::KestError::invalidData(
                "KEST_WEATHER_URL must be https:// and a host name."));
        }
        if (!owned.services->openTransport) {
            return std::unexpected(
                Base::KestError::unavailable("The network is not there in this version."));
        }
        KEST_TRY(owned.transport, owned.services->openTransport());
        owned.client = std::make_unique<KestCore::WeatherClient>(
            *owned.transport,
            KestCore::WeatherClient::Options{.service = std::move(address), .log = log});
        return {};
    }

    static Fetched fetch(Owned &owned, double latitude, double longitude,
                         const std::stop_token &stop)
    {
        if (const auto opened = open(owned); !opened) {
            return {.forecast = std::unexpected(opened.error())};
        }
        Fetched fetched{.forecast = owned.client->fetch(latitude, longitude, stop)};
        fetched.waitsUntil = owned.client->waitsUntil(Base::wallClock());
        return fetched;
    }

    Base::Serial<Owned> owned;
};

WeatherViewModel::WeatherViewModel(ApplicationModel &model, const Formatting &formatting,
                                   std::shared_ptr<const ToolServices> services,
                                   QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting},
      m_services{std::move(services)}, m_places{model}
{
    followPlace();
    connect(&model, &ApplicationModel::choicesChanged, this, &WeatherViewModel::followPlace);
    connect(&model, &ApplicationModel::calendarChanged, this, &WeatherViewModel::look);
    connect(&formatting, &Formatting::wordsChanged, this, &WeatherViewModel::changed);
    model.clock().add(
        this,
        [this](Base::Instant now) -> std::optional<Base::Instant> {
            if (!isWatched() || !isAllowed() || !m_place) {
                return std::nullopt;
            }
            // The hour that is shown as now has gone, or a newer forecast may be there.
            const double hour = kHour.count();
            const Base::Instant nextHour = Base::fromSeconds1970(
                (std::floor(Base::seconds1970(m_shownAt) / hour) + 1) * hour);
            return m_isLoading ? nextHour : std::min(nextHour, m_nextFetch.value_or(now));
        },
        [this](Base::Instant now) {
            if (!isWatched()) {
                return; // the alarm was set while somebody looked
            }
            look();
            if (!m_nextFetch || now >= *m_nextFetch) {
                fetch();
            }
        });
}

WeatherViewModel::~WeatherViewModel() = default;

void WeatherViewModel::setShown(bool isShown)
{
    if (std::exchange(m_isShown, isShown) != isShown) {
        watch();
    }
}

void WeatherViewModel::setOnHome(bool isOnHome)
{
    if (std::exchange(m_isOnHome, isOnHome) != isOnHome) {
        watch();
    }
}

void WeatherViewModel::watch()
{
    if (isWatched()) {
        look();
    }
    m_model.clock().reschedule();
    emit isShownChanged();
}

bool WeatherViewModel::isAllowed() const { return m_model.isOn(kAllowed); }

void WeatherViewModel::followPlace()
{
    auto place = KestCore::weatherPlace(m_model.state().settings);
    const bool isSame = place && m_place && place->latitude == m_place->latitude &&
                        place->longitude == m_place->longitude;
    m_place.reset();
    if (place) {
        m_place.emplace(*std::move(place));
    }
    if (!isSame || !isAllowed()) { // what was asked for while it was allowed goes too
        ++m_generation;
        m_forecast.reset();
        m_failure.reset();
        m_nextFetch.reset();
        m_isLoading = false;
        if (m_refresher) {
            m_refresher->cancelAll();
        }
    }
    look();
    m_model.clock().reschedule();
}

// Finds what the forecast says of now.
void WeatherViewModel::look()
{
    m_shownAt = m_model.now();
    m_view.reset();
    if (m_forecast && m_place) {
        auto view = KestCore::weatherView(*m_forecast, m_place->calendar, m_shownAt);
        if (view) {
            m_view.emplace(*std::move(view));
        } else if (!m_failure) {
            m_failure = view.error();
        }
    }
    emit changed();
}

void WeatherViewModel::setAllowed(bool isAllowed)
{
    if (isAllowed) {
        m_model.changeSetting(kAllowed, "true");
    } else {
        m_model.removeSetting(kAllowed);
    }
}

void WeatherViewModel::refresh()
{
    if (canRefresh()) {
        fetch();
    }
}

bool WeatherViewModel::canRefresh() const
{
    return m_place && isAllowed() && !m_isLoading &&
           (!m_waitsUntil || *m_waitsUntil <= m_model.now());
}

void WeatherViewModel::fetch()
{
    if (m_isLoading || !m_place || !isAllowed()) {
        return;
    }
    if (!m_service) {
        m_service = std::make_shared<Service>(m_services);
        m_refresher = std::make_unique<Refresher>();
    }
    m_isLoading = true;
    auto fetched = std::make_shared<Fetched>();
    m_refresher->refresh(
        "forecast", Base::Seconds{0},
        [service = m_service, fetched, latitude = m_place->latitude,
         longitude = m_place->longitude](const std::stop_token &stop) {
            *fetched = service->owned
                           .ask([&](Service::Owned &owned) {
                               return Service::fetch(owned, latitude, longitude, stop);
                           })
                           .get();
            return Base::Result<Base::Bytes>{Base::Bytes{}};
        },
        [this, fetched, generation = m_generation](const KestCore::FetchAnswer &answer) {
            if (generation == m_generation) {
                take(answer ? *fetched : Fetched{.forecast = std::unexpected(answer.error())});
            }
        });
    emit changed();
}

// A failure leaves the forecast before it, with its age.
void WeatherViewModel::take(const Fetched &fetched)
{
    m_isLoading = false;
    m_waitsUntil = fetched.waitsUntil;
    const Base::Instant now = m_model.now();
    if (fetched.forecast) {
        m_forecast = *fetched.forecast;
        m_failure.reset();
        m_nextFetch = now + kRefreshEvery;
    } else {
        m_failure = fetched.forecast.error();
        m_nextFetch = m_waitsUntil ? *m_waitsUntil : now + kRetryEvery;
    }
    look();
    m_model.clock().reschedule();
}

Availability WeatherViewModel::condition() const
{
    if (!m_place) {
        return Availability::unconfigured;
    }
    if (!isAllowed()) {
        return Availability::permissionDenied;
    }
    if (m_view && m_forecast) {
        const bool isOld = m_model.now() - m_forecast->updated > kFreshFor;
        return m_failure || isOld ? Availability::stale : Availability::ready;
    }
    if (!m_failure) {
        return Availability::loading;
    }
    return m_forecast ? Availability::stale : KestCore::weatherAvailability(*m_failure);
}

QString WeatherViewModel::availability() const { return fromView(Base::textOf(condition())); }

QString WeatherViewModel::message() const
{
    switch (condition()) {
    case Availability::unconfigured:
        return engineText("Choose a city or use your location.");
    case Availability::permissionDenied:
        return tr("The forecast comes over the network.");
    case Availability::loading:
        return engineText(KestCore::kUpdatingForecast);
    default:
        return m_failure ? engineText(m_failure->message) : QString{};
    }
}

QString WeatherViewModel::note() const
{
    const Availability now = condition();
    if (now == Availability::permissionDenied) {
        return tr("MET Norway is asked for it while you look. It is told where, to about a "
                  "kilometre, and nothing else.");
    }
    return now == Availability::rateLimited ? refreshTime() : QString{};
}

QString WeatherViewModel::refreshTime() const
{
    return m_waitsUntil ? tr("Refresh returns at %1.").arg(m_formatting.time(*m_waitsUntil))
                        : QString{};
}

QString WeatherViewModel::place() const
{
    if (!m_place) {
        return {};
    }
    return m_place->name.empty() ? tr("Here", "the place of the prayer times")
                                 : QString::fromStdString(m_place->name);
}

QString WeatherViewModel::temperature() const
{
    return m_view ? degreesText(m_view->now.temperature, m_formatting) : QString{};
}

QString WeatherViewModel::sky() const
{
    return m_view ? skyWords(m_view->now.code) : QString{};
}

QString WeatherViewModel::skyIcon() const
{
    return m_view ? Velvetnook::skyIcon(m_view->now.code) : QStringLiteral("weather");
}

QString WeatherViewModel::rain() const
{
    return m_view ? rainWords(m_view->now.rain, m_formatting) : QString{};
}

QString WeatherViewModel::wind() const
{
    return m_view ? windWords(m_view->now.wind, m_formatting) : QString{};
}

QString WeatherViewModel::humidity() const
{
    return m_view ? humidityWords(m_view->now.humidity, m_formatting) : QString{};
}

QVariantList WeatherViewModel::hours() const
{
    return m_view && m_place ? hourColumns(*m_view, m_place->calendar, m_formatting)
                             : QVariantList{};
}

QVariantList WeatherViewModel::days() const
{
    return m_view && m_place
               ? dayColumns(*m_view, m_model.now(), m_place->calendar, m_formatting)
               : QVariantList{};
}

QString WeatherViewModel::footer() const
{
    const Availability now = condition();
    if (m_isLoading) {
        return engineText(KestCore::kUpdatingForecast);
    }
    if (!m_forecast) {
        return {};
    }
    const QString updated = momentText(m_forecast->updated, m_model, m_formatting);
    if (now != Availability::stale) {
        return tr("Forecast updated %1").arg(updated);
    }
    const QString previous = tr("Previous forecast · %1").arg(updated);
    return m_failure ? tr("%1 · %2").arg(previous, message()) : previous;
}

QString WeatherViewModel::spoken() const
{
    return m_view ? tr("%1, %2, %3").arg(place(), temperature(), sky()) : message();
}

} // namespace Velvetnook
