// The print preview: CPreviewView, how it comes and goes, and its pages.

#include <afxdlgs.h>
#include <afxpriv.h>

#include <algorithm>
#include <cstdlib>

#include "detail/FrameSupport.h"
#include "detail/PrintSupport.h"
#include "detail/WndAccess.h"

using framework::WindowGuard;

IMPLEMENT_DYNCREATE(CPreviewView, CScrollView)

// clang-format off
BEGIN_MESSAGE_MAP(CPreviewView, CScrollView)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_ERASEBKGND()
    ON_WM_LBUTTONDOWN()
    ON_WM_KEYDOWN()
    ON_WM_DESTROY()
    ON_COMMAND(AFX_ID_PREVIEW_CLOSE, &CPreviewView::ClosePreview)
    ON_COMMAND(IDCANCEL, &CPreviewView::ClosePreview)
    ON_COMMAND(AFX_ID_PREVIEW_PRINT, &CPreviewView::PrintPages)
    ON_COMMAND(AFX_ID_PREVIEW_NEXT, &CPreviewView::NextPage)
    ON_COMMAND(AFX_ID_PREVIEW_PREV, &CPreviewView::PreviousPage)
    ON_COMMAND(AFX_ID_PREVIEW_NUMPAGE, &CPreviewView::ChangeNumberOfPages)
    ON_COMMAND(AFX_ID_PREVIEW_ZOOMIN, &CPreviewView::ZoomIn)
    ON_COMMAND(AFX_ID_PREVIEW_ZOOMOUT, &CPreviewView::ZoomOut)
    ON_UPDATE_COMMAND_UI(AFX_ID_PREVIEW_NEXT, &CPreviewView::UpdateNext)
    ON_UPDATE_COMMAND_UI(AFX_ID_PREVIEW_PREV, &CPreviewView::UpdatePrevious)
    ON_UPDATE_COMMAND_UI(AFX_ID_PREVIEW_NUMPAGE, &CPreviewView::UpdateNumberOfPages)
    ON_UPDATE_COMMAND_UI(AFX_ID_PREVIEW_ZOOMIN, &CPreviewView::UpdateZoomIn)
    ON_UPDATE_COMMAND_UI(AFX_ID_PREVIEW_ZOOMOUT, &CPreviewView::UpdateZoomOut)
END_MESSAGE_MAP()
// clang-format on

namespace
{
constexpr int margin = 10; // around and between the pages
constexpr int shadow = 3;
constexpr int hundredths_of_millimetres = 100;

/// The frame that a preview fills: the main one.
CFrameWnd * PreviewFrame(CView const & view)
{
    CFrameWnd * const main = DYNAMIC_DOWNCAST(CFrameWnd, AfxGetMainWnd());
    return main != nullptr ? main : view.GetTopLevelFrame();
}

BOOL CALLBACK ClosePreviewFirst(CFrameWnd * frame)
{
    if (CView * const view = DYNAMIC_DOWNCAST(CPreviewView, frame->GetActiveView()))
        view->SendMessage(WM_COMMAND, AFX_ID_PREVIEW_CLOSE);
    return FALSE; // the frame stays
}

/// A page that is recorded, until it is taken or dropped.
class Recording : public CDC
{
public:
    Recording(HDC device, CRect const & frame)
    {
        Attach(::CreateEnhMetaFile(device, nullptr, &frame, nullptr));
        framework::PrintAccess::SetPrinting(*this, true);
    }
    ~Recording() override
    {
        if (HENHMETAFILE const picture = Take())
            ::DeleteEnhMetaFile(picture);
    }
    HENHMETAFILE Take() { return m_hDC != nullptr ? ::CloseEnhMetaFile(Detach()) : nullptr; }
};
} // namespace

void CView::OnFilePrintPreview()
{
    CFrameWnd * const frame = PreviewFrame(*this);
    if (frame == nullptr || ::GetDlgItem(frame->m_hWnd, AFX_IDW_PANE_SAVE) != nullptr)
        return; // there is one
    WindowGuard const guard(this);
    WindowGuard const frameGuard(frame);
    auto * const preview = new CPreviewView;
    CPrintPreviewState & state = preview->m_state;
    constexpr UINT status_bar = AFX_IDW_STATUS_BAR - AFX_IDW_CONTROLBAR_FIRST;
    state.dwStates = 1U << status_bar;
    state.lpfnCloseProc = ClosePreviewFirst;
    state.pViewActiveOld = frame->GetActiveView();
    WindowGuard const oldView(state.pViewActiveOld);
    CPrintPreviewState saved = state;
    frame->OnSetPreviewMode(TRUE, &saved);
    auto const giveUp = [&] {
        if (frameGuard.Alive())
        {
            frame->OnSetPreviewMode(FALSE, &saved);
            if (frameGuard.Alive())
                frame->RecalcLayout();
        }
        AfxMessageBox(framework::MessageText(AFX_IDP_COMMAND_FAILURE));
    };
    auto * const bar = new CDialogBar;
    if (!frameGuard.Alive() || !bar->Create(frame, AFX_IDD_PREVIEW_TOOLBAR, CBRS_TOP | WS_VISIBLE, AFX_IDW_PREVIEW_BAR))
    {
        delete bar;
        delete preview;
        giveUp();
        return;
    }
    bar->m_bAutoDelete = TRUE;
    HWND const barWindow = bar->m_hWnd;
    CCreateContext context;
    context.m_pCurrentFrame = frame;
    context.m_pLastView = this;
    if (!preview->Create(nullptr, nullptr, AFX_WS_DEFAULT_VIEW & ~static_cast<DWORD>(WS_BORDER), CRect(0, 0, 0, 0),
                         frame, AFX_IDW_PANE_FIRST, &context))
    {
        ::DestroyWindow(barWindow);
        giveUp();
        return;
    }
    WindowGuard const previewGuard(preview);
    preview->m_state = saved;
    preview->m_barWindow = barWindow;
    // The view that is active in its frame isn't any more.
    CView * const active = frame->GetActiveFrame()->GetActiveView();
    if (active != nullptr)
        active->OnActivateView(FALSE, active, active);
    if (!guard.Alive() || !frameGuard.Alive() || !previewGuard.Alive())
        return;
    if (!preview->Begin(*this))
    {
        if (previewGuard.Alive())
            preview->ClosePreview();
        return;
    }
    frame->SetActiveView(preview);
    if (frameGuard.Alive())
        frame->RecalcLayout();
    if (::IsWindow(barWindow))
        ::SendMessage(barWindow, WM_IDLEUPDATECMDUI, TRUE, 0);
    if (previewGuard.Alive())
        preview->ShowMessage();
    if (frameGuard.Alive())
        frame->UpdateWindow();
}

void CView::OnEndPrintPreview(CDC * pDC, CPrintInfo * pInfo, POINT, CPreviewView * pView)
{
    WindowGuard const guard(this);
    WindowGuard const preview(pView);
    if (pInfo != nullptr && pDC != nullptr)
        OnEndPrinting(pDC, pInfo);
    if (!preview.Alive())
        return;
    CFrameWnd * const frame = PreviewFrame(*pView);
    WindowGuard const frameGuard(frame);
    CPrintPreviewState state = pView->m_state;
    bool const oldThere = pView->m_oldView == nullptr ||
                          CWnd::FromHandlePermanent(pView->m_oldView) == static_cast<CWnd *>(state.pViewActiveOld);
    pView->m_printView = nullptr;
    frame->OnSetPreviewMode(FALSE, &state);
    if (frameGuard.Alive())
        frame->SetActiveView(oldThere ? state.pViewActiveOld : nullptr);
    if (guard.Alive() && frameGuard.Alive() && GetParentFrame() != frame)
        OnActivateView(TRUE, this, this); // in its own frame
    if (preview.Alive())
        pView->DestroyWindow();
    if (!frameGuard.Alive())
        return;
    frame->RecalcLayout();
    if (frameGuard.Alive())
        frame->SendMessage(WM_SETMESSAGESTRING, AFX_IDS_IDLEMESSAGE);
    if (frameGuard.Alive())
        frame->UpdateWindow();
}

CPreviewView::CPreviewView()
    : m_printView(nullptr),
      m_printWindow(nullptr),
      m_oldView(nullptr),
      m_barWindow(nullptr),
      m_zoom(Zoom::pages),
      m_count(1),
      m_first(1),
      m_ending(false),
      m_layingOut(false)
{
}

CPreviewView::~CPreviewView()
{
    Forget();
    if (m_dc != nullptr)
        m_dc->Detach(); // the job's description has it
}

int CPreviewView::OnCreate(LPCREATESTRUCT lpcs)
{
    if (CScrollView::OnCreate(lpcs) == -1)
        return -1;
    SetScrollSizes(MM_TEXT, CSize(0, 0));
    return 0;
}

void CPreviewView::OnDestroy()
{
    m_ending = true;
    if (::IsWindow(m_barWindow))
        ::DestroyWindow(m_barWindow);
    // The frame ends with its preview.
    if (CView * const view = PrintView())
    {
        m_printView = nullptr;
        if (m_dc != nullptr)
            view->OnEndPrinting(m_dc.get(), m_info.get());
    }
    if (m_info != nullptr)
        framework::KeepPreviewPages(m_count);
    CScrollView::OnDestroy();
}

/// The view that is shown; null if it has ended.
CView * CPreviewView::PrintView() const
{
    return m_printView != nullptr && CWnd::FromHandlePermanent(m_printWindow) == m_printView ? m_printView : nullptr;
}

bool CPreviewView::Begin(CView & printView)
{
    WindowGuard const guard(this);
    m_printView = &printView;
    m_printWindow = printView.m_hWnd;
    m_oldView = framework::SafeHandle(m_state.pViewActiveOld);
    auto info = std::make_unique<CPrintInfo>();
    CPrintInfo & job = *info;
    job.m_bPreview = TRUE;
    BOOL const prepared = printView.OnPreparePrinting(&job);
    if (!guard.Alive() || PrintView() == nullptr || !prepared)
        return false;
    m_info = std::move(info);
    if (job.m_pPD->m_pd.hDC == nullptr)
    {
        AfxMessageBox(framework::MessageText(AFX_IDP_FAILED_TO_START_PRINT));
        return false;
    }
    m_dc = std::make_unique<CDC>();
    m_dc->Attach(job.m_pPD->m_pd.hDC);
    framework::PrintAccess::SetPrinting(*m_dc, true);
    printView.OnBeginPrinting(m_dc.get(), &job);
    if (!guard.Alive() || PrintView() == nullptr)
        return false;
    m_count = job.m_nNumPreviewPages >= 2 ? 2 : 1;
    ShowFrom(std::clamp(job.m_nCurPage, job.GetMinPage(), std::max(job.GetMinPage(), job.GetMaxPage())));
    return guard.Alive();
}

void CPreviewView::Forget()
{
    for (Page const & page : m_pages)
        ::DeleteEnhMetaFile(page.picture);
    m_pages.clear();
}

/// Records a page. False if there is none of that number.
bool CPreviewView::Record(UINT number, Page & page)
{
    CView * const view = PrintView();
    if (view == nullptr || number < m_info->GetMinPage() || number > m_info->GetMaxPage())
        return false;
    WindowGuard const guard(this);
    HDC const device = m_dc->m_hDC;
    CRect const area = framework::PrintableArea(device);
    CRect const frame(0, 0,
                      ::MulDiv(area.Width(), ::GetDeviceCaps(device, HORZSIZE) * hundredths_of_millimetres,
                               ::GetDeviceCaps(device, HORZRES)),
                      ::MulDiv(area.Height(), ::GetDeviceCaps(device, VERTSIZE) * hundredths_of_millimetres,
                               ::GetDeviceCaps(device, VERTRES)));
    Recording recording(device, frame);
    if (recording.m_hDC == nullptr)
        return false;
    CPrintInfo & info = *m_info;
    info.m_nCurPage = number;
    info.m_bContinuePrinting = TRUE;
    view->OnPrepareDC(&recording, &info);
    if (!guard.Alive() || PrintView() == nullptr)
        return false;
    if (!info.m_bContinuePrinting)
    {
        if (number > info.GetMinPage())
            info.SetMaxPage(number - 1); // now that it is known
        return false;
    }
    info.m_rectDraw = area;
    recording.DPtoLP(&info.m_rectDraw);
    view->OnPrint(&recording, &info);
    if (!guard.Alive())
        return false;
    page.number = number;
    page.picture = recording.Take();
    return page.picture != nullptr;
}

/// Shows the pages from that one on. False if there is none; what is shown stays then.
bool CPreviewView::ShowFrom(UINT first)
{
    WindowGuard const guard(this);
    CWaitCursor wait;
    std::vector<Page> pages;
    UINT const count = m_zoom == Zoom::pages ? m_count : 1;
    for (UINT number = first; number < first + count; ++number)
    {
        Page page;
        bool const there = Record(number, page);
        if (!guard.Alive())
        {
            for (Page const & recorded : pages)
                ::DeleteEnhMetaFile(recorded.picture);
            return false;
        }
        if (!there)
            break;
        pages.push_back(page);
    }
    if (pages.empty())
        return false;
    Forget();
    m_pages = std::move(pages);
    m_first = first;
    LayOut();
    if (!guard.Alive())
        return false;
    Invalidate(TRUE);
    ShowMessage();
    return guard.Alive();
}

bool CPreviewView::HasNext() const
{
    return !m_pages.empty() && m_info != nullptr && m_pages.back().number < m_info->GetMaxPage() &&
           m_pages.size() == (m_zoom == Zoom::pages ? m_count : 1);
}

/// The paper on the screen.
CSize CPreviewView::PageSize(Zoom zoom, CSize room) const
{
    HDC const device = m_dc->m_hDC;
    CSize const paper = framework::PaperSize(device);
    HDC const screen = ::GetDC(nullptr);
    CSize const real(
        std::max(::MulDiv(paper.cx, ::GetDeviceCaps(screen, LOGPIXELSX), ::GetDeviceCaps(device, LOGPIXELSX)), 1),
        std::max(::MulDiv(paper.cy, ::GetDeviceCaps(screen, LOGPIXELSY), ::GetDeviceCaps(device, LOGPIXELSY)), 1));
    ::ReleaseDC(nullptr, screen);
    if (zoom == Zoom::paper)
        return real;
    int const count = zoom == Zoom::pages ? static_cast<int>(m_count) : 1;
    CSize const free(std::max<int>((room.cx - (count + 1) * margin) / count, 1),
                     std::max<int>(room.cy - 2 * margin, 1));
    bool const wide = static_cast<long long>(real.cx) * free.cy > static_cast<long long>(free.cx) * real.cy;
    CSize const whole = wide ? CSize(free.cx, std::max(::MulDiv(real.cy, free.cx, real.cx), 1))
                             : CSize(std::max(::MulDiv(real.cx, free.cy, real.cy), 1), free.cy);
    if (zoom == Zoom::pages)
        return whole;
    return CSize((whole.cx + real.cx) / 2, (whole.cy + real.cy) / 2);
}

void CPreviewView::LayOut()
{
    if (m_layingOut || m_dc == nullptr)
        return;
    m_layingOut = true;
    WindowGuard const guard(this);
    CSize const room = WindowWithoutBars();
    CSize const size = PageSize(m_zoom, room);
    int const count = m_zoom == Zoom::pages ? static_cast<int>(m_count) : 1;
    CSize const total(count * (size.cx + margin) + margin, size.cy + 2 * margin);
    SetScrollSizes(MM_TEXT, total);
    if (!guard.Alive())
        return;
    m_layingOut = false;
    CRect client;
    GetClientRect(&client);
    int left = std::max<int>((client.Width() - total.cx) / 2, 0) + margin;
    int const top = std::max<int>((client.Height() - total.cy) / 2, 0) + margin;
    for (Page & page : m_pages)
    {
        page.place = CRect(CPoint(left, top), size);
        left += size.cx + margin;
    }
}

void CPreviewView::OnSize(UINT nType, int cx, int cy)
{
    WindowGuard const guard(this);
    CScrollView::OnSize(nType, cx, cy);
    if (!guard.Alive())
        return;
    LayOut();
    if (guard.Alive())
        Invalidate(TRUE);
}

BOOL CPreviewView::OnEraseBkgnd(CDC * pDC)
{
    CRect client;
    GetClientRect(&client);
    ::FillRect(pDC->m_hDC, &client, ::GetSysColorBrush(COLOR_APPWORKSPACE));
    return TRUE;
}

void CPreviewView::OnDraw(CDC * pDC)
{
    HDC const device = m_dc != nullptr ? m_dc->m_hDC : nullptr;
    for (Page const & page : m_pages)
    {
        CRect const & place = page.place;
        pDC->FillSolidRect(place.left + shadow, place.bottom, place.Width(), shadow, ::GetSysColor(COLOR_3DDKSHADOW));
        pDC->FillSolidRect(place.right, place.top + shadow, shadow, place.Height(), ::GetSysColor(COLOR_3DDKSHADOW));
        pDC->FillSolidRect(&place, RGB(255, 255, 255)); // paper
        // What can be printed on lies within the paper.
        CSize const paper = framework::PaperSize(device);
        CRect const area = framework::PrintableArea(device);
        int const technology = ::GetDeviceCaps(device, TECHNOLOGY);
        bool const printer = technology == DT_RASPRINTER || technology == DT_PLOTTER;
        CPoint const offset =
            printer ? CPoint(::GetDeviceCaps(device, PHYSICALOFFSETX), ::GetDeviceCaps(device, PHYSICALOFFSETY))
                    : CPoint(0, 0);
        auto const across = [&](int units) { return place.left + ::MulDiv(units, place.Width(), paper.cx); };
        auto const down = [&](int units) { return place.top + ::MulDiv(units, place.Height(), paper.cy); };
        CRect const inside(across(offset.x), down(offset.y), across(offset.x + area.Width()),
                           down(offset.y + area.Height()));
        int const saved = pDC->SaveDC();
        pDC->IntersectClipRect(&place);
        ::PlayEnhMetaFile(pDC->m_hDC, page.picture, &inside);
        pDC->RestoreDC(saved);
        ::FrameRect(pDC->m_hDC, &place, ::GetSysColorBrush(COLOR_WINDOWFRAME));
    }
}

void CPreviewView::OnActivateView(BOOL bActivate, CView *, CView *)
{
    if (bActivate && framework::IsTopParentActive(*this))
        SetFocus();
}

void CPreviewView::ShowMessage()
{
    CFrameWnd * const frame = GetParentFrame();
    if (frame == nullptr || m_pages.empty() || m_info == nullptr)
        return;
    // The first line is for one page, the second for two.
    CString format;
    bool const two = m_pages.size() > 1;
    if (!AfxExtractSubString(format, m_info->m_strPageDesc, two ? 1 : 0) || format.IsEmpty())
        return;
    CString text;
    if (two)
        text.Format(format, m_pages.front().number, m_pages.back().number);
    else
        text.Format(format, m_pages.front().number);
    frame->SendMessage(WM_SETMESSAGESTRING, 0, reinterpret_cast<LPARAM>(text.GetString()));
}

void CPreviewView::ClosePreview()
{
    if (m_ending)
        return;
    m_ending = true;
    if (CView * const view = PrintView())
    {
        view->OnEndPrintPreview(m_dc.get(), m_info.get(), GetScrollPosition(), this);
        return;
    }
    // Without the view that it shows, it goes by itself.
    m_printView = nullptr;
    CView::OnEndPrintPreview(nullptr, nullptr, CPoint(0, 0), this);
}

void CPreviewView::PrintPages()
{
    WindowGuard const frame(GetParentFrame());
    HWND const window = GetParentFrame()->m_hWnd;
    ClosePreview();
    if (frame.Alive())
        ::SendMessage(window, WM_COMMAND, ID_FILE_PRINT, 0);
}

void CPreviewView::NextPage()
{
    if (HasNext())
        ShowFrom(m_first + 1);
}

void CPreviewView::PreviousPage()
{
    if (m_info != nullptr && m_first > m_info->GetMinPage())
        ShowFrom(m_first - 1);
}

void CPreviewView::ChangeNumberOfPages()
{
    UINT const former = m_count;
    m_count = m_count == 1 ? 2 : 1;
    WindowGuard const guard(this);
    if (!ShowFrom(m_first) && guard.Alive())
        m_count = former;
}

void CPreviewView::ZoomTo(Zoom zoom, CPoint const * point)
{
    if (m_pages.empty())
        return;
    // The place that is to be in the middle, as a part of its page.
    UINT number = m_pages.front().number;
    double across = 0.5;
    double down = 0;
    if (point != nullptr)
    {
        CPoint const place = *point + GetDeviceScrollPosition();
        for (Page const & page : m_pages)
        {
            if (!page.place.PtInRect(place))
                continue;
            number = page.number;
            across = static_cast<double>(place.x - page.place.left) / page.place.Width();
            down = static_cast<double>(place.y - page.place.top) / page.place.Height();
        }
    }
    m_zoom = zoom;
    WindowGuard const guard(this);
    if (!ShowFrom(number) || m_zoom == Zoom::pages)
        return;
    CRect client;
    GetClientRect(&client);
    CRect const & place = m_pages.front().place;
    CPoint const middle(place.left + static_cast<int>(across * place.Width()),
                        place.top + static_cast<int>(down * place.Height()));
    CSize const total = GetTotalSize();
    ScrollToPosition(
        CPoint(std::clamp<int>(middle.x - client.Width() / 2, 0, std::max<int>(total.cx - client.Width(), 0)),
               std::clamp<int>(middle.y - client.Height() / 2, 0, std::max<int>(total.cy - client.Height(), 0))));
}

void CPreviewView::ZoomIn()
{
    if (m_zoom != Zoom::paper)
        ZoomTo(m_zoom == Zoom::pages ? Zoom::middle : Zoom::paper, nullptr);
}

void CPreviewView::ZoomOut()
{
    if (m_zoom != Zoom::pages)
        ZoomTo(m_zoom == Zoom::paper ? Zoom::middle : Zoom::pages, nullptr);
}

void CPreviewView::OnLButtonDown(UINT, CPoint point)
{
    CPoint const place = point + GetDeviceScrollPosition();
    bool const onPage = std::any_of(m_pages.begin(), m_pages.end(),
                                    [&](Page const & page) { return page.place.PtInRect(place) != FALSE; });
    if (!onPage)
        return;
    Zoom const next = m_zoom == Zoom::pages ? Zoom::middle : m_zoom == Zoom::middle ? Zoom::paper : Zoom::pages;
    ZoomTo(next, &point);
}

void CPreviewView::OnKeyDown(UINT nChar, UINT, UINT)
{
    switch (nChar)
    {
    case VK_ESCAPE:
        ClosePreview();
        break;
    case VK_NEXT:
        NextPage();
        break;
    case VK_PRIOR:
        PreviousPage();
        break;
    case VK_DOWN:
        SendMessage(WM_VSCROLL, SB_LINEDOWN);
        break;
    case VK_UP:
        SendMessage(WM_VSCROLL, SB_LINEUP);
        break;
    case VK_RIGHT:
        SendMessage(WM_HSCROLL, SB_LINERIGHT);
        break;
    case VK_LEFT:
        SendMessage(WM_HSCROLL, SB_LINELEFT);
        break;
    default:
        Default();
        break;
    }
}

void CPreviewView::UpdateNext(CCmdUI * state)
{
    if (PrintView() == nullptr && !m_ending)
        PostMessage(WM_COMMAND, AFX_ID_PREVIEW_CLOSE);
    state->Enable(HasNext());
}

void CPreviewView::UpdatePrevious(CCmdUI * state)
{
    state->Enable(m_info != nullptr && m_first > m_info->GetMinPage());
}

void CPreviewView::UpdateNumberOfPages(CCmdUI * state)
{
    state->Enable(m_zoom == Zoom::pages && m_info != nullptr && m_info->GetMaxPage() > m_info->GetMinPage());
    state->SetText(framework::MessageText(m_count == 1 ? AFX_IDS_TWOPAGE : AFX_IDS_ONEPAGE));
}

void CPreviewView::UpdateZoomIn(CCmdUI * state)
{
    state->Enable(m_zoom != Zoom::paper);
}

void CPreviewView::UpdateZoomOut(CCmdUI * state)
{
    state->Enable(m_zoom != Zoom::pages);
}
