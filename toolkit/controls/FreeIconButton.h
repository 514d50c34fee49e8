#pragma once

#include <afxwin.h>

#include "frame/Export.h"
#include "frame/LifeWatch.h"

/// A button without a look of its own that shows one icon of the module at its top left corner, pressed, disabled or
/// not. For the user-interface thread alone.
class INSTRUMENT_UI_API CFreeIconButton : public CButton
{
    DECLARE_DYNAMIC(CFreeIconButton)

public:
    CFreeIconButton();
    CFreeIconButton(CFreeIconButton const &) = delete;
    CFreeIconButton & operator=(CFreeIconButton const &) = delete;
    ~CFreeIconButton() override;

    /// The dots an inch that it is shown with, 96 at first: its icon follows. The font stays the host's.
    /// FALSE, and nothing else, below 48 and above 960.
    BOOL SetDpi(UINT dpi);
    /// See SetDpi.
    UINT GetDpi() const { return m_dpi; }
    /// Whether it takes its window's resolution, at once and whenever that changes. Off at first.
    void FollowDpi(BOOL follow);
    void DrawItem(LPDRAWITEMSTRUCT item) override;

protected:
    void PreSubclassWindow() override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    DECLARE_MESSAGE_MAP()

    /// Shared by the system; null where it could not be loaded.
    HICON m_icon;

private:
    UINT m_dpi = 96;
    bool m_followsDpi = false;
    LifeSign m_life;
};
