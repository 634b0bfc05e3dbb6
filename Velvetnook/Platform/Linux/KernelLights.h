// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/Levels/LightWatch.h"

#include <QFileSystemWatcher>
#include <QString>

#include <map>

namespace Velvetnook
{

// From the kernel's own files. It wakes whoever waits for one when a key has changed the light,
// and when a program has; both are listened to, and nothing is asked again and again.
class KernelLights : public LightWatch
{
    Q_OBJECT

public:
    // `sys` is "/sys" or a folder that stands in for it.
    explicit KernelLights(const QString &sys, QObject *parent = nullptr);

private:
    struct Light {
        QString folder{};
        bool isScreen{};
        double share{};
    };

    void add(const QString &folder, bool isScreen, const QString &woken);
    void look(const QString &folder);

    QFileSystemWatcher m_written;
    std::map<QString, Light> m_lights; // by folder
};

} // namespace Velvetnook
