// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/MonitorViewModel.h"

#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/Monitor/AmountText.h"

#include <algorithm>

namespace Velvetnook
{

namespace
{

using MonitorCore::MetricID;
using MonitorCore::MetricState;

QString notificationOf(const std::string &alertId)
{
    return QStringLiteral("monitor-") + QString::fromStdString(alertId);
}

} // namespace

MonitorViewModel::MonitorViewModel(ApplicationModel &model, const Formatting &formatting,
                                   QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting}, m_service{model},
      m_chart{m_service, model, formatting}, m_options{m_service, formatting},
      m_tiles{new MonitorTile{MonitorTile::Kind::cpu, formatting, this},
              new MonitorTile{MonitorTile::Kind::memory, formatting, this},
              new MonitorTile{MonitorTile::Kind::disk, formatting, this},
              new MonitorTile{MonitorTile::Kind::network, formatting, this}},
      m_mixer{formatting}
{
    connect(&m_service, &MonitorService::sampled, this, [this] { take(true); });
    connect(&m_service, &MonitorService::alertsChanged, this, &MonitorViewModel::alertsChanged);
    connect(&m_service, &MonitorService::told, this, &MonitorViewModel::said);
    connect(&m_service, &MonitorService::preferencesChanged, this, [this] { take(false); });
    connect(&m_service, &MonitorService::alerted, this,
            [this](const MonitorCore::MonitorAlert &alert) {
                emit notificationWanted({.id = notificationOf(alert.id),
                                         .title = engineText(alert.title),
                                         .body = engineText(alert.detail),
                                         .actions = {{QStringLiteral("review"), tr("Review")}},
                                         .withSound = false});
            });
    connect(&formatting, &Formatting::wordsChanged, this, [this] { take(false); });
}

void MonitorViewModel::begin(MonitorTools tools)
{
    m_tiles.front()->setCores(tools.cores);
    m_service.begin(std::move(tools));
    emit changed();
}

void MonitorViewModel::setWatched(bool watched)
{
    if (m_watched != watched) {
        m_watched = watched;
        follow();
    }
}

void MonitorViewModel::setHomeWatched(bool watched)
{
    if (m_homeWatched != watched) {
        m_homeWatched = watched;
        follow();
    }
}

void MonitorViewModel::follow()
{
    using View = MonitorService::View;
    if (m_watched) {
        m_service.setView(View::processes);
    } else {
        m_service.setView(m_homeWatched ? View::machine : View::nothing);
    }
    if (!m_watched) { // nobody sees them, and they are many
        m_apps.show({}, MonitorRows::Order::asGiven);
        m_processes.show({}, MonitorRows::Order::asGiven);
        m_isHeld = false;
    }
    emit watchedChanged();
    take(false);
}

QString MonitorViewModel::availability() const
{
    if (!m_service.hasBegun()) {
        return QStringLiteral("error");
    }
    return m_service.snapshot() ? QStringLiteral("ready") : QStringLiteral("loading");
}

QVariantList MonitorViewModel::tiles() const
{
    QVariantList list;
    for (MonitorTile *tile : m_tiles) {
        list.append(QVariant::fromValue<QObject *>(tile));
    }
    return list;
}

void MonitorViewModel::take(bool isNew)
{
    const auto &snapshot = m_service.snapshot();
    if ((!m_watched && !m_homeWatched) || snapshot == nullptr) {
        emit changed();
        return;
    }
    for (MonitorTile *tile : m_tiles) {
        tile->show(*snapshot, isNew);
    }
    if (m_watched) {
        showApps();
        showProcesses();
        showReadings();
        m_chart.follow();
    }
    emit changed();
}

void MonitorViewModel::setOrder(const QString &order)
{
    if (m_order != order) {
        m_order = order;
        m_isHeld = false;
        emit orderChanged();
        emit heldChanged();
        showApps();
    }
}

void MonitorViewModel::setHeld(bool held)
{
    if (m_isHeld != held) {
        m_isHeld = held;
        emit heldChanged();
    }
}

double MonitorViewModel::shareOf(double cpu, double memory) const
{
    if (m_order != u"memory") {
        return std::clamp(cpu / 100, 0.0, 1.0); // of one core
    }
    const auto &readings = m_service.snapshot()->readings;
    const auto total = readings.find(MetricID::memoryTotal);
    const double most = total == readings.end() ? 0 : total->second.value.value_or(0);
    return most > 0 ? std::clamp(memory / most, 0.0, 1.0) : 0;
}

MonitorRow MonitorViewModel::rowOf(const MonitorCore::AppUsage &app) const
{
    constexpr std::size_t kTints = 5;
    const QString id = QString::fromStdString(app.id);
    MonitorRow row{
        .rowId = id,
        .title =
            app.id == MonitorCore::kKernelKey ? tr("Kernel") : QString::fromStdString(app.name),
        .tint = static_cast<int>(qHash(id, 0) % kTints),
        .cpu = percentText(m_formatting, app.cpu, 1),
        .memory = bytesText(m_formatting, app.memory),
        .disk = rateText(m_formatting, app.diskRead + app.diskWrite),
        .share = shareOf(app.cpu, app.memory),
        .isHot = app.cpu > m_service.preferences().cpuThreshold,
    };
    row.spoken = tr("%1, processor %2, memory %3").arg(row.title, row.cpu, row.memory);
    return row;
}

MonitorRow MonitorViewModel::rowOf(const MonitorCore::ProcessSample &process,
                                   const MonitorCore::AppUsage &app) const
{
    const bool isParted = std::ranges::any_of(
        app.processes, [&](const auto &other) { return other.key.pid == process.parentPID; });
    MonitorRow row{
        .rowId = QString::fromStdString(process.key.id()),
        .title = QString::fromStdString(process.name),
        .note = QString::number(process.key.pid),
        .cpu = percentText(m_formatting, process.cpu, 1),
        .memory = bytesText(m_formatting, process.memory),
        .disk = rateText(m_formatting, process.diskRead + process.diskWrite),
        .share = std::clamp(process.cpu / 100, 0.0, 1.0),
        .isHot = process.cpu > m_service.preferences().cpuThreshold,
        .isParted = isParted,
    };
    row.spoken = tr("%1, number %2, processor %3, memory %4")
                     .arg(row.title, row.note, row.cpu, row.memory);
    return row;
}

// Of equal ones the order stays the same from sample to sample, so that the list stands still.
void MonitorViewModel::showApps()
{
    const auto &snapshot = m_service.snapshot();
    if (snapshot == nullptr || !m_watched) {
        return;
    }
    std::vector<const MonitorCore::AppUsage *> sorted;
    for (const auto &app : snapshot->apps) {
        sorted.push_back(&app);
    }
    const auto figure = [this](const MonitorCore::AppUsage *app) {
        if (m_order == u"memory") {
            return app->memory;
        }
        return m_order == u"disk" ? app->diskRead + app->diskWrite : app->cpu;
    };
    std::ranges::sort(sorted, [&](const auto *a, const auto *b) {
        const double left = figure(a);
        const double right = figure(b);
        return left != right ? left > right
                             : std::tie(a->name, a->id) < std::tie(b->name, b->id);
    });
    std::vector<MonitorRow> rows;
    rows.reserve(sorted.size());
    for (const auto *app : sorted) {
        rows.push_back(rowOf(*app));
    }
    m_apps.show(std::move(rows),
                m_isHeld ? MonitorRows::Order::held : MonitorRows::Order::asGiven);
}

const MonitorCore::AppUsage *MonitorViewModel::shownApp() const
{
    const auto &snapshot = m_service.snapshot();
    if (snapshot == nullptr) {
        return nullptr;
    }
    const auto found =
        std::ranges::find(snapshot->apps, m_appId.toStdString(), &MonitorCore::AppUsage::id);
    return found == snapshot->apps.end() ? nullptr : &*found;
}

void MonitorViewModel::showProcesses()
{
    if (m_page != u"app") {
        return;
    }
    const MonitorCore::AppUsage *app = shownApp();
    std::vector<MonitorRow> rows;
    m_isAppGone = app == nullptr;
    if (app != nullptr) {
        const MonitorRow row = rowOf(*app);
        m_appTitle = row.title;
        m_appNote = QStringLiteral("%1 · %2 · %3").arg(row.cpu, row.memory, row.disk);
        std::vector<const MonitorCore::ProcessSample *> sorted;
        for (const auto &process : app->processes) {
            sorted.push_back(&process);
        }
        std::ranges::sort(sorted, [](const auto *a, const auto *b) {
            return a->cpu != b->cpu ? a->cpu > b->cpu : a->key < b->key;
        });
        for (const auto *process : sorted) {
            rows.push_back(rowOf(*process, *app));
        }
    }
    m_processes.show(std::move(rows),
                     m_isHeld ? MonitorRows::Order::held : MonitorRows::Order::asGiven);
    emit appChanged();
}

// Everything that the machine tells, with what it does not and why.
void MonitorViewModel::showReadings()
{
    if (m_page != u"machine") {
        return;
    }
    const auto &snapshot = *m_service.snapshot();
    std::vector<MonitorRow> rows;
    for (const auto &[metric, reading] : snapshot.readings) {
        const QString missing = missingText(m_formatting, reading);
        const std::string_view id = Base::textOf(metric);
        MonitorRow row{.rowId = QString::fromUtf8(id.data(), static_cast<qsizetype>(id.size())),
                       .title = metricTitle(metric),
                       .isFaint = !missing.isEmpty()};
        row.cpu = row.isFaint
                      ? QStringLiteral("—")
                      : amountText(m_formatting, reading.value.value_or(0), reading.unit);
        row.note = row.isFaint ? missing : QString::fromStdString(reading.detail.value_or(""));
        row.spoken = QStringLiteral("%1: %2 %3").arg(row.title, row.cpu, row.note);
        rows.push_back(std::move(row));
    }
    for (const auto &accessory : snapshot.accessories) {
        MonitorRow row{.rowId =
                           QStringLiteral("accessory-") + QString::fromStdString(accessory.id),
                       .title = QString::fromStdString(accessory.name),
                       .note = tr("Battery of the accessory"),
                       .cpu = percentText(m_formatting, accessory.percent, 0)};
        row.spoken = QStringLiteral("%1: %2").arg(row.title, row.cpu);
        rows.push_back(std::move(row));
    }
    m_readings.show(std::move(rows), MonitorRows::Order::asGiven);
}

void MonitorViewModel::showPage(const QString &page)
{
    if (m_page == page) {
        return;
    }
    if (m_page == u"chart") {
        m_chart.leave();
    }
    m_page = page;
    m_isHeld = false;
    emit heldChanged();
    emit pageChanged();
    if (m_watched && m_service.snapshot() != nullptr) {
        showProcesses();
        showReadings();
    }
}

void MonitorViewModel::showApp(const QString &appId)
{
    m_appId = appId;
    m_appPorts.clear();
    m_processes.show({}, MonitorRows::Order::asGiven);
    showPage(QStringLiteral("app"));
    showProcesses();
    readPorts();
}

// Asked once, when the page is opened: it goes through every open file of the processes.
void MonitorViewModel::readPorts()
{
    const MonitorCore::AppUsage *app = shownApp();
    if (app == nullptr) {
        return;
    }
    std::vector<MonitorCore::ProcessKey> processes;
    for (const auto &process : app->processes) {
        processes.push_back(process.key);
    }
    m_service.readPorts(std::move(processes), [this, asked = m_appId](
                                                  const std::vector<std::uint16_t> &ports) {
        if (asked != m_appId) {
            return;
        }
        QStringList texts;
        for (const std::uint16_t port : ports) {
            texts.append(QString::number(port));
        }
        m_appPorts = ports.empty() ? QString{}
                                   : tr("Listens on %1").arg(texts.join(QStringLiteral(", ")));
        emit appChanged();
    });
}

void MonitorViewModel::showChart(const QString &metric)
{
    showPage(QStringLiteral("chart"));
    m_chart.open(metric);
}

QString MonitorViewModel::uptime() const
{
    const auto &snapshot = m_service.snapshot();
    return snapshot ? tr("Up %1").arg(spanText(m_formatting, snapshot->uptime)) : QString{};
}

QString MonitorViewModel::restricted() const
{
    const auto &snapshot = m_service.snapshot();
    const qlonglong count = snapshot ? snapshot->restrictedProcessCount : 0;
    if (count == 0) {
        return {};
    }
    return count == 1 ? tr("one process restricted")
                      : tr("%1 processes restricted").arg(m_formatting.number(count));
}

QString MonitorViewModel::battery() const
{
    const auto &snapshot = m_service.snapshot();
    if (snapshot == nullptr) {
        return {};
    }
    const auto found = snapshot->readings.find(MetricID::battery);
    const bool isThere = found != snapshot->readings.end() &&
                         found->second.state == MetricState::available && found->second.value;
    return isThere ? percentText(m_formatting, found->second.value.value_or(0), 0) : QString{};
}

QString MonitorViewModel::alertApp() const
{
    const auto &alerts = m_service.alerts();
    if (alerts.empty()) {
        return {};
    }
    // The title says what the text says again, after the application's name.
    const QString title = QString::fromStdString(alerts.front().title);
    return title.contains(u':') ? title.section(u':', 0, -2) : title;
}

QString MonitorViewModel::alertText() const
{
    const auto &alerts = m_service.alerts();
    return alerts.empty() ? QString{} : engineText(alerts.front().detail);
}

void MonitorViewModel::review()
{
    if (const auto &alerts = m_service.alerts(); !alerts.empty()) {
        showApp(QString::fromStdString(alerts.front().appID));
    }
}

void MonitorViewModel::dismissAlert()
{
    if (const auto &alerts = m_service.alerts(); !alerts.empty()) {
        const std::string id = alerts.front().id;
        m_service.dismiss(id);
        emit notificationObsolete(notificationOf(id));
    }
}

} // namespace Velvetnook
