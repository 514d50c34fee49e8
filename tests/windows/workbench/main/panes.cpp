// The parts of the main window that are panes: where they are at first, what the user does with them, and what is kept.

#include "MainWindowTest.h"

#include <afxcontrolbars.h>

#include <array>
#include <functional>
#include <vector>

#include "GuardedHeap.h"

namespace
{
class WorkbenchPanes : public tests::MainWindowTest
{
protected:
    using Part = CMainWindow::Part;

    CDockableViewPane & Pane(Part part) { return m_window->Pane(part); }
    static CRect PlaceOf(CWnd const & window)
    {
        CRect place;
        window.GetWindowRect(&place);
        return place;
    }
    CRect Place(Part part) { return PlaceOf(Pane(part)); }
    std::array<CRect, CMainWindow::part_count> Places()
    {
        std::array<CRect, CMainWindow::part_count> places;
        for (auto part = 0; part < CMainWindow::part_count; ++part)
        {
            places[static_cast<std::size_t>(part)] = Place(static_cast<Part>(part));
        }
        return places;
    }
    void Restart()
    {
        CloseWindow();
        OpenWindow();
    }
    bool IsFloating(Part part) { return !Pane(part).IsDocked() && ::IsWindowVisible(Pane(part).m_hWnd); }
    void StoreFrame(CString const & name, CRect const & place)
    {
        m_store.LookupSetBool(name + L"-IstOffen", true, 0);
        m_store.LookupSetInt(name + L"-Gestalt", 0, 0);
        m_store.LookupSetInt(name + L"-Fensterpos", place.top, 0);
        m_store.LookupSetInt(name + L"-Fensterpos", place.left, 1);
        m_store.LookupSetInt(name + L"-Fensterpos", place.bottom, 2);
        m_store.LookupSetInt(name + L"-Fensterpos", place.right, 3);
        for (int index = 0; index < 4; ++index)
        {
            m_store.LookupSetInt(name + L"-FensterposMM", -1, index);
        }
    }
};

TEST_F(WorkbenchPanes, AreDockedBelowTheListAtFirst)
{
    auto const list = PlaceOf(m_window->List());
    EXPECT_GE(Place(CMainWindow::part_waveform).top, list.bottom);
    EXPECT_GE(Place(CMainWindow::part_spectrogram).top, Place(CMainWindow::part_waveform).bottom);
    EXPECT_GE(Place(CMainWindow::part_measures).top, Place(CMainWindow::part_spectrogram).bottom);
    for (auto const part : {CMainWindow::part_waveform, CMainWindow::part_spectrogram, CMainWindow::part_measures})
    {
        EXPECT_TRUE(Pane(part).IsDocked()) << part;
        EXPECT_TRUE(m_window->ShowsPane(part)) << part;
        EXPECT_TRUE(::IsWindowVisible(Pane(part).View()->m_hWnd)) << part;
    }
    EXPECT_GE(PlaceOf(m_window->Waveform()).Height(), 80);
    m_window->ShowFolders(true);
    EXPECT_LE(Place(CMainWindow::part_folders).right, PlaceOf(m_window->List()).left);
}

TEST_F(WorkbenchPanes, AreHiddenAndBroughtBackByMenuAndKeys)
{
    auto const list = PlaceOf(m_window->List());
    auto const waveform = Place(CMainWindow::part_waveform);
    tests::Key(L'2', {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([this] { return !m_window->ShowsPane(CMainWindow::part_waveform); }));
    EXPECT_FALSE(m_window->Waveform().IsWindowVisible());
    EXPECT_GT(PlaceOf(m_window->List()).Height(), list.Height());
    auto const bar = m_window->GetMenu();
    auto const & menu = *bar->GetSubMenu(static_cast<int>(bar->GetMenuItemCount()) - 1);
    CString text;
    menu.GetMenuString(1, text, MF_BYPOSITION);
    EXPECT_EQ(text, L"Waveform\tCtrl+2");
    m_window->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), 5);
    EXPECT_EQ(menu.GetMenuState(1, MF_BYPOSITION) & MF_CHECKED, 0U);
    EXPECT_NE(menu.GetMenuState(2, MF_BYPOSITION) & MF_CHECKED, 0U);
    m_window->SendMessage(WM_COMMAND, menu.GetMenuItemID(1));
    EXPECT_TRUE(m_window->ShowsPane(CMainWindow::part_waveform));
    EXPECT_EQ(Place(CMainWindow::part_waveform), waveform);
    EXPECT_EQ(PlaceOf(m_window->List()), list);
}

TEST_F(WorkbenchPanes, OneBehindATabIsBroughtToTheFrontByItsKey)
{
    Pane(CMainWindow::part_waveform).AttachToTabWnd(&Pane(CMainWindow::part_spectrogram), DM_SHOW, TRUE);
    tests::PumpPosted();
    ASSERT_TRUE(Pane(CMainWindow::part_waveform).IsWindowVisible());
    ASSERT_FALSE(Pane(CMainWindow::part_spectrogram).IsWindowVisible());
    tests::Key(L'3', {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([this] { return Pane(CMainWindow::part_spectrogram).IsWindowVisible() != FALSE; }));
    EXPECT_TRUE(m_window->ShowsPane(CMainWindow::part_waveform));
    tests::Key(L'3', {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([this] { return !m_window->ShowsPane(CMainWindow::part_spectrogram); }));
    EXPECT_TRUE(Pane(CMainWindow::part_waveform).IsWindowVisible());
}

TEST_F(WorkbenchPanes, ComeBackAfterARestartAndResetTheWayTheyWere)
{
    m_window->ShowFolders(true);
    auto const first = Places();
    auto const list = PlaceOf(m_window->List());
    CRect const floating(200, 150, 700, 450);
    ASSERT_TRUE(Pane(CMainWindow::part_waveform).FloatPane(floating));
    Pane(CMainWindow::part_measures).AttachToTabWnd(&Pane(CMainWindow::part_spectrogram), DM_SHOW, TRUE);
    m_window->ShowPane(CMainWindow::part_folders, false);
    tests::PumpPosted();
    ASSERT_TRUE(IsFloating(CMainWindow::part_waveform));
    auto const placed = Places();
    for (auto round = 0; round < 2; ++round)
    {
        Restart();
        EXPECT_TRUE(IsFloating(CMainWindow::part_waveform));
        EXPECT_EQ(Place(CMainWindow::part_waveform), placed[CMainWindow::part_waveform]);
        EXPECT_TRUE(Pane(CMainWindow::part_measures).IsTabbed());
        EXPECT_EQ(Place(CMainWindow::part_measures), placed[CMainWindow::part_measures]);
        EXPECT_FALSE(m_window->ShowsFolders());
    }
    m_window->ShowFolders(true);
    m_window->SendMessage(WM_COMMAND, ID_RESET_LAYOUT);
    EXPECT_EQ(PlaceOf(m_window->List()), list);
    auto const again = Places();
    for (std::size_t part = 0; part < again.size(); ++part)
    {
        EXPECT_EQ(again[part], first[part]) << part;
    }
    Restart();
    EXPECT_EQ(Place(CMainWindow::part_waveform), first[CMainWindow::part_waveform]);
}

TEST_F(WorkbenchPanes, AFormerFrameFloatsAtItsPlaceOnce)
{
    CloseWindow();
    ForgetSettings();
    StoreFrame(L"Spectrogram", CRect(30, 40, 430, 340));
    OpenWindow();
    EXPECT_TRUE(IsFloating(CMainWindow::part_spectrogram));
    EXPECT_TRUE(Pane(CMainWindow::part_waveform).IsDocked());
    EXPECT_FALSE(CFensterManager::OpenInitially(L"Spectrogram"));
    CRect frame;
    Pane(CMainWindow::part_spectrogram).GetParent()->GetWindowRect(&frame);
    EXPECT_EQ(frame.Size(), CSize(400, 300));
    m_window->ResetLayout();
    EXPECT_TRUE(Pane(CMainWindow::part_spectrogram).IsDocked());
    Restart();
    EXPECT_TRUE(Pane(CMainWindow::part_spectrogram).IsDocked());
}

TEST_F(WorkbenchPanes, AreDraggedOutAndBackByTheirCaptions)
{
    auto const docked = Place(CMainWindow::part_spectrogram);
    CPoint const caption(docked.left + 60, docked.top + 8);
    tests::Drag(caption, CPoint(docked.left + 300, docked.top - 120));
    ASSERT_TRUE(tests::PumpUntil([this] { return IsFloating(CMainWindow::part_spectrogram); }));
    EXPECT_GE(Place(CMainWindow::part_spectrogram).Width(), 300);
    EXPECT_GE(Place(CMainWindow::part_spectrogram).Height(), 150);
    m_window->ResetLayout();
    EXPECT_EQ(Place(CMainWindow::part_spectrogram), docked);
}

/// The main window is closed while a pane floats, is dragged, or while the user is in it.
class WorkbenchPanesClosing : public WorkbenchPanes
{
protected:
    void CloseWithin(std::function<void()> const & act, std::function<bool()> const & when)
    {
        tests::GuardedHeap heap;
        tests::LaterActions later;
        auto const window = m_window->m_hWnd;
        later.Add([=] { ::SendMessageW(window, WM_CLOSE, 0, 0); }, when);
        act();
        ASSERT_TRUE(tests::PumpUntil([&] { return later.Done() && !::IsWindow(window); }));
        EXPECT_FALSE(later.Failed());
        tests::PumpPosted();
        EXPECT_EQ(heap.Check(), 0U);
        MSG message;
        ::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
        m_window.reset();
        OpenWindow();
    }
};

TEST_F(WorkbenchPanesClosing, WhileOneFloats)
{
    ASSERT_TRUE(Pane(CMainWindow::part_waveform).FloatPane(CRect(200, 150, 700, 450)));
    m_window->Waveform().SetFocus();
    CloseWithin([] {}, [] { return true; });
    EXPECT_TRUE(IsFloating(CMainWindow::part_waveform));
}

TEST_F(WorkbenchPanesClosing, WhileOneIsDragged)
{
    auto const docked = Place(CMainWindow::part_spectrogram);
    CPoint const caption(docked.left + 60, docked.top + 8);
    tests::MoveMouse(caption);
    CloseWithin(
        [&] {
            tests::Press();
            tests::InjectMove(caption + CPoint(30, -30));
            tests::InjectMove(caption + CPoint(90, -80));
        },
        [] { return ::GetCapture() != nullptr; });
    tests::Release();
    tests::PumpPosted();
}
} // namespace
