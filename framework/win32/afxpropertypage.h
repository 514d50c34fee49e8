#pragma once
// A page of a CMFCPropertySheet.

#include <afxdlgs.h>

/// Tells its sheet when it becomes the active page.
class FRAMEWORK_API CMFCPropertyPage : public CPropertyPage
{
    DECLARE_DYNAMIC(CMFCPropertyPage)

public:
    CMFCPropertyPage();
    CMFCPropertyPage(UINT nIDTemplate, UINT nIDCaption = 0);
    CMFCPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption = 0);
    ~CMFCPropertyPage() override;

    BOOL OnSetActive() override;
};
