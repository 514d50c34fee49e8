#include "logic/TrashTexts.h"

#include <algorithm>
#include <cstddef>

#include "logic/NumberSigns.h"
#include "logic/TextFormat.h"
#include "logic/Texts.h"

namespace workbench
{

namespace
{

constexpr std::size_t most_names = 5;

/// A text with a number in place of its mark.
std::wstring WithNumber(wchar_t const * text, std::size_t number)
{
    std::wstring result(text);
    constexpr std::wstring_view mark = L"%s";
    if (std::size_t const place = result.find(mark); place != std::wstring::npos)
    {
        result.replace(place, mark.size(), FormatThousands(number));
    }
    return result;
}

/// The first lines, each on one of its own below a heading, and how many others there are.
template <typename Items, typename Line> std::wstring Listed(std::wstring text, Items const & items, Line const & line)
{
    text += L'\n';
    auto const shown = std::min(items.size(), most_names);
    for (std::size_t i = 0; i < shown; ++i)
    {
        text += L'\n' + line(items[i]);
    }
    if (items.size() > shown)
    {
        text += L'\n' + WithNumber(Text(L"and %s more"), items.size() - shown);
    }
    return text;
}

} // namespace

std::wstring FileErrorText(unsigned long error)
{
    switch (error)
    {
    case 2: // ERROR_FILE_NOT_FOUND
    case 3: // ERROR_PATH_NOT_FOUND
        return Text(L"it is not there any more");
    case 5: // ERROR_ACCESS_DENIED
        return Text(L"you have no permission for it");
    case 19: // ERROR_WRITE_PROTECT
        return Text(L"the medium is write-protected");
    case 32: // ERROR_SHARING_VIOLATION
    case 33: // ERROR_LOCK_VIOLATION
        return Text(L"another program is using it");
    case 80:  // ERROR_FILE_EXISTS
    case 183: // ERROR_ALREADY_EXISTS
        return Text(L"there is a file with this name already");
    case 112: // ERROR_DISK_FULL
        return Text(L"the medium is full");
    default:
        return Text(L"error") + (L' ' + std::to_wstring(error));
    }
}

std::wstring TrashQuestion(std::span<std::filesystem::path const> files)
{
    auto const heading = files.size() == 1 ? std::wstring(Text(L"Move this file to the trash?"))
                                           : WithNumber(Text(L"Move these %s files to the trash?"), files.size());
    return Listed(heading, files, [](std::filesystem::path const & file) { return file.filename().wstring(); });
}

std::wstring TrashFailureText(std::span<FileFailure const> failures)
{
    auto const heading = failures.size() == 1
                             ? std::wstring(Text(L"This file could not be moved to the trash:"))
                             : WithNumber(Text(L"%s files could not be moved to the trash:"), failures.size());
    return Listed(heading, failures, [](FileFailure const & failure) {
        return failure.first.filename().wstring() + L": " + FileErrorText(failure.second);
    });
}

} // namespace workbench
