// Files by the Win32 API.

#include "FilePlatform.h"

#if defined(_WIN32)

#include <fcntl.h>
#include <io.h>

#include <cerrno>
#include <iterator>

namespace
{
[[noreturn]] void ThrowLastError(LPCTSTR path)
{
    CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), path);
}

/// A moment that can't be told stays at none.
CTime TimeOf(FILETIME const & time)
{
    FILETIME const none{};
    return ::CompareFileTime(&time, &none) == 0 ? CTime() : CTime(time);
}

void SetStatusTimes(CFileStatus & status, FILETIME const & made, FILETIME const & read, FILETIME const & written)
{
    status.m_ctime = TimeOf(made);
    status.m_atime = TimeOf(read);
    status.m_mtime = TimeOf(written);
}

BYTE AttributeOf(DWORD attributes)
{
    return static_cast<BYTE>(attributes & ~static_cast<DWORD>(FILE_ATTRIBUTE_NORMAL));
}

FILETIME FileTimeOf(CTime const & time)
{
    constexpr ULONGLONG epoch = 11644473600ULL;
    constexpr ULONGLONG units_per_second = 10'000'000;
    ULONGLONG const units = (static_cast<ULONGLONG>(time.GetTime()) + epoch) * units_per_second;
    return {static_cast<DWORD>(units), static_cast<DWORD>(units >> 32)};
}

DWORD AccessOf(UINT flags)
{
    switch (flags & 3)
    {
    case CFile::modeWrite:
        return GENERIC_WRITE;
    case CFile::modeReadWrite:
        return GENERIC_READ | GENERIC_WRITE;
    default:
        return GENERIC_READ;
    }
}

DWORD SharingOf(UINT flags)
{
    switch (flags & 0x70)
    {
    case CFile::shareDenyWrite:
        return FILE_SHARE_READ;
    case CFile::shareDenyRead:
        return FILE_SHARE_WRITE;
    case CFile::shareDenyNone:
        return FILE_SHARE_READ | FILE_SHARE_WRITE;
    default:
        return 0;
    }
}

DWORD CreationOf(UINT flags)
{
    if ((flags & CFile::modeCreate) == 0)
        return OPEN_EXISTING;
    return (flags & CFile::modeNoTruncate) != 0 ? OPEN_ALWAYS : CREATE_ALWAYS;
}

DWORD AttributesOf(UINT flags)
{
    DWORD attributes = FILE_ATTRIBUTE_NORMAL;
    if ((flags & CFile::osNoBuffer) != 0)
        attributes |= FILE_FLAG_NO_BUFFERING;
    if ((flags & CFile::osWriteThrough) != 0)
        attributes |= FILE_FLAG_WRITE_THROUGH;
    if ((flags & CFile::osRandomAccess) != 0)
        attributes |= FILE_FLAG_RANDOM_ACCESS;
    if ((flags & CFile::osSequentialScan) != 0)
        attributes |= FILE_FLAG_SEQUENTIAL_SCAN;
    return attributes;
}
} // namespace

namespace framework::files
{
bool FullPath(LPCTSTR path, CString & full)
{
    TCHAR room[MAX_PATH];
    DWORD const length = ::GetFullPathName(path, MAX_PATH, room, nullptr);
    if (length == 0 || length >= MAX_PATH)
        return false;
    full = room;
    return true;
}

HANDLE Open(LPCTSTR path, UINT flags, LONG & error)
{
    SECURITY_ATTRIBUTES security{sizeof(security), nullptr, (flags & CFile::modeNoInherit) == 0};
    HANDLE const file = ::CreateFile(path, AccessOf(flags), SharingOf(flags), &security, CreationOf(flags),
                                     AttributesOf(flags), nullptr);
    if (file == INVALID_HANDLE_VALUE)
        error = static_cast<LONG>(::GetLastError());
    return file;
}

int CauseOf(LONG error)
{
    return CFileException::OsErrorToException(error);
}

bool Close(HANDLE file)
{
    return ::CloseHandle(file) != FALSE;
}

HANDLE Duplicate(HANDLE file, LPCTSTR path)
{
    HANDLE copy = nullptr;
    HANDLE const process = ::GetCurrentProcess();
    if (!::DuplicateHandle(process, file, process, &copy, 0, FALSE, DUPLICATE_SAME_ACCESS))
        ThrowLastError(path);
    return copy;
}

UINT Read(HANDLE file, void * bytes, UINT count, LPCTSTR path)
{
    DWORD done = 0;
    if (!::ReadFile(file, bytes, count, &done, nullptr))
        ThrowLastError(path);
    return done;
}

void Write(HANDLE file, void const * bytes, UINT count, LPCTSTR path)
{
    DWORD done = 0;
    if (!::WriteFile(file, bytes, count, &done, nullptr))
        ThrowLastError(path);
    if (done != count)
        AfxThrowFileException(CFileException::diskFull, -1, path);
}

void Flush(HANDLE file, LPCTSTR path)
{
    // A file opened for reading alone has nothing to flush.
    if (!::FlushFileBuffers(file) && ::GetLastError() != ERROR_ACCESS_DENIED)
        ThrowLastError(path);
}

ULONGLONG Seek(HANDLE file, LONGLONG offset, UINT from, LPCTSTR path)
{
    LARGE_INTEGER distance;
    distance.QuadPart = offset;
    LARGE_INTEGER position{};
    if (!::SetFilePointerEx(file, distance, &position, from))
        ThrowLastError(path);
    return static_cast<ULONGLONG>(position.QuadPart);
}

ULONGLONG Length(HANDLE file, LPCTSTR path)
{
    LARGE_INTEGER length{};
    if (!::GetFileSizeEx(file, &length))
        ThrowLastError(path);
    return static_cast<ULONGLONG>(length.QuadPart);
}

void SetLength(HANDLE file, ULONGLONG length, LPCTSTR path)
{
    Seek(file, static_cast<LONGLONG>(length), CFile::begin, path);
    if (!::SetEndOfFile(file))
        ThrowLastError(path);
}

void Lock(HANDLE file, ULONGLONG position, ULONGLONG count, bool lock, LPCTSTR path)
{
    auto const call = lock ? ::LockFile : ::UnlockFile;
    if (!call(file, static_cast<DWORD>(position), static_cast<DWORD>(position >> 32), static_cast<DWORD>(count),
              static_cast<DWORD>(count >> 32)))
        ThrowLastError(path);
}

bool Status(LPCTSTR path, CFileStatus & status)
{
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!::GetFileAttributesEx(path, GetFileExInfoStandard, &data))
        return false;
    status.m_attribute = AttributeOf(data.dwFileAttributes);
    status.m_size = (static_cast<ULONGLONG>(data.nFileSizeHigh) << 32) | data.nFileSizeLow;
    SetStatusTimes(status, data.ftCreationTime, data.ftLastAccessTime, data.ftLastWriteTime);
    return true;
}

bool Status(HANDLE file, CFileStatus & status)
{
    BY_HANDLE_FILE_INFORMATION data{};
    if (!::GetFileInformationByHandle(file, &data))
        return false;
    status.m_attribute = AttributeOf(data.dwFileAttributes);
    status.m_size = (static_cast<ULONGLONG>(data.nFileSizeHigh) << 32) | data.nFileSizeLow;
    SetStatusTimes(status, data.ftCreationTime, data.ftLastAccessTime, data.ftLastWriteTime);
    return true;
}

void SetStatus(LPCTSTR path, CFileStatus const & status)
{
    DWORD const attributes = ::GetFileAttributes(path);
    if (attributes == INVALID_FILE_ATTRIBUTES)
        ThrowLastError(path);
    DWORD const wanted = status.m_attribute != 0 ? status.m_attribute : FILE_ATTRIBUTE_NORMAL;
    bool const was_read_only = (attributes & FILE_ATTRIBUTE_READONLY) != 0;
    if (wanted != attributes && was_read_only && !::SetFileAttributes(path, wanted & ~FILE_ATTRIBUTE_READONLY))
        ThrowLastError(path);
    CTime const none;
    if (status.m_ctime != none || status.m_atime != none || status.m_mtime != none)
    {
        FILETIME const made = FileTimeOf(status.m_ctime);
        FILETIME const read = FileTimeOf(status.m_atime);
        FILETIME const written = FileTimeOf(status.m_mtime);
        HANDLE const file = ::CreateFile(path, FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                         OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
        if (file == INVALID_HANDLE_VALUE)
            ThrowLastError(path);
        BOOL const set =
            ::SetFileTime(file, status.m_ctime != none ? &made : nullptr, status.m_atime != none ? &read : nullptr,
                          status.m_mtime != none ? &written : nullptr);
        DWORD const error = ::GetLastError();
        ::CloseHandle(file);
        if (!set)
            CFileException::ThrowOsError(static_cast<LONG>(error), path);
    }
    if (wanted != attributes && !::SetFileAttributes(path, wanted))
        ThrowLastError(path);
}

void Rename(LPCTSTR from, LPCTSTR to)
{
    if (!::MoveFile(from, to))
        ThrowLastError(from);
}

void Remove(LPCTSTR path)
{
    if (!::DeleteFile(path))
        ThrowLastError(path);
}

bool IsSeparator(TCHAR ch)
{
    return ch == _T('\\') || ch == _T('/') || ch == _T(':');
}

FILE * OpenStream(HANDLE file, UINT flags, LONG & error)
{
    std::wstring mode(1, L'r');
    if ((flags & CFile::modeCreate) != 0)
        mode = (flags & CFile::modeNoTruncate) != 0 ? L"a" : L"w";
    else if ((flags & CFile::modeWrite) != 0)
        mode = L"a";
    if (mode == L"r" ? (flags & CFile::modeReadWrite) != 0 : (flags & CFile::modeWrite) == 0)
        mode += L'+';
    bool const binary = (flags & CFile::typeBinary) != 0;
    bool const wide = !binary && (flags & CFile::typeUnicode) != 0;
    mode += binary || wide ? L'b' : L't';
    int const descriptor = ::_open_osfhandle(reinterpret_cast<intptr_t>(file), binary || wide ? 0 : _O_TEXT);
    FILE * const stream = descriptor == -1 ? nullptr : ::_wfdopen(descriptor, mode.c_str());
    if (stream == nullptr)
        error = static_cast<LONG>(_doserrno);
    return stream;
}

HANDLE HandleOf(FILE * stream)
{
    return reinterpret_cast<HANDLE>(::_get_osfhandle(::_fileno(stream)));
}

bool SeekStream(FILE * stream, LONGLONG offset, UINT from)
{
    return ::_fseeki64(stream, offset, static_cast<int>(from)) == 0;
}

LONGLONG StreamPosition(FILE * stream)
{
    return ::_ftelli64(stream);
}

LONG StreamError()
{
    return static_cast<LONG>(_doserrno);
}

bool WriteText(FILE * stream, LPCTSTR text, bool)
{
    // The stream's own mode says whether it converts.
    return std::fputws(text, stream) >= 0;
}

bool ReadText(FILE * stream, LPTSTR text, UINT room, bool)
{
    return std::fgetws(text, static_cast<int>(room), stream) != nullptr;
}
} // namespace framework::files

#endif
