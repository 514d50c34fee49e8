// CXTableCtrl: the native list below it. It is asked directly, past the messages that the host could hear: whoever asks
// goes on with what was true before.

#include <algorithm>

#include "access/AccessObject.h"
#include "list/table/XTableCtrlState.h"

// All that the native list does goes through here. It stands no change of its columns and rows meanwhile; they wait.
LRESULT CXTableCtrl::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_CTLCOLOREDIT || message == WM_CTLCOLORSTATIC)
    {
        if (LRESULT const brush = control_colors::AnswerColorQuestion(m_hWnd, message, wParam))
            return brush;
    }
    if (AsksForControl(message, lParam))
    {
        if (LRESULT const answer = AnswerGetObject(wParam); answer != 0)
            return answer;
    }
    Watch const watch(*this);
    ++m_state->native;
    LRESULT const result = CListCtrl::DefWindowProc(message, wParam, lParam);
    if (watch.IsThere())
        EndNative();
    return result;
}

void CXTableCtrl::EndNative()
{
    if (--m_state->native == 0 && m_state->nativeWaits && m_hWnd != nullptr)
        PostMessage(Waker::WakeMessage(), Waker::follow_natively, 0);
}

LRESULT CXTableCtrl::AskNative(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return m_hWnd == nullptr ? 0 : const_cast<CXTableCtrl *>(this)->DefWindowProc(message, wParam, lParam);
}

/// The native header, or null.
CHeaderCtrl * CXTableCtrl::Titles() const
{
    auto * const header = reinterpret_cast<HWND>(AskNative(LVM_GETHEADER));
    return header == nullptr ? nullptr : static_cast<CHeaderCtrl *>(CWnd::FromHandle(header));
}

/// The first position seen.
TableRow CXTableCtrl::TopPosition() const
{
    return static_cast<TableRow>(std::max<LRESULT>(AskNative(LVM_GETTOPINDEX), 0));
}

/// So many rows are seen whole.
TableRow CXTableCtrl::PageRows() const
{
    return static_cast<TableRow>(std::max<LRESULT>(AskNative(LVM_GETCOUNTPERPAGE), 0));
}

/// All of the row; empty where there is none.
CRect CXTableCtrl::RowRect(TableRow position) const
{
    CRect rect(LVIR_BOUNDS, 0, 0, 0);
    if (AskNative(LVM_GETITEMRECT, position, reinterpret_cast<LPARAM>(&rect)) == FALSE)
        rect.SetRectEmpty();
    return rect;
}

/// The native list tells the host of its scrolling. False if the table is gone.
bool CXTableCtrl::BringIntoView(TableRow position)
{
    Watch const watch(*this);
    AskNative(LVM_ENSUREVISIBLE, position, FALSE);
    if (!watch.IsAlive())
        return false;
    WishEditPlace();
    return true;
}

/// The same to the right, or to the left, by so many pixels.
bool CXTableCtrl::ScrollSideways(int pixels)
{
    Watch const watch(*this);
    AskNative(LVM_SCROLL, static_cast<WPARAM>(pixels), 0);
    if (!watch.IsAlive())
        return false;
    // What stands still was moved along with the rest.
    if (m_state->layout.Frozen() != 0)
        RepaintRows();
    WishEditPlace();
    return true;
}
