// Finding recordings, undoing what was done to them, and what is remembered of a folder.

#include <algorithm>
#include <string>
#include <vector>

#include "MainWindowTest.h"

namespace
{
namespace fs = std::filesystem;
using Lines = std::vector<int>;

class WorkbenchFinding : public tests::MainWindowTest
{
protected:
    CRecordingList & List() { return m_window->List(); }
    CListPanel & Panel() { return m_window->ListPanel(); }
    CWnd & Words() { return *Panel().GetDlgItem(IDC_FILTER_WORDS); }
    void ShowFolder(int count)
    {
        m_window->ShowTargets({Folder(count)});
        ASSERT_TRUE(WaitUntilRead());
        ASSERT_TRUE(tests::PumpUntil([this] { return List().ChosenLine() == 0; }));
        List().SetFocus();
    }
    void Restart()
    {
        CloseWindow();
        OpenWindow();
        m_window->ShowTargets({m_folder / "recordings"});
        ASSERT_TRUE(WaitUntilRead());
    }
    Lines Rows()
    {
        Lines rows;
        for (int row = 0; row < List().GetItemCount(); ++row)
        {
            rows.push_back(List().LineAt(row));
        }
        return rows;
    }
};

TEST_F(WorkbenchFinding, TypingNarrowsTheListAndEscapeEndsIt)
{
    ShowFolder(12);
    EXPECT_FALSE(Panel().ShowsFilter());
    tests::Key(L'F', {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([this] { return ::GetFocus() == Words().m_hWnd; }));
    EXPECT_TRUE(Words().IsWindowVisible());
    tests::Type(L"R0001");
    ASSERT_TRUE(tests::PumpUntil([this] { return List().GetItemCount() == 2; }));
    EXPECT_EQ(Rows(), (Lines{10, 11}));
    EXPECT_TRUE(tests::PumpUntil([this] { return Status().find(L"2 shown") != std::wstring::npos; }));

    // Keys of the field are not those of the window.
    tests::Key(L'A', {VK_CONTROL});
    tests::Type(L"none");
    ASSERT_TRUE(tests::PumpUntil([this] { return List().GetItemCount() == 0; }));
    EXPECT_EQ(List().Totals().Checked(), 0U);

    tests::Key(VK_ESCAPE);
    ASSERT_TRUE(tests::PumpUntil([this] { return !Panel().ShowsFilter(); }));
    EXPECT_EQ(List().GetItemCount(), 12);
    EXPECT_EQ(List().ChosenLine(), 0);
    EXPECT_TRUE(tests::PumpUntil([this] { return ::GetFocus() == List().m_hWnd; }));
    EXPECT_FALSE(Words().IsWindowVisible());
    EXPECT_EQ(Status().find(L"shown"), std::wstring::npos);
}

TEST_F(WorkbenchFinding, ChoicesNarrowTogether)
{
    ShowFolder(6);
    {
        std::ofstream(m_folder / "recordings" / "r00006.wav") << "no recording";
        m_window->SendMessage(WM_COMMAND, ID_RELOAD);
        ASSERT_TRUE(tests::PumpUntil([this] { return List().GetItemCount() == 7; }));
        ASSERT_TRUE(WaitUntilRead());
    }
    List().SelectLines({1, 3, 4}, 1);
    List().SendMessage(WM_KEYDOWN, VK_SPACE);
    tests::PumpPosted();
    List().ChooseLine(3);
    List().ChooseRating(3);
    ASSERT_NE(List().RatingCombo(), nullptr);
    tests::PumpPosted();
    tests::Key(VK_DOWN);
    tests::Key(VK_RETURN);
    ASSERT_TRUE(tests::PumpUntil([this] { return List().NotesOf(3).rating == 1; }));

    // All by the keyboard: the marked ones, of them the good ones.
    tests::Key(L'F', {VK_CONTROL});
    auto const at = [this](int id) { return ::GetFocus() == Panel().GetDlgItem(id)->m_hWnd; };
    ASSERT_TRUE(tests::PumpUntil([&] { return at(IDC_FILTER_WORDS); }));
    tests::Key(VK_TAB);
    ASSERT_TRUE(tests::PumpUntil([&] { return at(IDC_FILTER_MARKED); }));
    tests::Key(VK_SPACE);
    ASSERT_TRUE(tests::PumpUntil([this] { return Rows() == (Lines{1, 3, 4}); }));
    tests::Key(VK_TAB);
    ASSERT_TRUE(tests::PumpUntil([&] { return at(IDC_FILTER_RATING); }));
    tests::Key(VK_DOWN); // those without a rating
    ASSERT_TRUE(tests::PumpUntil([this] { return Rows() == (Lines{1, 4}); }));
    tests::Key(VK_DOWN);
    ASSERT_TRUE(tests::PumpUntil([this] { return Rows() == Lines{3}; }));
    tests::Key(VK_TAB);
    ASSERT_TRUE(tests::PumpUntil([&] { return at(IDC_FILTER_STATE); }));
    tests::Key(VK_DOWN);
    ASSERT_TRUE(tests::PumpUntil([this] { return List().Filter().state == workbench::RecordingFilter::State::sound; }));
    EXPECT_EQ(Rows(), Lines{3});
    tests::Key(VK_END);
    ASSERT_TRUE(tests::PumpUntil([this] { return Rows().empty(); }));

    // Escape lets all through, and the choices are as at first.
    tests::Key(VK_ESCAPE);
    ASSERT_TRUE(tests::PumpUntil([this] { return !Panel().ShowsFilter(); }));
    EXPECT_EQ(List().GetItemCount(), 7);
    EXPECT_TRUE(List().Filter().LetsAllThrough());
    tests::Key(L'F', {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([&] { return at(IDC_FILTER_WORDS); }));
    EXPECT_EQ(static_cast<CButton &>(*Panel().GetDlgItem(IDC_FILTER_MARKED)).GetCheck(), BST_UNCHECKED);
    EXPECT_EQ(static_cast<CComboBox &>(*Panel().GetDlgItem(IDC_FILTER_STATE)).GetCurSel(), 0);
}

TEST_F(WorkbenchFinding, KeysUndoAndRedo)
{
    ShowFolder(3);
    tests::Key(L'A', {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([this] { return List().Totals().Checked() == 3; }));
    tests::PumpPosted();
    tests::Key(L'Z', {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([this] { return List().Totals().Checked() == 0; }));
    tests::Key(L'Y', {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([this] { return List().Totals().Checked() == 3; }));
}

TEST_F(WorkbenchFinding, AFolderIsShownAsItWasThen)
{
    ShowFolder(8);
    List().SortLines(CRecordingList::column_name, false);
    List().SelectLines({2, 5}, 5);
    ASSERT_TRUE(tests::PumpUntil([this] { return m_window->Waveform().ShowsRecording(); }));
    tests::PumpPosted();
    workbench::TimeMarks marks = m_window->Waveform().Marks();
    marks.window.Show({100, 200});
    marks.cursor = 150;
    m_window->Waveform().SetMarks(marks);
    Restart();
    EXPECT_TRUE(tests::PumpUntil([this] { return List().SelectedLines() == (Lines{5, 2}); }));
    EXPECT_EQ(List().ChosenLine(), 5);
    EXPECT_EQ(List().SortedColumn(), CRecordingList::column_name);
    EXPECT_FALSE(List().IsAscending());
    EXPECT_TRUE(tests::PumpUntil([this] { return m_window->Waveform().Cursor() == std::uint64_t(150); }));
    EXPECT_EQ(m_window->Waveform().Marks().window.Shown(), (workbench::FrameRange{100, 200}));
    EXPECT_EQ(m_window->Settings().lastTargets, std::vector<fs::path>{m_folder / "recordings"});
}

TEST_F(WorkbenchFinding, AnOrderOfTheUsersComesBack)
{
    ShowFolder(5);
    List().SetOrder({-1, true, {3, 1, 4, 0, 2}});
    Restart();
    EXPECT_EQ(Rows(), (Lines{3, 1, 4, 0, 2}));
    EXPECT_EQ(List().SortedColumn(), -1);

    // Also through a reload that finds another file, which comes last.
    tests::WriteRecording(m_folder / "recordings" / "r00000a.wav");
    m_window->SendMessage(WM_COMMAND, ID_RELOAD);
    ASSERT_TRUE(tests::PumpUntil([this] { return List().GetItemCount() == 6; }));
    ASSERT_TRUE(WaitUntilRead());
    EXPECT_EQ(Rows(), (Lines{4, 2, 5, 0, 3, 1}));
}

TEST_F(WorkbenchFinding, WhatChangesIsStoredSoon)
{
    ShowFolder(4);
    List().ChooseLine(2);
    EXPECT_TRUE(tests::PumpUntil([this] {
        workbench::FolderViews const stored(workbench::ViewsFile());
        return stored.Of(m_folder / "recordings").chosen == L"r00002.wav";
    }));
}
TEST_F(WorkbenchFinding, ARecordingIsRenamedWithItsNotes)
{
    ShowFolder(3);
    List().ChooseLine(1);
    List().SendMessage(WM_KEYDOWN, VK_SPACE);
    tests::PumpPosted();
    auto const dialog = [] { return ::FindWindowW(nullptr, L"Rename"); };
    auto const field = [&] { return dialog() != nullptr ? ::GetDlgItem(dialog(), IDC_NEW_NAME) : nullptr; };
    tests::LaterActions later;
    later.Add(
        [&] {
            ::SetWindowTextW(field(), L"other.wav");
            ::PostMessageW(dialog(), WM_COMMAND, IDOK, 0);
        },
        [&] { return field() != nullptr; });
    m_window->SendMessage(WM_COMMAND, ID_RENAME);
    ASSERT_FALSE(later.Failed());
    EXPECT_TRUE(fs::exists(m_folder / "recordings" / "other.wav"));
    EXPECT_FALSE(fs::exists(m_folder / "recordings" / "r00001.wav"));
    EXPECT_EQ(List().GetItemText(1, CRecordingList::column_name), L"other.wav");
    Restart();
    EXPECT_EQ(List().Totals().Checked(), 1U);
    EXPECT_TRUE(List().IsChecked(0));
    EXPECT_EQ(List().GetItemText(0, CRecordingList::column_name), L"other.wav");
}

TEST_F(WorkbenchFinding, TheSelectedRecordingsGoToTheTrash)
{
    ShowFolder(4);
    List().SelectLines({1, 2}, 1);
    tests::App().Answer(IDYES);
    List().SendMessage(WM_KEYDOWN, VK_DELETE);
    ASSERT_TRUE(tests::PumpUntil([this] { return !m_window->IsBusy() && List().GetItemCount() == 2; }));
    EXPECT_EQ(tests::App().TakeMessages(),
              std::vector<std::wstring>{L"Move these 2 files to the trash?\n\nr00001.wav\nr00002.wav"});
    EXPECT_FALSE(fs::exists(m_folder / "recordings" / "r00001.wav"));
    EXPECT_TRUE(fs::exists(m_folder / "recordings" / "r00003.wav"));
    EXPECT_EQ(List().GetItemText(1, CRecordingList::column_name), L"r00003.wav");
}
} // namespace
