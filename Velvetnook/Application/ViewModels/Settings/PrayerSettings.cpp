// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Settings/PrayerSettings.h"

#include "Base/EnumText.h"
#include "Base/Text.h"
#include "KestCore/Prayer/PrayerCalculator.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/LocalDay.h"
#include "Velvetnook/Application/PrayerWatch.h"
#include "Velvetnook/Application/QtText.h"

#include <QVariantMap>

#include <algorithm>
#include <vector>

namespace Velvetnook
{

namespace
{

using PrayerCore::Prayer;

// Sunrise has no adjustment of the user's.
constexpr Prayer kAdjusted[]{Prayer::fajr, Prayer::dhuhr, Prayer::asr, Prayer::maghrib,
                             Prayer::isha};
constexpr Prayer kShown[]{Prayer::fajr, Prayer::sunrise, Prayer::dhuhr,
                          Prayer::asr,  Prayer::maghrib, Prayer::isha};

std::string adjustmentKey(std::string_view prayer)
{
    return "prayer.adjust." + std::string{prayer};
}

} // namespace

PrayerSettings::PrayerSettings(ApplicationModel &model, const Formatting &formatting,
                               QObject *parent)
    : SettingsPage{model, formatting, parent}
{
    connect(&model, &ApplicationModel::calendarChanged, this, &PrayerSettings::changed);
}

QString PrayerSettings::method() const { return setting("prayer.method", "automatic"); }

QVariantList PrayerSettings::methods() const
{
    const Choice choices[]{
        {"automatic", tr("Automatic")},
        {"muslimWorldLeague", tr("Muslim World League")},
        {"egyptian", tr("Egyptian Authority")},
        {"karachi", tr("Karachi")},
        {"ummAlQura", tr("Umm al-Qura")},
        {"dubai", tr("Dubai")},
        {"moonsightingCommittee", tr("Moonsighting Committee")},
        {"northAmerica", tr("North America")},
        {"kuwait", tr("Kuwait")},
        {"qatar", tr("Qatar")},
        {"singapore", tr("Singapore")},
        {"tehran", tr("Tehran")},
        {"turkey", tr("Turkey")},
    };
    return options(choices);
}

QString PrayerSettings::methodNote() const
{
    const auto inputs = KestCore::prayerInputs(model().state().settings);
    if (method() != QLatin1String{"automatic"} || !inputs) {
        return tr("Whose conventions the times follow");
    }
    const QString used = fromView(Base::textOf(inputs->parameters.method));
    for (const QVariant &each : methods()) {
        const QVariantMap choice = each.toMap();
        if (choice[QStringLiteral("value")] == used) {
            return tr("From the country: %1").arg(choice[QStringLiteral("label")].toString());
        }
    }
    return {};
}

QString PrayerSettings::asr() const
{
    const bool isHanafi = model().setting("prayer.asr") == "hanafi";
    return isHanafi ? QStringLiteral("hanafi") : QStringLiteral("shafi");
}

QVariantList PrayerSettings::asrChoices() const
{
    const Choice choices[]{{"shafi", tr("Shāfiʿī")}, {"hanafi", tr("Ḥanafī")}};
    return options(choices);
}

QString PrayerSettings::highLatitude() const
{
    return setting("prayer.highLatitude", "automatic");
}

QVariantList PrayerSettings::highLatitudes() const
{
    const Choice choices[]{{"automatic", tr("Automatic")},
                           {"middleOfTheNight", tr("Middle of the night")},
                           {"seventhOfTheNight", tr("Seventh of the night")},
                           {"twilightAngle", tr("Twilight angle")}};
    return options(choices);
}

QString PrayerSettings::signedText(int value) const
{
    QString number = formatting().number(std::abs(value));
    if (value == 0) {
        return number;
    }
    return (value > 0 ? QStringLiteral("+") : QStringLiteral("−")) + number;
}

QVariantList PrayerSettings::adjusted() const
{
    QVariantList list;
    for (const Prayer prayer : kAdjusted) {
        list.push_back(QVariantMap{{QStringLiteral("value"), fromView(Base::textOf(prayer))},
                                   {QStringLiteral("label"), prayerName(prayer)}});
    }
    return list;
}

int PrayerSettings::minutesOf(std::string_view prayer) const
{
    return Base::numberFrom<int>(model().setting(adjustmentKey(prayer))).value_or(0);
}

QVariantMap PrayerSettings::minutes() const
{
    QVariantMap map;
    for (const Prayer prayer : kAdjusted) {
        const std::string_view id = Base::textOf(prayer);
        map.insert(fromView(id), minutesOf(id));
    }
    return map;
}

QVariantMap PrayerSettings::minuteTexts() const
{
    QVariantMap map;
    for (const Prayer prayer : kAdjusted) {
        const std::string_view id = Base::textOf(prayer);
        map.insert(fromView(id), tr("%1 min").arg(signedText(minutesOf(id))));
    }
    return map;
}

int PrayerSettings::hijriOffset() const
{
    const auto days = Base::numberFrom<int>(model().setting("prayer.islamicDayOffset"));
    return std::clamp(days.value_or(0), -kFurthestOffset, kFurthestOffset);
}

QString PrayerSettings::hijriOffsetText() const
{
    return tr("%1 d", "days").arg(signedText(hijriOffset()));
}

QString PrayerSettings::hijriDate() const { return islamicDateText(model(), formatting()); }

bool PrayerSettings::notifies() const { return isOn("prayer.notifications", false); }
bool PrayerSettings::sounds() const { return isOn("prayer.sound", false); }
bool PrayerSettings::showsInStrip() const { return isOn("prayer.strip", false); }

QVariantList PrayerSettings::times() const
{
    const auto inputs = KestCore::prayerInputs(model().state().settings);
    if (!inputs) {
        return {};
    }
    const auto days = KestCore::PrayerCalculator::comingDays(*inputs, model().now(), 1);
    const auto times = days.empty() ? std::nullopt : days.front().times;
    if (!times) {
        return {};
    }
    const auto next = KestCore::PrayerCalculator::next(*inputs, model().now());
    QVariantList list;
    for (const Prayer prayer : kShown) {
        const auto at = PrayerCore::instantOf(*times, prayer);
        list.push_back(
            QVariantMap{{QStringLiteral("name"), prayerName(prayer)},
                        {QStringLiteral("time"),
                         at ? formatting().timeIn(inputs->calendar, *at) : QStringLiteral("—")},
                        {QStringLiteral("isNext"), next && at && next->at == *at}});
    }
    return list;
}

QString PrayerSettings::timesMessage() const
{
    const auto inputs = KestCore::prayerInputs(model().state().settings);
    if (!inputs) {
        return tr("Add a location to see your next prayer. You can set it manually.");
    }
    return times().isEmpty() ? tr("The Sun does not rise or set there today.")
                             : tr("Calculated prayer time. Check your local timetable.");
}

void PrayerSettings::setMethod(const QString &value) { set("prayer.method", value); }
void PrayerSettings::setAsr(const QString &value) { set("prayer.asr", value); }

void PrayerSettings::setHighLatitude(const QString &value)
{
    set("prayer.highLatitude", value);
}

void PrayerSettings::setHijriOffset(int days)
{
    set("prayer.islamicDayOffset",
        QString::number(std::clamp(days, -kFurthestOffset, kFurthestOffset)));
}

void PrayerSettings::setNotifies(bool on) { set("prayer.notifications", on); }
void PrayerSettings::setSounds(bool on) { set("prayer.sound", on); }
void PrayerSettings::setShowsInStrip(bool on) { set("prayer.strip", on); }

void PrayerSettings::setAdjustment(const QString &prayer, int minutes)
{
    const auto known = Base::fromText<Prayer>(prayer.toStdString());
    if (!known || std::ranges::find(kAdjusted, *known) == std::end(kAdjusted)) {
        return;
    }
    const int within = std::clamp(minutes, -kFurthestAdjustment, kFurthestAdjustment);
    model().changeSetting(adjustmentKey(prayer.toStdString()), std::to_string(within));
}

} // namespace Velvetnook
