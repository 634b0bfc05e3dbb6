// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Weather/WeatherPlaces.h"

#include "KestCore/Prayer/Places.h"
#include "Velvetnook/Application/ApplicationModel.h"

#include <QVariantMap>

#include <array>

namespace Velvetnook
{

namespace
{

constexpr std::size_t kMostFound = 20;
constexpr std::array kNames{"latitude", "longitude", "timezone", "city"};

std::string keyOf(const char *tool, const char *name) { return std::string{tool} + "." + name; }

QString fromView(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

WeatherPlaces::WeatherPlaces(ApplicationModel &model, QObject *parent)
    : QObject{parent}, m_model{model}
{
    connect(&model, &ApplicationModel::choicesChanged, this, &WeatherPlaces::changed);
}

QString WeatherPlaces::findings() const
{
    return m_query.isEmpty() || !m_found.isEmpty() ? QString{}
                                                   : tr("No city is called “%1”").arg(m_query);
}

bool WeatherPlaces::hasOwn() const { return !m_model.setting("weather.latitude").empty(); }

QString WeatherPlaces::prayerPlace() const
{
    if (m_model.setting("prayer.latitude").empty()) {
        return {};
    }
    const std::string_view city = m_model.setting("prayer.city");
    return city.empty() ? tr("the place of the prayer times") : fromView(city);
}

void WeatherPlaces::search(const QString &query)
{
    m_query = query.trimmed();
    m_places.clear();
    if (!m_query.isEmpty()) {
        m_places = KestCore::searchPlaces(m_query.toStdString(), kMostFound);
    }
    m_found.clear();
    for (const KestCore::Place *place : m_places) {
        const QString region = fromView(place->region);
        const QString country = fromView(place->countryName);
        m_found.push_back(
            QVariantMap{{QStringLiteral("title"), fromView(place->name)},
                        {QStringLiteral("note"),
                         region.isEmpty() ? country : tr("%1, %2").arg(region, country)}});
    }
    emit foundChanged();
}

void WeatherPlaces::choose(int index)
{
    if (index < 0 || static_cast<std::size_t>(index) >= m_places.size()) {
        return;
    }
    const auto chosen = KestCore::settingsFor(*m_places.at(static_cast<std::size_t>(index)));
    m_model.changeState([chosen](KestCore::NativeState &state) -> Result<void> {
        for (const char *name : kNames) {
            const auto value = chosen.find(keyOf("prayer", name));
            state.settings.insert_or_assign(
                keyOf("weather", name), value == chosen.end() ? std::string{} : value->second);
        }
        return {};
    });
    search({});
}

void WeatherPlaces::followPrayer()
{
    m_model.changeState([](KestCore::NativeState &state) -> Result<void> {
        for (const char *name : kNames) {
            state.settings.erase(keyOf("weather", name));
        }
        return {};
    });
}

} // namespace Velvetnook
