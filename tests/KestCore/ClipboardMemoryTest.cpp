// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/Secret.h"
#include "Base/Text.h"
#include "KestCore/Clipboard/ClipboardHistory.h"
#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <charconv>
#include <fstream>
#include <functional>

namespace KestCoreTests
{

using namespace KestCore;
using enum ClipboardKind;

namespace
{

constexpr std::string_view kSecret = "zqvxkjwpyfmgdhbtnrslucoe";
constexpr unsigned char kMask = 0x5A;

// The secret in disguise, in one or two bytes a letter, so that the search for it is no find.
template <std::size_t Width>
consteval auto disguised()
{
    std::array<unsigned char, kSecret.size() * Width> bytes{};
    bytes.fill(kMask);
    for (std::size_t at = 0; at < kSecret.size(); ++at) {
        bytes[at * Width] = static_cast<unsigned char>(kSecret[at]) ^ kMask;
    }
    return bytes;
}
constexpr auto kInUtf8 = disguised<1>();
constexpr auto kInUtf16 = disguised<2>();

std::string secretBetween(std::string_view before, std::string_view after)
{
    std::string text;
    text.reserve(before.size() + kSecret.size() + after.size() + 16);
    text += before;
    for (const unsigned char c : kInUtf8) {
        text += static_cast<char>(c ^ kMask);
    }
    text += after;
    return text;
}

bool standsIn(const Base::SecretBytes &memory, std::span<const unsigned char> pattern)
{
    const auto isSame = [](unsigned char a, unsigned char b) { return a == (b ^ kMask); };
    return !std::ranges::search(memory, pattern, isSame).empty();
}

struct Range {
    std::uintptr_t begin{};
    std::uintptr_t end{};
};

// The memory that is given out: the heap, and what is mapped without a file. The largest
// ranges are only reserved, as by a sanitizer.
std::vector<Range> heapRanges()
{
    constexpr std::uintptr_t kLargest = std::uintptr_t{256} << 20;
    std::vector<Range> ranges;
    std::ifstream maps{"/proc/self/maps"};
    for (std::string line; std::getline(maps, line);) {
        Range range;
        const char *const end = line.data() + line.size();
        const char *at = std::from_chars(line.data(), end, range.begin, 16).ptr;
        at = std::from_chars(at + 1, end, range.end, 16).ptr;
        const bool isAnonymous = line.contains(" 00:00 0 ") || line.ends_with(" 00:00 0");
        const bool isNamed = line.contains('[') && !line.contains("[heap]");
        if (std::string_view{at, end}.starts_with(" rw") && isAnonymous && !isNamed &&
            range.end - range.begin <= kLargest) {
            ranges.push_back(range);
        }
    }
    return ranges;
}

bool isInMemory()
{
    const int file = open("/proc/self/mem", O_RDONLY | O_CLOEXEC);
    EXPECT_GE(file, 0);
    bool isFound = false;
    for (const Range &range : heapRanges()) {
        Base::SecretBytes memory(range.end - range.begin);
        const ssize_t size =
            pread(file, memory.data(), memory.size(), static_cast<off_t>(range.begin));
        memory.resize(static_cast<std::size_t>(std::max<ssize_t>(size, 0)));
        isFound = isFound || standsIn(memory, kInUtf8) || standsIn(memory, kInUtf16);
    }
    close(file);
    return isFound;
}

ClipboardPayload textOf(std::string content)
{
    return {.kind = text, .text = std::move(content)};
}

} // namespace

TEST(ClipboardMemory, HoldsNothingOfWhatWasAddedSearchedOrOpened)
{
    Base::wipeUnicodeMemory();
    const TemporaryFolder folder;
    auto store = StateStore::open(folder.database()).value();
    ClipboardHistory history{store, Base::AesKey::random()};
    const std::string begin(70, 'x');
    const std::string filler(3'000, 'x');
    const std::string large(90'000, 'x');
    struct Case {
        const char *name;
        std::function<ClipboardPayload()> make;
    };
    const auto now = Base::wallClock();
    ASSERT_FALSE(isInMemory());
    for (const auto &[name, make] : {
             Case{"shown", [&] { return textOf(secretBetween(begin, begin)); }},
             Case{"far in", [&] { return textOf(secretBetween(filler, filler)); }},
             Case{"large", [&] { return textOf(secretBetween(large, "")); }},
             Case{"escaped", [&] { return textOf(secretBetween("\"\n", filler)); }},
             Case{"marks", [&] { return textOf(secretBetween("\u0650\u00E9", filler)); }},
             Case{"credential", [] { return textOf(secretBetween("ghp_", "")); }},
             Case{"files",
                  [] {
                      return ClipboardPayload{
                          .kind = files, .files = {{secretBetween("a name ", ".txt"), {1, 2}}}};
                  }},
         }) {
        SCOPED_TRACE(name);
        auto payload = make();
        EXPECT_TRUE(isInMemory()) << "what is there is found";
        const auto entry = history.add(payload, now);
        wipe(payload);
        EXPECT_FALSE(isInMemory()) << "after add";
        EXPECT_EQ(history.search("nobody wrote this")->size(), 0U);
        EXPECT_FALSE(isInMemory()) << "after search";
        ASSERT_TRUE(store.changeRecords({.removed = {clipboardIndexId(entry->id)}}));
        ASSERT_TRUE(history.find(entry->id));
        EXPECT_FALSE(isInMemory()) << "after the index was made anew";
        {
            auto content = history.content(entry->id);
            const Base::WipeAtEnd wiping{content};
            EXPECT_TRUE(isInMemory());
        }
        EXPECT_FALSE(isInMemory()) << "after it was opened";
        ASSERT_TRUE(history.clear());
    }
}

} // namespace KestCoreTests
