#include "FolderWatch.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace workbench
{

namespace
{

// What one wait can have beside the end. Folders beyond are not watched.
constexpr std::size_t most_folders = MAXIMUM_WAIT_OBJECTS - 1;

// How often it is looked whether folders are there: not every system says that a folder itself has gone.
constexpr DWORD look_interval = 1000; // milliseconds

} // namespace

FolderWatch::FolderWatch(std::vector<std::filesystem::path> targets, std::function<void()> notify)
    : m_notify(std::move(notify)),
      m_stop(::CreateEventW(nullptr, TRUE, FALSE, nullptr)),
      m_thread([this, targets = std::move(targets)] { Run(targets); })
{
}

FolderWatch::~FolderWatch()
{
    ::SetEvent(m_stop);
    m_thread.join();
    ::CloseHandle(m_stop);
}

/// INVALID_HANDLE_VALUE where there is no such folder.
HANDLE FolderWatch::Begin(std::filesystem::path const & folder)
{
    constexpr DWORD changes = FILE_NOTIFY_CHANGE_FILE_NAME | FILE_NOTIFY_CHANGE_SIZE | FILE_NOTIFY_CHANGE_LAST_WRITE;
    return ::FindFirstChangeNotificationW(folder.c_str(), FALSE, changes);
}

/// Follows a folder that has gone, or is there again. True if it is so.
bool FolderWatch::LookAfter(Folder & folder)
{
    std::error_code error;
    bool const isThere = std::filesystem::is_directory(folder.path, error);
    if (isThere == (folder.change != INVALID_HANDLE_VALUE))
    {
        return false;
    }
    if (isThere)
    {
        folder.change = Begin(folder.path);
        return folder.change != INVALID_HANDLE_VALUE;
    }
    ::FindCloseChangeNotification(std::exchange(folder.change, INVALID_HANDLE_VALUE));
    return true;
}

void FolderWatch::Run(std::vector<std::filesystem::path> const & targets)
{
    std::vector<Folder> folders;
    for (std::filesystem::path const & target : targets)
    {
        std::error_code error;
        std::filesystem::path const path =
            std::filesystem::is_regular_file(target, error) ? target.parent_path() : target;
        bool const isKnown = std::ranges::find(folders, path, &Folder::path) != folders.end();
        if (!isKnown && folders.size() < most_folders)
        {
            folders.push_back({path, Begin(path)});
        }
    }
    bool changed = false;
    ULONGLONG changedAt = 0;
    ULONGLONG lookedAt = ::GetTickCount64();
    for (;;)
    {
        std::vector<HANDLE> waits{m_stop};
        std::vector<Folder *> waiting;
        for (Folder & folder : folders)
        {
            if (folder.change != INVALID_HANDLE_VALUE)
            {
                waits.push_back(folder.change);
                waiting.push_back(&folder);
            }
        }
        auto const result = ::WaitForMultipleObjects(static_cast<DWORD>(waits.size()), waits.data(), FALSE,
                                                     changed ? quiet_time : look_interval);
        ULONGLONG const now = ::GetTickCount64();
        bool happened = false;
        if (result == WAIT_OBJECT_0)
        {
            break;
        }
        if (result > WAIT_OBJECT_0 && result < WAIT_OBJECT_0 + waits.size())
        {
            happened = true;
            Folder & folder = *waiting[result - WAIT_OBJECT_0 - 1];
            if (!::FindNextChangeNotification(folder.change))
            {
                ::FindCloseChangeNotification(std::exchange(folder.change, INVALID_HANDLE_VALUE));
            }
        }
        if (now - lookedAt >= look_interval)
        {
            lookedAt = now;
            for (Folder & folder : folders)
            {
                happened = LookAfter(folder) || happened;
            }
        }
        if (happened && !std::exchange(changed, true))
        {
            changedAt = now;
        }
        if (changed && (!happened || now - changedAt >= longest_wait))
        {
            changed = false;
            m_notify();
        }
    }
    for (Folder const & folder : folders)
    {
        if (folder.change != INVALID_HANDLE_VALUE)
        {
            ::FindCloseChangeNotification(folder.change);
        }
    }
}

} // namespace workbench
