// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/Json.h"
#include "KestCore/Tools/TypedConversion.h"
#include "KestCore/Tools/UnitNames.h"

#include <cstdint>
#include <cstdlib>

namespace
{

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

} // namespace

// Any line is a conversion between units of the table or none, and says which; the result of
// one between units of one category is read again as a number.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using KestCore::Units;
    const std::string_view line{reinterpret_cast<const char *>(data), size};
    const auto found = KestCore::typedConversion(line);
    const auto required = KestCore::requireConversion(line);
    require(found.has_value() == required.has_value());
    if (!found) {
        require(!required.error().message.empty());
        return 0;
    }
    require(*found == *required && found->text.size() < size);
    const auto *from = Units::find(found->from);
    require(from != nullptr && Units::find(found->to) != nullptr);
    require(from->category == found->category);
    for (const char *locale : {"en_US", "de_DE"}) {
        const auto result = Units::resultText(*found, locale);
        require(!result || Units::isValid(*found));
        if (result) {
            const KestCore::UnitConversion again{.category = found->category,
                                                 .from = found->to,
                                                 .to = found->from,
                                                 .text = *result};
            // The way back may pass the largest number by a rounding.
            require(Units::resultText(again, locale) || result->size() > 300);
        }
    }
    return 0;
}
