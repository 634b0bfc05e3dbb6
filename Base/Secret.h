// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <openssl/crypto.h>

#include <cstddef>
#include <cstdint>
#include <memory>
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

// Wipes a text at the end of the block, whichever way the block is left.
class WipeAtEnd
{
public:
    explicit WipeAtEnd(std::string &text) : m_text(text) {}
    ~WipeAtEnd() { wipe(m_text); }
    WipeAtEnd(const WipeAtEnd &) = delete;
    WipeAtEnd &operator=(const WipeAtEnd &) = delete;

private:
    std::string &m_text;
};

} // namespace Base
