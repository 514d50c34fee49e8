// CView: printing. CPrintInfo: what is passed along meanwhile.

#include <afxdlgs.h>
#include <afxext.h>

#include <algorithm>

#include "detail/FrameSupport.h"
#include "detail/PrintSupport.h"
#include "detail/WndAccess.h"

using framework::WindowGuard;

CPrintInfo::CPrintInfo()
    : m_pPD(new CPrintDialog(FALSE, PD_ALLPAGES | PD_USEDEVMODECOPIES | PD_NOSELECTION)),
      m_bDocObject(FALSE),
      m_bPreview(FALSE),
      m_bDirect(FALSE),
      m_bContinuePrinting(TRUE),
      m_nCurPage(1),
      m_nNumPreviewPages(0),
      m_lpUserData(nullptr),
      m_rectDraw(0, 0, 0, 0),
      m_nOffsetPage(0),
      m_dwFlags(0)
{
    SetMinPage(1);
    SetMaxPage(framework::any_page);
}

CPrintInfo::~CPrintInfo()
{
    if (m_pPD != nullptr && m_pPD->m_pd.hDC != nullptr)
        ::DeleteDC(m_pPD->m_pd.hDC);
    delete m_pPD;
}

void CPrintInfo::SetMinPage(UINT nMinPage)
{
    m_pPD->m_pd.nMinPage = static_cast<WORD>(nMinPage);
}

void CPrintInfo::SetMaxPage(UINT nMaxPage)
{
    m_pPD->m_pd.nMaxPage = static_cast<WORD>(nMaxPage);
}

UINT CPrintInfo::GetMinPage() const
{
    return m_pPD->m_pd.nMinPage;
}

UINT CPrintInfo::GetMaxPage() const
{
    return m_pPD->m_pd.nMaxPage;
}

UINT CPrintInfo::GetFromPage() const
{
    return m_pPD->m_pd.nFromPage;
}

UINT CPrintInfo::GetToPage() const
{
    return m_pPD->m_pd.nToPage;
}

UINT CPrintInfo::GetOffsetPage() const
{
    return m_nOffsetPage;
}

namespace framework
{
CSize PaperSize(HDC device)
{
    int const technology = ::GetDeviceCaps(device, TECHNOLOGY);
    if (technology == DT_RASPRINTER || technology == DT_PLOTTER)
        return CSize(::GetDeviceCaps(device, PHYSICALWIDTH), ::GetDeviceCaps(device, PHYSICALHEIGHT));
    // What stands in for a printer gets the paper of the user's country.
    wchar_t paper[8] = {};
    ::GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_IPAPERSIZE, paper, static_cast<int>(std::size(paper)));
    bool const letter = ::_wtoi(paper) == DMPAPER_LETTER;
    constexpr int tenths_of_millimetres_in_an_inch = 254;
    CSize const size = letter ? CSize(2159, 2794) : CSize(2100, 2970);
    return CSize(::MulDiv(size.cx, ::GetDeviceCaps(device, LOGPIXELSX), tenths_of_millimetres_in_an_inch),
                 ::MulDiv(size.cy, ::GetDeviceCaps(device, LOGPIXELSY), tenths_of_millimetres_in_an_inch));
}

CRect PrintableArea(HDC device)
{
    int const technology = ::GetDeviceCaps(device, TECHNOLOGY);
    if (technology == DT_RASPRINTER || technology == DT_PLOTTER)
        return CRect(0, 0, ::GetDeviceCaps(device, HORZRES), ::GetDeviceCaps(device, VERTRES));
    return CRect(CPoint(0, 0), PaperSize(device));
}
} // namespace framework

BOOL CView::OnPreparePrinting(CPrintInfo *)
{
    return TRUE;
}

void CView::OnBeginPrinting(CDC *, CPrintInfo *) {}

void CView::OnPrint(CDC * pDC, CPrintInfo *)
{
    OnDraw(pDC);
}

void CView::OnEndPrinting(CDC *, CPrintInfo *) {}

BOOL CView::DoPreparePrinting(CPrintInfo * pInfo)
{
    ASSERT(pInfo != nullptr && pInfo->m_pPD != nullptr);
    PRINTDLG & printer = pInfo->m_pPD->m_pd;
    printer.nFromPage = static_cast<WORD>(pInfo->GetMinPage());
    printer.nToPage = static_cast<WORD>(pInfo->GetMaxPage());
    CWinApp * const app = AfxGetApp();
    if (pInfo->m_bPreview || pInfo->m_bDirect)
    {
        if (printer.hDC == nullptr)
            printer.hDC = framework::CommandLinePrinter();
        if (printer.hDC == nullptr && app != nullptr && app->GetPrinterDeviceDefaults(&printer))
            pInfo->m_pPD->CreatePrinterDC();
        if (printer.hDC == nullptr && pInfo->m_bPreview)
            printer.hDC = ::CreateDC(L"DISPLAY", nullptr, nullptr, nullptr); // the screen shows it without a printer
    }
    else
    {
        WindowGuard const guard(this);
        if (app != nullptr && printer.hDevNames == nullptr)
            app->GetPrinterDeviceDefaults(&printer);
        printer.Flags |= PD_NOWARNING; // the framework says so
        bool const found = framework::HasPrinter();
        if (!found || pInfo->m_pPD->DoModal() != IDOK)
        {
            if (!found || ::CommDlgExtendedError() != 0)
                AfxMessageBox(framework::MessageText(AFX_IDP_FAILED_TO_START_PRINT));
            return FALSE;
        }
        if (app != nullptr)
            app->SelectPrinter(printer.hDevNames, printer.hDevMode, FALSE);
        if (!guard.Alive())
            return FALSE;
    }
    if (printer.hDC == nullptr)
    {
        AfxMessageBox(framework::MessageText(AFX_IDP_FAILED_TO_START_PRINT));
        return FALSE;
    }
    pInfo->m_nNumPreviewPages = framework::PreviewPages();
    pInfo->m_strPageDesc = framework::MessageText(AFX_IDS_PREVIEWPAGEDESC);
    return TRUE;
}

namespace
{
thread_local bool s_cancelled = false;

/// Lets the user cancel, and says whether the job goes on.
BOOL CALLBACK GoOn(HDC, int)
{
    MSG message;
    while (!s_cancelled && ::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE))
    {
        if (message.message == WM_QUIT || !AfxPumpMessage())
            return FALSE;
    }
    return !s_cancelled;
}

/// Tells of the job that runs.
class StatusDialog : public CDialog
{
public:
    /// Goes on without a dialog where the program has no template for it.
    explicit StatusDialog(CWnd * parent)
    {
        s_cancelled = false;
        if (::FindResource(AfxFindResourceHandle(MAKEINTRESOURCE(AFX_IDD_PRINTDLG), RT_DIALOG),
                           MAKEINTRESOURCE(AFX_IDD_PRINTDLG), RT_DIALOG) != nullptr)
            Create(AFX_IDD_PRINTDLG, parent);
    }
    ~StatusDialog() override { DestroyWindow(); }

    void Show(CString const & title, CPrintInfo const & info, CString const & file)
    {
        SetText(AFX_IDC_PRINT_DOCNAME, title);
        SetText(AFX_IDC_PRINT_PRINTERNAME, info.m_pPD->GetDeviceName());
        CString const port = file.IsEmpty() ? info.m_pPD->GetPortName() : file;
        CString where;
        if (!port.IsEmpty())
            AfxFormatString1(where, file.IsEmpty() ? AFX_IDS_PRINTONPORT : AFX_IDS_PRINTTOFILE, port);
        SetText(AFX_IDC_PRINT_PORTNAME, where);
        if (m_hWnd == nullptr)
            return;
        ShowWindow(SW_SHOW);
        UpdateWindow();
    }
    void ShowPage(UINT page)
    {
        CString text;
        text.Format(framework::MessageText(AFX_IDS_PRINTPAGENUM), page);
        SetText(AFX_IDC_PRINT_PAGENUM, text);
    }

protected:
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        CenterWindow();
        return TRUE;
    }
    void OnCancel() override { s_cancelled = true; }

private:
    void SetText(int id, CString const & text)
    {
        if (m_hWnd != nullptr)
            SetDlgItemText(id, text);
    }
};

/// The main window takes no input while a job runs.
class DisabledMain
{
public:
    DisabledMain() : m_window(framework::SafeHandle(AfxGetMainWnd()))
    {
        if (m_window != nullptr)
            ::EnableWindow(m_window, FALSE);
    }
    ~DisabledMain() { Enable(); }
    DisabledMain(DisabledMain const &) = delete;
    DisabledMain & operator=(DisabledMain const &) = delete;

    void Enable()
    {
        HWND const window = std::exchange(m_window, nullptr);
        if (window != nullptr && ::IsWindow(window))
            ::EnableWindow(window, TRUE);
    }

private:
    HWND m_window;
};

/// The printer's context, which stays the job's description's.
class PrinterContext : public CDC
{
public:
    explicit PrinterContext(HDC handle)
    {
        Attach(handle);
        framework::PrintAccess::SetPrinting(*this, true);
    }
    ~PrinterContext() override { Detach(); }
};

/// Asks for the file that is printed to. False if the user doesn't want to.
bool AskForFile(CString & file)
{
    CFileDialog dialog(FALSE, framework::MessageText(AFX_IDS_PRINTDEFAULTEXT),
                       framework::MessageText(AFX_IDS_PRINTDEFAULT), OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                       framework::MessageText(AFX_IDS_PRINTFILTER));
    CString const title = framework::MessageText(AFX_IDS_PRINTCAPTION);
    dialog.GetOFN().lpstrTitle = title;
    if (dialog.DoModal() != IDOK)
        return false;
    file = dialog.GetPathName();
    return true;
}
} // namespace

void CView::OnFilePrint()
{
    WindowGuard const guard(this);
    CPrintInfo info;
    info.m_bDirect = LOWORD(GetCurrentMessage()->wParam) == ID_FILE_PRINT_DIRECT;
    if (!OnPreparePrinting(&info) || !guard.Alive())
        return;
    if (info.m_pPD->m_pd.hDC == nullptr)
    {
        AfxMessageBox(framework::MessageText(AFX_IDP_FAILED_TO_START_PRINT));
        return;
    }
    CString file;
    if ((info.m_pPD->m_pd.Flags & PD_PRINTTOFILE) != 0 && (!AskForFile(file) || !guard.Alive()))
        return;
    CString title;
    if (CDocument const * const document = GetDocument())
        title = document->GetTitle();
    else if (CWnd const * const frame = GetParentFrame())
        frame->GetWindowText(title);

    PrinterContext dc(info.m_pPD->m_pd.hDC);
    OnBeginPrinting(&dc, &info);
    if (!guard.Alive())
        return;
    dc.SetAbortProc(GoOn);
    DisabledMain main;
    bool started = false;
    {
        StatusDialog status(this);
        status.Show(title, info, file);
        DOCINFO job{};
        job.cbSize = sizeof job;
        job.lpszDocName = title;
        CString const port = file.IsEmpty() ? info.m_pPD->GetPortName() : file;
        job.lpszOutput = port.IsEmpty() ? nullptr : port.GetString();
        started = dc.StartDoc(&job) != SP_ERROR;
        if (started)
        {
            bool const complete = PrintPages(dc, info, [&status](UINT page) { status.ShowPage(page); });
            complete ? dc.EndDoc() : dc.AbortDoc();
        }
        main.Enable(); // before the dialog goes, so that the activation comes back here
    }
    if (guard.Alive())
        OnEndPrinting(&dc, &info);
    if (!started)
        AfxMessageBox(framework::MessageText(AFX_IDP_FAILED_TO_START_PRINT));
}

/// False if the job is to be dropped.
bool CView::PrintPages(CDC & dc, CPrintInfo & info, std::function<void(UINT)> const & tell)
{
    WindowGuard const guard(this);
    UINT const first =
        std::clamp(info.GetFromPage(), info.GetMinPage(), std::max(info.GetMinPage(), info.GetMaxPage()));
    UINT const last = std::clamp(info.GetToPage(), info.GetMinPage(), std::max(info.GetMinPage(), info.GetMaxPage()));
    bool const forward = last >= first;
    for (UINT page = first;; page += forward ? 1U : ~0U)
    {
        info.m_nCurPage = page;
        OnPrepareDC(&dc, &info);
        if (!guard.Alive())
            return false;
        if (!info.m_bContinuePrinting)
            return true;
        tell(page);
        info.m_rectDraw = framework::PrintableArea(dc.m_hAttribDC);
        dc.DPtoLP(&info.m_rectDraw);
        if (dc.StartPage() < 0)
            return false;
        OnPrepareDC(&dc, &info); // a new page has the device's own state
        if (guard.Alive())
            OnPrint(&dc, &info);
        if (dc.EndPage() < 0 || !guard.Alive() || !GoOn(dc.m_hDC, 0) || !guard.Alive())
            return false;
        if (page == last)
            return true;
    }
}
