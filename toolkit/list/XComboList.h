#pragma once
// A popup list of entries. Internal to the module.

#include <afxcmn.h>

namespace XListCtrl
{
/// A list box and a scroll bar in a popup window. Its parent hears of what the user does in it by the WM_XCOMBOLIST_...
/// messages, with both words 0, each sent.
class CXComboList : public CWnd
{
public:
    /// parent: who is told, not owned.
    explicit CXComboList(CWnd * parent) : m_parent(parent) {}
    CXComboList(CXComboList const &) = delete;
    CXComboList & operator=(CXComboList const &) = delete;
    ~CXComboList() override;

    /// Creates the popup at a rectangle in screen coordinates, not shown yet; false if that fails.
    bool CreateAt(CRect const & place);
    /// Shows or hides it. The first time it is shown, its list takes the focus.
    void Show(bool show);
    CListBox & List() { return m_list; }
    BOOL PreTranslateMessage(MSG * message) override;

protected:
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnKillFocus(CWnd * newWindow);
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar * bar);
    afx_msg void OnDestroy();
    afx_msg void OnTimer(UINT_PTR id);
    DECLARE_MESSAGE_MAP()

private:
    /// The object may be gone afterwards.
    void Tell(UINT message);
    /// The item below a screen point; -1 if there is none.
    int ItemAt(CPoint point);
    /// The items that the list shows at once, at least 1.
    int PageOfList();
    /// Puts the scroll bar where the list is.
    void FollowList();

    CListBox m_list;
    CScrollBar m_scrollBar;
    CWnd * m_parent;
    int m_focusLosses = 0;
    int m_firstShow = 1;
};
} // namespace XListCtrl
