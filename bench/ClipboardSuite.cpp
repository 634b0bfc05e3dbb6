// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clipboard/ClipboardHistory.h"
#include "bench/Bench.h"
#include "bench/RawDatabase.h"

#include <fmt/format.h>
#include <openssl/evp.h>

#include <array>
#include <cstdint>

namespace Bench
{

namespace
{

using KestCore::ClipboardCipher;
using KestCore::ClipboardHistory;
using KestCore::ClipboardPayload;

constexpr int kNonce = 12;
constexpr int kTag = 16;

// The least that the machine needs: OpenSSL's AES-256-GCM over the ready JSON and OpenSSL's
// Base64 of the result, in memory that is there already.
class BareCipher
{
public:
    explicit BareCipher(std::string document)
        : m_document(std::move(document)), m_box(m_document.size() + kNonce + kTag),
          m_text((m_box.size() + 2) / 3 * 4 + 1), m_opened(m_text.size())
    {
    }
    ~BareCipher() { EVP_CIPHER_CTX_free(m_context); }
    BareCipher(const BareCipher &) = delete;
    BareCipher &operator=(const BareCipher &) = delete;

    void seal()
    {
        int written = 0;
        EVP_EncryptInit_ex(m_context, m_cipher, nullptr, m_key.data(), m_box.data());
        EVP_EncryptUpdate(m_context, m_box.data() + kNonce, &written,
                          reinterpret_cast<const unsigned char *>(m_document.data()),
                          static_cast<int>(m_document.size()));
        EVP_EncryptFinal_ex(m_context, m_box.data() + kNonce + written, &written);
        EVP_CIPHER_CTX_ctrl(m_context, EVP_CTRL_GCM_GET_TAG, kTag,
                            m_box.data() + kNonce + m_document.size());
        EVP_EncodeBlock(m_text.data(), m_box.data(), static_cast<int>(m_box.size()));
    }

    void open()
    {
        int written = 0;
        unsigned char *const box = m_opened.data();
        EVP_DecodeBlock(box, m_text.data(), static_cast<int>(m_text.size() - 1));
        EVP_DecryptInit_ex(m_context, m_cipher, nullptr, m_key.data(), box);
        EVP_DecryptUpdate(m_context, m_box.data(), &written, box + kNonce,
                          static_cast<int>(m_document.size()));
        EVP_CIPHER_CTX_ctrl(m_context, EVP_CTRL_GCM_SET_TAG, kTag,
                            box + kNonce + m_document.size());
        if (EVP_DecryptFinal_ex(m_context, m_box.data() + written, &written) != 1) {
            giveUp("the bare cipher does not open what it sealed");
        }
    }

private:
    std::string m_document;
    std::vector<unsigned char> m_box;
    std::vector<unsigned char> m_text;
    std::vector<unsigned char> m_opened;
    std::array<unsigned char, 32> m_key{};
    EVP_CIPHER_CTX *m_context = EVP_CIPHER_CTX_new();
    const EVP_CIPHER *m_cipher = EVP_aes_256_gcm();
};

ClipboardPayload textOf(std::size_t size)
{
    std::string text;
    while (text.size() < size) {
        text += fmt::format("Line {} of what somebody has copied\n", text.size());
    }
    text.resize(size);
    return {.kind = KestCore::ClipboardKind::text, .text = std::move(text)};
}

ClipboardPayload imageOf(std::size_t size)
{
    Base::Bytes image(size);
    std::uint32_t state = 1;
    for (std::uint8_t &byte : image) {
        state = state * 1'664'525 + 1'013'904'223;
        byte = static_cast<std::uint8_t>(state >> 24);
    }
    return {.kind = KestCore::ClipboardKind::image, .image = std::move(image)};
}

void addCipherRows(std::vector<Row> &rows, const char *size, const ClipboardPayload &payload,
                   int rounds, int repeats)
{
    const auto key = Base::AesKey::random();
    BareCipher bare{must(Base::json::encode(payload))};
    const std::string sealed = must(ClipboardCipher::seal(payload, key));
    const auto repeated = [repeats](auto work) {
        return [=] {
            for (int n = 0; n < repeats; ++n) {
                work();
            }
        };
    };
    const Pair sealing =
        measureByTurns(rounds, repeated([&] { must(ClipboardCipher::seal(payload, key)); }),
                       repeated([&] { bare.seal(); }));
    const Pair opening =
        measureByTurns(rounds, repeated([&] { must(ClipboardCipher::open(sealed, key)); }),
                       repeated([&] { bare.open(); }));
    rows.push_back(
        ratioRow(fmt::format("seal {} of clipboard, {} times", size, repeats), sealing, 2.0));
    rows.push_back(
        ratioRow(fmt::format("open {} of clipboard, {} times", size, repeats), opening, 2.0));
}

// Two thousand entries with a hundred images among them, and what SQLite alone needs to read
// all of their rows.
Row listRow()
{
    const auto file = freshFolder("clipboard") / "kest.sqlite";
    auto store = must(KestCore::StateStore::open(file));
    must(store.change([](KestCore::NativeState &state) -> Base::Result<void> {
        state.settings["clipboard.maxCount"] = "2000";
        return {};
    }));
    ClipboardHistory history{store, Base::AesKey::random()};
    const auto now = Base::wallClock();
    for (int n = 0; n < 2'000; ++n) {
        auto payload = n % 20 == 0 ? imageOf(100'000) : textOf(400);
        if (payload.image) {
            payload.image->front() = static_cast<std::uint8_t>(n / 20);
        } else if (payload.text) {
            payload.text->append(std::to_string(n));
        }
        must(history.add(payload, now + Base::Seconds{n / 100.0}));
    }
    if (must(history.list()).size() != 2'000) {
        giveUp("the history does not hold what was copied");
    }
    RawDatabase raw{file};
    const Pair seconds =
        measureByTurns(25, [&] { must(history.list()); }, [&] { raw.readAll(); });
    return durationRow("list a clipboard history of 2,000 entries", seconds, 0.030);
}

} // namespace

std::vector<Row> clipboardSuite()
{
    std::vector<Row> rows;
    addCipherRows(rows, "4 KB", textOf(4'096), 200, 100);
    addCipherRows(rows, "100 KB", textOf(100'000), 100, 10);
    addCipherRows(rows, "4 MB", imageOf(4'000'000), 40, 1);
    rows.push_back(listRow());
    return rows;
}

} // namespace Bench
