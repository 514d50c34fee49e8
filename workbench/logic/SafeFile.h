#pragma once
// Files that are whole whenever they are looked at, and a lock among programs.

#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace workbench
{

/// The whole file; nothing if it cannot be read or is far too large. One that does not exist is empty.
std::optional<std::string> ReadWholeFile(std::filesystem::path const & file);

/// Writes a file beside it and moves that over it. False if that failed; the file is as it was then.
bool ReplaceWholeFile(std::filesystem::path const & file, std::string_view contents);

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

private:
    void Close();

    std::filesystem::path m_file;
    std::filesystem::path m_draft;
    std::FILE * m_stream;
    bool m_written = true;
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
