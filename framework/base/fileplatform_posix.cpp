// Files by POSIX. Sharing is not denied to others there, and locks bind those alone who ask for one.

#include "FilePlatform.h"

#if !defined(_WIN32)

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstring>
#include <filesystem>
#include <string>

#include "StringText.h"

namespace
{
int DescriptorOf(HANDLE file)
{
    return static_cast<int>(reinterpret_cast<intptr_t>(file));
}

HANDLE HandleOfDescriptor(int descriptor)
{
    return reinterpret_cast<HANDLE>(static_cast<intptr_t>(descriptor));
}

std::string Narrow(LPCTSTR path)
{
    return path == nullptr ? std::string() : framework::ToNarrow(path, static_cast<int>(std::wcslen(path)));
}

[[noreturn]] void ThrowError(LPCTSTR path)
{
    CFileException::ThrowErrno(errno, path);
}

void Fill(CFileStatus & status, struct stat const & data)
{
    status.m_size = static_cast<ULONGLONG>(data.st_size);
    status.m_attribute = S_ISDIR(data.st_mode) ? CFile::directory : 0;
    if ((data.st_mode & S_IWUSR) == 0)
        status.m_attribute |= CFile::readOnly;
    // No time of making is kept everywhere.
    status.m_ctime = CTime(data.st_mtime);
    status.m_mtime = CTime(data.st_mtime);
    status.m_atime = CTime(data.st_atime);
}

timespec TimeFor(CTime const & time)
{
    return time == CTime() ? timespec{0, UTIME_OMIT} : timespec{static_cast<time_t>(time.GetTime()), 0};
}
} // namespace

namespace framework::files
{
bool FullPath(LPCTSTR path, CString & full)
{
    std::error_code error;
    std::filesystem::path const absolute = std::filesystem::absolute(Narrow(path), error);
    if (error || absolute.empty())
        return false;
    std::string const text = absolute.lexically_normal().string();
    full = CString(ToWide(text.data(), static_cast<int>(text.size())).c_str());
    return full.GetLength() < MAX_PATH;
}

HANDLE Open(LPCTSTR path, UINT flags, LONG & error)
{
    int mode = O_RDONLY;
    if ((flags & 3) == CFile::modeWrite)
        mode = O_WRONLY;
    else if ((flags & 3) == CFile::modeReadWrite)
        mode = O_RDWR;
    bool const truncates = (flags & CFile::modeCreate) != 0 && (flags & CFile::modeNoTruncate) == 0;
    if ((flags & CFile::modeCreate) != 0)
        mode |= O_CREAT;
    if ((flags & CFile::modeNoInherit) != 0)
        mode |= O_CLOEXEC;
    if ((flags & CFile::osWriteThrough) != 0)
        mode |= O_SYNC;
    int const descriptor = ::open(Narrow(path).c_str(), mode, 0666);
    struct stat data = {};
    if (descriptor >= 0 && ::fstat(descriptor, &data) == 0 && S_ISDIR(data.st_mode))
    {
        ::close(descriptor);
        error = EACCES;
        return CFile::hFileNull;
    }
    if (descriptor < 0 || (truncates && data.st_size != 0 && ::truncate(Narrow(path).c_str(), 0) != 0))
    {
        error = errno;
        if (descriptor >= 0)
            ::close(descriptor);
        return CFile::hFileNull;
    }
    return HandleOfDescriptor(descriptor);
}

int CauseOf(LONG error)
{
    return CFileException::ErrnoToException(static_cast<int>(error));
}

bool Close(HANDLE file)
{
    return ::close(DescriptorOf(file)) == 0;
}

HANDLE Duplicate(HANDLE file, LPCTSTR path)
{
    int const copy = ::dup(DescriptorOf(file));
    if (copy < 0)
        ThrowError(path);
    return HandleOfDescriptor(copy);
}

UINT Read(HANDLE file, void * bytes, UINT count, LPCTSTR path)
{
    UINT done = 0;
    while (done < count)
    {
        ssize_t const part = ::read(DescriptorOf(file), static_cast<char *>(bytes) + done, count - done);
        if (part < 0 && errno != EINTR)
            ThrowError(path);
        if (part == 0)
            break;
        done += part > 0 ? static_cast<UINT>(part) : 0;
    }
    return done;
}

void Write(HANDLE file, void const * bytes, UINT count, LPCTSTR path)
{
    for (UINT done = 0; done < count;)
    {
        ssize_t const part = ::write(DescriptorOf(file), static_cast<char const *>(bytes) + done, count - done);
        if (part < 0 && errno != EINTR)
            ThrowError(path);
        done += part > 0 ? static_cast<UINT>(part) : 0;
    }
}

void Flush(HANDLE file, LPCTSTR path)
{
    if (::fsync(DescriptorOf(file)) != 0 && errno != EINVAL && errno != EROFS)
        ThrowError(path);
}

ULONGLONG Seek(HANDLE file, LONGLONG offset, UINT from, LPCTSTR path)
{
    off_t const position = ::lseek(DescriptorOf(file), offset, static_cast<int>(from));
    if (position < 0)
    {
        int const cause = errno == EINVAL ? CFileException::badSeek : CFileException::ErrnoToException(errno);
        AfxThrowFileException(cause, errno, path);
    }
    return static_cast<ULONGLONG>(position);
}

ULONGLONG Length(HANDLE file, LPCTSTR path)
{
    struct stat data = {};
    if (::fstat(DescriptorOf(file), &data) != 0)
        ThrowError(path);
    return static_cast<ULONGLONG>(data.st_size);
}

void SetLength(HANDLE file, ULONGLONG length, LPCTSTR path)
{
    Seek(file, static_cast<LONGLONG>(length), CFile::begin, path);
    if (::ftruncate(DescriptorOf(file), static_cast<off_t>(length)) != 0)
        ThrowError(path);
}

void Lock(HANDLE file, ULONGLONG position, ULONGLONG count, bool lock, LPCTSTR path)
{
    struct flock range = {};
    int const mode = ::fcntl(DescriptorOf(file), F_GETFL);
    bool const reads_only = mode >= 0 && (mode & O_ACCMODE) == O_RDONLY;
    range.l_type = static_cast<short>(!lock ? F_UNLCK : reads_only ? F_RDLCK : F_WRLCK);
    range.l_whence = SEEK_SET;
    range.l_start = static_cast<off_t>(position);
    range.l_len = static_cast<off_t>(count);
#if defined(F_OFD_SETLK)
    int const result = ::fcntl(DescriptorOf(file), F_OFD_SETLK, &range);
#else
    int const result = ::fcntl(DescriptorOf(file), F_SETLK, &range);
#endif
    if (result == 0)
        return;
    if (errno == EAGAIN || errno == EACCES)
        AfxThrowFileException(CFileException::lockViolation, errno, path);
    ThrowError(path);
}

bool Status(LPCTSTR path, CFileStatus & status)
{
    struct stat data = {};
    if (::stat(Narrow(path).c_str(), &data) != 0)
        return false;
    Fill(status, data);
    return true;
}

bool Status(HANDLE file, CFileStatus & status)
{
    struct stat data = {};
    if (::fstat(DescriptorOf(file), &data) != 0)
        return false;
    Fill(status, data);
    return true;
}

void SetStatus(LPCTSTR path, CFileStatus const & status)
{
    std::string const name = Narrow(path);
    struct stat data = {};
    if (::stat(name.c_str(), &data) != 0)
        ThrowError(path);
    timespec const times[] = {TimeFor(status.m_atime), TimeFor(status.m_mtime)};
    if (::utimensat(AT_FDCWD, name.c_str(), times, 0) != 0)
        ThrowError(path);
    constexpr mode_t write_bits = S_IWUSR | S_IWGRP | S_IWOTH;
    bool const read_only = (status.m_attribute & CFile::readOnly) != 0;
    mode_t const mode = read_only ? data.st_mode & ~write_bits : data.st_mode | S_IWUSR;
    if (mode != data.st_mode && ::chmod(name.c_str(), mode & 07777) != 0)
        ThrowError(path);
}

void Rename(LPCTSTR from, LPCTSTR to)
{
    std::string const target = Narrow(to);
    struct stat data = {};
    // The system would replace a file that is there.
    if (::lstat(target.c_str(), &data) == 0)
        CFileException::ThrowErrno(EEXIST, from);
    if (::rename(Narrow(from).c_str(), target.c_str()) != 0)
        ThrowError(from);
}

void Remove(LPCTSTR path)
{
    std::string const name = Narrow(path);
    struct stat data = {};
    if (::lstat(name.c_str(), &data) != 0)
        ThrowError(path);
    if (S_ISDIR(data.st_mode) || (data.st_mode & S_IWUSR) == 0)
        CFileException::ThrowErrno(EACCES, path);
    if (::unlink(name.c_str()) != 0)
        ThrowError(path);
}

bool IsSeparator(TCHAR ch)
{
    return ch == L'/';
}

FILE * OpenStream(HANDLE file, UINT flags, LONG & error)
{
    // None of these truncates or appends here.
    UINT const access = flags & 3;
    char const * const mode = access == CFile::modeRead ? "r" : access == CFile::modeWrite ? "w" : "w+";
    FILE * const stream = ::fdopen(DescriptorOf(file), mode);
    if (stream == nullptr)
        error = errno;
    return stream;
}

HANDLE HandleOf(FILE * stream)
{
    return HandleOfDescriptor(::fileno(stream));
}

bool SeekStream(FILE * stream, LONGLONG offset, UINT from)
{
    return ::fseeko(stream, offset, static_cast<int>(from)) == 0;
}

LONGLONG StreamPosition(FILE * stream)
{
    return ::ftello(stream);
}

LONG StreamError()
{
    return errno;
}

// Text is UTF-8 in a file of text and UTF-16, least byte first, in others.
bool WriteText(FILE * stream, LPCTSTR text, bool wide)
{
    int const length = static_cast<int>(std::wcslen(text));
    if (!wide)
    {
        std::string const bytes = ToNarrow(text, length);
        return std::fwrite(bytes.data(), 1, bytes.size(), stream) == bytes.size();
    }
    std::u16string const units = ToUtf16(text, length);
    return std::fwrite(units.data(), sizeof(char16_t), units.size(), stream) == units.size();
}

bool ReadText(FILE * stream, LPTSTR text, UINT room, bool wide)
{
    UINT length = 0;
    while (length + 1 < room)
    {
        std::string bytes;
        std::u16string units;
        int const first = std::fgetc(stream);
        if (first == EOF)
            break;
        bytes += static_cast<char>(first);
        if (wide)
        {
            int const second = std::fgetc(stream);
            units += static_cast<char16_t>(first | (second == EOF ? 0 : second << 8));
        }
        // The bytes that follow belong to the same character.
        int const more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : first >= 0xC0 ? 1 : 0;
        for (int i = 0; !wide && i < more; ++i)
        {
            int const next = std::fgetc(stream);
            if (next == EOF)
                break;
            if ((next & 0xC0) != 0x80)
            {
                std::ungetc(next, stream);
                break;
            }
            bytes += static_cast<char>(next);
        }
        std::wstring const character = wide ? FromUtf16(units) : ToWide(bytes.data(), static_cast<int>(bytes.size()));
        text[length++] = character.empty() ? L'\xFFFD' : character[0];
        if (text[length - 1] == L'\n')
            break;
    }
    text[length] = 0;
    return length != 0;
}
} // namespace framework::files

#endif
