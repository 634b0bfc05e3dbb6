// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "CalendarFiles/SourceCheck.h"
#include "KestCore/Tools/CalendarSources.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/ViewModels/CalendarPageViewModel.h"

#include <QDir>
#include <QLocale>
#include <QPointer>

// What the view model of the calendar does to its settings: the list of the user's files and
// the first day of the week.
namespace Velvetnook
{

namespace
{

constexpr const char *kWeekStart = "calendar.weekStart";

} // namespace

QString CalendarPageViewModel::weekStart() const
{
    const auto chosen = m_model.setting(kWeekStart);
    return QString::fromUtf8(chosen.data(), static_cast<qsizetype>(chosen.size()));
}

void CalendarPageViewModel::setWeekStart(const QString &day)
{
    if (day.isEmpty()) {
        m_model.removeSetting(kWeekStart);
    } else {
        m_model.changeSetting(kWeekStart, day.toStdString());
    }
}

QVariantList CalendarPageViewModel::weekStarts() const
{
    const auto option = [](const char *value, const QString &label) {
        return QVariantMap{{QStringLiteral("value"), QLatin1String{value}},
                           {QStringLiteral("label"), label}};
    };
    const QLocale locale = m_formatting.locale();
    return {option("", tr("As in my country")),
            option("monday", locale.standaloneDayName(Qt::Monday)),
            option("saturday", locale.standaloneDayName(Qt::Saturday)),
            option("sunday", locale.standaloneDayName(Qt::Sunday))};
}

void CalendarPageViewModel::refuse(const QString &reason)
{
    m_isAdding = false;
    m_refusal = reason;
    emit refusalChanged();
}

void CalendarPageViewModel::dropRefusal()
{
    if (!m_refusal.isEmpty()) {
        refuse({});
    }
}

void CalendarPageViewModel::addSourceUrl(const QUrl &url)
{
    if (url.isLocalFile()) {
        addSource(url.toLocalFile());
    } else {
        refuse(tr("Only files of this computer can be added."));
    }
}

void CalendarPageViewModel::addSource(const QString &typed)
{
    QString path = typed.trimmed();
    if (path == u"~" || path.startsWith(u"~/")) {
        path = QDir::homePath() + path.mid(1);
    }
    if (!QDir::isAbsolutePath(path)) {
        refuse(tr("Write the whole path, such as ~/calendars"));
        return;
    }
    m_isAdding = true;
    m_refusal.clear();
    emit refusalChanged();
    m_side.ask(
        this,
        [typed = path.toStdString()](CalendarReader &) -> Result<std::string> {
            KEST_TRY(std::string whole, CalendarFiles::wholePath(typed));
            KEST_CHECK(CalendarFiles::checkSource(whole));
            return whole;
        },
        [this](Result<std::string> whole) {
            if (whole) {
                store(*whole);
            } else {
                refuse(engineText(whole.error().message));
            }
        });
}

void CalendarPageViewModel::store(const std::string &path)
{
    m_model.changeState(
        [path](KestCore::NativeState &state) {
            return KestCore::addCalendarSource(state.settings, path);
        },
        [self = QPointer{this}](const Result<void> &result) {
            if (!self) {
                return;
            }
            self->refuse(result ? QString{} : engineText(result.error().message));
            if (result) {
                emit self->added();
            }
        });
}

void CalendarPageViewModel::removeSource(const QString &path)
{
    m_model.changeState(
        [path = path.toStdString()](KestCore::NativeState &state) {
            return KestCore::removeCalendarSource(state.settings, path);
        },
        [this, self = QPointer{this}, path](const Result<void> &result) {
            if (!self) {
                return;
            }
            if (!result) {
                m_model.say(engineText(result.error().message));
                return;
            }
            // Nothing of the form: something may be typed there.
            emit told(tr("Taken off the list; the file stays"), [this, path] {
                m_model.changeState([path = path.toStdString()](KestCore::NativeState &state) {
                    return KestCore::addCalendarSource(state.settings, path);
                });
            });
        });
}

} // namespace Velvetnook
