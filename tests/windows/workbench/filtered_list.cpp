// The workbench's list while it is filtered, and what the user did to it being undone.

#include "Input.h"
#include "Pump.h"
#include "RecordingList.h"
#include "ScopedWindow.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <numeric>
#include <random>
#include <string>
#include <vector>

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
        for (int line = 0; line < count; ++line)
        {
            m_list.ShowAnalysis(line, Analysis(line));
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
    auto const all = Rows();
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
    auto const readable = m_list.Totals().Lines() - m_list.Totals().Unreadable();
    EXPECT_EQ(m_list.Totals().Checked(), readable);
    ASSERT_TRUE(tests::PumpUntil([&] { return m_list.GetItemCount() == count; }));
    for (int row = 0; row < count; ++row)
    {
        auto const line = m_list.LineAt(row);
        ASSERT_EQ(m_list.GetCheckbox(row, CRecordingList::column_check) == XLC_CHECKED, line % 7 != 6) << line;
    }
    EndGesture();
    ASSERT_TRUE(m_list.CanUndo());
    m_list.Undo();
    EXPECT_EQ(m_list.Totals().Checked(), 0U);
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
        for (auto const line : m_list.Order().lines)
        {
            auto const text = workbench::SearchedText(L"C:\\recordings\\rec_" + std::to_wstring(line) + L".wav", L"");
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
    auto const text = m_list.GetItemText(m_list.PlaceOf(2), CRecordingList::column_loudness);
    EXPECT_EQ(CString(text).Trim(), L"-22.0");
}

TEST_F(FilteredRecordingList, TypingGoesToTheNextNameThatBeginsSo)
{
    Show(12);
    m_list.ChooseLine(0);
    for (auto const character : std::wstring(L"REC_11"))
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
