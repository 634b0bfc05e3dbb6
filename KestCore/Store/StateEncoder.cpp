// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Store/StateEncoder.h"

namespace KestCore
{

Result<std::string_view> StateEncoder::encode(const NativeState &state)
{
    KEST_TRY(const auto around, json::encodeAroundSharedList(state));
    const auto &records = state.devotional.records;
    if (m_recordsSize == 0 || !records.sharesBlockWith(m_records)) {
        KEST_CHECK(encodeRecords(records));
    }
    m_body.replace(0, m_recordsAt, around.head);
    m_recordsAt = around.head.size();
    m_body.resize(m_recordsAt + m_recordsSize);
    m_body += around.tail;
    return m_body;
}

Result<void> StateEncoder::encodeRecords(const Base::SharedList<SessionRecord> &records)
{
    KEST_TRY(m_body, json::encode(records));
    m_recordsAt = 0;
    m_recordsSize = m_body.size();
    m_records = records;
    return {};
}

} // namespace KestCore
