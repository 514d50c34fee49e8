#pragma once
// The numbers of the messages with which the toolkit's controls tell their parents what happened. They are registered
// by name when the module is loaded, so every module of the process that registers the same name gets the same number.
//
//     ON_REGISTERED_MESSAGE(WM_XLISTCTRL_EDIT_END, &CMyDialog::OnEditEnd)
//
// A number is 0 if the registration failed. "Posted to the parent" means the parent window, or the owner where there
// is no parent.

#include <afxwin.h>

#include "frame/Export.h"

/// The multiselect's selection event, posted to the parent. wParam 1: OK; 2: cancelled; 6: a row was pressed, lParam is
/// its id or -1.
extern INSTRUMENT_UI_API unsigned int const WM_IDNAME_MULTISELECT_EVENT;

/// Browsing in a browse edit ended; posted to the parent.
extern INSTRUMENT_UI_API unsigned int const WM_XEDITBROWSE_COMPLETED;

/// A check box of a list cell was clicked, or a check in the header flipped that row. wParam row, lParam column.
extern INSTRUMENT_UI_API unsigned int const WM_XLISTCTRL_CHECKBOX_CLICKED;

/// A header column of the list was clicked; posted to the parent. wParam tells what the click meant, lParam is the
/// column.
extern INSTRUMENT_UI_API unsigned int const WM_XLISTCTRL_COLUMNCLICK;

/// The selection of a cell's combo box changed. wParam row, lParam column.
extern INSTRUMENT_UI_API unsigned int const WM_XLISTCTRL_COMBO_SELECTION;

/// An in-place edit of a list cell ended. wParam row, lParam column.
extern INSTRUMENT_UI_API unsigned int const WM_XLISTCTRL_EDIT_END;

/// A list item was double-clicked; posted to the parent. wParam row, lParam column.
extern INSTRUMENT_UI_API unsigned int const WM_XLISTCTRL_ITEM_DBLCLICKED;

/// A link or button of a list cell was clicked. wParam row, lParam column. Registered under the name
/// "WM_XLISTCTRL_PUSHBUTTON": hosts register that name.
extern INSTRUMENT_UI_API unsigned int const WM_XLISTCTRL_LINK_CLICKED;

/// A tree item was double-clicked; sent to the parent. wParam mouse flags, lParam the item.
extern INSTRUMENT_UI_API unsigned int const WM_XTREECTRL_DBLCLK;
