// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/StripViewModel.h"

#include "Base/EnumText.h"
#include "KestCore/Models/UtilityPayloads.h"
#include "KestCore/Tools/Messages.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/QtText.h"

#include <algorithm>
#include <utility>

namespace Velvetnook
{

namespace
{

using PrayerCore::Prayer;

// The last prayer that has come until `now`. Sunrise is none: it ends the time of one.
std::optional<KestCore::NextPrayer> lastPrayer(const KestCore::PrayerInputs &place,
                                               Base::Instant now)
{
    // What came after midnight can belong to the day before.
    const std::chrono::sys_days today{KestCore::PrayerCalculator::today(place, now)};
    std::optional<KestCore::NextPrayer> last;
    for (const KestCore::PrayerDay &day :
         KestCore::PrayerCalculator::days(place, today - std::chrono::days{1}, 2)) {
        for (const Prayer prayer :
             {Prayer::fajr, Prayer::dhuhr, Prayer::asr, Prayer::maghrib, Prayer::isha}) {
            const auto at = day.times ? instantOf(*day.times, prayer) : std::nullopt;
            if (at && *at <= now && (!last || *at > last->at)) {
                last = KestCore::NextPrayer{.prayer = prayer, .at = *at};
            }
        }
    }
    return last;
}

} // namespace

StripViewModel::StripViewModel(ApplicationModel &model, const Formatting &formatting,
                               QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting}, m_prayers{model},
      m_sources{.state = model.state()}, m_sessionId{model.state().devotional.session.id},
      m_count{model.state().devotional.session.count},
      m_messagesFrom{Base::milliseconds1970(model.now())}
{
    connect(&model, &ApplicationModel::stateChanged, this, &StripViewModel::followState);
    connect(&model, &ApplicationModel::recordsChanged, this, &StripViewModel::followRecords);
    connect(&m_prayers, &PrayerWatch::inputsChanged, this,
            [this] { m_knowsPrayers = false; }); // the state that says so follows
    connect(&m_prayers, &PrayerWatch::timeCame, this, [this] {
        m_knowsPrayers = false;
        refresh();
    });
    connect(&model.clock(), &DueClock::wallClockChanged, this,
            &StripViewModel::followWallClock);
    const auto tell = [this](const QString &text) {
        if (!m_isPanelOpen) {
            say(text);
        }
    };
    connect(&model, &ApplicationModel::said, this, tell);
    connect(&model, &ApplicationModel::failed, this, tell);
    model.clock().add(
        this, [this](Base::Instant) { return m_changesAt; },
        [this](Base::Instant) { refresh(); });
    // A count of just now may have come from the command line, before the start.
    if (const auto &began = model.state().devotional.session.startedAt) {
        m_sources.countedAt = Base::fromMilliseconds1970(*began);
    }
    for (const KestCore::RecordRef &record : model.records()) {
        m_seenMessages.emplace(record->id, record->updated); // another run has shown them
    }
    followRecords();
}

void StripViewModel::followState()
{
    const KestCore::Session &session = m_model.state().devotional.session;
    const bool isSame = session.id == m_sessionId;
    const std::int64_t before = isSame ? m_count : 0;
    if (session.count != before) {
        m_sources.countedAt = m_model.now();
        const bool isReached =
            session.target && before < *session.target && session.count == *session.target;
        m_sources.reachedAt = isReached ? m_sources.countedAt : std::nullopt;
    } else if (!isSame) {
        m_sources.countedAt.reset();
    }
    m_sessionId = session.id;
    m_count = session.count;
    refresh();
}

void StripViewModel::followRecords()
{
    auto timers = KestCore::timersOf(m_model.recordsOfKind("timer"));
    m_sources.timers = timers ? std::move(*timers) : std::vector<KestCore::Timer>{};
    KestCore::sortForList(m_sources.timers);
    sayNewMessages();
    refresh();
}

// A message that was just written, here or by the command line, shows once.
void StripViewModel::sayNewMessages()
{
    for (const KestCore::RecordRef &record : m_model.records()) {
        if (record->kind != KestCore::kMessageKind || record->updated <= m_messagesFrom) {
            continue;
        }
        const auto [seen, isNew] = m_seenMessages.try_emplace(record->id, record->updated);
        if (!isNew && std::exchange(seen->second, record->updated) == record->updated) {
            continue;
        }
        const auto message =
            KestCore::json::decode<KestCore::StripMessage>(std::string_view{record->body});
        if (message) {
            say(QString::fromStdString(message->text), message->animation);
        }
    }
}

// The times are found once for each prayer: counting asks for them with every bead.
void StripViewModel::followPrayers()
{
    if (m_knowsPrayers) {
        return;
    }
    m_knowsPrayers = true;
    const Base::Instant now = m_model.now();
    const auto &place = m_prayers.inputs();
    m_sources.lastPrayer = place ? lastPrayer(*place, now) : std::nullopt;
    m_sources.nextPrayer = m_prayers.nextPrayer(now);
    m_sources.placeCalendar = place ? std::optional{place->calendar} : std::nullopt;
}

void StripViewModel::refresh()
{
    followPrayers();
    StripStep step = stripStep(m_sources, m_formatting, m_model.now());
    m_changesAt = step.changesAt;
    m_model.clock().reschedule();
    m_content = std::move(step.content);
    emit changed();
}

void StripViewModel::say(const QString &text) { say(text, KestCore::MessageAnimation::scroll); }

void StripViewModel::say(const QString &text, KestCore::MessageAnimation animation)
{
    m_sources.message = ShortMessage{.text = text, .animation = animation, .until = {}};
    if (m_sources.canBeSeen) {
        beginMessage();
    }
    refresh();
    emit messageBegan();
}

void StripViewModel::beginMessage()
{
    if (m_sources.message && !m_sources.message->until) {
        m_sources.message->until = m_model.now() + kShortMessageTime;
    }
}

// On a clock that was set back nothing stays longer than it would have.
void StripViewModel::followWallClock()
{
    const Base::Instant now = m_model.now();
    const auto cap = [](std::optional<Base::Instant> &at, Base::Instant latest) {
        if (at && *at > latest) {
            at = latest;
        }
    };
    cap(m_sources.countedAt, now);
    cap(m_sources.reachedAt, now);
    cap(m_sources.emphasisUntil, now + kEmphasisTime);
    if (m_sources.message) {
        cap(m_sources.message->until, now + kShortMessageTime);
    }
    if (m_sources.waiting) {
        m_sources.waiting->since = std::min(m_sources.waiting->since, now);
    }
    m_messagesFrom = std::min(m_messagesFrom, Base::milliseconds1970(now));
    refresh();
}

void StripViewModel::showWaiting(std::optional<WaitingAssistant> waiting)
{
    if (waiting != m_sources.waiting) {
        m_sources.waiting = std::move(waiting);
        refresh();
    }
}

bool StripViewModel::showsPin() const
{
    return m_sources.canBeSeen && m_content.kind == QLatin1String{"pin"};
}

void StripViewModel::emphasise()
{
    m_sources.emphasisUntil = m_model.now() + kEmphasisTime;
    refresh();
}

void StripViewModel::setNextEvent(std::optional<UpcomingEvent> event)
{
    if (event != m_sources.nextEvent) {
        m_sources.nextEvent = std::move(event);
        refresh();
    }
}

void StripViewModel::setNowPlaying(std::optional<NowPlaying> nowPlaying)
{
    if (nowPlaying != m_sources.nowPlaying) {
        m_sources.nowPlaying = std::move(nowPlaying);
        refresh();
    }
}

void StripViewModel::setLent(bool isLent)
{
    if (std::exchange(m_sources.isLent, isLent) != isLent) {
        refresh();
    }
}

void StripViewModel::setVisible(bool isVisible)
{
    if (std::exchange(m_sources.canBeSeen, isVisible) != isVisible) {
        if (isVisible) {
            beginMessage();
        }
        refresh();
    }
}

int StripViewModel::baseWidth() const
{
    const std::string &size = m_model.state().devotional.preferences.pinSize;
    if (m_content.isNarrow || size == "mini") {
        return 190;
    }
    return size == "comfortable" ? 340 : 260;
}

QString StripViewModel::animation() const
{
    if (!m_sources.message) {
        return {};
    }
    return fromView(Base::textOf(m_sources.message->animation));
}

bool StripViewModel::isEmphasised() const
{
    return m_content.kind == QLatin1String{"pin"} && m_sources.emphasisUntil &&
           *m_sources.emphasisUntil > m_model.now();
}

QString StripViewModel::spoken() const
{
    QStringList parts{m_content.text, m_content.note,
                      m_content.trailing + m_content.trailingNote};
    parts.removeAll(QString{});
    return parts.join(QStringLiteral(", "));
}

} // namespace Velvetnook
