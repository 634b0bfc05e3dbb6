// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/ItemAnswers.h"

#include "Base/JsonWriter.h"
#include "Base/Text.h"
#include "KestCore/Models/RecordIds.h"
#include "KestCore/Tools/Links.h"
#include "KestCore/Tools/Messages.h"
#include "KestCore/Tools/Notes.h"
#include "KestCore/Tools/Texts.h"

#include <fmt/format.h>

#include <unistd.h>

#include <algorithm>

template Base::Result<std::string> Base::json::encode(const std::vector<Cli::ItemAnswer> &);
template Base::Result<std::string> Base::json::encode(const Cli::PageAnswer &);
template Base::Result<std::string> Base::json::encode(const std::vector<Cli::EmojiAnswer> &);

namespace Cli
{

namespace
{

using KestCore::LocalRecord;
using KestCore::payloadOf;
using KestCore::ShelfPlace;

constexpr std::size_t kShownText = 60;

ItemAnswer answerOf(const LocalRecord &record)
{
    ItemAnswer answer{.id = record.id,
                      .title = record.title,
                      .pinned = KestCore::isPinned(record),
                      .updated = instantText(Base::fromMilliseconds1970(record.updated))};
    if (record.kind == KestCore::kNoteKind) {
        answer.text = payloadOf<KestCore::Note>(record).text;
    } else if (record.kind == KestCore::kLinkKind) {
        const auto link = payloadOf<KestCore::SavedLink>(record);
        answer.url = link.url;
        answer.note = link.note;
    } else if (record.kind == KestCore::kMessageKind) {
        const auto message = payloadOf<KestCore::StripMessage>(record);
        answer.text = message.text;
        answer.animation = message.animation;
    } else if (record.kind == KestCore::kShelfKind) {
        const auto item = payloadOf<KestCore::ShelfItem>(record);
        answer.text = item.text;
        answer.path = item.path;
    }
    return answer;
}

// Where the files are, looked for together; what has a path is on the shelf.
void addPlaces(std::vector<ItemAnswer> &answers, const std::vector<LocalRecord> &records)
{
    std::vector<KestCore::ShelfItem> items;
    for (std::size_t at = 0; at < records.size(); ++at) {
        items.push_back(answers[at].path ? payloadOf<KestCore::ShelfItem>(records[at])
                                         : KestCore::ShelfItem{});
    }
    const auto places = KestCore::placesOf(items);
    for (std::size_t at = 0; at < answers.size(); ++at) {
        if (answers[at].path) {
            answers[at].state = places[at].state;
        }
        if (places[at].state == ShelfPlace::State::moved) {
            answers[at].foundAt = places[at].path;
        }
    }
}

// What stands behind the title.
std::string detailOf(const ItemAnswer &item)
{
    if (item.excerpt && !item.excerpt->empty()) {
        return printable(*item.excerpt);
    }
    if (item.animation) {
        return std::string{Base::textOf(*item.animation)};
    }
    if (item.url) {
        return printable(item.note ? *item.url + "  " + *item.note : *item.url);
    }
    if (item.state == ShelfPlace::State::moved) {
        return fmt::format("moved, now {}", printable(item.foundAt.value_or("")));
    }
    if (item.state == ShelfPlace::State::missing) {
        return fmt::format("missing, was {}", printable(item.path.value_or("")));
    }
    if (item.path) {
        return printable(*item.path);
    }
    const std::string_view text = item.text ? std::string_view{*item.text} : "";
    return text == item.title ? "" : printable(KestCore::shortened(text, kShownText));
}

Result<void> printAnswers(const Console &console, const std::vector<ItemAnswer> &items,
                          std::span<const std::string> allIds, std::string_view whenEmpty)
{
    return console.answer(items, [&] {
        const std::size_t idSize = KestCore::shortIdLength(allIds);
        std::vector<std::vector<std::string>> rows;
        for (const ItemAnswer &item : items) {
            rows.push_back({console.styled(printable(item.id.substr(0, idSize)), Style::faint),
                            item.pinned ? "*" : " ",
                            console.styled(printable(item.title), Style::strong),
                            detailOf(item)});
        }
        console.table(rows);
        if (items.empty()) {
            console.line(whenEmpty);
        }
    });
}

} // namespace

std::optional<std::string> instantText(Base::Instant instant)
{
    auto text = Base::toIso8601(instant);
    return text ? std::optional{*std::move(text)} : std::nullopt;
}

Result<void> printItems(const Console &console, const std::vector<LocalRecord> &records,
                        std::span<const std::string> allIds, std::string_view whenEmpty)
{
    std::vector<ItemAnswer> items;
    std::ranges::transform(records, std::back_inserter(items), answerOf);
    addPlaces(items, records);
    return printAnswers(console, items, allIds, whenEmpty);
}

Result<void> printHits(const Console &console, const std::vector<KestCore::RecordHit> &hits,
                       std::span<const std::string> allIds)
{
    std::vector<ItemAnswer> items;
    for (const KestCore::RecordHit &hit : hits) {
        items.push_back(answerOf(hit.record));
        items.back().excerpt = hit.excerpt;
    }
    return printAnswers(console, items, allIds, "Nothing matches.");
}

void printText(const Console &console, std::string_view text)
{
    if (isatty(STDOUT_FILENO) == 0) {
        console.text(text);
        console.text(text.empty() || text.ends_with('\n') ? "" : "\n");
        return;
    }
    for (const std::string_view line : Base::split(text, '\n')) {
        console.line(printable(line, Layout::kept));
    }
}

Result<std::string> textOrInput(const std::string &argument)
{
    if (argument != "-") {
        return argument;
    }
    std::string text;
    char block[16'384];
    // One byte too many is enough to be refused, however much more there is.
    while (text.size() <= KestCore::kLongestText + 2) {
        const ssize_t size = read(STDIN_FILENO, block, sizeof block);
        if (size < 0 && errno != EINTR) {
            return std::unexpected(KestError::unavailable("Standard input cannot be read"));
        }
        if (size == 0) {
            break;
        }
        text.append(block, static_cast<std::size_t>(std::max<ssize_t>(size, 0)));
    }
    if (text.ends_with('\n')) {
        text.pop_back();
    }
    return text;
}

} // namespace Cli
