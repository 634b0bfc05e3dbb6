// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Clients/WeatherPlace.h"
#include "KestCore/Clients/WeatherPresentation.h"
#include "KestCore/Registry/Availability.h"
#include "Velvetnook/Application/ViewModels/Weather/WeatherPlaces.h"

#include <QObject>
#include <QString>
#include <QVariantList>

#include <memory>
#include <optional>

namespace Velvetnook
{

class ApplicationModel;
class Formatting;
class Refresher;
struct ToolServices;

// What QML shows of the weather. Nobody is asked before the user has allowed it, and only while
// the view or the home card can be seen.
class WeatherViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Velvetnook::WeatherPlaces *places READ places CONSTANT)
    Q_PROPERTY(bool isShown READ isShown WRITE setShown NOTIFY isShownChanged)
    Q_PROPERTY(bool isOnHome READ isOnHome WRITE setOnHome NOTIFY isShownChanged)
    // Whether the forecast service may be asked.
    Q_PROPERTY(bool isAllowed READ isAllowed WRITE setAllowed NOTIFY changed)
    Q_PROPERTY(QString availability READ availability NOTIFY changed)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY changed)
    Q_PROPERTY(bool hasForecast READ hasForecast NOTIFY changed)
    // Why there is none, and what else there is to know.
    Q_PROPERTY(QString message READ message NOTIFY changed)
    Q_PROPERTY(QString note READ note NOTIFY changed)
    Q_PROPERTY(bool canRefresh READ canRefresh NOTIFY changed)
    Q_PROPERTY(QString place READ place NOTIFY changed)
    Q_PROPERTY(QString temperature READ temperature NOTIFY changed)
    Q_PROPERTY(QString sky READ sky NOTIFY changed)
    Q_PROPERTY(QString skyIcon READ skyIcon NOTIFY changed)
    Q_PROPERTY(QString rain READ rain NOTIFY changed)
    Q_PROPERTY(QString wind READ wind NOTIFY changed)
    Q_PROPERTY(QString humidity READ humidity NOTIFY changed)
    Q_PROPERTY(QVariantList hours READ hours NOTIFY changed) // see hourColumns
    Q_PROPERTY(QVariantList days READ days NOTIFY changed)   // see dayColumns
    Q_PROPERTY(QString footer READ footer NOTIFY changed)
    Q_PROPERTY(QString spoken READ spoken NOTIFY changed)

public:
    WeatherViewModel(ApplicationModel &model, const Formatting &formatting,
                     std::shared_ptr<const ToolServices> services, QObject *parent = nullptr);
    ~WeatherViewModel() override;
    WeatherViewModel(const WeatherViewModel &) = delete;
    WeatherViewModel &operator=(const WeatherViewModel &) = delete;

    WeatherPlaces *places() { return &m_places; }
    bool isShown() const { return m_isShown; }
    bool isOnHome() const { return m_isOnHome; }
    void setShown(bool isShown);
    void setOnHome(bool isOnHome);
    bool isAllowed() const;
    void setAllowed(bool isAllowed);
    QString availability() const;
    bool isLoading() const { return m_isLoading; }
    bool hasForecast() const { return m_view.has_value(); }
    QString message() const;
    QString note() const;
    bool canRefresh() const;
    QString place() const;
    QString temperature() const;
    QString sky() const;
    QString skyIcon() const;
    QString rain() const;
    QString wind() const;
    QString humidity() const;
    QVariantList hours() const;
    QVariantList days() const;
    QString footer() const;
    QString spoken() const;

    Q_INVOKABLE void refresh();

signals:
    void isShownChanged();
    void changed();

private:
    struct Service; // the client, on a thread of its own
    struct Fetched;

    bool isWatched() const { return m_isShown || m_isOnHome; }
    KestCore::Availability condition() const;
    void followPlace();
    void watch();
    void fetch();
    void take(const Fetched &fetched);
    void look();
    QString refreshTime() const;

    ApplicationModel &m_model;
    const Formatting &m_formatting;
    std::shared_ptr<const ToolServices> m_services;
    WeatherPlaces m_places;
    std::optional<KestCore::WeatherPlace> m_place;
    std::optional<KestCore::WeatherForecast> m_forecast;
    std::optional<KestCore::WeatherView> m_view; // of now
    std::optional<Base::KestError> m_failure;    // of the last fetch
    std::optional<Base::Instant> m_waitsUntil;   // told by the service
    std::optional<Base::Instant> m_nextFetch;    // while it is watched; absent: at once
    Base::Instant m_shownAt{};
    std::uint64_t m_generation = 0; // of the place
    bool m_isShown = false;
    bool m_isOnHome = false;
    bool m_isLoading = false;
    std::shared_ptr<Service> m_service;
    std::unique_ptr<Refresher> m_refresher; // last: it uses the service
};

} // namespace Velvetnook
