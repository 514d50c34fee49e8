#include "logic/StoredLists.h"

#include <algorithm>
#include <cwctype>
#include <sstream>

namespace workbench
{

namespace
{

constexpr wchar_t folder_separator = L'|'; // no name of a folder has it
constexpr wchar_t number_separator = L' ';
constexpr std::size_t longest_number = 6;

/// The parts between separators, without empty ones.
std::vector<std::wstring_view> Split(std::wstring_view text, wchar_t separator)
{
    std::vector<std::wstring_view> parts;
    for (std::size_t begin = 0; begin < text.size();)
    {
        std::size_t const end = std::min(text.find(separator, begin), text.size());
        if (end > begin)
        {
            parts.push_back(text.substr(begin, end - begin));
        }
        begin = end + 1;
    }
    return parts;
}

std::wstring LowerCase(std::wstring text)
{
    for (wchar_t & character : text)
    {
        character = static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(character)));
    }
    return text;
}

} // namespace

std::vector<std::filesystem::path> FoldersOf(std::wstring_view text)
{
    std::vector<std::filesystem::path> folders;
    for (std::wstring_view const part : Split(text, folder_separator))
    {
        folders.emplace_back(std::wstring(part));
    }
    return folders;
}

std::wstring FolderText(std::vector<std::filesystem::path> const & folders)
{
    std::wstring text;
    for (std::filesystem::path const & folder : folders)
    {
        text += (text.empty() ? L"" : std::wstring(1, folder_separator)) + folder.wstring();
    }
    return text;
}

std::wstring PathKey(std::filesystem::path const & path)
{
    auto key = LowerCase(path.wstring());
    std::ranges::replace(key, L'/', L'\\');
    while (key.size() > 1 && key.back() == L'\\')
    {
        key.pop_back();
    }
    return key;
}

void PutFirst(std::vector<std::filesystem::path> & folders, std::filesystem::path const & folder)
{
    std::filesystem::path const first = folder; // it may be one of them
    std::erase_if(folders, [&first](auto const & other) { return IsSameFolder(other, first); });
    folders.insert(folders.begin(), first);
    if (folders.size() > most_recent_folders)
    {
        folders.resize(most_recent_folders);
    }
}

bool IsSameFolder(std::filesystem::path const & a, std::filesystem::path const & b)
{
    return PathKey(a) == PathKey(b);
}

bool IsInFolder(std::filesystem::path const & path, std::filesystem::path const & folder)
{
    std::wstring const inner = PathKey(path);
    std::wstring const outer = PathKey(folder);
    return inner.starts_with(outer) &&
           (inner.size() == outer.size() || inner[outer.size()] == L'\\' || outer.ends_with(L'\\'));
}

std::set<int> NumbersOf(std::wstring_view text, int end)
{
    std::set<int> numbers;
    for (std::wstring_view const part : Split(text, number_separator))
    {
        auto const isDigit = [](wchar_t character) { return character >= L'0' && character <= L'9'; };
        if (part.size() > longest_number || !std::ranges::all_of(part, isDigit))
        {
            continue;
        }
        int const number = std::stoi(std::wstring(part));
        if (number < end)
        {
            numbers.insert(number);
        }
    }
    return numbers;
}

std::wstring NumberText(std::set<int> const & numbers)
{
    std::wstring text;
    for (int const number : numbers)
    {
        text += (text.empty() ? L"" : std::wstring(1, number_separator)) + std::to_wstring(number);
    }
    return text;
}

std::wstring RecentItemText(int number, std::filesystem::path const & path)
{
    constexpr std::size_t most_characters = 60;
    constexpr std::size_t from_begin = 12;
    auto text = path.wstring();
    if (text.size() > most_characters)
    {
        std::size_t const rest = text.size() - (most_characters - from_begin);
        std::size_t const part = text.find_first_of(L"\\/", rest);
        text = text.substr(0, from_begin) + L"..." + text.substr(part == text.npos ? rest : part);
    }
    auto item = L'&' + std::to_wstring(number) + L' ';
    for (wchar_t const character : text)
    {
        item.append(character == L'&' ? 2 : 1, character);
    }
    return item;
}

std::vector<int> OrderOf(std::wstring_view text, int end)
{
    std::vector<int> order;
    std::wistringstream stream{std::wstring(text)};
    auto const put = [&order, end](int number) {
        if (number >= 0 && number < end && std::ranges::find(order, number) == order.end())
        {
            order.push_back(number);
        }
    };
    for (int number = 0; stream >> number;)
    {
        put(number);
    }
    for (int number = 0; number < end; ++number)
    {
        put(number);
    }
    return order;
}

std::wstring OrderText(std::vector<int> const & order)
{
    std::wstring text;
    for (int const number : order)
    {
        text += (text.empty() ? L"" : L" ") + std::to_wstring(number);
    }
    return text;
}

} // namespace workbench
