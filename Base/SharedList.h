// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace Base
{

// A list whose copies share one immutable block, so that copying a record that holds a
// hundred thousand entries costs a pointer. Changing a list gives it a block of its own.
template <class T>
class SharedList
{
public:
    SharedList() = default;
    explicit SharedList(std::vector<T> items)
        : m_block(std::make_shared<const Block>(std::move(items)))
    {
    }

    const std::vector<T> &items() const
    {
        static const std::vector<T> kNone;
        return m_block ? m_block->items : kNone;
    }
    auto begin() const { return items().begin(); }
    auto end() const { return items().end(); }
    std::size_t size() const { return items().size(); }
    bool empty() const { return items().empty(); }
    const T &operator[](std::size_t index) const { return items()[index]; }

    // True when both show the very same block: equal without looking at the entries.
    bool sharesBlockWith(const SharedList &other) const { return m_block == other.m_block; }

    void append(T item)
    {
        std::vector<T> next;
        next.reserve(size() + 1);
        next.assign(begin(), end());
        next.push_back(std::move(item));
        const std::size_t verified = verifiedCount();
        m_block = std::make_shared<const Block>(std::move(next));
        rememberVerified(verified);
    }

    // How many leading entries have passed their rules before. The rules depend on the
    // entry alone, and entries never change, so what passed once need not be tested again.
    std::size_t verifiedCount() const { return m_block ? m_block->verified.load() : 0; }
    void rememberVerified(std::size_t count) const
    {
        if (m_block) {
            m_block->verified.store(count);
        }
    }

    bool operator==(const SharedList &other) const
    {
        return sharesBlockWith(other) || items() == other.items();
    }

private:
    struct Block {
        explicit Block(std::vector<T> list) : items(std::move(list)) {}

        const std::vector<T> items;
        mutable std::atomic<std::size_t> verified{0};
    };

    std::shared_ptr<const Block> m_block;
};

} // namespace Base
