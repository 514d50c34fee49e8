// The extended list box.

#include <cstring>

#include "ControlTest.h"

namespace outside::controls
{
namespace
{

class List : public CListBoxX
{
public:
    using CListBoxX::GetThisMessageMap;
};

std::map<int, CString> Map(std::initializer_list<std::pair<int const, wchar_t const *>> items)
{
    std::map<int, CString> map;
    for (std::pair<int const, wchar_t const *> const & each : items)
        map[each.first] = each.second;
    return map;
}

class OutsideListBox : public testing::Test
{
protected:
    void SetUp() override { Make(LBS_NOTIFY | LBS_NOINTEGRALHEIGHT); }
    void Make(DWORD style)
    {
        ASSERT_TRUE(m_list.Create(WS_CHILD | WS_VISIBLE | style, CRect(20, 20, 170, 120), m_host, 33));
    }
    void TearDown() override
    {
        if (m_list.GetSafeHwnd() != nullptr)
            m_list.DestroyWindow();
    }
    int WidthInFont(CString const & text)
    {
        CClientDC dc(&m_list);
        CFont * const font = m_list.GetFont();
        CFont * const former = font != nullptr ? dc.SelectObject(font) : nullptr;
        int const width = dc.GetTextExtent(text).cx;
        if (former != nullptr)
            dc.SelectObject(former);
        return width;
    }
    Host m_host;
    List m_list;
};

TEST_F(OutsideListBox, MessageMap)
{
    std::vector<MapEntry> const entries = EntriesOf(List::GetThisMessageMap());
    ASSERT_EQ(entries.size(), 2u);
    bool wide = false, narrow = false;
    for (MapEntry const & each : entries)
    {
        EXPECT_EQ(each.message, static_cast<UINT>(WM_NOTIFY));
        EXPECT_EQ(each.first, 0u);
        EXPECT_EQ(each.last, 65535u);
        wide = wide || (each.code & 0xFFFF) == (static_cast<UINT>(TTN_NEEDTEXTW) & 0xFFFF);
        narrow = narrow || (each.code & 0xFFFF) == (static_cast<UINT>(TTN_NEEDTEXTA) & 0xFFFF);
    }
    EXPECT_TRUE(wide && narrow);
}

TEST_F(OutsideListBox, FiveThousandRowsAndBadInput)
{
    std::list<CString> rows(5000, CString(L"row"));
    m_list.FillItems(rows, 10, true);
    EXPECT_EQ(m_list.GetCount(), 5000);
    EXPECT_EQ(m_list.SelectItemData(5009), 4999);
    EXPECT_EQ(m_list.GetSelectedItemData(0), 5009);
    m_list.AddItem(nullptr, 3);
    List none;
    EXPECT_EQ(none.FindItemData(1), -1);
    EXPECT_EQ(none.SelectItemData(1), -1);
    none.AddItem(L"x", 1);
    none.FillItems(Map({{1, L"x"}}));
    int outside = 7;
    EXPECT_EQ(none.LbxZeileZumPunkt({1, 1}, outside), -1);
    EXPECT_EQ(outside, 1);
}

TEST_F(OutsideListBox, RowAtAPoint)
{
    int outside = 7;
    EXPECT_EQ(m_list.LbxZeileZumPunkt({5, 5}, outside), -1);
    EXPECT_EQ(outside, 1);
    m_list.FillItems(std::list<CString>{L"a", L"b", L"c"}, 0, true);
    for (int i = 0; i < 3; ++i)
    {
        CRect row;
        m_list.GetItemRect(i, row);
        outside = 7;
        EXPECT_EQ(m_list.LbxZeileZumPunkt(row.TopLeft(), outside), i);
        EXPECT_EQ(outside, 0);
        EXPECT_EQ(m_list.LbxZeileZumPunkt(CPoint(row.right - 1, row.bottom - 1), outside), i);
        EXPECT_EQ(m_list.LbxZeileZumPunkt(CPoint(row.right, row.top), outside), -1);
        EXPECT_EQ(outside, 1);
    }
    CRect last;
    m_list.GetItemRect(2, last);
    outside = 7;
    EXPECT_EQ(m_list.LbxZeileZumPunkt(CPoint(5, last.bottom), outside), -1);
    EXPECT_EQ(outside, 1);
    EXPECT_EQ(m_list.LbxZeileZumPunkt(CPoint(5, -1), outside), -1);
    std::list<CString> rows(200, CString(L"row"));
    m_list.FillItems(rows, 0, true);
    m_list.SetTopIndex(150);
    int const top = m_list.GetTopIndex();
    EXPECT_EQ(m_list.LbxZeileZumPunkt(CPoint(5, 1), outside), top);
    EXPECT_EQ(outside, 0);
    m_list.GetItemRect(top + 2, last);
    EXPECT_EQ(m_list.LbxZeileZumPunkt(last.CenterPoint(), outside), top + 2);
    // Rows above the first one shown are not looked at.
    m_list.GetItemRect(top - 1, last);
    EXPECT_EQ(m_list.LbxZeileZumPunkt(last.CenterPoint(), outside), -1);
}

TEST_F(OutsideListBox, ToolHitTest)
{
    m_list.FillItems(std::list<CString>{L"short", CString(L'W', 40), L"x"}, 0, true);
    CRect row;
    m_list.GetItemRect(1, row);
    TOOLINFOW info = {};
    info.cbSize = sizeof(info);
    info.uFlags = TTF_SUBCLASS;
    EXPECT_EQ(m_list.OnToolHitTest(CPoint(5, 2), &info), -1);
    EXPECT_EQ(m_list.OnToolHitTest(CPoint(5, 95), &info), -1);
    EXPECT_EQ(m_list.OnToolHitTest(CPoint(-5, 5), &info), -1);
    EXPECT_EQ(m_list.OnToolHitTest(row.CenterPoint(), &info), 1);
    EXPECT_EQ(CRect(info.rect), row);
    EXPECT_EQ(info.hwnd, m_list.m_hWnd);
    EXPECT_EQ(info.uId, 1u);
    EXPECT_EQ(info.lpszText, LPSTR_TEXTCALLBACKW);
    EXPECT_EQ(info.uFlags, static_cast<UINT>(TTF_SUBCLASS | TTF_CENTERTIP));
}

TEST_F(OutsideListBox, ToolHitTestBoundary)
{
    CString const text(L"some text of a row");
    m_list.FillItems(std::list<CString>{text}, 0, true);
    int const width = WidthInFont(text);
    CRect window, client;
    m_list.GetWindowRect(window);
    m_list.GetClientRect(client);
    int const border = window.Width() - client.Width();
    for (int const less : {5, 6, 7, 0})
    {
        m_list.SetWindowPos(nullptr, 0, 0, width + less + border, 100, SWP_NOMOVE | SWP_NOZORDER);
        CRect row;
        m_list.GetItemRect(0, row);
        ASSERT_EQ(row.Width(), width + less);
        TOOLINFOW info = {};
        info.cbSize = sizeof(info);
        EXPECT_EQ(m_list.OnToolHitTest(CPoint(2, 2), &info), less < 6 ? 0 : -1) << less;
    }
}

struct WideTip
{
    NMTTDISPINFOW tip = {};
    WideTip(CWnd & list, UINT_PTR row)
    {
        tip.hdr.hwndFrom = list.m_hWnd;
        tip.hdr.idFrom = row;
        tip.hdr.code = static_cast<UINT>(TTN_NEEDTEXTW);
        tip.lpszText = tip.szText;
        std::fill(std::begin(tip.szText), std::end(tip.szText), L'~');
    }
};

TEST_F(OutsideListBox, TipTexts)
{
    CString counted;
    for (int i = 0; i < 80; ++i)
        counted += static_cast<wchar_t>(L'0' + i % 10);
    CString const seventyNine = counted.Left(79);
    CString const fiveThousand(L'q', 5000);
    m_list.FillItems(std::list<CString>{L"", L"Größe \u2014", seventyNine, counted, fiveThousand}, 0, true);
    std::wstring const expected[] = {L"", L"Größe \u2014", W(seventyNine), L"..." + W(counted.Right(76)),
                                     L"..." + std::wstring(76, L'q')};
    for (UINT_PTR row = 0; row < 5; ++row)
    {
        WideTip wide(m_list, row);
        LRESULT result = 5;
        EXPECT_EQ(m_list.OnToolTipText(0, &wide.tip.hdr, &result), 1);
        EXPECT_EQ(result, 0);
        EXPECT_EQ(std::wstring(wide.tip.szText), expected[row]) << row;
        EXPECT_LE(std::wcslen(wide.tip.szText), 79u);
    }
    NMTTDISPINFOA narrow = {};
    narrow.hdr.code = static_cast<UINT>(TTN_NEEDTEXTA);
    narrow.hdr.idFrom = 3;
    std::memset(narrow.szText, '~', sizeof(narrow.szText));
    LRESULT result = 5;
    EXPECT_EQ(m_list.OnToolTipText(3, &narrow.hdr, &result), 1);
    EXPECT_EQ(result, 0);
    EXPECT_EQ(std::string(narrow.szText), "..." + std::string(CStringA(counted.Right(76))));
    narrow.hdr.idFrom = 2;
    m_list.OnToolTipText(2, &narrow.hdr, &result);
    EXPECT_EQ(std::string(narrow.szText), std::string(CStringA(seventyNine)));
}

TEST_F(OutsideListBox, TipOfARowThatIsNotThere)
{
    m_list.FillItems(std::list<CString>{L"a"}, 0, true);
    for (UINT_PTR const row : {UINT_PTR{1}, UINT_PTR{99}, static_cast<UINT_PTR>(-1)})
    {
        WideTip wide(m_list, row);
        LRESULT result = 5;
        EXPECT_EQ(m_list.OnToolTipText(0, &wide.tip.hdr, &result), 1) << row;
        EXPECT_STREQ(wide.tip.szText, L"") << row;
    }
}

TEST_F(OutsideListBox, TipThroughTheMessageMap)
{
    m_list.FillItems(std::list<CString>{L"first", L"second"}, 0, true);
    WideTip wide(m_list, 1);
    m_list.SendMessage(WM_NOTIFY, 1, reinterpret_cast<LPARAM>(&wide.tip));
    EXPECT_EQ(std::wstring(wide.tip.szText), L"second");
}

HWND VisibleTip()
{
    HWND found = nullptr;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM result) {
            if (ClassOf(window) == L"tooltips_class32" && ::IsWindowVisible(window))
                *reinterpret_cast<HWND *>(result) = window;
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

TEST_F(OutsideListBox, RealPointerBringsTheTip)
{
    m_list.FillItems(std::list<CString>{L"short", CString(L'W', 20)}, 0, true);
    ASSERT_TRUE(tests::BringToFront(m_host));
    CRect row;
    m_list.GetItemRect(1, row);
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_host, {300, 250})));
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_list, row.CenterPoint())));
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_list, row.CenterPoint() + CPoint(3, 0))));
    ASSERT_TRUE(tests::PumpUntil([] { return VisibleTip() != nullptr; }, std::chrono::seconds(30)));
    HWND const tip = VisibleTip();
    CRect place, screenRow = row;
    ::GetWindowRect(tip, place);
    m_list.ClientToScreen(screenRow);
    EXPECT_NEAR(place.CenterPoint().x, screenRow.CenterPoint().x, 2);
    m_list.GetItemRect(0, row);
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_list, row.CenterPoint())));
    EXPECT_TRUE(tests::PumpUntil([] { return VisibleTip() == nullptr; }, std::chrono::seconds(30)));
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_host, {300, 250})));
}
} // namespace
} // namespace outside::controls
