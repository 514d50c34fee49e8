#pragma once
// Numbers that the parts of the id-name multiselect share. Internal to the module.

#include <afxcmn.h>

/// Also the id of the list.
constexpr UINT multiselect_list_message = 32802;

// What WM_IDNAME_MULTISELECT_EVENT tells.
constexpr WPARAM multiselect_ok = 1;
constexpr WPARAM multiselect_cancelled = 2;
constexpr WPARAM multiselect_row_pressed = 6;

constexpr DWORD multiselect_list_style = LVS_EX_CHECKBOXES | LVS_EX_ONECLICKACTIVATE | LVS_EX_FLATSB;
