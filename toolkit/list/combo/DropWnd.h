#pragma once

#include <afxwin.h>

#include <list>
#include <memory>

#include "frame/LifeWatch.h"
#include "list/combo/ComboItems.h"

namespace XListCtrl
{
class CAdvComboBox;
class CDropListBox;
class CDropScrollBar;

/// The drop-down of an advanced combo box: a top-most window on the desktop with a list, a scroll bar of its own and a
/// size grip. It lives from opening to closing. To see every mouse event it holds the mouse capture, and hands it to
/// list or scroll bar while the pointer is over them. Internal to the module.
class CDropWnd : public CWnd
{
public:
    /// The items are copied. combo: the owner, which deletes this object.
    CDropWnd(CAdvComboBox * combo, std::list<combo_item> const & items, DWORD comboFlags);
    CDropWnd(CDropWnd const &) = delete;
    CDropWnd & operator=(CDropWnd const &) = delete;
    ~CDropWnd() override;

    /// Null if it could not be made.
    CDropListBox * GetListBox() const { return m_list.get(); }
    std::list<combo_item> const & GetItems() const { return m_items; }
    /// For who holds it over calls that can run the host's code.
    LifeSign const & GetLifeSign() const { return m_life; }

    BOOL DestroyWindow() override;

protected:
    BOOL PreCreateWindow(CREATESTRUCT & create) override;

    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnPaint();
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnActivateApp(BOOL active, DWORD thread);
    afx_msg LRESULT OnSetCapture(WPARAM, LPARAM);
    afx_msg LRESULT OnReleaseCapture(WPARAM, LPARAM);
    DECLARE_MESSAGE_MAP()

    struct Size
    {
        long long width;
        long long height;
    };

    /// The largest that the grip can reach.
    Size m_maxSize = {1000, 1000};
    std::unique_ptr<CDropListBox> m_list;
    CRect m_rcList;
    std::unique_ptr<CDropScrollBar> m_scroll;
    CRect m_rcScroll;
    CRect m_rcGrip;
    CAdvComboBox * m_combo;
    std::unique_ptr<CFont> m_font;
    std::list<combo_item> m_items;
    std::list<combo_item>::iterator m_iter;
    bool m_resizing = false;
    CPoint m_dragStart;
    int m_dragDx = 0;
    int m_dragDy = 0;
    DWORD m_comboFlags;

private:
    bool CreateChildren(CREATESTRUCT const & create);
    /// Where the combo's drop-down belongs; in screen pixels.
    CRect Place(CREATESTRUCT const & create);
    /// Of the scroll bar, and the grip below it.
    CSize ArrowSize() const;
    void ResizeByGrip(CPoint point);
    void DrawFrame(CDC & dc);

    LifeSign m_life;
};
} // namespace XListCtrl
