#pragma once
// The exceptions, which are thrown and caught by pointer. Included by afx.h.

#include "afx.h"

class FRAMEWORK_API AFX_NOVTABLE CException : public CObject
{
    DECLARE_DYNAMIC(CException)
public:
    CException();
    explicit CException(BOOL bAutoDelete);

    /// Deletes the object when it came from the heap.
    void Delete();
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const;
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr);
    virtual int ReportError(UINT nType = MB_OK, UINT nMessageID = 0);

private:
    BOOL m_bAutoDelete;
};

class FRAMEWORK_API AFX_NOVTABLE CSimpleException : public CException
{
    DECLARE_DYNAMIC(CSimpleException)
public:
    CSimpleException();
    explicit CSimpleException(BOOL bAutoDelete);

    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const override;
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) override;
};

class FRAMEWORK_API CMemoryException : public CSimpleException
{
    DECLARE_DYNAMIC(CMemoryException)
public:
    CMemoryException();
    explicit CMemoryException(BOOL bAutoDelete);
};

class FRAMEWORK_API CNotSupportedException : public CSimpleException
{
    DECLARE_DYNAMIC(CNotSupportedException)
public:
    CNotSupportedException();
    explicit CNotSupportedException(BOOL bAutoDelete);
};

class FRAMEWORK_API CResourceException : public CSimpleException
{
    DECLARE_DYNAMIC(CResourceException)
public:
    CResourceException();
    explicit CResourceException(BOOL bAutoDelete);
};

class FRAMEWORK_API CUserException : public CSimpleException
{
    DECLARE_DYNAMIC(CUserException)
public:
    CUserException();
    explicit CUserException(BOOL bAutoDelete);
};

class FRAMEWORK_API CInvalidArgException : public CSimpleException
{
    DECLARE_DYNAMIC(CInvalidArgException)
public:
    CInvalidArgException();
    explicit CInvalidArgException(BOOL bAutoDelete);
};

class FRAMEWORK_API CFileException : public CException
{
    DECLARE_DYNAMIC(CFileException)
public:
    enum
    {
        none,
        genericException,
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        invalidFile,
        removeCurrentDir,
        directoryFull,
        badSeek,
        hardIO,
        sharingViolation,
        lockViolation,
        diskFull,
        endOfFile
    };

    explicit CFileException(int cause = CFileException::none, LONG lOsError = -1, LPCTSTR lpszArchiveName = nullptr);

    static int PASCAL OsErrorToException(LONG lOsError);
    static int PASCAL ErrnoToException(int nErrno);
    [[noreturn]] static void PASCAL ThrowOsError(LONG lOsError, LPCTSTR lpszFileName = nullptr);
    [[noreturn]] static void PASCAL ThrowErrno(int nErrno, LPCTSTR lpszFileName = nullptr);
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const override;
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) override;

    int m_cause;
    LONG m_lOsError;
    CString m_strFileName;
};

class FRAMEWORK_API CArchiveException : public CException
{
    DECLARE_DYNAMIC(CArchiveException)
public:
    enum
    {
        none,
        genericException,
        readOnly,
        endOfFile,
        writeOnly,
        badIndex,
        badClass,
        badSchema,
        bufferFull
    };

    explicit CArchiveException(int cause = CArchiveException::none, LPCTSTR lpszArchiveName = nullptr);

    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const override;
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) override;

    int m_cause;
    CString m_strFileName;
};

/// What new asks when memory has run out: non-zero lets it try again, 0 makes it throw std::bad_alloc.
using _PNH = int(AFX_CDECL *)(size_t);
/// The handler of the process, null for none. At first it is AfxNewHandler.
FRAMEWORK_API _PNH AFXAPI AfxGetNewHandler();
/// Sets it and gives the former one.
FRAMEWORK_API _PNH AFXAPI AfxSetNewHandler(_PNH pfnNewHandler);
/// Throws the memory exception. nSize: 0, since new does not tell the size.
FRAMEWORK_API int AFX_CDECL AfxNewHandler(size_t nSize);

[[noreturn]] FRAMEWORK_API void AFXAPI AfxThrowMemoryException();
[[noreturn]] FRAMEWORK_API void AFXAPI AfxThrowNotSupportedException();
[[noreturn]] FRAMEWORK_API void AFXAPI AfxThrowResourceException();
[[noreturn]] FRAMEWORK_API void AFXAPI AfxThrowUserException();
[[noreturn]] FRAMEWORK_API void AFXAPI AfxThrowInvalidArgException();
[[noreturn]] FRAMEWORK_API void AFXAPI AfxThrowFileException(int cause, LONG lOsError = -1,
                                                             LPCTSTR lpszFileName = nullptr);
[[noreturn]] FRAMEWORK_API void AFXAPI AfxThrowArchiveException(int cause, LPCTSTR lpszArchiveName = nullptr);

namespace framework
{
/// Deletes the exception that a CATCH block has handled, unless THROW_LAST threw it on.
class CaughtException
{
public:
    CaughtException() = default;
    CaughtException(CaughtException const &) = delete;
    CaughtException & operator=(CaughtException const &) = delete;
    ~CaughtException()
    {
        if (m_exception != nullptr)
            m_exception->Delete();
    }
    void Hold(CException * exception) { m_exception = exception; }
    void Release() { m_exception = nullptr; }

private:
    CException * m_exception = nullptr;
};
} // namespace framework

#define TRY                                                                                                            \
    {                                                                                                                  \
        ::framework::CaughtException framework_caught;                                                                 \
        try                                                                                                            \
        {
#define CATCH(class_name, e)                                                                                           \
    }                                                                                                                  \
    catch (class_name * e)                                                                                             \
    {                                                                                                                  \
        framework_caught.Hold(e);
#define AND_CATCH(class_name, e) CATCH(class_name, e)
#define END_CATCH                                                                                                      \
    }                                                                                                                  \
    }
#define CATCH_ALL(e) CATCH(CException, e)
#define AND_CATCH_ALL(e) CATCH(CException, e)
#define END_CATCH_ALL END_CATCH
#define END_TRY                                                                                                        \
    }                                                                                                                  \
    catch (CException * framework_any)                                                                                 \
    {                                                                                                                  \
        framework_caught.Hold(framework_any);                                                                          \
    }                                                                                                                  \
    }
#define THROW(e) throw e
#define THROW_LAST() (framework_caught.Release(), throw)
