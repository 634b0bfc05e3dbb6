// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/JsonReader.h"

#include "Base/Secret.h"

namespace Base::json
{

namespace
{

constexpr std::size_t kLargeDocument = std::size_t{64} * 1024;
constexpr std::size_t kParserStep = 64; // at most so far beyond a text the parser writes

} // namespace

KestError Reader::error() const
{
    return KestError::invalidData(m_place.empty() ? m_reason : m_place + ": " + m_reason);
}

bool Reader::readBytes(ondemand::value value, Bytes &out)
{
    std::string_view text;
    if (m_hasEscapes) {
        if (!readText(value, text)) {
            return false;
        }
    } else {
        // Large bytes are decoded where they stand, not copied into the parser's memory first.
        text = value.raw_json_token();
        ondemand::raw_json_string string;
        if (!take(value.get_raw_json_string(), string)) {
            return false;
        }
        text.remove_prefix(1);
        text = text.substr(0, text.rfind('"'));
    }
    auto bytes = fromBase64(text);
    if (!bytes) {
        return fail("not Base64");
    }
    out = *std::move(bytes);
    return true;
}

bool Reader::readRaw(ondemand::value value, RawJson &out)
{
    ondemand::json_type type{};
    if (!take(value.type(), type)) {
        return false;
    }
    if (type == ondemand::json_type::array) {
        ondemand::array array;
        return take(value.get_array(), array) && take(array.raw_json(), out.text);
    }
    ondemand::object object;
    return take(value.get_object(), object) && take(object.raw_json(), out.text);
}

void Reader::wipeTexts()
{
    if (!m_texts.empty()) {
        OPENSSL_cleanse(const_cast<char *>(m_texts.data()), m_texts.size() + kParserStep);
        m_texts = {};
    }
}

bool Reader::checkText(std::string_view text)
{
    // The parser puts one text behind the other.
    const char *const begin = m_texts.empty() ? text.data() : m_texts.data();
    m_texts = {begin, static_cast<std::size_t>(text.data() + text.size() - begin)};
    if (m_hasEscapes && !simdjson::validate_utf8(text)) {
        return fail("text is not valid UTF-8");
    }
    return true;
}

// What the record does not know must still be JSON, or a damaged document would pass.
bool Reader::skip(ondemand::value value, int depth)
{
    if (depth > kDeepestUnknown) {
        return fail("nested too deeply");
    }
    ondemand::json_type type{};
    if (!take(value.type(), type)) {
        return false;
    }
    switch (type) {
    case ondemand::json_type::array:
        return skipArray(value, depth);
    case ondemand::json_type::object:
        return skipObject(value, depth);
    case ondemand::json_type::number: {
        ondemand::number number;
        return take(value.get_number(), number);
    }
    case ondemand::json_type::string: {
        std::string_view text;
        return readText(value, text);
    }
    case ondemand::json_type::boolean: {
        bool boolean = false;
        return take(value.get_bool(), boolean);
    }
    case ondemand::json_type::null:
        break;
    }
    bool isNull = false;
    return take(value.is_null(), isNull) && (isNull || fail("wrong type"));
}

bool Reader::skipArray(ondemand::value value, int depth)
{
    ondemand::array array;
    if (!take(value.get_array(), array)) {
        return false;
    }
    for (auto item : array) {
        ondemand::value inner;
        if (!take(std::move(item), inner) || !skip(inner, depth + 1)) {
            return false;
        }
    }
    return true;
}

bool Reader::skipObject(ondemand::value value, int depth)
{
    ondemand::object object;
    if (!take(value.get_object(), object)) {
        return false;
    }
    for (auto entry : object) {
        ondemand::field field;
        std::string_view key;
        if (!take(std::move(entry), field) || !take(field.unescaped_key(), key) ||
            !skip(field.value(), depth + 1)) {
            return false;
        }
    }
    return true;
}

bool Reader::atEnd(ondemand::document &document)
{
    const char *location = nullptr;
    const auto code = document.current_location().get(location);
    return code == simdjson::OUT_OF_BOUNDS || fail("text behind the document");
}

bool Reader::fail(std::string_view reason)
{
    m_reason = reason;
    return false;
}

bool Reader::fail(simdjson::error_code code)
{
    if (code == simdjson::INCORRECT_TYPE) {
        return fail("wrong type");
    }
    return fail(code == simdjson::NUMBER_ERROR ? "not a number that fits"
                                               : simdjson::error_message(code));
}

bool Reader::failAt(std::string_view key, std::string_view reason)
{
    fail(reason);
    return inside(key);
}

// Called while the failure travels outwards, so the place grows at its front.
bool Reader::inside(std::string_view key)
{
    m_place.insert(0, m_place.empty() ? std::string{key} : std::string{key} + ".");
    return false;
}

Result<void> forEachItem(const RawJson &array, const ItemTaker &take)
{
    const auto failure = [](simdjson::error_code code) {
        return std::unexpected(KestError::invalidData(simdjson::error_message(code)));
    };
    ondemand::parser parser; // its own: `take` decodes with the shared one meanwhile
    ondemand::document document;
    ondemand::array items;
    // What follows in the document is the room behind the array that the parser needs.
    const std::size_t room = array.text.size() + PaddedText::kPadding;
    auto code = parser.iterate(array.text.data(), array.text.size(), room).get(document);
    if (code == simdjson::SUCCESS) {
        code = document.get_array().get(items);
    }
    if (code != simdjson::SUCCESS) {
        return failure(code);
    }
    PaddedText text;
    for (auto item : items) {
        ondemand::object object;
        std::string_view raw;
        code = item.get_object().get(object);
        if (code == simdjson::SUCCESS) {
            code = object.raw_json().get(raw);
        }
        if (code != simdjson::SUCCESS) {
            return failure(code);
        }
        text.assign(raw);
        KEST_CHECK(take(text));
    }
    return {};
}

ParserLoan::ParserLoan(std::size_t documentSize)
    : m_own(documentSize > kLargeDocument ? std::make_unique<ondemand::parser>() : nullptr)
{
}

ondemand::parser &ParserLoan::shared()
{
    // NOLINTNEXTLINE(misc-const-correctness,misc-use-internal-linkage): it is lent out
    thread_local ondemand::parser parser;
    return parser;
}

} // namespace Base::json
