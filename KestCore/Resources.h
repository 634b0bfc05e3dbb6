// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Fault.h"
#include "Base/ResourceBundle.h"
#include "KestCore/Vocabulary.h"

#include <string>
#include <string_view>

namespace KestCore
{

// The bundle of this module's JSON documents, found once.
const Base::ResourceBundle &coreBundle();

// The resource NAME.json as a T. There is no fallback for a broken build: a missing or
// undecodable resource ends the process with a message that names `source`.
template <class T>
T decodeResource(std::string_view name, std::string_view source)
{
    auto decoded = json::decode<T>(coreBundle().read(name, "json", source));
    if (!decoded) {
        Base::fatalFault(source, "the resource " + std::string{name} +
                                     ".json is broken: " + decoded.error().message);
    }
    return *std::move(decoded);
}

} // namespace KestCore
