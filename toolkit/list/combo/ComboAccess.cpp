// The combo family: what programs that read the screen see of it.

#include <memory>
#include <vector>

#include "access/ControlTarget.h"
#include "colours/ControlColors.h"
#include "list/combo/AdvComboBox.h"
#include "list/combo/AdvComboEdit.h"
#include "list/combo/DropListBox.h"
#include "list/combo/DropWnd.h"

namespace XListCtrl
{
class CAdvComboBox::Access final : public ControlTarget
{
public:
    Access(CAdvComboBox & combo, LifeSign const & life) : ControlTarget(combo, life), m_combo(combo) {}

    std::vector<HWND> ChildWindows() override
    {
        std::vector<HWND> windows;
        if (IsThere() && m_combo.HasEdit())
            windows.push_back(m_combo.m_edit->m_hWnd);
        if (CDropListBox const * const list = IsThere() ? m_combo.DropList() : nullptr)
            windows.push_back(list->m_hWnd);
        return windows;
    }

protected:
    accessible::Description DescribeSelf() override
    {
        accessible::ControlFacts const facts = Facts();
        CString shown;
        if (IsThere())
            m_combo.GetWindowText(shown);
        return accessible::DescribeCombo(facts, shown.GetString(), IsThere() && m_combo.m_drop != nullptr);
    }
    bool ActSelf() override
    {
        if (!IsThere() || !IsEnabled())
            return false;
        m_combo.ShowDropDown(m_combo.m_drop == nullptr);
        return true;
    }

private:
    CAdvComboBox & m_combo;
};

LRESULT CAdvComboBox::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (AsksForControl(message, lParam))
        return AnswerWithObject(std::make_shared<Access>(*this, m_life), wParam);
    if (LRESULT const brush = control_colors::AnswerColorQuestion(m_hWnd, message, wParam))
        return brush;
    return CWnd::DefWindowProc(message, wParam, lParam);
}

void CAdvComboBox::TellOfNotification(UINT code) const
{
    switch (code)
    {
    case CBN_DROPDOWN:
    case CBN_CLOSEUP:
        TellOfEvent(EVENT_OBJECT_STATECHANGE, m_hWnd, {});
        break;
    case CBN_SELCHANGE:
    case CBN_EDITCHANGE:
        TellOfEvent(EVENT_OBJECT_VALUECHANGE, m_hWnd, {});
        break;
    default:
        break;
    }
}

/// The list of the drop window. Its items are chosen as by a click.
class CDropListBox::Access final : public ControlTarget
{
public:
    Access(CDropListBox & list, LifeSign const & life) : ControlTarget(list, life), m_list(list) {}

    accessible::Element Focused() override { return {IsThere() ? m_list.GetCurSel() : -1, -1}; }
    std::optional<accessible::Element> NextSelected(accessible::Element after) override
    {
        accessible::Element const selected = Focused();
        return selected.row > after.row ? std::optional(selected) : std::nullopt;
    }

protected:
    accessible::ItemRow Items() override { return {IsThere() ? m_list.GetCount() : 0, false}; }
    accessible::Description DescribeSelf() override
    {
        accessible::ControlFacts facts = Facts();
        if (IsThere())
            facts.label = LabelOf(m_list.m_combo->m_hWnd);
        // The focus stays with the combo, while this list shows where it goes.
        facts.focused = true;
        return accessible::DescribeControl(accessible::Role::list, facts);
    }
    accessible::Description DescribeItem(int row) override
    {
        accessible::ItemFacts facts;
        facts.inSight = IsInSight(ItemRect(row));
        facts.selected = IsThere() && m_list.GetCurSel() == row;
        facts.focused = facts.selected;
        if (combo_item const * const item = IsThere() ? m_list.GetItem(row) : nullptr)
        {
            facts.text = item->text;
            facts.enabled = item->disabled == 0;
        }
        return accessible::DescribeChoice(facts);
    }
    std::optional<CRect> ItemRect(int row) override
    {
        CRect rect;
        if (!IsThere() || m_list.GetItemRect(row, &rect) == LB_ERR)
            return {};
        return rect;
    }
    int ItemAt(CPoint point) override { return IsThere() ? m_list.RowAt(point) : -1; }
    bool ActItem(int row) override
    {
        if (!IsThere() || m_list.IsDisabled(row))
            return false;
        int const selected = m_list.SetCurSel(row);
        if (IsThere() && selected != LB_ERR)
            m_list.Choose(row);
        return true;
    }

private:
    CDropListBox & m_list;
};

LRESULT CDropListBox::AnswerGetObject(WPARAM flags)
{
    return AnswerWithObject(std::make_shared<Access>(*this, m_life), flags);
}

// The drop window is its list, with a frame around it.
LRESULT CDropWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    HWND const list = m_list != nullptr ? m_list->m_hWnd : nullptr;
    if (list != nullptr && AsksForControl(message, lParam))
        return ::SendMessageW(list, message, wParam, lParam);
    if (LRESULT const brush = control_colors::AnswerColorQuestion(m_combo->m_hWnd, message, wParam))
        return brush;
    return CWnd::DefWindowProc(message, wParam, lParam);
}
} // namespace XListCtrl
