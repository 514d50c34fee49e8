#pragma once

#include <afxwin.h>

#include "frame/Export.h"

/// A set of colours for the normal, hot and disabled state of a control, apart from any window: a base to be mixed into
/// one. Colours are 0x00BBGGRR. No setter repaints.
///
/// The hot pen is green and the hot brushes have the colour of a button's face until SetHotFgColor and SetHotBgColor
/// change the colours, which is meant. Copies share brushes and pen until one of them changes its own; each is deleted
/// with the last object that has it. For the user-interface thread alone.
class INSTRUMENT_UI_API CColorControl
{
public:
    /// Index into the table of colours. The last four are the system's at the time of the construction.
    enum Color_e
    {
        Black,
        White,
        Red,
        Green,
        Yellow,
        Blue,
        DarkGrey,
        LightGrey,
        ButtonText,
        GrayText,
        ButtonFace,
        WindowBackground
    };

    CColorControl();
    /// Shares brushes and pen with the other.
    CColorControl(CColorControl const & other);
    /// Shares brushes and pen with the other.
    CColorControl & operator=(CColorControl const & other);
    virtual ~CColorControl();

    /// The colour of the table; black for an index outside of it.
    unsigned long RgbColor(Color_e color) const;

    /// The colours of the normal and of the hot state.
    void SetColors(unsigned long fg, unsigned long bg, unsigned long hotFg, unsigned long hotBg);
    /// The hot colours as well.
    void SetColors(unsigned long fg, unsigned long bg);
    /// From the table: the colours of the normal and of the hot state.
    void SetColors(Color_e fg, Color_e bg, Color_e hotFg, Color_e hotBg);
    /// From the table, the hot colours as well.
    void SetColors(Color_e fg, Color_e bg);
    /// The normal state's colour of texts.
    void SetFgColor(unsigned long color);
    void SetFgColor(Color_e color);
    /// The normal state's background.
    void SetBgColor(unsigned long color);
    void SetBgColor(Color_e color);
    /// Also makes the hot pen and the brush of this colour. The colour as it is does nothing.
    void SetHotFgColor(unsigned long color);
    /// Also makes the brush of this colour. The colour as it is does nothing.
    void SetHotBgColor(unsigned long color);
    /// The colours of the disabled state.
    void SetDisabledColors(unsigned long fg, unsigned long bg);
    /// The disabled state's colour of texts.
    void SetDisabledFgColor(unsigned long color);
    /// The disabled state's background.
    void SetDisabledBgColor(unsigned long color);

    /// The period in which a hot control looks whether the pointer has left; for the next time that it becomes hot.
    void SetRolloverDelay(unsigned int milliseconds);

protected:
    unsigned int m_colorTable[12];
    COLORREF m_fgColor;
    COLORREF m_bgColor;
    COLORREF m_disabledFgColor;
    COLORREF m_disabledBgColor;
    COLORREF m_hotFgColor;
    COLORREF m_hotBgColor;
    unsigned int m_timerId;
    unsigned int m_rolloverDelay;
    bool m_hot;
    /// Counted by their holders: to be replaced by the setters alone.
    CBrush * m_hotFgBrush;
    CBrush * m_hotBgBrush;
    CPen * m_hotPen;

private:
    void TakeValues(CColorControl const & other);
};
