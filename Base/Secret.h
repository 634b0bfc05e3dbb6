// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <openssl/crypto.h>

#include <cstddef>
#include <cstdint>
#include <expected>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// Memory that is overwritten before it is given back, so that what was secret in it does not
// turn up in a core dump or in somebody else's buffer.
namespace Base
{

template <class T>
struct WipingAllocator {
    using value_type = T;

    WipingAllocator() = default;
    template <class U>
    WipingAllocator(
        const WipingAllocator<U> &) noexcept // NOLINT(*-explicit-*): as allocators do
    {
    }

    T *allocate(std::size_t count) { return std::allocator<T>{}.allocate(count); }
    void deallocate(T *memory, std::size_t count) noexcept
    {
        OPENSSL_cleanse(memory, count * sizeof(T));
        std::allocator<T>{}.deallocate(memory, count);
    }

    bool operator==(const WipingAllocator &) const = default;
};

// A vector has no small buffer inside itself that the allocator would not see.
using SecretBytes = std::vector<std::uint8_t, WipingAllocator<std::uint8_t>>;

inline void wipe(std::string &text)
{
    OPENSSL_cleanse(text.data(), text.capacity());
    text.clear();
}

inline void wipe(std::vector<std::uint8_t> &bytes)
{
    OPENSSL_cleanse(bytes.data(), bytes.capacity());
    bytes.clear();
}

template <class T>
void wipe(std::optional<T> &value)
{
    if (value) {
        wipe(*value);
    }
}

template <class T, class E>
void wipe(std::expected<T, E> &value)
{
    if (value) {
        wipe(*value);
    }
}

// Wipes what it is given at the end of the block, whichever way the block is left: a text,
// bytes, or a record that has a `wipe` of its own.
template <class T>
class WipeAtEnd
{
public:
    explicit WipeAtEnd(T &value) : m_value(value) {}
    ~WipeAtEnd() { wipe(m_value); }
    WipeAtEnd(const WipeAtEnd &) = delete;
    WipeAtEnd &operator=(const WipeAtEnd &) = delete;

private:
    T &m_value;
};

} // namespace Base
