// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "PrayerCore/Coordinates.h"

#include "Base/JsonReader.h"
#include "Base/JsonWriter.h"

namespace Base::json
{

template Result<PrayerCore::Coordinates> decode(const PaddedText &);
template Result<std::string> encode(const PrayerCore::Coordinates &);

} // namespace Base::json
