// Modeless dialogs, and the members that work on any dialog window.

#include <afxwin.h>

#include <gtest/gtest.h>

#include "DialogTemplate.h"
#include "GdiHandleCount.h"
#include "Input.h"
#include "MessageRecorder.h"
#include "Pump.h"
#include "resource.h"
#include "ScopedWindow.h"

namespace
{
class CModeless : public CDialog
{
public:
    int m_ended = 0;
    int m_fonts = 0;
    bool m_refuse = false;

protected:
    BOOL OnInitDialog() override
    {
        BOOL const result = CDialog::OnInitDialog();
        if (m_refuse)
            EndDialog(IDCANCEL);
        return result;
    }
    void OnSetFont(CFont * pFont) override
    {
        ++m_fonts;
        CDialog::OnSetFont(pFont);
    }
    void PostNcDestroy() override
    {
        ++m_ended;
        CDialog::PostNcDestroy();
    }
};

class CSelfDeleting : public CDialog
{
public:
    explicit CSelfDeleting(int & deleted) : m_deleted(deleted) {}

protected:
    void OnCancel() override { DestroyWindow(); }
    void PostNcDestroy() override
    {
        ++m_deleted;
        delete this;
    }

private:
    int & m_deleted;
};

class CCommandParent : public tests::ScopedWindow
{
public:
    int m_commands = 0;
    void OnCommand40000() { ++m_commands; }
    void OnCommand100() { m_commands += 1000; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CCommandParent, tests::ScopedWindow)
    ON_COMMAND(40000, &CCommandParent::OnCommand40000)
    ON_COMMAND(100, &CCommandParent::OnCommand100)
END_MESSAGE_MAP()

int FocusedId()
{
    return ::GetDlgCtrlID(::GetFocus());
}

TEST(ModelessDialog, CreateGivesAHiddenWindowAtOnce)
{
    tests::ScopedWindow parent;
    CModeless dialog;
    ASSERT_TRUE(dialog.Create(IDD_SIMPLE, parent));
    EXPECT_FALSE(dialog.IsWindowVisible());
    EXPECT_TRUE(parent.IsWindowEnabled());
    EXPECT_EQ(::GetWindow(dialog.m_hWnd, GW_OWNER), parent.m_hWnd);
    EXPECT_EQ(CWnd::FromHandlePermanent(dialog.m_hWnd), &dialog);
    HWND const window = dialog.m_hWnd;
    EXPECT_TRUE(dialog.DestroyWindow());
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_EQ(dialog.m_ended, 1);
}

TEST(ModelessDialog, MissingTemplateGivesFalse)
{
    tests::ScopedWindow parent;
    CModeless dialog;
    EXPECT_FALSE(dialog.Create(30001, parent));
    EXPECT_FALSE(dialog.Create(_T("NO_SUCH_DIALOG"), parent));
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(ModelessDialog, TheFailedObjectCanTryAgain)
{
    tests::ScopedWindow parent;
    CModeless dialog;
    ASSERT_FALSE(dialog.Create(30001, parent));
    EXPECT_TRUE(dialog.Create(_T("NAMED_DIALOG"), parent));
    dialog.DestroyWindow();
}

TEST(ModelessDialog, UnknownControlClassGivesFalse)
{
    tests::ScopedWindow parent;
    tests::DialogTemplate broken(L"Broken");
    broken.Add(L"no such window class", L"", 5, CRect(0, 0, 10, 10));
    CModeless dialog;
    EXPECT_FALSE(dialog.CreateIndirect(broken.Get(), parent));
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_EQ(dialog.m_ended, 1);
}

TEST(ModelessDialog, EndDuringInitialisationMakesCreateFail)
{
    tests::ScopedWindow parent;
    CModeless dialog;
    dialog.m_refuse = true;
    EXPECT_FALSE(dialog.Create(IDD_SIMPLE, parent));
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(ModelessDialog, DefaultOkHidesTheWindowAndKeepsIt)
{
    tests::ScopedWindow parent;
    CModeless dialog;
    ASSERT_TRUE(dialog.Create(IDD_SIMPLE, parent));
    dialog.ShowWindow(SW_SHOW);
    dialog.SendMessage(WM_COMMAND, IDOK);
    EXPECT_FALSE(dialog.IsWindowVisible());
    EXPECT_TRUE(::IsWindow(dialog.m_hWnd));
    dialog.DestroyWindow();
}

TEST(ModelessDialog, DeletesItselfAfterItsWindow)
{
    tests::ScopedWindow parent;
    int deleted = 0;
    auto * const dialog = new CSelfDeleting(deleted);
    ASSERT_TRUE(dialog->Create(IDD_SIMPLE, parent));
    dialog->SendMessage(WM_COMMAND, IDCANCEL);
    EXPECT_EQ(deleted, 1);
}

TEST(ModelessDialog, GoesWithItsOwner)
{
    CModeless dialog;
    {
        tests::ScopedWindow parent;
        ASSERT_TRUE(dialog.Create(IDD_SIMPLE, parent));
    }
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_EQ(dialog.m_ended, 1);
}

TEST(ModelessDialog, TheObjectsEndDestroysTheWindow)
{
    tests::ScopedWindow parent;
    HWND window = nullptr;
    {
        CDialog dialog;
        ASSERT_TRUE(dialog.Create(IDD_SIMPLE, parent));
        window = dialog.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(window));
}

TEST(ModelessDialog, ChildDialogStandsInsideItsParent)
{
    tests::ScopedWindow parent;
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_CHILD, parent));
    EXPECT_EQ(::GetParent(dialog.m_hWnd), parent.m_hWnd);
    CRect rect;
    dialog.GetWindowRect(&rect);
    parent.ScreenToClient(&rect);
    EXPECT_EQ(rect.TopLeft(), CPoint(0, 0));
    dialog.DestroyWindow();
}

TEST(ModelessDialog, KeyboardNavigationThroughTheMainLoop)
{
    tests::ScopedWindow parent;
    CModeless dialog;
    ASSERT_TRUE(dialog.Create(IDD_SIMPLE, parent));
    dialog.ShowWindow(SW_SHOW);
    ASSERT_TRUE(tests::BringToFront(dialog.m_hWnd));
    dialog.GetDlgItem(IDC_TEXT)->SetFocus();
    tests::Key(VK_TAB);
    EXPECT_TRUE(tests::PumpUntil([] { return FocusedId() == IDC_APPLY; }));
    tests::Key(VK_TAB, {VK_SHIFT});
    EXPECT_TRUE(tests::PumpUntil([] { return FocusedId() == IDC_TEXT; }));
    dialog.DestroyWindow();
}

TEST(ModelessDialog, InitialDataOfTheTemplateFillsTheControls)
{
    tests::ScopedWindow parent;
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_PRESET, parent));
    HWND const list = ::GetDlgItem(dialog.m_hWnd, IDC_DROP_LIST);
    EXPECT_EQ(::SendMessage(list, CB_GETCOUNT, 0, 0), 2);
    wchar_t text[16] = {};
    ::SendMessage(list, CB_GETLBTEXT, 1, reinterpret_cast<LPARAM>(text));
    EXPECT_STREQ(text, L"Green");
    dialog.DestroyWindow();
}

TEST(ModelessDialog, InitialDataInMemoryFillsTheControls)
{
    tests::ScopedWindow parent;
    tests::DialogTemplate memory(L"Memory");
    memory.Add(L"ComboBox", L"", 7, CRect(5, 5, 60, 60), CBS_DROPDOWNLIST | WS_TABSTOP);
    // Control, message, length in two words, text, end.
    unsigned char data[] = {7, 0, 0x03, 0x04, 5, 0, 0, 0, 'B', 'l', 'u', 'e', 0, 0, 0};
    CDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(memory.Get(), parent, data));
    wchar_t text[16] = {};
    dialog.SendDlgItemMessage(7, CB_GETLBTEXT, 0, reinterpret_cast<LPARAM>(text));
    EXPECT_STREQ(text, L"Blue");
    dialog.DestroyWindow();
}

TEST(ModelessDialog, MoveBetweenControls)
{
    tests::ScopedWindow parent;
    CModeless dialog;
    ASSERT_TRUE(dialog.Create(IDD_SIMPLE, parent));
    dialog.ShowWindow(SW_SHOW);
    ASSERT_TRUE(tests::BringToFront(dialog.m_hWnd));
    dialog.GotoDlgCtrl(dialog.GetDlgItem(IDC_APPLY));
    EXPECT_EQ(FocusedId(), IDC_APPLY);
    dialog.NextDlgCtrl();
    EXPECT_EQ(FocusedId(), IDOK);
    dialog.PrevDlgCtrl();
    dialog.PrevDlgCtrl();
    EXPECT_EQ(FocusedId(), IDC_TEXT);
    dialog.DestroyWindow();
}

TEST(ModelessDialog, DefaultButtonCanBeChanged)
{
    tests::ScopedWindow parent;
    CModeless dialog;
    ASSERT_TRUE(dialog.Create(IDD_SIMPLE, parent));
    EXPECT_EQ(dialog.GetDefID(), static_cast<DWORD>(MAKELONG(IDOK, DC_HASDEFID)));
    dialog.SetDefID(IDC_APPLY);
    EXPECT_EQ(LOWORD(dialog.GetDefID()), IDC_APPLY);
    EXPECT_EQ(HIWORD(dialog.GetDefID()), DC_HASDEFID);
    dialog.DestroyWindow();
}

TEST(ModelessDialog, MapDialogRectScalesWithTheFont)
{
    tests::ScopedWindow parent;
    CModeless dialog;
    ASSERT_TRUE(dialog.Create(IDD_SIMPLE, parent));
    CRect rect(0, 0, 160, 60); // the template's own size in dialog units
    dialog.MapDialogRect(&rect);
    CRect client;
    dialog.GetClientRect(&client);
    EXPECT_EQ(rect.Size(), client.Size());
    dialog.DestroyWindow();
}

TEST(ModelessDialog, FontOfTheTemplateIsAnnounced)
{
    tests::ScopedWindow parent;
    CModeless dialog;
    ASSERT_TRUE(dialog.Create(IDD_SIMPLE, parent));
    EXPECT_EQ(dialog.m_fonts, 1);
    EXPECT_NE(dialog.SendMessage(WM_GETFONT), 0);
    dialog.DestroyWindow();
}

TEST(ModelessDialog, CommandsGoOnToTheOwnerAndControlIdentifiersDoNot)
{
    CCommandParent parent;
    CModeless dialog;
    ASSERT_TRUE(dialog.Create(IDD_SIMPLE, &parent));
    dialog.SendMessage(WM_COMMAND, 40000);
    EXPECT_EQ(parent.m_commands, 1);
    dialog.SendMessage(WM_COMMAND, 100);
    EXPECT_EQ(parent.m_commands, 1);
    dialog.DestroyWindow();
}

TEST(ModelessDialog, MessagesOfAClickInOrder)
{
    tests::ScopedWindow parent;
    CModeless dialog;
    ASSERT_TRUE(dialog.Create(IDD_SIMPLE, parent));
    tests::MessageRecorder recorder({BM_CLICK, WM_COMMAND, WM_LBUTTONDOWN, WM_LBUTTONUP});
    recorder.Watch(dialog.m_hWnd, "dialog");
    recorder.Watch(::GetDlgItem(dialog.m_hWnd, IDC_APPLY), "button");
    ::PostMessage(::GetDlgItem(dialog.m_hWnd, IDC_APPLY), BM_CLICK, 0, 0);
    ASSERT_TRUE(tests::PumpUntil([&] { return recorder.Count("dialog", WM_COMMAND) > 0; }));
    EXPECT_TRUE(recorder.Matches({{.window = "button", .message = BM_CLICK, .way = tests::Way::posted},
                                  {.window = "button", .message = WM_LBUTTONDOWN},
                                  {.window = "dialog", .message = WM_COMMAND, .code = EN_KILLFOCUS, .optional = true},
                                  {.window = "button", .message = WM_LBUTTONUP},
                                  {.window = "dialog", .message = WM_COMMAND, .code = BN_CLICKED, .id = IDC_APPLY}}));
    dialog.DestroyWindow();
}

TEST(ModelessDialog, MnemonicsAreFoundFromAHiddenOrDisabledPart)
{
    tests::ScopedWindow parent;
    tests::DialogTemplate memory(L"Parts");
    memory.Add(L"Button", L"&Go", 101, CRect(10, 60, 50, 74), WS_TABSTOP);
    struct : CModeless
    {
        int m_clicks = 0;
        BOOL OnCommand(WPARAM wParam, LPARAM) override
        {
            m_clicks += wParam == MAKEWPARAM(101, BN_CLICKED) ? 1 : 0;
            return TRUE;
        }
    } dialog;
    ASSERT_TRUE(dialog.CreateIndirect(memory.Get(), parent));
    dialog.ShowWindow(SW_SHOW);
    CWnd part;
    ASSERT_TRUE(
        part.CreateEx(WS_EX_CONTROLPARENT, L"Static", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 80, 40), &dialog, 102));
    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 60, 20), &part, 103));
    int found = 0;
    for (bool const hide : {true, false})
    {
        if (hide)
            part.ModifyStyle(WS_VISIBLE, 0); // the edit may have the focus all the same
        else
        {
            part.ModifyStyle(0, WS_VISIBLE);
            part.EnableWindow(FALSE);
        }
        for (wchar_t const key : {L'g', L'q'})
        {
            MSG message{edit.m_hWnd, WM_SYSCHAR, static_cast<WPARAM>(key), 1 << 29, 0, {}};
            EXPECT_TRUE(dialog.IsDialogMessage(&message));
            tests::PumpPosted();
            found += key == L'g' ? 1 : 0;
            EXPECT_EQ(dialog.m_clicks, found);
        }
    }
    dialog.DestroyWindow();
}

TEST(ModelessDialog, LeavesNoGdiObjectsBehind)
{
    tests::ScopedWindow parent;
    EXPECT_EQ(tests::GdiGrowth([&] {
                  CModeless dialog;
                  ASSERT_TRUE(dialog.Create(IDD_EXCHANGE, parent));
                  dialog.ShowWindow(SW_SHOW);
                  dialog.UpdateWindow();
                  tests::PumpPosted();
                  dialog.DestroyWindow();
                  tests::PumpPosted();
              }),
              0);
}
} // namespace
