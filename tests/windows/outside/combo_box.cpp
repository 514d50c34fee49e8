// The extended combo box.

#include "ControlTest.h"

namespace outside::controls
{
namespace
{

class Combo : public CComboBoxX
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
    using CComboBoxX::OnEditupdate;
    using CComboBoxX::OnMouseMove;
    using CComboBoxX::OnTimer;

    int defaultTimers = 0;
    int defaultMoves = 0;

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        defaultTimers += message == WM_TIMER ? 1 : 0;
        defaultMoves += message == WM_MOUSEMOVE ? 1 : 0;
        return CComboBoxX::DefWindowProc(message, wParam, lParam);
    }
};

std::map<int, CString> Map(std::initializer_list<std::pair<int const, wchar_t const *>> items)
{
    std::map<int, CString> map;
    for (std::pair<int const, wchar_t const *> const & each : items)
        map[each.first] = each.second;
    return map;
}

std::vector<std::wstring> Texts(CComboBox const & combo)
{
    std::vector<std::wstring> texts;
    for (int i = 0; i < combo.GetCount(); ++i)
    {
        CString text;
        combo.GetLBText(i, text);
        texts.push_back(W(text));
    }
    return texts;
}
std::vector<int> Data(CComboBox const & combo)
{
    std::vector<int> data;
    for (int i = 0; i < combo.GetCount(); ++i)
        data.push_back(static_cast<int>(combo.GetItemData(i)));
    return data;
}
using TextList = std::vector<std::wstring>;
using Ints = std::vector<int>;

class OutsideCombo : public testing::Test
{
protected:
    void Make(Combo & combo, DWORD style, CRect const & rect = CRect(20, 20, 160, 220))
    {
        ASSERT_TRUE(combo.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | style, rect, m_host, 33));
    }
    Host m_host;
};

TEST_F(OutsideCombo, DefaultsAndMap)
{
    Combo c;
    EXPECT_FALSE(c.m_editable);
    EXPECT_FALSE(c.m_autoComplete);
    EXPECT_FALSE(c.m_completeNow);
    EXPECT_TRUE(c.m_autoFit);
    void const * const order[] = {&c.m_toolTipWnd,   &c.m_toolInfo,    &c.m_editable,
                                  &c.m_autoComplete, &c.m_completeNow, &c.m_autoFit};
    for (std::size_t i = 1; i < std::size(order); ++i)
        EXPECT_LT(order[i - 1], order[i]);
    std::vector<MapEntry> const entries = EntriesOf(Combo::GetThisMessageMap());
    EXPECT_TRUE(Handles(entries, WM_MOUSEMOVE));
    EXPECT_TRUE(Handles(entries, WM_TIMER));
    bool update = false;
    for (MapEntry const & each : entries)
        update = update || each.code == CBN_EDITUPDATE;
    EXPECT_TRUE(update);
    EXPECT_EQ(entries.size(), 3u);
    c.AutoComplete(true);
    c.AutoFit(false);
    c.Editable(true);
    EXPECT_TRUE(c.m_autoComplete);
    EXPECT_FALSE(c.m_autoFit);
    EXPECT_TRUE(c.m_editable);
    c.AutoComplete(false);
    c.AutoFit(true);
    c.Editable(false);
    EXPECT_FALSE(c.m_autoComplete);
    EXPECT_TRUE(c.m_autoFit);
    EXPECT_FALSE(c.m_editable);
}

TEST_F(OutsideCombo, SortedComboKeepsTextAndValueTogether)
{
    Combo c;
    Make(c, CBS_DROPDOWNLIST | CBS_SORT);
    EXPECT_EQ(c.AddItem(L"b", 1), 0);
    EXPECT_EQ(c.AddItem(L"a", 2), 0);
    EXPECT_EQ(c.AddItem(L"c", 3), 2);
    EXPECT_EQ(Data(c), (Ints{2, 1, 3}));
    c.FillItems(std::list<CString>{L"z", L"y", L"x"}, 10, true);
    EXPECT_EQ(Texts(c), (TextList{L"x", L"y", L"z"}));
    EXPECT_EQ(Data(c), (Ints{12, 11, 10}));
    c.FillItems(Map({{1, L"q"}, {2, L"p"}}), false);
    EXPECT_EQ(Data(c), (Ints{2, 1}));
    c.DestroyWindow();
}

TEST_F(OutsideCombo, FillItemsOfAMap)
{
    Combo c;
    Make(c, CBS_DROPDOWNLIST);
    c.AddItem(L"old", 1);
    c.FillItems(Map({{3, L"c"}, {-7, L"m"}, {1, L"a"}}), false);
    EXPECT_EQ(Texts(c), (TextList{L"m", L"a", L"c"}));
    EXPECT_EQ(Data(c), (Ints{-7, 1, 3}));
    c.FillItems(Map({{3, L"c"}, {1, L"a"}}), true);
    EXPECT_EQ(Texts(c), (TextList{L"\u2014", L"a", L"c"}));
    EXPECT_EQ(Data(c), (Ints{-1, 1, 3}));
    // The blank row comes first even before negative numbers.
    c.FillItems(Map({{-3, L"n"}, {1, L"a"}}), true);
    EXPECT_EQ(Data(c), (Ints{-1, -3, 1}));
    c.FillItems(Map({{-1, L"mine"}, {-2, L"x"}, {1, L"a"}}), true);
    EXPECT_EQ(Texts(c), (TextList{L"x", L"mine", L"a"}));
    EXPECT_EQ(Data(c), (Ints{-2, -1, 1}));
    c.FillItems(Map({}), true);
    EXPECT_EQ(Texts(c), (TextList{L"\u2014"}));
    c.FillItems(Map({}), false);
    EXPECT_EQ(c.GetCount(), 0);
    c.DestroyWindow();
}

TEST_F(OutsideCombo, FiveThousandRows)
{
    Combo c;
    Make(c, CBS_DROPDOWNLIST);
    std::map<int, CString> map;
    for (int i = 0; i < 5000; ++i)
    {
        CString text;
        text.Format(L"row %d", i);
        map[i * 2] = text;
    }
    c.FillItems(map, true);
    EXPECT_EQ(c.GetCount(), 5001);
    EXPECT_EQ(c.SelectItemData(9998), 5000);
    EXPECT_EQ(c.SelectItemData(9999), -1);
    EXPECT_EQ(c.GetSelectedItemData(0), 9998);
    c.DestroyWindow();
}

TEST_F(OutsideCombo, WithoutAWindowAndWithNull)
{
    Combo c;
    EXPECT_EQ(c.FindItemData(3), -1);
    EXPECT_EQ(c.SelectItemData(3), -1);
    c.AddItem(L"x", 3);
    c.FillItems(std::list<CString>{L"a"}, 0, true);
    c.FitToWidth();
    c.FitToEditWidth();
    Combo d;
    Make(d, CBS_DROPDOWNLIST);
    d.AddItem(nullptr, 3);
    d.DestroyWindow();
    EXPECT_EQ(d.FindItemData(3), -1);
}

TEST_F(OutsideCombo, TipWindowAsSetUp)
{
    Combo c;
    Make(c, CBS_DROPDOWNLIST);
    HWND const tip = c.m_toolTipWnd;
    ASSERT_TRUE(::IsWindow(tip));
    EXPECT_EQ(ClassOf(tip), L"tooltips_class32");
    EXPECT_EQ(static_cast<DWORD>(::GetWindowLongW(tip, GWL_STYLE)) & 3u, 3u);
    EXPECT_EQ(static_cast<DWORD>(::GetWindowLongW(tip, GWL_STYLE)) & WS_CHILD, 0u);
    HWND const owner = ::GetWindow(tip, GW_OWNER);
    EXPECT_TRUE(owner == c.m_hWnd || owner == m_host.m_hWnd);
    EXPECT_EQ(c.m_toolInfo.cbSize, sizeof(TOOLINFOW));
    EXPECT_EQ(c.m_toolInfo.uFlags, 288u);
    EXPECT_EQ(c.m_toolInfo.hwnd, c.m_hWnd);
    EXPECT_EQ(c.m_toolInfo.uId, 0u);
    EXPECT_EQ(c.m_toolInfo.hinst, nullptr);
    EXPECT_EQ(c.m_toolInfo.lParam, 0);
    EXPECT_TRUE(CRect(c.m_toolInfo.rect).IsRectNull());
    EXPECT_EQ(::SendMessageW(tip, TTM_GETTOOLCOUNT, 0, 0), 1);
    EXPECT_EQ(::SendMessageW(tip, TTM_GETMAXTIPWIDTH, 0, 0), 32767);
    EXPECT_EQ(static_cast<COLORREF>(::SendMessageW(tip, TTM_GETTIPBKCOLOR, 0, 0)), ::GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(static_cast<COLORREF>(::SendMessageW(tip, TTM_GETTIPTEXTCOLOR, 0, 0)),
              ::GetSysColor(COLOR_HIGHLIGHTTEXT));
    RECT margin = {9, 9, 9, 9};
    ::SendMessageW(tip, TTM_GETMARGIN, 0, reinterpret_cast<LPARAM>(&margin));
    EXPECT_EQ(margin.left, 0);
    EXPECT_EQ(margin.top, -1);
    EXPECT_EQ(margin.right, 0);
    EXPECT_EQ(margin.bottom, -1);
    EXPECT_FALSE(::IsWindowVisible(tip));
    c.DestroyWindow();
    EXPECT_FALSE(::IsWindow(tip));
}

TEST_F(OutsideCombo, TipHasTheControlsFontAtSubclassing)
{
    HWND const native = ::CreateWindowW(L"COMBOBOX", L"", WS_CHILD | CBS_DROPDOWNLIST, 0, 0, 100, 100, m_host.m_hWnd,
                                        reinterpret_cast<HMENU>(44), nullptr, nullptr);
    CFont font;
    font.CreatePointFont(140, L"Tahoma");
    ::SendMessageW(native, WM_SETFONT, reinterpret_cast<WPARAM>(font.m_hObject), 0);
    Combo c;
    ASSERT_TRUE(c.SubclassDlgItem(44, m_host));
    // The tip may keep a copy of its own.
    LOGFONTW given = {}, kept = {};
    ::GetObjectW(font.m_hObject, sizeof(given), &given);
    ::GetObjectW(reinterpret_cast<HGDIOBJ>(::SendMessageW(c.m_toolTipWnd, WM_GETFONT, 0, 0)), sizeof(kept), &kept);
    EXPECT_EQ(kept.lfHeight, given.lfHeight);
    EXPECT_EQ(std::wstring(kept.lfFaceName), std::wstring(given.lfFaceName));
    c.DestroyWindow();
}

/// The text's width in the control's font.
int WidthInFont(CWnd & window, CString const & text)
{
    CClientDC dc(&window);
    CFont * const font = window.GetFont();
    CFont * const former = font != nullptr ? dc.SelectObject(font) : nullptr;
    int const width = dc.GetTextExtent(text).cx;
    if (former != nullptr)
        dc.SelectObject(former);
    return width;
}
int WidthAsItComes(CWnd & window, CString const & text)
{
    CClientDC dc(&window);
    return dc.GetTextExtent(text).cx;
}
int Extra()
{
    return ::GetSystemMetrics(SM_CXVSCROLL) + 2 * ::GetSystemMetrics(SM_CXEDGE);
}

TEST_F(OutsideCombo, FitToWidthGrowsToTheWidestRow)
{
    Combo c;
    Make(c, CBS_DROPDOWNLIST);
    EXPECT_FALSE(c.FitToWidth());
    CString const wide(L'W', 60);
    c.AddItem(L"x", 0);
    EXPECT_FALSE(c.FitToWidth());
    c.AddItem(wide, 1);
    c.AddItem(L"yy", 2);
    int const expected = WidthAsItComes(c, wide) + Extra();
    EXPECT_TRUE(c.FitToWidth());
    EXPECT_EQ(c.GetDroppedWidth(), expected);
    EXPECT_FALSE(c.FitToWidth());
    EXPECT_EQ(c.GetDroppedWidth(), expected);
    c.ResetContent();
    c.AddItem(L"x", 0);
    EXPECT_FALSE(c.FitToWidth());
    EXPECT_EQ(c.GetDroppedWidth(), expected);
    c.AddItem(wide, 1);
    c.SetDroppedWidth(static_cast<UINT>(expected) - 1);
    EXPECT_TRUE(c.FitToWidth());
    EXPECT_EQ(c.GetDroppedWidth(), expected);
    c.SetDroppedWidth(static_cast<UINT>(expected) + 40);
    EXPECT_FALSE(c.FitToWidth());
    EXPECT_EQ(c.GetDroppedWidth(), expected + 40);
    c.FitToEditWidth();
    CRect window;
    c.GetWindowRect(window);
    EXPECT_EQ(c.GetDroppedWidth(), window.Width());
    c.DestroyWindow();
}

TEST_F(OutsideCombo, FitToWidthMeasuresInTheContextsOwnFont)
{
    Combo c;
    Make(c, CBS_DROPDOWNLIST);
    CFont big;
    big.CreatePointFont(300, L"Tahoma");
    c.SetFont(&big);
    CString const wide(L'W', 40);
    c.AddItem(wide, 1);
    ASSERT_NE(WidthAsItComes(c, wide), WidthInFont(c, wide));
    EXPECT_TRUE(c.FitToWidth());
    EXPECT_EQ(c.GetDroppedWidth(), WidthAsItComes(c, wide) + Extra());
    c.DestroyWindow();
}

TEST_F(OutsideCombo, FitToWidthWithManyAndLongRows)
{
    Combo c;
    Make(c, CBS_DROPDOWNLIST);
    std::list<CString> rows;
    for (int i = 0; i < 5000; ++i)
        rows.push_back(L"short");
    rows.push_back(CString(L'm', 1500));
    c.FillItems(rows, 0, true);
    EXPECT_TRUE(c.FitToWidth());
    EXPECT_EQ(c.GetDroppedWidth(), WidthAsItComes(c, CString(L'm', 1500)) + Extra());
    c.DestroyWindow();
}

TEST_F(OutsideCombo, DropDownFitsByRealClick)
{
    for (bool const fit : {true, false})
    {
        m_host.seen.clear();
        Combo c;
        Make(c, CBS_DROPDOWNLIST);
        c.AutoFit(fit);
        CString const wide(L'W', 50);
        c.AddItem(wide, 1);
        int const before = c.GetDroppedWidth();
        ASSERT_TRUE(tests::BringToFront(m_host));
        tests::Click(tests::Centre(c));
        ASSERT_TRUE(tests::PumpUntil([&] { return c.GetDroppedState(); }));
        EXPECT_EQ(m_host.Commands(CBN_DROPDOWN), 1);
        EXPECT_EQ(c.GetDroppedWidth(), fit ? WidthAsItComes(c, wide) + Extra() : before);
        c.ShowDropDown(FALSE);
        tests::PumpPosted();
        c.DestroyWindow();
    }
}

// --- Return ---

MSG KeyMessage(HWND window, WPARAM key, UINT message = WM_KEYDOWN)
{
    MSG msg = {};
    msg.hwnd = window;
    msg.message = message;
    msg.wParam = key;
    return msg;
}

TEST_F(OutsideCombo, ReturnIsReportedToTheParent)
{
    Combo c;
    Make(c, CBS_DROPDOWN);
    c.Editable(true);
    c.AutoComplete(true);
    NMHDR got = {};
    WPARAM wParam = 0;
    int count = 0;
    m_host.hook = [&](UINT message, WPARAM w, LPARAM l, LRESULT &) {
        if (message == WM_NOTIFY && reinterpret_cast<NMHDR *>(l)->code == static_cast<UINT>(NM_RETURN))
        {
            got = *reinterpret_cast<NMHDR *>(l);
            wParam = w;
            ++count;
        }
        return false;
    };
    MSG msg = KeyMessage(c.m_hWnd, VK_RETURN);
    EXPECT_TRUE(c.PreTranslateMessage(&msg));
    EXPECT_EQ(count, 1);
    EXPECT_EQ(got.hwndFrom, c.m_hWnd);
    EXPECT_EQ(got.idFrom, 33u);
    EXPECT_EQ(wParam, 33u);
    EXPECT_FALSE(c.m_completeNow);
    msg = KeyMessage(c.m_hWnd, VK_RETURN, WM_KEYUP);
    EXPECT_FALSE(c.PreTranslateMessage(&msg));
    msg = KeyMessage(c.m_hWnd, VK_ESCAPE);
    EXPECT_FALSE(c.PreTranslateMessage(&msg));
    EXPECT_EQ(count, 1);
    c.Editable(false);
    msg = KeyMessage(c.m_hWnd, VK_RETURN);
    EXPECT_FALSE(c.PreTranslateMessage(&msg));
    EXPECT_EQ(count, 1);
    EXPECT_TRUE(c.m_completeNow);
    m_host.hook = nullptr;
    c.DestroyWindow();
}

TEST_F(OutsideCombo, DestroyedInTheReturnNotification)
{
    for (bool const byDelete : {false, true})
    {
        auto * c = new Combo;
        Make(*c, CBS_DROPDOWN);
        c->Editable(true);
        m_host.hook = [&](UINT message, WPARAM, LPARAM, LRESULT &) {
            if (message == WM_NOTIFY && c != nullptr)
            {
                c->DestroyWindow();
                if (byDelete)
                {
                    delete c;
                    c = nullptr;
                }
            }
            return false;
        };
        MSG msg = KeyMessage(c->m_hWnd, VK_RETURN);
        EXPECT_TRUE(c->PreTranslateMessage(&msg));
        m_host.hook = nullptr;
        delete c;
    }
}

class ReturnDialog : public CDialogEx
{
public:
    explicit ReturnDialog(CWnd * parent)
    {
        m_template.Add(L"ComboBox", L"", 33, CRect(5, 5, 100, 60), WS_TABSTOP | CBS_DROPDOWN);
        m_template.Add(L"Button", L"OK", IDOK, CRect(10, 70, 50, 84), WS_TABSTOP | BS_DEFPUSHBUTTON);
        CreateIndirect(m_template.Get(), parent);
        m_combo.SubclassDlgItem(33, this);
    }
    Combo m_combo;
    int m_oks = 0;
    int m_returns = 0;

protected:
    void OnOK() override { ++m_oks; }
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT * result) override
    {
        if (reinterpret_cast<NMHDR *>(lParam)->code == static_cast<UINT>(NM_RETURN))
            ++m_returns;
        return CDialogEx::OnNotify(wParam, lParam, result);
    }

private:
    tests::DialogTemplate m_template{L"Return"};
};

TEST_F(OutsideCombo, RealReturnKeyInADialog)
{
    ReturnDialog dialog(m_host);
    dialog.ShowWindow(SW_SHOW);
    ASSERT_TRUE(tests::BringToFront(dialog));
    dialog.m_combo.SetFocus();
    tests::Key(VK_RETURN);
    EXPECT_TRUE(tests::PumpUntil([&] { return dialog.m_oks == 1; }));
    EXPECT_EQ(dialog.m_returns, 0);
    dialog.m_combo.Editable(true);
    tests::Key(VK_RETURN);
    EXPECT_TRUE(tests::PumpUntil([&] { return dialog.m_returns == 1; }));
    tests::PumpPosted();
    EXPECT_EQ(dialog.m_oks, 1);
    dialog.DestroyWindow();
}

// --- Completion by real typing ---

struct EditState
{
    std::wstring text;
    int from;
    int to;
    friend bool operator==(EditState const &, EditState const &) = default;
    friend std::ostream & operator<<(std::ostream & out, EditState const & s)
    {
        return out << testing::PrintToString(s.text) << " " << s.from << ".." << s.to;
    }
};

EditState StateOf(Combo & c)
{
    DWORD const selection = c.GetEditSel();
    return {TextOf(c), LOWORD(selection), HIWORD(selection)};
}

class OutsideCompletion : public OutsideCombo
{
protected:
    void SetUp() override
    {
        Make(m_combo, CBS_DROPDOWN);
        m_combo.FillItems(std::list<CString>{L"Berta", L"Anna", L"Anton", L"Annabel"}, 0, true);
        m_combo.AutoComplete(true);
        ASSERT_TRUE(tests::BringToFront(m_host));
        m_combo.SetFocus();
        tests::PumpPosted();
    }
    void TearDown() override { m_combo.DestroyWindow(); }
    void TypeUntil(WORD key, EditState const & state)
    {
        tests::Key(key);
        tests::PumpUntil([&] { return StateOf(m_combo) == state; }, std::chrono::seconds(5));
        EXPECT_EQ(StateOf(m_combo), state);
    }
    Combo m_combo;
};

TEST_F(OutsideCompletion, TypedLettersComplete)
{
    TypeUntil('A', {L"Anna", 1, 4});
    TypeUntil('N', {L"Anna", 2, 4});
    TypeUntil('T', {L"Anton", 3, 5});
    TypeUntil(VK_BACK, {L"Ant", 3, 3});
    tests::PumpFor(std::chrono::milliseconds(50));
    EXPECT_EQ(TextOf(m_combo), L"Ant");
    TypeUntil(VK_BACK, {L"An", 2, 2});
    TypeUntil('N', {L"Anna", 3, 4});
}

TEST_F(OutsideCompletion, BackspaceAfterTwoLettersRemovesTheTail)
{
    TypeUntil('A', {L"Anna", 1, 4});
    TypeUntil('N', {L"Anna", 2, 4});
    tests::Key(VK_BACK);
    ASSERT_TRUE(tests::PumpUntil([&] { return TextOf(m_combo).size() == 2; }, std::chrono::seconds(5)))
        << StateOf(m_combo);
    tests::PumpFor(std::chrono::milliseconds(50));
    EXPECT_EQ(m_combo.GetEditSel(), static_cast<DWORD>(MAKELONG(2, 2)));
    EXPECT_EQ(TextOf(m_combo), L"An");
}

TEST_F(OutsideCompletion, WithoutAMatchTheTextStays)
{
    tests::Type(L"x");
    ASSERT_TRUE(tests::PumpUntil([&] { return TextOf(m_combo) == L"x"; }, std::chrono::seconds(5))) << StateOf(m_combo);
    tests::PumpPosted();
    EXPECT_EQ(StateOf(m_combo), (EditState{L"x", 1, 1}));
    tests::Key('Y');
    ASSERT_TRUE(tests::PumpUntil([&] { return TextOf(m_combo).size() == 2; }, std::chrono::seconds(5)))
        << StateOf(m_combo);
    EXPECT_EQ(m_combo.GetEditSel(), static_cast<DWORD>(MAKELONG(2, 2)));
}

TEST_F(OutsideCompletion, ACaretInsideTheTextStaysThere)
{
    m_combo.SetWindowText(L"nton");
    m_combo.SetEditSel(0, 0);
    tests::Key('A', {VK_SHIFT});
    ASSERT_TRUE(tests::PumpUntil([&] { return TextOf(m_combo).size() == 5; }, std::chrono::seconds(5)));
    tests::PumpPosted();
    EXPECT_EQ(StateOf(m_combo), (EditState{L"Anton", 1, 1}));
    // In the middle without a match.
    m_combo.SetWindowText(L"qq");
    m_combo.SetEditSel(1, 1);
    tests::Key('Z');
    ASSERT_TRUE(tests::PumpUntil([&] { return TextOf(m_combo).size() == 3; }, std::chrono::seconds(5)));
    tests::PumpPosted();
    EXPECT_EQ(m_combo.GetEditSel(), static_cast<DWORD>(MAKELONG(2, 2)));
}

TEST_F(OutsideCompletion, CaseOfTheRowReplacesThatOfTheUser)
{
    TypeUntil('B', {L"Berta", 1, 5});
}

TEST_F(OutsideCompletion, ParentDeletesTheControlWhenItHearsOfTheChange)
{
    auto * c = new Combo;
    Make(*c, CBS_DROPDOWN, CRect(20, 100, 160, 250));
    c->AddItem(L"Anna", 1);
    c->AutoComplete(true);
    c->SetFocus();
    m_host.hook = [&](UINT message, WPARAM wParam, LPARAM, LRESULT &) {
        if (message == WM_COMMAND && HIWORD(wParam) == CBN_EDITCHANGE && c != nullptr)
        {
            c->DestroyWindow();
            delete c;
            c = nullptr;
        }
        return false;
    };
    tests::Key('A');
    EXPECT_TRUE(tests::PumpUntil([&] { return c == nullptr; }, std::chrono::seconds(10)));
    m_host.hook = nullptr;
    if (c != nullptr)
        c->DestroyWindow();
    delete c;
}

// --- Tip ---

CRect FieldOf(Combo & c)
{
    CRect r;
    c.GetClientRect(r);
    r.right -= ::GetSystemMetrics(SM_CXHTHUMB) + 2;
    return r;
}

class OutsideComboTip : public OutsideCombo
{
protected:
    void SetUp() override
    {
        Make(m_combo, CBS_DROPDOWNLIST);
        m_combo.AddItem(CString(L'W', 40), 0);
        m_combo.SetCurSel(0);
        m_recorder.Watch(m_combo.m_toolTipWnd, "tip");
        ASSERT_TRUE(tests::BringToFront(m_host));
        ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_host, {300, 250})));
        m_host.SetFocus();
        tests::PumpPosted();
        m_recorder.Clear();
    }
    void TearDown() override { m_combo.DestroyWindow(); }
    tests::ReceivedMessage const * Last(UINT message) const
    {
        tests::ReceivedMessage const * found = nullptr;
        for (tests::ReceivedMessage const & each : m_recorder.Received())
        {
            if (each.message == message)
                found = &each;
        }
        return found;
    }
    Combo m_combo;
    tests::MessageRecorder m_recorder{
        {TTM_TRACKPOSITION, TTM_TRACKACTIVATE, TTM_SETTIPBKCOLOR, TTM_SETTIPTEXTCOLOR, TTM_UPDATETIPTEXTW}};
};

TEST_F(OutsideComboTip, TooWideATextShowsTheTipOverTheText)
{
    TimerSpy spy;
    int const moves = m_combo.defaultMoves;
    m_combo.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(m_combo.defaultMoves, moves + 1);
    ASSERT_NE(Last(TTM_TRACKACTIVATE), nullptr);
    EXPECT_EQ(Last(TTM_TRACKACTIVATE)->wParam, static_cast<WPARAM>(TRUE));
    CRect r = FieldOf(m_combo);
    m_combo.ClientToScreen(r);
    ASSERT_NE(Last(TTM_TRACKPOSITION), nullptr);
    EXPECT_EQ(Last(TTM_TRACKPOSITION)->lParam, MAKELPARAM(r.left + 1, r.top + 3));
    ASSERT_NE(Last(TTM_SETTIPBKCOLOR), nullptr);
    EXPECT_EQ(Last(TTM_SETTIPBKCOLOR)->wParam, ::GetSysColor(COLOR_WINDOW));
    ASSERT_NE(Last(TTM_SETTIPTEXTCOLOR), nullptr);
    EXPECT_EQ(Last(TTM_SETTIPTEXTCOLOR)->wParam, ::GetSysColor(COLOR_WINDOWTEXT));
    EXPECT_NE(Last(TTM_UPDATETIPTEXTW), nullptr);
    ASSERT_EQ(spy.set().size(), 1u);
    EXPECT_EQ(spy.set()[0].id, 1u);
    EXPECT_EQ(spy.set()[0].period, 80u);
    EXPECT_EQ(spy.set()[0].window, m_combo.m_hWnd);
    EXPECT_TRUE(::IsWindowVisible(m_combo.m_toolTipWnd));
    wchar_t text[100] = {};
    TOOLINFOW info = {};
    info.cbSize = sizeof(info);
    info.hwnd = m_combo.m_hWnd;
    info.lpszText = text;
    ::SendMessageW(m_combo.m_toolTipWnd, TTM_GETTEXTW, 100, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(std::wstring(text), std::wstring(40, L'W'));
    // With the focus the tip takes the colours of a selection.
    m_recorder.Clear();
    m_combo.SetFocus();
    m_combo.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(6, 5));
    ASSERT_NE(Last(TTM_SETTIPBKCOLOR), nullptr);
    EXPECT_EQ(Last(TTM_SETTIPBKCOLOR)->wParam, ::GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(Last(TTM_SETTIPTEXTCOLOR)->wParam, ::GetSysColor(COLOR_HIGHLIGHTTEXT));
    // The order in which it is told.
    std::vector<UINT> order;
    for (tests::ReceivedMessage const & each : m_recorder.Received())
        order.push_back(each.message);
    EXPECT_EQ(order, (std::vector<UINT>{TTM_SETTIPBKCOLOR, TTM_SETTIPTEXTCOLOR, TTM_UPDATETIPTEXTW, TTM_TRACKPOSITION,
                                        TTM_TRACKACTIVATE}));
    // The pointer is elsewhere: the timer ends it, and goes no further.
    int const before = m_combo.defaultTimers;
    m_combo.SendMessage(WM_TIMER, 1, 0);
    EXPECT_EQ(m_combo.defaultTimers, before);
    ASSERT_FALSE(spy.killed().empty());
    EXPECT_EQ(spy.killed().back().id, 1u);
    EXPECT_EQ(Last(TTM_TRACKACTIVATE)->wParam, static_cast<WPARAM>(FALSE));
    EXPECT_FALSE(::IsWindowVisible(m_combo.m_toolTipWnd));
}

TEST_F(OutsideComboTip, TimerWithAnotherNumberIsKilledByItsOwn)
{
    TimerSpy spy;
    m_combo.OnTimer(55);
    ASSERT_EQ(spy.killed().size(), 1u);
    EXPECT_EQ(spy.killed()[0].id, 55u);
}

TEST_F(OutsideComboTip, OverTheButtonTheTipGoes)
{
    m_combo.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    EXPECT_TRUE(::IsWindowVisible(m_combo.m_toolTipWnd));
    CRect const r = FieldOf(m_combo);
    m_combo.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(r.right - 1, 5));
    EXPECT_EQ(Last(TTM_TRACKACTIVATE)->wParam, static_cast<WPARAM>(TRUE));
    int const moves = m_combo.defaultMoves;
    m_combo.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(r.right, 5));
    EXPECT_EQ(Last(TTM_TRACKACTIVATE)->wParam, static_cast<WPARAM>(FALSE));
    EXPECT_EQ(m_combo.defaultMoves, moves + 1);
    EXPECT_FALSE(::IsWindowVisible(m_combo.m_toolTipWnd));
}

TEST_F(OutsideComboTip, RealPointerBringsAndTakesTheTip)
{
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_combo, {20, 8})));
    ASSERT_TRUE(
        tests::PumpUntil([&] { return ::IsWindowVisible(m_combo.m_toolTipWnd) != FALSE; }, std::chrono::seconds(20)));
    tests::PumpFor(std::chrono::milliseconds(250));
    EXPECT_TRUE(::IsWindowVisible(m_combo.m_toolTipWnd));
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_host, {300, 250})));
    EXPECT_TRUE(tests::PumpUntil([&] { return !::IsWindowVisible(m_combo.m_toolTipWnd); }, std::chrono::seconds(20)));
}

TEST_F(OutsideComboTip, DestroyedWhileTheTipShows)
{
    m_combo.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    HWND const tip = m_combo.m_toolTipWnd;
    m_combo.DestroyWindow();
    tests::PumpFor(std::chrono::milliseconds(120));
    EXPECT_FALSE(::IsWindow(tip) && ::IsWindowVisible(tip));
    Make(m_combo, CBS_DROPDOWNLIST);
    EXPECT_TRUE(::IsWindow(m_combo.m_toolTipWnd));
}
} // namespace
} // namespace outside::controls
