#pragma once
// Files that are whole whenever they are looked at, and a lock among programs.

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
