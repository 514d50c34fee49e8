#include "controls/ComboBoxX.h"

#include <algorithm>
#include <vector>

#include "colours/ControlColors.h"
#include "controls/FieldWidths.h"
#include "controls/ItemRows.h"
#include "controls/TypeAhead.h"
#include "frame/GraphicsScopes.h"
#include "frame/LastingWindow.h"
#include "frame/WindowAlive.h"
#include "layout/WindowDpi.h"

namespace
{
constexpr UINT_PTR tip_timer = 1;
constexpr UINT tip_timer_period = 80;
constexpr int greatest_tip_width = 32767;
constexpr wchar_t const * blank_text = L"\u2014";
// From the field's corner at 96 dots an inch, so that the tip's text lies over the field's.
constexpr int tip_right = 1;
constexpr int tip_down = 3;

/// The width of the widest of the texts on the window's device context as it comes.
int WidestText(HWND window, std::vector<CString> const & texts)
{
    TextMeasure const measure(window, nullptr);
    int widest = 0;
    for (CString const & text : texts)
        widest = std::max(widest, measure.Width(text));
    return widest;
}

/// The combo box by its window alone: the messages may end its object.
class ComboField : public CompletionField
{
public:
    explicit ComboField(HWND combo) : m_combo(combo) {}

    CString Text() override
    {
        CString text;
        int const room = ::GetWindowTextLengthW(m_combo) + 1;
        ::GetWindowTextW(m_combo, text.GetBuffer(room), room);
        text.ReleaseBuffer();
        return text;
    }
    std::optional<Selection> Selected() override
    {
        auto const selection = static_cast<DWORD>(::SendMessage(m_combo, CB_GETEDITSEL, 0, 0));
        if (selection == static_cast<DWORD>(CB_ERR))
            return {};
        return Selection{LOWORD(selection), HIWORD(selection)};
    }
    bool TakeRow(CString const & beginning) override
    {
        auto const text = reinterpret_cast<LPARAM>(beginning.GetString());
        return ::SendMessage(m_combo, CB_SELECTSTRING, static_cast<WPARAM>(-1), text) != CB_ERR;
    }
    void SetText(CString const & text) override { ::SetWindowTextW(m_combo, text); }
    void Select(Selection selection) override
    {
        ::SendMessage(m_combo, CB_SETEDITSEL, 0, MAKELPARAM(selection.start, selection.end));
    }

private:
    HWND m_combo;
};
} // namespace

BEGIN_MESSAGE_MAP(CComboBoxX, CComboBox)
    ON_WM_MOUSEMOVE()
    ON_WM_TIMER()
    ON_CONTROL_REFLECT(CBN_EDITUPDATE, &CComboBoxX::OnEditupdate)
END_MESSAGE_MAP()

CComboBoxX::CComboBoxX()
    : m_toolTipWnd(nullptr),
      m_toolInfo{},
      m_editable(false),
      m_autoComplete(false),
      m_completeNow(false),
      m_autoFit(true)
{
}

CComboBoxX::~CComboBoxX()
{
    DestroyWindow();
    EndTip();
}

int CComboBoxX::AddItem(wchar_t const * text, int data)
{
    return item_rows::Add(*this, text, data);
}

void CComboBoxX::FillItems(std::list<CString> const & items, int firstData, bool clearFirst)
{
    item_rows::Fill(*this, items, firstData, clearFirst);
}

void CComboBoxX::FillItems(std::map<int, CString> const & items, bool blankRow)
{
    item_rows::Fill(*this, items, blankRow ? blank_text : nullptr);
}

int CComboBoxX::FindItemData(int data)
{
    return item_rows::Find(*this, data);
}

int CComboBoxX::SelectItemData(int data)
{
    return item_rows::Select(*this, data);
}

int CComboBoxX::GetSelectedItemData(int defaultData)
{
    return item_rows::Selected(*this, defaultData);
}

void CComboBoxX::AutoComplete(bool complete)
{
    m_autoComplete = complete;
}

void CComboBoxX::AutoFit(bool fit)
{
    m_autoFit = fit;
}

void CComboBoxX::Editable(bool editable)
{
    m_editable = editable;
}

bool CComboBoxX::FitToWidth()
{
    HWND const window = m_hWnd;
    int const count = window != nullptr ? GetCount() : 0;
    std::vector<CString> texts;
    for (int row = 0; row < count && StillHas(this, window); ++row)
    {
        CString text;
        GetLBText(row, text);
        texts.push_back(text);
    }
    if (!StillHas(this, window))
        return false;
    int const widest = WidestText(window, texts);
    int const width = DropWidth(widest, window_dpi::Metric(SM_CXVSCROLL, m_dpi), window_dpi::Metric(SM_CXEDGE, m_dpi));
    int const present = GetDroppedWidth();
    if (present >= width || !StillHas(this, window))
        return false;
    SetDroppedWidth(static_cast<UINT>(width));
    return true;
}

void CComboBoxX::FitToEditWidth()
{
    if (m_hWnd == nullptr)
        return;
    CRect rect;
    GetWindowRect(rect);
    SetDroppedWidth(static_cast<UINT>(rect.Width()));
}

BOOL CComboBoxX::SetDpi(UINT dpi)
{
    if (!resolution::IsServed(dpi))
        return FALSE;
    m_dpi = dpi;
    return TRUE;
}

void CComboBoxX::FollowDpi(BOOL follow)
{
    window_dpi::Follow(*this, m_followsDpi, follow);
}

LRESULT CComboBoxX::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    window_dpi::Heed(*this, m_followsDpi, message);
    return CComboBox::DefWindowProc(message, wParam, lParam);
}

void CComboBoxX::PreSubclassWindow()
{
    HWND const window = m_hWnd;
    CComboBox::PreSubclassWindow();
    if (!StillHas(this, window))
        return;
    EndTip();
    window_dpi::Begin(*this, m_followsDpi);
    HWND const tip = ::CreateWindowExW(0, L"tooltips_class32", nullptr, TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT,
                                       CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, window, nullptr, nullptr, nullptr);
    m_toolTipWnd = tip;
    // It tells the combo box when it is shown or painted, in which the host may end both.
    if (tip != nullptr)
        lasting_window::Watch(tip);
    m_toolInfo = {};
    m_toolInfo.cbSize = sizeof m_toolInfo;
    m_toolInfo.uFlags = TTF_TRACK | TTF_TRANSPARENT;
    m_toolInfo.hwnd = window;
    TOOLINFOW tool = m_toolInfo;
    ::SendMessage(tip, TTM_SETMAXTIPWIDTH, 0, greatest_tip_width);
    if (tip != nullptr && !::SendMessage(tip, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool)) &&
        StillHas(this, window))
    {
        // Common controls before version 6 know a smaller structure alone.
        tool.cbSize = m_toolInfo.cbSize = TTTOOLINFOW_V2_SIZE;
        ::SendMessage(tip, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    }
    ControlColors const colors = control_colors::Of(window);
    ::SendMessage(tip, TTM_SETTIPBKCOLOR, colors.selection, 0);
    ::SendMessage(tip, TTM_SETTIPTEXTCOLOR, colors.selectionText, 0);
    RECT margin{0, -1, 0, -1};
    ::SendMessage(tip, TTM_SETMARGIN, 0, reinterpret_cast<LPARAM>(&margin));
    ::SendMessage(tip, WM_SETFONT, static_cast<WPARAM>(::SendMessage(window, WM_GETFONT, 0, 0)), FALSE);
}

void CComboBoxX::PostNcDestroy()
{
    EndTip();
    CComboBox::PostNcDestroy();
}

void CComboBoxX::EndTip()
{
    HWND const tip = m_toolTipWnd;
    m_toolTipWnd = nullptr;
    if (tip != nullptr && ::IsWindow(tip))
        lasting_window::End(tip);
}

void CComboBoxX::ShowTip(bool show)
{
    TOOLINFOW tool = m_toolInfo;
    ::SendMessage(m_toolTipWnd, TTM_TRACKACTIVATE, show, reinterpret_cast<LPARAM>(&tool));
}

CRect CComboBoxX::TextField() const
{
    CRect client;
    GetClientRect(client);
    return ComboTextField(client, window_dpi::Metric(SM_CXHTHUMB, m_dpi), m_dpi);
}

BOOL CComboBoxX::PreTranslateMessage(MSG * msg)
{
    if (msg->message == WM_KEYDOWN)
    {
        if (m_editable && msg->wParam == VK_RETURN)
        {
            NMHDR header{m_hWnd, static_cast<UINT_PTR>(GetDlgCtrlID()), static_cast<UINT>(NM_RETURN)};
            if (CWnd * const owner = GetOwner())
                owner->SendMessage(WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
            return 1;
        }
        if (m_autoComplete)
            m_completeNow = KeyCompletes(static_cast<unsigned int>(msg->wParam));
    }
    return CComboBox::PreTranslateMessage(msg);
}

BOOL CComboBoxX::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * result)
{
    if (message == WM_COMMAND && HIWORD(wParam) == CBN_DROPDOWN)
    {
        HWND const window = m_hWnd;
        OnDropdown();
        if (!StillHas(this, window))
            return TRUE;
    }
    return CComboBox::OnChildNotify(message, wParam, lParam, result);
}

void CComboBoxX::OnDropdown()
{
    if (m_autoFit)
        FitToWidth();
}

void CComboBoxX::OnEditupdate()
{
    if (!m_autoComplete || !m_completeNow)
        return;
    ComboField field(m_hWnd);
    CompleteTyped(field);
}

void CComboBoxX::OnMouseMove(UINT flags, CPoint point)
{
    HWND const window = m_hWnd;
    CRect field = TextField();
    CString text;
    bool tooWide = false;
    if (field.PtInRect(point))
    {
        text = ComboField(window).Text();
        tooWide = IsTooWide(item_rows::TextWidth(window, text), field.Width(), m_dpi);
        if (!StillHas(this, window))
            return;
    }
    if (tooWide)
    {
        ClientToScreen(field);
        CPoint const place =
            field.TopLeft() + CSize(resolution::Scaled(tip_right, m_dpi), resolution::Scaled(tip_down, m_dpi));
        bool const focused = ::GetFocus() == window;
        HWND const tip = m_toolTipWnd;
        TOOLINFOW tool = m_toolInfo;
        tool.lpszText = const_cast<wchar_t *>(text.GetString());
        auto const toTip = [tip](UINT message, WPARAM wParam, LPARAM lParam) {
            ::SendMessage(tip, message, wParam, lParam);
        };
        ControlColors const colors = control_colors::Of(window);
        toTip(TTM_SETTIPBKCOLOR, focused ? colors.selection : colors.window, 0);
        toTip(TTM_SETTIPTEXTCOLOR, focused ? colors.selectionText : colors.windowText, 0);
        toTip(TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
        toTip(TTM_TRACKPOSITION, 0, MAKELPARAM(place.x, place.y));
        toTip(TTM_TRACKACTIVATE, TRUE, reinterpret_cast<LPARAM>(&tool));
        ::SetTimer(window, tip_timer, tip_timer_period, nullptr);
    }
    else
        ShowTip(false);
    if (StillHas(this, window))
        CComboBox::OnMouseMove(flags, point);
}

void CComboBoxX::OnTimer(UINT_PTR id)
{
    CPoint cursor;
    ::GetCursorPos(&cursor);
    ScreenToClient(&cursor);
    if (TextField().PtInRect(cursor))
        return;
    KillTimer(id);
    ShowTip(false);
}
