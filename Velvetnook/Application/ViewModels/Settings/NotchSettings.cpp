// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Settings/NotchSettings.h"

#include "Base/Text.h"
#include "KestCore/Models/DevotionalState.h"
#include "KestCore/Surfaces/NotchInteraction.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/NotchChoices.h"
#include "Velvetnook/Application/ScreenIdentity.h"

#include <QGuiApplication>

#include <algorithm>
#include <cmath>

namespace Velvetnook
{

namespace
{

constexpr qsizetype kLongestName = 100;

// Null where there are no screens at all, as in a program without a desktop.
const QGuiApplication *desktop()
{
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance());
}

QStringList exclusionsIn(const QString &stored)
{
    return stored.split(u',', Qt::SkipEmptyParts);
}

} // namespace

NotchSettings::NotchSettings(ApplicationModel &model, const Formatting &formatting,
                             QObject *parent)
    : SettingsPage{model, formatting, parent}, m_pauseToldAt{model.now()}
{
    if (const QGuiApplication *application = desktop(); application != nullptr) {
        connect(application, &QGuiApplication::screenAdded, this,
                &NotchSettings::screensChanged);
        connect(application, &QGuiApplication::screenRemoved, this,
                &NotchSettings::screensChanged);
    }
    // An end that passed before the clock asked, as during a sleep, is told nevertheless.
    model.clock().add(
        this,
        [this](Base::Instant) -> std::optional<Base::Instant> {
            const auto until = endOfNotchPause(this->model());
            return until && *until > m_pauseToldAt ? until : std::nullopt;
        },
        [this](Base::Instant now) {
            m_pauseToldAt = now;
            emit changed();
        });
}

bool NotchSettings::pinEnabled() const { return preferences().pinEnabled; }
QString NotchSettings::pinSize() const { return QString::fromStdString(preferences().pinSize); }
QString NotchSettings::pinMode() const { return QString::fromStdString(preferences().pinMode); }

QString NotchSettings::pinDisplay() const
{
    return QString::fromStdString(preferences().pinDisplay);
}

QVariantList NotchSettings::pinSizes() const
{
    const Choice choices[]{
        {"mini", tr("Mini")}, {"compact", tr("Compact")}, {"comfortable", tr("Comfortable")}};
    return options(choices);
}

QVariantList NotchSettings::pinDisplays() const
{
    const Choice choices[]{{"arabic", tr("Arabic")},
                           {"transliteration", tr("Transliteration")},
                           {"meaning", tr("Meaning")}};
    return options(choices);
}

QVariantList NotchSettings::pinModes() const
{
    const Choice choices[]{
        {"single", tr("One phrase")}, {"favourites", tr("Favourites")}, {"daily", tr("Daily")}};
    return options(choices);
}

double NotchSettings::openDelay() const { return openDelayOf(model()); }

QString NotchSettings::openDelayText() const
{
    return tr("%1 s").arg(formatting().decimal(openDelay(), 2));
}

bool NotchSettings::hiddenAtRest() const { return !isOn("notch.compactWhenIdle", true); }

bool NotchSettings::overlay() const { return isOn("overlay.enabled", false); }

QString NotchSettings::screen() const
{
    const auto &chosen = model().state().displayID;
    return chosen ? QString::number(*chosen) : QString{};
}

QVariantList NotchSettings::screens() const
{
    QVariantList list = options(std::vector<Choice>{{"", tr("Main screen")}});
    bool isThere = screen().isEmpty();
    if (desktop() != nullptr) {
        for (const QScreen *each : QGuiApplication::screens()) {
            const QString id = QString::number(identityOf(*each));
            isThere = isThere || id == screen();
            const QString title =
                each->model().isEmpty()
                    ? each->name()
                    : QStringLiteral("%1 · %2").arg(each->model(), each->name());
            list.push_back(
                QVariantMap{{QStringLiteral("value"), id}, {QStringLiteral("label"), title}});
        }
    }
    if (!isThere) {
        list.push_back(QVariantMap{{QStringLiteral("value"), screen()},
                                   {QStringLiteral("label"), tr("Not connected")}});
    }
    return list;
}

QStringList NotchSettings::exclusions() const
{
    return exclusionsIn(setting("notch.exclusions", ""));
}

bool NotchSettings::isPaused() const { return notchPausedUntil(model()).has_value(); }

QString NotchSettings::pausedText() const
{
    const auto end = notchPausedUntil(model());
    if (!end) {
        return tr("The strip keeps away for a while.");
    }
    const auto &calendar = model().calendar();
    return calendar.dayNumber(*end) == calendar.dayNumber(model().now())
               ? tr("Paused until %1").arg(formatting().time(*end))
               : tr("Paused until tomorrow");
}

void NotchSettings::setPinEnabled(bool on)
{
    changePreferences([on](KestCore::Preferences &chosen) { chosen.pinEnabled = on; });
}

void NotchSettings::setPinSize(const QString &value)
{
    changePreferences(
        [text = value.toStdString()](KestCore::Preferences &chosen) { chosen.pinSize = text; });
}

void NotchSettings::setPinDisplay(const QString &value)
{
    changePreferences([text = value.toStdString()](KestCore::Preferences &chosen) {
        chosen.pinDisplay = text;
    });
}

void NotchSettings::setPinMode(const QString &value)
{
    changePreferences(
        [text = value.toStdString()](KestCore::Preferences &chosen) { chosen.pinMode = text; });
}

void NotchSettings::setOpenDelay(double seconds)
{
    set("notch.openDelay", QString::number(KestCore::usableOpenDelay(seconds), 'f', 2));
}

void NotchSettings::setHiddenAtRest(bool on) { set("notch.compactWhenIdle", !on); }

void NotchSettings::setOverlay(bool on) { set("overlay.enabled", on); }

void NotchSettings::setScreen(const QString &value)
{
    bool isNumber = false;
    const std::uint32_t id = value.toUInt(&isNumber);
    model().changeState([=](KestCore::NativeState &state) -> Result<void> {
        state.displayID = isNumber ? std::optional{id} : std::nullopt;
        return {};
    });
}

bool NotchSettings::addExclusion(const QString &name)
{
    const QString trimmed = name.trimmed();
    const bool isName =
        !trimmed.isEmpty() && trimmed.size() <= kLongestName && !trimmed.contains(u',');
    m_exclusionRefusal =
        isName ? QString{} : tr("The name of one application, without a comma");
    if (isName && !exclusions().contains(trimmed, Qt::CaseInsensitive)) {
        changeExclusions([trimmed](QStringList &names) {
            if (!names.contains(trimmed, Qt::CaseInsensitive)) {
                names.append(trimmed);
            }
        });
    }
    emit changed();
    return isName;
}

void NotchSettings::removeExclusion(const QString &name)
{
    changeExclusions([name](QStringList &names) { names.removeAll(name); });
}

// The list as it is in the store at that moment: another change may be on its way.
void NotchSettings::changeExclusions(std::function<void(QStringList &)> edit)
{
    model().changeState([edit = std::move(edit)](KestCore::NativeState &state) -> Result<void> {
        std::string &stored = state.settings["notch.exclusions"];
        QStringList names = exclusionsIn(QString::fromStdString(stored));
        edit(names);
        stored = names.join(u',').toStdString();
        return {};
    });
}

void NotchSettings::pauseForMinutes(int minutes)
{
    pauseUntil(Base::milliseconds1970(model().now() + Base::Seconds{minutes * 60.0}));
}

void NotchSettings::pauseUntilTomorrow()
{
    pauseUntil(Base::milliseconds1970(model().calendar().nextDateChange(model().now())));
}

void NotchSettings::pauseUntil(double milliseconds)
{
    set("notch.pausedUntil", QString::number(std::ceil(milliseconds), 'f', 0));
}

void NotchSettings::resume() { model().removeSetting("notch.pausedUntil"); }

} // namespace Velvetnook
