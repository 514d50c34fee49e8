#pragma once
// The collections of fixed element types. An archive holds the number of the elements, then each; loading replaces what
// an array has and adds to lists and maps.

#define __AFXCOLL_H__

#include "ArrayTemplate.h"
#include "ListTemplate.h"
#include "MapTemplate.h"

class FRAMEWORK_API CByteArray : public framework::PlainArray<BYTE, BYTE, BYTE, BYTE const>
{
    DECLARE_DYNCREATE(CByteArray)
    CByteArray() = default;
    void Serialize(CArchive & ar) override;
};
FRAMEWORK_API CArchive & AFXAPI operator>>(CArchive & ar, CByteArray *& pOb);

class FRAMEWORK_API CWordArray : public framework::PlainArray<WORD, WORD, WORD, WORD const>
{
    DECLARE_DYNCREATE(CWordArray)
    CWordArray() = default;
    void Serialize(CArchive & ar) override;
};
FRAMEWORK_API CArchive & AFXAPI operator>>(CArchive & ar, CWordArray *& pOb);

class FRAMEWORK_API CDWordArray : public framework::PlainArray<DWORD, DWORD, DWORD, DWORD const>
{
    DECLARE_DYNCREATE(CDWordArray)
    CDWordArray() = default;
    void Serialize(CArchive & ar) override;
};
FRAMEWORK_API CArchive & AFXAPI operator>>(CArchive & ar, CDWordArray *& pOb);

class FRAMEWORK_API CUIntArray : public framework::PlainArray<UINT, UINT, UINT, UINT const>
{
    DECLARE_DYNAMIC(CUIntArray)
    CUIntArray() = default;
};

class FRAMEWORK_API CPtrArray : public framework::PlainArray<void *, void *, void *, void const *>
{
    DECLARE_DYNAMIC(CPtrArray)
    CPtrArray() = default;
};

class FRAMEWORK_API CObArray : public framework::PlainArray<CObject *, CObject *, CObject *, CObject const *>
{
    DECLARE_DYNCREATE(CObArray)
    CObArray() = default;
    void Serialize(CArchive & ar) override;
};
FRAMEWORK_API CArchive & AFXAPI operator>>(CArchive & ar, CObArray *& pOb);

class FRAMEWORK_API CStringArray
    : public framework::PlainArray<CString, CString const &, CString const &, CString const>
{
    DECLARE_DYNCREATE(CStringArray)
    CStringArray() = default;
    void Serialize(CArchive & ar) override;
};
FRAMEWORK_API CArchive & AFXAPI operator>>(CArchive & ar, CStringArray *& pOb);

// The block size of lists and maps is accepted; each element is allocated for itself.

class FRAMEWORK_API CPtrList : public framework::PlainList<void *, void *>
{
    DECLARE_DYNAMIC(CPtrList)
    explicit CPtrList(INT_PTR nBlockSize = 10);
};

class FRAMEWORK_API CObList : public framework::PlainList<CObject *, CObject *>
{
    DECLARE_DYNCREATE(CObList)
    explicit CObList(INT_PTR nBlockSize = 10);
    void Serialize(CArchive & ar) override;
};
FRAMEWORK_API CArchive & AFXAPI operator>>(CArchive & ar, CObList *& pOb);

class FRAMEWORK_API CStringList : public framework::PlainList<CString, CString const &>
{
    DECLARE_DYNCREATE(CStringList)
    explicit CStringList(INT_PTR nBlockSize = 10);
    void Serialize(CArchive & ar) override;
};
FRAMEWORK_API CArchive & AFXAPI operator>>(CArchive & ar, CStringList *& pOb);

class FRAMEWORK_API CMapWordToPtr : public framework::PlainMap<WORD, void *>
{
    DECLARE_DYNAMIC(CMapWordToPtr)
    using BASE_KEY = WORD;
    using BASE_ARG_KEY = WORD;
    using BASE_VALUE = void *;
    using BASE_ARG_VALUE = void *;
    explicit CMapWordToPtr(INT_PTR nBlockSize = 10);
};

class FRAMEWORK_API CMapPtrToWord : public framework::PlainMap<void *, WORD>
{
    DECLARE_DYNAMIC(CMapPtrToWord)
    using BASE_KEY = void *;
    using BASE_ARG_KEY = void *;
    using BASE_VALUE = WORD;
    using BASE_ARG_VALUE = WORD;
    explicit CMapPtrToWord(INT_PTR nBlockSize = 10);
};

class FRAMEWORK_API CMapPtrToPtr : public framework::PlainMap<void *, void *>
{
    DECLARE_DYNAMIC(CMapPtrToPtr)
    using BASE_KEY = void *;
    using BASE_ARG_KEY = void *;
    using BASE_VALUE = void *;
    using BASE_ARG_VALUE = void *;
    explicit CMapPtrToPtr(INT_PTR nBlockSize = 10);
};

class FRAMEWORK_API CMapWordToOb : public framework::PlainMap<WORD, CObject *>
{
    DECLARE_DYNCREATE(CMapWordToOb)
    using BASE_KEY = WORD;
    using BASE_ARG_KEY = WORD;
    using BASE_VALUE = CObject *;
    using BASE_ARG_VALUE = CObject *;
    explicit CMapWordToOb(INT_PTR nBlockSize = 10);
    void Serialize(CArchive & ar) override;
};
FRAMEWORK_API CArchive & AFXAPI operator>>(CArchive & ar, CMapWordToOb *& pOb);

class FRAMEWORK_API CMapStringToPtr : public framework::StringMap<void *, void *>
{
    DECLARE_DYNAMIC(CMapStringToPtr)
    using BASE_KEY = CString;
    using BASE_ARG_KEY = LPCTSTR;
    using BASE_VALUE = void *;
    using BASE_ARG_VALUE = void *;
    explicit CMapStringToPtr(INT_PTR nBlockSize = 10);
};

class FRAMEWORK_API CMapStringToOb : public framework::StringMap<CObject *, CObject *>
{
    DECLARE_DYNCREATE(CMapStringToOb)
    using BASE_KEY = CString;
    using BASE_ARG_KEY = LPCTSTR;
    using BASE_VALUE = CObject *;
    using BASE_ARG_VALUE = CObject *;
    explicit CMapStringToOb(INT_PTR nBlockSize = 10);
    void Serialize(CArchive & ar) override;
};
FRAMEWORK_API CArchive & AFXAPI operator>>(CArchive & ar, CMapStringToOb *& pOb);

class FRAMEWORK_API CMapStringToString : public framework::StringMap<CString, LPCTSTR>
{
    DECLARE_DYNCREATE(CMapStringToString)
    using BASE_KEY = CString;
    using BASE_ARG_KEY = LPCTSTR;
    using BASE_VALUE = CString;
    using BASE_ARG_VALUE = LPCTSTR;
    explicit CMapStringToString(INT_PTR nBlockSize = 10);
    void Serialize(CArchive & ar) override;
};
FRAMEWORK_API CArchive & AFXAPI operator>>(CArchive & ar, CMapStringToString *& pOb);
