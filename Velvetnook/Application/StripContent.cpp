// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/StripContent.h"

#include "KestCore/Devotional/Content.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/PrayerWatch.h"
#include "Velvetnook/Application/ToolTitles.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace Velvetnook
{

namespace
{

constexpr Base::Seconds kMinute{60};
constexpr Base::Seconds kHour{3600};
constexpr Base::Seconds kPrayerIsNear{900};
constexpr Base::Seconds kEventIsNear{600};

class Strip
{
    Q_DECLARE_TR_FUNCTIONS(Strip)

public:
    Strip(const StripSources &sources, const Formatting &formatting, Base::Instant now)
        : m_sources{sources}, m_formatting{formatting}, m_now{now}
    {
    }

    StripStep step();

private:
    using Content = std::optional<StripContent>;

    Content emphasis();
    Content message();
    Content prayerNow();
    Content lastMinute();
    Content counting();
    Content assistant();
    Content event();
    Content runningTimer();
    Content nowPlaying();
    Content prayerSoon();
    Content pinned();

    const KestCore::Timer *firstRunning() const;
    StripContent timerContent(const KestCore::Timer &timer);
    StripContent prayerContent(const KestCore::NextPrayer &next);
    Content pinnedPhrase(const KestCore::Phrase *phrase, bool isName) const;
    void lookAgain(Base::Instant at);
    QString minutesUntil(Base::Instant at);
    const KestCore::Preferences &preferences() const
    {
        return m_sources.state.devotional.preferences;
    }

    const StripSources &m_sources;
    const Formatting &m_formatting;
    Base::Instant m_now;
    std::optional<Base::Instant> m_changesAt;
};

const KestCore::Phrase *find(const std::vector<KestCore::Phrase> &phrases,
                             const std::string &id)
{
    const auto found = std::ranges::find(phrases, id, &KestCore::Phrase::id);
    return found == phrases.end() ? nullptr : &*found;
}

void Strip::lookAgain(Base::Instant at)
{
    if (at > m_now && (!m_changesAt || at < *m_changesAt)) {
        m_changesAt = at;
    }
}

// What is left as the user reads it; asks to look again when that is another text.
QString Strip::minutesUntil(Base::Instant at)
{
    const double seconds = std::max((at - m_now).count(), 1.0);
    lookAgain(at - (std::ceil(seconds / 60) - 1) * kMinute);
    return m_formatting.remaining(std::max(seconds, 60.0));
}

StripStep Strip::step()
{
    // Whatever comes first, the end of each of these is a reason to look again.
    if (m_sources.nextPrayer) {
        lookAgain(m_sources.nextPrayer->at);
        lookAgain(m_sources.nextPrayer->at - kHour);
    }
    if (m_sources.nextEvent) {
        lookAgain(m_sources.nextEvent->start - kEventIsNear);
    }
    if (m_sources.countedAt) {
        lookAgain(*m_sources.countedAt + kCountingTime);
    }
    if (m_sources.isLent) {
        return {
            .content = {.kind = QStringLiteral("lent"), .isCentred = true, .isNarrow = true},
            .changesAt = m_changesAt};
    }
    using Source = Content (Strip::*)();
    static constexpr Source kOrder[]{
        &Strip::emphasis,   &Strip::message,    &Strip::prayerNow, &Strip::lastMinute,
        &Strip::counting,   &Strip::assistant,  &Strip::event,     &Strip::runningTimer,
        &Strip::nowPlaying, &Strip::prayerSoon, &Strip::pinned};
    for (const Source source : kOrder) {
        if (Content content = (this->*source)()) {
            return {.content = std::move(*content), .changesAt = m_changesAt};
        }
    }
    return {.content = {.kind = QStringLiteral("rest"),
                        .icon = QStringLiteral("dhikr"),
                        .iconTone = QStringLiteral("text3"),
                        .isCentred = true,
                        .isNarrow = true},
            .changesAt = m_changesAt};
}

Strip::Content Strip::emphasis()
{
    if (!m_sources.emphasisUntil || *m_sources.emphasisUntil <= m_now) {
        return std::nullopt;
    }
    lookAgain(*m_sources.emphasisUntil);
    return pinned();
}

Strip::Content Strip::message()
{
    if (!m_sources.message || m_sources.message->until.value_or(m_now + kMinute) <= m_now) {
        return std::nullopt;
    }
    if (const auto &until = m_sources.message->until) {
        lookAgain(*until);
    }
    return StripContent{.kind = QStringLiteral("message"),
                        .icon = QStringLiteral("sparkle"),
                        .iconTone = QStringLiteral("accent"),
                        .text = m_sources.message->text,
                        .textTone = QStringLiteral("text1")};
}

Strip::Content Strip::prayerNow()
{
    const auto &last = m_sources.lastPrayer;
    if (!last || last->at > m_now || m_now >= last->at + kPrayerNowTime) {
        return std::nullopt;
    }
    lookAgain(last->at + kPrayerNowTime);
    return StripContent{.kind = QStringLiteral("prayer"),
                        .icon = QStringLiteral("prayer"),
                        .iconTone = QStringLiteral("accent"),
                        .text = prayerName(last->prayer),
                        .textTone = QStringLiteral("accent"),
                        .trailing = tr("now", "the time of a prayer has come"),
                        .trailingTone = QStringLiteral("text1")};
}

const KestCore::Timer *Strip::firstRunning() const
{
    const auto found = std::ranges::find_if(m_sources.timers, [&](const auto &timer) {
        return timer.state.running && !KestCore::hasEnded(timer.state, m_now);
    });
    return found == m_sources.timers.end() ? nullptr : &*found;
}

StripContent Strip::timerContent(const KestCore::Timer &timer)
{
    const double seconds = KestCore::remaining(timer.state, m_now);
    StripContent content{.kind = QStringLiteral("timer"),
                         .text = timerTitle(timer, m_formatting),
                         .textTone = QStringLiteral("text1"),
                         .trailingTone = QStringLiteral("text1"),
                         .ringLeads = true,
                         .isNarrow = true};
    if (!KestCore::countsDown(timer.state)) {
        const double step = m_sources.canBeSeen ? 1 : 60;
        const double passed = std::floor(seconds / step) * step;
        lookAgain(m_now + Base::Seconds{passed + step - seconds});
        content.icon = QStringLiteral("timers");
        content.iconTone = QStringLiteral("accent");
        content.trailing = m_formatting.duration(passed);
        return content;
    }
    const Base::Instant end = m_now + Base::Seconds{seconds};
    if (m_sources.canBeSeen) {
        content.trailing = m_formatting.duration(seconds);
        lookAgain(end - Base::Seconds{std::ceil(seconds) - 1});
    } else {
        content.trailing = minutesUntil(end);
        lookAgain(end - kMinute + Base::Seconds{0.01});
    }
    content.ring = timer.state.duration > 0
                       ? std::clamp(1 - seconds / timer.state.duration, 0.0, 1.0)
                       : 0.0;
    content.hem = content.ring;
    content.hemTone = QStringLiteral("accent");
    return content;
}

Strip::Content Strip::lastMinute()
{
    const KestCore::Timer *timer = firstRunning();
    if (timer == nullptr || !KestCore::countsDown(timer->state)) {
        return std::nullopt;
    }
    const double seconds = KestCore::remaining(timer->state, m_now);
    if (seconds >= 60) {
        lookAgain(m_now + Base::Seconds{seconds - 60 + 0.01});
        return std::nullopt;
    }
    return timerContent(*timer);
}

Strip::Content Strip::counting()
{
    const auto &counted = m_sources.countedAt;
    const KestCore::DevotionalState &state = m_sources.state.devotional;
    const KestCore::Session &session = state.session;
    if (!counted || m_now >= *counted + kCountingTime || session.count == 0) {
        return std::nullopt;
    }
    const auto &phrases = KestCore::contentCatalogue().dhikr;
    const KestCore::Phrase &phrase =
        KestCore::phraseById(state.selectedDhikrId, phrases, phrases.front());
    StripContent content{.kind = QStringLiteral("count"),
                         .arabic = QString::fromStdString(phrase.arabic),
                         .text = QString::fromStdString(phrase.transliteration),
                         .textTone = QStringLiteral("text1"),
                         .trailing = m_formatting.number(session.count),
                         .trailingTone = QStringLiteral("text1"),
                         .hemTone = QStringLiteral("accent")};
    if (session.target) {
        const auto target = static_cast<double>(*session.target);
        content.hem = std::clamp(static_cast<double>(session.count) / target, 0.0, 1.0);
    }
    const bool isJustReached =
        m_sources.reachedAt && m_now < *m_sources.reachedAt + kReachedTime;
    if (session.isPaused) {
        content.textTone = QStringLiteral("text2");
        content.trailingTone = QStringLiteral("text3");
        content.trailingIcon = QStringLiteral("pause");
        content.hemTone = QStringLiteral("text3");
    } else if (isJustReached) {
        lookAgain(*m_sources.reachedAt + kReachedTime);
        content.trailingTone = QStringLiteral("accent");
        content.trailingIcon = QStringLiteral("check");
    } else if (session.target) {
        content.trailingNote =
            QStringLiteral(" / %1").arg(m_formatting.number(*session.target));
    }
    return content;
}

Strip::Content Strip::assistant()
{
    const auto &waiting = m_sources.waiting;
    if (!waiting || m_now >= waiting->since + kWaitingTime) {
        return std::nullopt;
    }
    lookAgain(waiting->since + kWaitingTime);
    return StripContent{.kind = QStringLiteral("assistant"),
                        .text = tr("%1 is waiting for you", "Claude Code").arg(waiting->title),
                        .textTone = QStringLiteral("text1")};
}

Strip::Content Strip::event()
{
    const auto &next = m_sources.nextEvent;
    if (!next || m_now < next->start - kEventIsNear || m_now >= next->start + kEventNowTime) {
        return std::nullopt;
    }
    const bool isNow = m_now >= next->start;
    lookAgain(isNow ? next->start + kEventNowTime : next->start);
    return StripContent{.kind = QStringLiteral("event"),
                        .icon = QStringLiteral("calendar"),
                        .iconTone = QStringLiteral("accent"),
                        .text = next->title.isEmpty() ? tr("(no title)") : next->title,
                        .textTone = QStringLiteral("text1"),
                        .note = m_formatting.time(next->start),
                        .trailing = isNow
                                        ? tr("now", "an event begins")
                                        : tr("in %1", "42 min").arg(minutesUntil(next->start)),
                        .trailingTone = QStringLiteral("accent")};
}

// A pinned phrase keeps its place, and the timer trails.
Strip::Content Strip::runningTimer()
{
    const KestCore::Timer *timer = firstRunning();
    if (timer == nullptr) {
        return std::nullopt;
    }
    StripContent content = timerContent(*timer);
    const KestCore::Pin &pin = m_sources.state.pin;
    if (preferences().pinEnabled && (pin.tool == "dhikr" || pin.tool == "tasbih")) {
        if (Content phrase = pinned()) {
            content.arabic = phrase->arabic;
            content.text = phrase->text;
            content.trailingTone = QStringLiteral("text2");
            content.ringLeads = false;
            content.isNarrow = false;
            content.trailingIcon = std::exchange(content.icon, {});
        }
    }
    return content;
}

Strip::Content Strip::nowPlaying()
{
    const auto &playing = m_sources.nowPlaying;
    if (!playing) {
        return std::nullopt;
    }
    StripContent content{.kind = QStringLiteral("music"),
                         .text = playing->title,
                         .textTone = QStringLiteral("text1"),
                         .trailingTone = QStringLiteral("text3")};
    if (m_sources.canBeSeen) {
        const double passed =
            std::floor(playing->position + std::max((m_now - playing->at).count(), 0.0));
        content.trailing = m_formatting.duration(passed);
        lookAgain(playing->at + Base::Seconds{passed + 1.001 - playing->position});
    }
    return content;
}

StripContent Strip::prayerContent(const KestCore::NextPrayer &next)
{
    const bool isNear = next.at - m_now <= kPrayerIsNear;
    lookAgain(next.at - kPrayerIsNear);
    return StripContent{
        .kind = QStringLiteral("prayer"),
        .icon = QStringLiteral("prayer"),
        .iconTone = isNear ? QStringLiteral("accent") : QStringLiteral("text2"),
        .text = prayerName(next.prayer),
        .textTone = QStringLiteral("text1"),
        .note = m_sources.placeCalendar ? m_formatting.timeIn(*m_sources.placeCalendar, next.at)
                                        : m_formatting.time(next.at),
        .trailing = tr("in %1", "42 min").arg(minutesUntil(next.at)),
        .trailingTone = isNear ? QStringLiteral("accent") : QStringLiteral("text2")};
}

Strip::Content Strip::prayerSoon()
{
    const auto &next = m_sources.nextPrayer;
    if (!next || next->at - m_now > kHour ||
        !KestCore::settingIsTrue(m_sources.state.settings, "prayer.strip")) {
        return std::nullopt;
    }
    return prayerContent(*next);
}

Strip::Content Strip::pinnedPhrase(const KestCore::Phrase *phrase, bool isName) const
{
    if (phrase == nullptr) {
        return std::nullopt;
    }
    StripContent content{
        .kind = QStringLiteral("pin"), .textTone = QStringLiteral("text1"), .isCentred = true};
    const QString arabic = QString::fromStdString(phrase->arabic);
    const QString latin = QString::fromStdString(phrase->transliteration);
    const std::string &display = preferences().pinDisplay;
    const bool wantsArabic = display == "arabic" || m_formatting.isRightToLeft();
    if (isName && preferences().pinSize == "comfortable" && !m_formatting.isRightToLeft()) {
        content.icon = QStringLiteral("names");
        content.iconTone = QStringLiteral("accent");
        content.arabic = arabic;
        content.text = latin;
        content.isCentred = false;
        content.showsBoth = true;
    } else if (wantsArabic) {
        content.arabic = arabic;
        content.text = latin; // where the Arabic is too wide
    } else if (display == "transliteration") {
        content.text = latin;
    } else {
        content.text =
            QString::fromStdString(phrase->translation.value_or(phrase->transliteration));
    }
    return content;
}

Strip::Content Strip::pinned()
{
    const KestCore::Pin &pin = m_sources.state.pin;
    if (!preferences().pinEnabled) {
        return std::nullopt;
    }
    if (pin.tool == "dhikr" || pin.tool == "tasbih") {
        return pinnedPhrase(find(KestCore::contentCatalogue().dhikr, pin.item), false);
    }
    if (pin.tool == "names") {
        return pinnedPhrase(find(KestCore::contentCatalogue().names, pin.item), true);
    }
    if (pin.tool == "prayer" && m_sources.nextPrayer) {
        return prayerContent(*m_sources.nextPrayer);
    }
    return std::nullopt;
}

} // namespace

StripStep stripStep(const StripSources &sources, const Formatting &formatting,
                    Base::Instant now)
{
    return Strip{sources, formatting, now}.step();
}

} // namespace Velvetnook
