// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Settings/PlaceSettings.h"

#include "Base/Text.h"
#include "KestCore/Devotional/Calendar.h"
#include "KestCore/Prayer/Places.h"
#include "KestCore/Prayer/PrayerInputs.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/QtText.h"

#include <QVariantMap>

#include <algorithm>
#include <cmath>

namespace Velvetnook
{

namespace
{

constexpr std::size_t kMostPlaces = 6;

// A number as people type it: Arabic digits and separators, or a comma, do as well.
std::string plainNumber(const QString &typed)
{
    QString text = latinDigits(typed.trimmed());
    text.replace(u',', u'.').replace(u'٫', u'.').replace(QChar{0x2212}, u'-');
    return text.toStdString();
}

bool isWithin(const QString &typed, double furthest)
{
    const auto value = Base::numberFrom<double>(plainNumber(typed));
    return value && std::abs(*value) <= furthest;
}

bool isCountry(const QString &typed)
{
    const QString text = typed.trimmed();
    return text.isEmpty() || (text.size() == 2 && std::ranges::all_of(text, [](QChar letter) {
                                  return letter.isLetter() && letter.unicode() < 128;
                              }));
}

QString countryName(std::string_view code)
{
    const auto &places = KestCore::allPlaces();
    const auto found = std::ranges::find(places, code, &KestCore::Place::country);
    return found == places.end() ? fromView(code) : fromView(found->countryName);
}

} // namespace

PlaceSettings::PlaceSettings(ApplicationModel &model, const Formatting &formatting,
                             QObject *parent)
    : SettingsPage{model, formatting, parent},
      m_fields{Field{.name = "latitude", .key = "prayer.latitude"},
               Field{.name = "longitude", .key = "prayer.longitude"},
               Field{.name = "timezone", .key = "prayer.timezone"},
               Field{.name = "country", .key = "prayer.country"}}
{
    readFields();
    connect(&model, &ApplicationModel::choicesChanged, this, &PlaceSettings::readFields);
}

bool PlaceSettings::isSet() const
{
    return KestCore::prayerInputs(model().state().settings).has_value();
}

QString PlaceSettings::title() const
{
    if (!isSet()) {
        return {};
    }
    const QString city = setting("prayer.city", "");
    const std::string_view country = model().setting("prayer.country");
    if (city.isEmpty()) {
        return coordinates();
    }
    return country.empty() ? city : tr("%1, %2").arg(city, countryName(country));
}

QString PlaceSettings::degrees(const char *key, const QString &positive,
                               const QString &negative) const
{
    const double value = Base::numberFrom<double>(model().setting(key)).value_or(0);
    return tr("%1° %2", "degrees and N, S, E or W")
        .arg(formatting().decimal(std::abs(value), 2), value < 0 ? negative : positive);
}

QString PlaceSettings::coordinates() const
{
    if (!isSet()) {
        return {};
    }
    return tr("%1, %2").arg(degrees("prayer.latitude", tr("N"), tr("S")),
                            degrees("prayer.longitude", tr("E"), tr("W")));
}

QString PlaceSettings::findings() const
{
    return m_query.isEmpty() || !m_found.isEmpty() ? QString{}
                                                   : tr("No city is called “%1”").arg(m_query);
}

void PlaceSettings::search(const QString &query)
{
    m_query = query.trimmed();
    m_places.clear();
    if (!m_query.isEmpty()) {
        m_places = KestCore::searchPlaces(m_query.toStdString(), kMostPlaces);
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

void PlaceSettings::choose(int index)
{
    if (index < 0 || static_cast<std::size_t>(index) >= m_places.size()) {
        return;
    }
    const auto chosen = KestCore::settingsFor(*m_places.at(static_cast<std::size_t>(index)));
    model().changeState([chosen](KestCore::NativeState &state) -> Result<void> {
        state.settings.erase("prayer.locationUpdated"); // of the place before
        for (const auto &[key, value] : chosen) {
            state.settings.insert_or_assign(key, value);
        }
        return {};
    });
    // What was typed gives way to the city, also to the one that is set already.
    for (Field &field : m_fields) {
        field.text = field.kept;
        field.refusal.clear();
    }
    emit fieldsChanged();
    search({});
}

QVariantMap PlaceSettings::fields() const
{
    QVariantMap map;
    for (const Field &field : m_fields) {
        map.insert(QLatin1String{field.name}, field.text);
    }
    return map;
}

QVariantMap PlaceSettings::refusals() const
{
    QVariantMap map;
    for (const Field &field : m_fields) {
        map.insert(QLatin1String{field.name}, field.refusal);
    }
    return map;
}

// Takes in a place that is another now. Else nothing: a field that waits for the others, or
// was refused, keeps what was typed.
void PlaceSettings::readFields()
{
    const bool isOther = std::ranges::any_of(
        m_fields, [this](const Field &field) { return setting(field.key, "") != field.kept; });
    if (!isOther) {
        return;
    }
    for (Field &field : m_fields) {
        field.kept = setting(field.key, "");
        field.text = field.kept;
        field.refusal.clear();
    }
    emit fieldsChanged();
}

void PlaceSettings::setField(const QString &name, const QString &text)
{
    auto *const field = std::ranges::find_if(
        m_fields, [&](const Field &each) { return name == QLatin1String{each.name}; });
    if (field == m_fields.end() || field->text == text) {
        return;
    }
    field->text = text;
    checkFields();
    emit fieldsChanged();
    const bool isPlace =
        std::ranges::all_of(m_fields, [](const Field &each) { return each.refusal.isEmpty(); });
    const bool isWhole = std::all_of(m_fields.begin(), m_fields.begin() + 3,
                                     [](const Field &each) { return !each.text.isEmpty(); });
    if (isPlace && isWhole) {
        writeFields();
    }
}

// An empty field waits for its value and is no fault.
void PlaceSettings::checkFields()
{
    const auto refuseUnless = [](Field &field, bool isRight, const QString &reason) {
        field.refusal = isRight || field.text.isEmpty() ? QString{} : reason;
    };
    auto &[latitude, longitude, timeZone, country] = m_fields;
    refuseUnless(latitude, isWithin(latitude.text, 90), tr("A number from −90 to 90"));
    refuseUnless(longitude, isWithin(longitude.text, 180), tr("A number from −180 to 180"));
    const auto zone = KestCore::Calendar::inZone(timeZone.text.trimmed().toStdString());
    refuseUnless(timeZone, zone.has_value(),
                 zone ? QString{} : engineText(zone.error().message));
    refuseUnless(country, isCountry(country.text), tr("Two letters, such as GB"));
}

void PlaceSettings::writeFields()
{
    KestCore::Settings chosen{{"prayer.locationMode", "manual"}};
    for (const Field &field : m_fields) {
        const bool isNumber = &field < &m_fields.at(2);
        chosen[field.key] =
            isNumber ? plainNumber(field.text) : field.text.trimmed().toStdString();
    }
    model().changeState([chosen](KestCore::NativeState &state) -> Result<void> {
        const auto differs = [&](const char *key) {
            return state.settings[key] != chosen.at(key);
        };
        // A city belongs to its coordinates, not to its time zone.
        if (differs("prayer.latitude") || differs("prayer.longitude")) {
            state.settings.erase("prayer.city");
        }
        state.settings.erase("prayer.locationUpdated");
        for (const auto &[key, value] : chosen) {
            state.settings.insert_or_assign(key, value);
        }
        return {};
    });
}

} // namespace Velvetnook
