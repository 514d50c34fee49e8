#pragma once
// The collection templates, and the functions on elements that programs specialise for their own types.

#include "afxcoll.h"

template <class TYPE> void AFXAPI CopyElements(TYPE * pDest, TYPE const * pSrc, INT_PTR nCount)
{
    for (INT_PTR i = 0; i < nCount; ++i)
        pDest[i] = pSrc[i];
}

template <class TYPE> void AFXAPI DumpElements(CDumpContext &, TYPE const *, INT_PTR)
{
    // Elements of unknown type have no text.
}

template <class TYPE, class ARG_TYPE> BOOL AFXAPI CompareElements(TYPE const * pElement1, ARG_TYPE const * pElement2)
{
    return *pElement1 == *pElement2;
}

/// Text is hashed by its characters, numbers and pointers by value. Other keys need a specialisation.
template <class ARG_KEY> UINT AFXAPI HashKey(ARG_KEY key)
{
    if constexpr (std::is_convertible_v<ARG_KEY, LPCWSTR>)
        return framework::HashText(static_cast<LPCWSTR>(key));
    else if constexpr (std::is_convertible_v<ARG_KEY, LPCSTR>)
        return framework::HashText(static_cast<LPCSTR>(key));
    else
        return framework::HashNumber((DWORD_PTR)key);
}

namespace framework
{
template <class KEY, class ARG_KEY> struct TemplateKeys
{
    static UINT Hash(ARG_KEY key) { return HashKey<ARG_KEY>(key); }
    static bool Same(KEY const & a, ARG_KEY b)
    {
        std::remove_reference_t<ARG_KEY> const & key = b;
        return CompareElements(&a, &key) != FALSE;
    }
};
} // namespace framework

template <class TYPE, class ARG_TYPE = TYPE const &>
class CArray : public framework::ArrayStorage<TYPE, ARG_TYPE>
{
    using Base = framework::ArrayStorage<TYPE, ARG_TYPE>;

public:
    CArray() = default;

    TYPE & GetAt(INT_PTR nIndex) { return this->Checked(nIndex); }
    TYPE const & GetAt(INT_PTR nIndex) const { return this->Checked(nIndex); }
    TYPE & ElementAt(INT_PTR nIndex) { return this->Checked(nIndex); }
    TYPE const & ElementAt(INT_PTR nIndex) const { return this->Checked(nIndex); }
    TYPE & operator[](INT_PTR nIndex) { return this->Checked(nIndex); }
    TYPE const & operator[](INT_PTR nIndex) const { return this->Checked(nIndex); }
    TYPE const * GetData() const { return this->Data(); }
    TYPE * GetData() { return this->Data(); }
    INT_PTR Append(CArray const & src) { return this->AppendFrom(src, &CopyElements<TYPE>); }
    void Copy(CArray const & src) { this->CopyFrom(src, &CopyElements<TYPE>); }
    using Base::InsertAt;
    void InsertAt(INT_PTR nStartIndex, CArray * pNewArray) { this->InsertFrom(nStartIndex, pNewArray); }

    void Dump(CDumpContext & dc) const override
    {
        Base::Dump(dc);
        if (dc.GetDepth() > 0)
            DumpElements<TYPE>(dc, this->Data(), this->GetCount());
    }
};

template <class TYPE, class ARG_TYPE = TYPE const &> class CList : public framework::ListStorage<TYPE, ARG_TYPE>
{
    using Base = framework::ListStorage<TYPE, ARG_TYPE>;

public:
    explicit CList(INT_PTR = 10) {}

    using Base::AddHead;
    using Base::AddTail;
    void AddHead(CList * pNewList) { this->AddListAtHead(pNewList); }
    void AddTail(CList * pNewList) { this->AddListAtTail(pNewList); }
    POSITION Find(ARG_TYPE searchValue, POSITION startAfter = nullptr) const
    {
        std::remove_reference_t<ARG_TYPE> const & wanted = searchValue;
        return this->FindWhere(startAfter, [&](TYPE const & value) { return CompareElements(&value, &wanted); });
    }

    void Dump(CDumpContext & dc) const override
    {
        Base::Dump(dc);
        if (dc.GetDepth() <= 0)
            return;
        for (POSITION pos = this->GetHeadPosition(); pos != nullptr;)
            DumpElements<TYPE>(dc, &this->GetNext(pos), 1);
    }
};

template <class KEY, class ARG_KEY = KEY const &, class VALUE = KEY, class ARG_VALUE = VALUE const &>
class CMap : public framework::MapStorage<KEY, ARG_KEY, VALUE, ARG_VALUE, framework::TemplateKeys<KEY, ARG_KEY>>
{
public:
    explicit CMap(INT_PTR = 10) {}
};

template <class BASE_CLASS, class TYPE> class CTypedPtrArray : public BASE_CLASS
{
public:
    TYPE GetAt(INT_PTR nIndex) const { return (TYPE)BASE_CLASS::GetAt(nIndex); }
    TYPE & ElementAt(INT_PTR nIndex) { return (TYPE &)BASE_CLASS::ElementAt(nIndex); }
    void SetAt(INT_PTR nIndex, TYPE ptr) { BASE_CLASS::SetAt(nIndex, ptr); }
    void SetAtGrow(INT_PTR nIndex, TYPE newElement) { BASE_CLASS::SetAtGrow(nIndex, newElement); }
    INT_PTR Add(TYPE newElement) { return BASE_CLASS::Add(newElement); }
    INT_PTR Append(CTypedPtrArray const & src) { return BASE_CLASS::Append(src); }
    void Copy(CTypedPtrArray const & src) { BASE_CLASS::Copy(src); }
    void InsertAt(INT_PTR nIndex, TYPE newElement, INT_PTR nCount = 1)
    {
        BASE_CLASS::InsertAt(nIndex, newElement, nCount);
    }
    void InsertAt(INT_PTR nStartIndex, CTypedPtrArray * pNewArray) { BASE_CLASS::InsertAt(nStartIndex, pNewArray); }
    TYPE operator[](INT_PTR nIndex) const { return (TYPE)BASE_CLASS::GetAt(nIndex); }
    TYPE & operator[](INT_PTR nIndex) { return (TYPE &)BASE_CLASS::ElementAt(nIndex); }
};

template <class BASE_CLASS, class TYPE> class CTypedPtrList : public BASE_CLASS
{
public:
    explicit CTypedPtrList(INT_PTR nBlockSize = 10) : BASE_CLASS(nBlockSize) {}

    TYPE & GetHead() { return (TYPE &)BASE_CLASS::GetHead(); }
    TYPE GetHead() const { return (TYPE)BASE_CLASS::GetHead(); }
    TYPE & GetTail() { return (TYPE &)BASE_CLASS::GetTail(); }
    TYPE GetTail() const { return (TYPE)BASE_CLASS::GetTail(); }
    TYPE RemoveHead() { return (TYPE)BASE_CLASS::RemoveHead(); }
    TYPE RemoveTail() { return (TYPE)BASE_CLASS::RemoveTail(); }
    POSITION AddHead(TYPE newElement) { return BASE_CLASS::AddHead(newElement); }
    POSITION AddTail(TYPE newElement) { return BASE_CLASS::AddTail(newElement); }
    void AddHead(CTypedPtrList * pNewList) { BASE_CLASS::AddHead(pNewList); }
    void AddTail(CTypedPtrList * pNewList) { BASE_CLASS::AddTail(pNewList); }
    TYPE & GetNext(POSITION & rPosition) { return (TYPE &)BASE_CLASS::GetNext(rPosition); }
    TYPE GetNext(POSITION & rPosition) const { return (TYPE)BASE_CLASS::GetNext(rPosition); }
    TYPE & GetPrev(POSITION & rPosition) { return (TYPE &)BASE_CLASS::GetPrev(rPosition); }
    TYPE GetPrev(POSITION & rPosition) const { return (TYPE)BASE_CLASS::GetPrev(rPosition); }
    TYPE & GetAt(POSITION position) { return (TYPE &)BASE_CLASS::GetAt(position); }
    TYPE GetAt(POSITION position) const { return (TYPE)BASE_CLASS::GetAt(position); }
    void SetAt(POSITION pos, TYPE newElement) { BASE_CLASS::SetAt(pos, newElement); }
};

template <class BASE_CLASS, class KEY, class VALUE> class CTypedPtrMap : public BASE_CLASS
{
public:
    explicit CTypedPtrMap(INT_PTR nBlockSize = 10) : BASE_CLASS(nBlockSize) {}

    BOOL Lookup(typename BASE_CLASS::BASE_ARG_KEY key, VALUE & rValue) const
    {
        typename BASE_CLASS::BASE_VALUE value{};
        if (!BASE_CLASS::Lookup(key, value))
            return FALSE;
        rValue = (VALUE)value;
        return TRUE;
    }
    VALUE & operator[](typename BASE_CLASS::BASE_ARG_KEY key) { return (VALUE &)BASE_CLASS::operator[](key); }
    void SetAt(KEY key, VALUE newValue) { BASE_CLASS::SetAt(key, newValue); }
    BOOL RemoveKey(KEY key) { return BASE_CLASS::RemoveKey(key); }
    void GetNextAssoc(POSITION & rNextPosition, KEY & rKey, VALUE & rValue) const
    {
        typename BASE_CLASS::BASE_KEY key{};
        typename BASE_CLASS::BASE_VALUE value{};
        BASE_CLASS::GetNextAssoc(rNextPosition, key, value);
        rKey = (KEY)key;
        rValue = (VALUE)value;
    }
};
