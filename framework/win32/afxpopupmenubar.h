#pragma once
// The items of a popup menu.

#include <afxtoolbar.h>

/// A column of items in a CMFCPopupMenu, which owns it.
class FRAMEWORK_API CMFCPopupMenuBar : public CMFCToolBar
{
    DECLARE_DYNCREATE(CMFCPopupMenuBar)

public:
    CMFCPopupMenuBar();
    ~CMFCPopupMenuBar() override;

    BOOL m_bDisableSideBarInXPMode; // of no use here: no menu has a bar at its side

    /// Replaces the items by those of the menu, in their present states.
    virtual BOOL ImportFromMenu(HMENU hMenu, BOOL bShowAllCommands = FALSE);
    /// A menu of the items, which the caller destroys.
    virtual HMENU ExportToMenu() const;
    int GetOffset() const;
    void SetOffset(int iOffset);
    virtual void CloseDelayedSubMenu();
    virtual void RestoreDelayedSubMenu();
    void StartPopupMenuTimer(CMFCToolBarMenuButton * pMenuButton, int nDelayFactor = 1);
    void SetButtonStyle(int nIndex, UINT nStyle) override;

    CSize CalcSize(BOOL bVertDock) override;
    BOOL CanFocus() const override;
    void DoPaint(CDC * pDC) override;
    void DrawSeparator(CDC * pDC, const CRect & rect, BOOL bHorz) override;
    void OnFillBackground(CDC * pDC) override;
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO * pTI) const override;

protected:
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnRButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);

private:
    friend class CMFCPopupMenu;
    friend class CMFCToolBarMenuButton;
    friend class framework::MenuMode;

    CSize Arrange(CDC & dc, int length, bool horizontal, bool place) override;
    HWND CommandTarget() const override;
    void Highlight(int index) override;
    void UpdateStates(CFrameWnd * target, BOOL disableIfNoHandler) override;
    CMFCPopupMenu * Popup() const;
    /// Highlights the next item in that direction, around the ends.
    void Step(int direction);
    void Choose(int index, bool byKeys);
    bool OpenSubMenu(int index, bool byKeys);
    bool IsUpdated(CMFCToolBarButton const & button) const override;
    void Relayout() override;
    void Measure(CDC & dc);
    void UpdateInserted(CFrameWnd * target);
    void CloseBeyond();
    bool IsScrolled() const { return m_visible < GetCount(); }
    void EnsureVisible(int index);
    int StripHeight() const;
    CRect StripRect(bool upper) const;
    int TextColumn() const;
    int ShortcutColumn() const;

    int m_offset;               // the first item that is shown, where there is no room for all
    int m_visible;              // how many are
    std::vector<int> m_heights; // of the items; empty until they are measured
    int m_shortcutWidth;
    int m_textWidth;
    int m_waiting;   // the item whose menu opens soon, or -1
    CPoint m_cursor; // where the mouse was last, on the screen

    DECLARE_MESSAGE_MAP()
};
