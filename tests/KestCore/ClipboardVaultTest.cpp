// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clipboard/ClipboardVault.h"

#include "Base/FileLock.h"
#include "KestCore/Clipboard/ClipboardKey.h"
#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace KestCoreTests
{

using namespace KestCore;
using Base::AesKey;
using Base::Bytes;
using Poll = ClipboardVault::Poll;
using enum ClipboardKind;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

constexpr std::string_view kHint = "x-kde-passwordManagerHint";

// A clipboard of the test's own, which counts how often its content is read.
class TestPasteboard : public Pasteboard
{
public:
    std::int64_t changeCount() override { return count; }
    Result<std::vector<std::string>> types() override
    {
        ++asked;
        return asked > silences ? Result<std::vector<std::string>>{markers}
                                : std::unexpected(KestError::unavailable("silent"));
    }
    std::optional<std::string> marker(std::string_view) override { return hint; }
    std::optional<std::string> ownerApplication() override { return owner; }
    Result<std::optional<std::vector<ClipboardFileReference>>> readFiles() override
    {
        ++reads;
        return files;
    }
    Result<std::optional<Bytes>> readImage(std::size_t) override
    {
        ++reads;
        return image;
    }
    Result<std::optional<std::string>> readText(std::size_t) override
    {
        ++reads;
        count += copiesWhileRead;
        return text;
    }
    bool reaches(const ClipboardFileReference &file) override { return file.name != "moved"; }
    Result<void> write(const ClipboardPayload &payload) override
    {
        if (isBroken) {
            return std::unexpected(KestError::unavailable("no selection"));
        }
        ++count;
        files.reset();
        image = payload.image;
        text = payload.text;
        if (copiesAfterWrite) {
            copy("in between");
        }
        return {};
    }

    // Somebody copies a text.
    void copy(std::string copied)
    {
        text = std::move(copied);
        ++count;
    }

    std::int64_t count = 7;
    std::vector<std::string> markers{"text/plain"};
    std::optional<std::string> hint{};
    std::optional<std::string> owner{};
    std::optional<std::vector<ClipboardFileReference>> files{};
    Result<std::optional<Bytes>> image{};
    std::optional<std::string> text{"there before"};
    bool isBroken = false;
    int asked = 0;    // which forms there are
    int silences = 0; // so often there is no answer
    int reads = 0;
    int copiesWhileRead = 0;
    bool copiesAfterWrite = false;
};

class TestCodec : public ImageCodec
{
public:
    Result<PreparedImage> prepare(Bytes image) override
    {
        if (image.front() == 0) {
            return std::unexpected(KestError::invalidData(kCannotDecode));
        }
        image.push_back(1); // never the same twice
        return PreparedImage{.image = std::move(image), .thumbnail = Bytes{42}};
    }
};

class ClipboardVaultTest : public testing::Test
{
protected:
    ClipboardVaultTest() { set("clipboard.enabled", "true"); }

    void set(const std::string &key, const std::string &value)
    {
        EXPECT_TRUE(store.change([&](NativeState &state) -> Result<void> {
            state.settings[key] = value;
            return {};
        }));
    }
    Poll poll() { return vault.poll(Base::fromSeconds1970(1'800'000'000 + ++seconds)).value(); }
    std::string pollError()
    {
        const auto outcome = vault.poll(Base::fromSeconds1970(1'800'000'000 + ++seconds));
        return outcome ? "" : outcome.error().message;
    }
    std::vector<std::string> listed()
    {
        std::vector<std::string> texts;
        const auto listings = vault.history().list().value();
        for (const auto &[entry, display, isReadable] : listings) {
            texts.push_back(std::string{Base::textOf(entry.kind)} + " " + display);
        }
        return texts;
    }
    ClipboardPayload newest()
    {
        return vault.history().content(vault.history().list()->front().entry.id).value();
    }

    TemporaryFolder folder;
    StateStore store = StateStore::open(folder.database()).value();
    TestPasteboard board;
    TestCodec codec;
    ClipboardVault vault{store, *AesKey::fromBytes(Bytes(32)), board, &codec};
    double seconds = 0;
};

} // namespace

TEST_F(ClipboardVaultTest, KeepsWhatIsCopiedOnceAndOnlyWhileItRecords)
{
    EXPECT_EQ(poll(), Poll::unchanged);
    board.copy("one");
    EXPECT_EQ(poll(), Poll::kept);
    EXPECT_EQ(poll(), Poll::unchanged);
    for (const auto &[key, off, on] : {std::tuple{"clipboard.paused", "true", "false"},
                                       std::tuple{"clipboard.enabled", "yes", "true"}}) {
        set(key, off);
        board.copy("meanwhile");
        EXPECT_EQ(poll(), Poll::off);
        set(key, on);
        EXPECT_EQ(poll(), Poll::unchanged);
    }
    board.copy(" https://example.org/a?b ");
    EXPECT_EQ(poll(), Poll::kept);
    board.copy("see https://example.org");
    EXPECT_EQ(poll(), Poll::kept);
    board.copy("");
    EXPECT_EQ(poll(), Poll::empty);
    EXPECT_THAT(listed(), ElementsAre("text see https://example.org",
                                      "link  https://example.org/a?b ", "text one"));
}

// A program that is busy for a while has not copied nothing.
TEST_F(ClipboardVaultTest, AsksAgainWhoDoesNotAnswer)
{
    board.silences = ClipboardReader::kMostTries - 1;
    board.copy("late");
    for (int tried = 1; tried < ClipboardReader::kMostTries; ++tried) {
        EXPECT_EQ(poll(), Poll::unchanged);
    }
    EXPECT_EQ(poll(), Poll::kept);
    for (const char *text : {"never", "never either"}) {
        SCOPED_TRACE(text);
        board.asked = 0;
        board.silences = 100;
        board.copy(text);
        for (int tried = 1; tried < ClipboardReader::kMostTries; ++tried) {
            EXPECT_EQ(poll(), Poll::unchanged);
        }
        EXPECT_EQ(pollError(), "silent");
        EXPECT_EQ(poll(), Poll::unchanged);
        EXPECT_EQ(board.asked, ClipboardReader::kMostTries);
    }
    EXPECT_THAT(listed(), ElementsAre("text late"));
}

TEST_F(ClipboardVaultTest, ReadsNothingOfWhatMustNotBeKept)
{
    set("clipboard.exclusions", "org.one, org.two ,,org.three");
    struct Case {
        std::string marker;
        std::optional<std::string> hint;
        std::optional<std::string> owner;
        bool excluded;
    };
    const std::optional<std::string> none;
    for (const auto &[marker, hint, owner, excluded] : {
             Case{"org.nspasteboard.TransientType", none, none, true},
             Case{"org.nspasteboard.ConcealedType", none, none, true},
             Case{"org.nspasteboard.AutoGeneratedType", none, none, true},
             Case{"com.apple.is-remote-clipboard", none, none, true},
             Case{std::string{kHint}, "secret", none, true},
             Case{std::string{kHint}, none, none, true},
             Case{std::string{kHint}, "public", none, false},
             Case{"text/html", "secret", none, false},
             Case{"", none, "com.agilebits.onepassword", true},
             Case{"", none, "org.one", true},
             Case{"", none, "org.two", true},
             Case{"", none, "org.three", true},
             Case{"", none, "org.four", false},
             Case{"", none, "org.on", false},
             Case{"", none, "", false},
         }) {
        SCOPED_TRACE(marker + " " + owner.value_or("-"));
        board.markers = {"text/plain", marker};
        board.hint = hint;
        board.owner = owner;
        board.copy("copied " + marker + owner.value_or(""));
        board.reads = 0;
        EXPECT_EQ(poll(), excluded ? Poll::excluded : Poll::kept);
        EXPECT_EQ(board.reads == 0, excluded);
    }
    EXPECT_EQ(listed().size(), 5U);
}

TEST_F(ClipboardVaultTest, DropsContentThatWasReplacedWhileItWasRead)
{
    board.copy("marked as harmless");
    board.copiesWhileRead = 1;
    EXPECT_EQ(poll(), Poll::unchanged);
    board.copiesWhileRead = 0;
    EXPECT_THAT(listed(), IsEmpty());
    EXPECT_EQ(poll(), Poll::kept);
}

TEST_F(ClipboardVaultTest, TakesFilesBeforeImagesBeforeTexts)
{
    board.files = {{"a", {1}}};
    board.image = Bytes{9};
    board.copy("text");
    EXPECT_EQ(poll(), Poll::kept);
    board.files->clear();
    board.copy("text");
    EXPECT_EQ(poll(), Poll::kept);
    EXPECT_EQ(newest().thumbnail, Bytes{42});
    board.image = Bytes{};
    board.copy("text");
    EXPECT_EQ(poll(), Poll::kept);
    EXPECT_THAT(listed(), ElementsAre("text text", "image Copied image", "files a"));

    ClipboardVault bare{store, *AesKey::fromBytes(Bytes(32)), board};
    board.image = Bytes{0, 1};
    board.copy("");
    EXPECT_EQ(bare.poll(Base::fromSeconds1970(1'800'009'000)), Poll::kept);
    EXPECT_EQ(newest().image, (Bytes{0, 1}));
    EXPECT_EQ(newest().thumbnail, std::nullopt);
}

TEST_F(ClipboardVaultTest, SaysWhyACopyCannotBeKeptAndWaitsForAnother)
{
    struct Case {
        const char *message;
        std::function<void()> copy;
    };
    for (const auto &[message, copy] : {
             Case{"Clipboard image is too large or could not be read.",
                  [&] { board.image = Bytes(4'000'001, 1); }},
             Case{"Clipboard image is too large or could not be read.",
                  [&] { board.image = std::unexpected(KestError::invalidData("odd")); }},
             Case{"Clipboard image could not be decoded", [&] { board.image = Bytes{0}; }},
             Case{"These clipboard file references could not be saved.",
                  [&] { board.files = {31, ClipboardFileReference{"n", {1}}}; }},
             Case{"Invalid clipboard text",
                  [&] {
                      board.image = std::optional<Bytes>{};
                      board.files.reset();
                      board.text = std::string(100'001, 'x');
                  }},
         }) {
        copy();
        ++board.count;
        EXPECT_EQ(pollError(), message);
        EXPECT_EQ(poll(), Poll::unchanged) << message;
    }
    EXPECT_THAT(listed(), IsEmpty());
}

TEST_F(ClipboardVaultTest, DoesNotKeepWhatItCopiesBack)
{
    board.copy("first");
    poll();
    board.copy("second");
    poll();
    const std::string id = vault.history().list()->back().entry.id;
    ASSERT_TRUE(vault.copyBack(id));
    EXPECT_EQ(board.text, "first");
    EXPECT_EQ(poll(), Poll::own);
    EXPECT_EQ(poll(), Poll::unchanged);
    ++board.count; // the system tells of it late
    EXPECT_EQ(poll(), Poll::own);
    EXPECT_THAT(listed(), ElementsAre("text second", "text first"));
    board.copy("third");
    EXPECT_EQ(poll(), Poll::kept);
    board.copy("first");
    EXPECT_EQ(poll(), Poll::kept) << "copied by somebody else, it moves";
    EXPECT_THAT(listed(), ElementsAre("text first", "text third", "text second"));

    board.copiesAfterWrite = true;
    ASSERT_TRUE(vault.copyBack(id));
    EXPECT_EQ(poll(), Poll::kept) << "somebody else was quick";
    EXPECT_EQ(listed().front(), "text in between");
    board.copiesAfterWrite = false;

    board.isBroken = true;
    EXPECT_EQ(vault.copyBack(id).error().message,
              "The clipboard could not be updated. Try copying again.");
    board.files = {{"here", {1}}, {"moved", {2}}};
    ++board.count;
    EXPECT_EQ(poll(), Poll::kept);
    EXPECT_EQ(vault.copyBack(vault.history().list()->front().entry.id).error().message,
              "A copied file has moved or access was revoked. Copy it again from Finder.");
}

TEST_F(ClipboardVaultTest, KnowsItsOwnImagesBeforeTheyArePreparedAnew)
{
    board.image = Bytes{9};
    board.copy("");
    EXPECT_EQ(poll(), Poll::kept);
    ASSERT_TRUE(vault.copyBack(vault.history().list()->front().entry.id));
    EXPECT_EQ(poll(), Poll::own);
    EXPECT_EQ(listed().size(), 1U);
}

TEST_F(ClipboardVaultTest, RemovesWhatHasGrownTooOldWithoutACopy)
{
    const auto pollAfter = [&](double hours) {
        return vault.poll(Base::fromSeconds1970(1'800'000'000 + hours * 3'600)).value();
    };
    set("clipboard.days", "1");
    set("clipboard.paused", "true");
    const auto add = [&](const char *content, double hours) {
        EXPECT_TRUE(vault.history().add({.kind = text, .text = content},
                                        Base::fromSeconds1970(1'800'000'000 + hours * 3'600)));
    };
    add("early", 0);
    add("late", 0.5);
    EXPECT_EQ(pollAfter(23.9), Poll::off);
    EXPECT_EQ(pollAfter(24.8), Poll::off); // within the hour nothing is looked at
    EXPECT_EQ(listed().size(), 2U);
    EXPECT_EQ(pollAfter(24.95), Poll::off);
    EXPECT_THAT(listed(), IsEmpty());
}

TEST(ClipboardSettings, ReadsNumbersAndKeepsDefaultsForAnythingElse)
{
    EXPECT_EQ(clipboardSettings({}), (ClipboardSettings{.enabled = false, .paused = false}));
    const auto read = clipboardSettings({{"clipboard.maxCount", "12"},
                                         {"clipboard.days", "3 days"},
                                         {"clipboard.maxBytes", "99999999999999999999"},
                                         {"clipboard.exclusions", " , "}});
    EXPECT_EQ(read, (ClipboardSettings{.maxCount = 12}));
}

namespace
{

// Keeps secrets for the length of a test, or fails.
class TestSecrets : public Base::SecretStore
{
public:
    Base::SecretResult<std::optional<Base::SecretBytes>> read(std::string_view account) override
    {
        if (failure) {
            return std::unexpected(*failure);
        }
        const auto before = account == "clipboard.key" ? kept : std::nullopt;
        if (madeByAnother) {
            kept = std::exchange(madeByAnother, std::nullopt);
        }
        return before;
    }
    Base::SecretResult<> write(std::string_view, std::span<const std::uint8_t> secret) override
    {
        if (refusesWrites) {
            return std::unexpected(Base::SecretFailure{.message = "full"});
        }
        kept.emplace(secret.begin(), secret.end());
        return {};
    }
    Base::SecretResult<> erase(std::string_view) override
    {
        kept.reset();
        return {};
    }

    std::optional<Base::SecretBytes> kept{};
    std::optional<Base::SecretBytes> madeByAnother{}; // right behind the first look
    std::optional<Base::SecretFailure> failure{};
    bool refusesWrites = false;
};

} // namespace

TEST(ClipboardKey, IsMadeOnceAndOnlyWhereItIsKept)
{
    const TemporaryFolder folder;
    const auto store = folder.database();
    TestSecrets secrets;
    EXPECT_FALSE(keptClipboardKey(secrets).value());
    EXPECT_FALSE(secrets.kept) << "looking makes no key";
    secrets.refusesWrites = true;
    EXPECT_FALSE(clipboardKey(secrets, store)) << "a key that is not kept is no key";
    secrets.refusesWrites = false;
    const auto made = clipboardKey(secrets, store);
    ASSERT_TRUE(made && secrets.kept);
    EXPECT_TRUE(std::ranges::equal(made->bytes(), *secrets.kept));
    EXPECT_TRUE(std::ranges::equal(clipboardKey(secrets, store)->bytes(), made->bytes()));
    secrets.kept->pop_back();
    EXPECT_FALSE(clipboardKey(secrets, store));
    EXPECT_EQ(secrets.kept->size(), 31U) << "what may still be mended is not overwritten";
    secrets.failure = {.kind = Base::SecretFailure::Kind::locked};
    EXPECT_EQ(availabilityOf(clipboardKey(secrets, store).error().kind),
              Availability::permissionDenied);
    secrets.failure->kind = Base::SecretFailure::Kind::noService;
    EXPECT_EQ(availabilityOf(clipboardKey(secrets, store).error().kind),
              Availability::unconfigured);
}

TEST(ClipboardKey, OfTwoFirstUsesOneMakesIt)
{
    const TemporaryFolder folder;
    TestSecrets secrets;
    const Base::SecretBytes another(32, 7);
    secrets.madeByAnother = another;
    const auto key = clipboardKey(secrets, folder.database());
    ASSERT_TRUE(key);
    EXPECT_TRUE(std::ranges::equal(key->bytes(), another));
    EXPECT_EQ(secrets.kept, another);
}

TEST(ClipboardKey, IsNotMadeWhileAnotherProgramMakesOne)
{
    const TemporaryFolder folder;
    const auto lock = Base::FileLock::take(folder.path() / "kest.key.lock", "The key",
                                           std::chrono::milliseconds{0});
    ASSERT_TRUE(lock);
    TestSecrets secrets;
    std::stop_source stop;
    stop.request_stop(); // who waits for the other one can be told not to
    const auto key = clipboardKey(secrets, folder.database(), stop.get_token());
    ASSERT_FALSE(key);
    EXPECT_THAT(key.error().message, testing::HasSubstr("The clipboard's key is in use by"));
    EXPECT_FALSE(secrets.kept);
}

} // namespace KestCoreTests
