// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/MonitorSnapshot.h"

#include "Base/JsonReader.h"
#include "Base/JsonWriter.h"
#include "MonitorCore/AudioApplication.h"

namespace Base::json
{

using namespace MonitorCore;
template Result<MetricReading> decode(const PaddedText &);
template Result<std::string> encode(const MetricReading &);
template Result<std::string> encode(const MonitorSnapshot &);
template Result<std::string> encode(const AudioApplication &);

} // namespace Base::json
