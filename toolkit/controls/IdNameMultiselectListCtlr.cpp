#include "controls/IdNameMultiselectListCtlr.h"

#include <memory>

#include "access/ControlTarget.h"
#include "access/NativeEvents.h"
#include "controls/MultiselectMessages.h"
#include "frame/WindowAlive.h"

IMPLEMENT_DYNAMIC(CIdNameMultiselectListCtlr, CListCtrl)

BEGIN_MESSAGE_MAP(CIdNameMultiselectListCtlr, CListCtrl)
    ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

void CIdNameMultiselectListCtlr::PreSubclassWindow()
{
    CListCtrl::PreSubclassWindow();
    SetExtendedStyle(GetExtendedStyle() | multiselect_list_style);
}

void CIdNameMultiselectListCtlr::OnLButtonDown(UINT flags, CPoint point)
{
    WindowAlive const alive(*this, m_life);
    UINT hitFlags = 0;
    int const row = HitTest(point, &hitFlags);
    if (!alive.IsAlive())
        return;
    LPARAM const id = row >= 0 ? static_cast<LPARAM>(GetItemData(row)) : 0;
    if (!alive.IsAlive())
        return;
    if (row >= 0 && (hitFlags & LVHT_ONITEMLABEL) != 0)
    {
        bool const ticked = GetCheck(row) != 0;
        if (alive.IsAlive())
            SetCheck(row, !ticked);
    }
    else
        CListCtrl::OnLButtonDown(flags, point);
    if (row >= 0 && alive.IsAlive())
        TellOfPress(id);
}

void CIdNameMultiselectListCtlr::TellOfPress(LPARAM id)
{
    CWnd const * receiver = GetParent();
    if (receiver == nullptr)
        receiver = GetOwner();
    if (receiver != nullptr && ::IsWindow(receiver->m_hWnd))
        ::PostMessageW(receiver->m_hWnd, multiselect_list_message, multiselect_row_pressed, id);
}

// --- What programs that read the screen see ---

class CIdNameMultiselectListCtlr::Access final : public ControlTarget
{
public:
    Access(CIdNameMultiselectListCtlr & list, LifeSign const & life) : ControlTarget(list, life), m_list(list) {}

    accessible::Element Focused() override
    {
        int const row = IsThere() ? m_list.GetNextItem(-1, LVNI_FOCUSED) : -1;
        return {row, -1};
    }

protected:
    accessible::ItemRow Items() override { return {IsThere() ? m_list.GetItemCount() : 0, false}; }
    accessible::Description DescribeSelf() override
    {
        return accessible::DescribeControl(accessible::Role::list, Facts());
    }
    accessible::Description DescribeItem(int row) override
    {
        accessible::ItemFacts facts;
        facts.enabled = IsEnabled();
        facts.inSight = IsInSight(ItemRect(row));
        facts.focused = ::GetFocus() == Window() && Focused().row == row;
        if (IsThere())
            facts.selected = m_list.GetItemState(row, LVIS_SELECTED) != 0;
        if (IsThere())
            facts.text = m_list.GetItemText(row, 0).GetString();
        return accessible::DescribeTick(facts, IsThere() && m_list.GetCheck(row) != 0);
    }
    std::optional<CRect> ItemRect(int row) override
    {
        CRect rect;
        if (!IsThere() || !m_list.GetItemRect(row, &rect, LVIR_BOUNDS))
            return {};
        return rect;
    }
    int ItemAt(CPoint point) override { return IsThere() ? m_list.HitTest(point) : -1; }
    // As a press on the row's text.
    bool ActItem(int row) override
    {
        if (!IsThere() || !IsEnabled())
            return false;
        auto const id = static_cast<LPARAM>(m_list.GetItemData(row));
        bool const ticked = IsThere() && m_list.GetCheck(row) != 0;
        if (IsThere())
            m_list.SetCheck(row, !ticked);
        if (IsThere())
            m_list.TellOfPress(id);
        return true;
    }

private:
    CIdNameMultiselectListCtlr & m_list;
};

BOOL CIdNameMultiselectListCtlr::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * result)
{
    auto const * const header = message == WM_NOTIFY ? reinterpret_cast<NMHDR const *>(lParam) : nullptr;
    if (header != nullptr && header->code == LVN_ITEMCHANGED)
    {
        auto const & change = *reinterpret_cast<NMLISTVIEW const *>(lParam);
        UINT const changed = (change.uChanged & LVIF_STATE) != 0 ? change.uOldState ^ change.uNewState : 0;
        WindowAlive const alive(*this, m_life);
        HWND const window = m_hWnd;
        accessible::Element const row{change.iItem, -1};
        bool const focused = (changed & change.uNewState & LVIS_FOCUSED) != 0;
        if ((changed & LVIS_STATEIMAGEMASK) != 0 && row.IsRow())
            TellUnlessNative(EVENT_OBJECT_STATECHANGE, window, row);
        if (focused && row.IsRow())
            TellUnlessNative(EVENT_OBJECT_FOCUS, window, row);
        if (!alive.IsAlive())
            return FALSE;
    }
    return CListCtrl::OnChildNotify(message, wParam, lParam, result);
}

LRESULT CIdNameMultiselectListCtlr::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (AsksForControl(message, lParam))
        return AnswerWithObject(std::make_shared<Access>(*this, m_life), wParam);
    return CListCtrl::DefWindowProc(message, wParam, lParam);
}
