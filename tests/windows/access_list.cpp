// The accessible objects of the report list.

#include <vector>

#include "access_AccessTest.h"
#include "ListTestHost.h"

using access_tests::Held;
using access_tests::Listener;
using access_tests::Number;
using access_tests::TakeText;

namespace
{
class AccessObjects : public access_tests::ObjectTest<>
{
protected:
    AccessObjects()
    {
        m_host.Fill(3, 5);
        m_host.TakePosted();
    }

    void SetUp() override { ASSERT_EQ(access_tests::Ask(m_list.m_hWnd, m_object), S_OK); }
    static VARIANT Cell(int row, int col) { return Number(accessible::NumberOf({row, col})); }
    CString Value(int row, int col)
    {
        BSTR text = nullptr;
        EXPECT_EQ(m_object->get_accValue(Cell(row, col), &text), S_OK);
        return TakeText(text);
    }
    long States(int row, int col)
    {
        VARIANT states{};
        EXPECT_EQ(m_object->get_accState(Cell(row, col), &states), S_OK);
        return states.lVal;
    }

    tests::ListHost m_host;
    tests::TestList & m_list = m_host.list;
};
} // namespace

TEST_F(AccessObjects, AreATreeOfRowsAndCells)
{
    long count = 0;
    EXPECT_EQ(m_object->get_accChildCount(&count), S_OK);
    EXPECT_EQ(count, 5);
    Held<IDispatch> row;
    ASSERT_EQ(m_object->get_accChild(Number(2), row.Out()), S_OK);
    Held<IAccessible> second;
    ASSERT_EQ(row->QueryInterface(__uuidof(IAccessible), reinterpret_cast<void **>(second.Out())), S_OK);
    EXPECT_EQ(second->get_accChildCount(&count), S_OK);
    EXPECT_EQ(count, 3);
    BSTR name = nullptr;
    EXPECT_EQ(second->get_accName(Number(CHILDID_SELF), &name), S_OK);
    EXPECT_EQ(TakeText(name), L"r1");
    EXPECT_EQ(second->get_accName(Number(2), &name), S_OK);
    EXPECT_EQ(TakeText(name), L"c1");
    EXPECT_EQ(second->get_accName(Number(4), &name), E_INVALIDARG);
    EXPECT_EQ(m_object->get_accName(Number(6), &name), E_INVALIDARG);
    m_list.SetItemText(3, 2, L"seven");
    EXPECT_EQ(Value(3, 2), L"seven");
    EXPECT_EQ(row.Release(), 1U);
    EXPECT_EQ(second.Release(), 0U) << "nobody else keeps the row's object";
}

TEST_F(AccessObjects, AreFoundAtPoints)
{
    CRect rect;
    m_list.GetSubItemRect(2, 1, LVIR_BOUNDS, rect);
    m_list.ClientToScreen(&rect);
    long left = 0;
    long top = 0;
    long width = 0;
    long height = 0;
    EXPECT_EQ(m_object->accLocation(&left, &top, &width, &height, Cell(2, 1)), S_OK);
    EXPECT_EQ(CRect(CPoint(left, top), CSize(width, height)), rect);
    VARIANT hit{};
    ASSERT_EQ(m_object->accHitTest(rect.CenterPoint().x, rect.CenterPoint().y, &hit), S_OK);
    ASSERT_EQ(hit.vt, VT_DISPATCH);
    auto * const cell = static_cast<IAccessible *>(hit.pdispVal);
    BSTR name = nullptr;
    EXPECT_EQ(cell->get_accName(Number(CHILDID_SELF), &name), S_OK);
    EXPECT_EQ(TakeText(name), L"c1");
    EXPECT_EQ(cell->Release(), 0U);
}

TEST_F(AccessObjects, DefaultActionOfACheckCellIsAClick)
{
    m_list.SetCheckbox(1, 1, XLC_UNCHECKED);
    std::vector<std::pair<int, int>> clicks;
    m_list.m_onCellClick = [&](int row, int col) { clicks.emplace_back(row, col); };
    EXPECT_EQ(m_object->accDoDefaultAction(Cell(1, 1)), S_OK);
    EXPECT_EQ(m_list.GetCheckbox(1, 1), XLC_CHECKED);
    EXPECT_TRUE(m_list.GetModified(1, 1));
    EXPECT_NE(States(1, 1) & STATE_SYSTEM_CHECKED, 0);
    EXPECT_EQ(clicks, (std::vector<std::pair<int, int>>{{1, 1}}));
    EXPECT_EQ(m_host.TakePosted(), (tests::PostedRows{{WM_XLISTCTRL_CHECKBOX_CLICKED, 1, 1}}));

    EXPECT_EQ(m_object->accDoDefaultAction(Cell(1, 0)), DISP_E_MEMBERNOTFOUND) << "a text";
    m_list.SetEnabled(1, 1, false);
    EXPECT_EQ(m_object->accDoDefaultAction(Cell(1, 1)), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(m_list.GetCheckbox(1, 1), XLC_CHECKED);
    m_list.SetHyperlink(2, 0, true, false);
    EXPECT_EQ(m_object->accDoDefaultAction(Cell(2, 0)), S_OK);
    EXPECT_EQ(m_host.TakePosted(), (tests::PostedRows{{WM_XLISTCTRL_LINK_CLICKED, 2, 0}}));
    m_list.SetEdit(3, 0, true);
    EXPECT_EQ(m_object->accDoDefaultAction(Cell(3, 0)), S_OK);
    EXPECT_NE(tests::OpenEditOf(m_list), nullptr);
}

TEST_F(AccessObjects, SelectRows)
{
    EXPECT_EQ(m_object->accSelect(SELFLAG_TAKESELECTION, Number(2)), S_OK);
    EXPECT_EQ(m_object->accSelect(SELFLAG_ADDSELECTION, Number(4)), S_OK);
    EXPECT_TRUE(m_list.IsSelected(1));
    EXPECT_TRUE(m_list.IsSelected(3));
    VARIANT selection{};
    ASSERT_EQ(m_object->get_accSelection(&selection), S_OK);
    ASSERT_EQ(selection.vt, VT_UNKNOWN);
    Held<IEnumVARIANT> several;
    selection.punkVal->QueryInterface(__uuidof(IEnumVARIANT), reinterpret_cast<void **>(several.Out()));
    selection.punkVal->Release();
    VARIANT rows[3]{};
    ULONG given = 0;
    EXPECT_EQ(several->Next(3, rows, &given), S_FALSE);
    ASSERT_EQ(given, 2U);
    for (VARIANT const & row : {rows[0], rows[1]})
        EXPECT_EQ(row.pdispVal->Release(), 0U);
    EXPECT_EQ(m_object->accSelect(SELFLAG_TAKESELECTION, Number(4)), S_OK);
    EXPECT_FALSE(m_list.IsSelected(1));
    EXPECT_EQ(m_object->accSelect(SELFLAG_REMOVESELECTION, Number(4)), S_OK);
    EXPECT_FALSE(m_list.IsSelected(3));
}

TEST_F(AccessObjects, TellOfChanges)
{
    m_list.SetCheckbox(1, 1, XLC_UNCHECKED);
    Listener listener(m_list.m_hWnd);
    m_list.SetCheckbox(1, 1, XLC_CHECKED);
    m_list.SetItemText(2, 2, L"new");
    m_list.SetItemState(3, LVIS_FOCUSED | LVIS_SELECTED, LVIS_FOCUSED | LVIS_SELECTED);
    m_list.DeleteItem(0);
    std::vector<Listener::Event> const heard = listener.Take();
    listener.events = heard;
    EXPECT_TRUE(listener.Heard(EVENT_OBJECT_STATECHANGE, {1, 1}));
    EXPECT_TRUE(listener.Heard(EVENT_OBJECT_VALUECHANGE, {2, 2}));
    EXPECT_FALSE(listener.Heard(EVENT_OBJECT_STATECHANGE, {2, 2}));
    EXPECT_TRUE(listener.Heard(EVENT_OBJECT_FOCUS, {3, -1}));
    EXPECT_TRUE(listener.Heard(EVENT_OBJECT_SELECTION, {3, -1}));
    EXPECT_TRUE(listener.Heard(EVENT_OBJECT_REORDER, {}));
}

TEST_F(AccessObjects, FollowTheCellCursor)
{
    m_list.SetItemState(3, LVIS_FOCUSED | LVIS_SELECTED, LVIS_FOCUSED | LVIS_SELECTED);
    m_list.SetFocus();
    VARIANT focus{};
    ASSERT_EQ(m_object->get_accFocus(&focus), S_OK);
    EXPECT_EQ(access_tests::NameOf(*static_cast<IAccessible *>(focus.pdispVal)), L"r3") << "a row";
    focus.pdispVal->Release();
    m_list.EnableCellCursor();
    Listener listener(m_list.m_hWnd);
    m_list.SetCellCursor(1, 2);
    listener.events = listener.Take();
    EXPECT_TRUE(listener.Heard(EVENT_OBJECT_FOCUS, {1, 2}));
    EXPECT_FALSE(listener.Heard(EVENT_OBJECT_FOCUS, {1, -1}));
    EXPECT_NE(States(1, 2) & STATE_SYSTEM_FOCUSED, 0);
    EXPECT_EQ(States(1, 1) & STATE_SYSTEM_FOCUSED, 0);
    ASSERT_EQ(m_object->get_accFocus(&focus), S_OK);
    EXPECT_EQ(access_tests::NameOf(*static_cast<IAccessible *>(focus.pdispVal)), L"c2") << "a cell";
    focus.pdispVal->Release();
    EXPECT_EQ(m_object->accSelect(SELFLAG_TAKEFOCUS, Cell(4, 0)), S_OK);
    EXPECT_EQ(m_list.GetCellCursor(), (std::pair<int, int>(4, 0)));
}

TEST_F(AccessObjects, TellOfABatchOnce)
{
    std::vector<Listener::Event> const once = {{EVENT_OBJECT_REORDER, 0}};
    Listener listener(m_list.m_hWnd);
    m_list.SetBatchInsertMode(true);
    for (int row = 0; row < 200; ++row)
        m_list.SetItemText(m_list.AddItem(L"x", nullptr, 0), 1, L"y");
    m_list.SetBatchInsertMode(false);
    EXPECT_EQ(listener.Take(), once);
    m_list.SetRedraw(FALSE);
    for (int row = 0; row < 200; ++row)
        m_list.SetItemText(row, 1, L"z");
    m_list.SetRedraw(TRUE);
    EXPECT_EQ(listener.Take(), once);
    m_list.SetBatchInsertMode(true);
    m_list.SetBatchInsertMode(false);
    EXPECT_TRUE(listener.Take().empty()) << "nothing has changed";
}

TEST_F(AccessObjects, OutliveTheList)
{
    Held<IDispatch> row;
    ASSERT_EQ(m_object->get_accChild(Number(2), row.Out()), S_OK);
    m_list.DestroyWindow();
    long count = 0;
    BSTR text = nullptr;
    VARIANT value{};
    EXPECT_EQ(m_object->get_accChildCount(&count), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(m_object->get_accName(Number(0), &text), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(m_object->get_accState(Number(1), &value), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(m_object->accDoDefaultAction(Cell(1, 1)), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(m_object->accHitTest(5, 5, &value), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(static_cast<IAccessible *>(row.Get())->get_accValue(Number(0), &text), CO_E_OBJNOTCONNECTED);
}

TEST_F(AccessObjects, OutliveRows)
{
    Held<IDispatch> row;
    ASSERT_EQ(m_object->get_accChild(Number(5), row.Out()), S_OK);
    m_list.DeleteItem(4);
    BSTR text = nullptr;
    EXPECT_EQ(static_cast<IAccessible *>(row.Get())->get_accName(Number(0), &text), CO_E_OBJNOTCONNECTED);
}

TEST(AccessObjectEnds, ListMayEndInTheDefaultAction)
{
    ::CoInitialize(nullptr);
    {
        tests::ListParent parent;
        auto * list = new tests::GuardedList;
        ASSERT_TRUE(list->Create(tests::TestList::default_style, CRect(0, 0, 300, 200), &parent, 7));
        list->AddColumns(2);
        list->AddRows(2);
        list->SetCheckbox(1, 1, XLC_UNCHECKED);
        list->m_onStateChange = [&](int, int) { delete std::exchange(list, nullptr); };
        Held<IAccessible> object;
        ASSERT_EQ(access_tests::Ask(list->m_hWnd, object), S_OK);
        EXPECT_EQ(object->accDoDefaultAction(Number(accessible::NumberOf({1, 1}))), S_OK);
        EXPECT_EQ(list, nullptr);
        EXPECT_EQ(object->accDoDefaultAction(Number(accessible::NumberOf({1, 1}))), CO_E_OBJNOTCONNECTED);
    }
    ::CoUninitialize();
}
