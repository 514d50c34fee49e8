// Waveforms in frames of their own: opening, what they show, where they stand, their coming back, and their end.

#include <algorithm>
#include <array>
#include <fstream>
#include <functional>
#include <vector>

#include "GuardedHeap.h"
#include "MainWindowTest.h"
#include "WaveformPanelView.h"
#include "windows/StandaloneFrameWnd.h"

namespace
{
namespace fs = std::filesystem;

std::wstring TextOf(CWnd const & window)
{
    CString text;
    window.GetWindowText(text);
    return text.GetString();
}

class WorkbenchFrames : public tests::MainWindowTest
{
protected:
    CWaveformFrames & Frames() { return m_window->Frames(); }
    CRecordingList & List() { return m_window->List(); }
    void Show(int count)
    {
        m_window->ShowTargets({Folder(count)});
        ASSERT_TRUE(WaitUntilRead());
        tests::PumpPosted();
    }
    CWaveformFrame & Only()
    {
        std::vector<CWaveformFrame *> const frames = Frames().Frames();
        return *frames.at(0);
    }
    CWaveformView & Waveform(std::size_t cell = 0) { return Only().Cell(cell)->Waveform(); }
    HWND Area() const { return m_window->m_hWndMDIClient; }
    CRect PlaceOf(CWnd const & window)
    {
        CRect place;
        window.GetWindowRect(&place);
        m_window->ScreenToClient(&place);
        return place;
    }
    std::vector<std::wstring> WindowMenu()
    {
        CMenu & menu = *m_window->GetMenu()->GetSubMenu(static_cast<int>(m_window->GetMenu()->GetMenuItemCount()) - 2);
        std::vector<std::wstring> items;
        for (UINT i = 0; i < menu.GetMenuItemCount(); ++i)
        {
            CString text;
            menu.GetMenuString(i, text, MF_BYPOSITION);
            items.emplace_back(text.GetString());
        }
        return items;
    }
    fs::path File(int line) const { return m_folder / "recordings" / ("r0000" + std::to_string(line) + ".wav"); }
    bool WaitForFrames()
    {
        return tests::PumpUntil([this] { return !Frames().IsReading(); }, tests::read_limit);
    }
};

TEST_F(WorkbenchFrames, ARecordingOpensInAFrameBesideTheList)
{
    Show(4);
    CRect const before = PlaceOf(List());
    EXPECT_FALSE(::IsWindowVisible(Area()));
    ASSERT_TRUE(m_window->ChooseRecording(2));
    tests::Key(L'N', {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([this] { return Frames().Frames().size() == 1; }));
    tests::PumpPosted();
    EXPECT_TRUE(::IsWindowVisible(Area()));
    EXPECT_EQ(TextOf(*Only().Frame()), L"r00002.wav");
    EXPECT_TRUE(Waveform().ShowsRecording());
    CRect frame;
    Only().Frame()->GetWindowRect(&frame);
    CRect area;
    ::GetClientRect(Area(), &area);
    EXPECT_EQ(frame.Size(), area.Size());
    EXPECT_LT(PlaceOf(List()).right, before.right);
    EXPECT_EQ(WindowMenu().back(), L"r00002.wav");
    // Once more only brings it to the front, another recording has a frame of its own.
    m_window->SendMessage(WM_COMMAND, ID_SHOW_IN_FRAME);
    EXPECT_EQ(Frames().Frames().size(), 1U);
    m_window->ShowInFrame(3);
    EXPECT_EQ(Frames().Frames().size(), 2U);
    EXPECT_EQ(m_window->MDIGetActive(), Frames().Frames()[1]->Frame());
    m_window->ShowInFrame(2);
    EXPECT_EQ(m_window->MDIGetActive(), Only().Frame());
    // With the last frame the room goes.
    std::size_t const menu = WindowMenu().size();
    m_window->SendMessage(WM_COMMAND, ID_CLOSE_DIALOGS);
    ASSERT_TRUE(tests::PumpUntil([this] { return !Frames().AnyOpen() && !::IsWindowVisible(Area()); }));
    EXPECT_EQ(PlaceOf(List()), before);
    EXPECT_EQ(WindowMenu().size(), menu - 3); // with the separator above them
}

TEST_F(WorkbenchFrames, FourAreComparedInAGrid)
{
    Show(6);
    ASSERT_TRUE(m_window->ChooseRecording(1));
    ASSERT_TRUE(m_window->CompareFour());
    ASSERT_EQ(Frames().Frames().size(), 1U);
    EXPECT_EQ(TextOf(*Only().Frame()), L"Comparison: r00001.wav, r00002.wav, r00003.wav, r00004.wav");
    std::array<CRect, 4> places;
    for (std::size_t cell = 0; cell < places.size(); ++cell)
    {
        ASSERT_NE(Only().Cell(cell), nullptr);
        EXPECT_TRUE(Waveform(cell).ShowsRecording()) << cell;
        places[cell] = PlaceOf(*Only().Cell(cell));
    }
    EXPECT_EQ(places[0].top, places[1].top);
    EXPECT_EQ(places[0].left, places[2].left);
    EXPECT_GT(places[1].left, places[0].right - 1);
    EXPECT_GT(places[2].top, places[0].bottom - 1);
    // The cells share the room.
    EXPECT_NEAR(places[0].Width(), places[1].Width(), 12);
    EXPECT_NEAR(places[0].Height(), places[2].Height(), 12);
    Only().Frame()->SetWindowPos(nullptr, 0, 0, 400, 500, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_NEAR(PlaceOf(*Only().Cell(0)).Width(), PlaceOf(*Only().Cell(1)).Width(), 12);
    EXPECT_NEAR(PlaceOf(*Only().Cell(0)).Height(), PlaceOf(*Only().Cell(2)).Height(), 12);
    // F6 goes round the cells.
    Waveform(0).SetFocus();
    tests::Key(VK_F6);
    EXPECT_TRUE(tests::PumpUntil([this] { return CWnd::GetFocus() == &Waveform(1); }));
    // Marked ones come first; cells without a recording say so.
    Only().Frame()->SendMessage(WM_CLOSE);
    tests::Click(tests::ClientPoint(List().m_hWnd, List().CellCentre(5, CRecordingList::column_check)));
    ASSERT_TRUE(tests::PumpUntil([this] { return List().IsChecked(5); }));
    ASSERT_TRUE(m_window->CompareFour());
    EXPECT_EQ(TextOf(*Only().Frame()), L"Comparison: r00005.wav");
    EXPECT_TRUE(Waveform(0).ShowsRecording());
    EXPECT_FALSE(Waveform(3).ShowsRecording());
}

TEST_F(WorkbenchFrames, ComeBackAtTheirPlacesWithTheirRecordings)
{
    Show(6);
    ASSERT_TRUE(m_window->ShowInFrame(4));
    ASSERT_TRUE(m_window->ShowInFrame(1));
    ASSERT_TRUE(m_window->CompareFour());
    Frames().Frames()[1]->Frame()->SendMessage(WM_CLOSE);
    CStandaloneFrameWnd & frame = *Only().Frame();
    frame.SetWindowPos(nullptr, 30, 40, 333, 222, SWP_NOZORDER);
    CRect const place = PlaceOf(frame);
    CloseWindow();
    fs::remove(File(2));
    OpenWindow();
    ASSERT_EQ(Frames().Frames().size(), 2U);
    EXPECT_EQ(TextOf(*Only().Frame()), L"r00004.wav");
    EXPECT_EQ(PlaceOf(*Only().Frame()), place);
    EXPECT_GT(PlaceOf(Waveform()).Width(), 200);
    EXPECT_GT(PlaceOf(Waveform()).Height(), 150);
    // No list of recordings is there yet.
    ASSERT_TRUE(WaitForFrames());
    EXPECT_TRUE(Waveform().ShowsRecording());
    CWaveformFrame & grid = *Frames().Frames()[1];
    EXPECT_TRUE(grid.Cell(0)->Waveform().ShowsRecording());
    EXPECT_FALSE(grid.Cell(2)->Waveform().ShowsRecording()); // its file has gone
    EXPECT_TRUE(grid.Cell(3)->Waveform().ShowsRecording());
    // Those that the user closes stay closed, as do those of which nothing is left.
    grid.Frame()->SendMessage(WM_CLOSE);
    CloseWindow();
    fs::remove(File(4));
    OpenWindow();
    EXPECT_TRUE(Frames().Frames().empty());
    EXPECT_FALSE(::IsWindowVisible(Area()));
}

TEST_F(WorkbenchFrames, AReloadShowsWhatHasBecomeOfTheFile)
{
    Show(3);
    ASSERT_TRUE(m_window->ShowInFrame(1));
    std::ofstream(File(1), std::ios::binary) << "no recording";
    m_window->SendMessage(WM_COMMAND, ID_RELOAD);
    ASSERT_TRUE(WaitUntilRead());
    ASSERT_TRUE(WaitForFrames());
    EXPECT_FALSE(Waveform().ShowsRecording());
    EXPECT_TRUE(Only().Recordings().front().analysis->problem);
    fs::remove(File(1));
    m_window->SendMessage(WM_COMMAND, ID_RELOAD);
    ASSERT_TRUE(WaitUntilRead());
    ASSERT_TRUE(WaitForFrames());
    EXPECT_EQ(m_window->RecordingCount(), 2);
    EXPECT_TRUE(Only().Recordings().front().analysis->problem);
    tests::WriteRecording(File(1));
    tests::WriteRecording(m_folder / "other.wav");
    m_window->SendMessage(WM_COMMAND, ID_RELOAD);
    ASSERT_TRUE(WaitForFrames());
    EXPECT_TRUE(Waveform().ShowsRecording());
    // What the list shows is nothing to the frame.
    m_window->ShowTargets({m_folder / "other.wav"});
    ASSERT_TRUE(WaitUntilRead());
    EXPECT_TRUE(Waveform().ShowsRecording());
}

TEST_F(WorkbenchFrames, TheirSettingsFollow)
{
    Show(2);
    ASSERT_TRUE(m_window->ShowInFrame(0));
    auto const hasGround = [this](COLORREF colour) {
        Waveform().UpdateWindow();
        CRect const plot = Waveform().PlotPlace();
        CClientDC dc(&Waveform());
        int found = 0;
        for (LONG y = plot.top; y < plot.bottom; ++y)
        {
            found += dc.GetPixel(plot.left + 4, y) == colour ? 1 : 0;
        }
        return found > plot.Height() / 2;
    };
    EXPECT_TRUE(hasGround(workbench::WaveformColours().background));
    auto settings = m_window->Settings();
    settings.waveform.background = RGB(20, 90, 40);
    m_window->SettingsSheet().m_onAccepted(settings);
    EXPECT_TRUE(hasGround(RGB(20, 90, 40)));
}

TEST_F(WorkbenchFrames, TheRoomForFramesIsMovedAndRemembered)
{
    Show(2);
    ASSERT_TRUE(m_window->ShowInFrame(0));
    tests::PumpPosted();
    CRect before;
    ::GetWindowRect(Area(), &before);
    CPoint const edge(before.left - 2, before.CenterPoint().y);
    tests::Drag(edge, edge + CPoint(80, 0));
    CRect after;
    ASSERT_TRUE(tests::PumpUntil([&] {
        ::GetWindowRect(Area(), &after);
        return after.left > before.left + 60;
    }));
    tests::PumpPosted();
    ::GetWindowRect(Area(), &after);
    CloseWindow();
    OpenWindow();
    Show(2);
    ASSERT_EQ(Frames().Frames().size(), 1U);
    CRect again;
    ::GetWindowRect(Area(), &again);
    EXPECT_EQ(again, after);
}

TEST_F(WorkbenchFrames, TheFocusStaysWhereItWas)
{
    Show(4);
    List().SetFocus();
    ASSERT_TRUE(m_window->ShowInFrame(0));
    ASSERT_TRUE(m_window->ShowSettings());
    EXPECT_TRUE(tests::PumpUntil([this] { return CWnd::GetActiveWindow() == &m_window->SettingsSheet(); }));
    m_window->SettingsSheet().CloseDialog();
    ASSERT_TRUE(tests::PumpUntil([this] { return !m_window->SettingsSheet().IsOpen(); }));
    ASSERT_TRUE(tests::BringToFront(m_window->m_hWnd));
    // The frame's plot has had it since the frame opened.
    EXPECT_TRUE(tests::PumpUntil([this] { return CWnd::GetFocus() == &Waveform(); }));
    std::optional<std::uint64_t> const cursor = Waveform().Cursor();
    tests::Key(VK_RIGHT);
    EXPECT_TRUE(tests::PumpUntil([&] { return Waveform().Cursor() != cursor; }));
    // A click into the list has it there, and a change of windows leaves it.
    tests::Click(tests::ClientPoint(List().m_hWnd, List().CellCentre(2, CRecordingList::column_duration)));
    ASSERT_TRUE(tests::PumpUntil([this] { return CWnd::GetFocus() == &List() && List().ChosenLine() == 2; }));
    ASSERT_TRUE(m_window->ShowDetails(2));
    ASSERT_TRUE(tests::PumpUntil([this] { return CWnd::GetActiveWindow() == &m_window->Details(); }));
    ASSERT_TRUE(tests::BringToFront(m_window->m_hWnd));
    EXPECT_TRUE(tests::PumpUntil([this] { return CWnd::GetFocus() == &List(); }));
    // With the last frame the focus goes back to the list.
    m_window->CloseDialogs();
    Frames().Open({File(1), nullptr});
    ASSERT_TRUE(tests::PumpUntil([this] { return CWnd::GetFocus() == &Waveform(); }));
    tests::Key(VK_F4, {VK_CONTROL});
    EXPECT_TRUE(tests::PumpUntil([this] { return !Frames().AnyOpen() && CWnd::GetFocus() == &List(); }));
}

TEST_F(WorkbenchFrames, ThereIsAnEndToTheirNumber)
{
    Show(20);
    for (int line = 0; line < CWaveformFrames::most_single; ++line)
    {
        ASSERT_TRUE(m_window->ShowInFrame(line)) << line;
    }
    EXPECT_FALSE(m_window->ShowInFrame(CWaveformFrames::most_single));
    EXPECT_TRUE(m_window->ShowInFrame(3)); // it has one
    for (int grid = 0; grid < CWaveformFrames::most_grids; ++grid)
    {
        ASSERT_TRUE(m_window->CompareFour());
    }
    EXPECT_FALSE(m_window->CompareFour());
    for (int const command : {ID_WINDOW_CASCADE, ID_WINDOW_TILE_HORZ, ID_WINDOW_TILE_VERT})
    {
        m_window->SendMessage(WM_COMMAND, static_cast<WPARAM>(command));
    }
    m_window->SendMessage(WM_COMMAND, ID_CLOSE_DIALOGS);
    EXPECT_FALSE(Frames().AnyOpen());
    EXPECT_TRUE(m_window->ShowInFrame(CWaveformFrames::most_single));
}

/// The main window is closed while frames are open, being read, moved or sized.
class WorkbenchFramesClosing : public WorkbenchFrames
{
protected:
    void CloseWithin(std::function<void()> const & act, std::function<bool()> const & when)
    {
        tests::GuardedHeap heap;
        tests::LaterActions later;
        HWND const window = m_window->m_hWnd;
        later.Add([=] { ::SendMessageW(window, WM_CLOSE, 0, 0); }, when);
        act();
        ASSERT_TRUE(tests::PumpUntil([&] { return later.Done() && !::IsWindow(window); }));
        EXPECT_FALSE(later.Failed());
        tests::PumpPosted();
        EXPECT_TRUE(Frames().Frames().empty());
        EXPECT_EQ(heap.Check(), 0U);
        MSG message;
        ::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
        m_window.reset();
        OpenWindow();
    }
};

TEST_F(WorkbenchFramesClosing, WhileTheyAreRead)
{
    Show(5);
    CloseWithin(
        [this] {
            for (int i = 0; i < 5; ++i)
            {
                Frames().Open({File(i), nullptr});
            }
        },
        [] { return true; });
    EXPECT_EQ(Frames().Frames().size(), 5U);
    ASSERT_TRUE(WaitForFrames());
}

TEST_F(WorkbenchFramesClosing, WhileOneIsDragged)
{
    Show(5);
    ASSERT_TRUE(m_window->ShowInFrame(1));
    CStandaloneFrameWnd & frame = *Only().Frame();
    frame.SetWindowPos(nullptr, 20, 20, 300, 200, SWP_NOZORDER);
    tests::PumpPosted();
    CRect place;
    frame.GetWindowRect(&place);
    CPoint const caption(place.CenterPoint().x, place.top + 12);
    tests::MoveMouse(caption);
    CloseWithin(
        [&] {
            tests::Press();
            tests::InjectMove(caption + CPoint(10, 5));
            tests::InjectMove(caption + CPoint(40, 30));
        },
        [window = frame.m_hWnd] { return ::GetCapture() == window; });
    tests::Release();
    tests::PumpPosted();
    EXPECT_EQ(Frames().Frames().size(), 1U);
}

TEST_F(WorkbenchFramesClosing, WhileTheirRoomIsMoved)
{
    Show(2);
    ASSERT_TRUE(m_window->CompareFour());
    tests::PumpPosted();
    CRect area;
    ::GetWindowRect(Area(), &area);
    CPoint const edge(area.left - 2, area.CenterPoint().y);
    tests::MoveMouse(edge);
    CloseWithin(
        [&] {
            tests::Press();
            tests::MoveMouse(edge + CPoint(20, 0));
        },
        [] { return ::GetCapture() != nullptr; });
    tests::Release();
    tests::PumpPosted();
}

TEST_F(WorkbenchFramesClosing, AnObjectThatEndsWithItsWindowTakesTheFramesAlong)
{
    Show(2);
    ASSERT_TRUE(m_window->ShowInFrame(0));
    ASSERT_TRUE(m_window->CompareFour());
    {
        tests::GuardedHeap heap;
        m_window.reset();
        tests::App().m_pMainWnd = nullptr;
        tests::PumpPosted();
        EXPECT_EQ(heap.Check(), 0U);
    }
    MSG message;
    ::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
    OpenWindow();
}
} // namespace
