#pragma once

#include <afxcmn.h>

#include "frame/Export.h"
#include "frame/LifeWatch.h"

/// A slider whose channel shows the level: one colour from the least position to the thumb, another one beyond. Created
/// directly, or put in the place of a dialog's slider by subclassing. A horizontal one shows the main colour left of
/// the thumb, a vertical one below it. Tick marks are never painted. Colours are 0x00BBGGRR. For the user-interface
/// thread alone.
class INSTRUMENT_UI_API CLevelSliderCtrl : public CSliderCtrl
{
    DECLARE_DYNAMIC(CLevelSliderCtrl)

public:
    CLevelSliderCtrl();
    CLevelSliderCtrl(CLevelSliderCtrl const &) = delete;
    CLevelSliderCtrl & operator=(CLevelSliderCtrl const &) = delete;
    ~CLevelSliderCtrl() override;

    /// The colour of the level and the thumb, and those derived from it. Does not repaint.
    void SetMainColor(unsigned long color);
    /// The colour of the rest of the channel, and those derived from it. Does not repaint.
    void SetSecondColor(unsigned long color);
    /// The dots an inch that it is shown with, 96 at first: distances about the thumb follow. The thumb's length and
    /// breadth are the native slider's, which goes by the control's size; with TBS_FIXEDLENGTH they are the host's.
    /// FALSE, and nothing else, below 48 and above 960.
    BOOL SetDpi(UINT dpi);
    /// See SetDpi.
    UINT GetDpi() const { return m_dpi; }
    /// Whether it takes its window's resolution, at once and whenever that changes. Off at first.
    void FollowDpi(BOOL follow);

protected:
    /// The colours of a new slider.
    void InitStandardColors();
    void PreSubclassWindow() override;
    /// Paints both parts of the channel, about three times as thick as rect, which is changed. Takes the handle from
    /// the object dc, which is a temporary one.
    void DrawChannel(CDC * dc, CRect & rect);
    /// Paints the thumb, a pixel narrower at both ends than rect, which is changed. Takes the handle from the object
    /// dc, as DrawChannel does.
    void DrawThumb(CDC * dc, CRect & rect, bool selected);

    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnReflectedCustomDraw(NMHDR * header, LRESULT * result);
    DECLARE_MESSAGE_MAP()

    COLORREF m_mainColor;
    COLORREF m_secondColor;
    COLORREF m_mainDark;
    COLORREF m_mainLight;
    COLORREF m_secondDark;
    COLORREF m_secondLight;
    CBrush m_mainBrush;
    CBrush m_mainLightBrush;
    CBrush m_secondBrush;
    /// Light and dark corner of the main part, then of the second one.
    TRIVERTEX m_vertices[4];
    GRADIENT_RECT m_gradientRects[2];

private:
    class Access;

    bool IsVertical() const;
    void DrawPart(CDC & dc, CRect const & part, bool vertical, int first, CBrush & brush, COLORREF dark,
                  COLORREF light);

    void UseMainColor(COLORREF color);
    void UseSecondColor(COLORREF color);
    /// Takes what the host has not chosen from the set that the window is painted in now.
    void FollowSet();

    UINT m_dpi = 96;
    bool m_followsDpi = false;
    LifeSign m_lifeSign;
    bool m_ownMainColor = false;
    bool m_ownSecondColor = false;
    bool m_adapted = false;
};
