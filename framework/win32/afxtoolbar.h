#pragma once
// Tool bars that draw their buttons themselves.

#include <afxbasetoolbar.h>
#include <afxtoolbarbutton.h>
#include <afxtoolbarimages.h>
#include <afxtoolbarmenubutton.h>

#include <vector>

#define AFX_DEFAULT_TOOLBAR_STYLE (WS_CHILD | WS_VISIBLE | CBRS_TOP | CBRS_GRIPPER | CBRS_HIDE_INPLACE | CBRS_TOOLTIPS)

namespace framework
{
class MenuMode;
} // namespace framework

/// A bar of buttons. Commands go to its owner, states are asked of the frame in idle time. All bars share their
/// pictures, which menus show beside the same commands, except those that are loaded locked.
class FRAMEWORK_API CMFCToolBar : public CMFCBaseToolBar
{
    DECLARE_DYNCREATE(CMFCToolBar)

public:
    CMFCToolBar();
    ~CMFCToolBar() override;

    using CMFCBaseToolBar::Create;
    using CMFCBaseToolBar::CreateEx;
    virtual BOOL Create(CWnd * pParentWnd, DWORD dwStyle = AFX_DEFAULT_TOOLBAR_STYLE, UINT nID = AFX_IDW_TOOLBAR);
    virtual BOOL CreateEx(CWnd * pParentWnd, DWORD dwCtrlStyle = TBSTYLE_FLAT,
                          DWORD dwStyle = AFX_DEFAULT_TOOLBAR_STYLE, CRect rcBorders = CRect(1, 1, 1, 1),
                          UINT nID = AFX_IDW_TOOLBAR);

    /// Buttons from a resource of the kind RT_TOOLBAR and pictures from the bitmap of the same name. bLocked: the
    /// pictures are the bar's own. FALSE if either is missing or damaged. The numbers of other bitmaps are not used.
    virtual BOOL LoadToolBar(UINT uiResID, UINT uiColdResID = 0, UINT uiMenuResID = 0, BOOL bLocked = FALSE,
                             UINT uiDisabledResID = 0, UINT uiMenuDisabledResID = 0, UINT uiHotResID = 0);
    virtual BOOL LoadBitmap(UINT uiResID, UINT uiColdResID = 0, UINT uiMenuResID = 0, BOOL bLocked = FALSE,
                            UINT uiDisabledResID = 0, UINT uiMenuDisabledResID = 0);
    /// Pictures for menus from such a resource, without a bar.
    static BOOL PASCAL AddToolBarForImageCollection(UINT uiResID, UINT uiBmpResID = 0, UINT uiColdResID = 0,
                                                    UINT uiMenuResID = 0, UINT uiDisabledResID = 0,
                                                    UINT uiMenuDisabledResID = 0);
    /// lpIDArray: commands, 0 for a separator. Null removes all.
    virtual BOOL SetButtons(const UINT * lpIDArray, int nIDCount, BOOL bRemapImages = TRUE);
    /// A copy of the button is made by its run-time class. Gives its index, or -1.
    virtual int InsertButton(const CMFCToolBarButton & button, INT_PTR iInsertAt = -1);
    /// The button belongs to the bar from here on.
    virtual int InsertButton(CMFCToolBarButton * pButton, int iInsertAt = -1);
    virtual int InsertSeparator(INT_PTR iInsertAt = -1);
    virtual BOOL RemoveButton(int iIndex);
    virtual void RemoveAllButtons();
    /// Puts a copy in the place of the first button of that command, or of all; gives how many.
    int ReplaceButton(UINT uiCmd, const CMFCToolBarButton & button, BOOL bAll = FALSE);

    int GetCount() const;
    /// Null outside.
    CMFCToolBarButton * GetButton(int iIndex) const;
    const CObList & GetAllButtons() const;
    int ButtonToIndex(const CMFCToolBarButton * pButton) const;
    /// The first button of that command at or after that index, or -1.
    int CommandToIndex(UINT nIDFind, int iIndexFirst = 0) const;
    UINT GetItemID(int nIndex) const;
    virtual void GetItemRect(int nIndex, LPRECT lpRect) const;
    virtual void GetInvalidateItemRect(int nIndex, LPRECT lpRect) const;
    UINT GetButtonStyle(int nIndex) const;
    virtual void SetButtonStyle(int nIndex, UINT nStyle);
    void GetButtonInfo(int nIndex, UINT & nID, UINT & nStyle, int & iImage) const;
    void SetButtonInfo(int nIndex, UINT nID, UINT nStyle, int iImage);
    BOOL SetButtonText(int nIndex, LPCTSTR lpszText);
    CString GetButtonText(int nIndex) const;
    void GetButtonText(int nIndex, CString & rString) const;
    void SetToolBarBtnText(UINT nBtnIndex, LPCTSTR szText = nullptr, BOOL bShowText = TRUE, BOOL bShowImage = TRUE);
    /// Texts beside the pictures of all buttons: those of the buttons, or what the command's string says behind its
    /// line break.
    void EnableTextLabels(BOOL bEnable = TRUE);
    BOOL AreTextLabels() const;
    CMFCToolBarButton * InvalidateButton(int nIndex);
    void UpdateButton(int nIndex);
    virtual int HitTest(CPoint point);

    static void PASCAL SetSizes(SIZE sizeButton, SIZE sizeImage);
    static void PASCAL SetMenuSizes(SIZE sizeButton, SIZE sizeImage);
    static CSize GetMenuButtonSize();
    static CSize GetMenuImageSize();
    CSize GetButtonSize() const;
    CSize GetImageSize() const;
    void SetLockedSizes(SIZE sizeButton, SIZE sizeImage, BOOL bDontScale = FALSE);
    BOOL IsLocked() const;
    void SetHeight(int cyHeight);
    static CMFCToolBarImages * GetImages();
    CMFCToolBarImages * GetLockedImages();
    /// The picture that belongs to a command in all bars and menus, or -1.
    static int GetDefaultImage(UINT uiID);
    static void SetShowTooltips(BOOL bValue);
    static BOOL GetShowTooltips();
    UINT GetResourceID() const;
    void SetRouteCommandsViaFrame(BOOL bValue);
    BOOL GetRouteCommandsViaFrame();

    CMFCToolBarButton * GetHighlightedButton() const;
    BOOL IsButtonHighlighted(int iButton) const;
    CMFCToolBarMenuButton * GetDroppedDownMenu(int * pIndex = nullptr) const;
    BOOL SetHot(CMFCToolBarButton * pMenuButton);
    virtual void Deactivate();
    virtual void RestoreFocus();
    virtual BOOL NextMenu();
    virtual BOOL PrevMenu();
    /// Presses the button of that mnemonic.
    virtual BOOL TranslateChar(UINT nChar);
    BOOL ProcessCommand(CMFCToolBarButton * pButton);

    void AdjustLayout() override;
    void AdjustSize();
    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    virtual CSize CalcSize(BOOL bVertDock);
    virtual int CalcMaxButtonHeight();
    virtual int GetRowHeight() const;
    virtual int GetColumnWidth() const;
    /// Puts the buttons into rows of at most that width; gives the number of rows.
    int WrapToolBar(int nWidth, int nHeight = 32767, CDC * pDC = nullptr, int nColumnWidth = -1, int nRowHeight = -1);
    BOOL CanBeClosed() const override;
    BOOL CanFocus() const override;
    void EnableDocking(DWORD dwAlignment) override;

    void DoPaint(CDC * pDC) override;
    virtual BOOL DrawButton(CDC * pDC, CMFCToolBarButton * pButton, CMFCToolBarImages * pImages, BOOL bHighlighted,
                            BOOL bDrawDisabledImages);
    virtual void DrawSeparator(CDC * pDC, const CRect & rect, BOOL bHorz);
    virtual void OnFillBackground(CDC * pDC);
    virtual void OnChangeHot(int iHot);
    virtual BOOL OnUserToolTip(CMFCToolBarButton * pButton, CString & strTTText) const;
    virtual BOOL OnSetDefaultButtonText(CMFCToolBarButton * pButton);
    virtual BOOL AllowChangeTextLabels() const;
    virtual BOOL AllowShowOnList() const;
    virtual BOOL IsButtonExtraSizeAvailable() const;
    virtual void OnReset();
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO * pTI) const override;

protected:
    afx_msg void OnDestroy();
    afx_msg BOOL OnEraseBkgnd(CDC * pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnCaptureChanged(CWnd * pWnd);
    afx_msg void OnCancelMode();
    afx_msg int OnMouseActivate(CWnd * pDesktopWnd, UINT nHitTest, UINT message);
    afx_msg void OnSysColorChange();
    afx_msg void OnSettingChange(UINT uFlags, LPCTSTR lpszSection);

private:
    friend class CMFCMenuBar;
    friend class CMFCPopupMenu;
    friend class CMFCPopupMenuBar;
    friend class CMFCToolBarButton;
    friend class CMFCToolBarMenuButton;
    friend class framework::MenuMode;

    /// TRUE if the command has been dealt with.
    virtual BOOL OnSendCommand(const CMFCToolBarButton * pButton);
    static bool ReadResource(UINT resource, std::vector<UINT> & commands, CSize & image);
    static int AddImages(CMFCToolBarImages & images, UINT bitmap, CSize image);
    static void MapImages(std::vector<UINT> const & commands, int first);
    POSITION PositionOf(int index) const;
    int Insert(CMFCToolBarButton * button, INT_PTR at);
    CMFCToolBarImages * ImagesOf(CMFCToolBarButton const & button) const;
    bool IsEnabled(CMFCToolBarButton const & button) const { return (button.m_nStyle & TBBS_DISABLED) == 0; }
    bool CanHighlight(int index) const;
    /// Lays the buttons out in a width (or height), and moves them where `place` says so.
    virtual CSize Arrange(CDC & dc, int length, bool horizontal, bool place);
    CSize ArrangeNow(int length, bool horizontal, bool place);
    CSize SizeOf(CDC & dc, CMFCToolBarButton & button, bool horizontal);
    virtual HWND CommandTarget() const;
    virtual void Highlight(int index);
    CFrameWnd * TargetFrame() const;
    CRect Inside() const;
    virtual bool IsMenuBar() const { return false; }
    /// Whether the frame is asked for the button's state.
    virtual bool IsUpdated(CMFCToolBarButton const & button) const;
    void SendCommand(CMFCToolBarButton & button);
    void ReleasePress();
    /// The buttons are to be laid out anew, at the latest when somebody asks where they are.
    virtual void Relayout();
    void EnsureLayout() const;
    CString LabelOf(UINT id) const;
    void ShowMessageOf(int index);
    void WatchMouse();
    LRESULT HandleIdleUpdate(WPARAM wParam, LPARAM lParam);
    LRESULT HandleGetFont(WPARAM wParam, LPARAM lParam);
    BOOL HandleToolTipText(UINT id, NMHDR * header, LRESULT * result);
    virtual void UpdateStates(CFrameWnd * target, BOOL disableIfNoHandler);

    CObList m_buttons;
    CMFCToolBarImages m_lockedImages;
    CSize m_lockedButtonSize;
    bool m_locked;
    bool m_labels;
    bool m_viaFrame;
    int m_height;
    int m_hot;     // the button that is highlighted, or -1
    int m_pressed; // the one that the mouse is held down on, or -1
    bool m_stale;  // the buttons are where they were, and not where they belong
    UINT m_resource;
    CString m_tip; // what the tool tip shows

    DECLARE_MESSAGE_MAP()
};
