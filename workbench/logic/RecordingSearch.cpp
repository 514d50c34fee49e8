#include "logic/RecordingSearch.h"

#include <exception>
#include <utility>

namespace workbench
{

RecordingSearch::RecordingSearch(std::vector<std::filesystem::path> targets, std::function<void()> notify)
    : m_thread([this, targets = std::move(targets), notify = std::move(notify)] {
          try
          {
              m_found = FindRecordings(targets, [this] { return m_stop.load(); });
          }
          catch (std::exception const &)
          {
              m_found = {{}, {}, targets};
          }
          if (!m_stop)
          {
              m_done = true;
              notify();
          }
      })
{
}

RecordingSearch::~RecordingSearch()
{
    m_stop = true;
    m_thread.join();
}

std::optional<FoundRecordings> RecordingSearch::Take()
{
    if (!m_done || std::exchange(m_taken, true))
    {
        return std::nullopt;
    }
    return std::move(m_found);
}

} // namespace workbench
