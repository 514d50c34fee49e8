#pragma once

#include <afxwin.h>

#include <filesystem>
#include <functional>
#include <thread>
#include <vector>

namespace workbench
{

/// Watches folders on a thread of its own, so that windows stay alive meanwhile, whatever disk they are on.
class FolderWatch
{
public:
    /// How long it must be quiet until changes are told, and how long they wait at most where it never is.
    static constexpr DWORD quiet_time = 250; // milliseconds
    static constexpr DWORD longest_wait = 2000;

    /// Watches these folders, and those that these files are in. `notify` is called on the watch's own thread some time
    /// after files in them have come, gone or changed, or a folder itself has, once for all of it; it must not call the
    /// watch.
    FolderWatch(std::vector<std::filesystem::path> targets, std::function<void()> notify);

    /// Waits for the thread's end.
    ~FolderWatch();

    FolderWatch(FolderWatch const &) = delete;
    FolderWatch & operator=(FolderWatch const &) = delete;

private:
    struct Folder
    {
        std::filesystem::path path;
        HANDLE change; ///< INVALID_HANDLE_VALUE while it is not there
    };

    void Run(std::vector<std::filesystem::path> const & targets);
    bool LookAfter(Folder & folder);
    static HANDLE Begin(std::filesystem::path const & folder);

    std::function<void()> m_notify;
    HANDLE m_stop;
    std::thread m_thread;
};

} // namespace workbench
