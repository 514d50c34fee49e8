#include "PreviewDialog.h"

#include <algorithm>

#include "DrawingScopes.h"
#include "logic/Texts.h"
#include "Printing.h"
#include "resource.h"

using workbench::paper_height;
using workbench::paper_width;
using workbench::Text;

namespace
{

constexpr int desk_margin = 10;       // pixels around the paper
constexpr int shadow = 3;             // pixels
CSize const preferred_size(400, 290); // of the dialog, in dialog units
constexpr COLORREF paper_colour = RGB(255, 255, 255);

} // namespace

bool CPageView::CreateView(CWnd & parent, UINT id, CRect const & place)
{
    return CreateBuffered(L"Page", 0, place, parent, id);
}

void CPageView::Draw(CDC & dc, CRect const & client)
{
    dc.FillSolidRect(client, ::GetSysColor(COLOR_APPWORKSPACE));
    CRect desk = client;
    desk.DeflateRect(desk_margin, desk_margin);
    int const width = std::min(desk.Width(), ::MulDiv(desk.Height(), paper_width, paper_height));
    int const height = ::MulDiv(width, paper_height, paper_width);
    if (width <= 0 || height <= 0)
    {
        return;
    }
    CRect paper(CPoint(desk.left + (desk.Width() - width) / 2, desk.top + (desk.Height() - height) / 2),
                CSize(width, height));
    dc.FillSolidRect(paper + CPoint(shadow, shadow), ::GetSysColor(COLOR_3DDKSHADOW));
    dc.FillSolidRect(paper, paper_colour);
    int const margin = ::MulDiv(width, workbench::page_margin, paper_width);
    paper.DeflateRect(margin, margin);
    if (m_painter && !paper.IsRectEmpty())
    {
        ContextStateScope const saved(dc);
        dc.IntersectClipRect(paper);
        // As on paper: texts get smaller with the page.
        workbench::DrawScaled(dc, paper, workbench::PageSize(), m_painter);
    }
}

BEGIN_MESSAGE_MAP(CPreviewDialog, CWorkbenchDialog)
    ON_BN_CLICKED(IDC_PRINT, &CPreviewDialog::OnPrint)
END_MESSAGE_MAP()

CPreviewDialog::CPreviewDialog(CWnd & owner) : CWorkbenchDialog(IDD_PREVIEW, L"Print Preview", owner) {}

bool CPreviewDialog::Show(PagePainter painter)
{
    m_page.m_painter = std::move(painter);
    Update();
    return Open(Text(L"Print Preview"));
}

void CPreviewDialog::Update()
{
    if (m_page.GetSafeHwnd() != nullptr)
    {
        m_page.Invalidate(FALSE);
    }
}

void CPreviewDialog::ShowTexts()
{
    ShowTemplateTexts(Text(L"Print Preview"));
    Update();
}

BOOL CPreviewDialog::OnInitDialog()
{
    CWorkbenchDialog::OnInitDialog();
    CRect place;
    ClientCoordinates(IDC_PAGE_FRAME, place);
    GetDlgItem(IDC_PAGE_FRAME)->DestroyWindow();
    m_page.CreateView(*this, IDC_PAGE, place);
    D3dLayoutChild(IDC_PAGE, CEdges::TOP_LEFT_BOTTOM_RIGHT(), nullptr);
    D3dLayoutChild(IDC_PRINT, CEdges::BOTTOM_RIGHT(), nullptr);
    D3dLayoutChild(IDCANCEL, CEdges::BOTTOM_RIGHT(), nullptr);
    D3dLayoutComplete(CDialogResizer::RESIZE_BOTH);
    Enlarge(preferred_size);
    return TRUE;
}

void CPreviewDialog::OnPrint()
{
    // A copy: the dialog can be closed meanwhile.
    PagePainter const painter = m_page.m_painter;
    workbench::PrintPage(*this, Text(L"Recordings"), painter);
}
