// Printing: what a view is asked, in which order, for which pages; the dialog meanwhile; hosts that end it.

#include "GuardedHeap.h"
#include "ImportPatch.h"
#include "print_PrintTest.h"

namespace printing
{
IMPLEMENT_DYNCREATE(PrintView, CScrollView)

BEGIN_MESSAGE_MAP(PrintView, CScrollView)
    ON_COMMAND(ID_FILE_PRINT, &CView::OnFilePrint)
    ON_COMMAND(ID_FILE_PRINT_DIRECT, &CView::OnFilePrint)
    ON_COMMAND(ID_FILE_PRINT_PREVIEW, &CView::OnFilePrintPreview)
END_MESSAGE_MAP()

BOOL PrintFrame::OnCreateClient(LPCREATESTRUCT, CCreateContext *)
{
    static UINT const panes[] = {ID_SEPARATOR, ID_INDICATOR_CAPS};
    if (!m_tools.CreateEx(this) || !m_status.Create(this) || !m_status.SetIndicators(panes, 2))
        return FALSE;
    CCreateContext context;
    context.m_pNewViewClass = RUNTIME_CLASS(PrintView);
    return CreateView(&context) != nullptr;
}

void PrintTest::SetUp()
{
    m_frame = new PrintFrame;
    ASSERT_TRUE(m_frame->LoadFrame(IDR_PRINT));
    m_window = m_frame->m_hWnd;
    tests::App().m_pMainWnd = m_frame;
    m_frame->SetWindowPos(nullptr, 40, 40, 700, 600, SWP_NOZORDER);
    m_frame->InitialUpdateFrame(nullptr, TRUE);
    m_view = static_cast<PrintView *>(m_frame->GetActiveView());
    ASSERT_NE(m_view, nullptr);
    ASSERT_TRUE(tests::BringToFront(m_window));
    Idle();
}

void PrintTest::TearDown()
{
    if (::IsWindow(m_window))
        ::DestroyWindow(m_window);
    tests::App().m_pMainWnd = nullptr;
    MSG quit;
    while (::PeekMessage(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE))
    {
    }
    if (m_paper != nullptr)
        ::DeleteEnhMetaFile(m_paper);
}

namespace
{
int CALLBACK TakeText(HDC, HANDLETABLE *, ENHMETARECORD const * record, int, LPARAM parameter)
{
    if (record->iType == EMR_EXTTEXTOUTW)
    {
        auto const & text = *reinterpret_cast<EMREXTTEXTOUTW const *>(record);
        auto const * const characters =
            reinterpret_cast<wchar_t const *>(reinterpret_cast<char const *>(record) + text.emrtext.offString);
        if (text.emrtext.nChars != 0)
            reinterpret_cast<std::vector<std::wstring> *>(parameter)->emplace_back(characters, text.emrtext.nChars);
    }
    return 1;
}
} // namespace

std::vector<std::wstring> PrintTest::Texts() const
{
    std::vector<std::wstring> texts;
    ::EnumEnhMetaFile(nullptr, m_paper, TakeText, &texts, nullptr);
    return texts;
}
} // namespace printing

namespace
{
using Log = std::vector<std::string>;

class Printing : public printing::PrintTest
{
};

TEST_F(Printing, GoesPageByPageOnTheDeviceThatTheViewGives)
{
    PrintToMetafile();
    Command(ID_FILE_PRINT);
    EXPECT_EQ(m_view->m_log, (Log{"prepare", "begin", "page 1", "page 2", "page 3", "end"}));
    EXPECT_EQ(Texts(), (std::vector<std::wstring>{L"Page 1", L"Page 2", L"Page 3"}));
    EXPECT_TRUE(m_view->m_printing);
    EXPECT_TRUE(m_frame->IsWindowEnabled());
    EXPECT_TRUE(tests::App().TakeMessages().empty());
}

TEST_F(Printing, PagesOfARangeAreThoseAskedFor)
{
    PrintToMetafile();
    m_view->m_lastPage = 9;
    auto const whole = m_view->m_prepare;
    m_view->m_prepare = [&](CPrintInfo & info) {
        whole(info);
        info.m_pPD->m_pd.nFromPage = 4;
        info.m_pPD->m_pd.nToPage = 5;
        return TRUE;
    };
    Command(ID_FILE_PRINT);
    EXPECT_EQ(m_view->m_log, (Log{"prepare", "begin", "page 4", "page 5", "end"}));
    ::DeleteEnhMetaFile(m_paper);
    // From the last to the first, and not beyond what there is.
    m_view->m_log.clear();
    m_view->m_lastPage = 5;
    m_view->m_prepare = [&](CPrintInfo & info) {
        whole(info);
        info.m_pPD->m_pd.nFromPage = 70;
        info.m_pPD->m_pd.nToPage = 4;
        return TRUE;
    };
    Command(ID_FILE_PRINT);
    EXPECT_EQ(m_view->m_log, (Log{"prepare", "begin", "page 5", "page 4", "end"}));
}

TEST_F(Printing, AViewThatDoesNotKnowItsLastPageHasOne)
{
    PrintToMetafile();
    m_view->m_lastPage = 0;
    Command(ID_FILE_PRINT);
    EXPECT_EQ(m_view->m_log, (Log{"prepare", "begin", "page 1", "end"}));
}

TEST_F(Printing, TheViewSaysWhereThePagesEnd)
{
    PrintToMetafile();
    m_view->m_lastPage = 0;
    m_view->m_endsAfter = 2;
    Command(ID_FILE_PRINT);
    EXPECT_EQ(m_view->m_log, (Log{"prepare", "begin", "page 1", "page 2", "end"}));
}

TEST_F(Printing, ThePageIsThePaperInLogicalUnits)
{
    PrintToMetafile();
    m_view->m_lastPage = 1;
    Command(ID_FILE_PRINT);
    HDC const screen = ::GetDC(nullptr);
    double const inch = ::GetDeviceCaps(screen, LOGPIXELSX);
    ::ReleaseDC(nullptr, screen);
    EXPECT_EQ(m_view->m_rectDraw.TopLeft(), CPoint(0, 0));
    // A4 or Letter
    EXPECT_NEAR(m_view->m_rectDraw.Width() / inch, 8.4, 0.2);
    EXPECT_NEAR(m_view->m_rectDraw.Height() / inch, 11.35, 0.4);
}

TEST_F(Printing, AViewThatPreparesNothingPrintsNothing)
{
    m_view->m_prepare = [](CPrintInfo &) { return FALSE; };
    Command(ID_FILE_PRINT);
    EXPECT_EQ(m_view->m_log, Log{"prepare"});
    EXPECT_TRUE(tests::App().TakeMessages().empty());
}

TEST_F(Printing, WithoutADeviceFailsWithAWord)
{
    m_view->m_prepare = [](CPrintInfo &) { return TRUE; };
    Command(ID_FILE_PRINT);
    EXPECT_EQ(m_view->m_log, Log{"prepare"});
    EXPECT_EQ(tests::App().TakeMessages(), std::vector<std::wstring>{L"Could not start print job."});
}

int printer_questions = 0;

/// Knows of no printer, whatever the machine has.
BOOL WINAPI NoPrinters(DWORD, LPWSTR, DWORD, LPBYTE, DWORD, LPDWORD needed, LPDWORD count)
{
    ++printer_questions;
    *needed = 0;
    *count = 0;
    return TRUE;
}

TEST_F(Printing, WithoutAPrinterFailsWithAWord)
{
    tests::ImportPatch const patch(L"framework.dll", "EnumPrintersW", &NoPrinters);
    ASSERT_TRUE(patch.Done());
    printer_questions = 0;
    Command(ID_FILE_PRINT);
    EXPECT_EQ(tests::App().TakeMessages(), std::vector<std::wstring>{L"Could not start print job."});
    Command(ID_FILE_PRINT_DIRECT);
    EXPECT_EQ(tests::App().TakeMessages(), std::vector<std::wstring>{L"Could not start print job."});
    tests::App().OnFilePrintSetup();
    EXPECT_EQ(tests::App().TakeMessages(), std::vector<std::wstring>{L"Could not start print job."});
    CDC dc;
    EXPECT_FALSE(tests::App().CreatePrinterDC(dc));
    EXPECT_GT(printer_questions, 0);
    EXPECT_EQ(m_view->m_log, (Log{"prepare", "prepare"}));
    EXPECT_TRUE(m_frame->IsWindowEnabled());
}

HWND StatusDialog()
{
    return ::FindWindow(L"#32770", L"Printing");
}

TEST_F(Printing, ADialogTellsOfTheJobAndCancelsIt)
{
    PrintToMetafile();
    CString name;
    CString page;
    m_view->m_print = [&](CPrintInfo & info) {
        HWND const dialog = StatusDialog();
        ASSERT_NE(dialog, nullptr);
        EXPECT_FALSE(m_frame->IsWindowEnabled());
        EXPECT_TRUE(::IsWindowVisible(dialog));
        CWnd::FromHandle(dialog)->GetDlgItemText(AFX_IDC_PRINT_DOCNAME, name);
        CWnd::FromHandle(dialog)->GetDlgItemText(AFX_IDC_PRINT_PAGENUM, page);
        if (info.m_nCurPage == 2)
            tests::Click(tests::Centre(::GetDlgItem(dialog, IDCANCEL)));
    };
    m_view->m_lastPage = 1000;
    Command(ID_FILE_PRINT);
    EXPECT_EQ(name, L"Paper");
    EXPECT_EQ(page.Left(5), L"Page ");
    ASSERT_GE(m_view->m_log.size(), 5u);
    EXPECT_LT(m_view->m_log.size(), 1000u); // the click takes its time
    EXPECT_EQ(m_view->m_log.back(), "end");
    EXPECT_EQ(StatusDialog(), nullptr);
    EXPECT_TRUE(m_frame->IsWindowEnabled());
    EXPECT_TRUE(tests::App().TakeMessages().empty());
}

TEST_F(Printing, TheFrameMayEndWithinAPage)
{
    tests::GuardedHeap heap;
    PrintToMetafile();
    HWND const window = m_window;
    HDC device = nullptr;
    int pages = 0;
    m_view->m_print = [&](CPrintInfo & info) {
        device = info.m_pPD->m_pd.hDC;
        ++pages;
        ::DestroyWindow(window);
    };
    Command(ID_FILE_PRINT);
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(pages, 1);
    EXPECT_EQ(::GetObjectType(device), 0u); // went with the job
    EXPECT_EQ(StatusDialog(), nullptr);
    EXPECT_EQ(heap.Check(), 0u);
}

TEST_F(Printing, TheFrameMayEndWhileTheJobIsPrepared)
{
    tests::GuardedHeap heap;
    HWND const window = m_window;
    m_view->m_prepare = [window](CPrintInfo & info) {
        info.m_pPD->m_pd.hDC = ::CreateEnhMetaFile(nullptr, nullptr, nullptr, nullptr);
        ::DestroyWindow(window);
        return TRUE;
    };
    Command(ID_FILE_PRINT);
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(heap.Check(), 0u);
}
} // namespace
