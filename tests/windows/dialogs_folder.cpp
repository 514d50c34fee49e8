// The folder dialog on the shell's own folder browser.

#include <afxcmn.h>
#include <afxwin.h>
#include <shlobj.h>

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "dialogs/FolderDialog.h"
#include "ImportPatch.h"
#include "Input.h"
#include "Pump.h"
#include "ScopedWindow.h"

namespace
{
std::wstring TextOf(HWND window)
{
    std::wstring text(static_cast<size_t>(GetWindowTextLengthW(window)), L'\0');
    GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1);
    return text;
}

/// A folder below the temporary one that goes with its scope.
class ScopedFolder
{
public:
    explicit ScopedFolder(std::wstring path) : m_path(std::move(path)) { ::CreateDirectoryW(m_path.c_str(), nullptr); }
    ~ScopedFolder() { ::RemoveDirectoryW(m_path.c_str()); }
    ScopedFolder(ScopedFolder const &) = delete;
    ScopedFolder & operator=(ScopedFolder const &) = delete;

    std::wstring const & Path() const { return m_path; }
    wchar_t const * Name() const { return m_path.c_str() + m_path.find_last_of(L'\\') + 1; }

private:
    std::wstring m_path;
};

std::wstring TemporaryFolder()
{
    wchar_t path[MAX_PATH] = L"";
    ::GetTempPathW(MAX_PATH, path);
    wchar_t longPath[MAX_PATH] = L"";
    ::GetLongPathNameW(path, longPath, MAX_PATH);
    return longPath;
}

/// Reads each folder on the way to that path. The items of Wine's browser hold the time of last access, which the first
/// reading changes, and an item with another time is not found again.
void ReadFoldersTo(std::wstring const & path)
{
    for (size_t end = path.find(L'\\'); end != std::wstring::npos; end = path.find(L'\\', end + 1))
    {
        WIN32_FIND_DATAW found{};
        HANDLE const search = ::FindFirstFileW((path.substr(0, end) + L"\\*").c_str(), &found);
        if (search == INVALID_HANDLE_VALUE)
            continue;
        while (::FindNextFileW(search, &found))
        {
        }
        ::FindClose(search);
    }
}

/// The shell's browser while it is open.
class Browser
{
public:
    /// Null as long as there is none.
    HWND Window()
    {
        if (m_window == nullptr || !::IsWindow(m_window))
        {
            m_window = nullptr;
            ::EnumThreadWindows(::GetCurrentThreadId(), &Browser::TakeIfBrowser, reinterpret_cast<LPARAM>(this));
        }
        return m_window;
    }
    bool IsOpen() { return Window() != nullptr; }
    HWND Tree() { return Descendant(Window(), L"SysTreeView32", nullptr); }
    /// Whether a child shows exactly that text.
    bool Shows(std::wstring const & text) { return Descendant(Window(), L"Static", text.c_str()) != nullptr; }
    bool HasFocusInTree() { return Tree() != nullptr && ::GetFocus() == Tree(); }

    /// The text of the selected item of the tree.
    std::wstring Selected()
    {
        HWND const tree = Tree();
        if (tree == nullptr)
            return {};
        wchar_t text[MAX_PATH] = L"";
        TVITEMW item{};
        item.mask = TVIF_TEXT;
        item.hItem = reinterpret_cast<HTREEITEM>(::SendMessageW(tree, TVM_GETNEXTITEM, TVGN_CARET, 0));
        item.pszText = text;
        item.cchTextMax = MAX_PATH;
        return item.hItem != nullptr && ::SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item)) != 0
                   ? text
                   : L"";
    }

    void Press(int id) { ::PostMessageW(Window(), WM_COMMAND, static_cast<WPARAM>(id), 0); }

private:
    struct Search
    {
        wchar_t const * className;
        wchar_t const * text;
        HWND found;
    };

    static BOOL CALLBACK TakeIfBrowser(HWND window, LPARAM self)
    {
        if (!::IsWindowVisible(window) || Descendant(window, L"SysTreeView32", nullptr) == nullptr)
            return TRUE;
        reinterpret_cast<Browser *>(self)->m_window = window;
        return FALSE;
    }

    static HWND Descendant(HWND window, wchar_t const * className, wchar_t const * text)
    {
        Search search{className, text, nullptr};
        if (window != nullptr)
            ::EnumChildWindows(window, &Browser::Compare, reinterpret_cast<LPARAM>(&search));
        return search.found;
    }

    static BOOL CALLBACK Compare(HWND window, LPARAM parameter)
    {
        Search & search = *reinterpret_cast<Search *>(parameter);
        wchar_t className[64] = L"";
        ::GetClassNameW(window, className, 64);
        if (_wcsicmp(className, search.className) != 0 || (search.text != nullptr && TextOf(window) != search.text))
            return TRUE;
        search.found = window;
        return FALSE;
    }

    HWND m_window = nullptr;
};

class FolderChooser : public testing::Test
{
protected:
    void SetUp() override
    {
        CFolderDialog(nullptr).SetInitialDir(L"");
        ReadFoldersTo(m_inner.Path() + L'\\');
    }
    void TearDown() override { CFolderDialog(nullptr).SetInitialDir(L""); }

    /// Runs the dialog. inside: called once ready holds in the open browser; it has to see to its end.
    int Run(CFolderDialog & dialog, std::function<void()> const & inside, std::function<bool()> const & ready)
    {
        tests::LaterActions later;
        later.Add(inside, [&] { return m_browser.IsOpen() && ready(); });
        later.Add([&] { m_browser.Press(IDCANCEL); }, [] { return false; }); // where nothing has ended it
        int const result = dialog.DoModal();
        EXPECT_FALSE(later.Failed());
        EXPECT_FALSE(m_browser.IsOpen());
        return result;
    }

    ScopedFolder m_outer{TemporaryFolder() + L"chooser-outer"};
    ScopedFolder m_inner{m_outer.Path() + L"\\chooser-inner"};
    Browser m_browser;
};

BROWSEINFOW g_shown{};
std::wstring g_shownTitle;

PIDLIST_ABSOLUTE WINAPI CancelAtOnce(BROWSEINFOW * info)
{
    g_shown = *info;
    g_shownTitle = info->lpszTitle;
    return nullptr;
}

/// The choice of "My Computer", which has no path.
PIDLIST_ABSOLUTE WINAPI ChooseComputer(BROWSEINFOW *)
{
    PIDLIST_ABSOLUTE computer = nullptr;
    ::SHGetSpecialFolderLocation(nullptr, CSIDL_DRIVES, &computer);
    return computer;
}

HRESULT WINAPI RefuseAllocator(IMalloc ** allocator)
{
    *allocator = nullptr;
    return E_FAIL;
}

int g_browsers = 0;

PIDLIST_ABSOLUTE WINAPI CountBrowser(BROWSEINFOW *)
{
    ++g_browsers;
    return nullptr;
}
} // namespace

TEST_F(FolderChooser, OpensAtTheInitialFolderAndOkGivesIt)
{
    tests::ScopedWindow owner;
    CFolderDialog dialog(owner.m_hWnd);
    dialog.SetTitleMessage(L"Folder of the recordings:");
    dialog.SetInitialDir(m_outer.Path().c_str());
    EXPECT_EQ(Run(
                  dialog,
                  [&] {
                      EXPECT_TRUE(m_browser.Shows(L"Folder of the recordings:"));
                      EXPECT_TRUE(m_browser.Shows(m_outer.Path())) << "the status text is the folder's path";
                      EXPECT_EQ(::GetWindow(m_browser.Window(), GW_OWNER), owner.m_hWnd);
                      EXPECT_FALSE(owner.IsWindowEnabled());
                      m_browser.Press(IDOK);
                  },
                  [&] { return m_browser.Selected() == m_outer.Name(); }),
              IDOK);
    EXPECT_EQ(dialog.GetPathName().GetString(), m_outer.Path());
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST_F(FolderChooser, StatusTextFollowsTheKeyboardAndTheNextBrowserOpensThere)
{
    tests::ScopedWindow owner;
    CFolderDialog first(owner.m_hWnd);
    first.SetInitialDir(m_outer.Path().c_str());
    tests::LaterActions later;
    later.Add(
        [&] {
            ASSERT_TRUE(tests::BringToFront(m_browser.Window()));
            ::SendMessageW(m_browser.Window(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(m_browser.Tree()), TRUE);
            tests::Key(VK_RIGHT);
        },
        [&] { return m_browser.IsOpen() && m_browser.Selected() == m_outer.Name(); });
    later.Add([] { tests::Key(VK_DOWN); },
              [&] {
                  LRESULT const selected = ::SendMessageW(m_browser.Tree(), TVM_GETNEXTITEM, TVGN_CARET, 0);
                  return ::SendMessageW(m_browser.Tree(), TVM_GETNEXTITEM, TVGN_CHILD, selected) != 0;
              });
    later.Add([] { tests::Key(VK_RETURN); },
              [&] { return m_browser.Selected() == m_inner.Name() && m_browser.Shows(m_inner.Path()); });
    later.Add([&] { m_browser.Press(IDCANCEL); }, [] { return false; }); // where nothing has ended it
    EXPECT_STREQ(first.GetFolder(), m_inner.Path().c_str());
    EXPECT_FALSE(later.Failed());
    EXPECT_EQ(first.GetPathName().GetString(), m_inner.Path());

    CFolderDialog second(owner.m_hWnd);
    EXPECT_STREQ(second.GetPathName(), L"");
    EXPECT_EQ(Run(
                  second, [&] { m_browser.Press(IDOK); }, [&] { return m_browser.Selected() == m_inner.Name(); }),
              IDOK);
    EXPECT_EQ(second.GetPathName().GetString(), m_inner.Path());
}

TEST_F(FolderChooser, CancelledWithTheKeyboardGivesIdCancelAndKeepsTheFolder)
{
    CFolderDialog dialog(nullptr);
    dialog.SetInitialDir(m_outer.Path().c_str());
    auto const atOuter = [&] { return m_browser.Selected() == m_outer.Name(); };
    EXPECT_EQ(Run(
                  dialog,
                  [&] {
                      ASSERT_TRUE(tests::BringToFront(m_browser.Window()));
                      tests::Key(VK_ESCAPE);
                  },
                  atOuter),
              IDCANCEL);
    EXPECT_EQ(Run(
                  dialog, [&] { m_browser.Press(IDOK); }, atOuter),
              IDOK)
        << "the next one still opens at the folder before";
}

TEST_F(FolderChooser, NullAsInitialFolderKeepsTheFormerOne)
{
    CFolderDialog dialog(nullptr);
    dialog.SetInitialDir(m_inner.Path().c_str());
    dialog.SetInitialDir(nullptr);
    EXPECT_EQ(Run(
                  dialog, [&] { m_browser.Press(IDOK); }, [&] { return m_browser.Selected() == m_inner.Name(); }),
              IDOK);
}

TEST_F(FolderChooser, NewStyleOfTheBrowserWorks)
{
    HRESULT const ole = ::OleInitialize(nullptr);
    {
        CFolderDialog dialog(nullptr);
        dialog.AddBrowseInfoFlags(BIF_NEWDIALOGSTYLE);
        dialog.SetInitialDir(m_outer.Path().c_str());
        EXPECT_EQ(Run(
                      dialog,
                      [&] {
                          EXPECT_NE(::GetWindowLongW(m_browser.Window(), GWL_STYLE) & WS_THICKFRAME, 0);
                          m_browser.Press(IDOK);
                      },
                      [&] { return m_browser.Selected() == m_outer.Name(); }),
                  IDOK);
        EXPECT_EQ(dialog.GetPathName().GetString(), m_outer.Path());
    }
    if (SUCCEEDED(ole))
        ::OleUninitialize();
}

TEST_F(FolderChooser, TellsTheShellWhatToShow)
{
    tests::ImportPatch const patch(L"instrument_ui.dll", "SHBrowseForFolderW", &CancelAtOnce);
    ASSERT_TRUE(patch.Done());
    tests::ScopedWindow owner;
    CFolderDialog dialog(owner.m_hWnd);
    dialog.SetTitleMessage(L"title");
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(g_shown.hwndOwner, owner.m_hWnd);
    EXPECT_EQ(g_shown.pidlRoot, nullptr);
    EXPECT_NE(g_shown.pszDisplayName, nullptr);
    EXPECT_EQ(g_shownTitle, L"title");
    EXPECT_EQ(g_shown.ulFlags, static_cast<UINT>(BIF_RETURNONLYFSDIRS | BIF_STATUSTEXT));
    EXPECT_NE(g_shown.lpfn, nullptr);
    EXPECT_EQ(g_shown.lParam, 0);
    EXPECT_EQ(g_shown.iImage, 0);

    dialog.AddBrowseInfoFlags(0x40);
    dialog.DoModal();
    EXPECT_EQ(g_shown.ulFlags, 0x45U);
    dialog.SetBrowseInfoFlags(1);
    dialog.DoModal();
    EXPECT_EQ(g_shown.ulFlags, 1U);
}

TEST_F(FolderChooser, ChoiceOutsideTheFileSystemGivesIdCancel)
{
    tests::ImportPatch const patch(L"instrument_ui.dll", "SHBrowseForFolderW", &ChooseComputer);
    ASSERT_TRUE(patch.Done());
    CFolderDialog dialog(nullptr);
    EXPECT_STREQ(dialog.GetFolder(), L"");
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST_F(FolderChooser, WithoutTheShellsAllocatorNothingIsShown)
{
    tests::ImportPatch const allocator(L"instrument_ui.dll", "SHGetMalloc", &RefuseAllocator);
    tests::ImportPatch const browser(L"instrument_ui.dll", "SHBrowseForFolderW", &CountBrowser);
    ASSERT_TRUE(allocator.Done() && browser.Done());
    g_browsers = 0;
    CFolderDialog dialog(nullptr);
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(g_browsers, 0);
}
