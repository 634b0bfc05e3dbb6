// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Monitor/MonitorChart.h"

#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/Monitor/AmountText.h"
#include "Velvetnook/Application/Monitor/MonitorService.h"

#include <QVariantMap>

#include <algorithm>
#include <array>
#include <cmath>

namespace Velvetnook
{

namespace
{

using MonitorCore::MetricID;
using MonitorCore::MetricUnit;

constexpr int kColumns = 200;
constexpr int kTimes = 7;
constexpr std::size_t kCausesTold = 2;

constexpr std::array kMetrics{
    MetricID::cpu,      MetricID::memoryUsed, MetricID::diskRead,     MetricID::diskWrite,
    MetricID::download, MetricID::upload,     MetricID::energyImpact, MetricID::cpuTemperature,
    MetricID::gpu,      MetricID::battery};

// 1, 2 or 5 of a power of ten.
double roundLimit(double most)
{
    if (!(most > 0)) {
        return 1;
    }
    const double power = std::pow(10.0, std::floor(std::log10(most)));
    for (const double step : {1.0, 2.0, 5.0}) {
        if (most <= step * power) {
            return step * power;
        }
    }
    return 10 * power;
}

// "/usr/bin/make" is called make, and "org.example.Mail" Mail.
QString shortName(const std::string &app)
{
    const std::string name = app.substr(app.rfind('/') + 1);
    const auto dot = name.rfind('.');
    const bool isService = name.ends_with(".service");
    return QString::fromStdString(dot == std::string::npos || isService ? name
                                                                        : name.substr(dot + 1));
}

} // namespace

MonitorChart::MonitorChart(MonitorService &service, ApplicationModel &model,
                           const Formatting &formatting, QObject *parent)
    : QObject{parent}, m_service{service}, m_model{model}, m_formatting{formatting}
{
    connect(&service, &MonitorService::preferencesChanged, this, &MonitorChart::changed);
    connect(&service, &MonitorService::recordingChanged, this, &MonitorChart::changed);
}

QString MonitorChart::metric() const
{
    const std::string_view text = Base::textOf(m_metric);
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString MonitorChart::title() const { return metricTitle(m_metric); }

QString MonitorChart::subtitle() const
{
    return m_metric == MetricID::cpu ? tr("mean and peak, all cores") : tr("mean and peak");
}

QVariantList MonitorChart::metrics() const
{
    QVariantList list;
    for (const MetricID metric : kMetrics) {
        const std::string_view text = Base::textOf(metric);
        list.append(
            QVariantMap{{QStringLiteral("value"),
                         QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))},
                        {QStringLiteral("label"), metricTitle(metric)}});
    }
    return list;
}

void MonitorChart::open(const QString &metric)
{
    m_metric = Base::fromText<MetricID>(metric.toStdString()).value_or(MetricID::cpu);
    m_isOpen = true;
    m_columns.clear();
    m_pointedAt.reset();
    choose(-1);
    read();
}

void MonitorChart::setHours(int hours)
{
    if (m_hours != hours && hours > 0) {
        m_hours = hours;
        m_columns.clear();
        m_pointedAt.reset();
        choose(-1);
        read();
    }
}

void MonitorChart::refresh() { read(); }

void MonitorChart::leave()
{
    m_isOpen = false;
    ++m_asked;
    m_columns.clear();
    m_columns.shrink_to_fit();
}

void MonitorChart::read()
{
    if (!m_isOpen) {
        return;
    }
    m_isLoading = m_service.hasBegun();
    m_problem.clear();
    ask();
}

// A step at a time, and never more often than a column has room for.
void MonitorChart::follow()
{
    const Base::Instant now = m_model.now();
    const bool isMoved = now < m_to || now - m_to >= Base::Seconds{3600.0 * m_hours / kColumns};
    if (m_isOpen && isMoved) {
        ask(); // what is shown stays until the answer is there
    }
}

void MonitorChart::ask()
{
    m_to = m_model.now();
    m_from = m_to - Base::Seconds{3600.0 * m_hours};
    emit changed();
    m_service.readChart({.app = std::string{MonitorCore::kSystemKey},
                         .metric = m_metric,
                         .from = m_from,
                         .to = m_to,
                         .columns = kColumns},
                        [this, asked = ++m_asked, owner = QPointer{this}](ChartAnswer answer) {
                            if (owner && asked == m_asked) {
                                take(std::move(answer));
                            }
                        });
}

void MonitorChart::take(ChartAnswer answer)
{
    m_isLoading = false;
    const ChartColumn *const before = chosen();
    const auto moment = before ? std::optional{before->highest.date} : std::nullopt;
    m_columns = std::move(answer.columns);
    m_bytes = answer.bytes;
    m_problem = engineText(answer.problem);
    emit changed();
    const int column = columnOfMark();
    if (column >= 0 && m_columns[static_cast<std::size_t>(column)].highest.date == moment) {
        m_column = column; // who was highest then is known
        emit columnChanged();
    } else {
        choose(column);
    }
}

// That of the moment that the user pointed at, else the highest.
int MonitorChart::columnOfMark() const
{
    if (m_columns.empty()) {
        return -1;
    }
    const auto found =
        m_pointedAt
            ? std::ranges::min_element(m_columns, {},
                                       [this](const ChartColumn &column) {
                                           const auto from = column.highest.date;
                                           return std::abs((from - *m_pointedAt).count());
                                       })
            : std::ranges::max_element(m_columns, {}, &ChartColumn::peak);
    return static_cast<int>(found - m_columns.begin());
}

QString MonitorChart::availability() const
{
    if (!m_problem.isEmpty()) {
        return QStringLiteral("error");
    }
    if (m_isLoading && m_columns.empty()) {
        return QStringLiteral("loading");
    }
    if (!m_columns.empty()) {
        return QStringLiteral("ready");
    }
    return m_service.preferences().historyEnabled ? QStringLiteral("empty")
                                                  : QStringLiteral("unconfigured");
}

double MonitorChart::limit() const
{
    double most = 0;
    for (const ChartColumn &column : m_columns) {
        most = std::max(most, column.peak);
    }
    const bool isShare = unitOf(m_metric) == MetricUnit::percent && most <= 100;
    return isShare ? 100 : roundLimit(most);
}

QString MonitorChart::limitText() const
{
    return m_columns.empty() ? QString{} : amountText(m_formatting, limit(), unitOf(m_metric));
}

QList<QPointF> MonitorChart::means() const
{
    QList<QPointF> points;
    const double most = limit();
    for (const ChartColumn &column : m_columns) {
        points.append({column.at, std::clamp(column.mean / most, 0.0, 1.0)});
    }
    return points;
}

QList<QPointF> MonitorChart::peaks() const
{
    QList<QPointF> points;
    const double most = limit();
    for (const ChartColumn &column : m_columns) {
        points.append({column.at, std::clamp(column.peak / most, 0.0, 1.0)});
    }
    return points;
}

double MonitorChart::gap() const { return 1.5 / kColumns; }

QStringList MonitorChart::times() const
{
    QStringList texts;
    const bool isDays = m_hours > 48;
    for (int at = 0; at < kTimes - 1; ++at) {
        const Base::Instant instant = m_from + (m_to - m_from) * at / (kTimes - 1.0);
        const KestCore::LocalTime local = m_model.calendar().at(instant);
        texts.append(
            isDays ? tr("%1/%2", "day and month")
                         .arg(m_formatting.number(local.day), m_formatting.number(local.month))
                   : m_formatting.time(instant));
    }
    texts.append(tr("Now"));
    return texts;
}

const ChartColumn *MonitorChart::chosen() const
{
    const bool isThere = m_column >= 0 && m_column < static_cast<int>(m_columns.size());
    return isThere ? &m_columns[static_cast<std::size_t>(m_column)] : nullptr;
}

void MonitorChart::setColumn(int column)
{
    if (column != m_column) {
        choose(column);
        const ChartColumn *const pointed = chosen();
        m_pointedAt = pointed ? std::optional{pointed->highest.date} : std::nullopt;
    }
}

void MonitorChart::pointAt(double part)
{
    if (!m_columns.empty()) {
        const auto nearest = std::ranges::min_element(
            m_columns, {}, [&](const ChartColumn &each) { return std::abs(each.at - part); });
        setColumn(static_cast<int>(nearest - m_columns.begin()));
    }
}

void MonitorChart::step(int distance)
{
    if (!m_columns.empty()) {
        setColumn(std::clamp(m_column + distance, 0, static_cast<int>(m_columns.size()) - 1));
    }
}

void MonitorChart::choose(int column)
{
    m_column = column;
    m_causes.clear();
    ++m_causesAsked;
    emit columnChanged();
    askCauses();
}

void MonitorChart::askCauses()
{
    const ChartColumn *column = chosen();
    if (column == nullptr) {
        return;
    }
    m_service.readCauses(
        m_metric, column->highest,
        [this, asked = m_causesAsked,
         owner = QPointer{this}](const std::vector<MonitorCore::HistoryCause> &causes) {
            if (!owner || asked != m_causesAsked) {
                return;
            }
            QStringList names;
            for (std::size_t at = 0; at < std::min(causes.size(), kCausesTold); ++at) {
                names.append(QStringLiteral("%1 %2").arg(
                    shortName(causes[at].app),
                    amountText(m_formatting, causes[at].peak, unitOf(m_metric))));
            }
            m_causes = names.join(QStringLiteral(" · "));
            emit columnChanged();
        });
}

QPointF MonitorChart::mark() const
{
    const ChartColumn *column = chosen();
    return column == nullptr
               ? QPointF{}
               : QPointF{column->at, std::clamp(column->mean / limit(), 0.0, 1.0)};
}

QString MonitorChart::markTime() const
{
    const ChartColumn *column = chosen();
    if (column == nullptr) {
        return {};
    }
    const Base::Instant at = column->highest.date;
    const auto &calendar = m_model.calendar();
    if (calendar.dayNumber(at) == calendar.dayNumber(m_model.now())) {
        return m_formatting.time(at);
    }
    const KestCore::LocalTime local = calendar.at(at);
    return QStringLiteral("%1 %2").arg(
        tr("%1/%2", "day and month")
            .arg(m_formatting.number(local.day), m_formatting.number(local.month)),
        m_formatting.time(at));
}

QString MonitorChart::markValue() const
{
    const ChartColumn *column = chosen();
    return column == nullptr ? QString{}
                             : amountText(m_formatting, column->mean, unitOf(m_metric));
}

QString MonitorChart::markPeak() const
{
    const ChartColumn *column = chosen();
    return column == nullptr
               ? QString{}
               : tr("peak %1").arg(amountText(m_formatting, column->peak, unitOf(m_metric)));
}

QString MonitorChart::footer() const
{
    const auto &preferences = m_service.preferences();
    QString state = tr("History off");
    if (preferences.historyEnabled) {
        state = preferences.historyPaused ? tr("History paused") : tr("History on");
    }
    if (!m_service.recordingProblem().isEmpty()) {
        state = m_service.recordingProblem();
    }
    const qlonglong days = preferences.retentionDays;
    const QString kept =
        days == 1 ? tr("one day") : tr("%1 days").arg(m_formatting.number(days));
    return m_bytes == 0
               ? QStringLiteral("%1 · %2").arg(state, kept)
               : QStringLiteral("%1 · %2 · %3")
                     .arg(state, kept, bytesText(m_formatting, static_cast<double>(m_bytes)));
}

} // namespace Velvetnook
