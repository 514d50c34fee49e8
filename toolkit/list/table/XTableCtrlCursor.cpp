// CXTableCtrl: the cell cursor. Its row is the one with the focus; its column is the one that keys meant before there
// was a cursor, too.

#include <algorithm>
#include <limits>
#include <utility>

#include "list/CursorMoves.h"
#include "list/table/XTableCtrlState.h"

namespace
{
bool IsDown(int key)
{
    return ::GetKeyState(key) < 0;
}

cursor_moves::Grid GridOf(TableRow rows, std::vector<unsigned int> const & shown)
{
    cursor_moves::Grid grid;
    grid.rowCount = static_cast<int>(std::min<TableRow>(rows, std::numeric_limits<int>::max()));
    grid.columns.assign(shown.begin(), shown.end());
    return grid;
}
} // namespace

// --- Where it is ---

void CXTableCtrl::EnableCellCursor(bool enable)
{
    if (std::exchange(m_state->cursor, enable) == enable)
        return;
    NoteFocus();
    RepaintRows();
}

bool CXTableCtrl::HasCellCursor() const
{
    return m_state->cursor;
}

std::pair<TableRow, unsigned int> CXTableCtrl::GetCellCursor() const
{
    State const & state = *m_state;
    unsigned int const column = CursorColumn();
    TableRow const position =
        state.cursor && column != State::no_column ? state.model.FocusPosition() : TableModel::nowhere;
    if (position == TableModel::nowhere)
        return {no_table_row, 0};
    return {state.model.RowAt(position), column};
}

bool CXTableCtrl::SetCellCursor(TableRow row, unsigned int column)
{
    State const & state = *m_state;
    bool const isShown = std::find(state.shown.begin(), state.shown.end(), column) != state.shown.end();
    if (!state.cursor || !isShown || state.model.PositionOf(row) == TableModel::nowhere)
        return false;
    Watch const watch(*this);
    if (PutCursorColumn(column))
        GoToRow(row);
    return watch.IsThere();
}

/// Where keys do something; State::no_column where the user has not chosen a cell and there is no cursor.
unsigned int CXTableCtrl::CursorColumn() const
{
    State const & state = *m_state;
    bool const isShown = std::find(state.shown.begin(), state.shown.end(), state.focusColumn) != state.shown.end();
    if (!state.cursor || isShown)
        return state.focusColumn;
    return state.shown.empty() ? State::no_column : state.shown.front();
}

/// Brings it into view. False if the table is gone.
bool CXTableCtrl::PutCursorColumn(unsigned int column)
{
    m_state->focusColumn = column;
    NoteFocus();
    if (m_hWnd == nullptr || m_state->painting != 0)
        return true;
    Watch const watch(*this);
    ShowColumn(column);
    if (!watch.IsAlive())
        return false;
    RepaintRows();
    return true;
}

// --- Keys ---

/// True for a key that was for the cursor. The table may be gone then.
bool CXTableCtrl::TakeCursorKey(UINT key)
{
    State & state = *m_state;
    bool const shift = IsDown(VK_SHIFT);
    bool const control = IsDown(VK_CONTROL);
    switch (key)
    {
    case VK_LEFT:
    case VK_RIGHT:
    case VK_HOME:
    case VK_END:
        return MoveInRow(key);
    case VK_SPACE: {
        TableRow const position = state.model.FocusPosition();
        if (control || position == TableModel::nowhere ||
            state.typed.GoesOn(static_cast<long long>(::GetTickCount64())))
            return false;
        // A mark is ticked; elsewhere the row is selected.
        if (shift || !PressSpace())
            GoTo(position, shift, false);
        return true;
    }
    case VK_RETURN:
        return !control && PressLink(true);
    case VK_TAB: {
        auto const next = control ? std::nullopt : NextEditable(!shift);
        if (next)
            GoToNextEditable(*next);
        return next.has_value();
    }
    case VK_ADD:
        if (control)
            FitColumns();
        return control;
    default:
        return false;
    }
}

bool CXTableCtrl::MoveInRow(UINT key)
{
    State & state = *m_state;
    if (state.model.FocusPosition() == TableModel::nowhere || state.shown.empty())
        return false;
    bool const control = IsDown(VK_CONTROL);
    bool const goesOn = control && (key == VK_HOME || key == VK_END);
    cursor_moves::MoveKey const move = key == VK_LEFT    ? cursor_moves::MoveKey::left
                                       : key == VK_RIGHT ? cursor_moves::MoveKey::right
                                       : key == VK_HOME  ? cursor_moves::MoveKey::home
                                                         : cursor_moves::MoveKey::end;
    int const column = cursor_moves::ColumnAfter(GridOf(state.model.Size(), state.shown),
                                                 static_cast<int>(CursorColumn()), move, control);
    state.typed.Forget();
    // With Ctrl, Home and End lead to the first and the last row, too.
    return !PutCursorColumn(static_cast<unsigned int>(column)) || !goesOn;
}

/// Whether the cursor is at a link. press: follows it; the table may be gone then.
bool CXTableCtrl::PressLink(bool press)
{
    State const & state = *m_state;
    TableRow const position = state.model.FocusPosition();
    unsigned int const column = CursorColumn();
    TableValue value;
    if (position == TableModel::nowhere || !state.model.Read(position, column, value) ||
        value.Kind() != TableKind::link)
        return false;
    if (press)
        PressCell(position, column);
    return true;
}

/// Position and column. Each row has the same columns, so that one row on is the farthest.
std::optional<std::pair<TableRow, unsigned int>> CXTableCtrl::NextEditable(bool forth) const
{
    State const & state = *m_state;
    TableRow const position = state.model.FocusPosition();
    auto const isEditable = [&state](unsigned int column) {
        TableColumn const * const described = state.Column(column);
        return described != nullptr && described->editable;
    };
    if (position == TableModel::nowhere || std::none_of(state.shown.begin(), state.shown.end(), isEditable))
        return {};
    std::optional<cursor_moves::Place> const next = cursor_moves::NextChangeable(
        GridOf(state.model.Size(), state.shown), {static_cast<int>(position), static_cast<int>(CursorColumn())}, forth,
        [&isEditable](int, int column) { return isEditable(static_cast<unsigned int>(column)); });
    if (!next)
        return {};
    return std::pair(static_cast<TableRow>(next->first), static_cast<unsigned int>(next->second));
}

void CXTableCtrl::GoToNextEditable(std::pair<TableRow, unsigned int> const & next)
{
    TableRow const row = m_state->model.RowAt(next.first);
    bool const stays = next.first == m_state->model.FocusPosition();
    m_state->typed.Forget();
    if (PutCursorColumn(next.second) && !stays && m_state->model.RowAt(next.first) == row)
        GoTo(next.first, false, false);
}

/// Those shown, as wide as what is seen of them.
void CXTableCtrl::FitColumns()
{
    Watch const watch(*this);
    for (unsigned int place = 0; watch.IsAlive() && place < m_state->shown.size(); ++place)
        FitColumn(place);
}

/// Of those that a dialog would take for itself.
LRESULT CXTableCtrl::WantedKeys(WPARAM key)
{
    if (!m_state->cursor || (key != VK_RETURN && key != VK_TAB) || IsDown(VK_CONTROL))
        return 0;
    bool const wanted = key == VK_RETURN ? PressLink(false) : NextEditable(!IsDown(VK_SHIFT)).has_value();
    return wanted ? DLGC_WANTMESSAGE : 0;
}
