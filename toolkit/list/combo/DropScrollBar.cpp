#include "list/combo/DropScrollBar.h"

#include "frame/WindowAlive.h"
#include "list/combo/ComboMessages.h"
#include "list/combo/ComboMoves.h"
#include "list/combo/DropListBox.h"

namespace XListCtrl
{
BEGIN_MESSAGE_MAP(CDropScrollBar, CScrollBar)
    ON_WM_MOUSEMOVE()
    ON_WM_VSCROLL_REFLECT()
    ON_WM_LBUTTONDOWN()
    ON_MESSAGE(WM_ADVCOMBO_SET_CAPTURE, &CDropScrollBar::OnSetCapture)
    ON_MESSAGE(WM_ADVCOMBO_RELEASE_CAPTURE, &CDropScrollBar::OnReleaseCapture)
END_MESSAGE_MAP()

CDropScrollBar::CDropScrollBar() = default;

CDropScrollBar::~CDropScrollBar() = default;

void CDropScrollBar::SetListBox(CDropListBox * list)
{
    m_list = list;
    if (list == nullptr)
        return;
    SCROLLINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = SIF_ALL;
    info.nMin = 0;
    info.nMax = list->GetCount() - 1;
    info.nPage = static_cast<UINT>(list->GetBottomIndex() - list->GetTopIndex());
    info.nPos = 0;
    SetScrollInfo(&info);
}

void CDropScrollBar::OnMouseMove(UINT flags, CPoint point)
{
    if (HandCaptureOver(point))
        CScrollBar::OnMouseMove(flags, point);
}

void CDropScrollBar::OnLButtonDown(UINT flags, CPoint point)
{
    if (HandCaptureOver(point))
        CScrollBar::OnLButtonDown(flags, point);
}

bool CDropScrollBar::HandCaptureOver(CPoint point)
{
    CRect client;
    GetClientRect(client);
    if (client.PtInRect(point))
        return true;
    WindowAlive const watch(*this, m_life);
    HWND const parent = ::GetParent(m_hWnd);
    ::ReleaseCapture();
    if (watch.IsAlive())
        ::SendMessage(parent, WM_ADVCOMBO_SET_CAPTURE, 0, 0);
    return watch.IsAlive();
}

void CDropScrollBar::VScroll(UINT code, UINT position)
{
    SCROLLINFO info = {};
    if (m_list == nullptr || !GetScrollInfo(&info, SIF_ALL))
        return;
    WindowAlive const watch(*this, m_life);
    combo_moves::ScrollState const state = {info.nPos, info.nMin, info.nMax, static_cast<int>(info.nPage)};
    if (std::optional<int> const next =
            combo_moves::PositionAfterScroll(static_cast<int>(code), static_cast<int>(position), state))
    {
        info.nPos = *next;
        m_list->SetTopIdx(*next, false);
    }
    else if (code == SB_ENDSCROLL)
    {
        HWND const parent = ::GetParent(m_hWnd);
        ::ReleaseCapture();
        ::PostMessage(parent, WM_ADVCOMBO_SET_CAPTURE, 0, 0);
    }
    if (watch.IsAlive())
        SetScrollInfo(&info);
}

LRESULT CDropScrollBar::OnSetCapture(WPARAM, LPARAM)
{
    SetCapture();
    return 0;
}

LRESULT CDropScrollBar::OnReleaseCapture(WPARAM, LPARAM)
{
    ::ReleaseCapture();
    return 0;
}
} // namespace XListCtrl
