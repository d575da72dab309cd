// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <cstddef>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

namespace quillon {

// A list value that grows at its end. Copying it costs O(1), appending costs O(1) per element, and
// neither ever touches or moves the elements already there: copies share one storage and each knows
// how much of it is its own. (A log that is followed for hours is appended to twice a second; a
// QList would be copied whole whenever somebody still holds the former value.)
//
// Only the copy that reaches to the end of the storage can extend it in place; appending to any
// other copy first gives that copy a storage of its own. Not for use from several threads.
template <typename T>
class AppendOnlyList {
public:
    class ConstIterator {
    public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = T;
        using difference_type = std::ptrdiff_t;
        using pointer = const T*;
        using reference = const T&;

        ConstIterator() = default;
        ConstIterator(const AppendOnlyList* list, qsizetype index) : m_list(list), m_index(index) {}
        const T& operator*() const { return (*m_list)[m_index]; }
        const T* operator->() const { return &(*m_list)[m_index]; }
        ConstIterator& operator++()
        {
            ++m_index;
            return *this;
        }
        ConstIterator operator++(int)
        {
            ConstIterator before = *this;
            ++m_index;
            return before;
        }
        bool operator==(const ConstIterator& other) const = default;

    private:
        const AppendOnlyList* m_list = nullptr;
        qsizetype m_index = 0;
    };

    AppendOnlyList() = default;
    AppendOnlyList(const AppendOnlyList&) = default;
    AppendOnlyList& operator=(const AppendOnlyList&) = default;
    // A list that was moved from is empty.
    AppendOnlyList(AppendOnlyList&& other) noexcept
        : m_storage(std::move(other.m_storage)), m_size(std::exchange(other.m_size, 0))
    {
    }
    AppendOnlyList& operator=(AppendOnlyList&& other) noexcept
    {
        m_storage = std::move(other.m_storage);
        m_size = std::exchange(other.m_size, 0);
        return *this;
    }
    ~AppendOnlyList() = default;

    [[nodiscard]] qsizetype size() const { return m_size; }
    [[nodiscard]] bool isEmpty() const { return m_size == 0; }

    // The element at `index`, 0 ≤ index < size(). Its address is stable as long as any copy lives.
    [[nodiscard]] const T& operator[](qsizetype index) const
    {
        Q_ASSERT(index >= 0 && index < m_size);
        const auto position = static_cast<std::size_t>(index);
        return m_storage->chunks[position / kChunkSize][position % kChunkSize];
    }
    [[nodiscard]] const T& last() const { return (*this)[m_size - 1]; }

    [[nodiscard]] ConstIterator begin() const { return ConstIterator(this, 0); }
    [[nodiscard]] ConstIterator end() const { return ConstIterator(this, m_size); }

    void append(T element)
    {
        ownEndOfStorage();
        auto& chunks = m_storage->chunks;
        if (chunks.empty() || chunks.back().size() == kChunkSize) {
            chunks.emplace_back();
            chunks.back().reserve(kChunkSize);
        }
        chunks.back().push_back(std::move(element));
        ++m_storage->size;
        ++m_size;
    }

    void append(const AppendOnlyList& other)
    {
        // By number, since the other list may be this one.
        const qsizetype count = other.m_size;
        for (qsizetype i = 0; i < count; ++i) {
            append(other[i]);
        }
    }

    // True when this list is `older` with nothing or more appended to it, known in O(1) from the
    // shared storage. Lists that are equal by chance only are not told apart from different ones:
    // the answer for them is false.
    [[nodiscard]] bool isExtensionOf(const AppendOnlyList& older) const
    {
        return m_storage && m_storage == older.m_storage && m_size >= older.m_size;
    }

private:
    // Large enough that an element's share of the bookkeeping is nil, small enough that a short
    // log does not pay for a long one.
    static constexpr std::size_t kChunkSize = 512;

    struct Storage {
        std::vector<std::vector<T>> chunks;
        qsizetype size = 0;
    };

    void ownEndOfStorage()
    {
        if (m_storage && m_storage->size == m_size) {
            return;
        }
        auto storage = std::make_shared<Storage>();
        const AppendOnlyList shared = std::move(*this);
        m_storage = std::move(storage);
        for (const T& element : shared) {
            append(element);
        }
    }

    std::shared_ptr<Storage> m_storage;
    qsizetype m_size = 0;
};

} // namespace quillon
