// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Assistants/UsageLogs.h"
#include "bench/Bench.h"

#include <fmt/format.h>

#include <fcntl.h>
#include <unistd.h>

#include <cstring>
#include <fstream>
#include <string_view>

namespace Bench
{

namespace
{

namespace fs = std::filesystem;

constexpr std::size_t kFiles = 20;
constexpr std::size_t kFileSize = 50'000'000;
const Base::Instant kNow = Base::fromSeconds1970(1'795'000'000);

// A turn of a session: a question, an answer, and what a tool gave back, which is most of it.
std::string turn(std::size_t number)
{
    const std::string head = fmt::format(R"("cwd":"/home/u/project{}","sessionId":"s",)"
                                         R"("timestamp":"2026-11-1{}T10:00:00.000Z")",
                                         number % 7, number % 8);
    const std::string words(900, 'w');
    std::string output;
    for (int line = 0; line < 120; ++line) {
        output += R"(   42\tconst auto \"name\" = value;\n)";
    }
    return fmt::format(
        R"({{{},"type":"assistant","message":{{"id":"m{}","type":"message","role":"assistant",)"
        R"("model":"model-{}","content":[{{"type":"text","text":"{}"}}],"stop_reason":"tool_use",)"
        R"("usage":{{"input_tokens":4,"cache_creation_input_tokens":900,)"
        R"("cache_read_input_tokens":30000,"output_tokens":{}}}}},"requestId":"r{}"}})"
        "\n"
        R"({{{},"type":"user","message":{{"role":"user","content":[{{"type":"tool_result",)"
        R"("content":"{}"}}]}}}})"
        "\n",
        head, number, number % 3, words, number % 900, number, head, output);
}

std::size_t writeLogs(const fs::path &home)
{
    const fs::path folder = home / ".claude/projects/one";
    fs::create_directories(folder);
    std::size_t number = 0;
    std::size_t bytes = 0;
    for (std::size_t file = 0; file < kFiles; ++file) {
        std::ofstream out{folder / fmt::format("{}.jsonl", file), std::ios::binary};
        for (std::size_t size = 0; size < kFileSize;) {
            const std::string text = turn(number++);
            out << text;
            size += text.size();
            bytes += text.size();
        }
    }
    return bytes;
}

// Every byte once through a buffer of the same size, and the ends of its lines found.
std::size_t countLines(const fs::path &home)
{
    std::vector<char> buffer(std::size_t{256} * 1024);
    std::size_t lines = 0;
    for (const auto &entry : fs::directory_iterator{home / ".claude/projects/one"}) {
        const Base::FileDescriptor file{::open(entry.path().c_str(), O_RDONLY | O_CLOEXEC)};
        ssize_t got = 0;
        while ((got = ::read(file.get(), buffer.data(), buffer.size())) > 0) {
            std::string_view text{buffer.data(), static_cast<std::size_t>(got)};
            while (const void *const end = ::memchr(text.data(), '\n', text.size())) {
                ++lines;
                text.remove_prefix(
                    static_cast<std::size_t>(static_cast<const char *>(end) - text.data()) + 1);
            }
        }
    }
    return lines;
}

} // namespace

std::vector<Row> assistantSuite()
{
    const fs::path home = freshFolder("assistants");
    const std::size_t bytes = writeLogs(home);
    const Base::Instant since = kNow - Base::Seconds{3e7};
    const auto scan = [&] {
        Assistants::UsageLogs logs{home, since};
        logs.refresh();
        if (logs.totals().bytes != bytes || logs.totals().damagedLines != 0) {
            giveUp("the logs of the benchmark cannot be read");
        }
    };
    const Pair scanned = measureByTurns(3, scan, [&] {
        if (countLines(home) == 0) {
            giveUp("the logs of the benchmark are empty");
        }
    });
    Assistants::UsageLogs logs{home, since};
    logs.refresh();
    std::size_t number = 100'000'000;
    const auto append = [&] {
        std::ofstream out{home / ".claude/projects/one/3.jsonl", std::ios::app};
        for (int line = 0; line < 20; ++line) {
            out << turn(number++);
        }
    };
    append();
    const Pair updated = measureByTurns(
        20,
        [&] {
            logs.refresh();
            (void)logs.sessions(kNow);
        },
        [&] {
            for (const auto &entry : fs::directory_iterator{home / ".claude/projects/one"}) {
                (void)Assistants::logStatus(entry.path());
            }
        },
        append);
    return {rateRow(fmt::format("first scan of {:.1f} GB of assistants' logs",
                                static_cast<double>(bytes) / 1e9),
                    scanned, bytes, 500),
            durationRow("update after 20 turns more", updated, 0.05)};
}

} // namespace Bench
