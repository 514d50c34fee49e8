#include <algorithm>

#include "list/table/XTableCtrlState.h"

namespace
{
bool IsDown(int key)
{
    return ::GetKeyState(key) < 0;
}
} // namespace

/// Of the columns shown, from the client area's top to its bottom; gives the right edge of those that stand still.
int CXTableCtrl::ColumnRects(std::vector<CRect> & rects) const
{
    State const & state = *m_state;
    rects.clear();
    CHeaderCtrl * const header = Titles();
    if (header == nullptr)
        return 0;
    CPoint origin(0, 0);
    ::MapWindowPoints(header->m_hWnd, m_hWnd, &origin, 1);
    CRect client(0, 0, 0, 0);
    GetClientRect(&client);
    int still = 0;
    unsigned int const frozen = state.layout.Frozen();
    for (std::size_t i = 0; i < state.shown.size(); ++i)
    {
        CRect rect(0, 0, 0, 0);
        header->GetItemRect(static_cast<int>(i), &rect);
        rect.OffsetRect(i < frozen ? still - rect.left : origin.x, 0);
        if (i < frozen)
            still = rect.right;
        rects.emplace_back(rect.left, client.top, rect.right, client.bottom);
    }
    return still;
}

bool CXTableCtrl::HitCell(CPoint point, TableRow & position, unsigned int & column) const
{
    State const & state = *m_state;
    LVHITTESTINFO hit = {};
    hit.pt = point;
    // Anywhere in the row's height; the columns are the table's own matter.
    hit.pt.x = 1;
    auto const item = static_cast<int>(AskNative(LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
    if (item < 0 || static_cast<TableRow>(item) >= state.model.Size())
        return false;
    position = static_cast<TableRow>(item);
    std::vector<CRect> rects;
    int const still = ColumnRects(rects);
    for (std::size_t i = 0; i < rects.size(); ++i)
    {
        if (point.x >= rects[i].left && point.x < rects[i].right && (i < state.layout.Frozen() || point.x >= still))
        {
            column = state.shown[i];
            return true;
        }
    }
    return false;
}

/// Wherever it is, seen or not; false for a column that is not shown.
bool CXTableCtrl::CellRect(TableRow position, unsigned int column, CRect & rect) const
{
    State const & state = *m_state;
    auto const place = std::find(state.shown.begin(), state.shown.end(), column);
    std::vector<CRect> rects;
    ColumnRects(rects);
    auto const index = static_cast<std::size_t>(place - state.shown.begin());
    if (index >= rects.size() || position >= state.model.Size())
        return false;
    CRect const row = RowRect(position);
    if (row.IsRectEmpty())
        return false;
    rect.SetRect(rects[index].left, row.top, rects[index].right, row.bottom);
    return true;
}

/// Scrolls it into view.
void CXTableCtrl::ShowColumn(unsigned int column)
{
    State const & state = *m_state;
    std::vector<CRect> rects;
    int const still = ColumnRects(rects);
    auto const index =
        static_cast<std::size_t>(std::find(state.shown.begin(), state.shown.end(), column) - state.shown.begin());
    if (index >= rects.size() || index < state.layout.Frozen())
        return;
    CRect client(0, 0, 0, 0);
    GetClientRect(&client);
    // The left edge counts where not all of it finds room.
    int move = std::max(0L, rects[index].right - client.right);
    move = std::min<int>(move, rects[index].left - still);
    if (move != 0)
        ScrollSideways(move);
}

/// Left and right lead from cell to cell where some can be edited, else they scroll.
void CXTableCtrl::MoveFocusColumn(bool right)
{
    State & state = *m_state;
    auto const isEditable = [&state](unsigned int column) {
        TableColumn const * const described = state.Column(column);
        return described != nullptr && described->editable;
    };
    if (std::none_of(state.shown.begin(), state.shown.end(), isEditable))
    {
        SendMessage(WM_HSCROLL, right ? SB_LINERIGHT : SB_LINELEFT, 0);
        return;
    }
    auto const present = std::find(state.shown.begin(), state.shown.end(), state.focusColumn);
    if (present == state.shown.end())
        state.focusColumn = state.shown.front();
    else if (right && present + 1 != state.shown.end())
        state.focusColumn = *(present + 1);
    else if (!right && present != state.shown.begin())
        state.focusColumn = *(present - 1);
    NoteFocus();
    Watch const watch(*this);
    ShowColumn(state.focusColumn);
    if (watch.IsThere())
        RepaintRows();
}

/// Toggles the tick with the focus, or the row's first one where no cell was chosen. True if there is one.
bool CXTableCtrl::PressSpace()
{
    State & state = *m_state;
    auto const isTick = [&state](unsigned int column) {
        TableColumn const * const described = state.Column(column);
        return described != nullptr && described->kind == TableKind::tick && described->editable;
    };
    unsigned int column = CursorColumn();
    if (column == State::no_column)
    {
        auto const first = std::find_if(state.shown.begin(), state.shown.end(), isTick);
        if (first != state.shown.end())
            column = *first;
    }
    TableRow const position = state.model.FocusPosition();
    if (!isTick(column) || position == TableModel::nowhere)
        return false;
    PressCell(position, column);
    return true;
}

/// In screen coordinates, for a menu that the keyboard asks for. The table may be gone.
CPoint CXTableCtrl::MenuPlace()
{
    State & state = *m_state;
    Watch const watch(*this);
    TableRow const row = state.model.FocusRow();
    TableRow position = state.model.FocusPosition();
    if (position != TableModel::nowhere)
        BringIntoView(position);
    if (watch.IsAlive() && state.cursor)
        ShowColumn(CursorColumn());
    if (!watch.IsAlive())
        return CPoint(0, 0);
    CRect client(0, 0, 0, 0);
    GetClientRect(&client);
    CRect place(client.left, client.top, client.left, client.top);
    if (CHeaderCtrl * const header = Titles(); header != nullptr)
    {
        CRect titles(0, 0, 0, 0);
        header->GetWindowRect(&titles);
        place.bottom += titles.Height();
    }
    bool const chosen = std::find(state.shown.begin(), state.shown.end(), CursorColumn()) != state.shown.end();
    position = row == no_table_row ? TableModel::nowhere : state.model.PositionOf(row);
    if (position != TableModel::nowhere && !state.shown.empty())
        CellRect(position, chosen ? CursorColumn() : state.shown.front(), place);
    CPoint point(std::clamp(place.left, client.left, client.right),
                 std::clamp(place.bottom, client.top, client.bottom));
    ClientToScreen(&point);
    return point;
}

void CXTableCtrl::AfterSelection(bool tell)
{
    RepaintRows();
    if (!tell)
        return;
    auto const callback = m_onSelectionChange;
    if (callback)
        callback();
}

void CXTableCtrl::GoTo(TableRow position, bool shift, bool control)
{
    std::shared_ptr<State> const kept = m_state;
    Watch const watch(*this);
    table_input::Go(kept->model, position, shift, control);
    if (!watch.IsThere())
        return;
    if (shift || !control)
        NoteSelection(shift ? TableModel::nowhere : position);
    NoteFocus();
    if (BringIntoView(position))
        AfterSelection(true);
}

/// For a press: takes the focus, but not from an edit whose text is refused. False if nothing more is to be done.
bool CXTableCtrl::ComeHere(Watch const & watch)
{
    // Also where the edit has lost the focus before.
    bool const left = TakeEdit();
    if (!watch.IsAlive())
        return false;
    if (!left)
    {
        if (m_state->editing)
            m_state->editing->window->SetFocus();
        return false;
    }
    SetFocus();
    return watch.IsAlive();
}

void CXTableCtrl::OnLButtonDown(UINT flags, CPoint point)
{
    Watch const watch(*this);
    if (!ComeHere(watch))
        return;
    TableRow position = 0;
    unsigned int column = 0;
    bool const shift = (flags & MK_SHIFT) != 0;
    bool const control = (flags & MK_CONTROL) != 0;
    if (!HitCell(point, position, column))
    {
        if (!shift && !control)
        {
            m_state->model.ClearSelection();
            NoteSelection(TableModel::nowhere);
            AfterSelection(true);
        }
        return;
    }
    m_state->focusColumn = column;
    m_state->typed.Forget();
    if (control && !shift)
    {
        table_input::Flip(m_state->model, position);
        NoteSelection(position);
        NoteFocus();
        AfterSelection(true);
        return;
    }
    TableRow const row = m_state->model.RowAt(position);
    GoTo(position, shift, control);
    // The row that was pressed, wherever it stands by now.
    if (watch.IsAlive() && !shift && row == m_state->model.RowAt(position))
        PressCell(position, column);
}

void CXTableCtrl::OnRButtonDown(UINT flags, CPoint point)
{
    static_cast<void>(flags);
    Watch const watch(*this);
    if (!ComeHere(watch))
        return;
    TableRow position = 0;
    unsigned int column = 0;
    if (!HitCell(point, position, column))
        return;
    m_state->focusColumn = column;
    NoteFocus();
    // A selected row leaves the others selected: the menu may be for all of them.
    if (!m_state->model.IsSelected(position))
        GoTo(position, false, false);
}

// Here as everywhere: not every native list goes on to the menu without the press.
void CXTableCtrl::OnRButtonUp(UINT flags, CPoint point)
{
    static_cast<void>(flags);
    ClientToScreen(&point);
    SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(m_hWnd), MAKELPARAM(point.x, point.y));
}

void CXTableCtrl::OnLButtonDblClk(UINT flags, CPoint point)
{
    TableRow position = 0;
    unsigned int column = 0;
    if (!HitCell(point, position, column))
        return;
    TableRow const row = m_state->model.RowAt(position);
    // Since the first press another row may have come here, or the selection may have changed.
    if (!m_state->model.IsSelected(position) || m_state->model.FocusRow() != row)
    {
        OnLButtonDown(flags, point);
        return;
    }
    TableValue value;
    TableColumn const * const described = m_state->Column(column);
    // The second press on a mark is one like the first.
    if (m_state->model.ReadRow(row, column, value) && value.Kind() == TableKind::tick && described != nullptr &&
        described->editable)
    {
        PressCell(position, column);
        return;
    }
    if (IsTyped(column))
    {
        OpenEdit(row, column, nullptr);
        return;
    }
    auto const callback = m_onDoubleClick;
    if (callback)
        callback(row, column);
}

void CXTableCtrl::PressCell(TableRow position, unsigned int column)
{
    std::shared_ptr<State> const kept = m_state;
    Watch const watch(*this);
    TableRow const row = kept->model.RowAt(position);
    TableColumn const * const described = kept->Column(column);
    TableValue value;
    if (described == nullptr || !kept->model.ReadRow(row, column, value) || !watch.IsThere())
        return;
    if (value.Kind() == TableKind::link)
    {
        auto const callback = m_onLinkClick;
        if (callback)
            callback(row, column);
        return;
    }
    if (value.Kind() != TableKind::tick || !described->editable)
        return;
    std::shared_ptr<TableSource> const source = m_state->model.Source();
    auto const check = described->check;
    value.SetTick(value.Whole() == 0);
    if (!source || (check && !check(value).empty()) || !watch.IsThere() || !source->Write(row, column, value))
        return;
    if (!watch.IsThere())
        return;
    if (m_state->model.RowAt(position) == row)
        NoteValue(position, column);
    m_state->feed->RowsChanged(row, row);
    UpdateNow();
}

void CXTableCtrl::OnKeyDown(UINT character, UINT repeats, UINT flags)
{
    State & state = *m_state;
    if (state.cursor && TakeCursorKey(character))
        return;
    bool const shift = IsDown(VK_SHIFT);
    bool const control = IsDown(VK_CONTROL);
    std::optional<table_input::Move> move;
    switch (character)
    {
    case VK_UP:
        move = table_input::Move::up;
        break;
    case VK_DOWN:
        move = table_input::Move::down;
        break;
    case VK_PRIOR:
        move = table_input::Move::page_up;
        break;
    case VK_NEXT:
        move = table_input::Move::page_down;
        break;
    case VK_HOME:
        move = table_input::Move::first;
        break;
    case VK_END:
        move = table_input::Move::last;
        break;
    case VK_SPACE:
        if (control)
        {
            table_input::Flip(state.model, state.model.FocusPosition());
            NoteSelection(state.model.FocusPosition());
            AfterSelection(true);
        }
        else if (!state.typed.GoesOn(static_cast<long long>(::GetTickCount64())))
        {
            PressSpace();
        }
        return;
    case VK_RETURN:
        if (TableRow const row = state.model.FocusRow(); row != no_table_row && !state.shown.empty())
        {
            auto const callback = m_onDoubleClick;
            if (callback)
                callback(row, CursorColumn() == State::no_column ? state.shown.front() : CursorColumn());
        }
        return;
    case VK_F2: {
        // Of the cell with the focus, or the row's first one.
        unsigned int column = CursorColumn();
        if (column == State::no_column)
        {
            auto const first = std::find_if(state.shown.begin(), state.shown.end(),
                                            [this](unsigned int each) { return IsTyped(each); });
            if (first != state.shown.end())
                column = *first;
        }
        OpenEdit(state.model.FocusRow(), column, nullptr);
        return;
    }
    case VK_ESCAPE:
        if (state.editing)
            CloseEdit();
        else
            StopOrdering();
        return;
    case L'A':
        if (control)
        {
            state.model.SelectAll();
            NoteSelection(TableModel::nowhere);
            AfterSelection(true);
        }
        return;
    case L'C':
    case VK_INSERT:
        if (control)
            CopyRows(TableForm::text, true, false);
        else if (shift && character == VK_INSERT)
            PasteBlock();
        return;
    case L'V':
        if (control)
            PasteBlock();
        return;
    case VK_LEFT:
    case VK_RIGHT:
        MoveFocusColumn(character == VK_RIGHT);
        return;
    default:
        CListCtrl::OnKeyDown(character, repeats, flags);
        return;
    }
    std::optional<TableRow> const wanted = table_input::Moved(*move, state.model.FocusPosition(), state.model.Size(),
                                                              TopPosition(), std::max(PageRows(), TableRow{1}));
    if (wanted)
        GoTo(*wanted, shift, control);
}

void CXTableCtrl::OnChar(UINT character, UINT repeats, UINT flags)
{
    static_cast<void>(repeats);
    static_cast<void>(flags);
    State & state = *m_state;
    auto const now = static_cast<long long>(::GetTickCount64());
    // With Ctrl it is a command; with Alt as well it is a character of other keyboards.
    bool const command = IsDown(VK_CONTROL) && !IsDown(VK_MENU);
    if (character < L' ' || command || state.shown.empty())
        return;
    // Into the cell with the focus; else it is looked for among the rows.
    if (TableRow const row = state.model.FocusRow(); row != no_table_row && IsTyped(CursorColumn()))
    {
        wchar_t const typed[] = {static_cast<wchar_t>(character), L'\0'};
        OpenEdit(row, CursorColumn(), typed);
        return;
    }
    if (character == L' ' && !state.typed.GoesOn(now))
        return;
    TypedText::Search const search = state.typed.Add(static_cast<wchar_t>(character), now);
    TableRow const focus = state.model.FocusPosition();
    TableRow const from = focus == TableModel::nowhere ? 0 : search.fromFocus ? focus : focus + 1;
    // In the column sorted by, or else the first one.
    unsigned int const column = state.model.Sort().empty() || state.layout.IsHidden(state.model.Sort().front().column)
                                    ? state.shown.front()
                                    : state.model.Sort().front().column;
    TableRow const found = state.model.FindTyped(column, search.text, from);
    if (found != TableModel::nowhere)
        GoTo(found, false, false);
}

BOOL CXTableCtrl::OnFindItem(NMHDR * header, LRESULT * result)
{
    auto const & find = *reinterpret_cast<NMLVFINDITEMW const *>(header);
    *result = -1;
    if ((find.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) == 0 || find.lvfi.psz == nullptr || m_state->shown.empty())
        return TRUE;
    TableRow const found = m_state->model.FindTyped(m_state->shown.front(), find.lvfi.psz,
                                                    static_cast<TableRow>(std::max(find.iStart, 0)));
    if (found != TableModel::nowhere)
        *result = static_cast<LRESULT>(found);
    return TRUE;
}

void CXTableCtrl::OnSetFocus(CWnd * former)
{
    Watch const watch(*this);
    CListCtrl::OnSetFocus(former);
    if (!watch.IsThere())
        return;
    NoteFocus();
    RepaintRows();
}

void CXTableCtrl::OnKillFocus(CWnd * next)
{
    Watch const watch(*this);
    CListCtrl::OnKillFocus(next);
    if (watch.IsThere())
        RepaintRows();
}

// Whoever asks the native list what is selected is told of the table's selection.
bool CXTableCtrl::AnswerState(UINT message, WPARAM wParam, LPARAM lParam, LRESULT & result)
{
    TableModel & model = m_state->model;
    switch (message)
    {
    case LVM_GETITEMSTATE: {
        auto const position = static_cast<TableRow>(wParam);
        UINT state = 0;
        if (model.IsSelected(position))
            state |= LVIS_SELECTED;
        if (TableRow const focus = model.FocusRow(); focus != no_table_row && model.RowAt(position) == focus)
            state |= LVIS_FOCUSED;
        result = static_cast<LRESULT>(state & static_cast<UINT>(lParam));
        return true;
    }
    case LVM_SETITEMSTATE: {
        auto const & item = *reinterpret_cast<LVITEMW const *>(lParam);
        bool const all = static_cast<int>(wParam) == -1;
        auto const position = static_cast<TableRow>(wParam);
        result = FALSE;
        if (!all && position >= model.Size())
            return true;
        if ((item.stateMask & LVIS_SELECTED) != 0)
        {
            bool const selected = (item.state & LVIS_SELECTED) != 0;
            if (!all)
                model.Select(position, selected);
            else if (selected)
                model.SelectAll();
            else
                model.ClearSelection();
            NoteSelection(all ? TableModel::nowhere : position);
        }
        if ((item.stateMask & LVIS_FOCUSED) != 0)
        {
            model.SetFocus(all || (item.state & LVIS_FOCUSED) == 0 ? TableModel::nowhere : position);
            NoteFocus();
        }
        RepaintRows();
        result = TRUE;
        return true;
    }
    case LVM_GETSELECTEDCOUNT:
        result = static_cast<LRESULT>(model.SelectedPositions().size());
        return true;
    case LVM_GETNEXTITEM: {
        auto const flags = static_cast<UINT>(LOWORD(lParam));
        if ((flags & (LVNI_SELECTED | LVNI_FOCUSED)) == 0 ||
            (flags & (LVNI_ABOVE | LVNI_BELOW | LVNI_TOLEFT | LVNI_TORIGHT)) != 0)
            return false;
        result = -1;
        TableRow const after = static_cast<TableRow>(wParam) + 1;
        if ((flags & LVNI_FOCUSED) != 0)
        {
            TableRow const focus = model.FocusPosition();
            if (focus != TableModel::nowhere && focus >= after &&
                ((flags & LVNI_SELECTED) == 0 || model.IsSelected(focus)))
                result = static_cast<LRESULT>(focus);
            return true;
        }
        TableRow const next = model.NextSelected(after);
        if (next != TableModel::nowhere)
            result = static_cast<LRESULT>(next);
        return true;
    }
    default:
        return false;
    }
}
