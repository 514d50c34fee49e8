#pragma once
// The report list's cell cursor. Its row is the native list's focused one, which the native list moves; it knows the
// column. Internal to the sources of CXListCtrl.

#include <utility>

#include "list/CursorMoves.h"
#include "list/XListCtrl.h"

class CXListCtrl::CellCursor
{
public:
    explicit CellCursor(CXListCtrl & list) : m_list(list) {}
    CellCursor(CellCursor const &) = delete;
    CellCursor & operator=(CellCursor const &) = delete;

    bool IsOn() const { return m_on; }
    void Enable(bool on);
    /// (-1, -1) without a cursor or a focused row.
    std::pair<int, int> Place() const;
    bool Put(int row, int col);
    /// The cursor stays in its row.
    void PutColumn(int col);

    // Keys; whether they were taken. The list may be gone then.
    bool TakeKey(UINT key);
    /// WM_SYSKEYDOWN and WM_CHAR.
    bool TakeMessage(UINT message, WPARAM wParam, LPARAM lParam);
    /// What the answer to WM_GETDLGCODE has besides.
    LRESULT WantedKeys(WPARAM key) const;
    /// Where a menu opens that the keyboard asks for; false without a cursor.
    bool FindMenuPlace(CPoint & screen) const;

    /// A row has got or lost the native focus.
    void FollowRow(int row) const;
    /// The list has got or lost the focus.
    void FollowFocus(bool focused) const;

    /// A cell that is painted.
    struct Frame
    {
        int row;
        int col;
        HDC context;
    };
    /// Whether the cursor shows at a cell. Costs next to nothing without one.
    bool IsAt(int row, int col) const { return m_on && col == m_col && IsFocused(row); }
    void Paint(Frame const & frame) const;

private:
    bool IsFocused(int row) const;
    cursor_moves::Grid Grid() const;
    /// What a press does at the cursor's cell.
    CellPress PressThere() const;
    /// Presses the cursor's cell if the key acts there.
    bool Press(cursor_moves::ActKey key);
    bool TakeSysKey(UINT key);
    bool TakeCharacter(UINT character, LPARAM flags);
    bool MoveInRow(UINT key);
    bool GoToNext(bool forward);
    std::optional<cursor_moves::Place> NextPlace(bool forward) const;
    void FitColumns();
    /// Scrolls sideways.
    void ShowColumn(int row, int col);
    void Invalidate(int row, int col) const;
    void TellOfPlace() const;

    CXListCtrl & m_list;
    bool m_on = false;
    int m_col = 0;
    /// The character that the key taken last brings; it is taken, too.
    UINT m_taken = 0;
};
