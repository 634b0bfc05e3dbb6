// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/Units.h"

#include "Base/JsonReader.h"
#include "Base/JsonWriter.h"
#include "Base/Text.h"

#include <unicode/dcfmtsym.h>
#include <unicode/numberformatter.h>

#include <algorithm>
#include <cmath>

template Base::Result<KestCore::UnitConversion>
Base::json::decode<KestCore::UnitConversion>(const Base::json::PaddedText &);
template Base::Result<std::string> Base::json::encode(const KestCore::UnitConversion &);
template Base::Result<std::vector<KestCore::UnitConversion>>
Base::json::decode<std::vector<KestCore::UnitConversion>>(const Base::json::PaddedText &);
template Base::Result<std::string>
Base::json::encode(const std::vector<KestCore::UnitConversion> &);

namespace KestCore
{

namespace
{

// The knot is kept as it is written here, which is not quite 1852/3600.
constexpr UnitDefinition kUnits[] = {
    {"m", "Length", 1, 0},
    {"km", "Length", 1000, 0},
    {"cm", "Length", 0.01, 0},
    {"mm", "Length", 0.001, 0},
    {"in", "Length", 0.0254, 0},
    {"ft", "Length", 0.3048, 0},
    {"mi", "Length", 1609.344, 0},
    {"kg", "Mass", 1, 0},
    {"g", "Mass", 0.001, 0},
    {"lb", "Mass", 0.45359237, 0},
    {"oz", "Mass", 0.028349523125, 0},
    {"°C", "Temperature", 1, 273.15},
    {"°F", "Temperature", 5.0 / 9.0, 255.3722222222222},
    {"K", "Temperature", 1, 0},
    {"m²", "Area", 1, 0},
    {"km²", "Area", 1'000'000, 0},
    {"ft²", "Area", 0.09290304, 0},
    {"acre", "Area", 4046.8564224, 0},
    {"L", "Volume", 1, 0},
    {"mL", "Volume", 0.001, 0},
    {"US gal", "Volume", 3.785411784, 0},
    {"UK gal", "Volume", 4.54609, 0},
    {"m/s", "Speed", 1, 0},
    {"km/h", "Speed", 1 / 3.6, 0},
    {"mph", "Speed", 0.44704, 0},
    {"kn", "Speed", 0.514444444444, 0},
    {"B", "Data", 1, 0},
    {"kB", "Data", 1000, 0},
    {"MB", "Data", 1'000'000, 0},
    {"GB", "Data", 1'000'000'000, 0},
    {"KiB", "Data", 1024, 0},
    {"MiB", "Data", 1'048'576, 0},
    {"GiB", "Data", 1'073'741'824, 0},
};

std::string decimalSeparator(const icu::Locale &locale)
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::DecimalFormatSymbols symbols{locale, status};
    std::string separator;
    if (U_SUCCESS(status) != 0) {
        symbols.getConstSymbol(icu::DecimalFormatSymbols::kDecimalSeparatorSymbol)
            .toUTF8String(separator);
    }
    return separator.empty() ? "." : separator;
}

std::optional<double> typedNumber(std::string_view text, const icu::Locale &locale)
{
    std::string number{Base::trimmed(text)};
    Base::replaceAll(number, decimalSeparator(locale), ".");
    return Base::numberFrom<double>(number);
}

std::optional<std::string> formatted(double value, const icu::Locale &locale)
{
    UErrorCode status = U_ZERO_ERROR;
    std::string text;
    icu::number::NumberFormatter::withLocale(locale)
        .precision(icu::number::Precision::maxSignificantDigits(12))
        .roundingMode(UNUM_ROUND_HALFEVEN)
        .grouping(UNUM_GROUPING_OFF)
        .formatDouble(value, status)
        .toString(status)
        .toUTF8String(text);
    return U_SUCCESS(status) != 0 ? std::optional{text} : std::nullopt;
}

} // namespace

std::span<const UnitDefinition> Units::all() { return kUnits; }

const UnitDefinition *Units::find(std::string_view id)
{
    const auto *unit = std::ranges::find(kUnits, id, &UnitDefinition::id);
    return unit == std::end(kUnits) ? nullptr : unit;
}

bool Units::isValid(const UnitConversion &conversion)
{
    const UnitDefinition *from = find(conversion.from);
    const UnitDefinition *to = find(conversion.to);
    return from != nullptr && to != nullptr && from->category == conversion.category &&
           to->category == conversion.category;
}

Result<double> Units::convert(std::string_view fromId, std::string_view toId, double value)
{
    const auto failure = std::unexpected(KestError::invalidData(std::string{kCannotConvert}));
    const UnitDefinition *from = find(fromId);
    const UnitDefinition *to = find(toId);
    if (!std::isfinite(value) || from == nullptr || to == nullptr ||
        from->category != to->category) {
        return failure;
    }
    const double result = (value * from->factor + from->offset - to->offset) / to->factor;
    if (!std::isfinite(result)) {
        return failure;
    }
    return result;
}

std::optional<std::string> Units::resultText(const UnitConversion &conversion,
                                             const std::string &localeName)
{
    const auto locale = icu::Locale::createCanonical(localeName.c_str());
    const auto value = typedNumber(conversion.text, locale);
    if (!isValid(conversion) || !value) {
        return std::nullopt;
    }
    const auto result = convert(conversion.from, conversion.to, *value);
    if (!result) {
        return std::nullopt;
    }
    // Zero has no sign for a reader.
    return formatted(*result == 0 ? 0.0 : *result, locale);
}

} // namespace KestCore
