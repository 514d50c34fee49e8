#include "logic/FolderContents.h"

#include <exception>
#include <system_error>

#include "logic/RecordingFiles.h"

namespace workbench
{

FolderContents ContentsOf(std::filesystem::path const & folder, std::function<bool()> const & giveUp)
{
    FolderContents contents;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error))
    {
        if (giveUp && giveUp())
        {
            return {};
        }
        std::error_code ignored;
        if (entry->is_directory(ignored))
        {
            contents.folders.push_back(entry->path());
        }
        else if (HasRecordingExtension(entry->path()))
        {
            contents.recordings.push_back(entry->path());
        }
    }
    SortByName(contents.folders);
    SortByName(contents.recordings);
    return contents;
}

FolderReading::FolderReading(std::filesystem::path folder, std::function<void()> notify)
    : m_thread([this, folder = std::move(folder), notify = std::move(notify)] {
          try
          {
              m_contents = ContentsOf(folder, [this] { return m_stop.load(); });
          }
          catch (std::exception const &)
          {
              m_contents = {};
          }
          if (!m_stop)
          {
              m_done = true;
              notify();
          }
      })
{
}

FolderReading::~FolderReading()
{
    m_stop = true;
    m_thread.join();
}

std::optional<FolderContents> FolderReading::Take()
{
    if (!m_done || std::exchange(m_taken, true))
    {
        return std::nullopt;
    }
    return std::move(m_contents);
}

} // namespace workbench
