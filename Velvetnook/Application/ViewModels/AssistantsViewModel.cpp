// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/AssistantsViewModel.h"

#include "KestCore/Store/StoreLocation.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/QtText.h"
#include "Velvetnook/Application/StripContent.h"
#include "Velvetnook/Application/ToolChoice.h"

#include <QCoreApplication>
#include <QLocale>
#include <QVariantMap>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <set>

namespace Velvetnook
{

using Assistants::LoggedSession;
using KestCore::AssistantState;

namespace
{

constexpr auto kSaysWaitingKey = "claude.strip";
constexpr Base::Seconds kMinute{60};
constexpr Base::Seconds kHour{3600};
constexpr std::size_t kMostRows = 12;
// What is told by the end of a log alone: who closed it is not known.
constexpr Base::Seconds kLoggedWaiting = kHour;
// A hook and the log tell of the same step within so short a time.
constexpr Base::Seconds kSameStep{2};
constexpr double kHigh = 80; // percent

std::filesystem::path kestBeside()
{
    return std::filesystem::path{QCoreApplication::applicationDirPath().toStdString()} / "kest";
}

bool isActive(const LoggedSession &session)
{
    return session.state == AssistantState::working || session.state == AssistantState::waiting;
}

QString toneOf(AssistantState state)
{
    switch (state) {
    case AssistantState::working:
        return QStringLiteral("accent");
    case AssistantState::waiting:
        return QStringLiteral("warn");
    case AssistantState::idle:
    case AssistantState::ended:
        break;
    }
    return QStringLiteral("text3");
}

} // namespace

AssistantsViewModel::AssistantsViewModel(ApplicationModel &model, const Formatting &formatting,
                                         QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting},
      m_activity{[&model] { return model.now(); }},
      m_connections{KestCore::homeDirectory(), kestBeside()},
      m_logs{model, KestCore::homeDirectory()}
{
    connect(&m_activity, &AssistantActivity::changed, this, [this] {
        refresh();
        emit waitingChanged();
    });
    connect(&m_connections, &HookConnections::told, &model, &ApplicationModel::say);
    connect(&m_logs, &LogReader::came, this, &AssistantsViewModel::refresh);
    connect(&formatting, &Formatting::wordsChanged, this, &AssistantsViewModel::refresh);
    connect(&model, &ApplicationModel::choicesChanged, this, [this] {
        emit choicesChanged();
        emit waitingChanged();
    });
    // How long ago something was is told in minutes, and only to who looks.
    model.clock().add(
        this,
        [this](Base::Instant at) {
            const double minutes = std::floor(Base::seconds1970(at) / 60) + 1;
            return isShown() ? std::optional{Base::fromSeconds1970(minutes * 60)}
                             : std::nullopt;
        },
        [this](Base::Instant) { refresh(); });
}

Base::Instant AssistantsViewModel::now() const { return m_model.now(); }

void AssistantsViewModel::enter()
{
    ++m_viewers;
    if (m_viewers > 1) {
        return;
    }
    m_lookedAt = now();
    m_logs.begin();
    m_model.clock().reschedule();
    refresh();
    emit waitingChanged();
}

void AssistantsViewModel::leave()
{
    if (m_viewers == 0) {
        return;
    }
    --m_viewers;
    if (isShown()) {
        return;
    }
    m_lookedAt = now();
    m_logs.end();
    m_connections.close();
    emit waitingChanged();
}

bool AssistantsViewModel::saysWaiting() const
{
    return m_model.setting(kSaysWaitingKey) != "false";
}

void AssistantsViewModel::setSaysWaiting(bool says)
{
    m_model.changeSetting(kSaysWaitingKey, says ? "true" : "false");
}

std::optional<WaitingAssistant> AssistantsViewModel::waiting() const
{
    if (isShown() || !saysWaiting() || !isToolOn(m_model.state(), "claude")) {
        return std::nullopt;
    }
    for (const KestCore::AssistantSession &session : m_activity.sessions()) {
        const bool isNew = !m_lookedAt || session.at > *m_lookedAt;
        if (session.last.state == AssistantState::waiting && isNew) {
            return WaitingAssistant{.title = titleOf(session.last.tool), .since = session.at};
        }
    }
    return std::nullopt;
}

QString AssistantsViewModel::availability() const
{
    using enum KestCore::Availability;
    auto state = ready;
    if (m_cards.isEmpty() && m_sessions.isEmpty()) {
        state = m_logs.report() ? unconfigured : loading;
    }
    return fromView(Base::textOf(state));
}

// Sessions that hooks told of, those of the logs, and of both the one that is newer.
std::vector<LoggedSession> AssistantsViewModel::merged() const
{
    std::map<std::pair<std::string, std::string>, LoggedSession> all;
    if (const auto &report = m_logs.report()) {
        for (LoggedSession session : report->sessions) {
            const auto silence = now() - session.at;
            session.state = KestCore::stateAfter(session.state, silence);
            if (session.state == AssistantState::waiting && silence >= kLoggedWaiting) {
                session.state = AssistantState::idle;
            }
            all.insert_or_assign({session.tool, session.session}, session);
        }
    }
    for (const KestCore::AssistantSession &heard : m_activity.sessions()) {
        const auto place = all.find({heard.last.tool, heard.last.session});
        if (place == all.end() || heard.at + kSameStep >= place->second.at) {
            all.insert_or_assign({heard.last.tool, heard.last.session},
                                 LoggedSession{.tool = heard.last.tool,
                                               .session = heard.last.session,
                                               .folder = heard.last.folder.value_or(""),
                                               .state = heard.last.state,
                                               .at = heard.at});
        }
    }
    std::vector<LoggedSession> sessions;
    for (auto &[key, session] : all) {
        sessions.push_back(std::move(session));
    }
    std::ranges::stable_sort(sessions, std::ranges::greater{}, &LoggedSession::at);
    return sessions;
}

// Those that work or wait; of a tool that does neither, the last.
std::vector<LoggedSession> AssistantsViewModel::chosen() const
{
    const std::vector<LoggedSession> all = merged();
    std::vector<LoggedSession> rows;
    std::set<std::string> tools;
    for (const LoggedSession &session : all) {
        if (isActive(session)) {
            rows.push_back(session);
            tools.insert(session.tool);
        }
    }
    for (const LoggedSession &session : all) {
        if (tools.insert(session.tool).second) {
            rows.push_back(session);
        }
    }
    rows.resize(std::min(rows.size(), kMostRows));
    return rows;
}

void AssistantsViewModel::refresh()
{
    if (!isShown()) {
        return;
    }
    m_cards.clear();
    m_sessions.clear();
    if (const auto &report = m_logs.report()) {
        for (const Assistants::ToolUse &use : report->tools) {
            for (const Assistants::Limit &limit : use.limits) {
                m_cards.push_back(cardOf(use, limit));
            }
            if (use.limits.empty()) {
                m_cards.push_back(cardOf(use));
            }
        }
    }
    for (const LoggedSession &session : chosen()) {
        m_sessions.push_back(rowOf(session));
    }
    emit changed();
}

QString AssistantsViewModel::titleOf(const std::string &tool) const
{
    if (const auto *const known = Assistants::findHookTool(tool)) {
        return fromView(known->title);
    }
    return tool == "codex" ? QStringLiteral("Codex") : QString::fromStdString(tool);
}

QString AssistantsViewModel::spanOf(const std::optional<double> &minutes) const
{
    constexpr double kHourMinutes = 60;
    constexpr double kDayMinutes = 24 * kHourMinutes;
    if (!minutes) {
        return {};
    }
    const auto days = static_cast<qlonglong>(std::lround(*minutes / kDayMinutes));
    if (days == 7) {
        return tr("weekly", "span of a limit");
    }
    if (days >= 28 && days <= 31) {
        return tr("monthly", "span of a limit");
    }
    if (days >= 1) {
        return tr("%n day(s)", "span of a limit", static_cast<int>(days));
    }
    return tr("%1 h window", "span of a limit")
        .arg(m_formatting.number(std::lround(*minutes / kHourMinutes)));
}

// "15:40" today, "Mon" within the week, "1 Dec" after that.
QString AssistantsViewModel::moment(Base::Instant at) const
{
    const auto &calendar = m_model.calendar();
    const auto day = calendar.dayNumber(at);
    const auto ahead = day - calendar.dayNumber(now());
    if (ahead == 0) {
        return m_formatting.time(at);
    }
    const QDate date = QDate{1970, 1, 1}.addDays(day);
    return m_formatting.digits(m_formatting.locale().toString(
        date, std::abs(ahead) < 7 ? QStringLiteral("ddd") : QStringLiteral("d MMM")));
}

QString AssistantsViewModel::tokens(const Assistants::TokenCounts &counts) const
{
    constexpr double kThousand = 1'000;
    const auto sum = Assistants::total(counts);
    if (!sum) {
        return QStringLiteral("—");
    }
    struct Step {
        double size;
        QString text;
    };
    const std::array steps{Step{kThousand * kThousand * kThousand, tr("%1 bn", "tokens")},
                           Step{kThousand * kThousand, tr("%1 M", "tokens")},
                           Step{kThousand, tr("%1 k", "tokens")}};
    for (const auto &[size, text] : steps) {
        if (const double figure = static_cast<double>(*sum) / size; figure >= 1) {
            return text.arg(m_formatting.decimal(figure, figure < 100 ? 1 : 0));
        }
    }
    return m_formatting.number(*sum);
}

QVariantMap AssistantsViewModel::cardOf(const Assistants::ToolUse &use,
                                        const Assistants::Limit &limit) const
{
    const QString title = titleOf(use.tool);
    const QString span = spanOf(limit.windowMinutes);
    const QString figure = m_formatting.number(std::lround(limit.usedPercent));
    const QString reset = limit.resetsAt
                              ? tr("resets %1", "15:40 or Mon").arg(moment(*limit.resetsAt))
                              : QString{};
    return {{QStringLiteral("title"), title},
            {QStringLiteral("span"), span},
            {QStringLiteral("figure"), figure},
            {QStringLiteral("unit"),
             m_formatting.usesArabicDigits() ? QStringLiteral("٪") : QStringLiteral("%")},
            {QStringLiteral("note"), reset},
            {QStringLiteral("foot"), QString{}},
            {QStringLiteral("value"), limit.usedPercent / 100},
            {QStringLiteral("isHigh"), limit.usedPercent > kHigh},
            {QStringLiteral("spoken"),
             tr("%1, %2: %3 percent used. %4").arg(title, span, figure, reset)}};
}

// A tool that tells no limit: what it used, and never a guess at what is left.
QVariantMap AssistantsViewModel::cardOf(const Assistants::ToolUse &use) const
{
    const QString title = titleOf(use.tool);
    const QString week = tr("tokens · %1 in seven days", "1.2 M").arg(tokens(use.week));
    const auto &window = use.window;
    const QString figure = tokens(window ? window->tokens : use.week);
    const QString span = window ? tr("5 h window") : tr("seven days");
    const QString until = window ? tr("until %1", "15:40").arg(moment(window->end)) : QString{};
    return {{QStringLiteral("title"), title},
            {QStringLiteral("span"), span},
            {QStringLiteral("figure"), figure},
            {QStringLiteral("unit"), QString{}},
            {QStringLiteral("note"), until},
            {QStringLiteral("foot"), window ? week : tr("tokens · none in five hours")},
            {QStringLiteral("value"), -1.0},
            {QStringLiteral("isHigh"), false},
            {QStringLiteral("spoken"),
             tr("%1, %2: %3 tokens. %4").arg(title, span, figure, until)}};
}

QVariantMap AssistantsViewModel::rowOf(const LoggedSession &session) const
{
    const QString title = titleOf(session.tool);
    const QString folder = QString::fromStdString(session.folder);
    const double silence = std::max((now() - session.at).count(), 0.0);
    const bool isFresh = silence < kMinute.count();
    const QString ago = isFresh ? QString{} : m_formatting.remaining(silence);
    QString what = folder;
    QString note;
    switch (session.state) {
    case AssistantState::working:
        note = isFresh ? tr("working") : tr("working · %1 ago", "4 min").arg(ago);
        break;
    case AssistantState::waiting:
        what = folder.isEmpty() ? tr("waiting for your answer")
                                : tr("%1 · waiting for your answer", "a folder").arg(folder);
        note = isFresh ? tr("just now") : ago;
        break;
    case AssistantState::idle:
    case AssistantState::ended:
        what = tr("No activity");
        note = tr("idle since %1", "11:20 or Mon").arg(moment(session.at));
        break;
    }
    return {{QStringLiteral("title"), title},
            {QStringLiteral("what"), what},
            {QStringLiteral("note"), note},
            {QStringLiteral("tone"), toneOf(session.state)},
            {QStringLiteral("spoken"), QStringList{title, what, note}.join(u", ")}};
}

QString AssistantsViewModel::footer() const
{
    const auto &report = m_logs.report();
    if (!report) {
        return isShown() ? tr("Reading the logs…") : QString{};
    }
    if (report->totals.unreadable > 0) {
        return tr("%n log(s) could not be read", nullptr,
                  static_cast<int>(report->totals.unreadable));
    }
    return tr("Read from the tools’ own logs · %1", "13:06").arg(m_formatting.time(report->at));
}

} // namespace Velvetnook
