// CXListCtrl: what programs that read the screen see of the list, and what they are told.

#include "list/XListCtrl.h"

#include <oleacc.h>

#include <optional>
#include <string>
#include <utility>

#include "access/ListTarget.h"
#include "access/NativeEvents.h"
#include "list/CellKind.h"
#include "list/CellText.h"
#include "list/XListCtrlCursor.h"
#include "list/XListCtrlHold.h"

using accessible::Element;

// --- The list, as it is asked ---

/// Loses the list at its end, which the host may bring about while anything is asked: each question looks whether it is
/// still there.
class CXListCtrl::AccessRows final : public AccessibleList
{
public:
    explicit AccessRows(CXListCtrl & list) : m_list(&list) {}

    void Lose() { m_list = nullptr; }
    /// Null without its window.
    CXListCtrl * List() const { return m_list != nullptr && m_list->m_hWnd != nullptr ? m_list : nullptr; }

    int RowCount() const override { return List() != nullptr ? m_list->RowCount() : 0; }
    int ColumnCount() const override { return List() != nullptr ? m_list->m_columnCount : 0; }
    XLISTCTRLDATA const * Cell(int row, int col) const override
    {
        return List() != nullptr ? m_list->ValidCell(row, col) : nullptr;
    }
    std::wstring Text(int row, int col) const override
    {
        if (List() == nullptr || !m_list->IsValidItem(row, col))
            return {};
        return std::wstring(m_list->ReadCellText(row, col).View());
    }
    std::wstring Title(int col) const override { return List() != nullptr ? m_list->HeaderTitle(col) : std::wstring(); }
    std::optional<std::wstring> KindText(int row, int col) const override
    {
        std::shared_ptr<CXListCellKind> const kind = List() != nullptr ? m_list->GetCellKind(row, col) : nullptr;
        if (kind == nullptr)
            return {};
        std::optional<CString> const text = kind->ExportText(*m_list->ValidCell(row, col));
        return text ? std::wstring(text->GetString()) : Text(row, col);
    }
    std::optional<CRect> CellRect(int row, int col) const override
    {
        CRect rect;
        if (List() == nullptr || !m_list->GetSubItemRect(row, col, LVIR_BOUNDS, rect))
            return {};
        return rect;
    }
    std::optional<CRect> RowRect(int row) const override
    {
        CRect rect;
        if (List() == nullptr || !m_list->GetItemRect(row, &rect, LVIR_BOUNDS))
            return {};
        return rect;
    }
    CRect ClientRect() const override
    {
        CRect rect(0, 0, 0, 0);
        if (List() != nullptr)
            ::GetClientRect(m_list->m_hWnd, &rect);
        return rect;
    }
    std::pair<int, int> CellAt(CPoint point) const override
    {
        return List() != nullptr ? m_list->GetItem(point) : std::pair(-1, -1);
    }
    bool IsEnabled() const override { return List() != nullptr && m_list->IsWindowEnabled() != FALSE; }
    bool HasFocus() const override { return List() != nullptr && ::GetFocus() == m_list->m_hWnd; }
    bool IsMultiSelect() const override { return List() != nullptr && (m_list->GetStyle() & LVS_SINGLESEL) == 0; }
    int FocusedRow() const override { return List() != nullptr ? m_list->GetNextItem(-1, LVNI_FOCUSED) : -1; }
    int FocusedCol() const override { return List() != nullptr ? m_list->m_cursor->Place().second : -1; }
    int NextSelected(int after) const override
    {
        return List() != nullptr ? m_list->GetNextItem(after, LVNI_SELECTED) : -1;
    }

private:
    CXListCtrl * m_list;
};

/// What the list's accessible objects share.
class CXListCtrl::AccessTargetOfList final : public ListTarget
{
public:
    explicit AccessTargetOfList(CXListCtrl & list) : m_rows(list) {}

    void Lose() { m_rows.Lose(); }

    bool IsThere() const override { return m_rows.List() != nullptr; }
    HWND Window() const override { return m_rows.List() != nullptr ? m_rows.List()->m_hWnd : nullptr; }
    bool Act(Element element) override;
    bool Select(Element element, long flags) override;

protected:
    AccessibleList const & Rows() const override { return m_rows; }
    std::wstring Name() override
    {
        CString title;
        m_rows.List()->GetWindowText(title);
        return title.GetString();
    }

private:
    AccessRows m_rows;
};

bool CXListCtrl::AccessTargetOfList::Act(Element element)
{
    std::optional<CRect> const rect = element.IsCell() ? accessible::RectOf(m_rows, element) : std::nullopt;
    bool const enabled = rect && m_rows.IsEnabled();
    XLISTCTRLDATA const * const cell = enabled ? m_rows.Cell(element.row, element.col) : nullptr;
    if (cell == nullptr || DecidePress(*cell) == CellPress::ignored)
        return false;
    CXListCtrl & list = *m_rows.List();
    if (*accessible::ActionOf(*cell) == L'\0' && list.GetCellKind(element.row, element.col) == nullptr)
        return false;
    list.PressCell(element.row, element.col, rect->CenterPoint(), false);
    return true;
}

bool CXListCtrl::AccessTargetOfList::Select(Element element, long flags)
{
    CXListCtrl & list = *m_rows.List();
    Watch const watch(list);
    if (element.IsCell() && flags == SELFLAG_TAKEFOCUS && list.HasCellCursor())
    {
        list.SetFocus();
        return watch.IsAlive() && list.SetCellCursor(element.row, element.col);
    }
    if (!element.IsRow())
        return AccessTarget::Select(element, flags);
    if ((flags & SELFLAG_TAKEFOCUS) != 0)
        list.SetFocus();
    if ((flags & SELFLAG_TAKESELECTION) != 0)
    {
        for (int row = -1; watch.IsAlive() && (row = list.GetNextItem(row, LVNI_SELECTED)) >= 0;)
        {
            if (row != element.row)
                list.SetItemState(row, 0, LVIS_SELECTED);
        }
    }
    UINT const taken = (flags & (SELFLAG_TAKESELECTION | SELFLAG_ADDSELECTION)) != 0 ? LVIS_SELECTED : 0U;
    UINT const left = (flags & SELFLAG_REMOVESELECTION) != 0 ? LVIS_SELECTED : 0U;
    UINT const focused = (flags & SELFLAG_TAKEFOCUS) != 0 ? LVIS_FOCUSED : 0U;
    if (watch.IsAlive() && element.row < list.RowCount())
        list.SetItemState(element.row, taken | focused, taken | left | focused);
    return true;
}

LRESULT CXListCtrl::AnswerGetObject(WPARAM flags)
{
    if (GetDisplayStyle() != LVS_REPORT)
        return 0;
    if (m_access->target == nullptr)
        m_access->target = std::make_shared<AccessTargetOfList>(*this);
    std::shared_ptr<AccessTarget> const target = m_access->target;
    return AnswerWithObject(target, flags);
}

void CXListCtrl::EndAccess()
{
    if (std::shared_ptr<AccessTarget> const target = std::exchange(m_access->target, nullptr))
        static_cast<AccessTargetOfList &>(*target).Lose();
}

// --- What is told ---

void CXListCtrl::HoldAccessEvents(bool batch, bool redrawOff)
{
    m_access->redrawOff = redrawOff;
    if (!batch && !redrawOff && std::exchange(m_access->changed, false))
        TellOfEvent(EVENT_OBJECT_REORDER, m_hWnd, {});
}

void CXListCtrl::TellOfCell(int row, int col)
{
    if (m_batchInsert || m_access->redrawOff)
    {
        m_access->changed = true;
        return;
    }
    HWND const window = m_hWnd;
    XLISTCTRLDATA const * const cell =
        ::IsWinEventHookInstalled(EVENT_OBJECT_STATECHANGE) ? ValidCell(row, col) : nullptr;
    if (col < 0 || (cell != nullptr && ShowsState(PaintedKind(*cell))))
        TellOfEvent(EVENT_OBJECT_STATECHANGE, window, {row, col});
    if (col >= 0)
        TellOfEvent(EVENT_OBJECT_VALUECHANGE, window, {row, col});
}

void CXListCtrl::TellOfOrder()
{
    if (m_batchInsert || m_access->redrawOff)
        m_access->changed = true;
    else
        TellOfEvent(EVENT_OBJECT_REORDER, m_hWnd, {});
}

void CXListCtrl::TellOfItemState(NMLISTVIEW const & change)
{
    if ((change.uChanged & LVIF_STATE) == 0 || change.iItem < 0)
        return;
    UINT const changed = change.uOldState ^ change.uNewState;
    if ((changed & LVIS_FOCUSED) != 0)
        m_cursor->FollowRow(change.iItem);
    if ((changed & (LVIS_SELECTED | LVIS_FOCUSED)) == 0)
        return;
    if (m_batchInsert || m_access->redrawOff)
    {
        m_access->changed = true;
        return;
    }
    HWND const window = m_hWnd;
    Element const row{change.iItem, -1};
    bool const focused = (changed & change.uNewState & LVIS_FOCUSED) != 0;
    bool const selected = (change.uNewState & LVIS_SELECTED) != 0;
    if (Element const focus{change.iItem, m_cursor->Place().second}; focused)
    {
        // The native list knows rows alone.
        if (focus.IsRow())
            TellUnlessNative(EVENT_OBJECT_FOCUS, window, focus);
        else
            TellOfEvent(EVENT_OBJECT_FOCUS, window, focus);
    }
    if ((changed & LVIS_SELECTED) != 0)
        TellUnlessNative(selected ? EVENT_OBJECT_SELECTION : EVENT_OBJECT_SELECTIONREMOVE, window, row);
}
