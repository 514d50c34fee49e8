// The run-time classes of the collections.

#include "afxcoll.h"

#include <algorithm>

#define IMPLEMENT_SERIAL_COLLECTION(class_name) IMPLEMENT_SERIAL(class_name, CObject, 0)

namespace
{
/// Plain numbers, read in steps as long as there are bytes.
template <class Array> void SerializeNumbers(Array & array, CArchive & ar)
{
    constexpr DWORD_PTR step = 16384;
    constexpr size_t size = sizeof(*array.GetData());
    if (ar.IsStoring())
    {
        ar.WriteCount(static_cast<DWORD_PTR>(array.GetSize()));
        framework::WriteBytes(ar, array.GetData(), static_cast<size_t>(array.GetSize()) * size);
        return;
    }
    DWORD_PTR left = ar.ReadCount();
    array.SetSize(0);
    while (left != 0)
    {
        INT_PTR const had = array.GetSize();
        DWORD_PTR const count = std::min(left, step);
        array.SetSize(had + static_cast<INT_PTR>(count));
        framework::ReadBytes(ar, array.GetData() + had, count * size);
        left -= count;
    }
    array.FreeExtra();
}

template <class Array, class Element> void SerializeArray(Array & array, CArchive & ar, Element element)
{
    if (ar.IsStoring())
    {
        ar.WriteCount(static_cast<DWORD_PTR>(array.GetSize()));
        for (INT_PTR i = 0; i < array.GetSize(); ++i)
            ar << array.GetAt(i);
        return;
    }
    array.SetSize(0);
    for (DWORD_PTR left = ar.ReadCount(); left != 0; --left)
    {
        ar >> element;
        array.Add(element);
    }
    array.FreeExtra();
}

template <class List, class Element> void SerializeList(List & list, CArchive & ar, Element element)
{
    if (ar.IsStoring())
    {
        ar.WriteCount(static_cast<DWORD_PTR>(list.GetCount()));
        for (POSITION pos = list.GetHeadPosition(); pos != nullptr;)
            ar << list.GetNext(pos);
        return;
    }
    for (DWORD_PTR left = ar.ReadCount(); left != 0; --left)
    {
        ar >> element;
        list.AddTail(element);
    }
}

template <class Map, class Key, class Value> void SerializeMap(Map & map, CArchive & ar, Key key, Value value)
{
    if (ar.IsStoring())
    {
        ar.WriteCount(static_cast<DWORD_PTR>(map.GetCount()));
        for (POSITION pos = map.GetStartPosition(); pos != nullptr;)
        {
            map.GetNextAssoc(pos, key, value);
            ar << key << value;
        }
        return;
    }
    // Pointers count as themselves. NOLINTNEXTLINE(bugprone-sizeof-expression)
    DWORD_PTR left = framework::ReadElementCount(ar, sizeof(Key) + sizeof(Value));
    for (map.PrepareToLoad(left); left != 0; --left)
    {
        ar >> key >> value;
        map.SetAt(key, value);
    }
}
} // namespace
IMPLEMENT_SERIAL_COLLECTION(CByteArray)
IMPLEMENT_SERIAL_COLLECTION(CWordArray)
IMPLEMENT_SERIAL_COLLECTION(CDWordArray)
IMPLEMENT_DYNAMIC(CUIntArray, CObject)
IMPLEMENT_DYNAMIC(CPtrArray, CObject)
IMPLEMENT_SERIAL_COLLECTION(CObArray)
IMPLEMENT_SERIAL_COLLECTION(CStringArray)
IMPLEMENT_DYNAMIC(CPtrList, CObject)
IMPLEMENT_SERIAL_COLLECTION(CObList)
IMPLEMENT_SERIAL_COLLECTION(CStringList)
IMPLEMENT_DYNAMIC(CMapWordToPtr, CObject)
IMPLEMENT_DYNAMIC(CMapPtrToWord, CObject)
IMPLEMENT_DYNAMIC(CMapPtrToPtr, CObject)
IMPLEMENT_SERIAL_COLLECTION(CMapWordToOb)
IMPLEMENT_DYNAMIC(CMapStringToPtr, CObject)
IMPLEMENT_SERIAL_COLLECTION(CMapStringToOb)
IMPLEMENT_SERIAL_COLLECTION(CMapStringToString)

CPtrList::CPtrList(INT_PTR) {}

CObList::CObList(INT_PTR) {}

CStringList::CStringList(INT_PTR) {}

CMapWordToPtr::CMapWordToPtr(INT_PTR) {}

CMapPtrToWord::CMapPtrToWord(INT_PTR) {}

CMapPtrToPtr::CMapPtrToPtr(INT_PTR) {}

CMapWordToOb::CMapWordToOb(INT_PTR) {}

CMapStringToPtr::CMapStringToPtr(INT_PTR) {}

CMapStringToOb::CMapStringToOb(INT_PTR) {}

CMapStringToString::CMapStringToString(INT_PTR) {}

void CByteArray::Serialize(CArchive & ar)
{
    CObject::Serialize(ar);
    SerializeNumbers(*this, ar);
}

void CWordArray::Serialize(CArchive & ar)
{
    CObject::Serialize(ar);
    SerializeNumbers(*this, ar);
}

void CDWordArray::Serialize(CArchive & ar)
{
    CObject::Serialize(ar);
    SerializeNumbers(*this, ar);
}

void CObArray::Serialize(CArchive & ar)
{
    CObject::Serialize(ar);
    SerializeArray(*this, ar, static_cast<CObject *>(nullptr));
}

void CStringArray::Serialize(CArchive & ar)
{
    CObject::Serialize(ar);
    SerializeArray(*this, ar, CString());
}

void CObList::Serialize(CArchive & ar)
{
    CObject::Serialize(ar);
    SerializeList(*this, ar, static_cast<CObject *>(nullptr));
}

void CStringList::Serialize(CArchive & ar)
{
    CObject::Serialize(ar);
    SerializeList(*this, ar, CString());
}

void CMapWordToOb::Serialize(CArchive & ar)
{
    CObject::Serialize(ar);
    SerializeMap(*this, ar, WORD(), static_cast<CObject *>(nullptr));
}

void CMapStringToOb::Serialize(CArchive & ar)
{
    CObject::Serialize(ar);
    SerializeMap(*this, ar, CString(), static_cast<CObject *>(nullptr));
}

void CMapStringToString::Serialize(CArchive & ar)
{
    CObject::Serialize(ar);
    SerializeMap(*this, ar, CString(), CString());
}
