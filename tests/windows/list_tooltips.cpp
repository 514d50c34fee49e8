// The tooltips of a list's cells.

#include <cstdlib>
#include <string>

#include "list_InputTest.h"

namespace
{
BOOL CALLBACK FindVisibleTip(HWND window, LPARAM found)
{
    wchar_t name[40] = {};
    ::GetClassNameW(window, name, 40);
    if (std::wstring_view(name) != TOOLTIPS_CLASSW || !::IsWindowVisible(window))
        return TRUE;
    *reinterpret_cast<HWND *>(found) = window;
    return FALSE;
}

/// The text of the tooltip that shows, empty for none.
std::wstring ShownTip()
{
    HWND tip = nullptr;
    ::EnumThreadWindows(::GetCurrentThreadId(), FindVisibleTip, reinterpret_cast<LPARAM>(&tip));
    std::wstring text(300, L'\0');
    text.resize(tip != nullptr ? ::GetWindowTextW(tip, text.data(), 300) : 0);
    return text;
}

class ListToolTips : public list_input::ListInputTest
{
protected:
    explicit ListToolTips(bool on = true) : ListInputTest(tests::TestList::default_style, on) {}

    /// Makes this the position of the message that the program handles.
    void PointAt(CPoint client)
    {
        CPoint const screen = Screen(client);
        ASSERT_TRUE(list_input::HoverUntil(screen, [&] {
            m_button.PostMessageW(WM_NULL);
            tests::PumpPosted();
            DWORD const position = ::GetMessagePos();
            return std::abs(static_cast<short>(LOWORD(position)) - screen.x) < 2 &&
                   static_cast<short>(HIWORD(position)) == screen.y;
        }));
    }
    struct Answer
    {
        BOOL given;
        std::wstring text;
        bool own; // in the structure's own buffer
    };
    Answer Ask()
    {
        NMTTDISPINFOW info{};
        info.hdr = {m_list.m_hWnd, 0, TTN_NEEDTEXTW};
        info.lpszText = info.szText;
        m_result = 5;
        BOOL const given = m_list.OnToolTipText(0, &info.hdr, &m_result);
        return {given, info.lpszText, info.lpszText == info.szText};
    }
    std::pair<BOOL, std::string> AskNarrow()
    {
        struct
        {
            NMTTDISPINFOA info;
            char behind[8];
        } asked{};
        std::fill(std::begin(asked.behind), std::end(asked.behind), 'x');
        asked.info.hdr = {m_list.m_hWnd, 0, TTN_NEEDTEXTA};
        asked.info.lpszText = asked.info.szText;
        BOOL const given = m_list.OnToolTipText(0, &asked.info.hdr, &m_result);
        EXPECT_EQ(asked.behind[0], 'x');
        return {given, std::string(asked.info.szText, ::strnlen(asked.info.szText, 80))};
    }

    LRESULT m_result = 5;
};

class ListToolTipsOff : public ListToolTips
{
protected:
    ListToolTipsOff() : ListToolTips(false) {}
};

TEST_F(ListToolTips, EachCellIsAToolOfItsOwn)
{
    TOOLINFO info{};
    info.cbSize = sizeof info;
    EXPECT_EQ(m_list.OnToolHitTest(Middle(0, 0), &info), 1);
    EXPECT_EQ(info.uId, 1u);
    EXPECT_EQ(m_list.OnToolHitTest(Middle(3, 2), &info), 3 * 256 + 2 + 1);
    EXPECT_EQ(info.hwnd, m_list.m_hWnd);
    EXPECT_EQ(info.uId, 3u * 256 + 2 + 1);
    EXPECT_EQ(info.lpszText, LPSTR_TEXTCALLBACK);
    CRect client;
    m_list.GetClientRect(&client);
    EXPECT_EQ(CRect(info.rect), client);
    EXPECT_EQ(m_list.OnToolHitTest(Middle(3, 2), nullptr), 3 * 256 + 2 + 1);
}

TEST_F(ListToolTips, EmptySpaceIsNoTool)
{
    TOOLINFO info{};
    info.cbSize = sizeof info;
    info.uId = 99;
    EXPECT_EQ(m_list.OnToolHitTest(EmptySpace(), &info), -1);
    EXPECT_EQ(info.uId, 99u);
    EXPECT_EQ(info.lpszText, nullptr);
}

TEST_F(ListToolTips, TextsAreKeptForEachCell)
{
    EXPECT_EQ(m_list.GetItemToolTipText(2, 1), CString());
    EXPECT_TRUE(m_list.SetItemToolTipText(2, 1, L"one"));
    EXPECT_TRUE(m_list.SetItemToolTipText(2, 3, L"three"));
    EXPECT_EQ(m_list.GetItemToolTipText(2, 1), CString(L"one"));
    EXPECT_EQ(m_list.GetItemToolTipText(2, 3), CString(L"three"));
    EXPECT_EQ(m_list.GetItemToolTipText(1, 1), CString());
    EXPECT_TRUE(m_list.SetItemToolTipText(2, 1, nullptr));
    EXPECT_EQ(m_list.GetItemToolTipText(2, 1), CString());
}

TEST_F(ListToolTips, CellsThatDoNotExistRefuseATextAndHaveNone)
{
    for (auto const & [row, col] : {std::pair(-1, 0), {8, 0}, {0, -1}, {0, 4}})
    {
        EXPECT_FALSE(m_list.SetItemToolTipText(row, col, L"x")) << row << ' ' << col;
        EXPECT_EQ(m_list.GetItemToolTipText(row, col), CString()) << row << ' ' << col;
    }
    int const foreign = m_list.InsertForeignItem(0, L"foreign");
    EXPECT_FALSE(m_list.SetItemToolTipText(foreign, 0, L"x"));
    EXPECT_EQ(m_list.GetItemToolTipText(foreign, 0), CString());
    int const late = m_list.AddColumn(L"late", LVCFMT_LEFT, 20);
    EXPECT_FALSE(m_list.SetItemToolTipText(1, late, L"x"));
    EXPECT_EQ(m_list.GetItemToolTipText(1, late), CString());
}

TEST_F(ListToolTips, AllCanBeDeleted)
{
    m_list.InsertForeignItem(0, L"foreign");
    for (int row = 1; row <= list_input::rows; ++row)
    {
        for (int col = 0; col < list_input::columns; ++col)
            ASSERT_TRUE(m_list.SetItemToolTipText(row, col, L"x"));
    }
    m_list.AddColumn(L"late", LVCFMT_LEFT, 20);
    m_list.DeleteAllToolTips();
    for (int row = 1; row <= list_input::rows; ++row)
    {
        for (int col = 0; col < list_input::columns; ++col)
            EXPECT_EQ(m_list.GetItemToolTipText(row, col), CString());
    }
}

TEST_F(ListToolTips, RecycledRowKeepsItsTextsUntilTheyAreDeleted)
{
    m_list.DeleteAllItems();
    m_list.AddItem(L"a", nullptr, 0);
    m_list.SetItemToolTipText(0, 1, L"old");
    m_list.DeleteItem(0);
    m_list.AddItem(L"b", nullptr, 0);
    EXPECT_EQ(m_list.GetItemToolTipText(0, 1), CString(L"old"));
    m_list.DeleteAllToolTips();
    EXPECT_EQ(m_list.GetItemToolTipText(0, 1), CString());
}

TEST_F(ListToolTips, TextOfColumnOneShowsOverAllCellsOfItsRow)
{
    m_list.SetDefaultToolTipText(L"default");
    m_list.SetItemToolTipText(2, 1, L"of row 2");
    m_list.SetItemToolTipText(3, 2, L"never shown");
    for (int const col : {0, 1, 3})
    {
        PointAt(Middle(2, col));
        Answer const answer = Ask();
        EXPECT_TRUE(answer.given);
        EXPECT_EQ(answer.text, L"of row 2") << col;
        EXPECT_EQ(m_result, 0);
    }
    PointAt(Middle(3, 2));
    EXPECT_EQ(Ask().text, L"default");
}

TEST_F(ListToolTips, DefaultTextShowsOffTheCellsAndOverItemsWithoutCells)
{
    m_list.SetDefaultToolTipText(L"default");
    PointAt(EmptySpace());
    EXPECT_EQ(Ask().text, L"default");
    m_list.InsertForeignItem(0, L"foreign");
    PointAt(Middle(0, 1));
    EXPECT_EQ(Ask().text, L"default");
}

TEST_F(ListToolTips, WithoutATextThereIsNone)
{
    PointAt(Middle(2, 2));
    EXPECT_FALSE(Ask().given);
    EXPECT_EQ(m_result, 0);
    m_list.SetDefaultToolTipText(L"default");
    EXPECT_TRUE(Ask().given);
    m_list.SetDefaultToolTipText(nullptr);
    EXPECT_FALSE(Ask().given);
}

TEST_F(ListToolTips, ListOfOneColumnShowsTheDefaultText)
{
    m_list.DeleteAllColumns();
    m_list.AddColumns(1);
    m_list.AddRows(3);
    m_list.DeleteAllToolTips();
    m_list.SetItemToolTipText(1, 0, L"never shown");
    PointAt(Middle(1, 0));
    EXPECT_FALSE(Ask().given);
    m_list.SetDefaultToolTipText(L"default");
    EXPECT_EQ(Ask().text, L"default");
}

TEST_F(ListToolTips, LongTextOfACellIsNotCut)
{
    std::wstring const fits(78, L'f');
    std::wstring const longer(79, L'l');
    std::wstring const longest(300, L'm');
    PointAt(Middle(2, 2));
    m_list.SetItemToolTipText(2, 1, fits.c_str());
    Answer answer = Ask();
    EXPECT_EQ(answer.text, fits);
    EXPECT_TRUE(answer.own);
    for (std::wstring const & text : {longer, longest})
    {
        m_list.SetItemToolTipText(2, 1, text.c_str());
        answer = Ask();
        EXPECT_EQ(answer.text, text);
        EXPECT_FALSE(answer.own);
    }
}

TEST_F(ListToolTips, LongDefaultTextIsCut)
{
    m_list.SetDefaultToolTipText(std::wstring(79, L'd').c_str());
    PointAt(Middle(2, 2));
    EXPECT_EQ(Ask().text, std::wstring(79, L'd'));
    m_list.SetDefaultToolTipText(std::wstring(200, L'd').c_str());
    Answer const answer = Ask();
    EXPECT_EQ(answer.text, std::wstring(79, L'd'));
    EXPECT_TRUE(answer.own);
}

TEST_F(ListToolTips, NarrowRequestIsAnsweredInItsBuffer)
{
    m_list.SetItemToolTipText(2, 1, L"narrow");
    PointAt(Middle(2, 2));
    EXPECT_EQ(AskNarrow(), std::make_pair(TRUE, std::string("narrow")));
    m_list.SetItemToolTipText(2, 1, std::wstring(200, L'n').c_str());
    EXPECT_EQ(AskNarrow(), std::make_pair(TRUE, std::string(79, 'n')));
    m_list.SetItemToolTipText(2, 1, L"");
    EXPECT_EQ(AskNarrow(), std::make_pair(FALSE, std::string()));
}

TEST_F(ListToolTips, ComeThroughTheMessageMap)
{
    m_list.SetItemToolTipText(4, 1, L"routed");
    PointAt(Middle(4, 0));
    for (UINT_PTR const id : {UINT_PTR(0), UINT_PTR(5), UINT_PTR(300) << 8})
    {
        NMTTDISPINFOW info{};
        info.hdr = {m_list.m_hWnd, id, TTN_NEEDTEXTW};
        m_list.SendMessageW(WM_NOTIFY, id, reinterpret_cast<LPARAM>(&info));
        EXPECT_STREQ(info.szText, L"routed");
    }
    NMTTDISPINFOA narrow{};
    narrow.hdr = {m_list.m_hWnd, 0, TTN_NEEDTEXTA};
    m_list.SendMessageW(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&narrow));
    EXPECT_STREQ(narrow.szText, "routed");
}

TEST_F(ListToolTips, ShowUnderTheMouse)
{
    std::wstring const wide = L"a text that is longer than the eighty characters for which the structure has room";
    m_list.SetItemToolTipText(2, 1, L"second");
    m_list.SetItemToolTipText(5, 1, wide.c_str());
    auto const shows = [](std::wstring const & text) { return [text] { return ShownTip() == text; }; };
    EXPECT_TRUE(list_input::HoverUntil(Screen(Middle(2, 0)), shows(L"second"))) << testing::PrintToString(ShownTip());
    EXPECT_TRUE(list_input::HoverUntil(Screen(Middle(5, 3)), shows(wide))) << testing::PrintToString(ShownTip());
    EXPECT_TRUE(list_input::HoverUntil(Aside(), shows(L""))) << testing::PrintToString(ShownTip());
}

TEST_F(ListToolTips, RowsFarDownShowTheirs)
{
    m_list.AddRows(300);
    m_list.SetItemToolTipText(300, 1, L"far");
    m_list.EnsureVisible(300, FALSE);
    m_list.UpdateWindow();
    EXPECT_TRUE(list_input::HoverUntil(Screen(Middle(300, 0)), [] { return ShownTip() == L"far"; }))
        << testing::PrintToString(ShownTip());
}

TEST_F(ListToolTipsOff, NothingIsAnswered)
{
    m_list.SetDefaultToolTipText(L"default");
    PointAt(Middle(2, 1));
    EXPECT_FALSE(Ask().given);
    EXPECT_EQ(m_result, 5);
}
} // namespace
