// Tab control, status bar, rebar and tool bar.

#include <afxcmn.h>

#include <algorithm>

#include "detail/ControlSupport.h"

IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)
IMPLEMENT_DYNAMIC(CStatusBarCtrl, CWnd)
IMPLEMENT_DYNAMIC(CReBarCtrl, CWnd)
IMPLEMENT_DYNAMIC(CToolBarCtrl, CWnd)

BEGIN_MESSAGE_MAP(CTabCtrl, CWnd)
    ON_WM_DESTROY()
    ON_WM_DRAWITEM_REFLECT()
END_MESSAGE_MAP()

// CTabCtrl

CTabCtrl::CTabCtrl() = default;

CTabCtrl::~CTabCtrl()
{
    DestroyWindow();
}

BOOL CTabCtrl::Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControl(*this, ICC_TAB_CLASSES, WC_TABCONTROL, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CTabCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControlEx(*this, ICC_TAB_CLASSES, dwExStyle, WC_TABCONTROL, nullptr, dwStyle, rect,
                                      pParentWnd, nID);
}

void CTabCtrl::OnDestroy()
{
    if (framework::ReleaseImages(*this, TCM_GETIMAGELIST, TCM_SETIMAGELIST, {0}))
        CWnd::OnDestroy();
}

DWORD CTabCtrl::GetItemState(int nItem, DWORD dwMask) const
{
    TCITEM item{};
    item.mask = TCIF_STATE;
    item.dwStateMask = dwMask;
    GetItem(nItem, &item);
    return item.dwState & dwMask;
}

BOOL CTabCtrl::SetItemState(int nItem, DWORD dwMask, DWORD dwState)
{
    TCITEM item{};
    item.mask = TCIF_STATE;
    item.dwState = dwState;
    item.dwStateMask = dwMask;
    return SetItem(nItem, &item);
}

CSize CTabCtrl::SetItemSize(CSize size)
{
    return framework::SizeOf(framework::Send<DWORD>(m_hWnd, TCM_SETITEMSIZE, 0, MAKELPARAM(size.cx, size.cy)));
}

LONG CTabCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam, DWORD dwState,
                          DWORD dwStateMask)
{
    TCITEM item{};
    item.mask = nMask;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.lParam = lParam;
    item.dwState = dwState;
    item.dwStateMask = dwStateMask;
    return InsertItem(nItem, &item);
}

void CTabCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

// CStatusBarCtrl

CStatusBarCtrl::CStatusBarCtrl() = default;

CStatusBarCtrl::~CStatusBarCtrl()
{
    DestroyWindow();
}

BOOL CStatusBarCtrl::Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControl(*this, ICC_BAR_CLASSES, STATUSCLASSNAME, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CStatusBarCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControlEx(*this, ICC_BAR_CLASSES, dwExStyle, STATUSCLASSNAME, nullptr, dwStyle, rect,
                                      pParentWnd, nID);
}

CString CStatusBarCtrl::GetText(int nPane, int * pType) const
{
    CString text;
    int const length = GetTextLength(nPane, pType);
    // What an owner-drawn pane keeps is a value, not a text.
    if (framework::Send<DWORD>(m_hWnd, SB_GETTEXTLENGTH, nPane) & MAKELONG(0, SBT_OWNERDRAW))
        return text;
    framework::Send(m_hWnd, SB_GETTEXT, nPane, text.GetBuffer(length));
    text.ReleaseBuffer(length);
    return text;
}

int CStatusBarCtrl::GetText(LPTSTR lpszText, int nPane, int * pType) const
{
    auto const packed = framework::Send<DWORD>(m_hWnd, SB_GETTEXT, nPane, lpszText);
    if (pType != nullptr)
        *pType = HIWORD(packed);
    return LOWORD(packed);
}

BOOL CStatusBarCtrl::SetText(LPCTSTR lpszText, int nPane, int nType)
{
    return framework::Send<BOOL>(m_hWnd, SB_SETTEXT, nPane | nType, lpszText);
}

int CStatusBarCtrl::GetTextLength(int nPane, int * pType) const
{
    auto const packed = framework::Send<DWORD>(m_hWnd, SB_GETTEXTLENGTH, nPane);
    if (pType != nullptr)
        *pType = HIWORD(packed);
    return LOWORD(packed);
}

BOOL CStatusBarCtrl::GetBorders(int & nHorz, int & nVert, int & nSpacing) const
{
    int borders[3]{};
    BOOL const taken = GetBorders(borders);
    nHorz = borders[0];
    nVert = borders[1];
    nSpacing = borders[2];
    return taken;
}

CString CStatusBarCtrl::GetTipText(int nPane) const
{
    return framework::CollectText([this, nPane](LPTSTR buffer, int size) {
        framework::Send(m_hWnd, SB_GETTIPTEXT, MAKEWPARAM(nPane, std::min(size, 0xFFFF)), buffer);
        return true;
    });
}

void CStatusBarCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CStatusBarCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * pResult)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

// CReBarCtrl

CReBarCtrl::CReBarCtrl() = default;

CReBarCtrl::~CReBarCtrl()
{
    DestroyWindow();
}

BOOL CReBarCtrl::Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControl(*this, ICC_COOL_CLASSES, REBARCLASSNAME, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CReBarCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControlEx(*this, ICC_COOL_CLASSES, dwExStyle, REBARCLASSNAME, nullptr, dwStyle, rect,
                                      pParentWnd, nID);
}

CImageList * CReBarCtrl::GetImageList() const
{
    REBARINFO info{sizeof(REBARINFO), RBIM_IMAGELIST, nullptr};
    return GetBarInfo(&info) ? CImageList::FromHandle(info.himl) : nullptr;
}

BOOL CReBarCtrl::SetImageList(CImageList * pImageList)
{
    REBARINFO info{sizeof(REBARINFO), RBIM_IMAGELIST, framework::HandleOf(pImageList)};
    return SetBarInfo(&info);
}

CPalette * CReBarCtrl::GetPalette() const
{
    return CPalette::FromHandle(framework::Send<HPALETTE>(m_hWnd, RB_GETPALETTE));
}

CPalette * CReBarCtrl::SetPalette(HPALETTE hPal)
{
    return CPalette::FromHandle(framework::Send<HPALETTE>(m_hWnd, RB_SETPALETTE, 0, hPal));
}

void CReBarCtrl::RestoreBand(UINT uBand)
{
    // The flag asks for the band's ideal width instead of the largest one.
    framework::Send(m_hWnd, RB_MAXIMIZEBAND, uBand, TRUE);
}

BOOL CReBarCtrl::SizeToRect(CRect & rect)
{
    return framework::Send<BOOL>(m_hWnd, RB_SIZETORECT, 0, static_cast<LPRECT>(&rect));
}

// CToolBarCtrl

CToolBarCtrl::CToolBarCtrl() = default;

CToolBarCtrl::~CToolBarCtrl()
{
    DestroyWindow();
}

BOOL CToolBarCtrl::Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    BOOL const created =
        framework::CreateControl(*this, ICC_BAR_CLASSES, TOOLBARCLASSNAME, nullptr, dwStyle, rect, pParentWnd, nID);
    if (created)
        SetButtonStructSize(sizeof(TBBUTTON));
    return created;
}

BOOL CToolBarCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    BOOL const created = framework::CreateControlEx(*this, ICC_BAR_CLASSES, dwExStyle, TOOLBARCLASSNAME, nullptr,
                                                    dwStyle, rect, pParentWnd, nID);
    if (created)
        SetButtonStructSize(sizeof(TBBUTTON));
    return created;
}

BOOL CToolBarCtrl::GetPadding(int * pnHorzPadding, int * pnVertPadding) const
{
    if (pnHorzPadding == nullptr || pnVertPadding == nullptr)
        return FALSE;
    auto const padding = framework::Send<DWORD>(m_hWnd, TB_GETPADDING);
    *pnHorzPadding = LOWORD(padding);
    *pnVertPadding = HIWORD(padding);
    return TRUE;
}

void CToolBarCtrl::RestoreState(HKEY hKeyRoot, LPCTSTR lpszSubKey, LPCTSTR lpszValueName)
{
    TBSAVEPARAMS place{hKeyRoot, lpszSubKey, lpszValueName};
    framework::Send(m_hWnd, TB_SAVERESTORE, FALSE, &place);
}

void CToolBarCtrl::SaveState(HKEY hKeyRoot, LPCTSTR lpszSubKey, LPCTSTR lpszValueName)
{
    TBSAVEPARAMS place{hKeyRoot, lpszSubKey, lpszValueName};
    framework::Send(m_hWnd, TB_SAVERESTORE, TRUE, &place);
}

CString CToolBarCtrl::GetButtonText(int idButton) const
{
    CString text;
    int const length = framework::Send<int>(m_hWnd, TB_GETBUTTONTEXT, idButton, 0);
    if (length > 0)
    {
        framework::Send(m_hWnd, TB_GETBUTTONTEXT, idButton, text.GetBuffer(length));
        text.ReleaseBuffer(length);
    }
    return text;
}

int CToolBarCtrl::AddBitmap(int nNumButtons, UINT nBitmapID)
{
    TBADDBITMAP picture{AfxFindResourceHandle(MAKEINTRESOURCE(nBitmapID), RT_BITMAP), nBitmapID};
    return framework::Send<int>(m_hWnd, TB_ADDBITMAP, nNumButtons, &picture);
}

int CToolBarCtrl::AddBitmap(int nNumButtons, CBitmap * pBitmap)
{
    TBADDBITMAP picture{nullptr, reinterpret_cast<UINT_PTR>(pBitmap->GetSafeHandle())};
    return framework::Send<int>(m_hWnd, TB_ADDBITMAP, nNumButtons, &picture);
}

int CToolBarCtrl::AddString(UINT nStringID)
{
    CString text;
    if (!text.LoadString(nStringID))
        return -1;
    // The message expects a list of texts, which ends in an empty one.
    text.AppendChar(0);
    return AddStrings(text);
}

int CToolBarCtrl::GetString(int nString, LPTSTR lpstrString, int cchMaxLen) const
{
    return framework::Send<int>(m_hWnd, TB_GETSTRING, MAKEWPARAM(cchMaxLen, nString), lpstrString);
}

int CToolBarCtrl::GetString(int nString, CString & str) const
{
    int const length = GetString(nString, nullptr, 0);
    if (length < 0)
    {
        str.Empty();
        return length;
    }
    int const size = std::min((length + 1) * static_cast<int>(sizeof(TCHAR)), 0xFFFF);
    int const taken = GetString(nString, str.GetBuffer(length), size);
    str.ReleaseBuffer();
    return taken;
}
