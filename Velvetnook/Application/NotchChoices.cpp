// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/NotchChoices.h"

#include "Base/Text.h"
#include "KestCore/Surfaces/NotchInteraction.h"
#include "Velvetnook/Application/ApplicationModel.h"

namespace Velvetnook
{

double openDelayOf(const ApplicationModel &model)
{
    const auto seconds = Base::numberFrom<double>(model.setting("notch.openDelay"));
    return KestCore::usableOpenDelay(seconds.value_or(KestCore::kUsualOpenDelay));
}

std::optional<Base::Instant> endOfNotchPause(const ApplicationModel &model)
{
    const auto until = Base::numberFrom<double>(model.setting("notch.pausedUntil"));
    return until ? std::optional{Base::fromMilliseconds1970(*until)} : std::nullopt;
}

std::optional<Base::Instant> notchPausedUntil(const ApplicationModel &model)
{
    const auto until = endOfNotchPause(model);
    return until && *until > model.now() ? until : std::nullopt;
}

} // namespace Velvetnook
