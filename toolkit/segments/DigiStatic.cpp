#include "segments/DigiStatic.h"

#include <afxcontrolbarutil.h>

#include <cstdarg>
#include <memory>

#include "access/ControlTarget.h"
#include "frame/GraphicsScopes.h"
#include "frame/WindowAlive.h"
#include "segments/DigiColors.h"
#include "segments/DigiLine.h"

namespace
{
constexpr int initial_characters = 50;
constexpr wchar_t const * window_text_wanted = L"?";

/// Pen and brush of one kind of segment.
struct CSegmentTools
{
    CSegmentTools(COLORREF edge, COLORREF area) : pen(PS_SOLID, 1, edge) { brush.CreateSolidBrush(area); }

    CPen pen;
    CBrush brush;
};
} // namespace

IMPLEMENT_DYNAMIC(CDigiStatic, CStatic)

BEGIN_MESSAGE_MAP(CDigiStatic, CStatic)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

CDigiStatic::CDigiStatic()
    : m_modified(false),
      m_offColor(DigiStatic::default_off_color),
      m_onColor(DigiStatic::default_on_color),
      m_backColor(DigiStatic::default_back_color),
      m_digiStyle(DigiStyleKeepAspect | DigiStyleSoftPen),
      m_drawImmediately(false),
      m_transparent(false),
      m_buttonRect(0, 0, 0, 0)
{
    m_chars.SetSize(initial_characters);
}

CDigiStatic::~CDigiStatic()
{
    m_chars.RemoveAll();
}

void CDigiStatic::SetText(wchar_t const * text)
{
    CString const given(text);
    if (given == m_text)
        return;
    m_text = given;
    m_modified = true;
    HWND const window = GetSafeHwnd();
    DoInvalidate();
    if (window != nullptr)
        TellOfEvent(EVENT_OBJECT_VALUECHANGE, window, {});
}

void CDigiStatic::Format(wchar_t const * format, ...)
{
    CString text;
    va_list arguments;
    va_start(arguments, format);
    text.FormatV(format, arguments);
    va_end(arguments);
    SetText(text);
}

void CDigiStatic::Format(unsigned int stringId, ...)
{
    CString format;
    CString text;
    va_list arguments;
    va_start(arguments, stringId);
    if (format.LoadString(stringId))
        text.FormatV(format, arguments);
    va_end(arguments);
    SetText(text);
}

void CDigiStatic::SetColor(COLORREF offColor, COLORREF onColor)
{
    if (offColor == m_offColor && onColor == m_onColor)
        return;
    m_offColor = offColor;
    m_onColor = onColor;
    DoInvalidate();
}

COLORREF CDigiStatic::SetBkColor(COLORREF color)
{
    COLORREF const former = m_backColor;
    if (color != former)
    {
        m_backColor = color;
        DoInvalidate();
    }
    return former;
}

COLORREF CDigiStatic::GetOnColor() const
{
    return m_onColor;
}

COLORREF CDigiStatic::GetOffColor() const
{
    return m_offColor;
}

void CDigiStatic::SetColorScheme(ColorScheme scheme)
{
    DigiStatic::CDisplayColors const colors = DigiStatic::ColorsOf(scheme);
    m_onColor = colors.on;
    m_offColor = colors.off;
    m_backColor = colors.back;
    DoInvalidate();
}

int CDigiStatic::ModifyDigiStyle(DWORD remove, DWORD add)
{
    if ((remove & add) != 0)
        return 0;
    m_digiStyle |= add;
    m_digiStyle &= ~remove;
    m_modified = true;
    DoInvalidate();
    return 1;
}

void CDigiStatic::SetTransparent(bool transparent)
{
    m_transparent = transparent;
    if (GetSafeHwnd() == nullptr)
        return;
    if (transparent)
        ModifyStyleEx(0, WS_EX_TRANSPARENT);
    else
        ModifyStyleEx(WS_EX_TRANSPARENT, 0);
}

void CDigiStatic::SetButtonRect(CRect * rect)
{
    if (rect != nullptr)
    {
        m_digiStyle |= DigiStyleButtonRect;
        m_buttonRect = *rect;
    }
    else
        m_digiStyle &= ~DigiStyleButtonRect;
    m_modified = true;
    DoInvalidate();
}

void CDigiStatic::SetDrawImmediately(bool immediately)
{
    m_drawImmediately = immediately;
}

void CDigiStatic::DoInvalidate()
{
    if (GetSafeHwnd() == nullptr)
        return;
    if (m_transparent)
    {
        WindowAlive const alive(*this, m_life);
        SetWindowRgn(nullptr, TRUE);
        if (!alive.IsAlive())
            return;
    }
    if (m_drawImmediately)
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_NOERASE | RDW_UPDATENOW);
    else
        InvalidateRect(nullptr, TRUE);
}

void CDigiStatic::BuildString()
{
    if (!m_modified)
        return;
    if (m_text == window_text_wanted)
    {
        // Asking sends messages, which may set another text meanwhile.
        WindowAlive const alive(*this, m_life);
        CString text;
        GetWindowText(text);
        if (!alive.IsAlive())
            return;
        m_text = text;
    }
    m_text.MakeUpper();
    DigiStatic::BuildLine(m_text, m_digiStyle, m_chars);
    m_modified = false;
}

void CDigiStatic::OnPaint()
{
    WindowAlive const alive(*this, m_life);
    CRect client;
    GetClientRect(client);
    CPaintDC dc(this); // sends messages as well
    if (!alive.IsAlive())
        return;
    dc.SetBkColor(m_backColor);
    if ((m_digiStyle & DigiStyleButtonRect) != 0)
    {
        dc.IntersectClipRect(client);
        dc.ExcludeClipRect(DigiStatic::LeftOutCorner(client, m_buttonRect.Size()));
    }
    CMemDC memory(dc, client);
    CDC & buffer = memory.GetDC();
    buffer.FillSolidRect(client, m_backColor);
    BuildString();
    if (!alive.IsAlive())
        return;

    DigiStatic::CLinePlace const place =
        DigiStatic::PlaceLine(client.Size(), DigiStatic::LineWidth(m_chars), (m_digiStyle & DigiStyleKeepAspect) != 0);
    bool const soft = (m_digiStyle & DigiStyleSoftPen) != 0;
    CSegmentTools off(soft ? DigiStatic::SoftPenColor(m_offColor, m_backColor) : m_offColor, m_offColor);
    CSegmentTools on(soft ? DigiStatic::SoftPenColor(m_onColor, m_backColor) : m_onColor, m_onColor);
    SelectScope const brushScope(buffer, on.brush.GetSafeHandle());
    SelectScope const penScope(buffer, off.pen.GetSafeHandle());
    CRgn shape;
    double left = place.left;
    for (INT_PTR i = 0; i < m_chars.GetSize(); ++i)
    {
        double const right = left + place.scaleX * m_chars[i].GetWidth();
        double const cell[] = {left, place.top, right, place.top + place.scaleY * DigiStatic::cell_height};
        m_chars[i].DrawGdi(&buffer, cell, &off.pen, &on.pen, &off.brush, &on.brush, m_transparent ? &shape : nullptr);
        left = right;
    }
    if (m_transparent)
    {
        // The system owns the region from here on.
        HRGN const region = static_cast<HRGN>(shape.Detach());
        if (SetWindowRgn(region, FALSE) == 0)
            ::DeleteObject(region);
    }
}

BOOL CDigiStatic::OnEraseBkgnd(CDC *)
{
    return FALSE;
}

// --- What programs that read the screen see ---

class CDigiStatic::Access final : public ControlTarget
{
public:
    Access(CDigiStatic & display, LifeSign const & life) : ControlTarget(display, life), m_display(display) {}

protected:
    accessible::Description DescribeSelf() override
    {
        accessible::ControlFacts const facts = Facts();
        std::wstring const shown = IsThere() ? m_display.m_text.GetString() : L"";
        return accessible::DescribeReadOut(facts, shown == window_text_wanted ? facts.text : shown);
    }

private:
    CDigiStatic & m_display;
};

LRESULT CDigiStatic::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (AsksForControl(message, lParam))
        return AnswerWithObject(std::make_shared<Access>(*this, m_life), wParam);
    return CStatic::DefWindowProc(message, wParam, lParam);
}
