// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Settings/ClipboardPage.h"

#include "KestCore/Clipboard/ClipboardSettings.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Formatting.h"

#include <QVariantMap>

#include <algorithm>

namespace Velvetnook
{

namespace
{

constexpr const char *kExclusions = "clipboard.exclusions";
constexpr qsizetype kLongestName = 100;
constexpr qlonglong kMegabyte = 1'000'000;

QStringList exclusionsIn(const KestCore::Settings &settings)
{
    QStringList names;
    for (const std::string &name : KestCore::clipboardSettings(settings).exclusions) {
        names.push_back(QString::fromStdString(name));
    }
    return names;
}

} // namespace

bool ClipboardPage::records() const { return isOn("clipboard.enabled", false); }
bool ClipboardPage::paused() const { return isOn("clipboard.paused", false); }
bool ClipboardPage::pastes() const { return isOn("clipboard.pastes", true); }

QString ClipboardPage::days() const
{
    return QString::number(KestCore::clipboardSettings(model().state().settings).days);
}

QString ClipboardPage::count() const
{
    return QString::number(KestCore::clipboardSettings(model().state().settings).maxCount);
}

QString ClipboardPage::bytes() const
{
    return QString::number(KestCore::clipboardSettings(model().state().settings).maxBytes);
}

// A value that was set elsewhere stands among them too.
QVariantList ClipboardPage::numbers(std::span<const qlonglong> values, const QString &current,
                                    const std::function<QString(qlonglong)> &label) const
{
    std::vector<qlonglong> all{values.begin(), values.end()};
    if (std::ranges::find(all, current.toLongLong()) == all.end()) {
        all.push_back(current.toLongLong());
        std::ranges::sort(all);
    }
    QVariantList list;
    for (const qlonglong value : all) {
        list.push_back(QVariantMap{{QStringLiteral("value"), QString::number(value)},
                                   {QStringLiteral("label"), label(value)}});
    }
    return list;
}

QVariantList ClipboardPage::dayChoices() const
{
    constexpr qlonglong kDays[]{1, 7, 30, 90, 365};
    return numbers(kDays, days(), [this](qlonglong value) {
        return formatting().digits(tr("%n day(s)", nullptr, static_cast<int>(value)));
    });
}

QVariantList ClipboardPage::countChoices() const
{
    constexpr qlonglong kCounts[]{50, 200, 500, 1'000, 2'000};
    return numbers(kCounts, count(),
                   [this](qlonglong value) { return formatting().number(value); });
}

QVariantList ClipboardPage::byteChoices() const
{
    constexpr qlonglong kBytes[]{20 * kMegabyte, 50 * kMegabyte, 100 * kMegabyte,
                                 250 * kMegabyte, 1'000 * kMegabyte};
    return numbers(kBytes, bytes(), [this](qlonglong value) {
        return tr("%1 MB").arg(formatting().number(value / kMegabyte));
    });
}

QStringList ClipboardPage::exclusions() const { return exclusionsIn(model().state().settings); }

void ClipboardPage::setRecords(bool on) { set("clipboard.enabled", on); }
void ClipboardPage::setPaused(bool on) { set("clipboard.paused", on); }
void ClipboardPage::setPastes(bool on) { set("clipboard.pastes", on); }
void ClipboardPage::setDays(const QString &days) { set("clipboard.days", days); }
void ClipboardPage::setCount(const QString &count) { set("clipboard.maxCount", count); }
void ClipboardPage::setBytes(const QString &bytes) { set("clipboard.maxBytes", bytes); }

QStringList ClipboardPage::running() const
{
    QStringList names = m_applications ? m_applications() : QStringList{};
    const QStringList excluded = exclusions();
    names.erase(std::remove_if(names.begin(), names.end(),
                               [&](const QString &name) {
                                   return excluded.contains(name, Qt::CaseInsensitive);
                               }),
                names.end());
    return names;
}

bool ClipboardPage::addExclusion(const QString &name)
{
    const QString trimmed = name.trimmed();
    const bool isName =
        !trimmed.isEmpty() && trimmed.size() <= kLongestName && !trimmed.contains(u',');
    m_exclusionRefusal =
        isName ? QString{} : tr("The name of one application, without a comma");
    if (isName) {
        changeExclusions([trimmed](QStringList &names) {
            if (!names.contains(trimmed, Qt::CaseInsensitive)) {
                names.append(trimmed);
            }
        });
    }
    emit changed();
    return isName;
}

void ClipboardPage::removeExclusion(const QString &name)
{
    changeExclusions([name](QStringList &names) { names.removeAll(name); });
}

// The list as it is in the store at that moment: another change may be on its way.
void ClipboardPage::changeExclusions(std::function<void(QStringList &)> edit)
{
    model().changeState(
        [edit = std::move(edit)](KestCore::NativeState &state) -> Base::Result<void> {
            QStringList names = exclusionsIn(state.settings);
            edit(names);
            state.settings[kExclusions] = names.join(u',').toStdString();
            return {};
        });
}

} // namespace Velvetnook
