// Tables whose parent, source, checks and callbacks end them, their sources and their edits, change columns, order and
// rows, in every message that they get or send, while threads tell of changes and end sources.
//
// What the host here leaves out, since native controls don't stand it: the window's end while native code of it or of
// its header runs, and the edit's while it paints or tells of a change. And since the interface says so: a source is
// asked without calling the table; only what is written runs the host's code.

#include <algorithm>
#include <filesystem>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "chaos_Chaos.h"
#include "clipboard/Clipboard.h"
#include "list/table/XTableCtrl.h"
#include "MemoryPreferenceStore.h"

namespace
{
class TableWorld;

/// Rows that come and go between two questions, whoever asks.
class ChaosSource : public TableSource
{
public:
    ChaosSource(TableWorld & world, TableRow count, unsigned int seed) : m_world(world), m_count(count), m_random(seed)
    {
    }

    TableRow RowCount() const override
    {
        std::lock_guard const lock(m_lock);
        return m_count;
    }
    bool Read(TableRow row, unsigned int column, TableValue & value) const override
    {
        std::lock_guard const lock(m_lock);
        if (m_random() % 500 == 0)
            m_count = static_cast<TableRow>(m_count * 7ULL / 8);
        if (row >= m_count)
            return m_random() % 2 == 0; // whatever the value was before
        unsigned int const number = (row * 7919U + column * 13U + m_changes) % 101;
        switch (column)
        {
        case 0:
            value.SetText(L"Ch " + std::to_wstring(number));
            return true;
        case 1:
            value.SetNumber(number / 8.0);
            return true;
        case 2:
            value.SetTick(number % 2 == 0);
            return true;
        case 3:
            value.SetLink(L"link");
            return true;
        case 4:
            value.SetProgress(number);
            return true;
        default:
            return number % 3 != 0;
        }
    }
    TableKey Key(TableRow row) const override { return row * 3ULL + 1; }
    TableRow RowOfKey(TableKey key) const override
    {
        return key % 3 == 1 && key / 3 < RowCount() ? static_cast<TableRow>(key / 3) : no_table_row;
    }
    bool Write(TableRow row, unsigned int column, TableValue const & value) override;

    void Grow(TableRow count)
    {
        std::lock_guard const lock(m_lock);
        m_count = std::min<TableRow>(m_count + count, 70000);
        ++m_changes;
    }

private:
    TableWorld & m_world;
    mutable std::mutex m_lock;
    mutable TableRow m_count;
    mutable std::mt19937 m_random;
    unsigned int m_changes = 0;
};

class ChaosTable : public CXTableCtrl
{
public:
    explicit ChaosTable(TableWorld & world) : m_world(world) {}

    bool MustLast() const { return m_native > 0; }
    void Open(CWnd * parent);
    void Close();

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void GetCellColors(TableRow row, unsigned int column, COLORREF & text, COLORREF & background) override;
    void ShowColumnMenu(CPoint screen) override;

private:
    TableWorld & m_world;
    int m_native = 0;
    bool m_open = false;
};

class TableHolder : public tests::ScopedWindow
{
public:
    explicit TableHolder(TableWorld & world) : m_world(world) {}

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    TableWorld & m_world;
};

class TableWorld : public chaos::Chaos
{
public:
    /// Its cache of device contexts, for windows that paint within one another: grows to that size and stays.
    static constexpr int kept_by_the_system = 48;

    explicit TableWorld(unsigned int seed) : Chaos(seed), m_host(*this)
    {
        CVeskBase::SetPreferenceVesk(&m_store);
        m_button.Create(L"b", WS_CHILD | WS_VISIBLE, CRect(5, 230, 60, 250), &m_host, 32);
        wchar_t folder[MAX_PATH] = {};
        ::GetTempPathW(MAX_PATH, folder);
        m_path = std::wstring(folder) + L"chaos-table.csv";
    }
    ~TableWorld() override
    {
        m_table.reset();
        JoinThreads();
        CVeskBase::SetPreferenceVesk(nullptr);
        std::error_code ignored;
        std::filesystem::remove(std::filesystem::path(m_path), ignored);
    }

    bool Lives(ChaosTable const * table) const { return m_table.get() == table; }

protected:
    void Operate() override;
    void CheckInvariants() override;

private:
    CXTableCtrl & Table() { return *m_table; }
    HWND Edit() const
    {
        return m_table && m_table->m_hWnd != nullptr ? ::FindWindowExW(m_table->m_hWnd, nullptr, L"Edit", nullptr)
                                                     : nullptr;
    }
    TableRow Row() { return static_cast<TableRow>(Pick(static_cast<int>(std::min(Table().RowsShown(), 60U)) + 2)); }
    unsigned int Column() { return static_cast<unsigned int>(Pick(7)); }
    LPARAM Point() { return MAKELPARAM(Pick(360), Pick(200)); }
    std::vector<TableColumn> Columns();
    void Assign();
    void Make();
    void Source();
    void Order();
    void Arrange();
    void Edits();
    void Presses();
    void Leaves();
    void Threads();
    void JoinThreads()
    {
        for (std::thread & each : m_threads)
            each.join();
        m_threads.clear();
    }

    MemoryPreferenceStore m_store;
    TableHolder m_host;
    CButton m_button;
    std::unique_ptr<ChaosTable> m_table;
    std::shared_ptr<ChaosSource> m_source;
    std::vector<std::thread> m_threads;
    std::wstring m_path;
};

bool ChaosSource::Write(TableRow row, unsigned int column, TableValue const & value)
{
    static_cast<void>(column);
    static_cast<void>(value);
    TableWorld & world = m_world;
    world.Disturb();
    return row < RowCount() && !world.OneIn(4);
}

void ChaosTable::Open(CWnd * parent)
{
    m_open = false;
    ++m_native;
    Create(WS_CHILD | WS_VISIBLE | LVS_SHOWSELALWAYS, CRect(0, 0, 360, 200), parent, 7);
    --m_native;
    m_open = true;
}

// The object stays until its window has gone.
void ChaosTable::Close()
{
    ++m_native;
    DestroyWindow();
    --m_native;
}

LRESULT ChaosTable::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    TableWorld & world = m_world; // this object may end
    bool const quiet = message == WM_NCDESTROY || message == WM_DESTROY || message == WM_NCCREATE;
    if (quiet || !m_open || !world.Lives(this))
        return CXTableCtrl::WindowProc(message, wParam, lParam);
    // Native code of a child: of the header or the edit, which paints or tells of a change.
    bool const ofChild = message == WM_NOTIFY || message == WM_COMMAND || message == WM_CTLCOLOREDIT;
    if (ofChild)
        ++m_native;
    else
        world.Disturb();
    if (!world.Lives(this) || m_hWnd == nullptr)
        return 0;
    LRESULT const result = CXTableCtrl::WindowProc(message, wParam, lParam);
    if (!world.Lives(this))
        return result;
    if (ofChild)
        --m_native;
    else
        world.Disturb();
    return result;
}

LRESULT ChaosTable::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    TableWorld & world = m_world;
    ++m_native;
    LRESULT const result = CXTableCtrl::DefWindowProc(message, wParam, lParam);
    if (world.Lives(this))
        --m_native;
    return result;
}

void ChaosTable::GetCellColors(TableRow row, unsigned int column, COLORREF & text, COLORREF & background)
{
    CXTableCtrl::GetCellColors(row, column, text, background);
    ++m_native;
    m_world.Disturb();
    --m_native;
}

// The real one waits for a choice.
void ChaosTable::ShowColumnMenu(CPoint screen)
{
    static_cast<void>(screen);
    m_world.Disturb();
}

LRESULT TableHolder::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_NOTIFY:
    case WM_COMMAND:
    case WM_PARENTNOTIFY:
    case WM_CONTEXTMENU:
        m_world.Disturb();
        break;
    default:
        break;
    }
    return ScopedWindow::WindowProc(message, wParam, lParam);
}

std::vector<TableColumn> TableWorld::Columns()
{
    constexpr TableKind kinds[] = {TableKind::text, TableKind::floating, TableKind::tick,
                                   TableKind::link, TableKind::progress, TableKind::whole};
    bool const german = OneIn(2);
    std::vector<TableColumn> columns(static_cast<std::size_t>(1 + Pick(6)));
    for (std::size_t i = 0; i < columns.size(); ++i)
    {
        columns[i].title = (german ? L"Spalte " : L"Column ") + std::to_wstring(i);
        columns[i].name = std::to_wstring(i);
        columns[i].kind = kinds[i];
        columns[i].width = 5 + Pick(120);
        columns[i].hidden = OneIn(6);
        columns[i].editable = !OneIn(3);
        columns[i].check = [this](TableValue const &) {
            Disturb();
            return OneIn(3) ? std::wstring(L"not now") : std::wstring();
        };
    }
    return columns;
}

void TableWorld::Assign()
{
    auto const act = [this] { Disturb(); };
    ChaosTable & table = *m_table;
    table.m_onSelectionChange = act;
    table.m_onDoubleClick = [act](TableRow, unsigned int) { act(); };
    table.m_onLinkClick = table.m_onDoubleClick;
    table.m_onPaste = [act](TablePasteReport const &) { act(); };
    table.m_onExportEnd = [act](bool) { act(); };
    table.m_onEditRefused = [act](TableRow, unsigned int, TableRefused const & refused) {
        act();
        return refused.reason;
    };
    if (OneIn(4))
        table.m_onSelectionChange = {};
}

void TableWorld::Make()
{
    Note("make");
    auto made = std::make_unique<ChaosTable>(*this);
    ChaosTable * const table = made.get();
    m_table = std::move(made);
    if (OneIn(2))
        table->SetColumns(Columns(), L"chaos");
    Assign();
    table->Open(&m_host);
    if (!Lives(table))
        return;
    table->SetColumns(Columns(), OneIn(2) ? L"chaos" : L"");
    if (Lives(table))
        Source();
}

void TableWorld::Source()
{
    Note("a source");
    // Now and then so many rows that they are put in order beside the window.
    TableRow const count = OneIn(8) ? 60000U : static_cast<TableRow>(Pick(80));
    auto const source = std::make_shared<ChaosSource>(*this, count, static_cast<unsigned int>(Pick(1000)));
    m_source = source;
    m_table->SetSource(OneIn(8) ? nullptr : source);
}

void TableWorld::Order()
{
    switch (Pick(6))
    {
    case 0:
        Note("sort");
        Table().SortBy({{Column(), OneIn(2)}});
        break;
    case 1:
        Note("sort by two");
        Table().SortBy({{Column(), OneIn(2)}, {Column(), OneIn(2)}});
        break;
    case 2: {
        Note("filter");
        TableFilter filter;
        if (OneIn(2))
            filter.texts.push_back({OneIn(2) ? TableFilter::any_column : Column(), L"ch 1", false});
        if (OneIn(2))
            filter.ranges.push_back({1, 0, static_cast<double>(Pick(12))});
        if (OneIn(3))
            filter.predicate = [](TableSource const &, TableRow row) { return row % 3 != 0; };
        Table().SetRowFilter(std::move(filter));
        break;
    }
    case 3:
        Note("no order");
        Table().SortBy({});
        break;
    case 4:
        Note("stop");
        Table().StopOrdering();
        break;
    default:
        Note("no filter");
        Table().SetRowFilter({});
        break;
    }
}

void TableWorld::Arrange()
{
    switch (Pick(9))
    {
    case 0:
        Note("hide");
        Table().HideTableColumn(Column(), OneIn(2));
        break;
    case 1:
        Note("move");
        Table().MoveTableColumn(Column(), Column());
        break;
    case 2:
        Note("freeze");
        Table().SetFrozenColumns(static_cast<unsigned int>(Pick(4)));
        break;
    case 3:
        Note("other columns");
        Table().SetColumns(Columns(), OneIn(2) ? L"chaos" : L"");
        break;
    case 4: {
        Note("other locale");
        TableLocale locale;
        locale.decimalSign = OneIn(2) ? L',' : L'.';
        Table().SetTableLocale(locale);
        break;
    }
    case 5:
        Note("settings");
        ::SendMessageW(Table().m_hWnd, OneIn(2) ? WM_SETTINGCHANGE : WM_SYSCOLORCHANGE, 0, 0);
        break;
    case 6:
        Note("width");
        Table().SetColumnWidth(Pick(5), Pick(150));
        break;
    case 7:
        Note("a native column goes");
        if (OneIn(3))
            Table().DeleteColumn(Pick(4));
        break;
    default:
        Note("size");
        Table().SetWindowPos(nullptr, 0, 0, 20 + Pick(400), 10 + Pick(260), SWP_NOMOVE | SWP_NOZORDER);
        break;
    }
}

void TableWorld::Edits()
{
    constexpr WPARAM keys[] = {VK_TAB, VK_RETURN, VK_ESCAPE, VK_TAB};
    switch (Pick(8))
    {
    case 0:
    case 1:
        Note("edit");
        Table().EditCell(Row(), Column());
        break;
    case 2:
    case 3:
        Note("a key in the edit");
        ::SendMessageW(Edit(), WM_KEYDOWN, keys[Pick(4)], 0);
        break;
    case 4:
        Note("a character in the edit");
        ::SendMessageW(Edit(), WM_CHAR, L'0' + static_cast<WPARAM>(Pick(60)), 0);
        break;
    case 5:
        Note("a text for the edit");
        ::SendMessageW(Edit(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(OneIn(2) ? L"12" : L"text"));
        break;
    case 6:
        Note("end the edit");
        Table().EndEdit(OneIn(2));
        break;
    default:
        Note("give the focus away");
        m_button.SetFocus();
        break;
    }
}

void TableWorld::Presses()
{
    constexpr WPARAM keys[] = {VK_UP,    VK_DOWN,  VK_PRIOR, VK_NEXT, VK_HOME,   VK_END,
                               VK_SPACE, VK_RIGHT, VK_LEFT,  VK_F2,   VK_RETURN, VK_ESCAPE};
    HWND const window = Table().m_hWnd;
    LPARAM const at = Point();
    switch (Pick(12))
    {
    case 0:
    case 1:
        Note("press");
        ::SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON | (OneIn(4) ? MK_CONTROL : 0U) | (OneIn(4) ? MK_SHIFT : 0U),
                       at);
        ::SendMessageW(window, WM_LBUTTONUP, 0, at);
        break;
    case 2:
        Note("double click");
        ::SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, at);
        ::SendMessageW(window, WM_LBUTTONDBLCLK, MK_LBUTTON, at);
        break;
    case 3:
        Note("right press");
        ::SendMessageW(window, WM_RBUTTONDOWN, MK_RBUTTON, at);
        ::SendMessageW(window, WM_RBUTTONUP, 0, at);
        break;
    case 4:
        Note("menu key");
        ::SendMessageW(window, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(window), -1);
        break;
    case 5:
        Note("scroll");
        ::SendMessageW(window, OneIn(2) ? WM_VSCROLL : WM_HSCROLL, static_cast<WPARAM>(Pick(4)), 0);
        break;
    case 6:
        Note("wheel");
        ::SendMessageW(window, WM_MOUSEWHEEL, MAKEWPARAM(0, OneIn(2) ? WHEEL_DELTA : -WHEEL_DELTA), at);
        break;
    case 7:
        Note("character");
        ::SendMessageW(window, WM_CHAR, L'a' + static_cast<WPARAM>(Pick(26)), 0);
        break;
    case 8: {
        Note("title");
        CHeaderCtrl * const header = Table().GetHeaderCtrl();
        HWND const titles = header != nullptr ? header->m_hWnd : nullptr;
        UINT const buttons[] = {WM_LBUTTONDOWN, WM_RBUTTONDOWN};
        int const which = Pick(2);
        LPARAM const title = MAKELPARAM(Pick(300), 5);
        ::SendMessageW(titles, buttons[which], which == 0 ? MK_LBUTTON : MK_RBUTTON, title);
        ::SendMessageW(titles, buttons[which] + 1, 0, title);
        break;
    }
    default:
        Note("key");
        ::SendMessageW(window, WM_KEYDOWN, keys[Pick(static_cast<int>(std::size(keys)))], 1);
        break;
    }
}

void TableWorld::Leaves()
{
    switch (Pick(6))
    {
    case 0:
        Note("copy");
        if (OneIn(4))
            Table().CopyRows(OneIn(2) ? TableForm::text : TableForm::csv, OneIn(2), OneIn(2));
        break;
    case 1:
        Note("paste");
        if (OneIn(4))
        {
            Clipboard::StringToClipboard(OneIn(2) ? L"a;1;1\r\nb;2;0" : L"x");
            if (m_table)
                Table().PasteBlock();
        }
        break;
    case 2:
        Note("export");
        if (OneIn(4))
            Table().ExportRows(m_path, TableForm::csv, OneIn(2));
        break;
    case 3:
        Note("stop the export");
        Table().StopExport();
        break;
    case 4:
        Note("select all");
        Table().SelectAllRows();
        break;
    default:
        Note("go to a row");
        Table().GoToRow(Row());
        break;
    }
}

// Each has what it needs for itself: the table may be gone before.
void TableWorld::Threads()
{
    constexpr std::size_t most_threads = 6;
    if (m_threads.size() >= most_threads)
        JoinThreads();
    auto const first = static_cast<TableRow>(Pick(80));
    switch (Pick(6))
    {
    case 0:
        Note("another thread ends the source");
        m_threads.emplace_back([source = std::exchange(m_source, nullptr)]() mutable { source.reset(); });
        break;
    case 1:
        Note("another thread tells");
        m_threads.emplace_back([feed = Table().Feed(), first] {
            for (TableRow i = 0; i < 200; ++i)
                feed->RowsChanged(first + i, first + 2 * i);
        });
        break;
    case 2:
        Note("another thread grows");
        m_threads.emplace_back([feed = Table().Feed(), source = m_source, first] {
            if (source)
                source->Grow(first);
            feed->RowsAppended(first);
        });
        break;
    case 3:
        Note("all changed");
        Table().Feed()->AllChanged();
        break;
    case 4:
        Note("grow");
        if (m_source)
            m_source->Grow(first);
        Table().Feed()->RowsAppended(first);
        break;
    default:
        Note("update");
        Table().UpdateNow();
        break;
    }
}

void TableWorld::Operate()
{
    if (m_table == nullptr || m_table->m_hWnd == nullptr)
    {
        if (m_table == nullptr || !m_table->MustLast())
            Make();
        return;
    }
    switch (Pick(24))
    {
    case 0:
        Note("delete");
        if (!m_table->MustLast() && OneIn(4))
        {
            std::unique_ptr<ChaosTable> const ending = std::move(m_table);
        }
        break;
    case 1:
        Note("destroy the window");
        if (!m_table->MustLast() && OneIn(6))
            m_table->Close();
        break;
    case 2:
        Note("handle messages");
        tests::PumpPosted(20);
        break;
    case 3:
        Note("paint");
        ::RedrawWindow(m_table->m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE | RDW_ALLCHILDREN);
        break;
    case 4:
        Assign();
        break;
    case 5:
        Source();
        break;
    case 6:
        Note("end the source");
        m_source.reset();
        break;
    case 7:
    case 8:
        Order();
        break;
    case 9:
    case 10:
    case 11:
        Arrange();
        break;
    case 12:
    case 13:
    case 14:
    case 15:
        Edits();
        break;
    case 16:
    case 17:
        Leaves();
        break;
    case 18:
    case 19:
        Threads();
        break;
    default:
        Presses();
        break;
    }
}

void TableWorld::CheckInvariants()
{
    if (m_table == nullptr || m_table->m_hWnd == nullptr)
        return;
    EXPECT_EQ(Edit() != nullptr, m_table->IsEditing());
    EXPECT_FALSE(m_table->ShownColumns().empty());
    for (TableRow const row : {0U, 7U})
    {
        TableRow const position = m_table->PositionOf(row);
        if (position != no_table_row)
        {
            EXPECT_EQ(m_table->RowAt(position), row);
        }
    }
}
} // namespace

TEST(ChaosTable, StandsAHostThatDoesItsWorst)
{
    chaos::RunAll<TableWorld>();
}
