#include "dialogs/KeyGroups.h"

namespace
{
// Virtual key codes.
constexpr unsigned int key_backspace = 0x08;
constexpr unsigned int key_tab = 0x09;
constexpr unsigned int key_clear = 0x0C;
constexpr unsigned int key_return = 0x0D;
constexpr unsigned int key_shift = 0x10;
constexpr unsigned int key_control = 0x11;
constexpr unsigned int key_caps_lock = 0x14;
constexpr unsigned int key_space = 0x20;
constexpr unsigned int key_page_up = 0x21; // Page Up, Page Down, End, Home, the arrows
constexpr unsigned int key_down = 0x28;
constexpr unsigned int key_delete = 0x2E;
constexpr unsigned int key_0 = 0x30;
constexpr unsigned int key_9 = 0x39;
constexpr unsigned int key_a = 0x41;
constexpr unsigned int key_z = 0x5A;
constexpr unsigned int key_number_pad_0 = 0x60;
constexpr unsigned int key_number_pad_9 = 0x69;
constexpr unsigned int key_f2 = 0x71;
constexpr unsigned int key_f12 = 0x7B;

constexpr bool Between(unsigned int key, unsigned int first, unsigned int last)
{
    return key >= first && key <= last;
}

/// The bits of the groups that the key is in.
unsigned int GroupsOf(unsigned int key)
{
    if (Between(key, key_f2, key_f12))
        return KeyGroups::function_keys;
    if (Between(key, key_0, key_9) || Between(key, key_number_pad_0, key_number_pad_9))
        return KeyGroups::digits;
    if (Between(key, key_a, key_z))
        return KeyGroups::letters;
    if (key == key_clear || Between(key, key_page_up, key_down))
        return KeyGroups::navigation;
    switch (key)
    {
    case key_space:
        return KeyGroups::editing | KeyGroups::space;
    case key_delete:
    case key_backspace:
    case key_tab:
    case key_return:
    case key_shift:
    case key_control:
    case key_caps_lock:
        return KeyGroups::editing;
    default:
        return 0;
    }
}
} // namespace

bool KeyGroups::LeavesToOthers(unsigned int mask, unsigned int virtualKey)
{
    return mask == every_key || (mask & GroupsOf(virtualKey)) != 0;
}
