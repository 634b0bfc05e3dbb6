// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

namespace Velvetnook
{

class App;
class ApplicationModel;
class GlobalKeys;

// Opens what a key summons, and keeps the page on which keys are chosen told of them. While one
// is typed there, none summons anything.
void followKeys(GlobalKeys &keys, ApplicationModel &model, App &app);

} // namespace Velvetnook
