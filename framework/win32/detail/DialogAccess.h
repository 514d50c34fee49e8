#pragma once
// What other parts of the framework do with a dialog beyond its public members.

#include <afxwin.h>

namespace framework
{
/// The dialog procedure of the framework's dialogs.
INT_PTR CALLBACK DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

struct DialogAccess
{
    static DialogState & State(CDialog & dialog) { return dialog.m_state; }

    /// Makes the dialog's window from the template; parent may be null. False if there is none, or if the dialog was
    /// ended while it was initialised; its result is in the state then.
    static bool CreateWindowOf(CDialog & dialog, LPCDLGTEMPLATE dialogTemplate, HWND parent, HINSTANCE instance);
    static bool CreateModeless(CDialog & dialog, LPCDLGTEMPLATE dialogTemplate, CWnd * parent, HINSTANCE instance);
};
} // namespace framework
