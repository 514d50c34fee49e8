#include <algorithm>
#include <utility>

#include "list/table/XTableCtrlState.h"

/// Where the user looks.
struct CXTableCtrl::View
{
    bool atEnd = false;
    bool focusSeen = false;
};

UINT CXTableCtrl::Waker::WakeMessage()
{
    static UINT const message = ::RegisterWindowMessageW(L"WM_XTABLECTRL_WAKE");
    return message;
}

void CXTableCtrl::OnWoken()
{
    Watch const watch(*this);
    if (m_state->task && m_state->task->Finished())
        TakeOrder();
    if (!watch.IsAlive())
        return;
    if (m_state->exporting && m_state->exporting->finished.load(std::memory_order_acquire))
    {
        bool const whole = std::exchange(m_state->exporting, nullptr)->whole.load();
        ShowProgress();
        auto const callback = m_onExportEnd;
        if (callback)
            callback(whole);
        if (!watch.IsAlive())
            return;
    }
    if (m_state->repaintWaits)
        return;
    auto const now = static_cast<long long>(::GetTickCount64());
    long long const wait = m_state->pace.Wait(now);
    if (wait == 0)
    {
        Follow(false);
        return;
    }
    m_state->repaintWaits = true;
    SetTimer(table_timers::repaint, static_cast<UINT>(wait), nullptr);
}

void CXTableCtrl::OnTimer(UINT_PTR id)
{
    switch (id)
    {
    case table_timers::repaint:
        KillTimer(id);
        m_state->repaintWaits = false;
        Follow(false);
        return;
    case table_timers::place:
        KillTimer(id);
        Follow(true);
        return;
    case table_timers::progress:
        ShowProgress();
        return;
    default:
        CListCtrl::OnTimer(id);
        return;
    }
}

void CXTableCtrl::UpdateNow()
{
    if (m_hWnd != nullptr)
        Follow(true);
    else
        m_state->model.Apply(m_state->feed->Take());
}

CXTableCtrl::View CXTableCtrl::PresentView() const
{
    View view;
    std::shared_ptr<State> const kept = m_state;
    TableRow const size = kept->model.Size();
    if (m_hWnd == nullptr || size == 0)
        return view;
    TableRow const top = TopPosition();
    TableRow const page = std::max(PageRows(), TableRow{1});
    // Where all fits, nobody has gone to the end yet.
    view.atEnd = size > page && top + page >= size;
    TableRow const focus = kept->model.FocusRow();
    for (TableRow position = top; !view.focusSeen && focus != no_table_row && position < std::min(top + page, size);
         ++position)
        view.focusSeen = kept->model.RowAt(position) == focus;
    return view;
}

// All that was told, and what it means for what is seen. now: rows that moved are put into their places however lately
// that was done.
void CXTableCtrl::Follow(bool now)
{
    std::shared_ptr<State> const kept = m_state;
    State & state = *kept;
    Watch const watch(*this);
    View const before = PresentView();
    if (!watch.IsThere())
        return;
    unsigned long long const time = ::GetTickCount64();
    bool const place = now || time - state.placed >= table_timers::place_interval;
    TableEffect const effect = state.model.Apply(state.feed->Take(), place);
    if (!watch.IsThere())
        return;
    if (state.model.RowsWait())
        SetTimer(table_timers::place, table_timers::place_interval, nullptr);
    else
        state.placed = time;
    TakeEffect(effect, before);
    if (!watch.IsAlive())
        return;
    if (state.model.NeedsOrder() && !state.task && !state.orderStopped)
        WishOrder();
    if (!watch.IsAlive())
        return;
    if (m_state->painting == 0)
        UpdateWindow();
    if (watch.IsThere())
        m_state->pace.Painted(static_cast<long long>(::GetTickCount64()));
}

void CXTableCtrl::TakeEffect(TableEffect const & effect, View const & before)
{
    if (m_hWnd == nullptr || effect.IsEmpty())
        return;
    if (effect.allMoved || effect.sizeChanged)
        NoteOrder();
    else if (effect.allValues)
        NoteValue(TableModel::nowhere, TableFilter::any_column);
    Watch const watch(*this);
    if (effect.sizeChanged)
        SetNativeCount();
    if (!watch.IsAlive())
        return;
    if (m_state->painting != 0)
    {
        RepaintRows();
        return;
    }
    if (before.atEnd && effect.sizeChanged && m_state->model.Size() != 0)
    {
        if (!BringIntoView(m_state->model.Size() - 1))
            return;
    }
    else if (effect.allMoved && before.focusSeen)
    {
        std::shared_ptr<State> const kept = m_state;
        TableRow const focus = kept->model.FocusPosition();
        if (!watch.IsThere() || (focus != TableModel::nowhere && !BringIntoView(focus)))
            return;
    }
    if (effect.allMoved || effect.allValues)
    {
        RepaintRows();
        return;
    }
    TableRow const top = TopPosition();
    TableRow const end = std::min(top + PageRows() + 1, m_state->model.Size());
    for (TableRow position = top; position < end; ++position)
    {
        TableRow const row = m_state->model.RowAt(position);
        auto const next =
            std::upper_bound(effect.rows.begin(), effect.rows.end(), row,
                             [](TableRow wanted, TableRowRange const & each) { return wanted < each.first; });
        if (next == effect.rows.begin() || row > std::prev(next)->last)
            continue;
        NoteValue(position, TableFilter::any_column);
        CRect rect = RowRect(position);
        // It may be asked for, of which the host hears.
        if (!watch.IsAlive())
            return;
        CRect client;
        GetClientRect(&client);
        rect.left = client.left;
        rect.right = client.right;
        RedrawWindow(&rect, nullptr, RDW_INVALIDATE | RDW_NOCHILDREN);
    }
}

void CXTableCtrl::SetNativeCount()
{
    if (m_hWnd == nullptr || MustWait())
        return;
    // The native list takes so many.
    constexpr TableRow most_rows = 100000000;
    auto const former = static_cast<TableRow>(std::max<LRESULT>(AskNative(LVM_GETITEMCOUNT), 0));
    TableRow const size = std::min(m_state->model.Size(), most_rows);
    Watch const watch(*this);
    AskNative(LVM_SETITEMCOUNT, size, LVSICF_NOINVALIDATEALL | LVSICF_NOSCROLL);
    if (!watch.IsAlive())
        return;
    // Rows that come or go out of sight are no matter.
    if (std::min(former, size) < TopPosition() + PageRows() + 1)
        RepaintRows();
}

void CXTableCtrl::RepaintRows()
{
    // Not the header, which costs more than a page of cells.
    if (m_hWnd != nullptr)
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_NOCHILDREN);
    WishEditPlace();
}

// Few rows are put in order at once, many beside the window.
void CXTableCtrl::WishOrder()
{
    std::shared_ptr<State> const kept = m_state;
    State & state = *kept;
    Watch const watch(*this);
    state.orderStopped = false;
    if (std::exchange(state.task, nullptr))
        ShowProgress();
    if (!state.model.NeedsOrder())
        return;
    if (m_hWnd == nullptr || !state.model.OrderTakesLong())
    {
        View const before = PresentView();
        TableEffect const effect = !watch.IsThere() ? TableEffect() : state.model.FindOrder();
        if (watch.IsThere())
            TakeEffect(effect, before);
        return;
    }
    state.task = state.model.BeginOrder();
    SetTimer(table_timers::progress, table_timers::progress_interval, nullptr);
    table_threads::Run([task = state.task, waker = state.waker] {
        task->Run();
        waker->Wake();
    });
}

void CXTableCtrl::TakeOrder()
{
    State & state = *m_state;
    View const before = PresentView();
    std::shared_ptr<TableOrderTask> const task = std::exchange(state.task, nullptr);
    ShowProgress();
    TakeEffect(state.model.TakeOrder(*task), before);
}

void CXTableCtrl::StopOrdering()
{
    State & state = *m_state;
    if (!state.task)
        return;
    state.task->Progress().Stop();
    state.task.reset();
    state.orderStopped = true;
    ShowProgress();
}

// Until nothing is going on any more.
void CXTableCtrl::ShowProgress()
{
    if (m_hWnd == nullptr)
        return;
    if (!m_state->task && !m_state->exporting)
        KillTimer(table_timers::progress);
    if (CHeaderCtrl * const header = Titles(); header != nullptr)
        header->Invalidate(FALSE);
    if (m_state->frozenHeader.m_hWnd != nullptr)
        m_state->frozenHeader.Invalidate(FALSE);
}
