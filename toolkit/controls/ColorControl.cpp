#include "controls/ColorControl.h"

#include <algorithm>
#include <iterator>

#include "controls/ButtonLayout.h"

namespace
{
constexpr unsigned int rollover_timer = 1;
constexpr unsigned int default_rollover_delay = 10;

/// A drawing object that knows how many hold it.
template <typename Object> struct Shared : Object
{
    unsigned int holders = 1;
};

CBrush * NewBrush(COLORREF color)
{
    auto * const brush = new Shared<CBrush>;
    brush->CreateSolidBrush(color);
    return brush;
}

CPen * NewPen(COLORREF color)
{
    auto * const pen = new Shared<CPen>;
    pen->CreatePen(PS_SOLID, 0, color);
    return pen;
}

template <typename Object> Object * Hold(Object * object)
{
    ++static_cast<Shared<Object> *>(object)->holders;
    return object;
}

template <typename Object> void Release(Object * object)
{
    auto * const shared = static_cast<Shared<Object> *>(object);
    if (--shared->holders == 0)
        delete shared;
}

template <typename Object> void Replace(Object *& object, Object * other)
{
    Object * const former = object;
    object = other;
    Release(former);
}
} // namespace

CColorControl::CColorControl() : m_timerId(rollover_timer), m_rolloverDelay(default_rollover_delay), m_hot(false)
{
    static_assert(std::size(decltype(m_colorTable){}) == color_table_size && WindowBackground == color_table_size - 1);
    FillColorTable(m_colorTable, {::GetSysColor(COLOR_BTNTEXT), ::GetSysColor(COLOR_GRAYTEXT),
                                  ::GetSysColor(COLOR_BTNFACE), ::GetSysColor(COLOR_WINDOW)});
    m_fgColor = m_colorTable[ButtonText];
    m_bgColor = m_colorTable[ButtonFace];
    m_disabledFgColor = m_colorTable[DarkGrey];
    m_disabledBgColor = m_colorTable[ButtonFace];
    m_hotFgColor = m_colorTable[ButtonText];
    m_hotBgColor = m_colorTable[ButtonFace];
    m_hotFgBrush = NewBrush(m_colorTable[ButtonFace]);
    m_hotBgBrush = NewBrush(m_colorTable[ButtonFace]);
    m_hotPen = NewPen(m_colorTable[Green]);
}

CColorControl::CColorControl(CColorControl const & other)
    : m_hotFgBrush(Hold(other.m_hotFgBrush)),
      m_hotBgBrush(Hold(other.m_hotBgBrush)),
      m_hotPen(Hold(other.m_hotPen))
{
    TakeValues(other);
}

CColorControl & CColorControl::operator=(CColorControl const & other)
{
    if (this == &other)
        return *this;
    TakeValues(other);
    Replace(m_hotFgBrush, Hold(other.m_hotFgBrush));
    Replace(m_hotBgBrush, Hold(other.m_hotBgBrush));
    Replace(m_hotPen, Hold(other.m_hotPen));
    return *this;
}

CColorControl::~CColorControl()
{
    Release(m_hotFgBrush);
    Release(m_hotBgBrush);
    Release(m_hotPen);
}

void CColorControl::TakeValues(CColorControl const & other)
{
    std::copy(std::begin(other.m_colorTable), std::end(other.m_colorTable), std::begin(m_colorTable));
    m_fgColor = other.m_fgColor;
    m_bgColor = other.m_bgColor;
    m_disabledFgColor = other.m_disabledFgColor;
    m_disabledBgColor = other.m_disabledBgColor;
    m_hotFgColor = other.m_hotFgColor;
    m_hotBgColor = other.m_hotBgColor;
    m_timerId = other.m_timerId;
    m_rolloverDelay = other.m_rolloverDelay;
    m_hot = other.m_hot;
}

unsigned long CColorControl::RgbColor(Color_e color) const
{
    auto const index = static_cast<unsigned int>(color);
    return index < std::size(m_colorTable) ? m_colorTable[index] : 0;
}

void CColorControl::SetColors(unsigned long fg, unsigned long bg, unsigned long hotFg, unsigned long hotBg)
{
    m_fgColor = fg;
    m_bgColor = bg;
    SetHotFgColor(hotFg);
    SetHotBgColor(hotBg);
}

void CColorControl::SetColors(unsigned long fg, unsigned long bg)
{
    SetColors(fg, bg, fg, bg);
}

void CColorControl::SetColors(Color_e fg, Color_e bg, Color_e hotFg, Color_e hotBg)
{
    SetColors(RgbColor(fg), RgbColor(bg), RgbColor(hotFg), RgbColor(hotBg));
}

void CColorControl::SetColors(Color_e fg, Color_e bg)
{
    SetColors(RgbColor(fg), RgbColor(bg));
}

void CColorControl::SetFgColor(unsigned long color)
{
    m_fgColor = color;
}

void CColorControl::SetFgColor(Color_e color)
{
    SetFgColor(RgbColor(color));
}

void CColorControl::SetBgColor(unsigned long color)
{
    m_bgColor = color;
}

void CColorControl::SetBgColor(Color_e color)
{
    SetBgColor(RgbColor(color));
}

void CColorControl::SetHotFgColor(unsigned long color)
{
    if (color == m_hotFgColor)
        return;
    m_hotFgColor = color;
    Replace(m_hotFgBrush, NewBrush(color));
    Replace(m_hotPen, NewPen(color));
}

void CColorControl::SetHotBgColor(unsigned long color)
{
    if (color == m_hotBgColor)
        return;
    m_hotBgColor = color;
    Replace(m_hotBgBrush, NewBrush(color));
}

void CColorControl::SetDisabledColors(unsigned long fg, unsigned long bg)
{
    SetDisabledFgColor(fg);
    SetDisabledBgColor(bg);
}

void CColorControl::SetDisabledFgColor(unsigned long color)
{
    m_disabledFgColor = color;
}

void CColorControl::SetDisabledBgColor(unsigned long color)
{
    m_disabledBgColor = color;
}

void CColorControl::SetRolloverDelay(unsigned int milliseconds)
{
    m_rolloverDelay = milliseconds;
}
