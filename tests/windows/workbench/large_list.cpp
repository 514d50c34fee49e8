// The workbench's list with many recordings: what happens once a line costs the same however many lines there are.

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "Pump.h"
#include "RecordingList.h"
#include "ScopedWindow.h"

namespace
{
using workbench::RecordingAnalysis;

constexpr int list_id = 7;
constexpr UINT first_list_message = LVM_FIRST;
constexpr UINT last_list_message = LVM_FIRST + 0xFF;

/// A list that counts the messages of list views that it is sent.
class CountingList : public CRecordingList
{
public:
    long Count(std::function<void()> const & work)
    {
        m_messages = 0;
        work();
        return m_messages;
    }
    /// Called with each change of a row's state.
    std::function<void()> m_onItemChanged;
    /// How many texts have been measured so far.
    long Measured() const { return m_measured; }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        m_measured += message == LVM_GETSTRINGWIDTHW ? 1 : 0;
        m_messages += message >= first_list_message && message <= last_list_message ? 1 : 0;
        return CRecordingList::WindowProc(message, wParam, lParam);
    }

    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * result) override
    {
        auto const heard = m_onItemChanged;
        if (heard && message == WM_NOTIFY && reinterpret_cast<NMHDR *>(lParam)->code == LVN_ITEMCHANGED)
        {
            heard();
        }
        return CRecordingList::OnChildNotify(message, wParam, lParam, result);
    }

private:
    long m_messages = 0;
    long m_measured = 0;
};

std::shared_ptr<RecordingAnalysis const> Analysis(bool readable)
{
    auto analysis = std::make_shared<RecordingAnalysis>();
    if (!readable)
    {
        analysis->problem = workbench::ReadProblem{workbench::ReadFault::not_wav};
        return analysis;
    }
    analysis->info.channels = 1;
    analysis->info.sampleRate = 1000;
    analysis->info.frames = 1500;
    analysis->info.announcedFrames = 1500;
    analysis->levels = {-6.0, -9.0};
    return analysis;
}

class LargeRecordingList : public testing::Test
{
protected:
    void Fill(CountingList & list, int lines)
    {
        ASSERT_TRUE(list.CreateList(m_host, list_id, m_metrics));
        list.SetWindowPos(nullptr, 0, 0, 1160, 260, SWP_NOZORDER);
        std::vector<std::filesystem::path> files;
        for (int i = 0; i < lines; ++i)
        {
            files.push_back(std::filesystem::path(L"C:\\recordings") / (L"recording " + std::to_wstring(i) + L".wav"));
        }
        list.ShowFiles(files, std::vector<CRecordingList::Notes>(files.size()));
        tests::PumpPosted(100000);
    }

    /// The messages that the list is sent for each of its lines, with few lines and with many.
    using Work = std::function<void(CountingList &, int lines)>;
    std::pair<double, double> PerLine(Work const & work)
    {
        auto const messages = [&](int lines) {
            CountingList list;
            Fill(list, lines);
            long const count = list.Count([&] { work(list, lines); });
            list.DestroyWindow();
            return static_cast<double>(count) / lines;
        };
        return {messages(few), messages(many)};
    }

    static constexpr int few = 100;
    static constexpr int many = 1000;

    workbench::ScreenMetrics m_metrics;
    tests::ScopedWindow m_host{CRect(20, 20, 1220, 400)};
};

// A pass over all lines for each line would make it ten times as many.
#define EXPECT_SAME_PER_LINE(work)                                                                                     \
    do                                                                                                                 \
    {                                                                                                                  \
        auto const [atFew, atMany] = PerLine(work);                                                                    \
        EXPECT_LE(atMany, 1.5 * atFew);                                                                                \
    } while (false)

TEST_F(LargeRecordingList, ListingAFileCostsTheSameAmongMany)
{
    EXPECT_SAME_PER_LINE([](CountingList & list, int lines) {
        std::vector<std::filesystem::path> const files(static_cast<std::size_t>(lines), L"C:\\other.wav");
        list.ShowFiles(files, std::vector<CRecordingList::Notes>(files.size()));
    });
}

TEST_F(LargeRecordingList, AResultCostsTheSameAmongMany)
{
    EXPECT_SAME_PER_LINE([](CountingList & list, int lines) {
        for (int line = 0; line < lines; ++line)
        {
            list.ShowAnalysis(line, Analysis(line % 3 != 0));
        }
    });
}

TEST_F(LargeRecordingList, ATextThatManyLinesHaveIsMeasuredOnce)
{
    CountingList list;
    Fill(list, few);
    long const fresh = list.Measured();
    CRecordingList::Batch const batch(list);
    list.ShowAnalysis(0, Analysis(true));
    long const measured = list.Measured();
    EXPECT_GT(measured, fresh);
    for (int line = 1; line < few; ++line)
    {
        list.ShowAnalysis(line, Analysis(true));
    }
    EXPECT_EQ(list.Measured(), measured);
}

TEST_F(LargeRecordingList, NamesAreMeasuredAsTheListViewMeasuresThem)
{
    CountingList list;
    Fill(list, 1);
    // One of them is wider than the others, and the column grows by the difference as soon as there is room.
    list.SetHiddenColumns({CRecordingList::column_overview, CRecordingList::column_comment, CRecordingList::column_peak,
                           CRecordingList::column_status});
    std::vector<std::filesystem::path> files;
    for (wchar_t const * const name : {L"WWWWWWWWWWWWWWWWWW.wav", L"iiiiiiiiiiiiiiiii.wav", L"\x65E5\x672C.wav"})
    {
        files.push_back(std::filesystem::path(L"C:\\recordings") / name);
    }
    list.ShowFiles(files, std::vector<CRecordingList::Notes>(files.size()));
    tests::PumpPosted(100000);
    int const inBatch = list.GetColumnWidth(CRecordingList::column_name);
    EXPECT_GT(inBatch, list.GetStringWidth(L"WWWWWWWWWWWWWWWWWW.wav"));
    list.Rename(1, L"C:\\recordings\\WWWWWWWWWWWWWWWWWWWW.wav");
    tests::PumpPosted(100000);
    int const alone = list.GetColumnWidth(CRecordingList::column_name);
    EXPECT_EQ(alone - inBatch,
              list.GetStringWidth(L"WWWWWWWWWWWWWWWWWWWW.wav") - list.GetStringWidth(L"WWWWWWWWWWWWWWWWWW.wav"));
    list.DestroyWindow();
}

TEST_F(LargeRecordingList, MarkingAllCostsTheSameForEachOfMany)
{
    EXPECT_SAME_PER_LINE([](CountingList & list, int) {
        list.CheckAll(true);
        list.FinishRows();
    });
}

TEST_F(LargeRecordingList, TogglingTheSelectedCostsTheSameForEachOfMany)
{
    EXPECT_SAME_PER_LINE([](CountingList & list, int) {
        list.SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED);
        list.SendMessage(WM_KEYDOWN, VK_SPACE);
        list.FinishRows();
    });
}

TEST_F(LargeRecordingList, SelectingAllAsksNoLineOutOfSight)
{
    CountingList list;
    Fill(list, many);
    int const inSight = list.GetCountPerPage() + 1;
    // For each line in sight, painting included.
    int const most = 60 * inSight;
    ASSERT_LT(most, many);
    EXPECT_LT(list.Count([&] {
        list.SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED);
        tests::PumpPosted(100000);
    }),
              most);
    EXPECT_EQ(list.GetSelectedCount(), static_cast<UINT>(many));
    EXPECT_LT(list.Count([&] { list.SendMessage(WM_KILLFOCUS); }), most);
    EXPECT_LT(list.Count([&] {
        list.ChooseLine(3);
        tests::PumpPosted(100000);
    }),
              most);
    EXPECT_EQ(list.GetSelectedCount(), 1U);
    EXPECT_EQ(list.ChosenLine(), 3);
    list.DestroyWindow();
}

TEST_F(LargeRecordingList, KeysSelectUpToTheEndAndOneAgain)
{
    CountingList list;
    Fill(list, many);
    list.SetFocus();
    list.ChooseLine(0);
    BYTE former[256];
    ::GetKeyboardState(former);
    BYTE keys[256] = {};
    keys[VK_SHIFT] = 0x80;
    ::SetKeyboardState(keys);
    list.SendMessage(WM_KEYDOWN, VK_END);
    ::SetKeyboardState(former);
    EXPECT_EQ(list.GetSelectedCount(), static_cast<UINT>(many));
    EXPECT_EQ(list.GetNextItem(-1, LVNI_FOCUSED), many - 1);
    EXPECT_EQ(list.GetTopIndex(), many - list.GetCountPerPage());
    list.SendMessage(WM_KEYDOWN, VK_HOME);
    EXPECT_EQ(list.GetSelectedCount(), 1U);
    EXPECT_EQ(list.ChosenLine(), 0);
    EXPECT_EQ(list.GetTopIndex(), 0);
    EXPECT_TRUE(list.GetUpdateRect(nullptr)) << "nothing is painted";
    list.DestroyWindow();
}

TEST_F(LargeRecordingList, SortingByAnOwnOrderAsksEachLineAFewTimes)
{
    EXPECT_SAME_PER_LINE([](CountingList & list, int) { list.SortLines(CRecordingList::column_rating, false); });
}

TEST_F(LargeRecordingList, MovingTheReferenceAsksNoLineForItsName)
{
    CountingList list;
    Fill(list, many);
    list.SetReference(3);
    long const count = list.Count([&] { list.ShowReference(); });
    EXPECT_LT(count, 50);
    list.DestroyWindow();
}

TEST_F(LargeRecordingList, AGestureOverAllLinesIsToldOnce)
{
    CountingList list;
    Fill(list, few);
    int told = 0;
    list.m_onChanged = [&told](unsigned) { ++told; };
    list.CheckAll(true);
    tests::PumpPosted(100000);
    EXPECT_EQ(told, 1);
    EXPECT_EQ(list.Totals().Checked(), static_cast<std::size_t>(few));
    EXPECT_EQ(list.GetHeaderCheckedState(CRecordingList::column_check), XHC_CHECKED);

    // As a click on the title.
    NMLISTVIEW click{};
    click.hdr.hwndFrom = list.m_hWnd;
    click.hdr.idFrom = list_id;
    click.hdr.code = LVN_COLUMNCLICK;
    click.iItem = -1;
    click.iSubItem = CRecordingList::column_check;
    m_host.SendMessage(WM_NOTIFY, list_id, reinterpret_cast<LPARAM>(&click));
    tests::PumpPosted(100000);
    EXPECT_EQ(told, 2);
    EXPECT_EQ(list.Totals().Checked(), 0U);
    EXPECT_FALSE(list.IsChecked(0));
    EXPECT_EQ(list.GetHeaderCheckedState(CRecordingList::column_check), XHC_UNCHECKED);
    list.DestroyWindow();
}
TEST_F(LargeRecordingList, AClickWithShiftSelectsUpToItAsTheListViewDoes)
{
    CountingList list;
    Fill(list, 300);
    auto const click = [&list](int line, UINT keys) {
        list.EnsureVisible(line, FALSE);
        CPoint const place = list.CellCentre(line, CRecordingList::column_date);
        list.PostMessage(WM_LBUTTONUP, keys, MAKELPARAM(place.x, place.y));
        list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON | keys, MAKELPARAM(place.x, place.y));
        tests::PumpPosted(100000);
    };
    auto const range = [](int first, int last) {
        std::vector<int> lines;
        for (int line = first; line <= last; ++line)
        {
            lines.push_back(line);
        }
        return lines;
    };
    click(20, 0);
    ASSERT_EQ(list.SelectedLines(), range(20, 20));
    click(290, MK_SHIFT);
    EXPECT_EQ(list.SelectedLines(), range(20, 290));
    EXPECT_EQ(list.ChosenLine(), 290);
    click(150, MK_SHIFT);
    EXPECT_EQ(list.SelectedLines(), range(20, 150)) << "from where it began, and no others";
    click(3, MK_SHIFT);
    EXPECT_EQ(list.SelectedLines(), range(3, 20));
    click(200, MK_CONTROL);
    click(295, MK_CONTROL | MK_SHIFT);
    std::vector<int> both = range(3, 20);
    std::vector<int> const more = range(200, 295);
    both.insert(both.end(), more.begin(), more.end());
    EXPECT_EQ(list.SelectedLines(), both) << "with Ctrl the others stay";
    list.DestroyWindow();
}

TEST_F(LargeRecordingList, ARangeByAClickPaintsNoRowByItself)
{
    CountingList list;
    Fill(list, many);
    list.SetSelectionMark(0);
    list.EnsureVisible(many - 1, FALSE);
    CPoint const place = list.CellCentre(many - 1, CRecordingList::column_date);
    tests::PumpPosted(100000);
    list.UpdateWindow();
    int changes = 0;
    int painted = 0;
    list.m_onItemChanged = [&] {
        ++changes;
        painted += list.GetUpdateRect(nullptr) ? 1 : 0;
        list.ValidateRect(nullptr);
    };
    list.PostMessage(WM_LBUTTONUP, 0, MAKELPARAM(place.x, place.y));
    list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT, MAKELPARAM(place.x, place.y));
    EXPECT_EQ(list.SelectedLines().size(), static_cast<std::size_t>(many));
    EXPECT_GE(changes, many);
    EXPECT_LE(painted, 2) << "the row of the click";
    list.DestroyWindow();
}

TEST_F(LargeRecordingList, FewManyAndAllLinesAreSelected)
{
    CountingList list;
    Fill(list, many);
    std::vector<int> all;
    for (int line = 0; line < many; ++line)
    {
        all.push_back(line);
    }
    list.SelectLines(all, 0);
    EXPECT_EQ(list.SelectedLines(), all);
    std::vector<int> fewer = all;
    fewer.erase(fewer.begin() + 17);
    list.SelectLines(fewer, 5);
    EXPECT_EQ(list.SelectedLines(), fewer);
    EXPECT_EQ(list.ChosenLine(), 5);
    list.SelectLines({3, 900, 44, 44, -1, many}, 900);
    EXPECT_EQ(list.SelectedLines(), (std::vector<int>{3, 44, 900}));
    EXPECT_EQ(list.ChosenLine(), 900);
    list.SelectLines({}, -1);
    EXPECT_EQ(list.SelectedLines(), std::vector<int>());
    list.DestroyWindow();
}
} // namespace
