// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QVariantList>

#include <vector>

namespace KestCore
{
struct Place;
}

namespace Velvetnook
{

class ApplicationModel;

// The choice of a place of the weather's own. Without one the weather is that of the prayer
// times' place.
class WeatherPlaces : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QVariantList found READ found NOTIFY foundChanged) // {title, note}
    Q_PROPERTY(QString findings READ findings NOTIFY foundChanged)
    Q_PROPERTY(bool hasOwn READ hasOwn NOTIFY changed)
    Q_PROPERTY(QString prayerPlace READ prayerPlace NOTIFY changed) // empty: there is none

public:
    explicit WeatherPlaces(ApplicationModel &model, QObject *parent = nullptr);

    QVariantList found() const { return m_found; }
    QString findings() const;
    bool hasOwn() const;
    QString prayerPlace() const;

    Q_INVOKABLE void search(const QString &query);
    Q_INVOKABLE void choose(int index);
    Q_INVOKABLE void followPrayer();

signals:
    void foundChanged();
    void changed();

private:
    ApplicationModel &m_model;
    std::vector<const KestCore::Place *> m_places;
    QVariantList m_found;
    QString m_query;
};

} // namespace Velvetnook
