// CWnd: dialog items and the exchange of data with them.

#include "afxpriv.h"

#include <cstring>

#include "detail/ChildWalk.h"
#include "detail/ThreadState.h"
#include "detail/WndAccess.h"

void CWnd::CheckDlgButton(int nIDButton, UINT nCheck)
{
    ::CheckDlgButton(m_hWnd, nIDButton, nCheck);
}

void CWnd::CheckRadioButton(int nIDFirstButton, int nIDLastButton, int nIDCheckButton)
{
    ::CheckRadioButton(m_hWnd, nIDFirstButton, nIDLastButton, nIDCheckButton);
}

int CWnd::GetCheckedRadioButton(int nIDFirstButton, int nIDLastButton)
{
    for (int id = nIDFirstButton; id <= nIDLastButton; ++id)
    {
        if (IsDlgButtonChecked(id) != 0)
            return id;
    }
    return 0;
}

UINT CWnd::IsDlgButtonChecked(int nIDButton) const
{
    return ::IsDlgButtonChecked(m_hWnd, nIDButton);
}

int CWnd::DlgDirList(LPTSTR lpPathSpec, int nIDListBox, int nIDStaticPath, UINT nFileType)
{
    return ::DlgDirList(m_hWnd, lpPathSpec, nIDListBox, nIDStaticPath, nFileType);
}

int CWnd::DlgDirListComboBox(LPTSTR lpPathSpec, int nIDComboBox, int nIDStaticPath, UINT nFileType)
{
    return ::DlgDirListComboBox(m_hWnd, lpPathSpec, nIDComboBox, nIDStaticPath, nFileType);
}

BOOL CWnd::DlgDirSelect(LPTSTR lpString, int nIDListBox)
{
    return ::DlgDirSelectEx(m_hWnd, lpString, MAX_PATH, nIDListBox);
}

BOOL CWnd::DlgDirSelectComboBox(LPTSTR lpString, int nIDComboBox)
{
    return ::DlgDirSelectComboBoxEx(m_hWnd, lpString, MAX_PATH, nIDComboBox);
}

UINT CWnd::GetDlgItemInt(int nID, BOOL * lpTrans, BOOL bSigned) const
{
    return ::GetDlgItemInt(m_hWnd, nID, lpTrans, bSigned);
}

void CWnd::SetDlgItemInt(int nID, UINT nValue, BOOL bSigned)
{
    ::SetDlgItemInt(m_hWnd, nID, nValue, bSigned);
}

int CWnd::GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const
{
    return static_cast<int>(::GetDlgItemText(m_hWnd, nID, lpStr, nMaxCount));
}

int CWnd::GetDlgItemText(int nID, CString & rString) const
{
    rString.Empty();
    HWND const item = ::GetDlgItem(m_hWnd, nID);
    if (item == nullptr)
        return 0;
    int const length = ::GetWindowTextLength(item);
    ::GetWindowText(item, rString.GetBufferSetLength(length), length + 1);
    rString.ReleaseBuffer();
    return rString.GetLength();
}

void CWnd::SetDlgItemText(int nID, LPCTSTR lpszString)
{
    ::SetDlgItemText(m_hWnd, nID, lpszString);
}

LRESULT CWnd::SendDlgItemMessage(int nID, UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::SendDlgItemMessage(m_hWnd, nID, message, wParam, lParam);
}

CWnd * CWnd::GetNextDlgGroupItem(CWnd * pWndCtl, BOOL bPrevious) const
{
    return FromHandle(::GetNextDlgGroupItem(m_hWnd, framework::SafeHandle(pWndCtl), bPrevious));
}

CWnd * CWnd::GetNextDlgTabItem(CWnd * pWndCtl, BOOL bPrevious) const
{
    return FromHandle(::GetNextDlgTabItem(m_hWnd, framework::SafeHandle(pWndCtl), bPrevious));
}

BOOL CWnd::ExecuteDlgInit(LPCTSTR lpszResourceName)
{
    if (lpszResourceName == nullptr)
        return ExecuteDlgInit(static_cast<LPVOID>(nullptr));
    LPCTSTR const type = MAKEINTRESOURCE(240); // RT_DLGINIT
    HINSTANCE const module = AfxFindResourceHandle(lpszResourceName, type);
    HRSRC const resource = ::FindResource(module, lpszResourceName, type);
    if (resource == nullptr)
        return TRUE;
    HGLOBAL const loaded = ::LoadResource(module, resource);
    return loaded != nullptr && ExecuteDlgInit(::LockResource(loaded));
}

BOOL CWnd::ExecuteDlgInit(LPVOID lpResource)
{
    // Entries of control id, message and data, up to the id 0; the messages are those of 16-bit Windows.
    constexpr UINT list_box_add_string = 0x401;
    constexpr UINT combo_box_add_string = 0x403;
    constexpr UINT combo_box_ex_add_string = 0x1234;
    bool succeeded = true;
    auto const read16 = [](BYTE const *& at) {
        WORD value = 0;
        std::memcpy(&value, at, sizeof value);
        at += sizeof value;
        return value;
    };
    auto at = static_cast<BYTE const *>(lpResource);
    while (succeeded && at != nullptr)
    {
        WORD const id = read16(at);
        if (id == 0)
            break;
        WORD const message = read16(at);
        DWORD length = 0;
        std::memcpy(&length, at, sizeof length);
        at += sizeof length;
        if (message == combo_box_add_string || message == list_box_add_string)
        {
            UINT const add = message == combo_box_add_string ? CB_ADDSTRING : LB_ADDSTRING;
            auto const text = reinterpret_cast<LPARAM>(at);
            succeeded = ::SendDlgItemMessageA(m_hWnd, id, add, 0, text) != -1;
        }
        else if (message == combo_box_ex_add_string)
        {
            COMBOBOXEXITEM item{};
            CString text(reinterpret_cast<char const *>(at));
            item.mask = CBEIF_TEXT;
            item.iItem = -1;
            item.pszText = text.GetBuffer();
            succeeded = SendDlgItemMessage(id, CBEM_INSERTITEM, 0, reinterpret_cast<LPARAM>(&item)) != -1;
        }
        at += length;
    }
    if (succeeded)
        SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, FALSE, FALSE);
    return succeeded;
}

void CWnd::DoDataExchange(CDataExchange *) {}

BOOL CWnd::UpdateData(BOOL bSaveAndValidate)
{
    ASSERT(::IsWindow(m_hWnd));
    // What the controls notify while they are filled is no input of the user's.
    class LockOut
    {
    public:
        explicit LockOut(HWND window) : m_state(framework::CurrentThreadState()), m_previous(m_state.lockedOut)
        {
            m_state.lockedOut = window;
        }
        LockOut(LockOut const &) = delete;
        LockOut & operator=(LockOut const &) = delete;
        ~LockOut() { m_state.lockedOut = m_previous; }

    private:
        framework::ThreadState & m_state;
        HWND m_previous;
    };
    CDataExchange exchange(this, bSaveAndValidate);
    LockOut const lockOut(m_hWnd);
    try
    {
        DoDataExchange(&exchange);
        return TRUE;
    }
    catch (CUserException * exception)
    {
        exception->Delete(); // the user has been told
    }
    catch (CException * exception)
    {
        exception->ReportError(MB_ICONEXCLAMATION, AFX_IDP_INTERNAL_FAILURE);
        exception->Delete();
    }
    return FALSE;
}

void CWnd::UpdateDialogControls(CCmdTarget * pTarget, BOOL bDisableIfNoHndler)
{
    // A handler may end a control, this window or the target's.
    HWND const window = m_hWnd;
    CWnd * const targetWindow = DYNAMIC_DOWNCAST(CWnd, pTarget);
    HWND const targetHandle = framework::SafeHandle(targetWindow);
    CWnd * const object = FromHandlePermanent(window);
    CWnd * const targetObject = FromHandlePermanent(targetHandle);
    auto const alive = [=] {
        return ::IsWindow(window) && FromHandlePermanent(window) == object &&
               FromHandlePermanent(targetHandle) == targetObject;
    };
    framework::ChildWalk children(window);
    while (HWND const child = alive() ? children.Next() : nullptr)
    {
        CCmdUI state;
        state.m_nID = static_cast<WORD>(::GetDlgCtrlID(child));
        state.m_pOther = FromHandle(child);
        if (CWnd * const control = FromHandlePermanent(child))
        {
            if (control->CWnd::OnCmdMsg(0, static_cast<int>(MAKELONG(0xFFFF, WM_COMMAND + WM_REFLECT_BASE)), &state,
                                        nullptr))
                continue;
        }
        if (!alive() || !children.IsChild(child))
            continue;
        if (CWnd::OnCmdMsg(state.m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), &state, nullptr))
            continue;
        // Only push buttons stand for commands.
        BOOL disable = bDisableIfNoHndler;
        if (disable && (::SendMessage(child, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON) == 0)
            disable = FALSE;
        if (disable)
        {
            auto const style = static_cast<UINT>(::GetWindowLongPtr(child, GWL_STYLE)) & BS_TYPEMASK;
            disable = style == BS_PUSHBUTTON || style == BS_DEFPUSHBUTTON || style == BS_OWNERDRAW;
        }
        if (alive() && children.IsChild(child))
            framework::CmdUiAccess::DoUpdate(state, pTarget, disable);
    }
}
