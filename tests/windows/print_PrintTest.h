#pragma once
// What the tests of printing share: a frame with a view that prints, and notes what it is asked.

#include <afxdlgs.h>
#include <afxext.h>
#include <afxpriv.h>
#include <afxwin.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "Input.h"
#include "print_resource.h"
#include "Pump.h"
#include "TestApp.h"

namespace printing
{
constexpr COLORREF page_colour = RGB(200, 60, 20); // what the first page is filled with; each other has less red
constexpr int red_a_page = 30;

/// A view whose pages are rectangles of one colour with the page's number.
class PrintView : public CScrollView
{
public:
    std::vector<std::string> m_log;
    UINT m_lastPage = 3;                         // 0: not told, as by default
    UINT m_endsAfter = 0;                        // OnPrepareDC says so from there on
    std::function<BOOL(CPrintInfo &)> m_prepare; // otherwise DoPreparePrinting
    std::function<void(CPrintInfo &)> m_print;
    std::function<void(CPrintInfo &)> m_end;
    CRect m_rectDraw;
    BOOL m_printing = FALSE;
    POINT m_previewPoint{-1, -1};

protected:
    void OnDraw(CDC *) override {}
    void OnInitialUpdate() override
    {
        CScrollView::OnInitialUpdate();
        SetScrollSizes(MM_TEXT, CSize(10, 10));
    }
    BOOL OnPreparePrinting(CPrintInfo * pInfo) override
    {
        m_log.push_back("prepare");
        if (m_lastPage != 0)
            pInfo->SetMaxPage(m_lastPage);
        return m_prepare ? std::exchange(m_prepare, {})(*pInfo) : DoPreparePrinting(pInfo);
    }
    void OnBeginPrinting(CDC *, CPrintInfo *) override { m_log.push_back("begin"); }
    void OnPrepareDC(CDC * pDC, CPrintInfo * pInfo = nullptr) override
    {
        CScrollView::OnPrepareDC(pDC, pInfo);
        if (pInfo != nullptr && m_endsAfter != 0)
            pInfo->m_bContinuePrinting = pInfo->m_nCurPage <= m_endsAfter;
    }
    void OnPrint(CDC * pDC, CPrintInfo * pInfo) override
    {
        m_log.push_back("page " + std::to_string(pInfo->m_nCurPage));
        m_rectDraw = pInfo->m_rectDraw;
        m_printing = pDC->IsPrinting();
        int const red = GetRValue(page_colour) - red_a_page * (static_cast<int>(pInfo->m_nCurPage) - 1);
        pDC->FillSolidRect(&pInfo->m_rectDraw, RGB(red, GetGValue(page_colour), GetBValue(page_colour)));
        CString text;
        text.Format(L"Page %u", pInfo->m_nCurPage);
        pDC->TextOut(10, 10, text);
        if (m_print)
            m_print(*pInfo);
    }
    void OnEndPrinting(CDC *, CPrintInfo * pInfo) override
    {
        m_log.push_back("end");
        if (m_end)
            m_end(*pInfo);
    }
    void OnEndPrintPreview(CDC * pDC, CPrintInfo * pInfo, POINT point, CPreviewView * pView) override
    {
        m_previewPoint = point;
        CScrollView::OnEndPrintPreview(pDC, pInfo, point, pView);
    }

    DECLARE_DYNCREATE(PrintView)
    DECLARE_MESSAGE_MAP()
};

class PrintFrame : public CFrameWnd
{
public:
    CToolBar m_tools;
    CStatusBar m_status;

protected:
    BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext * pContext) override;
};

class PrintTest : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    /// A job on a metafile as large as a page of the screen's resolution; the view takes it at the end.
    void PrintToMetafile()
    {
        m_view->m_prepare = [](CPrintInfo & info) {
            PRINTDLG & job = info.m_pPD->m_pd;
            job.nFromPage = static_cast<WORD>(info.GetMinPage());
            job.nToPage = static_cast<WORD>(info.GetMaxPage());
            job.hDC = ::CreateEnhMetaFile(nullptr, nullptr, nullptr, nullptr);
            return TRUE;
        };
        m_view->m_end = [this](CPrintInfo & info) {
            m_paper = ::CloseEnhMetaFile(std::exchange(info.m_pPD->m_pd.hDC, nullptr));
        };
    }
    /// The texts that the job has written.
    std::vector<std::wstring> Texts() const;
    void Command(UINT id) { ::SendMessage(m_window, WM_COMMAND, id, 0); }
    CPreviewView * Preview() const { return DYNAMIC_DOWNCAST(CPreviewView, m_frame->GetActiveView()); }
    CWnd * Button(UINT id) const
    {
        CControlBar * const bar = m_frame->GetControlBar(AFX_IDW_PREVIEW_BAR);
        return bar != nullptr ? bar->GetDlgItem(static_cast<int>(id)) : nullptr;
    }
    void Idle()
    {
        tests::PumpPosted();
        tests::App().OnIdle(0);
    }

    PrintFrame * m_frame = nullptr; // deletes itself
    PrintView * m_view = nullptr;
    HWND m_window = nullptr;
    HENHMETAFILE m_paper = nullptr;
};
} // namespace printing
