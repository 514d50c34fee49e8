#pragma once
// What a folder contains, read on a thread of its own.

#include <atomic>
#include <filesystem>
#include <functional>
#include <memory>
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

/// A step from what was in a folder to what is there now.
struct FolderStep
{
    enum class Kind
    {
        add,
        remove
    };
    Kind kind;
    bool isFolder;
    std::filesystem::path path;
    std::filesystem::path previous; ///< the one of its kind ahead of it then; empty for the first one

    bool operator==(FolderStep const &) const = default;
};

/// The steps, which are to be done in their order. Both must be sorted as ContentsOf does.
std::vector<FolderStep> StepsBetween(FolderContents const & before, FolderContents const & after);

/// One reading. All operations are for one thread, the owner's; `notify` is called on the reading's own thread.
class FolderReading
{
public:
    struct Result
    {
        std::shared_ptr<FolderContents const> contents;
        std::vector<FolderStep> steps; ///< from what was there before
    };

    /// Starts to read. before: what was there, null for nothing. `notify` is called once at the end, unless it is given
    /// up, and must not call the reading.
    FolderReading(std::filesystem::path folder, std::shared_ptr<FolderContents const> before,
                  std::function<void()> notify);

    /// Gives up and waits for the thread's end.
    ~FolderReading();

    FolderReading(FolderReading const &) = delete;
    FolderReading & operator=(FolderReading const &) = delete;

    /// What was found, once; nothing before the end.
    std::optional<Result> Take();

private:
    Result m_result;
    std::atomic<bool> m_done = false;
    std::atomic<bool> m_stop = false;
    bool m_taken = false;
    std::thread m_thread;
};

} // namespace workbench
