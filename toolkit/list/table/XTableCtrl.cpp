#include <thread>
#include <utility>

#include "frame/InternalMessages.h"
#include "layout/WindowDpi.h"
#include "list/table/XTableCtrlState.h"

IMPLEMENT_DYNAMIC(CXTableCtrl, CListCtrl)

BEGIN_MESSAGE_MAP(CXTableCtrl, CListCtrl)
    ON_NOTIFY_REFLECT_EX(NM_CUSTOMDRAW, &CXTableCtrl::OnCustomDraw)
    ON_NOTIFY_REFLECT_EX(LVN_GETDISPINFOW, &CXTableCtrl::OnGetDispInfo)
    ON_NOTIFY_REFLECT_EX(LVN_ODFINDITEMW, &CXTableCtrl::OnFindItem)
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_RBUTTONDOWN()
    ON_WM_RBUTTONUP()
    ON_WM_KEYDOWN()
    ON_WM_CHAR()
    ON_WM_SIZE()
    ON_WM_TIMER()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_SETTINGCHANGE()
    ON_WM_DESTROY()
    ON_REGISTERED_MESSAGE(WM_XEDIT_KILL_FOCUS, &CXTableCtrl::OnEditEnds)
    ON_REGISTERED_MESSAGE(WM_XEDIT_VK_ESCAPE, &CXTableCtrl::OnEditLeft)
END_MESSAGE_MAP()

namespace
{
TableLocale SystemLocale()
{
    TableLocale locale;
    wchar_t sign[8] = {};
    if (::GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, sign, static_cast<int>(std::size(sign))) > 0)
        locale.decimalSign = sign[0];
    return locale;
}

/// Has the module stay as long as the process: a thread may run in it longer than any of its objects.
bool PinModule()
{
    HMODULE module = nullptr;
    return ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                                reinterpret_cast<wchar_t const *>(&PinModule), &module) != FALSE;
}
} // namespace

void table_threads::Run(std::function<void()> work)
{
    static bool const pinned = PinModule();
    static_cast<void>(pinned);
    std::thread(std::move(work)).detach();
}

CXTableCtrl::CXTableCtrl() : m_state(std::make_shared<State>())
{
    m_state->look.palette = control_colors::Of(ControlColorSet::standard);
    TableLooks looks;
    looks.locale = SystemLocale();
    m_state->model.SetLooks(std::move(looks));
}

CXTableCtrl::~CXTableCtrl()
{
    m_state->waker->SetWindow(nullptr);
    if (m_state->task)
        m_state->task->Progress().Stop();
    if (m_state->exporting)
        m_state->exporting->progress.Stop();
    DestroyWindow();
}

BOOL CXTableCtrl::Create(DWORD style, RECT const & rect, CWnd * parent, UINT id)
{
    constexpr DWORD types = LVS_TYPEMASK;
    return CListCtrl::Create((style & ~types) | LVS_REPORT | LVS_OWNERDATA, rect, parent, id);
}

void CXTableCtrl::PreSubclassWindow()
{
    CListCtrl::PreSubclassWindow();
    // A list without owner data would keep rows, and ask for none of these.
    ASSERT((GetStyle() & LVS_OWNERDATA) != 0);
    // The window that is being created here is no list yet; it is prepared with its first message.
    if (Titles() != nullptr)
        PrepareWindow();
}

void CXTableCtrl::OnDestroy()
{
    m_state->waker->SetWindow(nullptr);
    m_state->prepared = false;
    // What the native list has of the table's ends with the table.
    m_state->rowHeight.Take(
        [this](UINT message, WPARAM wParam, LPARAM lParam) { return AskNative(message, wParam, lParam); });
    // Its text may be being taken, so that others still hold it.
    if (std::shared_ptr<TableEditing> const editing = std::exchange(m_state->editing, nullptr))
        editing->window->Close();
    m_state->news = {};
    StopOrdering();
    CListCtrl::OnDestroy();
}

void CXTableCtrl::SetColumns(std::vector<TableColumn> columns, std::wstring const & name)
{
    Watch const watch(*this);
    CloseEdit();
    if (!watch.IsThere())
        return;
    TableLooks looks;
    looks.columns = std::move(columns);
    looks.locale = m_state->model.Looks().locale;
    m_state->name = name;
    m_state->focusColumn = State::no_column;
    m_state->model.SetLooks(std::move(looks));
    m_state->layout.Reset(m_state->model.Looks().columns);
    LoadColumns();
    PrepareWindow();
    if (watch.IsThere())
        MakeNativeColumns();
}

void CXTableCtrl::SetSource(std::shared_ptr<TableSource> const & source)
{
    Watch const watch(*this);
    CloseEdit();
    if (!watch.IsThere())
        return;
    // What was told of the former one is of no interest.
    m_state->feed->Take();
    m_state->model.SetSource(source);
    NoteOrder();
    SetNativeCount();
    if (watch.IsAlive() && RowsShown() != 0 && m_state->painting == 0)
        BringIntoView(0);
    if (watch.IsThere())
        WishOrder();
    if (watch.IsThere())
        RepaintRows();
}

void CXTableCtrl::SetTableLocale(TableLocale locale)
{
    TableLooks looks = m_state->model.Looks();
    looks.locale = std::move(locale);
    m_state->ownLocale = true;
    m_state->model.SetLooks(std::move(looks));
    Watch const watch(*this);
    WishOrder();
    if (watch.IsThere())
        RepaintRows();
}

void CXTableCtrl::OnSettingChange(UINT flags, LPCTSTR section)
{
    Watch const watch(*this);
    CListCtrl::OnSettingChange(flags, section);
    if (!watch.IsThere() || m_state->ownLocale)
        return;
    SetTableLocale(SystemLocale());
    if (watch.IsThere())
        m_state->ownLocale = false;
}

std::shared_ptr<TableFeed> const & CXTableCtrl::Feed() const
{
    return m_state->feed;
}

void CXTableCtrl::SortBy(std::vector<TableSortColumn> columns)
{
    m_state->model.SetSort(std::move(columns));
    Watch const watch(*this);
    ShowSortMarks();
    if (watch.IsThere())
        WishOrder();
}

std::vector<TableSortColumn> const & CXTableCtrl::SortColumns() const
{
    return m_state->model.Sort();
}

void CXTableCtrl::SetRowFilter(TableFilter filter)
{
    m_state->model.SetFilter(std::move(filter));
    WishOrder();
}

bool CXTableCtrl::IsOrdering() const
{
    return m_state->task != nullptr;
}

int CXTableCtrl::OrderProgress() const
{
    return m_state->task ? m_state->task->Progress().Done() : 1000;
}

TableRow CXTableCtrl::RowsShown() const
{
    return m_state->model.Size();
}

TableRow CXTableCtrl::RowAt(TableRow position) const
{
    return m_state->model.RowAt(position);
}

TableRow CXTableCtrl::PositionOf(TableRow row) const
{
    return m_state->model.PositionOf(row);
}

std::vector<TableRow> CXTableCtrl::SelectedRows() const
{
    std::vector<TableRow> rows = m_state->model.SelectedPositions();
    for (TableRow & each : rows)
        each = m_state->model.RowAt(each);
    return rows;
}

bool CXTableCtrl::IsRowSelected(TableRow row) const
{
    return m_state->model.IsRowSelected(row);
}

TableRow CXTableCtrl::FocusRow() const
{
    return m_state->model.FocusRow();
}

bool CXTableCtrl::GoToRow(TableRow row)
{
    TableRow const position = m_state->model.PositionOf(row);
    if (position == TableModel::nowhere)
        return false;
    table_input::Go(m_state->model, position, false, false);
    NoteSelection(position);
    NoteFocus();
    Watch const watch(*this);
    if (m_hWnd != nullptr && m_state->painting == 0)
        BringIntoView(position);
    if (watch.IsThere())
        AfterSelection(false);
    return true;
}

void CXTableCtrl::SelectAllRows()
{
    m_state->model.SelectAll();
    NoteSelection(TableModel::nowhere);
    AfterSelection(false);
}

std::wstring CXTableCtrl::ShownText(TableRow row, unsigned int column) const
{
    std::wstring text;
    TableValue value;
    TableColumn const * const shown = m_state->Column(column);
    std::shared_ptr<TableSource> const source = m_state->model.Source();
    if (shown != nullptr && source && source->Read(row, column, value))
        ShowValue(text, value, *shown, m_state->model.Looks().locale);
    return text;
}

unsigned long long CXTableCtrl::Repaints() const
{
    return m_state->repaints;
}

LRESULT CXTableCtrl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == Waker::WakeMessage())
    {
        switch (wParam)
        {
        case Waker::told:
            OnWoken();
            break;
        case Waker::place_edit:
            PlaceEdit();
            break;
        case Waker::tell_news:
            TellNews();
            break;
        default:
            FollowNatively();
            break;
        }
        return 0;
    }
    LRESULT result = 0;
    if (AnswerState(message, wParam, lParam, result))
        return result;
    Watch const watch(*this);
    switch (message)
    {
    case WM_VSCROLL:
    case WM_HSCROLL:
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL:
        // The user leaves the cell, unless its text is refused.
        if (!TakeEdit() || !watch.IsAlive())
            return 0;
        break;
    case WM_CONTEXTMENU:
        if (lParam == -1)
        {
            // By the keyboard: at the cell with the focus.
            CPoint const place = MenuPlace();
            if (!watch.IsAlive())
                return 0;
            lParam = MAKELPARAM(place.x, place.y);
        }
        break;
    case WM_COMMAND:
        if (HIWORD(wParam) == EN_CHANGE)
            HideReason();
        break;
    case LVM_SETCOLUMNWIDTH:
        // LVSCW_AUTOSIZE and the like.
        if (static_cast<short>(LOWORD(lParam)) < 0)
        {
            FitColumn(static_cast<unsigned int>(wParam));
            return TRUE;
        }
        break;
    case LVM_DELETECOLUMN:
        if (MustWait())
            return FALSE;
        break;
    case LVM_INSERTCOLUMNA:
    case LVM_INSERTCOLUMNW:
        if (MustWait())
            return -1;
        break;
    default:
        break;
    }
    result = CListCtrl::WindowProc(message, wParam, lParam);
    if (!watch.IsAlive())
        return result;
    switch (message)
    {
    case WM_CREATE:
        PrepareWindow();
        break;
    case WM_GETDLGCODE:
        result |= WantedKeys(wParam);
        break;
    case WM_HSCROLL:
    case WM_MOUSEHWHEEL:
    case LVM_SCROLL:
        // What stands still was moved along with the rest.
        if (m_state->layout.Frozen() != 0)
            RepaintRows();
        WishEditPlace();
        break;
    case LVM_DELETECOLUMN:
    case LVM_INSERTCOLUMNA:
    case LVM_INSERTCOLUMNW:
        // The table's columns are no others for that.
        PostMessage(Waker::WakeMessage(), Waker::follow_natively, 0);
        break;
    case LVM_ENSUREVISIBLE:
    case LVM_SETCOLUMNWIDTH:
    case WM_SIZE:
    case WM_SETFONT:
        WishEditPlace();
        break;
    default:
        if (m_state->followsDpi && window_dpi::IsTold(message))
            SetDpi(window_dpi::Of(m_hWnd));
        break;
    }
    return result;
}
