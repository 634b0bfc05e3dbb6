// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/EnumText.h"
#include "Base/Result.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

// Records and JSON. A record declares its keys once, beside the struct:
//
//     consteval auto jsonFields(Of<Pin>)
//     {
//         return std::tuple{json::Field{"tool", &Pin::tool}, json::Field{"item", &Pin::item}};
//     }
//     static_assert(json::coversAllMembers<Pin>());
//
// and its source file instantiates `encode` and `decode` from JsonWriter.h and JsonReader.h.
namespace Base
{

using Bytes = std::vector<std::uint8_t>;

} // namespace Base

namespace Base::json
{

template <class Record, class Member>
struct Field {
    std::string_view name;
    Member Record::*member;
};

// An optional that is written as null when it is absent, for documents that promise the key.
template <class T>
struct OrNull {
    std::optional<T> value{};

    bool operator==(const OrNull &) const = default;
};

// An object or array that stays as it is written, for a member that is too large to be held
// decoded or that has rules of its own. Shows the document, which must outlive it.
struct RawJson {
    std::string_view text{};
};

// An object whose values are all numbers, or null as if absent, under whatever keys, of which
// those are kept that the record names; its members are optional doubles.
template <class Kept>
struct Numbers {
    Kept kept{};
};

template <class T>
concept Record = std::is_class_v<T> && requires { jsonFields(Of<T>{}); };

namespace detail
{

template <class T, template <class...> class Template>
inline constexpr bool isA = false;
template <template <class...> class Template, class... Args>
inline constexpr bool isA<Template<Args...>, Template> = true;

// Only ever named in unevaluated code; the body is there to keep compilers from asking.
struct ConvertsToAnything {
    template <class T>
    constexpr operator T() const noexcept // NOLINT(*-explicit-*): it must convert silently
    {
        std::unreachable();
    }
};

template <class T, class... Probes>
consteval std::size_t memberCount()
{
    if constexpr (requires { T{Probes{}..., ConvertsToAnything{}}; }) {
        return memberCount<T, Probes..., ConvertsToAnything>();
    } else {
        return sizeof...(Probes);
    }
}

} // namespace detail

// Whether the field table has a row for each member: a forgotten row would lose data
// silently, so every record asserts this.
template <Record T>
consteval bool coversAllMembers()
{
    return detail::memberCount<T>() == std::tuple_size_v<decltype(jsonFields(Of<T>{}))>;
}

// Text with room behind it, as the parser reads in whole vector registers.
class PaddedText
{
public:
    static constexpr std::size_t kPadding = 64;

    PaddedText() = default;
    explicit PaddedText(std::string text) : m_text(std::move(text))
    {
        m_text.reserve(m_text.size() + kPadding);
    }
    explicit PaddedText(std::string_view text) { assign(text); }

    void assign(std::string_view text)
    {
        m_text.reserve(text.size() + kPadding);
        m_text.assign(text);
    }
    std::string_view view() const { return m_text; }
    // The text back, for a caller that must wipe it.
    std::string release() { return std::move(m_text); }
    std::size_t capacity() const { return m_text.capacity(); }

private:
    std::string m_text;
};

// The record as one JSON document, keys in the order of the table. Absent optionals are left
// out. Fails with invalidData for a number that is not finite and for text that is not UTF-8.
template <class T>
[[nodiscard]] Result<std::string> encode(const T &value);

// The same for a record that is secret: no trace of it stays in memory but the answer, which
// the caller wipes. `room` is at least the document's size.
template <class T>
[[nodiscard]] Result<std::string> encodeSecret(const T &value, std::size_t room);

// The document cut where its one SharedList stands, for a caller that keeps that list's
// text from an earlier encoding.
struct EncodedAround {
    std::string head{};
    std::string tail{};
};
template <class T>
[[nodiscard]] Result<EncodedAround> encodeAroundSharedList(const T &value);

// Reads one JSON document whatever the order of its keys; keys that the record does not know
// are checked as JSON and passed over. Fails with invalidData, naming the place, for a
// missing required key, a key given twice, a wrong type, a number that does not fit, text
// that is not UTF-8 and anything behind the document.
template <class T>
[[nodiscard]] Result<T> decode(const PaddedText &text);

// The same for a record that is secret and has a `wipe`: no trace of it stays in memory but
// the text and the answer, which the caller wipes.
template <class T>
[[nodiscard]] Result<T> decodeSecret(const PaddedText &text);

template <class T>
[[nodiscard]] Result<T> decode(std::string_view text)
{
    return decode<T>(PaddedText{text});
}

// Hands over the items of an array, which must be objects, one after the other. An item is
// only cut out here, not checked: that is for its own decoder. `array` comes from a decoded
// document. Fails with invalidData, or as `take` does.
using ItemTaker = std::function<Result<void>(const PaddedText &)>;
[[nodiscard]] Result<void> forEachItem(const RawJson &array, const ItemTaker &take);

} // namespace Base::json
