#pragma once
// What the windows of the combo family send each other, and what they agree on. Internal to the module.

#include <afxwin.h>

namespace XListCtrl
{
/// An item of the drop list was chosen; to the combo. wParam: its index there.
inline constexpr UINT WM_ADVCOMBO_SELECTED = WM_USER + 1;
/// The drop window is to be closed; to the combo. Without one, the choice is complete.
inline constexpr UINT WM_ADVCOMBO_CLOSE_DROP = WM_USER + 2;
/// To the drop window and its children: take the mouse capture, or release it.
inline constexpr UINT WM_ADVCOMBO_SET_CAPTURE = WM_USER + 3;
inline constexpr UINT WM_ADVCOMBO_RELEASE_CAPTURE = WM_USER + 4;
/// The drop window is to be opened or closed; to the combo.
inline constexpr UINT WM_ADVCOMBO_TOGGLE_DROP = WM_USER + 0x65;

/// The bits of a combo's flags.
enum ComboFlags : DWORD
{
    /// Excludes combo_edit_inside, as that does this.
    combo_edit_plain = 1,
    /// The edit field lies inside the frame.
    combo_edit_inside = 2,
    /// Items count as wider than their texts in the drop window.
    combo_wide_items = 4,
    combo_auto_append = 8,
    combo_auto_suggest = 16
};

/// What combo_wide_items adds to each item's width, at 96 dots an inch.
inline constexpr int wide_item_extra = 14;
} // namespace XListCtrl
