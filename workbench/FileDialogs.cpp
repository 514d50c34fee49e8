#include "FileDialogs.h"

#include <afxdlgs.h>

#include "dialogs/FolderDialog.h"
#include "logic/Texts.h"

namespace workbench
{

namespace
{

// Enough for some hundreds of names; a larger choice is refused by the dialog.
constexpr DWORD names_length = 65536;

std::optional<std::filesystem::path> ChooseFileToWrite(CWnd & owner, wchar_t const * title, wchar_t const * extension,
                                                       std::wstring const & name, wchar_t const * kinds)
{
    CFileDialog dialog(FALSE, extension, name.c_str(),
                       OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY | OFN_PATHMUSTEXIST | OFN_NOCHANGEDIR, kinds, &owner);
    dialog.GetOFN().lpstrTitle = title;
    if (dialog.DoModal() != IDOK)
    {
        return std::nullopt;
    }
    return std::filesystem::path(dialog.GetPathName().GetString());
}

} // namespace

std::vector<std::filesystem::path> ChooseFiles(CWnd & owner)
{
    std::vector<std::filesystem::path> files;
    std::vector<wchar_t> names(names_length, L'\0');
    CFileDialog dialog(TRUE, L"wav", nullptr,
                       OFN_ALLOWMULTISELECT | OFN_FILEMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR,
                       Text(L"WAV recordings (*.wav;*.wave)|*.wav;*.wave|All files (*.*)|*.*||"), &owner);
    dialog.GetOFN().lpstrTitle = Text(L"Open Recordings");
    dialog.GetOFN().lpstrFile = names.data();
    dialog.GetOFN().nMaxFile = names_length;
    if (dialog.DoModal() == IDOK)
    {
        for (POSITION position = dialog.GetStartPosition(); position != nullptr;)
        {
            files.emplace_back(dialog.GetNextPathName(position).GetString());
        }
    }
    return files;
}

std::optional<std::filesystem::path> ChoosePictureFile(CWnd & owner, std::wstring const & name)
{
    return ChooseFileToWrite(owner, Text(L"Save Picture"), L"png", name, Text(L"Pictures (*.png)|*.png||"));
}

std::optional<std::filesystem::path> ChooseReportFile(CWnd & owner, std::wstring const & name)
{
    return ChooseFileToWrite(owner, Text(L"Save Report"), L"html", name, Text(L"Web page (*.html)|*.html||"));
}

std::optional<std::filesystem::path> ChooseFolder(CWnd & owner, wchar_t const * title)
{
    CFolderDialog dialog(owner.m_hWnd);
    dialog.SetTitleMessage(title);
    if (dialog.DoModal() != IDOK)
    {
        return std::nullopt;
    }
    return std::filesystem::path(dialog.GetPathName().GetString());
}

} // namespace workbench
