#include <afxwin.h>
#include <commctrl.h>

#include <vector>

#include "detail/DataExchange.h"

namespace framework
{
namespace
{
/// The messages by which list boxes and combo boxes do the same.
struct ListMessages
{
    UINT getSelection;
    UINT setSelection;
    UINT getTextLength;
    UINT getText;
    UINT selectString;
    UINT findExact;
};

constexpr ListMessages list_box = {LB_GETCURSEL, LB_SETCURSEL,    LB_GETTEXTLEN,
                                   LB_GETTEXT,   LB_SELECTSTRING, LB_FINDSTRINGEXACT};
constexpr ListMessages combo_box = {CB_GETCURSEL, CB_SETCURSEL,    CB_GETLBTEXTLEN,
                                    CB_GETLBTEXT, CB_SELECTSTRING, CB_FINDSTRINGEXACT};
constexpr LRESULT not_found = -1; // LB_ERR, CB_ERR
constexpr WPARAM from_start = static_cast<WPARAM>(-1);

CString SelectedText(HWND control, ListMessages const & messages)
{
    LRESULT const index = ::SendMessage(control, messages.getSelection, 0, 0);
    if (index == not_found)
        return CString();
    LRESULT const length = ::SendMessage(control, messages.getTextLength, static_cast<WPARAM>(index), 0);
    if (length == not_found)
        return CString();
    std::vector<TCHAR> text(static_cast<size_t>(length) + 1);
    ::SendMessage(control, messages.getText, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()));
    return CString(text.data());
}

/// Selects the first item that starts with the text; false if there is none.
bool SelectStart(HWND control, ListMessages const & messages, CString const & text)
{
    return ::SendMessage(control, messages.selectString, from_start, reinterpret_cast<LPARAM>(text.GetString())) !=
           not_found;
}

/// Selects the first item with this text (without regard to case); false if there is none.
bool SelectExact(HWND control, ListMessages const & messages, CString const & text)
{
    LRESULT const index =
        ::SendMessage(control, messages.findExact, from_start, reinterpret_cast<LPARAM>(text.GetString()));
    if (index == not_found)
        return false;
    ::SendMessage(control, messages.setSelection, static_cast<WPARAM>(index), 0);
    return true;
}

void ExchangeIndex(CDataExchange * pDX, int nIDC, ListMessages const & messages, int & index)
{
    HWND const control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        index = static_cast<int>(::SendMessage(control, messages.getSelection, 0, 0));
    else
        ::SendMessage(control, messages.setSelection, static_cast<WPARAM>(index), 0);
}

bool IsRadioButton(HWND control)
{
    return (::SendMessage(control, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0;
}
} // namespace
} // namespace framework

void AFXAPI DDX_Check(CDataExchange * pDX, int nIDC, int & value)
{
    HWND const control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
    {
        value = static_cast<int>(::SendMessage(control, BM_GETCHECK, 0, 0));
        return;
    }
    if (value < BST_UNCHECKED || value > BST_INDETERMINATE)
    {
        TRACE("DDX_Check: %d is no state of a check box\n", value);
        value = BST_UNCHECKED;
    }
    ::SendMessage(control, BM_SETCHECK, static_cast<WPARAM>(value), 0);
}

void AFXAPI DDX_Radio(CDataExchange * pDX, int nIDC, int & value)
{
    HWND control = pDX->PrepareCtrl(nIDC);
    ASSERT((::GetWindowLong(control, GWL_STYLE) & WS_GROUP) != 0);
    ASSERT(framework::IsRadioButton(control));
    if (pDX->m_bSaveAndValidate)
        value = -1; // stays so if no button of the group is set

    int index = 0;
    do
    {
        if (framework::IsRadioButton(control))
        {
            if (!pDX->m_bSaveAndValidate)
                ::SendMessage(control, BM_SETCHECK, index == value ? BST_CHECKED : BST_UNCHECKED, 0);
            else if (::SendMessage(control, BM_GETCHECK, 0, 0) == BST_CHECKED)
                value = index;
            ++index;
        }
        else
            TRACE("DDX_Radio: a control of the group is no radio button\n");
        control = ::GetWindow(control, GW_HWNDNEXT);
    } while (control != nullptr && (::GetWindowLong(control, GWL_STYLE) & WS_GROUP) == 0);
}

void AFXAPI DDX_LBString(CDataExchange * pDX, int nIDC, CString & value)
{
    HWND const control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = framework::SelectedText(control, framework::list_box);
    else if (!framework::SelectStart(control, framework::list_box, value))
        TRACE("DDX_LBString: no item starts with the text\n");
}

void AFXAPI DDX_LBStringExact(CDataExchange * pDX, int nIDC, CString & value)
{
    HWND const control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = framework::SelectedText(control, framework::list_box);
    else if (!framework::SelectExact(control, framework::list_box, value))
        TRACE("DDX_LBStringExact: no item has the text\n");
}

void AFXAPI DDX_LBIndex(CDataExchange * pDX, int nIDC, int & index)
{
    framework::ExchangeIndex(pDX, nIDC, framework::list_box, index);
}

void AFXAPI DDX_CBString(CDataExchange * pDX, int nIDC, CString & value)
{
    HWND const control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = framework::TextOf(control);
    else if (!framework::SelectStart(control, framework::combo_box, value))
        framework::SetTextOf(control, value); // the edit field takes any text
}

void AFXAPI DDX_CBStringExact(CDataExchange * pDX, int nIDC, CString & value)
{
    HWND const control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = framework::TextOf(control);
    else if (!framework::SelectExact(control, framework::combo_box, value))
        framework::SetTextOf(control, value);
}

void AFXAPI DDX_CBIndex(CDataExchange * pDX, int nIDC, int & index)
{
    framework::ExchangeIndex(pDX, nIDC, framework::combo_box, index);
}

void AFXAPI DDX_Scroll(CDataExchange * pDX, int nIDC, int & value)
{
    HWND const control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = ::GetScrollPos(control, SB_CTL);
    else
        ::SetScrollPos(control, SB_CTL, value, TRUE);
}

void AFXAPI DDX_Slider(CDataExchange * pDX, int nIDC, int & value)
{
    HWND const control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = static_cast<int>(::SendMessage(control, TBM_GETPOS, 0, 0));
    else
        ::SendMessage(control, TBM_SETPOS, TRUE, value);
}
