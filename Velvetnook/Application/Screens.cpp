// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/Screens.h"

#include <QByteArray>
#include <QGuiApplication>
#include <QScreen>

namespace Velvetnook
{

std::uint32_t screenId(const QScreen &screen)
{
    const QString serial = screen.serialNumber();
    const QByteArray named = (screen.manufacturer() + u'\n' + screen.model() + u'\n' +
                              (serial.isEmpty() ? screen.name() : serial))
                                 .toUtf8();
    // FNV-1a: the same in every build and on every machine, as it is stored.
    std::uint32_t hash = 2'166'136'261U;
    for (const char byte : named) {
        hash = (hash ^ static_cast<unsigned char>(byte)) * 16'777'619U;
    }
    return hash;
}

QScreen *chosenScreen(std::optional<std::uint32_t> id)
{
    if (id) {
        for (QScreen *screen : QGuiApplication::screens()) {
            if (screenId(*screen) == *id) {
                return screen;
            }
        }
    }
    return QGuiApplication::primaryScreen();
}

} // namespace Velvetnook
