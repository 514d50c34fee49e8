#include "frame/RegisteredMessages.h"

#include "frame/InternalMessages.h"

unsigned int const WM_IDNAME_MULTISELECT_EVENT = RegisterWindowMessageW(L"WM_IDNAME_MULTISELECT_EVENT");
unsigned int const WM_XEDITBROWSE_COMPLETED = RegisterWindowMessageW(L"WM_XEDITBROWSE_COMPLETED");
unsigned int const WM_XLISTCTRL_CHECKBOX_CLICKED = RegisterWindowMessageW(L"WM_XLISTCTRL_CHECKBOX_CLICKED");
unsigned int const WM_XLISTCTRL_COLUMNCLICK = RegisterWindowMessageW(L"WM_XLISTCTRL_COLUMNCLICK");
unsigned int const WM_XLISTCTRL_COMBO_SELECTION = RegisterWindowMessageW(L"WM_XLISTCTRL_COMBO_SELECTION");
unsigned int const WM_XLISTCTRL_EDIT_END = RegisterWindowMessageW(L"WM_XLISTCTRL_EDIT_END");
unsigned int const WM_XLISTCTRL_ITEM_DBLCLICKED = RegisterWindowMessageW(L"WM_XLISTCTRL_ITEM_DBLCLICKED");
// Not the name of its constant, but the one that hosts register.
unsigned int const WM_XLISTCTRL_LINK_CLICKED = RegisterWindowMessageW(L"WM_XLISTCTRL_PUSHBUTTON");
unsigned int const WM_XTREECTRL_DBLCLK = RegisterWindowMessageW(L"WM_XTREECTRL_DBLCLK");

unsigned int const WM_XCOMBOLIST_COMPLETE = RegisterWindowMessageW(L"WM_XCOMBOLIST_COMPLETE");
unsigned int const WM_XCOMBOLIST_VK_ESCAPE = RegisterWindowMessageW(L"WM_XCOMBOLIST_VK_ESCAPE");
unsigned int const WM_XCOMBOLIST_VK_RETURN = RegisterWindowMessageW(L"WM_XCOMBOLIST_VK_RETURN");
unsigned int const WM_XCOMBOLIST_KEYDOWN = RegisterWindowMessageW(L"WM_XCOMBOLIST_KEYDOWN");
unsigned int const WM_XCOMBOLIST_LBUTTONUP = RegisterWindowMessageW(L"WM_XCOMBOLIST_LBUTTONUP");
unsigned int const WM_XEDIT_KILL_FOCUS = RegisterWindowMessageW(L"WM_XEDIT_KILL_FOCUS");
unsigned int const WM_XEDIT_VK_ESCAPE = RegisterWindowMessageW(L"WM_XEDIT_VK_ESCAPE");
