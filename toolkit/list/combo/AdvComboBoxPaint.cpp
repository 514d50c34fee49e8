// CAdvComboBox: painting, with visual styles and without.

#include "list/combo/AdvComboBox.h"

#include "frame/GraphicsScopes.h"
#include "list/VisualStyles.h"
#include "list/combo/AdvComboBoxWatch.h"
#include "list/combo/AdvComboEdit.h"
#include "list/combo/DropWnd.h"

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
    CRect client;
    GetClientRect(client);
    m_rcButton = ButtonRect();
    CRect text = client;
    text.right = m_rcButton.left - 1;
    dc.FillSolidRect(client, ::GetSysColor(enabled ? COLOR_WINDOW : COLOR_BTNFACE));
    if (VisualStyles().IsStyledPaintingOn())
        PaintStyledFrame(dc, client, m_rcButton, enabled);
    else
        PaintPlainFrame(dc, client, m_rcButton, enabled);

    text.DeflateRect(4, 3, 2, 3);
    if (IsDropList())
        PaintText(dc, text, enabled);
    else if (HasEdit())
        m_edit->SetFont(m_font.get());
}

void CAdvComboBox::PaintStyledFrame(CDC & dc, CRect const & client, CRect button, bool enabled)
{
    Theme const theme(m_hWnd, L"COMBOBOX");
    int state = state_normal;
    if (m_drop != nullptr)
        state = state_pressed;
    else if (!enabled)
        state = state_disabled;
    else if (m_hot)
        state = state_hot;

    COLORREF const border = theme.Color(theme_button, state, border_color, RGB(0, 0, 0));
    dc.Draw3dRect(client, border, border);
    button.DeflateRect(0, 1);
    button.OffsetRect(-1, 0);
    if (!enabled)
    {
        COLORREF const outline = theme.Color(theme_button, state, fill_color, RGB(255, 255, 255));
        theme.Color(theme_filled_part, state, fill_color, 255); // asked for and not used, which is meant
        CPen pen(PS_SOLID, 1, outline);
        CBrush brush(::GetSysColor(COLOR_BTNFACE));
        ContextStateScope const saved(dc);
        dc.SelectObject(&pen);
        dc.SelectObject(&brush);
        dc.Rectangle(client.left + 1, client.top + 1, button.left, client.bottom - 1);
    }
    theme.Draw(dc, theme_button, state, button);
}

void CAdvComboBox::PaintPlainFrame(CDC & dc, CRect client, CRect button, bool enabled)
{
    dc.Draw3dRect(client, ::GetSysColor(COLOR_BTNSHADOW), ::GetSysColor(COLOR_BTNHIGHLIGHT));
    client.DeflateRect(1, 1);
    dc.Draw3dRect(client, ::GetSysColor(COLOR_3DDKSHADOW), ::GetSysColor(COLOR_3DLIGHT));
    button.DeflateRect(0, 2);
    button.OffsetRect(-2, 0);
    UINT const state = m_drop != nullptr ? button_down : button_up;
    dc.DrawFrameControl(button, DFC_SCROLL, enabled ? state : state | DFCS_INACTIVE);
}

void CAdvComboBox::PaintText(CDC & dc, CRect rect, bool enabled)
{
    ContextStateScope const saved(dc);
    if (m_font != nullptr)
        dc.SelectObject(m_font.get());
    rect.left -= 2;
    rect.top -= 2;
    rect.right += 1;
    rect.bottom += 2;
    bool const highlighted = m_focused && m_drop == nullptr;
    int const background = highlighted ? COLOR_HIGHLIGHT : COLOR_WINDOW;
    int const foreground = highlighted ? COLOR_HIGHLIGHTTEXT : COLOR_BTNTEXT;
    dc.FillSolidRect(rect, ::GetSysColor(enabled ? background : COLOR_BTNFACE));
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(::GetSysColor(enabled ? foreground : COLOR_GRAYTEXT));
    dc.DrawText(m_text.c_str(), static_cast<int>(m_text.size()), rect, DT_VCENTER | DT_SINGLELINE);
}
} // namespace XListCtrl
