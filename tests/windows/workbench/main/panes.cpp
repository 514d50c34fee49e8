// The parts of the main window that are panes: where they are at first, what the user does with them, and what is kept.

#include <afxcontrolbars.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <functional>
#include <vector>

#include "GuardedHeap.h"
#include "logic/Texts.h"
#include "MainWindowTest.h"
#include "WaveformPanelView.h"
#include "windows/StandaloneFrameWnd.h"

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
        for (int part = 0; part < CMainWindow::part_count; ++part)
        {
            // One that is hidden is nowhere.
            if (m_window->ShowsPane(static_cast<Part>(part)))
            {
                places[static_cast<std::size_t>(part)] = Place(static_cast<Part>(part));
            }
        }
        return places;
    }
    void Restart()
    {
        CloseWindow();
        OpenWindow();
    }
    /// As after a kill: nothing is kept on the way out.
    void RestartWithoutAClose()
    {
        m_window->DestroyWindow();
        m_window.reset();
        OpenWindow();
    }
    /// What is in the registry, one value after the other.
    static std::wstring Kept(std::wstring const & key = std::wstring(L"Software\\") + registry_key)
    {
        std::wstring kept;
        HKEY opened = nullptr;
        if (::RegOpenKeyExW(HKEY_CURRENT_USER, key.c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS)
        {
            return kept;
        }
        wchar_t name[256] = L"";
        for (DWORD index = 0, length = 256;
             ::RegEnumValueW(opened, index, name, &length, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
             ++index, length = 256)
        {
            std::vector<wchar_t> data(16'384);
            auto size = static_cast<DWORD>(data.size() * sizeof data[0]);
            ::RegQueryValueExW(opened, name, nullptr, nullptr, reinterpret_cast<BYTE *>(data.data()), &size);
            kept += name;
            kept.append(data.data(), size / sizeof data[0]);
        }
        for (DWORD index = 0, length = 256;
             ::RegEnumKeyExW(opened, index, name, &length, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
             ++index, length = 256)
        {
            kept += Kept(key + L'\\' + name);
        }
        ::RegCloseKey(opened);
        return kept;
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
    CRect const list = PlaceOf(m_window->List());
    EXPECT_GE(Place(CMainWindow::part_waveform).top, list.bottom);
    EXPECT_GE(Place(CMainWindow::part_spectrogram).top, Place(CMainWindow::part_waveform).bottom);
    EXPECT_GE(Place(CMainWindow::part_measures).top, Place(CMainWindow::part_spectrogram).bottom);
    for (CMainWindow::Part const part :
         {CMainWindow::part_waveform, CMainWindow::part_spectrogram, CMainWindow::part_measures})
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
    CRect const list = PlaceOf(m_window->List());
    CRect const waveform = Place(CMainWindow::part_waveform);
    tests::Key(L'2', {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([this] { return !m_window->ShowsPane(CMainWindow::part_waveform); }));
    EXPECT_FALSE(m_window->Waveform().IsWindowVisible());
    EXPECT_GT(PlaceOf(m_window->List()).Height(), list.Height());
    CMenu * const bar = m_window->GetMenu();
    auto const & menu = *bar->GetSubMenu(static_cast<int>(bar->GetMenuItemCount()) - 2);
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
    CRect const list = PlaceOf(m_window->List());
    CRect const floating(200, 150, 700, 450);
    ASSERT_TRUE(Pane(CMainWindow::part_waveform).FloatPane(floating));
    Pane(CMainWindow::part_measures).AttachToTabWnd(&Pane(CMainWindow::part_spectrogram), DM_SHOW, TRUE);
    m_window->ShowPane(CMainWindow::part_folders, false);
    tests::PumpPosted();
    ASSERT_TRUE(IsFloating(CMainWindow::part_waveform));
    auto const placed = Places();
    for (int round = 0; round < 2; ++round)
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

TEST_F(WorkbenchPanes, TheMeasuresShowTheirTextsWholeInEachLanguage)
{
    LCID const locale = ::GetThreadLocale();
    CDockableViewPane & pane = Pane(CMainWindow::part_measures);
    auto const check = [&](int language, wchar_t const * where) {
        CWnd * const panel = pane.View()->GetWindow(GW_CHILD);
        int seen = 0;
        for (CWnd * child = panel->GetWindow(GW_CHILD); child != nullptr; child = child->GetWindow(GW_HWNDNEXT))
        {
            wchar_t name[20] = L"";
            ::GetClassNameW(child->m_hWnd, name, static_cast<int>(std::size(name)));
            CString text;
            child->GetWindowText(text);
            text.Remove(L'&');
            if (::lstrcmpiW(name, L"STATIC") != 0 || child->GetFont() == nullptr || text.IsEmpty())
            {
                continue;
            }
            CClientDC dc(child);
            CFont * const former = dc.SelectObject(child->GetFont());
            EXPECT_TRUE(child->IsWindowVisible()) << language << where << text.GetString();
            EXPECT_GE(PlaceOf(*child).Width(), dc.GetTextExtent(text).cx) << language << where << text.GetString();
            EXPECT_LE(PlaceOf(*child).right, PlaceOf(*panel).right) << language << where << text.GetString();
            dc.SelectObject(former);
            ++seen;
        }
        EXPECT_GE(seen, 3) << language << where;
    };
    for (workbench::LanguageFacts const & language : workbench::language_facts)
    {
        m_window->ChooseLanguage(language.id);
        check(language.id, L" docked ");
    }
    ASSERT_TRUE(pane.FloatPane(CRect(100, 100, 600, 220)));
    tests::PumpPosted();
    for (workbench::LanguageFacts const & language : workbench::language_facts)
    {
        m_window->ChooseLanguage(language.id);
        check(language.id, L" floating ");
    }
    m_window->ChooseLanguage(1033);
    ::SetThreadLocale(locale);
    ::SetThreadUILanguage(0);
}

TEST_F(WorkbenchPanes, AreWhereTheyWereAfterAKill)
{
    auto const move = [&](auto const & change) {
        std::wstring const before = Kept();
        change();
        return tests::PumpUntil([&] { return Kept() != before; });
    };
    ASSERT_TRUE(move([&] { Pane(CMainWindow::part_waveform).FloatPane(CRect(100, 120, 700, 420)); }));
    ASSERT_TRUE(move([&] { Pane(CMainWindow::part_measures).DockToFrameWindow(CBRS_ALIGN_RIGHT); }));
    ASSERT_TRUE(move([&] {
        Pane(CMainWindow::part_waveform)
            .GetParent()
            ->SetWindowPos(nullptr, 140, 160, 500, 280, SWP_NOZORDER | SWP_NOACTIVATE);
    }));
    auto const placed = Places();
    RestartWithoutAClose();
    EXPECT_EQ(Places(), placed);
    EXPECT_TRUE(IsFloating(CMainWindow::part_waveform));

    // Nothing is written while all stays where it is.
    std::wstring const kept = Kept();
    tests::PumpFor(std::chrono::milliseconds(1000));
    EXPECT_EQ(Kept(), kept);
}

TEST_F(WorkbenchPanes, TheWindowIsWhereItWasAfterAKill)
{
    CRect const place(30, 40, 1130, 840);
    m_window->SetWindowPos(nullptr, place.left, place.top, place.Width(), place.Height(), SWP_NOZORDER);
    ASSERT_TRUE(tests::PumpUntil([&] {
        return m_store.LookupGetInt(L"Instrument_Workbench-Fensterpos", 1, -1) == place.left; // the left edge
    }));
    RestartWithoutAClose();
    EXPECT_EQ(PlaceOf(*m_window), place);
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
    CRect const docked = Place(CMainWindow::part_spectrogram);
    CPoint const caption(docked.left + 60, docked.top + 8);
    tests::Drag(caption, CPoint(docked.left + 300, docked.top - 120));
    ASSERT_TRUE(tests::PumpUntil([this] { return IsFloating(CMainWindow::part_spectrogram); }));
    EXPECT_GE(Place(CMainWindow::part_spectrogram).Width(), 300);
    EXPECT_GE(Place(CMainWindow::part_spectrogram).Height(), 150);
    m_window->ResetLayout();
    EXPECT_EQ(Place(CMainWindow::part_spectrogram), docked);
}

TEST_F(WorkbenchPanes, TheListIsOneOfThem)
{
    m_window->ShowTargets({Folder(3)});
    ASSERT_TRUE(WaitUntilRead());
    EXPECT_EQ(CWnd::GetFocus(), &m_window->List());
    CString title;
    Pane(CMainWindow::part_list).GetWindowText(title);
    EXPECT_EQ(title, L"Recordings");
    CRect const docked = Place(CMainWindow::part_list);
    CRect const waveform = Place(CMainWindow::part_waveform);
    CRect const spectrogram = Place(CMainWindow::part_spectrogram);
    // Torn off, it leaves its room to what was beside it.
    ASSERT_TRUE(Pane(CMainWindow::part_list).FloatPane(CRect(200, 150, 900, 450)));
    EXPECT_TRUE(IsFloating(CMainWindow::part_list));
    EXPECT_EQ(Place(CMainWindow::part_waveform).top, docked.top);
    EXPECT_EQ(Place(CMainWindow::part_waveform).bottom, waveform.bottom);
    EXPECT_EQ(Place(CMainWindow::part_spectrogram), spectrogram);
    m_window->List().SetFocus();
    tests::Key(VK_DOWN);
    ASSERT_TRUE(tests::PumpUntil([this] { return m_window->List().ChosenLine() == 1; }));
    tests::Key(L'A', {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([this] { return m_window->List().IsChecked(2); }));
    // With tabs, hidden, and brought back.
    Pane(CMainWindow::part_list).AttachToTabWnd(&Pane(CMainWindow::part_waveform), DM_SHOW, FALSE);
    EXPECT_TRUE(m_window->IsBehindTab(CMainWindow::part_list));
    tests::Key(L'5', {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([this] { return m_window->List().IsWindowVisible() != FALSE; }));
    tests::Key(L'5', {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([this] { return !m_window->ShowsPane(CMainWindow::part_list); }));
    auto const * const focus = CWnd::GetFocus();
    EXPECT_TRUE(focus != nullptr && focus->IsWindowVisible() && m_window->IsChild(focus));
    // What is done in it brings it back.
    m_window->SendMessage(WM_COMMAND, ID_EDIT_COMMENT);
    EXPECT_TRUE(m_window->List().IsWindowVisible());
    EXPECT_NE(m_window->List().CommentEditor(), nullptr);
    m_window->List().EndEditing();
    m_window->ResetLayout();
    EXPECT_EQ(Place(CMainWindow::part_list), docked);
    EXPECT_EQ(Place(CMainWindow::part_waveform), waveform);
}

TEST_F(WorkbenchPanes, TheListTakesWhatGrows)
{
    auto const heights = [this] {
        return std::array{Place(CMainWindow::part_waveform).Height(), Place(CMainWindow::part_spectrogram).Height(),
                          Place(CMainWindow::part_measures).Height()};
    };
    CRect window = PlaceOf(*m_window);
    int const list = Place(CMainWindow::part_list).Height();
    auto const others = heights();
    m_window->SetWindowPos(nullptr, 0, 0, window.Width(), window.Height() + 60, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(Place(CMainWindow::part_list).Height(), list + 60);
    EXPECT_EQ(heights(), others);
}

TEST_F(WorkbenchPanes, TheListKeepsSomeRowsOnASmallerScreenAndUnderADivider)
{
    m_window->ShowTargets({Folder(20)});
    ASSERT_TRUE(WaitUntilRead());
    auto const resize = [this](int width, int height) {
        m_window->SetWindowPos(nullptr, 0, 0, width, height, SWP_NOZORDER);
        tests::PumpPosted();
    };
    auto const rows = [this] { return m_window->List().GetCountPerPage(); };
    resize(1270, 1000);
    m_window->ResetLayout();
    ASSERT_GT(Place(CMainWindow::part_spectrogram).top, Place(CMainWindow::part_waveform).top) << "above each other";
    resize(1024, 600);
    EXPECT_GE(rows(), 3);
    Restart();
    EXPECT_GE(rows(), 3) << "restarted";
    // The divider below the list, all the way up.
    CRect const list = Place(CMainWindow::part_list);
    tests::Drag(CPoint(list.CenterPoint().x, list.bottom + 2), CPoint(list.CenterPoint().x, list.top - 20));
    tests::PumpPosted();
    EXPECT_GE(rows(), 3) << "divider";
}

TEST_F(WorkbenchPanes, FramesAndTheirMeasuresLeaveTheListItsLeastWidth)
{
    m_window->ShowTargets({Folder(2)});
    ASSERT_TRUE(WaitUntilRead());
    m_window->SetWindowPos(nullptr, 0, 0, 1024, 600, SWP_NOZORDER);
    m_window->ShowPane(CMainWindow::part_frame_measures, true);
    tests::PumpPosted();
    int const wide = Place(CMainWindow::part_measures).Width();
    ASSERT_TRUE(m_window->ShowInFrame(0));
    ASSERT_TRUE(tests::PumpUntil([&] { return Place(CMainWindow::part_measures).Width() < wide; }));
    EXPECT_GE(Place(CMainWindow::part_list).Width(), 200);
}

TEST_F(WorkbenchPanes, ALayoutFromBeforeTheListWasAPaneKeepsThePlacesOfTheOthers)
{
    ASSERT_TRUE(Pane(CMainWindow::part_measures).DockToFrameWindow(CBRS_ALIGN_TOP));
    ASSERT_TRUE(Pane(CMainWindow::part_list).DockToFrameWindow(CBRS_ALIGN_TOP)); // in the middle
    Pane(CMainWindow::part_spectrogram).AttachToTabWnd(&Pane(CMainWindow::part_waveform), DM_SHOW, TRUE);
    auto const placed = Places();
    CloseWindow();
    CString key;
    key.Format(L"Software\\%s\\Settings\\Workspace\\BasePane-%u", registry_key,
               CMainFrmInterface::id_base + CMainWindow::part_list);
    ASSERT_EQ(::RegDeleteTreeW(HKEY_CURRENT_USER, key), ERROR_SUCCESS);
    OpenWindow();
    auto const again = Places();
    for (std::size_t part = 0; part < again.size(); ++part)
    {
        EXPECT_TRUE(again[part] == placed[part] || !m_window->ShowsPane(static_cast<Part>(part))) << part;
    }
    EXPECT_TRUE(m_window->ShowsPane(CMainWindow::part_list));
}

TEST_F(WorkbenchPanes, KeysGoRoundThem)
{
    m_window->ShowFolders(true);
    m_window->ShowTargets({Folder(2)});
    ASSERT_TRUE(WaitUntilRead());
    ASSERT_TRUE(m_window->ShowInFrame(1));
    m_window->List().SetFocus();
    auto const goesTo = [](CWnd const & window) {
        return tests::PumpUntil([&] {
            HWND const focus = ::GetFocus();
            return focus == window.m_hWnd || ::IsChild(window.m_hWnd, focus);
        });
    };
    ASSERT_TRUE(Pane(CMainWindow::part_spectrogram).FloatPane(CRect(200, 150, 700, 450)));
    m_window->List().SetFocus();
    std::array<CWnd *, 6> const stops{&Pane(CMainWindow::part_list),        &Pane(CMainWindow::part_waveform),
                                      &Pane(CMainWindow::part_spectrogram), &Pane(CMainWindow::part_measures),
                                      &Pane(CMainWindow::part_folders),     m_window->Frames().Frames().at(0)->Frame()};
    for (std::size_t turn = 1; turn <= stops.size(); ++turn)
    {
        tests::Key(VK_F6);
        ASSERT_TRUE(goesTo(*stops[turn % stops.size()])) << turn;
    }
    for (std::size_t turn = stops.size(); turn-- > 0;)
    {
        tests::Key(VK_F6, {VK_SHIFT});
        ASSERT_TRUE(goesTo(*stops[turn])) << turn;
    }
    // Tab goes through the docked ones, tabs or not.
    Pane(CMainWindow::part_spectrogram).AttachToTabWnd(&Pane(CMainWindow::part_measures), DM_SHOW, FALSE);
    m_window->List().SetFocus();
    std::vector<HWND> reached;
    for (int turn = 0; turn < 12; ++turn)
    {
        HWND const focus = ::GetFocus();
        tests::Key(VK_TAB);
        ASSERT_TRUE(tests::PumpUntil([&] { return ::GetFocus() != focus; })) << turn;
        reached.push_back(::GetFocus());
    }
    for (CMainWindow::Part const part :
         {CMainWindow::part_list, CMainWindow::part_waveform, CMainWindow::part_measures, CMainWindow::part_folders})
    {
        EXPECT_TRUE(std::ranges::any_of(reached, [&](HWND window) { return ::IsChild(Pane(part).m_hWnd, window); }))
            << part;
    }
}

TEST_F(WorkbenchPanes, TheWaveformThatHasTheFocusIsAmplified)
{
    m_window->ShowTargets({Folder(2)});
    ASSERT_TRUE(WaitUntilRead());
    ASSERT_TRUE(m_window->ShowInFrame(1));
    CWaveformView & inFrame = m_window->Frames().Frames().at(0)->Cell(0)->Waveform();
    inFrame.SetFocus();
    tests::Key(VK_ADD, {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([&] { return inFrame.Amplification() > 0; }));
    EXPECT_EQ(m_window->Waveform().Amplification(), 0);
    m_window->List().SetFocus();
    int const kept = inFrame.Amplification();
    tests::Key(VK_ADD, {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([&] { return m_window->Waveform().Amplification() > 0; }));
    EXPECT_EQ(inFrame.Amplification(), kept);
}

TEST_F(WorkbenchPanes, MeasuresAreWholeBesideFramesAndClearOfTheCaption)
{
    CWnd & panel = *m_window->GetDescendantWindow(IDC_MEASURE_PANEL);
    auto const check = [&] {
        CRect const inside = PlaceOf(panel);
        for (CWnd * child = panel.GetWindow(GW_CHILD); child != nullptr; child = child->GetWindow(GW_HWNDNEXT))
        {
            if (!child->IsWindowVisible())
            {
                continue;
            }
            CRect const place = PlaceOf(*child);
            EXPECT_GT(place.top, inside.top) << child->GetDlgCtrlID();
            EXPECT_LE(place.right, inside.right) << child->GetDlgCtrlID();
            EXPECT_GT(place.Width(), 20) << child->GetDlgCtrlID();
        }
    };
    check();
    m_window->ShowTargets({Folder(1)});
    ASSERT_TRUE(WaitUntilRead());
    int const wide = PlaceOf(panel).Width();
    ASSERT_TRUE(m_window->ShowInFrame(0));
    ASSERT_TRUE(tests::PumpUntil([&] { return PlaceOf(panel).Width() < wide; }));
    check();
    panel.GetParent()->MoveWindow(0, 0, wide / 4, 40);
    check();
}

TEST_F(WorkbenchPanes, ALayoutOfASmallerResolutionFitsAGreaterOne)
{
    m_window->SetWindowPos(nullptr, 0, 0, 1400, 1200, SWP_NOZORDER);
    ASSERT_TRUE(Pane(CMainWindow::part_waveform).FloatPane(CRect(200, 150, 1900, 1450)));
    CloseWindow();
    OpenWindow(144);
    CRect work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    auto const onScreen = [&](CWnd const & window) {
        CRect common;
        CRect const place = PlaceOf(window);
        return common.IntersectRect(place, work) && common == place;
    };
    EXPECT_TRUE(onScreen(*m_window));
    EXPECT_TRUE(onScreen(*Pane(CMainWindow::part_waveform).GetParent()));
    for (int part = 0; part < CMainWindow::part_count; ++part)
    {
        EXPECT_TRUE(!m_window->ShowsPane(static_cast<Part>(part)) || onScreen(Pane(static_cast<Part>(part)))) << part;
    }
    // A pane's caption is a little higher than the system's small one.
    EXPECT_GE(PlaceOf(*m_window->GetDescendantWindow(IDC_MEASURE_PANEL)).Height(),
              CMeasurePanel::Height(workbench::ScreenMetrics(144)) - 4);
}

TEST_F(WorkbenchPanes, FollowTheLanguageAtOnce)
{
    LCID const locale = ::GetThreadLocale();
    auto const item = [this](int menu, UINT place) {
        CString text;
        m_window->GetMenu()->GetSubMenu(menu)->GetMenuString(place, text, MF_BYPOSITION);
        return std::wstring(text.GetString());
    };
    auto const name = [this](UINT place) {
        CString text;
        m_window->GetMenu()->GetMenuString(place, text, MF_BYPOSITION);
        return std::wstring(text.GetString());
    };
    std::filesystem::path const folder = Folder(1);
    std::ofstream(folder / "zero.wav") << "no recording";
    m_window->ShowTargets({folder});
    ASSERT_TRUE(WaitUntilRead());
    ASSERT_TRUE(m_window->ShowInFrame(0));
    auto const cell = [this](int line, int column) {
        return std::wstring(m_window->List().GetItemText(m_window->List().PlaceOf(line), column));
    };
    std::wstring const problem = cell(1, CRecordingList::column_status);
    std::wstring const rating = cell(0, CRecordingList::column_rating);
    UINT const count = m_window->GetMenu()->GetSubMenu(5)->GetMenuItemCount();
    m_window->ChooseLanguage(1031);
    EXPECT_EQ(name(0), L"&Datei");
    EXPECT_EQ(name(5), L"Fen&ster");
    EXPECT_EQ(item(0, 2), L"&Neu laden\tF5");
    EXPECT_EQ(item(5, 0), L"Ordner\tStrg+1");
    EXPECT_EQ(item(5, 4), L"Aufnahmen\tStrg+5");
    EXPECT_EQ(m_window->GetMenu()->GetSubMenu(5)->GetMenuItemCount(), count);
    CString title;
    Pane(CMainWindow::part_measures).GetWindowText(title);
    EXPECT_EQ(title, L"Messwerte");
    wchar_t column[40] = L"";
    HDITEM header{};
    header.mask = HDI_TEXT;
    header.pszText = column;
    header.cchTextMax = static_cast<int>(std::size(column));
    m_window->List().GetHeaderCtrl()->GetItem(CRecordingList::column_duration, &header);
    EXPECT_STREQ(column, L"Dauer");
    EXPECT_NE(cell(1, CRecordingList::column_status), problem);
    EXPECT_NE(cell(0, CRecordingList::column_rating), rating);
    // What opens and closes after that is still entered in the same menu.
    m_window->Frames().Frames().at(0)->Frame()->SendMessage(WM_CLOSE);
    EXPECT_EQ(m_window->GetMenu()->GetSubMenu(5)->GetMenuItemCount(), count - 2);
    m_window->ChooseLanguage(1033);
    EXPECT_EQ(cell(1, CRecordingList::column_status), problem);
    EXPECT_EQ(cell(0, CRecordingList::column_rating), rating);
    EXPECT_EQ(name(0), L"&File");
    EXPECT_EQ(item(5, 0), L"Folders\tCtrl+1");
    EXPECT_EQ(item(5, 6), L""); // a separator
    EXPECT_EQ(item(5, 7), L"&Reset layout");
    ::SetThreadLocale(locale);
    ::SetThreadUILanguage(0);
}

/// The main window is closed while a pane floats, is dragged, or while the user is in it.
class WorkbenchPanesClosing : public WorkbenchPanes
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
    CRect const docked = Place(CMainWindow::part_spectrogram);
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
