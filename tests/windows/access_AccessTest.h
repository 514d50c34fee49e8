#pragma once
// What a program that reads the screen does with a control, for the tests of accessible objects.

#include <afxwin.h>
#include <oleacc.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>
#include <vector>

#include "access/AccessElement.h"
#include "Pump.h"

namespace access_tests
{
inline VARIANT Number(long number)
{
    VARIANT which{};
    which.vt = VT_I4;
    which.lVal = number;
    return which;
}

/// A reference that is released at its end.
template <class Interface> class Held
{
public:
    Held() = default;
    Held(Held const &) = delete;
    Held & operator=(Held const &) = delete;
    ~Held() { Release(); }
    Interface ** Out() { return &m_object; }
    Interface * operator->() const { return m_object; }
    Interface * Get() const { return m_object; }
    /// The references left.
    ULONG Release()
    {
        Interface * const object = std::exchange(m_object, nullptr);
        return object != nullptr ? object->Release() : 0;
    }

private:
    Interface * m_object = nullptr;
};

inline CString TakeText(BSTR text)
{
    CString const copy(text != nullptr ? text : L"");
    ::SysFreeString(text);
    return copy;
}

/// The object of a window's client area.
inline HRESULT Ask(HWND window, Held<IAccessible> & object)
{
    object.Release();
    return ::AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                                        reinterpret_cast<void **>(object.Out()));
}

/// What an object says of itself or of a child; what failed is empty.
inline CString NameOf(IAccessible & object, long child = CHILDID_SELF)
{
    BSTR text = nullptr;
    object.get_accName(Number(child), &text);
    return TakeText(text);
}
inline CString ValueOf(IAccessible & object, long child = CHILDID_SELF)
{
    BSTR text = nullptr;
    object.get_accValue(Number(child), &text);
    return TakeText(text);
}
inline CString ActionOf(IAccessible & object, long child = CHILDID_SELF)
{
    BSTR text = nullptr;
    object.get_accDefaultAction(Number(child), &text);
    return TakeText(text);
}
inline long RoleOf(IAccessible & object, long child = CHILDID_SELF)
{
    VARIANT role{};
    return object.get_accRole(Number(child), &role) == S_OK ? role.lVal : -1;
}
inline long StatesOf(IAccessible & object, long child = CHILDID_SELF)
{
    VARIANT states{};
    return object.get_accState(Number(child), &states) == S_OK ? states.lVal : -1;
}
inline long CountOf(IAccessible & object)
{
    long count = -1;
    object.get_accChildCount(&count);
    return count;
}
/// In screen coordinates.
inline CRect PlaceOf(IAccessible & object, long child = CHILDID_SELF)
{
    long left = 0;
    long top = 0;
    long width = 0;
    long height = 0;
    object.accLocation(&left, &top, &width, &height, Number(child));
    return {CPoint(left, top), CSize(width, height)};
}
/// The window of a child that is one.
inline HWND WindowOf(IAccessible & object, long child)
{
    Held<IDispatch> found;
    Held<IAccessible> accessibleChild;
    HWND window = nullptr;
    if (object.get_accChild(Number(child), found.Out()) == S_OK && found.Get() != nullptr &&
        found->QueryInterface(__uuidof(IAccessible), reinterpret_cast<void **>(accessibleChild.Out())) == S_OK)
        ::WindowFromAccessibleObject(accessibleChild.Get(), &window);
    return window;
}

/// COM for as long as a test lasts.
class ComScope
{
public:
    ComScope() { ::CoInitialize(nullptr); }
    ~ComScope() { ::CoUninitialize(); }
    ComScope(ComScope const &) = delete;
    ComScope & operator=(ComScope const &) = delete;
};

/// What out-of-context listeners hear of a window's client.
class Listener
{
public:
    using Event = std::pair<DWORD, LONG>;

    explicit Listener(HWND window)
    {
        listening = this;
        m_window = window;
        m_hook = ::SetWinEventHook(EVENT_OBJECT_CREATE, EVENT_OBJECT_VALUECHANGE, nullptr, &Listener::Hear,
                                   ::GetCurrentProcessId(), 0, WINEVENT_OUTOFCONTEXT);
    }
    ~Listener()
    {
        ::UnhookWinEvent(m_hook);
        listening = nullptr;
    }
    Listener(Listener const &) = delete;
    Listener & operator=(Listener const &) = delete;

    bool Heard(DWORD event, accessible::Element element) const
    {
        return std::count(events.begin(), events.end(), Event(event, accessible::NumberOf(element))) > 0;
    }
    /// Waits until an event of our own, told last, has arrived.
    std::vector<Event> Take()
    {
        constexpr LONG last = 1000000;
        ::NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, m_window, OBJID_CLIENT, last);
        EXPECT_TRUE(tests::PumpUntil([&] { return !events.empty() && events.back().second == last; }));
        if (!events.empty())
            events.pop_back();
        return std::exchange(events, {});
    }

    std::vector<Event> events;

private:
    static void CALLBACK Hear(HWINEVENTHOOK, DWORD event, HWND window, LONG object, LONG child, DWORD, DWORD)
    {
        if (listening != nullptr && window == listening->m_window && object == OBJID_CLIENT)
            listening->events.emplace_back(event, child);
    }
    static inline Listener * listening = nullptr;

    HWND m_window = nullptr;
    HWINEVENTHOOK m_hook = nullptr;
};

/// How often an event was heard, of whatever element.
inline long Times(std::vector<Listener::Event> const & heard, DWORD event)
{
    return static_cast<long>(
        std::count_if(heard.begin(), heard.end(), [event](auto const & each) { return each.first == event; }));
}
/// The same of one element.
inline long Times(std::vector<Listener::Event> const & heard, DWORD event, LONG number)
{
    return static_cast<long>(std::count(heard.begin(), heard.end(), Listener::Event(event, number)));
}
inline long Times(std::vector<Listener::Event> const & heard, DWORD event, accessible::Element element)
{
    return Times(heard, event, accessible::NumberOf(element));
}

/// A fixture with an object, which is released before its control ends.
template <class Base = testing::Test> class ObjectTest : public Base
{
protected:
    void TearDown() override
    {
        m_object.Release();
        Base::TearDown();
    }

    ComScope m_com;
    Held<IAccessible> m_object;
};
} // namespace access_tests
