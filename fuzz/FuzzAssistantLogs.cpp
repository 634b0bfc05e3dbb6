// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Assistants/LogFormat.h"
#include "Assistants/UsageLedger.h"
#include "Base/Text.h"

#include <cstdlib>

namespace
{

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

bool isShort(const std::string &name) { return name.size() <= 400; }

} // namespace

// Lines of a log, whichever tool wrote them. Whatever they say, counts stay within bounds and
// names stay short.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view bytes{reinterpret_cast<const char *>(data), size};
    static const auto kCalendar = KestCore::Calendar::inZone("UTC").value();
    const Base::Instant now = Base::fromSeconds1970(1'795'000'000);
    for (const auto *const format : Assistants::logFormats()) {
        Assistants::LogMemory memory;
        Assistants::UsageLedger ledger;
        std::int64_t uses = 0;
        for (const std::string_view line : Base::split(bytes, '\n')) {
            const Base::json::PaddedText text{line};
            (void)format->step(text, memory);
            const auto finding = format->read(text, memory);
            require(isShort(memory.session) && isShort(memory.folder) && isShort(memory.model));
            if (finding && finding->use && arePlausible(finding->use->tokens)) {
                require(isShort(finding->use->model));
                ledger.add(format->tool, memory.folder, *finding->use, std::to_string(uses++));
            }
        }
        for (const auto &tool : ledger.report(kCalendar, now, 100'000)) {
            std::int64_t answers = 0;
            for (const auto &day : tool.days) {
                require(total(day.tokens).value_or(0) >= 0);
                answers += day.answers;
            }
            require(answers <= uses);
        }
    }
    return 0;
}
