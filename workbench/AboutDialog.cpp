#include "AboutDialog.h"

#include <vector>

#include "logic/Texts.h"
#include "resource.h"

using workbench::Text;

namespace
{

/// A text of a module's version resource; empty if it has none.
CString VersionText(HMODULE module, wchar_t const * name)
{
    HRSRC const resource = ::FindResourceW(module, MAKEINTRESOURCEW(VS_VERSION_INFO), RT_VERSION);
    HGLOBAL const loaded = resource != nullptr ? ::LoadResource(module, resource) : nullptr;
    if (loaded == nullptr)
    {
        return {};
    }
    auto const * const bytes = static_cast<char const *>(::LockResource(loaded));
    // Asking may write into it.
    std::vector<char> block(bytes, bytes + ::SizeofResource(module, resource));
    block.resize(2 * block.size());
    void * text = nullptr;
    UINT length = 0;
    CString path;
    path.Format(L"\\StringFileInfo\\040904B0\\%s", name);
    return ::VerQueryValueW(block.data(), path, &text, &length) && length > 0 ? CString(static_cast<wchar_t *>(text))
                                                                              : CString();
}

} // namespace

CAboutDialog::CAboutDialog(workbench::Settings const & settings, CWnd & owner) : CDialog3d(NO_DLL, IDD_ABOUT, &owner)
{
    SetDialogTitle(Text(L"About"));
    SetGenuineTitle(L"About");
    m_fadeInOnCreate = settings.fadeIn;
    SetGrabAndMove(settings.dragByBackground);
}

BOOL CAboutDialog::OnInitDialog()
{
    CDialog3d::OnInitDialog();
    HINSTANCE const program = AfxGetInstanceHandle();
    HMODULE const module = ::GetModuleHandleW(L"instrument_ui.dll");
    LOGFONT font{};
    GetFont()->GetLogFont(&font);
    font.lfWeight = FW_BOLD;
    m_boldFont.CreateFontIndirect(&font);
    GetDlgItem(IDC_ABOUT_NAME)->SetFont(&m_boldFont);
    SetDlgItemText(IDC_ABOUT_NAME, VersionText(program, L"ProductName"));
    SetDlgItemText(IDC_ABOUT_VERSION, Text(L"Version") + (L" " + VersionText(program, L"FileVersion")) + L", " +
                                          VersionText(program, L"CompanyName"));
    SetDlgItemText(IDC_ABOUT_PARTS, Text(L"Built with") + (L": " + VersionText(program, L"Comments")) + L"\n" +
                                        VersionText(module, L"FileDescription") + L" " +
                                        VersionText(module, L"FileVersion"));
    return TRUE;
}
