// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Assistants/JsonSpans.h"

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace Assistants
{

// Changes of a JSON text, all found before the first is made.
class TextEdits
{
public:
    explicit TextEdits(std::string_view text);

    // Members or items behind the last that is there; `depth` is that of the container.
    void append(const JsonSpan &container, const std::vector<std::string> &items, int depth);
    // Takes these out, wherever below `root` they stand, and the commas with them.
    void remove(const JsonSpan &root, const std::set<const JsonSpan *> &gone);

    std::string lineBreak(int depth) const;
    std::string result() const;

private:
    struct Edit {
        std::size_t begin{};
        std::size_t end{};
        std::string text{};
    };

    void removeRun(const JsonSpan &parent, std::size_t first, std::size_t last);

    std::string_view m_text;
    std::string m_indent;
    std::vector<Edit> m_edits;
};

} // namespace Assistants
