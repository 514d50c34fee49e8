// Static control, button, edit control and scroll bar.

#include <afxwin.h>

#include <algorithm>

#include "detail/ControlSupport.h"
#include "detail/FrameSupport.h"
#include "detail/imagelist.h"

IMPLEMENT_DYNAMIC(CStatic, CWnd)
IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DYNAMIC(CEdit, CWnd)
IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

namespace framework
{
void LoadControlClasses(DWORD classes)
{
    INITCOMMONCONTROLSEX const request{sizeof(INITCOMMONCONTROLSEX), classes};
    ::InitCommonControlsEx(&request);
}

BOOL CreateControl(CWnd & control, DWORD classes, LPCTSTR className, LPCTSTR text, DWORD style, RECT const & rect,
                   CWnd * parent, UINT id)
{
    if (classes != 0)
        LoadControlClasses(classes);
    return control.Create(className, text, style, rect, parent, id);
}

BOOL CreateControlEx(CWnd & control, DWORD classes, DWORD exStyle, LPCTSTR className, LPCTSTR text, DWORD style,
                     RECT const & rect, CWnd * parent, UINT id)
{
    if (classes != 0)
        LoadControlClasses(classes);
    return control.CreateEx(exStyle, className, text, style | WS_CHILD, rect, parent, id);
}

bool ReleaseImages(CWnd const & control, UINT getMessage, UINT setMessage, std::initializer_list<int> kinds)
{
    WindowGuard const guard(&control);
    HWND const window = control.m_hWnd;
    for (int const kind : kinds)
    {
        auto const images = Send<HIMAGELIST>(window, getMessage, kind);
        if (guard.Alive() && images != nullptr && CImageList::FromHandlePermanent(images) != nullptr)
            Send(window, setMessage, kind, 0);
        if (!guard.Alive())
            return false;
    }
    return true;
}
} // namespace framework

// CStatic

CStatic::CStatic() = default;

CStatic::~CStatic()
{
    DestroyWindow();
}

BOOL CStatic::Create(LPCTSTR lpszText, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControl(*this, 0, _T("STATIC"), lpszText, dwStyle, rect, pParentWnd, nID);
}

void CStatic::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CStatic::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * pResult)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

// CButton

CButton::CButton() = default;

CButton::~CButton()
{
    DestroyWindow();
}

BOOL CButton::Create(LPCTSTR lpszCaption, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControl(*this, 0, _T("BUTTON"), lpszCaption, dwStyle, rect, pParentWnd, nID);
}

UINT CButton::GetButtonStyle() const
{
    constexpr DWORD kind_of_button = 0x0F;
    return GetStyle() & kind_of_button;
}

CString CButton::GetNote() const
{
    CString note;
    UINT room = GetNoteLength() + 1;
    GetNote(note.GetBuffer(static_cast<int>(room)), &room);
    note.ReleaseBuffer();
    return note;
}

BOOL CButton::GetNote(LPTSTR lpszNote, UINT * pcchNote) const
{
    DWORD room = *pcchNote;
    if (room != 0)
        lpszNote[0] = 0;
    BOOL const taken = framework::Send<BOOL>(m_hWnd, BCM_GETNOTE, &room, lpszNote);
    *pcchNote = room;
    return taken;
}

TCHAR CButton::GetSplitGlyph() const
{
    BUTTON_SPLITINFO info{};
    info.mask = BCSIF_GLYPH;
    GetSplitInfo(&info);
    return static_cast<TCHAR>(reinterpret_cast<UINT_PTR>(info.himlGlyph));
}

BOOL CButton::SetSplitGlyph(TCHAR chGlyph)
{
    BUTTON_SPLITINFO info{};
    info.mask = BCSIF_GLYPH;
    info.himlGlyph = reinterpret_cast<HIMAGELIST>(static_cast<UINT_PTR>(chGlyph));
    return SetSplitInfo(&info);
}

CImageList * CButton::GetSplitImageList() const
{
    BUTTON_SPLITINFO info{};
    info.mask = BCSIF_IMAGE;
    GetSplitInfo(&info);
    return CImageList::FromHandle(info.himlGlyph);
}

BOOL CButton::SetSplitImageList(CImageList * pSplitImageList)
{
    BUTTON_SPLITINFO info{};
    info.mask = BCSIF_IMAGE;
    info.himlGlyph = pSplitImageList != nullptr ? pSplitImageList->GetSafeHandle() : nullptr;
    return SetSplitInfo(&info);
}

BOOL CButton::GetSplitSize(LPSIZE pSize) const
{
    BUTTON_SPLITINFO info{};
    info.mask = BCSIF_SIZE;
    BOOL const taken = GetSplitInfo(&info);
    *pSize = info.size;
    return taken;
}

BOOL CButton::SetSplitSize(LPSIZE pSize)
{
    BUTTON_SPLITINFO info{};
    info.mask = BCSIF_SIZE;
    info.size = *pSize;
    return SetSplitInfo(&info);
}

UINT CButton::GetSplitStyle() const
{
    BUTTON_SPLITINFO info{};
    info.mask = BCSIF_STYLE;
    GetSplitInfo(&info);
    return info.uSplitStyle;
}

BOOL CButton::SetSplitStyle(UINT uSplitStyle)
{
    BUTTON_SPLITINFO info{};
    info.mask = BCSIF_STYLE;
    info.uSplitStyle = uSplitStyle;
    return SetSplitInfo(&info);
}

void CButton::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * pResult)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

// CEdit

CEdit::CEdit() = default;

CEdit::~CEdit()
{
    DestroyWindow();
}

BOOL CEdit::Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControl(*this, 0, _T("EDIT"), nullptr, dwStyle, rect, pParentWnd, nID);
}

void CEdit::GetSel(int & nStartChar, int & nEndChar) const
{
    framework::Send(m_hWnd, EM_GETSEL, &nStartChar, &nEndChar);
}

void CEdit::SetSel(DWORD dwSelection, BOOL bNoScroll)
{
    constexpr int none = 0xFFFF;
    int const first = LOWORD(dwSelection);
    int const end = HIWORD(dwSelection);
    if (first == none)
        SetSel(-1, -1, bNoScroll);
    else
        SetSel(first, first == 0 && end == none ? -1 : end, bNoScroll);
}

void CEdit::SetSel(int nStartChar, int nEndChar, BOOL bNoScroll)
{
    framework::Send(m_hWnd, EM_SETSEL, nStartChar, nEndChar);
    if (!bNoScroll)
        framework::Send(m_hWnd, EM_SCROLLCARET);
}

CPoint CEdit::PosFromChar(UINT nChar) const
{
    return framework::PointOf(framework::Send<DWORD>(m_hWnd, EM_POSFROMCHAR, nChar));
}

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const
{
    auto const room = static_cast<WORD>(std::clamp(nMaxLength, 0, 0xFFFF));
    memcpy(lpszBuffer, &room, sizeof(room));
    return GetLine(nIndex, lpszBuffer);
}

CString CEdit::GetCueBanner() const
{
    return framework::CollectText([this](LPTSTR buffer, int size) { return GetCueBanner(buffer, size) != FALSE; });
}

BOOL CEdit::GetHighlight(int * pichStart, int * pichEnd) const
{
    if (pichStart == nullptr || pichEnd == nullptr)
        return FALSE;
    auto const range = framework::Send<DWORD>(m_hWnd, EM_GETHILITE);
    *pichStart = LOWORD(range);
    *pichEnd = HIWORD(range);
    return TRUE;
}

BOOL CEdit::ShowBalloonTip(LPCWSTR lpszTitle, LPCWSTR lpszText, INT ttiIcon)
{
    EDITBALLOONTIP tip{sizeof(EDITBALLOONTIP), lpszTitle, lpszText, ttiIcon};
    return ShowBalloonTip(&tip);
}

// CScrollBar

CScrollBar::CScrollBar() = default;

CScrollBar::~CScrollBar()
{
    DestroyWindow();
}

BOOL CScrollBar::Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControl(*this, 0, _T("SCROLLBAR"), nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CScrollBar::SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw)
{
    lpScrollInfo->cbSize = sizeof(*lpScrollInfo);
    ::SetScrollInfo(m_hWnd, SB_CTL, lpScrollInfo, bRedraw);
    return TRUE;
}

BOOL CScrollBar::GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask)
{
    lpScrollInfo->cbSize = sizeof(*lpScrollInfo);
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(m_hWnd, SB_CTL, lpScrollInfo);
}

int CScrollBar::GetScrollLimit()
{
    SCROLLINFO info{};
    GetScrollInfo(&info, SIF_RANGE | SIF_PAGE);
    int const page = static_cast<int>(info.nPage);
    return info.nMax - std::max(page - 1, 0);
}

BOOL CScrollBar::GetScrollBarInfo(PSCROLLBARINFO pScrollInfo) const
{
    pScrollInfo->cbSize = sizeof(*pScrollInfo);
    return framework::Send<BOOL>(m_hWnd, SBM_GETSCROLLBARINFO, 0, pScrollInfo);
}
