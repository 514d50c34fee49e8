#pragma once
// What a folder contains, read on a thread of its own.

#include <atomic>
#include <filesystem>
#include <functional>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

namespace workbench
{

/// Folders and recordings directly in a folder, each by name.
struct FolderContents
{
    std::vector<std::filesystem::path> folders;
    std::vector<std::filesystem::path> recordings;

    bool operator==(FolderContents const &) const = default;
};

/// What a folder contains; nothing where it cannot be read. giveUp, if given, is asked for each entry; once it says so,
/// the result is of no use.
FolderContents ContentsOf(std::filesystem::path const & folder, std::function<bool()> const & giveUp = {});

/// One reading. All operations are for one thread, the owner's; `notify` is called on the reading's own thread.
class FolderReading
{
public:
    /// Starts to read. `notify` is called once at the end, unless it is given up, and must not call the reading.
    FolderReading(std::filesystem::path folder, std::function<void()> notify);

    /// Gives up and waits for the thread's end.
    ~FolderReading();

    FolderReading(FolderReading const &) = delete;
    FolderReading & operator=(FolderReading const &) = delete;

    /// What was found, once; nothing before the end.
    std::optional<FolderContents> Take();

private:
    FolderContents m_contents;
    std::atomic<bool> m_done = false;
    std::atomic<bool> m_stop = false;
    bool m_taken = false;
    std::thread m_thread;
};

} // namespace workbench
