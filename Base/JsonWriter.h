// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Base64.h"
#include "Base/Instant.h"
#include "Base/Json.h"
#include "Base/SharedList.h"

#include <array>
#include <charconv>
#include <concepts>
#include <cstring>
#include <map>
#include <optional>
#include <set>

// The encoder behind json::encode. Include it only where a record's encoder is instantiated.
namespace Base::json
{

namespace detail
{

// ,"name": as one constant, so that a key costs one copy.
template <std::size_t N>
struct KeyText {
    std::array<char, N> chars{};
};

template <class T, std::size_t I>
consteval auto keyText()
{
    constexpr std::string_view kName = std::get<I>(jsonFields(Of<T>{})).name;
    KeyText<kName.size() + 4> text;
    std::size_t at = 0;
    for (const std::string_view piece :
         {std::string_view{",\""}, kName, std::string_view{"\":"}}) {
        for (const char c : piece) {
            text.chars[at++] = c;
        }
    }
    return text;
}

} // namespace detail

// Appends JSON to one growing buffer. A value that JSON cannot carry is remembered and
// reported at the end, since nothing of the text is used then.
class Writer
{
public:
    enum class SharedLists : std::uint8_t { written, leftOut };

    explicit Writer(SharedLists sharedLists = SharedLists::written) : m_sharedLists(sharedLists)
    {
    }
    // Takes all the memory that it may need at once, so that no part of a secret stays behind
    // in memory that was outgrown.
    explicit Writer(std::size_t room) : m_sharedLists(SharedLists::written)
    {
        m_text.reserve(room);
    }

    template <class T>
    void write(const T &value)
    {
        if constexpr (std::same_as<T, bool>) {
            literal(value ? "true" : "false");
        } else if constexpr (std::integral<T>) {
            integer(value);
        } else if constexpr (std::same_as<T, double>) {
            number(value);
        } else if constexpr (std::same_as<T, Instant>) {
            number(seconds2001(value));
        } else if constexpr (std::same_as<T, std::string>) {
            string(value);
        } else if constexpr (std::same_as<T, Bytes>) {
            bytes(value);
        } else if constexpr (TextEnum<T>) {
            string(textOf(value));
        } else if constexpr (std::same_as<T, RawJson>) {
            literal(value.text);
        } else if constexpr (detail::isA<T, OrNull>) {
            value.value ? write(*value.value) : literal("null");
        } else if constexpr (detail::isA<T, SharedList>) {
            sharedList(value);
        } else if constexpr (detail::isA<T, std::map>) {
            map(value);
        } else if constexpr (Record<T>) {
            record(value);
        } else {
            array(value);
        }
    }

    // The text, or why there is none. The writer is spent afterwards.
    [[nodiscard]] Result<std::string> finish();
    // The same, and nothing of the text stays behind in the writer.
    [[nodiscard]] Result<std::string> finishSecret();
    // The two halves around the list that was left out.
    [[nodiscard]] Result<EncodedAround> finishAround();

private:
    // Text is put together in a small piece that stays in the processor's cache and moves to
    // the whole when it is full: a growing whole would be cleared and copied again and again.
    static constexpr std::size_t kPieceSize = 16'384;

    char *room(std::size_t count)
    {
        if (kPieceSize - m_pieceSize < count) [[unlikely]] {
            flush();
        }
        return m_piece.data() + m_pieceSize;
    }
    void flush()
    {
        m_text.append(m_piece.data(), m_pieceSize);
        m_pieceSize = 0;
    }
    [[nodiscard]] Result<void> checkText() const;

    void literal(std::string_view text)
    {
        if (text.size() > kPieceSize) [[unlikely]] {
            flush();
            m_text += text;
            return;
        }
        std::memcpy(room(text.size()), text.data(), text.size());
        m_pieceSize += text.size();
    }
    void string(std::string_view text);
    void bytes(const Bytes &value);
    void escapedCharacter(char c);
    void number(double value);

    template <std::integral T>
    void integer(T value)
    {
        char *at = room(24);
        m_pieceSize += static_cast<std::size_t>(std::to_chars(at, at + 24, value).ptr - at);
    }

    template <class List>
    void array(const List &list)
    {
        literal("[");
        bool first = true;
        for (const auto &item : list) {
            if (!first) {
                literal(",");
            }
            first = false;
            write(item);
        }
        literal("]");
    }

    template <class T>
    void sharedList(const SharedList<T> &list)
    {
        if (m_sharedLists == SharedLists::written) {
            m_text.reserve(m_text.size() + list.size() * kUsualEntrySize);
            array(list);
            return;
        }
        m_cutAt = m_text.size() + m_pieceSize;
    }

    template <class Map>
    void map(const Map &entries)
    {
        literal("{");
        bool first = true;
        for (const auto &[key, value] : entries) {
            if (!first) {
                literal(",");
            }
            first = false;
            write(key);
            literal(":");
            write(value);
        }
        literal("}");
    }

    template <class T>
    void record(const T &value)
    {
        literal("{");
        [&]<std::size_t... I>(std::index_sequence<I...>) {
            constexpr auto kFields = jsonFields(Of<T>{});
            bool first = true;
            (member<T, I>(value.*(std::get<I>(kFields).member), first), ...);
        }(std::make_index_sequence<std::tuple_size_v<decltype(jsonFields(Of<T>{}))>>{});
        literal("}");
    }

    // A member that is absent is not written at all.
    template <class T, std::size_t I, class Member>
    void member(const Member &value, bool &first)
    {
        if constexpr (detail::isA<Member, std::optional>) {
            if (value) {
                member<T, I>(*value, first);
            }
        } else {
            static constexpr auto kKey = detail::keyText<T, I>();
            const std::size_t skipComma = first ? 1 : 0;
            literal({kKey.chars.data() + skipComma, kKey.chars.size() - skipComma});
            first = false;
            write(value);
        }
    }

    static constexpr std::size_t kUsualEntrySize = 128; // of a long list, so that it grows once

    SharedLists m_sharedLists;
    std::string m_text;
    std::array<char, kPieceSize> m_piece; // NOLINT(*-member-init): written before it is read
    std::size_t m_pieceSize = 0;
    std::optional<std::size_t> m_cutAt;
    bool m_hasNonFinite = false;
};

template <class T>
Result<std::string> encode(const T &value)
{
    Writer writer;
    writer.write(value);
    return writer.finish();
}

template <class T>
Result<std::string> encodeSecret(const T &value, std::size_t room)
{
    Writer writer{room};
    writer.write(value);
    return writer.finishSecret();
}

template <class T>
Result<EncodedAround> encodeAroundSharedList(const T &value)
{
    Writer writer{Writer::SharedLists::leftOut};
    writer.write(value);
    return writer.finishAround();
}

} // namespace Base::json
