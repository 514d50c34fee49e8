// The browse edit, with the system's file dialog driven as a user would, and with a substitute that tells what the
// dialog was given.

#include <clocale>
#include <cwchar>
#include <type_traits>

#include "ControlTest.h"

namespace outside::controls
{
namespace
{
using Map = std::map<int, CString>;
using Ids = std::set<int>;

class Field : public CXEditBrowseCtrl
{
public:
    using CXEditBrowseCtrl::GetThisMessageMap;
    using CXEditBrowseCtrl::m_additionalFileFlags;
    using CXEditBrowseCtrl::m_defaultExtension;
    using CXEditBrowseCtrl::m_defaultFilename;
    using CXEditBrowseCtrl::m_dialog;
    using CXEditBrowseCtrl::m_dlgTitle;
    using CXEditBrowseCtrl::m_dropHeightFactor;
    using CXEditBrowseCtrl::m_fileFlags;
    using CXEditBrowseCtrl::m_filter;
    using CXEditBrowseCtrl::m_idNameMode;
    using CXEditBrowseCtrl::m_initialDirectory;
    using CXEditBrowseCtrl::m_notifyTag;
    using CXEditBrowseCtrl::m_openDialog;
    using CXEditBrowseCtrl::m_pathList;
    using CXEditBrowseCtrl::m_selection;
    using CXEditBrowseCtrl::m_selectionChanged;
    using CXEditBrowseCtrl::NotifyParent;
    using CXEditBrowseCtrl::ShowIdNameBrowser;

    int browses = 0;
    bool pass = true;
    void OnBrowse() override
    {
        ++browses;
        if (pass)
            CXEditBrowseCtrl::OnBrowse();
    }
};

class Multi : public CIdNameMultiselectCtrl
{
public:
    using CIdNameMultiselectCtrl::m_cancel;
    using CIdNameMultiselectCtrl::m_controlsCreated;
    using CIdNameMultiselectCtrl::m_list;
    using CIdNameMultiselectCtrl::m_ok;
    using CIdNameMultiselectCtrl::m_selectAll;
};

CString ToolkitString(UINT id)
{
    HINSTANCE const former = ::AfxGetResourceHandle();
    ::AfxSetResourceHandle(Toolkit());
    CString text;
    text.LoadString(id);
    ::AfxSetResourceHandle(former);
    return text;
}

std::wstring const folder = L"C:\\outside";

class OutsideBrowse : public testing::Test
{
protected:
    void SetUp() override
    {
        Make(m_browse);
        ::CreateDirectoryW(folder.c_str(), nullptr);
        for (wchar_t const * const name : {L"\\a.txt", L"\\b.txt", L"\\c.dat"})
            ::CloseHandle(::CreateFileW((folder + name).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
        ::DeleteFileW((folder + L"\\new.txt").c_str());
    }
    void TearDown() override
    {
        m_host.hook = nullptr;
        if (m_browse.GetSafeHwnd() != nullptr)
            m_browse.DestroyWindow();
    }
    void Make(Field & field, int width = 200, DWORD style = WS_VISIBLE | WS_BORDER)
    {
        ASSERT_TRUE(field.Create(WS_CHILD | style | ES_AUTOHSCROLL, CRect(20, 20, 20 + width, 44), m_host, 9));
    }
    std::vector<std::pair<WPARAM, LPARAM>> Completed()
    {
        tests::PumpPosted();
        std::vector<std::pair<WPARAM, LPARAM>> events;
        for (Host::Seen const & each : m_host.Of(WM_XEDITBROWSE_COMPLETED))
            events.push_back({each.wParam, each.lParam});
        m_host.seen.clear();
        return events;
    }
    using EventList = std::vector<std::pair<WPARAM, LPARAM>>;

    /// The button's centre on the screen, looked for by its hit test.
    CPoint ButtonCentre(Field & field)
    {
        CRect window, client;
        field.GetWindowRect(window);
        field.GetClientRect(client);
        field.ClientToScreen(client);
        return CPoint((client.right + window.right) / 2, window.CenterPoint().y);
    }
    Host m_host;
    Field m_browse;
    tests::LaterActions m_actions;
};

TEST_F(OutsideBrowse, ClassMapAndDefaults)
{
    EXPECT_STREQ(RUNTIME_CLASS(CXEditBrowseCtrl)->m_lpszClassName, "CXEditBrowseCtrl");
    EXPECT_EQ(CXEditBrowseCtrl::classCXEditBrowseCtrl.m_pfnGetBaseClass(), RUNTIME_CLASS(CMFCEditBrowseCtrl));
    EXPECT_EQ(WM_XEDITBROWSE_COMPLETED, ::RegisterWindowMessageW(L"WM_XEDITBROWSE_COMPLETED"));
    Field f;
    EXPECT_EQ(f.m_openDialog, 1);
    EXPECT_TRUE(f.m_filter.IsEmpty());
    static_assert(std::extent_v<decltype(Field::m_defaultExtension)> == 260);
    static_assert(std::extent_v<decltype(Field::m_defaultFilename)> == 260);
    static_assert(std::extent_v<decltype(Field::m_initialDirectory)> == 260);
    EXPECT_EQ(f.m_defaultExtension[0], 0);
    EXPECT_EQ(f.m_defaultFilename[0], 0);
    EXPECT_EQ(f.m_initialDirectory[0], 0);
    EXPECT_TRUE(f.m_dlgTitle.IsEmpty());
    EXPECT_EQ(f.m_fileFlags, 0u);
    EXPECT_TRUE(f.m_fileMustExist);
    EXPECT_FALSE(f.m_multiSelect);
    EXPECT_TRUE(f.m_overwritePrompt);
    EXPECT_EQ(f.m_additionalFileFlags, 0u);
    EXPECT_TRUE(f.m_pathList.IsEmpty());
    EXPECT_FALSE(f.m_idNameMode);
    EXPECT_TRUE(f.m_selection.empty());
    EXPECT_FALSE(f.m_selectionChanged);
    EXPECT_EQ(f.m_dropHeightFactor, 1.1f);
    EXPECT_EQ(f.m_notifyTag, 0u);
    std::vector<MapEntry> const entries = EntriesOf(Field::GetThisMessageMap());
    EXPECT_EQ(entries.size(), 2u);
    EXPECT_TRUE(Handles(entries, WM_SIZE));
    EXPECT_TRUE(Handles(entries, 1053));
}

TEST_F(OutsideBrowse, FieldsInOrder)
{
    Field f;
    void const * const order[] = {
        &f.m_openDialog,       &f.m_filter,          &f.m_defaultExtension,    &f.m_defaultFilename,
        &f.m_initialDirectory, &f.m_dlgTitle,        &f.m_fileFlags,           &f.m_fileMustExist,
        &f.m_multiSelect,      &f.m_overwritePrompt, &f.m_additionalFileFlags, &f.m_pathList,
        &f.m_idNameMode,       &f.m_selection,       &f.m_selectionChanged,    &f.m_dropHeightFactor,
        &f.m_notifyTag};
    for (std::size_t i = 1; i < std::size(order); ++i)
        EXPECT_LT(order[i - 1], order[i]) << i;
}

TEST_F(OutsideBrowse, PreparingForFiles)
{
    EXPECT_EQ(m_browse.GetMode(), CMFCEditBrowseCtrl::BrowseMode_None);
    m_browse.PrepareFileSaveAsBrowser(L"Text|*.txt||", L"txt", L"C:\\");
    EXPECT_EQ(m_browse.m_openDialog, 0);
    EXPECT_EQ(W(m_browse.m_filter), L"Text|*.txt||");
    EXPECT_EQ(std::wstring(m_browse.m_defaultExtension), L"txt");
    EXPECT_EQ(std::wstring(m_browse.m_initialDirectory), L"C:\\");
    EXPECT_NE(m_browse.GetMode(), CMFCEditBrowseCtrl::BrowseMode_None);
    EXPECT_FALSE(m_browse.m_idNameMode);
    m_browse.PrepareFileSaveAsBrowser(L"All|*.*||", nullptr, nullptr);
    EXPECT_EQ(W(m_browse.m_filter), L"All|*.*||");
    EXPECT_EQ(std::wstring(m_browse.m_defaultExtension), L"txt");
    EXPECT_EQ(std::wstring(m_browse.m_initialDirectory), L"C:\\");
    m_browse.PrepareFileOpenBrowser(L"Data|*.dat||", L"dat", L"D:\\x");
    EXPECT_EQ(m_browse.m_openDialog, 1);
    EXPECT_EQ(W(m_browse.m_filter), L"Data|*.dat||");
    EXPECT_EQ(std::wstring(m_browse.m_defaultExtension), L"dat");
    EXPECT_EQ(std::wstring(m_browse.m_initialDirectory), L"D:\\x");
    m_browse.PrepareFileOpenBrowser(L"", L"", L"");
    EXPECT_EQ(std::wstring(m_browse.m_defaultExtension), L"");
    m_browse.SetDefaultFilename(L"name.txt");
    EXPECT_EQ(std::wstring(m_browse.m_defaultFilename), L"name.txt");
    std::wstring const longest(259, L'x');
    m_browse.SetDefaultFilename(longest.c_str());
    EXPECT_EQ(std::wstring(m_browse.m_defaultFilename), longest);
    m_browse.SetDlgTitle(L"title");
    EXPECT_EQ(W(m_browse.m_dlgTitle), L"title");
    m_browse.SetAdditionalFileFlags(1);
    m_browse.SetAdditionalFileFlags(0x100);
    m_browse.SetAdditionalFileFlags(0);
    EXPECT_EQ(m_browse.m_additionalFileFlags, 0x101u);
    m_browse.SetNotifyTag(0xFFFFFFFF);
    EXPECT_EQ(m_browse.m_notifyTag, 0xFFFFFFFFu);
    m_browse.PrepareIdNameBrowser();
    m_browse.PrepareFileOpenBrowser(L"", L"", L"");
    EXPECT_TRUE(m_browse.m_idNameMode);
}

TEST_F(OutsideBrowse, ButtonShowsTheModulesIcon)
{
    ASSERT_TRUE(tests::BringToFront(m_host));
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_host, {300, 250})));
    auto const shot = [&](Field & field) {
        field.RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
        tests::PumpPosted();
        CRect window;
        field.GetWindowRect(window);
        CRect inHost = window;
        m_host.ScreenToClient(inHost);
        tests::Canvas all(400, 300);
        all.CopyFromScreen(m_host);
        std::vector<COLORREF> pixels;
        for (int y = inHost.top; y < inHost.bottom; ++y)
        {
            for (int x = inHost.right - 20; x < inHost.right; ++x)
                pixels.push_back(all.Pixel(x, y));
        }
        return pixels;
    };
    m_browse.EnableBrowseButton(TRUE, L"");
    auto const plain = shot(m_browse);
    m_browse.PrepareFileOpenBrowser(L"", L"", L"");
    auto const open = shot(m_browse);
    EXPECT_NE(open, plain);
    m_browse.PrepareFileSaveAsBrowser(L"", L"", L"");
    EXPECT_EQ(shot(m_browse), open);
    Field other;
    ASSERT_TRUE(other.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, CRect(20, 60, 220, 84), m_host, 10));
    other.PrepareIdNameBrowser();
    EXPECT_NE(shot(other), open);
    other.DestroyWindow();
}

TEST_F(OutsideBrowse, ResourceHandleIsRestored)
{
    HINSTANCE const before = ::AfxGetResourceHandle();
    m_browse.PrepareFileOpenBrowser(L"", L"", L"");
    EXPECT_EQ(::AfxGetResourceHandle(), before);
    m_browse.PrepareFileSaveAsBrowser(L"", L"", L"");
    EXPECT_EQ(::AfxGetResourceHandle(), before);
    m_browse.PrepareIdNameBrowser();
    m_browse.AddItem(1, L"a");
    m_browse.SetSelectionAll();
    m_browse.UpdateSelectionText();
    EXPECT_EQ(::AfxGetResourceHandle(), before);
}

TEST_F(OutsideBrowse, MessageAndBrowseNowCallTheHook)
{
    m_browse.pass = false;
    EXPECT_EQ(m_browse.SendMessage(1053, 1, 2), 0);
    EXPECT_EQ(m_browse.browses, 1);
    m_browse.BrowseNow();
    EXPECT_EQ(m_browse.browses, 1);
    tests::PumpPosted();
    EXPECT_EQ(m_browse.browses, 2);
    m_browse.PrepareFileOpenBrowser(L"", L"", L"");
    ASSERT_TRUE(tests::BringToFront(m_host));
    tests::Click(ButtonCentre(m_browse));
    EXPECT_TRUE(tests::PumpUntil([&] { return m_browse.browses == 3; }, std::chrono::seconds(20)));
    Field none;
    none.BrowseNow();
}

TEST_F(OutsideBrowse, NotifyParentPostsTagAndValue)
{
    m_host.seen.clear();
    m_browse.NotifyParent(5, -6);
    EXPECT_EQ(m_host.Count(WM_XEDITBROWSE_COMPLETED), 0);
    EXPECT_EQ(Completed(), (EventList{{5, -6}}));
    Host owner;
    m_browse.SetOwner(&owner);
    m_browse.NotifyParent(7, 0);
    EXPECT_EQ(Completed(), (EventList{{7, 0}}));
    EXPECT_EQ(owner.Count(WM_XEDITBROWSE_COMPLETED), 0);
    m_browse.SetOwner(nullptr);
    Field none;
    none.NotifyParent(1, 2);
}

// --- The substitute ---

struct FakeDialog
{
    static inline int opens = 0;
    static inline int saves = 0;
    static inline OPENFILENAMEW last = {};
    static inline std::wstring title, directory, extension, filter, file;
    static inline bool ok = false;
    static inline std::wstring answer; // with its zeroes
    static inline std::string numericBefore;
    static inline std::function<void()> during;

    FakeDialog() : m_a(L"framework.dll", "GetOpenFileNameW", &Open), m_b(L"framework.dll", "GetSaveFileNameW", &Save)
    {
        opens = saves = 0;
        ok = false;
        answer.clear();
        during = nullptr;
    }
    static BOOL Take(OPENFILENAMEW * data)
    {
        last = *data;
        title = data->lpstrTitle != nullptr ? data->lpstrTitle : L"(null)";
        directory = data->lpstrInitialDir != nullptr ? data->lpstrInitialDir : L"(null)";
        extension = data->lpstrDefExt != nullptr ? data->lpstrDefExt : L"(null)";
        filter.clear();
        for (wchar_t const * at = data->lpstrFilter; at != nullptr && *at != 0; at += std::wcslen(at) + 1)
            filter += std::wstring(at) + L"|";
        file = data->lpstrFile;
        std::setlocale(LC_NUMERIC, "German_Germany.1252");
        numericBefore = std::setlocale(LC_NUMERIC, nullptr);
        if (during)
            during();
        if (!ok)
            return FALSE;
        std::copy(answer.begin(), answer.end(), data->lpstrFile);
        data->lpstrFile[answer.size()] = 0;
        data->lpstrFile[answer.size() + 1] = 0;
        std::size_t const slash = answer.find_last_of(L'\\');
        data->nFileOffset =
            static_cast<WORD>(answer.find(L'\0') != std::wstring::npos ? answer.find(L'\0') + 1 : slash + 1);
        return TRUE;
    }
    static BOOL WINAPI Open(OPENFILENAMEW * data)
    {
        ++opens;
        return Take(data);
    }
    static BOOL WINAPI Save(OPENFILENAMEW * data)
    {
        ++saves;
        return Take(data);
    }

private:
    tests::ImportPatch m_a, m_b;
};

TEST_F(OutsideBrowse, FlagsOfTheDialog)
{
    FakeDialog fake;
    for (int open = 0; open < 2; ++open)
    {
        for (int exist = 0; exist < 2; ++exist)
        {
            for (int multi = 0; multi < 2; ++multi)
            {
                for (int prompt = 0; prompt < 2; ++prompt)
                {
                    for (unsigned long const more : {0ul, 0x10000000ul})
                    {
                        Field f;
                        Make(f);
                        if (open != 0)
                            f.PrepareFileOpenBrowser(L"", L"", L"");
                        else
                            f.PrepareFileSaveAsBrowser(L"", L"", L"");
                        f.m_fileMustExist = exist != 0;
                        f.m_multiSelect = multi != 0;
                        f.m_overwritePrompt = prompt != 0;
                        f.SetAdditionalFileFlags(more);
                        unsigned expected =
                            open != 0 ? (exist != 0 ? 0x1800u : 0x4u) : 0x8004u | (prompt != 0 ? 0x2u : 0u);
                        if (multi != 0)
                            expected |= 0x80200u;
                        expected |= more | 0x2000008u;
                        int const opens = fake.opens, saves = fake.saves;
                        f.OnBrowse();
                        EXPECT_EQ(f.m_fileFlags, expected) << open << exist << multi << prompt << more;
                        EXPECT_EQ(fake.opens - opens, open != 0 ? 1 : 0);
                        EXPECT_EQ(fake.saves - saves, open != 0 ? 0 : 1);
                        EXPECT_EQ(fake.last.Flags & expected, expected);
                        f.DestroyWindow();
                    }
                }
            }
        }
    }
}

TEST_F(OutsideBrowse, WhatTheDialogIsGiven)
{
    FakeDialog fake;
    m_browse.PrepareFileOpenBrowser(L"Text|*.txt|All|*.*||", L"txt", folder.c_str());
    m_browse.SetDlgTitle(L"The title");
    m_browse.OnBrowse();
    ASSERT_EQ(fake.opens, 1);
    EXPECT_EQ(fake.title, L"The title");
    EXPECT_EQ(fake.directory, folder);
    EXPECT_EQ(fake.extension, L"txt");
    EXPECT_EQ(fake.filter, L"Text|*.txt|All|*.*|");
    EXPECT_EQ(fake.last.nMaxFile, 64000u);
    EXPECT_TRUE(fake.last.hwndOwner == m_browse.m_hWnd || fake.last.hwndOwner == m_host.m_hWnd);
    m_browse.PrepareFileOpenBrowser(L"", L"", L"");
    m_browse.OnBrowse();
    EXPECT_EQ(fake.extension, L"(null)");
}

TEST_F(OutsideBrowse, TheFileBufferIsSharedAndNeverCleared)
{
    FakeDialog fake;
    m_browse.PrepareFileOpenBrowser(L"", L"", L"");
    fake.ok = true;
    fake.answer = folder + L"\\a.txt";
    m_browse.OnBrowse();
    wchar_t const * const buffer = fake.last.lpstrFile;
    EXPECT_EQ(TextOf(m_browse), folder + L"\\a.txt");
    fake.ok = false;
    m_browse.OnBrowse();
    EXPECT_EQ(fake.last.lpstrFile, buffer);
    EXPECT_EQ(fake.file, folder + L"\\a.txt");
    Field other;
    Make(other);
    other.PrepareFileSaveAsBrowser(L"", L"", L"");
    other.SetDefaultFilename(L"mine.txt");
    other.OnBrowse();
    EXPECT_EQ(fake.last.lpstrFile, buffer);
    EXPECT_EQ(fake.file, folder + L"\\a.txt");
    other.DestroyWindow();
}

TEST_F(OutsideBrowse, NumericLocaleIsResetWhateverTheResult)
{
    FakeDialog fake;
    m_browse.PrepareFileOpenBrowser(L"", L"", L"");
    for (bool const ok : {false, true})
    {
        fake.ok = ok;
        fake.answer = folder + L"\\a.txt";
        m_browse.OnBrowse();
        EXPECT_NE(fake.numericBefore, "C");
        EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
    }
}

TEST_F(OutsideBrowse, ChosenAndCancelled)
{
    FakeDialog fake;
    m_browse.PrepareFileOpenBrowser(L"", L"", L"");
    m_browse.SetNotifyTag(77);
    m_browse.SetWindowText(L"before");
    m_host.seen.clear();
    m_browse.OnBrowse();
    EXPECT_TRUE(Completed().empty());
    EXPECT_EQ(TextOf(m_browse), L"before");
    fake.ok = true;
    fake.answer = folder + L"\\b.txt";
    m_browse.OnBrowse();
    EXPECT_EQ(TextOf(m_browse), folder + L"\\b.txt");
    EXPECT_EQ(Completed(), (EventList{{77, 0}}));
    EXPECT_FALSE(m_browse.SelectionChanged());
    EXPECT_TRUE(m_browse.m_pathList.IsEmpty());
}

std::vector<std::wstring> Paths(CStringList const & list)
{
    std::vector<std::wstring> paths;
    for (POSITION at = list.GetHeadPosition(); at != nullptr;)
        paths.push_back(W(list.GetNext(at)));
    return paths;
}
using PathList = std::vector<std::wstring>;

TEST_F(OutsideBrowse, MultipleChoice)
{
    FakeDialog fake;
    m_browse.PrepareFileOpenBrowser(L"", L"", L"");
    m_browse.m_multiSelect = true;
    m_browse.SetNotifyTag(3);
    fake.ok = true;
    m_host.seen.clear();
    std::wstring const zero(1, L'\0');
    fake.answer = folder + zero + L"a.txt" + zero + L"missing.txt" + zero + L"c.dat";
    m_browse.OnBrowse();
    EXPECT_EQ(Paths(m_browse.m_pathList), (PathList{folder + L"\\a.txt", folder + L"\\c.dat"}));
    EXPECT_EQ(Completed(), (EventList{{3, 0}}));
    // Of what is not asked to exist nothing is left out.
    m_browse.m_fileMustExist = false;
    m_browse.OnBrowse();
    EXPECT_EQ(Paths(m_browse.m_pathList),
              (PathList{folder + L"\\a.txt", folder + L"\\missing.txt", folder + L"\\c.dat"}));
    EXPECT_EQ(Completed(), (EventList{{3, 0}}));
    // None that exists: the field has been written, but nobody is told.
    m_browse.m_fileMustExist = true;
    fake.answer = folder + zero + L"m1.txt" + zero + L"m2.txt";
    m_browse.SetWindowText(L"x");
    m_browse.OnBrowse();
    EXPECT_TRUE(m_browse.m_pathList.IsEmpty());
    EXPECT_TRUE(Completed().empty());
    EXPECT_NE(TextOf(m_browse), L"x");
    // One alone.
    fake.answer = folder + L"\\b.txt";
    m_browse.OnBrowse();
    EXPECT_EQ(Paths(m_browse.m_pathList), (PathList{folder + L"\\b.txt"}));
    EXPECT_EQ(TextOf(m_browse), folder + L"\\b.txt");
    EXPECT_EQ(Completed(), (EventList{{3, 0}}));
    // Cancelled: the last choice stays.
    fake.ok = false;
    m_browse.OnBrowse();
    EXPECT_EQ(m_browse.m_pathList.GetCount(), 1);
    EXPECT_TRUE(Completed().empty());
}

TEST_F(OutsideBrowse, FieldEndsWhileTheFileDialogIsOpen)
{
    FakeDialog fake;
    for (int how = 0; how < 2; ++how)
    {
        auto * f = new Field;
        Make(*f);
        f->PrepareFileOpenBrowser(L"", L"", L"");
        fake.ok = true;
        fake.answer = folder + L"\\a.txt";
        fake.during = [&] {
            f->DestroyWindow();
            if (how == 1)
            {
                delete f;
                f = nullptr;
            }
        };
        f->OnBrowse();
        fake.during = nullptr;
        delete f;
    }
}

// --- The real dialog ---

HWND FileDialog()
{
    HWND found = nullptr;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM result) {
            if (::IsWindowVisible(window) && ClassOf(window) == L"#32770")
                *reinterpret_cast<HWND *>(result) = window;
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}
HWND NameEdit(HWND dialog)
{
    HWND found = nullptr;
    ::EnumChildWindows(
        dialog,
        [](HWND window, LPARAM result) {
            if (::IsWindowVisible(window) && _wcsicmp(ClassOf(window).c_str(), L"Edit") == 0)
            {
                *reinterpret_cast<HWND *>(result) = window;
                return FALSE;
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}
bool FileDialogIsUp()
{
    HWND const dialog = FileDialog();
    return dialog != nullptr && NameEdit(dialog) != nullptr;
}
void TypeName(std::wstring const & name)
{
    HWND const dialog = FileDialog();
    tests::BringToFront(dialog);
    HWND const edit = NameEdit(dialog);
    ::SetFocus(edit);
    ::SendMessageW(edit, EM_SETSEL, 0, -1);
    tests::Type(name);
    tests::PumpUntil([&] { return TextOf(edit) == name; }, std::chrono::seconds(20));
}

TEST_F(OutsideBrowse, RealDialogNameTypedAndConfirmed)
{
    m_browse.PrepareFileOpenBrowser(L"Text|*.txt||", L"txt", folder.c_str());
    m_browse.SetDlgTitle(L"Choose it");
    m_browse.SetNotifyTag(12);
    wchar_t directory[MAX_PATH] = {}, after[MAX_PATH] = {};
    ::GetCurrentDirectoryW(MAX_PATH, directory);
    m_host.seen.clear();
    std::wstring title;
    m_actions.Add(
        [&] {
            title = TextOf(FileDialog());
            TypeName(folder + L"\\a.txt");
            tests::Key(VK_RETURN);
        },
        FileDialogIsUp);
    m_browse.OnBrowse();
    EXPECT_EQ(title, L"Choose it");
    EXPECT_EQ(TextOf(m_browse), folder + L"\\a.txt");
    EXPECT_EQ(Completed(), (EventList{{12, 0}}));
    ::GetCurrentDirectoryW(MAX_PATH, after);
    EXPECT_EQ(std::wstring(directory), std::wstring(after));
    // The next one, of another field, starts from there, and its own default name has no effect.
    Field other;
    Make(other);
    other.PrepareFileOpenBrowser(L"Text|*.txt||", L"txt", folder.c_str());
    other.SetDefaultFilename(L"mine.txt");
    other.SetWindowText(L"stays");
    std::wstring start;
    m_actions.Add(
        [&] {
            start = TextOf(NameEdit(FileDialog()));
            tests::BringToFront(FileDialog());
            tests::Key(VK_ESCAPE);
        },
        FileDialogIsUp);
    other.OnBrowse();
    EXPECT_EQ(start, L"a.txt");
    EXPECT_EQ(TextOf(other), L"stays");
    EXPECT_TRUE(Completed().empty());
    EXPECT_FALSE(m_actions.Failed());
    other.DestroyWindow();
}

TEST_F(OutsideBrowse, RealDialogOpenedByClickOnTheButton)
{
    m_browse.PrepareFileOpenBrowser(L"Text|*.txt||", L"txt", folder.c_str());
    ASSERT_TRUE(tests::BringToFront(m_host));
    m_host.seen.clear();
    m_actions.Add(
        [&] {
            TypeName(folder + L"\\b.txt");
            tests::Key(VK_RETURN);
        },
        FileDialogIsUp);
    tests::Click(ButtonCentre(m_browse));
    EXPECT_TRUE(tests::PumpUntil([&] { return TextOf(m_browse) == folder + L"\\b.txt"; }, std::chrono::seconds(60)));
    EXPECT_EQ(Completed(), (EventList{{0, 0}}));
}

TEST_F(OutsideBrowse, RealDialogSaveAsAddsTheExtension)
{
    m_browse.PrepareFileSaveAsBrowser(L"Text|*.txt||", L"txt", folder.c_str());
    m_actions.Add(
        [&] {
            TypeName(folder + L"\\new");
            tests::Key(VK_RETURN);
        },
        FileDialogIsUp);
    m_browse.OnBrowse();
    EXPECT_EQ(TextOf(m_browse), folder + L"\\new.txt");
    EXPECT_EQ(::GetFileAttributesW((folder + L"\\new.txt").c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST_F(OutsideBrowse, RealDialogOfSeveralFiles)
{
    m_browse.PrepareFileOpenBrowser(L"All|*.*||", L"", folder.c_str());
    m_browse.m_multiSelect = true;
    m_actions.Add(
        [&] {
            TypeName(L"\"a.txt\" \"c.dat\"");
            tests::Key(VK_RETURN);
        },
        FileDialogIsUp);
    m_host.seen.clear();
    m_browse.OnBrowse();
    EXPECT_EQ(Paths(m_browse.m_pathList), (PathList{folder + L"\\a.txt", folder + L"\\c.dat"}));
    EXPECT_EQ(Completed(), (EventList{{0, 0}}));
}

HWND Box(HWND fileDialog)
{
    HWND const found = FileDialog();
    for (HWND const each : {::GetLastActivePopup(fileDialog), found})
    {
        if (each != fileDialog && each != nullptr && ::IsWindowVisible(each) && ClassOf(each) == L"#32770" &&
            (::GetDlgItem(each, IDNO) != nullptr || ::GetDlgItem(each, IDOK) != nullptr ||
             ::GetDlgItem(each, IDCANCEL) != nullptr))
            return each;
    }
    return nullptr;
}

TEST_F(OutsideBrowse, RealDialogAsksBeforeOverwriting)
{
    m_browse.PrepareFileSaveAsBrowser(L"Text|*.txt||", L"txt", folder.c_str());
    m_browse.SetWindowText(L"stays");
    HWND dialog = nullptr;
    bool asked = false;
    m_actions.Add(
        [&] {
            dialog = FileDialog();
            TypeName(folder + L"\\a.txt");
            tests::Key(VK_RETURN);
        },
        FileDialogIsUp);
    m_actions.Add(
        [&] {
            HWND const box = Box(dialog);
            asked = ::GetDlgItem(box, IDNO) != nullptr;
            tests::Click(tests::Centre(::GetDlgItem(box, asked ? IDNO : IDCANCEL)));
        },
        [&] { return Box(dialog) != nullptr; });
    m_actions.Add(
        [&] {
            tests::BringToFront(dialog);
            tests::Key(VK_ESCAPE);
        },
        [&] { return Box(dialog) == nullptr; });
    m_host.seen.clear();
    m_browse.OnBrowse();
    EXPECT_TRUE(asked);
    EXPECT_EQ(TextOf(m_browse), L"stays");
    EXPECT_TRUE(Completed().empty());
    m_browse.m_overwritePrompt = false;
    m_actions.Add(
        [&] {
            TypeName(folder + L"\\a.txt");
            tests::Key(VK_RETURN);
        },
        FileDialogIsUp);
    m_browse.OnBrowse();
    EXPECT_EQ(TextOf(m_browse), folder + L"\\a.txt");
    EXPECT_EQ(Completed().size(), 1u);
}

TEST_F(OutsideBrowse, RealDialogRefusesAFileThatIsNotThere)
{
    m_browse.PrepareFileOpenBrowser(L"Text|*.txt||", L"txt", folder.c_str());
    HWND dialog = nullptr;
    bool refused = false;
    m_actions.Add(
        [&] {
            dialog = FileDialog();
            TypeName(folder + L"\\new.txt");
            tests::Key(VK_RETURN);
        },
        FileDialogIsUp);
    m_actions.Add(
        [&] {
            refused = true;
            ::PostMessageW(Box(dialog), WM_CLOSE, 0, 0);
        },
        [&] { return Box(dialog) != nullptr; });
    m_actions.Add(
        [&] {
            tests::BringToFront(dialog);
            tests::Key(VK_ESCAPE);
        },
        [&] { return Box(dialog) == nullptr; });
    m_host.seen.clear();
    m_browse.OnBrowse();
    EXPECT_TRUE(refused);
    EXPECT_TRUE(Completed().empty());
    m_browse.m_fileMustExist = false;
    m_actions.Add(
        [&] {
            TypeName(folder + L"\\new.txt");
            tests::Key(VK_RETURN);
        },
        FileDialogIsUp);
    m_browse.OnBrowse();
    EXPECT_EQ(TextOf(m_browse), folder + L"\\new.txt");
    EXPECT_EQ(Completed().size(), 1u);
}

TEST_F(OutsideBrowse, PreparedWithoutAWindow)
{
    Field none;
    none.PrepareFileOpenBrowser(L"f", L"e", L"d");
    EXPECT_EQ(std::wstring(none.m_initialDirectory), L"d");
    none.PrepareFileSaveAsBrowser(L"f", nullptr, L"d2");
    EXPECT_EQ(none.m_openDialog, 0);
    none.PrepareLongIdNameBrowser();
    EXPECT_TRUE(none.m_idNameMode);
    EXPECT_EQ(none.m_dropHeightFactor, 2.1f);
    // The factor stays.
    none.PrepareIdNameBrowser();
    EXPECT_EQ(none.m_dropHeightFactor, 2.1f);
}

class OpeningDialog : public CDialogEx
{
public:
    explicit OpeningDialog(CWnd * parent)
    {
        m_template.Add(L"Edit", L"", 33, CRect(5, 5, 100, 19), WS_TABSTOP);
        InitModalIndirect(m_template.Get(), parent);
    }
    Field m_browse;
    bool m_visibleAtBrowse = false;

protected:
    BOOL OnInitDialog() override
    {
        CDialogEx::OnInitDialog();
        m_browse.SubclassDlgItem(33, this);
        m_browse.AddItem(1, L"one");
        m_browse.PrepareIdNameBrowser();
        m_browse.BrowseNow();
        return TRUE;
    }

private:
    tests::DialogTemplate m_template{L"Opening", CRect(0, 0, 160, 100),
                                     WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE};
};

TEST_F(OutsideBrowse, BrowseNowFromADialogsInitialisation)
{
    OpeningDialog dialog(m_host);
    m_actions.Add(
        [&] {
            dialog.m_visibleAtBrowse = dialog.IsWindowVisible() != FALSE;
            dialog.m_browse.m_dialog.PostMessage(WM_COMMAND, IDCANCEL);
        },
        [&] {
            return dialog.m_browse.m_dialog.GetSafeHwnd() != nullptr && dialog.m_browse.m_dialog.IsWindowVisible();
        });
    m_actions.Add([&] { dialog.EndDialog(IDOK); }, [&] { return dialog.m_browse.m_dialog.GetSafeHwnd() == nullptr; });
    dialog.DoModal();
    EXPECT_TRUE(dialog.m_visibleAtBrowse);
    EXPECT_EQ(dialog.m_browse.browses, 1);
}

// --- Texts of a selection ---

int WidthInFont(CWnd & window, std::wstring const & text)
{
    CClientDC dc(&window);
    CFont * const font = window.GetFont();
    CFont * const former = font != nullptr ? dc.SelectObject(font) : nullptr;
    int const width = dc.GetTextExtent(text.c_str(), static_cast<int>(text.size())).cx;
    if (former != nullptr)
        dc.SelectObject(former);
    return width;
}

std::wstring Expected(Field & field, Map const & map, Ids const & ids)
{
    if (ids.empty() || map.empty())
        return L"\u2015\u2015";
    if (ids.count(-1) != 0)
        return W(ToolkitString(13));
    CRect window;
    field.GetWindowRect(window);
    std::wstring text;
    for (int const id : ids)
    {
        auto const found = map.find(id);
        std::wstring const name = found != map.end() ? W(found->second) : L"";
        if (!text.empty())
        {
            text += L", ";
            if (WidthInFont(field, text) + WidthInFont(field, name) > window.Width() - 50)
            {
                text += L"\u2026";
                break;
            }
        }
        text += name;
    }
    return text;
}

class OutsideBrowseText : public OutsideBrowse
{
protected:
    void Check(Map const & map, Ids const & ids)
    {
        m_browse.SetTheMap(map);
        m_browse.SetSelection(ids);
        m_browse.UpdateSelectionText();
        EXPECT_EQ(TextOf(m_browse), Expected(m_browse, map, ids));
    }
};

TEST_F(OutsideBrowseText, AsDefined)
{
    m_browse.PrepareIdNameBrowser();
    EXPECT_EQ(TextOf(m_browse), L"\u2015\u2015");
    EXPECT_TRUE(m_browse.m_idNameMode);
    EXPECT_NE(m_browse.GetMode(), CMFCEditBrowseCtrl::BrowseMode_None);
    Map const map{{1, L"A"}, {2, L"B"}, {3, L"name three"}, {4, L"another long name"}, {5, CString(L'w', 100)},
                  {6, L""}};
    for (Ids const & ids : {Ids{},
                            Ids{1},
                            Ids{1, 2},
                            Ids{2, 3},
                            Ids{1, 2, 3, 4},
                            Ids{3, 4},
                            Ids{5},
                            Ids{1, 5},
                            Ids{5, 6},
                            Ids{6},
                            Ids{1, 6},
                            Ids{6, 1},
                            Ids{99},
                            Ids{99, 100},
                            Ids{-7, 1},
                            Ids{1, 99},
                            Ids{-1},
                            Ids{-1, 1, 2},
                            Ids{-1, 1, 2, 3, 4, 5, 6},
                            Ids{1, 2, 3, 4, 5, 6}})
    {
        Check(map, ids);
        Check(Map{}, ids);
    }
    m_browse.SetTheMap(map);
    m_browse.SetSelection(Ids{1, 2});
    m_browse.UpdateSelectionText();
    EXPECT_EQ(TextOf(m_browse), L"A, B");
    m_browse.SetSelection(Ids{1, 5});
    m_browse.UpdateSelectionText();
    EXPECT_EQ(TextOf(m_browse), L"A, \u2026");
    m_browse.SetSelection(99);
    m_browse.UpdateSelectionText();
    EXPECT_EQ(TextOf(m_browse), L"");
    m_browse.ResetTheMap();
    m_browse.UpdateSelectionText();
    EXPECT_EQ(TextOf(m_browse), L"\u2015\u2015");
    m_browse.AddItem(1, L"one");
    m_browse.AddItem(1, L"uno");
    m_browse.SetSelection(1);
    m_browse.UpdateSelectionText();
    EXPECT_EQ(TextOf(m_browse), L"one");
    m_browse.SetSelectionAll();
    EXPECT_EQ(TextOf(m_browse), L"one");
    EXPECT_EQ(m_browse.TheSelection(), (Ids{-1}));
    m_browse.UpdateSelectionText();
    std::wstring const all = TextOf(m_browse);
    EXPECT_TRUE(all == L"(alle)" || all == L"(all)" || all == L"(todos)");
    m_browse.SetSelectionNone();
    EXPECT_TRUE(m_browse.TheSelection().empty());
    EXPECT_EQ(TextOf(m_browse), all);
    m_browse.UpdateSelectionText();
    EXPECT_EQ(TextOf(m_browse), L"\u2015\u2015");
}

TEST_F(OutsideBrowseText, ExactlyAtTheLimitTheNameStillFits)
{
    m_browse.PrepareIdNameBrowser();
    Map const map{{1, L"first"}, {2, L"second"}};
    int const need = WidthInFont(m_browse, L"first, ") + WidthInFont(m_browse, L"second");
    for (int const more : {-1, 0, 1})
    {
        m_browse.SetWindowPos(nullptr, 0, 0, need + 50 + more, 24, SWP_NOMOVE | SWP_NOZORDER);
        m_browse.SetTheMap(map);
        m_browse.SetSelection(Ids{1, 2});
        m_browse.UpdateSelectionText();
        EXPECT_EQ(TextOf(m_browse), more < 0 ? L"first, \u2026" : L"first, second") << more;
    }
}

TEST_F(OutsideBrowseText, InTheFieldsFontAndForAnyWidth)
{
    CFont big;
    big.CreatePointFont(160, L"Tahoma");
    m_browse.SetFont(&big);
    m_browse.PrepareIdNameBrowser();
    Map map;
    for (int i = 0; i < 20; ++i)
    {
        CString name;
        name.Format(L"n%d", i * 37);
        map[i] = name;
    }
    Ids ids;
    for (int i = 0; i < 20; ++i)
        ids.insert(i);
    for (int const width : {10, 49, 50, 51, 100, 137, 200, 333, 500, 2000})
    {
        m_browse.SetWindowPos(nullptr, 0, 0, width, 24, SWP_NOMOVE | SWP_NOZORDER);
        Check(map, ids);
    }
}

TEST_F(OutsideBrowseText, SizingRebuildsTheTextInIdNameModeAlone)
{
    m_browse.SetTheMap(Map{{1, L"first"}, {2, CString(L'w', 12)}});
    m_browse.SetSelection(Ids{1, 2});
    m_browse.SetWindowText(L"mine");
    m_browse.SetWindowPos(nullptr, 0, 0, 300, 24, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(TextOf(m_browse), L"mine");
    m_browse.PrepareIdNameBrowser();
    m_browse.SetWindowPos(nullptr, 0, 0, 100, 24, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(TextOf(m_browse), L"first, \u2026");
    m_browse.SetWindowPos(nullptr, 0, 0, 600, 24, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(TextOf(m_browse), L"first, wwwwwwwwwwww");
}

TEST_F(OutsideBrowseText, WrittenOnlyWhenItDiffers)
{
    m_browse.PrepareIdNameBrowser();
    m_browse.SetTheMap(Map{{1, L"one"}});
    m_browse.SetSelection(1);
    tests::MessageRecorder recorder({WM_SETTEXT});
    recorder.Watch(m_browse.m_hWnd, "field");
    m_browse.UpdateSelectionText();
    EXPECT_EQ(recorder.Count("field", WM_SETTEXT), 1);
    m_browse.UpdateSelectionText();
    EXPECT_EQ(recorder.Count("field", WM_SETTEXT), 1);
}

TEST_F(OutsideBrowseText, FiveThousandAndWithoutAWindow)
{
    m_browse.PrepareIdNameBrowser();
    Map map;
    Ids ids;
    for (int i = 0; i < 5000; ++i)
    {
        map[i] = L"n";
        ids.insert(i);
    }
    Check(map, ids);
    Field none;
    none.SetTheMap(map);
    none.SetSelection(ids);
    none.UpdateSelectionText();
    EXPECT_EQ(none.TheSelection().size(), 5000u);
    EXPECT_EQ(none.m_dialog.m_control.TheMap().size(), 5000u);
}

// --- The drop-down ---

class OutsideBrowseDrop : public OutsideBrowse
{
protected:
    void SetUp() override
    {
        OutsideBrowse::SetUp();
        m_browse.SetTheMap(Map{{1, L"one"}, {2, L"two"}, {3, L"three"}});
        m_browse.PrepareIdNameBrowser();
        m_browse.SetNotifyTag(31);
        ASSERT_TRUE(tests::BringToFront(m_host));
        m_host.seen.clear();
    }
    static bool Open(Field & field)
    {
        return field.m_dialog.GetSafeHwnd() != nullptr && field.m_dialog.IsWindowVisible() &&
               static_cast<Multi &>(field.m_dialog.m_control).m_controlsCreated;
    }
    Multi & Inner() { return static_cast<Multi &>(m_browse.m_dialog.m_control); }
};

TEST_F(OutsideBrowseDrop, PlaceOfTheDropDown)
{
    for (int const width : {200, 201, 237, 150})
    {
        for (float const factor : {1.1f, 2.1f})
        {
            Field f;
            Make(f, width);
            f.SetTheMap(Map{{1, L"one"}});
            if (factor < 2)
                f.PrepareIdNameBrowser();
            else
                f.PrepareLongIdNameBrowser();
            EXPECT_EQ(f.m_dropHeightFactor, factor);
            CRect field, drop;
            f.GetWindowRect(field);
            ASSERT_EQ(field.Width(), width);
            m_actions.Add(
                [&] {
                    f.m_dialog.GetWindowRect(drop);
                    f.m_dialog.PostMessage(WM_COMMAND, IDCANCEL);
                },
                [&] { return Open(f); });
            f.OnBrowse();
            float const height = static_cast<float>(width) * factor;
            CRect const expected(field.left, field.bottom, field.right, field.bottom + static_cast<int>(height));
            EXPECT_EQ(f.m_dialog.m_placement, expected) << width << ' ' << factor;
            EXPECT_EQ(drop, expected);
            f.DestroyWindow();
        }
    }
}

TEST_F(OutsideBrowseDrop, RealClickTickAndOk)
{
    m_actions.Add(
        [&] {
            CRect label;
            Inner().m_list.GetItemRect(1, label, LVIR_LABEL);
            tests::Click(tests::ClientPoint(Inner().m_list, CPoint(label.left + 3, label.CenterPoint().y)));
        },
        [&] { return Open(m_browse); });
    m_actions.Add([&] { tests::Click(tests::Centre(Inner().m_ok)); }, [&] { return Inner().m_list.GetCheck(1) == 1; });
    tests::Click(ButtonCentre(m_browse));
    ASSERT_TRUE(tests::PumpUntil([&] { return m_browse.SelectionChanged(); }, std::chrono::seconds(60)));
    EXPECT_EQ(m_browse.TheSelection(), (Ids{2}));
    EXPECT_EQ(TextOf(m_browse), L"two");
    EXPECT_EQ(Completed(), (EventList{{31, 0}}));
    // Cancelled: what was accepted before counts no more as changed.
    m_actions.Add(
        [&] {
            Inner().m_list.SetCheck(0, TRUE);
            tests::Click(tests::Centre(Inner().m_cancel));
        },
        [&] { return Open(m_browse); });
    m_browse.OnBrowse();
    EXPECT_FALSE(m_browse.SelectionChanged());
    EXPECT_EQ(m_browse.TheSelection(), (Ids{2}));
    EXPECT_EQ(TextOf(m_browse), L"two");
    EXPECT_TRUE(Completed().empty());
    // All ticked: the text for all.
    m_actions.Add([&] { tests::Click(tests::Centre(Inner().m_selectAll)); }, [&] { return Open(m_browse); });
    m_actions.Add([&] { tests::Key(VK_RETURN); },
                  [&] { return m_browse.m_dialog.m_control.TheSelection().size() == 4; });
    m_browse.OnBrowse();
    EXPECT_EQ(m_browse.TheSelection(), (Ids{-1, 1, 2, 3}));
    EXPECT_EQ(TextOf(m_browse), W(ToolkitString(13)));
    EXPECT_TRUE(m_browse.SelectionChanged());
    m_browse.SelectionAcknowledged();
    EXPECT_FALSE(m_browse.SelectionChanged());
}

TEST_F(OutsideBrowseDrop, DropDownStartsWithTheFieldsSelection)
{
    m_browse.SetSelection(Ids{1, 3});
    std::wstring rows;
    m_actions.Add(
        [&] {
            for (int i = 0; i < Inner().m_list.GetItemCount(); ++i)
                rows += W(Inner().m_list.GetItemText(i, 0)) + (Inner().m_list.GetCheck(i) != 0 ? L"+ " : L" ");
            m_browse.m_dialog.PostMessage(WM_COMMAND, IDOK);
        },
        [&] { return Open(m_browse); });
    m_browse.ShowIdNameBrowser();
    EXPECT_EQ(rows, L"one+ three+ two ");
    EXPECT_TRUE(m_browse.SelectionChanged());
    EXPECT_EQ(TextOf(m_browse), L"one, three");
    // It tells nobody by itself.
    EXPECT_TRUE(Completed().empty());
}

TEST_F(OutsideBrowseDrop, FieldEndsWhileTheDropDownIsOpen)
{
    for (int how = 0; how < 3; ++how)
    {
        auto * f = new Field;
        Make(*f);
        f->SetTheMap(Map{{1, L"one"}});
        f->PrepareIdNameBrowser();
        HWND drop = nullptr;
        m_actions.Add(
            [&] {
                drop = f->m_dialog.m_hWnd;
                if (how == 0)
                    f->DestroyWindow();
                else if (how == 1)
                {
                    delete f;
                    f = nullptr;
                }
                else
                    f->PostMessage(1053);
            },
            [&] { return f != nullptr && Open(*f); });
        m_actions.Add([&] { ::PostMessageW(drop, WM_COMMAND, IDCANCEL, 0); });
        f->OnBrowse();
        EXPECT_FALSE(::IsWindow(drop)) << how;
        if (f != nullptr && f->GetSafeHwnd() != nullptr)
        {
            tests::PumpPosted();
            f->DestroyWindow();
        }
        delete f;
    }
}

TEST_F(OutsideBrowseDrop, EmptyMapDrop)
{
    m_browse.ResetTheMap();
    m_browse.SetSelection(Ids{1});
    m_actions.Add(
        [&] {
            Inner().m_list.SetCheck(0, TRUE);
            m_browse.m_dialog.PostMessage(WM_COMMAND, IDOK);
        },
        [&] { return Open(m_browse); });
    m_browse.OnBrowse();
    EXPECT_TRUE(m_browse.TheSelection().empty());
    EXPECT_TRUE(m_browse.SelectionChanged());
    EXPECT_EQ(TextOf(m_browse), L"\u2015\u2015");
    EXPECT_EQ(Completed(), (EventList{{31, 0}}));
}
} // namespace
} // namespace outside::controls
