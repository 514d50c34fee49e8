#include <afxpropertysheet.h>

IMPLEMENT_DYNAMIC(CMFCPropertyPage, CPropertyPage)

CMFCPropertyPage::CMFCPropertyPage() = default;

CMFCPropertyPage::CMFCPropertyPage(UINT nIDTemplate, UINT nIDCaption) : CPropertyPage(nIDTemplate, nIDCaption) {}

CMFCPropertyPage::CMFCPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption)
    : CPropertyPage(lpszTemplateName, nIDCaption)
{
}

CMFCPropertyPage::~CMFCPropertyPage() = default;

BOOL CMFCPropertyPage::OnSetActive()
{
    HWND const window = m_hWnd;
    if (auto * const sheet = DYNAMIC_DOWNCAST(CMFCPropertySheet, GetParent()))
        sheet->OnActivatePage(this);
    return FromHandlePermanent(window) == this && CPropertyPage::OnSetActive();
}

IMPLEMENT_DYNAMIC(CMFCPropertySheet, CPropertySheet)

BEGIN_MESSAGE_MAP(CMFCPropertySheet, CPropertySheet)
END_MESSAGE_MAP()

CMFCPropertySheet::CMFCPropertySheet() = default;

CMFCPropertySheet::CMFCPropertySheet(UINT nIDCaption, CWnd * pParentWnd, UINT iSelectPage)
    : CPropertySheet(nIDCaption, pParentWnd, iSelectPage)
{
}

CMFCPropertySheet::CMFCPropertySheet(LPCTSTR pszCaption, CWnd * pParentWnd, UINT iSelectPage)
    : CPropertySheet(pszCaption, pParentWnd, iSelectPage)
{
}

CMFCPropertySheet::~CMFCPropertySheet() = default;

void CMFCPropertySheet::AddPage(CPropertyPage * pPage)
{
    CPropertySheet::AddPage(pPage);
}

void CMFCPropertySheet::RemovePage(CPropertyPage * pPage)
{
    CPropertySheet::RemovePage(pPage);
}

void CMFCPropertySheet::RemovePage(int nPage)
{
    CPropertySheet::RemovePage(nPage);
}

void CMFCPropertySheet::OnActivatePage(CPropertyPage *) {}

BOOL CMFCPropertySheet::OnInitDialog()
{
    return CPropertySheet::OnInitDialog();
}
