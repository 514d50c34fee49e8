// The workbench's list while it is filtered, and what the user did to it being undone.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include "frame/RegisteredMessages.h"
#include "Input.h"
#include "Pump.h"
#include "RecordingList.h"
#include "ScopedWindow.h"

namespace
{
using Lines = std::vector<int>;
using workbench::RecordingAnalysis;
using State = workbench::RecordingFilter::State;

constexpr int list_id = 7;

std::shared_ptr<RecordingAnalysis const> Analysis(int line)
{
    auto analysis = std::make_shared<RecordingAnalysis>();
    if (line % 7 == 6)
    {
        analysis->problem = workbench::ReadProblem{workbench::ReadFault::not_wav};
        return analysis;
    }
    analysis->info.channels = 1;
    analysis->info.sampleRate = 1000;
    analysis->info.frames = 1500;
    analysis->info.announcedFrames = 1500;
    analysis->levels = {-6.0, -9.0 - line};
    if (line % 2 == 0)
    {
        analysis->loudness = -20.0 - (line * 5) % 8;
    }
    return analysis;
}

class FilteredRecordingList : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_list.CreateList(m_host, list_id, m_metrics));
        m_list.SetWindowPos(nullptr, 0, 0, 1160, 260, SWP_NOZORDER);
    }
    void TearDown() override { m_list.DestroyWindow(); }

    void Show(int count)
    {
        std::vector<std::filesystem::path> files;
        for (int i = 0; i < count; ++i)
        {
            files.push_back(std::filesystem::path(L"C:\\recordings") / (L"rec_" + std::to_wstring(i) + L".wav"));
        }
        m_list.ShowFiles(files, std::vector<CRecordingList::Notes>(files.size()));
        {
            CRecordingList::Batch const batch(m_list);
            for (int line = 0; line < count; ++line)
            {
                m_list.ShowAnalysis(line, Analysis(line));
            }
        }
        tests::PumpPosted(100000);
    }
    void Filter(std::wstring const & words)
    {
        workbench::RecordingFilter filter;
        filter.words = words;
        m_list.SetFilter(filter);
    }
    void FilterKind(bool marked, std::optional<int> rating, State state)
    {
        m_list.SetFilter({{}, marked, rating, state});
    }
    Lines Rows()
    {
        Lines rows;
        for (int row = 0; row < m_list.GetItemCount(); ++row)
        {
            rows.push_back(m_list.LineAt(row));
            EXPECT_EQ(m_list.PlaceOf(rows.back()), row);
        }
        return rows;
    }
    /// Has what was done told, which ends a gesture.
    static void EndGesture() { tests::PumpPosted(100000); }

    workbench::ScreenMetrics m_metrics;
    tests::ScopedWindow m_host{CRect(20, 20, 1220, 400)};
    CRecordingList m_list;
};

TEST_F(FilteredRecordingList, LinesGoAndComeBackToTheirPlacesAsTheyWere)
{
    Show(12);
    m_list.SortLines(CRecordingList::column_rms, true);
    m_list.ChooseLine(5);
    m_list.SetReference(3);
    EndGesture();
    Lines const all = Rows();
    Filter(L"rec_1");
    EXPECT_EQ(Rows(), (Lines{11, 10, 1}));
    EXPECT_EQ(m_list.ChosenLine(), -1);
    EXPECT_EQ(m_list.ReferenceLine(), 3);
    EXPECT_EQ(m_list.ShownCount(), 3);
    Filter(L"REC_1 wav");
    EXPECT_EQ(Rows(), (Lines{11, 10, 1}));
    Filter(L"nothing");
    EXPECT_EQ(Rows(), Lines());
    Filter(L"");
    EXPECT_EQ(Rows(), all);
    EXPECT_EQ(m_list.ChosenLine(), 5);
    EXPECT_TRUE(m_list.GetItemRadioOn(m_list.PlaceOf(3), CRecordingList::column_reference));
    EXPECT_EQ(m_list.GetItemText(m_list.PlaceOf(11), CRecordingList::column_name), L"rec_11.wav");
    EXPECT_EQ(m_list.SortedColumn(), CRecordingList::column_rms);
}

TEST_F(FilteredRecordingList, TheChosenLineIsInSightAfterTheFilter)
{
    Show(3000);
    Filter(L"rec_29");
    m_list.ChooseLine(2950);
    EndGesture();
    Filter(L"");
    ASSERT_TRUE(tests::PumpUntil([this] { return m_list.GetItemCount() == 3000; }));
    EXPECT_EQ(m_list.ChosenLine(), 2950);
    EXPECT_TRUE(m_list.IsInSight(2950));
}

TEST_F(FilteredRecordingList, WhatScrollsWithinABatchIsPaintedAnew)
{
    Show(200);
    m_list.ShowWindow(SW_SHOW);
    m_list.UpdateWindow();
    ASSERT_FALSE(m_list.GetUpdateRect(nullptr));
    {
        CRecordingList::Batch const batch(m_list);
        m_list.EnsureVisible(150, FALSE);
    }
    EXPECT_TRUE(m_list.GetUpdateRect(nullptr));
}

TEST_F(FilteredRecordingList, ASelectionMadeMeanwhileCounts)
{
    Show(12);
    m_list.ChooseLine(5);
    Filter(L"rec_1");
    m_list.ChooseLine(10);
    Filter(L"");
    EXPECT_EQ(m_list.SelectedLines(), (Lines{10}));
}

TEST_F(FilteredRecordingList, GoesByMarkRatingAndState)
{
    Show(14);
    m_list.SelectLines({2, 4}, 2);
    m_list.SendMessage(WM_KEYDOWN, VK_SPACE);
    EndGesture();
    FilterKind(true, {}, State::any);
    EXPECT_EQ(Rows(), (Lines{2, 4}));
    EXPECT_EQ(m_list.GetHeaderCheckedState(CRecordingList::column_check), XHC_CHECKED);
    FilterKind(false, {}, State::unreadable);
    EXPECT_EQ(Rows(), (Lines{6, 13}));
    FilterKind(false, 1, State::any);
    EXPECT_EQ(Rows(), Lines());
}

TEST_F(FilteredRecordingList, MarkingAllGoesForWhatShows)
{
    Show(12);
    Filter(L"rec_1");
    m_list.CheckAll(true);
    Filter(L"");
    EXPECT_EQ(m_list.Totals().Checked(), 3U);
    EXPECT_EQ(m_list.GetHeaderCheckedState(CRecordingList::column_check), XHC_MIXED);
}

TEST_F(FilteredRecordingList, MarkingAllMakesNoRowsThatAreStillMissing)
{
    constexpr int count = 3000;
    Show(count);
    Filter(L"rec_1 rec_12");
    Filter(L"");
    ASSERT_LT(m_list.GetItemCount(), count);
    m_list.CheckAll(true);
    EXPECT_LT(m_list.GetItemCount(), count);
    std::size_t const readable = m_list.Totals().Lines() - m_list.Totals().Unreadable();
    EXPECT_EQ(m_list.Totals().Checked(), readable);
    ASSERT_TRUE(tests::PumpUntil([&] { return m_list.GetItemCount() == count; }));
    for (int row = 0; row < count; ++row)
    {
        int const line = m_list.LineAt(row);
        ASSERT_EQ(m_list.GetCheckbox(row, CRecordingList::column_check) == XLC_CHECKED, line % 7 != 6) << line;
    }
    EndGesture();
    ASSERT_TRUE(m_list.CanUndo());
    m_list.Undo();
    EXPECT_EQ(m_list.Totals().Checked(), 0U);
}

// What is done while rows are missing waits for none of them: the list answers before they are all there.

class RecordingListWithoutAllRows : public FilteredRecordingList
{
protected:
    static constexpr int count = 1000;

    void SetUp() override
    {
        FilteredRecordingList::SetUp();
        Show(count);
        EndGesture();
        m_list.FinishRows();
        ASSERT_EQ(m_list.GetItemCount(), count);
    }
    /// A filter that few lines pass, and none again.
    void TakeRows()
    {
        Filter(L"rec_1 rec_12");
        Filter(L"");
        ASSERT_TRUE(AreMissing());
    }
    bool AreMissing() { return m_list.GetItemCount() < count / 2; }
    bool WaitForRows()
    {
        m_list.FinishRows();
        return m_list.GetItemCount() == m_list.ShownCount();
    }
    Lines RowsInSight()
    {
        Lines rows;
        for (int row = 0; row < m_list.GetCountPerPage(); ++row)
        {
            rows.push_back(m_list.LineAt(row));
        }
        return rows;
    }
    Lines FirstOfOrder()
    {
        std::vector<int> lines = m_list.Order().lines;
        lines.resize(static_cast<std::size_t>(m_list.GetCountPerPage()));
        return lines;
    }
    Lines All()
    {
        Lines all(count);
        std::iota(all.begin(), all.end(), 0);
        return all;
    }
};

TEST_F(RecordingListWithoutAllRows, SortingShowsTheFirstOnesAtOnce)
{
    m_list.ChooseLine(700);
    EndGesture();
    TakeRows();
    m_list.SortLines(CRecordingList::column_rms, true);
    EXPECT_TRUE(AreMissing());
    EXPECT_EQ(m_list.LineAt(0), count - 1) << "the lowest level";
    EXPECT_EQ(RowsInSight(), FirstOfOrder());
    EXPECT_EQ(m_list.ChosenLine(), 700);
    EXPECT_EQ(m_list.GetHeaderCheckedState(CRecordingList::column_rms), XHC_SORT_ASCENDING);
    ASSERT_TRUE(WaitForRows());
    EXPECT_EQ(Rows(), m_list.Order().lines);
    EXPECT_EQ(m_list.SelectedLines(), (Lines{700}));
    EXPECT_TRUE(m_list.IsInSight(700));
}

TEST_F(RecordingListWithoutAllRows, SortingIsTakenBack)
{
    m_list.SortByUser(CRecordingList::column_rms);
    EndGesture();
    TakeRows();
    EXPECT_TRUE(m_list.Undo());
    EXPECT_TRUE(AreMissing());
    EXPECT_EQ(RowsInSight(), FirstOfOrder());
    EXPECT_EQ(m_list.LineAt(0), 0);
    ASSERT_TRUE(WaitForRows());
    EXPECT_EQ(Rows(), All());
    EXPECT_EQ(m_list.SortedColumn(), -1);
    EXPECT_EQ(m_list.GetHeaderCheckedState(CRecordingList::column_rms), XHC_NONE);
}

TEST_F(RecordingListWithoutAllRows, ALineIsChosenBeforeItHasARow)
{
    m_list.SelectLines({3, 4}, 4);
    EndGesture();
    TakeRows();
    m_list.ChooseLine(850);
    EXPECT_TRUE(AreMissing());
    EXPECT_EQ(m_list.ChosenLine(), 850);
    EXPECT_EQ(m_list.SelectedLines(), (Lines{850}));
    ASSERT_TRUE(WaitForRows());
    EXPECT_EQ(m_list.ChosenLine(), 850);
    EXPECT_EQ(m_list.SelectedLines(), (Lines{850}));
    EXPECT_EQ(m_list.GetNextItem(-1, LVNI_FOCUSED), 850);
    EXPECT_TRUE(m_list.IsInSight(850));
}

TEST_F(RecordingListWithoutAllRows, OneThatHasARowIsChosenAlone)
{
    m_list.SelectLines(All(), 600);
    EndGesture();
    TakeRows();
    m_list.ChooseLine(2);
    EXPECT_TRUE(AreMissing());
    ASSERT_TRUE(WaitForRows());
    EXPECT_EQ(m_list.SelectedLines(), (Lines{2}));
    EXPECT_EQ(m_list.ChosenLine(), 2);
}

TEST_F(RecordingListWithoutAllRows, AllAreSelectedAndMarked)
{
    TakeRows();
    m_list.SelectLines(All(), 600);
    EXPECT_EQ(m_list.SelectedLines(), All());
    EXPECT_EQ(m_list.ChosenLine(), 600);
    m_list.SendMessage(WM_KEYDOWN, VK_SPACE);
    EXPECT_TRUE(AreMissing());
    std::size_t const readable = m_list.Totals().Lines() - m_list.Totals().Unreadable();
    EXPECT_EQ(m_list.Totals().Checked(), readable);
    ASSERT_TRUE(WaitForRows());
    EXPECT_EQ(m_list.SelectedLines(), All());
    EXPECT_EQ(m_list.ChosenLine(), 600);
    for (int const line : All())
    {
        ASSERT_EQ(m_list.GetCheckbox(line, CRecordingList::column_check) == XLC_CHECKED, line % 7 != 6) << line;
    }
}

TEST_F(RecordingListWithoutAllRows, LinesThatAreStillToComeMove)
{
    m_list.ChooseLine(850);
    EndGesture();
    TakeRows();
    EXPECT_TRUE(m_list.MoveSelected(true));
    EXPECT_TRUE(AreMissing());
    EXPECT_EQ(m_list.Order().lines[849], 850);
    EXPECT_EQ(m_list.Order().lines[850], 849);
    EXPECT_EQ(m_list.SelectedLines(), (Lines{850}));
    ASSERT_TRUE(WaitForRows());
    EXPECT_EQ(Rows(), m_list.Order().lines);
    EXPECT_EQ(m_list.SelectedLines(), (Lines{850}));
    EXPECT_TRUE(m_list.IsInSight(850));
}

TEST_F(RecordingListWithoutAllRows, TypingFindsLinesThatAreStillToCome)
{
    m_list.ChooseLine(0);
    EndGesture();
    TakeRows();
    for (wchar_t const character : std::wstring(L"rec_9"))
    {
        m_list.SendMessage(WM_CHAR, static_cast<WPARAM>(character));
    }
    EXPECT_TRUE(AreMissing());
    EXPECT_EQ(m_list.ChosenLine(), 9);
    m_list.SendMessage(WM_CHAR, L'9');
    m_list.SendMessage(WM_CHAR, L'9');
    EXPECT_TRUE(AreMissing());
    EXPECT_EQ(m_list.ChosenLine(), 999);
    ASSERT_TRUE(WaitForRows());
    EXPECT_EQ(m_list.SelectedLines(), (Lines{999}));
}

TEST_F(RecordingListWithoutAllRows, LinesGoAndTheOthersComeAsTheyAre)
{
    m_list.ChooseLine(600);
    EndGesture();
    TakeRows();
    Lines numbers(count, -1);
    for (int line = 0, next = 0; line < count; ++line)
    {
        numbers[static_cast<std::size_t>(line)] = line % 2 == 0 ? next++ : -1;
    }
    m_list.Renumber(numbers);
    EXPECT_TRUE(AreMissing());
    EXPECT_EQ(m_list.ShownCount(), count / 2);
    EXPECT_EQ(m_list.ChosenLine(), 300);
    ASSERT_TRUE(WaitForRows());
    EXPECT_EQ(Rows().size(), static_cast<std::size_t>(count / 2));
    EXPECT_EQ(Rows(), m_list.Order().lines);
    EXPECT_EQ(m_list.GetItemText(m_list.PlaceOf(7), CRecordingList::column_name), L"rec_14.wav");
    EXPECT_EQ(m_list.SelectedLines(), (Lines{300}));
}

TEST_F(RecordingListWithoutAllRows, WhereManyGoTheOthersGetTheirRowsLater)
{
    m_list.SelectLines({30, 500, 950}, 500);
    EndGesture();
    Lines numbers(count, -1);
    std::iota(numbers.begin(), numbers.begin() + 300, 0);
    std::iota(numbers.begin() + 700, numbers.end(), 300);
    m_list.Renumber(numbers);
    EXPECT_TRUE(AreMissing());
    EXPECT_EQ(m_list.SelectedLines(), (Lines{30, 550}));
    EXPECT_EQ(RowsInSight(), FirstOfOrder());
    m_list.ScrollToLine(500);
    ASSERT_TRUE(WaitForRows());
    EXPECT_EQ(Rows(), m_list.Order().lines);
    EXPECT_EQ(m_list.SelectedLines(), (Lines{30, 550}));
    EXPECT_EQ(m_list.GetNextItem(-1, LVNI_FOCUSED), 300) << "the next one that stays";
    EXPECT_EQ(m_list.TopLine(), 500);
    EXPECT_EQ(m_list.GetItemText(300, CRecordingList::column_name), L"rec_700.wav");
}

TEST_F(RecordingListWithoutAllRows, WhereFewGoTheSelectionIsHeldMeanwhile)
{
    m_list.SelectLines({3, 5, 7}, 5);
    EndGesture();
    Lines numbers(count, -1);
    std::iota(numbers.begin(), numbers.begin() + 5, 0);
    std::iota(numbers.begin() + 6, numbers.end(), 5);
    m_list.Renumber(numbers);
    EXPECT_EQ(m_list.GetItemCount(), count - 1);
    EXPECT_EQ(m_list.SelectedLines(), (Lines{3, 6}));
    EXPECT_EQ(m_list.GetNextItem(-1, LVNI_FOCUSED), 5);
}

// What is said about many lines is shown in sight at once, and elsewhere a few lines at a time.

class RecordingListWithManyNotes : public RecordingListWithoutAllRows
{
protected:
    int Mark(int line) { return m_list.GetCheckbox(m_list.PlaceOf(line), CRecordingList::column_check); }
    static constexpr int last = count - 1;
};

TEST_F(RecordingListWithManyNotes, MarksOutOfSightComeLater)
{
    m_list.CheckAll(true);
    EXPECT_EQ(Mark(0), XLC_CHECKED);
    EXPECT_EQ(Mark(last), XLC_UNCHECKED);
    EXPECT_TRUE(m_list.IsChecked(last));
    EXPECT_EQ(m_list.GetHeaderCheckedState(CRecordingList::column_check), XHC_CHECKED);
    EndGesture();
    EXPECT_TRUE(tests::PumpUntil([this] { return Mark(last) == XLC_CHECKED; }));
    m_list.FinishRows();
    EXPECT_TRUE(m_list.Undo());
    EXPECT_EQ(Mark(0), XLC_UNCHECKED);
    EXPECT_EQ(Mark(last), XLC_CHECKED);
    EXPECT_FALSE(m_list.IsChecked(last));
    // Again before that has been shown.
    EXPECT_TRUE(m_list.Redo());
    EXPECT_TRUE(m_list.Undo());
    EXPECT_TRUE(tests::PumpUntil([this] { return Mark(last) == XLC_UNCHECKED; }));
    m_list.FinishRows();
    for (int const line : All())
    {
        ASSERT_NE(Mark(line), XLC_CHECKED) << line;
    }
}

TEST_F(RecordingListWithManyNotes, AClickTurnsTheMarkThatIsStillToBeShown)
{
    m_list.CheckAll(true);
    ASSERT_EQ(Mark(last), XLC_UNCHECKED);
    m_list.EnsureVisible(last, FALSE);
    CPoint const point = m_list.CellCentre(last, CRecordingList::column_check);
    m_list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
    m_list.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
    EXPECT_FALSE(m_list.IsChecked(last));
    m_list.FinishRows();
    EXPECT_EQ(Mark(last), XLC_UNCHECKED);
    EXPECT_EQ(Mark(last - 1), XLC_CHECKED);
}

TEST_F(RecordingListWithManyNotes, AnotherProgramsPressTurnsItAsWell)
{
    m_list.CheckAll(true);
    ASSERT_EQ(Mark(last), XLC_UNCHECKED);
    // As the list does it for a press that is no message.
    m_list.SetCheckbox(last, CRecordingList::column_check, XLC_CHECKED);
    m_list.OnItemStateChange(last, CRecordingList::column_check, WM_XLISTCTRL_CHECKBOX_CLICKED);
    EXPECT_FALSE(m_list.IsChecked(last));
    m_list.FinishRows();
    EXPECT_EQ(Mark(last), XLC_UNCHECKED);
}

TEST_F(RecordingListWithManyNotes, TheHeaderMarksAllAndTakesTheMarksAgain)
{
    auto const click = [this] {
        NMLISTVIEW notice{};
        notice.hdr.hwndFrom = m_list.m_hWnd;
        notice.hdr.idFrom = list_id;
        notice.hdr.code = LVN_COLUMNCLICK;
        notice.iItem = -1;
        notice.iSubItem = CRecordingList::column_check;
        m_host.SendMessage(WM_NOTIFY, list_id, reinterpret_cast<LPARAM>(&notice));
    };
    std::size_t const readable = m_list.Totals().Lines() - m_list.Totals().Unreadable();
    TakeRows();
    click();
    EXPECT_TRUE(AreMissing());
    EXPECT_EQ(m_list.Totals().Checked(), readable);
    EXPECT_EQ(m_list.GetHeaderCheckedState(CRecordingList::column_check), XHC_CHECKED);
    click();
    EXPECT_EQ(m_list.Totals().Checked(), 0U);
    EXPECT_EQ(m_list.GetHeaderCheckedState(CRecordingList::column_check), XHC_UNCHECKED);
    ASSERT_TRUE(WaitForRows());
    m_list.FinishRows();
    EXPECT_EQ(Mark(last), XLC_UNCHECKED);
}

TEST_F(FilteredRecordingList, WhatIsReadLaterAppearsAtItsPlace)
{
    Show(10);
    m_list.ShowReading(3, L"C:\\recordings\\rec_3.wav");
    FilterKind(false, {}, State::sound);
    EXPECT_EQ(Rows(), (Lines{0, 1, 2, 4, 5, 7, 8, 9}));
    m_list.ShowAnalysis(3, Analysis(3));
    EXPECT_EQ(Rows(), (Lines{0, 1, 2, 3, 4, 5, 7, 8, 9}));
    m_list.AppendFile(L"C:\\recordings\\other.wav", {});
    EXPECT_EQ(Rows().size(), 9U);
}

TEST_F(FilteredRecordingList, RowsOfManyLinesComeAFewAtATime)
{
    constexpr int count = 1000;
    Show(count);
    m_list.ChooseLine(700);
    EndGesture();
    Filter(L"rec_7 rec_77");
    EXPECT_EQ(m_list.GetItemCount(), 11);
    EXPECT_EQ(m_list.ChosenLine(), -1);
    Filter(L"");
    EXPECT_GE(m_list.GetItemCount(), m_list.GetCountPerPage());
    EXPECT_EQ(m_list.ChosenLine(), 700) << "also while it has no row";
    EXPECT_TRUE(tests::PumpUntil([this] { return m_list.GetItemCount() == count; }));
    EXPECT_EQ(m_list.ChosenLine(), 700);
    EXPECT_EQ(Rows(), m_list.Order().lines);

    Filter(L"rec_7");
    Filter(L"");
    m_list.FinishRows();
    EXPECT_EQ(m_list.GetItemCount(), count);
}

TEST_F(FilteredRecordingList, AWalkEndsWithTheLinesOfAPlainModel)
{
    constexpr int count = 260;
    Show(count);
    std::mt19937 random(3); // NOLINT: the same walk each time
    std::wstring const words[] = {L"", L"rec_1", L"rec_2", L"3", L"99", L"rec_1 2", L"none"};
    for (int i = 0; i < 120; ++i)
    {
        switch (random() % 5)
        {
        case 0:
            m_list.SortLines(CRecordingList::column_rms, random() % 2 == 0);
            break;
        case 1:
            tests::PumpPosted(3);
            break;
        case 2:
            m_list.ChooseLine(static_cast<int>(random() % count));
            break;
        default:
            Filter(words[random() % std::size(words)]);
            break;
        }
        workbench::FilterMatch const match(m_list.Filter());
        Lines expected;
        for (int const line : m_list.Order().lines)
        {
            std::wstring const text =
                workbench::SearchedText(L"C:\\recordings\\rec_" + std::to_wstring(line) + L".wav", L"");
            if (match({text, false, 0, State::sound}))
            {
                expected.push_back(line);
            }
        }
        if (random() % 3 == 0)
        {
            m_list.FinishRows();
            ASSERT_EQ(Rows(), expected) << i;
        }
    }
}

TEST_F(FilteredRecordingList, NamesSortByTheirNumbers)
{
    Show(12);
    m_list.SortLines(CRecordingList::column_name, true);
    EXPECT_EQ(Rows(), (Lines{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
}

TEST_F(FilteredRecordingList, MeasuresSortByTheirValueAndAreHiddenAtFirst)
{
    Show(8);
    EXPECT_EQ(m_list.GetColumnWidth(CRecordingList::column_loudness), 0);
    m_list.SetHiddenColumns({});
    EXPECT_GT(m_list.GetColumnWidth(CRecordingList::column_loudness), 0);
    m_list.SortLines(CRecordingList::column_loudness, true);
    // -20, -22 (line 2), -24 (line 4); the others have none.
    EXPECT_EQ(Rows(), (Lines{4, 2, 0, 1, 3, 5, 6, 7}));
    m_list.SortLines(CRecordingList::column_crest, false);
    EXPECT_EQ(m_list.LineAt(0), 7);
    CString const text = m_list.GetItemText(m_list.PlaceOf(2), CRecordingList::column_loudness);
    EXPECT_EQ(CString(text).Trim(), L"-22.0");
}

TEST_F(FilteredRecordingList, TypingGoesToTheNextNameThatBeginsSo)
{
    Show(12);
    m_list.ChooseLine(0);
    for (wchar_t const character : std::wstring(L"REC_11"))
    {
        m_list.SendMessage(WM_CHAR, static_cast<WPARAM>(character));
    }
    EXPECT_EQ(m_list.ChosenLine(), 11);
}

TEST_F(FilteredRecordingList, UndoTakesGesturesBackAndRedoDoesThemAgain)
{
    Show(6);
    EXPECT_FALSE(m_list.CanUndo());
    m_list.CheckAll(true);
    EndGesture();
    m_list.SetReference(2);
    EndGesture();
    m_list.SetReference(4);
    EndGesture();
    EXPECT_TRUE(m_list.Undo());
    EXPECT_EQ(m_list.ReferenceLine(), 2);
    EXPECT_TRUE(m_list.GetItemRadioOn(m_list.PlaceOf(2), CRecordingList::column_reference));
    EXPECT_FALSE(m_list.GetItemRadioOn(m_list.PlaceOf(4), CRecordingList::column_reference));
    EXPECT_TRUE(m_list.Undo());
    EXPECT_EQ(m_list.ReferenceLine(), -1);
    EXPECT_TRUE(m_list.Undo());
    EXPECT_EQ(m_list.Totals().Checked(), 0U);
    EXPECT_EQ(m_list.GetCheckbox(0, CRecordingList::column_check), XLC_UNCHECKED);
    EXPECT_FALSE(m_list.Undo());
    EXPECT_TRUE(m_list.Redo());
    EXPECT_EQ(m_list.Totals().Checked(), 6U);
    EXPECT_TRUE(m_list.Redo());
    EXPECT_TRUE(m_list.Redo());
    EXPECT_FALSE(m_list.Redo());
    EXPECT_EQ(m_list.ReferenceLine(), 4);
    EXPECT_EQ(m_list.TakeNotedLines(), (Lines{0, 1, 2, 3, 4, 5})) << "to be stored";
}

TEST_F(FilteredRecordingList, MarkingLeavesTheFirstOfTwoReferences)
{
    CRecordingList::Notes reference;
    reference.reference = true;
    m_list.ShowFiles({L"C:\\one\\a.wav", L"C:\\two\\b.wav"}, {reference, reference});
    m_list.CheckAll(true);
    EXPECT_EQ(m_list.Totals().Checked(), 2U);
    EXPECT_EQ(m_list.ReferenceLine(), 0);
    EXPECT_TRUE(m_list.GetItemRadioOn(0, CRecordingList::column_reference));
    EXPECT_FALSE(m_list.GetItemRadioOn(1, CRecordingList::column_reference));
}

TEST_F(FilteredRecordingList, UndoReachesLinesThatDontShow)
{
    Show(12);
    m_list.CheckAll(true);
    EndGesture();
    Filter(L"rec_1");
    EXPECT_TRUE(m_list.Undo());
    Filter(L"");
    EXPECT_EQ(m_list.Totals().Checked(), 0U);
    for (int row = 0; row < m_list.GetItemCount(); ++row)
    {
        EXPECT_NE(m_list.GetCheckbox(row, CRecordingList::column_check), XLC_CHECKED) << row;
    }
}

TEST_F(FilteredRecordingList, UndoPutsTheOrderBack)
{
    Show(6);
    NMLISTVIEW click{};
    click.hdr.hwndFrom = m_list.m_hWnd;
    click.hdr.idFrom = list_id;
    click.hdr.code = LVN_COLUMNCLICK;
    click.iItem = -1;
    click.iSubItem = CRecordingList::column_rms;
    m_host.SendMessage(WM_NOTIFY, list_id, reinterpret_cast<LPARAM>(&click));
    EndGesture();
    EXPECT_EQ(Rows(), (Lines{5, 4, 3, 2, 1, 0}));
    EXPECT_TRUE(m_list.Undo());
    EXPECT_EQ(Rows(), (Lines{0, 1, 2, 3, 4, 5}));
    EXPECT_EQ(m_list.SortedColumn(), -1);
    EXPECT_EQ(m_list.GetHeaderCheckedState(CRecordingList::column_rms), XHC_NONE);
    EXPECT_TRUE(m_list.Redo());
    EXPECT_EQ(Rows(), (Lines{5, 4, 3, 2, 1, 0}));
    EXPECT_EQ(m_list.SortedColumn(), CRecordingList::column_rms);
    EXPECT_EQ(m_list.GetHeaderCheckedState(CRecordingList::column_rms), XHC_SORT_ASCENDING);
}
} // namespace
