// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/DurationText.h"

#include "Velvetnook/Application/QtText.h"

#include <QRegularExpression>
#include <QStringList>

namespace Velvetnook
{

namespace
{

constexpr double kMinute = 60;

QString plain(const QString &typed)
{
    QString text = latinDigits(typed.trimmed().toLower());
    text.replace(u',', u'.');
    return text.replace(u'٫', u'.');
}

// Seconds of one of the unit; 0 for what is none.
double unitOf(const QString &word)
{
    static const QStringList kDays{QStringLiteral("d"), QStringLiteral("day"),
                                   QStringLiteral("days"), QStringLiteral("يوم"),
                                   QStringLiteral("ي")};
    static const QStringList kHours{QStringLiteral("h"),    QStringLiteral("hr"),
                                    QStringLiteral("hour"), QStringLiteral("hours"),
                                    QStringLiteral("ساعة"), QStringLiteral("س")};
    static const QStringList kMinutes{QString{},
                                      QStringLiteral("m"),
                                      QStringLiteral("min"),
                                      QStringLiteral("minute"),
                                      QStringLiteral("minutes"),
                                      QStringLiteral("دقيقة"),
                                      QStringLiteral("د")};
    static const QStringList kSeconds{QStringLiteral("s"),      QStringLiteral("sec"),
                                      QStringLiteral("second"), QStringLiteral("seconds"),
                                      QStringLiteral("ثانية"),  QStringLiteral("ث")};
    if (kDays.contains(word)) {
        return 24 * 60 * kMinute;
    }
    if (kHours.contains(word)) {
        return 60 * kMinute;
    }
    if (kMinutes.contains(word)) {
        return kMinute;
    }
    return kSeconds.contains(word) ? 1 : 0;
}

std::optional<double> fromClock(const QString &text)
{
    double seconds = 0;
    const QStringList parts = text.split(u':');
    for (const QString &part : parts) {
        bool isNumber = false;
        seconds = seconds * 60 + part.toUInt(&isNumber);
        if (!isNumber || parts.size() > 3) {
            return std::nullopt;
        }
    }
    return seconds;
}

} // namespace

std::optional<double> secondsFromText(const QString &text)
{
    const QString typed = plain(text);
    if (typed.contains(u':')) {
        return fromClock(typed);
    }
    static const QRegularExpression kPiece{
        QStringLiteral("\\G\\s*(\\d+(?:\\.\\d+)?)\\s*([^\\d\\s.]*)")};
    double seconds = 0;
    qsizetype end = 0;
    double finer = 0; // what a bare number after "1 h" counts in
    for (auto it = kPiece.globalMatch(typed); it.hasNext();) {
        const QRegularExpressionMatch piece = it.next();
        const QString word = piece.captured(2);
        const double unit = word.isEmpty() && finer > 0 ? finer : unitOf(word);
        if (unit == 0) {
            return std::nullopt;
        }
        seconds += piece.captured(1).toDouble() * unit;
        finer = unit > kMinute ? kMinute : 1;
        end = piece.capturedEnd();
    }
    return end > 0 && end == typed.size() ? std::optional{seconds} : std::nullopt;
}

} // namespace Velvetnook
