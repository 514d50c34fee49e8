#include "logic/RecordingFiles.h"

#include <algorithm>
#include <string>
#include <system_error>
#include <unordered_set>
#include <utility>

namespace workbench
{

namespace
{

using NativeText = std::filesystem::path::string_type;

/// The text with its ASCII letters in lower case. It stays in the platform's own coding, as a file's name may be no
/// valid text in any other.
NativeText LowerCase(NativeText text)
{
    for (NativeText::value_type & c : text)
    {
        if (c >= 'A' && c <= 'Z')
        {
            c = static_cast<NativeText::value_type>(c - 'A' + 'a');
        }
    }
    return text;
}

/// The folder's recordings by name. False if it cannot be read.
bool RecordingsInFolder(std::filesystem::path const & folder, std::function<bool()> const & giveUp,
                        std::vector<std::filesystem::path> & files)
{
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error))
    {
        if (giveUp && giveUp())
        {
            return true;
        }
        std::error_code ignored;
        if (HasRecordingExtension(entry->path()) && !entry->is_directory(ignored))
        {
            files.push_back(entry->path());
        }
    }
    SortByName(files);
    return !error || !files.empty();
}

} // namespace

void SortByName(std::vector<std::filesystem::path> & paths)
{
    struct Named
    {
        NativeText key;
        std::filesystem::path path;
    };
    std::vector<Named> named;
    named.reserve(paths.size());
    for (std::filesystem::path & path : paths)
    {
        NativeText key = LowerCase(path.filename().native());
        named.push_back({std::move(key), std::move(path)});
    }
    std::ranges::sort(named, [](Named const & a, Named const & b) {
        return a.key != b.key ? a.key < b.key : a.path.native() < b.path.native();
    });
    std::ranges::transform(named, paths.begin(), [](Named & each) { return std::move(each.path); });
}

bool HasRecordingExtension(std::filesystem::path const & path)
{
    auto const extension = std::filesystem::path(LowerCase(path.extension().native()));
    return extension == ".wav" || extension == ".wave";
}

FoundRecordings FindRecordings(std::span<std::filesystem::path const> targets, std::function<bool()> const & giveUp)
{
    FoundRecordings result;
    std::unordered_set<NativeText> seen;
    for (std::filesystem::path const & target : targets)
    {
        std::error_code error;
        std::vector<std::filesystem::path> files;
        std::filesystem::file_type const kind = std::filesystem::status(target, error).type();
        if (kind == std::filesystem::file_type::directory)
        {
            bool const read = RecordingsInFolder(target, giveUp, files);
            (read ? result.folders : result.missing).push_back(target);
        }
        else if (kind == std::filesystem::file_type::not_found && !HasRecordingExtension(target))
        {
            result.missing.push_back(target);
        }
        else
        {
            files.push_back(target);
        }
        for (std::filesystem::path & file : files)
        {
            if (seen.insert(file.native()).second)
            {
                result.files.push_back(std::move(file));
            }
        }
        if (giveUp && giveUp())
        {
            return {};
        }
    }
    return result;
}

} // namespace workbench
