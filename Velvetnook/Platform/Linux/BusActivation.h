// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Platform/Activation.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QVariantMap>

#include <chrono>

namespace Velvetnook
{

// Through a name on the session bus and org.freedesktop.Application. What is asked before
// `begin` waits until then, so that a start over the bus loses nothing.
class BusActivation : public Activation
{
    Q_OBJECT

public:
    BusActivation(QDBusConnection bus, QString name, QObject *parent = nullptr);
    ~BusActivation() override;
    BusActivation(const BusActivation &) = delete;
    BusActivation &operator=(const BusActivation &) = delete;

    Start claim(const Launch &launch) override;
    QString token() const override { return m_token; }
    void begin();

    void setPatience(std::chrono::milliseconds patience) { m_patience = patience; }
    // The object path that belongs to a name: "app.kest.native" is at /app/kest/native.
    static QString pathOf(const QString &name);

    void ask(const QString &action, const QVariantMap &platformData);

private:
    bool askHolder(const Launch &launch);

    QDBusConnection m_bus;
    QString m_name;
    QString m_token;
    QStringList m_early;
    std::chrono::milliseconds m_patience{5000};
    bool m_isHolder = false;
    bool m_hasBegun = false;
};

// What the bus may ask of it.
class BusActivationAdaptor : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit BusActivationAdaptor(BusActivation &activation);

    // NOLINTBEGIN(readability-identifier-naming): the names are the interface's
public slots:
    void Activate(const QVariantMap &platformData);
    void Open(const QStringList &uris, const QVariantMap &platformData);
    void ActivateAction(const QString &actionName, const QVariantList &parameter,
                        const QVariantMap &platformData);
    // NOLINTEND(readability-identifier-naming)

private:
    BusActivation &m_activation;
};

} // namespace Velvetnook
