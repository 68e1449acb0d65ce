#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <utility>

namespace inlinedoubles {

/// `count` doubles on the heap, all 0.0.
[[nodiscard]] std::unique_ptr<double[]> zeros(std::size_t count);
/// A copy on the heap of `count` doubles.
[[nodiscard]] std::unique_ptr<double[]> copyOf(const double *doubles, std::size_t count);

} // namespace inlinedoubles

/// A fixed number of doubles, all 0.0 at first. Up to `InPlace` of them live in the object itself;
/// only a larger number takes memory from the heap, so that work in two and three dimensions
/// allocates nothing.
template <std::size_t InPlace>
class InlineDoubles
{
public:
    /// Throws std::bad_alloc when `count` is above `InPlace` and there is no memory for it.
    explicit InlineDoubles(std::size_t count)
        : m_count(count)
    {
        if (count > InPlace)
            m_heap = inlinedoubles::zeros(count);
    }

    InlineDoubles(const InlineDoubles &other)
        : m_count(other.m_count)
        , m_place(other.m_place)
    {
        if (m_count > InPlace)
            m_heap = inlinedoubles::copyOf(other.data(), other.m_count);
    }

    /// A source that was on the heap is left with a single 0.0.
    InlineDoubles(InlineDoubles &&other) noexcept
        : m_count(other.m_count)
        , m_place(other.m_place)
    {
        if (m_count > InPlace)
            takeHeap(other);
    }

    InlineDoubles &operator=(const InlineDoubles &other)
    {
        if (this == &other)
            return *this;
        std::unique_ptr<double[]> heap;
        if (other.m_count > InPlace)
            heap = inlinedoubles::copyOf(other.data(), other.m_count);
        m_count = other.m_count;
        m_place = other.m_place;
        m_heap = std::move(heap);
        return *this;
    }

    InlineDoubles &operator=(InlineDoubles &&other) noexcept
    {
        if (this == &other)
            return *this;
        m_count = other.m_count;
        m_place = other.m_place;
        m_heap.reset();
        if (m_count > InPlace)
            takeHeap(other);
        return *this;
    }

    ~InlineDoubles() = default;

    [[nodiscard]] std::size_t size() const { return m_count; }
    [[nodiscard]] double *data() { return m_count > InPlace ? m_heap.get() : m_place.data(); }
    [[nodiscard]] const double *data() const
    {
        return m_count > InPlace ? m_heap.get() : m_place.data();
    }

    [[nodiscard]] double &operator[](std::size_t index) { return data()[index]; }
    [[nodiscard]] double operator[](std::size_t index) const { return data()[index]; }

    [[nodiscard]] double *begin() { return data(); }
    [[nodiscard]] double *end() { return data() + m_count; }
    [[nodiscard]] const double *begin() const { return data(); }
    [[nodiscard]] const double *end() const { return data() + m_count; }

private:
    void takeHeap(InlineDoubles &other)
    {
        m_heap = std::move(other.m_heap);
        other.m_count = 1;
        other.m_place = {};
    }

    std::size_t m_count;
    std::array<double, InPlace> m_place{};
    std::unique_ptr<double[]> m_heap;
};
