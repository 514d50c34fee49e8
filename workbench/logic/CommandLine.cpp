#include "logic/CommandLine.h"

#include <algorithm>
#include <string_view>

namespace workbench
{

namespace
{

bool IsOption(std::wstring_view argument, std::wstring_view option)
{
    return std::ranges::equal(argument, option, [](wchar_t a, wchar_t b) {
        return (a >= L'A' && a <= L'Z' ? static_cast<wchar_t>(a - L'A' + L'a') : a) == b;
    });
}

} // namespace

CommandLine ParseCommandLine(std::span<std::wstring const> arguments)
{
    CommandLine result;
    for (std::size_t i = 0; i < arguments.size(); ++i)
    {
        bool const walk = IsOption(arguments[i], L"/walk");
        if (!walk && !IsOption(arguments[i], L"/walk-restart"))
        {
            if (!arguments[i].empty())
            {
                result.targets.push_back(arguments[i]);
            }
            continue;
        }
        if (result.mode != RunMode::interactive)
        {
            result.error = L"Only one of /walk and /walk-restart can be given, and once.";
        }
        else if (i + 1 == arguments.size() || arguments[i + 1].empty())
        {
            result.error = arguments[i] + L" needs a folder for its markers.";
        }
        else
        {
            result.mode = walk ? RunMode::walk : RunMode::walk_restart;
            result.walkFolder = arguments[++i];
        }
    }
    return result;
}

} // namespace workbench
