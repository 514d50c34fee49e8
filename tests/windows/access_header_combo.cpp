// The accessible objects of what belongs to the report list: its header, and its combo with the drop window.

#include <map>

#include "access_AccessTest.h"
#include "ListTestHost.h"

using access_tests::ActionOf;
using access_tests::Ask;
using access_tests::CountOf;
using access_tests::Held;
using access_tests::Listener;
using access_tests::NameOf;
using access_tests::Number;
using access_tests::PlaceOf;
using access_tests::RoleOf;
using access_tests::StatesOf;
using access_tests::Times;
using access_tests::ValueOf;

namespace
{
class AccessListParts : public access_tests::ObjectTest<>
{
protected:
    AccessListParts()
    {
        m_host.Fill(3, 5);
        m_host.TakePosted();
    }

    tests::ListHost m_host;
    tests::TestList & m_list = m_host.list;
};

TEST_F(AccessListParts, HeaderTellsTitlesAndMarks)
{
    ASSERT_EQ(Ask(m_list.Header(), m_object), S_OK);
    EXPECT_EQ(RoleOf(*m_object.Get()), ROLE_SYSTEM_LIST);
    ASSERT_EQ(CountOf(*m_object.Get()), 3);
    EXPECT_EQ(RoleOf(*m_object.Get(), 2), ROLE_SYSTEM_COLUMNHEADER);
    EXPECT_EQ(NameOf(*m_object.Get(), 2), L"c1");
    EXPECT_EQ(PlaceOf(*m_object.Get(), 2).Width(), 80);
    Listener listener(m_list.Header());
    m_list.SetHeaderCheckedState(1, XHC_CHECKED);
    EXPECT_EQ(StatesOf(*m_object.Get(), 2) & STATE_SYSTEM_CHECKED, STATE_SYSTEM_CHECKED);
    m_list.SetHeaderCheckedState(1, XHC_MIXED);
    EXPECT_EQ(StatesOf(*m_object.Get(), 2) & STATE_SYSTEM_MIXED, STATE_SYSTEM_MIXED);
    m_list.SetHeaderCheckedState(1, XHC_SORT_DESCENDING);
    EXPECT_EQ(ValueOf(*m_object.Get(), 2), L"Descending");
    std::vector<Listener::Event> const heard = listener.Take();
    EXPECT_EQ(Times(heard, EVENT_OBJECT_STATECHANGE, 2), 3);
    VARIANT to{};
    ASSERT_EQ(m_object->accNavigate(NAVDIR_RIGHT, Number(1), &to), S_OK);
    ASSERT_EQ(to.vt, VT_DISPATCH);
    EXPECT_EQ(NameOf(*static_cast<IAccessible *>(to.pdispVal)), L"c1");
    to.pdispVal->Release();
    m_list.AddColumn(L"new", LVCFMT_LEFT, 40);
    EXPECT_EQ(CountOf(*m_object.Get()), 4);
    m_list.DestroyWindow();
    long count = 0;
    EXPECT_EQ(m_object->get_accChildCount(&count), CO_E_OBJNOTCONNECTED);
}

TEST_F(AccessListParts, HeadersActionIsAClick)
{
    ASSERT_EQ(Ask(m_list.Header(), m_object), S_OK);
    EXPECT_EQ(ActionOf(*m_object.Get(), 2), L"Press");
    EXPECT_EQ(m_object->accDoDefaultAction(Number(2)), S_OK);
    m_list.SetHeaderDirectColumnClick();
    EXPECT_EQ(m_object->accDoDefaultAction(Number(3)), S_OK);
    EXPECT_EQ(m_host.TakePosted(),
              (tests::PostedRows{{WM_XLISTCTRL_COLUMNCLICK, 0, 1}, {WM_XLISTCTRL_COLUMNCLICK, 0, 2}}));
}

TEST_F(AccessListParts, HeaderThatCannotBePressedHasNoAction)
{
    ::SetWindowLongPtrW(m_list.Header(), GWL_STYLE, ::GetWindowLongPtrW(m_list.Header(), GWL_STYLE) & ~HDS_BUTTONS);
    ASSERT_EQ(Ask(m_list.Header(), m_object), S_OK);
    EXPECT_EQ(ActionOf(*m_object.Get(), 2), L"");
    EXPECT_EQ(m_object->accDoDefaultAction(Number(2)), DISP_E_MEMBERNOTFOUND);
}

TEST_F(AccessListParts, ComboOpensAndIsChosenFrom)
{
    m_list.SetComboBox(1, 1, std::map<int, wchar_t const *>{{10, L"ten"}, {20, L"twenty"}, {30, L"thirty"}}, 20, 10);
    Held<IAccessible> list;
    ASSERT_EQ(Ask(m_list.m_hWnd, list), S_OK);
    ASSERT_EQ(list->accDoDefaultAction(Number(accessible::NumberOf({1, 1}))), S_OK);
    HWND const combo = tests::OpenCombo();
    ASSERT_NE(combo, nullptr);
    ASSERT_EQ(Ask(combo, m_object), S_OK);
    EXPECT_EQ(RoleOf(*m_object.Get()), ROLE_SYSTEM_COMBOBOX);
    EXPECT_EQ(ValueOf(*m_object.Get()), L"twenty");
    EXPECT_EQ(ActionOf(*m_object.Get()), L"Open");
    EXPECT_NE(StatesOf(*m_object.Get()) & STATE_SYSTEM_COLLAPSED, 0);
    EXPECT_EQ(CountOf(*m_object.Get()), 0);

    Listener listener(combo);
    ASSERT_EQ(m_object->accDoDefaultAction(Number(0)), S_OK);
    EXPECT_NE(StatesOf(*m_object.Get()) & STATE_SYSTEM_EXPANDED, 0);
    EXPECT_EQ(ActionOf(*m_object.Get()), L"Close");
    ASSERT_EQ(CountOf(*m_object.Get()), 1);
    HWND const drop = access_tests::WindowOf(*m_object.Get(), 1);
    ASSERT_NE(drop, nullptr);
    Held<IAccessible> items;
    ASSERT_EQ(Ask(drop, items), S_OK);
    EXPECT_EQ(RoleOf(*items.Get()), ROLE_SYSTEM_LIST);
    ASSERT_EQ(CountOf(*items.Get()), 3);
    EXPECT_EQ(NameOf(*items.Get(), 3), L"thirty");
    EXPECT_EQ(RoleOf(*items.Get(), 3), ROLE_SYSTEM_LISTITEM);
    EXPECT_NE(StatesOf(*items.Get(), 2) & STATE_SYSTEM_SELECTED, 0);
    EXPECT_EQ(StatesOf(*items.Get(), 3) & STATE_SYSTEM_SELECTED, 0);
    Held<IAccessible> window;
    ASSERT_EQ(Ask(::GetParent(drop), window), S_OK);
    EXPECT_EQ(CountOf(*window.Get()), 3) << "the drop window is its list";
    CRect const place = PlaceOf(*items.Get(), 3);
    VARIANT hit{};
    ASSERT_EQ(items->accHitTest(place.CenterPoint().x, place.CenterPoint().y, &hit), S_OK);
    ASSERT_EQ(hit.vt, VT_DISPATCH);
    EXPECT_EQ(NameOf(*static_cast<IAccessible *>(hit.pdispVal)), L"thirty");
    hit.pdispVal->Release();

    EXPECT_EQ(ActionOf(*items.Get(), 3), L"Select");
    ASSERT_EQ(items->accDoDefaultAction(Number(3)), S_OK);
    EXPECT_TRUE(tests::PumpUntil([&] { return m_list.GetComboCurSel(1, 1) == 30; }));
    BSTR text = nullptr;
    EXPECT_EQ(items->get_accName(Number(1), &text), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(window->get_accName(Number(1), &text), CO_E_OBJNOTCONNECTED);
    EXPECT_TRUE(tests::PumpUntil([&] { return !::IsWindow(combo); }));
    EXPECT_EQ(m_object->get_accName(Number(0), &text), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(m_list.GetComboText(1, 1), L"thirty");
}
} // namespace
