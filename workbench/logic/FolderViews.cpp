#include "logic/FolderViews.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace workbench
{

namespace
{

constexpr int most_column = 1000;

constexpr std::wstring_view sort_key = L"sort ";
constexpr std::wstring_view stretch_key = L"part ";
constexpr std::wstring_view chosen_key = L"chosen ";
constexpr std::wstring_view selected_key = L"selected ";
constexpr std::wstring_view order_key = L"next ";

void PutLine(std::wstring & text, std::wstring_view key, std::wstring_view value)
{
    text += key;
    text += value;
    text += L'\n';
}

/// The numbers of a text, which is nothing else; nothing where it is.
std::optional<std::vector<std::uint64_t>> NumbersIn(std::wstring_view text)
{
    constexpr auto most = std::numeric_limits<std::uint64_t>::max();
    std::vector<std::uint64_t> numbers;
    bool inNumber = false;
    for (wchar_t const character : text)
    {
        if (character == L' ')
        {
            inNumber = false;
            continue;
        }
        if (character < L'0' || character > L'9')
        {
            return std::nullopt;
        }
        if (!std::exchange(inNumber, true))
        {
            numbers.push_back(0);
        }
        auto const digit = static_cast<std::uint64_t>(character - L'0');
        std::size_t & number = numbers.back();
        if (number > (most - digit) / 10)
        {
            return std::nullopt;
        }
        number = number * 10 + digit;
    }
    return numbers;
}

} // namespace

std::wstring FolderViewText(FolderView const & view)
{
    std::wstring text;
    if (view.column >= 0)
    {
        PutLine(text, sort_key, std::to_wstring(view.column) + (view.ascending ? L" 1" : L" 0"));
    }
    if (view.stretch)
    {
        FolderView::Stretch const & part = *view.stretch;
        PutLine(text, stretch_key,
                std::to_wstring(part.frames) + L' ' + std::to_wstring(part.first) + L' ' + std::to_wstring(part.end) +
                    L' ' + std::to_wstring(part.cursor));
    }
    if (!view.chosen.empty())
    {
        PutLine(text, chosen_key, view.chosen);
    }
    for (std::wstring const & name : view.selected)
    {
        PutLine(text, selected_key, name);
    }
    for (std::wstring const & name : view.order)
    {
        PutLine(text, order_key, name);
    }
    return text;
}

FolderView ReadFolderView(std::wstring_view text)
{
    FolderView view;
    while (!text.empty())
    {
        std::size_t const end = std::min(text.find(L'\n'), text.size());
        std::wstring_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        auto const isFor = [&line](std::wstring_view key) {
            bool const is = line.starts_with(key);
            line.remove_prefix(is ? key.size() : 0);
            return is;
        };
        if (isFor(sort_key))
        {
            if (auto const numbers = NumbersIn(line);
                numbers && numbers->size() == 2 && (*numbers)[0] <= most_column && (*numbers)[1] <= 1)
            {
                view.column = static_cast<int>((*numbers)[0]);
                view.ascending = (*numbers)[1] == 1;
            }
        }
        else if (isFor(stretch_key))
        {
            if (auto const numbers = NumbersIn(line); numbers && numbers->size() == 4)
            {
                view.stretch = {(*numbers)[0], (*numbers)[1], (*numbers)[2], (*numbers)[3]};
            }
        }
        else if (isFor(chosen_key))
        {
            view.chosen = line;
        }
        else if (isFor(selected_key))
        {
            view.selected.emplace_back(line);
        }
        else if (isFor(order_key))
        {
            view.order.emplace_back(line);
        }
    }
    return view;
}

std::wstring NameInFolder(std::filesystem::path const & folder, std::filesystem::path const & file)
{
    auto const name = file.wstring();
    auto begin = folder.wstring();
    if (!begin.empty() && begin.back() != L'/' && begin.back() != L'\\')
    {
        begin += static_cast<wchar_t>(std::filesystem::path::preferred_separator);
    }
    return !folder.empty() && name.size() > begin.size() && name.starts_with(begin) ? name.substr(begin.size()) : name;
}

std::filesystem::path FileInFolder(std::filesystem::path const & folder, std::wstring const & name)
{
    return folder / std::filesystem::path(name); // which an absolute one replaces
}

FolderViews::FolderViews(std::filesystem::path file, std::chrono::milliseconds delay)
    : m_store(std::move(file), {}, delay)
{
}

FolderView FolderViews::Of(std::filesystem::path const & folder) const
{
    return ReadFolderView(m_store.Of(folder).comment);
}

void FolderViews::Set(std::filesystem::path const & folder, FolderView const & view)
{
    RecordingNotes notes;
    notes.comment = FolderViewText(view);
    m_store.Set(folder, notes);
}

} // namespace workbench
