// The workbench by real keys alone: what the mouse can do is done without it, and looked at after each step.

#include <algorithm>
#include <functional>
#include <numeric>
#include <string>
#include <vector>

#include "clipboard/Clipboard.h"
#include "MainWindowTest.h"

namespace
{
using Lines = std::vector<int>;

class WorkbenchByKeys : public tests::MainWindowTest
{
protected:
    CRecordingList & List() { return m_window->List(); }
    CWaveformView & Plot() { return m_window->Waveform(); }
    void ShowFolder(int count)
    {
        m_window->ShowTargets({Folder(count)});
        ASSERT_TRUE(WaitUntilRead());
        ASSERT_TRUE(tests::PumpUntil([this] { return List().ChosenLine() == 0; }));
        ASSERT_TRUE(tests::PumpUntil([this] { return ::GetFocus() == List().m_hWnd; })) << "from the start";
    }
    static bool InMenu()
    {
        GUITHREADINFO info{};
        info.cbSize = sizeof info;
        return ::GetGUIThreadInfo(::GetCurrentThreadId(), &info) && (info.flags & GUI_INMENUMODE) != 0;
    }
    /// A window that has the keys while the main window waits for it.
    bool IsModal() const
    {
        auto * const active = ::GetActiveWindow();
        return !::IsWindowEnabled(m_window->m_hWnd) && active != nullptr && active != m_window->m_hWnd &&
               ::IsWindowVisible(active);
    }
    /// Opens a menu of the bar by Alt and its letter, and chooses in it by letters.
    void InMenuOf(WORD menu, std::vector<WORD> const & keys)
    {
        tests::LaterActions later;
        for (unsigned short const key : keys)
        {
            later.Add([key] { tests::Key(key); }, [] { return InMenu(); });
        }
        tests::Key(menu, {VK_MENU});
        EXPECT_TRUE(tests::PumpUntil([&] { return later.Done() && !InMenu(); }));
        EXPECT_FALSE(later.Failed());
    }
    /// Presses what opens a dialog with a loop of its own, in a menu perhaps, and Escape once it is there. Gives its
    /// title.
    std::wstring TitleOfModal(WORD key, std::initializer_list<WORD> with, WORD inMenu = 0)
    {
        std::wstring title;
        tests::LaterActions later;
        if (inMenu != 0)
        {
            later.Add([inMenu] { tests::Key(inMenu); }, [] { return InMenu(); });
        }
        later.Add(
            [&] {
                wchar_t text[100] = L"";
                ::GetWindowTextW(::GetActiveWindow(), text, static_cast<int>(std::size(text)));
                title = text;
                tests::Key(VK_ESCAPE);
            },
            [this] { return IsModal() && !InMenu(); });
        tests::Key(key, with);
        EXPECT_TRUE(tests::PumpUntil([&] { return later.Done() && ::IsWindowEnabled(m_window->m_hWnd) && !InMenu(); }));
        EXPECT_FALSE(later.Failed());
        return title;
    }
    /// Whether keys open a window beside the main one, and Escape closes it and gives the list the keys back.
    bool OpensAndCloses(CWnd & window, WORD key, std::initializer_list<WORD> with = {})
    {
        tests::Key(key, with);
        if (!tests::PumpUntil([&] { return window.GetSafeHwnd() != nullptr && ::GetActiveWindow() == window.m_hWnd; }))
        {
            return false;
        }
        tests::Key(VK_ESCAPE);
        return tests::PumpUntil(
            [&] { return window.GetSafeHwnd() == nullptr && ::GetActiveWindow() == m_window->m_hWnd; });
    }
    static std::wstring Copied()
    {
        CString text;
        Clipboard::StringFromClipboard(text);
        return text.GetString();
    }
    Lines Order() { return List().Order().lines; }
    /// Whether the thread shows a window above all others that is no tip.
    static bool ShowsDropDown()
    {
        bool shows = false;
        ::EnumThreadWindows(
            ::GetCurrentThreadId(),
            [](HWND window, LPARAM to) -> BOOL {
                wchar_t name[40] = L"";
                ::GetClassNameW(window, name, static_cast<int>(std::size(name)));
                bool const isAbove = (::GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
                auto & found = *reinterpret_cast<bool *>(to);
                found = found || (isAbove && ::IsWindowVisible(window) && ::lstrcmpiW(name, TOOLTIPS_CLASS) != 0);
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&shows));
        return shows;
    }
    CSize PaneSize(CMainWindow::Part part)
    {
        CRect place;
        m_window->Pane(part).GetWindowRect(&place);
        return place.Size();
    }
    /// Ctrl and Alt with an arrow, whichever of both is pressed first. Gives by how much the pane has grown.
    CSize Resize(CMainWindow::Part part, WORD arrow, bool altFirst = false)
    {
        CSize const before = PaneSize(part);
        altFirst ? tests::Key(arrow, {VK_MENU, VK_CONTROL}) : tests::Key(arrow, {VK_CONTROL, VK_MENU});
        EXPECT_TRUE(tests::PumpUntil([&] { return PaneSize(part) != before; })) << part << ' ' << arrow;
        tests::PumpPosted();
        EXPECT_FALSE(InMenu()) << "the Alt key has been used";
        return PaneSize(part) - before;
    }
};
} // namespace

TEST_F(WorkbenchByKeys, RecordingsAreChosenMarkedRatedAndCommented)
{
    ShowFolder(5);
    tests::Key(VK_DOWN);
    tests::Key(VK_DOWN);
    ASSERT_TRUE(tests::PumpUntil([this] { return List().SelectedLines() == Lines{2}; }));
    tests::Key(VK_SPACE);
    ASSERT_TRUE(tests::PumpUntil([this] { return List().IsChecked(2); }));

    tests::Key(VK_F4);
    ASSERT_TRUE(tests::PumpUntil([this] { return List().RatingCombo() != nullptr; }));
    tests::PumpPosted();
    tests::Key(VK_DOWN);
    tests::Key(VK_RETURN);
    ASSERT_TRUE(tests::PumpUntil([this] { return List().NotesOf(2).rating == 1 && !List().IsEditing(); }));

    tests::Key(VK_F2);
    ASSERT_TRUE(tests::PumpUntil([this] { return List().CommentEditor() != nullptr; }));
    tests::Type(L"by keys");
    tests::Key(VK_RETURN);
    ASSERT_TRUE(tests::PumpUntil([this] { return List().NotesOf(2).comment == L"by keys"; }));
    ASSERT_TRUE(tests::PumpUntil([this] { return ::GetFocus() == List().m_hWnd; }));

    tests::Key(L'Z', {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([this] { return List().NotesOf(2).comment.empty(); }));
    tests::Key(L'Y', {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([this] { return List().NotesOf(2).comment == L"by keys"; }));

    tests::Key(L'R', {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([this] { return List().ReferenceLine() == 2; }));
    tests::Key(VK_UP, {VK_SHIFT});
    ASSERT_TRUE(tests::PumpUntil([this] { return List().SelectedLines() == Lines{1, 2}; }));
    tests::Key(L'A', {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([this] { return List().Totals().Checked() == 5; }));
    tests::Key(L'A', {VK_CONTROL, VK_SHIFT});
    ASSERT_TRUE(tests::PumpUntil([this] { return List().Totals().Checked() == 0; }));
}

TEST_F(WorkbenchByKeys, TheListIsSortedMovedCopiedAndFiltered)
{
    ShowFolder(4);
    auto const sortBy = [this](WORD item) {
        tests::LaterActions later;
        later.Add([item] { tests::Key(item); }, [] { return InMenu(); });
        tests::Key(L'S', {VK_CONTROL, VK_SHIFT});
        EXPECT_TRUE(tests::PumpUntil([&] { return later.Done() && !InMenu(); }));
        EXPECT_FALSE(later.Failed());
    };
    sortBy(L'1');
    ASSERT_TRUE(tests::PumpUntil([this] { return List().SortedColumn() == CRecordingList::column_name; }));
    sortBy(L'1');
    ASSERT_TRUE(tests::PumpUntil([this] { return Order() == Lines{3, 2, 1, 0}; })) << "the other way round";
    tests::Key(L'Z', {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([this] { return Order() == Lines{0, 1, 2, 3}; }));

    tests::Key(VK_HOME);
    tests::Key(VK_DOWN, {VK_MENU});
    ASSERT_TRUE(tests::PumpUntil([this] { return Order() == Lines{1, 0, 2, 3}; }));
    tests::PumpPosted();
    EXPECT_FALSE(InMenu()) << "the Alt key has been used";

    Clipboard::StringToClipboard(L"");
    tests::Key(L'C', {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([] { return Copied().find(L"r00000.wav") != std::wstring::npos; }));
    EXPECT_EQ(Copied().find(L"r00001.wav"), std::wstring::npos) << "only what is selected";

    tests::Key(L'F', {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([this] { return m_window->ListPanel().ShowsFilter(); }));
    tests::Type(L"00002");
    ASSERT_TRUE(tests::PumpUntil([this] { return List().ShownCount() == 1; }));
    tests::Key(VK_RETURN);
    ASSERT_TRUE(tests::PumpUntil([this] { return ::GetFocus() == List().m_hWnd && List().ChosenLine() == 2; }));
    tests::Key(VK_ESCAPE);
    ASSERT_TRUE(tests::PumpUntil([this] { return !m_window->ListPanel().ShowsFilter(); }));
    EXPECT_EQ(List().ShownCount(), 4);

    // To the name that begins so.
    tests::Type(L"r00003");
    ASSERT_TRUE(tests::PumpUntil([this] { return List().ChosenLine() == 3; }));
    tests::App().Answer(IDYES);
    tests::Key(VK_DELETE);
    ASSERT_TRUE(tests::PumpUntil([this] { return List().LineCount() == 3 && !m_window->IsBusy(); }));
    tests::App().TakeMessages();
}

TEST_F(WorkbenchByKeys, EveryDialogOpensAndCloses)
{
    ShowFolder(2);
    EXPECT_TRUE(OpensAndCloses(m_window->Details(), VK_RETURN, {VK_MENU}));
    EXPECT_TRUE(OpensAndCloses(m_window->SettingsSheet(), VK_OEM_COMMA, {VK_CONTROL}));
    EXPECT_TRUE(OpensAndCloses(m_window->Preview(), L'P', {VK_CONTROL}));
    EXPECT_TRUE(OpensAndCloses(m_window->Help(), VK_F1));
    EXPECT_TRUE(OpensAndCloses(m_window->Help(), VK_F1, {VK_CONTROL}));

    EXPECT_EQ(TitleOfModal(L'O', {VK_CONTROL, VK_SHIFT}), L"Open Folder");
    EXPECT_EQ(TitleOfModal(L'E', {VK_CONTROL}), L"Export List");
    EXPECT_EQ(TitleOfModal(VK_F2, {VK_SHIFT}), L"Rename");
    EXPECT_EQ(TitleOfModal(L'O', {VK_CONTROL}), L"Open Recordings");
    EXPECT_EQ(TitleOfModal(L'H', {VK_MENU}, L'A'), L"About");
    EXPECT_EQ(TitleOfModal(L'O', {VK_MENU}, L'L'), L"Choose Display Language");
    TitleOfModal(L'V', {VK_MENU}, L'C'); // the choice of columns, which has none
    EXPECT_EQ(TitleOfModal(L'F', {VK_MENU}, L'W'), L"Save Picture");
    tests::Key(VK_SPACE);
    ASSERT_TRUE(tests::PumpUntil([this] { return List().Totals().Checked() == 1; }));
    EXPECT_EQ(TitleOfModal(L'F', {VK_MENU}, L'P'), L"Save Report");
    EXPECT_EQ(::GetFocus(), List().m_hWnd);
}

TEST_F(WorkbenchByKeys, ThePlotsAreMeasuredSelectedZoomedAndAmplified)
{
    ShowFolder(1);
    tests::Key(VK_F6);
    ASSERT_TRUE(tests::PumpUntil([this] { return ::GetFocus() == Plot().m_hWnd; }));
    ASSERT_TRUE(tests::PumpUntil([this] { return !::GetUpdateRect(Plot().m_hWnd, nullptr, FALSE); })) << "painted";
    tests::Key(VK_RIGHT, {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([this] { return Plot().Marks().cursor == 48; }));
    tests::Key(VK_RIGHT, {VK_CONTROL, VK_SHIFT});
    ASSERT_TRUE(tests::PumpUntil([this] { return Plot().Marks().Selection() == (workbench::FrameRange{48, 96}); }));
    tests::Key(VK_RETURN);
    ASSERT_TRUE(tests::PumpUntil([this] { return Plot().Marks().window.Shown() == (workbench::FrameRange{48, 96}); }));
    tests::Key(VK_NEXT);
    ASSERT_TRUE(tests::PumpUntil([this] { return Plot().Marks().window.Shown().first > 48; }));
    tests::Key(VK_MULTIPLY);
    ASSERT_TRUE(tests::PumpUntil([this] { return Plot().Marks().window.ShowsAll(); }));
    tests::Key(VK_ADD);
    ASSERT_TRUE(tests::PumpUntil([this] { return !Plot().Marks().window.ShowsAll(); }));
    tests::Key(VK_ESCAPE);
    ASSERT_TRUE(tests::PumpUntil([this] { return !Plot().Marks().HasSelection(); }));
    tests::Key(VK_UP);
    ASSERT_TRUE(tests::PumpUntil([this] { return Plot().Amplification() > 0; }));
    tests::Key(L'0', {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([this] { return Plot().Amplification() == 0; }));
    // The same keys in the other plot.
    tests::Key(VK_F6);
    ASSERT_TRUE(tests::PumpUntil([this] { return ::GetFocus() != Plot().m_hWnd; }));
    auto * const other = ::GetFocus();
    ASSERT_TRUE(tests::PumpUntil([&] { return !m_window->IsComputing() && !::GetUpdateRect(other, nullptr, FALSE); },
                                 tests::read_limit));
    tests::Key(VK_HOME);
    ASSERT_TRUE(tests::PumpUntil([this] { return Plot().Marks().cursor == 0; }));
    tests::Key(VK_END, {VK_SHIFT});
    ASSERT_TRUE(tests::PumpUntil([this] { return Plot().Marks().Selection() == (workbench::FrameRange{0, 479}); }));
    tests::Key(VK_ESCAPE);
    ASSERT_TRUE(tests::PumpUntil([this] { return !Plot().Marks().HasSelection(); }));
    tests::Key(VK_MULTIPLY);
    ASSERT_TRUE(tests::PumpUntil([this] { return Plot().Marks().window.ShowsAll(); }));
    EXPECT_EQ(::GetFocus(), other);
    tests::Key(VK_F6, {VK_SHIFT});
    tests::Key(VK_F6, {VK_SHIFT});
    ASSERT_TRUE(tests::PumpUntil([this] { return ::GetFocus() == List().m_hWnd; }));
}

TEST_F(WorkbenchByKeys, EveryPaneIsShownHiddenAndReached)
{
    ShowFolder(1);
    for (int index = 0; index < CMainWindow::part_count; ++index)
    {
        auto const part = static_cast<CMainWindow::Part>(index);
        auto const key = static_cast<WORD>(L'1' + index);
        bool const before = m_window->ShowsPane(part);
        tests::Key(key, {VK_CONTROL});
        EXPECT_TRUE(tests::PumpUntil([&] { return m_window->ShowsPane(part) != before; })) << index;
        tests::Key(key, {VK_CONTROL});
        EXPECT_TRUE(tests::PumpUntil([&] { return m_window->ShowsPane(part) == before; })) << index;
    }
    // All of them show; one key goes through them and comes back.
    for (int index = 0; index < CMainWindow::part_count; ++index)
    {
        m_window->ShowPane(static_cast<CMainWindow::Part>(index), true);
    }
    List().SetFocus();
    std::vector<HWND> seen;
    for (int step = 0; step < CMainWindow::part_count; ++step)
    {
        auto * const before = ::GetFocus();
        seen.push_back(before);
        tests::Key(VK_F6);
        ASSERT_TRUE(tests::PumpUntil([&] { return ::GetFocus() != before; })) << step;
    }
    EXPECT_EQ(::GetFocus(), List().m_hWnd);
    std::ranges::sort(seen);
    EXPECT_EQ(std::ranges::adjacent_find(seen), seen.end()) << "each once";
}

TEST_F(WorkbenchByKeys, ColumnsAreHiddenAndOrderedInTheSettings)
{
    ShowFolder(1);
    std::vector<int> const before = List().ColumnOrder();
    tests::Key(VK_OEM_COMMA, {VK_CONTROL});
    CSettingsSheet & sheet = m_window->SettingsSheet();
    ASSERT_TRUE(
        tests::PumpUntil([&] { return sheet.GetSafeHwnd() != nullptr && ::GetActiveWindow() == sheet.m_hWnd; }));
    for (int page = 0; page < 3; ++page)
    {
        tests::Key(VK_TAB, {VK_CONTROL});
        ASSERT_TRUE(tests::PumpUntil([&] { return sheet.GetActiveIndex() == page + 1; }));
    }
    tests::Key(L'D', {VK_MENU});
    ASSERT_TRUE(tests::PumpUntil([&] { return ::GetDlgCtrlID(::GetFocus()) == IDC_COLUMN_ORDER; }));
    tests::Key(VK_DOWN);
    tests::Key(VK_DOWN, {VK_MENU});
    tests::Key(VK_DOWN, {VK_MENU});
    tests::Key(VK_UP, {VK_MENU});
    tests::Key(VK_RETURN);
    ASSERT_TRUE(tests::PumpUntil([&] { return sheet.GetSafeHwnd() == nullptr; }));
    std::vector<int> wanted = before;
    std::swap(wanted[2], wanted[3]);
    EXPECT_EQ(List().ColumnOrder(), wanted);
    EXPECT_EQ(workbench::ReadColumnOrder(), wanted);
    // What else is set leaves the order alone.
    List().SetColumnOrder(before);
    tests::Key(L'4', {VK_CONTROL});
    tests::Key(L'4', {VK_CONTROL});
    tests::PumpPosted();
    EXPECT_EQ(List().ColumnOrder(), before);
}

TEST_F(WorkbenchByKeys, TheMenuOpensFromAPaneThatFloats)
{
    ShowFolder(1);
    ASSERT_TRUE(m_window->Pane(CMainWindow::part_waveform).FloatPane(CRect(200, 150, 700, 450)));
    tests::PumpPosted();
    Plot().SetFocus();
    ASSERT_TRUE(tests::PumpUntil([this] { return ::GetFocus() == Plot().m_hWnd; }));
    ASSERT_NE(::GetAncestor(Plot().m_hWnd, GA_ROOT), m_window->m_hWnd);
    EXPECT_EQ(TitleOfModal(L'H', {VK_MENU}, L'A'), L"About");
}

TEST_F(WorkbenchByKeys, PanesAreMadeLargerAndSmaller)
{
    ShowFolder(1);
    m_window->ShowFolders(true);
    CSize const list = PaneSize(CMainWindow::part_list);
    // Each one takes from the list and gives to it, wherever it stands.
    Plot().SetFocus();
    CSize const taller = Resize(CMainWindow::part_waveform, VK_DOWN);
    EXPECT_GT(taller.cy, 0);
    EXPECT_EQ(taller.cx, 0);
    EXPECT_EQ(PaneSize(CMainWindow::part_list), list - taller);
    EXPECT_EQ(Resize(CMainWindow::part_waveform, VK_UP, true), CSize(0, -taller.cy));
    EXPECT_EQ(PaneSize(CMainWindow::part_list), list);
    m_window->Folders().SetFocus();
    CSize const wider = Resize(CMainWindow::part_folders, VK_RIGHT, true);
    EXPECT_GT(wider.cx, 0);
    EXPECT_EQ(PaneSize(CMainWindow::part_list), list - wider);
    EXPECT_EQ(Resize(CMainWindow::part_folders, VK_LEFT), CSize(-wider.cx, 0));
    List().SetFocus();
    EXPECT_EQ(Resize(CMainWindow::part_list, VK_LEFT), CSize(-wider.cx, 0));
    EXPECT_EQ(Resize(CMainWindow::part_list, VK_UP), CSize(0, -taller.cy));
    // From the menu, too.
    CSize const before = PaneSize(CMainWindow::part_list);
    InMenuOf(L'W', {L'W'});
    ASSERT_TRUE(tests::PumpUntil([&] { return PaneSize(CMainWindow::part_list) == before + CSize(wider.cx, 0); }));
    EXPECT_EQ(::GetFocus(), List().m_hWnd);
}

TEST_F(WorkbenchByKeys, SizesOfPanesAreThereAfterARestart)
{
    ShowFolder(1);
    Plot().SetFocus();
    Resize(CMainWindow::part_waveform, VK_DOWN);
    CSize const waveform = PaneSize(CMainWindow::part_waveform);
    CSize const list = PaneSize(CMainWindow::part_list);
    CloseWindow();
    OpenWindow();
    EXPECT_EQ(PaneSize(CMainWindow::part_waveform), waveform);
    EXPECT_EQ(PaneSize(CMainWindow::part_list), list);
}

TEST_F(WorkbenchByKeys, PanesThatFloatOrStandInTabsAreMadeLargerToo)
{
    ShowFolder(1);
    CDockableViewPane & waveform = m_window->Pane(CMainWindow::part_waveform);
    waveform.AttachToTabWnd(&m_window->Pane(CMainWindow::part_spectrogram), DM_SHOW, TRUE);
    tests::PumpPosted();
    Plot().SetFocus();
    EXPECT_GT(Resize(CMainWindow::part_waveform, VK_DOWN).cy, 0);
    ASSERT_TRUE(waveform.FloatPane(CRect(200, 150, 700, 450)));
    tests::PumpPosted();
    Plot().SetFocus();
    ASSERT_TRUE(tests::PumpUntil([this] { return ::GetFocus() == Plot().m_hWnd; }));
    CSize const wider = Resize(CMainWindow::part_waveform, VK_RIGHT);
    EXPECT_GT(wider.cx, 0);
    EXPECT_EQ(Resize(CMainWindow::part_waveform, VK_LEFT), CSize(-wider.cx, 0));
    EXPECT_GT(Resize(CMainWindow::part_waveform, VK_DOWN, true).cy, 0);
}

TEST_F(WorkbenchByKeys, TheRoomForFramesIsMadeWider)
{
    ShowFolder(1);
    tests::Key(L'N', {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([this] { return m_window->Frames().AnyOpen(); }));
    ASSERT_TRUE(tests::PumpUntil([this] { return !::IsChild(m_window->Pane(CMainWindow::part_list), ::GetFocus()); }));
    CSize const list = PaneSize(CMainWindow::part_list);
    int const share = m_window->Settings().frameShare;
    EXPECT_LT(Resize(CMainWindow::part_list, VK_RIGHT).cx, 0) << "what the frames get";
    Resize(CMainWindow::part_list, VK_LEFT);
    EXPECT_EQ(PaneSize(CMainWindow::part_list), list);
    EXPECT_EQ(m_window->Settings().frameShare, share);
}

TEST_F(WorkbenchByKeys, ARatingIsOpenedAtTheCellCursor)
{
    ShowFolder(2);
    List().EnableCellCursor();
    ASSERT_TRUE(List().SetCellCursor(1, CRecordingList::column_rating));
    ASSERT_TRUE(tests::PumpUntil([this] { return List().ChosenLine() == 1; }));
    tests::Key(VK_F2);
    ASSERT_TRUE(tests::PumpUntil([this] { return List().RatingCombo() != nullptr; })) << "not the comment";
    EXPECT_EQ(List().CommentEditor(), nullptr);
    tests::PumpPosted();
    tests::Key(VK_DOWN);
    tests::Key(VK_RETURN);
    ASSERT_TRUE(tests::PumpUntil([this] { return List().NotesOf(1).rating == 1 && !List().IsEditing(); }));
    ASSERT_TRUE(tests::PumpUntil([this] { return ::GetFocus() == List().m_hWnd; }));

    tests::Key(VK_DOWN, {VK_MENU});
    ASSERT_TRUE(tests::PumpUntil([this] { return List().RatingCombo() != nullptr; })) << "the line is not moved";
    EXPECT_EQ(Order(), (Lines{0, 1}));
    EXPECT_TRUE(tests::PumpUntil([] { return ShowsDropDown(); }));
    EXPECT_FALSE(InMenu());
    tests::Key(VK_DOWN);
    tests::Key(VK_RETURN);
    ASSERT_TRUE(tests::PumpUntil([this] { return List().NotesOf(1).rating == 2 && !List().IsEditing(); }));
}
