// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/Formatting.h"

#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/LocalDay.h"
#include "Velvetnook/Application/QtText.h"

#include <QDate>

#include <array>
#include <cmath>

namespace Velvetnook
{

namespace
{

// The separators of a number follow its digits, not the language around it.
QLocale numbers(bool areArabic)
{
    return areArabic ? QLocale{QLocale::Arabic, QLocale::Egypt}
                     : QLocale{QLocale::English, QLocale::UnitedKingdom};
}

} // namespace

Formatting::Formatting(const ApplicationModel &model, QObject *parent)
    : QObject{parent}, m_model{model}, m_wording{wordingOf(*this)}
{
    connect(&model, &ApplicationModel::stateChanged, this, &Formatting::follow);
}

void Formatting::follow()
{
    if (const QString wording = wordingOf(*this); wording != m_wording) {
        m_wording = wording;
        // Once whoever loads the texts of the language has done so.
        QMetaObject::invokeMethod(this, &Formatting::wordsChanged, Qt::QueuedConnection);
    }
}

QString Formatting::language() const
{
    const std::string_view chosen = m_model.setting("appearance.language");
    if (chosen == "en" || chosen == "ar") {
        return fromView(chosen);
    }
    const bool isArabic = QLocale::system().language() == QLocale::Arabic;
    return isArabic ? QStringLiteral("ar") : QStringLiteral("en");
}

QLocale Formatting::locale() const
{
    return isRightToLeft() ? QLocale{QLocale::Arabic, QLocale::Egypt}
                           : QLocale{QLocale::English, QLocale::UnitedKingdom};
}

bool Formatting::usesArabicDigits() const
{
    const std::string_view chosen = m_model.setting("appearance.digits");
    return chosen == "arabic" || (chosen != "latin" && isRightToLeft());
}

QString Formatting::digits(QString text) const
{
    const bool arabic = usesArabicDigits();
    for (QChar &letter : text) {
        const bool isLatinDigit = letter >= u'0' && letter <= u'9';
        const bool isArabicDigit = letter >= u'٠' && letter <= u'٩';
        if (arabic && isLatinDigit) {
            letter = QChar{letter.unicode() - u'0' + u'٠'};
        } else if (!arabic && isArabicDigit) {
            letter = QChar{letter.unicode() - u'٠' + u'0'};
        }
    }
    return text;
}

QString Formatting::number(qlonglong value) const
{
    return numbers(usesArabicDigits()).toString(value);
}

QString Formatting::decimal(double value, int decimals) const
{
    return numbers(usesArabicDigits()).toString(value, 'f', decimals);
}

bool Formatting::isTwelveHours() const
{
    const std::string_view chosen = m_model.setting("appearance.clock");
    if (chosen == "12" || chosen == "24") {
        return chosen == "12";
    }
    static const bool kSession =
        QLocale::system().timeFormat(QLocale::ShortFormat).contains(u'a', Qt::CaseInsensitive);
    return kSession;
}

QString Formatting::time(Base::Instant instant) const
{
    return timeIn(m_model.calendar(), instant);
}

QString Formatting::timeIn(const KestCore::Calendar &calendar, Base::Instant instant) const
{
    const KestCore::LocalTime local = calendar.at(instant);
    if (isTwelveHours()) {
        const QString half = local.hour < 12 ? tr("am") : tr("pm");
        return digits(QStringLiteral("%1:%2 %3")
                          .arg((local.hour + 11) % 12 + 1)
                          .arg(local.minute, 2, 10, QLatin1Char{'0'})
                          .arg(half));
    }
    return digits(QStringLiteral("%1:%2")
                      .arg(local.hour, 2, 10, QLatin1Char{'0'})
                      .arg(local.minute, 2, 10, QLatin1Char{'0'}));
}

QString Formatting::date(Base::Instant instant) const
{
    const KestCore::LocalTime local = m_model.calendar().at(instant);
    const QDate date{local.year, local.month, local.day};
    const QString order =
        isRightToLeft() ? QStringLiteral("dddd، d MMMM") : QStringLiteral("dddd d MMMM");
    return digits(locale().toString(date, order));
}

QString Formatting::islamicDate(const KestCore::IslamicDate &date) const
{
    static constexpr std::array kEnglish{
        "Muharram", "Safar",   "Rabi I",  "Rabi II", "Jumada I",     "Jumada II",
        "Rajab",    "Sha‘ban", "Ramadan", "Shawwal", "Dhu al-Qa‘da", "Dhu al-Hijja"};
    static constexpr std::array kArabic{
        "محرم", "صفر",   "ربيع الأول", "ربيع الآخر", "جمادى الأولى", "جمادى الآخرة",
        "رجب",  "شعبان", "رمضان",      "شوال",       "ذو القعدة",    "ذو الحجة"};
    const auto &months = isRightToLeft() ? kArabic : kEnglish;
    const auto month = static_cast<std::size_t>(date.month - 1);
    return digits(QStringLiteral("%1 %2 %3")
                      .arg(date.day)
                      .arg(QString::fromUtf8(months.at(month)))
                      .arg(date.year));
}

QString Formatting::duration(double seconds) const
{
    const auto whole = static_cast<qint64>(std::ceil(std::max(seconds, 0.0)));
    const auto two = [](qint64 value) {
        return QStringLiteral("%1").arg(value, 2, 10, QLatin1Char{'0'});
    };
    const qint64 hours = whole / 3600;
    const qint64 minutes = whole / 60 % 60;
    const QString tail = two(whole % 60);
    return digits(hours > 0 ? QStringLiteral("%1:%2:%3").arg(hours).arg(two(minutes), tail)
                            : QStringLiteral("%1:%2").arg(minutes).arg(tail));
}

Countdown Formatting::countdown(double seconds) const
{
    constexpr qint64 kMostMinutes = 90; // beyond, hours and minutes are told
    const auto whole = static_cast<qint64>(std::ceil(std::max(seconds, 0.0)));
    if (whole < 60) {
        return {.unit = Countdown::Unit::seconds, .first = number(whole), .rest = {}};
    }
    const qint64 minutes = (whole + 59) / 60;
    if (minutes <= kMostMinutes) {
        return {.unit = Countdown::Unit::minutes, .first = number(minutes), .rest = {}};
    }
    return {.unit = Countdown::Unit::hours,
            .first = number(minutes / 60),
            .rest = digits(QStringLiteral("%1").arg(minutes % 60, 2, 10, QLatin1Char{'0'}))};
}

QString Formatting::remaining(double seconds) const
{
    const Countdown left = countdown(seconds);
    switch (left.unit) {
    case Countdown::Unit::seconds:
        return tr("%1 s").arg(left.first);
    case Countdown::Unit::minutes:
        return tr("%1 min").arg(left.first);
    case Countdown::Unit::hours:
        break;
    }
    return tr("%1 h %2").arg(left.first, left.rest);
}

} // namespace Velvetnook
