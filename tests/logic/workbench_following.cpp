// What a folder's changes are, and what becomes of lines that get other numbers.

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <utility>
#include <vector>

#include "logic/FolderChanges.h"
#include "logic/ListHistory.h"
#include "logic/RecordingTotals.h"
#include "logic/StoredLists.h"

namespace
{

using namespace workbench;
using Places = std::vector<std::size_t>;
using Paths = std::vector<std::filesystem::path>;

KnownFile Known(char const * file, std::uint64_t size, std::time_t time = 1000)
{
    return {file, {size, time}};
}

TEST(FolderChanges, SaysWhatHasComeAndGoneAndChanged)
{
    std::vector<KnownFile> const listed{Known("a", 1), Known("b", 2), Known("c", 3), Known("d", 4)};
    std::vector<KnownFile> const found{Known("a", 1), Known("b", 22), Known("d", 4, 1001), Known("e", 5)};
    FolderChanges const changes = CompareFolder(listed, found);
    EXPECT_EQ(changes.gone, Places{2});
    EXPECT_EQ(changes.changed, (Places{1, 3}));
    EXPECT_EQ(changes.come, Paths{"e"});
    EXPECT_TRUE(changes.renamed.empty());
    EXPECT_TRUE(CompareFolder(listed, listed).IsEmpty());
}

TEST(FolderChanges, AnotherNameWithTheSameSizeAndTimeIsARename)
{
    std::vector<KnownFile> const listed{Known("a", 1), Known("b", 2)};
    FolderChanges const changes =
        CompareFolder(listed, std::vector<KnownFile>{Known("a", 1), Known("x", 2), Known("y", 3)});
    ASSERT_EQ(changes.renamed.size(), 1U);
    EXPECT_EQ(changes.renamed.front(), (std::pair{std::size_t(1), std::filesystem::path("x")}));
    EXPECT_TRUE(changes.gone.empty());
    EXPECT_EQ(changes.come, Paths{"y"});
}

TEST(FolderChanges, NamesThatCouldBeEitherAreNoRename)
{
    std::vector<KnownFile> const listed{Known("a", 1), Known("b", 1)};
    FolderChanges const changes = CompareFolder(listed, std::vector<KnownFile>{Known("x", 1), Known("y", 1)});
    EXPECT_TRUE(changes.renamed.empty());
    EXPECT_EQ(changes.gone, (Places{0, 1}));
    EXPECT_EQ(changes.come, (Paths{"x", "y"}));
}

TEST(FolderChanges, WhatIsNotKnownHasNotChanged)
{
    std::vector<KnownFile> const listed{{"unread", {}}, Known("deleted", 1), {"missing", {}}};
    FolderChanges const changes =
        CompareFolder(listed, std::vector<KnownFile>{Known("unread", 5), {"deleted", {}}, {"missing", {}}});
    EXPECT_EQ(changes.gone, Places{1});
    EXPECT_TRUE(changes.changed.empty());
    EXPECT_TRUE(changes.come.empty());
}

TEST(FolderChanges, ThousandsTakeNoTimeToSpeakOf)
{
    std::vector<KnownFile> listed;
    std::vector<KnownFile> found;
    for (int i = 0; i < 20000; ++i)
    {
        listed.push_back({std::to_string(i), {{static_cast<std::uint64_t>(i)}, 7}});
        found.push_back({"n" + std::to_string(i), {{static_cast<std::uint64_t>(i)}, 7}});
    }
    EXPECT_EQ(CompareFolder(listed, found).renamed.size(), listed.size());
}

TEST(ListHistory, LinesGetOtherNumbers)
{
    ListHistory history;
    RecordingNotes marked;
    marked.checked = true;
    history.Note(0, {}, marked);
    history.EndStep();
    history.Note(2, {}, marked);
    history.EndStep();
    history.NoteOrder({-1, true, {0, 1, 2}}, {-1, true, {2, 1, 0}});
    history.EndStep();
    history.Note(1, {}, marked);
    history.EndStep();
    ASSERT_TRUE(history.Undo()); // line 1 again, to be done again
    history.Renumber({1, -1, 0});
    EXPECT_FALSE(history.CanRedo()) << "its line is gone";
    std::optional<ListStep> step = history.Undo();
    ASSERT_TRUE(step && step->order);
    EXPECT_EQ(step->order->after.lines, (std::vector<int>{1, 0}));
    EXPECT_EQ(step->order->before.lines, (std::vector<int>{0, 1}));
    step = history.Undo();
    ASSERT_TRUE(step);
    EXPECT_EQ(step->notes.front().line, 0);
    step = history.Undo();
    ASSERT_TRUE(step);
    EXPECT_EQ(step->notes.front().line, 1);
    EXPECT_FALSE(history.CanUndo());
}

TEST(RecordingTotals, GoWithTheirLines)
{
    RecordingTotals totals;
    for (bool const checked : {true, false, true})
    {
        totals.Append(checked);
    }
    totals.SetState(0, RecordingTotals::State::readable, 500);
    totals.SetState(1, RecordingTotals::State::unreadable, 0);
    totals.SetState(2, RecordingTotals::State::readable, 70);
    totals.Renumber({-1, 1, 0});
    EXPECT_EQ(totals.Lines(), 2U);
    EXPECT_EQ(totals.Checked(), 1U);
    EXPECT_EQ(totals.CheckedMilliseconds(), 70U);
    EXPECT_EQ(totals.Unreadable(), 1U);
    EXPECT_TRUE(totals.IsChecked(0));
    EXPECT_EQ(totals.StateOf(1), RecordingTotals::State::unreadable);
    totals.Renumber({-1, -1});
    EXPECT_EQ(totals.Lines(), 0U);
    EXPECT_EQ(totals.Unreadable(), 0U);
}

TEST(StoredOrder, ComesBackAndIsAlwaysWhole)
{
    EXPECT_EQ(OrderText({2, 0, 1}), L"2 0 1");
    EXPECT_EQ(OrderOf(L"2 0 1", 3), (std::vector<int>{2, 0, 1}));
    EXPECT_EQ(OrderOf(L"2 0 1", 5), (std::vector<int>{2, 0, 1, 3, 4})) << "those that came later";
    EXPECT_EQ(OrderOf(L"2 2 -1 99 0", 3), (std::vector<int>{2, 0, 1}));
    EXPECT_EQ(OrderOf(L"x 1", 3), (std::vector<int>{0, 1, 2}));
    EXPECT_EQ(OrderOf(L"", 2), (std::vector<int>{0, 1}));
}

TEST(RecentItem, HasItsKeyAndItsPath)
{
    EXPECT_EQ(RecentItemText(3, L"C:\\a & b\\r.wav"), L"&3 C:\\a && b\\r.wav");
    auto const text = RecentItemText(1, L"C:\\measurements\\" + std::wstring(80, L'x') + L"\\2026\\room 4\\r1.wav");
    EXPECT_EQ(text, L"&1 C:\\measureme...\\2026\\room 4\\r1.wav");
    EXPECT_LE(RecentItemText(1, L"C:\\" + std::wstring(300, L'x')).size(), 66U);
}

} // namespace
