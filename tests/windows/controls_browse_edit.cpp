// The browse edit: files by the system's dialog, and the multiselect as a drop-down.

#include <gtest/gtest.h>

#include <clocale>
#include <memory>
#include <string>

#include "controls/XEditBrowseCtrl.h"
#include "controls_ControlTest.h"
#include "controls_MultiselectTest.h"
#include "GdiHandleCount.h"
#include "GuardedHeap.h"
#include "ImportPatch.h"
#include "Input.h"
#include "Pump.h"

namespace
{
using Ids = std::set<int>;
using Map = std::map<int, CString>;

constexpr wchar_t nothing_selected[] = L"\u2015\u2015";
constexpr UINT internal_message = 1053;

class BrowseEdit : public CXEditBrowseCtrl
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

    CString Text() const
    {
        CString text;
        GetWindowText(text);
        return text;
    }
};

class BrowseParent : public tests::ScopedWindow
{
public:
    using ScopedWindow::ScopedWindow;
    std::vector<std::pair<WPARAM, LPARAM>> completed;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_XEDITBROWSE_COMPLETED)
            completed.emplace_back(wParam, lParam);
        return ScopedWindow::WindowProc(message, wParam, lParam);
    }
};

/// A file that goes with its scope.
class TemporaryFile
{
public:
    explicit TemporaryFile(wchar_t const * name)
    {
        wchar_t folder[MAX_PATH] = {};
        ::GetTempPathW(MAX_PATH, folder);
        m_folder = std::wstring(folder, wcslen(folder) - 1);
        m_path = m_folder + L"\\" + name;
        ::CloseHandle(::CreateFileW(m_path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    }
    ~TemporaryFile() { ::DeleteFileW(m_path.c_str()); }
    TemporaryFile(TemporaryFile const &) = delete;
    TemporaryFile & operator=(TemporaryFile const &) = delete;
    CString Path() const { return m_path.c_str(); }
    CString Folder() const { return m_folder.c_str(); }

private:
    std::wstring m_path;
    std::wstring m_folder;
};

/// The visible file dialog of this thread; null if there is none.
HWND FileDialogWindow()
{
    HWND found = nullptr;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM result) -> BOOL {
            wchar_t name[16] = {};
            ::GetClassNameW(window, name, 16);
            if (std::wstring(name) != L"#32770" || !::IsWindowVisible(window))
                return TRUE;
            *reinterpret_cast<HWND *>(result) = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

/// The field for the name in a file dialog.
HWND NameField(HWND dialog)
{
    HWND const combo = ::GetDlgItem(dialog, 0x47C); // cmb13
    if (combo != nullptr)
        return combo;
    return ::GetDlgItem(dialog, 0x480); // edt1
}

void Command(HWND dialog, int id)
{
    ::PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(::GetDlgItem(dialog, id)));
}

class BrowseEditTest : public testing::Test
{
protected:
    void SetUp() override
    {
        m_browse = std::make_unique<BrowseEdit>();
        ASSERT_TRUE(m_browse->Create(WS_CHILD | WS_VISIBLE | WS_BORDER, CRect(10, 10, 210, 34), m_host, 5));
        m_browse->SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(::GetStockObject(DEFAULT_GUI_FONT)));
    }
    void PrepareNames()
    {
        m_browse->SetTheMap({{1, L"A"}, {2, L"B"}, {3, L"C"}});
        m_browse->PrepareIdNameBrowser();
    }
    int WidthOf(CString const & text)
    {
        CClientDC dc(m_browse.get());
        HGDIOBJ const former = ::SelectObject(dc, ::GetStockObject(DEFAULT_GUI_FONT));
        CSize const size = dc.GetTextExtent(text);
        ::SelectObject(dc, former);
        return size.cx;
    }
    CString Shown(Ids const & selection)
    {
        m_browse->SetSelection(selection);
        m_browse->UpdateSelectionText();
        return m_browse->Text();
    }
    /// Presses the button and has the action done once the drop-down is up.
    void BrowseNames(std::function<void(tests::MultiselectParts const &)> action)
    {
        tests::DoInDialog(
            m_browse->m_dialog, [this] { m_browse->OnBrowse(); },
            [&](tests::MultiselectParts const & parts) {
                m_browse->m_dialog.GetWindowRect(&m_dropDown);
                action(parts);
            });
        tests::PumpPosted();
    }
    /// Has the name typed into the file dialog and confirmed.
    void BrowseFile(CString const & typed, int button = IDOK)
    {
        tests::LaterActions later;
        later.Add(
            [&] {
                HWND const dialog = FileDialogWindow();
                wchar_t title[100] = {};
                ::GetWindowTextW(dialog, title, 100);
                m_title = title;
                ::SendMessageW(NameField(dialog), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(typed.GetString()));
                Command(dialog, button);
            },
            [&] { return FileDialogWindow() != nullptr && NameField(FileDialogWindow()) != nullptr; });
        m_browse->OnBrowse();
        EXPECT_FALSE(later.Failed());
        tests::PumpPosted();
    }

    BrowseParent m_host;
    std::unique_ptr<BrowseEdit> m_browse;
    CRect m_dropDown;
    CString m_title;
};
} // namespace

TEST_F(BrowseEditTest, HasTheDefaultsAndHandlersOfItsKind)
{
    BrowseEdit fresh;
    EXPECT_TRUE(fresh.IsKindOf(RUNTIME_CLASS(CMFCEditBrowseCtrl)));
    EXPECT_STREQ(fresh.GetRuntimeClass()->m_lpszClassName, "CXEditBrowseCtrl");
    EXPECT_EQ(fresh.m_openDialog, 1);
    EXPECT_STREQ(fresh.m_defaultExtension, L"");
    EXPECT_STREQ(fresh.m_defaultFilename, L"");
    EXPECT_STREQ(fresh.m_initialDirectory, L"");
    EXPECT_TRUE(fresh.m_dlgTitle.IsEmpty());
    EXPECT_EQ(fresh.m_fileFlags, 0u);
    EXPECT_TRUE(fresh.m_fileMustExist);
    EXPECT_FALSE(fresh.m_multiSelect);
    EXPECT_TRUE(fresh.m_overwritePrompt);
    EXPECT_EQ(fresh.m_additionalFileFlags, 0u);
    EXPECT_TRUE(fresh.m_pathList.IsEmpty());
    EXPECT_FALSE(fresh.m_idNameMode);
    EXPECT_TRUE(fresh.TheSelection().empty());
    EXPECT_FALSE(fresh.SelectionChanged());
    EXPECT_EQ(fresh.m_dropHeightFactor, 1.1f);
    EXPECT_EQ(fresh.m_notifyTag, 0u);
    AFX_MSGMAP_ENTRY const * const entries = BrowseEdit::GetThisMessageMap()->lpEntries;
    EXPECT_EQ(entries[0].nMessage, static_cast<UINT>(WM_SIZE));
    EXPECT_EQ(entries[1].nMessage, internal_message);
    EXPECT_EQ(entries[2].nMessage, 0u);
}

TEST_F(BrowseEditTest, TwoNamesAreJoinedIfTheyFitAndElseCut)
{
    PrepareNames();
    EXPECT_EQ(Shown({1, 2}), L"A, B");
    // The field is as wide as the text and the room of 50 that stays free, and then one less.
    int const exact = WidthOf(L"A, ") + WidthOf(L"B") + 50;
    m_browse->SetWindowPos(nullptr, 0, 0, exact, 24, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(m_browse->Text(), L"A, B");
    m_browse->SetWindowPos(nullptr, 0, 0, exact - 1, 24, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(m_browse->Text(), L"A, \u2026") << "resizing shows the text anew";
}

TEST_F(BrowseEditTest, AnUnknownIdAloneGivesAnEmptyField)
{
    PrepareNames();
    EXPECT_EQ(m_browse->Text(), nothing_selected);
    EXPECT_EQ(Shown({99}), L"");
    EXPECT_EQ(Shown({}), nothing_selected);
}

TEST_F(BrowseEditTest, AnEmptyMapGivesTheEmptyTextWhateverIsSelected)
{
    m_browse->PrepareIdNameBrowser();
    EXPECT_EQ(Shown({1, 2}), nothing_selected);
    EXPECT_EQ(Shown({-1}), nothing_selected);
    m_browse->AddItem(1, L"A");
    EXPECT_EQ(Shown({1, 2}), L"A, ");
    m_browse->ResetTheMap();
    m_browse->UpdateSelectionText();
    EXPECT_EQ(m_browse->Text(), nothing_selected);
}

TEST_F(BrowseEditTest, ASelectionOfAllHasATextOfItsOwn)
{
    PrepareNames();
    m_browse->SetSelectionAll();
    EXPECT_EQ(m_browse->TheSelection(), (Ids{-1}));
    m_browse->UpdateSelectionText();
    CString const all = m_browse->Text();
    EXPECT_TRUE(all == L"(alle)" || all == L"(all)" || all == L"(todos)") << all.GetLength();
    m_browse->SetSelectionNone();
    m_browse->UpdateSelectionText();
    BrowseNames([](tests::MultiselectParts const & parts) {
        for (int row = 0; row < 3; ++row)
            parts.Tick(row, true);
        parts.Command(32806);
    });
    EXPECT_EQ(m_browse->TheSelection(), (Ids{-1, 1, 2, 3}));
    EXPECT_EQ(m_browse->Text(), all);
}

TEST_F(BrowseEditTest, SettersOfTheSelectionLeaveTheText)
{
    PrepareNames();
    m_browse->SetSelection(2);
    EXPECT_EQ(m_browse->TheSelection(), (Ids{2}));
    EXPECT_EQ(m_browse->Text(), nothing_selected);
    m_browse->UpdateSelectionText();
    EXPECT_EQ(m_browse->Text(), L"B");
    m_browse->SetSelectionAll();
    m_browse->SetSelectionNone();
    EXPECT_EQ(m_browse->Text(), L"B");
}

TEST_F(BrowseEditTest, TheDropDownHangsBelowTheFieldAndIsAsHighAsItsFactor)
{
    PrepareNames();
    CRect field;
    m_browse->GetWindowRect(&field);
    ASSERT_EQ(field.Width(), 200);
    BrowseNames([](tests::MultiselectParts const & parts) { parts.Command(32805); });
    EXPECT_EQ(m_dropDown, CRect(field.left, field.bottom, field.right, field.bottom + 220));
    m_browse->PrepareLongIdNameBrowser();
    EXPECT_EQ(m_browse->m_dropHeightFactor, 2.1f);
    BrowseNames([](tests::MultiselectParts const & parts) { parts.Command(32805); });
    // 420, less what the factor is short of 2.1.
    EXPECT_EQ(m_dropDown.Height(), static_cast<int>(200.0f * 2.1f));
    EXPECT_NEAR(m_dropDown.Height(), 420, 1);
}

TEST_F(BrowseEditTest, AnAcceptedDropDownChangesTheSelectionAndTells)
{
    PrepareNames();
    m_browse->SetNotifyTag(77);
    BrowseNames([](tests::MultiselectParts const & parts) {
        parts.Tick(1, true);
        parts.Command(32806);
    });
    EXPECT_EQ(m_browse->TheSelection(), (Ids{2}));
    EXPECT_EQ(m_browse->Text(), L"B");
    EXPECT_TRUE(m_browse->SelectionChanged());
    EXPECT_EQ(m_host.completed, (std::vector<std::pair<WPARAM, LPARAM>>{{77, 0}}));
    m_browse->SelectionAcknowledged();
    EXPECT_FALSE(m_browse->SelectionChanged());
}

TEST_F(BrowseEditTest, AfterACancelledDropDownNothingHasChanged)
{
    PrepareNames();
    BrowseNames([](tests::MultiselectParts const & parts) {
        parts.Tick(1, true);
        parts.Command(32806);
    });
    m_host.completed.clear();
    BrowseNames([](tests::MultiselectParts const & parts) {
        parts.Tick(0, true);
        parts.Command(32805);
    });
    EXPECT_FALSE(m_browse->SelectionChanged()) << "also if it was true before";
    EXPECT_EQ(m_browse->TheSelection(), (Ids{2}));
    EXPECT_EQ(m_browse->Text(), L"B");
    EXPECT_TRUE(m_host.completed.empty());
}

TEST_F(BrowseEditTest, ThePressedButtonOpensTheDropDown)
{
    PrepareNames();
    tests::BringToFront(m_host.m_hWnd);
    CRect field;
    m_browse->GetWindowRect(&field);
    tests::LaterActions later;
    bool opened = false;
    later.Add(
        [&] {
            opened = true;
            m_browse->m_dialog.EndDialog(IDCANCEL);
        },
        [&] { return m_browse->m_dialog.m_hWnd != nullptr && m_browse->m_dialog.IsWindowVisible(); });
    tests::Click(CPoint(field.right - 8, field.CenterPoint().y));
    EXPECT_TRUE(tests::PumpUntil([&] { return opened && m_browse->m_dialog.m_hWnd == nullptr; }));
}

TEST_F(BrowseEditTest, BrowseNowOpensOnceTheLoopIsReached)
{
    PrepareNames();
    m_browse->BrowseNow();
    m_browse->BrowseNow();
    EXPECT_EQ(m_browse->m_dialog.m_hWnd, nullptr);
    int opened = 0;
    tests::LaterActions later;
    later.Add(
        [&] {
            ++opened;
            m_browse->m_dialog.EndDialog(IDCANCEL);
        },
        [&] { return m_browse->m_dialog.m_hWnd != nullptr && m_browse->m_dialog.IsWindowVisible(); });
    EXPECT_TRUE(tests::PumpUntil([&] { return opened == 1 && m_browse->m_dialog.m_hWnd == nullptr; }));
}

TEST_F(BrowseEditTest, TheFieldMayEndWhileItsDropDownIsOpen)
{
    PrepareNames();
    tests::LaterActions later;
    BrowseEdit * const edit = m_browse.get();
    HWND dropDown = nullptr;
    later.Add(
        [&] {
            dropDown = edit->m_dialog.m_hWnd;
            m_browse.reset();
        },
        [&] { return m_browse != nullptr && edit->m_dialog.m_hWnd != nullptr && edit->m_dialog.IsWindowVisible(); });
    edit->OnBrowse();
    EXPECT_EQ(m_browse, nullptr);
    EXPECT_FALSE(::IsWindow(dropDown));
    tests::PumpPosted();
    EXPECT_TRUE(m_host.completed.empty());
    EXPECT_TRUE(m_host.IsWindowEnabled());
}

TEST_F(BrowseEditTest, TheWindowOfTheFieldMayEndWhileItsDropDownIsOpen)
{
    PrepareNames();
    tests::LaterActions later;
    later.Add([&] { m_browse->DestroyWindow(); },
              [&] { return m_browse->m_dialog.m_hWnd != nullptr && m_browse->m_dialog.IsWindowVisible(); });
    m_browse->OnBrowse();
    EXPECT_EQ(m_browse->m_dialog.m_hWnd, nullptr);
    EXPECT_FALSE(m_browse->SelectionChanged());
}

TEST_F(BrowseEditTest, AFileToOpenIsTypedAndConfirmed)
{
    TemporaryFile const file(L"browse one.txt");
    m_browse->PrepareFileOpenBrowser(L"Texts|*.txt||", L"txt", file.Folder());
    m_browse->SetDlgTitle(L"Which text");
    m_browse->SetNotifyTag(5);
    std::setlocale(LC_NUMERIC, "German");
    BrowseFile(L"browse one.txt");
    EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
    EXPECT_EQ(m_title, L"Which text");
    EXPECT_EQ(m_browse->Text().CompareNoCase(file.Path()), 0) << CStringA(m_browse->Text()).GetString();
    EXPECT_EQ(m_browse->m_fileFlags, 0x1800u | 0x2000008u);
    EXPECT_EQ(m_host.completed, (std::vector<std::pair<WPARAM, LPARAM>>{{5, 0}}));
}

TEST_F(BrowseEditTest, ACancelledFileDialogLeavesTheFieldAndTellsNothing)
{
    TemporaryFile const file(L"browse one.txt");
    m_browse->PrepareFileOpenBrowser(L"Texts|*.txt||", L"txt", file.Folder());
    m_browse->SetWindowText(L"as it was");
    BrowseFile(L"browse one.txt", IDCANCEL);
    EXPECT_EQ(m_browse->Text(), L"as it was");
    EXPECT_TRUE(m_host.completed.empty());
}

TEST_F(BrowseEditTest, AFileToSaveNeedNotExist)
{
    TemporaryFile const file(L"browse one.txt");
    m_browse->PrepareFileSaveAsBrowser(L"Texts|*.txt||", L"txt", file.Folder());
    m_browse->PrepareFileSaveAsBrowser(L"Texts|*.txt||", nullptr, nullptr);
    EXPECT_STREQ(m_browse->m_defaultExtension, L"txt") << "null leaves the stored value";
    EXPECT_EQ(CString(m_browse->m_initialDirectory), file.Folder());
    BrowseFile(L"browse new");
    EXPECT_EQ(m_browse->Text().CompareNoCase(file.Folder() + L"\\browse new.txt"), 0);
    EXPECT_EQ(m_browse->m_fileFlags, 0x8004u | 0x2u | 0x2000008u);
    EXPECT_EQ(m_host.completed.size(), 1u);
}

TEST_F(BrowseEditTest, OfSeveralFilesThoseThatAreThereAreListed)
{
    TemporaryFile const one(L"browse one.txt");
    TemporaryFile const two(L"browse two.txt");
    m_browse->PrepareFileOpenBrowser(L"Texts|*.txt||", L"txt", one.Folder());
    m_browse->m_multiSelect = true;
    BrowseFile(L"\"browse one.txt\" \"browse two.txt\"");
    ASSERT_EQ(m_browse->m_pathList.GetCount(), 2);
    EXPECT_EQ(m_browse->m_pathList.GetHead().CompareNoCase(one.Path()), 0);
    EXPECT_EQ(m_browse->m_pathList.GetTail().CompareNoCase(two.Path()), 0);
    EXPECT_EQ(m_browse->m_fileFlags, 0x1800u | 0x80200u | 0x2000008u);
    EXPECT_EQ(m_host.completed.size(), 1u);
}

TEST_F(BrowseEditTest, OtherFlagsComeFromTheirSwitches)
{
    TemporaryFile const file(L"browse one.txt");
    m_browse->PrepareFileOpenBrowser(L"Texts|*.txt||", L"", file.Folder());
    m_browse->m_fileMustExist = false;
    m_browse->SetAdditionalFileFlags(OFN_FORCESHOWHIDDEN);
    m_browse->SetAdditionalFileFlags(OFN_NOVALIDATE);
    BrowseFile(L"x", IDCANCEL);
    EXPECT_EQ(m_browse->m_fileFlags, 0x4u | 0x2000008u | OFN_FORCESHOWHIDDEN | OFN_NOVALIDATE);
    m_browse->PrepareFileSaveAsBrowser(L"Texts|*.txt||", nullptr, nullptr);
    m_browse->m_overwritePrompt = false;
    BrowseFile(L"x", IDCANCEL);
    EXPECT_EQ(m_browse->m_fileFlags, 0x8004u | 0x2000008u | OFN_FORCESHOWHIDDEN | OFN_NOVALIDATE);
}

TEST_F(BrowseEditTest, NullTextsCountAsEmpty)
{
    m_browse->PrepareFileOpenBrowser(L"", nullptr, nullptr);
    m_browse->SetDefaultFilename(nullptr);
    EXPECT_STREQ(m_browse->m_defaultExtension, L"");
    m_browse->SetDefaultFilename(L"name.txt");
    EXPECT_STREQ(m_browse->m_defaultFilename, L"name.txt");
}

TEST_F(BrowseEditTest, TheFieldMayEndWhileItsButtonIsLaidOut)
{
    using Field = controls::Watched<CXEditBrowseCtrl>;
    for (auto const prepare : {+[](Field & field) { field.PrepareFileOpenBrowser(L"", L"", L""); },
                               +[](Field & field) { field.PrepareFileSaveAsBrowser(L"", L"", L""); },
                               +[](Field & field) { field.PrepareIdNameBrowser(); },
                               +[](Field & field) { field.PrepareLongIdNameBrowser(); }})
    {
        tests::GuardedHeap heap;
        auto field = std::make_unique<Field>();
        ASSERT_TRUE(field->Create(WS_CHILD | WS_VISIBLE | WS_BORDER, CRect(10, 50, 210, 74), m_host, 6));
        field->On(WM_NCCALCSIZE, [&] { field.reset(); });
        prepare(*field);
        EXPECT_EQ(field, nullptr);
    }
}

TEST_F(BrowseEditTest, TheFieldMayEndWhileItsTextIsWorkedOut)
{
    for (UINT const question : {WM_GETFONT, WM_GETTEXT, WM_GETTEXTLENGTH, WM_SETTEXT})
    {
        SCOPED_TRACE(testing::Message() << "message " << question);
        tests::GuardedHeap heap;
        auto field = std::make_unique<controls::Watched<CXEditBrowseCtrl>>();
        ASSERT_TRUE(field->Create(WS_CHILD | WS_VISIBLE | WS_BORDER, CRect(10, 50, 210, 74), m_host, 6));
        field->AddItem(1, L"A");
        field->SetSelection(1);
        field->On(question, [&] { field.reset(); });
        field->UpdateSelectionText();
        EXPECT_EQ(field, nullptr);
    }
}

namespace
{
int g_contextsTaken = 0;
int g_contextsHeld = 0;

HDC WINAPI CountingGetDC(HWND window)
{
    HDC const context = ::GetDC(window);
    if (context != nullptr)
    {
        ++g_contextsTaken;
        ++g_contextsHeld;
    }
    return context;
}

int WINAPI CountingReleaseDC(HWND window, HDC context)
{
    --g_contextsHeld;
    return ::ReleaseDC(window, context);
}
} // namespace

TEST_F(BrowseEditTest, NoContextIsHeldWhileTheHostHearsOfTheText)
{
    tests::ImportPatch const taking(L"instrument_ui.dll", "GetDC", &CountingGetDC);
    tests::ImportPatch const releasing(L"instrument_ui.dll", "ReleaseDC", &CountingReleaseDC);
    ASSERT_TRUE(taking.Done());
    ASSERT_TRUE(releasing.Done());
    controls::Watched<CXEditBrowseCtrl> field;
    ASSERT_TRUE(field.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, CRect(10, 50, 210, 74), m_host, 6));
    field.SetTheMap({{1, L"A"}, {2, L"B"}, {3, L"C"}});
    for (UINT const question : {WM_GETFONT, WM_GETTEXT, WM_GETTEXTLENGTH, WM_SETTEXT})
    {
        SCOPED_TRACE(testing::Message() << "message " << question);
        field.SetWindowText(L"");
        field.SetSelection(Ids{1, 2});
        g_contextsTaken = 0;
        g_contextsHeld = 0;
        int held = -1;
        field.On(question, [&] { held = g_contextsHeld; });
        field.UpdateSelectionText();
        EXPECT_EQ(held, 0);
        EXPECT_GT(g_contextsTaken, 0);
        EXPECT_EQ(g_contextsHeld, 0);
    }
}

TEST_F(BrowseEditTest, WithoutAWindowNothingHappens)
{
    BrowseEdit edit;
    edit.PrepareIdNameBrowser();
    edit.PrepareFileOpenBrowser(L"", L"txt", L"");
    edit.UpdateSelectionText();
    edit.BrowseNow();
    edit.OnBrowse();
    EXPECT_FALSE(edit.SelectionChanged());
}

TEST_F(BrowseEditTest, RepaintingAndOpeningLeaveNoGdiObjects)
{
    m_browse->PrepareFileOpenBrowser(L"", L"", L"");
    PrepareNames();
    EXPECT_EQ(tests::GdiGrowth(
                  [&] {
                      for (int i = 0; i < 200; ++i)
                          m_browse->RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
                      BrowseNames([](tests::MultiselectParts const & parts) { parts.Command(32806); });
                  },
                  5, 3),
              0);
}
