// Views that are a list, a tree or an edit field.

#include "afxcview.h"
#include "afxext.h"

#include <vector>

#include "detail/FrameSupport.h"
#include "detail/WndAccess.h"

IMPLEMENT_DYNCREATE(CListView, CCtrlView)
IMPLEMENT_DYNCREATE(CTreeView, CCtrlView)
IMPLEMENT_DYNCREATE(CEditView, CCtrlView)

// clang-format off
BEGIN_MESSAGE_MAP(CEditView, CCtrlView)
    ON_WM_CREATE()
    ON_CONTROL_REFLECT_EX(EN_CHANGE, &CEditView::HandleChange)
    ON_UPDATE_COMMAND_UI(ID_EDIT_CUT, &CEditView::UpdateNeedsSelection)
    ON_UPDATE_COMMAND_UI(ID_EDIT_COPY, &CEditView::UpdateNeedsSelection)
    ON_UPDATE_COMMAND_UI(ID_EDIT_CLEAR, &CEditView::UpdateNeedsSelection)
    ON_UPDATE_COMMAND_UI(ID_EDIT_PASTE, &CEditView::UpdateNeedsClipboard)
    ON_UPDATE_COMMAND_UI(ID_EDIT_UNDO, &CEditView::UpdateNeedsUndo)
    ON_UPDATE_COMMAND_UI(ID_EDIT_SELECT_ALL, &CEditView::UpdateNeedsText)
    ON_COMMAND_EX(ID_EDIT_CUT, &CEditView::HandleEditCommand)
    ON_COMMAND_EX(ID_EDIT_COPY, &CEditView::HandleEditCommand)
    ON_COMMAND_EX(ID_EDIT_CLEAR, &CEditView::HandleEditCommand)
    ON_COMMAND_EX(ID_EDIT_PASTE, &CEditView::HandleEditCommand)
    ON_COMMAND_EX(ID_EDIT_UNDO, &CEditView::HandleEditCommand)
    ON_COMMAND_EX(ID_EDIT_SELECT_ALL, &CEditView::HandleEditCommand)
END_MESSAGE_MAP()
// clang-format on

CListView::CListView() : CCtrlView(WC_LISTVIEW, AFX_WS_DEFAULT_VIEW) {}

CListView::~CListView()
{
    m_list.m_hWnd = nullptr;
}

BOOL CListView::PreCreateWindow(CREATESTRUCT & cs)
{
    return CCtrlView::PreCreateWindow(cs);
}

CListCtrl & CListView::GetListCtrl() const
{
    m_list.m_hWnd = m_hWnd;
    return m_list;
}

void CListView::RemoveImageList(int nImageList)
{
    ::SendMessage(m_hWnd, LVM_SETIMAGELIST, static_cast<WPARAM>(nImageList), 0);
}

CTreeView::CTreeView() : CCtrlView(WC_TREEVIEW, AFX_WS_DEFAULT_VIEW) {}

CTreeView::~CTreeView()
{
    m_tree.m_hWnd = nullptr;
}

BOOL CTreeView::PreCreateWindow(CREATESTRUCT & cs)
{
    return CCtrlView::PreCreateWindow(cs);
}

CTreeCtrl & CTreeView::GetTreeCtrl() const
{
    m_tree.m_hWnd = m_hWnd;
    return m_tree;
}

namespace
{
constexpr int default_tab_stops = 8 * 4; // in dialog units: eight characters
} // namespace

const DWORD CEditView::dwStyleDefault =
    AFX_WS_DEFAULT_VIEW | WS_HSCROLL | WS_VSCROLL | ES_AUTOHSCROLL | ES_AUTOVSCROLL | ES_MULTILINE | ES_NOHIDESEL;

CEditView::CEditView() : CCtrlView(L"EDIT", dwStyleDefault), m_tabStops(default_tab_stops), m_printerFont(nullptr) {}

CEditView::~CEditView()
{
    m_edit.m_hWnd = nullptr;
}

BOOL CEditView::PreCreateWindow(CREATESTRUCT & cs)
{
    return CCtrlView::PreCreateWindow(cs);
}

int CEditView::OnCreate(LPCREATESTRUCT lpcs)
{
    if (CCtrlView::OnCreate(lpcs) != 0)
        return -1;
    SendMessage(EM_LIMITTEXT, 0); // as much as it can hold
    SendMessage(EM_SETTABSTOPS, 1, reinterpret_cast<LPARAM>(&m_tabStops));
    return 0;
}

CEdit & CEditView::GetEditCtrl() const
{
    m_edit.m_hWnd = m_hWnd;
    return m_edit;
}

UINT CEditView::GetBufferLength() const
{
    return static_cast<UINT>(::GetWindowTextLength(m_hWnd));
}

LPCTSTR CEditView::LockBuffer() const
{
    GetWindowText(m_locked);
    return m_locked;
}

void CEditView::UnlockBuffer() const
{
    m_locked.Empty();
}

void CEditView::GetSelectedText(CString & strResult) const
{
    DWORD start = 0;
    DWORD end = 0;
    ::SendMessage(m_hWnd, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    CString text;
    GetWindowText(text);
    strResult = text.Mid(static_cast<int>(start), static_cast<int>(end - start));
}

void CEditView::SetTabStops(int nTabStops)
{
    m_tabStops = nTabStops;
    SendMessage(EM_SETTABSTOPS, 1, reinterpret_cast<LPARAM>(&m_tabStops));
    Invalidate();
}

BOOL CEditView::HandleChange()
{
    if (CDocument * const document = GetDocument())
        document->SetModifiedFlag();
    return FALSE; // the parent hears of it as well
}

BOOL CEditView::FindText(LPCTSTR lpszFind, BOOL bNext, BOOL bCase)
{
    int const length = lstrlen(lpszFind);
    if (length == 0)
        return FALSE;
    CString text;
    GetWindowText(text);
    DWORD start = 0;
    DWORD end = 0;
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    auto const matches = [&](int at) {
        return ::CompareStringOrdinal(text.GetString() + at, length, lpszFind, length, !bCase) == CSTR_EQUAL;
    };
    int const last = text.GetLength() - length;
    // A selection that is the text itself is left behind.
    bool const selected = static_cast<int>(end - start) == length && matches(static_cast<int>(start));
    int at = static_cast<int>(start) + (bNext ? (selected ? 1 : 0) : -1);
    while (at >= 0 && at <= last && !matches(at))
        at += bNext ? 1 : -1;
    if (at < 0 || at > last)
        return FALSE;
    SendMessage(EM_SETSEL, static_cast<WPARAM>(at), at + length);
    SendMessage(EM_SCROLLCARET);
    return TRUE;
}

bool CEditView::SameAsSelected(LPCTSTR text, BOOL matchCase) const
{
    CString selected;
    GetSelectedText(selected);
    return ::CompareStringOrdinal(selected, -1, text, -1, !matchCase) == CSTR_EQUAL;
}

void CEditView::OnFindNext(LPCTSTR lpszFind, BOOL bNext, BOOL bCase)
{
    if (!FindText(lpszFind, bNext, bCase))
        OnTextNotFound(lpszFind);
}

void CEditView::OnReplaceSel(LPCTSTR lpszFind, BOOL bNext, BOOL bCase, LPCTSTR lpszReplace)
{
    framework::WindowGuard const guard(this);
    if (SameAsSelected(lpszFind, bCase))
        SendMessage(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(lpszReplace));
    if (guard.Alive() && !FindText(lpszFind, bNext, bCase))
        OnTextNotFound(lpszFind);
}

void CEditView::OnReplaceAll(LPCTSTR lpszFind, LPCTSTR lpszReplace, BOOL bCase)
{
    int const length = lstrlen(lpszFind);
    if (length == 0)
        return;
    CString text;
    GetWindowText(text);
    // In one pass, so that a replacement is not looked through for the text again.
    CString result;
    int replaced = 0;
    int at = 0;
    int copied = 0;
    while (at + length <= text.GetLength())
    {
        if (::CompareStringOrdinal(text.GetString() + at, length, lpszFind, length, !bCase) != CSTR_EQUAL)
        {
            ++at;
            continue;
        }
        result += text.Mid(copied, at - copied);
        result += lpszReplace;
        at += length;
        copied = at;
        ++replaced;
    }
    if (replaced == 0)
    {
        OnTextNotFound(lpszFind);
        return;
    }
    result += text.Mid(copied);
    CWaitCursor wait;
    framework::WindowGuard const guard(this);
    SendMessage(EM_SETSEL, 0, -1);
    if (guard.Alive())
        SendMessage(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(result.GetString()));
}

void CEditView::OnTextNotFound(LPCTSTR)
{
    ::MessageBeep(MB_ICONHAND);
}

void CEditView::UpdateNeedsSelection(CCmdUI * pCmdUI)
{
    DWORD start = 0;
    DWORD end = 0;
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    pCmdUI->Enable(start != end);
}

void CEditView::UpdateNeedsText(CCmdUI * pCmdUI)
{
    pCmdUI->Enable(GetBufferLength() != 0);
}

void CEditView::UpdateNeedsClipboard(CCmdUI * pCmdUI)
{
    pCmdUI->Enable(::IsClipboardFormatAvailable(CF_UNICODETEXT));
}

void CEditView::UpdateNeedsUndo(CCmdUI * pCmdUI)
{
    pCmdUI->Enable(SendMessage(EM_CANUNDO) != 0);
}

BOOL CEditView::HandleEditCommand(UINT nID)
{
    switch (nID)
    {
    case ID_EDIT_CUT:
        SendMessage(WM_CUT);
        break;
    case ID_EDIT_COPY:
        SendMessage(WM_COPY);
        break;
    case ID_EDIT_CLEAR:
        SendMessage(WM_CLEAR);
        break;
    case ID_EDIT_PASTE:
        SendMessage(WM_PASTE);
        break;
    case ID_EDIT_UNDO:
        SendMessage(EM_UNDO);
        break;
    case ID_EDIT_SELECT_ALL:
        SendMessage(EM_SETSEL, 0, -1);
        break;
    default:
        return FALSE;
    }
    return TRUE;
}
