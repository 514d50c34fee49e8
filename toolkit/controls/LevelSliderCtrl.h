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

protected:
    /// The colours of a new slider.
    void InitStandardColors();
    /// Paints both parts of the channel, about three times as thick as rect, which is changed. Takes the handle from
    /// the object dc, which is meant: the object is a temporary one.
    void DrawChannel(CDC * dc, CRect & rect);
    /// Paints the thumb, a pixel narrower at both ends than rect, which is changed. Takes the handle from the object
    /// dc, as DrawChannel does.
    void DrawThumb(CDC * dc, CRect & rect, bool selected);

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
    bool IsVertical() const;
    void DrawPart(CDC & dc, CRect const & part, bool vertical, int first, CBrush & brush, COLORREF dark,
                  COLORREF light);

    LifeSign m_lifeSign;
};
