#include "controls/ColorButton.h"

#include <algorithm>
#include <memory>

#include "access/ControlTarget.h"
#include "colours/ControlColors.h"
#include "controls/ButtonLayout.h"
#include "frame/GraphicsScopes.h"
#include "layout/StretchedImages.h"
#include "layout/WindowDpi.h"

namespace
{
constexpr int default_icon_size = 32;
} // namespace

BEGIN_MESSAGE_MAP(CColorButton, CButton)
    ON_WM_MOUSEMOVE()
    ON_WM_TIMER()
END_MESSAGE_MAP()

CColorButton::CColorButton()
    : m_drawFrame(true),
      m_drawFocusFrame(false),
      m_icon(nullptr),
      m_disabledIcon(nullptr),
      m_iconSize(default_icon_size)
{
}

CColorButton::~CColorButton() = default;

void CColorButton::ResetColors()
{
    SetColors(ButtonText, ButtonFace, ButtonText, ButtonFace);
    // The numbers as they stand are the colours.
    SetDisabledColors(DarkGrey, ButtonFace);
}

void CColorButton::SetIcons(HICON icon, HICON disabledIcon, int size)
{
    m_disabledIcon = disabledIcon;
    m_iconSize = size;
    if (m_hWnd != nullptr)
        SetIcon(icon);
}

void CColorButton::DrawFrame(bool draw)
{
    m_drawFrame = draw;
}

void CColorButton::DrawFocusFrame(bool draw)
{
    m_drawFocusFrame = draw;
}

BOOL CColorButton::SetDpi(UINT dpi)
{
    return window_dpi::SetAndRepaint(*this, m_dpi, dpi);
}

void CColorButton::FollowDpi(BOOL follow)
{
    window_dpi::Follow(*this, m_followsDpi, follow);
}

void CColorButton::PreSubclassWindow()
{
    LifeWatch const life(m_lifeSign);
    CButton::PreSubclassWindow();
    if (life.Over())
        return;
    m_hot = false; // a former window's timer is gone
    ModifyStyle(0, BS_OWNERDRAW);
    window_dpi::Begin(*this, m_followsDpi);
}

void CColorButton::DrawItem(LPDRAWITEMSTRUCT item)
{
    CDC * const dc = item != nullptr ? CDC::FromHandle(item->hDC) : nullptr;
    if (dc == nullptr)
        return;
    CRect area(item->rcItem);
    bool const pressed = (item->itemState & ODS_SELECTED) != 0;
    ButtonLook const look = LookOfButton((item->itemState & ODS_DISABLED) != 0, m_hot);

    ControlColors const colors = control_colors::Of(m_hWnd);
    if (colors.adapts)
    {
        dc->FillSolidRect(area, colors.face);
        if (m_drawFrame)
        {
            dc->Draw3dRect(area, pressed ? colors.edgeShadow : colors.edgeDark,
                           pressed ? colors.edgeDark : colors.edgeShadow);
        }
    }
    else if (m_drawFrame)
        dc->DrawFrameControl(area, DFC_BUTTON, DFCS_BUTTONPUSH | (pressed ? DFCS_PUSHED : 0));
    if (m_drawFocusFrame && m_hot)
    {
        DrawHotFrame(*dc, area, colors);
    }
    area.DeflateRect(window_dpi::Metric(SM_CXEDGE, m_dpi), window_dpi::Metric(SM_CYEDGE, m_dpi));
    COLORREF const background = look == ButtonLook::disabled ? m_disabledBgColor
                                : look == ButtonLook::hot    ? m_hotBgColor
                                                             : m_bgColor;
    bool const usualGround = background == m_colorTable[ButtonFace] || background == ButtonFace;
    COLORREF const ground = colors.adapts && usualGround ? colors.face : background;
    if (ButtonIsFilled(m_drawFrame, background, m_colorTable[ButtonFace]))
        dc->FillSolidRect(area, ground);

    // The messages below may run the host's code.
    HDC const context = item->hDC;
    LifeWatch const life(m_lifeSign);
    HICON const icon = GetIcon();
    if (life.Over())
        return;
    m_icon = icon;
    if (m_icon != nullptr)
    {
        bool const other = look == ButtonLook::disabled && m_disabledIcon != nullptr;
        HICON const shown = other ? m_disabledIcon : m_icon;
        CPoint const origin = ButtonIconOrigin(area, resolution::Scaled(m_iconSize, m_dpi));
        if (m_dpi == resolution::usual)
            CDC::FromHandle(context)->DrawIcon(origin, shown);
        else
            DrawStretchedIcon(*CDC::FromHandle(context), shown, origin, UsualIconSize(m_dpi));
    }
    CString text;
    GetWindowText(text);
    if (life.Over() || text.IsEmpty())
        return;
    if (colors.adapts)
        DrawAdaptedCaption(*CDC::FromHandle(context), area, text, look, pressed, ground);
    else
        DrawCaption(*CDC::FromHandle(context), area, text, look, pressed);
}

// In a set other than the standard one the ground stays, and a colour that nobody has chosen is the set's.
void CColorButton::DrawHotFrame(CDC & dc, CRect const & area, ControlColors const & colors)
{
    CPen usual(PS_SOLID, 0, colors.buttonHotFrame);
    bool const adapts = colors.adapts && m_hotFgColor == m_colorTable[ButtonText];
    CPen * const pen = dc.SelectObject(adapts ? &usual : m_hotPen);
    CGdiObject * const brush = colors.adapts ? dc.SelectStockObject(NULL_BRUSH) : nullptr;
    dc.Rectangle(area);
    dc.SelectObject(pen);
    if (brush != nullptr)
        dc.SelectObject(static_cast<CBrush *>(brush));
}

// In a set other than the standard one. A text that nobody has chosen is read on a ground that somebody has.
void CColorButton::DrawAdaptedCaption(CDC & dc, CRect const & area, CString const & text, ButtonLook look, bool pressed,
                                      COLORREF ground)
{
    ControlColors const colors = control_colors::Of(m_hWnd);
    COLORREF ink = look == ButtonLook::disabled ? m_disabledFgColor
                   : look == ButtonLook::hot    ? m_hotFgColor
                                                : m_fgColor;
    if (look == ButtonLook::disabled)
    {
        ink = control_colors::MarkOn(ground, colors.buttonDisabled,
                                     control_colors::TextOn(ground, colors.buttonText, colors.window));
    }
    else if (ink == m_colorTable[ButtonText])
        ink = control_colors::TextOn(ground, colors.buttonText, colors.window);
    CPoint const origin = ButtonCaptionOrigin(area, dc.GetTextExtent(text), pressed);
    int const mode = dc.SetBkMode(TRANSPARENT);
    COLORREF const former = dc.SetTextColor(ink);
    dc.TextOut(origin.x, origin.y, text);
    dc.SetTextColor(former);
    dc.SetBkMode(mode);
}

void CColorButton::DrawCaption(CDC & dc, CRect const & area, CString const & text, ButtonLook look, bool pressed)
{
    CSize const extent = dc.GetTextExtent(text);
    CPoint const origin = ButtonCaptionOrigin(area, extent, pressed, resolution::LineWidth(1, m_dpi));
    int const mode = dc.SetBkMode(TRANSPARENT);
    COLORREF const color = dc.SetTextColor(look == ButtonLook::disabled ? m_disabledFgColor
                                           : look == ButtonLook::hot    ? m_hotFgColor
                                                                        : m_fgColor);
    if (look == ButtonLook::disabled)
    {
        // Up to the edge: the grey text is made without smoothing, and may be wider than what was measured.
        CSize const room(std::max<LONG>(extent.cx, area.right - origin.x), extent.cy);
        dc.DrawState(origin, room, text, DSS_DISABLED | DST_PREFIXTEXT, TRUE, 0, static_cast<CBrush *>(nullptr));
    }
    else
        dc.TextOut(origin.x, origin.y, text);
    dc.SetBkMode(mode);
    dc.SetTextColor(color);
}

void CColorButton::OnMouseMove(UINT flags, CPoint point)
{
    if (!m_hot)
    {
        m_hot = true;
        Invalidate();
        SetTimer(m_timerId, m_rolloverDelay, nullptr);
    }
    CButton::OnMouseMove(flags, point);
}

void CColorButton::OnTimer(UINT_PTR id)
{
    DWORD const position = ::GetMessagePos();
    CPoint point(static_cast<short>(LOWORD(position)), static_cast<short>(HIWORD(position)));
    ScreenToClient(&point);
    CRect area;
    GetClientRect(area);
    if (!area.PtInRect(point))
    {
        m_hot = false;
        KillTimer(m_timerId);
        Invalidate();
    }
    CButton::OnTimer(id);
}

LRESULT CColorButton::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (AsksForControl(message, lParam))
        return AnswerWithObject(std::make_shared<ButtonTarget>(*this, m_lifeSign), wParam);
    window_dpi::Heed(*this, m_followsDpi, message);
    return CButton::DefWindowProc(message, wParam, lParam);
}
