#include <afxdlgs.h>

#include <cstring>

#include "detail/DialogAccess.h"
#include "detail/ModalOwner.h"

namespace
{
UINT const colour_ok_message = ::RegisterWindowMessage(COLOROKSTRING);
UINT const set_colour_message = ::RegisterWindowMessage(SETRGBSTRING);
} // namespace

IMPLEMENT_DYNAMIC(CCommonDialog, CDialog)

CCommonDialog::CCommonDialog(CWnd * pParentWnd) : CDialog(static_cast<UINT>(0), pParentWnd) {}

void CCommonDialog::OnOK()
{
    // The system's own procedure ends the dialog; the data are exchanged before.
    if (UpdateData(TRUE))
        Default();
}

void CCommonDialog::OnCancel()
{
    Default();
}

IMPLEMENT_DYNAMIC(CColorDialog, CCommonDialog)

CColorDialog::CColorDialog(COLORREF clrInit, DWORD dwFlags, CWnd * pParentWnd) : CCommonDialog(pParentWnd)
{
    std::memset(&m_cc, 0, sizeof(m_cc));
    m_cc.lStructSize = sizeof(m_cc);
    m_cc.lpCustColors = GetSavedCustomColors();
    m_cc.Flags = dwFlags | CC_ENABLEHOOK;
    m_cc.lpfnHook = Hook;
    m_cc.lCustData = reinterpret_cast<LPARAM>(this);
    m_cc.rgbResult = clrInit;
    if (clrInit != 0)
        m_cc.Flags |= CC_RGBINIT;
}

COLORREF * PASCAL CColorDialog::GetSavedCustomColors()
{
    constexpr size_t count = 16;
    static COLORREF colours[count];
    static bool const filled = [] {
        for (COLORREF & colour : colours)
            colour = RGB(255, 255, 255);
        return true;
    }();
    (void)filled;
    return colours;
}

bool CColorDialog::AskColourOk(LPARAM lParam)
{
    m_cc.rgbResult = reinterpret_cast<CHOOSECOLOR const *>(lParam)->rgbResult;
    return OnColorOK() != FALSE;
}

UINT_PTR CALLBACK CColorDialog::Hook(HWND window, UINT message, WPARAM, LPARAM lParam)
{
    if (message == colour_ok_message)
    {
        auto * const asking = DYNAMIC_DOWNCAST(CColorDialog, CWnd::FromHandlePermanent(window));
        return asking != nullptr && asking->AskColourOk(lParam);
    }
    if (message != WM_INITDIALOG)
        return 0;
    auto * const dialog = reinterpret_cast<CColorDialog *>(reinterpret_cast<CHOOSECOLOR *>(lParam)->lCustData);
    if (!dialog->SubclassWindow(window))
        return 1;
    return framework::DialogProcedure(window, message, 0, 0) != 0;
}

LRESULT CALLBACK CColorDialog::OwnerHook(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                         DWORD_PTR dialog)
{
    if (message == colour_ok_message)
        return reinterpret_cast<CColorDialog *>(dialog)->AskColourOk(lParam);
    return ::DefSubclassProc(window, message, wParam, lParam);
}

INT_PTR CColorDialog::DoModal()
{
    framework::ModalOwner owner(framework::DialogAccess::State(*this).parent);
    m_cc.hwndOwner = owner.Window();
    // Some systems ask the owner, instead of the dialog, whether the colour is good.
    auto const id = reinterpret_cast<UINT_PTR>(this);
    if (m_cc.hwndOwner != nullptr)
        ::SetWindowSubclass(m_cc.hwndOwner, OwnerHook, id, reinterpret_cast<DWORD_PTR>(this));
    INT_PTR const result = ::ChooseColor(&m_cc) ? IDOK : IDCANCEL;
    if (m_cc.hwndOwner != nullptr)
        ::RemoveWindowSubclass(m_cc.hwndOwner, OwnerHook, id);
    owner.Enable();
    return result;
}

BOOL CColorDialog::OnColorOK()
{
    return FALSE;
}

void CColorDialog::SetCurrentColor(COLORREF clr)
{
    ASSERT(::IsWindow(m_hWnd));
    SendMessage(set_colour_message, 0, static_cast<LPARAM>(clr));
}

COLORREF CColorDialog::GetColor() const
{
    return m_cc.rgbResult;
}
