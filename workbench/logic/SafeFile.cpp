#include "logic/SafeFile.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <memory>
#include <system_error>
#include <thread>
#include <utility>

#ifdef _WIN32
#include <windows.h>
#include <io.h>
#include <stdlib.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

namespace workbench
{

namespace
{

constexpr std::chrono::milliseconds retry_interval(10);
constexpr int lock_tries = 300;
constexpr std::size_t most_contents = 256 << 20; // bytes of a file that is read
constexpr std::size_t probe_length = 64 << 10;   // bytes, more than is held back
constexpr unsigned long error_write_fault = 29;  // Windows' number where there is no better one
constexpr unsigned long error_disk_full = 112;
constexpr int move_tries = 50; // a scanner or a backup may hold the file for a moment

/// Does something again until it succeeds.
template <typename Operation> bool Retry(int tries, Operation operation)
{
    while (!operation())
    {
        if (--tries <= 0)
        {
            return false;
        }
        std::this_thread::sleep_for(retry_interval);
    }
    return true;
}

std::FILE * OpenForWriting(std::filesystem::path const & file)
{
#ifdef _WIN32
    return ::_wfopen(file.c_str(), L"wb");
#else
    return std::fopen(file.c_str(), "wb");
#endif
}

/// Windows' number of an error.
unsigned long WindowsNumber(std::error_code const & error)
{
#ifdef _WIN32
    if (error.category() == std::system_category())
    {
        return static_cast<unsigned long>(error.value());
    }
#endif
    constexpr std::pair<std::errc, unsigned long> numbers[] = {
        {std::errc::no_such_file_or_directory, 3},
        {std::errc::not_a_directory, 3},
        {std::errc::permission_denied, 5},
        {std::errc::operation_not_permitted, 5},
        {std::errc::is_a_directory, 5},
        {std::errc::read_only_file_system, 19},
        {std::errc::no_space_on_device, error_disk_full},
    };
    for (auto const & [condition, number] : numbers)
    {
        if (error == condition)
        {
            return number;
        }
    }
    return error_write_fault;
}

/// Of what the C library has failed at.
unsigned long LastFileError()
{
#ifdef _WIN32
    if (_doserrno != 0)
    {
        return _doserrno;
    }
#endif
    return WindowsNumber(std::error_code(errno, std::generic_category()));
}

/// Has the system bring the file to the disk.
bool Commit(std::FILE * file)
{
#ifdef _WIN32
    return std::fflush(file) == 0 && ::_commit(::_fileno(file)) == 0;
#else
    return std::fflush(file) == 0 && ::fsync(::fileno(file)) == 0;
#endif
}

} // namespace

std::optional<std::string> ReadWholeFile(std::filesystem::path const & file)
{
    std::error_code error;
    std::filesystem::file_status const status = std::filesystem::status(file, error);
    if (status.type() == std::filesystem::file_type::not_found)
    {
        return std::string();
    }
    std::ifstream stream(file, std::ios::binary);
    if (!std::filesystem::is_regular_file(status) || !stream)
    {
        return std::nullopt;
    }
    std::string contents;
    std::string block(1 << 16, '\0');
    do
    {
        stream.read(block.data(), static_cast<std::streamsize>(block.size()));
        contents.append(block, 0, static_cast<std::size_t>(stream.gcount()));
    } while (stream && contents.size() <= most_contents);
    return stream.bad() || contents.size() > most_contents ? std::nullopt : std::optional(std::move(contents));
}

bool ReplaceWholeFile(std::filesystem::path const & file, std::string_view contents, unsigned long * error)
{
    FileDraft draft(file);
    bool const written = draft.Append(contents) && draft.Finish();
    if (error != nullptr)
    {
        *error = draft.Error();
    }
    return written;
}

unsigned long WriteObstacle(std::filesystem::path const & file, std::uintmax_t bytes)
{
    if (file.empty())
    {
        return 0;
    }
    std::filesystem::path probe = file;
    probe += ".probe";
    FileDraft draft(probe);
    if (!draft.Append(std::string(probe_length, '\0')))
    {
        return draft.Error();
    }
    std::error_code error;
    std::filesystem::space_info const space = std::filesystem::space(file.parent_path(), error);
    return !error && space.available < bytes ? error_disk_full : 0;
}

FileDraft::FileDraft(std::filesystem::path file) : m_file(std::move(file)), m_draft(m_file), m_stream(nullptr)
{
    m_draft += ".new";
    m_stream = OpenForWriting(m_draft);
    Succeeded(m_stream != nullptr);
}

FileDraft::~FileDraft()
{
    Close();
}

/// Takes away what is there.
void FileDraft::Close()
{
    if (m_stream != nullptr)
    {
        std::fclose(std::exchange(m_stream, nullptr));
        std::error_code error;
        std::filesystem::remove(m_draft, error);
    }
}

bool FileDraft::Append(std::string_view contents)
{
    m_written = m_written && m_stream != nullptr &&
                Succeeded(std::fwrite(contents.data(), 1, contents.size(), m_stream) == contents.size());
    return m_written;
}

/// Keeps the reason of the first failure.
bool FileDraft::Succeeded(bool done)
{
    if (!done && m_error == 0)
    {
        m_error = LastFileError();
    }
    return done;
}

bool FileDraft::Finish()
{
    if (!m_written || m_stream == nullptr || !Succeeded(Commit(m_stream)))
    {
        Close();
        return false;
    }
    std::error_code error;
    if (!Succeeded(std::fclose(std::exchange(m_stream, nullptr)) == 0))
    {
        std::filesystem::remove(m_draft, error);
        return false;
    }
    bool const moved = Retry(move_tries, [&] {
        std::filesystem::rename(m_draft, m_file, error);
        return !error || error == std::errc::is_a_directory || error == std::errc::no_such_file_or_directory;
    });
    if (!moved || error)
    {
        m_error = WindowsNumber(error);
        std::error_code ignored;
        std::filesystem::remove(m_draft, ignored);
        return false;
    }
    return true;
}

#ifdef _WIN32

FileLock::FileLock(std::filesystem::path const & file) : m_handle(INVALID_HANDLE_VALUE)
{
    Retry(lock_tries, [&] {
        m_handle = ::CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                                 FILE_ATTRIBUTE_NORMAL | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
        unsigned long const error = m_handle == INVALID_HANDLE_VALUE ? ::GetLastError() : ERROR_SUCCESS;
        return error != ERROR_SHARING_VIOLATION && error != ERROR_ACCESS_DENIED;
    });
}

FileLock::~FileLock()
{
    if (IsHeld())
    {
        ::CloseHandle(m_handle);
    }
}

bool FileLock::IsHeld() const
{
    return m_handle != INVALID_HANDLE_VALUE;
}

#else

FileLock::FileLock(std::filesystem::path const & file)
    : m_handle(::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600))
{
    if (m_handle >= 0 && !Retry(lock_tries, [this] { return ::flock(m_handle, LOCK_EX | LOCK_NB) == 0; }))
    {
        ::close(m_handle);
        m_handle = -1;
    }
}

FileLock::~FileLock()
{
    if (IsHeld())
    {
        ::close(m_handle);
    }
}

bool FileLock::IsHeld() const
{
    return m_handle >= 0;
}

#endif

} // namespace workbench
