// The workbench's main window: opening folders, giving up, dialogs, and what it remembers.

#include <vector>

#include "frame/RegisteredMessages.h"
#include "logic/NotesStore.h"
#include "MainWindowTest.h"

namespace
{
namespace fs = std::filesystem;
using namespace std::chrono_literals;
using tests::read_limit;
using tests::WriteRecording;

bool IsAbove(HWND upper, HWND lower)
{
    for (HWND below = upper; below != nullptr; below = ::GetWindow(below, GW_HWNDNEXT))
    {
        if (below == lower)
        {
            return true;
        }
    }
    return false;
}

class WorkbenchMainWindow : public tests::MainWindowTest
{
};

TEST_F(WorkbenchMainWindow, ListsAndReadsAFolder)
{
    m_window->ShowTargets({Folder(30)});
    ASSERT_TRUE(WaitUntilRead());
    EXPECT_EQ(m_window->RecordingCount(), 30);
    EXPECT_EQ(m_window->List().GetItemCount(), 30);
    EXPECT_EQ(m_window->List().GetItemText(29, CRecordingList::column_status), L"OK");
    EXPECT_EQ(m_window->List().ChosenLine(), 0);
    EXPECT_TRUE(tests::PumpUntil([this] { return Status().starts_with(L"30 recordings.  "); })) << Status().c_str();
    EXPECT_FALSE(CancelShows());
}

TEST_F(WorkbenchMainWindow, CanBeToldToStopReading)
{
    m_window->ShowTargets({Folder(400)});
    ASSERT_TRUE(tests::PumpUntil([this] { return m_window->RecordingCount() > 0; }));
    EXPECT_TRUE(CancelShows());
    m_window->GetDescendantWindow(IDC_CANCEL_READING)->SendMessage(BM_CLICK);
    ASSERT_TRUE(tests::PumpUntil([this] { return !m_window->IsBusy(); }));
    EXPECT_FALSE(CancelShows());
    EXPECT_EQ(m_window->List().GetItemCount(), m_window->RecordingCount());
    workbench::RecordingTotals const & totals = m_window->List().Totals();
    EXPECT_EQ(totals.Lines(), static_cast<std::size_t>(m_window->RecordingCount()));
    if (totals.Unread() > 0)
    {
        EXPECT_NE(Status().find(std::to_wstring(totals.Unread()) + L" not read"), std::wstring::npos);
        // One that was left out can still be read.
        int const left = m_window->RecordingCount() - 1;
        ASSERT_TRUE(m_window->ChooseRecording(left));
        m_window->SendMessage(WM_COMMAND, ID_READ_AGAIN);
        ASSERT_TRUE(WaitUntilRead());
        EXPECT_EQ(m_window->List().GetItemText(left, CRecordingList::column_status), L"OK");
    }
}

TEST_F(WorkbenchMainWindow, StopsReadingWhenOtherRecordingsAreOpened)
{
    std::filesystem::path const folder = Folder(200);
    m_window->ShowTargets({folder});
    ASSERT_TRUE(tests::PumpUntil([this] { return m_window->RecordingCount() > 0; }));
    m_window->ShowTargets({folder / "r00007.wav"});
    ASSERT_TRUE(WaitUntilRead());
    EXPECT_EQ(m_window->RecordingCount(), 1);
    EXPECT_EQ(m_window->List().GetItemText(0, CRecordingList::column_name), L"r00007.wav");
    EXPECT_EQ(m_window->List().GetItemText(0, CRecordingList::column_status), L"OK");
}

TEST_F(WorkbenchMainWindow, TellsOfAMissingFolder)
{
    std::filesystem::path const gone = m_folder / "gone";
    m_window->ShowTargets({gone});
    ASSERT_TRUE(WaitUntilRead());
    EXPECT_TRUE(tests::PumpUntil([&] { return Status().find(gone.wstring()) != std::wstring::npos; }));
    EXPECT_EQ(m_window->RecordingCount(), 0);
}

TEST_F(WorkbenchMainWindow, ReloadsWithTheSameChoiceAndMarks)
{
    m_window->ShowTargets({Folder(40)});
    ASSERT_TRUE(WaitUntilRead());
    ASSERT_TRUE(m_window->ChooseRecording(25));
    m_window->List().SetReference(12);
    m_window->SendMessage(WM_COMMAND, ID_MARK_ALL);
    EXPECT_TRUE(tests::PumpUntil([this] { return Status().find(L"40 marked (0:00.400)") != std::wstring::npos; }));
    m_window->SendMessage(WM_COMMAND, ID_RELOAD);
    ASSERT_TRUE(WaitUntilRead());
    EXPECT_EQ(m_window->List().ChosenLine(), 25);
    EXPECT_EQ(m_window->List().ReferenceLine(), 12);
    EXPECT_TRUE(m_window->List().GetBold(12, CRecordingList::column_name));
    EXPECT_EQ(m_window->List().Totals().Checked(), 40U);
    EXPECT_EQ(m_window->List().GetHeaderCheckedState(CRecordingList::column_check), XHC_CHECKED);
}

TEST_F(WorkbenchMainWindow, ReloadsInTheSameOrder)
{
    std::filesystem::path const folder = Folder(20);
    WriteRecording(folder / "r00007.wav", 48000, 2000);
    m_window->ShowTargets({folder});
    ASSERT_TRUE(WaitUntilRead());
    CRecordingList & list = m_window->List();
    list.SortLines(CRecordingList::column_duration, false);
    ASSERT_EQ(list.LineAt(0), 7);
    auto const sorted = [&list] {
        return list.GetHeaderCheckedState(CRecordingList::column_duration) == XHC_SORT_DESCENDING;
    };
    m_window->SendMessage(WM_COMMAND, ID_RELOAD);
    ASSERT_TRUE(WaitUntilRead());
    EXPECT_TRUE(sorted());
    EXPECT_EQ(list.LineAt(0), 7);

    // A file that has changed moves to its place, one that came is put there, one that went leaves.
    WriteRecording(folder / "r00003.wav", 48000, 3000);
    WriteRecording(folder / "r00007b.wav", 48000, 1000);
    fs::remove(folder / "r00000.wav");
    m_window->SendMessage(WM_COMMAND, ID_RELOAD);
    ASSERT_TRUE(WaitUntilRead());
    EXPECT_TRUE(sorted());
    ASSERT_EQ(list.GetItemCount(), 20);
    std::vector<std::wstring> first;
    for (int row = 0; row < 3; ++row)
    {
        first.push_back(list.GetItemText(row, CRecordingList::column_name).GetString());
    }
    EXPECT_EQ(first, (std::vector<std::wstring>{L"r00003.wav", L"r00007.wav", L"r00007b.wav"}));
    EXPECT_EQ(list.GetItemText(19, CRecordingList::column_name), L"r00019.wav");
}

TEST_F(WorkbenchMainWindow, AReloadThatFindsTheSameChangesNothingToBeSeen)
{
    m_window->ShowTargets({Folder(40)});
    ASSERT_TRUE(tests::PumpUntil([this] { return !m_window->IsBusy() && !m_window->IsComputing(); }, read_limit));
    CRecordingList & list = m_window->List();
    list.SortLines(CRecordingList::column_name, false);
    ASSERT_TRUE(m_window->ChooseRecording(25));
    tests::PumpPosted();
    ASSERT_TRUE(tests::PumpUntil([this] { return !m_window->IsComputing(); }, read_limit));
    list.EnsureVisible(39, FALSE);
    int const top = list.GetTopIndex();
    m_window->SendMessage(WM_COMMAND, ID_RELOAD);
    bool same = true;
    auto const look = [&] {
        same = same && list.GetItemCount() == 40 && list.ChosenLine() == 25 && list.GetTopIndex() == top &&
               list.LineAt(0) == 39 && list.GetItemText(0, CRecordingList::column_status) == L"OK" &&
               !m_window->IsComputing();
    };
    look();
    EXPECT_TRUE(m_window->IsBusy());
    ASSERT_TRUE(tests::PumpUntil(
        [&] {
            look();
            return !m_window->IsBusy();
        },
        read_limit));
    look();
    EXPECT_TRUE(same);
}

TEST_F(WorkbenchMainWindow, AReloadShowsWhatHasBecomeOfFiles)
{
    std::filesystem::path const folder = Folder(5);
    m_window->ShowTargets({folder});
    ASSERT_TRUE(WaitUntilRead());
    CRecordingList & list = m_window->List();
    auto const status = [&list](int line) {
        return std::wstring(list.GetItemText(list.PlaceOf(line), CRecordingList::column_status).GetString());
    };
    std::ofstream(folder / "r00002.wav", std::ios::binary) << "no recording";
    m_window->SendMessage(WM_COMMAND, ID_RELOAD);
    ASSERT_TRUE(WaitUntilRead());
    EXPECT_NE(status(2), L"OK");
    EXPECT_EQ(list.GetItemCheckedState(2, CRecordingList::column_check), XLC_NONE);
    EXPECT_EQ(list.Totals().Unreadable(), 1U);
    WriteRecording(folder / "r00002.wav", 48000, 2000);
    m_window->SendMessage(WM_COMMAND, ID_RELOAD);
    ASSERT_TRUE(WaitUntilRead());
    EXPECT_EQ(status(2), L"OK");
    EXPECT_EQ(list.GetItemCheckedState(2, CRecordingList::column_check), XLC_UNCHECKED);
    EXPECT_EQ(list.Totals().Unreadable(), 0U);
    EXPECT_EQ(list.GetItemText(2, CRecordingList::column_duration).Trim(), L"0:00.042");
}

TEST_F(WorkbenchMainWindow, DetailsShowAllLinesWithoutAScrollBar)
{
    m_window->ShowTargets({Folder(1)});
    ASSERT_TRUE(WaitUntilRead());
    ASSERT_TRUE(m_window->ShowDetails(0));
    auto & field = static_cast<CEdit &>(*m_window->Details().GetDlgItem(IDC_DETAIL_TEXT));
    EXPECT_EQ(field.GetStyle() & WS_VSCROLL, 0U);
    CRect area;
    field.GetRect(&area);
    auto const top = [&field](int line) { return field.PosFromChar(static_cast<UINT>(field.LineIndex(line))).y; };
    EXPECT_LE(top(field.GetLineCount() - 2) + top(1) - top(0), area.bottom) << "the last one is empty";
}

TEST_F(WorkbenchMainWindow, KeepsItsDialogsAboveItself)
{
    m_window->ShowTargets({Folder(3)});
    ASSERT_TRUE(WaitUntilRead());
    ASSERT_TRUE(m_window->ShowDetails(0));
    ASSERT_TRUE(m_window->ShowPreview());
    ASSERT_TRUE(m_window->ShowSettings());
    for (CWnd * const dialog : {static_cast<CWnd *>(&m_window->Details()), static_cast<CWnd *>(&m_window->Preview()),
                                static_cast<CWnd *>(&m_window->SettingsSheet())})
    {
        EXPECT_EQ(::GetWindow(dialog->m_hWnd, GW_OWNER), m_window->m_hWnd);
    }
    ASSERT_TRUE(tests::BringToFront(m_window->m_hWnd));
    EXPECT_TRUE(tests::PumpUntil([&] { return IsAbove(m_window->Details().m_hWnd, m_window->m_hWnd); }));
    // They are raised one after the other.
    EXPECT_TRUE(
        tests::PumpUntil([&] { return IsAbove(m_window->SettingsSheet().m_hWnd, m_window->Preview().m_hWnd); }));
    EXPECT_TRUE(tests::PumpUntil([&] { return IsAbove(m_window->Preview().m_hWnd, m_window->Details().m_hWnd); }));
    EXPECT_EQ(::GetForegroundWindow(), m_window->m_hWnd);
}

TEST_F(WorkbenchMainWindow, ADialogWhoseStoredPlaceIsBeyondTheScreenComesBackOntoIt)
{
    m_window->ShowTargets({Folder(1)});
    ASSERT_TRUE(WaitUntilRead());
    ASSERT_TRUE(m_window->ShowDetails(0));
    CRect work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    CRect place;
    CDetailsDialog & details = m_window->Details();
    details.GetWindowRect(&place);
    details.SetWindowPos(nullptr, work.right - 80, work.bottom - 60, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    details.SendMessage(WM_CLOSE);
    ASSERT_TRUE(tests::PumpUntil([&] { return !details.IsOpen(); }));
    ASSERT_TRUE(m_window->ShowDetails(0));
    CRect now;
    details.GetWindowRect(&now);
    EXPECT_EQ(now, CRect(work.BottomRight() - place.Size(), place.Size()));
}

TEST_F(WorkbenchMainWindow, IsMaximisedAgainAndKeepsItsPlaceBelowThat)
{
    m_window->SetWindowPos(nullptr, 40, 30, 1100, 700, SWP_NOZORDER);
    CRect place;
    m_window->GetWindowRect(&place);
    m_window->ShowWindow(SW_SHOWMAXIMIZED);
    EXPECT_TRUE(workbench::ReadMaximised()) << "at once, as it could end at any time";
    CloseWindow();
    OpenWindow();
    EXPECT_TRUE(m_window->IsZoomed());
    m_window->ShowWindow(SW_SHOWMINIMIZED);
    CloseWindow();
    OpenWindow();
    EXPECT_TRUE(m_window->IsZoomed());
    m_window->ShowWindow(SW_RESTORE);
    CRect again;
    m_window->GetWindowRect(&again);
    EXPECT_EQ(again, place);
    CloseWindow();
    OpenWindow();
    EXPECT_FALSE(m_window->IsZoomed());
    m_window->GetWindowRect(&again);
    EXPECT_EQ(again, place);
}

TEST_F(WorkbenchMainWindow, AClickIntoItLeavesItsDialogsAbove)
{
    m_window->ShowTargets({Folder(6)});
    ASSERT_TRUE(WaitUntilRead());
    CRecordingList & list = m_window->List();
    ASSERT_TRUE(m_window->ShowPreview());
    ASSERT_TRUE(m_window->ShowDetails(0));
    CRect place;
    m_window->GetWindowRect(&place);
    // Aside, so that the list can be clicked.
    for (CWnd * const dialog : {static_cast<CWnd *>(&m_window->Details()), static_cast<CWnd *>(&m_window->Preview())})
    {
        dialog->SetWindowPos(nullptr, place.left + 20, place.CenterPoint().y, 0, 0,
                             SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    ASSERT_TRUE(tests::PumpUntil([&] { return ::GetForegroundWindow() == m_window->Details().m_hWnd; }));
    for (int row = 1; row < 4; ++row)
    {
        CPoint const cell = list.CellCentre(row, CRecordingList::column_channels);
        tests::Click(tests::ClientPoint(list.m_hWnd, cell));
        ASSERT_TRUE(tests::PumpUntil([&] { return list.ChosenLine() == row; }));
        tests::PumpFor(300ms); // the order must not change any more
        EXPECT_EQ(::GetForegroundWindow(), m_window->m_hWnd);
        EXPECT_TRUE(IsAbove(m_window->Details().m_hWnd, m_window->m_hWnd)) << "click " << row;
        EXPECT_TRUE(IsAbove(m_window->Preview().m_hWnd, m_window->m_hWnd)) << "click " << row;
    }

    // What comes of a click can raise the window late, when all messages of its activation are done.
    m_window->Details().SetActiveWindow();
    tests::PumpPosted();
    m_window->SetActiveWindow();
    tests::PumpPosted();
    m_window->SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
    EXPECT_TRUE(tests::PumpUntil([this] { return IsAbove(m_window->Details().m_hWnd, m_window->m_hWnd); }, 5s));
    EXPECT_TRUE(IsAbove(m_window->Preview().m_hWnd, m_window->m_hWnd));
}

TEST_F(WorkbenchMainWindow, OpensNoDetailsOfAFileThatHasTakenAnothersPlace)
{
    std::filesystem::path const folder = Folder(3);
    m_window->ShowTargets({folder});
    ASSERT_TRUE(WaitUntilRead());
    // The click is told of later; by then the row has another recording.
    m_window->List().OnItemStateChange(1, CRecordingList::column_name, WM_XLISTCTRL_LINK_CLICKED);
    m_window->ShowTargets({folder / "r00002.wav", folder / "r00000.wav"});
    ASSERT_TRUE(WaitUntilRead());
    tests::PumpPosted();
    EXPECT_FALSE(m_window->Details().IsOpen());
    m_window->List().OnItemStateChange(1, CRecordingList::column_name, WM_XLISTCTRL_LINK_CLICKED);
    EXPECT_TRUE(tests::PumpUntil([this] { return m_window->Details().IsOpen(); }));
}

TEST_F(WorkbenchMainWindow, ATitleThatIsClickedGetsRoomForItsSortMark)
{
    m_window->ShowTargets({Folder(3)});
    ASSERT_TRUE(WaitUntilRead());
    CRecordingList & list = m_window->List();
    CHeaderCtrl & header = *list.GetHeaderCtrl();
    CRect title;
    header.GetItemRect(CRecordingList::column_channels, &title);
    int const before = list.GetColumnWidth(CRecordingList::column_channels);
    tests::Click(tests::ClientPoint(header.m_hWnd, title.CenterPoint()));
    EXPECT_TRUE(tests::PumpUntil([&] { return list.GetColumnWidth(CRecordingList::column_channels) > before; }));
}

TEST_F(WorkbenchMainWindow, FitsItsScreenAtAHighResolution)
{
    CloseWindow();
    OpenWindow(144);
    MINMAXINFO info{};
    m_window->SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    CRect work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    EXPECT_LE(info.ptMinTrackSize.x, work.Width());
    EXPECT_LE(info.ptMinTrackSize.y, work.Height());
    CRect place;
    m_window->GetWindowRect(&place);
    EXPECT_LE(place.Width(), work.Width());
    EXPECT_LE(place.Height(), work.Height());
}

TEST_F(WorkbenchMainWindow, RemembersTheWidthOfAColumn)
{
    m_window->ShowTargets({Folder(3)});
    ASSERT_TRUE(WaitUntilRead());
    CRecordingList & list = m_window->List();
    CHeaderCtrl & header = *list.GetHeaderCtrl();
    CRect title;
    header.GetItemRect(CRecordingList::column_name, &title);
    int const before = list.GetColumnWidth(CRecordingList::column_name);
    CPoint const divider(title.right - 1, title.CenterPoint().y);
    tests::Drag(tests::ClientPoint(header.m_hWnd, divider), tests::ClientPoint(header.m_hWnd, divider + CPoint(57, 0)));
    EXPECT_TRUE(tests::PumpUntil([&] { return list.UserWidths().contains(CRecordingList::column_name); }));
    tests::PumpPosted();
    int const set = list.GetColumnWidth(CRecordingList::column_name);
    EXPECT_NEAR(set, before + 57, 2);
    // The others share what is left.
    EXPECT_TRUE(tests::PumpUntil([&] { return FillsItsWindow(list); })) << Widths(list);
    // Results, other files, a reload and another size of the window leave it alone.
    m_window->SendMessage(WM_COMMAND, ID_RELOAD);
    ASSERT_TRUE(WaitUntilRead());
    EXPECT_EQ(list.GetColumnWidth(CRecordingList::column_name), set);
    CRect place;
    m_window->GetWindowRect(&place);
    m_window->SetWindowPos(nullptr, 0, 0, place.Width() + 40, place.Height(), SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(list.GetColumnWidth(CRecordingList::column_name), set);

    CloseWindow();
    OpenWindow();
    EXPECT_EQ(m_window->List().GetColumnWidth(CRecordingList::column_name), set);
    m_window->SendMessage(WM_COMMAND, ID_FIT_COLUMNS);
    EXPECT_TRUE(FillsItsWindow(m_window->List())) << Widths(m_window->List());
    EXPECT_NE(m_window->List().GetColumnWidth(CRecordingList::column_name), set);
    CloseWindow();
    OpenWindow();
    EXPECT_TRUE(m_window->List().UserWidths().empty());
}

/// What the user says about recordings, in the list's editors.
class WorkbenchRecordingNotes : public WorkbenchMainWindow
{
protected:
    CRecordingList & List() { return m_window->List(); }
    void Show(int count)
    {
        m_window->ShowTargets({Folder(count)});
        ASSERT_TRUE(WaitUntilRead());
        tests::PumpPosted();
    }
    void Restart(int count)
    {
        CloseWindow();
        OpenWindow();
        Show(count);
    }
    void ClickCell(int line, CRecordingList::Column column)
    {
        tests::Click(tests::ClientPoint(List().m_hWnd, List().CellCentre(line, column)));
    }
    /// Beside the stars, where the choice of words opens.
    void ClickRating(int line)
    {
        CRect cell;
        ASSERT_TRUE(List().GetSubItemRect(List().PlaceOf(line), CRecordingList::column_rating, LVIR_BOUNDS, cell));
        tests::Click(tests::ClientPoint(List().m_hWnd, CPoint(cell.right - 8, cell.CenterPoint().y)));
    }
    void OpenComment(int line)
    {
        ClickCell(line, CRecordingList::column_comment);
        ASSERT_TRUE(tests::PumpUntil([this] { return List().CommentEditor() != nullptr; }));
        tests::PumpPosted();
    }
    void TypeComment(std::wstring const & text)
    {
        tests::Type(text);
        ASSERT_TRUE(tests::PumpUntil([&] {
            CString shown;
            CWnd::FromHandle(List().CommentEditor())->GetWindowText(shown);
            return shown == text.c_str();
        }));
    }
    bool WaitUntilClosed()
    {
        return tests::PumpUntil([this] { return !List().IsEditing(); });
    }
    /// The list that a combo has dropped; it is a child of the desktop.
    static HWND VisibleDropList()
    {
        HWND found = nullptr;
        ::EnumThreadWindows(
            ::GetCurrentThreadId(),
            [](HWND window, LPARAM result) -> BOOL {
                if (::IsWindowVisible(window) && (::GetWindowLongW(window, GWL_STYLE) & WS_CHILD) != 0)
                {
                    *reinterpret_cast<HWND *>(result) = window;
                }
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&found));
        return found;
    }
    CString Cell(int line, CRecordingList::Column column) { return List().GetItemText(List().PlaceOf(line), column); }
    std::wstring StoredComment(fs::path const & file) const
    {
        return workbench::NotesStore(workbench::NotesFile()).Of(file).comment;
    }
    fs::path File(int line) const { return m_folder / "recordings" / ("r0000" + std::to_string(line) + ".wav"); }
};

TEST_F(WorkbenchRecordingNotes, ACommentIsTypedStoredAndShownAgain)
{
    Show(5);
    OpenComment(2);
    TypeComment(L"Brummen \u00FCber 50 Hz");
    tests::Key(VK_RETURN);
    ASSERT_TRUE(WaitUntilClosed());
    EXPECT_EQ(List().NotesOf(2).comment, L"Brummen \u00FCber 50 Hz");
    EXPECT_TRUE(tests::PumpUntil([this] { return StoredComment(File(2)) == L"Brummen \u00FCber 50 Hz"; }));
    m_window->SendMessage(WM_COMMAND, ID_RELOAD);
    ASSERT_TRUE(WaitUntilRead());
    EXPECT_EQ(Cell(2, CRecordingList::column_comment), L"Brummen \u00FCber 50 Hz");
    // And where the files are others, so that the lines are listed anew.
    fs::remove(File(0));
    m_window->SendMessage(WM_COMMAND, ID_RELOAD);
    ASSERT_TRUE(WaitUntilRead());
    ASSERT_EQ(List().LineCount(), 4);
    EXPECT_EQ(Cell(1, CRecordingList::column_comment), L"Brummen \u00FCber 50 Hz");
    EXPECT_EQ(Cell(2, CRecordingList::column_comment), L"");
    Restart(5);
    EXPECT_EQ(Cell(2, CRecordingList::column_comment), L"Brummen \u00FCber 50 Hz");
    EXPECT_EQ(List().NotesOf(2).comment, L"Brummen \u00FCber 50 Hz");
}

TEST_F(WorkbenchRecordingNotes, ARatingIsChosenInTheDropDownAndStored)
{
    Show(5);
    ClickRating(1);
    ASSERT_TRUE(tests::PumpUntil([] { return VisibleDropList() != nullptr; }));
    tests::Key(VK_DOWN);
    tests::Key(VK_DOWN);
    tests::Key(VK_RETURN);
    ASSERT_TRUE(tests::PumpUntil([this] { return List().NotesOf(1).rating == 2; }));
    ASSERT_TRUE(WaitUntilClosed());
    EXPECT_EQ(Cell(1, CRecordingList::column_rating), L"Usable");
    Restart(5);
    EXPECT_EQ(Cell(1, CRecordingList::column_rating), L"Usable");
    EXPECT_EQ(List().GetComboCurSel(1, CRecordingList::column_rating), 2);
    // By the keyboard alone.
    ASSERT_TRUE(m_window->ChooseRecording(3));
    tests::Key(VK_F4);
    ASSERT_TRUE(tests::PumpUntil([] { return VisibleDropList() != nullptr; }));
    tests::Key(VK_DOWN);
    tests::Key(VK_RETURN);
    EXPECT_TRUE(tests::PumpUntil([this] { return List().NotesOf(3).rating == 1; }));
}

TEST_F(WorkbenchRecordingNotes, NoRowIsDraggedUnderAnOpenRating)
{
    Show(5);
    ClickRating(1);
    ASSERT_TRUE(tests::PumpUntil([] { return VisibleDropList() != nullptr; }));
    // As the native list tells it when a press beside the editor becomes a drag.
    NMLISTVIEW drag{};
    drag.hdr = {List().m_hWnd, static_cast<UINT_PTR>(List().GetDlgCtrlID()), LVN_BEGINDRAG};
    drag.iItem = 1;
    List().GetParent()->SendMessage(WM_NOTIFY, drag.hdr.idFrom, reinterpret_cast<LPARAM>(&drag));
    EXPECT_FALSE(List().IsEditing());
    CPoint const below = List().CellCentre(3, CRecordingList::column_comment);
    List().SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(below.x, below.y));
    List().SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(below.x, below.y));
    for (int line = 0; line < 5; ++line)
    {
        EXPECT_EQ(List().PlaceOf(line), line);
    }
    EXPECT_EQ(List().NotesOf(1).rating, 0);
}

TEST_F(WorkbenchRecordingNotes, MarksAndTheReferenceLastToo)
{
    Show(5);
    ClickCell(0, CRecordingList::column_check);
    ASSERT_TRUE(tests::PumpUntil([this] { return List().IsChecked(0); }));
    ClickCell(4, CRecordingList::column_reference);
    ASSERT_TRUE(tests::PumpUntil([this] { return List().ReferenceLine() == 4; }));
    ClickCell(3, CRecordingList::column_reference);
    ASSERT_TRUE(tests::PumpUntil([this] { return List().ReferenceLine() == 3; }));
    Restart(5);
    EXPECT_TRUE(List().IsChecked(0));
    EXPECT_FALSE(List().IsChecked(1));
    EXPECT_EQ(List().ReferenceLine(), 3);
    EXPECT_FALSE(List().NotesOf(4).reference);
    EXPECT_TRUE(List().GetBold(3, CRecordingList::column_name));
    EXPECT_EQ(List().GetHeaderCheckedState(CRecordingList::column_check), XHC_MIXED);
}

TEST_F(WorkbenchRecordingNotes, WhatWasSaidOfAFileOutlastsItsDamage)
{
    Show(3);
    List().SetReference(1);
    List().EditComment(1);
    TypeComment(L"kept");
    tests::Key(VK_RETURN);
    ASSERT_TRUE(WaitUntilClosed());
    ClickCell(1, CRecordingList::column_check);
    ASSERT_TRUE(tests::PumpUntil([this] { return List().IsChecked(1); }));
    std::ofstream(File(1), std::ios::binary) << "no recording";
    m_window->SendMessage(WM_COMMAND, ID_RELOAD);
    ASSERT_TRUE(WaitUntilRead());
    EXPECT_EQ(List().ReferenceLine(), -1);
    EXPECT_FALSE(List().IsChecked(1));
    WriteRecording(File(1));
    m_window->SendMessage(WM_COMMAND, ID_RELOAD);
    ASSERT_TRUE(WaitUntilRead());
    EXPECT_EQ(List().ReferenceLine(), 1);
    EXPECT_TRUE(List().IsChecked(1));
    EXPECT_EQ(Cell(1, CRecordingList::column_comment), L"kept");
    EXPECT_TRUE(List().GetBold(1, CRecordingList::column_name));
}

TEST_F(WorkbenchRecordingNotes, F2EditsTheChosenLinesComment)
{
    Show(5);
    ASSERT_TRUE(m_window->ChooseRecording(3));
    tests::Key(VK_F2);
    ASSERT_TRUE(tests::PumpUntil([this] { return List().CommentEditor() != nullptr; }));
    TypeComment(L"one");
    // Letters with Ctrl are the editor's, not commands.
    tests::Key(L'A', {VK_CONTROL});
    TypeComment(L"two");
    EXPECT_EQ(List().Totals().Checked(), 0U);
    tests::Key(VK_F2);
    tests::Key(VK_RETURN);
    ASSERT_TRUE(WaitUntilClosed());
    EXPECT_EQ(List().NotesOf(3).comment, L"two");
    EXPECT_EQ(::GetFocus(), List().m_hWnd);
    // Escape takes nothing.
    tests::Key(VK_F2);
    ASSERT_TRUE(tests::PumpUntil([this] { return List().CommentEditor() != nullptr; }));
    TypeComment(L"three");
    tests::Key(VK_ESCAPE);
    ASSERT_TRUE(WaitUntilClosed());
    EXPECT_EQ(List().NotesOf(3).comment, L"two");
    EXPECT_EQ(Cell(3, CRecordingList::column_comment), L"two");
}

TEST_F(WorkbenchRecordingNotes, TheFirstClickElsewhereTakesTheComment)
{
    Show(5);
    OpenComment(1);
    TypeComment(L"one");
    OpenComment(3);
    EXPECT_EQ(List().NotesOf(1).comment, L"one");
    TypeComment(L"three");
    ClickCell(0, CRecordingList::column_check);
    ASSERT_TRUE(tests::PumpUntil([this] { return List().IsChecked(0); }));
    EXPECT_FALSE(List().IsEditing());
    EXPECT_EQ(List().NotesOf(3).comment, L"three");
}

TEST_F(WorkbenchRecordingNotes, ACommentStaysWithItsRecordingWhenLinesAreSorted)
{
    Show(5);
    OpenComment(1);
    TypeComment(L"of r1");
    List().SortLines(CRecordingList::column_name, false);
    EXPECT_FALSE(List().IsEditing());
    EXPECT_EQ(List().NotesOf(1).comment, L"of r1");
    EXPECT_EQ(List().NotesOf(3).comment, L"");
    EXPECT_EQ(Cell(1, CRecordingList::column_comment), L"of r1");
    List().ChooseRating(0);
    ASSERT_TRUE(tests::PumpUntil([] { return VisibleDropList() != nullptr; }));
    List().SortLines(CRecordingList::column_name, true);
    EXPECT_FALSE(List().IsEditing());
    tests::PumpFor(200ms); // what the combo would still do comes after 50 ms
    for (int line = 0; line < 5; ++line)
    {
        EXPECT_EQ(List().NotesOf(line).rating, 0);
        EXPECT_EQ(Cell(line, CRecordingList::column_rating), L"Not rated");
    }
}

TEST_F(WorkbenchRecordingNotes, AReloadAndOtherFilesTakeTheCommentFirst)
{
    Show(5);
    OpenComment(4);
    TypeComment(L"before F5");
    fs::remove(File(0));
    tests::Key(VK_F5);
    ASSERT_TRUE(tests::PumpUntil([this] { return List().LineCount() == 4; }, read_limit));
    ASSERT_TRUE(WaitUntilRead());
    EXPECT_FALSE(List().IsEditing());
    EXPECT_EQ(Cell(3, CRecordingList::column_comment), L"before F5");
    OpenComment(0);
    TypeComment(L"before others");
    m_window->ShowTargets({File(4)});
    ASSERT_TRUE(WaitUntilRead());
    CloseWindow();
    EXPECT_EQ(StoredComment(File(1)), L"before others");
    EXPECT_EQ(StoredComment(File(4)), L"before F5");
    OpenWindow();
}

TEST_F(WorkbenchRecordingNotes, AnOpenEditorIsTakenAtTheEnd)
{
    Show(3);
    OpenComment(0);
    TypeComment(L"the last word");
    CloseWindow();
    EXPECT_EQ(StoredComment(File(0)), L"the last word");
    OpenWindow();
}

TEST_F(WorkbenchRecordingNotes, AnOpenRatingEndsWithTheWindow)
{
    m_window->ShowTargets({Folder(3)});
    ASSERT_TRUE(WaitUntilRead());
    m_window->List().ChooseLine(2);
    m_window->List().ChooseRating(2);
    ASSERT_NE(m_window->List().RatingCombo(), nullptr);
    tests::PumpPosted();
    CloseWindow();
    OpenWindow();
    m_window->ShowTargets({m_folder / "recordings"});
    ASSERT_TRUE(WaitUntilRead());
    EXPECT_TRUE(tests::PumpUntil([this] { return m_window->List().ChosenLine() == 2; })) << "the view was kept";
}

TEST_F(WorkbenchRecordingNotes, LinesAreNotSortedUnderAnEditorByResults)
{
    Show(5);
    List().SortLines(CRecordingList::column_duration, false);
    WriteRecording(File(3), 48000, 3000);
    OpenComment(3);
    int const place = List().PlaceOf(3);
    TypeComment(L"long");
    // The file is read again in the background.
    m_window->PostMessage(WM_COMMAND, ID_READ_AGAIN);
    ASSERT_TRUE(tests::PumpUntil([this] { return Cell(3, CRecordingList::column_duration).Trim() == L"0:00.063"; }));
    ASSERT_TRUE(WaitUntilRead());
    EXPECT_TRUE(List().IsEditing());
    EXPECT_EQ(List().PlaceOf(3), place);
    tests::Key(VK_RETURN);
    ASSERT_TRUE(tests::PumpUntil([this] { return List().PlaceOf(3) == 0; }));
    EXPECT_EQ(List().NotesOf(3).comment, L"long");
}

TEST_F(WorkbenchRecordingNotes, SaysThatNotesCannotBeStored)
{
    // A folder stands where the file should be.
    fs::create_directories(workbench::NotesFile() / "in the way");
    Show(2);
    m_window->SendMessage(WM_COMMAND, ID_MARK_ALL);
    EXPECT_TRUE(tests::PumpUntil([this] { return Status().find(L"cannot be stored") != std::wstring::npos; }));
    fs::remove_all(workbench::NotesFile());
    EXPECT_TRUE(tests::PumpUntil([this] { return Status().find(L"cannot be stored") == std::wstring::npos; }));
}
} // namespace
