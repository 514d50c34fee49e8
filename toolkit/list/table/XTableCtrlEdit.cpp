// CXTableCtrl: the cell that is typed into. The edit stays with its cell by the row's key, wherever rows and columns
// go.

#include <algorithm>
#include <utility>

#include "frame/OwnTexts.h"
#include "list/table/ValueCell.h"
#include "list/table/XTableCtrlState.h"

namespace
{
constexpr UINT edit_id = 0x7A11;
// Pixels at 96 dots an inch.
constexpr int least_edit_width = 5;
constexpr int edit_left = 2;
constexpr int edit_right = 4;
/// Where nobody sees it.
constexpr int out_of_sight = -10000;
constexpr int reason_width = 300;

DWORD EditAlignment(TableColumn const & column)
{
    // Times, in the middle otherwise, are typed from the left.
    if (column.align == TableAlign::by_kind && column.kind == TableKind::time)
        return ES_LEFT;
    switch (AlignmentOf(column, column.kind))
    {
    case CellAlign::left:
        break;
    case CellAlign::centre:
        return ES_CENTER;
    case CellAlign::right:
        return ES_RIGHT;
    }
    return ES_LEFT;
}

/// What the user is told where nobody else says anything.
std::wstring OwnReason(TableRefused const & refused, TableColumn const * column)
{
    if (!refused.reason.empty())
        return refused.reason;
    if (refused.refusal != TableRefusal::not_readable)
        return ReadOwnText(OwnText::not_taken);
    switch (column != nullptr ? column->kind : TableKind::blank)
    {
    case TableKind::whole:
    case TableKind::floating:
    case TableKind::progress:
        return ReadOwnText(OwnText::not_a_number);
    case TableKind::time:
        return ReadOwnText(OwnText::not_a_time);
    case TableKind::blank:
    case TableKind::text:
    case TableKind::tick:
    case TableKind::link:
        break;
    }
    return ReadOwnText(OwnText::not_a_value);
}

/// Of the edit, so that no host hears when it is shown.
TTTOOLINFOW ReasonTool(CWnd const & edit, wchar_t * text)
{
    TTTOOLINFOW tool = {};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.uFlags = TTF_TRACK | TTF_ABSOLUTE;
    tool.hwnd = edit.m_hWnd;
    tool.uId = edit_id;
    tool.lpszText = text;
    return tool;
}
} // namespace

void TableEditEnd::operator()(CXTableEdit * edit) const
{
    edit->End();
}

/// Whether texts of the column are typed: ticks toggle.
bool CXTableCtrl::IsTyped(unsigned int column) const
{
    TableColumn const * const described = m_state->Column(column);
    return described != nullptr && described->editable && described->kind != TableKind::tick;
}

bool CXTableCtrl::IsEditing() const
{
    return m_state->editing != nullptr;
}

bool CXTableCtrl::EditCell(TableRow row, unsigned int column)
{
    return OpenEdit(row, column, nullptr);
}

bool CXTableCtrl::EndEdit(bool take)
{
    if (take)
        return TakeEdit();
    CloseEdit();
    return true;
}

// typed: replaces what the cell shows; null for none.
bool CXTableCtrl::OpenEdit(TableRow row, unsigned int column, wchar_t const * typed)
{
    std::shared_ptr<State> const kept = m_state;
    State & state = *kept;
    Watch const watch(*this);
    auto const mayGoOn = [&] { return watch.IsAlive() && state.painting == 0; };
    if (!TakeEdit())
    {
        // The refused text comes first.
        if (mayGoOn() && state.editing)
            state.editing->window->SetFocus();
        return false;
    }
    if (!mayGoOn() || !IsTyped(column))
        return false;
    std::shared_ptr<TableSource> const source = state.model.Source();
    TableRow position = state.model.PositionOf(row);
    if (!source || position == TableModel::nowhere || row >= source->RowCount())
        return false;
    TableKey const key = source->Key(row);
    bool const isFocused = state.model.FocusRow() == row && state.model.IsRowSelected(row);
    if (!mayGoOn())
        return false;
    state.focusColumn = column;
    NoteFocus();
    if (!isFocused)
        GoTo(position, false, false);
    else
        BringIntoView(position);
    if (mayGoOn())
        ShowColumn(column);
    // The host has heard of it, and may have done anything.
    auto const mayOpen = [&] {
        return mayGoOn() && state.model.Source() == source && IsTyped(column) && !state.editing;
    };
    if (!mayOpen())
        return false;
    position = state.model.PositionOf(source->RowOfKey(key));
    std::wstring shown = state.model.Text(position, column);
    CRect place;
    if (!mayGoOn() || position == TableModel::nowhere || !CellRect(position, column, place) ||
        place.Width() < state.Scaled(least_edit_width))
        return false;
    // The native list may ask for the row that it measures, of which the host hears, too.
    if (!mayOpen())
        return false;

    auto const editing = std::make_shared<TableEditing>();
    editing->source = source;
    editing->key = key;
    editing->column = column;
    editing->before = std::move(shown);
    editing->window.reset(new CXTableEdit(this, typed != nullptr ? typed : editing->before.c_str()));
    editing->window->SetDpi(state.look.dpi);
    place.left += state.Scaled(edit_left);
    place.right = std::max(place.right - state.Scaled(edit_right) + state.Scaled(edit_left), place.left + 1);
    // Not the table's before it is complete: the focus moves, of which the host hears.
    bool const created =
        editing->window->Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL | EditAlignment(*state.Column(column)), place,
                                this, edit_id) != FALSE;
    if (!mayGoOn() || !created || editing->window->m_hWnd == nullptr || editing->window->IsClosing() || state.editing)
        return false;
    // What the edit holds the mouse for is over where it is opened: the next press may be elsewhere.
    if (::GetCapture() == editing->window->m_hWnd)
        ::ReleaseCapture();
    if (typed != nullptr)
        editing->window->SetSel(-1, -1);
    state.editing = editing;
    WishEditPlace();
    return true;
}

/// True where none is open afterwards. The table may be gone.
bool CXTableCtrl::TakeEdit()
{
    State & state = *m_state;
    std::shared_ptr<TableEditing> const editing = state.editing;
    if (!editing)
        return true;
    if (editing->taking)
        return false;
    CString shown;
    if (editing->window->m_hWnd != nullptr)
        editing->window->GetWindowText(shown);
    std::wstring const text(shown.GetString(), static_cast<std::size_t>(shown.GetLength()));
    if (editing->window->m_hWnd == nullptr || text == editing->before || state.Column(editing->column) == nullptr)
    {
        CloseEdit();
        return true;
    }

    Watch const watch(*this);
    // No second time within what is called here.
    editing->taking = true;
    TableRefused refused{0, 0, TableRefusal::not_readable, text, {}};
    std::shared_ptr<TableLooks const> const looks = state.model.SharedLooks();
    TableColumn const & column = looks->columns[editing->column];
    TableValue value;
    bool taken = ParseValue(value, text, column, looks->locale);
    if (taken && column.check)
    {
        refused.refusal = TableRefusal::by_check;
        refused.reason = column.check(value);
        taken = refused.reason.empty();
    }
    if (!watch.IsThere())
        return true;
    std::shared_ptr<TableSource> const source = editing->source.lock();
    TableRow const row = source && source == state.model.Source() ? source->RowOfKey(editing->key) : no_table_row;
    if (row == no_table_row || !column.editable)
    {
        taken = false;
        refused.refusal = row == no_table_row ? TableRefusal::no_such_row : TableRefusal::not_editable;
    }
    else if (taken)
    {
        refused.refusal = TableRefusal::by_source;
        std::shared_ptr<TableFeed> const feed = state.feed;
        taken = source->Write(row, editing->column, value);
        if (taken)
            feed->RowsChanged(row, row);
    }
    if (!watch.IsThere())
        return true;
    if (taken)
    {
        NoteValue(state.model.FocusRow() == row ? state.model.FocusPosition() : state.model.PositionOf(row),
                  editing->column);
    }
    editing->taking = false;
    // The host may have ended it, or opened another.
    if (state.editing != editing)
        return state.editing == nullptr;
    if (taken)
    {
        CloseEdit();
        if (watch.IsAlive())
            UpdateNow();
        return true;
    }
    RefuseEdit(editing, refused, row);
    return !watch.IsThere() || state.editing == nullptr;
}

/// The edit stays, and the user learns why; without its row it goes.
void CXTableCtrl::RefuseEdit(std::shared_ptr<TableEditing> const & editing, TableRefused const & refused, TableRow row)
{
    Watch const watch(*this);
    bool const stays = refused.refusal != TableRefusal::no_such_row && refused.refusal != TableRefusal::not_editable;
    if (stays)
        editing->window->StayOpen();
    else
        CloseEdit();
    if (!watch.IsThere())
        return;
    std::wstring reason = refused.reason;
    auto const callback = m_onEditRefused;
    if (callback)
        reason = callback(row, editing->column, refused);
    if (watch.IsThere() && m_state->editing == editing)
        ShowReason(reason.empty() ? OwnReason(refused, m_state->Column(editing->column)) : std::move(reason));
}

void CXTableCtrl::ShowReason(std::wstring reason)
{
    TableEditing & editing = *m_state->editing;
    if (reason.empty())
    {
        ::MessageBeep(MB_OK);
        return;
    }
    if (m_hWnd == nullptr || editing.window->m_hWnd == nullptr)
        return;
    if (editing.reason.m_hWnd == nullptr)
    {
        if (!editing.reason.Create(this, TTS_ALWAYSTIP | TTS_NOPREFIX))
            return;
        editing.reason.SetMaxTipWidth(m_state->Scaled(reason_width));
        TTTOOLINFOW tool = ReasonTool(*editing.window, reason.data());
        editing.reason.SendMessage(TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    }
    TTTOOLINFOW tool = ReasonTool(*editing.window, reason.data());
    editing.reason.SendMessage(TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
    editing.reasonShown = true;
    PlaceReason();
    editing.reason.SendMessage(TTM_TRACKACTIVATE, TRUE, reinterpret_cast<LPARAM>(&tool));
}

void CXTableCtrl::PlaceReason()
{
    TableEditing & editing = *m_state->editing;
    if (!editing.reasonShown || editing.reason.m_hWnd == nullptr)
        return;
    CRect place;
    editing.window->GetWindowRect(&place);
    editing.reason.SendMessage(TTM_TRACKPOSITION, 0, MAKELPARAM(place.left, place.bottom + m_state->Scaled(2)));
}

// As soon as the text is another one.
void CXTableCtrl::HideReason()
{
    if (!m_state->editing || !std::exchange(m_state->editing->reasonShown, false))
        return;
    TTTOOLINFOW tool = ReasonTool(*m_state->editing->window, nullptr);
    m_state->editing->reason.SendMessage(TTM_TRACKACTIVATE, FALSE, reinterpret_cast<LPARAM>(&tool));
}

// Without a look at its text. The table may be gone.
void CXTableCtrl::CloseEdit()
{
    std::shared_ptr<TableEditing> const editing = std::exchange(m_state->editing, nullptr);
    if (!editing)
        return;
    editing->window->SetClosing();
    // The keyboard stays with the table. The host hears of that, and may end both.
    if (m_hWnd != nullptr && editing->window->m_hWnd != nullptr && ::GetFocus() == editing->window->m_hWnd)
        SetFocus();
    // Whoever takes its text still has it, but no window.
    editing->window->Close();
    if (editing->reason.m_hWnd != nullptr)
        editing->reason.DestroyWindow();
}

/// After what is going on now.
void CXTableCtrl::WishEditPlace()
{
    if (m_state->editing && m_hWnd != nullptr && !std::exchange(m_state->editing->placeWaits, true))
        PostMessage(Waker::WakeMessage(), Waker::place_edit, 0);
}

// The edit follows its cell. Where that is shown no more, it ends.
void CXTableCtrl::PlaceEdit()
{
    std::shared_ptr<State> const kept = m_state;
    State & state = *kept;
    std::shared_ptr<TableEditing> const editing = state.editing;
    if (!editing)
        return;
    editing->placeWaits = false;
    if (state.painting != 0 || editing->taking)
        return;
    std::shared_ptr<TableSource> const source = editing->source.lock();
    TableRow const row = source && source == state.model.Source() ? source->RowOfKey(editing->key) : no_table_row;
    TableRow const position = row == no_table_row ? TableModel::nowhere : state.model.PositionOf(row);
    CRect place;
    Watch const watch(*this);
    bool const placed = position != TableModel::nowhere && editing->window->m_hWnd != nullptr &&
                        CellRect(position, editing->column, place);
    // Measuring a row, the native list may ask for it, of which the host hears.
    if (!watch.IsAlive() || state.editing != editing)
        return;
    if (!placed || editing->window->m_hWnd == nullptr)
    {
        if (!TakeEdit() && watch.IsThere())
            CloseEdit();
        return;
    }
    TableRow const top = TopPosition();
    bool const seen = position >= top && position - top <= PageRows();
    place.left += state.Scaled(edit_left);
    place.right = std::max(place.right - state.Scaled(edit_right) + state.Scaled(edit_left), place.left + 1);
    if (!seen)
        place.OffsetRect(0, out_of_sight);
    CRect former;
    editing->window->GetWindowRect(&former);
    ScreenToClient(&former);
    if (former == place)
        return;
    editing->window->MoveWindow(&place);
    // The frame that it had around it.
    former.InflateRect(state.Scaled(2), state.Scaled(2), state.Scaled(4), state.Scaled(2));
    RedrawWindow(&former, nullptr, RDW_INVALIDATE | RDW_NOCHILDREN);
    PlaceReason();
}

void CXTableCtrl::EditNext(TableKey key, unsigned int column, bool forth)
{
    State & state = *m_state;
    std::shared_ptr<TableSource> const source = state.model.Source();
    TableRow position = source ? state.model.PositionOf(source->RowOfKey(key)) : TableModel::nowhere;
    auto const present = std::find(state.shown.begin(), state.shown.end(), column);
    if (position == TableModel::nowhere || present == state.shown.end())
        return;
    auto const count = static_cast<int>(state.shown.size());
    int place = static_cast<int>(present - state.shown.begin());
    // One row on at most: each has the same columns.
    for (int i = 0; i < count; ++i)
    {
        place += forth ? 1 : -1;
        if (place < 0 || place == count)
        {
            if (forth ? position + 1 >= state.model.Size() : position == 0)
                return;
            position += forth ? 1 : static_cast<TableRow>(-1);
            place = forth ? 0 : count - 1;
        }
        if (IsTyped(state.shown[static_cast<std::size_t>(place)]))
        {
            OpenEdit(state.model.RowAt(position), state.shown[static_cast<std::size_t>(place)], nullptr);
            return;
        }
    }
}

LRESULT CXTableCtrl::OnEditEnds(WPARAM, LPARAM)
{
    std::shared_ptr<TableEditing> const editing = m_state->editing;
    if (!editing)
        return 0;
    // Losing the focus leads nowhere.
    bool const byKey = editing->window->m_hWnd != nullptr && ::GetFocus() == editing->window->m_hWnd;
    CXTableEdit::Way const way = byKey ? editing->window->LastWay() : CXTableEdit::Way::stay;
    Watch const watch(*this);
    if (TakeEdit() && watch.IsAlive() && way != CXTableEdit::Way::stay)
        EditNext(editing->key, editing->column, way == CXTableEdit::Way::forth);
    return 0;
}

LRESULT CXTableCtrl::OnEditLeft(WPARAM, LPARAM)
{
    CloseEdit();
    return 0;
}
