#pragma once
// Events that the native control may tell of, too. Systems differ in that: a client should hear of a change once.
// Internal to the module.

#include "access/AccessObject.h"

/// TellOfEvent for what the window's native control may tell by itself. In the first changes of its class in a thread
/// that somebody hears of, it is found out whether it does; from then on only what it doesn't is told here.
void TellUnlessNative(DWORD event, HWND window, accessible::Element element);
