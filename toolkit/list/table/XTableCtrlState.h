#pragma once
// What a table control has. Internal to the module.

#include <atomic>

#include "frame/WindowAlive.h"
#include "layout/Resolution.h"
#include "list/CellPainters.h"
#include "list/RowHeight.h"
#include "list/table/TableColumnLayout.h"
#include "list/table/TableInput.h"
#include "list/table/TableModel.h"
#include "list/table/TableNews.h"
#include "list/table/TablePace.h"
#include "list/table/XTableCtrl.h"
#include "list/table/XTableEdit.h"

/// Tells whether the table, and the window that it had, are still there.
class CXTableCtrl::Watch : public WindowAlive
{
public:
    explicit Watch(CXTableCtrl const & table) : WindowAlive(table, table.m_lifeSign) {}
};

/// Posts to the window from any thread; to none once that is gone.
class CXTableCtrl::Waker : public TableWaker
{
public:
    void Wake() override
    {
        if (HWND const window = m_window.load(std::memory_order_acquire); window != nullptr)
            ::PostMessageW(window, WakeMessage(), told, 0);
    }
    void SetWindow(HWND window) { m_window.store(window, std::memory_order_release); }
    static UINT WakeMessage();

    // What its word says.
    static constexpr WPARAM told = 0;
    static constexpr WPARAM follow_natively = 1;
    static constexpr WPARAM place_edit = 2;
    static constexpr WPARAM tell_news = 3;

private:
    std::atomic<HWND> m_window{nullptr};
};

/// A file that is written beside the window.
struct TableExport
{
    TableProgress progress;
    std::atomic<bool> finished{false};
    std::atomic<bool> whole{false};
};

/// Ends an edit's window with its object.
struct TableEditEnd
{
    void operator()(CXTableEdit * edit) const;
};

/// A cell that is being typed into.
struct TableEditing
{
    std::unique_ptr<CXTableEdit, TableEditEnd> window;
    std::weak_ptr<TableSource> source;
    TableKey key = 0;
    unsigned int column = 0;
    /// What the cell showed.
    std::wstring before;
    /// Its text is being taken.
    bool taking = false;
    bool placeWaits = false;
    /// Why its text was refused.
    CToolTipCtrl reason;
    bool reasonShown = false;
};

struct CXTableCtrl::State
{
    static constexpr unsigned int no_column = TableFilter::any_column;

    TableModel model;
    std::shared_ptr<Waker> waker = std::make_shared<Waker>();
    std::shared_ptr<TableFeed> feed = std::make_shared<TableFeed>(waker);
    std::shared_ptr<TableOrderTask> task;
    std::shared_ptr<TableExport> exporting;
    TablePace pace;
    bool repaintWaits = false;
    /// When changed rows were put into their places last.
    unsigned long long placed = 0;

    /// The native list is ready.
    bool prepared = false;
    std::wstring name;
    TableColumnLayout layout;
    /// The columns that the native list has, from left to right.
    std::vector<unsigned int> shown;
    /// While native columns are made, what the header tells is no wish of the user's.
    int making = 0;
    /// Native code of list or header is running.
    int native = 0;
    /// Paints that are going on.
    int painting = 0;
    bool nativeWaits = false;
    CHeaderCtrl frozenHeader;

    CellLook look;
    /// As the host has set it; 0 for never.
    UINT dpi = 0;
    bool followsDpi = false;
    CRowHeight rowHeight;
    int Scaled(int pixels) const { return resolution::Scaled(pixels, look.dpi); }
    bool ownLocale = false;
    /// The user has stopped the work on the order wished for.
    bool orderStopped = false;
    struct Edges
    {
        int left = 0;
        int right = 0;
        /// The widest part behind the decimal sign among the cells seen; negative where it does not matter.
        int tail = -1;
    };
    /// For the length of one paint.
    std::vector<Edges> edges;
    unsigned int frozen = 0;
    int frozenRight = 0;
    bool focused = false;
    TableRow focusRow = no_table_row;
    TableRow topPosition = 0;
    CRect topRect;
    /// That is being painted.
    XLISTCTRLDATA cell;
    TableValue value;
    std::wstring text;
    unsigned long long repaints = 0;

    TypedText typed;
    /// The column with the focus, where a block is pasted; none until the user has chosen a cell.
    unsigned int focusColumn = no_column;
    /// There is a cell cursor.
    bool cursor = false;
    std::shared_ptr<TableEditing> editing;
    TableNews news;

    /// Takes the colours of the set that the window is painted in now.
    void FollowSet(HWND window);

    TableColumn const * Column(unsigned int column) const
    {
        std::vector<TableColumn> const & columns = model.Looks().columns;
        return column < columns.size() ? &columns[column] : nullptr;
    }
};

namespace table_timers
{
constexpr UINT_PTR repaint = 0x7A01;
constexpr UINT_PTR progress = 0x7A02;
constexpr UINT_PTR place = 0x7A03;
constexpr UINT progress_interval = 50;
constexpr UINT place_interval = 250;
} // namespace table_timers

namespace table_threads
{
/// Runs work on a thread that nothing waits for. It may use what it shares alone.
void Run(std::function<void()> work);
} // namespace table_threads
