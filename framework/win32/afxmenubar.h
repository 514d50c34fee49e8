#pragma once
// The menu of a frame as a bar.

#include <afxtoolbar.h>

#define AFX_IDW_MENUBAR 0xE806

/// Takes the place of the frame's menu, which it goes on showing: the popups' states are asked of the frame as ever,
/// and the windows of an MDI frame are listed. A maximised child's buttons stand at its end.
class FRAMEWORK_API CMFCMenuBar : public CMFCToolBar
{
    DECLARE_DYNCREATE(CMFCMenuBar)

public:
    CMFCMenuBar();
    ~CMFCMenuBar() override;

    using CMFCToolBar::Create;
    using CMFCToolBar::CreateEx;
    /// The parent is the frame. Its menu is taken over, now or once it is loaded.
    BOOL Create(CWnd * pParentWnd, DWORD dwStyle = AFX_DEFAULT_TOOLBAR_STYLE, UINT nID = AFX_IDW_MENUBAR) override;
    BOOL CreateEx(CWnd * pParentWnd, DWORD dwCtrlStyle = TBSTYLE_FLAT, DWORD dwStyle = AFX_DEFAULT_TOOLBAR_STYLE,
                  CRect rcBorders = CRect(1, 1, 1, 1), UINT nID = AFX_IDW_MENUBAR) override;

    /// Shows that menu, which stays the caller's and has to last. bDefaultMenu: it is the frame's own.
    virtual void CreateFromMenu(HMENU hMenu, BOOL bDefaultMenu = FALSE, BOOL bForceUpdate = FALSE);
    HMENU GetHMenu() const;
    HMENU GetDefaultMenu() const;
    UINT GetDefaultMenuResId() const;
    void SetDefaultMenuResId(UINT uiResId);
    virtual void OnDefaultMenuLoaded(HMENU hMenu);
    /// The buttons of a maximised child and its menu.
    void SetMaximizeMode(BOOL bMax, CWnd * pWnd = nullptr, BOOL bRecalcLayout = TRUE);
    int GetSystemButtonsCount() const;
    CMFCToolBarButton * GetMenuItem(int iItem) const;
    static const CFont & GetMenuFont(BOOL bHorz = TRUE);
    static BOOL SetMenuFont(LPLOGFONT lpLogFont, BOOL bHorz = TRUE);

    BOOL AllowChangeTextLabels() const override;
    BOOL AllowShowOnPaneMenu() const override;
    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    int CalcMaxButtonHeight() override;
    BOOL CanBeClosed() const override;
    int GetRowHeight() const override;
    int GetColumnWidth() const override;
    BOOL IsButtonExtraSizeAvailable() const override;
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO * pTI) const override;

    /// TRUE if the command has been dealt with.
    BOOL OnSendCommand(const CMFCToolBarButton * pButton) override;

protected:
    afx_msg void OnDestroy();
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);

private:
    friend class framework::MenuMode;

    bool IsMenuBar() const override { return true; }
    bool IsUpdated(CMFCToolBarButton const & button) const override;
    CSize Arrange(CDC & dc, int length, bool horizontal, bool place) override;
    void UpdateStates(CFrameWnd * target, BOOL disableIfNoHandler) override;
    void Rebuild();
    void TakeFrameMenu();
    int FirstSystemButton() const;

    HMENU m_shown;
    HMENU m_default; // taken over from the frame, which doesn't know it any more
    UINT m_defaultId;
    HWND m_maximised;
    int m_systemButtons; // at the end
    bool m_systemMenu;   // at the start

    DECLARE_MESSAGE_MAP()
};
