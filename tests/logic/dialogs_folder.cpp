// The folder dialog with a shell that does what the test says.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "dialogs/FolderDialog.h"
#include "substitutes/FakeFolderPlatform.h"

namespace
{
using Calls = std::vector<std::wstring>;

constexpr int ok = 1;
constexpr int cancel = 2;
constexpr UINT opened = 1;
constexpr UINT selection_changed = 2;
constexpr UINT validate_failed = 4;

HWND OwnerWindow()
{
    return reinterpret_cast<HWND>(static_cast<UINT_PTR>(0x1234));
}

class ChooserFolder : public testing::Test
{
protected:
    void SetUp() override
    {
        m_shell.Reset();
        CFolderDialog(nullptr).SetInitialDir(L"");
    }
    void TearDown() override
    {
        CFolderDialog(nullptr).SetInitialDir(L"");
        m_shell.Reset();
    }

    /// The next users choose that folder.
    void UserChooses(std::optional<std::wstring> const & path)
    {
        m_shell.user = [this, path](FolderBrowse const &) { return &m_shell.Add(path); };
    }

    /// The folder at which a browser opens now.
    std::wstring OpensAt()
    {
        std::wstring selected;
        m_shell.user = [&](FolderBrowse const &) -> ShellItem * {
            m_shell.calls.clear();
            m_shell.Notify(opened);
            selected = m_shell.calls.at(0);
            return nullptr;
        };
        CFolderDialog dialog(nullptr);
        EXPECT_EQ(dialog.DoModal(), cancel);
        return selected;
    }

    FakeFolderPlatform & m_shell = FakeFolderPlatform::Current();
};
} // namespace

TEST_F(ChooserFolder, ShowsTheBrowserWithItsDefaults)
{
    CFolderDialog dialog(nullptr);
    EXPECT_STREQ(dialog.GetPathName(), L"");
    EXPECT_EQ(dialog.DoModal(), cancel);
    EXPECT_EQ(m_shell.shown.owner, nullptr);
    EXPECT_EQ(m_shell.shown.flags, 5U);
    EXPECT_EQ(m_shell.shownTitle, L"");
    EXPECT_NE(m_shell.shown.displayName, nullptr);
}

TEST_F(ChooserFolder, ShowsTheBrowserAsTold)
{
    CFolderDialog dialog(OwnerWindow());
    dialog.SetTitleMessage(L"Folder of the recordings:");
    dialog.GetFolder();
    EXPECT_EQ(m_shell.shown.owner, OwnerWindow());
    EXPECT_EQ(m_shell.shownTitle, L"Folder of the recordings:");
    dialog.SetTitleMessage(nullptr);
    dialog.GetFolder();
    EXPECT_EQ(m_shell.shownTitle, L"");
}

TEST_F(ChooserFolder, FlagsAreAddedAndReplaced)
{
    CFolderDialog dialog(nullptr);
    dialog.AddBrowseInfoFlags(0x40);
    dialog.GetFolder();
    EXPECT_EQ(m_shell.shown.flags, 0x45U);
    dialog.SetBrowseInfoFlags(1);
    dialog.GetFolder();
    EXPECT_EQ(m_shell.shown.flags, 1U);
}

TEST_F(ChooserFolder, ChoiceIsGivenAndItemAndAllocatorGoBack)
{
    UserChooses(L"C:\\recordings");
    CFolderDialog dialog(nullptr);
    EXPECT_STREQ(dialog.GetFolder(), L"C:\\recordings");
    EXPECT_STREQ(dialog.GetPathName(), L"C:\\recordings");
    EXPECT_EQ(m_shell.calls, (Calls{L"Allocator", L"Browse", L"Free", L"Release"}));
    EXPECT_EQ(dialog.DoModal(), ok);
}

TEST_F(ChooserFolder, CancellingGivesNothingAndKeepsTheFolder)
{
    UserChooses(L"C:\\first");
    CFolderDialog dialog(nullptr);
    ASSERT_EQ(dialog.DoModal(), ok);
    m_shell.user = [](FolderBrowse const & browse) -> ShellItem * {
        std::wstring const name = L"left by the browser";
        browse.displayName[name.copy(browse.displayName, name.size())] = L'\0';
        return nullptr;
    };
    m_shell.calls.clear();
    EXPECT_EQ(dialog.DoModal(), cancel);
    EXPECT_EQ(m_shell.calls, (Calls{L"Allocator", L"Browse", L"Release"}));
    EXPECT_STREQ(dialog.GetPathName(), L"left by the browser");
    EXPECT_EQ(OpensAt(), L"Select C:\\first");
}

TEST_F(ChooserFolder, ItemOutsideTheFileSystemCountsAsCancelling)
{
    UserChooses(L"C:\\first");
    CFolderDialog dialog(nullptr);
    ASSERT_EQ(dialog.DoModal(), ok);
    UserChooses(std::nullopt);
    m_shell.calls.clear();
    EXPECT_STREQ(dialog.GetFolder(), L"");
    EXPECT_EQ(m_shell.calls, (Calls{L"Allocator", L"Browse", L"Free", L"Release"}));
    EXPECT_EQ(dialog.DoModal(), cancel);
    EXPECT_EQ(OpensAt(), L"Select C:\\first");
}

TEST_F(ChooserFolder, WithoutAnAllocatorNothingIsShown)
{
    m_shell.hasAllocator = false;
    CFolderDialog dialog(nullptr);
    EXPECT_STREQ(dialog.GetFolder(), L"");
    EXPECT_EQ(dialog.DoModal(), cancel);
    EXPECT_EQ(m_shell.calls, (Calls{L"Allocator", L"Allocator"}));
}

TEST_F(ChooserFolder, NextBrowserOpensWhereTheLastEnded)
{
    EXPECT_EQ(OpensAt(), L"Select ");
    UserChooses(L"D:\\data\\2024");
    CFolderDialog first(nullptr);
    ASSERT_EQ(first.DoModal(), ok);
    EXPECT_EQ(OpensAt(), L"Select D:\\data\\2024");
}

TEST_F(ChooserFolder, InitialFolderIsSharedAndNullKeepsIt)
{
    CFolderDialog one(nullptr);
    one.SetInitialDir(L"E:\\set");
    EXPECT_EQ(OpensAt(), L"Select E:\\set");
    one.SetInitialDir(nullptr);
    EXPECT_EQ(OpensAt(), L"Select E:\\set");
    EXPECT_STREQ(one.GetPathName(), L"") << "the initial folder is no choice";
}

TEST_F(ChooserFolder, LongInitialFolderIsCut)
{
    CFolderDialog dialog(nullptr);
    dialog.SetInitialDir(std::wstring(259, L'a').c_str());
    EXPECT_EQ(OpensAt(), L"Select " + std::wstring(259, L'a'));
    dialog.SetInitialDir(std::wstring(260, L'b').c_str());
    EXPECT_EQ(OpensAt(), L"Select " + std::wstring(259, L'b'));
    dialog.SetInitialDir(std::wstring(5000, L'c').c_str());
    EXPECT_EQ(OpensAt(), L"Select " + std::wstring(259, L'c'));
    dialog.SetInitialDir(L"short");
    EXPECT_EQ(OpensAt(), L"Select short");
}

TEST_F(ChooserFolder, LongestPathIsTakenWhole)
{
    std::wstring const longest(259, L'p');
    UserChooses(longest);
    CFolderDialog dialog(nullptr);
    EXPECT_EQ(dialog.GetFolder().GetString(), longest);
    EXPECT_EQ(dialog.GetPathName().GetString(), longest);
}

TEST_F(ChooserFolder, StatusTextFollowsTheSelection)
{
    m_shell.user = [this](FolderBrowse const &) -> ShellItem * {
        m_shell.calls.clear();
        EXPECT_EQ(m_shell.Notify(opened), 0);
        EXPECT_EQ(m_shell.Notify(selection_changed, &m_shell.Add(L"C:\\here")), 0);
        EXPECT_EQ(m_shell.Notify(selection_changed, &m_shell.Add(std::nullopt)), 0);
        EXPECT_EQ(m_shell.Notify(selection_changed, &m_shell.Add(L"C:\\there")), 0);
        EXPECT_EQ(m_shell.Notify(validate_failed, &m_shell.Add(L"C:\\nowhere")), 0);
        return nullptr;
    };
    CFolderDialog dialog(nullptr);
    EXPECT_EQ(dialog.DoModal(), cancel);
    EXPECT_EQ(m_shell.calls, (Calls{L"Select ", L"Status C:\\here", L"Status C:\\there", L"Release"}));
}

TEST_F(ChooserFolder, CopiesHaveAllFieldsOfTheirOwn)
{
    UserChooses(L"C:\\chosen");
    CFolderDialog original(OwnerWindow());
    original.SetTitleMessage(L"title");
    original.AddBrowseInfoFlags(0x10);
    ASSERT_EQ(original.DoModal(), ok);

    CFolderDialog copy(original);
    CFolderDialog assigned(nullptr);
    assigned = original;
    UserChooses(L"C:\\other");
    original.SetTitleMessage(L"changed");
    original.SetBrowseInfoFlags(0);
    ASSERT_EQ(original.DoModal(), ok);
    for (CFolderDialog * const dialog : {&copy, &assigned})
    {
        EXPECT_STREQ(dialog->GetPathName(), L"C:\\chosen");
        m_shell.user = {};
        dialog->GetFolder();
        EXPECT_EQ(m_shell.shown.owner, OwnerWindow());
        EXPECT_EQ(m_shell.shownTitle, L"title");
        EXPECT_EQ(m_shell.shown.flags, 0x15U);
    }
}
