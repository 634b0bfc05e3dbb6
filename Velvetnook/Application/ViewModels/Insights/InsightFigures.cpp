// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Insights/InsightFigures.h"

#include "KestCore/Clients/InsightText.h"
#include "KestCore/Clients/Money.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/LocalDay.h"

#include <QCoreApplication>
#include <QVariantMap>

#include <algorithm>

namespace Velvetnook
{

namespace
{

using KestCore::InsightMetric;
using KestCore::InsightPoint;
using KestCore::InsightReport;

// Named once more for the translators, who do not read the engines.
[[maybe_unused]] constexpr const char *kTexts[]{
    QT_TRANSLATE_NOOP("Engine", "Gross payments"),
    QT_TRANSLATE_NOOP("Engine", "Refunds"),
    QT_TRANSLATE_NOOP("Engine", "Payment fees"),
    QT_TRANSLATE_NOOP("Engine", "Net payments"),
    QT_TRANSLATE_NOOP("Engine", "Payout movements"),
    QT_TRANSLATE_NOOP("Engine", "Charges and payments"),
    QT_TRANSLATE_NOOP("Engine", "Refund movements, less failed-refund reversals"),
    QT_TRANSLATE_NOOP("Engine", "Fees attached to these payment and refund entries"),
    QT_TRANSLATE_NOOP("Engine", "After refunds and attached fees; excludes disputes, "
                                "transfers and tax liability"),
    QT_TRANSLATE_NOOP("Engine", "Net balance debits for payouts, less "
                                "failures/cancellations. Not a bank settlement confirmation"),
    QT_TRANSLATE_NOOP("Engine", "balance-entry creation date in the selected period"),
    QT_TRANSLATE_NOOP("Engine", "Stripe test mode"),
    QT_TRANSLATE_NOOP("Engine", "Payment balance activity, not profit. Currencies stay "
                                "separate."),
    QT_TRANSLATE_NOOP("Engine", "Visitors"),
    QT_TRANSLATE_NOOP("Engine", "Page views"),
    QT_TRANSLATE_NOOP("Engine", "Sessions"),
    QT_TRANSLATE_NOOP("Engine", "Avg. session"),
    QT_TRANSLATE_NOOP("Engine", "Bounce rate"),
    QT_TRANSLATE_NOOP("Engine", "Attributed revenue"),
    QT_TRANSLATE_NOOP("Engine", "Attributed payments"),
    QT_TRANSLATE_NOOP("Engine", "Unavailable"),
    QT_TRANSLATE_NOOP("Engine", "DataFast website total"),
    QT_TRANSLATE_NOOP("Engine", "selected period"),
    QT_TRANSLATE_NOOP("Engine", "DataFast average session duration"),
    QT_TRANSLATE_NOOP("Engine", "DataFast attribution in the website currency; not a Stripe "
                                "payout or accounting total"),
    QT_TRANSLATE_NOOP("Engine", "website attribution rules. No currencies or providers are "
                                "combined."),
    QT_TRANSLATE_NOOP("Engine", "DataFast returned no data for this period."),
    QT_TRANSLATE_NOOP("Engine", "The provider returned an unexpected report. No totals were "
                                "saved."),
    QT_TRANSLATE_NOOP("Engine", "This period contains more than 10,000 balance entries. "
                                "Choose a shorter period; partial totals are not shown."),
    QT_TRANSLATE_NOOP("Engine", "The provider is limiting requests. Wait a moment, then "
                                "refresh."),
    QT_TRANSLATE_NOOP("Engine", "The provider is temporarily unavailable. Try again shortly."),
    QT_TRANSLATE_NOOP("Engine", "Allow analytics:read and access to this website, then "
                                "reconnect."),
    QT_TRANSLATE_NOOP("Engine", "Allow Balance read access on this restricted Stripe key, "
                                "then reconnect."),
    QT_TRANSLATE_NOOP("Engine", "This Stripe key has expired or is invalid. Replace it in "
                                "Connections."),
    QT_TRANSLATE_NOOP("Engine", "This DataFast key has expired or is invalid. Replace it in "
                                "Connections."),
    QT_TRANSLATE_NOOP("Engine", "Stripe did not answer. Check the connection, then refresh."),
    QT_TRANSLATE_NOOP("Engine", "DataFast did not answer. Check the connection, then "
                                "refresh."),
    QT_TRANSLATE_NOOP("Engine", "A key is one word of letters, digits and signs."),
    QT_TRANSLATE_NOOP("Engine", "This is a secret Stripe test key, whose figures would look "
                                "like real ones. Make a restricted test key (rk_test_) with "
                                "Balance read access at Stripe, and connect that."),
    QT_TRANSLATE_NOOP("Engine", "This is a secret Stripe key: whoever has it can move money, "
                                "and to read the balance needs no such power. Make a "
                                "restricted key (rk_live_ or rk_test_) with Balance read "
                                "access at Stripe, and connect that."),
    QT_TRANSLATE_NOOP("Engine", "This is no restricted Stripe key. Make one (rk_live_ or "
                                "rk_test_) with Balance read access at Stripe, and connect "
                                "that."),
    QT_TRANSLATE_NOOP("Engine", "There is no keyring (Secret Service) here to keep the key "
                                "in."),
    QT_TRANSLATE_NOOP("Engine",
                      "There is no default keyring to keep the key in. Make one first."),
    QT_TRANSLATE_NOOP("Engine", "The keyring is locked. Unlock it, and try again."),
};

constexpr std::string_view kNet = "-net";

class InsightWords
{
    Q_DECLARE_TR_FUNCTIONS(InsightWords)
};

// The engine joins some of its texts with a dot.
QString joinedText(const std::string &text)
{
    QStringList pieces = QString::fromStdString(text).split(QStringLiteral(" · "));
    for (QString &piece : pieces) {
        piece = engineText(piece.toStdString());
    }
    return pieces.join(QStringLiteral(" · "));
}

QString shown(std::string text, const Formatting &formatting)
{
    QString own = QString::fromStdString(text);
    if (own.startsWith(u'-')) {
        own.replace(0, 1, QChar{0x2212});
    }
    if (formatting.usesArabicDigits()) {
        own.replace(u',', u'٬').replace(u'.', u'٫');
    }
    return formatting.digits(own);
}

// The currency stands once, above the figures.
QString amountText(const InsightMetric &metric, const std::string &currency,
                   const Formatting &formatting)
{
    if (metric.detail == KestCore::kUnavailableMetric) {
        return engineText(KestCore::kUnavailableMetric);
    }
    std::string text = KestCore::metricText(metric);
    // These are taken off, and written so.
    const bool isTakenOff = metric.id.ends_with("-refunds") || metric.id.ends_with("-fees");
    if (isTakenOff && metric.value > 0) {
        text.insert(0, 1, '-');
    }
    const std::string code = " " + KestCore::shownCurrency(currency);
    if (!currency.empty() && text.ends_with(code)) {
        text.resize(text.size() - code.size());
    }
    return shown(std::move(text), formatting);
}

bool isOf(const InsightMetric &metric, const std::string &currency)
{
    return currency.empty() || metric.id.starts_with(currency + "-");
}

QVariantMap row(const QString &label, const QString &value, const QString &detail = {})
{
    return {{QStringLiteral("label"), label},
            {QStringLiteral("value"), value},
            {QStringLiteral("detail"), detail}};
}

QVariantMap list(const QString &title, const std::vector<InsightMetric> &metrics,
                 const Formatting &formatting)
{
    QVariantList rows;
    for (const InsightMetric &metric : metrics) {
        rows.push_back(
            row(QString::fromStdString(metric.label), amountText(metric, {}, formatting)));
    }
    return {{QStringLiteral("title"), title}, {QStringLiteral("rows"), rows}};
}

} // namespace

QVariantList insightPeriods(const Formatting &formatting)
{
    const auto option = [](const char *value, const QString &label) {
        return QVariantMap{{QStringLiteral("value"), QLatin1String{value}},
                           {QStringLiteral("label"), label}};
    };
    return {option("today", InsightWords::tr("Today")),
            option("7d", formatting.digits(InsightWords::tr("7 days"))),
            option("30d", formatting.digits(InsightWords::tr("30 days"))),
            option("90d", formatting.digits(InsightWords::tr("90 days"))),
            option("month", InsightWords::tr("This month")),
            option("year", InsightWords::tr("This year"))};
}

std::vector<std::string> currenciesOf(const InsightReport &report)
{
    std::vector<std::string> currencies;
    for (const InsightMetric &metric : report.rows) {
        if (report.provider == KestCore::InsightProvider::stripe && metric.id.ends_with(kNet)) {
            currencies.push_back(metric.id.substr(0, metric.id.size() - kNet.size()));
        }
    }
    return currencies;
}

QVariantMap headlineOf(const InsightReport &report, const std::string &currency,
                       const Formatting &formatting)
{
    const auto wanted = currency.empty() ? report.rows.begin()
                                         : std::ranges::find(report.rows, currency + "-net",
                                                             &InsightMetric::id);
    if (wanted == report.rows.end()) {
        return row({}, {});
    }
    const QString label = engineText(wanted->label);
    return row(currency.empty()
                   ? label
                   : InsightWords::tr("%1 · %2").arg(
                         label, QString::fromStdString(KestCore::shownCurrency(currency))),
               amountText(*wanted, currency, formatting));
}

QVariantList figuresOf(const InsightReport &report, const std::string &currency,
                       const Formatting &formatting)
{
    QVariantList rows;
    for (const InsightMetric &metric : report.rows) {
        if (isOf(metric, currency)) {
            rows.push_back(row(engineText(metric.label),
                               amountText(metric, currency, formatting),
                               joinedText(metric.detail)));
        }
    }
    return rows;
}

QVariantList barsOf(const InsightReport &report, const std::string &currency,
                    const ApplicationModel &model, const Formatting &formatting)
{
    std::vector<InsightPoint> points;
    const std::string_view series =
        currency.empty() ? KestCore::kVisitorSeries : std::string_view{currency};
    std::ranges::copy_if(report.points, std::back_inserter(points),
                         [series](const auto &point) { return point.series == series; });
    const std::size_t each = (points.size() + kMostBars - 1) / kMostBars;
    std::vector<InsightPoint> sums;
    for (std::size_t at = 0; at < points.size(); ++at) {
        if (at % each == 0) {
            sums.push_back(points.at(at));
        } else {
            sums.back().value += points.at(at).value;
        }
    }
    double highest = 0;
    for (const InsightPoint &sum : sums) {
        highest = std::max(highest, sum.value);
    }
    QVariantList bars;
    for (const InsightPoint &sum : sums) {
        bars.push_back(QVariantMap{
            {QStringLiteral("share"), highest > 0 ? std::max(sum.value, 0.0) / highest : 0.0},
            {QStringLiteral("isLast"), &sum == &sums.back()},
            {QStringLiteral("spoken"),
             InsightWords::tr("%1: %2").arg(momentText(sum.date, model, formatting),
                                            shown(KestCore::pointText(sum), formatting))}});
    }
    return bars;
}

QString noticeOf(const InsightReport &report) { return joinedText(report.notice); }

QVariantList listsOf(const InsightReport &report, const ApplicationModel &model,
                     const Formatting &formatting)
{
    QVariantList lists;
    if (!report.pages.empty()) {
        lists.push_back(list(InsightWords::tr("Top pages"), report.pages, formatting));
    }
    if (!report.sources.empty()) {
        lists.push_back(list(InsightWords::tr("Referrers"), report.sources, formatting));
    }
    QVariantList recent;
    for (const KestCore::InsightEntry &entry : report.recent) {
        recent.push_back(
            row(InsightWords::tr("%1 · %2").arg(momentText(entry.date, model, formatting),
                                                QString::fromStdString(entry.title)),
                shown(entry.value, formatting)));
    }
    if (!recent.isEmpty()) {
        lists.push_back(QVariantMap{{QStringLiteral("title"), InsightWords::tr("Lately")},
                                    {QStringLiteral("rows"), recent}});
    }
    return lists;
}

} // namespace Velvetnook
