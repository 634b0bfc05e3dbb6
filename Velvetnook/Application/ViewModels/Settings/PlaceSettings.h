// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/ViewModels/Settings/SettingsPage.h"

#include <array>

namespace KestCore
{
struct Place;
} // namespace KestCore

namespace Velvetnook
{

// Where the prayer times are for: a city of the list, or a place by its numbers. What can't
// be a place stays in its field with the reason, and the place that is set stays too.
class PlaceSettings : public SettingsPage
{
    Q_OBJECT
    Q_PROPERTY(bool isSet READ isSet NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)             // "London, United Kingdom"
    Q_PROPERTY(QString coordinates READ coordinates NOTIFY changed) // "51.51° N, 0.13° W"
    // What a search found: [{title, note}].
    Q_PROPERTY(QVariantList found READ found NOTIFY foundChanged)
    Q_PROPERTY(QString findings READ findings NOTIFY foundChanged)
    // The fields "latitude", "longitude", "timezone" and "country", as they were typed, and
    // why they are refused.
    Q_PROPERTY(QVariantMap fields READ fields NOTIFY fieldsChanged)
    Q_PROPERTY(QVariantMap refusals READ refusals NOTIFY fieldsChanged)

public:
    PlaceSettings(ApplicationModel &model, const Formatting &formatting,
                  QObject *parent = nullptr);

    bool isSet() const;
    QString title() const;
    QString coordinates() const;
    QVariantList found() const { return m_found; }
    QString findings() const;
    QVariantMap fields() const;
    QVariantMap refusals() const;

    Q_INVOKABLE void search(const QString &query);
    Q_INVOKABLE void choose(int index);
    Q_INVOKABLE void setField(const QString &name, const QString &text);

signals:
    void foundChanged();
    void fieldsChanged();

private:
    struct Field {
        const char *name;
        const char *key;
        QString kept{}; // the setting when it was last read
        QString text{}; // as typed
        QString refusal{};
    };

    void readFields();
    void checkFields();
    void writeFields();
    QString degrees(const char *key, const QString &positive, const QString &negative) const;

    std::array<Field, 4> m_fields;
    QString m_query;
    QVariantList m_found;
    std::vector<const KestCore::Place *> m_places; // of m_found
};

} // namespace Velvetnook
