// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Settings/UpdateSettings.h"

#include "HttpTransport/HttpTransport.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/QtText.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QPointer>
#include <QThreadPool>

#include <algorithm>
#include <array>
#include <filesystem>

namespace Velvetnook
{

namespace
{

constexpr auto kAllowed = "update.allowed";
constexpr Base::Seconds kAfterStart{60}; // the start is for what the user waits for
constexpr Base::Seconds kDay{86'400};

KestCore::Settings ownSettings(const KestCore::Settings &all)
{
    return {all.lower_bound("update."), all.lower_bound("update/")};
}

} // namespace

UpdateSource ownUpdateSource(std::string version)
{
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    return {.build = KestCore::thisBuild(std::move(version)),
            .isPackaged = KestCore::isPackaged(program),
            .openTransport = [] { return Web::openTransport(); }};
}

UpdateSettings::UpdateSettings(ApplicationModel &model, const Formatting &formatting,
                               UpdateSource source, QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting},
      m_own{ownSettings(model.state().settings)}, m_begunAt{model.now()}
{
    setSource(std::move(source));
    connect(&model, &ApplicationModel::choicesChanged, this, &UpdateSettings::follow);
    connect(&formatting, &Formatting::wordsChanged, this, &UpdateSettings::changed);
    model.clock().add(
        this, [this](Base::Instant now) { return dueAt(now); },
        [this](Base::Instant) { ask(); });
}

void UpdateSettings::setSource(UpdateSource source)
{
    m_source = std::move(source);
    const auto possible = KestCore::mayCheck(
        m_source.build, KestCore::Settings{{kAllowed, "true"}}, m_source.isPackaged);
    m_obstacle = possible ? QString{} : fromView(possible.error().message);
    m_known = KestCore::knownUpdate(m_source.build, m_own);
    emit changed();
}

UpdateSettings::~UpdateSettings() { m_stop.request_stop(); }

void UpdateSettings::follow()
{
    KestCore::Settings own = ownSettings(m_model.state().settings);
    if (own == m_own) {
        return;
    }
    m_own = std::move(own);
    m_known = KestCore::knownUpdate(m_source.build, m_own);
    m_model.clock().reschedule();
    emit changed();
}

bool UpdateSettings::isAllowed() const { return KestCore::settingIsTrue(m_own, kAllowed); }

void UpdateSettings::setAllowed(bool isAllowed)
{
    m_model.changeSetting(kAllowed, isAllowed ? "true" : "false");
}

// A server that did not answer, or an answer that could not be kept, is not asked again and
// again: that day is over for both.
std::optional<Base::Instant> UpdateSettings::dueAt(Base::Instant now) const
{
    if (!isPossible() || !isAllowed() || m_isBusy) {
        return std::nullopt;
    }
    Base::Instant due = m_begunAt + kAfterStart;
    if (m_askedAt) {
        due = std::max(due, *m_askedAt + kDay);
    }
    // Also when another program has asked since.
    if (const auto &checked = m_known.checkedAt; checked && *checked <= now) {
        due = std::max(due, *checked + kDay);
    }
    return due;
}

bool UpdateSettings::canAsk() const
{
    return isPossible() && isAllowed() && !m_isBusy &&
           KestCore::isCheckDue(m_own, m_model.now());
}

void UpdateSettings::ask()
{
    if (!canAsk()) {
        return;
    }
    m_isBusy = true;
    m_askedAt = m_model.now();
    m_refusal.clear();
    emit changed();
    QThreadPool::globalInstance()->start([guard = QPointer{this}, source = m_source,
                                          own = m_own, now = m_model.now(),
                                          stop = m_stop.get_token()] {
        Outcome outcome{.known = own, .result = {}};
        const auto transport = source.openTransport();
        outcome.result = transport ? KestCore::checkForUpdate(**transport, source.build,
                                                              outcome.known, now, stop)
                                   : Base::Result<void>{std::unexpected(transport.error())};
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [guard, outcome = std::move(outcome)] {
                if (guard) {
                    guard->take(outcome);
                }
            },
            Qt::QueuedConnection);
    });
}

void UpdateSettings::take(const Outcome &outcome)
{
    m_isBusy = false;
    m_refusal = outcome.result ? QString{} : engineText(outcome.result.error().message);
    // Only what the check has changed: what was allowed may be another by now.
    KestCore::Settings fresh;
    for (const auto &[key, value] : outcome.known) {
        const auto old = m_own.find(key);
        if (key != kAllowed && (old == m_own.end() || old->second != value)) {
            fresh.emplace(key, value);
        }
    }
    if (!fresh.empty()) {
        m_model.changeState([fresh](KestCore::NativeState &state) -> Result<void> {
            for (const auto &[key, value] : fresh) {
                state.settings.insert_or_assign(key, value);
            }
            return {};
        });
    }
    m_model.clock().reschedule();
    emit changed();
    emit asked();
}

QString UpdateSettings::channel() const
{
    using enum KestCore::UpdateChannel;
    switch (m_source.build.channel) {
    case stable:
        return tr("Stable build");
    case candidate:
        return tr("Release candidate");
    case development:
        break;
    }
    return tr("Development build");
}

QString UpdateSettings::note() const
{
    if (!isPossible()) {
        return engineText(m_obstacle.toStdString());
    }
    if (m_isBusy) {
        return tr("Asking…");
    }
    if (!m_refusal.isEmpty()) {
        return m_refusal;
    }
    if (!m_known.checkedAt) {
        return isAllowed() ? tr("Nobody was asked yet.")
                           : tr("Nobody is asked until you allow it.");
    }
    const Base::Instant at = *m_known.checkedAt;
    const QString when =
        tr("%1, %2", "a date and a time").arg(m_formatting.date(at), m_formatting.time(at));
    return m_known.offer ? tr("Asked: %1").arg(when)
                         : tr("Nothing newer was there: %1").arg(when);
}

QString UpdateSettings::version() const
{
    return m_known.offer ? QString::fromStdString(m_known.offer->version) : QString{};
}

QString UpdateSettings::notes() const
{
    return m_known.offer ? QString::fromStdString(m_known.offer->notes) : QString{};
}

QString UpdateSettings::address() const
{
    return m_known.offer ? QString::fromStdString(m_known.offer->address) : QString{};
}

QString UpdateSettings::sum() const
{
    return m_known.offer ? QString::fromStdString(m_known.offer->sha256) : QString{};
}

void UpdateSettings::copyAddress() const { QGuiApplication::clipboard()->setText(address()); }

} // namespace Velvetnook
