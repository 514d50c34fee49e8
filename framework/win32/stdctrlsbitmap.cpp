// The button with pictures.

#include <afxext.h>

IMPLEMENT_DYNAMIC(CBitmapButton, CButton)

CBitmapButton::CBitmapButton() = default;
CBitmapButton::~CBitmapButton() = default;

BOOL CBitmapButton::LoadBitmaps(LPCTSTR lpszBitmapResource, LPCTSTR lpszBitmapResourceSel,
                                LPCTSTR lpszBitmapResourceFocus, LPCTSTR lpszBitmapResourceDisabled)
{
    for (CBitmap * const bitmap : {&m_bitmap, &m_bitmapSel, &m_bitmapFocus, &m_bitmapDisabled})
        bitmap->DeleteObject();
    if (!m_bitmap.LoadBitmap(lpszBitmapResource))
        return FALSE;
    BOOL complete = TRUE;
    if (lpszBitmapResourceSel != nullptr && !m_bitmapSel.LoadBitmap(lpszBitmapResourceSel))
        complete = FALSE;
    if (lpszBitmapResourceFocus != nullptr && !m_bitmapFocus.LoadBitmap(lpszBitmapResourceFocus))
        complete = FALSE;
    if (lpszBitmapResourceDisabled != nullptr && !m_bitmapDisabled.LoadBitmap(lpszBitmapResourceDisabled))
        complete = FALSE;
    return complete;
}

BOOL CBitmapButton::LoadBitmaps(UINT nIDBitmapResource, UINT nIDBitmapResourceSel, UINT nIDBitmapResourceFocus,
                                UINT nIDBitmapResourceDisabled)
{
    // Id 0 is a null name.
    return LoadBitmaps(MAKEINTRESOURCE(nIDBitmapResource), MAKEINTRESOURCE(nIDBitmapResourceSel),
                       MAKEINTRESOURCE(nIDBitmapResourceFocus), MAKEINTRESOURCE(nIDBitmapResourceDisabled));
}

BOOL CBitmapButton::AutoLoad(UINT nID, CWnd * pParent)
{
    if (!SubclassDlgItem(nID, pParent))
        return FALSE;
    // The caption names the pictures: U is the one of the button at rest, D pressed, F with the focus, X disabled.
    CString name;
    GetWindowText(name);
    LoadBitmaps(name + _T("U"), name + _T("D"), name + _T("F"), name + _T("X"));
    // The picture at rest and the pressed one must be there.
    if (m_bitmap.m_hObject == nullptr || m_bitmapSel.m_hObject == nullptr)
        return FALSE;
    SizeToContent();
    return TRUE;
}

void CBitmapButton::SizeToContent()
{
    BITMAP size{};
    if (m_bitmap.m_hObject == nullptr || m_bitmap.GetBitmap(&size) == 0)
        return;
    SetWindowPos(nullptr, -1, -1, size.bmWidth, size.bmHeight,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOREDRAW | SWP_NOACTIVATE);
}

void CBitmapButton::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    UINT const state = lpDrawItemStruct->itemState;
    CBitmap * picture = &m_bitmap;
    if ((state & ODS_SELECTED) != 0 && m_bitmapSel.m_hObject != nullptr)
        picture = &m_bitmapSel;
    else if ((state & ODS_FOCUS) != 0 && m_bitmapFocus.m_hObject != nullptr)
        picture = &m_bitmapFocus;
    else if ((state & ODS_DISABLED) != 0 && m_bitmapDisabled.m_hObject != nullptr)
        picture = &m_bitmapDisabled;
    if (picture->m_hObject == nullptr)
        return;

    CDC memory;
    CDC * const target = CDC::FromHandle(lpDrawItemStruct->hDC);
    if (!memory.CreateCompatibleDC(target))
        return;
    CBitmap * const previous = memory.SelectObject(picture);
    if (previous == nullptr)
        return;
    CRect const area(lpDrawItemStruct->rcItem);
    target->BitBlt(area.left, area.top, area.Width(), area.Height(), &memory, 0, 0, SRCCOPY);
    memory.SelectObject(previous);
}
