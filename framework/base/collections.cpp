// The run-time classes of the collections.

#include "afxcoll.h"

IMPLEMENT_DYNAMIC(CByteArray, CObject)
IMPLEMENT_DYNAMIC(CWordArray, CObject)
IMPLEMENT_DYNAMIC(CDWordArray, CObject)
IMPLEMENT_DYNAMIC(CUIntArray, CObject)
IMPLEMENT_DYNAMIC(CPtrArray, CObject)
IMPLEMENT_DYNAMIC(CObArray, CObject)
IMPLEMENT_DYNAMIC(CStringArray, CObject)
IMPLEMENT_DYNAMIC(CPtrList, CObject)
IMPLEMENT_DYNAMIC(CObList, CObject)
IMPLEMENT_DYNAMIC(CStringList, CObject)
IMPLEMENT_DYNAMIC(CMapWordToPtr, CObject)
IMPLEMENT_DYNAMIC(CMapPtrToWord, CObject)
IMPLEMENT_DYNAMIC(CMapPtrToPtr, CObject)
IMPLEMENT_DYNAMIC(CMapWordToOb, CObject)
IMPLEMENT_DYNAMIC(CMapStringToPtr, CObject)
IMPLEMENT_DYNAMIC(CMapStringToOb, CObject)
IMPLEMENT_DYNAMIC(CMapStringToString, CObject)

CPtrList::CPtrList(INT_PTR)
{
}

CObList::CObList(INT_PTR)
{
}

CStringList::CStringList(INT_PTR)
{
}

CMapWordToPtr::CMapWordToPtr(INT_PTR)
{
}

CMapPtrToWord::CMapPtrToWord(INT_PTR)
{
}

CMapPtrToPtr::CMapPtrToPtr(INT_PTR)
{
}

CMapWordToOb::CMapWordToOb(INT_PTR)
{
}

CMapStringToPtr::CMapStringToPtr(INT_PTR)
{
}

CMapStringToOb::CMapStringToOb(INT_PTR)
{
}

CMapStringToString::CMapStringToString(INT_PTR)
{
}
