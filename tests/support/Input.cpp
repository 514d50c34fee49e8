#include "Input.h"

#include <optional>
#include <vector>

#include "Pump.h"

namespace tests
{
namespace
{
constexpr ULONGLONG rest_of_cursor = 30; // ms

/// Where the mouse was moved last.
std::optional<CPoint> g_moved;
constexpr int absolute_range = 65536; // SendInput's coordinates span the screen with 0 to 65535

void Send(std::vector<INPUT> input)
{
    ::SendInput(static_cast<UINT>(input.size()), input.data(), sizeof(INPUT));
}

INPUT MouseInput(DWORD flags, DWORD data = 0)
{
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    input.mi.mouseData = data;
    return input;
}

INPUT KeyInput(WORD key, bool up)
{
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(::MapVirtualKey(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
    switch (key)
    {
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN:
    case VK_HOME:
    case VK_END:
    case VK_PRIOR:
    case VK_NEXT:
    case VK_INSERT:
    case VK_DELETE:
    case VK_RCONTROL:
    case VK_RMENU:
    case VK_APPS:
        input.ki.dwFlags |= KEYEVENTF_EXTENDEDKEY;
        break;
    default:
        break;
    }
    return input;
}

struct ButtonFlags
{
    DWORD down;
    DWORD up;
};

ButtonFlags FlagsOf(Button button)
{
    switch (button)
    {
    case Button::right:
        return {MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP};
    case Button::middle:
        return {MOUSEEVENTF_MIDDLEDOWN, MOUSEEVENTF_MIDDLEUP};
    default:
        return {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP};
    }
}

LONG Absolute(int position, int extent)
{
    // The middle of the pixel, so that rounding on the other side finds it again.
    return (position * absolute_range + absolute_range / 2) / extent;
}

INPUT MoveTo(CPoint screen, DWORD flags = 0, DWORD data = 0)
{
    INPUT input = MouseInput(flags | MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, data);
    input.mi.dx = Absolute(screen.x, ::GetSystemMetrics(SM_CXSCREEN));
    input.mi.dy = Absolute(screen.y, ::GetSystemMetrics(SM_CYSCREEN));
    return input;
}

/// A button or wheel event that carries its place: a late report of where the cursor was before may have taken it back.
INPUT AtMovedPlace(DWORD flags, DWORD data = 0)
{
    return g_moved ? MoveTo(*g_moved, flags, data) : MouseInput(flags, data);
}
} // namespace

bool BringToFront(HWND window)
{
    ::SetForegroundWindow(window);
    bool const front = PumpUntil([window] {
        if (::GetForegroundWindow() == window)
            return true;
        ::SetForegroundWindow(window);
        return false;
    });
    PumpPosted();
    return front;
}

CPoint ClientPoint(HWND window, CPoint client)
{
    ::ClientToScreen(window, &client);
    return client;
}

CPoint Centre(HWND window)
{
    CRect rect;
    ::GetWindowRect(window, &rect);
    return rect.CenterPoint();
}

void InjectMove(CPoint screen)
{
    g_moved = screen;
    Send({MoveTo(screen)});
}

bool MoveMouse(CPoint screen)
{
    auto const there = [screen] {
        POINT now;
        return ::GetCursorPos(&now) && now.x == screen.x && now.y == screen.y;
    };
    InjectMove(screen);
    // A late report of the position before may put the cursor back, so it must have rested for a while.
    ULONGLONG arrived = 0;
    return PumpUntil([&] {
        ULONGLONG const now = ::GetTickCount64();
        if (!there())
        {
            if (arrived != 0)
                InjectMove(screen);
            arrived = 0;
            return false;
        }
        if (arrived == 0)
            arrived = now;
        return now - arrived >= rest_of_cursor;
    });
}

void Press(Button button)
{
    Send({AtMovedPlace(FlagsOf(button).down)});
}

void Release(Button button)
{
    Send({AtMovedPlace(FlagsOf(button).up)});
}

void Click(CPoint screen, Button button)
{
    MoveMouse(screen);
    Press(button);
    Release(button);
}

void DoubleClick(CPoint screen, Button button)
{
    MoveMouse(screen);
    auto const [down, up] = FlagsOf(button);
    Send({AtMovedPlace(down), AtMovedPlace(up), AtMovedPlace(down), AtMovedPlace(up)});
}

void Drag(CPoint from, CPoint to, int steps, Button button)
{
    MoveMouse(from);
    Press(button);
    PumpPosted();
    for (int step = 1; step <= steps; ++step)
        MoveMouse({from.x + (to.x - from.x) * step / steps, from.y + (to.y - from.y) * step / steps});
    Release(button);
}

void Wheel(CPoint screen, int notches)
{
    MoveMouse(screen);
    Send({AtMovedPlace(MOUSEEVENTF_WHEEL, static_cast<DWORD>(notches * WHEEL_DELTA))});
}

void KeyDown(WORD virtualKey)
{
    Send({KeyInput(virtualKey, false)});
}

void KeyUp(WORD virtualKey)
{
    Send({KeyInput(virtualKey, true)});
}

void Key(WORD virtualKey, std::initializer_list<WORD> modifiers)
{
    std::vector<INPUT> input;
    for (WORD const modifier : modifiers)
        input.push_back(KeyInput(modifier, false));
    input.push_back(KeyInput(virtualKey, false));
    input.push_back(KeyInput(virtualKey, true));
    for (unsigned short const * modifier = modifiers.end(); modifier != modifiers.begin();)
        input.push_back(KeyInput(*--modifier, true));
    Send(std::move(input));
}

void Type(std::wstring_view text)
{
    std::vector<INPUT> input;
    for (wchar_t const character : text)
    {
        INPUT key = {};
        key.type = INPUT_KEYBOARD;
        key.ki.wScan = static_cast<WORD>(character);
        key.ki.dwFlags = KEYEVENTF_UNICODE;
        input.push_back(key);
        key.ki.dwFlags |= KEYEVENTF_KEYUP;
        input.push_back(key);
    }
    Send(std::move(input));
}
} // namespace tests
