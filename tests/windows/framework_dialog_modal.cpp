// Modal dialogs: what DoModal gives, what becomes of the owner, the keyboard, nesting.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <cstring>
#include <functional>

#include "DialogTemplate.h"
#include "GuardedHeap.h"
#include "Input.h"
#include "Pump.h"
#include "resource.h"
#include "ScopedWindow.h"
#include "TestApp.h"

namespace
{
class CSimpleDialog : public CDialog
{
public:
    explicit CSimpleDialog(CWnd * parent = nullptr, UINT id = IDD_SIMPLE) : CDialog(id, parent) {}

    CString m_text;
    int m_applied = 0;
    int m_inits = 0;
    bool m_endAtOnce = false;
    bool m_throwAtStart = false;
    bool m_destroyAtStart = false;
    bool m_focusOnApply = false;

protected:
    void DoDataExchange(CDataExchange * pDX) override
    {
        CDialog::DoDataExchange(pDX);
        DDX_Text(pDX, IDC_TEXT, m_text);
    }

    BOOL OnInitDialog() override
    {
        ++m_inits;
        BOOL const result = CDialog::OnInitDialog();
        if (m_throwAtStart)
            AfxThrowUserException();
        if (m_endAtOnce)
            EndDialog(77);
        if (m_destroyAtStart)
            DestroyWindow();
        if (m_focusOnApply)
        {
            GetDlgItem(IDC_APPLY)->SetFocus();
            return FALSE;
        }
        return result;
    }

    void OnApply() { ++m_applied; }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CSimpleDialog, CDialog)
    ON_BN_CLICKED(IDC_APPLY, &CSimpleDialog::OnApply)
END_MESSAGE_MAP()

std::function<bool()> Shown(CDialog & dialog)
{
    return [&dialog] { return dialog.GetSafeHwnd() != nullptr && dialog.IsWindowVisible(); };
}

TEST(ModalDialog, ReturnsWhatEndDialogWasGiven)
{
    tests::ScopedWindow parent;
    CSimpleDialog dialog(parent);
    tests::LaterActions later;
    later.Add([&] { dialog.EndDialog(1234); }, Shown(dialog));
    EXPECT_EQ(dialog.DoModal(), 1234);
    EXPECT_EQ(dialog.GetSafeHwnd(), nullptr);
    EXPECT_FALSE(later.Failed());
}

TEST(ModalDialog, OkCommandSavesTheDataAndGivesIdOk)
{
    tests::ScopedWindow parent;
    CSimpleDialog dialog(parent);
    dialog.m_text = _T("before");
    tests::LaterActions later;
    CString shown;
    later.Add(
        [&] {
            dialog.GetDlgItemText(IDC_TEXT, shown);
            dialog.SetDlgItemText(IDC_TEXT, _T("after"));
            dialog.PostMessage(WM_COMMAND, IDOK);
        },
        Shown(dialog));
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(shown, _T("before"));
    EXPECT_EQ(dialog.m_text, _T("after"));
}

TEST(ModalDialog, CancelCommandLeavesTheDataAndGivesIdCancel)
{
    tests::ScopedWindow parent;
    CSimpleDialog dialog(parent);
    dialog.m_text = _T("before");
    tests::LaterActions later;
    later.Add(
        [&] {
            dialog.SetDlgItemText(IDC_TEXT, _T("after"));
            dialog.PostMessage(WM_COMMAND, IDCANCEL);
        },
        Shown(dialog));
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.m_text, _T("before"));
}

TEST(ModalDialog, CloseBoxCancels)
{
    tests::ScopedWindow parent;
    CSimpleDialog dialog(parent);
    tests::LaterActions later;
    later.Add([&] { dialog.PostMessage(WM_SYSCOMMAND, SC_CLOSE); }, Shown(dialog));
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST(ModalDialog, CanRunAgain)
{
    tests::ScopedWindow parent;
    CSimpleDialog dialog(parent);
    for (int run = 1; run <= 2; ++run)
    {
        tests::LaterActions later;
        later.Add([&] { dialog.EndDialog(run); }, Shown(dialog));
        EXPECT_EQ(dialog.DoModal(), run);
    }
    EXPECT_EQ(dialog.m_inits, 2);
}

TEST(ModalDialog, MissingTemplateGivesMinusOneAndLeavesTheOwnerEnabled)
{
    tests::ScopedWindow parent;
    CDialog byId(30001, parent);
    EXPECT_EQ(byId.DoModal(), -1);
    CDialog byName(_T("NO_SUCH_DIALOG"), parent);
    EXPECT_EQ(byName.DoModal(), -1);
    CDialog nothing;
    EXPECT_EQ(nothing.DoModal(), -1);
    EXPECT_TRUE(parent.IsWindowEnabled());
}

TEST(ModalDialog, UnknownControlClassGivesMinusOneAndLeavesTheOwnerEnabled)
{
    tests::ScopedWindow parent;
    tests::DialogTemplate broken(L"Broken");
    broken.Add(L"no such window class", L"", 5, CRect(0, 0, 10, 10));
    CDialog dialog;
    ASSERT_TRUE(dialog.InitModalIndirect(broken.Get(), parent));
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_EQ(dialog.GetSafeHwnd(), nullptr);
    EXPECT_TRUE(parent.IsWindowEnabled());
}

TEST(ModalDialog, TemplateIsFoundByName)
{
    tests::ScopedWindow parent;
    CDialog dialog(_T("NAMED_DIALOG"), parent);
    tests::LaterActions later;
    CString title;
    later.Add(
        [&] {
            dialog.GetWindowText(title);
            dialog.EndDialog(IDOK);
        },
        Shown(dialog));
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(title, _T("Named"));
}

TEST(ModalDialog, TemplateInMemory)
{
    tests::ScopedWindow parent;
    tests::DialogTemplate memory(L"Memory");
    memory.Add(L"Static", L"text", 9, CRect(5, 5, 50, 15));
    CDialog dialog;
    ASSERT_TRUE(dialog.InitModalIndirect(memory.Get(), parent));
    tests::LaterActions later;
    CString text;
    later.Add(
        [&] {
            dialog.GetDlgItemText(9, text);
            dialog.EndDialog(3);
        },
        Shown(dialog));
    EXPECT_EQ(dialog.DoModal(), 3);
    EXPECT_EQ(text, _T("text"));
}

TEST(ModalDialog, TemplateInAMemoryHandle)
{
    tests::ScopedWindow parent;
    tests::DialogTemplate memory(L"Handle");
    HGLOBAL const handle = ::GlobalAlloc(GMEM_MOVEABLE, memory.SizeInBytes());
    std::memcpy(::GlobalLock(handle), memory.Get(), memory.SizeInBytes());
    ::GlobalUnlock(handle);
    {
        CDialog dialog;
        ASSERT_TRUE(dialog.InitModalIndirect(handle, parent));
        tests::LaterActions later;
        later.Add([&] { dialog.EndDialog(4); }, Shown(dialog));
        EXPECT_EQ(dialog.DoModal(), 4);
    }
    EXPECT_EQ(::GlobalFlags(handle) & GMEM_LOCKCOUNT, 0u);
    ::GlobalFree(handle);
}

TEST(ModalDialog, OwnerIsDisabledWhileItRunsAndActiveAfterwards)
{
    tests::ScopedWindow parent;
    ASSERT_TRUE(tests::BringToFront(parent.m_hWnd));
    CSimpleDialog dialog(parent);
    tests::LaterActions later;
    BOOL enabledMeanwhile = TRUE;
    HWND owner = nullptr;
    later.Add(
        [&] {
            enabledMeanwhile = parent.IsWindowEnabled();
            owner = ::GetWindow(dialog.m_hWnd, GW_OWNER);
            dialog.EndDialog(IDOK);
        },
        Shown(dialog));
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_FALSE(enabledMeanwhile);
    EXPECT_EQ(owner, parent.m_hWnd);
    EXPECT_TRUE(parent.IsWindowEnabled());
    EXPECT_EQ(::GetActiveWindow(), parent.m_hWnd);
}

TEST(ModalDialog, ChildAsParentIsReplacedByItsTopLevelWindow)
{
    tests::ScopedWindow parent;
    CWnd child;
    ASSERT_TRUE(child.CreateEx(0, _T("STATIC"), _T(""), WS_CHILD | WS_VISIBLE, CRect(0, 0, 20, 20), parent, 5));
    CSimpleDialog dialog(&child);
    tests::LaterActions later;
    HWND owner = nullptr;
    BOOL enabledMeanwhile = TRUE;
    later.Add(
        [&] {
            owner = ::GetWindow(dialog.m_hWnd, GW_OWNER);
            enabledMeanwhile = parent.IsWindowEnabled();
            dialog.EndDialog(IDOK);
        },
        Shown(dialog));
    dialog.DoModal();
    EXPECT_EQ(owner, parent.m_hWnd);
    EXPECT_FALSE(enabledMeanwhile);
    EXPECT_TRUE(parent.IsWindowEnabled());
    EXPECT_TRUE(child.IsWindowEnabled());
}

TEST(ModalDialog, WithoutParentTheMainWindowOwnsIt)
{
    tests::ScopedWindow mainWindow;
    AfxGetApp()->m_pMainWnd = &mainWindow;
    CSimpleDialog dialog;
    tests::LaterActions later;
    HWND owner = nullptr;
    later.Add(
        [&] {
            owner = ::GetWindow(dialog.m_hWnd, GW_OWNER);
            dialog.EndDialog(IDOK);
        },
        Shown(dialog));
    dialog.DoModal();
    AfxGetApp()->m_pMainWnd = nullptr;
    EXPECT_EQ(owner, mainWindow.m_hWnd);
}

TEST(ModalDialog, OwnerThatWasDisabledBeforeStaysSo)
{
    tests::ScopedWindow parent;
    parent.EnableWindow(FALSE);
    CSimpleDialog dialog(parent);
    tests::LaterActions later;
    later.Add([&] { dialog.EndDialog(IDOK); }, Shown(dialog));
    dialog.DoModal();
    EXPECT_FALSE(parent.IsWindowEnabled());
}

TEST(ModalDialog, EndDuringInitialisationNeverShowsIt)
{
    tests::ScopedWindow parent;
    CSimpleDialog dialog(parent);
    dialog.m_endAtOnce = true;
    EXPECT_EQ(dialog.DoModal(), 77);
    EXPECT_EQ(dialog.GetSafeHwnd(), nullptr);
    EXPECT_TRUE(parent.IsWindowEnabled());
}

TEST(ModalDialog, ExceptionDuringInitialisationGivesMinusOne)
{
    tests::ScopedWindow parent;
    CSimpleDialog dialog(parent);
    dialog.m_throwAtStart = true;
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_EQ(dialog.GetSafeHwnd(), nullptr);
    EXPECT_TRUE(parent.IsWindowEnabled());
    tests::App().Reset(); // the report of the exception, if it has a text
}

TEST(ModalDialog, NestedDialogsEndFromTheInside)
{
    tests::ScopedWindow parent;
    CSimpleDialog outer(parent);
    CSimpleDialog inner(&outer);
    tests::LaterActions later;
    INT_PTR innerResult = 0;
    BOOL outerEnabledMeanwhile = TRUE;
    BOOL outerEnabledAfter = FALSE;
    BOOL parentEnabledAfterInner = TRUE;
    later.Add(
        [&] {
            later.Add(
                [&] {
                    outerEnabledMeanwhile = outer.IsWindowEnabled();
                    inner.EndDialog(11);
                },
                Shown(inner));
            innerResult = inner.DoModal();
            outerEnabledAfter = outer.IsWindowEnabled();
            parentEnabledAfterInner = parent.IsWindowEnabled();
            outer.EndDialog(22);
        },
        Shown(outer));
    EXPECT_EQ(outer.DoModal(), 22);
    EXPECT_EQ(innerResult, 11);
    EXPECT_FALSE(outerEnabledMeanwhile);
    EXPECT_TRUE(outerEnabledAfter);
    EXPECT_FALSE(parentEnabledAfterInner);
    EXPECT_TRUE(parent.IsWindowEnabled());
}

TEST(ModalDialog, DestroyedWhileItRunsEndsTheLoop)
{
    tests::ScopedWindow parent;
    CSimpleDialog dialog(parent);
    tests::LaterActions later;
    later.Add([&] { dialog.DestroyWindow(); }, Shown(dialog));
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_TRUE(parent.IsWindowEnabled());
}

TEST(ModalDialog, DestroyedDuringInitialisationEndsAtOnce)
{
    tests::ScopedWindow parent;
    CSimpleDialog dialog(parent);
    dialog.m_destroyAtStart = true;
    bool waited = false;
    tests::LaterActions later;
    later.Add([&] { waited = true; });
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_FALSE(waited) << "a message had to come first";
    EXPECT_TRUE(parent.IsWindowEnabled());
    EXPECT_EQ(dialog.GetSafeHwnd(), nullptr);

    dialog.m_destroyAtStart = false;
    tests::LaterActions end;
    end.Add([&] { dialog.EndDialog(5); }, Shown(dialog));
    EXPECT_EQ(dialog.DoModal(), 5) << "it can be shown again";
}

TEST(ModalDialog, DestroyedByItsOwnerWhileIdleEndsAtOnce)
{
    class IdleOwner : public tests::ScopedWindow
    {
    public:
        CDialog * m_dialog = nullptr;
        bool m_destroyed = false;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_ENTERIDLE && m_dialog->GetSafeHwnd() != nullptr)
            {
                m_dialog->DestroyWindow();
                m_destroyed = true;
            }
            return ScopedWindow::WindowProc(message, wParam, lParam);
        }
    };
    IdleOwner parent;
    CSimpleDialog dialog(parent);
    parent.m_dialog = &dialog;
    bool waited = false;
    tests::LaterActions later;
    later.Add([&] { waited = true; }, [&] { return parent.m_destroyed; });
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_TRUE(parent.m_destroyed);
    EXPECT_FALSE(waited) << "a message had to come first";
    EXPECT_TRUE(parent.IsWindowEnabled());
}

TEST(ModelessDialog, MayDestroyItsWindowAndItselfDuringInitialisation)
{
    class SelfDeleting : public CDialog
    {
    public:
        int * m_deleted = nullptr;

    protected:
        BOOL OnInitDialog() override
        {
            CDialog::OnInitDialog();
            DestroyWindow();
            return TRUE;
        }
        void PostNcDestroy() override
        {
            ++*m_deleted;
            delete this;
        }
    };
    tests::ScopedWindow parent;
    int deleted = 0;
    tests::GuardedHeap heap;
    auto * const dialog = new SelfDeleting;
    dialog->m_deleted = &deleted;
    EXPECT_FALSE(dialog->Create(IDD_SIMPLE, parent));
    EXPECT_EQ(deleted, 1);
    EXPECT_EQ(heap.Check(), 0u);
}

TEST(ModalDialog, EndModalLoopGivesTheResult)
{
    tests::ScopedWindow parent;
    CSimpleDialog dialog(parent);
    tests::LaterActions later;
    later.Add([&] { dialog.EndModalLoop(55); }, Shown(dialog));
    EXPECT_EQ(dialog.DoModal(), 55);
}

TEST(ModalDialog, ReturnKeyPressesTheDefaultButton)
{
    tests::ScopedWindow parent;
    ASSERT_TRUE(tests::BringToFront(parent.m_hWnd));
    CSimpleDialog dialog(parent);
    tests::LaterActions later;
    later.Add([&] { tests::Key(VK_RETURN); },
              [&] { return Shown(dialog)() && ::GetForegroundWindow() == dialog.m_hWnd && ::GetFocus() != nullptr; });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_FALSE(later.Failed());
}

TEST(ModalDialog, EscapeKeyCancels)
{
    tests::ScopedWindow parent;
    ASSERT_TRUE(tests::BringToFront(parent.m_hWnd));
    CSimpleDialog dialog(parent);
    tests::LaterActions later;
    later.Add([&] { tests::Key(VK_ESCAPE); },
              [&] { return Shown(dialog)() && ::GetForegroundWindow() == dialog.m_hWnd && ::GetFocus() != nullptr; });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_FALSE(later.Failed());
}

TEST(ModalDialog, TabMovesTheFocusAndReturnPressesTheFocusedButton)
{
    tests::ScopedWindow parent;
    ASSERT_TRUE(tests::BringToFront(parent.m_hWnd));
    CSimpleDialog dialog(parent);
    tests::LaterActions later;
    auto const focusIs = [&](int id) {
        return Shown(dialog)() && ::GetForegroundWindow() == dialog.m_hWnd &&
               ::GetFocus() == ::GetDlgItem(dialog.m_hWnd, id);
    };
    later.Add([&] { tests::Key(VK_TAB); }, [&] { return focusIs(IDC_TEXT); });
    later.Add([&] { tests::Key(VK_RETURN); }, [&] { return focusIs(IDC_APPLY); });
    later.Add([&] { tests::Key(VK_TAB, {VK_SHIFT}); }, [&] { return dialog.m_applied == 1; });
    later.Add([&] { dialog.EndDialog(9); }, [&] { return focusIs(IDC_TEXT); });
    EXPECT_EQ(dialog.DoModal(), 9);
    EXPECT_EQ(dialog.m_applied, 1);
    EXPECT_FALSE(later.Failed());
}

TEST(ModalDialog, TypedTextReachesTheFirstControl)
{
    tests::ScopedWindow parent;
    ASSERT_TRUE(tests::BringToFront(parent.m_hWnd));
    CSimpleDialog dialog(parent);
    tests::LaterActions later;
    later.Add([&] { tests::Type(L"Hz\u00B2"); },
              [&] { return Shown(dialog)() && ::GetFocus() == ::GetDlgItem(dialog.m_hWnd, IDC_TEXT); });
    later.Add([&] { tests::Key(VK_RETURN); },
              [&] {
                  CString text;
                  dialog.GetDlgItemText(IDC_TEXT, text);
                  return text.GetLength() == 3;
              });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.m_text, L"Hz\u00B2");
}

TEST(ModalDialog, FocusStaysWhereInitialisationPutIt)
{
    tests::ScopedWindow parent;
    ASSERT_TRUE(tests::BringToFront(parent.m_hWnd));
    CSimpleDialog dialog(parent);
    dialog.m_focusOnApply = true;
    tests::LaterActions later;
    HWND focus = nullptr;
    later.Add(
        [&] {
            focus = ::GetFocus() == ::GetDlgItem(dialog.m_hWnd, IDC_APPLY) ? ::GetFocus() : nullptr;
            dialog.EndDialog(IDOK);
        },
        [&] { return Shown(dialog)() && ::GetForegroundWindow() == dialog.m_hWnd; });
    dialog.DoModal();
    EXPECT_NE(focus, nullptr);
}

TEST(ModalDialog, OpenPositionIsCentredOnTheOwner)
{
    tests::ScopedWindow parent(CRect(200, 150, 800, 650));
    CSimpleDialog dialog(parent);
    tests::LaterActions later;
    CRect rect;
    later.Add(
        [&] {
            dialog.GetWindowRect(&rect);
            dialog.EndDialog(IDOK);
        },
        Shown(dialog));
    dialog.DoModal();
    EXPECT_NEAR(rect.CenterPoint().x, 500, 1);
    EXPECT_NEAR(rect.CenterPoint().y, 400, 1);
}
} // namespace
