#pragma once

#include <afxtempl.h>
#include <afxwin.h>

#include "frame/Export.h"
#include "segments/ColorScheme.h"
#include "segments/DigiStyle.h"

namespace DigiStatic
{
class CDigiChar;
} // namespace DigiStatic

/// A control that shows one line of text as lit and unlit segment characters, like a digital read-out. Created
/// directly, or put in the place of a dialog's static control by subclassing.
///
/// It shows nothing until a text or style has been set, whatever its window text. Colours are 0x00BBGGRR. Setters may
/// be called before there is a window; what they change shows once there is one. For the user-interface thread alone.
class INSTRUMENT_UI_API CDigiStatic : public CStatic
{
    DECLARE_DYNAMIC(CDigiStatic)

public:
    CDigiStatic();
    CDigiStatic(CDigiStatic const &) = delete;
    CDigiStatic & operator=(CDigiStatic const &) = delete;
    ~CDigiStatic() override;

    /// Shows the text in upper case; null counts as an empty text. The text "?" alone stands for the window text. The
    /// same text as the one shown does nothing; a lower-case text never is the same, since the upper-case one is kept.
    void SetText(wchar_t const * text);
    /// The same with printf-style arguments. format must not be null.
    void Format(wchar_t const * format, ...);
    /// The same with a format from a string resource, found as CString::LoadString does; a missing one counts as an
    /// empty text.
    void Format(unsigned int stringId, ...);

    /// Colours of unlit and of lit segments, in this order.
    void SetColor(COLORREF offColor, COLORREF onColor);
    /// The former background.
    COLORREF SetBkColor(COLORREF color);
    /// The colour of lit segments.
    COLORREF GetOnColor() const;
    /// The colour of unlit segments.
    COLORREF GetOffColor() const;
    /// Sets all three colours. Unlit segments get the mean of the scheme's own colour for them and its background. A
    /// value that is no scheme gives the green one.
    void SetColorScheme(ColorScheme scheme);

    /// Sets and clears DigiStyle bits. 0 if both have a bit in common, which changes nothing; else 1.
    int ModifyDigiStyle(DWORD remove, DWORD add);
    /// Whether the window takes the shape of its segments, as far as the characters give one. Also switches the
    /// extended window style WS_EX_TRANSPARENT if there is a window. Does not repaint.
    void SetTransparent(bool transparent);
    /// Leaves a corner of the control out of all painting: the lower left one, as large as the rectangle, whose
    /// position does not count. Null: nothing is left out.
    void SetButtonRect(CRect * rect);
    /// Whether the setters repaint before they return. Does not repaint.
    void SetDrawImmediately(bool immediately);

protected:
    /// Makes the characters anew if text or style has changed.
    void BuildString();
    /// Takes the window's shape away if it is transparent, and repaints: at once or later, as SetDrawImmediately told.
    void DoInvalidate();

    afx_msg void OnPaint();
    /// Erases nothing, since painting covers the client area; 0.
    afx_msg BOOL OnEraseBkgnd(CDC * dc);
    DECLARE_MESSAGE_MAP()

    /// The line as built last; at first 50 characters without segments.
    CArray<DigiStatic::CDigiChar> m_chars;
    /// In upper case once built.
    CString m_text;
    /// The characters must be made anew at the next paint.
    bool m_modified;
    COLORREF m_offColor;
    COLORREF m_onColor;
    COLORREF m_backColor;
    DWORD m_digiStyle;
    bool m_drawImmediately;
    bool m_transparent;
    /// Only its size counts.
    CRect m_buttonRect;
};
