// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Platform/Launch.h"

#include <memory>
#include <optional>

namespace Velvetnook
{

class Activation;
class BusActivation;

// The name that the application has on the bus and for desktops; that of the build.
QString applicationId();

// Answers what needs no window: help, the version, the capabilities, and what nobody
// understands. The status to end with, or nothing when the application is to start.
std::optional<int> answerWithoutWindow(const Launch &launch, int argc, char **argv);

// On the session's bus, under the name of this build.
std::unique_ptr<BusActivation> makeActivation();

// Makes this start the one application, or asks the one that runs: then the status to end
// with.
std::optional<int> claim(Activation &activation, const Launch &launch);

} // namespace Velvetnook
