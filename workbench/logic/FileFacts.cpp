#include "logic/FileFacts.h"

#include <chrono>
#include <system_error>

namespace workbench
{

namespace
{

// The libraries disagree on how a file's time becomes the system's: directly, or by way of the clock with leap seconds.
template <class FileClock> auto SystemTime(std::chrono::time_point<FileClock> const & time)
{
    if constexpr (requires { FileClock::to_sys(time); })
    {
        return FileClock::to_sys(time);
    }
    else
    {
        auto const universal = FileClock::to_utc(time);
        return decltype(universal)::clock::to_sys(universal);
    }
}

} // namespace

FileFacts ReadFileFacts(std::filesystem::path const & path)
{
    FileFacts facts;
    std::error_code error;
    if (uintmax_t const size = std::filesystem::file_size(path, error); !error)
    {
        facts.size = size;
    }
    if (std::filesystem::file_time_type const time = std::filesystem::last_write_time(path, error); !error)
    {
        auto const seconds = std::chrono::floor<std::chrono::seconds>(SystemTime(time));
        facts.lastWrite = static_cast<std::time_t>(seconds.time_since_epoch().count());
    }
    return facts;
}

} // namespace workbench
