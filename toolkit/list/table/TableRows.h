#pragma once
// An array of row numbers that gives memory back in place.

#include <cstddef>
#include <cstdlib>
#include <new>
#include <span>
#include <utility>

#include "list/table/TableSource.h"

/// Row numbers, four bytes each. Unlike a vector it can grow and shrink where it stands, as the system allows.
class TableRows
{
public:
    TableRows() = default;
    TableRows(TableRows && other) noexcept { Swap(other); }
    TableRows & operator=(TableRows && other) noexcept
    {
        TableRows taken(std::move(other));
        Swap(taken);
        return *this;
    }
    ~TableRows() { std::free(m_rows); }

    std::size_t size() const { return m_size; }
    bool empty() const { return m_size == 0; }
    std::size_t capacity() const { return m_capacity; }
    TableRow * data() { return m_rows; }
    TableRow operator[](std::size_t at) const { return m_rows[at]; }
    TableRow & operator[](std::size_t at) { return m_rows[at]; }
    TableRow const * begin() const { return m_rows; }
    TableRow const * end() const { return m_rows + m_size; }
    std::span<TableRow const> All() const { return {m_rows, m_size}; }

    void push_back(TableRow row)
    {
        if (m_size == m_capacity)
            Reserve(m_capacity + m_capacity / 4 + 64);
        m_rows[m_size++] = row;
    }
    /// New rows have any number.
    void Resize(std::size_t size)
    {
        if (size > m_capacity)
            Reserve(size);
        m_size = size;
    }
    void Fit()
    {
        if (m_size != m_capacity)
            Reserve(m_size);
    }
    void Swap(TableRows & other) noexcept
    {
        std::swap(m_rows, other.m_rows);
        std::swap(m_size, other.m_size);
        std::swap(m_capacity, other.m_capacity);
    }

private:
    void Reserve(std::size_t capacity)
    {
        if (capacity == 0)
        {
            std::free(std::exchange(m_rows, nullptr));
            m_capacity = 0;
            return;
        }
        void * const rows = std::realloc(m_rows, capacity * sizeof(TableRow));
        if (rows == nullptr)
            throw std::bad_alloc();
        m_rows = static_cast<TableRow *>(rows);
        m_capacity = capacity;
    }

    TableRow * m_rows = nullptr;
    std::size_t m_size = 0;
    std::size_t m_capacity = 0;
};
