// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/ViewModels/Insights/InsightDesk.h"
#include "Velvetnook/Application/ViewModels/Insights/InsightFigures.h"

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

#include <map>
#include <memory>
#include <optional>
#include <string>

namespace Velvetnook
{

class ApplicationModel;
class Formatting;

// What QML shows of the user's accounts: one provider at a time. Providers are asked only while
// the view can be seen, and only with a key that the user has put into the keyring.
class InsightsViewModel : public QObject
{
    Q_OBJECT
    // "stripe" or "datafast".
    Q_PROPERTY(QString provider READ provider WRITE setProvider NOTIFY changed)
    Q_PROPERTY(QVariantList providers READ providers NOTIFY changed) // {value, tool, label}
    Q_PROPERTY(bool isShown READ isShown WRITE setShown NOTIFY changed)
    Q_PROPERTY(QString availability READ availability NOTIFY changed)
    Q_PROPERTY(bool hasReport READ hasReport NOTIFY changed)
    Q_PROPERTY(QString message READ message NOTIFY changed)
    Q_PROPERTY(QString note READ note NOTIFY changed)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY changed)
    Q_PROPERTY(bool canRefresh READ canRefresh NOTIFY changed)
    Q_PROPERTY(QString period READ period WRITE setPeriod NOTIFY changed)
    Q_PROPERTY(QVariantList periods READ periods NOTIFY changed) // {value, label}
    Q_PROPERTY(QString currency READ currency WRITE setCurrency NOTIFY changed)
    Q_PROPERTY(QVariantList currencies READ currencies NOTIFY changed) // {value, label}
    Q_PROPERTY(QVariantMap headline READ headline NOTIFY changed)
    Q_PROPERTY(QVariantList figures READ figures NOTIFY changed)
    Q_PROPERTY(QVariantList bars READ bars NOTIFY changed)
    Q_PROPERTY(QVariantList lists READ lists NOTIFY changed)
    Q_PROPERTY(QString notice READ notice NOTIFY changed)
    Q_PROPERTY(QString online READ online NOTIFY changed)
    Q_PROPERTY(QString footer READ footer NOTIFY changed)
    // The connection: what is being done about it, and why it was refused.
    Q_PROPERTY(bool isConnecting READ isConnecting NOTIFY changed)
    Q_PROPERTY(QString refusal READ refusal NOTIFY changed)
    Q_PROPERTY(QString website READ website NOTIFY changed)

public:
    InsightsViewModel(ApplicationModel &model, const Formatting &formatting,
                      std::shared_ptr<const ToolServices> services, QObject *parent = nullptr);
    ~InsightsViewModel() override;
    InsightsViewModel(const InsightsViewModel &) = delete;
    InsightsViewModel &operator=(const InsightsViewModel &) = delete;

    QString provider() const;
    void setProvider(const QString &provider);
    QVariantList providers() const;
    bool isShown() const { return m_isShown; }
    void setShown(bool isShown);
    QString availability() const;
    bool hasReport() const { return page().report.has_value(); }
    QString message() const;
    QString note() const;
    bool isLoading() const { return page().isLoading; }
    bool canRefresh() const;
    QString period() const;
    void setPeriod(const QString &period);
    QVariantList periods() const { return insightPeriods(m_formatting); }
    QString currency() const;
    void setCurrency(const QString &currency);
    QVariantList currencies() const;
    QVariantMap headline() const;
    QVariantList figures() const;
    QVariantList bars() const;
    QVariantList lists() const;
    QString notice() const;
    QString online() const;
    QString footer() const;
    bool isConnecting() const { return m_isConnecting; }
    QString refusal() const { return m_refusal; }
    QString website() const;

    // Asks again; the keyring may ask for its password then.
    Q_INVOKABLE void refresh();
    // Puts the key into the keyring. It is never shown again, and never asked for back.
    Q_INVOKABLE void connectKey(const QString &key, const QString &website);
    Q_INVOKABLE void disconnectKey();
    Q_INVOKABLE void forgetRefusal();

signals:
    void changed();
    void connected();
    void disconnected();

private:
    struct Page {
        std::optional<KestCore::InsightReport> report{};
        KestCore::Availability availability = KestCore::Availability::loading;
        std::string message{};
        std::optional<Base::Instant> waitsUntil{};
        std::optional<Base::Instant> askedAt{};
        int question = 0; // only the answer to the last one counts
        bool isLoading{};
    };

    const Page &page() const { return m_pages.at(m_provider); }
    Page &page() { return m_pages.at(m_provider); }
    KestCore::Availability condition() const;
    std::string chosenCurrency() const;
    void follow();
    void load(Keyring::Prompts prompts, bool isFresh);
    void take(KestCore::InsightProvider provider, InsightDesk::Answer answer);
    void keepWait(KestCore::InsightProvider provider, std::optional<Base::Instant> until);
    void finishKey(KestCore::InsightProvider provider, const std::string &problem,
                   bool isConnected);

    ApplicationModel &m_model;
    const Formatting &m_formatting;
    KestCore::InsightProvider m_provider = KestCore::InsightProvider::stripe;
    std::map<KestCore::InsightProvider, Page> m_pages;
    std::string m_currency;
    std::string m_asked; // the period and website that the reports are of
    QString m_refusal;
    bool m_isConnecting = false;
    bool m_isShown = false;
    InsightDesk m_desk;
};

} // namespace Velvetnook
