// CXTableCtrl: what programs that read the screen see of the table, and what they are told.

#include <oleacc.h>

#include <algorithm>
#include <utility>

#include "access/ControlTarget.h"
#include "access/ListTarget.h"
#include "list/CellKind.h"
#include "list/table/ValueCell.h"
#include "list/table/XTableCtrlState.h"

using accessible::Element;

// --- The table, as it is asked ---

/// A row is a position, a column its place among those shown. Whatever asks the source may end the table: what it has
/// is kept meanwhile.
class CXTableCtrl::AccessRows final : public AccessibleList
{
public:
    explicit AccessRows(CXTableCtrl & table) : m_alive(table), m_table(table) {}

    /// Null once it has ended, or its window has.
    CXTableCtrl * Table() const { return m_alive.IsAlive() ? &m_table : nullptr; }
    std::shared_ptr<State> Kept() const { return m_alive.IsAlive() ? m_table.m_state : nullptr; }
    /// State::no_column where there is none.
    static unsigned int ColumnAt(State const & state, int place)
    {
        auto const index = static_cast<std::size_t>(place);
        return place >= 0 && index < state.shown.size() ? state.shown[index] : State::no_column;
    }

    int RowCount() const override
    {
        // The native list takes so many.
        constexpr TableRow most_rows = 100000000;
        std::shared_ptr<State> const state = Kept();
        return state ? static_cast<int>(std::min(state->model.Size(), most_rows)) : 0;
    }
    int ColumnCount() const override
    {
        std::shared_ptr<State> const state = Kept();
        return state ? static_cast<int>(state->shown.size()) : 0;
    }
    XLISTCTRLDATA const * Cell(int row, int col) const override;
    std::wstring Text(int row, int col) const override;
    std::wstring Title(int col) const override
    {
        std::shared_ptr<State> const state = Kept();
        TableColumn const * const described = state ? state->Column(ColumnAt(*state, col)) : nullptr;
        return described != nullptr ? TitleOf(*described) : std::wstring();
    }
    std::optional<std::wstring> KindText(int, int) const override { return {}; }
    std::optional<CRect> CellRect(int row, int col) const override
    {
        CRect rect;
        std::shared_ptr<State> const state = Kept();
        if (!state || !Table()->CellRect(static_cast<TableRow>(row), ColumnAt(*state, col), rect))
            return {};
        return rect;
    }
    std::optional<CRect> RowRect(int row) const override
    {
        CRect const rect = Table() != nullptr ? m_table.RowRect(static_cast<TableRow>(row)) : CRect(0, 0, 0, 0);
        return rect.IsRectEmpty() ? std::nullopt : std::optional(rect);
    }
    CRect ClientRect() const override
    {
        CRect rect(0, 0, 0, 0);
        if (Table() != nullptr)
            ::GetClientRect(m_table.m_hWnd, &rect);
        return rect;
    }
    CRect SightRect(int col) const override;
    std::pair<int, int> CellAt(CPoint point) const override
    {
        TableRow position = TableModel::nowhere;
        unsigned int column = State::no_column;
        std::shared_ptr<State> const state = Kept();
        bool const found = state && Table()->HitCell(point, position, column);
        if (position == TableModel::nowhere)
            return {-1, -1};
        auto const place = std::find(state->shown.begin(), state->shown.end(), column);
        return {static_cast<int>(position), found ? static_cast<int>(place - state->shown.begin()) : -1};
    }
    bool IsEnabled() const override { return Table() != nullptr && m_table.IsWindowEnabled() != FALSE; }
    bool HasFocus() const override { return Table() != nullptr && ::GetFocus() == m_table.m_hWnd; }
    bool IsMultiSelect() const override { return true; }
    int FocusedRow() const override
    {
        std::shared_ptr<State> const state = Kept();
        TableRow const position = state ? state->model.FocusPosition() : TableModel::nowhere;
        return position == TableModel::nowhere ? -1 : static_cast<int>(position);
    }
    bool IsFocused(int row) const override
    {
        std::shared_ptr<State> const state = Kept();
        TableRow const source = state ? state->model.RowAt(static_cast<TableRow>(row)) : no_table_row;
        return source != no_table_row && source == state->model.FocusRow();
    }
    int FocusedCol() const override
    {
        std::shared_ptr<State> const state = Kept();
        if (!state || !state->cursor)
            return -1;
        auto const place = std::find(state->shown.begin(), state->shown.end(), m_table.CursorColumn());
        return place == state->shown.end() ? -1 : static_cast<int>(place - state->shown.begin());
    }
    int NextSelected(int after) const override;
    bool IsSelected(int row) const override
    {
        std::shared_ptr<State> const state = Kept();
        return state && state->model.IsSelected(static_cast<TableRow>(row));
    }
    bool CanTick(int col) const override
    {
        std::shared_ptr<State> const state = Kept();
        TableColumn const * const described = state ? state->Column(ColumnAt(*state, col)) : nullptr;
        return described != nullptr && described->editable;
    }

private:
    Watch m_alive;
    CXTableCtrl & m_table;
    /// What the cell would be in a report list.
    mutable XLISTCTRLDATA m_cell;
};

XLISTCTRLDATA const * CXTableCtrl::AccessRows::Cell(int row, int col) const
{
    std::shared_ptr<State> const state = Kept();
    unsigned int const column = state ? ColumnAt(*state, col) : State::no_column;
    if (column == State::no_column)
        return nullptr;
    bool const typed = m_table.IsTyped(column);
    TableValue value;
    state->model.Read(static_cast<TableRow>(row), column, value);
    MakeCellOf(value, typed, m_cell);
    return &m_cell;
}

std::wstring CXTableCtrl::AccessRows::Text(int row, int col) const
{
    std::shared_ptr<State> const state = Kept();
    unsigned int const column = state ? ColumnAt(*state, col) : State::no_column;
    if (column == State::no_column)
        return {};
    std::shared_ptr<TableLooks const> const looks = state->model.SharedLooks();
    TableValue value;
    std::wstring text;
    // Of a tick a mark is shown.
    if (column < looks->columns.size() && state->model.Read(static_cast<TableRow>(row), column, value) &&
        value.Kind() != TableKind::tick)
        ShowValue(text, value, looks->columns[column], looks->locale);
    return text;
}

// Below the titles, and beside the columns that stand still.
CRect CXTableCtrl::AccessRows::SightRect(int col) const
{
    CRect sight = ClientRect();
    std::shared_ptr<State> const state = Kept();
    CHeaderCtrl * const header = state ? m_table.Titles() : nullptr;
    if (header == nullptr || Table() == nullptr)
        return sight;
    CRect titles(0, 0, 0, 0);
    header->GetWindowRect(&titles);
    m_table.ScreenToClient(&titles);
    if (header->IsWindowVisible())
        sight.top = std::max(sight.top, titles.bottom);
    std::vector<CRect> rects;
    int const still = m_table.ColumnRects(rects);
    if (col >= static_cast<int>(state->layout.Frozen()))
        sight.left = std::max<LONG>(sight.left, still);
    return sight;
}

// Looks through all rows only where several are selected, or one that is not the focus.
int CXTableCtrl::AccessRows::NextSelected(int after) const
{
    std::shared_ptr<State> const state = Kept();
    if (!state || state->model.SelectedKeys() == 0)
        return -1;
    TableRow next = TableModel::nowhere;
    if (state->model.SelectedKeys() == 1 && state->model.IsRowSelected(state->model.FocusRow()))
    {
        TableRow const focus = state->model.FocusPosition();
        if (focus != TableModel::nowhere && static_cast<int>(focus) > after)
            next = focus;
    }
    else
    {
        next = state->model.NextSelected(static_cast<TableRow>(after + 1));
    }
    return next == TableModel::nowhere ? -1 : static_cast<int>(next);
}

/// Made anew for each that asks; serves as long as the table has the window that it had then.
class CXTableCtrl::AccessTargetOfTable final : public ListTarget
{
public:
    explicit AccessTargetOfTable(CXTableCtrl & table) : m_rows(table), m_window(table.m_hWnd) {}

    bool IsThere() const override { return m_rows.Table() != nullptr; }
    HWND Window() const override { return m_window; }
    bool Act(Element element) override;
    bool Select(Element element, long flags) override;

protected:
    AccessibleList const & Rows() const override { return m_rows; }
    std::wstring Name() override
    {
        std::wstring own = WindowTextOf(m_window);
        return own.empty() ? accessible::CaptionOf(LabelOf(m_window)).text : own;
    }

private:
    AccessRows m_rows;
    HWND m_window;
};

// What a click does, or where a click only leads there, a second one.
bool CXTableCtrl::AccessTargetOfTable::Act(Element element)
{
    std::shared_ptr<State> const state = m_rows.Kept();
    if (!element.IsCell() || !state || !m_rows.IsEnabled())
        return false;
    auto const position = static_cast<TableRow>(element.row);
    TableRow const row = state->model.RowAt(position);
    unsigned int const column = AccessRows::ColumnAt(*state, element.col);
    XLISTCTRLDATA const * const cell = m_rows.Cell(element.row, element.col);
    if (cell == nullptr || !IsThere() || *accessible::ActionOf(*cell) == L'\0' ||
        (cell->checkedState != XLC_NONE && !m_rows.CanTick(element.col)))
        return false;
    CXTableCtrl & table = *m_rows.Table();
    if (PressedKind(*cell) == CellKind::edit)
        return table.OpenEdit(row, column, nullptr) || !IsThere();
    // As a press does, which an edit with a refused text keeps out.
    bool const left = table.TakeEdit();
    if (!IsThere())
        return true;
    if (!left || state->model.RowAt(position) != row)
        return false;
    table.PressCell(position, column);
    return true;
}

bool CXTableCtrl::AccessTargetOfTable::Select(Element element, long flags)
{
    std::shared_ptr<State> const state = m_rows.Kept();
    if (!state || element.IsControl())
        return AccessTarget::Select(element, flags);
    constexpr long known = SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION | SELFLAG_EXTENDSELECTION | SELFLAG_ADDSELECTION |
                           SELFLAG_REMOVESELECTION;
    if ((flags & ~known) != 0 || flags == 0 || (element.IsCell() && (flags != SELFLAG_TAKEFOCUS || !state->cursor)))
        return false;
    CXTableCtrl & table = *m_rows.Table();
    TableModel & model = state->model;
    auto const position = static_cast<TableRow>(element.row);
    if ((flags & SELFLAG_TAKEFOCUS) != 0)
    {
        table.SetFocus();
        if (!IsThere() || position >= model.Size())
            return true;
    }
    if (element.IsCell())
    {
        if (table.PutCursorColumn(AccessRows::ColumnAt(*state, element.col)))
            table.GoTo(position, false, false);
        return true;
    }
    bool const selects = (flags & ~SELFLAG_TAKEFOCUS) != 0;
    if ((flags & SELFLAG_TAKESELECTION) != 0)
        model.ClearSelection();
    if ((flags & (SELFLAG_TAKESELECTION | SELFLAG_ADDSELECTION)) != 0)
        model.Select(position, true);
    if ((flags & SELFLAG_REMOVESELECTION) != 0)
        model.Select(position, false);
    if ((flags & SELFLAG_EXTENDSELECTION) != 0 && model.AnchorPosition() != TableModel::nowhere)
        model.SelectRange(model.AnchorPosition(), position);
    else if (selects)
        model.SetAnchor(position);
    if ((flags & SELFLAG_TAKEFOCUS) != 0)
        model.SetFocus(position);
    if (!IsThere())
        return true;
    table.NoteSelection((flags & SELFLAG_EXTENDSELECTION) != 0 ? TableModel::nowhere : position);
    table.NoteFocus();
    if ((flags & SELFLAG_TAKEFOCUS) == 0 || table.BringIntoView(position))
        table.AfterSelection(true);
    return true;
}

LRESULT CXTableCtrl::AnswerGetObject(WPARAM flags)
{
    return AnswerWithObject(std::make_shared<AccessTargetOfTable>(*this), flags);
}

// --- What is told ---

// Of what has changed since, one word of a kind, as soon as the window's thread has nothing else to do.
void CXTableCtrl::WishNews()
{
    if (m_hWnd != nullptr && !std::exchange(m_state->news.wished, true))
        PostMessage(Waker::WakeMessage(), Waker::tell_news, 0);
}

void CXTableCtrl::NoteFocus()
{
    if (!::IsWinEventHookInstalled(EVENT_OBJECT_FOCUS))
        return;
    m_state->news.focus = true;
    WishNews();
}

void CXTableCtrl::NoteSelection(TableRow position)
{
    if (!::IsWinEventHookInstalled(EVENT_OBJECT_SELECTION))
        return;
    if (TableRow const row = m_state->model.RowAt(position); row != no_table_row)
        m_state->news.selection.Add({position, row, TableNewsPlaces::any_column});
    else
        m_state->news.selection.AddMany();
    WishNews();
}

void CXTableCtrl::NoteValue(TableRow position, unsigned int column)
{
    if (!::IsWinEventHookInstalled(EVENT_OBJECT_VALUECHANGE))
        return;
    if (TableRow const row = m_state->model.RowAt(position); row != no_table_row)
        m_state->news.values.Add({position, row, column});
    else
        m_state->news.values.AddMany();
    WishNews();
}

void CXTableCtrl::NoteOrder()
{
    if (!::IsWinEventHookInstalled(EVENT_OBJECT_REORDER))
        return;
    m_state->news.order = true;
    WishNews();
}

void CXTableCtrl::TellNews()
{
    std::shared_ptr<State> const state = m_state;
    TableNews const news = std::exchange(state->news, {});
    Watch const watch(*this);
    AccessRows const rows(*this);
    std::vector<std::pair<DWORD, Element>> events;
    // The table stands for what has moved since.
    auto const elementOf = [&](TableNewsPlaces::Place const & place) {
        if (state->model.RowAt(place.position) != place.row)
            return Element{};
        auto const shown = std::find(state->shown.begin(), state->shown.end(), place.column);
        return Element{static_cast<int>(place.position),
                       shown == state->shown.end() ? -1 : static_cast<int>(shown - state->shown.begin())};
    };
    if (news.order)
        events.emplace_back(EVENT_OBJECT_REORDER, Element{});
    if (news.values.AreSeveral())
        events.emplace_back(EVENT_OBJECT_VALUECHANGE, Element{});
    if (std::optional<TableNewsPlaces::Place> const one = news.values.One())
    {
        Element const element = elementOf(*one);
        TableColumn const * const described = state->Column(one->column);
        if (element.IsCell() && described != nullptr && described->kind == TableKind::tick)
            events.emplace_back(EVENT_OBJECT_STATECHANGE, element);
        events.emplace_back(EVENT_OBJECT_VALUECHANGE, element);
    }
    std::optional<TableNewsPlaces::Place> const chosen = news.selection.One();
    if (Element const element = chosen ? elementOf(*chosen) : Element{}; element.IsRow())
    {
        bool const selected = rows.IsSelected(element.row);
        DWORD const added = state->model.SelectedKeys() == 1 ? EVENT_OBJECT_SELECTION : EVENT_OBJECT_SELECTIONADD;
        events.emplace_back(selected ? added : EVENT_OBJECT_SELECTIONREMOVE, element);
    }
    else if (chosen || news.selection.AreSeveral())
    {
        events.emplace_back(EVENT_OBJECT_SELECTIONWITHIN, Element{});
    }
    if (news.focus && rows.HasFocus())
    {
        int const row = rows.FocusedRow();
        if (row >= 0)
            events.emplace_back(EVENT_OBJECT_FOCUS, Element{row, rows.FocusedCol()});
    }
    // A listener within the process may end the table.
    for (auto const & [event, element] : events)
    {
        if (watch.IsAlive())
            TellOfEvent(event, m_hWnd, element);
    }
}
