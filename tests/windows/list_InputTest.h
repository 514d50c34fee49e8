#pragma once
// What the tests of the list's mouse, keyboard and tooltips share: a list of four columns and eight rows, a button
// beside it that takes the focus, and real input on the list's cells.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <vector>

#include "Input.h"
#include "ListTestHost.h"
#include "MessageRecorder.h"
#include "Pump.h"

namespace list_input
{
inline constexpr int rows = 8;
inline constexpr int columns = 4;

/// Injects button events that carry their position (screen pixels). The display server may report a former position of
/// the cursor late, so an event without one can end up there.
inline void Inject(CPoint screen, std::initializer_list<DWORD> buttonFlags)
{
    constexpr int range = 65536; // of absolute positions
    int const width = ::GetSystemMetrics(SM_CXSCREEN);
    int const height = ::GetSystemMetrics(SM_CYSCREEN);
    std::vector<INPUT> events;
    for (DWORD const flags : buttonFlags)
    {
        INPUT event{};
        event.type = INPUT_MOUSE;
        event.mi.dx = (screen.x * range + range / 2) / width;
        event.mi.dy = (screen.y * range + range / 2) / height;
        event.mi.dwFlags = flags | MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
        events.push_back(event);
    }
    ::SendInput(static_cast<UINT>(events.size()), events.data(), sizeof(INPUT));
}

inline void Click(CPoint screen, tests::Button button = tests::Button::left)
{
    tests::MoveMouse(screen);
    if (button == tests::Button::left)
        Inject(screen, {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP});
    else
        Inject(screen, {MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP});
}

inline void DoubleClick(CPoint screen)
{
    tests::MoveMouse(screen);
    Inject(screen, {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP});
}

/// Keeps the cursor at a place until the predicate holds; false if it doesn't within 60 s.
inline bool HoverUntil(CPoint screen, std::function<bool()> const & predicate)
{
    for (int attempt = 0; attempt < 30; ++attempt)
    {
        // A pixel apart, so that each attempt is a move.
        if (tests::MoveMouse({screen.x + attempt % 2, screen.y}) &&
            tests::PumpUntil(predicate, std::chrono::milliseconds(2000)))
            return true;
    }
    return false;
}

class ListInputTest : public testing::Test
{
protected:
    explicit ListInputTest(DWORD style = tests::TestList::default_style, bool itemToolTips = false)
        : m_host(style, CRect(0, 0, 360, 200), itemToolTips),
          m_input({WM_LBUTTONUP, WM_RBUTTONUP, WM_KEYUP, WM_TIMER, WM_CONTEXTMENU})
    {
    }

    void SetUp() override
    {
        ASSERT_TRUE(m_button.Create(L"b", WS_CHILD | WS_VISIBLE, CRect(5, 210, 60, 230), &m_host.parent, 32));
        m_list.SetFullRowSelect();
        m_host.Fill(columns, rows);
        m_input.Watch(m_list.m_hWnd, "list");
        m_input.Watch(m_host.parent.m_hWnd, "parent");
        ASSERT_TRUE(tests::BringToFront(m_host.parent.m_hWnd));
        m_button.SetFocus();
        ASSERT_TRUE(tests::MoveMouse(Aside()));
        tests::PumpPosted();
    }

    void TearDown() override
    {
        if (m_list.m_hWnd != nullptr)
            m_list.DestroyWindow();
        m_button.DestroyWindow();
    }

    /// The middle of a cell in the list's client coordinates.
    CPoint Middle(int row, int col) const
    {
        CRect rect;
        EXPECT_TRUE(m_list.GetSubItemRect(row, col, LVIR_BOUNDS, rect));
        return rect.CenterPoint();
    }
    /// A point of the list below its last row.
    CPoint EmptySpace() const
    {
        CRect client;
        m_list.GetClientRect(&client);
        return {40, client.bottom - 8};
    }
    /// A point of the parent beside the list, on the screen.
    CPoint Aside() const { return tests::ClientPoint(m_host.parent.m_hWnd, {250, 240}); }
    CPoint Screen(CPoint client) const { return tests::ClientPoint(m_list.m_hWnd, client); }

    /// Presses and releases a real mouse button and waits until the list has seen both. Successive clicks are apart, so
    /// that they are no double click.
    void ClickAt(CPoint client, tests::Button button = tests::Button::left)
    {
        UINT const up = button == tests::Button::left ? WM_LBUTTONUP : WM_RBUTTONUP;
        int const before = m_input.Count("list", up);
        m_shift = -m_shift;
        list_input::Click(Screen(client + CPoint(m_shift, 0)), button);
        EXPECT_TRUE(tests::PumpUntil([&] { return m_input.Count("list", up) > before; }));
        tests::PumpPosted();
    }
    void ClickCell(int row, int col, tests::Button button = tests::Button::left) { ClickAt(Middle(row, col), button); }

    void DoubleClickAt(CPoint client)
    {
        int const before = m_input.Count("list", WM_LBUTTONUP);
        list_input::DoubleClick(Screen(client));
        EXPECT_TRUE(tests::PumpUntil([&] { return m_input.Count("list", WM_LBUTTONUP) > before + 1; }));
        tests::PumpPosted();
    }

    /// Presses a real key with the focus in the list.
    void PressKey(WORD key)
    {
        int const before = m_input.Count("list", WM_KEYUP);
        tests::Key(key);
        EXPECT_TRUE(tests::PumpUntil([&] { return m_input.Count("list", WM_KEYUP) > before; }));
        tests::PumpPosted();
    }

    /// Timer messages of the list with that id.
    int Ticks(UINT_PTR id) const
    {
        std::vector<tests::ReceivedMessage> const & all = m_input.Received();
        return static_cast<int>(std::count_if(all.begin(), all.end(), [id](tests::ReceivedMessage const & received) {
            return received.message == WM_TIMER && received.wParam == id;
        }));
    }

    tests::ListHost m_host;
    tests::TestList & m_list = m_host.list;
    CButton m_button;
    tests::MessageRecorder m_input;

private:
    int m_shift = 8;
};
} // namespace list_input
