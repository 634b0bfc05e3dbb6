// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Base64.h"
#include "Base/Instant.h"
#include "Base/Json.h"
#include "Base/SharedList.h"

#include <simdjson.h>

#include <array>
#include <concepts>
#include <cstring>
#include <map>
#include <set>
#include <utility>

// The decoder behind json::decode. Include it only where a record's decoder is instantiated:
// the parser's header is large.
namespace Base::json
{

namespace ondemand = simdjson::ondemand;

namespace detail
{

template <class T>
inline constexpr bool isOptional = isA<T, std::optional>;

template <class T>
using FieldTuple = decltype(jsonFields(Of<T>{}));

template <class T>
inline constexpr std::size_t kFieldCount = std::tuple_size_v<FieldTuple<T>>;

template <class T>
inline constexpr auto kFieldNames = []<std::size_t... I>(std::index_sequence<I...>) {
    constexpr auto kFields = jsonFields(Of<T>{});
    return std::array<std::string_view, sizeof...(I)>{std::get<I>(kFields).name...};
}(std::make_index_sequence<kFieldCount<T>>{});

// One bit for each key that must be there.
template <class T>
inline constexpr std::uint64_t kRequired = []<std::size_t... I>(std::index_sequence<I...>) {
    static_assert(sizeof...(I) <= 64);
    constexpr auto kFields = jsonFields(Of<T>{});
    using Sample = T;
    return ((isOptional<std::remove_cvref_t<decltype(std::declval<Sample>().*
                                                     (std::get<I>(kFields).member))>>
                 ? std::uint64_t{0}
                 : std::uint64_t{1} << I) |
            ...);
}(std::make_index_sequence<kFieldCount<T>>{});

} // namespace detail

// Walks one document into records. Every read returns false after the first failure, whose
// place and reason `error` then tells.
class Reader
{
public:
    // The parser forgives a few escapes that make no valid text, so a document that has any
    // escape has its strings looked at again.
    explicit Reader(std::string_view document) : m_hasEscapes(document.contains('\\')) {}

    [[nodiscard]] KestError error() const;
    // Wipes the parser's copies of all texts that were read. While the parser is there.
    void wipeTexts();

    template <class T>
    bool readDocument(ondemand::document &document, T &out)
    {
        if constexpr (Record<T>) {
            ondemand::object object;
            return take(document.get_object(), object) && readObject(object, out) &&
                   atEnd(document);
        } else {
            ondemand::array array;
            return take(document.get_array(), array) && readArray(array, out) &&
                   atEnd(document);
        }
    }

private:
    static constexpr int kDeepestUnknown = 64;

    template <class T>
    bool read(ondemand::value value, T &out)
    {
        if constexpr (std::same_as<T, bool>) {
            return take(value.get_bool(), out);
        } else if constexpr (std::integral<T>) {
            return readInteger(value, out);
        } else if constexpr (std::same_as<T, double>) {
            return take(value.get_double(), out);
        } else if constexpr (std::same_as<T, Instant>) {
            double seconds = 0;
            const bool isRead = take(value.get_double(), seconds);
            out = fromSeconds2001(seconds);
            return isRead;
        } else if constexpr (std::same_as<T, std::string>) {
            std::string_view text;
            if (!readText(value, text)) {
                return false;
            }
            out = text;
            return true;
        } else if constexpr (std::same_as<T, Bytes>) {
            return readBytes(value, out);
        } else if constexpr (std::same_as<T, RawJson>) {
            return readRaw(value, out);
        } else if constexpr (TextEnum<T>) {
            return readEnum(value, out);
        } else if constexpr (detail::isOptional<T>) {
            return readOptional(value, out);
        } else if constexpr (detail::isA<T, std::map>) {
            return readMap(value, out);
        } else if constexpr (detail::isA<T, Numbers>) {
            return readNumbers(value, out.kept);
        } else if constexpr (Record<T>) {
            ondemand::object object;
            return take(value.get_object(), object) && readObject(object, out);
        } else {
            ondemand::array array;
            return take(value.get_array(), array) && readArray(array, out);
        }
    }

    template <std::integral T>
    bool readInteger(ondemand::value value, T &out)
    {
        using Wide = std::conditional_t<std::signed_integral<T>, std::int64_t, std::uint64_t>;
        Wide wide = 0;
        if constexpr (std::signed_integral<T>) {
            if (!take(value.get_int64(), wide)) {
                return false;
            }
        } else if (!take(value.get_uint64(), wide)) {
            return false;
        }
        if (!std::in_range<T>(wide)) {
            return fail("number does not fit");
        }
        out = static_cast<T>(wide);
        return true;
    }

    template <class T>
    bool readEnum(ondemand::value value, T &out)
    {
        std::string_view text;
        if (!readText(value, text)) {
            return false;
        }
        const auto known = fromText<T>(text);
        if (!known) {
            return fail("unknown word");
        }
        out = *known;
        return true;
    }

    template <class T>
    bool readOptional(ondemand::value value, std::optional<T> &out)
    {
        bool isNull = false;
        if (!take(value.is_null(), isNull)) {
            return false;
        }
        if (isNull) {
            out.reset();
            return true;
        }
        return read(value, out.emplace());
    }

    // Keys are texts, or the words of an enumeration.
    template <class Key, class T>
    bool readMap(ondemand::value value, std::map<Key, T> &out)
    {
        ondemand::object object;
        if (!take(value.get_object(), object)) {
            return false;
        }
        for (auto entry : object) {
            ondemand::field field;
            std::string_view key;
            if (!take(std::move(entry), field) || !take(field.unescaped_key(), key) ||
                !checkText(key)) {
                return false;
            }
            const std::string name{key};
            std::optional<Key> known;
            if constexpr (TextEnum<Key>) {
                known = fromText<Key>(name);
            } else {
                known = name;
            }
            if (!known) {
                return failAt(name, "unknown word");
            }
            const auto [place, isNew] = out.try_emplace(*std::move(known));
            if (!isNew) {
                return failAt(name, "key given twice");
            }
            if (!read(field.value(), place->second)) {
                return inside(name);
            }
        }
        return true;
    }

    template <Record Kept>
    bool readNumbers(ondemand::value value, Kept &out)
    {
        ondemand::object object;
        if (!take(value.get_object(), object)) {
            return false;
        }
        std::size_t expected = 0;
        for (auto entry : object) {
            ondemand::field field;
            std::size_t index = 0;
            double number = 0;
            if (!take(std::move(entry), field) || !findField<Kept>(field, expected, index)) {
                return false;
            }
            const bool isKept = index < detail::kFieldCount<Kept>;
            ondemand::value figure = field.value();
            bool isNull = false;
            if (!take(figure.is_null(), isNull) ||
                (!isNull && !take(figure.get_double(), number))) {
                return inside(isKept ? detail::kFieldNames<Kept>[index] : "unknown key");
            }
            if (isKept && !isNull && !keepNumber(index, number, out)) {
                return failAt(detail::kFieldNames<Kept>[index], "key given twice");
            }
            expected = isKept ? index + 1 : expected;
        }
        return true;
    }

    // False when there is one already.
    template <Record Kept>
    static bool keepNumber(std::size_t index, double number, Kept &out)
    {
        return [&]<std::size_t... I>(std::index_sequence<I...>) {
            constexpr auto kFields = jsonFields(Of<Kept>{});
            bool isNew = false;
            const auto keep = [&](std::optional<double> &place) {
                isNew = !place.has_value();
                place = number;
            };
            ((index == I ? keep(out.*(std::get<I>(kFields).member)) : void()), ...);
            return isNew;
        }(std::make_index_sequence<detail::kFieldCount<Kept>>{});
    }

    template <class T>
    bool readArray(ondemand::array array, SharedList<T> &out)
    {
        std::vector<T> items;
        if (!readArray(array, items)) {
            return false;
        }
        out = SharedList<T>{std::move(items)};
        return true;
    }

    template <class T>
    bool readArray(ondemand::array array, std::set<T> &out)
    {
        std::vector<T> items;
        if (!readArray(array, items)) {
            return false;
        }
        out = {items.begin(), items.end()};
        return true;
    }

    template <class T>
    bool readArray(ondemand::array array, std::vector<T> &out)
    {
        for (auto item : array) {
            ondemand::value value;
            if (!take(std::move(item), value) || !read(value, out.emplace_back())) {
                return inside(std::to_string(out.empty() ? 0 : out.size() - 1));
            }
        }
        return true;
    }

    template <Record T>
    bool readObject(ondemand::object object, T &out)
    {
        std::uint64_t seen = 0;
        std::size_t expected = 0;
        for (auto entry : object) {
            ondemand::field field;
            if (!take(std::move(entry), field)) {
                return false;
            }
            std::size_t index = 0;
            if (!findField<T>(field, expected, index)) {
                return false;
            }
            if (index == detail::kFieldCount<T>) {
                if (!skip(field.value(), 0)) {
                    return inside("unknown key");
                }
                continue;
            }
            const std::uint64_t bit = std::uint64_t{1} << index;
            if ((seen & bit) != 0) {
                return failAt(detail::kFieldNames<T>[index], "key given twice");
            }
            seen |= bit;
            expected = index + 1;
            if (!readMember(index, field.value(), out)) {
                return inside(detail::kFieldNames<T>[index]);
            }
        }
        if (const std::uint64_t missing = detail::kRequired<T> & ~seen; missing != 0) {
            const auto first = static_cast<std::size_t>(std::countr_zero(missing));
            return failAt(detail::kFieldNames<T>[first], "missing");
        }
        return true;
    }

    // Keys mostly come in the table's order, so the expected one is tried first, and as raw
    // bytes; an escaped key is unescaped before it counts as unknown (index = field count).
    template <Record T>
    bool findField(ondemand::field &field, std::size_t expected, std::size_t &index)
    {
        constexpr std::size_t kCount = detail::kFieldCount<T>;
        const char *raw = field.key().raw();
        const auto matchesRaw = [raw](std::string_view name) {
            return std::strncmp(raw, name.data(), name.size()) == 0 && raw[name.size()] == '"';
        };
        if (expected < kCount && matchesRaw(detail::kFieldNames<T>[expected])) {
            index = expected;
            return true;
        }
        for (index = 0; index < kCount; ++index) {
            if (matchesRaw(detail::kFieldNames<T>[index])) {
                return true;
            }
        }
        std::string_view key;
        if (!take(field.unescaped_key(), key) || !checkText(key)) {
            return false;
        }
        const auto &names = detail::kFieldNames<T>;
        index = static_cast<std::size_t>(std::ranges::find(names, key) - names.begin());
        return true;
    }

    template <Record T>
    bool readMember(std::size_t index, ondemand::value value, T &out)
    {
        return [&]<std::size_t... I>(std::index_sequence<I...>) {
            constexpr auto kFields = jsonFields(Of<T>{});
            bool isRead = false;
            static_cast<void>(
                ((index == I &&
                  (isRead = read(value, out.*(std::get<I>(kFields).member)), true)) ||
                 ...));
            return isRead;
        }(std::make_index_sequence<detail::kFieldCount<T>>{});
    }

    template <class Value, class Out>
    bool take(simdjson::simdjson_result<Value> &&result, Out &out)
    {
        if (const auto code = std::move(result).get(out); code != simdjson::SUCCESS) {
            return fail(code);
        }
        return true;
    }

    bool readText(ondemand::value value, std::string_view &out)
    {
        return take(value.get_string(), out) && checkText(out);
    }
    bool readBytes(ondemand::value value, Bytes &out);
    bool readRaw(ondemand::value value, RawJson &out);
    bool checkText(std::string_view text);
    bool skip(ondemand::value value, int depth);
    bool skipArray(ondemand::value value, int depth);
    bool skipObject(ondemand::value value, int depth);
    bool atEnd(ondemand::document &document);

    bool fail(std::string_view reason);
    bool fail(simdjson::error_code code);
    bool failAt(std::string_view key, std::string_view reason);
    bool inside(std::string_view key);

    bool m_hasEscapes;
    std::string_view m_texts; // the parser's memory for texts, as far as it is used
    std::string m_reason;
    std::string m_place;
};

// The parser for a document of this size: small documents share one, as making a parser
// costs more than reading them; a large one gets its own, so that nothing big stays behind.
class ParserLoan
{
public:
    explicit ParserLoan(std::size_t documentSize);
    ondemand::parser &operator*() { return m_own ? *m_own : shared(); }

private:
    static ondemand::parser &shared();
    std::unique_ptr<ondemand::parser> m_own;
};

namespace detail
{

template <class T>
Result<void> decodeInto(T &value, const PaddedText &text, Reader &reader,
                        ondemand::parser &parser)
{
    const std::string_view view = text.view();
    ondemand::document document;
    const auto code = parser.iterate(view.data(), view.size(), text.capacity()).get(document);
    if (code != simdjson::SUCCESS) {
        return std::unexpected(KestError::invalidData(simdjson::error_message(code)));
    }
    return reader.readDocument(document, value) ? Result<void>{}
                                                : std::unexpected(reader.error());
}

} // namespace detail

template <class T>
Result<T> decode(const PaddedText &text)
{
    Reader reader{text.view()};
    ParserLoan parser{text.view().size()};
    T value{};
    KEST_CHECK(detail::decodeInto(value, text, reader, *parser));
    return value;
}

// The answer is built where it is returned, as moving a short text leaves a copy behind.
template <class T>
Result<T> decodeSecret(const PaddedText &text)
{
    Reader reader{text.view()};
    ParserLoan parser{text.view().size()};
    Result<T> value;
    if (auto outcome = detail::decodeInto(*value, text, reader, *parser); !outcome) {
        wipe(*value);
        value = std::unexpected(std::move(outcome).error());
    }
    reader.wipeTexts();
    return value;
}

} // namespace Base::json
