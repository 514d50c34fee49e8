#pragma once

#include <afxpropertysheet.h>

#include <cstdint>
#include <memory>

#include "frame/Export.h"
#include "frame/LifeWatch.h"
#include "layout/DialogResizer.h"
#include "windows/FensterManager.h"

class CTabCtrl;

/// A tabbed sheet that does not block its program: OK, Cancel and Apply stay, everything follows the sheet's size, and
/// the sheet remembers its place under its title. Pages are added with AddPage and stay the caller's. For the
/// user-interface thread alone.
///
/// The object may be opened and closed as often as wanted; closing stores the position. The size at the first opening
/// is the smallest one. Where the tabs need more or fewer rows at a new size, the page gives them the room.
class INSTRUMENT_UI_API CPropertySheet3d : public CMFCPropertySheet
{
    DECLARE_DYNAMIC(CPropertySheet3d)

public:
    /// title: the caption, also the name under which the position is stored; where it is empty, the window's text at
    /// the opening is. parent: may be null. selectPage: index of the page that shows first.
    CPropertySheet3d(wchar_t const * title, CWnd * parent, unsigned int selectPage);
    CPropertySheet3d(CPropertySheet3d const &) = delete;
    CPropertySheet3d & operator=(CPropertySheet3d const &) = delete;
    ~CPropertySheet3d() override;

    /// A sheet whose caption is that string of the application's resources. It takes its title from its window when it
    /// opens.
    static std::unique_ptr<CPropertySheet3d> FromCaption(unsigned int captionId, CWnd * parent,
                                                         unsigned int selectPage);

    /// DisplayDialog with the application's main window as parent.
    int Display();
    /// Opens the sheet; non-zero if it is open. A sheet that is open already comes to the front. One without pages is
    /// not opened, which is not told to the user.
    int DisplayDialog(CWnd * parent);
    /// Whether the sheet has a window.
    bool IsOpen() const;
    /// Asks the sheet to close; it does so when the message has arrived.
    void CloseDialog();

    /// The title for the next opening; an open sheet keeps its caption, as hosts expect.
    void SetDialogTitle(CString const & title);
    /// Whether the user can drag the sheet's frame; not at first. Set it before the display.
    void SetResizable(bool resizable);

    /// A sheet without pages shows a message and throws a std::exception, as hosts expect.
    BOOL OnInitDialog() override;

protected:
    /// Tells how a child follows the sheet's size; the arguments are those of CDialogResizer::PositionChild. Only after
    /// OnInitDialog of this class, which has done so for tabs, page and buttons.
    void D3dLayoutChild(int id, CEdges const & edges, CRect const * designRect);
    void D3dLayoutChild(int id, CRect const & fractions, CRect const * designRect);
    void D3dLayoutChild(CWnd * child, CEdges const & edges, CRect const * designRect);
    void D3dLayoutChild(CWnd * child, CRect const & fractions, CRect const * designRect);
    /// Lays the children out for the present size.
    void D3dLayoutComplete();
    /// The control's rectangle in the sheet's client coordinates. The control must exist.
    void ClientCoordinates(int id, CRect & rect);

    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT * result) override;

    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO * info);
    afx_msg LRESULT OnResizePage(WPARAM wParam, LPARAM lParam);
    afx_msg int OnCreate(LPCREATESTRUCT createStruct);

    DECLARE_MESSAGE_MAP()

private:
    CPropertySheet3d(unsigned int captionId, CWnd * parent, unsigned int selectPage);

    void SavePosition();
    void FollowTabRows(CTabCtrl & tabs);

    std::unique_ptr<CFensterManager> m_fenster;
    CString m_dialogTitle;
    bool m_resizable;
    std::unique_ptr<CDialogResizer> m_resizer;
    CRect m_pageRect;
    std::int32_t m_tabRows;
    LifeSign m_life;
};
