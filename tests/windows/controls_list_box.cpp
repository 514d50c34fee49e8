// The list box with numbered rows and tips.

#include <afxpriv.h>

#include <vector>

#include "controls/ListBoxX.h"
#include "controls_ControlTest.h"

namespace
{
constexpr UINT list_id = 70;
constexpr int width = 140;
constexpr int height = 120;

class OpenList : public controls::Watched<CListBoxX>
{
public:
    using CListBoxX::GetThisMessageMap;
};

class ListBoxXTest : public testing::Test
{
protected:
    void Open(DWORD style = 0)
    {
        ASSERT_TRUE(m_list.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | LBS_NOINTEGRALHEIGHT | LBS_NOTIFY | style,
                                  CRect(20, 20, 20 + width, 20 + height), m_host, list_id));
        tests::PumpPosted();
    }
    CString Row(int row) const { return controls::RowText(m_list, row); }
    int Data(int row) const { return controls::RowData(m_list, row); }
    CRect RowRect(int row)
    {
        CRect rect;
        m_list.GetItemRect(row, rect);
        return rect;
    }
    /// The text of a tip's notification in wide characters.
    CString WideTip(UINT_PTR row)
    {
        NMTTDISPINFOW info{};
        info.hdr.code = TTN_NEEDTEXTW;
        info.hdr.idFrom = row;
        wcscpy(info.szText, L"untouched");
        LRESULT result = 5;
        EXPECT_EQ(m_list.OnToolTipText(0, &info.hdr, &result), 1);
        EXPECT_EQ(result, 0);
        return info.szText;
    }
    CStringA NarrowTip(UINT_PTR row)
    {
        NMTTDISPINFOA info{};
        info.hdr.code = TTN_NEEDTEXTA;
        info.hdr.idFrom = row;
        LRESULT result = 5;
        EXPECT_EQ(m_list.OnToolTipText(0, &info.hdr, &result), 1);
        EXPECT_EQ(result, 0);
        return info.szText;
    }

    tests::ScopedWindow m_host{CRect(100, 100, 500, 400), WS_POPUP | WS_VISIBLE};
    OpenList m_list;
    tests::WindowCloser m_closer{m_list};
    CString const m_wide{L'W', 40};
};

using ListBoxX = ListBoxXTest;
using ListBoxXRows = ListBoxXTest;
using ListBoxXTip = ListBoxXTest;
using ListBoxXHostile = ListBoxXTest;
} // namespace

TEST_F(ListBoxX, HandlesTheQuestionsOfTipsInBothKindsOfText)
{
    EXPECT_TRUE(m_list.IsKindOf(RUNTIME_CLASS(CListBox)));
    AFX_MSGMAP const * const map = OpenList::GetThisMessageMap();
    for (int i = 0; i < 2; ++i)
    {
        EXPECT_EQ(map->lpEntries[i].nMessage, static_cast<UINT>(WM_NOTIFY));
        EXPECT_EQ(static_cast<WORD>(map->lpEntries[i].nCode),
                  static_cast<WORD>(i == 0 ? TTN_NEEDTEXTW : TTN_NEEDTEXTA));
        EXPECT_EQ(map->lpEntries[i].nID, 0U);
        EXPECT_EQ(map->lpEntries[i].nLastID, 0xFFFFU);
    }
    EXPECT_EQ(map->lpEntries[2].nMessage, 0U);
}

TEST_F(ListBoxXRows, AreAddedWithTheirNumbers)
{
    Open();
    controls::ExpectRowsAreAddedWithTheirNumbers(m_list);
}

TEST_F(ListBoxXRows, KeepTheirNumbersWhereTheControlSorts)
{
    Open(LBS_SORT);
    controls::ExpectSortedRowsKeepTheirNumbers(m_list);
}

TEST_F(ListBoxXRows, OfAListAreNumberedInOrder)
{
    Open();
    controls::ExpectRowsOfAListAreNumberedInOrder(m_list);
}

TEST_F(ListBoxXRows, OfAMapReplaceTheOthersInTheOrderOfTheirKeys)
{
    Open();
    m_list.AddItem(L"old", 1);
    m_list.FillItems(std::map<int, CString>{{5, L"five"}, {-1, L"none"}});
    ASSERT_EQ(m_list.GetCount(), 2);
    EXPECT_EQ(Row(0), L"none");
    EXPECT_EQ(Data(0), -1);
    EXPECT_EQ(Data(1), 5);
}

TEST_F(ListBoxXRows, AreFoundByTheirNumbersFromTheTop)
{
    Open();
    controls::ExpectRowsAreFoundByTheirNumbersFromTheTop(m_list);
}

TEST_F(ListBoxXRows, UnknownNumberKeepsTheSelection)
{
    Open();
    controls::ExpectAnUnknownNumberKeepsTheSelection(m_list);
}

TEST_F(ListBoxXRows, OfAControlWithoutAWindowAreNone)
{
    controls::ExpectABoxWithoutAWindowHasNoRows(m_list);
    m_list.FillItems(std::map<int, CString>{{1, L"a"}});
    int outside = 7;
    EXPECT_EQ(m_list.LbxZeileZumPunkt(CPoint(1, 1), outside), -1);
    EXPECT_EQ(outside, 1);
    EXPECT_EQ(m_list.OnToolHitTest(CPoint(1, 1), nullptr), -1);
    EXPECT_EQ(WideTip(0), L"");
}

TEST_F(ListBoxX, TellsTheRowAtAPoint)
{
    Open();
    int outside = 7;
    EXPECT_EQ(m_list.LbxZeileZumPunkt(CPoint(5, 5), outside), -1) << "an empty list";
    EXPECT_EQ(outside, 1);
    m_list.FillItems(std::list<CString>{L"a", L"b"}, 0, true);
    EXPECT_EQ(m_list.LbxZeileZumPunkt(RowRect(1).CenterPoint(), outside), 1);
    EXPECT_EQ(outside, 0);
    EXPECT_EQ(m_list.LbxZeileZumPunkt(CPoint(5, height - 10), outside), -1) << "below the rows";
    EXPECT_EQ(outside, 1);
    EXPECT_EQ(m_list.LbxZeileZumPunkt(CPoint(-5, 5), outside), -1);
}

TEST_F(ListBoxX, TellsTheRowAtAPointOfAScrolledList)
{
    Open();
    for (int i = 0; i < 100; ++i)
        m_list.AddItem(L"row", i);
    m_list.SetTopIndex(50);
    int outside = 7;
    EXPECT_EQ(m_list.LbxZeileZumPunkt(CPoint(5, 2), outside), 50);
    EXPECT_EQ(m_list.LbxZeileZumPunkt(RowRect(53).CenterPoint(), outside), 53);
    EXPECT_EQ(m_list.LbxZeileZumPunkt(CPoint(5, -3), outside), -1) << "rows above the first one in sight do not count";
}

TEST_F(ListBoxX, TellsTheRowAtAPointOfAListWithColumns)
{
    Open(LBS_MULTICOLUMN);
    m_list.SetColumnWidth(40);
    for (int i = 0; i < 20; ++i)
        m_list.AddItem(L"r", i);
    int last = 0;
    while (RowRect(last + 1).left == RowRect(0).left)
        ++last;
    int outside = 7;
    EXPECT_EQ(m_list.LbxZeileZumPunkt(RowRect(last + 1).CenterPoint(), outside), last + 1);
    EXPECT_EQ(m_list.LbxZeileZumPunkt(RowRect(last + 2).CenterPoint(), outside), last + 2);
}

TEST_F(ListBoxXTip, IsForRowsThatAreTooWide)
{
    Open();
    m_list.AddItem(L"short", 0);
    m_list.AddItem(m_wide, 1);
    TOOLINFOW info{};
    info.cbSize = sizeof info;
    info.uFlags = 4;
    EXPECT_EQ(m_list.OnToolHitTest(RowRect(0).CenterPoint(), &info), -1);
    EXPECT_EQ(m_list.OnToolHitTest(CPoint(5, height - 10), &info), -1);
    EXPECT_EQ(info.uFlags, 4U);
    EXPECT_EQ(m_list.OnToolHitTest(RowRect(1).CenterPoint(), &info), 1);
    EXPECT_EQ(CRect(info.rect), RowRect(1));
    EXPECT_EQ(info.hwnd, m_list.m_hWnd);
    EXPECT_EQ(info.uId, 1U);
    EXPECT_EQ(info.lpszText, LPSTR_TEXTCALLBACKW);
    EXPECT_EQ(info.uFlags, 4U | TTF_CENTERTIP);
    EXPECT_EQ(m_list.OnToolHitTest(RowRect(1).CenterPoint(), nullptr), 1);
}

TEST_F(ListBoxXTip, NeedsATextThatIsMoreThanTheRowsWidthLessSix)
{
    Open();
    CString const text = L"Text of some width";
    m_list.AddItem(text, 0);
    int const spare = RowRect(0).Width() - 6 - controls::TextWidth(m_list, text);
    m_list.SetWindowPos(nullptr, 0, 0, width - spare, height, SWP_NOMOVE | SWP_NOZORDER);
    ASSERT_EQ(RowRect(0).Width() - 6, controls::TextWidth(m_list, text));
    EXPECT_EQ(m_list.OnToolHitTest(CPoint(3, 3), nullptr), -1);
    m_list.SetWindowPos(nullptr, 0, 0, width - spare - 1, height, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(m_list.OnToolHitTest(CPoint(3, 3), nullptr), 0);
}

TEST_F(ListBoxXTip, MeasuresInTheListsFont)
{
    CFont font;
    font.CreatePointFont(300, L"Tahoma");
    Open();
    m_list.AddItem(L"Text of some", 0);
    EXPECT_EQ(m_list.OnToolHitTest(CPoint(3, 3), nullptr), -1);
    m_list.SetFont(&font);
    EXPECT_EQ(m_list.OnToolHitTest(CPoint(3, 3), nullptr), 0);
    m_list.SetFont(nullptr);
    EXPECT_EQ(m_list.OnToolHitTest(CPoint(3, 3), nullptr), -1);
}

TEST_F(ListBoxXTip, TextOf80CharactersIsShownByItsEnd)
{
    Open();
    CString text;
    for (int i = 0; i < 80; ++i)
        text += static_cast<wchar_t>(L'0' + i % 10);
    m_list.AddItem(text, 0);
    m_list.AddItem(text.Left(79), 1);
    m_list.AddItem(CString(L'x', 500), 2);
    EXPECT_EQ(WideTip(0), L"..." + text.Right(76));
    EXPECT_EQ(WideTip(1), text.Left(79));
    EXPECT_EQ(WideTip(2), L"..." + CString(L'x', 76));
    EXPECT_EQ(NarrowTip(0), CStringA(L"..." + text.Right(76)));
    EXPECT_EQ(NarrowTip(1), CStringA(text.Left(79)));
}

TEST_F(ListBoxXTip, OfARowThatIsNotThereIsEmpty)
{
    Open();
    m_list.AddItem(L"a", 0);
    EXPECT_EQ(WideTip(5), L"");
    EXPECT_EQ(WideTip(static_cast<UINT_PTR>(-1)), L"");
    EXPECT_EQ(NarrowTip(5), "");
}

TEST_F(ListBoxXTip, ShowsOnTheScreen)
{
    Open();
    m_list.AddItem(L"short", 0);
    m_list.AddItem(m_wide, 1);
    ASSERT_TRUE(tests::BringToFront(m_host.m_hWnd));
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_host.m_hWnd, {300, 250})));
    tests::PumpPosted();
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_list.m_hWnd, RowRect(1).CenterPoint())));
    auto const shown = [this] {
        HWND tip = nullptr;
        while ((tip = ::FindWindowExW(nullptr, tip, L"tooltips_class32", nullptr)) != nullptr)
        {
            wchar_t text[100] = L"";
            ::GetWindowTextW(tip, text, 100);
            if (::IsWindowVisible(tip) && m_wide == text)
                return true;
        }
        return false;
    };
    ASSERT_TRUE(tests::PumpUntil(shown));
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_host.m_hWnd, {300, 250})));
    EXPECT_TRUE(tests::PumpUntil([&] { return !shown(); }));
}

TEST_F(ListBoxXHostile, EndsWithinAnyOfItsMessagesWithoutHarm)
{
    std::list<CString> const texts{m_wide, L"b"};
    std::map<int, CString> const items{{1, m_wide}, {2, L"b"}};
    using Action = std::function<void(OpenList &)>;
    auto const tip = [](OpenList & one) {
        NMTTDISPINFOW info{};
        info.hdr.code = TTN_NEEDTEXTW;
        LRESULT result = 5;
        one.OnToolTipText(0, &info.hdr, &result);
    };
    auto const hit = [](OpenList & one) { one.OnToolHitTest(CPoint(5, 5), nullptr); };
    std::vector<std::pair<UINT, Action>> const cases = {
        {LB_ADDSTRING, [](OpenList & one) { one.AddItem(L"x", 1); }},
        {LB_SETITEMDATA, [&](OpenList & one) { one.FillItems(texts, 1, true); }},
        {LB_RESETCONTENT, [&](OpenList & one) { one.FillItems(items); }},
        {LB_GETITEMDATA, [](OpenList & one) { one.FindItemData(7); }},
        {LB_GETCOUNT, [](OpenList & one) { one.SelectItemData(1); }},
        {LB_SETCURSEL, [](OpenList & one) { one.SelectItemData(1); }},
        {LB_GETCURSEL, [](OpenList & one) { one.GetSelectedItemData(1); }},
        {LB_GETTOPINDEX, hit},
        {LB_GETITEMRECT, hit},
        {LB_GETTEXTLEN, hit},
        {WM_GETFONT, hit},
        {LB_GETTEXT, tip},
    };
    int number = 0;
    for (auto const & [message, act] : cases)
    {
        SCOPED_TRACE(number++);
        auto * const doomed = new OpenList;
        ASSERT_TRUE(doomed->Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 90, 100), m_host, 62));
        doomed->FillItems(texts, 1, true);
        controls::ExpectItMayEndIn<CListBoxX>(message, doomed, [&action = act, doomed] { action(*doomed); });
    }
}
