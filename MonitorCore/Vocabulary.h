// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Json.h"
#include "Base/Result.h"

// The words of Base that every file of this module uses.
namespace MonitorCore
{

namespace json = Base::json;

using Base::Of;
using Base::Result;

} // namespace MonitorCore
