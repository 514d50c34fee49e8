#pragma once
// Buttons that open a menu, and the items of menus.

#include <afxtoolbarbutton.h>

class CMFCPopupMenu;

namespace framework
{
class MenuMode;
} // namespace framework

/// A button with a menu below it, or an item of a popup menu, with or without a menu beside it.
class FRAMEWORK_API CMFCToolBarMenuButton : public CMFCToolBarButton
{
    DECLARE_DYNCREATE(CMFCToolBarMenuButton)

public:
    CMFCToolBarMenuButton();
    CMFCToolBarMenuButton(CMFCToolBarMenuButton const & src);
    /// hMenu is copied. Without a command the whole button opens the menu; with one, its arrow does.
    CMFCToolBarMenuButton(UINT uiID, HMENU hMenu, int iImage, LPCTSTR lpszText = nullptr, BOOL bUserButton = FALSE);
    CMFCToolBarMenuButton & operator=(CMFCToolBarMenuButton const &) = delete;
    ~CMFCToolBarMenuButton() override;

    void CopyFrom(const CMFCToolBarButton & src) override;
    BOOL CompareWith(const CMFCToolBarButton & other) const override;
    virtual void CreateFromMenu(HMENU hMenu);
    /// A copy of its menu, which the caller destroys; null if it has none.
    virtual HMENU CreateMenu() const;
    virtual CMFCPopupMenu * CreatePopupMenu();
    virtual BOOL OpenPopupMenu(CWnd * pWnd = nullptr);
    virtual void OnAfterCreatePopupMenu();
    CMFCPopupMenu * GetPopupMenu() const;
    /// The arrow was pressed, or the whole button opens the menu.
    BOOL IsClickedOnMenu() const;
    void SetMenuOnly(BOOL bMenuOnly);
    /// Who gets the menu's commands instead of the bar's owner.
    void SetMessageWnd(CWnd * pWndMessage);
    virtual BOOL HasButton() const;
    virtual BOOL IsBorder() const;
    virtual BOOL IsEmptyMenuAllowed() const;
    virtual BOOL IsExclusive() const;
    /// TRUE if choosing it in a menu does nothing else.
    virtual BOOL OnClickMenuItem();

    BOOL IsDroppedDown() const override;
    SIZE OnCalculateSize(CDC * pDC, const CSize & sizeDefault, BOOL bHorz) override;
    void OnDraw(CDC * pDC, const CRect & rect, CMFCToolBarImages * pImages, BOOL bHorz = TRUE,
                BOOL bCustomizeMode = FALSE, BOOL bHighlight = FALSE, BOOL bDrawBorder = TRUE,
                BOOL bGrayDisabledButtons = TRUE) override;
    BOOL OnClick(CWnd * pWnd, BOOL bDelay = TRUE) override;
    void OnCancelMode() override;
    void OnChangeParentWnd(CWnd * pWndParent) override;
    void SetRadio() override;

private:
    friend class CMFCMenuBar;
    friend class CMFCPopupMenu;
    friend class CMFCPopupMenuBar;
    friend class framework::MenuMode;

    void DropMenu();
    bool HasMenu() const { return m_menu != nullptr; }
    void DrawItem(CDC & dc, CRect const & rect, CMFCToolBarImages * images, bool highlight) const;
    CSize ItemSize(CDC & dc) const;
    int ArrowWidth() const;

    HMENU m_menu;
    bool m_ownsMenu;
    bool m_menuOnly;
    bool m_onArrow; // the last press was on it
    bool m_radio;
    bool m_default;
    bool m_systemMenu; // its commands are the system's
    bool m_imported;   // its state is that of the item that it stands for
    HWND m_message;
    HWND m_popup; // while it is open
};
