// Creation and end, the fields' beginnings, and items from resources.

#include "combo_ComboTest.h"
#include "GdiHandleCount.h"
#include "MessageRecorder.h"
#include "resource.h"

using namespace combo_test;

namespace
{
class ComboLife : public ComboTest
{
};

int WindowCount();

/// Two suites, since a thousand openings take their time.
class ComboOpenings : public ComboTest
{
protected:
    void OpenAndClose(DWORD style)
    {
        MakeCombo(style, Numbered(5));
        m_combo->SetFocus();
        auto const cycle = [this] {
            m_combo->ShowDropDown();
            EXPECT_TRUE(m_combo->GetDroppedState());
            m_combo->ShowDropDown(false);
        };
        for (int i = 0; i < 20; ++i)
            cycle();
        tests::PumpPosted();
        int const objects = tests::GdiHandleCount();
        int const windows = WindowCount();
        for (int i = 0; i < 1000; ++i)
        {
            cycle();
            if (i % 100 == 0)
                tests::PumpPosted();
        }
        tests::PumpPosted();
        EXPECT_EQ(tests::GdiHandleCount(), objects);
        EXPECT_EQ(WindowCount(), windows);
        EXPECT_EQ(::GetCapture(), nullptr);
    }
};

class ComboEditOpenings : public ComboOpenings
{
};

int WindowCount()
{
    int count = 0;
    auto const counter = [](HWND, LPARAM result) {
        ++*reinterpret_cast<int *>(result);
        return TRUE;
    };
    ::EnumThreadWindows(::GetCurrentThreadId(), counter, reinterpret_cast<LPARAM>(&count));
    return count;
}
} // namespace

TEST_F(ComboLife, FieldsBeginAsSpecified)
{
    TestCombo combo(nullptr);
    EXPECT_EQ(combo.m_ctorWord, 0u);
    EXPECT_EQ(combo.m_parent, nullptr);
    EXPECT_EQ(combo.m_curSel, -1);
    EXPECT_EQ(combo.m_edit, nullptr);
    EXPECT_EQ(combo.m_text, L"");
    EXPECT_EQ(combo.m_font, nullptr);
    EXPECT_EQ(combo.m_style, 0u);
    EXPECT_EQ(combo.m_comboFlags, 2u);
    EXPECT_EQ(combo.m_drop, nullptr);
    EXPECT_FALSE(combo.m_dropVisible);
    EXPECT_FALSE(combo.m_dropRectValid);
    EXPECT_TRUE(combo.m_items.empty());
    EXPECT_EQ(combo.m_wheel, 0);
    EXPECT_FALSE(combo.m_focused);
    EXPECT_FALSE(combo.m_focusNotified);
    EXPECT_FALSE(combo.m_selMade);
    EXPECT_TRUE(combo.m_firstPaint);
    EXPECT_EQ(combo.m_minVisible, 5);
    EXPECT_FALSE(combo.m_createdByCode);
    EXPECT_EQ(combo.m_autoAppendArmed, 1u);
    EXPECT_FALSE(combo.m_hot);
    EXPECT_FALSE(combo.m_hotTimer);
    EXPECT_EQ(combo.m_maxVisible, -1);
}

TEST_F(ComboLife, ConstructorsRegisterTheWindowClass)
{
    TestCombo const combo(nullptr);
    WNDCLASS description = {};
    ASSERT_TRUE(::GetClassInfo(AfxGetInstanceHandle(), L"SuperComboBox", &description));
    EXPECT_EQ(description.style, 11u);
    EXPECT_EQ(description.hCursor, ::LoadCursor(nullptr, IDC_ARROW));
    EXPECT_EQ(description.hbrBackground, reinterpret_cast<HBRUSH>(5));
    EXPECT_EQ(description.lpszMenuName, nullptr);
    TestCombo const other(nullptr);
}

TEST_F(ComboLife, LinesOfTheControlsStringAreItems)
{
    TestCombo combo(&m_host);
    combo.AddString(L"gone");
    ASSERT_TRUE(combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, m_place, &m_host, IDS_COMBO_LINES));
    ASSERT_EQ(combo.GetCount(), 2);
    CString text;
    EXPECT_EQ(combo.GetLBText(0, text), 6);
    EXPECT_EQ(text, L"first");
    EXPECT_EQ(combo.GetLBText(1, text), 7);
    EXPECT_EQ(text, L"second");
    EXPECT_EQ(combo.m_style, static_cast<DWORD>(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST));
    EXPECT_TRUE(combo.m_createdByCode);
}

TEST_F(ComboLife, WithoutAStringTheItemsStay)
{
    TestCombo combo(&m_host);
    combo.AddString(L"stays");
    ASSERT_TRUE(combo.Create(WS_CHILD | CBS_DROPDOWNLIST, m_place, &m_host, combo_id));
    EXPECT_EQ(combo.GetCount(), 1);
}

TEST_F(ComboLife, TakesTheParentsFont)
{
    CFont font;
    font.CreatePointFont(140, L"Tahoma");
    class FontParent : public ComboParent
    {
    public:
        CFont * m_font = nullptr;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            return message == WM_GETFONT && m_font != nullptr ? reinterpret_cast<LRESULT>(m_font->GetSafeHandle())
                                                              : ComboParent::WindowProc(message, wParam, lParam);
        }
    } parent;
    parent.m_font = &font;
    TestCombo combo(&parent);
    ASSERT_TRUE(combo.Create(WS_CHILD | CBS_DROPDOWNLIST, m_place, &parent, combo_id));
    ASSERT_NE(combo.m_font, nullptr);
    EXPECT_EQ(combo.GetComboFont(), combo.m_font.get());
    EXPECT_NE(combo.m_font->GetSafeHandle(), font.GetSafeHandle());
    LOGFONT expected = {};
    LOGFONT actual = {};
    font.GetLogFont(&expected);
    combo.m_font->GetLogFont(&actual);
    EXPECT_EQ(actual.lfHeight, expected.lfHeight);
    EXPECT_STREQ(actual.lfFaceName, expected.lfFaceName);
}

TEST_F(ComboLife, EditFieldComesWithTheActivationOfTheChild)
{
    TestCombo combo(&m_host);
    ASSERT_TRUE(combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN | CBS_AUTOHSCROLL, m_place, &m_host, combo_id));
    EXPECT_EQ(combo.m_edit, nullptr);
    combo.SetWindowText(L"free");
    combo.BringWindowToTop();
    ASSERT_NE(combo.m_edit, nullptr);
    EXPECT_EQ(combo.m_edit->GetDlgCtrlID(), 108);
    EXPECT_NE(combo.m_edit->GetStyle() & ES_AUTOHSCROLL, 0u);
    CString text;
    combo.m_edit->GetWindowText(text);
    EXPECT_EQ(text, L"free");

    CRect edit;
    combo.m_edit->GetWindowRect(edit);
    combo.ScreenToClient(edit);
    CRect client;
    combo.GetClientRect(client);
    EXPECT_EQ(edit, CRect(3, 4, client.right - ::GetSystemMetrics(SM_CXHSCROLL) - 2, client.bottom - 2));
}

TEST_F(ComboLife, EditFieldFillsTheFrameWithoutTheInsideFlag)
{
    TestCombo combo(&m_host);
    ASSERT_TRUE(combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, m_place, &m_host, combo_id));
    combo.ModifyComboFlags(0, XListCtrl::combo_edit_plain);
    EXPECT_EQ(combo.m_comboFlags, 1u);
    combo.BringWindowToTop();
    ASSERT_NE(combo.m_edit, nullptr);
    EXPECT_EQ(combo.m_edit->GetStyle() & ES_AUTOHSCROLL, 0u);
    CRect edit;
    combo.m_edit->GetWindowRect(edit);
    combo.ScreenToClient(edit);
    CRect client;
    combo.GetClientRect(client);
    EXPECT_EQ(edit, CRect(0, 0, client.right - ::GetSystemMetrics(SM_CXHSCROLL), client.bottom));
}

TEST_F(ComboLife, OnlyADropDownHasAnEditField)
{
    for (DWORD const style : {DWORD(CBS_DROPDOWNLIST), DWORD(CBS_SIMPLE), DWORD(0)})
    {
        TestCombo combo(&m_host);
        ASSERT_TRUE(combo.Create(WS_CHILD | WS_VISIBLE | style, m_place, &m_host, combo_id));
        combo.BringWindowToTop();
        EXPECT_EQ(combo.m_edit, nullptr) << style;
    }
}

TEST_F(ComboLife, ControlOfATemplateIsSubclassed)
{
    TestCombo const registers(nullptr);
    tests::ScopedWindow parent;
    HWND const control =
        ::CreateWindowEx(0, L"SuperComboBox", L"", WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, 10, 10, 150, 24, parent.m_hWnd,
                         reinterpret_cast<HMENU>(IDS_COMBO_LINES), AfxGetInstanceHandle(), nullptr);
    TestCombo combo(nullptr);
    ASSERT_TRUE(combo.SubclassWindow(control));
    EXPECT_EQ(combo.m_parent, &parent);
    EXPECT_EQ(combo.GetCount(), 2);
    ASSERT_NE(combo.m_edit, nullptr);
    EXPECT_NE(combo.m_font, nullptr);
    EXPECT_EQ(combo.GetCurSel(), -1);
}

TEST_F(ComboLife, PopupIsMadeWithTheClassName)
{
    TestCombo combo(&m_host);
    CRect rect(200, 200, 350, 224);
    ASSERT_TRUE(combo.CreateEx(WS_EX_CONTROLPARENT, L"SuperComboBox", L"", WS_POPUP | WS_VISIBLE | CBS_DROPDOWNLIST,
                               rect, &m_host, 0));
    EXPECT_NE(combo.m_font, nullptr);
    EXPECT_EQ(combo.m_edit, nullptr);
    combo.AddString(L"a");
    combo.ShowDropDown();
    EXPECT_TRUE(combo.GetDroppedState());
    combo.DestroyWindow();
    EXPECT_FALSE(combo.GetDroppedState());
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(ComboLife, EditAsksForTheForegroundOnceAMomentLater)
{
    TestCombo combo(&m_host);
    ASSERT_TRUE(combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, m_place, &m_host, combo_id));
    combo.BringWindowToTop();
    ASSERT_NE(combo.m_edit, nullptr);
    tests::MessageRecorder recorder({WM_TIMER});
    recorder.Watch(combo.m_edit->m_hWnd, "edit");
    ASSERT_TRUE(tests::PumpUntil([&] { return recorder.Count("edit", WM_TIMER) > 0; }));
    // The timer was ended.
    EXPECT_FALSE(::KillTimer(combo.m_edit->m_hWnd, 1));
}

TEST_F(ComboLife, FirstPaintGivesTheEditTextAndState)
{
    TestCombo combo(&m_host);
    ASSERT_TRUE(combo.Create(WS_CHILD | WS_VISIBLE | WS_DISABLED | CBS_DROPDOWN, m_place, &m_host, combo_id));
    combo.AddString(L"one");
    combo.BringWindowToTop();
    combo.SetCurSel(0);
    EXPECT_TRUE(combo.m_firstPaint);
    ASSERT_TRUE(tests::PumpUntil([&] { return !combo.m_firstPaint; }));
    CString text;
    combo.GetWindowText(text);
    EXPECT_EQ(text, L"one");
    EXPECT_FALSE(combo.m_edit->IsWindowEnabled());
    combo.EnableWindow(TRUE);
    EXPECT_TRUE(combo.m_edit->IsWindowEnabled());
    // From then on the edit field has a text of its own.
    combo.AddString(L"two");
    combo.SetCurSel(1);
    combo.UpdateWindow();
    combo.GetWindowText(text);
    EXPECT_EQ(text, L"one");
    EXPECT_EQ(combo.m_text, L"two");
}

TEST_F(ComboLife, DestroyedComboTakesItsDropWindowAlong)
{
    MakeCombo(CBS_DROPDOWN);
    int const windows = WindowCount();
    ASSERT_TRUE(Open());
    m_combo->DestroyWindow();
    EXPECT_FALSE(m_combo->GetDroppedState());
    EXPECT_EQ(m_combo->m_edit, nullptr);
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(WindowCount(), windows);

    // The object serves a window again.
    ASSERT_TRUE(m_combo->Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, m_place, &m_host, combo_id));
    m_combo->BringWindowToTop();
    EXPECT_NE(m_combo->m_edit, nullptr);
    EXPECT_TRUE(Open());
}

TEST_F(ComboLife, DeletedComboTakesItsDropWindowAlong)
{
    MakeCombo(CBS_DROPDOWN);
    int const windows = WindowCount();
    m_combo->SetFocus();
    ASSERT_TRUE(Open());
    m_combo.reset();
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(WindowCount(), windows);
    EXPECT_EQ(m_host.TakeHeard(), Heard{}); // nobody hears of a half deleted object
}

TEST_F(ComboLife, CombosLeaveNothingBehind)
{
    auto const cycle = [this](DWORD style) {
        TestCombo combo(&m_host);
        ASSERT_TRUE(combo.Create(WS_CHILD | WS_VISIBLE | style, m_place, &m_host, combo_id));
        combo.AddString(L"a");
        combo.BringWindowToTop();
        combo.UpdateWindow();
        combo.ShowDropDown();
        combo.DestroyWindow();
    };
    for (int i = 0; i < 5; ++i)
        cycle(i % 2 == 0 ? CBS_DROPDOWN : CBS_DROPDOWNLIST);
    tests::PumpPosted();
    int const objects = tests::GdiHandleCount();
    for (int i = 0; i < 200; ++i)
        cycle(i % 2 == 0 ? CBS_DROPDOWN : CBS_DROPDOWNLIST);
    tests::PumpPosted();
    EXPECT_EQ(tests::GdiHandleCount(), objects);
}

TEST_F(ComboOpenings, LeaveNothingBehind)
{
    OpenAndClose(CBS_DROPDOWNLIST);
}

TEST_F(ComboEditOpenings, LeaveNothingBehind)
{
    OpenAndClose(CBS_DROPDOWN);
}
