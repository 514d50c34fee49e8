#pragma once
// What the array classes have in common.

#include "afx.h"

#include <cstring>
#include <type_traits>
#include <utility>

namespace framework
{
/// Elements side by side that grow as needed; their bytes are then moved, so no element may hold an address of its own.
/// New elements are value-initialised. An index outside throws CInvalidArgException.
template <class TYPE, class ARG_TYPE> class ArrayStorage : public CObject
{
public:
    ~ArrayStorage() override { Discard(); }

    INT_PTR GetSize() const { return m_size; }
    INT_PTR GetCount() const { return m_size; }
    BOOL IsEmpty() const { return m_size == 0; }
    INT_PTR GetUpperBound() const { return m_size - 1; }
    TYPE & ElementAt(INT_PTR nIndex) { return Checked(nIndex); }

    void SetSize(INT_PTR nNewSize, INT_PTR nGrowBy = -1)
    {
        if (nNewSize < 0)
            AfxThrowInvalidArgException();
        if (nGrowBy >= 0)
            m_growBy = nGrowBy;
        if (nNewSize == 0)
        {
            Discard();
            return;
        }
        Reserve(nNewSize);
        Destroy(nNewSize, m_size);
        for (; m_size < nNewSize; ++m_size)
            ::new (static_cast<void *>(m_data + m_size)) TYPE();
        m_size = nNewSize;
    }
    void FreeExtra()
    {
        if (m_size == m_capacity)
            return;
        if (m_size == 0)
            Discard();
        else
            Reallocate(m_size);
    }
    void RemoveAll() { SetSize(0); }
    void SetAt(INT_PTR nIndex, ARG_TYPE newElement) { Checked(nIndex) = newElement; }
    void SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement)
    {
        if (nIndex < 0)
            AfxThrowInvalidArgException();
        if (nIndex < m_size)
        {
            m_data[nIndex] = newElement;
            return;
        }
        // The argument may be an element of this array.
        TYPE element = TYPE();
        element = newElement;
        SetSize(nIndex + 1);
        m_data[nIndex] = std::move(element);
    }
    INT_PTR Add(ARG_TYPE newElement)
    {
        INT_PTR const index = m_size;
        SetAtGrow(index, newElement);
        return index;
    }
    void InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount = 1)
    {
        if (nIndex < 0 || nCount <= 0)
            AfxThrowInvalidArgException();
        TYPE element = TYPE();
        element = newElement;
        MakeGap(nIndex, nCount);
        for (INT_PTR i = 0; i < nCount; ++i)
            m_data[nIndex + i] = element;
    }
    void RemoveAt(INT_PTR nIndex, INT_PTR nCount = 1)
    {
        if (nIndex < 0 || nCount < 0 || nIndex > m_size || nCount > m_size - nIndex)
            AfxThrowInvalidArgException();
        if (nCount == 0)
            return;
        Destroy(nIndex, nIndex + nCount);
        Relocate(m_data + nIndex, m_data + nIndex + nCount, m_size - nIndex - nCount);
        m_size -= nCount;
    }

    void AssertValid() const override
    {
        CObject::AssertValid();
        ASSERT(m_size >= 0 && m_size <= m_capacity && (m_data != nullptr || m_capacity == 0));
    }
    void Dump(CDumpContext & dc) const override
    {
        CObject::Dump(dc);
        dc << "with " << static_cast<LONGLONG>(m_size) << " elements\n";
    }

protected:
    ArrayStorage() = default;

    TYPE * Data() const { return m_data; }
    TYPE & Checked(INT_PTR index) const
    {
        if (index < 0 || index >= m_size)
            AfxThrowInvalidArgException();
        return m_data[index];
    }
    void MakeGap(INT_PTR index, INT_PTR count)
    {
        if (index >= m_size)
        {
            SetSize(index + count);
            return;
        }
        Reserve(m_size + count);
        Relocate(m_data + index + count, m_data + index, m_size - index);
        for (INT_PTR i = index; i < index + count; ++i)
            ::new (static_cast<void *>(m_data + i)) TYPE();
        m_size += count;
    }
    /// Assign is called with where to, where from and how many.
    template <class Assign> INT_PTR AppendFrom(ArrayStorage const & source, Assign assign)
    {
        INT_PTR const oldSize = m_size;
        INT_PTR const count = source.m_size;
        if (count != 0)
        {
            SetSize(oldSize + count);
            assign(m_data + oldSize, source.m_data, count);
        }
        return oldSize;
    }
    template <class Assign> void CopyFrom(ArrayStorage const & source, Assign assign)
    {
        if (this == &source)
            return;
        SetSize(source.m_size);
        if (m_size != 0)
            assign(m_data, source.m_data, m_size);
    }
    void InsertFrom(INT_PTR index, ArrayStorage const * source)
    {
        if (source == nullptr || index < 0)
            AfxThrowInvalidArgException();
        INT_PTR const count = source->m_size;
        if (count == 0)
            return;
        MakeGap(index, count);
        for (INT_PTR i = 0; i < count; ++i)
        {
            // In the array itself the elements from index on have moved behind the gap.
            bool const moved = source == this && i >= index;
            m_data[index + i] = source->m_data[moved ? i + count : i];
        }
    }

private:
    static constexpr INT_PTR least_growth = 4;

    // Moves the bytes of elements to places that hold none, which may overlap with their old ones. No constructor or
    // assignment runs.
    static void Relocate(TYPE * target, TYPE * source, INT_PTR count)
    {
        if (count <= 0)
            return;
        std::memmove(static_cast<void *>(target), static_cast<void const *>(source),
                     static_cast<size_t>(count) * sizeof(TYPE));
    }
    void Destroy(INT_PTR first, INT_PTR end)
    {
        if constexpr (!std::is_trivially_destructible_v<TYPE>)
        {
            for (INT_PTR i = first; i < end; ++i)
                m_data[i].TYPE::~TYPE();
        }
    }
    void Discard()
    {
        Destroy(0, m_size);
        ::operator delete(m_data, std::align_val_t(alignof(TYPE)));
        m_data = nullptr;
        m_size = m_capacity = 0;
    }
    void Reserve(INT_PTR needed)
    {
        if (needed <= m_capacity)
            return;
        INT_PTR const half = m_size / 2;
        INT_PTR const growth = m_growBy > 0 ? m_growBy : half < least_growth ? least_growth : half;
        INT_PTR const least = m_data == nullptr ? m_growBy : m_capacity + growth;
        Reallocate(needed > least ? needed : least);
    }
    void Reallocate(INT_PTR capacity)
    {
        if (static_cast<size_t>(capacity) > static_cast<size_t>(PTRDIFF_MAX) / sizeof(TYPE))
            AfxThrowMemoryException();
        void * const memory =
            ::operator new(static_cast<size_t>(capacity) * sizeof(TYPE), std::align_val_t(alignof(TYPE)), std::nothrow);
        if (memory == nullptr)
            AfxThrowMemoryException();
        TYPE * const data = static_cast<TYPE *>(memory);
        Relocate(data, m_data, m_size);
        ::operator delete(m_data, std::align_val_t(alignof(TYPE)));
        m_data = data;
        m_capacity = capacity;
    }

    TYPE * m_data = nullptr;
    INT_PTR m_size = 0;
    INT_PTR m_capacity = 0;
    INT_PTR m_growBy = 0;
};

/// An array of plain values. CONST_RESULT is what reading an element of a constant array gives, CONST_DATA what its
/// elements look like.
template <class TYPE, class ARG_TYPE, class CONST_RESULT, class CONST_DATA> class PlainArray
    : public ArrayStorage<TYPE, ARG_TYPE>
{
    using Base = ArrayStorage<TYPE, ARG_TYPE>;

public:
    CONST_RESULT GetAt(INT_PTR nIndex) const { return this->Checked(nIndex); }
    CONST_RESULT operator[](INT_PTR nIndex) const { return this->Checked(nIndex); }
    TYPE & operator[](INT_PTR nIndex) { return this->Checked(nIndex); }
    CONST_DATA * GetData() const { return (CONST_DATA *)this->Data(); }
    TYPE * GetData() { return this->Data(); }
    INT_PTR Append(PlainArray const & src) { return this->AppendFrom(src, Assign); }
    void Copy(PlainArray const & src) { this->CopyFrom(src, Assign); }
    using Base::InsertAt;
    void InsertAt(INT_PTR nStartIndex, PlainArray * pNewArray) { this->InsertFrom(nStartIndex, pNewArray); }

protected:
    PlainArray() = default;

private:
    static void Assign(TYPE * target, TYPE const * source, INT_PTR count)
    {
        for (INT_PTR i = 0; i < count; ++i)
            target[i] = source[i];
    }
};
} // namespace framework
