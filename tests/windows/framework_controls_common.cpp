// Tooltips, progress bar, slider, spin button, tab control, status bar, tool bar, rebar, extended combo box and link.

#include <afxcmn.h>

#include <gtest/gtest.h>

#include "GuardedHeap.h"
#include "Input.h"
#include "Pump.h"
#include "resource.h"
#include "ScopedWindow.h"

namespace
{
constexpr UINT control_id = 7;
CRect const place(10, 10, 250, 60);
constexpr DWORD shown = WS_CHILD | WS_VISIBLE;

// Tooltips

// Offers each message of its children to the tooltips.
class RelayingParent : public tests::ScopedWindow
{
public:
    CToolTipCtrl * m_tips = nullptr;

    BOOL PreTranslateMessage(MSG * message) override
    {
        if (m_tips != nullptr)
            m_tips->RelayEvent(message);
        return CWnd::PreTranslateMessage(message);
    }
};

class ToolTipTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_button.Create(L"x", shown, place, m_host, control_id));
        ASSERT_TRUE(m_tips.Create(&m_host, TTS_ALWAYSTIP));
    }

    RelayingParent m_host;
    CButton m_button;
    CToolTipCtrl m_tips;
};

TEST_F(ToolTipTest, WindowsAreTools)
{
    EXPECT_EQ(m_tips.GetToolCount(), 0);
    ASSERT_TRUE(m_tips.AddTool(&m_button, L"Starts the recording"));
    EXPECT_EQ(m_tips.GetToolCount(), 1);
    CString text;
    m_tips.GetText(text, &m_button);
    EXPECT_EQ(text, L"Starts the recording");
    m_tips.UpdateTipText(L"Stops it", &m_button);
    m_tips.GetText(text, &m_button);
    EXPECT_EQ(text, L"Stops it");
    CToolInfo info{};
    ASSERT_TRUE(m_tips.GetToolInfo(info, &m_button));
    EXPECT_EQ(info.uId, reinterpret_cast<UINT_PTR>(m_button.m_hWnd));
    EXPECT_EQ(info.hwnd, m_host.m_hWnd);
    EXPECT_STREQ(info.lpszText, L"Stops it");
    m_tips.DelTool(&m_button);
    EXPECT_EQ(m_tips.GetToolCount(), 0);
    m_tips.GetText(text, &m_button);
    EXPECT_EQ(text, L"");
    EXPECT_FALSE(m_tips.GetToolInfo(info, &m_button));
}

TEST_F(ToolTipTest, RectanglesAreToolsWithAnId)
{
    CRect const left(0, 0, 50, 50);
    ASSERT_TRUE(m_tips.AddTool(&m_host, L"left part", left, 3));
    ASSERT_TRUE(m_tips.AddTool(&m_host, L"right part", CRect(50, 0, 100, 50), 4));
    CString text;
    m_tips.GetText(text, &m_host, 4);
    EXPECT_EQ(text, L"right part");
    TOOLINFO found{};
    ASSERT_TRUE(m_tips.HitTest(&m_host, CPoint(20, 20), &found));
    EXPECT_EQ(found.uId, 3U);
    m_tips.SetToolRect(&m_host, 3, CRect(200, 200, 210, 210));
    EXPECT_FALSE(m_tips.HitTest(&m_host, CPoint(20, 20), &found));
    m_tips.DelTool(&m_host, 3);
    EXPECT_EQ(m_tips.GetToolCount(), 1);
}

TEST_F(ToolTipTest, LongTextsAreKept)
{
    CString const longText(L'z', 500);
    ASSERT_TRUE(m_tips.AddTool(&m_button, longText));
    CString text;
    m_tips.GetText(text, &m_button);
    EXPECT_EQ(text, longText);
    CToolInfo info{};
    ASSERT_TRUE(m_tips.GetToolInfo(info, &m_button));
    EXPECT_EQ(lstrlen(info.szText), 255) << "the record's own room is filled and ended";
}

TEST_F(ToolTipTest, SettingsRoundTrip)
{
    m_tips.SetDelayTime(TTDT_INITIAL, 123);
    EXPECT_EQ(m_tips.GetDelayTime(TTDT_INITIAL), 123);
    m_tips.SetDelayTime(200);
    EXPECT_EQ(m_tips.GetDelayTime(TTDT_INITIAL), 200);
    m_tips.SetMaxTipWidth(300);
    EXPECT_EQ(m_tips.GetMaxTipWidth(), 300);
    m_tips.SetTipBkColor(RGB(1, 2, 3));
    EXPECT_EQ(m_tips.GetTipBkColor(), RGB(1, 2, 3));
    m_tips.SetTipTextColor(RGB(4, 5, 6));
    EXPECT_EQ(m_tips.GetTipTextColor(), RGB(4, 5, 6));
    RECT margin{1, 2, 3, 4};
    m_tips.SetMargin(&margin);
    CRect read;
    m_tips.GetMargin(read);
    EXPECT_EQ(read, CRect(1, 2, 3, 4));
    EXPECT_TRUE(m_tips.SetTitle(TTI_INFO, L"Title"));
}

TEST_F(ToolTipTest, TipShowsWhenTheMouseRestsOnTheTool)
{
    EXPECT_EQ(m_tips.GetOwner(), &m_host);
    EXPECT_NE(m_tips.GetStyle() & TTS_ALWAYSTIP, 0U);
    ASSERT_TRUE(m_tips.AddTool(&m_button, L"tip"));
    m_tips.SetDelayTime(TTDT_INITIAL, 1);
    m_tips.Activate(TRUE);
    m_host.m_tips = &m_tips;
    ASSERT_TRUE(tests::BringToFront(m_host));
    CPoint const middle = tests::Centre(m_button);
    ASSERT_TRUE(tests::MoveMouse(middle - CSize(3, 3)));
    ASSERT_TRUE(tests::MoveMouse(middle));
    ASSERT_TRUE(tests::PumpUntil([this] { return m_tips.IsWindowVisible() != FALSE; }));
    TOOLINFO current{};
    current.cbSize = TTTOOLINFOW_V2_SIZE;
    EXPECT_TRUE(m_tips.GetCurrentTool(&current));
    EXPECT_EQ(current.uId, reinterpret_cast<UINT_PTR>(m_button.m_hWnd));
    m_tips.Pop();
    EXPECT_FALSE(m_tips.IsWindowVisible());
}

TEST_F(ToolTipTest, TextsComeFromTheStringTable)
{
    ASSERT_TRUE(m_tips.AddTool(&m_button, IDS_GREETING));
    CString text;
    m_tips.GetText(text, &m_button);
    EXPECT_EQ(text, L"Good morning");
    m_tips.UpdateTipText(L"own", &m_button);
    m_tips.UpdateTipText(IDS_GREETING, &m_button);
    m_tips.GetText(text, &m_button);
    EXPECT_EQ(text, L"Good morning");
}

// Range controls

TEST(FrameworkControlsCommon, ProgressBarMovesInItsRange)
{
    tests::ScopedWindow parent;
    CProgressCtrl bar;
    ASSERT_TRUE(bar.Create(shown, place, parent, control_id));
    bar.SetRange32(-10, 100000);
    int lower = 0;
    int upper = 0;
    bar.GetRange(lower, upper);
    EXPECT_EQ(lower, -10);
    EXPECT_EQ(upper, 100000);
    bar.SetRange(0, 50);
    bar.GetRange(lower, upper);
    EXPECT_EQ(upper, 50);
    EXPECT_EQ(bar.SetPos(20), 0);
    EXPECT_EQ(bar.OffsetPos(5), 20);
    EXPECT_EQ(bar.GetPos(), 25);
    bar.SetStep(7);
    EXPECT_EQ(bar.GetStep(), 7);
    EXPECT_EQ(bar.StepIt(), 25);
    EXPECT_EQ(bar.GetPos(), 32);
    bar.SetPos(999);
    EXPECT_EQ(bar.GetPos(), 50);
    bar.SetBkColor(RGB(1, 2, 3));
    EXPECT_EQ(bar.GetBkColor(), RGB(1, 2, 3));
    bar.SetBarColor(RGB(3, 2, 1));
    EXPECT_EQ(bar.GetBarColor(), RGB(3, 2, 1));
}

TEST(FrameworkControlsCommon, SliderKeepsRangeTicsAndSelection)
{
    tests::ScopedWindow parent;
    CSliderCtrl slider;
    ASSERT_TRUE(slider.Create(shown | TBS_ENABLESELRANGE | TBS_TOOLTIPS, place, parent, control_id));
    slider.SetRange(10, 60);
    int lowest = 0;
    int highest = 0;
    slider.GetRange(lowest, highest);
    EXPECT_EQ(lowest, 10);
    EXPECT_EQ(highest, 60);
    slider.SetPos(33);
    EXPECT_EQ(slider.GetPos(), 33);
    slider.SetPos(99);
    EXPECT_EQ(slider.GetPos(), 60);
    slider.SetLineSize(2);
    EXPECT_EQ(slider.GetLineSize(), 2);
    slider.SetPageSize(9);
    EXPECT_EQ(slider.GetPageSize(), 9);
    slider.SetSelection(20, 30);
    slider.GetSelection(lowest, highest);
    EXPECT_EQ(lowest, 20);
    EXPECT_EQ(highest, 30);
    slider.ClearTics();
    EXPECT_TRUE(slider.SetTic(25));
    EXPECT_TRUE(slider.SetTic(45));
    EXPECT_EQ(slider.GetNumTics(), 4U) << "the ends have one each";
    EXPECT_EQ(slider.GetTic(1), 45);
    CRect channel;
    slider.GetChannelRect(channel);
    EXPECT_FALSE(channel.IsRectEmpty());
    CRect thumb;
    slider.GetThumbRect(thumb);
    EXPECT_FALSE(thumb.IsRectEmpty());
    CStatic label;
    ASSERT_TRUE(label.Create(L"min", shown, place, parent));
    EXPECT_EQ(slider.SetBuddy(&label), nullptr);
    EXPECT_EQ(slider.GetBuddy(), &label);
    EXPECT_EQ(slider.GetBuddy(FALSE), nullptr);
    EXPECT_NE(slider.GetToolTips(), nullptr);
}

TEST(FrameworkControlsCommon, SpinButtonMovesItsBuddy)
{
    tests::ScopedWindow parent;
    CEdit edit;
    ASSERT_TRUE(edit.Create(shown, CRect(10, 80, 80, 100), parent, control_id + 1));
    CSpinButtonCtrl spin;
    ASSERT_TRUE(spin.Create(shown | UDS_SETBUDDYINT | UDS_NOTHOUSANDS, place, parent, control_id));
    EXPECT_EQ(spin.SetBuddy(&edit), nullptr);
    EXPECT_EQ(spin.GetBuddy(), &edit);
    spin.SetRange(-5, 90);
    int lower = 0;
    int upper = 0;
    spin.GetRange(lower, upper);
    EXPECT_EQ(lower, -5);
    EXPECT_EQ(upper, 90);
    EXPECT_EQ(spin.GetRange(), static_cast<DWORD>(MAKELONG(90, -5)));
    spin.SetPos(42);
    EXPECT_EQ(LOWORD(spin.GetPos()), 42);
    CString text;
    edit.GetWindowText(text);
    EXPECT_EQ(text, L"42");
    EXPECT_EQ(spin.SetPos(43), 42);
    spin.SetRange32(-100000, 100000);
    spin.GetRange32(lower, upper);
    EXPECT_EQ(lower, -100000);
    EXPECT_EQ(upper, 100000);
    spin.SetPos32(77777);
    BOOL wrong = TRUE;
    EXPECT_EQ(spin.GetPos32(&wrong), 77777);
    EXPECT_FALSE(wrong);
    edit.SetWindowText(L"nonsense");
    spin.GetPos32(&wrong);
    EXPECT_TRUE(wrong);
    EXPECT_EQ(spin.SetBase(16), 10);
    EXPECT_EQ(spin.GetBase(), 16U);
    UDACCEL acceleration[]{{0, 1}, {2, 10}};
    EXPECT_TRUE(spin.SetAccel(2, acceleration));
    UDACCEL read[2]{};
    EXPECT_EQ(spin.GetAccel(2, read), 2U);
    EXPECT_EQ(read[1].nInc, 10U);
}

// Tab control

class DrawnTab : public CTabCtrl
{
public:
    int m_drawn = 0;

    void DrawItem(LPDRAWITEMSTRUCT) override { ++m_drawn; }
};

TEST(FrameworkControlsCommon, TabsAreInsertedAndSelected)
{
    tests::ScopedWindow parent;
    CTabCtrl tabs;
    ASSERT_TRUE(tabs.Create(shown, CRect(0, 0, 300, 150), parent, control_id));
    EXPECT_EQ(tabs.InsertItem(0, L"Levels"), 0);
    EXPECT_EQ(tabs.InsertItem(1, L"Spectrum", 2), 1);
    EXPECT_EQ(tabs.InsertItem(TCIF_TEXT | TCIF_PARAM, 2, L"Phase", 0, 66), 2);
    EXPECT_EQ(tabs.GetItemCount(), 3);
    EXPECT_EQ(tabs.GetCurSel(), 0);
    EXPECT_EQ(tabs.SetCurSel(2), 0);
    EXPECT_EQ(tabs.GetCurSel(), 2);
    wchar_t text[16]{};
    TCITEM item{};
    item.mask = TCIF_TEXT | TCIF_PARAM;
    item.pszText = text;
    item.cchTextMax = 16;
    ASSERT_TRUE(tabs.GetItem(2, &item));
    EXPECT_STREQ(text, L"Phase");
    EXPECT_EQ(item.lParam, 66);
    EXPECT_FALSE(tabs.GetItem(9, &item));
    CRect second;
    ASSERT_TRUE(tabs.GetItemRect(1, second));
    TCHITTESTINFO hit{};
    hit.pt = second.CenterPoint();
    EXPECT_EQ(tabs.HitTest(&hit), 1);
    EXPECT_TRUE(tabs.HighlightItem(1));
    EXPECT_EQ(tabs.GetItemState(1, TCIS_HIGHLIGHTED), static_cast<DWORD>(TCIS_HIGHLIGHTED));
    EXPECT_EQ(tabs.GetItemState(0, TCIS_HIGHLIGHTED), 0U);
    CRect page(0, 0, 300, 150);
    tabs.AdjustRect(FALSE, page);
    EXPECT_GT(page.top, 10);
    EXPECT_EQ(tabs.GetRowCount(), 1);
    EXPECT_TRUE(tabs.DeleteItem(0));
    EXPECT_FALSE(tabs.DeleteItem(9));
    EXPECT_TRUE(tabs.DeleteAllItems());
    EXPECT_EQ(tabs.GetItemCount(), 0);
}

TEST(FrameworkControlsCommon, OwnerDrawnTabsReachTheVirtualMember)
{
    tests::ScopedWindow parent;
    DrawnTab tabs;
    ASSERT_TRUE(tabs.Create(shown | TCS_OWNERDRAWFIXED, CRect(0, 0, 300, 150), parent, control_id));
    tabs.InsertItem(0, L"a");
    tabs.InsertItem(1, L"b");
    tabs.Invalidate();
    tabs.UpdateWindow();
    EXPECT_GE(tabs.m_drawn, 2);
}

// Bars

class DrawnStatusBar : public CStatusBarCtrl
{
public:
    ULONG_PTR m_data = 0;

    void DrawItem(LPDRAWITEMSTRUCT item) override { m_data = item->itemData; }
};

TEST(FrameworkControlsCommon, StatusBarKeepsPartsTextsAndTips)
{
    tests::ScopedWindow parent;
    DrawnStatusBar bar;
    ASSERT_TRUE(bar.Create(shown | CCS_BOTTOM | SBT_TOOLTIPS, CRect(), parent, control_id));
    int edges[]{60, 160, -1};
    ASSERT_TRUE(bar.SetParts(3, edges));
    int read[3]{};
    EXPECT_EQ(bar.GetParts(3, read), 3);
    EXPECT_EQ(read[1], 160);
    EXPECT_TRUE(bar.SetText(L"48 kHz", 1, SBT_NOBORDERS));
    int type = 0;
    EXPECT_EQ(bar.GetText(1, &type), L"48 kHz");
    EXPECT_EQ(type, SBT_NOBORDERS);
    EXPECT_EQ(bar.GetTextLength(1), 6);
    wchar_t buffer[16]{};
    EXPECT_EQ(bar.GetText(buffer, 1), 6);
    EXPECT_STREQ(buffer, L"48 kHz");
    EXPECT_EQ(bar.GetText(0), L"");
    CRect pane;
    ASSERT_TRUE(bar.GetRect(1, pane));
    EXPECT_GE(pane.left, 60);
    int across = -1;
    int down = -1;
    int between = -1;
    EXPECT_TRUE(bar.GetBorders(across, down, between));
    EXPECT_GE(between, 0);
    HICON const icon = ::LoadIcon(nullptr, IDI_INFORMATION);
    EXPECT_TRUE(bar.SetIcon(0, icon));
    EXPECT_EQ(bar.GetIcon(0), icon);
    EXPECT_FALSE(bar.IsSimple());
    bar.SetSimple();
    EXPECT_TRUE(bar.IsSimple());
    bar.SetSimple(FALSE);
    EXPECT_TRUE(bar.SetText(reinterpret_cast<LPCTSTR>(UINT_PTR{4711}), 2, SBT_OWNERDRAW));
    bar.Invalidate();
    bar.UpdateWindow();
    EXPECT_EQ(bar.m_data, 4711U);
    EXPECT_EQ(bar.GetText(2), L"") << "an owner-drawn pane has a value, not a text";
    bar.SetTipText(1, L"Sampling rate");
    EXPECT_EQ(bar.GetTipText(1), L"Sampling rate");
}

class ToolBarTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_bar.Create(shown | CCS_TOP | TBSTYLE_TOOLTIPS, CRect(), m_host, control_id));
        TBBUTTON buttons[3]{};
        for (int index = 0; index < 3; ++index)
        {
            buttons[index].iBitmap = index;
            buttons[index].idCommand = 100 + index;
            buttons[index].fsState = TBSTATE_ENABLED;
            buttons[index].fsStyle = index == 1 ? BTNS_CHECK : BTNS_BUTTON;
            buttons[index].iString = -1;
        }
        ASSERT_TRUE(m_bar.AddButtons(3, buttons));
    }

    tests::ScopedWindow m_host;
    CToolBarCtrl m_bar;
};

TEST_F(ToolBarTest, ButtonsHaveStates)
{
    EXPECT_EQ(m_bar.GetButtonCount(), 3);
    EXPECT_EQ(m_bar.CommandToIndex(102), 2U);
    EXPECT_TRUE(m_bar.IsButtonEnabled(100));
    EXPECT_TRUE(m_bar.EnableButton(100, FALSE));
    EXPECT_FALSE(m_bar.IsButtonEnabled(100));
    EXPECT_TRUE(m_bar.CheckButton(101));
    EXPECT_TRUE(m_bar.IsButtonChecked(101));
    EXPECT_TRUE(m_bar.HideButton(102));
    EXPECT_TRUE(m_bar.IsButtonHidden(102));
    EXPECT_TRUE(m_bar.PressButton(101));
    EXPECT_TRUE(m_bar.IsButtonPressed(101));
    EXPECT_TRUE(m_bar.Indeterminate(101));
    EXPECT_TRUE(m_bar.IsButtonIndeterminate(101));
    EXPECT_TRUE(m_bar.MarkButton(101));
    EXPECT_TRUE(m_bar.IsButtonHighlighted(101));
    EXPECT_TRUE(m_bar.SetState(100, TBSTATE_ENABLED | TBSTATE_ELLIPSES));
    EXPECT_EQ(m_bar.GetState(100), TBSTATE_ENABLED | TBSTATE_ELLIPSES);
    EXPECT_EQ(m_bar.GetState(999), -1);
    EXPECT_EQ(m_bar.IsButtonEnabled(999), -1) << "the control's own answer for an unknown button";
}

TEST_F(ToolBarTest, ButtonsAreReadMovedAndDeleted)
{
    TBBUTTON button{};
    ASSERT_TRUE(m_bar.GetButton(2, &button));
    EXPECT_EQ(button.idCommand, 102);
    EXPECT_FALSE(m_bar.GetButton(7, &button));
    EXPECT_EQ(m_bar.GetBitmap(101), 1);
    EXPECT_TRUE(m_bar.ChangeBitmap(101, 5));
    EXPECT_EQ(m_bar.GetBitmap(101), 5);
    EXPECT_TRUE(m_bar.SetCmdID(0, 200));
    EXPECT_EQ(m_bar.CommandToIndex(200), 0U);
    EXPECT_TRUE(m_bar.MoveButton(0, 2));
    EXPECT_EQ(m_bar.CommandToIndex(200), 2U);
    EXPECT_TRUE(m_bar.DeleteButton(1));
    EXPECT_EQ(m_bar.GetButtonCount(), 2);
    EXPECT_FALSE(m_bar.DeleteButton(9));
    CRect first;
    ASSERT_TRUE(m_bar.GetItemRect(0, first));
    CPoint middle = first.CenterPoint();
    EXPECT_EQ(m_bar.HitTest(&middle), 0);
}

TEST_F(ToolBarTest, TextsAndSizesRoundTrip)
{
    EXPECT_EQ(m_bar.AddStrings(L"Record\0Stop\0"), 0);
    CString text;
    EXPECT_EQ(m_bar.GetString(1, text), 4);
    EXPECT_EQ(text, L"Stop");
    EXPECT_EQ(m_bar.GetString(9, text), -1);
    EXPECT_EQ(text, L"");
    EXPECT_EQ(m_bar.AddString(IDS_GREETING), 2);
    EXPECT_EQ(m_bar.GetString(2, text), 12);
    EXPECT_EQ(text, L"Good morning");
    EXPECT_EQ(m_bar.GetString(3, text), -1) << "the text of the string table is one text";
    EXPECT_EQ(m_bar.AddString(1), -1);
    wchar_t name[]{L"Play"};
    TBBUTTONINFO info{};
    info.cbSize = sizeof(info);
    info.dwMask = TBIF_TEXT;
    info.pszText = name;
    ASSERT_TRUE(m_bar.SetButtonInfo(100, &info));
    EXPECT_EQ(m_bar.GetButtonText(100), L"Play");
    EXPECT_EQ(m_bar.GetButtonText(999), L"");
    EXPECT_TRUE(m_bar.SetButtonSize(CSize(50, 40)));
    EXPECT_EQ(LOWORD(m_bar.GetButtonSize()), 50);
    EXPECT_TRUE(m_bar.SetMaxTextRows(2));
    EXPECT_EQ(m_bar.GetMaxTextRows(), 2);
    m_bar.SetPadding(2, 1);
    int across = 0;
    int down = 0;
    ASSERT_TRUE(m_bar.GetPadding(&across, &down));
    EXPECT_EQ(across, 2);
    EXPECT_EQ(down, 1);
    SIZE size{};
    EXPECT_TRUE(m_bar.GetMaxSize(&size));
    EXPECT_GT(size.cx, 0);
    EXPECT_NE(m_bar.GetToolTips(), nullptr);
    m_bar.SetExtendedStyle(TBSTYLE_EX_DRAWDDARROWS);
    EXPECT_EQ(m_bar.GetExtendedStyle(), static_cast<DWORD>(TBSTYLE_EX_DRAWDDARROWS));
}

TEST(FrameworkControlsCommon, RebarHoldsBands)
{
    tests::ScopedWindow parent;
    CReBarCtrl bar;
    ASSERT_TRUE(bar.Create(shown | RBS_VARHEIGHT, CRect(0, 0, 300, 40), parent, control_id));
    CEdit edit;
    ASSERT_TRUE(edit.Create(shown, CRect(0, 0, 50, 20), &bar, 1));
    REBARBANDINFO band{};
    band.cbSize = REBARBANDINFO_V6_SIZE;
    band.fMask = RBBIM_CHILD | RBBIM_CHILDSIZE | RBBIM_SIZE | RBBIM_ID;
    band.hwndChild = edit;
    band.cxMinChild = 40;
    band.cyMinChild = 20;
    band.cx = 120;
    band.wID = 31;
    ASSERT_TRUE(bar.InsertBand(static_cast<UINT>(-1), &band));
    EXPECT_EQ(bar.GetBandCount(), 1U);
    EXPECT_EQ(bar.IDToIndex(31), 0);
    EXPECT_EQ(bar.IDToIndex(32), -1);
    EXPECT_GT(bar.GetBarHeight(), 0U);
    CRect area;
    EXPECT_TRUE(bar.GetRect(0, area));
    EXPECT_FALSE(area.IsRectEmpty());
    CImageList images;
    ASSERT_TRUE(images.Create(16, 16, ILC_COLOR32, 1, 1));
    EXPECT_TRUE(bar.SetImageList(&images));
    EXPECT_EQ(bar.GetImageList(), &images);
    EXPECT_TRUE(bar.DeleteBand(0));
    EXPECT_FALSE(bar.DeleteBand(3));
}

// Extended combo box and link

TEST(FrameworkControlsCommon, ExtendedComboBoxKeepsItemsAndParts)
{
    tests::ScopedWindow parent;
    CComboBoxEx combo;
    ASSERT_TRUE(combo.Create(shown | CBS_DROPDOWN, CRect(0, 0, 150, 200), parent, control_id));
    wchar_t name[]{L"Disk"};
    COMBOBOXEXITEM item{};
    item.mask = CBEIF_TEXT | CBEIF_INDENT | CBEIF_LPARAM;
    item.iItem = -1;
    item.pszText = name;
    item.iIndent = 2;
    item.lParam = 88;
    EXPECT_EQ(combo.InsertItem(&item), 0);
    EXPECT_EQ(combo.GetCount(), 1);
    wchar_t text[16]{};
    COMBOBOXEXITEM read{};
    read.mask = item.mask;
    read.pszText = text;
    read.cchTextMax = 16;
    ASSERT_TRUE(combo.GetItem(&read));
    EXPECT_STREQ(text, L"Disk");
    EXPECT_EQ(read.iIndent, 2);
    EXPECT_EQ(read.lParam, 88);
    EXPECT_NE(combo.GetComboBoxCtrl(), nullptr);
    EXPECT_NE(combo.GetEditCtrl(), nullptr);
    EXPECT_FALSE(combo.HasEditChanged());
    combo.SetExtendedStyle(CBES_EX_NOSIZELIMIT, CBES_EX_NOSIZELIMIT);
    EXPECT_EQ(combo.GetExtendedStyle(), static_cast<DWORD>(CBES_EX_NOSIZELIMIT));
    EXPECT_EQ(combo.DeleteItem(0), 0);
    EXPECT_EQ(combo.DeleteItem(5), CB_ERR);
}

TEST(FrameworkControlsCommon, LinkControlKeepsItsLinks)
{
    tests::ScopedWindow parent;
    CLinkCtrl link;
    ASSERT_TRUE(link.Create(L"See the <a href=\"guide.html\" id=\"g\">guide</a>.", shown, place, parent, control_id));
    CString text;
    ASSERT_TRUE(link.GetItemUrl(0, text));
    EXPECT_EQ(text, L"guide.html");
    ASSERT_TRUE(link.GetItemID(0, text));
    EXPECT_EQ(text, L"g");
    EXPECT_TRUE(link.SetItemUrl(0, L"other.html"));
    wchar_t url[32]{};
    EXPECT_TRUE(link.GetItemUrl(0, url, 32));
    EXPECT_STREQ(url, L"other.html");
    EXPECT_TRUE(link.SetItemState(0, LIS_VISITED, LIS_VISITED));
    UINT state = 0;
    EXPECT_TRUE(link.GetItemState(0, &state, LIS_VISITED));
    EXPECT_EQ(state, static_cast<UINT>(LIS_VISITED));
    EXPECT_FALSE(link.GetItemUrl(4, text));
    EXPECT_EQ(text, L"");
    EXPECT_GT(link.GetIdealHeight(), 0);
}

// Controls that their host ends while they give their images back

template <class Control> class EndingControl : public Control
{
public:
    UINT m_last = 0;
    int * m_ended = nullptr;

    ~EndingControl() override
    {
        if (m_ended != nullptr)
            ++*m_ended;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != m_last)
            return Control::WindowProc(message, wParam, lParam);
        delete this;
        return 0;
    }
};

template <class Control> void EndWhile(UINT message, UINT setImages)
{
    tests::ScopedWindow parent;
    CImageList images;
    ASSERT_TRUE(images.Create(16, 16, ILC_COLOR32, 1, 1));
    tests::GuardedHeap heap;
    int ended = 0;
    auto const control = new EndingControl<Control>;
    ASSERT_TRUE(control->Create(shown, place, parent, control_id));
    control->SendMessage(setImages, LVSIL_NORMAL, reinterpret_cast<LPARAM>(images.GetSafeHandle()));
    HWND const window = control->m_hWnd;
    control->m_ended = &ended;
    control->m_last = message;
    ::DestroyWindow(window);
    EXPECT_EQ(ended, 1);
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(heap.Check(), 0U);
}

TEST(FrameworkEndingControls, ATreeThatEndsWhileItGivesItsImagesBack)
{
    EndWhile<CTreeCtrl>(TVM_GETIMAGELIST, TVM_SETIMAGELIST);
    EndWhile<CTreeCtrl>(TVM_SETIMAGELIST, TVM_SETIMAGELIST);
}

TEST(FrameworkEndingControls, ATabControlThatEndsWhileItGivesItsImagesBack)
{
    EndWhile<CTabCtrl>(TCM_GETIMAGELIST, TCM_SETIMAGELIST);
    EndWhile<CTabCtrl>(TCM_SETIMAGELIST, TCM_SETIMAGELIST);
}

TEST(FrameworkEndingControls, AListThatEndsWhileItGivesItsImagesBack)
{
    EndWhile<CListCtrl>(LVM_GETIMAGELIST, LVM_SETIMAGELIST);
    EndWhile<CListCtrl>(LVM_SETIMAGELIST, LVM_SETIMAGELIST);
}
} // namespace
