#pragma once
// Files that are whole whenever they are looked at, and a lock among programs.

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace workbench
{

/// The whole file; nothing if it cannot be read or is far too large. One that does not exist is empty.
std::optional<std::string> ReadWholeFile(std::filesystem::path const & file);

/// Writes a file beside it and moves that over it. False if that failed; the file is as it was then, and `error` has
/// the reason (FileDraft::Error).
bool ReplaceWholeFile(std::filesystem::path const & file, std::string_view contents, unsigned long * error = nullptr);

/// Why a file of about so many bytes could not be written, where whoever tried does not know: finds out by beginning
/// one beside it, which goes again. As FileDraft::Error; 0 where nothing is in the way.
unsigned long WriteObstacle(std::filesystem::path const & file, std::uintmax_t bytes);

/// A file that is written in parts beside the one that it is to replace.
class FileDraft
{
public:
    explicit FileDraft(std::filesystem::path file);
    /// What was not finished goes.
    ~FileDraft();

    FileDraft(FileDraft const &) = delete;
    FileDraft & operator=(FileDraft const &) = delete;

    /// Adds something at the end. False if that failed, and from then on.
    bool Append(std::string_view contents);
    /// Moves it over the file, which is as it was until then. False if that or anything before failed.
    bool Finish();
    /// Why one of these has failed: the system's number of the error, in which Windows' are used everywhere. 0 as long
    /// as none has.
    unsigned long Error() const { return m_error; }

private:
    void Close();
    bool Succeeded(bool done);

    std::filesystem::path m_file;
    std::filesystem::path m_draft;
    std::FILE * m_stream;
    bool m_written = true;
    unsigned long m_error = 0;
};

/// While one exists, no other program has one of the same file, which lies beside what it protects. It ends with the
/// program, however that ends.
class FileLock
{
public:
    /// Waits for the lock, a few seconds at most.
    explicit FileLock(std::filesystem::path const & file);
    ~FileLock();

    FileLock(FileLock const &) = delete;
    FileLock & operator=(FileLock const &) = delete;

    bool IsHeld() const;

private:
#ifdef _WIN32
    void * m_handle;
#else
    int m_handle;
#endif
};

} // namespace workbench
