// What is asked and said when recordings go to the trash; and recordings that cannot be read, which can go there, too.

#include <fstream>
#include <string>
#include <vector>

#include "MainWindowTest.h"

namespace
{
namespace fs = std::filesystem;
using Lines = std::vector<int>;

class WorkbenchDeleting : public tests::MainWindowTest
{
protected:
    CRecordingList & List() { return m_window->List(); }
    fs::path Recordings() const { return m_folder / "recordings"; }
    void ShowFolder(int count, bool withUnreadable = false)
    {
        std::filesystem::path const folder = Folder(count);
        if (withUnreadable)
        {
            std::ofstream(folder / "z.wav") << "no recording";
        }
        m_window->ShowTargets({folder});
        ASSERT_TRUE(WaitUntilRead());
        ASSERT_TRUE(tests::PumpUntil([this] { return List().ChosenLine() == 0; }));
        List().SetFocus();
        tests::PumpPosted();
    }
    void ClickLine(int line, CRecordingList::Column column = CRecordingList::column_duration)
    {
        tests::Click(tests::ClientPoint(List().m_hWnd, List().CellCentre(line, column)));
    }
    /// Answers the question with No.
    std::wstring Question()
    {
        tests::App().Answer(IDNO);
        List().SendMessage(WM_KEYDOWN, VK_DELETE);
        std::vector<std::wstring> const messages = tests::App().TakeMessages();
        return messages.size() == 1 ? messages.front() : std::to_wstring(messages.size()) + L" messages";
    }
};

TEST_F(WorkbenchDeleting, TheQuestionNamesTheFile)
{
    ShowFolder(3);
    List().ChooseLine(1);
    EXPECT_EQ(Question(), L"Move this file to the trash?\n\nr00001.wav");
}

TEST_F(WorkbenchDeleting, TheQuestionCountsFilesAndNamesTheFirst)
{
    ShowFolder(8);
    List().SelectLines({0, 2}, 0);
    EXPECT_EQ(Question(), L"Move these 2 files to the trash?\n\nr00000.wav\nr00002.wav");
    List().SelectLines({0, 1, 2, 3, 4, 5, 6}, 0);
    EXPECT_EQ(Question(), L"Move these 7 files to the trash?\n\n"
                          L"r00000.wav\nr00001.wav\nr00002.wav\nr00003.wav\nr00004.wav\nand 2 more");
}

TEST_F(WorkbenchDeleting, AnErrorSaysWhichFileAndWhy)
{
    ShowFolder(3);
    List().SelectLines({0, 1}, 0);
    std::filesystem::path const used = Recordings() / "r00001.wav";
    HANDLE const handle = ::CreateFileW(used.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(handle, INVALID_HANDLE_VALUE);
    tests::App().Answer(IDYES);
    List().SendMessage(WM_KEYDOWN, VK_DELETE);
    std::vector<std::wstring> const messages = tests::App().TakeMessages();
    ::CloseHandle(handle);
    ASSERT_EQ(messages.size(), 2U);
    EXPECT_EQ(messages.back(), L"This file could not be moved to the trash:\n\n"
                               L"r00001.wav: another program is using it");
    EXPECT_TRUE(tests::PumpUntil([this] { return List().LineCount() == 2 && !m_window->IsBusy(); }));
}

TEST_F(WorkbenchDeleting, ARecordingThatCannotBeReadIsChosenByAClick)
{
    ShowFolder(2, true);
    for (CRecordingList::Column const column :
         {CRecordingList::column_name, CRecordingList::column_duration, CRecordingList::column_status,
          CRecordingList::column_check, CRecordingList::column_comment, CRecordingList::column_rating})
    {
        List().ChooseLine(0);
        ClickLine(2, column);
        EXPECT_TRUE(tests::PumpUntil([this] { return List().SelectedLines() == Lines{2}; })) << column;
    }
    EXPECT_EQ(List().Totals().Checked(), 0U);
    EXPECT_FALSE(List().IsEditing());
    EXPECT_EQ(List().NotesOf(2).rating, 0);
    // Together with others, and by keys.
    tests::Key(VK_UP);
    EXPECT_TRUE(tests::PumpUntil([this] { return List().SelectedLines() == Lines{1}; }));
    tests::Key(VK_DOWN, {VK_SHIFT});
    EXPECT_TRUE(tests::PumpUntil([this] { return List().SelectedLines() == Lines{1, 2}; }));
    tests::Key(VK_UP);
    EXPECT_TRUE(tests::PumpUntil([this] { return List().SelectedLines() == Lines{1}; }));
    tests::Key(VK_DOWN);
    EXPECT_TRUE(tests::PumpUntil([this] { return List().SelectedLines() == Lines{2}; }));
    tests::App().Answer(IDYES);
    tests::Key(VK_DELETE);
    EXPECT_TRUE(tests::PumpUntil([this] { return List().LineCount() == 2 && !m_window->IsBusy(); }));
    EXPECT_EQ(tests::App().TakeMessages().front(), L"Move this file to the trash?\n\nz.wav");
    EXPECT_FALSE(fs::exists(Recordings() / "z.wav"));
}
} // namespace
