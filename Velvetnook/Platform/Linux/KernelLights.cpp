// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Linux/KernelLights.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSocketNotifier>

#include <algorithm>
#include <optional>

namespace Velvetnook
{

namespace
{

std::optional<double> numberIn(const QString &path)
{
    QFile file{path};
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    bool isNumber = false;
    const double number = file.read(32).trimmed().toDouble(&isNumber);
    return isNumber ? std::optional{number} : std::nullopt;
}

// Absent where the file says nothing, or there are no steps.
std::optional<double> shareOf(const QString &folder)
{
    const auto now = numberIn(folder + QStringLiteral("/brightness"));
    const auto most = numberIn(folder + QStringLiteral("/max_brightness"));
    if (!now || !most || *most <= 0) {
        return std::nullopt;
    }
    return std::clamp(*now / *most, 0.0, 1.0);
}

} // namespace

KernelLights::KernelLights(const QString &sys, QObject *parent) : LightWatch{parent}
{
    connect(&m_written, &QFileSystemWatcher::fileChanged, this,
            [this](const QString &path) { look(QFileInfo{path}.path()); });
    const auto folders = [&sys](const QString &kind) {
        const QDir folder{sys + QStringLiteral("/class/") + kind};
        QStringList paths;
        for (const QString &name : folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            paths.append(folder.filePath(name));
        }
        return paths;
    };
    for (const QString &folder : folders(QStringLiteral("backlight"))) {
        add(folder, true, QStringLiteral("actual_brightness"));
    }
    for (const QString &folder : folders(QStringLiteral("leds"))) {
        if (folder.contains(u"kbd_backlight")) {
            add(folder, false, QStringLiteral("brightness_hw_changed"));
        }
    }
}

void KernelLights::add(const QString &folder, bool isScreen, const QString &woken)
{
    const auto share = shareOf(folder);
    if (!share) {
        return;
    }
    m_lights[folder] = {.folder = folder, .isScreen = isScreen, .share = *share};
    m_written.addPath(folder + QStringLiteral("/brightness"));
    auto *file = new QFile{folder + u'/' + woken, this};
    if (!file->open(QIODevice::ReadOnly)) {
        delete file;
        return;
    }
    (void)file->readAll(); // the kernel tells only what comes after it was read
    auto *notifier = new QSocketNotifier{file->handle(), QSocketNotifier::Exception, this};
    connect(notifier, &QSocketNotifier::activated, this, [this, file, folder] {
        file->seek(0);
        (void)file->readAll();
        look(folder);
    });
}

void KernelLights::look(const QString &folder)
{
    const auto light = m_lights.find(folder);
    const auto share = shareOf(folder);
    if (light == m_lights.end() || !share || *share == light->second.share) {
        return;
    }
    light->second.share = *share;
    if (light->second.isScreen) {
        emit screenChanged(*share);
    } else {
        emit keyboardChanged(*share);
    }
}

} // namespace Velvetnook
