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
    /// A dialog's command that no handler of its own has taken.
    static bool RouteBeyond(CWnd & dialog, UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo);
    static void SetTemplate(CDialog & dialog, LPCTSTR name);
    static LPCTSTR TemplateName(CDialog const & dialog);
    static bool CreateModeless(CDialog & dialog, LPCDLGTEMPLATE dialogTemplate, CWnd * parent, HINSTANCE instance);
};
} // namespace framework
