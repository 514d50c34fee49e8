#pragma once
// Finds recordings on a thread of its own, so that windows stay alive meanwhile.

#include <atomic>
#include <filesystem>
#include <functional>
#include <optional>
#include <thread>
#include <vector>

#include "logic/RecordingFiles.h"

namespace workbench
{

/// One search. All operations are for one thread, the owner's; `notify` is called on the search's own thread.
class RecordingSearch
{
public:
    /// Starts the search. `notify` is called once at its end, unless it is given up, and must not call the search.
    /// Where wanted, it also asks for the files' sizes and times.
    RecordingSearch(std::vector<std::filesystem::path> targets, std::function<void()> notify, bool withFacts = false);

    /// Gives the search up and waits for the thread's end.
    ~RecordingSearch();

    RecordingSearch(RecordingSearch const &) = delete;
    RecordingSearch & operator=(RecordingSearch const &) = delete;

    /// What was found, once; nothing before the end.
    std::optional<FoundRecordings> Take();

private:
    FoundRecordings m_found;
    std::atomic<bool> m_done = false;
    std::atomic<bool> m_stop = false;
    bool m_taken = false;
    std::thread m_thread;
};

} // namespace workbench
