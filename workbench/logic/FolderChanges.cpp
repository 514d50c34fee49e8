#include "logic/FolderChanges.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <unordered_set>

namespace workbench
{

namespace
{

using Path = std::filesystem::path;
using Name = std::basic_string_view<Path::value_type>; // of a path that lasts longer

bool IsKnown(FileFacts const & facts)
{
    return facts.size && facts.lastWrite;
}

} // namespace

FolderChanges CompareFolder(std::span<KnownFile const> listed, std::span<KnownFile const> found)
{
    FolderChanges changes;
    struct Present
    {
        FileFacts const & facts;
        bool isListed = false;
    };
    std::unordered_map<Name, Present> present;
    present.reserve(found.size());
    std::vector<Present const *> ofFound;
    ofFound.reserve(found.size());
    for (auto const & [file, facts] : found)
    {
        ofFound.push_back(&present.try_emplace(file.native(), Present{facts}).first->second);
    }
    for (std::size_t place = 0; place < listed.size(); ++place)
    {
        auto const & [file, facts] = listed[place];
        auto const now = present.find(file.native());
        if (now != present.end())
        {
            now->second.isListed = true;
        }
        if (now == present.end() || (IsKnown(facts) && !IsKnown(now->second.facts)))
        {
            changes.gone.push_back(place);
        }
        else if (IsKnown(facts) && facts != now->second.facts)
        {
            changes.changed.push_back(place);
        }
    }
    // Of each size and time, those that are gone and those that have come.
    struct Pair
    {
        std::vector<std::size_t> gone;
        std::vector<KnownFile const *> come;
    };
    std::map<std::tuple<std::uint64_t, std::time_t>, Pair> alike;
    auto const pairOf = [&alike](FileFacts const & facts) -> Pair & { return alike[{*facts.size, *facts.lastWrite}]; };
    for (std::size_t const place : changes.gone)
    {
        if (IsKnown(listed[place].facts))
        {
            pairOf(listed[place].facts).gone.push_back(place);
        }
    }
    for (std::size_t i = 0; i < found.size(); ++i)
    {
        if (KnownFile const & each = found[i]; !ofFound[i]->isListed)
        {
            changes.come.push_back(each.file);
            if (IsKnown(each.facts))
            {
                pairOf(each.facts).come.push_back(&each);
            }
        }
    }
    std::unordered_set<std::size_t> formerly;
    std::unordered_set<Name> now;
    for (auto const & [facts, pair] : alike)
    {
        if (pair.gone.size() == 1 && pair.come.size() == 1)
        {
            changes.renamed.emplace_back(pair.gone.front(), pair.come.front()->file);
            formerly.insert(pair.gone.front());
            now.insert(pair.come.front()->file.native());
        }
    }
    std::erase_if(changes.gone, [&formerly](std::size_t place) { return formerly.contains(place); });
    std::erase_if(changes.come, [&now](Path const & file) { return now.contains(file.native()); });
    return changes;
}

} // namespace workbench
