// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Assistants/JsonSpans.h"

#include "Base/JsonReader.h"
#include "Base/JsonWriter.h"

#include <algorithm>

namespace Assistants
{

namespace json = Base::json;
using Base::KestError;
using Base::Result;

namespace
{

constexpr int kDeepest = 64;

// A text in its quotes, read by the parser that reads all others.
struct Quoted {
    std::string text{};
};
consteval auto jsonFields(Base::Of<Quoted>)
{
    return std::tuple{json::Field{"t", &Quoted::text}};
}
static_assert(json::coversAllMembers<Quoted>());

std::unexpected<KestError> notUnderstood()
{
    return std::unexpected(KestError::invalidData("It is not written as strict JSON"));
}

// Finds the edges of values; what stands between the edges is left to the parser.
class Walker
{
public:
    explicit Walker(std::string_view text) : m_text(text) {}

    Result<JsonSpan> document()
    {
        skipBlanks();
        KEST_TRY(JsonSpan root, value(0));
        skipBlanks();
        return m_at == m_text.size() ? Result<JsonSpan>{std::move(root)} : notUnderstood();
    }

private:
    char now() const { return m_at < m_text.size() ? m_text[m_at] : '\0'; }
    bool takes(char wanted)
    {
        const bool isHere = now() == wanted;
        m_at += isHere ? 1U : 0U;
        return isHere;
    }
    void skipBlanks()
    {
        m_at = std::min(m_text.find_first_not_of(" \t\r\n", m_at), m_text.size());
    }

    Result<std::string> quoted()
    {
        const std::size_t begin = m_at;
        if (!takes('"')) {
            return notUnderstood();
        }
        while (m_at < m_text.size() && m_text[m_at] != '"') {
            m_at += m_text[m_at] == '\\' ? 2U : 1U;
        }
        if (!takes('"')) {
            return notUnderstood();
        }
        const std::string one =
            "{\"t\":" + std::string{m_text.substr(begin, m_at - begin)} + "}";
        KEST_TRY(Quoted read, json::decode<Quoted>(std::string_view{one}));
        return std::move(read.text);
    }

    Result<JsonSpan> value(int depth)
    {
        if (depth > kDeepest) {
            return notUnderstood();
        }
        JsonSpan span{.begin = m_at, .value = m_at};
        if (now() == '{') {
            span.kind = JsonSpan::Kind::object;
            KEST_CHECK(children(span, '}', depth));
        } else if (now() == '[') {
            span.kind = JsonSpan::Kind::array;
            KEST_CHECK(children(span, ']', depth));
        } else if (now() == '"') {
            span.kind = JsonSpan::Kind::text;
            KEST_TRY(span.text, quoted());
        } else {
            span.kind = JsonSpan::Kind::other;
            m_at = std::min(m_text.find_first_of(",]} \t\r\n", m_at), m_text.size());
            if (m_at == span.begin) {
                return notUnderstood();
            }
        }
        span.end = m_at;
        return span;
    }

    Result<void> children(JsonSpan &parent, char close, int depth)
    {
        ++m_at;
        skipBlanks();
        if (takes(close)) {
            return {};
        }
        do {
            skipBlanks();
            KEST_TRY(JsonSpan child, close == '}' ? member(parent, depth) : value(depth + 1));
            parent.children.push_back(std::move(child));
            skipBlanks();
        } while (takes(','));
        return takes(close) ? Result<void>{} : notUnderstood();
    }

    Result<JsonSpan> member(const JsonSpan &parent, int depth)
    {
        const std::size_t begin = m_at;
        KEST_TRY(std::string key, quoted());
        skipBlanks();
        if (parent.member(key) != nullptr || !takes(':')) {
            return notUnderstood();
        }
        skipBlanks();
        KEST_TRY(JsonSpan child, value(depth + 1));
        child.begin = begin;
        child.key = std::move(key);
        return child;
    }

    std::string_view m_text;
    std::size_t m_at = 0;
};

// Whether the parser takes the whole, numbers and words included.
struct Anything {
    std::optional<json::RawJson> nothing{};
};
consteval auto jsonFields(Base::Of<Anything>)
{
    return std::tuple{json::Field{"\n", &Anything::nothing}};
}
static_assert(json::coversAllMembers<Anything>());

} // namespace

const JsonSpan *JsonSpan::member(std::string_view name) const
{
    const auto found = std::ranges::find(children, name, &JsonSpan::key);
    return kind == Kind::object && found != children.end() ? &*found : nullptr;
}

Result<JsonSpan> spansOf(std::string_view document)
{
    if (!json::decode<Anything>(document)) {
        return notUnderstood(); // the parser's own words are for who wrote the parser
    }
    return Walker{document}.document();
}

std::string quotedJson(const std::string &text)
{
    const auto list = json::encode(std::vector<std::string>{text});
    return list ? list->substr(1, list->size() - 2) : std::string{};
}

} // namespace Assistants
