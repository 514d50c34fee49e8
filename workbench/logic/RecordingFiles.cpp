#include "logic/RecordingFiles.h"

#include <algorithm>
#include <set>
#include <string>
#include <system_error>

namespace workbench
{

namespace
{

using NativeText = std::filesystem::path::string_type;

/// The text with its ASCII letters in lower case. It stays in the platform's own coding, as a file's name may be no
/// valid text in any other.
NativeText LowerCase(NativeText text)
{
    for (auto & c : text)
    {
        if (c >= 'A' && c <= 'Z')
        {
            c = static_cast<NativeText::value_type>(c - 'A' + 'a');
        }
    }
    return text;
}

std::vector<std::filesystem::path> RecordingsInFolder(std::filesystem::path const & folder)
{
    std::vector<std::filesystem::path> files;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error))
    {
        std::error_code ignored;
        if (HasRecordingExtension(entry->path()) && !entry->is_directory(ignored))
        {
            files.push_back(entry->path());
        }
    }
    std::ranges::sort(files, [](std::filesystem::path const & a, std::filesystem::path const & b) {
        auto const lowerA = LowerCase(a.filename().native());
        auto const lowerB = LowerCase(b.filename().native());
        return lowerA != lowerB ? lowerA < lowerB : a < b;
    });
    return files;
}

} // namespace

bool HasRecordingExtension(std::filesystem::path const & path)
{
    auto const extension = std::filesystem::path(LowerCase(path.extension().native()));
    return extension == ".wav" || extension == ".wave";
}

std::vector<std::filesystem::path> FindRecordings(std::span<std::filesystem::path const> targets)
{
    std::vector<std::filesystem::path> result;
    std::set<std::filesystem::path> seen;
    auto const add = [&](std::filesystem::path const & path) {
        if (seen.insert(path).second)
        {
            result.push_back(path);
        }
    };
    for (auto const & target : targets)
    {
        std::error_code error;
        if (std::filesystem::is_directory(target, error))
        {
            std::ranges::for_each(RecordingsInFolder(target), add);
        }
        else
        {
            add(target);
        }
    }
    return result;
}

} // namespace workbench
