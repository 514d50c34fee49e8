#pragma once
// Real mouse and keyboard input through SendInput. Positions are screen pixels; ClientPoint turns a window's own into
// them. Input goes to the window below the cursor or with the focus, so bring the window to the front first:
//
//     ASSERT_TRUE(tests::BringToFront(frame));
//     tests::Click(tests::ClientPoint(list, {10, 25}));
//     tests::Key(VK_RETURN);
//     ASSERT_TRUE(tests::PumpUntil(...));
//
// The functions return once the input is injected. The messages arrive later: pump until their effect shows.
// BringToFront and MoveMouse pump themselves.

#include <afxwin.h>

#include <initializer_list>
#include <string_view>

namespace tests
{
/// Makes the window the foreground window; false if that fails within 5 s.
bool BringToFront(HWND window);

/// A client position of the window in screen coordinates.
CPoint ClientPoint(HWND window, CPoint client);
/// The centre of the window's rectangle in screen coordinates.
CPoint Centre(HWND window);

/// Moves the cursor and waits until the system reports it there; false if it doesn't within the limit of a hang.
bool MoveMouse(CPoint screen);
/// Without pumping: for the inside of the system's own loop, which waits for the message itself.
void InjectMove(CPoint screen);

enum class Button
{
    left,
    right,
    middle
};
/// Press and Release happen where the mouse was moved to last.
void Press(Button button = Button::left);
void Release(Button button = Button::left);
/// Moves there, presses and releases.
void Click(CPoint screen, Button button = Button::left);
void DoubleClick(CPoint screen, Button button = Button::left);
/// Presses at from, moves in steps to to and releases there. Pumps between the steps.
void Drag(CPoint from, CPoint to, int steps = 8, Button button = Button::left);
/// Turns the wheel; notches away from the user are positive.
void Wheel(CPoint screen, int notches);

void KeyDown(WORD virtualKey);
void KeyUp(WORD virtualKey);
/// Presses and releases the key while the modifiers are held.
void Key(WORD virtualKey, std::initializer_list<WORD> modifiers = {});
/// Types text as Unicode characters.
void Type(std::wstring_view text);
} // namespace tests
