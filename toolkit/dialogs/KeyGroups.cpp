#include "dialogs/KeyGroups.h"

#include <afx.h>

namespace
{
constexpr bool Between(unsigned int key, unsigned int first, unsigned int last)
{
    return key >= first && key <= last;
}

/// The bits of the groups that the key is in.
unsigned int GroupsOf(unsigned int key)
{
    if (Between(key, VK_F2, VK_F12))
        return KeyGroups::function_keys;
    if (Between(key, '0', '9') || Between(key, VK_NUMPAD0, VK_NUMPAD9))
        return KeyGroups::digits;
    if (Between(key, 'A', 'Z'))
        return KeyGroups::letters;
    if (key == VK_CLEAR || Between(key, VK_PRIOR, VK_DOWN))
        return KeyGroups::navigation;
    switch (key)
    {
    case VK_SPACE:
        return KeyGroups::editing | KeyGroups::space;
    case VK_DELETE:
    case VK_BACK:
    case VK_TAB:
    case VK_RETURN:
    case VK_SHIFT:
    case VK_CONTROL:
    case VK_CAPITAL:
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
