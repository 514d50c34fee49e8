// The analysis frames of the chosen recording: filled while they are measured, and linked to the plots by the cursor.

#include <afxcmn.h>

#include <fstream>
#include <vector>

#include "Bitmap.h"
#include "clipboard/Clipboard.h"
#include "GuardedHeap.h"
#include "logic/Texts.h"
#include "MainWindowTest.h"

namespace
{
using Rows = std::vector<TableRow>;
using workbench::FrameTable;

constexpr std::uint64_t row_frames = 48; // from one row to the next

class WorkbenchFrameMeasures : public tests::MainWindowTest
{
protected:
    static constexpr CMainWindow::Part part = CMainWindow::part_frame_measures;

    CFrameMeasuresPanel & Panel() { return m_window->FrameMeasures(); }
    CXTableCtrl & Table() { return Panel().Table(); }
    CWnd & Control(int id) { return *m_window->GetDescendantWindow(id); }
    static std::wstring TextOf(CWnd & window)
    {
        CString text;
        window.GetWindowText(text);
        return text.GetString();
    }

    /// A silent recording of so many milliseconds, without a byte on the disk.
    void AddLong(char const * name, std::uint32_t milliseconds)
    {
        std::filesystem::path const path = m_folder / "recordings" / name;
        tests::WriteRecording(path, 48000, 0);
        unsigned int const bytes = milliseconds * 96;
        std::fstream file(path, std::ios::in | std::ios::out | std::ios::binary);
        for (auto const & [place, size] : {std::pair(4, bytes + 36), std::pair(40, bytes)})
        {
            file.seekp(place);
            for (int i = 0; i < 4; ++i)
                file.put(static_cast<char>(size >> (8 * i)));
        }
        file.close();
        std::filesystem::resize_file(path, 44 + bytes);
    }
    void Open(std::filesystem::path const & folder)
    {
        m_window->ShowTargets({folder});
        ASSERT_TRUE(WaitUntilRead());
    }
    bool WaitUntilMeasured()
    {
        return tests::PumpUntil([this] { return !Panel().IsFilling() && Table().RowsShown() > 0; }, tests::read_limit);
    }
    /// Ten rows, of which the first one has the cursor.
    void ShowShort()
    {
        Open(Folder(2));
        m_window->ShowPane(part, true);
        ASSERT_TRUE(WaitUntilMeasured());
        ASSERT_TRUE(tests::PumpUntil([this] { return Table().SelectedRows() == Rows{0}; }));
    }
    void Type(wchar_t const * filter) { Control(IDC_FRAME_FILTER).SetWindowText(filter); }
    CPoint RowCentre(int position)
    {
        CRect rect;
        Table().GetItemRect(position, &rect, LVIR_BOUNDS);
        CPoint point(rect.left + 30, rect.CenterPoint().y);
        Table().ClientToScreen(&point);
        return point;
    }
    CPoint TitleCentre(int place)
    {
        CRect rect;
        Table().GetHeaderCtrl()->GetItemRect(place, &rect);
        CPoint point = rect.CenterPoint();
        Table().GetHeaderCtrl()->ClientToScreen(&point);
        return point;
    }
    std::wstring Title(int place)
    {
        wchar_t text[60] = L"";
        HDITEM item{};
        item.mask = HDI_TEXT;
        item.pszText = text;
        item.cchTextMax = static_cast<int>(std::size(text));
        Table().GetHeaderCtrl()->GetItem(place, &item);
        return text;
    }
    std::uint64_t Cursor() { return m_window->Waveform().Marks().cursor; }
};
} // namespace

TEST_F(WorkbenchFrameMeasures, AreMeasuredOnceTheyAreSeen)
{
    EXPECT_FALSE(m_window->ShowsPane(part)) << "until somebody asks for it";
    Open(Folder(1));
    EXPECT_TRUE(Panel().IsFilling());
    EXPECT_EQ(Table().RowsShown(), 0U);
    tests::Key(L'6', {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([this] { return m_window->ShowsPane(part); }));
    ASSERT_TRUE(WaitUntilMeasured());
    EXPECT_EQ(Table().RowsShown(), 10U) << "one each millisecond";
    EXPECT_EQ(Title(1), L"Peak [dBFS]");
    // A saw tooth up to 19,950 of 32,768.
    EXPECT_EQ(Table().ShownText(5, FrameTable::column_time), L"0.005");
    EXPECT_EQ(Table().ShownText(5, FrameTable::column_peak), L"-4.31");
    EXPECT_EQ(Table().ShownText(5, FrameTable::column_frequency), L"") << "shorter than a window";
    EXPECT_TRUE(
        tests::PumpUntil([this] { return TextOf(Control(IDC_FRAME_STATUS)) == L"Frames: 10; windows of 21.3 ms"; }));
}

TEST_F(WorkbenchFrameMeasures, RowsAreThereWhileOthersAreMeasured)
{
    AddLong("long.wav", 60000);
    Open(m_folder / "recordings");
    m_window->ShowPane(part, true);
    ASSERT_TRUE(tests::PumpUntil([this] { return Table().RowsShown() > 500; }, tests::read_limit));
    EXPECT_TRUE(Panel().IsFilling());
    EXPECT_LT(Table().RowsShown(), 60000U);
    EXPECT_NE(Panel().StatusText().find(L"measuring"), std::wstring::npos);
    // What is there can be worked with.
    ASSERT_TRUE(tests::PumpUntil([this] { return Table().SelectedRows() == Rows{0}; }));
    tests::Click(RowCentre(4));
    ASSERT_TRUE(tests::PumpUntil([this] { return Cursor() == 4 * row_frames; }));
    ASSERT_TRUE(WaitUntilMeasured());
    ASSERT_TRUE(tests::PumpUntil([this] { return Table().RowsShown() == 60000; }));
    EXPECT_EQ(Table().SelectedRows(), Rows{4});
    EXPECT_EQ(Table().ShownText(59999, FrameTable::column_time), L"59.999");
}

TEST_F(WorkbenchFrameMeasures, ARowThatIsChosenMovesTheCursorOfThePlots)
{
    ShowShort();
    int told = 0;
    auto const onFrame = Panel().m_onFrame;
    Panel().m_onFrame = [&](std::uint64_t frame) {
        ++told;
        onFrame(frame);
    };
    tests::Click(RowCentre(5));
    ASSERT_TRUE(tests::PumpUntil([this] { return Cursor() == 5 * row_frames; }));
    EXPECT_EQ(Table().SelectedRows(), Rows{5});
    tests::Key(VK_DOWN);
    ASSERT_TRUE(tests::PumpUntil([this] { return Cursor() == 6 * row_frames; }));
    EXPECT_EQ(Table().SelectedRows(), Rows{6});
    tests::Key(VK_DOWN, {VK_SHIFT});
    ASSERT_TRUE(tests::PumpUntil([this] { return Cursor() == 7 * row_frames; }));
    EXPECT_EQ(Table().SelectedRows(), (Rows{6, 7})) << "and what is selected stays";
    tests::PumpPosted();
    EXPECT_EQ(told, 3) << "once a step";
}

TEST_F(WorkbenchFrameMeasures, TheCursorOfThePlotsChoosesItsRow)
{
    ShowShort();
    int told = 0;
    Panel().m_onFrame = [&](std::uint64_t) { ++told; };
    m_window->Waveform().MoveCursor(100);
    EXPECT_EQ(Table().SelectedRows(), Rows{2}) << "the nearest one";
    EXPECT_EQ(Cursor(), 100U) << "which leaves the cursor where it is";
    m_window->Waveform().MoveCursor(479);
    EXPECT_EQ(Table().SelectedRows(), Rows{9});
    EXPECT_EQ(told, 0);
    // Zooming moves no cursor.
    Table().SelectAllRows();
    tests::MoveMouse([this] {
        CRect plot;
        m_window->Waveform().GetWindowRect(&plot);
        return plot.CenterPoint();
    }());
    m_window->Waveform().SetFocus();
    tests::Key(VK_ADD);
    ASSERT_TRUE(tests::PumpUntil([this] { return !m_window->Waveform().Marks().window.ShowsAll(); }));
    EXPECT_EQ(Table().SelectedRows().size(), 10U);
}

TEST_F(WorkbenchFrameMeasures, AChosenRowKeepsWhatIsSelectedInThePlots)
{
    ShowShort();
    CWaveformView & plot = m_window->Waveform();
    workbench::TimeMarks marks = plot.Marks();
    marks.window.Show({100, 200});
    marks.other = 120;
    marks.cursor = 160;
    plot.SetMarks(marks);
    ASSERT_EQ(plot.Marks().Selection(), (workbench::FrameRange{120, 160}));
    tests::Click(RowCentre(4));
    ASSERT_TRUE(tests::PumpUntil([this] { return Cursor() == 4 * row_frames; }));
    EXPECT_EQ(plot.Marks().Selection(), (workbench::FrameRange{120, 160}));
    EXPECT_EQ(plot.Marks().window.Shown(), (workbench::FrameRange{100, 200})) << "it is in sight";
    // One that is out of sight comes into it with something around it, and no further.
    tests::Click(RowCentre(6));
    ASSERT_TRUE(tests::PumpUntil([this] { return Cursor() == 6 * row_frames; }));
    EXPECT_EQ(plot.Marks().Selection(), (workbench::FrameRange{120, 160}));
    workbench::FrameRange const shown = plot.Marks().window.Shown();
    EXPECT_EQ(shown.Length(), 100U);
    EXPECT_GT(shown.end, 6 * row_frames + 5);
    EXPECT_LT(shown.end, 6 * row_frames + 20);
    // The cursor of the plots ends the selection, as ever.
    plot.SetFocus();
    tests::Key(VK_RIGHT);
    ASSERT_TRUE(tests::PumpUntil([this] { return Cursor() != 6 * row_frames; }));
    EXPECT_FALSE(plot.Marks().HasSelection());
}

TEST_F(WorkbenchFrameMeasures, AWrongFilterSaysWhyAndShowsAllRows)
{
    ShowShort();
    auto const status = [this] { return TextOf(Control(IDC_FRAME_STATUS)); };
    Type(L"> abc");
    ASSERT_TRUE(tests::PumpUntil([&] { return status() == L"No number: abc"; })) << status().c_str();
    EXPECT_EQ(Table().RowsShown(), 10U);
    Type(L">");
    ASSERT_TRUE(tests::PumpUntil([&] { return status() == L"A number is missing."; })) << status().c_str();
    Type(L"> 0");
    ASSERT_TRUE(tests::PumpUntil([&] { return status() == L"Frames: 0 of 10; windows of 21.3 ms"; }))
        << status().c_str();
    Type(L"");
    ASSERT_TRUE(tests::PumpUntil([&] { return status() == L"Frames: 10; windows of 21.3 ms"; })) << status().c_str();
}

TEST_F(WorkbenchFrameMeasures, ColumnsAreSortedHiddenAndMovedByKeys)
{
    ShowShort();
    auto const inMenu = [] {
        GUITHREADINFO info{};
        info.cbSize = sizeof info;
        return ::GetGUIThreadInfo(::GetCurrentThreadId(), &info) && (info.flags & GUI_INMENUMODE) != 0;
    };
    Table().SetFocus();
    auto const choose = [&](WORD submenu, WORD item) {
        tests::LaterActions later;
        later.Add([=] { tests::Key(submenu); }, inMenu);
        later.Add([=] { tests::Key(item); });
        tests::Key(VK_APPS);
        EXPECT_TRUE(tests::PumpUntil([&] { return later.Done() && !inMenu(); }));
        EXPECT_FALSE(later.Failed());
    };
    choose(L'S', L'1');
    ASSERT_TRUE(tests::PumpUntil([this] { return Table().SortColumns().size() == 1; }));
    choose(L'S', L'1');
    ASSERT_TRUE(tests::PumpUntil([this] { return Table().RowAt(0) == 9; })) << "the other way round";
    choose(L'H', L'4');
    EXPECT_EQ(Table().ShownColumns(), (std::vector<unsigned int>{0, 1, 2, 4, 5}));
    choose(L'L', L'5');
    EXPECT_EQ(Table().ShownColumns(), (std::vector<unsigned int>{0, 1, 4, 2, 5}));
    choose(L'R', L'1');
    EXPECT_EQ(Table().ShownColumns(), (std::vector<unsigned int>{1, 0, 4, 2, 5}));
    choose(L'H', L'4');
    EXPECT_EQ(Table().ShownColumns().size(), 6U);
}

TEST_F(WorkbenchFrameMeasures, SortingKeepsTheChosenRow)
{
    ShowShort();
    tests::Click(RowCentre(3));
    ASSERT_TRUE(tests::PumpUntil([this] { return Cursor() == 3 * row_frames; }));
    tests::Click(TitleCentre(0));
    tests::PumpPosted();
    tests::Click(TitleCentre(0));
    ASSERT_TRUE(tests::PumpUntil([this] { return Table().RowAt(0) == 9; })) << "the last time first";
    EXPECT_EQ(Table().SelectedRows(), Rows{3});
    EXPECT_EQ(Table().FocusRow(), 3U);
    EXPECT_EQ(Cursor(), 3 * row_frames);
    m_window->Waveform().MoveCursor(96);
    EXPECT_EQ(Table().SelectedRows(), Rows{2});
    EXPECT_EQ(Table().PositionOf(2), 7U);
}

TEST_F(WorkbenchFrameMeasures, AFilterChoosesRowsByValue)
{
    ShowShort();
    m_window->Waveform().MoveCursor(96);
    ASSERT_EQ(Table().SelectedRows(), Rows{2});
    auto & column = static_cast<CComboBox &>(Control(IDC_FRAME_COLUMN));
    column.SetCurSel(FrameTable::column_time);
    Type(L">= 0.004");
    ASSERT_TRUE(tests::PumpUntil([this] { return Table().RowsShown() == 6; }));
    ASSERT_TRUE(tests::PumpUntil(
        [this] { return TextOf(Control(IDC_FRAME_STATUS)) == L"Frames: 6 of 10; windows of 21.3 ms"; }));
    EXPECT_EQ(Table().RowAt(0), 4U);
    // The cursor stands where no row is shown.
    m_window->Waveform().MoveCursor(144);
    EXPECT_TRUE(Table().SelectedRows().empty());
    m_window->Waveform().MoveCursor(240);
    EXPECT_EQ(Table().SelectedRows(), Rows{5});
    m_window->Waveform().MoveCursor(144);
    Control(IDC_FRAME_FILTER).SetFocus();
    tests::Key(VK_ESCAPE);
    ASSERT_TRUE(tests::PumpUntil([this] { return Table().RowsShown() == 10; }));
    ASSERT_TRUE(tests::PumpUntil([this] { return Table().SelectedRows() == Rows{3}; })) << "it is shown again";
}

TEST_F(WorkbenchFrameMeasures, AnotherRecordingReplacesOneThatIsStillMeasured)
{
    Folder(1);
    AddLong("long.wav", 600000);
    Open(m_folder / "recordings");
    ASSERT_TRUE(m_window->ChooseRecording(0));
    m_window->ShowPane(part, true);
    bool const longFirst = m_window->List().GetItemText(0, CRecordingList::column_name) == L"long.wav";
    for (int round = 0; round < 3; ++round)
    {
        ASSERT_TRUE(m_window->ChooseRecording(longFirst ? 0 : 1));
        ASSERT_TRUE(tests::PumpUntil([this] { return Table().RowsShown() > 500; }, tests::read_limit));
        EXPECT_TRUE(Panel().IsFilling());
        ASSERT_TRUE(m_window->ChooseRecording(longFirst ? 1 : 0));
        ASSERT_TRUE(WaitUntilMeasured());
        ASSERT_TRUE(tests::PumpUntil([this] { return Table().RowsShown() == 10; }));
        EXPECT_EQ(Table().ShownText(5, FrameTable::column_peak), L"-4.31") << round;
    }
    // None at all.
    m_window->ShowTargets({});
    EXPECT_EQ(Table().RowsShown(), 0U);
    EXPECT_FALSE(Panel().IsFilling());
    EXPECT_EQ(Panel().StatusText(), L"No recordings");
}

TEST_F(WorkbenchFrameMeasures, TheWindowClosesWhileOneIsMeasured)
{
    AddLong("long.wav", 600000);
    Open(m_folder / "recordings");
    m_window->ShowPane(part, true);
    ASSERT_TRUE(tests::PumpUntil([this] { return Table().RowsShown() > 500; }, tests::read_limit));
    ASSERT_TRUE(Panel().IsFilling());
    {
        tests::GuardedHeap heap;
        CloseWindow();
        tests::PumpPosted();
        EXPECT_EQ(heap.Check(), 0U);
    }
    OpenWindow();
    EXPECT_TRUE(m_window->ShowsPane(part)) << "as it was";
}

TEST_F(WorkbenchFrameMeasures, ADamagedFileSaysSo)
{
    std::ofstream(m_folder / "recordings" / "zero.wav") << "no recording";
    Open(m_folder / "recordings");
    m_window->ShowPane(part, true);
    ASSERT_TRUE(tests::PumpUntil([this] { return TextOf(Control(IDC_FRAME_STATUS)) == L"not a WAV file"; }));
    EXPECT_EQ(Table().RowsShown(), 0U);
    EXPECT_FALSE(Panel().IsFilling());
    EXPECT_FALSE(Control(IDC_FRAME_EXPORT).IsWindowEnabled());
}

TEST_F(WorkbenchFrameMeasures, SelectedRowsAreCopiedWithTheirTitles)
{
    ShowShort();
    tests::Click(RowCentre(1));
    ASSERT_TRUE(tests::PumpUntil([this] { return Table().SelectedRows() == Rows{1}; }));
    auto const copied = [] {
        CString text;
        Clipboard::StringFromClipboard(text);
        return std::wstring(text.GetString());
    };
    Clipboard::StringToClipboard(L"");
    tests::Key(L'C', {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([&] { return copied().starts_with(L"Time [s]\tPeak [dBFS]\t"); }));
    EXPECT_NE(copied().find(L"0.001\t-4.31\t"), std::wstring::npos);
    Clipboard::StringToClipboard(L"");
    tests::Key(L'A', {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([this] { return Table().SelectedRows().size() == 10; }));
    m_window->SendMessage(WM_COMMAND, ID_COPY);
    EXPECT_NE(copied().find(L"0.009\t-4.31\t"), std::wstring::npos);
    // The list's own when that has the focus.
    m_window->List().SetFocus();
    m_window->SendMessage(WM_COMMAND, ID_COPY);
    EXPECT_EQ(copied().find(L"Peak [dBFS]"), std::wstring::npos);
}

TEST_F(WorkbenchFrameMeasures, TheMenuOfTheRowsSelectsAndCopiesThem)
{
    ShowShort();
    auto const inMenu = [] {
        GUITHREADINFO info{};
        info.cbSize = sizeof info;
        return ::GetGUIThreadInfo(::GetCurrentThreadId(), &info) && (info.flags & GUI_INMENUMODE) != 0;
    };
    auto const choose = [&](WORD key) {
        tests::LaterActions later;
        later.Add([key] { tests::Key(key); }, inMenu);
        tests::Click(RowCentre(4), tests::Button::right);
        EXPECT_TRUE(tests::PumpUntil([&] { return later.Done() && !inMenu(); }));
        EXPECT_FALSE(later.Failed());
    };
    choose(L'A');
    EXPECT_EQ(Table().SelectedRows().size(), 10U);
    EXPECT_EQ(Cursor(), 4 * row_frames) << "a click is one with either button";
    Clipboard::StringToClipboard(L"");
    choose(L'C');
    CString text;
    Clipboard::StringFromClipboard(text);
    EXPECT_EQ(text.Find(L"Time [s]\tPeak [dBFS]"), 0);
    EXPECT_GT(text.Find(L"0.009\t"), 0);
}

TEST_F(WorkbenchFrameMeasures, AllRowsAreExportedAsCsv)
{
    ShowShort();
    std::filesystem::path const path = m_folder / "frames.csv";
    ASSERT_TRUE(Table().ExportRows(path.wstring(), TableForm::csv, false));
    ASSERT_TRUE(tests::PumpUntil([this] { return !Table().IsExporting(); }));
    std::ifstream file(path, std::ios::binary);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);)
        lines.push_back(line);
    ASSERT_EQ(lines.size(), 11U);
    EXPECT_NE(lines[0].find("Peak [dBFS]"), std::string::npos);
    EXPECT_EQ(lines[5].substr(0, 9), "0.004,-4.");
    EXPECT_LE(lines[5].find(',', 6), std::size("0.004,-4.123") - 1) << "with the digits that are known: " << lines[5];
}

TEST_F(WorkbenchFrameMeasures, TheStatusLineSaysWhatHasBeenExported)
{
    ShowShort();
    std::filesystem::path const path = m_folder / "said.csv";
    std::filesystem::path const before = std::filesystem::current_path();
    tests::LaterActions later;
    auto const dialog = [] { return ::FindWindowW(nullptr, L"Export Analysis Frames"); };
    later.Add(
        [&] {
            tests::Type(path.wstring());
            tests::Key(VK_RETURN);
        },
        [&] { return dialog() != nullptr && ::IsWindowVisible(dialog()) && ::IsChild(dialog(), ::GetFocus()); });
    Control(IDC_FRAME_EXPORT).SendMessage(BM_CLICK);
    EXPECT_FALSE(later.Failed());
    ASSERT_TRUE(tests::PumpUntil([this] { return !Table().IsExporting(); }));
    EXPECT_TRUE(
        tests::PumpUntil([&] { return Status().find(L"frames written: " + path.wstring()) != std::wstring::npos; }));
    EXPECT_EQ(std::filesystem::current_path(), before) << "the folder can be deleted";
}

TEST_F(WorkbenchFrameMeasures, FollowTheLanguageAtOnce)
{
    LCID const locale = ::GetThreadLocale();
    ShowShort();
    Table().SortBy({{FrameTable::column_time, true}});
    m_window->ChooseLanguage(1031);
    CString title;
    m_window->Pane(part).GetWindowText(title);
    EXPECT_EQ(title, L"Analyseabschnitte");
    EXPECT_EQ(Title(0), L"Zeit [s]");
    EXPECT_EQ(Title(5), L"Schwerpunkt [Hz]");
    EXPECT_EQ(TextOf(Control(IDC_FRAME_EXPORT)), L"Exportieren...");
    EXPECT_TRUE(tests::PumpUntil(
        [this] { return TextOf(Control(IDC_FRAME_STATUS)) == L"Abschnitte: 10; Fenster von 21.3 ms"; }));
    EXPECT_EQ(TextOf(Control(IDC_FRAME_COLUMN)), L"Spitze");
    EXPECT_EQ(Table().RowAt(0), 9U) << "the order stays";
    EXPECT_EQ(Table().SelectedRows(), Rows{0});
    m_window->ChooseLanguage(1033);
    EXPECT_EQ(Title(0), L"Time [s]");
    ::SetThreadLocale(locale);
    ::SetThreadUILanguage(0);
}

TEST_F(WorkbenchFrameMeasures, ColumnsAndPlaceComeBackAfterARestart)
{
    ShowShort();
    ASSERT_TRUE(Table().HideTableColumn(FrameTable::column_crest, true));
    Table().MoveTableColumn(FrameTable::column_frequency, 0);
    CloseWindow();
    OpenWindow();
    EXPECT_TRUE(m_window->ShowsPane(part));
    EXPECT_EQ(Table().ShownColumns(),
              (std::vector<unsigned int>{FrameTable::column_frequency, FrameTable::column_time, FrameTable::column_peak,
                                         FrameTable::column_rms, FrameTable::column_centroid}));
    m_window->SendMessage(WM_COMMAND, ID_RESET_LAYOUT);
    EXPECT_FALSE(m_window->ShowsPane(part));
    EXPECT_EQ(m_window->List().IsWindowVisible(), TRUE);
}

TEST_F(WorkbenchFrameMeasures, NothingIsCutOffInAnyLanguageOrResolution)
{
    LCID const locale = ::GetThreadLocale();
    for (int const dots : {96, 144})
    {
        CloseWindow();
        ForgetSettings();
        OpenWindow(dots);
        ShowShort();
        for (workbench::LanguageFacts const & language : workbench::language_facts)
        {
            m_window->ChooseLanguage(language.id);
            CClientDC dc(&Table());
            CFont * const former = dc.SelectObject(Table().GetFont());
            auto const width = [&dc](std::wstring const & text) { return dc.GetTextExtent(text.c_str()).cx; };
            for (int place = 0; place < 6; ++place)
            {
                EXPECT_GE(Table().GetColumnWidth(place), width(Title(place)) + 34)
                    << language.id << Title(place).c_str();
            }
            for (int const id : {IDC_FRAME_STATUS, IDC_FRAME_EXPORT})
            {
                CRect place;
                Control(id).GetWindowRect(&place);
                EXPECT_GE(place.Width(), width(TextOf(Control(id)))) << language.id << ' ' << id;
            }
            // Also while an hour is measured.
            CString frames;
            CString measuring;
            frames.Format(workbench::Text(L"Frames: %s"), L"3,600,000");
            measuring.Format(workbench::Text(L"measuring, %d %%"), 99);
            CRect status;
            Control(IDC_FRAME_STATUS).GetWindowRect(&status);
            EXPECT_GE(status.Width(), width((frames + L"; " + measuring).GetString())) << language.id;
            measuring.Format(workbench::Text(L"windows of %s"), L"23.2 ms");
            EXPECT_GE(status.Width(), width((frames + L"; " + measuring).GetString())) << language.id;
            dc.SelectObject(former);
            CRect inside;
            Panel().GetWindowRect(&inside);
            for (CWnd * child = Panel().GetWindow(GW_CHILD); child != nullptr; child = child->GetWindow(GW_HWNDNEXT))
            {
                CRect place;
                child->GetWindowRect(&place);
                EXPECT_GE(place.left, inside.left) << child->GetDlgCtrlID();
                EXPECT_LE(place.right, inside.right) << child->GetDlgCtrlID();
                EXPECT_GT(place.Width(), 20) << child->GetDlgCtrlID();
            }
        }
        m_window->ChooseLanguage(1033);
    }
    ::SetThreadLocale(locale);
    ::SetThreadUILanguage(0);
}

TEST_F(WorkbenchFrameMeasures, OnADarkGroundTheyAreDark)
{
    constexpr int indices[] = {COLOR_BTNFACE, COLOR_BTNTEXT, COLOR_WINDOW, COLOR_WINDOWTEXT};
    constexpr COLORREF dark[] = {RGB(45, 45, 48), RGB(230, 230, 230), RGB(30, 30, 30), RGB(230, 230, 230)};
    COLORREF former[std::size(indices)];
    for (std::size_t i = 0; i < std::size(indices); ++i)
        former[i] = ::GetSysColor(indices[i]);
    ShowShort();
    ::SetSysColors(static_cast<int>(std::size(indices)), indices, dark);
    tests::PumpPosted();
    // Below the titles, which the system paints.
    CRect titles;
    Table().GetHeaderCtrl()->GetClientRect(&titles);
    auto const share = [](CWnd & window, COLORREF colour, int top) {
        window.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        CRect place;
        window.GetClientRect(&place);
        tests::Canvas picture(place.Width(), place.Height());
        picture.CopyFromScreen(window);
        place.top += top;
        return picture.Count(colour, place) * 100 / (place.Width() * place.Height());
    };
    EXPECT_GT(share(Table(), dark[2], titles.Height()), 60);
    EXPECT_GT(share(Control(IDC_FRAME_STATUS), dark[0], 0), 60);
    EXPECT_EQ(share(Table(), former[2], titles.Height()), 0);
    ::SetSysColors(static_cast<int>(std::size(indices)), indices, former);
}
