// CAdvComboBox: mouse, keys, and what is typed into the edit field.

#include "list/combo/AdvComboBox.h"

#include <optional>

#include "layout/WindowDpi.h"
#include "list/combo/AdvComboBoxWatch.h"
#include "list/combo/AdvComboEdit.h"
#include "list/combo/ComboMoves.h"
#include "list/combo/DropListBox.h"
#include "list/combo/DropWnd.h"

namespace XListCtrl
{
namespace
{
constexpr UINT_PTR hot_timer = 1;
constexpr UINT hot_delay = 50; // ms

constexpr UINT escape_character = 27;
constexpr UINT return_character = 13;
/// Hosts expect it: the code of VK_DOWN, looked for among characters.
constexpr UINT next_character = 40;

/// A text is being written into the edit field of some combo, whose change is not to be completed again. One for the
/// process.
bool g_completing = false;

class Completing
{
public:
    Completing() { g_completing = true; }
    ~Completing() { g_completing = false; }
    Completing(Completing const &) = delete;
    Completing & operator=(Completing const &) = delete;
};

combo_moves::ListRows RowsOf(CDropListBox const & list)
{
    return {list.GetCurSel(), list.GetTopIndex(), list.GetVisibleRows(), list.GetCount()};
}
} // namespace

CRect CAdvComboBox::ButtonRect() const
{
    CRect rect;
    GetClientRect(rect);
    rect.left = rect.right - window_dpi::Metric(SM_CXHSCROLL, m_dpi);
    return rect;
}

CRect CAdvComboBox::HotRect() const
{
    if (HasEditStyle())
        return m_rcButton;
    CRect rect;
    if (IsDropList())
        GetClientRect(rect);
    return rect;
}

void CAdvComboBox::InvalidateButton()
{
    if (m_hWnd != nullptr)
        InvalidateRect(m_rcButton);
}

void CAdvComboBox::Toggle()
{
    SendMessage(WM_ADVCOMBO_TOGGLE_DROP);
}

void CAdvComboBox::OnLButtonDown(UINT flags, CPoint point)
{
    Watch const watch(*this);
    if (::GetFocus() != m_hWnd)
        SetFocus();
    if (!watch.IsAlive())
        return;
    GetClientRect(m_rcCombo);
    bool const onButton = HasEditStyle() && m_rcButton.PtInRect(point);
    if (onButton || (IsDropList() && m_rcCombo.PtInRect(point)))
    {
        Toggle();
        if (!watch.IsAlive())
            return;
        if (onButton)
            InvalidateButton();
        Invalidate();
    }
    CWnd::OnLButtonDown(flags, point);
}

void CAdvComboBox::OnMouseMove(UINT flags, CPoint point)
{
    bool const hot = HotRect().PtInRect(point) != FALSE;
    if (hot != m_hot)
    {
        m_hot = hot;
        if (!m_hotTimer)
            m_hotTimer = SetTimer(hot_timer, hot_delay, nullptr) != 0;
        InvalidateButton();
    }
    CWnd::OnMouseMove(flags, point);
}

void CAdvComboBox::OnTimer(UINT_PTR id)
{
    CPoint cursor;
    if (id == hot_timer && ::GetCursorPos(&cursor))
    {
        ScreenToClient(&cursor);
        if (!HotRect().PtInRect(cursor))
        {
            KillTimer(hot_timer);
            m_hotTimer = false;
            if (m_hot)
                InvalidateButton();
            m_hot = false;
        }
    }
    CWnd::OnTimer(id);
}

BOOL CAdvComboBox::OnMouseWheel(UINT, short delta, CPoint)
{
    int const step = combo_moves::WheelStep(m_wheel, delta);
    CDropListBox * const list = DropList();
    if (step != 0 && list != nullptr)
        list->SetTopIdx(combo_moves::TopAfterWheel(RowsOf(*list), step > 0), true);
    else if (step > 0)
        SelectPrev();
    else if (step < 0)
        SelectNext();
    return TRUE;
}

void CAdvComboBox::SelectPrev()
{
    if (m_drop != nullptr)
        StepInDrop(-1);
    else if (std::optional<int> const index = Items().Neighbour(false))
        SelectClosed(*index);
}

void CAdvComboBox::SelectNext()
{
    if (m_drop != nullptr)
        StepInDrop(1);
    else if (std::optional<int> const index = Items().Neighbour(true))
        SelectClosed(*index);
}

void CAdvComboBox::SelectPageUp()
{
    if (m_drop != nullptr)
        PageInDrop(false);
    else if (std::optional<int> const index = Items().PageNeighbour(false))
        SelectClosed(*index);
}

void CAdvComboBox::SelectPageDown()
{
    if (m_drop != nullptr)
        PageInDrop(true);
    else if (std::optional<int> const index = Items().PageNeighbour(true))
        SelectClosed(*index);
}

void CAdvComboBox::StepInDrop(int step)
{
    CDropListBox * const list = DropList();
    if (list == nullptr)
        return;
    int const row = list->GetCurSel() + step;
    if (row >= 0 && row < list->GetCount())
        list->SetCurSel(row);
}

void CAdvComboBox::PageInDrop(bool down)
{
    CDropListBox * const list = DropList();
    if (list == nullptr)
        return;
    std::optional<int> const row = combo_moves::RowAfterPageKey(RowsOf(*list), down);
    if (!row)
        return;
    list->SetCurSel(*row);
    if (combo_item const * const item = list->GetItem(list->GetCurSel()); item != nullptr)
        ShowText(item->text);
}

void CAdvComboBox::SelectClosed(int index)
{
    std::int64_t const former = m_curSel;
    std::wstring const text = Items().At(index)->text;
    m_text = text;
    Watch const watch(*this);
    if (HasEdit())
        m_edit->SetWindowText(text.c_str());
    if (!watch.IsAlive() || index >= GetCount())
        return;
    m_curSel = index;
    Invalidate();
    if (m_curSel != former && NotifyAlive(CBN_SELENDOK))
        Notify(CBN_SELCHANGE);
}

BOOL CAdvComboBox::PreTranslateMessage(MSG * message)
{
    Watch const watch(*this);
    if (message->message == WM_SYSKEYDOWN && (message->wParam == VK_UP || message->wParam == VK_DOWN))
    {
        Toggle();
        if (watch.IsAlive())
            Invalidate();
    }
    else if (message->message == WM_KEYDOWN)
    {
        m_autoAppendArmed = 1;
        if (TakeKey(message->wParam))
            return TRUE;
    }
    // The window of a message may be gone with the combo.
    return watch.IsAlive() ? CWnd::PreTranslateMessage(message) : TRUE;
}

bool CAdvComboBox::TakeKey(WPARAM key)
{
    switch (key)
    {
    case VK_RETURN:
        return TakeReturn();
    case VK_ESCAPE:
        return TakeEscape();
    case VK_F4: {
        Watch const watch(*this);
        Toggle();
        if (watch.IsAlive())
            Invalidate();
        return true;
    }
    case VK_DELETE:
    case VK_BACK:
        m_autoAppendArmed = 0;
        return false;
    case VK_RIGHT:
        return TakeRight();
    default:
        return TakeNavigationKey(key);
    }
}

bool CAdvComboBox::TakeReturn()
{
    if (m_drop == nullptr)
        return false;
    Watch const watch(*this);
    CDropListBox * const list = DropList();
    if (int const selected = list != nullptr ? list->GetCurSel() : LB_ERR; selected != LB_ERR)
        SendMessage(WM_ADVCOMBO_SELECTED, static_cast<WPARAM>(selected));
    if (watch.IsAlive())
        OnCloseDrop(0, 0);
    return true;
}

bool CAdvComboBox::TakeEscape()
{
    if (m_drop == nullptr)
    {
        OnComboCancel();
        return false;
    }
    Watch const watch(*this);
    OnCloseDrop(0, 0);
    if (watch.IsAlive())
        Invalidate();
    return true;
}

bool CAdvComboBox::TakeRight()
{
    if ((m_comboFlags & combo_auto_append) == 0)
        return false;
    if (!HasEdit())
        return true;
    int start = 0;
    int end = 0;
    m_edit->GetSel(start, end);
    if (start != end || end != m_edit->GetWindowTextLength())
        return false;
    OnEditUpdate();
    return true;
}

bool CAdvComboBox::TakeNavigationKey(WPARAM key)
{
    switch (key)
    {
    case VK_UP:
        SelectPrev();
        return true;
    case VK_DOWN:
        SelectNext();
        return true;
    case VK_PRIOR:
        SelectPageUp();
        return true;
    case VK_NEXT:
        SelectPageDown();
        return true;
    default:
        return false;
    }
}

void CAdvComboBox::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    Watch const watch(*this);
    TakeNavigationKey(key);
    if (watch.IsAlive())
        CWnd::OnKeyDown(key, repeat, flags);
}

void CAdvComboBox::OnChar(UINT character, UINT repeat, UINT flags)
{
    Watch const watch(*this);
    if (m_parent != nullptr && character == escape_character)
    {
        OnComboCancel();
        return;
    }
    if (m_parent != nullptr && character == return_character)
    {
        OnComboComplete();
        return;
    }
    if (m_parent != nullptr && character == next_character)
        SelectNext();
    if (watch.IsAlive())
        CWnd::OnChar(character, repeat, flags);
}

void CAdvComboBox::OnSetFocus(CWnd * oldWindow)
{
    CWnd::OnSetFocus(oldWindow);
    m_focused = true;
    Invalidate();
    if (HasEditStyle() && HasEdit())
        m_edit->SetFocus();
    else if (IsDropList())
        Notify(CBN_SETFOCUS);
}

void CAdvComboBox::OnKillFocus(CWnd * newWindow)
{
    CWnd::OnKillFocus(newWindow);
    OnComboCancel();
}

void CAdvComboBox::OnEnable(BOOL enable)
{
    CWnd::OnEnable(enable);
    Invalidate();
    if (HasEdit())
        m_edit->EnableWindow(enable);
}

void CAdvComboBox::OnEditSetFocus()
{
    m_focused = false;
    if (HasEdit())
        m_edit->PostMessage(EM_SETSEL, 0, -1);
    if (!m_focusNotified)
    {
        m_focusNotified = true;
        Notify(CBN_SETFOCUS);
    }
}

void CAdvComboBox::OnEditKillFocus()
{
    m_focused = false;
    Invalidate();
    if (m_drop != nullptr)
    {
        OnCloseDrop(0, 0);
        return;
    }
    if (::GetFocus() == m_hWnd)
        return;
    if (!NotifyAlive(CBN_SELENDCANCEL) || !NotifyAlive(CBN_KILLFOCUS))
        return;
    m_focusNotified = false;
    if (HasEdit())
        m_edit->SetSel(0, 0, FALSE);
}

void CAdvComboBox::OnEditChange()
{
    if (m_drop == nullptr)
        Notify(CBN_EDITCHANGE);
}

void CAdvComboBox::OnEditUpdate()
{
    if (!HasEdit())
        return;
    std::wstring const typed = EditText();
    if (::GetFocus() == m_edit->m_hWnd)
    {
        Watch const watch(*this);
        if (!g_completing && (m_comboFlags & combo_auto_append) != 0 && m_autoAppendArmed != 0)
        {
            if (typed.empty())
                return;
            CompleteTyped(typed);
        }
        if (!watch.IsAlive())
            return;
        if (!g_completing && (m_comboFlags & combo_auto_suggest) != 0 && !SuggestFor(typed))
            return;
        if (!watch.IsAlive())
            return;
    }
    if (m_drop == nullptr)
        Notify(CBN_EDITUPDATE);
}

void CAdvComboBox::CompleteTyped(std::wstring const & typed)
{
    combo_item const * const item = Items().Completion(typed);
    if (item == nullptr)
        return;
    std::wstring const text = item->text;
    Watch const watch(*this);
    Completing const completing;
    m_edit->SetWindowText(text.c_str());
    if (watch.IsAlive() && HasEdit())
        m_edit->SetSel(static_cast<int>(typed.size()), static_cast<int>(text.size()));
}

bool CAdvComboBox::SuggestFor(std::wstring const & typed)
{
    Watch const watch(*this);
    if (typed.empty())
    {
        if (m_drop != nullptr)
            SendMessage(WM_ADVCOMBO_CLOSE_DROP);
        return false;
    }
    std::list<combo_item> const offered = Items().Suggestions(typed);
    if (m_drop != nullptr)
        SendMessage(WM_ADVCOMBO_CLOSE_DROP);
    // The parent may have opened the drop-down itself.
    if (watch.IsAlive() && offered.size() > 1 && m_drop == nullptr)
    {
        m_curSel = 0;
        OpenDrop(offered);
    }
    return true;
}
} // namespace XListCtrl
