#include <algorithm>
#include <utility>

#include "frame/GraphicsScopes.h"
#include "frame/PreferenceStore.h"
#include "layout/WindowDpi.h"
#include "list/table/TableHeaderPaint.h"
#include "list/table/ValueCell.h"
#include "list/table/XTableCtrlState.h"

namespace
{
constexpr UINT frozen_header_id = 0x7A10;
constexpr int dots_of_widths = 96;
/// What is kept of a column, by its index under the column's key.
constexpr std::size_t place_index = 0;
constexpr std::size_t width_index = 1;
constexpr std::size_t hidden_index = 2;
constexpr int no_value = -1;

int FormatOf(TableColumn const & column)
{
    switch (AlignmentOf(column, column.kind))
    {
    case CellAlign::left:
        break;
    case CellAlign::centre:
        return HDF_CENTER;
    case CellAlign::right:
        return HDF_RIGHT;
    }
    return HDF_LEFT;
}

std::wstring KeyOf(std::wstring const & table, TableColumn const & column)
{
    return table + L'/' + NameOf(column);
}
} // namespace

void CXTableCtrl::PrepareWindow()
{
    State & state = *m_state;
    if (state.prepared || m_hWnd == nullptr || Titles() == nullptr)
        return;
    state.prepared = true;
    state.waker->SetWindow(m_hWnd);
    Watch const watch(*this);
    if (state.followsDpi)
        SetDpi(window_dpi::Of(m_hWnd));
    auto const mayGoOn = [&] { return watch.IsAlive() && state.prepared; };
    // What is typed into stays as it is while rows are painted.
    ModifyStyle(0, WS_CLIPCHILDREN);
    if (!mayGoOn())
        return;
    constexpr LPARAM styles = LVS_EX_FULLROWSELECT | LVS_EX_HEADERDRAGDROP;
    AskNative(LVM_SETEXTENDEDLISTVIEWSTYLE, styles, styles);
    state.frozenHeader.Create(WS_CHILD | WS_CLIPSIBLINGS | HDS_HORZ | HDS_BUTTONS | CCS_NOPARENTALIGN,
                              CRect(0, 0, 0, 0), this, frozen_header_id);
    if (!mayGoOn())
        return;
    state.frozenHeader.SendMessage(WM_SETFONT, static_cast<WPARAM>(AskNative(WM_GETFONT)), FALSE);
    MakeNativeColumns();
    if (!mayGoOn())
        return;
    SetNativeCount();
    // What was told while there was no window.
    state.waker->Wake();
    if (mayGoOn() && state.model.NeedsOrder())
        WishOrder();
}

// The native list has the columns shown, in their order, so that its own order is none.
void CXTableCtrl::MakeNativeColumns()
{
    State & state = *m_state;
    if (MustWait())
        return;
    state.shown = state.layout.Shown();
    if (!state.prepared)
        return;
    Watch const watch(*this);
    KeepRowHeight();
    ++state.making;
    AskNative(WM_SETREDRAW, FALSE);
    CHeaderCtrl & header = *Titles();
    int const dots = ColumnDots();
    for (int count = header.GetItemCount(); count > static_cast<int>(state.shown.size()); --count)
        AskNative(LVM_DELETECOLUMN, static_cast<WPARAM>(count) - 1);
    // The host hears of each, and may have other columns made meanwhile.
    for (std::size_t i = 0; watch.IsAlive() && i < state.shown.size(); ++i)
    {
        TableColumn const * const described = state.Column(state.shown[i]);
        if (described == nullptr)
            break;
        std::wstring title = TitleOf(*described);
        LVCOLUMNW column = {};
        column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT;
        column.fmt = FormatOf(*described) & LVCFMT_JUSTIFYMASK;
        column.cx = ::MulDiv(state.layout.Width(state.shown[i]), dots, dots_of_widths);
        column.pszText = title.data();
        bool const there = static_cast<int>(i) < header.GetItemCount();
        AskNative(there ? LVM_SETCOLUMNW : LVM_INSERTCOLUMNW, i, reinterpret_cast<LPARAM>(&column));
    }
    if (!watch.IsThere())
        return;
    --state.making;
    if (!watch.IsAlive())
        return;
    AskNative(WM_SETREDRAW, TRUE);
    ShowSortMarks();
    if (!watch.IsAlive())
        return;
    Invalidate(FALSE);
    header.Invalidate(FALSE);
    NoteOrder();
    WishEditPlace();
}

bool CXTableCtrl::MustWait()
{
    if (m_state->native == 0)
        return false;
    m_state->nativeWaits = true;
    return true;
}

void CXTableCtrl::FollowNatively()
{
    if (MustWait())
        return;
    m_state->nativeWaits = false;
    Watch const watch(*this);
    MakeNativeColumns();
    if (watch.IsThere())
        SetNativeCount();
    if (watch.IsThere())
        RepaintRows();
}

void CXTableCtrl::ShowSortMarks()
{
    State & state = *m_state;
    if (!state.prepared)
        return;
    Watch const watch(*this);
    ++state.making;
    CHeaderCtrl & header = *Titles();
    for (std::size_t i = 0; i < state.shown.size(); ++i)
    {
        // Columns that are about to be made anew.
        if (state.Column(state.shown[i]) == nullptr)
            continue;
        HDITEMW item = {};
        item.mask = HDI_FORMAT;
        header.GetItem(static_cast<int>(i), &item);
        int const former = item.fmt;
        item.fmt &= ~(HDF_SORTUP | HDF_SORTDOWN | HDF_JUSTIFYMASK);
        item.fmt |= FormatOf(*state.Column(state.shown[i]));
        for (TableSortColumn const & each : state.model.Sort())
        {
            if (each.column == state.shown[i])
                item.fmt |= each.descending ? HDF_SORTDOWN : HDF_SORTUP;
        }
        if (item.fmt == former)
            continue;
        header.SetItem(static_cast<int>(i), &item);
        if (!watch.IsThere())
            return;
        if (!watch.IsAlive())
            break;
    }
    --state.making;
    PlaceFrozenHeader();
}

// The titles of the columns that stand still lie over the native header, which is scrolled.
void CXTableCtrl::PlaceFrozenHeader()
{
    State & state = *m_state;
    CHeaderCtrl & over = state.frozenHeader;
    if (!state.prepared || over.m_hWnd == nullptr)
        return;
    unsigned int const frozen = state.layout.Frozen();
    if (frozen == 0 && over.GetItemCount() == 0)
        return;
    CHeaderCtrl & header = *Titles();
    Watch const watch(*this);
    ++state.making;
    for (int count = over.GetItemCount(); count > static_cast<int>(frozen); --count)
        over.DeleteItem(count - 1);
    int width = 0;
    for (unsigned int i = 0; i < frozen; ++i)
    {
        wchar_t title[256] = {};
        HDITEMW item = {};
        item.mask = HDI_TEXT | HDI_WIDTH | HDI_FORMAT;
        item.pszText = title;
        item.cchTextMax = static_cast<int>(std::size(title));
        header.GetItem(static_cast<int>(i), &item);
        width += item.cxy;
        if (static_cast<int>(i) < over.GetItemCount())
            over.SetItem(static_cast<int>(i), &item);
        else
            over.InsertItem(static_cast<int>(i), &item);
        if (!watch.IsThere())
            return;
        if (!watch.IsAlive() || over.m_hWnd == nullptr)
        {
            --state.making;
            return;
        }
    }
    CRect place(0, 0, 0, 0);
    header.GetWindowRect(&place);
    ScreenToClient(&place);
    over.SetWindowPos(&CWnd::wndTop, 0, place.top, width, place.Height(),
                      SWP_NOACTIVATE | (frozen != 0 ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
    if (watch.IsThere())
        --state.making;
}

void CXTableCtrl::SetFrozenColumns(unsigned int count)
{
    m_state->layout.SetFrozen(count);
    Watch const watch(*this);
    PlaceFrozenHeader();
    if (watch.IsThere())
        RepaintRows();
}

void CXTableCtrl::LoadColumns()
{
    State & state = *m_state;
    CResourceVesk * const store = CVeskBase::PreferenceVesk();
    if (store == nullptr || state.name.empty())
        return;
    state.layout.Restore([&state, store](unsigned int column) -> std::optional<StoredTableColumn> {
        std::wstring const key = KeyOf(state.name, *state.Column(column));
        StoredTableColumn stored;
        stored.width = store->LookupGetInt(key.c_str(), width_index, no_value);
        if (stored.width == no_value)
            return std::nullopt;
        stored.place = store->LookupGetInt(key.c_str(), place_index, 0);
        stored.hidden = store->LookupGetInt(key.c_str(), hidden_index, 0) != 0;
        return stored;
    });
}

void CXTableCtrl::StoreColumn(unsigned int column)
{
    State & state = *m_state;
    CResourceVesk * const store = CVeskBase::PreferenceVesk();
    if (store == nullptr || state.name.empty() || state.Column(column) == nullptr)
        return;
    std::wstring const key = KeyOf(state.name, *state.Column(column));
    StoredTableColumn const stored = state.layout.Stored(column);
    store->LookupSetInt(key.c_str(), stored.place, place_index);
    store->LookupSetInt(key.c_str(), stored.width, width_index);
    store->LookupSetInt(key.c_str(), stored.hidden ? 1 : 0, hidden_index);
}

void CXTableCtrl::StoreColumns()
{
    for (unsigned int column = 0; column < m_state->layout.Count(); ++column)
        StoreColumn(column);
}

std::vector<unsigned int> CXTableCtrl::ShownColumns() const
{
    return m_state->layout.Shown();
}

bool CXTableCtrl::HideTableColumn(unsigned int column, bool hidden)
{
    if (!m_state->layout.Hide(column, hidden))
        return false;
    Watch const watch(*this);
    MakeNativeColumns();
    if (watch.IsThere())
        StoreColumn(column);
    return true;
}

void CXTableCtrl::MoveTableColumn(unsigned int column, unsigned int place)
{
    m_state->layout.Move(column, place);
    Watch const watch(*this);
    MakeNativeColumns();
    if (watch.IsThere())
        StoreColumns();
}

// A second click on a title is one like the first; on a divider it stays a double click.
BOOL CXTableCtrl::PreTranslateMessage(MSG * message)
{
    CHeaderCtrl * const native = Titles();
    if (message->message == WM_LBUTTONDBLCLK && native != nullptr &&
        (message->hwnd == native->m_hWnd || message->hwnd == m_state->frozenHeader.m_hWnd))
    {
        HDHITTESTINFO hit = {};
        hit.pt = CPoint(message->lParam);
        ::SendMessageW(message->hwnd, HDM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
        if (hit.flags == HHT_ONHEADER)
            message->message = WM_LBUTTONDOWN;
    }
    return CListCtrl::PreTranslateMessage(message);
}

BOOL CXTableCtrl::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT * result)
{
    auto const & header = *reinterpret_cast<NMHDR const *>(lParam);
    CHeaderCtrl * const native = Titles();
    if (native != nullptr && (header.hwndFrom == native->m_hWnd || header.hwndFrom == m_state->frozenHeader.m_hWnd))
    {
        Watch const watch(*this);
        ++m_state->native;
        bool const done = OnHeaderNotify(header, result);
        if (!watch.IsThere())
            return TRUE;
        EndNative();
        if (done)
            return TRUE;
    }
    return CListCtrl::OnNotify(wParam, lParam, result);
}

/// True where the native list need not hear of it.
bool CXTableCtrl::OnHeaderNotify(NMHDR const & header, LRESULT * result)
{
    State & state = *m_state;
    bool const frozen = header.hwndFrom == state.frozenHeader.m_hWnd;
    auto const & change = reinterpret_cast<NMHEADERW const &>(header);
    auto const columnOf = [&state](int item) {
        return item >= 0 && static_cast<std::size_t>(item) < state.shown.size()
                   ? state.shown[static_cast<std::size_t>(item)]
                   : TableFilter::any_column;
    };
    *result = 0;
    switch (header.code)
    {
    case HDN_ITEMCLICKW:
    case HDN_ITEMCLICKA:
    case HDN_BEGINTRACKW:
    case HDN_BEGINTRACKA:
    case HDN_BEGINDRAG:
    case NM_RCLICK: {
        // The user leaves the cell, unless its text is refused.
        Watch const watch(*this);
        if (!TakeEdit() || !watch.IsAlive())
        {
            *result = TRUE;
            return true;
        }
        break;
    }
    default:
        break;
    }
    switch (header.code)
    {
    case HDN_ITEMCLICKW:
    case HDN_ITEMCLICKA: {
        unsigned int const column = columnOf(change.iItem);
        if (column == TableFilter::any_column || change.iButton != 0)
            return true;
        state.model.ClickTitle(column, ::GetKeyState(VK_SHIFT) < 0);
        Watch const watch(*this);
        ShowSortMarks();
        if (watch.IsThere())
            WishOrder();
        return true;
    }
    case HDN_ITEMCHANGEDW:
    case HDN_ITEMCHANGEDA: {
        if (state.making != 0 || change.pitem == nullptr || (change.pitem->mask & HDI_WIDTH) == 0)
            return frozen;
        unsigned int const column = columnOf(change.iItem);
        if (column == TableFilter::any_column)
            return frozen;
        if (frozen)
        {
            // The native column follows, and tells of it in its turn.
            AskNative(LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(change.iItem), MAKELPARAM(change.pitem->cxy, 0));
            return true;
        }
        state.layout.SetWidth(column, ::MulDiv(change.pitem->cxy, dots_of_widths, ColumnDots()));
        StoreColumn(column);
        if (static_cast<unsigned int>(change.iItem) < state.layout.Frozen())
            PostMessage(Waker::WakeMessage(), Waker::follow_natively, 0);
        return false;
    }
    case HDN_DIVIDERDBLCLICKW:
    case HDN_DIVIDERDBLCLICKA:
        // Native lists may ask for every row.
        FitColumn(static_cast<unsigned int>(std::max(change.iItem, 0)));
        return true;
    case HDN_ENDDRAG:
        // The order is the table's own: the native one stays as it is.
        if (change.pitem != nullptr && (change.pitem->mask & HDI_ORDER) != 0 && change.pitem->iOrder >= 0)
        {
            unsigned int const column = columnOf(change.iItem);
            if (column != TableFilter::any_column)
            {
                state.layout.Move(column, static_cast<unsigned int>(change.pitem->iOrder));
                StoreColumns();
                PostMessage(Waker::WakeMessage(), Waker::follow_natively, 0);
            }
        }
        *result = TRUE;
        return true;
    case NM_RCLICK: {
        CPoint point;
        ::GetCursorPos(&point);
        // The rows' menu is another one.
        *result = TRUE;
        ShowColumnMenu(point);
        return true;
    }
    case NM_CUSTOMDRAW: {
        auto const & draw = reinterpret_cast<NMCUSTOMDRAW const &>(header);
        LRESULT own = 0;
        bool const painted = PaintTableHeader(draw, own);
        bool const answered = DrawHeaderProgress(draw, result) || painted;
        *result |= own;
        return answered || frozen;
    }
    default:
        return frozen;
    }
}

// Columns whose cells are no texts keep their width for the title's sake alone.
void CXTableCtrl::FitColumn(unsigned int place)
{
    State & state = *m_state;
    TableColumn const * const described = place < state.shown.size() ? state.Column(state.shown[place]) : nullptr;
    if (described == nullptr)
        return;
    // In pixels at 96 to the inch: beside a text, and beside a title with its mark.
    constexpr int beside_text = 14;
    constexpr int beside_title = 28;
    int const dots = ColumnDots();
    CClientDC dc(this);
    auto * const font = reinterpret_cast<HGDIOBJ>(AskNative(WM_GETFONT));
    int widest = 0;
    {
        SelectScope const selected(dc, font);
        auto const widthOf = [&dc](std::wstring const & text, std::size_t from, std::size_t end) {
            CSize size(0, 0);
            ::GetTextExtentPoint32W(dc.m_hDC, text.c_str() + from, static_cast<int>(end - from), &size);
            return static_cast<int>(size.cx);
        };
        std::wstring const title = TitleOf(*described);
        widest = widthOf(title, 0, title.size()) + ::MulDiv(beside_title, dots, dots_of_widths);
        // Numbers stand below each other by their sign.
        int ahead = 0;
        int behind = 0;
        TableRow const top = TopPosition();
        TableRow const end = std::min(top + PageRows() + 1, state.model.Size());
        TableValue value;
        std::wstring text;
        for (TableRow position = top; position < end; ++position)
        {
            state.model.Read(position, state.shown[place], value);
            std::size_t const sign = ShowValue(text, value, *described, state.model.Looks().locale);
            ahead = std::max(ahead, widthOf(text, 0, sign));
            behind = std::max(behind, widthOf(text, sign, text.size()));
        }
        widest = std::max(widest, ahead + behind + ::MulDiv(beside_text, dots, dots_of_widths));
    }
    AskNative(LVM_SETCOLUMNWIDTH, place, MAKELPARAM(widest, 0));
}

/// While rows are put in order or written to a file, a bar at the header's lower edge says how far it is.
bool CXTableCtrl::DrawHeaderProgress(NMCUSTOMDRAW const & draw, LRESULT * result)
{
    constexpr int bar_height = 3;
    State const & state = *m_state;
    if (!state.task && !state.exporting)
        return false;
    int const done = state.task ? OrderProgress() : ExportProgress();
    if (draw.dwDrawStage == CDDS_PREPAINT)
    {
        *result = CDRF_NOTIFYPOSTPAINT;
        return true;
    }
    if (draw.dwDrawStage != CDDS_POSTPAINT)
        return false;
    CRect client;
    GetClientRect(&client);
    CRect bar;
    ::GetClientRect(draw.hdr.hwndFrom, &bar);
    CPoint origin(0, 0);
    ::MapWindowPoints(m_hWnd, draw.hdr.hwndFrom, &origin, 1);
    bar.left = origin.x;
    bar.right = origin.x + ::MulDiv(client.Width(), done, 1000);
    bar.top = bar.bottom - state.Scaled(bar_height);
    CDC & dc = *CDC::FromHandle(draw.hdc);
    COLORREF const former = dc.GetBkColor();
    dc.FillSolidRect(bar, state.look.palette.headerBar);
    dc.SetBkColor(former);
    *result = CDRF_DODEFAULT;
    return true;
}

void CXTableCtrl::ShowColumnMenu(CPoint screen)
{
    State & state = *m_state;
    CMenu menu;
    if (!menu.CreatePopupMenu())
        return;
    std::vector<unsigned int> const order = state.layout.Order();
    bool const last = state.layout.Shown().size() == 1;
    for (unsigned int const column : order)
    {
        bool const hidden = state.layout.IsHidden(column);
        UINT const flags =
            MF_STRING | (hidden ? MF_UNCHECKED : MF_CHECKED) | (!hidden && last ? MF_GRAYED : MF_ENABLED);
        std::wstring title = TitleOf(*state.Column(column));
        // An ampersand is one here.
        for (std::size_t at = title.find(L'&'); at != std::wstring::npos; at = title.find(L'&', at + 2))
            title.insert(at, 1, L'&');
        menu.AppendMenu(flags, static_cast<UINT_PTR>(column) + 1, title.c_str());
    }
    Watch const watch(*this);
    auto const command = static_cast<unsigned int>(
        menu.TrackPopupMenu(TPM_RETURNCMD | TPM_NONOTIFY | TPM_RIGHTBUTTON, screen.x, screen.y, this));
    if (!watch.IsThere() || command == 0 || command > m_state->layout.Count())
        return;
    HideTableColumn(command - 1, !m_state->layout.IsHidden(command - 1));
}

void CXTableCtrl::OnSize(UINT type, int width, int height)
{
    Watch const watch(*this);
    CListCtrl::OnSize(type, width, height);
    if (watch.IsThere())
        PlaceFrozenHeader();
}
