#pragma once

#include <afxwin.h>

#include "controls/ColorControl.h"
#include "frame/Export.h"
#include "frame/LifeWatch.h"

/// The states that a button is drawn in.
enum class ButtonLook;
struct ControlColors;

/// An owner-drawn push button with colours of its own, which looks different while the pointer is over it. Created
/// directly, or put in the place of a dialog's button by subclassing. Icon and caption are both centred: with both, the
/// text stands over the icon. No setter repaints, unless the button does so for a new icon. For the user-interface
/// thread alone.
class INSTRUMENT_UI_API CColorButton : public CButton, public CColorControl
{
public:
    CColorButton();
    CColorButton(CColorButton const &) = delete;
    CColorButton & operator=(CColorButton const &) = delete;
    ~CColorButton() override;

    /// The colours of a button. Those of the disabled state become 0x000006 and 0x00000A, almost black, as hosts
    /// expect.
    void ResetColors();
    /// The icons are not owned. Without a disabled icon (null) a disabled button shows the other one; without the other
    /// one it shows none. size: the edge in pixels, by which the icon is centred; it is drawn in the system's icon
    /// size.
    void SetIcons(HICON icon, HICON disabledIcon, int size);
    /// Whether the frame of a push button is painted. Without it, the colour of a button's face means that the area is
    /// not filled.
    void DrawFrame(bool draw);
    /// Whether a rectangle in the hot pen is painted while hot.
    void DrawFocusFrame(bool draw);

    /// The dots an inch that it is shown with, 96 at first: icons and distances follow. The font stays the host's.
    /// FALSE, and nothing else, below 48 and above 960.
    BOOL SetDpi(UINT dpi);
    /// See SetDpi.
    UINT GetDpi() const { return m_dpi; }
    /// Whether it takes its window's resolution, at once and whenever that changes. Off at first.
    void FollowDpi(BOOL follow);

    /// A caption's '&' underlines the next letter only while the button is disabled, as hosts expect.
    void DrawItem(LPDRAWITEMSTRUCT item) override;

protected:
    void PreSubclassWindow() override;

    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnTimer(UINT_PTR id);
    DECLARE_MESSAGE_MAP()

    bool m_drawFrame;
    bool m_drawFocusFrame;
    /// As read from the button at the last paint.
    HICON m_icon;
    HICON m_disabledIcon;
    int m_iconSize;

private:
    void DrawHotFrame(CDC & dc, CRect const & area, ControlColors const & colors);
    void DrawCaption(CDC & dc, CRect const & area, CString const & text, ButtonLook look, bool pressed);
    void DrawAdaptedCaption(CDC & dc, CRect const & area, CString const & text, ButtonLook look, bool pressed,
                            COLORREF ground);

    UINT m_dpi = 96;
    bool m_followsDpi = false;
    LifeSign m_lifeSign;
};
