#pragma once
// A property sheet whose pages tell it of their activation. Its look is that of tabs.

#include "afxpropertypage.h"
#include <afxdlgs.h>

class FRAMEWORK_API CMFCPropertySheet : public CPropertySheet
{
    DECLARE_DYNAMIC(CMFCPropertySheet)

public:
    CMFCPropertySheet();
    CMFCPropertySheet(UINT nIDCaption, CWnd * pParentWnd = nullptr, UINT iSelectPage = 0);
    CMFCPropertySheet(LPCTSTR pszCaption, CWnd * pParentWnd = nullptr, UINT iSelectPage = 0);
    ~CMFCPropertySheet() override;

    void AddPage(CPropertyPage * pPage);
    void RemovePage(CPropertyPage * pPage);
    void RemovePage(int nPage);

    /// Called by a CMFCPropertyPage of the sheet that becomes active, before it shows its values.
    virtual void OnActivatePage(CPropertyPage * pPage);

    BOOL OnInitDialog() override;

    DECLARE_MESSAGE_MAP()
};
