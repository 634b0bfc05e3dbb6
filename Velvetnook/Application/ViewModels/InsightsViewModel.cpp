// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/InsightsViewModel.h"

#include "KestCore/Clients/InsightKeys.h"
#include "KestCore/Clients/InsightSettings.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/LocalDay.h"
#include "Velvetnook/Application/ToolChoice.h"
#include "Velvetnook/Application/ToolServices.h"

#include <algorithm>
#include <utility>

namespace Velvetnook
{

namespace
{

using KestCore::Availability;
using KestCore::InsightPeriod;
using KestCore::InsightProvider;

constexpr Base::Seconds kRefreshEvery{300}; // while it is seen

QString fromView(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

const char *toolOf(InsightProvider provider)
{
    return provider == InsightProvider::stripe ? "revenue" : "analytics";
}

} // namespace

InsightsViewModel::InsightsViewModel(ApplicationModel &model, const Formatting &formatting,
                                     std::shared_ptr<const ToolServices> services,
                                     QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting},
      m_pages{{InsightProvider::stripe, {}}, {InsightProvider::datafast, {}}},
      m_desk{std::move(services)}
{
    connect(&model, &ApplicationModel::choicesChanged, this, &InsightsViewModel::follow);
    connect(&formatting, &Formatting::wordsChanged, this, &InsightsViewModel::changed);
    model.clock().add(
        this,
        [this](Base::Instant now) -> std::optional<Base::Instant> {
            const auto &asked = page().askedAt;
            const bool isDue = m_isShown && asked && !isLoading() && hasReport();
            return isDue ? std::optional{std::max(*asked + kRefreshEvery,
                                                  page().waitsUntil.value_or(now))}
                         : std::nullopt;
        },
        [this](Base::Instant) {
            if (m_isShown) {
                load(Keyring::Prompts::never, true);
            }
        });
    follow();
}

InsightsViewModel::~InsightsViewModel() = default;

QString InsightsViewModel::provider() const { return fromView(Base::textOf(m_provider)); }

void InsightsViewModel::setProvider(const QString &provider)
{
    const auto wanted = Base::fromText<InsightProvider>(provider.toStdString());
    if (!wanted || *wanted == m_provider) {
        return;
    }
    m_provider = *wanted;
    m_asked.clear();
    forgetRefusal();
    follow();
}

QVariantList InsightsViewModel::providers() const
{
    QVariantList all;
    for (const auto &[provider, page] : m_pages) {
        if (isToolOn(m_model.state(), toolOf(provider)) || provider == m_provider) {
            all.push_back(
                QVariantMap{{QStringLiteral("value"), fromView(Base::textOf(provider))},
                            {QStringLiteral("label"), fromView(KestCore::nameOf(provider))},
                            {QStringLiteral("tool"), QLatin1String{toolOf(provider)}}});
        }
    }
    return all;
}

void InsightsViewModel::setShown(bool isShown)
{
    if (std::exchange(m_isShown, isShown) != isShown) {
        follow();
    }
}

// Asks where what is shown is of another period or website, or is some minutes old.
void InsightsViewModel::follow()
{
    const std::string wanted = period().toStdString() + "/" + website().toStdString();
    if (m_asked != wanted && !m_asked.empty()) {
        for (auto &[provider, page] : m_pages) {
            page = Page{.question = page.question + 1};
        }
    }
    m_asked = wanted;
    const Page &now = page();
    const bool isOld = !now.askedAt || m_model.now() - *now.askedAt >= kRefreshEvery;
    if (m_isShown && !now.isLoading && isOld) {
        load(Keyring::Prompts::never, false);
    }
    m_model.clock().reschedule();
    emit changed();
}

void InsightsViewModel::load(Keyring::Prompts prompts, bool isFresh)
{
    Page &now = page();
    const auto chosen = KestCore::insightPeriodFrom(period().toStdString());
    if (now.isLoading || !chosen) {
        return;
    }
    const auto waits = Base::fromIso8601(
        std::string{m_model.setting(KestCore::insightSetting(m_provider, "waitUntil"))});
    now.isLoading = true;
    now.askedAt = m_model.now();
    const int question = ++now.question;
    m_desk.load({.provider = m_provider,
                 .period = *chosen,
                 .website = website().toStdString(),
                 .waitsUntil = waits ? std::optional{*waits} : std::nullopt,
                 .prompts = prompts,
                 .isFresh = isFresh},
                [this, provider = m_provider, question](InsightDesk::Answer answer) {
                    if (m_pages.at(provider).question == question) {
                        take(provider, std::move(answer));
                    }
                });
    emit changed();
}

// A report stays when a later one fails; but not one of an account that is connected no more.
void InsightsViewModel::take(InsightProvider provider, InsightDesk::Answer answer)
{
    Page &page = m_pages.at(provider);
    page.isLoading = false;
    page.availability = answer.availability;
    page.message = std::move(answer.message);
    if (answer.report) {
        page.report = std::move(answer.report);
    } else if (answer.availability == Availability::unconfigured ||
               answer.availability == Availability::permissionDenied) {
        page.report.reset();
    }
    if (page.waitsUntil != answer.waitsUntil) {
        page.waitsUntil = answer.waitsUntil;
        keepWait(provider, answer.waitsUntil);
    }
    m_model.clock().reschedule();
    emit changed();
}

// What the provider asked for holds for the next run, and for kest, too.
void InsightsViewModel::keepWait(InsightProvider provider, std::optional<Base::Instant> until)
{
    if (const auto text = until ? Base::toIso8601(*until) : std::string{}; until && text) {
        m_model.changeSetting(KestCore::insightSetting(provider, "waitUntil"), *text);
    }
}

Availability InsightsViewModel::condition() const
{
    const Page &now = page();
    if (!now.report) {
        return now.isLoading ? Availability::loading : now.availability;
    }
    if (now.availability != Availability::ready || now.report->stale) {
        return Availability::stale;
    }
    return now.report->empty ? Availability::empty : Availability::ready;
}

QString InsightsViewModel::availability() const { return fromView(Base::textOf(condition())); }

QString InsightsViewModel::message() const
{
    const Page &now = page();
    const QString name = fromView(KestCore::nameOf(m_provider));
    switch (condition()) {
    case Availability::loading:
        return tr("Fetching from %1…").arg(name);
    case Availability::empty:
        return engineText(now.report->notice);
    case Availability::unconfigured:
        return now.message.empty() ? tr("%1 is not connected yet.").arg(name)
                                   : engineText(now.message);
    default:
        return engineText(now.message);
    }
}

QString InsightsViewModel::note() const
{
    const Page &now = page();
    if (condition() == Availability::rateLimited && now.waitsUntil) {
        return tr("Refresh returns at %1.").arg(m_formatting.time(*now.waitsUntil));
    }
    return {};
}

bool InsightsViewModel::canRefresh() const
{
    const Page &now = page();
    return !now.isLoading && (!now.waitsUntil || *now.waitsUntil <= m_model.now());
}

QString InsightsViewModel::period() const
{
    const auto set = m_model.setting(KestCore::insightSetting(m_provider, "period"));
    const auto period = Base::fromText<InsightPeriod>(set);
    return fromView(Base::textOf(period.value_or(KestCore::kUsualInsightPeriod)));
}

void InsightsViewModel::setPeriod(const QString &period)
{
    if (period != this->period()) {
        m_model.changeSetting(KestCore::insightSetting(m_provider, "period"),
                              period.toStdString());
    }
}

std::string InsightsViewModel::chosenCurrency() const
{
    const auto known =
        page().report ? currenciesOf(*page().report) : std::vector<std::string>{};
    if (known.empty() || std::ranges::find(known, m_currency) != known.end()) {
        return known.empty() ? std::string{} : m_currency;
    }
    return known.front();
}

QString InsightsViewModel::currency() const { return QString::fromStdString(chosenCurrency()); }

void InsightsViewModel::setCurrency(const QString &currency)
{
    m_currency = currency.toStdString();
    emit changed();
}

QVariantList InsightsViewModel::currencies() const
{
    QVariantList all;
    if (page().report) {
        for (const std::string &code : currenciesOf(*page().report)) {
            const QString own = QString::fromStdString(code);
            all.push_back(QVariantMap{{QStringLiteral("value"), own},
                                      {QStringLiteral("label"), own.toUpper()}});
        }
    }
    return all;
}

QVariantMap InsightsViewModel::headline() const
{
    const auto &report = page().report;
    return report ? headlineOf(*report, chosenCurrency(), m_formatting) : QVariantMap{};
}

QVariantList InsightsViewModel::figures() const
{
    return page().report ? figuresOf(*page().report, chosenCurrency(), m_formatting)
                         : QVariantList{};
}

QVariantList InsightsViewModel::bars() const
{
    return page().report ? barsOf(*page().report, chosenCurrency(), m_model, m_formatting)
                         : QVariantList{};
}

QVariantList InsightsViewModel::lists() const
{
    return page().report ? listsOf(*page().report, m_model, m_formatting) : QVariantList{};
}

QString InsightsViewModel::notice() const
{
    return page().report ? noticeOf(*page().report) : QString{};
}

QString InsightsViewModel::online() const
{
    const bool isTold = page().report && m_provider == InsightProvider::datafast;
    return isTold ? tr("%1 online now").arg(m_formatting.number(page().report->online))
                  : QString{};
}

QString InsightsViewModel::footer() const
{
    const Page &now = page();
    if (now.isLoading) {
        return tr("Fetching from %1…").arg(fromView(KestCore::nameOf(m_provider)));
    }
    if (!now.report) {
        return {};
    }
    const QString fetched = momentText(now.report->fetchedAt, m_model, m_formatting);
    return condition() == Availability::stale
               ? tr("Fetched %1 · %2").arg(fetched, engineText(now.message))
               : tr("Fetched %1").arg(fetched);
}

QString InsightsViewModel::website() const
{
    return m_provider == InsightProvider::datafast
               ? fromView(m_model.setting(KestCore::kWebsiteSetting))
               : QString{};
}

void InsightsViewModel::refresh()
{
    if (canRefresh()) {
        load(Keyring::Prompts::allowed, true);
    }
}

void InsightsViewModel::forgetRefusal()
{
    m_refusal.clear();
    emit changed();
}

void InsightsViewModel::connectKey(const QString &key, const QString &website)
{
    std::string word = key.trimmed().toStdString();
    const Base::WipeAtEnd wiping{word};
    const auto checked = KestCore::checkInsightKey(m_provider, word);
    const bool needsWebsite =
        m_provider == InsightProvider::datafast && website.trimmed().isEmpty();
    if (m_isConnecting) {
        return;
    }
    if (!checked || needsWebsite) {
        m_refusal = checked ? tr("DataFast asks for the website’s id.")
                            : engineText(checked.error().message);
        emit changed();
        return;
    }
    m_isConnecting = true;
    m_refusal.clear();
    emit changed();
    m_desk.keep(
        m_provider, word,
        [this, provider = m_provider,
         site = website.trimmed().toStdString()](const std::string &problem) {
            if (problem.empty()) {
                m_model.changeState(
                    [provider, site](KestCore::NativeState &state) -> Result<void> {
                        // That was for another key.
                        state.settings.erase(KestCore::insightSetting(provider, "waitUntil"));
                        if (provider == InsightProvider::datafast) {
                            state.settings.insert_or_assign(KestCore::kWebsiteSetting, site);
                        }
                        return {};
                    });
            }
            finishKey(provider, problem, true);
        });
}

void InsightsViewModel::disconnectKey()
{
    if (m_isConnecting) {
        return;
    }
    m_isConnecting = true;
    m_refusal.clear();
    m_desk.keep(m_provider, std::nullopt,
                [this, provider = m_provider](const std::string &problem) {
                    finishKey(provider, problem, false);
                });
    emit changed();
}

// The keyring may have asked its owner for long: another provider may be shown by now.
void InsightsViewModel::finishKey(InsightProvider provider, const std::string &problem,
                                  bool isConnected)
{
    m_isConnecting = false;
    const bool isShown = provider == m_provider;
    m_refusal = isShown && !problem.empty() ? engineText(problem) : QString{};
    if (problem.empty()) {
        Page &kept = m_pages[provider];
        kept = Page{.question = kept.question + 1};
    }
    if (problem.empty() && isShown) {
        load(Keyring::Prompts::never, true);
        isConnected ? emit connected() : emit disconnected();
    }
    emit changed();
}

} // namespace Velvetnook
