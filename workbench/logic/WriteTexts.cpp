#include "logic/WriteTexts.h"

#include "logic/Texts.h"
#include "logic/TrashTexts.h"

namespace workbench
{

std::wstring WriteErrorText(unsigned long error)
{
    switch (error)
    {
    case 0:
        return {};
    case 2:  // ERROR_FILE_NOT_FOUND
    case 3:  // ERROR_PATH_NOT_FOUND
    case 15: // ERROR_INVALID_DRIVE
    case 21: // ERROR_NOT_READY
    case 53: // ERROR_BAD_NETPATH
    case 55: // ERROR_DEV_NOT_EXIST
    case 64: // ERROR_NETNAME_DELETED
    case 67: // ERROR_BAD_NET_NAME
        return Text(L"the folder is not there any more");
    case 39: // ERROR_HANDLE_DISK_FULL
        return FileErrorText(112);
    default:
        return FileErrorText(error);
    }
}

std::wstring WriteFailureText(wchar_t const * heading, std::filesystem::path const & file, unsigned long error)
{
    std::wstring const reason = WriteErrorText(error);
    return heading + (L"\n\n" + file.wstring()) + (reason.empty() ? L"" : L": ") + reason;
}

std::wstring WriteFailureText(std::filesystem::path const & file, unsigned long error)
{
    return WriteFailureText(Text(L"This file could not be written:"), file, error);
}

} // namespace workbench
