// The list follows folders that change, and what was opened last.

#include <shlobj.h>

#include <algorithm>
#include <numeric>
#include <string>
#include <vector>

#include "MainWindowTest.h"
#include "RecordingCells.h"

namespace
{
namespace fs = std::filesystem;
using Lines = std::vector<int>;
using Names = std::vector<std::wstring>;

class WorkbenchFollowing : public tests::MainWindowTest
{
protected:
    CRecordingList & List() { return m_window->List(); }
    fs::path Recordings() const { return m_folder / "recordings"; }
    void ShowFolder(int count)
    {
        m_window->ShowTargets({Folder(count)});
        ASSERT_TRUE(WaitUntilRead());
        ASSERT_TRUE(tests::PumpUntil([this] { return List().ChosenLine() == 0; }));
        List().SetFocus();
        tests::PumpPosted();
    }
    Names Shown()
    {
        Names names;
        for (int row = 0; row < List().GetItemCount(); ++row)
        {
            names.emplace_back(List().GetItemText(row, CRecordingList::column_name).GetString());
        }
        return names;
    }
    bool WaitFor(Names const & names)
    {
        return tests::PumpUntil([&] { return !m_window->IsBusy() && Shown() == names; }, tests::read_limit);
    }
    std::wstring ChosenName()
    {
        int const row = List().PlaceOf(List().ChosenLine());
        return row < 0 ? L"" : List().GetItemText(row, CRecordingList::column_name).GetString();
    }
};

TEST_F(WorkbenchFollowing, FilesComeAndGo)
{
    ShowFolder(3);
    List().ChooseLine(1);
    List().SendMessage(WM_KEYDOWN, VK_SPACE);
    tests::PumpPosted();
    tests::WriteRecording(Recordings() / "r00000a.wav");
    ASSERT_TRUE(WaitFor({L"r00000.wav", L"r00000a.wav", L"r00001.wav", L"r00002.wav"}));
    EXPECT_EQ(ChosenName(), L"r00001.wav");
    EXPECT_EQ(List().Totals().Checked(), 1U);
    EXPECT_TRUE(List().IsChecked(List().ChosenLine()));
    EXPECT_EQ(List().SortedColumn(), -1);

    // What was done before can be undone and done again.
    ASSERT_TRUE(List().CanUndo());
    fs::remove(Recordings() / "r00000.wav");
    ASSERT_TRUE(WaitFor({L"r00000a.wav", L"r00001.wav", L"r00002.wav"}));
    EXPECT_EQ(ChosenName(), L"r00001.wav");
    EXPECT_TRUE(List().Undo());
    EXPECT_EQ(List().Totals().Checked(), 0U);
    EXPECT_TRUE(List().Redo());
    EXPECT_TRUE(List().IsChecked(1));
    EXPECT_EQ(m_window->RecordingCount(), 3);
}

TEST_F(WorkbenchFollowing, AReloadThatFindsOtherFilesKeepsUndoing)
{
    ShowFolder(4);
    List().ChooseLine(2);
    List().SendMessage(WM_KEYDOWN, VK_SPACE);
    tests::PumpPosted();
    List().ChooseLine(1);
    List().SendMessage(WM_KEYDOWN, VK_SPACE);
    tests::PumpPosted();
    tests::WriteRecording(Recordings() / "a.wav", 48000, 777); // so that it is no other one's new name
    fs::remove(Recordings() / "r00001.wav");
    m_window->SendMessage(WM_COMMAND, ID_RELOAD);
    ASSERT_TRUE(WaitFor({L"a.wav", L"r00000.wav", L"r00002.wav", L"r00003.wav"}));
    EXPECT_EQ(List().Totals().Checked(), 1U);
    ASSERT_TRUE(List().CanUndo());
    EXPECT_TRUE(List().Undo());
    EXPECT_EQ(List().Totals().Checked(), 0U) << "of what is still there";
    EXPECT_TRUE(List().Redo());
    EXPECT_TRUE(List().IsChecked(2));
}

TEST_F(WorkbenchFollowing, AFileThatGrowsIsReadAgain)
{
    ShowFolder(2);
    List().ChooseLine(1);
    auto const duration = [this] { return List().GetItemText(1, CRecordingList::column_duration).Trim(); };
    CString const before = duration();
    tests::WriteRecording(Recordings() / "r00001.wav", 48000, 96000);
    ASSERT_TRUE(tests::PumpUntil([&] { return duration() == L"0:02.000"; }));
    EXPECT_NE(before, L"0:02.000");
    EXPECT_EQ(ChosenName(), L"r00001.wav");
    ASSERT_TRUE(tests::PumpUntil([this] { return m_window->Waveform().Marks().window.Frames() == 96000; }));
}

TEST_F(WorkbenchFollowing, ARenamedFileKeepsWhatIsSaidAboutIt)
{
    ShowFolder(3);
    tests::WriteRecording(Recordings() / "r00001.wav", 48000, 777); // known by its size
    auto const isRead = [this] {
        int const row = List().PlaceOf(1);
        return !m_window->IsBusy() && List().GetItemText(row, CRecordingList::column_duration).Trim() == L"0:00.016";
    };
    ASSERT_TRUE(tests::PumpUntil(isRead));
    List().ChooseLine(1);
    List().SendMessage(WM_KEYDOWN, VK_SPACE);
    tests::PumpPosted();
    fs::rename(Recordings() / "r00001.wav", Recordings() / "z.wav");
    ASSERT_TRUE(WaitFor({L"r00000.wav", L"r00002.wav", L"z.wav"}));
    EXPECT_EQ(ChosenName(), L"z.wav");
    EXPECT_TRUE(List().IsChecked(List().ChosenLine()));
    EXPECT_TRUE(List().Undo());
    EXPECT_EQ(List().Totals().Checked(), 0U);
}

TEST_F(WorkbenchFollowing, OrderAndPlaceStay)
{
    ShowFolder(60);
    List().SortLines(CRecordingList::column_name, false);
    List().EnsureVisible(40, FALSE);
    tests::PumpPosted();
    CString const top = List().GetItemText(List().GetTopIndex(), CRecordingList::column_name);
    ASSERT_GT(List().GetTopIndex(), 5);
    tests::WriteRecording(Recordings() / "z.wav");
    ASSERT_TRUE(tests::PumpUntil([this] { return List().GetItemCount() == 61 && !m_window->IsBusy(); }));
    ASSERT_TRUE(tests::PumpUntil([this] { return Shown().front() == L"z.wav"; }));
    EXPECT_EQ(List().SortedColumn(), CRecordingList::column_name);
    EXPECT_EQ(List().GetItemText(List().GetTopIndex(), CRecordingList::column_name), top);
    fs::remove(Recordings() / "r00059.wav");
    ASSERT_TRUE(tests::PumpUntil([this] { return List().GetItemCount() == 60 && !m_window->IsBusy(); }));
    EXPECT_EQ(List().GetItemText(List().GetTopIndex(), CRecordingList::column_name), top);
}

TEST_F(WorkbenchFollowing, AFolderThatVanishesIsSaidAndComesBack)
{
    ShowFolder(2);
    List().ChooseLine(1);
    List().SendMessage(WM_KEYDOWN, VK_SPACE);
    tests::PumpPosted();
    fs::rename(Recordings(), m_folder / "elsewhere");
    ASSERT_TRUE(tests::PumpUntil([this] { return Status().find(L"folder not found: ") != std::wstring::npos; }));
    EXPECT_EQ(List().GetItemCount(), 0);
    fs::rename(m_folder / "elsewhere", Recordings());
    ASSERT_TRUE(WaitFor({L"r00000.wav", L"r00001.wav"}));
    EXPECT_EQ(Status().find(L"folder not found"), std::wstring::npos);
    EXPECT_TRUE(List().IsChecked(1));
}

TEST_F(WorkbenchFollowing, WaitsWhileACommentIsWritten)
{
    ShowFolder(2);
    List().EditComment(1);
    ASSERT_NE(List().CommentEditor(), nullptr);
    tests::Type(L"half");
    tests::WriteRecording(Recordings() / "a.wav");
    tests::PumpFor(std::chrono::milliseconds(800));
    EXPECT_NE(List().CommentEditor(), nullptr);
    EXPECT_EQ(List().GetItemCount(), 2);
    tests::Key(VK_RETURN);
    ASSERT_TRUE(WaitFor({L"a.wav", L"r00000.wav", L"r00001.wav"}));
    EXPECT_EQ(List().NotesOf(2).comment, L"half");
}

TEST_F(WorkbenchFollowing, ManyFilesAtOnceKeepTheWindowAnswering)
{
    ShowFolder(2);
    std::filesystem::path const source = m_folder / "one.wav";
    tests::WriteRecording(source);
    constexpr int count = 1500;
    for (int i = 0; i < count; ++i)
    {
        fs::copy_file(source, Recordings() / ("n" + std::to_string(10000 + i) + ".wav"));
    }
    // Between two messages that the window posts to itself there is never a long time.
    ULONGLONG longest = 0;
    ULONGLONG last = ::GetTickCount64();
    ASSERT_TRUE(tests::PumpUntil(
        [&] {
            auto const now = ::GetTickCount64();
            longest = std::max(longest, now - last);
            last = now;
            return List().GetItemCount() == count + 2 && !m_window->IsBusy();
        },
        tests::read_limit));
    RecordProperty("longest_wait_ms", static_cast<int>(longest));
    std::printf("    longest wait %u ms\n", static_cast<unsigned>(longest));
    EXPECT_EQ(Shown().front(), L"n10000.wav");
    EXPECT_EQ(Shown().back(), L"r00001.wav");
    EXPECT_EQ(ChosenName(), L"r00000.wav");
}

TEST_F(WorkbenchFollowing, ManySelectedOnesStaySelectedWhenSomeGo)
{
    constexpr int count = 40;
    ShowFolder(count);
    Lines all(count - 1);
    std::iota(all.begin(), all.end(), 1);
    List().SelectLines(all, 20);
    for (char const * const name : {"r00000.wav", "r00003.wav", "r00030.wav"})
    {
        fs::remove(Recordings() / name);
    }
    ASSERT_TRUE(tests::PumpUntil([this] { return List().GetItemCount() == count - 3 && !m_window->IsBusy(); }));
    Lines rest(count - 3);
    std::iota(rest.begin(), rest.end(), 0);
    EXPECT_EQ(List().SelectedLines(), rest);
    EXPECT_EQ(ChosenName(), L"r00020.wav");
    EXPECT_EQ(List().GetNextItem(-1, LVNI_FOCUSED), 18);
}

TEST_F(WorkbenchFollowing, AfterDeletingTheNextOneIsChosen)
{
    ShowFolder(5);
    List().SelectLines({1, 2}, 2);
    tests::App().Answer(IDYES);
    tests::Key(VK_DELETE);
    ASSERT_TRUE(WaitFor({L"r00000.wav", L"r00003.wav", L"r00004.wav"}));
    tests::App().TakeMessages();
    EXPECT_EQ(ChosenName(), L"r00003.wav");
    // The last one leaves the one before it.
    List().ChooseLine(2);
    tests::App().Answer(IDYES);
    tests::Key(VK_DELETE);
    ASSERT_TRUE(WaitFor({L"r00000.wav", L"r00003.wav"}));
    tests::App().TakeMessages();
    EXPECT_EQ(ChosenName(), L"r00003.wav");
}

TEST_F(WorkbenchFollowing, WhatWasOpenedLastIsInTheMenu)
{
    Folder(2);
    auto const drop = [this](std::vector<fs::path> const & paths) {
        std::wstring names;
        for (std::filesystem::path const & path : paths)
        {
            names += path.wstring() + L'\0';
        }
        names += L'\0';
        HGLOBAL const memory = ::GlobalAlloc(GHND, sizeof(DROPFILES) + names.size() * sizeof(wchar_t));
        auto * const header = static_cast<DROPFILES *>(::GlobalLock(memory));
        header->pFiles = sizeof(DROPFILES);
        header->fWide = TRUE;
        std::ranges::copy(names, reinterpret_cast<wchar_t *>(header + 1));
        ::GlobalUnlock(memory);
        m_window->PostMessage(WM_DROPFILES, reinterpret_cast<WPARAM>(memory));
    };
    std::filesystem::path const file = Recordings() / "r00001.wav";
    drop({Recordings()});
    ASSERT_TRUE(tests::PumpUntil([this] { return List().GetItemCount() == 2 && !m_window->IsBusy(); }));
    drop({file});
    ASSERT_TRUE(tests::PumpUntil([this] { return List().GetItemCount() == 1 && !m_window->IsBusy(); }));
    EXPECT_EQ(m_window->Settings().recentTargets, (std::vector<fs::path>{file, Recordings()}));
    // It is stored at once.
    EXPECT_EQ(workbench::ReadSettings().recentTargets, (std::vector<fs::path>{file, Recordings()}));

    // By keys: the second one.
    tests::LaterActions later;
    later.Add([] { tests::Key(L'2'); }, [] { return ::FindWindowW(L"#32768", nullptr) != nullptr; });
    tests::Key(L'F', {VK_MENU});
    ASSERT_TRUE(tests::PumpUntil([this] { return List().GetItemCount() == 2 && !m_window->IsBusy(); }));
    EXPECT_EQ(m_window->Settings().recentTargets, (std::vector<fs::path>{Recordings(), file}));
    CMenu & menu = *m_window->GetMenu()->GetSubMenu(0);
    UINT const items = menu.GetMenuItemCount();
    for (int i = 0; i < 2; ++i)
    {
        m_window->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), 0);
        EXPECT_EQ(menu.GetMenuItemCount(), items) << "they are there once";
    }

    // One that is gone is said and taken out; what is shown stays.
    fs::remove(file);
    ASSERT_TRUE(WaitFor({L"r00000.wav"}));
    m_window->SendMessage(WM_COMMAND, ID_RECENT_FIRST + 1);
    std::vector<std::wstring> const messages = tests::App().TakeMessages();
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(messages.front().find(L"This is not there any more:"), 0U);
    EXPECT_EQ(m_window->Settings().recentTargets, std::vector<fs::path>{Recordings()});
    EXPECT_EQ(workbench::ReadSettings().recentTargets, std::vector<fs::path>{Recordings()});
    EXPECT_EQ(List().GetItemCount(), 1);
}

TEST_F(WorkbenchFollowing, ColumnsKeepTheirPlaces)
{
    ShowFolder(1);
    CHeaderCtrl & header = *List().GetHeaderCtrl();
    CRect name;
    CRect duration;
    header.GetItemRect(CRecordingList::column_name, &name);
    header.GetItemRect(CRecordingList::column_duration, &duration);
    tests::Drag(tests::ClientPoint(header.m_hWnd, duration.CenterPoint()),
                tests::ClientPoint(header.m_hWnd, CPoint(name.left + 3, name.CenterPoint().y)));
    ASSERT_TRUE(tests::PumpUntil([this] { return List().ColumnOrder()[0] == CRecordingList::column_duration; }));
    tests::PumpPosted();
    std::vector<int> const order = List().ColumnOrder();
    EXPECT_EQ(workbench::ReadColumnOrder(), order);
    EXPECT_EQ(List().SortedColumn(), -1) << "a drag is no click";
    // Cells and copies go along.
    CRect cell;
    List().GetSubItemRect(0, CRecordingList::column_duration, LVIR_BOUNDS, cell);
    header.GetItemRect(CRecordingList::column_duration, &duration);
    EXPECT_EQ(cell.left, duration.left);
    // The check boxes stay before the names, where the list can show them.
    EXPECT_EQ(order[1], CRecordingList::column_check);
    EXPECT_EQ(order[2], CRecordingList::column_name);
    CRect check;
    header.GetItemRect(CRecordingList::column_check, &check);
    List().GetSubItemRect(0, CRecordingList::column_check, LVIR_BOUNDS, cell);
    EXPECT_EQ(cell.right, check.right);
    EXPECT_GE(cell.Width(), check.Width());
    EXPECT_EQ(List().Table(CRecordingList::Lines::all, {}).Table().columns.front().title, L"Duration");
    CloseWindow();
    EXPECT_EQ(workbench::ReadColumnOrder(), order) << "closed";
    OpenWindow();
    EXPECT_EQ(workbench::ReadColumnOrder(), order) << "open";
    EXPECT_EQ(List().ColumnOrder(), order);
    List().SetColumnOrder(order);
    EXPECT_EQ(List().ColumnOrder(), order) << "again";
    List().SetColumnOrder({1, 2});
    EXPECT_EQ(List().ColumnOrder(), order);
}

/// Takes files that are dropped on its window.
class FileTarget : public IDropTarget
{
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void ** object) override
    {
        *object = this;
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE DragEnter(IDataObject *, DWORD, POINTL, DWORD * effect) override
    {
        *effect = DROPEFFECT_COPY;
        m_entered = true;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE DragOver(DWORD, POINTL, DWORD * effect) override
    {
        *effect = DROPEFFECT_COPY;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE DragLeave() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Drop(IDataObject * data, DWORD, POINTL, DWORD * effect) override
    {
        *effect = DROPEFFECT_COPY;
        FORMATETC format{CF_HDROP, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
        STGMEDIUM medium{};
        if (SUCCEEDED(data->GetData(&format, &medium)))
        {
            auto * const drop = static_cast<HDROP>(medium.hGlobal);
            for (UINT i = 0; i < ::DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0); ++i)
            {
                wchar_t name[MAX_PATH] = L"";
                ::DragQueryFileW(drop, i, name, MAX_PATH);
                m_files.emplace_back(name);
            }
            ::ReleaseStgMedium(&medium);
        }
        return S_OK;
    }

    bool m_entered = false;
    std::vector<fs::path> m_files;
};

TEST_F(WorkbenchFollowing, ChosenRecordingsAreDraggedOut)
{
    ShowFolder(4);
    ASSERT_TRUE(SUCCEEDED(::OleInitialize(nullptr)));
    m_window->SetWindowPos(nullptr, 0, 0, 900, 700, SWP_NOZORDER);
    CWnd target;
    ASSERT_TRUE(target.CreateEx(WS_EX_TOPMOST, AfxRegisterWndClass(0), L"target", WS_POPUP | WS_VISIBLE,
                                CRect(1000, 100, 1200, 400), nullptr, 0));
    FileTarget files;
    ASSERT_TRUE(SUCCEEDED(::RegisterDragDrop(target.m_hWnd, &files)));
    List().SelectLines({1, 3}, 1);
    tests::PumpPosted();
    tests::LaterActions later;
    auto const place = CPoint(1100, 250);
    bool left = false;
    later.Add([&] { tests::InjectMove(place + CPoint(3, 3)); },
              [&] { return left && ::GetCapture() != List().m_hWnd; });
    later.Add([&] { tests::InjectMove(place + CPoint(5, 5)); });
    // A busy system can lose one of the moves.
    int moves = 0;
    later.Add([] { tests::Release(); },
              [&] {
                  if (!files.m_entered)
                  {
                      tests::InjectMove(place + CPoint(++moves % 2, 0));
                  }
                  return files.m_entered;
              });
    tests::MoveMouse(tests::ClientPoint(List().m_hWnd, List().CellCentre(1, CRecordingList::column_status)));
    tests::Press();
    tests::MoveMouse(tests::ClientPoint(List().m_hWnd, List().CellCentre(2, CRecordingList::column_status)));
    left = true;
    tests::MoveMouse(place);
    EXPECT_TRUE(tests::PumpUntil([&] { return !files.m_files.empty(); }));
    EXPECT_FALSE(later.Failed());
    EXPECT_EQ(files.m_files, (std::vector<fs::path>{Recordings() / "r00001.wav", Recordings() / "r00003.wav"}));
    EXPECT_EQ(List().GetItemCount(), 4);
    ::RevokeDragDrop(target.m_hWnd);
    target.DestroyWindow();
    ::OleUninitialize();
    // The list goes on as before.
    tests::Click(tests::ClientPoint(List().m_hWnd, List().CellCentre(0, CRecordingList::column_status)));
    EXPECT_TRUE(tests::PumpUntil([this] { return List().SelectedLines() == Lines{0}; }));
}
} // namespace
