#pragma once
// The edit field that lies over a cell of the report list while its text is being changed. Internal to the module.

#include <afxcmn.h>

namespace XListCtrl
{
/// Tells the list, by one message at most, that editing has ended: WM_XEDIT_KILL_FOCUS to take the text,
/// WM_XEDIT_VK_ESCAPE to leave the cell as it was. The list then ends the edit, within that message.
///
/// A host may have an edit ended at any time, also where the edit asks it for its colours or tells it of a change. The
/// native edit goes on with what it knew after that, so the window leaves its parent then, and goes when the native
/// code has come back. The object outlives whatever message it is in.
class CXEdit : public CEdit
{
public:
    /// list: who is told, not owned; null for the parent. text: what is shown at first.
    CXEdit(CWnd * list, CString const & text) : m_list(list), m_text(text) {}
    CXEdit(CXEdit const &) = delete;
    CXEdit & operator=(CXEdit const &) = delete;

    /// The window goes, and nothing is told any more.
    void Close();
    /// Closes, and deletes the object: whoever called it has none any more.
    void End();

    /// From now on Tab ends the edit and then is the list's.
    void GiveTabsToList() { m_tabsToList = true; }
    BOOL PreTranslateMessage(MSG * message) override;
    /// A closing message has gone out: the edit tells nothing any more.
    bool IsClosing() const { return m_closing != 0; }
    /// No closing message goes out from now on.
    void SetClosing() { m_closing = 1; }
    /// Instead of being ended within the message, it goes on: the next reason to end is told anew.
    void StayOpen() { m_closing = 0; }
    /// Its frame's resolution.
    void SetDpi(UINT dpi) { m_dpi = dpi; }
    /// Around the edit, on its parent.
    void PaintFrame();

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags);
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnDestroy();
    afx_msg void OnKillFocus(CWnd * newWindow);
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

    /// The object may be gone afterwards.
    void SendClosing(UINT message);

private:
    CWnd * m_list;
    CString m_text;
    unsigned int m_closing = 0;
    unsigned int m_messages = 0; // that it is in
    unsigned int m_native = 0;   // messages that the native edit is in
    bool m_isClosed = false;
    bool m_windowWaits = false; // for the native edit to come back, to go then
    bool m_isEnded = false;
    bool m_tabsToList = false;
    UINT m_dpi = 96;
};
} // namespace XListCtrl
