// CXTableCtrl: the resolution that it is shown with.

#include "layout/WindowDpi.h"
#include "list/table/XTableCtrlState.h"

BOOL CXTableCtrl::SetDpi(UINT dpi)
{
    if (!resolution::IsServed(dpi))
        return FALSE;
    State & state = *m_state;
    if (dpi == state.dpi)
        return TRUE;
    state.dpi = dpi;
    CellLook const usual{};
    state.look.dpi = state.look.imageDpi = dpi;
    state.look.padding = resolution::Scaled(usual.padding, dpi);
    state.look.spacing = resolution::Scaled(usual.spacing, dpi);
    if (!state.prepared)
        return TRUE;
    if (state.editing)
        state.editing->window->SetDpi(dpi);
    Watch const watch(*this);
    MakeNativeColumns();
    if (watch.IsThere())
        RepaintRows();
    return TRUE;
}

UINT CXTableCtrl::GetDpi() const
{
    return m_state->look.dpi;
}

void CXTableCtrl::FollowDpi(BOOL follow)
{
    m_state->followsDpi = follow != FALSE;
    if (follow && m_hWnd != nullptr)
        SetDpi(window_dpi::Of(m_hWnd));
}

int CXTableCtrl::ColumnDots() const
{
    if (m_state->dpi != 0)
        return static_cast<int>(m_state->dpi);
    HDC const dc = ::GetDC(m_hWnd);
    int const dots = ::GetDeviceCaps(dc, LOGPIXELSX);
    ::ReleaseDC(m_hWnd, dc);
    return dots > 0 ? dots : static_cast<int>(resolution::usual);
}

// Where no resolution was ever set, the native list is left alone.
void CXTableCtrl::KeepRowHeight()
{
    if (m_state->dpi == 0)
        return;
    auto const native = [this](UINT message, WPARAM wParam, LPARAM lParam) {
        return AskNative(message, wParam, lParam);
    };
    // A table has no images of its own.
    UINT const dpi = m_state->look.dpi;
    m_state->rowHeight.Keep(native, CRowHeight::Needed(native, dpi, dpi));
}
