#include "logic/RecordingSearch.h"

#include <exception>
#include <utility>

namespace workbench
{

RecordingSearch::RecordingSearch(std::vector<std::filesystem::path> targets, std::function<void()> notify,
                                 bool withFacts)
    : m_thread([this, targets = std::move(targets), notify = std::move(notify), withFacts] {
          try
          {
              m_found = FindRecordings(targets, [this] { return m_stop.load(); });
              for (std::size_t i = 0; withFacts && !m_stop && i < m_found.files.size(); ++i)
              {
                  m_found.facts.push_back(ReadFileFacts(m_found.files[i]));
              }
          }
          catch (std::exception const &)
          {
              m_found = {{}, {}, {}, targets};
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
