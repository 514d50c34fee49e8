// The workbench's list of recordings: sorting by a click, dragging lines, and copies of them.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "../clipboard_ClipboardTest.h"
#include "DrawingScopes.h"
#include "frame/RegisteredMessages.h"
#include "Input.h"
#include "logic/ReadableColours.h"
#include "Pump.h"
#include "RecordingCells.h"
#include "RecordingList.h"
#include "ScopedWindow.h"
#include "StarRating.h"

namespace
{
using Lines = std::vector<int>;
using workbench::RecordingAnalysis;

constexpr int list_id = 7;
constexpr std::uint32_t rate = 1000;

struct Recording
{
    wchar_t const * name;
    std::uint64_t milliseconds; ///< 0: cannot be read
    double peak;
};
// Two peaks have the same whole percent on their bar.
constexpr Recording recordings[] = {
    {L"b.wav", 3000, -6.0},  {L"e.wav", 1000, -6.4},  {L"a.wav", 0, 0.0},
    {L"d.wav", 10000, -6.2}, {L"c.wav", 2000, -40.0},
};
constexpr int unreadable = 2;

std::shared_ptr<RecordingAnalysis const> AnalysisOf(Recording const & recording)
{
    auto analysis = std::make_shared<RecordingAnalysis>();
    if (recording.milliseconds == 0)
    {
        analysis->problem = workbench::ReadProblem{workbench::ReadFault::cannot_be_opened};
        return analysis;
    }
    analysis->info.channels = 1;
    analysis->info.sampleRate = rate;
    analysis->info.frames = recording.milliseconds;
    analysis->info.announcedFrames = recording.milliseconds;
    analysis->levels = {recording.peak, recording.peak - 3.0};
    return analysis;
}

class RecordingListTest : public clipboard_tests::ClipboardTest
{
protected:
    void SetUp() override
    {
        ClipboardTest::SetUp();
        ASSERT_TRUE(m_list.CreateList(m_host, list_id, m_metrics));
        m_list.SetWindowPos(nullptr, 0, 0, 1160, 260, SWP_NOZORDER);
        Show();
        ASSERT_TRUE(tests::BringToFront(m_host.m_hWnd));
        m_list.SetFocus();
        m_list.UpdateWindow();
        tests::PumpPosted();
    }
    void TearDown() override
    {
        m_list.DestroyWindow();
        ClipboardTest::TearDown();
    }

    void Show()
    {
        std::vector<std::filesystem::path> files;
        for (Recording const & recording : recordings)
        {
            files.push_back(std::filesystem::path(L"C:\\recordings") / recording.name);
        }
        m_list.ShowFiles(files, std::vector<CRecordingList::Notes>(files.size()));
        for (int line = 0; line < static_cast<int>(std::size(recordings)); ++line)
        {
            m_list.ShowAnalysis(line, AnalysisOf(recordings[line]));
        }
    }
    Lines Order() const
    {
        Lines order;
        for (int row = 0; row < m_list.GetItemCount(); ++row)
        {
            order.push_back(m_list.LineAt(row));
        }
        return order;
    }
    /// Clicks on a column's title and waits until its arrow shows that.
    void ClickTitle(CRecordingList::Column column, int expectedMark)
    {
        CRect item;
        CHeaderCtrl * const header = m_list.GetHeaderCtrl();
        ASSERT_TRUE(header->GetItemRect(column, &item));
        // Successive clicks are apart, so that they are no double click.
        m_shift = -m_shift;
        tests::Click(tests::ClientPoint(header->m_hWnd, item.CenterPoint() + CPoint(m_shift, 0)));
        EXPECT_TRUE(tests::PumpUntil([&] { return m_list.GetHeaderCheckedState(column) == expectedMark; }));
        tests::PumpPosted();
    }
    void Select(std::vector<int> const & lines)
    {
        m_list.ChooseLine(-1);
        for (int const line : lines)
        {
            m_list.SetItemState(m_list.PlaceOf(line), LVIS_SELECTED, LVIS_SELECTED);
        }
    }
    CPoint ScreenPoint(int line)
    {
        return tests::ClientPoint(m_list.m_hWnd, m_list.CellCentre(line, CRecordingList::column_status));
    }

    /// The middle of the upper or the lower half of a line's row.
    CPoint HalfOf(int line, bool upper)
    {
        CRect row;
        m_list.GetItemRect(m_list.PlaceOf(line), &row, LVIR_BOUNDS);
        return ScreenPoint(line) + CPoint(0, (upper ? -1 : 1) * row.Height() / 4);
    }
    /// Whether the mark of a drag stands at the upper edge of a row.
    bool HasMark(int row)
    {
        CRect rect;
        m_list.GetItemRect(std::min(row, m_list.GetItemCount() - 1), &rect, LVIR_BOUNDS);
        CClientDC dc(&m_list);
        LONG const y = row < m_list.GetItemCount() ? rect.top : rect.bottom;
        return dc.GetPixel(rect.left + 40, y) == ::GetSysColor(COLOR_HIGHLIGHT) &&
               dc.GetPixel(rect.left + 300, y) == ::GetSysColor(COLOR_HIGHLIGHT);
    }
    void DragTo(CPoint screen)
    {
        tests::MoveMouse(screen + CPoint(1, 0));
        tests::MoveMouse(screen);
    }

    workbench::ScreenMetrics m_metrics;
    tests::ScopedWindow m_host{CRect(20, 20, 1220, 400)};
    CRecordingList m_list;

private:
    int m_shift = 6;
};

TEST_F(RecordingListTest, OtherTitlesLeaveTheColumnsTheirSides)
{
    auto const sides = [this] {
        std::vector<int> formats;
        for (int column = 0; column < CRecordingList::column_count; ++column)
        {
            HDITEMW item{};
            item.mask = HDI_FORMAT;
            m_list.GetHeaderCtrl()->GetItem(column, &item);
            formats.push_back(item.fmt & HDF_JUSTIFYMASK);
        }
        return formats;
    };
    std::vector<int> const before = sides();
    EXPECT_EQ(before[CRecordingList::column_duration], HDF_RIGHT);
    m_list.ShowTexts();
    EXPECT_EQ(sides(), before);
}

TEST_F(RecordingListTest, AClickOnATitleSortsAndAnotherOneTurnsTheOrder)
{
    ClickTitle(CRecordingList::column_name, XHC_SORT_ASCENDING);
    EXPECT_EQ(Order(), (Lines{2, 0, 4, 3, 1}));
    ClickTitle(CRecordingList::column_name, XHC_SORT_DESCENDING);
    EXPECT_EQ(Order(), (Lines{1, 3, 4, 0, 2}));
    ClickTitle(CRecordingList::column_duration, XHC_SORT_ASCENDING);
    EXPECT_EQ(m_list.GetHeaderCheckedState(CRecordingList::column_name), XHC_NONE);
    EXPECT_EQ(Order(), (Lines{1, 4, 0, 3, 2}));
}

TEST_F(RecordingListTest, EveryColumnButTheCheckBoxesSorts)
{
    for (int column = CRecordingList::column_name; column < CRecordingList::column_count; ++column)
    {
        m_list.SortLines(static_cast<CRecordingList::Column>(column), false);
        EXPECT_EQ(m_list.GetHeaderCheckedState(column), XHC_SORT_DESCENDING) << column;
        EXPECT_EQ(m_list.GetHeaderCheckedState(CRecordingList::column_check), XHC_UNCHECKED) << column;
    }
    Lines const before = Order();
    m_list.SortLines(CRecordingList::column_check, true);
    EXPECT_EQ(Order(), before);
    EXPECT_EQ(m_list.GetHeaderCheckedState(CRecordingList::column_count - 1), XHC_SORT_DESCENDING);
}

TEST_F(RecordingListTest, LinesWithoutAValueComeLastBothWays)
{
    for (CRecordingList::Column const column :
         {CRecordingList::column_duration, CRecordingList::column_peak, CRecordingList::column_rms,
          CRecordingList::column_rating, CRecordingList::column_overview})
    {
        for (bool const ascending : {true, false})
        {
            m_list.SortLines(column, ascending);
            EXPECT_EQ(m_list.PlaceOf(unreadable), 4) << column;
        }
    }
}

TEST_F(RecordingListTest, PeaksGoByTheirLevelAndNotByTheirBar)
{
    m_list.SortLines(CRecordingList::column_peak, true);
    EXPECT_EQ(Order(), (Lines{4, 1, 3, 0, 2}));
    m_list.SortLines(CRecordingList::column_peak, false);
    EXPECT_EQ(Order(), (Lines{0, 3, 1, 4, 2}));
}

TEST_F(RecordingListTest, TheReferenceComesFirstAndRatingsGoByTheirRank)
{
    m_list.SetReference(3);
    m_list.SortLines(CRecordingList::column_reference, true);
    EXPECT_EQ(m_list.LineAt(0), 3);
    for (auto const & [line, rating] : {std::pair{4, 1}, std::pair{0, 3}})
    {
        m_list.SetComboSelection(m_list.PlaceOf(line), CRecordingList::column_rating, rating);
        m_list.OnItemStateChange(m_list.PlaceOf(line), CRecordingList::column_rating, WM_XLISTCTRL_CHECKBOX_CLICKED);
    }
    m_list.SortLines(CRecordingList::column_rating, false);
    EXPECT_EQ(m_list.LineAt(0), 0);
    EXPECT_EQ(m_list.LineAt(1), 4);
}

TEST_F(RecordingListTest, AnUnopenedColumnGoesBackToTheOrderOfTheFiles)
{
    m_list.SortLines(CRecordingList::column_name, false);
    m_list.SortLines(CRecordingList::column_overview, true);
    EXPECT_EQ(Order(), (Lines{0, 1, 3, 4, 2}));
}

TEST_F(RecordingListTest, LinesKeepTheirNumbers)
{
    m_list.ChooseLine(3);
    m_list.SortLines(CRecordingList::column_name, true);
    EXPECT_EQ(m_list.ChosenLine(), 3);
    EXPECT_EQ(m_list.GetItemText(m_list.PlaceOf(3), CRecordingList::column_name), L"d.wav");
    m_list.ChooseLine(0);
    EXPECT_EQ(m_list.GetSelectedItem(), 1);
    m_list.SetReference(4);
    EXPECT_EQ(m_list.ReferenceLine(), 4);
    EXPECT_TRUE(m_list.NotesOf(4).reference);
    EXPECT_FALSE(m_list.NotesOf(0).reference);
    m_list.ShowAnalysis(1, AnalysisOf({L"", 77000, -1.0}));
    EXPECT_EQ(m_list.GetItemText(m_list.PlaceOf(1), CRecordingList::column_duration).Trim(), L"1:17.000");
    for (int const wrong : {-1, 5, 99})
    {
        EXPECT_EQ(m_list.LineAt(wrong), -1);
        EXPECT_EQ(m_list.PlaceOf(wrong), -1);
    }
}

TEST_F(RecordingListTest, NewFilesStandInTheirOwnOrder)
{
    m_list.SortLines(CRecordingList::column_name, true);
    Show();
    EXPECT_EQ(Order(), (Lines{0, 1, 2, 3, 4}));
    EXPECT_EQ(m_list.GetHeaderCheckedState(CRecordingList::column_name), XHC_NONE);
    EXPECT_EQ(m_list.GetHeaderCheckedState(CRecordingList::column_check), XHC_UNCHECKED);
    // The next click sorts upwards again.
    ClickTitle(CRecordingList::column_name, XHC_SORT_ASCENDING);
}

TEST_F(RecordingListTest, ADragMovesALineAndEndsTheSorting)
{
    m_list.SortLines(CRecordingList::column_name, true);
    ASSERT_EQ(Order(), (Lines{2, 0, 4, 3, 1}));
    tests::Drag(ScreenPoint(0), HalfOf(1, true));
    ASSERT_TRUE(tests::PumpUntil([this] { return Order() == (Lines{2, 4, 3, 0, 1}); }));
    EXPECT_EQ(m_list.GetHeaderCheckedState(CRecordingList::column_name), XHC_NONE);
    EXPECT_EQ(m_list.GetHeaderCheckedState(CRecordingList::column_check), XHC_UNCHECKED);
    EXPECT_EQ(m_list.PlaceOf(0), 3);
    EXPECT_EQ(m_list.ChosenLine(), 0);
    tests::PumpPosted();
    ASSERT_TRUE(m_list.Undo());
    EXPECT_EQ(Order(), (Lines{2, 0, 4, 3, 1}));
    EXPECT_EQ(m_list.SortedColumn(), CRecordingList::column_name);
    ASSERT_TRUE(m_list.Redo());
    EXPECT_EQ(Order(), (Lines{2, 4, 3, 0, 1}));
    EXPECT_FALSE(m_list.CanRedo());
}

TEST_F(RecordingListTest, SeveralLinesAreDraggedTogether)
{
    Select({0, 3});
    tests::Drag(ScreenPoint(3), HalfOf(4, false));
    ASSERT_TRUE(tests::PumpUntil([this] { return Order() == (Lines{1, 2, 4, 0, 3}); }));
    EXPECT_EQ(m_list.SelectedLines(), (Lines{0, 3}));
    // Beside themselves they stay, and there is nothing to undo beyond the first drag.
    tests::PumpPosted();
    tests::Drag(ScreenPoint(0), HalfOf(3, true));
    tests::PumpFor(std::chrono::milliseconds(50));
    EXPECT_EQ(Order(), (Lines{1, 2, 4, 0, 3}));
    ASSERT_TRUE(m_list.Undo());
    EXPECT_EQ(Order(), (Lines{0, 1, 2, 3, 4}));
    EXPECT_FALSE(m_list.CanUndo());
}

TEST_F(RecordingListTest, AfterADragClicksOnlySelect)
{
    tests::Drag(ScreenPoint(0), HalfOf(3, false));
    ASSERT_TRUE(tests::PumpUntil([this] { return m_list.PlaceOf(0) == 3; }));
    Lines const order = Order();
    ASSERT_TRUE(tests::MoveMouse(ScreenPoint(4)));
    tests::Click(ScreenPoint(4));
    EXPECT_TRUE(tests::PumpUntil([this] { return m_list.ChosenLine() == 4; }));
    tests::PumpFor(std::chrono::milliseconds(50));
    EXPECT_EQ(Order(), order);
    // And the next drag works.
    tests::Drag(ScreenPoint(1), HalfOf(4, false));
    EXPECT_TRUE(tests::PumpUntil([this] { return m_list.PlaceOf(1) == 4; }));
}

TEST_F(RecordingListTest, AMarkShowsWhereADragLands)
{
    tests::MoveMouse(ScreenPoint(0));
    tests::Press();
    DragTo(HalfOf(1, false));
    EXPECT_TRUE(tests::PumpUntil([this] { return HasMark(2); }));
    DragTo(HalfOf(3, true));
    EXPECT_TRUE(tests::PumpUntil([this] { return HasMark(3) && !HasMark(2); }));
    DragTo(HalfOf(4, false));
    EXPECT_TRUE(tests::PumpUntil([this] { return HasMark(5) && !HasMark(3); }));
    tests::Release();
    EXPECT_TRUE(tests::PumpUntil([this] { return m_list.PlaceOf(0) == 4 && !HasMark(5); }));
}

TEST_F(RecordingListTest, EscapeEndsADrag)
{
    Lines const order = Order();
    tests::MoveMouse(ScreenPoint(0));
    tests::Press();
    DragTo(HalfOf(3, true));
    ASSERT_TRUE(tests::PumpUntil([this] { return HasMark(3); }));
    tests::Key(VK_ESCAPE);
    EXPECT_TRUE(tests::PumpUntil([this] { return !HasMark(3) && ::GetCapture() != m_list.m_hWnd; }));
    DragTo(HalfOf(4, true));
    tests::Release();
    tests::PumpFor(std::chrono::milliseconds(50));
    EXPECT_EQ(Order(), order);
    EXPECT_FALSE(HasMark(4));
    EXPECT_FALSE(m_list.CanUndo());
    // Nor do lines that go while they are dragged harm.
    tests::MoveMouse(ScreenPoint(1));
    tests::Press();
    DragTo(HalfOf(3, true));
    ASSERT_TRUE(tests::PumpUntil([this] { return HasMark(3); }));
    m_list.RemoveLines();
    tests::Release();
    tests::PumpFor(std::chrono::milliseconds(50));
    EXPECT_EQ(m_list.LineCount(), 0);
    EXPECT_NE(::GetCapture(), m_list.m_hWnd);
}

TEST_F(RecordingListTest, ADragAtTheEdgeScrolls)
{
    std::vector<std::filesystem::path> files;
    for (int i = 0; i < 60; ++i)
    {
        files.emplace_back(L"C:\\recordings\\" + std::to_wstring(i) + L".wav");
    }
    m_list.ShowFiles(files, std::vector<CRecordingList::Notes>(files.size()));
    m_list.UpdateWindow();
    tests::PumpPosted();
    ASSERT_LT(m_list.GetCountPerPage(), 30);
    CRect client;
    m_list.GetClientRect(&client);
    tests::MoveMouse(ScreenPoint(1));
    tests::Press();
    DragTo(tests::ClientPoint(m_list.m_hWnd, CPoint(300, client.bottom - 3)));
    ASSERT_TRUE(tests::PumpUntil([this] { return m_list.GetTopIndex() >= 10; }));
    ASSERT_TRUE(tests::PumpUntil([this] { return m_list.GetTopIndex() + m_list.GetCountPerPage() >= 60; }));
    DragTo(tests::ClientPoint(m_list.m_hWnd, CPoint(300, client.bottom - 60)));
    tests::Release();
    ASSERT_TRUE(tests::PumpUntil([this] { return m_list.PlaceOf(1) > 40; }));
    EXPECT_TRUE(m_list.Undo());
    // And back up.
    m_list.EnsureVisible(59, FALSE);
    tests::PumpPosted();
    tests::MoveMouse(ScreenPoint(57));
    tests::Press();
    CRect titles;
    m_list.GetHeaderCtrl()->GetClientRect(&titles);
    DragTo(tests::ClientPoint(m_list.m_hWnd, CPoint(300, titles.bottom + 2)));
    ASSERT_TRUE(tests::PumpUntil([this] { return m_list.GetTopIndex() == 0; }));
    tests::Release();
    EXPECT_TRUE(tests::PumpUntil([this] { return m_list.PlaceOf(57) == 0; }));
}

TEST_F(RecordingListTest, KeysMoveTheSelectedLines)
{
    Select({1, 2});
    tests::Key(VK_DOWN, {VK_MENU});
    ASSERT_TRUE(tests::PumpUntil([this] { return Order() == (Lines{0, 3, 1, 2, 4}); }));
    tests::Key(VK_DOWN, {VK_MENU});
    ASSERT_TRUE(tests::PumpUntil([this] { return Order() == (Lines{0, 3, 4, 1, 2}); }));
    tests::Key(VK_DOWN, {VK_MENU});
    tests::Key(VK_UP, {VK_MENU});
    ASSERT_TRUE(tests::PumpUntil([this] { return Order() == (Lines{0, 3, 1, 2, 4}); }));
    EXPECT_EQ(m_list.SelectedLines(), (Lines{1, 2}));
    m_list.ChooseLine(4);
    EXPECT_FALSE(m_list.MoveSelected(false));
    ASSERT_TRUE(tests::PumpUntil([this] { return m_list.Undo() && Order() == (Lines{0, 1, 2, 3, 4}); }));
}

TEST_F(RecordingListTest, CtrlCCopiesTheSelectedLinesInTheirOrderAsTextAndHtml)
{
    m_list.SortLines(CRecordingList::column_name, true);
    m_list.SetReference(3);
    Select({0, 3});
    tests::Key(L'C', {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([] { return Has(CF_UNICODETEXT) && Has(HtmlFormat()); }));
    EXPECT_EQ(WideText(), L"Name\tRef.\tDuration\tChannels\tRate (Hz)\tPeak (dBFS)\tRMS (dBFS)\tDate\tRating\tComment\t"
                          L"Status\r\n"
                          L"b.wav\t\t0:03.000\t1\t1,000\t-6.0\t-9.0\t\tNot rated\t\tOK\r\n"
                          L"d.wav\tx\t0:10.000\t1\t1,000\t-6.2\t-9.2\t\tNot rated\t\tOK\r\n");
    std::vector<char> const bytes = Bytes(HtmlFormat());
    std::string const html(bytes.data(), ::strnlen(bytes.data(), bytes.size()));
    EXPECT_NE(html.find("<td align=\"left\">b.wav</td>"), std::string::npos);
    EXPECT_NE(html.find("<td align=\"right\">0:10.000</td>"), std::string::npos);
    EXPECT_EQ(html.find("a.wav"), std::string::npos);
    EXPECT_NE(html.find("</table>"), std::string::npos);
    EXPECT_NE(html.find("<!--EndFragment -->"), std::string::npos);
}

TEST_F(RecordingListTest, WithoutASelectionOrAskedForAllItCopiesAll)
{
    auto const lines = [] {
        std::wstring const text = WideText();
        return std::count(text.begin(), text.end(), L'\n');
    };
    Select({1});
    EXPECT_TRUE(m_list.CopyToClipboard(true));
    EXPECT_EQ(lines(), 6);
    EXPECT_TRUE(m_list.CopyToClipboard(false));
    EXPECT_EQ(lines(), 2);
    Select({});
    EXPECT_TRUE(m_list.CopyToClipboard(false));
    EXPECT_EQ(lines(), 6);
    m_list.ShowFiles({}, {});
    EXPECT_FALSE(m_list.CopyToClipboard(true));
    EXPECT_EQ(lines(), 6);
}

TEST_F(RecordingListTest, ATableSaysWhatTheCellsShow)
{
    Show();
    auto damaged = std::make_shared<RecordingAnalysis>(*AnalysisOf(recordings[3]));
    damaged->info.announcedFrames = std::uint64_t{100} * rate;
    damaged->loudness = -23.05;
    damaged->tone.frequency = 1234.5;
    damaged->tone.distortion = 0.00123;
    damaged->file.lastWrite = 1'700'000'000;
    m_list.ShowAnalysis(3, damaged);
    CRecordingList::Notes notes;
    notes.rating = 2;
    notes.comment = L" with\ttab ";
    m_list.AppendFile(L"C:\\recordings\\not read.wav", notes);
    m_list.SetReference(1);
    workbench::RecordingTable table = m_list.Table(CRecordingList::Lines::all, {});
    ASSERT_EQ(table.Rows(), 6U);
    while (table.Table().rows.size() < table.Rows())
    {
        table.MakeRow();
    }
    ASSERT_EQ(table.Table().columns.size(), CRecordingList::column_count - 2U);
    for (int row = 0; row < m_list.GetItemCount(); ++row)
    {
        std::size_t place = 0;
        for (int column = CRecordingList::column_name; column < CRecordingList::column_count; ++column)
        {
            if (column == CRecordingList::column_overview)
            {
                continue;
            }
            auto const expected = column == CRecordingList::column_reference ? CString(row == 1 ? L"x" : L"")
                                                                             : m_list.GetItemText(row, column).Trim();
            EXPECT_EQ(table.Table().columns[place].title, CRecordingList::Title(column));
            EXPECT_EQ(table.Table().rows[static_cast<std::size_t>(row)][place++], expected.GetString())
                << row << ", " << column;
        }
    }
}

TEST_F(RecordingListTest, TheReferencesNameFitsInBold)
{
    m_list.ShowFiles({L"C:\\a name of many words, in bold.wav"}, {{}});
    m_list.ShowAnalysis(0, AnalysisOf(recordings[0]));
    m_list.SetReference(0);
    m_list.ShowReference();
    CClientDC dc(&m_list);
    workbench::FontScope const font(dc, m_metrics.BoldFont());
    LONG const needed = dc.GetTextExtent(m_list.GetItemText(0, CRecordingList::column_name)).cx;
    EXPECT_GE(m_list.GetColumnWidth(CRecordingList::column_name), needed + 2 * m_list.GetCellPadding());
}

TEST_F(RecordingListTest, TheReferencesNameFitsInBoldAtAnotherResolution)
{
    workbench::ScreenMetrics metrics(192);
    CRecordingList list;
    ASSERT_TRUE(list.CreateList(m_host, list_id + 1, metrics));
    tests::WindowCloser const closer(list);
    list.SetWindowPos(nullptr, 0, 0, 2320, 520, SWP_NOZORDER);
    list.ShowFiles({L"C:\\a name of many words, in bold.wav"}, {{}});
    list.ShowAnalysis(0, AnalysisOf(recordings[0]));
    list.SetReference(0);
    list.ShowReference();
    CClientDC dc(&list);
    workbench::FontScope const font(dc, metrics.BoldFont());
    LONG const needed = dc.GetTextExtent(list.GetItemText(0, CRecordingList::column_name)).cx;
    EXPECT_GE(list.GetColumnWidth(CRecordingList::column_name), needed + 2 * metrics.Scaled(5)); // with its padding
}

TEST_F(RecordingListTest, TheMenuOpensByKeyWhereTheNameIsOutOfSight)
{
    m_list.m_onContextCommand = [](int, int, int) {};
    m_list.SetWindowPos(nullptr, 0, 0, 400, 260, SWP_NOZORDER);
    m_list.ChooseLine(0);
    m_list.Scroll(CSize(10000, 0));
    ASSERT_LT(m_list.CellCentre(0, CRecordingList::column_name).x, 0);
    tests::LaterActions later;
    later.Add([] { tests::Key(VK_ESCAPE); }, [] { return ::FindWindowW(L"#32768", nullptr) != nullptr; });
    m_list.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(m_list.m_hWnd), MAKELPARAM(-1, -1));
    EXPECT_TRUE(later.Done()) << "no menu";
}

TEST_F(RecordingListTest, NamesSortWithoutRegardToCase)
{
    m_list.ShowFiles({L"C:\\B.wav", L"C:\\a.wav", L"C:\\C.wav", L"C:\\b2.wav"}, std::vector<CRecordingList::Notes>(4));
    m_list.SortLines(CRecordingList::column_name, true);
    EXPECT_EQ(Order(), (Lines{1, 0, 3, 2}));
}

TEST_F(RecordingListTest, NamesHaveMoreRoomWhereTheListScrollsSidewaysAnyway)
{
    CString const name = L"a name of many words that begin alike 0001.wav";
    m_list.ShowFiles({std::filesystem::path(L"C:\\") / name.GetString()}, {{}});
    m_list.ShowAnalysis(0, AnalysisOf(recordings[0]));
    auto const total = [this] {
        int sum = 0;
        for (int column = 0; column < CRecordingList::column_count; ++column)
            sum += m_list.GetColumnWidth(column);
        return sum;
    };
    constexpr int narrow = 700;
    m_list.SetWindowPos(nullptr, 0, 0, narrow, 260, SWP_NOZORDER | SWP_NOMOVE);
    ASSERT_GT(total(), narrow);
    EXPECT_GE(m_list.GetColumnWidth(CRecordingList::column_name), narrow / 4);
    // In view beside the names are still other columns, and a user's width stays.
    EXPECT_LE(m_list.GetColumnWidth(CRecordingList::column_name), narrow / 2);
    m_list.SetUserWidths({{CRecordingList::column_name, 60}});
    m_list.SetWindowPos(nullptr, 0, 0, narrow - 1, 260, SWP_NOZORDER | SWP_NOMOVE);
    EXPECT_EQ(m_list.GetColumnWidth(CRecordingList::column_name), 60);
}

TEST_F(RecordingListTest, ADraggedDividerTakesTheCommentThatIsBeingTyped)
{
    m_list.EditComment(0);
    ASSERT_NE(m_list.CommentEditor(), nullptr);
    ::SetWindowTextW(m_list.CommentEditor(), L"typed");
    CHeaderCtrl * const header = m_list.GetHeaderCtrl();
    CRect item;
    ASSERT_TRUE(header->GetItemRect(CRecordingList::column_duration, &item));
    CPoint const divider(item.right - 1, item.CenterPoint().y);
    tests::Drag(tests::ClientPoint(header->m_hWnd, divider),
                tests::ClientPoint(header->m_hWnd, divider + CPoint(15, 0)));
    EXPECT_TRUE(tests::PumpUntil([this] { return m_list.CommentEditor() == nullptr; }));
    EXPECT_EQ(m_list.GetItemText(m_list.PlaceOf(0), CRecordingList::column_comment), L"typed");
}

TEST_F(RecordingListTest, AnEditorScrollsItsColumnIn)
{
    m_list.SetWindowPos(nullptr, 0, 0, 400, 260, SWP_NOZORDER | SWP_NOMOVE);
    CRect client;
    m_list.GetClientRect(&client);
    auto const isInView = [&](CRecordingList::Column column) {
        CRect cell;
        m_list.GetSubItemRect(0, column, LVIR_BOUNDS, cell);
        return cell.left >= 0 && cell.right <= client.right;
    };
    ASSERT_FALSE(isInView(CRecordingList::column_comment));
    m_list.EditComment(0);
    EXPECT_NE(m_list.CommentEditor(), nullptr);
    EXPECT_TRUE(isInView(CRecordingList::column_comment));
    m_list.EndEditing();
    m_list.Scroll(CSize(-2000, 0));
    ASSERT_FALSE(isInView(CRecordingList::column_rating));
    m_list.ChooseRating(0);
    EXPECT_NE(m_list.RatingCombo(), nullptr);
    EXPECT_TRUE(isInView(CRecordingList::column_rating));
}

TEST_F(RecordingListTest, RowsAndColumnsGrowWithTheResolution)
{
    auto const measure = [this](int dotsPerInch) {
        workbench::ScreenMetrics metrics(dotsPerInch);
        CRecordingList list;
        EXPECT_TRUE(list.CreateList(m_host, list_id + 1, metrics));
        list.ShowFiles({L"C:\\a.wav"}, {{}});
        CRect row;
        list.GetItemRect(0, &row, LVIR_BOUNDS);
        CSize const size(list.GetColumnWidth(CRecordingList::column_date), row.Height());
        list.DestroyWindow();
        return size;
    };
    CSize const usual = measure(96);
    CSize const high = measure(192);
    EXPECT_NEAR(high.cy, 2 * usual.cy, 3);
    EXPECT_GE(high.cx, usual.cx * 3 / 2);
}

TEST_F(RecordingListTest, ARateBeyondTheLargestIntShowsAsItself)
{
    auto analysis = std::make_shared<RecordingAnalysis>(*AnalysisOf(recordings[0]));
    analysis->info.sampleRate = 4'294'967'295;
    m_list.ShowAnalysis(1, analysis);
    EXPECT_EQ(m_list.GetItemText(1, CRecordingList::column_rate).Trim(), L"4,294,967,295");
    // It is the greatest of all.
    m_list.SortLines(CRecordingList::column_rate, false);
    EXPECT_EQ(m_list.LineAt(0), 1);
}

TEST_F(RecordingListTest, MarksCanBeToldApartInAChosenLine)
{
    constexpr COLORREF frame = RGB(51, 102, 153); // of check boxes and radio buttons
    constexpr double least_contrast = 3.0;        // of figures
    m_list.ChooseLine(0);
    CRect cell;
    m_list.GetItemRect(0, &cell, LVIR_BOUNDS);
    CClientDC dc(&m_list);
    auto const background = [&] { return dc.GetPixel(cell.left + 4, cell.top + 3); };
    EXPECT_TRUE(tests::PumpUntil([&] { return background() != ::GetSysColor(COLOR_WINDOW); }));
    EXPECT_GE(workbench::ContrastRatio(background(), frame), least_contrast);

    // It is seen, and so are its marks, where the list has no focus.
    COLORREF const withFocus = background();
    tests::ScopedWindow other{CRect(600, 500, 800, 600)};
    ASSERT_TRUE(tests::BringToFront(other.m_hWnd));
    EXPECT_TRUE(tests::PumpUntil([&] { return background() != withFocus; }));
    EXPECT_GE(workbench::ContrastRatio(background(), ::GetSysColor(COLOR_WINDOW)), 1.7);
    EXPECT_GE(workbench::ContrastRatio(background(), RGB(0, 0, 0)), 4.5);
    EXPECT_GE(workbench::ContrastRatio(background(), frame), least_contrast);
}

HWND VisibleToolTip()
{
    HWND found = nullptr;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM result) -> BOOL {
            wchar_t name[32] = L"";
            ::GetClassNameW(window, name, static_cast<int>(std::size(name)));
            if (::IsWindowVisible(window) && std::wstring(name) == TOOLTIPS_CLASSW)
            {
                *reinterpret_cast<HWND *>(result) = window;
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

TEST_F(RecordingListTest, ThePathShowsInItsLineAndGoesWithIt)
{
    CPoint const point = tests::ClientPoint(m_list.m_hWnd, m_list.CellCentre(1, CRecordingList::column_name));
    ASSERT_TRUE(tests::MoveMouse(point));
    ASSERT_TRUE(tests::MoveMouse(point + CPoint(2, 1)));
    ASSERT_TRUE(tests::PumpUntil([] { return VisibleToolTip() != nullptr; }));
    CRect row;
    m_list.GetItemRect(1, &row, LVIR_BOUNDS);
    m_list.ClientToScreen(&row);
    EXPECT_TRUE(tests::PumpUntil([&] {
        CRect tip;
        ::GetWindowRect(VisibleToolTip(), &tip);
        return tip.bottom <= row.bottom + 4 && tip.top >= row.top - 4;
    }));
    Show();
    EXPECT_TRUE(tests::PumpUntil([] { return VisibleToolTip() == nullptr; }));
}
/// The stars of ratings.
class RecordingListStars : public RecordingListTest
{
protected:
    CRect Cell(int line)
    {
        CRect rect;
        EXPECT_TRUE(m_list.GetSubItemRect(m_list.PlaceOf(line), CRecordingList::column_rating, LVIR_BOUNDS, rect));
        return rect;
    }
    void PressStar(int line, int star)
    {
        CPoint const point = CStarRating().StarRect(Cell(line), star).CenterPoint();
        LPARAM const place = MAKELPARAM(point.x, point.y);
        // The native list of some systems waits for the end within the press.
        m_list.PostMessage(WM_LBUTTONUP, 0, place);
        m_list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, place);
        tests::PumpPosted();
    }
    CString Word(int line) { return m_list.GetItemText(m_list.PlaceOf(line), CRecordingList::column_rating); }
};

TEST_F(RecordingListStars, AllStandInTheirCell)
{
    CRect const cell = Cell(0);
    int right = cell.left;
    for (int star = 0; star < CStarRating::star_count; ++star)
    {
        CRect const place = CStarRating().StarRect(cell, star);
        EXPECT_GT(place.left, right);
        EXPECT_GE(place.top, cell.top);
        EXPECT_LE(place.bottom, cell.bottom);
        right = place.right;
    }
    EXPECT_LT(right + 8, cell.right) << "there is room for a press beside them";
}

TEST_F(RecordingListStars, KeepTheirDistancesAtAnotherResolution)
{
    CRect const cell(0, 0, 200, 30);
    CStarRating const usual;
    CStarRating const doubled(192);
    EXPECT_EQ(doubled.StarRect(cell, 0).left, 2 * usual.StarRect(cell, 0).left);
    auto const gap = [&cell](CStarRating const & stars) {
        return stars.StarRect(cell, 1).left - stars.StarRect(cell, 0).right;
    };
    EXPECT_EQ(gap(doubled), 2 * gap(usual));
}

TEST_F(RecordingListStars, APressRatesAndIsNoted)
{
    PressStar(0, 1);
    EXPECT_EQ(m_list.NotesOf(0).rating, 2);
    EXPECT_EQ(Word(0), L"Usable");
    EXPECT_EQ(m_list.TakeNotedLines(), std::vector<int>{0});
    EXPECT_EQ(m_list.RatingCombo(), nullptr);
    PressStar(0, 2);
    EXPECT_EQ(m_list.NotesOf(0).rating, 1);
    EXPECT_EQ(Word(0), L"Good");
    PressStar(0, 0);
    EXPECT_EQ(m_list.NotesOf(0).rating, 3);
    PressStar(0, 0);
    EXPECT_EQ(m_list.NotesOf(0).rating, 0) << "the same star again takes it away";
    EXPECT_EQ(Word(0), L"Not rated");
}

TEST_F(RecordingListStars, ARecordingThatCannotBeReadHasNone)
{
    EXPECT_EQ(m_list.GetCellKind(m_list.PlaceOf(unreadable), CRecordingList::column_rating), nullptr);
    PressStar(unreadable, 1);
    EXPECT_EQ(m_list.NotesOf(unreadable).rating, 0);
}

TEST_F(RecordingListStars, TheyGoWithTheirLineWhenTheListIsSorted)
{
    PressStar(4, 2);
    m_list.SortLines(CRecordingList::column_name, false);
    EXPECT_NE(m_list.GetCellKind(m_list.PlaceOf(4), CRecordingList::column_rating), nullptr);
    EXPECT_EQ(m_list.GetComboCurSel(m_list.PlaceOf(4), CRecordingList::column_rating), 1);
}

TEST_F(RecordingListStars, AsManyAreFullAsTheRatingIsGood)
{
    CDC & dc = *m_list.GetDC();
    auto const full = [&](int line) {
        m_list.ChooseLine(-1);
        m_list.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        int count = 0;
        for (int star = 0; star < CStarRating::star_count; ++star)
        {
            CPoint const middle = CStarRating().StarRect(Cell(line), star).CenterPoint();
            count += dc.GetPixel(middle) == ::GetSysColor(COLOR_WINDOWTEXT) ? 1 : 0;
        }
        return count;
    };
    EXPECT_EQ(full(0), 0);
    PressStar(0, 1);
    EXPECT_EQ(full(0), 2);
    PressStar(0, 2);
    EXPECT_EQ(full(0), 3);
    m_list.ReleaseDC(&dc);
}

TEST_F(RecordingListStars, StarsAndRatingsAreEachOthers)
{
    for (int rating = 0; rating <= 3; ++rating)
        EXPECT_EQ(CStarRating::RatingOf(CStarRating::StarsOf(rating)), rating);
    EXPECT_EQ(CStarRating::StarsOf(1), 3);
    EXPECT_EQ(CStarRating::StarsOf(7), 0);
    EXPECT_EQ(CStarRating::StarsOf(-1), 0);
}
} // namespace
