// Kinds of cells that a host brings itself, in a real list.

#include <memory>
#include <vector>

#include "clipboard/Clipboard.h"
#include "frame/RegisteredMessages.h"
#include "list_PaintTest.h"
#include "Pump.h"

namespace
{
/// Counts presses in its left half in intValue, and takes the keys 0 to 9.
class Counter : public CXListCellKind
{
public:
    static constexpr COLORREF colour = RGB(10, 20, 30);

    void Paint(XLISTCTRLDATA const & cell, CDC & dc, CRect const & rect, COLORREF text, COLORREF background) override
    {
        dc.FillSolidRect(rect, colour);
        painted.push_back(cell.intValue);
        colours = {text, background};
    }
    std::optional<Change> Press(XLISTCTRLDATA & cell, CRect const & rect, CPoint point) override
    {
        if (point.x >= rect.CenterPoint().x)
            return {};
        ++cell.intValue;
        return Change{WM_XLISTCTRL_EDIT_END, CString(std::to_wstring(cell.intValue).c_str())};
    }
    std::optional<Change> Key(XLISTCTRLDATA & cell, unsigned int key) override
    {
        if (key < '0' || key > '9')
            return {};
        cell.intValue = static_cast<int>(key - '0');
        return Change{WM_XLISTCTRL_EDIT_END, {}};
    }
    std::optional<long long> SortValue(XLISTCTRLDATA const & cell) const override { return cell.intValue; }
    std::optional<CString> ExportText(XLISTCTRLDATA const & cell) const override
    {
        CString text;
        text.Format(L"<%d>", cell.intValue);
        return text;
    }

    std::vector<int> painted;
    std::pair<COLORREF, COLORREF> colours;
};

class ListOwnKinds : public tests::ListPaintTest
{
protected:
    void SetUp() override
    {
        tests::ListPaintTest::SetUp();
        EXPECT_TRUE(m_list.SetCellKind(1, 1, m_kind));
    }
    void Press(int row, int col, int fromLeft)
    {
        CRect const cell = Cell(row, col);
        LPARAM const place = MAKELPARAM(cell.left + fromLeft, cell.CenterPoint().y);
        // The native list of some systems waits for the end within the press.
        m_list.PostMessage(WM_LBUTTONUP, 0, place);
        m_list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, place);
        tests::PumpPosted();
    }

    std::shared_ptr<Counter> m_kind = std::make_shared<Counter>();
};

TEST_F(ListOwnKinds, ACellHasOneBesideItsRecord)
{
    EXPECT_EQ(m_list.GetCellKind(1, 1), m_kind);
    EXPECT_EQ(m_list.GetCellKind(1, 0), nullptr);
    EXPECT_EQ(m_list.GetCellKind(9, 1), nullptr);
    EXPECT_FALSE(m_list.SetCellKind(9, 1, m_kind));
    EXPECT_FALSE(m_list.SetCellKind(1, 3, m_kind));
    EXPECT_FALSE(m_list.SetCellKind(1, -1, m_kind));
    EXPECT_EQ(Data(1, 1).properties, XLP_ENABLED);
    EXPECT_TRUE(m_list.SetCellKind(1, 1, nullptr));
    EXPECT_EQ(m_list.GetCellKind(1, 1), nullptr);
    EXPECT_EQ(m_kind.use_count(), 1);
}

TEST_F(ListOwnKinds, ItPaintsTheWholeCellWhateverElseTheCellIs)
{
    m_list.SetProgress(1, 1, true, nullptr);
    Data(1, 1).intValue = 5;
    EXPECT_EQ(Paint(1, 1), CDRF_SKIPDEFAULT);
    EXPECT_EQ(m_kind->painted, std::vector<int>{5});
    EXPECT_EQ(Count(Counter::colour, Cell(1, 1)), column_width * row_height);
    EXPECT_TRUE(OnlyWithin(Cell(1, 1)));
}

TEST_F(ListOwnKinds, ItIsGivenTheColoursOfASelection)
{
    Select(1, true);
    Paint(1, 1);
    EXPECT_EQ(m_kind->colours, (std::pair{::GetSysColor(COLOR_HIGHLIGHTTEXT), ::GetSysColor(COLOR_HIGHLIGHT)}));
    m_list.SetItemState(1, 0, LVIS_SELECTED);
    m_list.SetEnabled(1, 1, false);
    Paint(1, 1);
    EXPECT_EQ(m_kind->colours, (std::pair{::GetSysColor(COLOR_GRAYTEXT), ::GetSysColor(COLOR_BTNFACE)}));
}

TEST_F(ListOwnKinds, APressThatItTakesChangesTheCellAndTellsTheParent)
{
    Press(1, 1, 5);
    EXPECT_EQ(Data(1, 1).intValue, 1);
    EXPECT_EQ(m_list.GetItemText(1, 1), L"1");
    EXPECT_TRUE(m_list.GetModified(1, 1));
    EXPECT_TRUE(m_list.GetListModified());
    EXPECT_EQ(m_host.TakePosted(), (tests::PostedRows{{WM_XLISTCTRL_EDIT_END, 1, 1}}));
    EXPECT_TRUE(m_list.IsSelected(1)) << "the press goes on to the native list";
}

TEST_F(ListOwnKinds, APressThatItLeavesMeetsWhatTheCellIs)
{
    m_list.SetCheckbox(1, 1, XLC_UNCHECKED);
    Press(1, 1, 50);
    EXPECT_EQ(Data(1, 1).intValue, 0);
    EXPECT_EQ(m_list.GetCheckbox(1, 1), XLC_CHECKED);
    EXPECT_EQ(m_host.TakePosted(), (tests::PostedRows{{WM_XLISTCTRL_CHECKBOX_CLICKED, 1, 1}}));
}

TEST_F(ListOwnKinds, ADisabledCellOffersItNothing)
{
    m_list.SetEnabled(1, 1, false);
    Press(1, 1, 5);
    EXPECT_EQ(Data(1, 1).intValue, 0);
    m_list.SetItemState(1, LVIS_FOCUSED, LVIS_FOCUSED);
    m_list.SendMessage(WM_KEYDOWN, '7', 1);
    EXPECT_EQ(Data(1, 1).intValue, 0);
    EXPECT_EQ(m_host.TakePosted(), tests::PostedRows());
}

TEST_F(ListOwnKinds, TheRowWithTheFocusOffersItKeys)
{
    m_list.SetItemState(1, LVIS_FOCUSED, LVIS_FOCUSED);
    m_list.SendMessage(WM_KEYDOWN, '7', 1);
    EXPECT_EQ(Data(1, 1).intValue, 7);
    EXPECT_EQ(m_host.TakePosted(), (tests::PostedRows{{WM_XLISTCTRL_EDIT_END, 1, 1}}));
    m_list.SendMessage(WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_TRUE(m_list.IsFocused(2)) << "a key that it leaves is the list's";
    m_list.SendMessage(WM_KEYDOWN, '8', 1);
    EXPECT_EQ(Data(1, 1).intValue, 7) << "of another row";
}

TEST_F(ListOwnKinds, TheCellCursorsCellIsOfferedKeysFirst)
{
    m_list.SetCellKind(1, 2, m_kind);
    m_list.EnableCellCursor();
    ASSERT_TRUE(m_list.SetCellCursor(1, 2));
    m_list.SendMessage(WM_KEYDOWN, '7', 1);
    EXPECT_EQ(Data(1, 2).intValue, 7);
    EXPECT_NE(Data(1, 1).intValue, 7);
    EXPECT_EQ(m_host.TakePosted(), (tests::PostedRows{{WM_XLISTCTRL_EDIT_END, 1, 2}}));
    ASSERT_TRUE(m_list.SetCellCursor(1, 0));
    m_list.SendMessage(WM_KEYDOWN, '8', 1);
    EXPECT_EQ(Data(1, 1).intValue, 8) << "a cursor elsewhere leaves it to the leftmost";
    EXPECT_EQ(Data(1, 2).intValue, 7);
}

TEST_F(ListOwnKinds, ItStaysWithItsRowWhenTheListIsSortedByIt)
{
    m_list.SetCellKind(0, 1, m_kind);
    m_list.SetCellKind(3, 1, m_kind);
    m_list.SetCellKind(2, 1, m_kind);
    for (int row = 0; row < 4; ++row)
    {
        Data(row, 1).intValue = 10 - row;
        m_list.SetItemData(row, row);
    }
    m_list.SetCellKind(3, 2, m_kind);
    m_list.SortByColumn(1, true, false, nullptr);
    for (int row = 0; row < 4; ++row)
        EXPECT_EQ(m_list.GetItemData(row), 3 - row);
    EXPECT_EQ(m_list.GetCellKind(0, 2), m_kind);
    EXPECT_EQ(m_list.GetCellKind(3, 2), nullptr);
}

TEST_F(ListOwnKinds, ItEndsWithItsRow)
{
    m_list.DeleteItem(1);
    EXPECT_EQ(m_list.AddItem(L"new", nullptr, 0), 3);
    EXPECT_EQ(m_list.GetCellKind(3, 1), nullptr);
    EXPECT_EQ(m_kind.use_count(), 1);
}

TEST_F(ListOwnKinds, ItSaysWhatIsExported)
{
    Data(1, 1).intValue = 3;
    m_list.SetItemText(1, 0, L"a");
    ASSERT_TRUE(m_list.ExportToClipboard(false, 1, 1, 0, 1));
    CString text;
    ASSERT_TRUE(Clipboard::StringFromClipboard(text));
    EXPECT_EQ(text, L"a\t<3>\r\n");
}

/// Ends its list while it is asked.
class Ending : public CXListCellKind
{
public:
    explicit Ending(CWnd & list) : m_list(list) {}
    void Paint(XLISTCTRLDATA const &, CDC &, CRect const &, COLORREF, COLORREF) override { m_list.DestroyWindow(); }
    std::optional<Change> Press(XLISTCTRLDATA &, CRect const &, CPoint) override
    {
        m_list.DestroyWindow();
        return Change{WM_XLISTCTRL_EDIT_END, CString(L"x")};
    }
    std::optional<Change> Key(XLISTCTRLDATA &, unsigned int) override
    {
        m_list.DestroyWindow();
        return {};
    }

private:
    CWnd & m_list;
};

TEST_F(ListOwnKinds, OneThatEndsTheListIsTheLastToBeAsked)
{
    m_list.SetCellKind(1, 1, std::make_shared<Ending>(m_list));
    CRect const cell = Cell(1, 1);
    m_list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(cell.left + 5, cell.CenterPoint().y));
    EXPECT_EQ(m_list.m_hWnd, nullptr);
}

TEST_F(ListOwnKinds, OneThatEndsTheListAtAKeyIsTheLastToBeAsked)
{
    m_list.SetCellKind(1, 1, std::make_shared<Ending>(m_list));
    m_list.SetCellKind(1, 2, m_kind);
    m_list.SetItemState(1, LVIS_FOCUSED, LVIS_FOCUSED);
    m_list.SendMessage(WM_KEYDOWN, '7', 1);
    EXPECT_EQ(m_list.m_hWnd, nullptr);
}

TEST_F(ListOwnKinds, OneAtTheCellCursorThatEndsTheListIsTheLastToBeAsked)
{
    m_list.SetCellKind(1, 2, std::make_shared<Ending>(m_list));
    m_list.EnableCellCursor();
    ASSERT_TRUE(m_list.SetCellCursor(1, 2));
    m_list.SendMessage(WM_KEYDOWN, '7', 1);
    EXPECT_EQ(m_list.m_hWnd, nullptr);
}
} // namespace
