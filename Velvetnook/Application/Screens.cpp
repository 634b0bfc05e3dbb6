// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/Screens.h"

#include "Velvetnook/Application/ScreenIdentity.h"

#include <QGuiApplication>

namespace Velvetnook
{

QScreen *chosenScreen(std::optional<std::uint32_t> id)
{
    for (QScreen *screen : QGuiApplication::screens()) {
        if (id && identityOf(*screen) == *id) {
            return screen;
        }
    }
    return QGuiApplication::primaryScreen();
}

} // namespace Velvetnook
