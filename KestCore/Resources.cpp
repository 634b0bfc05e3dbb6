// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Resources.h"

namespace KestCore
{

const Base::ResourceBundle &coreBundle()
{
    static const auto kBundle = Base::ResourceBundle::find("KestNative_KestCore");
    return kBundle;
}

} // namespace KestCore
