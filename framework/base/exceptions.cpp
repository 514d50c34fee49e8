// The exceptions.

#include "afx.h"

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <new>

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CSimpleException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CSimpleException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CSimpleException)
IMPLEMENT_DYNAMIC(CResourceException, CSimpleException)
IMPLEMENT_DYNAMIC(CUserException, CSimpleException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CSimpleException)
IMPLEMENT_DYNAMIC(CFileException, CException)
IMPLEMENT_DYNAMIC(CArchiveException, CException)

namespace
{
constinit std::atomic<_PNH> s_newHandler = AfxNewHandler;

/// Installed as the handler of the C++ library, which all modules of the process share.
void AskNewHandler()
{
    _PNH const handler = s_newHandler;
    if (handler == nullptr || handler(0) == 0)
        throw std::bad_alloc();
}

[[maybe_unused]] std::new_handler const former_handler = std::set_new_handler(AskNewHandler);

void CopyMessage(LPTSTR target, UINT size, LPCTSTR message)
{
    if (target == nullptr || size == 0)
        return;
    UINT i = 0;
    for (; i + 1 < size && message[i] != 0; ++i)
        target[i] = message[i];
    target[i] = 0;
}

LPCTSTR FileMessage(int cause)
{
    switch (cause)
    {
    case CFileException::none:
        return _T("No error occurred.");
    case CFileException::fileNotFound:
        return _T("%s was not found.");
    case CFileException::badPath:
        return _T("%s contains an invalid path.");
    case CFileException::tooManyOpenFiles:
        return _T("%s could not be opened because there are too many open files.");
    case CFileException::accessDenied:
        return _T("Access to %s was denied.");
    case CFileException::invalidFile:
        return _T("An invalid file handle was associated with %s.");
    case CFileException::removeCurrentDir:
        return _T("%s could not be removed because it is the current directory.");
    case CFileException::directoryFull:
        return _T("%s could not be created because the directory is full.");
    case CFileException::badSeek:
        return _T("Seek failed on %s.");
    case CFileException::hardIO:
        return _T("A hardware I/O error was reported while accessing %s.");
    case CFileException::sharingViolation:
        return _T("A sharing violation occurred while accessing %s.");
    case CFileException::lockViolation:
        return _T("A locking violation occurred while accessing %s.");
    case CFileException::diskFull:
        return _T("Disk full while accessing %s.");
    case CFileException::endOfFile:
        return _T("An attempt was made to access %s past its end.");
    default:
        return _T("An unspecified error occurred while accessing %s.");
    }
}

LPCTSTR ArchiveMessage(int cause)
{
    switch (cause)
    {
    case CArchiveException::none:
        return _T("No error occurred.");
    case CArchiveException::readOnly:
        return _T("An attempt was made to write to the reading %s.");
    case CArchiveException::endOfFile:
        return _T("An attempt was made to access %s past its end.");
    case CArchiveException::writeOnly:
        return _T("An attempt was made to read from the writing %s.");
    case CArchiveException::badIndex:
        return _T("%s has a bad format.");
    case CArchiveException::badClass:
        return _T("%s contained an unexpected object.");
    case CArchiveException::badSchema:
        return _T("%s contains an incorrect schema.");
    case CArchiveException::bufferFull:
        return _T("The buffer of %s is full.");
    default:
        return _T("An unspecified error occurred while accessing %s.");
    }
}
} // namespace

CException::CException() : CException(TRUE) {}

CException::CException(BOOL bAutoDelete) : m_bAutoDelete(bAutoDelete) {}

void CException::Delete()
{
    if (m_bAutoDelete)
        delete this;
}

BOOL CException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const
{
    if (pnHelpContext != nullptr)
        *pnHelpContext = 0;
    CopyMessage(lpszError, nMaxError, _T(""));
    return FALSE;
}

BOOL CException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext)
{
    return const_cast<CException const *>(this)->GetErrorMessage(lpszError, nMaxError, pnHelpContext);
}

int CException::ReportError(UINT nType, [[maybe_unused]] UINT nMessageID)
{
    constexpr UINT max_message = 512;
    TCHAR message[max_message] = {};
    UINT help = 0;
    BOOL const known = GetErrorMessage(message, max_message, &help);
#if defined(_WIN32)
    if (!known && nMessageID != 0)
        return AfxMessageBox(nMessageID, nType, help);
    return AfxMessageBox(known ? message : _T("No error message is available."), nType, help);
#else
    static_cast<void>(nType);
    CStringA const text(known ? message : _T("No error message is available."));
    std::fprintf(stderr, "%s\n", text.GetString());
    return IDOK;
#endif
}

CSimpleException::CSimpleException() = default;

CSimpleException::CSimpleException(BOOL bAutoDelete) : CException(bAutoDelete) {}

BOOL CSimpleException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const
{
    struct Message
    {
        CRuntimeClass const * exception;
        LPCTSTR text;
    };
    Message const messages[] = {
        {RUNTIME_CLASS(CMemoryException), _T("Out of memory.")},
        {RUNTIME_CLASS(CNotSupportedException), _T("An unsupported operation was attempted.")},
        {RUNTIME_CLASS(CResourceException), _T("A required resource was unavailable.")},
        {RUNTIME_CLASS(CInvalidArgException), _T("Encountered an improper argument.")},
    };
    for (Message const & message : messages)
    {
        if (!IsKindOf(message.exception))
            continue;
        if (pnHelpContext != nullptr)
            *pnHelpContext = 0;
        CopyMessage(lpszError, nMaxError, message.text);
        return TRUE;
    }
    return CException::GetErrorMessage(lpszError, nMaxError, pnHelpContext);
}

BOOL CSimpleException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext)
{
    return CException::GetErrorMessage(lpszError, nMaxError, pnHelpContext);
}

CMemoryException::CMemoryException() = default;

CMemoryException::CMemoryException(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {}

CNotSupportedException::CNotSupportedException() = default;

CNotSupportedException::CNotSupportedException(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {}

CResourceException::CResourceException() = default;

CResourceException::CResourceException(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {}

CUserException::CUserException() = default;

CUserException::CUserException(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {}

CInvalidArgException::CInvalidArgException() = default;

CInvalidArgException::CInvalidArgException(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {}

CFileException::CFileException(int cause, LONG lOsError, LPCTSTR lpszArchiveName)
    : m_cause(cause),
      m_lOsError(lOsError),
      m_strFileName(lpszArchiveName)
{
}

int PASCAL CFileException::OsErrorToException(LONG lOsError)
{
    switch (lOsError)
    {
    case 0: // no error
        return none;
    case 2: // file not found
        return fileNotFound;
    case 3:   // path not found
    case 15:  // invalid drive
    case 53:  // bad network path
    case 67:  // bad network name
    case 123: // invalid name
    case 161: // bad path name
    case 206: // file name too long
        return badPath;
    case 4: // too many open files
        return tooManyOpenFiles;
    case 5:   // access denied
    case 19:  // write protected
    case 65:  // network access denied
    case 80:  // file exists
    case 82:  // cannot make
    case 183: // already exists
        return accessDenied;
    case 6:  // invalid handle
    case 87: // invalid parameter
        return invalidFile;
    case 16: // current directory
        return removeCurrentDir;
    case 25:  // seek
    case 131: // negative seek
    case 132: // seek on device
        return badSeek;
    case 20: // bad unit
    case 21: // not ready
    case 23: // CRC
    case 29: // write fault
    case 30: // read fault
    case 31: // general failure
        return hardIO;
    case 32: // sharing violation
    case 36: // sharing buffer exceeded
        return sharingViolation;
    case 33:  // lock violation
    case 158: // not locked
    case 167: // lock failed
        return lockViolation;
    case 38: // end of file
        return endOfFile;
    case 39:  // handle disk full
    case 112: // disk full
        return diskFull;
    default:
        return genericException;
    }
}

int PASCAL CFileException::ErrnoToException(int nErrno)
{
    switch (nErrno)
    {
    case 0:
        return none;
    case EPERM:
    case EACCES:
    case EEXIST:
    case EISDIR:
    case EROFS:
        return accessDenied;
    case EBADF:
        return invalidFile;
    case EDEADLK:
        return sharingViolation;
    case EMFILE:
    case ENFILE:
        return tooManyOpenFiles;
    case ENOENT:
        return fileNotFound;
    case ENOTDIR:
    case ENAMETOOLONG:
        return badPath;
    case ENOSPC:
        return diskFull;
    case EIO:
        return hardIO;
    case ESPIPE:
        return badSeek;
    default:
        return genericException;
    }
}

void PASCAL CFileException::ThrowOsError(LONG lOsError, LPCTSTR lpszFileName)
{
    AfxThrowFileException(OsErrorToException(lOsError), lOsError, lpszFileName);
}

void PASCAL CFileException::ThrowErrno(int nErrno, LPCTSTR lpszFileName)
{
    AfxThrowFileException(ErrnoToException(nErrno), nErrno, lpszFileName);
}

BOOL CFileException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const
{
    if (pnHelpContext != nullptr)
        *pnHelpContext = 0;
    CString message;
    message.Format(FileMessage(m_cause), m_strFileName.IsEmpty() ? _T("an unnamed file") : m_strFileName.GetString());
    CopyMessage(lpszError, nMaxError, message);
    return TRUE;
}

BOOL CFileException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext)
{
    return CException::GetErrorMessage(lpszError, nMaxError, pnHelpContext);
}

CArchiveException::CArchiveException(int cause, LPCTSTR lpszArchiveName)
    : m_cause(cause),
      m_strFileName(lpszArchiveName)
{
}

BOOL CArchiveException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const
{
    if (pnHelpContext != nullptr)
        *pnHelpContext = 0;
    CString message;
    message.Format(ArchiveMessage(m_cause),
                   m_strFileName.IsEmpty() ? _T("an unnamed file") : m_strFileName.GetString());
    CopyMessage(lpszError, nMaxError, message);
    return TRUE;
}

BOOL CArchiveException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext)
{
    return CException::GetErrorMessage(lpszError, nMaxError, pnHelpContext);
}

_PNH AFXAPI AfxGetNewHandler()
{
    return s_newHandler;
}

_PNH AFXAPI AfxSetNewHandler(_PNH pfnNewHandler)
{
    return s_newHandler.exchange(pfnNewHandler);
}

int AFX_CDECL AfxNewHandler([[maybe_unused]] size_t nSize)
{
    AfxThrowMemoryException();
}

void AFXAPI AfxThrowMemoryException()
{
    // Made before it is needed: there is no memory for it then.
    static CMemoryException exception(FALSE);
    throw &exception;
}

void AFXAPI AfxThrowNotSupportedException()
{
    throw new CNotSupportedException;
}

void AFXAPI AfxThrowResourceException()
{
    throw new CResourceException;
}

void AFXAPI AfxThrowUserException()
{
    throw new CUserException;
}

void AFXAPI AfxThrowInvalidArgException()
{
    throw new CInvalidArgException;
}

void AFXAPI AfxThrowFileException(int cause, LONG lOsError, LPCTSTR lpszFileName)
{
    throw new CFileException(cause, lOsError, lpszFileName);
}

void AFXAPI AfxThrowArchiveException(int cause, LPCTSTR lpszArchiveName)
{
    throw new CArchiveException(cause, lpszArchiveName);
}

namespace ATL
{
void WINAPI AtlThrow(HRESULT hr)
{
    if (hr == E_OUTOFMEMORY)
        AfxThrowMemoryException();
    if (hr == E_INVALIDARG)
        AfxThrowInvalidArgException();
    AfxThrowNotSupportedException();
}
} // namespace ATL
