// The small controls of the workbench: what they do to its windows, what of it is remembered, and that they can be
// closed at any time.

#include <algorithm>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "../../ImportPatch.h"
#include "Bitmap.h"
#include "controls/ComboBoxX.h"
#include "controls/IdNameMultiselectCtrl.h"
#include "controls/XEditBrowseCtrl.h"
#include "GuardedHeap.h"
#include "logic/Texts.h"
#include "MainWindowTest.h"
#include "RecordingCells.h"

namespace
{
namespace fs = std::filesystem;
using namespace std::chrono_literals;
using workbench::WaveformColours;

// Of the system's choice of colours.
constexpr int red_field = 706;
constexpr int green_field = 707;
constexpr int blue_field = 708;

// The pages of the settings.
constexpr int start_page = 0;
constexpr int waveform_page = 1;
constexpr int spectrogram_page = 2;
constexpr int list_page = 3;
constexpr int dialogs_page = 4;

/// The visible popup of the thread that was activated last, but for these windows; null if there is none.
HWND OtherPopup(std::vector<HWND> const & known)
{
    HWND const active = ::GetActiveWindow();
    return std::ranges::find(known, active) == known.end() ? active : nullptr;
}

void Command(HWND dialog, int id)
{
    ::PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(::GetDlgItem(dialog, id)));
}

class WorkbenchControls : public tests::MainWindowTest
{
protected:
    CRecordingList & List() { return m_window->List(); }
    CFolderTree & Tree() { return m_window->Folders(); }
    CWaveformView & Waveform() { return m_window->Waveform(); }
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
    CSettingsSheet & Sheet() { return m_window->SettingsSheet(); }
    /// Makes it the page that shows.
    CWnd & Page(int index)
    {
        Sheet().SetActivePage(index);
        return *Sheet().GetPage(index);
    }
    CWnd & SheetButton(int id) { return *Sheet().GetDlgItem(id); }
    bool CanApply() { return SheetButton(ID_APPLY_NOW).IsWindowEnabled() != FALSE; }
    bool WaitUntilClosed()
    {
        return tests::PumpUntil([this] { return !Sheet().IsOpen(); });
    }
    CWnd & Part(int id) { return *m_window->GetDescendantWindow(id); }
    bool IsSettingsActive() { return ::GetActiveWindow() == Sheet().m_hWnd; }
    void OpenSettings()
    {
        ASSERT_TRUE(m_window->ShowSettings());
        ASSERT_TRUE(tests::PumpUntil([this] { return IsSettingsActive(); }));
    }
    /// The plot's background: the colour at its left that is beside the lines of the grid.
    COLORREF Ground()
    {
        Waveform().UpdateWindow();
        CRect const plot = Waveform().PlotPlace();
        CClientDC dc(&Waveform());
        std::map<COLORREF, int> counts;
        for (long y = plot.top + 1; y < plot.bottom - 1; ++y)
        {
            ++counts[dc.GetPixel(plot.left + 4, y)];
        }
        auto const most = std::ranges::max_element(counts, {}, [](auto const & each) { return each.second; });
        return most != counts.end() ? most->first : CLR_INVALID;
    }
    bool ShowsColour(COLORREF colour)
    {
        Waveform().UpdateWindow();
        CRect const plot = Waveform().PlotPlace();
        CClientDC dc(&Waveform());
        for (LONG y = plot.top; y < plot.bottom; ++y)
        {
            if (dc.GetPixel(plot.CenterPoint().x, y) == colour)
            {
                return true;
            }
        }
        return false;
    }
    static std::wstring TextOf(CWnd const & window)
    {
        CString text;
        window.GetWindowText(text);
        return text.GetString();
    }
    /// Presses a button of the settings and gives the colour in what that opens.
    void ChooseColour(int button, COLORREF colour)
    {
        HWND const settings = Sheet().m_hWnd;
        std::vector<HWND> const known{settings, m_window->m_hWnd, nullptr};
        tests::LaterActions later;
        auto const isOpen = [=] { return OtherPopup(known) != nullptr && ::GetDlgItem(OtherPopup(known), red_field); };
        later.Add(
            [=] {
                HWND const dialog = OtherPopup(known);
                ::SetDlgItemInt(dialog, red_field, GetRValue(colour), FALSE);
                ::SetDlgItemInt(dialog, green_field, GetGValue(colour), FALSE);
                ::SetDlgItemInt(dialog, blue_field, GetBValue(colour), FALSE);
                Command(dialog, IDOK);
            },
            isOpen);
        tests::Click(tests::Centre(Page(waveform_page).GetDlgItem(button)->m_hWnd));
        ASSERT_TRUE(tests::PumpUntil([&] { return later.Done() && IsSettingsActive(); }));
        ASSERT_FALSE(later.Failed());
    }
};

TEST_F(WorkbenchControls, ColoursOfTheWaveformCountAtOnceAndAfterARestart)
{
    constexpr COLORREF background = RGB(20, 90, 40);
    constexpr COLORREF trace = RGB(250, 220, 10);
    Show(2);
    EXPECT_EQ(Ground(), WaveformColours().background);
    OpenSettings();
    HWND const apply = SheetButton(ID_APPLY_NOW).m_hWnd;
    EXPECT_FALSE(::IsWindowEnabled(apply));
    ChooseColour(IDC_COLOUR_FIRST + 1, background);
    EXPECT_TRUE(::IsWindowEnabled(apply));
    EXPECT_EQ(TextOf(*Page(waveform_page).GetDlgItem(IDC_COLOUR_FIRST + 1)), L"#145A28");
    EXPECT_EQ(Ground(), WaveformColours().background); // not applied yet
    tests::Click(tests::Centre(apply));
    ASSERT_TRUE(tests::PumpUntil([&] { return m_window->Settings().waveform.background == background; }));
    EXPECT_TRUE(Sheet().IsOpen());
    EXPECT_FALSE(::IsWindowEnabled(apply));
    ChooseColour(IDC_COLOUR_FIRST, trace);
    {
        // Return presses the button that has the focus.
        std::vector<HWND> const known{Sheet().m_hWnd, m_window->m_hWnd, nullptr};
        tests::LaterActions later;
        later.Add([] { tests::Key(VK_ESCAPE); },
                  [known] { return OtherPopup(known) != nullptr && ::GetDlgItem(OtherPopup(known), red_field); });
        tests::Key(VK_RETURN);
        ASSERT_TRUE(tests::PumpUntil([&] { return later.Done() && IsSettingsActive(); }));
        ASSERT_FALSE(later.Failed());
    }
    Sheet().SendMessage(WM_COMMAND, IDOK);
    ASSERT_TRUE(WaitUntilClosed());
    ASSERT_TRUE(tests::BringToFront(m_window->m_hWnd));
    EXPECT_EQ(Ground(), background);
    EXPECT_TRUE(ShowsColour(trace));
    Restart(2);
    EXPECT_EQ(Ground(), background);
    EXPECT_TRUE(ShowsColour(trace));
    OpenSettings();
    tests::Click(tests::Centre(Page(waveform_page).GetDlgItem(IDC_STANDARD_COLOURS)->m_hWnd));
    ASSERT_TRUE(tests::PumpUntil([this] { return CanApply(); }));
    Sheet().SendMessage(WM_COMMAND, IDOK);
    ASSERT_TRUE(WaitUntilClosed());
    EXPECT_EQ(m_window->Settings().waveform, WaveformColours());
    EXPECT_EQ(Ground(), WaveformColours().background);
}

TEST_F(WorkbenchControls, TheSettingsComeBackAtTheirPlaceAndPage)
{
    Show(1);
    OpenSettings();
    EXPECT_EQ(Sheet().GetActiveIndex(), start_page);
    CRect least;
    Sheet().GetWindowRect(&least);
    CRect const place(60, 40, 60 + least.Width() + 90, 40 + least.Height() + 50);
    CWnd & folders = *Page(start_page).GetDlgItem(IDC_START_FOLDERS);
    CRect listBefore;
    folders.GetWindowRect(&listBefore);
    Sheet().MoveWindow(place);
    CRect listAfter;
    folders.GetWindowRect(&listAfter);
    EXPECT_EQ(listAfter.Size() - listBefore.Size(), CSize(90, 50));
    tests::Key(VK_TAB, {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([this] { return Sheet().GetActiveIndex() == waveform_page; }));
    tests::Key(VK_TAB, {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([this] { return Sheet().GetActiveIndex() == spectrogram_page; }));
    // A page that is turned to later fills the same room.
    tests::Key(VK_TAB, {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([this] { return Sheet().GetActiveIndex() == list_page; }));
    tests::PumpPosted();
    CRect columns;
    Sheet().GetActivePage()->GetDlgItem(IDC_COLUMNS)->GetWindowRect(&columns);
    EXPECT_GT(columns.right, place.right - 60);
    tests::Key(VK_ESCAPE);
    ASSERT_TRUE(WaitUntilClosed());
    for (bool const restart : {false, true})
    {
        if (restart)
        {
            Restart(1);
        }
        OpenSettings();
        EXPECT_EQ(Sheet().GetActiveIndex(), list_page);
        CRect again;
        Sheet().GetWindowRect(&again);
        EXPECT_EQ(again, place);
        Sheet().CloseDialog();
        ASSERT_TRUE(WaitUntilClosed());
    }
}

TEST_F(WorkbenchControls, SettingsWhoseStoredPlaceIsBeyondTheScreenComeBackOntoIt)
{
    OpenSettings();
    CRect work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    CRect place;
    Sheet().GetWindowRect(&place);
    Sheet().SetWindowPos(nullptr, work.right - 80, work.bottom - 60, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    Sheet().CloseDialog();
    ASSERT_TRUE(WaitUntilClosed());
    OpenSettings();
    CRect now;
    Sheet().GetWindowRect(&now);
    EXPECT_EQ(now, CRect(work.BottomRight() - place.Size(), place.Size()));
}

TEST_F(WorkbenchControls, APageWhoseChoiceIsNoneIsNotLeft)
{
    OpenSettings();
    CWnd & page = Page(dialogs_page);
    EXPECT_FALSE(CanApply());
    page.GetDlgItem(IDC_OPACITY)->SetFocus();
    tests::Type(L"9");
    ASSERT_TRUE(tests::PumpUntil([this] { return CanApply(); }));
    Sheet().SetActivePage(start_page);
    EXPECT_EQ(tests::App().TakeMessages().size(), 1U);
    EXPECT_EQ(Sheet().GetActiveIndex(), dialogs_page);
    Sheet().SendMessage(WM_COMMAND, IDOK);
    EXPECT_EQ(tests::App().TakeMessages().size(), 1U);
    EXPECT_TRUE(Sheet().IsOpen());
    EXPECT_EQ(m_window->Settings().inactiveOpacity, 50);
    // What is cancelled is gone, and does not count at the next opening.
    Sheet().SendMessage(WM_COMMAND, IDCANCEL);
    ASSERT_TRUE(WaitUntilClosed());
    EXPECT_EQ(m_window->Settings().inactiveOpacity, 50);
    OpenSettings();
    EXPECT_EQ(TextOf(*Sheet().GetActivePage()->GetDlgItem(IDC_OPACITY)), L"50");
    EXPECT_FALSE(CanApply());
    Sheet().SetActivePage(start_page);
    EXPECT_EQ(Sheet().GetActiveIndex(), start_page);
}

TEST_F(WorkbenchControls, TheSettingsAreInTheLanguageThatWasChosen)
{
    Show(1);
    OpenSettings();
    auto const tab = [this](int index) {
        wchar_t text[40] = L"";
        TCITEM item{};
        item.mask = TCIF_TEXT;
        item.pszText = text;
        item.cchTextMax = static_cast<int>(std::size(text));
        Sheet().GetTabControl()->GetItem(index, &item);
        return std::wstring(text);
    };
    EXPECT_EQ(TextOf(Sheet()), L"Settings");
    EXPECT_EQ(tab(dialogs_page), L"Dialogs");
    CRect const place(70, 50, 700, 500);
    Sheet().MoveWindow(place);
    m_window->CloseDialogs();
    ASSERT_TRUE(WaitUntilClosed());
    LCID const locale = ::GetThreadLocale();
    workbench::UseLanguage(1031);
    OpenSettings();
    EXPECT_EQ(TextOf(Sheet()), L"Einstellungen");
    EXPECT_EQ(tab(dialogs_page), L"Dialoge");
    EXPECT_EQ(TextOf(SheetButton(IDCANCEL)), L"Abbruch");
    EXPECT_EQ(TextOf(SheetButton(ID_APPLY_NOW)), L"\u00DC&bernehmen");
    CRect again;
    Sheet().GetWindowRect(&again);
    EXPECT_EQ(again, place); // the place is the same in all languages
    workbench::UseLanguage(1033);
    ::SetThreadLocale(locale);
    ::SetThreadUILanguage(0);
}

/// The system's colours are light on dark as long as it lives.
class DarkColours
{
public:
    static constexpr COLORREF face = RGB(45, 45, 48);

    DarkColours()
    {
        for (std::size_t i = 0; i < std::size(indices); ++i)
        {
            m_former[i] = ::GetSysColor(indices[i]);
        }
        ::SetSysColors(static_cast<int>(std::size(indices)), indices, colours);
    }
    ~DarkColours() { ::SetSysColors(static_cast<int>(std::size(indices)), indices, m_former); }
    DarkColours(DarkColours const &) = delete;
    DarkColours & operator=(DarkColours const &) = delete;

private:
    static constexpr int indices[] = {COLOR_BTNFACE, COLOR_BTNTEXT, COLOR_WINDOW, COLOR_WINDOWTEXT};
    static constexpr COLORREF colours[] = {face, RGB(230, 230, 230), RGB(30, 30, 30), RGB(230, 230, 230)};
    COLORREF m_former[std::size(indices)] = {};
};

TEST_F(WorkbenchControls, OnADarkGroundTheTabOfThePageIsDark)
{
    DarkColours const dark;
    OpenSettings();
    CTabCtrl & tabs = *Sheet().GetTabControl();
    tests::PumpPosted();
    tabs.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    CRect client;
    tabs.GetClientRect(&client);
    CRect chosen;
    ASSERT_TRUE(tabs.GetItemRect(tabs.GetCurSel(), &chosen));
    tests::Canvas picture(client.Width(), client.Height());
    picture.CopyFromScreen(tabs);
    EXPECT_GT(picture.Count(DarkColours::face, chosen), chosen.Width() * chosen.Height() / 2);
}

TEST_F(WorkbenchControls, TheSliderAndThePlotAreInStep)
{
    Show(2);
    CWnd & slider = Part(IDC_AMPLIFICATION);
    auto const position = [&slider] { return static_cast<int>(slider.SendMessage(TBM_GETPOS)); };
    ASSERT_TRUE(slider.IsWindowVisible());
    EXPECT_EQ(Waveform().Amplification(), 0);
    EXPECT_EQ(position(), 8);
    slider.SetFocus();
    tests::Key(VK_UP);
    EXPECT_TRUE(tests::PumpUntil([this] { return Waveform().Amplification() == 6; }));
    tests::Key(VK_HOME);
    EXPECT_TRUE(tests::PumpUntil([this] { return Waveform().Amplification() == 48; }));
    // By the keys of the plot, and by commands.
    Waveform().SetFocus();
    tests::Key(VK_DOWN);
    EXPECT_TRUE(tests::PumpUntil([&] { return position() == 1; }));
    EXPECT_EQ(Waveform().Amplification(), 42);
    tests::Key(L'0', {VK_CONTROL});
    EXPECT_TRUE(tests::PumpUntil([&] { return position() == 8; }));
    tests::Key(VK_OEM_PLUS, {VK_CONTROL});
    EXPECT_TRUE(tests::PumpUntil([&] { return position() == 7; }));
    Restart(2);
    EXPECT_EQ(Waveform().Amplification(), 6);
    EXPECT_EQ(Part(IDC_AMPLIFICATION).SendMessage(TBM_GETPOS), 7);
}

TEST_F(WorkbenchControls, TheButtonAboveTheSliderFitsTheWaveform)
{
    Show(2); // with a peak of -4.3 dB
    Waveform().SetAmplification(24);
    tests::Click(tests::Centre(Part(IDC_FIT_AMPLIFICATION).m_hWnd));
    EXPECT_TRUE(tests::PumpUntil([this] { return Waveform().Amplification() == 0; }));
    // Without a recording there is nothing to amplify.
    m_window->ShowTargets({});
    ASSERT_TRUE(tests::PumpUntil([this] { return !Part(IDC_AMPLIFICATION).IsWindowVisible(); }));
    EXPECT_FALSE(Part(IDC_FIT_AMPLIFICATION).IsWindowVisible());
}

/// A screen on which icons are half as large again.
int WINAPI MetricsOfLargeIcons(int which)
{
    constexpr int large = 48;
    return which == SM_CXICON || which == SM_CYICON ? large : ::GetSystemMetrics(which);
}

TEST_F(WorkbenchControls, TheButtonAboveTheSliderIsAsLargeAsTheSystemDrawsIcons)
{
    Show(2);
    auto const place = [this] {
        CRect rect;
        Part(IDC_FIT_AMPLIFICATION).GetWindowRect(&rect);
        return rect;
    };
    EXPECT_EQ(place().Size(), CSize(::GetSystemMetrics(SM_CXICON), ::GetSystemMetrics(SM_CYICON)));
    tests::ImportPatch const patch(nullptr, "GetSystemMetrics", &MetricsOfLargeIcons);
    ASSERT_TRUE(patch.Done());
    CWnd const & panel = *Part(IDC_FIT_AMPLIFICATION).GetParent();
    CRect client;
    panel.GetClientRect(&client);
    ::SendMessageW(panel.m_hWnd, WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.Width(), client.Height()));
    EXPECT_EQ(place().Size(), CSize(48, 48));
}

TEST_F(WorkbenchControls, TheTreeOpensFoldersAndChoosesRecordings)
{
    Show(3);
    std::filesystem::path const folder = m_folder / "recordings";
    fs::create_directories(folder / "inner");
    tests::WriteRecording(folder / "inner" / "deep.wav");
    ASSERT_FALSE(m_window->ShowsFolders());
    tests::Key(L'T', {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([this] { return m_window->ShowsFolders() && Tree().IsWindowVisible(); }));
    EXPECT_EQ(CWnd::GetFocus(), &Tree());
    auto const filled = [&](fs::path const & which, int count) {
        HTREEITEM const item = Tree().FolderItem(which);
        int children = 0;
        for (HTREEITEM child = item != nullptr ? Tree().GetChildItem(item) : nullptr; child != nullptr;
             child = Tree().GetNextSiblingItem(child))
        {
            ++children;
        }
        return !Tree().IsBusy() && children == count;
    };
    ASSERT_TRUE(tests::PumpUntil([&] { return filled(folder, 4); }));
    HTREEITEM const item = Tree().FolderItem(folder);
    HTREEITEM const first = Tree().GetChildItem(item);
    EXPECT_EQ(Tree().PathOf(first), folder / "inner"); // folders come first
    auto const click = [this](HTREEITEM which) {
        Tree().EnsureVisible(which);
        CRect place;
        ASSERT_TRUE(Tree().GetItemRect(which, &place, TRUE));
        tests::Click(tests::ClientPoint(Tree().m_hWnd, place.CenterPoint()));
    };
    // A recording is chosen in the list, and the arrow keys go on from there.
    click(Tree().GetNextSiblingItem(first));
    ASSERT_TRUE(tests::PumpUntil([this] { return List().ChosenLine() == 0; }));
    tests::Key(VK_DOWN);
    EXPECT_TRUE(tests::PumpUntil([this] { return List().ChosenLine() == 1; }));
    // The other way round.
    List().SetFocus();
    m_window->ChooseRecording(2);
    EXPECT_TRUE(tests::PumpUntil([&] { return Tree().PathOf(Tree().GetSelectedItem()) == folder / "r00002.wav"; }));
    // A folder is opened.
    click(first);
    ASSERT_TRUE(tests::PumpUntil([this] { return m_window->RecordingCount() == 1; }));
    ASSERT_TRUE(WaitUntilRead());
    EXPECT_EQ(List().GetItemText(0, CRecordingList::column_name), L"deep.wav");
    ASSERT_TRUE(tests::PumpUntil([&] { return filled(folder / "inner", 1); }));
    EXPECT_NE(Tree().GetItemState(first, TVIS_BOLD) & TVIS_BOLD, 0U);
    EXPECT_EQ(Tree().GetItemState(item, TVIS_BOLD) & TVIS_BOLD, 0U);
    // A recording of another folder opens that and is chosen there; by the keyboard only with Return.
    Tree().SelectItem(Tree().GetChildItem(first));
    Tree().SetFocus();
    tests::Key(VK_DOWN);
    tests::Key(VK_DOWN);
    ASSERT_TRUE(tests::PumpUntil([&] { return Tree().PathOf(Tree().GetSelectedItem()) == folder / "r00001.wav"; }));
    EXPECT_EQ(m_window->RecordingCount(), 1);
    tests::Key(VK_RETURN);
    ASSERT_TRUE(tests::PumpUntil([this] { return m_window->RecordingCount() == 3; }));
    ASSERT_TRUE(WaitUntilRead());
    EXPECT_TRUE(tests::PumpUntil([this] { return List().ChosenLine() == 1; }));
}

TEST_F(WorkbenchControls, TheTreeFollowsAReloadAndIsRemembered)
{
    Show(40);
    m_window->ShowFolders(true);
    std::filesystem::path const folder = m_folder / "recordings";
    auto const names = [&] {
        std::vector<std::wstring> found;
        for (HTREEITEM item = Tree().GetChildItem(Tree().FolderItem(folder)); item != nullptr;
             item = Tree().GetNextSiblingItem(item))
        {
            found.push_back(Tree().GetItemText(item).GetString());
        }
        return found;
    };
    ASSERT_TRUE(tests::PumpUntil([&] { return !Tree().IsBusy() && names().size() == 40; }));
    fs::remove(folder / "r00000.wav");
    fs::remove(folder / "r00007.wav");
    tests::WriteRecording(folder / "a.wav");
    tests::WriteRecording(folder / "r00020b.wav");
    fs::create_directories(folder / "z");
    m_window->SendMessage(WM_COMMAND, ID_RELOAD);
    ASSERT_TRUE(tests::PumpUntil([&] { return !Tree().IsBusy() && names().front() == L"z"; }));
    std::vector<std::wstring> const shown = names();
    ASSERT_EQ(shown.size(), 41U);
    EXPECT_EQ(shown[1], L"a.wav");
    EXPECT_EQ(shown[2], L"r00001.wav");
    EXPECT_TRUE(std::is_sorted(shown.begin() + 1, shown.end()));
    // The pane and its width last.
    CRect before;
    Tree().GetWindowRect(&before);
    CRect pane;
    m_window->Pane(CMainWindow::part_folders).GetWindowRect(&pane);
    CPoint const edge(pane.right + 2, before.CenterPoint().y);
    tests::Drag(edge, edge + CPoint(60, 0));
    CRect after;
    ASSERT_TRUE(tests::PumpUntil([&] {
        Tree().GetWindowRect(&after);
        return after.Width() > before.Width() + 40;
    }));
    tests::PumpPosted();
    Tree().GetWindowRect(&after);
    Restart(40);
    EXPECT_TRUE(m_window->ShowsFolders());
    Tree().GetWindowRect(&before);
    EXPECT_EQ(before.Width(), after.Width());
    m_window->ShowFolders(false);
    Restart(1);
    EXPECT_FALSE(m_window->ShowsFolders());
    CRect list;
    List().GetWindowRect(&list);
    EXPECT_LT(list.left, after.left + 10);
}

/// What stands at the top of a tree after each of its messages, and how often it was painted.
class TreeWatch
{
public:
    explicit TreeWatch(HWND tree) : m_tree(tree)
    {
        ::SetWindowSubclass(m_tree, &TreeWatch::Procedure, 1, reinterpret_cast<DWORD_PTR>(this));
    }
    ~TreeWatch() { ::RemoveWindowSubclass(m_tree, &TreeWatch::Procedure, 1); }
    TreeWatch(TreeWatch const &) = delete;
    TreeWatch & operator=(TreeWatch const &) = delete;

    HTREEITEM Top() const { return TreeView_GetFirstVisible(m_tree); }
    HTREEITEM Chosen() const { return TreeView_GetSelection(m_tree); }
    std::set<HTREEITEM> const & Tops() const { return m_tops; }
    std::set<HTREEITEM> const & ChosenOnes() const { return m_chosen; }
    int Paints() const { return m_paints; }

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wide, LPARAM parameter, UINT_PTR,
                                      DWORD_PTR reference)
    {
        auto & watch = *reinterpret_cast<TreeWatch *>(reference);
        LRESULT const result = ::DefSubclassProc(window, message, wide, parameter);
        if (message != TVM_GETNEXTITEM)
        {
            watch.m_tops.insert(watch.Top());
            watch.m_chosen.insert(watch.Chosen());
        }
        watch.m_paints += message == WM_PAINT ? 1 : 0;
        return result;
    }

    HWND m_tree;
    std::set<HTREEITEM> m_tops;
    std::set<HTREEITEM> m_chosen;
    int m_paints = 0;
};

TEST_F(WorkbenchControls, AReloadMovesNothingInTheTree)
{
    constexpr int folders = 5000;
    std::filesystem::path const folder = m_folder / "recordings";
    for (int i = 0; i < folders; ++i)
    {
        fs::create_directories(folder / ("f" + std::to_string(10000 + i)));
    }
    Show(30);
    m_window->ShowFolders(true);
    auto const filled = [&] { return !Tree().IsBusy() && Tree().GetCount() > folders; };
    ASSERT_TRUE(tests::PumpUntil(filled, tests::read_limit));
    List().SetFocus();
    List().ChooseLine(20);
    auto const shown = [&] { return Tree().PathOf(Tree().GetSelectedItem()) == folder / "r00020.wav"; };
    ASSERT_TRUE(tests::PumpUntil(shown));
    HTREEITEM const item = Tree().FolderItem(folder);
    HTREEITEM const middle = Tree().FolderItem(folder / "f12345");
    auto const reload = [&] {
        m_window->SendMessage(WM_COMMAND, ID_RELOAD);
        ASSERT_TRUE(WaitUntilRead());
        ASSERT_TRUE(tests::PumpUntil([&] { return !Tree().IsBusy(); }));
        tests::PumpPosted();
    };
    // The user has scrolled away from what is chosen, and then chosen a folder in sight.
    for (auto const chosen : {Tree().GetSelectedItem(), middle})
    {
        Tree().SelectItem(chosen);
        Tree().SelectSetFirstVisible(middle);
        Tree().UpdateWindow();
        TreeWatch const watch(Tree().m_hWnd);
        reload();
        EXPECT_EQ(watch.Tops(), std::set{middle});
        EXPECT_EQ(watch.ChosenOnes(), std::set{chosen});
        EXPECT_EQ(watch.Paints(), 0);
    }
    // What comes and goes above it does not push it away.
    {
        fs::remove(folder / "f10000");
        fs::create_directories(folder / "f11111b");
        TreeWatch const watch(Tree().m_hWnd);
        reload();
        EXPECT_EQ(Tree().FolderItem(folder / "f10000"), nullptr);
        EXPECT_NE(Tree().FolderItem(folder / "f11111b"), nullptr);
        EXPECT_EQ(watch.Top(), middle);
    }
    // A branch that the user has closed stays closed.
    Tree().Expand(item, TVE_COLLAPSE);
    reload();
    EXPECT_EQ(Tree().GetItemState(item, TVIS_EXPANDED) & TVIS_EXPANDED, 0U);
    EXPECT_EQ(Tree().GetSelectedItem(), item);
    // Whoever opens it again is shown what is in it.
    m_window->ShowTargets({folder});
    EXPECT_TRUE(tests::PumpUntil([&] { return (Tree().GetItemState(item, TVIS_EXPANDED) & TVIS_EXPANDED) != 0; }));
}

TEST_F(WorkbenchControls, ContrastIsChosenInTheSettingsAndStays)
{
    Show(2);
    auto const chosen = [this] { return control_colors::SetOf(List().m_hWnd); };
    EXPECT_EQ(chosen(), ControlColorSet::standard);
    OpenSettings();
    CWnd & box = *Page(list_page).GetDlgItem(IDC_CONTRAST);
    EXPECT_EQ(box.SendMessage(CB_GETCURSEL), 0);
    box.SendMessage(CB_SETCURSEL, 1);
    box.GetParent()->SendMessage(WM_COMMAND, MAKEWPARAM(IDC_CONTRAST, CBN_SELCHANGE),
                                 reinterpret_cast<LPARAM>(box.m_hWnd));
    EXPECT_EQ(chosen(), ControlColorSet::standard);
    ASSERT_TRUE(CanApply());
    Sheet().SendMessage(WM_COMMAND, IDOK);
    ASSERT_TRUE(WaitUntilClosed());
    EXPECT_EQ(chosen(), ControlColorSet::dark);
    Restart(2);
    EXPECT_EQ(chosen(), ControlColorSet::dark);
    OpenSettings();
    EXPECT_EQ(Page(list_page).GetDlgItem(IDC_CONTRAST)->SendMessage(CB_GETCURSEL), 1);
    control_colors::UseForProcess(ControlColorSet::standard);
}

TEST_F(WorkbenchControls, WhatIsUnreadableIsReadInTheDarkSet)
{
    std::filesystem::path const folder = Folder(1);
    std::ofstream(folder / "zero.wav") << "no recording";
    m_window->ShowTargets({folder});
    ASSERT_TRUE(WaitUntilRead());
    auto const contrast = [this] {
        COLORREF text = 0;
        COLORREF ground = 0;
        List().GetItemColors(List().PlaceOf(1), CRecordingList::column_name, text, ground);
        return control_colors::ContrastOf(text, control_colors::Of(List().m_hWnd).window);
    };
    EXPECT_GE(contrast(), control_colors::least_contrast);
    OpenSettings();
    CWnd & box = *Page(list_page).GetDlgItem(IDC_CONTRAST);
    box.SendMessage(CB_SETCURSEL, 1);
    box.GetParent()->SendMessage(WM_COMMAND, MAKEWPARAM(IDC_CONTRAST, CBN_SELCHANGE),
                                 reinterpret_cast<LPARAM>(box.m_hWnd));
    Sheet().SendMessage(WM_COMMAND, IDOK);
    ASSERT_TRUE(WaitUntilClosed());
    ASSERT_EQ(control_colors::SetOf(List().m_hWnd), ControlColorSet::dark);
    EXPECT_GE(contrast(), control_colors::least_contrast);
    control_colors::UseForProcess(ControlColorSet::standard);
}

TEST_F(WorkbenchControls, TheChoiceOfColumnsHasTheWindowsResolution)
{
    CloseWindow();
    OpenWindow(192);
    Show(2);
    UINT resolution = 0;
    std::vector<HWND> const known{m_window->m_hWnd, nullptr};
    auto const isOpen = [&known] { return OtherPopup(known) != nullptr; };
    tests::LaterActions later;
    later.Add(
        [&] {
            ::EnumChildWindows(
                OtherPopup(known),
                [](HWND window, LPARAM to) -> BOOL {
                    auto * const object = CWnd::FromHandlePermanent(window);
                    auto const * const choice = dynamic_cast<CIdNameMultiselectCtrl *>(object);
                    if (choice != nullptr)
                    {
                        *reinterpret_cast<UINT *>(to) = choice->GetDpi();
                    }
                    return choice == nullptr;
                },
                reinterpret_cast<LPARAM>(&resolution));
            tests::Key(VK_ESCAPE);
        },
        isOpen);
    m_window->SendMessage(WM_COMMAND, ID_CHOOSE_COLUMNS);
    EXPECT_FALSE(later.Failed());
    EXPECT_EQ(resolution, 192U);
}

TEST_F(WorkbenchControls, ColumnsAreChosenInADropDownOfTheSettings)
{
    Show(2);
    OpenSettings();
    CWnd & field = *Page(list_page).GetDlgItem(IDC_COLUMNS);
    EXPECT_EQ(TextOf(field), L"Ref., Waveform, Duration, Channels, \u2026"); // not all: those of measures are hidden
    field.SetFocus();
    std::vector<HWND> const known{Sheet().m_hWnd, m_window->m_hWnd, nullptr};
    auto const list = [&] { return ::GetDlgItem(::GetDlgItem(OtherPopup(known), 1016), 32802); };
    tests::LaterActions later;
    later.Add(
        [&] {
            RECT row{LVIR_LABEL, 0, 0, 0}; // "Channels", the fourth one
            ::SendMessageW(list(), LVM_GETITEMRECT, 3, reinterpret_cast<LPARAM>(&row));
            tests::Click(tests::ClientPoint(list(), CPoint(row.left + 6, (row.top + row.bottom) / 2)));
        },
        [&] { return ::SendMessageW(list(), LVM_GETITEMCOUNT, 0, 0) == 15 && ::IsWindowVisible(list()); });
    later.Add([] { tests::Key(VK_RETURN); },
              [&] { return ::SendMessageW(list(), LVM_GETITEMSTATE, 3, LVIS_STATEIMAGEMASK) >> 12 == 1; });
    tests::Key(VK_F4);
    ASSERT_TRUE(tests::PumpUntil([&] { return later.Done() && IsSettingsActive(); }));
    ASSERT_FALSE(later.Failed());
    ASSERT_TRUE(tests::PumpUntil([this] { return CanApply(); }));
    EXPECT_GT(List().GetColumnWidth(CRecordingList::column_channels), 0);
    Sheet().SendMessage(WM_COMMAND, IDOK);
    ASSERT_TRUE(WaitUntilClosed());
    EXPECT_EQ(List().GetColumnWidth(CRecordingList::column_channels), 0);
    EXPECT_GT(List().GetColumnWidth(CRecordingList::column_rate), 0);
    EXPECT_TRUE(FillsItsWindow(List()));
    Restart(2);
    EXPECT_EQ(List().GetColumnWidth(CRecordingList::column_channels), 0);
    // What does not show is not sorted, edited nor copied.
    workbench::RecordingTable const table = List().Table(CRecordingList::Lines::all, List().HiddenColumns());
    EXPECT_FALSE(
        std::ranges::any_of(table.Table().columns, [](auto const & column) { return column.title == L"Channels"; }));
    List().SetHiddenColumns({CRecordingList::column_comment, CRecordingList::column_rating});
    List().EditComment(0);
    List().ChooseRating(0);
    EXPECT_FALSE(List().IsEditing());
}

TEST_F(WorkbenchControls, TheSettingsHaveTheColumnsInTheOrderOfTheList)
{
    Show(2);
    auto const moveToFront = [this](int column) {
        CHeaderCtrl & header = *List().GetHeaderCtrl();
        CRect from;
        CRect to;
        header.GetItemRect(column, &from);
        header.GetItemRect(List().ColumnOrder().front(), &to);
        tests::Drag(tests::ClientPoint(header.m_hWnd, from.CenterPoint()),
                    tests::ClientPoint(header.m_hWnd, CPoint(to.left + 3, to.CenterPoint().y)));
        ASSERT_TRUE(tests::PumpUntil([&] { return List().ColumnOrder().front() == column; }));
        tests::PumpPosted();
    };
    moveToFront(CRecordingList::column_duration);
    OpenSettings();
    CWnd & field = *Page(list_page).GetDlgItem(IDC_COLUMNS);
    auto & order = *static_cast<CListBox *>(Page(list_page).GetDlgItem(IDC_COLUMN_ORDER));
    EXPECT_EQ(TextOf(field), L"Duration, Ref., Waveform, Channels, \u2026");
    // A line that is moved on the page moves in the drop-down, too, which says what the columns were chosen by.
    order.SetCurSel(0);
    Page(list_page).SendMessage(WM_COMMAND, IDC_COLUMN_DOWN);
    Page(list_page).SendMessage(WM_COMMAND, IDC_COLUMN_DOWN);
    EXPECT_EQ(TextOf(field), L"Ref., Duration, Waveform, Channels, \u2026");
    field.SetFocus();
    std::vector<HWND> const known{Sheet().m_hWnd, m_window->m_hWnd, nullptr};
    auto const list = [&] { return ::GetDlgItem(::GetDlgItem(OtherPopup(known), 1016), 32802); };
    std::vector<std::wstring> rows;
    tests::LaterActions later;
    later.Add(
        [&] {
            for (int row = 0; row < 15; ++row)
            {
                wchar_t text[40] = L"";
                ListView_GetItemText(list(), row, 0, text, 40);
                rows.emplace_back(text);
            }
            RECT row{LVIR_LABEL, 0, 0, 0};
            ::SendMessageW(list(), LVM_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&row));
            tests::Click(tests::ClientPoint(list(), CPoint(row.left + 6, (row.top + row.bottom) / 2)));
        },
        [&] { return ::SendMessageW(list(), LVM_GETITEMCOUNT, 0, 0) == 15 && ::IsWindowVisible(list()); });
    later.Add([] { tests::Key(VK_RETURN); },
              [&] { return ::SendMessageW(list(), LVM_GETITEMSTATE, 1, LVIS_STATEIMAGEMASK) >> 12 == 1; });
    tests::Key(VK_F4);
    ASSERT_TRUE(tests::PumpUntil([&] { return later.Done() && IsSettingsActive(); }));
    ASSERT_FALSE(later.Failed());
    ASSERT_EQ(rows.size(), 15U);
    EXPECT_EQ((std::vector(rows.begin(), rows.begin() + 4)),
              (std::vector<std::wstring>{L"Ref.", L"Duration", L"Waveform", L"Channels"}));
    tests::PumpPosted();
    ASSERT_TRUE(CanApply());
    Sheet().SendMessage(WM_COMMAND, ID_APPLY_NOW);
    EXPECT_EQ(List().HiddenColumns().count(CRecordingList::column_duration), 1U);
    EXPECT_EQ(List().HiddenColumns().count(CRecordingList::column_channels), 0U);
    EXPECT_EQ(TextOf(field), L"Ref., Waveform, Channels, Rate (Hz), \u2026");
    // What is dragged at the list while the page shows is seen there.
    Sheet().SetWindowPos(nullptr, 0, 400, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    tests::PumpPosted();
    moveToFront(CRecordingList::column_channels);
    CString first;
    order.GetText(0, first);
    EXPECT_EQ(first, L"Channels");
    EXPECT_EQ(TextOf(field), L"Channels, Ref., Waveform, Rate (Hz), \u2026");
    Sheet().CloseDialog();
    ASSERT_TRUE(WaitUntilClosed());
}

TEST_F(WorkbenchControls, KeysMoveFromCellToCellAtOnceWhenWished)
{
    Show(2);
    EXPECT_FALSE(List().HasCellCursor());
    OpenSettings();
    Page(list_page).GetDlgItem(IDC_CELL_CURSOR)->SendMessage(BM_CLICK);
    EXPECT_TRUE(CanApply());
    Sheet().SendMessage(WM_COMMAND, IDOK);
    ASSERT_TRUE(WaitUntilClosed());
    EXPECT_TRUE(List().HasCellCursor());
    EXPECT_TRUE(m_window->FrameMeasures().Table().HasCellCursor());
    Restart(2);
    EXPECT_TRUE(List().HasCellCursor());
    EXPECT_TRUE(m_window->FrameMeasures().Table().HasCellCursor());
}

TEST_F(WorkbenchControls, KeysAreHeardAfterApplying)
{
    Show(2);
    OpenSettings();
    Page(list_page).GetDlgItem(IDC_CELL_CURSOR)->SendMessage(BM_CLICK);
    CWnd & apply = SheetButton(ID_APPLY_NOW);
    ASSERT_TRUE(apply.IsWindowEnabled());
    apply.SetFocus();
    tests::Key(VK_SPACE);
    ASSERT_TRUE(tests::PumpUntil([this] { return !CanApply(); }));
    tests::Key(VK_ESCAPE);
    EXPECT_TRUE(WaitUntilClosed());
}

TEST_F(WorkbenchControls, TheScaleHoldsFromTheNextStartOn)
{
    Show(2);
    EXPECT_EQ(List().GetDpi(), 96U);
    CRect before;
    List().GetItemRect(0, &before, LVIR_BOUNDS);
    OpenSettings();
    auto & scale = *static_cast<CComboBox *>(Page(list_page).GetDlgItem(IDC_LIST_SCALE));
    ASSERT_EQ(scale.GetCount(), 5);
    EXPECT_EQ(scale.GetCurSel(), 0);
    scale.SetCurSel(4);
    Page(list_page).SendMessage(WM_COMMAND, MAKEWPARAM(IDC_LIST_SCALE, CBN_SELCHANGE),
                                reinterpret_cast<LPARAM>(scale.m_hWnd));
    EXPECT_TRUE(CanApply());
    Sheet().SendMessage(WM_COMMAND, IDOK);
    ASSERT_TRUE(WaitUntilClosed());
    EXPECT_EQ(List().GetDpi(), 96U);
    EXPECT_EQ(m_window->Settings().scale, 200);
    Restart(2);
    EXPECT_EQ(List().GetDpi(), 192U);
    CRect after;
    List().GetItemRect(0, &after, LVIR_BOUNDS);
    EXPECT_GE(after.Height(), 2 * before.Height() - 4);
    // The panes' places of another scale would leave no room.
    CRect waveform;
    Waveform().GetWindowRect(&waveform);
    CRect asAtFirst;
    m_window->ResetLayout();
    Waveform().GetWindowRect(&asAtFirst);
    EXPECT_EQ(waveform, asAtFirst);
}

TEST_F(WorkbenchControls, ColumnsAreChosenAtTheTitles)
{
    Show(2);
    CHeaderCtrl & header = *List().GetHeaderCtrl();
    CRect title;
    header.GetItemRect(CRecordingList::column_date, &title);
    std::vector<HWND> const known{m_window->m_hWnd, nullptr};
    tests::LaterActions later;
    later.Add(
        [&] {
            // "select none", then OK.
            HWND const control = ::GetDlgItem(OtherPopup(known), 1016);
            ::SendMessageW(::GetDlgItem(control, 32804), BM_CLICK, 0, 0);
            ::PostMessageW(::GetDlgItem(control, 32806), BM_CLICK, 0, 0);
        },
        [&] { return OtherPopup(known) != nullptr && ::GetDlgItem(::GetDlgItem(OtherPopup(known), 1016), 32806); });
    tests::Click(tests::ClientPoint(header.m_hWnd, title.CenterPoint()), tests::Button::right);
    ASSERT_TRUE(tests::PumpUntil([&] { return later.Done() && OtherPopup(known) == nullptr; }));
    ASSERT_FALSE(later.Failed());
    ASSERT_TRUE(tests::PumpUntil(
        [this] { return m_window->Settings().hiddenColumns.contains(CRecordingList::column_status); }));
    EXPECT_EQ(List().GetColumnWidth(CRecordingList::column_status), 0);
    EXPECT_GT(List().GetColumnWidth(CRecordingList::column_name), 0);
    EXPECT_GT(List().GetColumnWidth(CRecordingList::column_check), 0);
}

TEST_F(WorkbenchControls, AFolderIsOpenedByTheBeginningOfItsName)
{
    std::filesystem::path const folder = Folder(3);
    std::vector<HWND> const known{m_window->m_hWnd, nullptr};
    auto const isOpen = [&] { return OtherPopup(known) != nullptr && ::GetDlgItem(OtherPopup(known), IDC_FOLDER); };
    {
        tests::LaterActions later;
        later.Add(
            [&] {
                ::SetDlgItemTextW(OtherPopup(known), IDC_FOLDER, (L"\"" + folder.wstring() + L"\" ").c_str());
                tests::Key(VK_RETURN);
            },
            isOpen);
        m_window->SendMessage(WM_COMMAND, ID_OPEN_FOLDER);
        ASSERT_FALSE(later.Failed());
    }
    ASSERT_TRUE(WaitUntilRead());
    EXPECT_EQ(m_window->RecordingCount(), 3);
    ASSERT_EQ(m_window->Settings().recentFolders.size(), 1U);
    CloseWindow();
    OpenWindow();
    tests::LaterActions later;
    later.Add(
        [&] {
            tests::Key(VK_DELETE); // the last folder stands there, chosen
            tests::Type(folder.wstring().substr(0, folder.wstring().size() - 4));
        },
        isOpen);
    later.Add([] { tests::Key(VK_RETURN); },
              [&] {
                  return ::GetDlgItem(OtherPopup(known), IDC_FOLDER) != nullptr &&
                         TextOf(*CWnd::FromHandle(::GetDlgItem(OtherPopup(known), IDC_FOLDER))) == folder.wstring();
              });
    tests::Key(L'O', {VK_CONTROL, VK_SHIFT});
    ASSERT_TRUE(tests::PumpUntil([&] { return later.Done() && m_window->RecordingCount() == 3; }));
    EXPECT_FALSE(later.Failed());
}

TEST_F(WorkbenchControls, AFolderThatIsNoneIsNotOpened)
{
    std::vector<HWND> const known{m_window->m_hWnd, nullptr};
    auto const isOpen = [&] { return OtherPopup(known) != nullptr && ::GetDlgItem(OtherPopup(known), IDC_FOLDER); };
    tests::LaterActions later;
    later.Add(
        [&] {
            ::SetDlgItemTextW(OtherPopup(known), IDC_FOLDER, (m_folder / "gone").c_str());
            Command(OtherPopup(known), IDOK);
        },
        isOpen);
    later.Add([&] { Command(OtherPopup(known), IDCANCEL); }, isOpen);
    m_window->SendMessage(WM_COMMAND, ID_OPEN_FOLDER);
    EXPECT_EQ(tests::App().TakeMessages().size(), 1U);
    EXPECT_EQ(m_window->RecordingCount(), 0);
    EXPECT_TRUE(m_window->Settings().recentFolders.empty());
}

TEST_F(WorkbenchControls, TheListIsExportedIntoAFile)
{
    Show(3);
    std::filesystem::path const file = m_folder / "list.txt";
    std::vector<HWND> const known{m_window->m_hWnd, nullptr};
    auto const isOpen = [&] {
        return OtherPopup(known) != nullptr && ::GetDlgItem(OtherPopup(known), IDC_EXPORT_FILE);
    };
    auto const exportTo = [&](fs::path const & to, int lines) {
        tests::LaterActions later;
        later.Add(
            [&] {
                ::SetDlgItemTextW(OtherPopup(known), IDC_EXPORT_FILE, to.c_str());
                ::SendMessageW(::GetDlgItem(OtherPopup(known), IDC_EXPORT_LINES), CB_SETCURSEL,
                               static_cast<WPARAM>(lines), 0);
                Command(OtherPopup(known), IDOK);
            },
            isOpen);
        m_window->SendMessage(WM_COMMAND, ID_EXPORT_LIST);
        EXPECT_FALSE(later.Failed());
    };
    auto const contents = [](fs::path const & of) {
        std::ifstream stream(of, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(stream), {});
    };
    exportTo(m_folder / "list", 0); // the extension comes by itself
    std::string const all = contents(file);
    EXPECT_TRUE(all.starts_with("\xEF\xBB\xBFName\t"));
    EXPECT_EQ(std::ranges::count(all, '\n'), 4);
    EXPECT_EQ(m_window->Settings().exportFile, file);
    EXPECT_NE(Status().find(L"list written: " + file.wstring()), std::wstring::npos) << "it is said";
    // A file that is there is replaced only where the user says so.
    ASSERT_TRUE(m_window->ChooseRecording(1));
    tests::App().Answer(IDYES);
    exportTo(file, 1);
    EXPECT_EQ(tests::App().TakeMessages().size(), 1U);
    std::string const chosen = contents(file);
    EXPECT_EQ(std::ranges::count(chosen, '\n'), 2);
    EXPECT_NE(chosen.find("r00001.wav"), std::string::npos);
    exportTo(m_folder / "list.html", 0);
    EXPECT_TRUE(contents(m_folder / "list.html").starts_with("<!DOCTYPE html>"));
    // Why one cannot be written is said.
    LCID const locale = ::GetThreadLocale();
    std::filesystem::path const gone = m_folder / "gone" / "list.txt";
    for (workbench::LanguageFacts const & language : workbench::language_facts)
    {
        m_window->ChooseLanguage(language.id);
        exportTo(gone, 0);
        EXPECT_EQ(tests::App().TakeMessages(),
                  std::vector<std::wstring>{workbench::Text(L"This file could not be written:") +
                                            (L"\n\n" + gone.wstring() + L": ") +
                                            workbench::Text(L"the folder is not there any more")});
    }
    m_window->ChooseLanguage(1033);
    ::SetThreadLocale(locale);
    ::SetThreadUILanguage(0);
    EXPECT_FALSE(fs::exists(gone.parent_path()));
}

TEST_F(WorkbenchControls, StartFoldersAreAddedAndRemoved)
{
    std::filesystem::path const folder = Folder(1);
    OpenSettings();
    CWnd & page = Page(start_page);
    auto const count = [&] { return page.SendDlgItemMessage(IDC_START_FOLDERS, LB_GETCOUNT); };
    HWND const remove = page.GetDlgItem(IDC_REMOVE_FOLDER)->m_hWnd;
    EXPECT_FALSE(::IsWindowEnabled(remove));
    CWnd & field = *page.GetDlgItem(IDC_NEW_FOLDER);
    field.SetFocus();
    tests::Type(folder.wstring());
    ASSERT_TRUE(tests::PumpUntil([&] { return TextOf(field) == folder.wstring(); }));
    tests::Click(tests::Centre(page.GetDlgItem(IDC_ADD_FOLDER)->m_hWnd));
    ASSERT_TRUE(tests::PumpUntil([&] { return count() == 1; }));
    EXPECT_EQ(TextOf(field), L"");
    EXPECT_TRUE(::IsWindowEnabled(remove));
    field.SetWindowText((m_folder / "gone").c_str());
    page.SendMessage(WM_COMMAND, IDC_ADD_FOLDER);
    EXPECT_EQ(tests::App().TakeMessages().size(), 1U);
    EXPECT_EQ(count(), 1);
    tests::Click(tests::Centre(SheetButton(ID_APPLY_NOW).m_hWnd));
    ASSERT_TRUE(tests::PumpUntil([this] { return !m_window->Settings().startFolders.empty(); }));
    EXPECT_EQ(m_window->Settings().startFolders, std::vector<fs::path>{folder});
    tests::Click(tests::Centre(remove));
    ASSERT_TRUE(tests::PumpUntil([&] { return count() == 0; }));
    Sheet().SendMessage(WM_COMMAND, IDOK);
    ASSERT_TRUE(WaitUntilClosed());
    EXPECT_TRUE(m_window->Settings().startFolders.empty());
}

/// Whatever is open when the window is closed goes with it.
class WorkbenchClosing : public WorkbenchControls
{
protected:
    /// Opens something by the action, which may return only once it is closed; then closes the main window.
    void CloseWhileOpen(std::function<void()> const & open, std::vector<HWND> known)
    {
        tests::GuardedHeap heap;
        known.push_back(nullptr);
        tests::LaterActions later;
        HWND const window = m_window->m_hWnd;
        later.Add([=] { ::SendMessageW(window, WM_CLOSE, 0, 0); }, [known] { return OtherPopup(known) != nullptr; });
        open();
        ASSERT_TRUE(tests::PumpUntil([&] { return later.Done() && !::IsWindow(window); }));
        EXPECT_FALSE(later.Failed());
        tests::PumpPosted();
        EXPECT_EQ(heap.Check(), 0U);
        // The window's end has told the thread to quit.
        MSG message;
        ::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
        OpenWindow();
    }
};

TEST_F(WorkbenchClosing, OfTheChoiceOfAColour)
{
    Show(1);
    OpenSettings();
    CWnd & button = *Page(waveform_page).GetDlgItem(IDC_COLOUR_FIRST);
    CloseWhileOpen([&] { button.SendMessage(BM_CLICK); }, {Sheet().m_hWnd, m_window->m_hWnd});
}

TEST_F(WorkbenchClosing, OfTheDropDownOfColumns)
{
    Show(1);
    OpenSettings();
    auto & field = *static_cast<CXEditBrowseCtrl *>(Page(list_page).GetDlgItem(IDC_COLUMNS));
    CloseWhileOpen([&] { field.OnBrowse(); }, {Sheet().m_hWnd, m_window->m_hWnd});
}

TEST_F(WorkbenchClosing, OfTheColumnsAtTheTitles)
{
    Show(1);
    CloseWhileOpen([&] { m_window->SendMessage(WM_COMMAND, ID_CHOOSE_COLUMNS); }, {m_window->m_hWnd});
}

TEST_F(WorkbenchClosing, OfTheDialogForAFolder)
{
    CloseWhileOpen([&] { m_window->SendMessage(WM_COMMAND, ID_OPEN_FOLDER); }, {m_window->m_hWnd});
}

TEST_F(WorkbenchClosing, OfTheExport)
{
    Show(1);
    CloseWhileOpen([&] { m_window->SendMessage(WM_COMMAND, ID_EXPORT_LIST); }, {m_window->m_hWnd});
}

TEST_F(WorkbenchClosing, OfSavingAPicture)
{
    Show(1);
    CloseWhileOpen([&] { m_window->SendMessage(WM_COMMAND, ID_SAVE_WAVEFORM); }, {m_window->m_hWnd});
}

TEST_F(WorkbenchClosing, OfATreeThatIsBeingFilled)
{
    m_window->ShowFolders(true);
    std::filesystem::path const folder = Folder(300);
    m_window->ShowTargets({folder});
    ASSERT_TRUE(tests::PumpUntil([this] { return Tree().IsBusy(); }));
    CloseWindow();
    OpenWindow();
    EXPECT_TRUE(m_window->ShowsFolders());
}
} // namespace
