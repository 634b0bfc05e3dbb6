// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Json.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Base
{

// Standard alphabet with padding, one line.
std::string toBase64(std::span<const std::uint8_t> bytes);

// The same into memory of the caller's, who has room for base64Size characters there.
constexpr std::size_t base64Size(std::size_t byteCount) { return (byteCount + 2) / 3 * 4; }
void writeBase64(std::span<const std::uint8_t> bytes, char *out);

// Nothing for a text that is not exactly what toBase64 writes: a foreign character, a line
// break, missing padding or padding bits that are not zero.
std::optional<Bytes> fromBase64(std::string_view text);

} // namespace Base
