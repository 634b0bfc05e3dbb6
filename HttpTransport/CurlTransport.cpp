// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "HttpTransport/HttpTransport.h"
#include "HttpTransport/WebAddress.h"

#include <curl/curl.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>
#include <csignal>
#include <cstring>
#include <ctime>
#include <optional>
#include <string>
#include <string_view>

// The module itself, over libcurl.
namespace Web
{

namespace
{

using Base::HttpFailure;
using Base::HttpHeader;
using Base::HttpRequest;
using Base::HttpResponse;
using Base::HttpResult;
using Kind = Base::HttpFailure::Kind;
using Clock = std::chrono::steady_clock;

constexpr int kMostRedirects = 5;
constexpr std::size_t kLongestHead = 256'000; // bytes of all headers

std::unexpected<HttpFailure> failed(Kind kind, std::string message)
{
    return std::unexpected(HttpFailure{.kind = kind, .message = std::move(message)});
}

bool isSameName(std::string_view name, std::string_view lower)
{
    return std::ranges::equal(name, lower, [](char a, char b) {
        return (a >= 'A' && a <= 'Z' ? static_cast<char>(a - 'A' + 'a') : a) == b;
    });
}

// A peer that goes away must not end the program, and libcurl leaves that to its caller. The
// signal goes to the thread that writes.
class PipeSignalHeld
{
public:
    PipeSignalHeld()
    {
        sigemptyset(&m_pipe);
        sigaddset(&m_pipe, SIGPIPE);
        sigset_t pending;
        sigpending(&pending);
        m_wasPending = sigismember(&pending, SIGPIPE) == 1;
        pthread_sigmask(SIG_BLOCK, &m_pipe, &m_before);
    }
    ~PipeSignalHeld()
    {
        if (!m_wasPending) {
            const timespec atOnce{};
            while (sigtimedwait(&m_pipe, nullptr, &atOnce) == SIGPIPE) {
            }
        }
        pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
    }
    PipeSignalHeld(const PipeSignalHeld &) = delete;
    PipeSignalHeld &operator=(const PipeSignalHeld &) = delete;

private:
    sigset_t m_pipe{};
    sigset_t m_before{};
    bool m_wasPending = false;
};

// The lines of a request's head. They may hold a key, so they are wiped before they go.
class HeaderLines
{
public:
    HeaderLines() = default;
    ~HeaderLines()
    {
        for (const curl_slist *line = m_lines; line != nullptr; line = line->next) {
            explicit_bzero(line->data, std::strlen(line->data));
        }
        curl_slist_free_all(m_lines);
    }
    HeaderLines(const HeaderLines &) = delete;
    HeaderLines &operator=(const HeaderLines &) = delete;

    // False for a header that would be more than one line, or none.
    bool add(const HttpHeader &header)
    {
        constexpr std::string_view kForbidden{"\r\n\0", 3};
        if (header.name.empty() || header.name.find_first_of(":; ") != std::string::npos ||
            header.name.find_first_of(kForbidden) != std::string::npos ||
            header.value.find_first_of(kForbidden) != std::string::npos) {
            return false;
        }
        std::string line = header.name;
        line += header.value.empty() ? ";" : ": "; // libcurl's sign for an empty value
        line += header.value;
        curl_slist *longer = curl_slist_append(m_lines, line.c_str());
        explicit_bzero(line.data(), line.size());
        m_lines = longer == nullptr ? m_lines : longer;
        return longer != nullptr;
    }
    curl_slist *lines() const { return m_lines; }

private:
    curl_slist *m_lines = nullptr;
};

// Takes in one answer and no more of it than is allowed.
struct Receiver {
    std::size_t mostBytes{};
    HttpResponse response{};
    std::size_t headBytes{};
    bool isTooLarge = false;
    bool isCut = false;

    bool takeHead(std::string_view line)
    {
        headBytes += line.size();
        if (headBytes > kLongestHead) {
            isTooLarge = true;
            return false;
        }
        if (line.starts_with("HTTP/")) { // of the answer itself, or of one that came before it
            response.headers.clear();
            const std::string_view code =
                line.substr(std::min(line.find(' '), line.size() - 1));
            response.status = 0;
            std::from_chars(code.data() + 1, code.data() + code.size(), response.status);
            return true;
        }
        if (const std::size_t colon = line.find(':'); colon != std::string_view::npos) {
            const std::string_view value = line.substr(colon + 1);
            const std::size_t begin = std::min(value.find_first_not_of(" \t"), value.size());
            const std::size_t end = value.find_last_not_of(" \t\r\n") + 1;
            response.headers.push_back(
                {.name = std::string{line.substr(0, colon)},
                 .value = std::string{value.substr(begin, std::max(begin, end) - begin)}});
        }
        return true;
    }

    bool takeBody(std::string_view bytes)
    {
        const std::size_t room = mostBytes - response.body.size();
        if (bytes.size() <= room) {
            response.body += bytes;
            return true;
        }
        const bool isSuccess = response.status >= 200 && response.status < 300;
        (isSuccess ? isTooLarge : isCut) = true;
        response.body += bytes.substr(0, isSuccess ? 0 : room);
        return false;
    }
};

std::size_t receiveHead(char *bytes, std::size_t, std::size_t size, void *receiver)
{
    return static_cast<Receiver *>(receiver)->takeHead({bytes, size}) ? size : size + 1;
}

std::size_t receiveBody(char *bytes, std::size_t, std::size_t size, void *receiver)
{
    return static_cast<Receiver *>(receiver)->takeBody({bytes, size}) ? size : size + 1;
}

struct CloseEasy {
    void operator()(CURL *handle) const { curl_easy_cleanup(handle); }
};
struct CloseMulti {
    void operator()(CURLM *handle) const { curl_multi_cleanup(handle); }
};
using Easy = std::unique_ptr<CURL, CloseEasy>;
using Multi = std::unique_ptr<CURLM, CloseMulti>;

class CurlTransport : public Base::HttpTransport
{
public:
    CurlTransport(TransportOptions options, Multi multi)
        : m_options(std::move(options)), m_multi(std::move(multi))
    {
    }

    HttpResult<HttpResponse> get(const HttpRequest &request,
                                 const std::stop_token &stop) override;

private:
    HttpResult<HttpResponse> getOnce(const std::string &url, const HttpRequest &request,
                                     Clock::time_point deadline, const std::stop_token &stop,
                                     std::string &next);
    void prepare(CURL *easy, const std::string &url, const WebAddress &address) const;
    CURLcode perform(CURL *easy, const std::stop_token &stop);

    TransportOptions m_options;
    Multi m_multi; // keeps connections for the next request
};

// Nothing when the step from one address to the next is allowed.
std::optional<std::string> whyNot(const std::string &from, const std::string &to,
                                  const HttpRequest &request)
{
    const auto here = parseWebAddress(from);
    const auto there = parseWebAddress(to);
    if (!here || !there || here->scheme != there->scheme) {
        return "a redirect leads to another kind of address";
    }
    const bool hasKey = std::ranges::any_of(request.headers, [](const HttpHeader &header) {
        return isSameName(header.name, "authorization");
    });
    if (hasKey && *here != *there) {
        return "a redirect leads a key to another host, " + there->place();
    }
    return std::nullopt;
}

HttpResult<HttpResponse> outcome(Receiver receiver, CURLcode code, const WebAddress &address,
                                 const std::stop_token &stop)
{
    if (stop.stop_requested()) {
        return failed(Kind::cancelled, address.place() + ": cancelled");
    }
    if (receiver.isTooLarge) {
        return failed(Kind::tooLarge, address.place() + ": the answer is too large");
    }
    if (code != CURLE_OK && !receiver.isCut) {
        return failed(Kind::noAnswer, address.place() + ": " + curl_easy_strerror(code));
    }
    return std::move(receiver.response);
}

bool isRedirect(int status)
{
    return status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
}

HttpResult<HttpResponse> CurlTransport::get(const HttpRequest &request,
                                            const std::stop_token &stop)
{
    constexpr Base::Seconds kLongest{24.0 * 3600.0};
    const PipeSignalHeld held;
    const auto patience = std::isfinite(request.timeout.count())
                              ? std::clamp(request.timeout, Base::Seconds{0}, kLongest)
                              : kLongest;
    const auto deadline = Clock::now() + std::chrono::duration_cast<Clock::duration>(patience);
    std::string url = request.url;
    for (int redirects = 0; redirects <= kMostRedirects; ++redirects) {
        std::string next;
        auto answer = getOnce(url, request, deadline, stop, next);
        if (!answer || !isRedirect(answer->status) || next.empty()) {
            return answer;
        }
        if (const auto reason = whyNot(url, next, request)) {
            return failed(Kind::refused, *reason);
        }
        url = std::move(next);
    }
    return failed(Kind::refused, "too many redirects");
}

// One request and its answer, perhaps one that leads to a next address.
HttpResult<HttpResponse> CurlTransport::getOnce(const std::string &url,
                                                const HttpRequest &request,
                                                Clock::time_point deadline,
                                                const std::stop_token &stop, std::string &next)
{
    const auto address = parseWebAddress(url);
    if (!address) {
        return failed(Kind::refused, "not a web address that can be asked");
    }
    if (address->scheme == "http" && !address->isThisMachine()) {
        return failed(Kind::refused, address->host + ": only https, except on this machine");
    }
    HeaderLines lines;
    if (!std::ranges::all_of(request.headers,
                             [&](const HttpHeader &header) { return lines.add(header); })) {
        return failed(Kind::refused, "a header that cannot be sent");
    }
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
    const Easy easy{curl_easy_init()};
    if (easy == nullptr || left.count() <= 0) {
        return failed(Kind::noAnswer, address->place() + ": no time left");
    }
    Receiver receiver{.mostBytes = request.mostBytes};
    prepare(easy.get(), url, *address);
    curl_easy_setopt(easy.get(), CURLOPT_HTTPHEADER, lines.lines());
    curl_easy_setopt(easy.get(), CURLOPT_TIMEOUT_MS, static_cast<long>(left.count()));
    curl_easy_setopt(easy.get(), CURLOPT_HEADERDATA, &receiver);
    curl_easy_setopt(easy.get(), CURLOPT_WRITEDATA, &receiver);
    const CURLcode code = perform(easy.get(), stop);
    if (const char *to = nullptr;
        curl_easy_getinfo(easy.get(), CURLINFO_REDIRECT_URL, &to) == CURLE_OK &&
        to != nullptr) {
        next = to;
    }
    return outcome(std::move(receiver), code, *address, stop);
}

void CurlTransport::prepare(CURL *easy, const std::string &url, const WebAddress &address) const
{
    curl_easy_setopt(easy, CURLOPT_URL, url.c_str());
    curl_easy_setopt(easy, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(easy, CURLOPT_FOLLOWLOCATION, 0L);
    curl_easy_setopt(easy, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(easy, CURLOPT_QUICK_EXIT, 1L); // a stop waits for no name server
    curl_easy_setopt(easy, CURLOPT_ACCEPT_ENCODING, "gzip");
    curl_easy_setopt(easy, CURLOPT_SUPPRESS_CONNECT_HEADERS, 1L);
    curl_easy_setopt(easy, CURLOPT_SSLVERSION, static_cast<long>(CURL_SSLVERSION_TLSv1_2));
    curl_easy_setopt(easy, CURLOPT_SSL_VERIFYPEER, 1L);
    curl_easy_setopt(easy, CURLOPT_SSL_VERIFYHOST, 2L);
    curl_easy_setopt(easy, CURLOPT_NETRC, static_cast<long>(CURL_NETRC_IGNORED));
    curl_easy_setopt(easy, CURLOPT_HEADERFUNCTION, receiveHead);
    curl_easy_setopt(easy, CURLOPT_WRITEFUNCTION, receiveBody);
    if (address.isThisMachine()) {
        curl_easy_setopt(easy, CURLOPT_PROXY, "");
    }
    if (!m_options.extraAuthorities.empty()) {
        // The system's folder of certificates stays as it is.
        curl_easy_setopt(easy, CURLOPT_CAINFO, m_options.extraAuthorities.c_str());
    }
}

CURLcode CurlTransport::perform(CURL *easy, const std::stop_token &stop)
{
    constexpr int kLongestNap = 86'400'000; // milliseconds; what happens ends it sooner
    const std::stop_callback wake{stop, [this] { curl_multi_wakeup(m_multi.get()); }};
    if (curl_multi_add_handle(m_multi.get(), easy) != CURLM_OK) {
        return CURLE_FAILED_INIT;
    }
    int running = 1;
    CURLMcode state = CURLM_OK;
    while (running > 0 && state == CURLM_OK && !stop.stop_requested()) {
        state = curl_multi_perform(m_multi.get(), &running);
        if (running > 0 && state == CURLM_OK) {
            state = curl_multi_poll(m_multi.get(), nullptr, 0, kLongestNap, nullptr);
        }
    }
    CURLcode code = CURLE_FAILED_INIT;
    int waiting = 0;
    while (const CURLMsg *message = curl_multi_info_read(m_multi.get(), &waiting)) {
        if (message->msg == CURLMSG_DONE && message->easy_handle == easy) {
            code = message->data.result;
        }
    }
    curl_multi_remove_handle(m_multi.get(), easy);
    return code;
}

} // namespace

} // namespace Web

extern "C" [[gnu::visibility("default")]] Base::HttpTransport *
kestMakeHttpTransport(const Web::TransportOptions &options);

Base::HttpTransport *kestMakeHttpTransport(const Web::TransportOptions &options)
{
    static const bool kIsReady = curl_global_init(CURL_GLOBAL_DEFAULT) == CURLE_OK;
    Web::Multi multi{kIsReady ? curl_multi_init() : nullptr};
    return multi == nullptr ? nullptr : new Web::CurlTransport{options, std::move(multi)};
}
