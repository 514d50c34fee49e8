#include "logic/FolderContents.h"

#include <exception>
#include <system_error>
#include <unordered_set>

#include "logic/RecordingFiles.h"

namespace workbench
{

namespace
{

using Paths = std::vector<std::filesystem::path>;

/// Adds the steps between two lists in one order.
void AddSteps(std::vector<FolderStep> & steps, Paths const & before, Paths const & after, bool isFolder)
{
    using Text = std::filesystem::path::string_type;
    std::unordered_set<Text> present;
    for (std::filesystem::path const & path : after)
    {
        present.insert(path.native());
    }
    std::unordered_set<Text> former;
    for (std::filesystem::path const & path : before)
    {
        former.insert(path.native());
        if (!present.contains(path.native()))
        {
            steps.push_back({FolderStep::Kind::remove, isFolder, path, {}});
        }
    }
    for (std::size_t i = 0; i < after.size(); ++i)
    {
        if (!former.contains(after[i].native()))
        {
            auto previous = i > 0 ? after[i - 1] : std::filesystem::path();
            steps.push_back({FolderStep::Kind::add, isFolder, after[i], std::move(previous)});
        }
    }
}

} // namespace

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

std::vector<FolderStep> StepsBetween(FolderContents const & before, FolderContents const & after)
{
    std::vector<FolderStep> steps;
    AddSteps(steps, before.folders, after.folders, true);
    AddSteps(steps, before.recordings, after.recordings, false);
    return steps;
}

FolderReading::FolderReading(std::filesystem::path folder, std::shared_ptr<FolderContents const> before,
                             std::function<void()> notify)
    : m_thread([this, folder = std::move(folder), before = std::move(before), notify = std::move(notify)] {
          auto contents = std::make_shared<FolderContents>();
          try
          {
              *contents = ContentsOf(folder, [this] { return m_stop.load(); });
          }
          catch (std::exception const &)
          {
              *contents = {};
          }
          m_result = {contents, StepsBetween(before ? *before : FolderContents(), *contents)};
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

std::optional<FolderReading::Result> FolderReading::Take()
{
    if (!m_done || std::exchange(m_taken, true))
    {
        return std::nullopt;
    }
    return std::move(m_result);
}

} // namespace workbench
