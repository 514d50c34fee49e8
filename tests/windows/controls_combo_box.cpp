// The combo box with numbered rows, completion and a tip.

#include <afxpriv.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "controls/ComboBoxX.h"
#include "controls_ControlTest.h"
#include "GuardedHeap.h"

namespace
{
constexpr UINT combo_id = 60;
constexpr int width = 120;

class OpenCombo : public controls::Watched<CComboBoxX>
{
public:
    using CComboBoxX::GetThisMessageMap;
    using CComboBoxX::m_autoComplete;
    using CComboBoxX::m_autoFit;
    using CComboBoxX::m_completeNow;
    using CComboBoxX::m_editable;
    using CComboBoxX::m_toolInfo;
    using CComboBoxX::m_toolTipWnd;
    using CComboBoxX::OnDropdown;

    bool TipShown() const { return ::IsWindowVisible(m_toolTipWnd) != FALSE; }
    CString TipText() const
    {
        wchar_t text[200] = L"";
        TOOLINFOW tool = m_toolInfo;
        tool.lpszText = text;
        ::SendMessage(m_toolTipWnd, TTM_GETTEXTW, 200, reinterpret_cast<LPARAM>(&tool));
        return text;
    }
};

/// Notes the notifications of its controls.
class Parent : public tests::ScopedWindow
{
public:
    Parent() : ScopedWindow(CRect(100, 100, 500, 400), WS_POPUP | WS_VISIBLE) {}

    std::vector<NMHDR> m_notifications;
    WPARAM m_id = 0;
    std::function<void()> m_onNotify;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_NOTIFY && reinterpret_cast<NMHDR *>(lParam)->code == static_cast<UINT>(NM_RETURN))
        {
            m_notifications.push_back(*reinterpret_cast<NMHDR *>(lParam));
            m_id = wParam;
            if (m_onNotify)
                m_onNotify();
            return 0;
        }
        return ScopedWindow::WindowProc(message, wParam, lParam);
    }
};

class ComboBoxXTest : public testing::Test
{
protected:
    void Open(DWORD style = CBS_DROPDOWNLIST, CFont * font = nullptr)
    {
        ASSERT_TRUE(m_combo.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_AUTOHSCROLL | style,
                                   CRect(20, 20, 20 + width, 200), &m_host, combo_id));
        if (font != nullptr)
            m_combo.SetFont(font);
        tests::PumpPosted();
    }
    CString Text()
    {
        CString text;
        m_combo.GetWindowText(text);
        return text;
    }
    CString Row(int row) const { return controls::RowText(m_combo, row); }
    int Data(int row) const { return controls::RowData(m_combo, row); }
    /// The client area without the button.
    CRect Field()
    {
        CRect field;
        m_combo.GetClientRect(field);
        field.right -= ::GetSystemMetrics(SM_CXHTHUMB) + 2;
        return field;
    }
    /// A text of W's whose width in the control's font, and that of one W more, lie on both sides of the field's.
    CString TextOfWidth(bool tooWide)
    {
        CString text;
        while (controls::TextWidth(m_combo, text + L"W") <= Field().Width() - 6)
            text += L"W";
        return tooWide ? text + L"W" : text;
    }
    /// A click into the edit field and the keys of the text.
    void Type(wchar_t const * text)
    {
        HWND const edit = ::FindWindowExW(m_combo.m_hWnd, nullptr, L"Edit", nullptr);
        ASSERT_TRUE(tests::BringToFront(m_host.m_hWnd));
        ::SetFocus(edit);
        for (wchar_t const * key = text; *key != 0; ++key)
        {
            SHORT const virtualKey = ::VkKeyScanW(*key);
            tests::Key(LOBYTE(virtualKey));
        }
    }

    Parent m_host;
    OpenCombo m_combo;
    tests::WindowCloser m_closer{m_combo};
};

using ComboBoxX = ComboBoxXTest;
using ComboBoxXRows = ComboBoxXTest;
using ComboBoxXWidth = ComboBoxXTest;
using ComboBoxXTip = ComboBoxXTest;
using ComboBoxXTyping = ComboBoxXTest;
using ComboBoxXHostile = ComboBoxXTest;
} // namespace

TEST_F(ComboBoxX, StartsWithItsDefaults)
{
    EXPECT_FALSE(m_combo.m_editable);
    EXPECT_FALSE(m_combo.m_autoComplete);
    EXPECT_FALSE(m_combo.m_completeNow);
    EXPECT_TRUE(m_combo.m_autoFit);
    EXPECT_TRUE(m_combo.IsKindOf(RUNTIME_CLASS(CComboBox)));
    m_combo.Editable(true);
    m_combo.AutoComplete(true);
    m_combo.AutoFit(false);
    EXPECT_TRUE(m_combo.m_editable);
    EXPECT_TRUE(m_combo.m_autoComplete);
    EXPECT_FALSE(m_combo.m_autoFit);
}

TEST_F(ComboBoxX, HandlesMovesTimersAndItsOwnEditUpdate)
{
    AFX_MSGMAP const * const map = OpenCombo::GetThisMessageMap();
    EXPECT_EQ(map->lpEntries[0].nMessage, static_cast<UINT>(WM_MOUSEMOVE));
    EXPECT_EQ(map->lpEntries[1].nMessage, static_cast<UINT>(WM_TIMER));
    EXPECT_EQ(map->lpEntries[2].nMessage, static_cast<UINT>(WM_COMMAND + WM_REFLECT_BASE));
    EXPECT_EQ(map->lpEntries[2].nCode, static_cast<UINT>(CBN_EDITUPDATE));
    EXPECT_EQ(map->lpEntries[3].nMessage, 0U);
}

TEST_F(ComboBoxX, HasItsTipFromTheStart)
{
    Open();
    ASSERT_TRUE(::IsWindow(m_combo.m_toolTipWnd));
    wchar_t name[32] = L"";
    ::GetClassNameW(m_combo.m_toolTipWnd, name, 32);
    EXPECT_STREQ(name, L"tooltips_class32");
    EXPECT_EQ(::GetWindowLongPtrW(m_combo.m_toolTipWnd, GWL_STYLE) & 0xFF, 3);
    EXPECT_EQ(::GetWindow(m_combo.m_toolTipWnd, GW_OWNER), m_host.m_hWnd);
    EXPECT_EQ(::SendMessage(m_combo.m_toolTipWnd, TTM_GETTOOLCOUNT, 0, 0), 1);
    EXPECT_EQ(::SendMessage(m_combo.m_toolTipWnd, TTM_GETMAXTIPWIDTH, 0, 0), 32767);
    EXPECT_EQ(static_cast<COLORREF>(::SendMessage(m_combo.m_toolTipWnd, TTM_GETTIPBKCOLOR, 0, 0)),
              ::GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(static_cast<COLORREF>(::SendMessage(m_combo.m_toolTipWnd, TTM_GETTIPTEXTCOLOR, 0, 0)),
              ::GetSysColor(COLOR_HIGHLIGHTTEXT));
    CRect margin;
    ::SendMessage(m_combo.m_toolTipWnd, TTM_GETMARGIN, 0, reinterpret_cast<LPARAM>(&margin));
    EXPECT_EQ(margin, CRect(0, -1, 0, -1));
    EXPECT_EQ(m_combo.m_toolInfo.cbSize, sizeof(TOOLINFOW));
    EXPECT_EQ(m_combo.m_toolInfo.uFlags, 288U);
    EXPECT_EQ(m_combo.m_toolInfo.hwnd, m_combo.m_hWnd);
    EXPECT_EQ(m_combo.m_toolInfo.uId, 0U);
    EXPECT_FALSE(m_combo.TipShown());
}

TEST_F(ComboBoxX, GivesItsFontToTheTipWhenItTakesOverAWindow)
{
    CFont font;
    font.CreatePointFont(140, L"Tahoma");
    HWND const native = ::CreateWindowExW(0, L"COMBOBOX", L"", WS_CHILD | CBS_DROPDOWNLIST, 0, 0, 100, 100,
                                          m_host.m_hWnd, nullptr, nullptr, nullptr);
    ::SendMessage(native, WM_SETFONT, reinterpret_cast<WPARAM>(font.GetSafeHandle()), FALSE);
    ASSERT_TRUE(m_combo.SubclassWindow(native));
    // Some platforms' tips keep a copy.
    LOGFONTW expected{};
    LOGFONTW given{};
    font.GetLogFont(&expected);
    ::GetObjectW(reinterpret_cast<HFONT>(::SendMessage(m_combo.m_toolTipWnd, WM_GETFONT, 0, 0)), sizeof given, &given);
    EXPECT_EQ(given.lfHeight, expected.lfHeight);
    EXPECT_STREQ(given.lfFaceName, expected.lfFaceName);
}

TEST_F(ComboBoxX, TipEndsWithItsWindow)
{
    Open();
    HWND const tip = m_combo.m_toolTipWnd;
    m_combo.DestroyWindow();
    EXPECT_FALSE(::IsWindow(tip));
    Open();
    HWND const second = m_combo.m_toolTipWnd;
    EXPECT_TRUE(::IsWindow(second));
    EXPECT_EQ(::SendMessage(second, TTM_GETTOOLCOUNT, 0, 0), 1);
    {
        OpenCombo inner;
        ASSERT_TRUE(inner.Create(WS_CHILD | CBS_DROPDOWN, CRect(0, 0, 50, 50), &m_host, 61));
        HWND const innerTip = inner.m_toolTipWnd;
        EXPECT_TRUE(::IsWindow(innerTip));
        HWND const left = inner.UnsubclassWindow();
        EXPECT_TRUE(::IsWindow(innerTip)) << "until the object ends";
        ::DestroyWindow(left);
    }
}

TEST_F(ComboBoxXRows, AreAddedWithTheirNumbers)
{
    Open();
    controls::ExpectRowsAreAddedWithTheirNumbers(m_combo);
}

TEST_F(ComboBoxXRows, KeepTheirNumbersWhereTheControlSorts)
{
    Open(CBS_DROPDOWNLIST | CBS_SORT);
    controls::ExpectSortedRowsKeepTheirNumbers(m_combo);
}

TEST_F(ComboBoxXRows, OfAListAreNumberedInOrder)
{
    Open();
    controls::ExpectRowsOfAListAreNumberedInOrder(m_combo);
}

TEST_F(ComboBoxXRows, OfAMapComeInTheOrderOfTheirKeysAfterTheBlankOne)
{
    Open();
    m_combo.AddItem(L"old", 1);
    m_combo.FillItems(std::map<int, CString>{{5, L"five"}, {2, L"two"}}, true);
    ASSERT_EQ(m_combo.GetCount(), 3);
    EXPECT_EQ(Row(0), L"\u2014");
    EXPECT_EQ(Data(0), -1);
    EXPECT_EQ(Row(1), L"two");
    EXPECT_EQ(Data(1), 2);
    EXPECT_EQ(Data(2), 5);
    m_combo.FillItems(std::map<int, CString>{{5, L"five"}}, false);
    EXPECT_EQ(m_combo.GetCount(), 1);
}

TEST_F(ComboBoxXRows, OfAMapWithTheKeyMinusOneHaveNoBlankOne)
{
    Open();
    m_combo.FillItems(std::map<int, CString>{{-1, L"none"}, {3, L"three"}}, true);
    ASSERT_EQ(m_combo.GetCount(), 2);
    EXPECT_EQ(Row(0), L"none");
    EXPECT_EQ(Data(0), -1);
}

TEST_F(ComboBoxXRows, AreFoundByTheirNumbersFromTheTop)
{
    Open();
    controls::ExpectRowsAreFoundByTheirNumbersFromTheTop(m_combo);
}

TEST_F(ComboBoxXRows, UnknownNumberKeepsTheSelection)
{
    Open();
    controls::ExpectAnUnknownNumberKeepsTheSelection(m_combo);
}

TEST_F(ComboBoxXRows, OfAControlWithoutAWindowAreNone)
{
    controls::ExpectABoxWithoutAWindowHasNoRows(m_combo);
    m_combo.FillItems(std::map<int, CString>{{1, L"a"}}, true);
    EXPECT_FALSE(m_combo.FitToWidth());
    m_combo.FitToEditWidth();
}

TEST_F(ComboBoxXWidth, GrowsToTheLongestEntryInTheSystemsFont)
{
    CFont font;
    font.CreatePointFont(200, L"Tahoma");
    Open(CBS_DROPDOWNLIST, &font);
    CString const text(L'm', 40);
    m_combo.AddItem(L"short", 1);
    m_combo.AddItem(text, 2);
    CClientDC dc(&m_combo);
    int const expected =
        dc.GetTextExtent(text).cx + ::GetSystemMetrics(SM_CXVSCROLL) + 2 * ::GetSystemMetrics(SM_CXEDGE);
    EXPECT_TRUE(m_combo.FitToWidth());
    EXPECT_EQ(m_combo.GetDroppedWidth(), expected);
    EXPECT_FALSE(m_combo.FitToWidth()) << "nothing changed";
    m_combo.ResetContent();
    m_combo.AddItem(L"short", 1);
    EXPECT_FALSE(m_combo.FitToWidth()) << "it never gets narrower";
    EXPECT_EQ(m_combo.GetDroppedWidth(), expected);
}

TEST_F(ComboBoxXWidth, BecomesTheControlsOwn)
{
    Open();
    m_combo.SetDroppedWidth(700);
    m_combo.FitToEditWidth();
    EXPECT_EQ(m_combo.GetDroppedWidth(), width);
}

TEST_F(ComboBoxXWidth, IsFittedWhenTheDropDownOpensIfWanted)
{
    Open();
    m_combo.AddItem(CString(L'm', 60), 1);
    int const before = m_combo.GetDroppedWidth();
    m_combo.AutoFit(false);
    m_combo.ShowDropDown(TRUE);
    m_combo.ShowDropDown(FALSE);
    EXPECT_EQ(m_combo.GetDroppedWidth(), before);
    m_combo.AutoFit(true);
    m_combo.ShowDropDown(TRUE);
    EXPECT_GT(m_combo.GetDroppedWidth(), before + 100);
    m_combo.ShowDropDown(FALSE);
}

/// Ends in what its tip tells it.
class ToldCombo : public OpenCombo
{
public:
    std::function<void()> m_onShown;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_NOTIFY && reinterpret_cast<NMHDR const *>(lParam)->code == TTN_SHOW && m_onShown)
        {
            auto const act = std::exchange(m_onShown, {});
            act();
            return 0;
        }
        return OpenCombo::WindowProc(message, wParam, lParam);
    }
};

TEST_F(ComboBoxXTip, OutlastsAComboBoxThatEndsAsItIsShown)
{
    tests::GuardedHeap heap;
    auto combo = std::make_unique<ToldCombo>();
    ASSERT_TRUE(combo->Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, CRect(10, 60, 10 + width, 200), &m_host, 9));
    combo->AddItem(CString(L'm', 60), 1);
    combo->SetCurSel(0);
    HWND const tip = combo->m_toolTipWnd;
    bool isThere = false;
    combo->m_onShown = [&] {
        combo.reset();
        isThere = ::IsWindow(tip) != FALSE;
        EXPECT_FALSE(::IsWindowVisible(tip));
        EXPECT_EQ(::GetWindow(tip, GW_OWNER), nullptr);
    };
    ::SendMessageW(combo->m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(width / 4, 8));
    EXPECT_EQ(combo, nullptr) << "it was told";
    EXPECT_TRUE(isThere) << "its native code goes on";
    EXPECT_FALSE(::IsWindow(tip));
}

TEST_F(ComboBoxXTip, LiesOverATextThatIsTooWide)
{
    Open();
    CString const text = TextOfWidth(true);
    m_combo.AddItem(text, 1);
    m_combo.SetCurSel(0);
    ::SetFocus(m_host.m_hWnd);
    tests::MessageRecorder recorder({TTM_TRACKPOSITION, TTM_TRACKACTIVATE});
    recorder.Watch(m_combo.m_toolTipWnd, "tip");
    CRect field = Field();
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_combo.m_hWnd, field.CenterPoint())));
    ASSERT_TRUE(tests::PumpUntil([this] { return m_combo.TipShown(); }));
    m_combo.ClientToScreen(field);
    ASSERT_GE(recorder.Received().size(), 2U);
    EXPECT_EQ(recorder.Received()[0].message, static_cast<UINT>(TTM_TRACKPOSITION));
    EXPECT_EQ(recorder.Received()[0].lParam, MAKELPARAM(field.left + 1, field.top + 3));
    EXPECT_EQ(recorder.Received()[1].wParam, static_cast<WPARAM>(TRUE));
    EXPECT_EQ(m_combo.TipText(), text);
    EXPECT_EQ(static_cast<COLORREF>(::SendMessage(m_combo.m_toolTipWnd, TTM_GETTIPBKCOLOR, 0, 0)),
              ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(static_cast<COLORREF>(::SendMessage(m_combo.m_toolTipWnd, TTM_GETTIPTEXTCOLOR, 0, 0)),
              ::GetSysColor(COLOR_WINDOWTEXT));

    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_host.m_hWnd, {300, 250})));
    EXPECT_TRUE(tests::PumpUntil([this] { return !m_combo.TipShown(); }));
    EXPECT_FALSE(m_combo.KillTimer(1)) << "the timer is gone";
}

TEST_F(ComboBoxXTip, HasTheColorsOfASelectionWhileTheControlHasTheFocus)
{
    Open();
    m_combo.AddItem(TextOfWidth(true), 1);
    m_combo.SetCurSel(0);
    ASSERT_TRUE(tests::BringToFront(m_host.m_hWnd));
    m_combo.SetFocus();
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_combo.m_hWnd, Field().CenterPoint())));
    ASSERT_TRUE(tests::PumpUntil([this] { return m_combo.TipShown(); }));
    EXPECT_EQ(static_cast<COLORREF>(::SendMessage(m_combo.m_toolTipWnd, TTM_GETTIPBKCOLOR, 0, 0)),
              ::GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(static_cast<COLORREF>(::SendMessage(m_combo.m_toolTipWnd, TTM_GETTIPTEXTCOLOR, 0, 0)),
              ::GetSysColor(COLOR_HIGHLIGHTTEXT));
    tests::MoveMouse(tests::ClientPoint(m_host.m_hWnd, {300, 250}));
    EXPECT_TRUE(tests::PumpUntil([this] { return !m_combo.TipShown(); }));
}

TEST_F(ComboBoxXTip, TextExactlySixPixelsNarrowerShowsNone)
{
    Open();
    CString const text = L"Text of some width";
    m_combo.AddItem(text, 1);
    m_combo.SetCurSel(0);
    // The control's width is made to fit the text: field = text + 6, then one less.
    int const spare = Field().Width() - 6 - controls::TextWidth(m_combo, text);
    CRect rect;
    m_combo.GetWindowRect(rect);
    m_combo.SetWindowPos(nullptr, 0, 0, rect.Width() - spare, rect.Height(), SWP_NOMOVE | SWP_NOZORDER);
    ASSERT_EQ(Field().Width() - 6, controls::TextWidth(m_combo, text));
    tests::MoveMouse(tests::ClientPoint(m_host.m_hWnd, {300, 250}));
    tests::PumpPosted();
    m_combo.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    EXPECT_FALSE(m_combo.TipShown());
    m_combo.SetWindowPos(nullptr, 0, 0, rect.Width() - spare - 1, rect.Height(), SWP_NOMOVE | SWP_NOZORDER);
    m_combo.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    EXPECT_TRUE(m_combo.TipShown());
    m_combo.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(Field().right + 1, 5));
    EXPECT_FALSE(m_combo.TipShown()) << "over the button";
}

TEST_F(ComboBoxXTip, IsMeasuredInTheControlsFont)
{
    CFont font;
    font.CreatePointFont(240, L"Tahoma");
    Open();
    m_combo.AddItem(L"Text of some", 1);
    m_combo.SetCurSel(0);
    m_combo.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    EXPECT_FALSE(m_combo.TipShown());
    m_combo.SetFont(&font);
    m_combo.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    EXPECT_TRUE(m_combo.TipShown());
}

TEST_F(ComboBoxXTip, TimerGoesOnWhileThePointerIsInTheField)
{
    Open();
    ASSERT_TRUE(tests::BringToFront(m_host.m_hWnd));
    m_combo.AddItem(TextOfWidth(true), 1);
    m_combo.SetCurSel(0);
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_combo.m_hWnd, Field().CenterPoint())));
    ASSERT_TRUE(tests::PumpUntil([this] { return m_combo.TipShown(); }));
    m_combo.SendMessage(WM_TIMER, 1);
    EXPECT_TRUE(m_combo.TipShown());
    EXPECT_TRUE(m_combo.KillTimer(1));
    m_combo.SetTimer(9, 100000, nullptr);
    tests::MoveMouse(tests::ClientPoint(m_host.m_hWnd, {300, 250}));
    m_combo.SendMessage(WM_TIMER, 9);
    EXPECT_FALSE(m_combo.TipShown()) << "any timer looks for the pointer";
    EXPECT_FALSE(m_combo.KillTimer(9)) << "and is ended";
}

TEST_F(ComboBoxXTip, AndTimerEndWithTheControl)
{
    Open();
    m_combo.AddItem(TextOfWidth(true), 1);
    m_combo.SetCurSel(0);
    m_combo.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    ASSERT_TRUE(m_combo.TipShown());
    HWND const tip = m_combo.m_toolTipWnd;
    HWND const window = m_combo.m_hWnd;
    m_combo.DestroyWindow();
    EXPECT_FALSE(::IsWindow(tip));
    EXPECT_FALSE(::KillTimer(window, 1));
}

TEST_F(ComboBoxXTyping, TwoLettersTakeTheFirstRowAndBackspaceRemovesItsTail)
{
    Open(CBS_DROPDOWN);
    m_combo.AutoComplete(true);
    m_combo.FillItems(std::list<CString>{L"zero", L"Amplitude", L"ampere"}, 0, true);
    Type(L"am");
    ASSERT_TRUE(tests::PumpUntil([this] { return Text() == L"Amplitude" && m_combo.GetEditSel() == MAKELONG(2, 9); }))
        << Text().GetString() << m_combo.GetEditSel();
    Type(L"\b");
    ASSERT_TRUE(tests::PumpUntil([this] { return Text().GetLength() == 2; }));
    EXPECT_EQ(Text().Left(1).MakeUpper(), L"A");
    EXPECT_FALSE(m_combo.m_completeNow);
    tests::PumpPosted();
    EXPECT_EQ(Text().GetLength(), 2) << "not completed again";
}

TEST_F(ComboBoxXTyping, CompletionMakesTheRowTheCurrentOne)
{
    // Typed by the user, the text takes the choice back on some platforms once the row is taken.
    Open(CBS_DROPDOWN);
    m_combo.AutoComplete(true);
    m_combo.FillItems(std::list<CString>{L"zero", L"Amplitude", L"ampere"}, 0, true);
    MSG key{m_combo.m_hWnd, WM_KEYDOWN, 'M', 0, 0, {}};
    m_combo.PreTranslateMessage(&key);
    m_combo.SetWindowText(L"am");
    m_combo.SetEditSel(2, 2);
    m_host.SendMessage(WM_COMMAND, MAKEWPARAM(combo_id, CBN_EDITUPDATE), reinterpret_cast<LPARAM>(m_combo.m_hWnd));
    EXPECT_EQ(m_combo.GetCurSel(), 1);
    EXPECT_EQ(Text(), L"Amplitude");
}

TEST_F(ComboBoxXTyping, NextLetterGoesOnAndAWrongOneStands)
{
    Open(CBS_DROPDOWN);
    m_combo.AutoComplete(true);
    m_combo.FillItems(std::list<CString>{L"ampere", L"amplitude"}, 0, true);
    Type(L"ampl");
    ASSERT_TRUE(tests::PumpUntil([this] { return Text() == L"amplitude" && m_combo.GetEditSel() == MAKELONG(4, 9); }));
    Type(L"x");
    ASSERT_TRUE(tests::PumpUntil([this] { return Text() == L"amplx"; }));
    EXPECT_EQ(m_combo.GetEditSel(), static_cast<DWORD>(MAKELONG(5, 5)));
}

TEST_F(ComboBoxXTyping, LetterWithinTheTextKeepsTheCaretThere)
{
    Open(CBS_DROPDOWN);
    m_combo.AutoComplete(true);
    m_combo.FillItems(std::list<CString>{L"ampere"}, 0, true);
    m_combo.SetWindowText(L"ap");
    HWND const edit = ::FindWindowExW(m_combo.m_hWnd, nullptr, L"Edit", nullptr);
    ASSERT_TRUE(tests::BringToFront(m_host.m_hWnd));
    ::SetFocus(edit);
    m_combo.SetEditSel(1, 1);
    tests::Key('M');
    ASSERT_TRUE(tests::PumpUntil([this] { return Text() == L"ampere"; }));
    EXPECT_EQ(m_combo.GetEditSel(), static_cast<DWORD>(MAKELONG(2, 2)));
}

TEST_F(ComboBoxXTyping, WithoutCompletionTextStaysAsTyped)
{
    Open(CBS_DROPDOWN);
    m_combo.FillItems(std::list<CString>{L"ampere"}, 0, true);
    Type(L"am");
    ASSERT_TRUE(tests::PumpUntil([this] { return Text() == L"am"; }));
    EXPECT_FALSE(m_combo.m_completeNow);
}

TEST_F(ComboBoxXTyping, KeysDecideWhetherToComplete)
{
    Open(CBS_DROPDOWN);
    m_combo.AutoComplete(true);
    MSG key{m_combo.m_hWnd, WM_KEYDOWN, 'A', 0, 0, {}};
    EXPECT_FALSE(m_combo.PreTranslateMessage(&key));
    EXPECT_TRUE(m_combo.m_completeNow);
    key.wParam = VK_DELETE;
    m_combo.PreTranslateMessage(&key);
    EXPECT_FALSE(m_combo.m_completeNow);
    key.wParam = VK_LEFT;
    m_combo.PreTranslateMessage(&key);
    EXPECT_TRUE(m_combo.m_completeNow);
    key.wParam = VK_BACK;
    m_combo.PreTranslateMessage(&key);
    EXPECT_FALSE(m_combo.m_completeNow);
    key.message = WM_KEYUP;
    key.wParam = 'A';
    m_combo.PreTranslateMessage(&key);
    EXPECT_FALSE(m_combo.m_completeNow) << "only when a key goes down";
}

TEST_F(ComboBoxXTyping, ReturnIsReportedToTheParentIfWanted)
{
    Open(CBS_DROPDOWN);
    Type(L"\r");
    tests::PumpFor(std::chrono::milliseconds(50));
    EXPECT_TRUE(m_host.m_notifications.empty());
    m_combo.Editable(true);
    Type(L"\r");
    ASSERT_TRUE(tests::PumpUntil([this] { return !m_host.m_notifications.empty(); }));
    EXPECT_EQ(m_host.m_notifications[0].hwndFrom, m_combo.m_hWnd);
    EXPECT_EQ(m_host.m_notifications[0].idFrom, combo_id);
    EXPECT_EQ(static_cast<int>(m_host.m_notifications[0].code), -4);
    EXPECT_EQ(m_host.m_id, combo_id);
    MSG key{m_combo.m_hWnd, WM_KEYDOWN, VK_RETURN, 0, 0, {}};
    EXPECT_EQ(m_combo.PreTranslateMessage(&key), 1) << "and goes nowhere else";
}

TEST_F(ComboBoxXTyping, ReturnGoesToTheOwnerRatherThanTheParent)
{
    Open(CBS_DROPDOWN);
    m_combo.Editable(true);
    Parent owner;
    m_combo.SetOwner(&owner);
    MSG key{m_combo.m_hWnd, WM_KEYDOWN, VK_RETURN, 0, 0, {}};
    EXPECT_EQ(m_combo.PreTranslateMessage(&key), 1);
    EXPECT_EQ(owner.m_notifications.size(), 1U);
    EXPECT_TRUE(m_host.m_notifications.empty());
}

TEST_F(ComboBoxXTyping, ReturnDoesNotCountAsAKeyThatCompletes)
{
    Open(CBS_DROPDOWN);
    m_combo.Editable(true);
    m_combo.AutoComplete(true);
    MSG key{m_combo.m_hWnd, WM_KEYDOWN, VK_RETURN, 0, 0, {}};
    m_combo.PreTranslateMessage(&key);
    EXPECT_FALSE(m_combo.m_completeNow);
}

TEST_F(ComboBoxXHostile, EndsWithinAnyOfItsMessagesWithoutHarm)
{
    std::list<CString> const texts{L"some text that is far too wide for the field of the control", L"b"};
    std::map<int, CString> const items{{1, texts.front()}, {2, L"b"}};
    using Action = std::function<void(OpenCombo &)>;
    std::vector<std::pair<UINT, Action>> const cases = {
        {CB_ADDSTRING, [](OpenCombo & one) { one.AddItem(L"x", 1); }},
        {CB_SETITEMDATA, [&](OpenCombo & one) { one.FillItems(texts, 1, true); }},
        {CB_RESETCONTENT, [&](OpenCombo & one) { one.FillItems(texts, 1, true); }},
        {CB_RESETCONTENT, [&](OpenCombo & one) { one.FillItems(items, true); }},
        {CB_ADDSTRING, [&](OpenCombo & one) { one.FillItems(items, true); }},
        {CB_GETITEMDATA, [](OpenCombo & one) { one.FindItemData(7); }},
        {CB_GETCOUNT, [](OpenCombo & one) { one.SelectItemData(1); }},
        {CB_SETCURSEL, [](OpenCombo & one) { one.SelectItemData(1); }},
        {CB_GETCURSEL, [](OpenCombo & one) { one.GetSelectedItemData(1); }},
        {CB_GETCOUNT, [](OpenCombo & one) { one.FitToWidth(); }},
        {CB_GETDROPPEDWIDTH, [](OpenCombo & one) { one.FitToWidth(); }},
        {CB_SETDROPPEDWIDTH, [](OpenCombo & one) { one.FitToWidth(); }},
        {WM_GETTEXT, [](OpenCombo & one) { one.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5)); }},
        {WM_GETFONT, [](OpenCombo & one) { one.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5)); }},
        {WM_TIMER, [](OpenCombo & one) { one.SendMessage(WM_TIMER, 1); }},
        {CB_GETEDITSEL,
         [this](OpenCombo & one) {
             one.m_autoComplete = one.m_completeNow = true;
             m_host.SendMessage(WM_COMMAND, MAKEWPARAM(62, CBN_EDITUPDATE), reinterpret_cast<LPARAM>(one.m_hWnd));
         }},
        {CB_GETCOUNT,
         [this](OpenCombo & one) {
             m_host.SendMessage(WM_COMMAND, MAKEWPARAM(62, CBN_DROPDOWN), reinterpret_cast<LPARAM>(one.m_hWnd));
         }},
    };
    int number = 0;
    for (auto const & [message, act] : cases)
    {
        SCOPED_TRACE(number++);
        auto * const doomed = new OpenCombo;
        ASSERT_TRUE(doomed->Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, CRect(0, 0, 90, 100), &m_host, 62));
        doomed->FillItems(texts, 1, true);
        doomed->SetCurSel(0);
        HWND const tip = doomed->m_toolTipWnd;
        controls::ExpectItMayEndIn<CComboBoxX>(message, doomed, [&action = act, doomed] { action(*doomed); });
        EXPECT_FALSE(::IsWindow(tip));
    }
}

TEST_F(ComboBoxXHostile, EndsWhenReturnIsReportedWithoutHarm)
{
    auto * const doomed = new OpenCombo;
    ASSERT_TRUE(doomed->Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, CRect(0, 0, 90, 100), &m_host, 62));
    doomed->Editable(true);
    doomed->AutoComplete(true);
    m_host.m_onNotify = [doomed] { delete doomed; };
    MSG key{doomed->m_hWnd, WM_KEYDOWN, VK_RETURN, 0, 0, {}};
    EXPECT_EQ(doomed->PreTranslateMessage(&key), 1);
}

TEST_F(ComboBoxXHostile, ListsThatTheHostChangesMeanwhileAreReadAsTheyWere)
{
    Open();
    std::list<CString> texts{L"a", L"b", L"c"};
    m_combo.On(CB_ADDSTRING, [&texts] { texts.clear(); });
    m_combo.FillItems(texts, 1, true);
    EXPECT_EQ(m_combo.GetCount(), 2) << "the first message was the host's";
    std::map<int, CString> items{{1, L"a"}, {2, L"b"}, {3, L"c"}};
    m_combo.On(CB_RESETCONTENT, [&items] { items.clear(); });
    m_combo.FillItems(items, false);
    EXPECT_EQ(m_combo.GetCount(), 2 + 3);
}

TEST_F(ComboBoxXHostile, OpeningsLeaveNoWindowBehind)
{
    int const before = tests::ThreadWindows();
    for (int i = 0; i < 500; ++i)
    {
        OpenCombo one;
        ASSERT_TRUE(one.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, CRect(0, 0, 60, 100), &m_host, 63));
        if (i % 2 == 0)
            one.DestroyWindow();
    }
    EXPECT_EQ(tests::ThreadWindows(), before);
}
