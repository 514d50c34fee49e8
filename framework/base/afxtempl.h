#pragma once
// The collection templates, and the functions on elements that programs specialise for their own types.

#define __AFXTEMPL_H__

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

/// Stores or loads the bytes of elements as they are in memory. Elements that hold pointers need a specialisation.
template <class TYPE> void AFXAPI SerializeElements(CArchive & ar, TYPE * pElements, INT_PTR nCount)
{
    if (ar.IsStoring())
        framework::WriteBytes(ar, pElements, static_cast<size_t>(nCount) * sizeof(TYPE));
    else
        framework::ReadBytes(ar, static_cast<void *>(pElements), static_cast<size_t>(nCount) * sizeof(TYPE));
}

namespace framework
{
template <class Text> void SerializeTexts(CArchive & ar, Text * elements, INT_PTR count)
{
    for (INT_PTR i = 0; i < count; ++i)
    {
        if (ar.IsStoring())
            ar << elements[i];
        else
            ar >> elements[i];
    }
}
} // namespace framework

template <> inline void AFXAPI SerializeElements<CStringA>(CArchive & ar, CStringA * pElements, INT_PTR nCount)
{
    framework::SerializeTexts(ar, pElements, nCount);
}

template <> inline void AFXAPI SerializeElements<CStringW>(CArchive & ar, CStringW * pElements, INT_PTR nCount)
{
    framework::SerializeTexts(ar, pElements, nCount);
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

template <class TYPE, class ARG_TYPE = TYPE const &> class CArray : public framework::ArrayStorage<TYPE, ARG_TYPE>
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

    /// The number of elements, and all of them by one call of SerializeElements.
    void Serialize(CArchive & ar) override
    {
        Base::Serialize(ar);
        if (ar.IsStoring())
            ar.WriteCount(static_cast<DWORD_PTR>(this->GetSize()));
        else
            this->SetSize(static_cast<INT_PTR>(framework::ReadElementCount(ar, sizeof(TYPE))));
        SerializeElements<TYPE>(ar, this->Data(), this->GetSize());
    }

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

    /// The number of elements, and each by a call of SerializeElements. Loading adds to what is there.
    void Serialize(CArchive & ar) override
    {
        Base::Serialize(ar);
        if (ar.IsStoring())
        {
            ar.WriteCount(static_cast<DWORD_PTR>(this->GetCount()));
            for (POSITION pos = this->GetHeadPosition(); pos != nullptr;)
                SerializeElements<TYPE>(ar, &this->GetNext(pos), 1);
            return;
        }
        for (DWORD_PTR left = framework::ReadElementCount(ar, sizeof(TYPE)); left != 0; --left)
        {
            TYPE element = TYPE();
            SerializeElements<TYPE>(ar, &element, 1);
            this->AddTail(element);
        }
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

template <class KEY, class ARG_KEY = KEY const &, class VALUE = KEY, class ARG_VALUE = VALUE const &> class CMap
    : public framework::MapStorage<KEY, ARG_KEY, VALUE, ARG_VALUE, framework::TemplateKeys<KEY, ARG_KEY>>
{
public:
    explicit CMap(INT_PTR = 10) {}

    /// The number of pairs, and of each key and value by a call of SerializeElements. Loading adds to what is there.
    void Serialize(CArchive & ar) override
    {
        CObject::Serialize(ar);
        if (ar.IsStoring())
        {
            ar.WriteCount(static_cast<DWORD_PTR>(this->GetCount()));
            for (auto * pair = this->PGetFirstAssoc(); pair != nullptr; pair = this->PGetNextAssoc(pair))
            {
                SerializeElements<KEY>(ar, const_cast<KEY *>(&pair->key), 1);
                SerializeElements<VALUE>(ar, &pair->value, 1);
            }
            return;
        }
        DWORD_PTR left = framework::ReadElementCount(ar, sizeof(KEY) + sizeof(VALUE));
        for (this->PrepareToLoad(left); left != 0; --left)
        {
            KEY key = KEY();
            VALUE value = VALUE();
            SerializeElements<KEY>(ar, &key, 1);
            SerializeElements<VALUE>(ar, &value, 1);
            this->SetAt(key, value);
        }
    }
};

namespace framework
{
/// Whether an object that an archive gave is what the typed collection holds. Where the class is not known, or has no
/// run-time class, any object is.
template <class TYPE> bool IsOfKind(CObject const * object)
{
    if constexpr (requires { std::remove_pointer_t<TYPE>::GetThisClass(); })
        return object == nullptr || object->IsKindOf(std::remove_pointer_t<TYPE>::GetThisClass());
    else
        return true;
}

template <class TYPE> bool IsOfKind(void const *)
{
    return true;
}

[[noreturn]] inline void ThrowBadClass(CArchive & ar)
{
    AfxThrowArchiveException(CArchiveException::badClass, ar.GetFile()->GetFilePath());
}
} // namespace framework

// The typed collections of objects, when loaded, take no object of another class: the archive ends with badClass then,
// and the collection is empty.

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

    void Serialize(CArchive & ar) override
    {
        BASE_CLASS::Serialize(ar);
        for (INT_PTR i = 0; ar.IsLoading() && i < BASE_CLASS::GetSize(); ++i)
        {
            if (framework::IsOfKind<TYPE>(BASE_CLASS::GetAt(i)))
                continue;
            BASE_CLASS::RemoveAll();
            framework::ThrowBadClass(ar);
        }
    }
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

    void Serialize(CArchive & ar) override
    {
        BASE_CLASS::Serialize(ar);
        for (POSITION pos = ar.IsLoading() ? BASE_CLASS::GetHeadPosition() : nullptr; pos != nullptr;)
        {
            if (framework::IsOfKind<TYPE>(BASE_CLASS::GetNext(pos)))
                continue;
            BASE_CLASS::RemoveAll();
            framework::ThrowBadClass(ar);
        }
    }
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

    void Serialize(CArchive & ar) override
    {
        BASE_CLASS::Serialize(ar);
        if constexpr (std::is_same_v<typename BASE_CLASS::BASE_VALUE, CObject *>)
        {
            typename BASE_CLASS::BASE_KEY key{};
            CObject * value = nullptr;
            for (POSITION pos = ar.IsLoading() ? BASE_CLASS::GetStartPosition() : nullptr; pos != nullptr;)
            {
                BASE_CLASS::GetNextAssoc(pos, key, value);
                if (framework::IsOfKind<VALUE>(value))
                    continue;
                BASE_CLASS::RemoveAll();
                framework::ThrowBadClass(ar);
            }
        }
    }
};
