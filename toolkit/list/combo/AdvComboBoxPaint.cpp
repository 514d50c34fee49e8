// CAdvComboBox: painting, with visual styles and without.

#include "list/combo/AdvComboBox.h"

#include "colours/ControlColors.h"
#include "frame/GraphicsScopes.h"
#include "layout/Resolution.h"
#include "list/combo/AdvComboBoxWatch.h"
#include "list/combo/AdvComboEdit.h"
#include "list/combo/DropWnd.h"
#include "list/VisualStyles.h"

namespace XListCtrl
{
namespace
{
// Parts, states and properties of the theme class "COMBOBOX".
constexpr int theme_button = 1;
constexpr int theme_filled_part = 29;
constexpr int state_normal = 1;
constexpr int state_hot = 2;
constexpr int state_pressed = 3;
constexpr int state_disabled = 4;
constexpr int border_color = 3801;
constexpr int fill_color = 3802;

// What DrawFrameControl is given for the arrow button.
constexpr UINT button_up = DFCS_SCROLLDOWN;
constexpr UINT button_down = DFCS_SCROLLDOWN | DFCS_PUSHED | DFCS_FLAT;

class Theme
{
public:
    Theme(HWND window, wchar_t const * classes) : m_theme(VisualStyles().OpenThemeData(window, classes)) {}
    ~Theme() { VisualStyles().CloseThemeData(m_theme); }
    Theme(Theme const &) = delete;
    Theme & operator=(Theme const &) = delete;

    COLORREF Color(int part, int state, int property, COLORREF fallback) const
    {
        COLORREF color = fallback;
        return SUCCEEDED(VisualStyles().GetThemeColor(m_theme, part, state, property, &color)) ? color : fallback;
    }
    void Draw(CDC & dc, int part, int state, CRect const & rect) const
    {
        VisualStyles().DrawThemeBackground(m_theme, dc, part, state, rect, nullptr);
    }

private:
    HTHEME m_theme;
};

/// The arrow button of a set that the system knows nothing of.
void DrawArrowButton(CDC & dc, CRect const & button, bool pressed, bool enabled, ControlColors const & colors)
{
    constexpr int half_width = 4;
    dc.FillSolidRect(button, colors.face);
    dc.Draw3dRect(button, pressed ? colors.edgeShadow : colors.edgeHighlight,
                  pressed ? colors.edgeHighlight : colors.edgeShadow);
    CPoint const middle = button.CenterPoint();
    for (int row = 0; row < half_width; ++row)
    {
        dc.FillSolidRect(CRect(middle.x - half_width + 1 + row, middle.y - half_width / 2 + row,
                               middle.x + half_width - row, middle.y - half_width / 2 + row + 1),
                         enabled ? colors.buttonText : colors.disabled);
    }
}
} // namespace

void CAdvComboBox::OnPaint()
{
    Watch const watch(*this);
    Items().TakeSelectedText();
    if (m_firstPaint && HasEdit())
    {
        // Before the painting begins: the parent hears of the text and may end the window.
        m_firstPaint = false;
        m_edit->SetWindowText(m_text.c_str());
        if (!watch.IsAlive())
            return;
        if (HasEdit())
            m_edit->EnableWindow(IsWindowEnabled());
        if (!watch.IsAlive())
            return;
    }

    CPaintDC dc(this); // the window erases its background, which is a message too
    if (!watch.IsAlive())
        return;
    bool const enabled = IsWindowEnabled() != FALSE;
    ControlColors const colors = control_colors::Of(m_hWnd);
    CRect client;
    GetClientRect(client);
    m_rcButton = ButtonRect();
    CRect text = client;
    text.right = m_rcButton.left - 1;
    dc.FillSolidRect(client, enabled ? colors.window : colors.face);
    if (!colors.adapts && VisualStyles().IsStyledPaintingOn())
        PaintStyledFrame(dc, client, m_rcButton, enabled);
    else
        PaintPlainFrame(dc, client, m_rcButton, enabled);

    auto const scaled = [this](int pixels) { return resolution::Scaled(pixels, m_dpi); };
    text.DeflateRect(scaled(4), scaled(3), scaled(2), scaled(3));
    if (IsDropList())
        PaintText(dc, text, enabled);
    else if (HasEdit())
        m_edit->SetFont(m_font.get());
}

void CAdvComboBox::PaintStyledFrame(CDC & dc, CRect const & client, CRect button, bool enabled)
{
    ControlColors const colors = control_colors::Of(ControlColorSet::standard);
    Theme const theme(m_hWnd, L"COMBOBOX");
    int state = state_normal;
    if (m_drop != nullptr)
        state = state_pressed;
    else if (!enabled)
        state = state_disabled;
    else if (m_hot)
        state = state_hot;

    COLORREF const border = theme.Color(theme_button, state, border_color, colors.comboFrame);
    dc.Draw3dRect(client, border, border);
    button.DeflateRect(0, 1);
    button.OffsetRect(-1, 0);
    if (!enabled)
    {
        COLORREF const outline = theme.Color(theme_button, state, fill_color, colors.comboOutline);
        theme.Color(theme_filled_part, state, fill_color, 255); // asked for and not used, as hosts expect
        CPen pen(PS_SOLID, 1, outline);
        CBrush brush(colors.face);
        ContextStateScope const saved(dc);
        dc.SelectObject(&pen);
        dc.SelectObject(&brush);
        dc.Rectangle(client.left + 1, client.top + 1, button.left, client.bottom - 1);
    }
    theme.Draw(dc, theme_button, state, button);
}

void CAdvComboBox::PaintPlainFrame(CDC & dc, CRect client, CRect button, bool enabled)
{
    ControlColors const colors = control_colors::Of(m_hWnd);
    dc.Draw3dRect(client, colors.edgeShadow, colors.edgeHighlight);
    client.DeflateRect(1, 1);
    dc.Draw3dRect(client, colors.edgeDark, colors.edgeLight);
    button.DeflateRect(0, 2);
    button.OffsetRect(-2, 0);
    if (colors.adapts)
    {
        DrawArrowButton(dc, button, m_drop != nullptr, enabled, colors);
        return;
    }
    UINT const state = m_drop != nullptr ? button_down : button_up;
    dc.DrawFrameControl(button, DFC_SCROLL, enabled ? state : state | DFCS_INACTIVE);
}

void CAdvComboBox::PaintText(CDC & dc, CRect rect, bool enabled)
{
    ContextStateScope const saved(dc);
    if (m_font != nullptr)
        dc.SelectObject(m_font.get());
    int const grown = resolution::Scaled(2, m_dpi);
    rect.left -= grown;
    rect.top -= grown;
    rect.right += resolution::Scaled(1, m_dpi);
    rect.bottom += grown;
    bool const highlighted = m_focused && m_drop == nullptr;
    ControlColors const colors = control_colors::Of(m_hWnd);
    COLORREF const background = highlighted ? colors.selection : colors.window;
    COLORREF const foreground = highlighted ? colors.selectionText : colors.buttonText;
    dc.FillSolidRect(rect, enabled ? background : colors.face);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(enabled ? foreground : colors.disabled);
    dc.DrawText(m_text.c_str(), static_cast<int>(m_text.size()), rect, DT_VCENTER | DT_SINGLELINE);
}
} // namespace XListCtrl
