#pragma once
// The window-free part of the framework: CObject, run-time classes, diagnostics, exceptions, strings, times, files and
// archives.

#define __AFX_H__

#include "afxver_.h"
#include "atlstr.h"
#include "atltime.h"
#include "atltypes.h"

#include <new>

class CArchive;
class CObject;
class CDumpContext;
class CException;

// Diagnostics

/// Reports a failed assertion to the handler that a test has installed, else to the user. TRUE: break here.
FRAMEWORK_API BOOL AFXAPI AfxAssertFailedLine(LPCSTR lpszFileName, int nLine);
FRAMEWORK_API void AFXAPI AfxAssertValidObject(CObject const * pOb, LPCSTR lpszFileName, int nLine);
FRAMEWORK_API void AFXAPI AfxDebugBreak();
[[noreturn]] FRAMEWORK_API void AFXAPI AfxAbort();
FRAMEWORK_API void AFXAPI AfxDump(CObject const * pOb);
FRAMEWORK_API BOOL AFXAPI AfxIsValidAddress(void const * lp, UINT_PTR nBytes, BOOL bReadWrite = TRUE);
FRAMEWORK_API BOOL AFXAPI AfxIsValidString(LPCSTR lpsz, int nLength = -1);
FRAMEWORK_API BOOL AFXAPI AfxIsValidString(LPCWSTR lpsz, int nLength = -1);

namespace framework
{
FRAMEWORK_API void TraceText(char const * text);
FRAMEWORK_API void TraceText(wchar_t const * text);

template <class... Arguments> void Trace(char const * format, Arguments const &... arguments)
{
    CStringA text;
    text.Format(format, arguments...);
    TraceText(text.GetString());
}

template <class... Arguments> void Trace(wchar_t const * format, Arguments const &... arguments)
{
    CStringW text;
    text.Format(format, arguments...);
    TraceText(text.GetString());
}

template <class Char, class... Arguments> void Trace(DWORD, UINT, Char const * format, Arguments const &... arguments)
{
    Trace(format, arguments...);
}
} // namespace framework

#ifdef _DEBUG
#define THIS_FILE __FILE__
#define ASSERT(f) (void)(!!(f) || (::AfxAssertFailedLine(__FILE__, __LINE__) && (::AfxDebugBreak(), false)))
#define VERIFY(f) ASSERT(f)
#define ASSERT_VALID(pOb) (::AfxAssertValidObject(pOb, __FILE__, __LINE__))
#define DEBUG_ONLY(f) (f)
#define TRACE ::framework::Trace
#define DEBUG_NEW new (__FILE__, __LINE__)
#else
#define THIS_FILE __FILE__
#define ASSERT(f) ((void)0)
#define VERIFY(f) ((void)(f))
#define ASSERT_VALID(pOb) ((void)0)
#define DEBUG_ONLY(f) ((void)0)
#define TRACE(...) ((void)0)
#define DEBUG_NEW new
#endif
#define TRACE0(sz) TRACE(_T("%s"), _T(sz))
#define TRACE1(sz, p1) TRACE(_T(sz), p1)
#define TRACE2(sz, p1, p2) TRACE(_T(sz), p1, p2)
#define TRACE3(sz, p1, p2, p3) TRACE(_T(sz), p1, p2, p3)
#define ASSERT_POINTER(p, type) ASSERT(((p) != nullptr) && ::AfxIsValidAddress((p), sizeof(type), FALSE))
#define ASSERT_NULL_OR_POINTER(p, type) ASSERT(((p) == nullptr) || ::AfxIsValidAddress((p), sizeof(type), FALSE))
#define ENSURE_THROW(cond, exception)                                                                                  \
    do                                                                                                                 \
    {                                                                                                                  \
        bool const framework_holds = !!(cond);                                                                         \
        ASSERT(framework_holds);                                                                                       \
        if (!framework_holds)                                                                                          \
        {                                                                                                              \
            exception;                                                                                                 \
        }                                                                                                              \
    } while (false)
#define ENSURE(cond) ENSURE_THROW(cond, ::AfxThrowInvalidArgException())
#define ENSURE_ARG(cond) ENSURE(cond)
#define ENSURE_VALID_THROW(pOb, exception)                                                                             \
    do                                                                                                                 \
    {                                                                                                                  \
        ASSERT_VALID(pOb);                                                                                             \
        if ((pOb) == nullptr)                                                                                          \
        {                                                                                                              \
            exception;                                                                                                 \
        }                                                                                                              \
    } while (false)
#define ENSURE_VALID(pOb) ENSURE_VALID_THROW(pOb, ::AfxThrowInvalidArgException())

// Run-time classes

struct FRAMEWORK_API CRuntimeClass
{
    LPCSTR m_lpszClassName;
    int m_nObjectSize;
    UINT m_wSchema;
    CObject *(PASCAL * m_pfnCreateObject)();
    CRuntimeClass *(PASCAL * m_pfnGetBaseClass)();
    // Written when the class is registered, which happens to constant objects.
    mutable CRuntimeClass const * m_pNextClass;

    /// Null for a class without dynamic creation.
    CObject * CreateObject();
    BOOL IsDerivedFrom(CRuntimeClass const * pBaseClass) const;
    static CRuntimeClass * PASCAL FromName(LPCSTR lpszClassName);
    static CRuntimeClass * PASCAL FromName(LPCWSTR lpszClassName);
    static CObject * PASCAL CreateObject(LPCSTR lpszClassName);
    static CObject * PASCAL CreateObject(LPCWSTR lpszClassName);

    /// Schema and name. A name of more than 255 characters is not supported.
    void Store(CArchive & ar) const;
    /// Null for a class that isn't there.
    static CRuntimeClass * PASCAL Load(CArchive & ar, UINT * pwSchemaNum);
};

/// Keeps a class in the list of all classes for as long as its module is loaded.
struct FRAMEWORK_API AFX_CLASSINIT
{
    explicit AFX_CLASSINIT(CRuntimeClass const * pNewClass);
    AFX_CLASSINIT(AFX_CLASSINIT const &) = delete;
    AFX_CLASSINIT & operator=(AFX_CLASSINIT const &) = delete;
    ~AFX_CLASSINIT();

private:
    CRuntimeClass const * m_class;
};

FRAMEWORK_API void AFXAPI AfxDoForAllClasses(void(AFX_CDECL * pfn)(CRuntimeClass const * pClass, void * pContext),
                                             void * pContext);
FRAMEWORK_API CObject * AFX_CDECL AfxDynamicDownCast(CRuntimeClass * pClass, CObject * pObject);
FRAMEWORK_API CObject * AFX_CDECL AfxStaticDownCast(CRuntimeClass * pClass, CObject * pObject);

#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

#define DECLARE_RUNTIMECLASS(class_name)                                                                               \
protected:                                                                                                             \
    static CRuntimeClass * PASCAL _GetBaseClass();                                                                     \
                                                                                                                       \
public:                                                                                                                \
    static const CRuntimeClass class##class_name;                                                                      \
    static CRuntimeClass * PASCAL GetThisClass();

#define DECLARE_DYNAMIC(class_name)                                                                                    \
    DECLARE_RUNTIMECLASS(class_name)                                                                                   \
    virtual CRuntimeClass * GetRuntimeClass() const override;

class FRAMEWORK_API AFX_NOVTABLE CObject
{
    DECLARE_RUNTIMECLASS(CObject)
public:
    virtual ~CObject();
    virtual CRuntimeClass * GetRuntimeClass() const;
    BOOL IsKindOf(CRuntimeClass const * pClass) const;
    BOOL IsSerializable() const;
    /// Stores the object in the archive or loads it from there, as ar.IsStoring says.
    virtual void Serialize(CArchive & ar);
    virtual void AssertValid() const;
    virtual void Dump(CDumpContext & dc) const;

    static void * PASCAL operator new(size_t nSize);
    static void * PASCAL operator new(size_t, void * p);
    static void * PASCAL operator new(size_t nSize, LPCSTR lpszFileName, int nLine);
    static void PASCAL operator delete(void * p);
    static void PASCAL operator delete(void * p, void * pPlace);
    static void PASCAL operator delete(void * p, LPCSTR lpszFileName, int nLine);

protected:
    CObject();

private:
    CObject(CObject const & objectSrc) = delete;
    void operator=(CObject const & objectSrc) = delete;
};

#define DECLARE_DYNCREATE(class_name)                                                                                  \
    DECLARE_DYNAMIC(class_name)                                                                                        \
    static CObject * PASCAL CreateObject();

#define IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, wSchema, pfnNew)                                           \
    CRuntimeClass * PASCAL class_name::_GetBaseClass()                                                                 \
    {                                                                                                                  \
        return RUNTIME_CLASS(base_class_name);                                                                         \
    }                                                                                                                  \
    constinit const CRuntimeClass class_name::class##class_name = {#class_name, sizeof(class class_name),   wSchema,   \
                                                                   pfnNew,      &class_name::_GetBaseClass, nullptr};  \
    CRuntimeClass * PASCAL class_name::GetThisClass()                                                                  \
    {                                                                                                                  \
        return const_cast<CRuntimeClass *>(&class_name::class##class_name);                                            \
    }                                                                                                                  \
    CRuntimeClass * class_name::GetRuntimeClass() const                                                                \
    {                                                                                                                  \
        return GetThisClass();                                                                                         \
    }                                                                                                                  \
    static AFX_CLASSINIT const framework_init_##class_name(RUNTIME_CLASS(class_name));

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                                 \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                                               \
    CObject * PASCAL class_name::CreateObject()                                                                        \
    {                                                                                                                  \
        return new class_name;                                                                                         \
    }                                                                                                                  \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, &class_name::CreateObject)

// A class whose objects archives create by themselves. A schema with VERSIONABLE_SCHEMA accepts others: Serialize asks
// for the archive's by GetObjectSchema.
#define VERSIONABLE_SCHEMA (0x80000000U)

#define DECLARE_SERIAL(class_name)                                                                                     \
    DECLARE_DYNCREATE(class_name)                                                                                      \
    friend CArchive & AFXAPI operator>>(CArchive & ar, class_name *& pOb);

#define IMPLEMENT_SERIAL(class_name, base_class_name, wSchema)                                                         \
    CObject * PASCAL class_name::CreateObject()                                                                        \
    {                                                                                                                  \
        return new class_name;                                                                                         \
    }                                                                                                                  \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, wSchema, &class_name::CreateObject)                            \
    CArchive & AFXAPI operator>>(CArchive & ar, class_name *& pOb)                                                     \
    {                                                                                                                  \
        pOb = static_cast<class_name *>(ar.ReadObject(RUNTIME_CLASS(class_name)));                                     \
        return ar;                                                                                                     \
    }

#define DYNAMIC_DOWNCAST(class_name, object)                                                                           \
    (static_cast<class_name *>(::AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))
#define ASSERT_KINDOF(class_name, object) ASSERT((object)->IsKindOf(RUNTIME_CLASS(class_name)))
#ifdef _DEBUG
#define STATIC_DOWNCAST(class_name, object)                                                                            \
    (static_cast<class_name *>(::AfxStaticDownCast(RUNTIME_CLASS(class_name), object)))
#else
#define STATIC_DOWNCAST(class_name, object) (static_cast<class_name *>(object))
#endif

/// Writes objects and values as text for the programmer: to the debugger on Windows, to stderr elsewhere.
class FRAMEWORK_API CDumpContext
{
public:
    CDumpContext() = default;
    CDumpContext(CDumpContext const &) = delete;
    CDumpContext & operator=(CDumpContext const &) = delete;

    /// Above 0, collections dump their elements, too.
    int GetDepth() const { return m_depth; }
    void SetDepth(int nNewDepth) { m_depth = nNewDepth; }
    void Flush();
    void HexDump(LPCTSTR lpszLine, BYTE * pby, int nBytes, int nWidth);

    CDumpContext & operator<<(LPCSTR lpsz);
    CDumpContext & operator<<(LPCWSTR lpsz);
    CDumpContext & operator<<(void const * lp);
    CDumpContext & operator<<(CObject const * pOb);
    CDumpContext & operator<<(CObject const & ob);
    CDumpContext & operator<<(BYTE by);
    CDumpContext & operator<<(WORD w);
    CDumpContext & operator<<(int n);
    CDumpContext & operator<<(UINT u);
    CDumpContext & operator<<(long l);
    CDumpContext & operator<<(unsigned long dw);
    CDumpContext & operator<<(LONGLONG n);
    CDumpContext & operator<<(ULONGLONG n);
    CDumpContext & operator<<(float f);
    CDumpContext & operator<<(double d);
    CDumpContext & operator<<(SIZE size);
    CDumpContext & operator<<(POINT point);
    CDumpContext & operator<<(RECT const & rect);
    CDumpContext & operator<<(CTime const & time);
    CDumpContext & operator<<(CTimeSpan const & span);

private:
    int m_depth = 0;
};

extern FRAMEWORK_API CDumpContext afxDump;

#if defined(_WIN32)
/// The module to load one string of the string tables from, as AfxFindResourceHandle; null if no module has it.
FRAMEWORK_API HINSTANCE AFXAPI AfxFindStringResourceHandle(UINT nID);
FRAMEWORK_API int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
FRAMEWORK_API int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = static_cast<UINT>(-1));
FRAMEWORK_API void AFXAPI AfxFormatString1(CString & rString, UINT nIDS, LPCTSTR lpsz1);
FRAMEWORK_API void AFXAPI AfxFormatString2(CString & rString, UINT nIDS, LPCTSTR lpsz1, LPCTSTR lpsz2);
#endif
/// The part numbered iSubString (from 0) of a text split at chSep. FALSE, and empty, when there are fewer.
FRAMEWORK_API BOOL AFXAPI AfxExtractSubString(CString & rString, LPCTSTR lpszFullString, int iSubString,
                                              TCHAR chSep = '\n');

#include "ArchiveClass.h"
