// The system's dialogs behind CColorDialog and CFileDialog.

#include <afxdlgs.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "Pump.h"
#include "ScopedWindow.h"

namespace
{
class CTestColorDialog : public CColorDialog
{
public:
    using CColorDialog::CColorDialog;
    int m_inits = 0;
    int m_refusals = 0;
    COLORREF m_asked = CLR_INVALID;

protected:
    BOOL OnInitDialog() override
    {
        ++m_inits;
        return CColorDialog::OnInitDialog();
    }
    BOOL OnColorOK() override
    {
        m_asked = GetColor();
        return m_refusals-- > 0;
    }
};

class CTestFileDialog : public CFileDialog
{
public:
    using CFileDialog::CFileDialog;
    int m_initDone = 0;
    int m_refusals = 0;
    int m_asked = 0;
    CString m_pathWhenAsked;

protected:
    void OnInitDone() override
    {
        ++m_initDone;
        CFileDialog::OnInitDone();
    }
    BOOL OnFileNameOK() override
    {
        ++m_asked;
        m_pathWhenAsked = GetPathName();
        return m_refusals-- > 0;
    }
};

/// A file that goes with its scope.
class TemporaryFile
{
public:
    TemporaryFile()
    {
        wchar_t folder[MAX_PATH] = {};
        ::GetTempPath(MAX_PATH, folder);
        m_folder = std::wstring(folder, wcslen(folder) - 1); // without the backslash at the end
        m_path = m_folder + L"\\recording.one.wav";
        ::CloseHandle(::CreateFile(m_path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    }
    ~TemporaryFile() { ::DeleteFile(m_path.c_str()); }
    TemporaryFile(TemporaryFile const &) = delete;
    TemporaryFile & operator=(TemporaryFile const &) = delete;
    wchar_t const * Path() const { return m_path.c_str(); }
    wchar_t const * Folder() const { return m_folder.c_str(); }

private:
    std::wstring m_path;
    std::wstring m_folder;
};

void PostCommand(HWND dialog, int id)
{
    ::PostMessage(dialog, WM_COMMAND, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(::GetDlgItem(dialog, id)));
}

/// The first visible window of this thread that is a dialog; null if there is none.
HWND VisibleDialog()
{
    HWND found = nullptr;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM result) -> BOOL {
            wchar_t name[16] = {};
            ::GetClassName(window, name, 16);
            if (std::wstring(name) != L"#32770" || !::IsWindowVisible(window))
                return TRUE;
            *reinterpret_cast<HWND *>(result) = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

TEST(ColourDialog, GivesTheColourItStartedWith)
{
    tests::ScopedWindow parent;
    CTestColorDialog dialog(RGB(255, 0, 0), CC_FULLOPEN, parent);
    tests::LaterActions later;
    BOOL enabledMeanwhile = TRUE;
    later.Add(
        [&] {
            enabledMeanwhile = parent.IsWindowEnabled();
            PostCommand(dialog.m_hWnd, IDOK);
        },
        [&] { return dialog.m_hWnd != nullptr && dialog.IsWindowVisible(); });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetColor(), RGB(255, 0, 0));
    EXPECT_EQ(dialog.m_asked, RGB(255, 0, 0));
    EXPECT_EQ(dialog.m_inits, 1);
    EXPECT_FALSE(enabledMeanwhile);
    EXPECT_TRUE(parent.IsWindowEnabled());
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(ColourDialog, CancelLeavesTheColour)
{
    tests::ScopedWindow parent;
    CTestColorDialog dialog(RGB(0, 0, 255), 0, parent);
    tests::LaterActions later;
    later.Add([&] { PostCommand(dialog.m_hWnd, IDCANCEL); },
              [&] { return dialog.m_hWnd != nullptr && dialog.IsWindowVisible(); });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.GetColor(), RGB(0, 0, 255));
    EXPECT_EQ(dialog.m_asked, CLR_INVALID);
}

TEST(ColourDialog, RefusalKeepsItOpen)
{
    tests::ScopedWindow parent;
    CTestColorDialog dialog(RGB(1, 2, 3), 0, parent);
    dialog.m_refusals = 1;
    tests::LaterActions later;
    later.Add([&] { PostCommand(dialog.m_hWnd, IDOK); },
              [&] { return dialog.m_hWnd != nullptr && dialog.IsWindowVisible(); });
    later.Add([&] { PostCommand(dialog.m_hWnd, IDCANCEL); }, [&] { return dialog.m_refusals == 0; });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_FALSE(later.Failed());
}

TEST(ColourDialog, SavedColoursAreTheSameEveryTime)
{
    COLORREF * const colours = CColorDialog::GetSavedCustomColors();
    EXPECT_EQ(CColorDialog::GetSavedCustomColors(), colours);
    COLORREF const before = colours[15];
    colours[15] = RGB(9, 8, 7);
    CColorDialog dialog;
    EXPECT_EQ(dialog.m_cc.lpCustColors[15], RGB(9, 8, 7));
    colours[15] = before;
}

TEST(FileDialog, NamesBeforeItRuns)
{
    CFileDialog dialog(TRUE, _T("wav"), _T("C:\\data\\north.two.wav"));
    EXPECT_EQ(dialog.GetPathName(), _T("C:\\data\\north.two.wav"));
    EXPECT_EQ(dialog.GetFileName(), _T("north.two.wav"));
    EXPECT_EQ(dialog.GetFileExt(), _T("wav"));
    EXPECT_EQ(dialog.GetFileTitle(), _T("north.two"));
    EXPECT_EQ(dialog.GetFolderPath(), _T("C:\\data"));
    EXPECT_FALSE(dialog.IsPickFoldersMode());
}

TEST(FileDialog, FilterIsHandedOverInParts)
{
    CFileDialog dialog(TRUE, nullptr, nullptr, 0, _T("Sound|*.wav|All|*.*||"));
    wchar_t const expected[] = L"Sound\0*.wav\0All\0*.*\0";
    EXPECT_TRUE(std::equal(std::begin(expected), std::end(expected), dialog.GetOFN().lpstrFilter));
}

TEST(FileDialog, OneNameIsOnePath)
{
    CFileDialog dialog(TRUE, nullptr, _T("C:\\data\\a.wav"), OFN_ALLOWMULTISELECT);
    dialog.GetOFN().nFileOffset = 8;
    POSITION position = dialog.GetStartPosition();
    ASSERT_NE(position, nullptr);
    EXPECT_EQ(dialog.GetNextPathName(position), _T("C:\\data\\a.wav"));
    EXPECT_EQ(position, nullptr);
}

TEST(FileDialog, SeveralNamesAreJoinedWithTheirFolder)
{
    for (LPCTSTR const folder : {_T("C:\\data"), _T("C:\\")})
    {
        CFileDialog dialog(TRUE, nullptr, nullptr, OFN_ALLOWMULTISELECT);
        std::wstring names = folder;
        names += std::wstring(L"\0a.wav\0b.wav\0", 13);
        std::copy(names.begin(), names.end(), dialog.GetOFN().lpstrFile);
        dialog.GetOFN().nFileOffset = static_cast<WORD>(wcslen(folder) + 1);
        CString const prefix = CString(folder) + (folder[3] == 0 ? _T("") : _T("\\"));
        POSITION position = dialog.GetStartPosition();
        EXPECT_EQ(dialog.GetNextPathName(position), prefix + _T("a.wav"));
        ASSERT_NE(position, nullptr);
        EXPECT_EQ(dialog.GetNextPathName(position), prefix + _T("b.wav"));
        EXPECT_EQ(position, nullptr);
    }
}

TEST(FileDialog, OpensTheNamedFileAfterARefusal)
{
    tests::ScopedWindow parent;
    TemporaryFile const file;
    CTestFileDialog dialog(TRUE, nullptr, file.Path(), OFN_HIDEREADONLY | OFN_FILEMUSTEXIST, nullptr, parent);
    dialog.m_refusals = 1;
    tests::LaterActions later;
    auto const frame = [&] { return ::GetParent(dialog.m_hWnd); };
    later.Add([&] { PostCommand(frame(), IDOK); },
              [&] { return dialog.m_hWnd != nullptr && ::IsWindowVisible(frame()) && dialog.m_initDone == 1; });
    later.Add([&] { PostCommand(frame(), IDOK); }, [&] { return dialog.m_asked == 1; });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_FALSE(later.Failed());
    EXPECT_EQ(dialog.m_asked, 2);
    EXPECT_STREQ(dialog.m_pathWhenAsked, file.Path());
    EXPECT_STREQ(dialog.GetPathName(), file.Path());
    EXPECT_STREQ(dialog.GetFolderPath(), file.Folder());
    EXPECT_EQ(dialog.GetFileTitle(), _T("recording.one"));
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_TRUE(parent.IsWindowEnabled());
}

TEST(FileDialog, SavesUnderTheNameWithTheDefaultExtension)
{
    tests::ScopedWindow parent;
    TemporaryFile const folder;
    CTestFileDialog dialog(FALSE, _T("csv"), (std::wstring(folder.Folder()) + L"\\table").c_str(), 0, nullptr, parent);
    tests::LaterActions later;
    later.Add([&] { PostCommand(::GetParent(dialog.m_hWnd), IDOK); },
              [&] { return dialog.m_hWnd != nullptr && dialog.m_initDone == 1; });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetFileName(), _T("table.csv"));
    EXPECT_EQ(dialog.GetFileExt(), _T("csv"));
}

TEST(FolderPicker, KnowsItsFolder)
{
    CFolderPickerDialog dialog(_T("C:\\data"));
    EXPECT_TRUE(dialog.IsPickFoldersMode());
    EXPECT_EQ(dialog.GetFolderPath(), _T("C:\\data"));
    EXPECT_EQ(dialog.GetPathName(), _T("C:\\data"));
}

TEST(FolderPicker, GivesTheFolderThatIsTyped)
{
    tests::ScopedWindow parent;
    TemporaryFile const file;
    CFolderPickerDialog dialog(file.Folder(), 0, parent);
    tests::LaterActions later;
    later.Add(
        [&] {
            HWND const edit = ::FindWindowEx(VisibleDialog(), nullptr, L"Edit", nullptr);
            ::SetWindowText(edit, file.Folder());
            PostCommand(VisibleDialog(), IDOK);
        },
        [] { return ::FindWindowEx(VisibleDialog(), nullptr, L"Edit", nullptr) != nullptr; });
    later.Add([] { PostCommand(VisibleDialog(), IDCANCEL); }, [] { return VisibleDialog() == nullptr; });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_FALSE(later.Failed());
    EXPECT_EQ(::_wcsicmp(dialog.GetFolderPath(), file.Folder()), 0);
    EXPECT_TRUE(parent.IsWindowEnabled());
}

TEST(FolderPicker, CancelGivesCancel)
{
    tests::ScopedWindow parent;
    CFolderPickerDialog dialog(nullptr, 0, parent);
    tests::LaterActions later;
    later.Add([] { PostCommand(VisibleDialog(), IDCANCEL); }, [] { return VisibleDialog() != nullptr; });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_TRUE(parent.IsWindowEnabled());
}
} // namespace
