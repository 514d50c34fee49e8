#pragma once

#include <afxpropertypage.h>

#include <memory>

#include "frame/Export.h"
#include "layout/DialogResizer.h"

/// A page of a CPropertySheet3d: a template from the right module, and controls that follow the page's size. It never
/// has a Help button. For the user-interface thread alone.
///
/// A derived class's OnInitDialog calls this one's first, then D3dLayoutChild for each control that moves, then
/// D3dLayoutComplete. The size at the first opening is the design size for the life of the object.
class INSTRUMENT_UI_API CPropertyPage3d : public CMFCPropertyPage
{
    DECLARE_DYNAMIC(CPropertyPage3d)

public:
    /// module: whose resources hold the template and the caption, CDialog3d::NO_DLL for the application's. captionId: a
    /// string for the tab; 0: the template's caption.
    CPropertyPage3d(AFX_EXTENSION_MODULE module, unsigned int templateId, unsigned int captionId);
    CPropertyPage3d(AFX_EXTENSION_MODULE module, unsigned int templateId, CString const & title);
    CPropertyPage3d(CPropertyPage3d const &) = delete;
    CPropertyPage3d & operator=(CPropertyPage3d const &) = delete;
    ~CPropertyPage3d() override;

    /// Sets the text of the tab. Takes effect when the page is created.
    void SetTitle(CString const & title);

    /// Always 1.
    BOOL OnInitDialog() override;

protected:
    CPropertyPage3d();

    /// Tells how a control follows the page's size; the arguments are those of CDialogResizer::PositionChild. Only
    /// after OnInitDialog of this class.
    void D3dLayoutChild(int id, CEdges const & edges, CRect const * designRect);
    void D3dLayoutChild(int id, CRect const & fractions, CRect const * designRect);
    void D3dLayoutChild(CWnd * child, CEdges const & edges, CRect const * designRect);
    void D3dLayoutChild(CWnd * child, CRect const & fractions, CRect const * designRect);
    /// Lays the controls out for the present size.
    void D3dLayoutComplete();
    /// The control's rectangle in the page's client coordinates. The control must exist.
    void ClientCoordinates(int id, CRect & rect);

    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO * info);

    DECLARE_MESSAGE_MAP()

private:
    void UseTitle();

    CString m_title;
    std::unique_ptr<CDialogResizer> m_resizer;
};
