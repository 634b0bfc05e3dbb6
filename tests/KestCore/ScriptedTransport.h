// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Http.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

// A transport that answers by a function and remembers what it was asked.
class ScriptedTransport : public Base::HttpTransport
{
public:
    using Answer = Base::HttpResult<Base::HttpResponse>;
    using Script = std::function<Answer(const Base::HttpRequest &)>;

    explicit ScriptedTransport(Script script) : m_script(std::move(script)) {}

    Answer get(const Base::HttpRequest &request, const std::stop_token & /*stop*/) override
    {
        requests.push_back(request);
        return m_script(request);
    }

    static Answer body(std::string text, int status = 200)
    {
        return Base::HttpResponse{.status = status, .body = std::move(text)};
    }

    std::vector<Base::HttpRequest> requests{};

private:
    Script m_script;
};
