// CFontDialog.

#include <afxdlgs.h>
#include <afxwin.h>

#include <cstring>

#include "detail/CommonDialogHook.h"
#include "detail/ModalOwner.h"

IMPLEMENT_DYNAMIC(CFontDialog, CCommonDialog)

CFontDialog::CFontDialog(LPLOGFONT lplfInitial, DWORD dwFlags, CDC * pdcPrinter, CWnd * pParentWnd)
    : CCommonDialog(pParentWnd)
{
    Initialise(dwFlags, pdcPrinter);
    if (lplfInitial == nullptr)
        return;
    m_font = *lplfInitial;
    m_cf.lpLogFont = lplfInitial;
    m_cf.Flags |= CF_INITTOLOGFONTSTRUCT;
}

CFontDialog::CFontDialog(CHARFORMAT const & charformat, DWORD dwFlags, CDC * pdcPrinter, CWnd * pParentWnd)
    : CCommonDialog(pParentWnd)
{
    constexpr int twips_per_inch = 1440;
    Initialise(dwFlags, pdcPrinter);
    m_cf.Flags |= CF_INITTOLOGFONTSTRUCT;
    DWORD const mask = charformat.dwMask;
    if ((mask & CFM_SIZE) != 0)
    {
        HDC const screen = ::GetDC(nullptr);
        m_font.lfHeight = -::MulDiv(charformat.yHeight, ::GetDeviceCaps(screen, LOGPIXELSY), twips_per_inch);
        ::ReleaseDC(nullptr, screen);
    }
    auto const has = [&](DWORD part, DWORD effect) {
        return (mask & part) != 0 && (charformat.dwEffects & effect) != 0;
    };
    m_font.lfWeight = has(CFM_BOLD, CFE_BOLD) ? FW_BOLD : FW_NORMAL;
    m_font.lfItalic = has(CFM_ITALIC, CFE_ITALIC);
    m_font.lfUnderline = has(CFM_UNDERLINE, CFE_UNDERLINE);
    m_font.lfStrikeOut = has(CFM_STRIKEOUT, CFE_STRIKEOUT);
    m_font.lfCharSet = (mask & CFM_CHARSET) != 0 ? charformat.bCharSet : static_cast<BYTE>(DEFAULT_CHARSET);
    if ((mask & CFM_FACE) != 0)
        ::lstrcpyn(m_font.lfFaceName, charformat.szFaceName, LF_FACESIZE);
    if ((mask & CFM_COLOR) != 0)
    {
        m_cf.rgbColors =
            (charformat.dwEffects & CFE_AUTOCOLOR) != 0 ? ::GetSysColor(COLOR_WINDOWTEXT) : charformat.crTextColor;
    }
}

CFontDialog::~CFontDialog() = default;

void CFontDialog::Initialise(DWORD flags, CDC * printer)
{
    std::memset(&m_cf, 0, sizeof(m_cf));
    std::memset(&m_font, 0, sizeof(m_font));
    m_styleName[0] = 0;
    m_cf.lStructSize = sizeof(m_cf);
    m_cf.lpLogFont = &m_font;
    m_cf.lpszStyle = m_styleName;
    m_cf.Flags = flags | CF_ENABLEHOOK;
    m_cf.lpfnHook = Hook;
    m_cf.lCustData = reinterpret_cast<LPARAM>(this);
    if (printer == nullptr)
        return;
    m_cf.hDC = printer->GetSafeHdc();
    m_cf.Flags |= CF_PRINTERFONTS;
}

UINT_PTR CALLBACK CFontDialog::Hook(HWND window, UINT message, WPARAM, LPARAM lParam)
{
    if (message != WM_INITDIALOG)
        return 0;
    auto * const dialog = reinterpret_cast<CFontDialog *>(reinterpret_cast<CHOOSEFONT *>(lParam)->lCustData);
    return framework::AttachCommonDialog(*dialog, window);
}

INT_PTR CFontDialog::DoModal()
{
    framework::ModalOwner owner(framework::DialogAccess::State(*this).parent);
    m_cf.hwndOwner = owner.Window();
    INT_PTR const result = ::ChooseFont(&m_cf) ? IDOK : IDCANCEL;
    owner.Enable();
    if (result == IDOK)
        m_font = *m_cf.lpLogFont;
    return result;
}

void CFontDialog::GetCurrentFont(LPLOGFONT lplf)
{
    if (m_hWnd != nullptr)
        SendMessage(WM_CHOOSEFONT_GETLOGFONT, 0, reinterpret_cast<LPARAM>(lplf));
    else
        *lplf = m_font;
}

void CFontDialog::GetCharFormat(CHARFORMAT & cf) const
{
    constexpr int twips_per_tenth = 2;
    cf.cbSize = sizeof(cf);
    cf.dwMask = CFM_BOLD | CFM_ITALIC | CFM_FACE | CFM_SIZE | CFM_CHARSET;
    cf.dwEffects = (IsBold() ? CFE_BOLD : 0) | (IsItalic() ? CFE_ITALIC : 0);
    cf.yHeight = GetSize() * twips_per_tenth;
    cf.yOffset = 0;
    cf.bCharSet = m_cf.lpLogFont->lfCharSet;
    cf.bPitchAndFamily = m_cf.lpLogFont->lfPitchAndFamily;
    ::lstrcpyn(cf.szFaceName, m_cf.lpLogFont->lfFaceName, LF_FACESIZE);
    if ((m_cf.Flags & CF_EFFECTS) == 0)
        return;
    cf.dwMask |= CFM_UNDERLINE | CFM_STRIKEOUT | CFM_COLOR;
    cf.dwEffects |= (IsUnderline() ? CFE_UNDERLINE : 0) | (IsStrikeOut() ? CFE_STRIKEOUT : 0);
    cf.crTextColor = GetColor();
}
