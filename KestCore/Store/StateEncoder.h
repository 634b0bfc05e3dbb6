// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Models/NativeState.h"

#include <string>
#include <string_view>

namespace KestCore
{

// Encodes one state after another. Finished sessions are nearly all of a long-used state and
// a count does not touch them, so their text stays in place and only what stands around it
// is written anew.
class StateEncoder
{
public:
    // The state as JSON; valid until the next call. Fails as json::encode does.
    [[nodiscard]] Result<std::string_view> encode(const NativeState &state);

private:
    [[nodiscard]] Result<void> encodeRecords(const Base::SharedList<SessionRecord> &records);

    std::string m_body;
    std::size_t m_recordsAt = 0;
    std::size_t m_recordsSize = 0;
    Base::SharedList<SessionRecord> m_records; // whose text m_body holds
};

} // namespace KestCore
