// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "CalendarFiles/SourceCheck.h"
#include "KestCore/Tools/CalendarSources.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/ViewModels/CalendarPageViewModel.h"

#include <QDir>
#include <QPointer>

// What the view model of the calendar does to the list of the user's files.
namespace Velvetnook
{

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
            emit told(tr("Taken off the list; the file stays"),
                      [this, path] { store(path.toStdString()); });
        });
}

} // namespace Velvetnook
