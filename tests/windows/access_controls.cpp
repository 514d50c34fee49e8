// The accessible objects of the small controls.

#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "access_AccessTest.h"
#include "controls/ColorButton.h"
#include "controls/FreeIconButton.h"
#include "controls/IdNameMultiselectCtrl.h"
#include "controls/LevelSliderCtrl.h"
#include "controls/XEditBrowseCtrl.h"
#include "list/XListCtrl.h"
#include "ScopedWindow.h"
#include "segments/DigiStatic.h"

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
using access_tests::WindowOf;

namespace
{
constexpr DWORD child_style = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
constexpr int clicked_id = 51;

/// Counts the commands of its controls.
class Parent : public tests::ScopedWindow
{
public:
    using ScopedWindow::ScopedWindow;
    int m_clicks = 0;
    std::function<void()> m_onClick;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        if (LOWORD(wParam) == clicked_id && HIWORD(wParam) == BN_CLICKED)
        {
            ++m_clicks;
            if (auto const clicked = m_onClick)
                clicked();
        }
        return ScopedWindow::OnCommand(wParam, lParam);
    }
};

class AccessControls : public access_tests::ObjectTest<>
{
protected:
    /// A label, which names what is made after it.
    void AddLabel(wchar_t const * text)
    {
        ASSERT_TRUE(m_label.Create(text, WS_CHILD | WS_VISIBLE, CRect(10, 10, 100, 30), &m_host));
    }
    static CRect ClientOf(HWND window)
    {
        CRect rect;
        ::GetClientRect(window, &rect);
        ::MapWindowPoints(window, nullptr, reinterpret_cast<POINT *>(&rect), 2);
        return rect;
    }

    Parent m_host{CRect(100, 100, 500, 400), WS_POPUP | WS_VISIBLE};
    CStatic m_label;
};

TEST_F(AccessControls, ReadOutSpeaksItsText)
{
    AddLabel(L"&Peak level:");
    CDigiStatic display;
    ASSERT_TRUE(display.Create(L"window", WS_CHILD | WS_VISIBLE, CRect(10, 40, 200, 80), &m_host));
    ASSERT_EQ(Ask(display.m_hWnd, m_object), S_OK);
    EXPECT_EQ(RoleOf(*m_object.Get()), ROLE_SYSTEM_STATICTEXT);
    EXPECT_EQ(NameOf(*m_object.Get()), L"Peak level");
    EXPECT_EQ(ValueOf(*m_object.Get()), L"");
    EXPECT_EQ(StatesOf(*m_object.Get()), STATE_SYSTEM_READONLY);
    EXPECT_EQ(PlaceOf(*m_object.Get()), ClientOf(display.m_hWnd));
    EXPECT_EQ(m_object->accDoDefaultAction(Number(0)), DISP_E_MEMBERNOTFOUND);
    Listener listener(display.m_hWnd);
    display.SetText(L"-3.5 DB");
    display.SetText(L"-3.5 DB");
    EXPECT_EQ(ValueOf(*m_object.Get()), L"-3.5 DB");
    EXPECT_EQ(listener.Take(), (std::vector<Listener::Event>{{EVENT_OBJECT_VALUECHANGE, 0}}));
    display.SetText(L"?");
    EXPECT_EQ(ValueOf(*m_object.Get()), L"window") << "stands for the window's text";
    display.DestroyWindow();
    BSTR text = nullptr;
    EXPECT_EQ(m_object->get_accValue(Number(0), &text), CO_E_OBJNOTCONNECTED);
}

template <class Button> void ExpectAButton(Parent & parent, Held<IAccessible> & object)
{
    Button button;
    ASSERT_TRUE(button.Create(L"&Go on", child_style, CRect(10, 40, 90, 80), &parent, clicked_id));
    ASSERT_EQ(Ask(button.m_hWnd, object), S_OK);
    EXPECT_EQ(RoleOf(*object.Get()), ROLE_SYSTEM_PUSHBUTTON);
    EXPECT_EQ(NameOf(*object.Get()), L"Go on");
    EXPECT_EQ(ActionOf(*object.Get()), L"Press");
    EXPECT_EQ(StatesOf(*object.Get()), STATE_SYSTEM_FOCUSABLE);
    EXPECT_EQ(CountOf(*object.Get()), 0);
    BSTR shortcut = nullptr;
    EXPECT_EQ(object->get_accKeyboardShortcut(Number(0), &shortcut), S_OK);
    EXPECT_EQ(access_tests::TakeText(shortcut), L"Alt+G");
    button.SetState(TRUE);
    EXPECT_EQ(StatesOf(*object.Get()), STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_PRESSED);
    button.SetState(FALSE);
    EXPECT_EQ(object->accDoDefaultAction(Number(0)), S_OK);
    EXPECT_TRUE(tests::PumpUntil([&] { return parent.m_clicks == 1; }));
    EXPECT_EQ(object->accSelect(SELFLAG_TAKEFOCUS, Number(0)), S_OK);
    EXPECT_EQ(::GetFocus(), button.m_hWnd);
    EXPECT_EQ(StatesOf(*object.Get()), STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_FOCUSED);
    ::SetFocus(parent.m_hWnd);
    button.EnableWindow(FALSE);
    EXPECT_EQ(StatesOf(*object.Get()), STATE_SYSTEM_UNAVAILABLE);
    EXPECT_EQ(object->accDoDefaultAction(Number(0)), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(ActionOf(*object.Get()), L"");
}

TEST_F(AccessControls, ButtonsArePressed)
{
    ExpectAButton<CColorButton>(m_host, m_object);
    m_host.m_clicks = 0;
    // Its window is gone by now.
    EXPECT_EQ(m_object->accDoDefaultAction(Number(0)), CO_E_OBJNOTCONNECTED);
    ExpectAButton<CFreeIconButton>(m_host, m_object);
    EXPECT_EQ(m_object->accDoDefaultAction(Number(0)), CO_E_OBJNOTCONNECTED);
}

TEST_F(AccessControls, ButtonWithoutATextIsNamedByItsLabel)
{
    AddLabel(L"Disc");
    CFreeIconButton button;
    ASSERT_TRUE(button.Create(L"", child_style, CRect(10, 40, 90, 80), &m_host, clicked_id));
    ASSERT_EQ(Ask(button.m_hWnd, m_object), S_OK);
    EXPECT_EQ(NameOf(*m_object.Get()), L"Disc");
}

TEST_F(AccessControls, ButtonMayEndInItsClick)
{
    auto button = std::make_unique<CColorButton>();
    ASSERT_TRUE(button->Create(L"End", child_style, CRect(10, 40, 90, 80), &m_host, clicked_id));
    ASSERT_EQ(Ask(button->m_hWnd, m_object), S_OK);
    m_host.m_onClick = [&] { button->DestroyWindow(); };
    EXPECT_EQ(m_object->accDoDefaultAction(Number(0)), S_OK);
    EXPECT_TRUE(tests::PumpUntil([&] { return m_host.m_clicks == 1; }));
    EXPECT_EQ(m_object->accDoDefaultAction(Number(0)), CO_E_OBJNOTCONNECTED);
    button.reset();
    EXPECT_EQ(m_object->accDoDefaultAction(Number(0)), CO_E_OBJNOTCONNECTED);
}

TEST_F(AccessControls, ObjectsAreNotGivenToOtherThreads)
{
    LRESULT answers[2] = {};
    for (DWORD const kind : {COINIT_APARTMENTTHREADED, COINIT_MULTITHREADED})
    {
        std::thread([&] {
            ::CoInitializeEx(nullptr, kind);
            CColorButton button;
            EXPECT_TRUE(button.CreateEx(0, L"BUTTON", L"x", WS_POPUP, CRect(0, 0, 20, 20), nullptr, 0));
            answers[kind == COINIT_MULTITHREADED ? 1 : 0] = button.SendMessage(WM_GETOBJECT, 0, OBJID_CLIENT);
            button.DestroyWindow();
            ::CoUninitialize();
        }).join();
    }
    EXPECT_GT(answers[0], 0);
    EXPECT_EQ(answers[1], 0);
}

TEST_F(AccessControls, SliderSpeaksItsLevel)
{
    AddLabel(L"&Gain:");
    CLevelSliderCtrl slider;
    ASSERT_TRUE(slider.Create(child_style | TBS_HORZ, CRect(10, 40, 200, 70), &m_host, 3));
    slider.SetRange(-20, 20);
    ASSERT_EQ(Ask(slider.m_hWnd, m_object), S_OK);
    EXPECT_EQ(RoleOf(*m_object.Get()), ROLE_SYSTEM_SLIDER);
    EXPECT_EQ(NameOf(*m_object.Get()), L"Gain");
    slider.SetPos(-20);
    EXPECT_EQ(ValueOf(*m_object.Get()), L"0%");
    Listener listener(slider.m_hWnd);
    slider.SetPos(10);
    EXPECT_EQ(ValueOf(*m_object.Get()), L"75%");
    slider.SetPos(10);
    std::vector<Listener::Event> heard = listener.Take();
    EXPECT_EQ(Times(heard, EVENT_OBJECT_VALUECHANGE, 0), 1);
    slider.SendMessage(WM_KEYDOWN, VK_HOME, 0);
    EXPECT_EQ(ValueOf(*m_object.Get()), L"0%");
    heard = listener.Take();
    EXPECT_EQ(Times(heard, EVENT_OBJECT_VALUECHANGE, 0), 1);
    slider.ModifyStyle(TBS_HORZ, TBS_VERT);
    slider.SetPos(10);
    EXPECT_EQ(ValueOf(*m_object.Get()), L"25%") << "what is below the thumb";
    slider.DestroyWindow();
    VARIANT role{};
    EXPECT_EQ(m_object->get_accRole(Number(0), &role), CO_E_OBJNOTCONNECTED);
}

/// Native controls of systems that tell of a change themselves: what they do, and an event. Each such class stays one
/// of its own.
class TellingClass
{
public:
    TellingClass(wchar_t const * native, UINT message, std::vector<Listener::Event> events)
    {
        s_message = message;
        s_events = std::move(events);
        WNDCLASSEXW info{};
        info.cbSize = sizeof info;
        ::GetClassInfoExW(nullptr, native, &info);
        s_native = info.lpfnWndProc;
        info.lpfnWndProc = Run;
        info.hInstance = ::GetModuleHandleW(nullptr);
        static int made = 0;
        m_name = L"TellingControl" + std::to_wstring(++made);
        info.lpszClassName = m_name.c_str();
        ::RegisterClassExW(&info);
    }
    TellingClass(TellingClass const &) = delete;
    TellingClass & operator=(TellingClass const &) = delete;

    HWND Create(DWORD style, CWnd const & parent) const
    {
        return ::CreateWindowExW(0, m_name.c_str(), L"", style, 10, 40, 190, 100, parent.m_hWnd,
                                 reinterpret_cast<HMENU>(3), ::GetModuleHandleW(nullptr), nullptr);
    }

private:
    static LRESULT CALLBACK Run(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        LRESULT const result = ::CallWindowProcW(s_native, window, message, wParam, lParam);
        if (message == s_message)
        {
            for (auto const & [event, child] : s_events)
                ::NotifyWinEvent(event, window, OBJID_CLIENT, child);
        }
        return result;
    }
    std::wstring m_name;
    static inline WNDPROC s_native = nullptr;
    static inline UINT s_message = 0;
    static inline std::vector<Listener::Event> s_events;
};

TEST_F(AccessControls, ASliderLeavesToTheNativeOneWhatThatTells)
{
    TellingClass const telling(TRACKBAR_CLASSW, TBM_SETPOS, {{EVENT_OBJECT_VALUECHANGE, CHILDID_SELF}});
    CLevelSliderCtrl slider;
    ASSERT_TRUE(slider.SubclassWindow(telling.Create(child_style | TBS_HORZ, m_host)));
    Listener listener(slider.m_hWnd);
    slider.SetPos(1);
    listener.Take();
    for (int position = 2; position < 20; ++position)
    {
        slider.SetPos(position);
        std::vector<Listener::Event> const heard = listener.Take();
        EXPECT_EQ(Times(heard, EVENT_OBJECT_VALUECHANGE, 0), 1) << position;
    }
    slider.DestroyWindow();
}

TEST_F(AccessControls, ASliderGoesOnTellingWhereTheNativeOneDoesNot)
{
    // Of what is no value of its own it may tell what it likes.
    TellingClass const telling(TRACKBAR_CLASSW, TBM_SETPOS, {{EVENT_OBJECT_VALUECHANGE, 1}});
    CLevelSliderCtrl slider;
    ASSERT_TRUE(slider.SubclassWindow(telling.Create(child_style | TBS_HORZ, m_host)));
    Listener listener(slider.m_hWnd);
    for (int position = 1; position < 20; ++position)
    {
        slider.SetPos(position);
        std::vector<Listener::Event> const heard = listener.Take();
        EXPECT_EQ(Times(heard, EVENT_OBJECT_VALUECHANGE, 0), 1) << position;
    }
    slider.DestroyWindow();
}

TEST_F(AccessControls, AListLeavesToTheNativeOneWhatThatTells)
{
    TellingClass const telling(WC_LISTVIEWW, LVM_SETITEMSTATE, {{EVENT_OBJECT_SELECTIONADD, 2}});
    CXListCtrl list;
    ASSERT_TRUE(list.SubclassWindow(telling.Create(child_style | LVS_REPORT, m_host)));
    list.InsertColumn(0, L"name", LVCFMT_LEFT, 100, 0);
    list.InsertItem(0, L"one");
    list.InsertItem(1, L"two");
    Listener listener(list.m_hWnd);
    auto const heard = [&](UINT state, DWORD event) {
        list.SetItemState(1, state, LVIS_SELECTED);
        std::vector<Listener::Event> const events = listener.Take();
        return Times(events, event, 2);
    };
    heard(LVIS_SELECTED, EVENT_OBJECT_SELECTION);
    for (int turn = 0; turn < 10; ++turn)
    {
        EXPECT_EQ(heard(0, EVENT_OBJECT_SELECTIONREMOVE), 1) << "which that one doesn't tell";
        EXPECT_EQ(heard(LVIS_SELECTED, EVENT_OBJECT_SELECTION), 0) << turn;
    }
    list.DestroyWindow();
}

/// Writes down that its button was pressed.
class BrowseEdit : public CXEditBrowseCtrl
{
public:
    int m_browsed = 0;
    void OnBrowse() override { ++m_browsed; }
};

TEST_F(AccessControls, BrowseEditHasItsButton)
{
    AddLabel(L"&Folder:");
    BrowseEdit field;
    ASSERT_TRUE(field.Create(child_style | WS_BORDER | ES_AUTOHSCROLL, CRect(10, 40, 200, 62), &m_host, 4));
    ASSERT_EQ(Ask(field.m_hWnd, m_object), S_OK);
    EXPECT_EQ(CountOf(*m_object.Get()), 0) << "no browser yet";
    field.PrepareFileOpenBrowser(L"", nullptr, nullptr);
    field.SetWindowText(L"C:\\a");
    EXPECT_EQ(RoleOf(*m_object.Get()), ROLE_SYSTEM_TEXT);
    EXPECT_EQ(NameOf(*m_object.Get()), L"Folder");
    EXPECT_EQ(ValueOf(*m_object.Get()), L"C:\\a");
    EXPECT_EQ(CountOf(*m_object.Get()), 1);
    EXPECT_EQ(RoleOf(*m_object.Get(), 1), ROLE_SYSTEM_PUSHBUTTON);
    EXPECT_EQ(NameOf(*m_object.Get(), 1), L"Browse");
    CRect const button = PlaceOf(*m_object.Get(), 1);
    EXPECT_GT(button.Width(), 5);
    EXPECT_GE(button.left, ClientOf(field.m_hWnd).right);
    VARIANT hit{};
    ASSERT_EQ(m_object->accHitTest(button.CenterPoint().x, button.CenterPoint().y, &hit), S_OK);
    ASSERT_EQ(hit.vt, VT_DISPATCH);
    EXPECT_EQ(RoleOf(*static_cast<IAccessible *>(hit.pdispVal)), ROLE_SYSTEM_PUSHBUTTON);
    hit.pdispVal->Release();
    EXPECT_EQ(m_object->accDoDefaultAction(Number(1)), S_OK);
    EXPECT_TRUE(tests::PumpUntil([&] { return field.m_browsed == 1; }));
    field.SetReadOnly();
    EXPECT_NE(StatesOf(*m_object.Get()) & STATE_SYSTEM_READONLY, 0);
    field.EnableWindow(FALSE);
    EXPECT_EQ(m_object->accDoDefaultAction(Number(1)), DISP_E_MEMBERNOTFOUND);
    field.DestroyWindow();
    EXPECT_EQ(m_object->accDoDefaultAction(Number(1)), CO_E_OBJNOTCONNECTED);
}

TEST_F(AccessControls, MultiselectIsAGroupOfAListAndButtons)
{
    AddLabel(L"Channels");
    CIdNameMultiselectCtrl control;
    control.SetTheMap({{1, L"left"}, {2, L"right"}, {3, L"both"}});
    control.SetSelection(2);
    ASSERT_TRUE(control.Create(L"", child_style, CRect(10, 40, 200, 200), &m_host, 5));
    control.SetWindowPos(nullptr, 0, 0, 180, 150, SWP_NOMOVE | SWP_NOZORDER);
    ASSERT_EQ(Ask(control.m_hWnd, m_object), S_OK);
    EXPECT_EQ(RoleOf(*m_object.Get()), ROLE_SYSTEM_GROUPING);
    EXPECT_EQ(NameOf(*m_object.Get()), L"Channels");
    EXPECT_EQ(CountOf(*m_object.Get()), 3) << "the list, all, none";
    HWND const list = control.GetDlgItem(32802)->m_hWnd;
    std::vector<HWND> windows;
    for (long child = 1; child <= 3; ++child)
        windows.push_back(WindowOf(*m_object.Get(), child));
    EXPECT_EQ(std::count(windows.begin(), windows.end(), list), 1);
    EXPECT_EQ(std::count(windows.begin(), windows.end(), HWND(nullptr)), 0);
    Held<IDispatch> none;
    EXPECT_EQ(m_object->get_accChild(Number(4), none.Out()), E_INVALIDARG);

    Held<IAccessible> rows;
    ASSERT_EQ(Ask(list, rows), S_OK);
    EXPECT_EQ(RoleOf(*rows.Get()), ROLE_SYSTEM_LIST);
    ASSERT_EQ(CountOf(*rows.Get()), 3);
    // What is selected comes first.
    EXPECT_EQ(NameOf(*rows.Get(), 1), L"right");
    EXPECT_EQ(RoleOf(*rows.Get(), 1), ROLE_SYSTEM_CHECKBUTTON);
    EXPECT_NE(StatesOf(*rows.Get(), 1) & STATE_SYSTEM_CHECKED, 0);
    EXPECT_EQ(ActionOf(*rows.Get(), 1), L"Uncheck");
    EXPECT_EQ(StatesOf(*rows.Get(), 2) & STATE_SYSTEM_CHECKED, 0);
    EXPECT_EQ(ActionOf(*rows.Get(), 2), L"Check");
    Listener listener(list);
    EXPECT_EQ(rows->accDoDefaultAction(Number(2)), S_OK);
    EXPECT_NE(StatesOf(*rows.Get(), 2) & STATE_SYSTEM_CHECKED, 0);
    listener.events = listener.Take();
    EXPECT_TRUE(listener.Heard(EVENT_OBJECT_STATECHANGE, {1, -1}));
    control.RetrieveSelection();
    EXPECT_EQ(control.TheSelection(), (std::set<int>{1, 2}));
    CRect const place = PlaceOf(*rows.Get(), 3);
    VARIANT hit{};
    ASSERT_EQ(rows->accHitTest(place.left + 30, place.CenterPoint().y, &hit), S_OK);
    ASSERT_EQ(hit.vt, VT_DISPATCH);
    EXPECT_EQ(NameOf(*static_cast<IAccessible *>(hit.pdispVal)), L"both");
    hit.pdispVal->Release();
    control.DestroyWindow();
    EXPECT_EQ(rows->accDoDefaultAction(Number(2)), CO_E_OBJNOTCONNECTED);
    long count = 0;
    EXPECT_EQ(m_object->get_accChildCount(&count), CO_E_OBJNOTCONNECTED);
}
} // namespace
