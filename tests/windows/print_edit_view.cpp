// The text of an edit view on paper and in archives.

#include <afxdlgs.h>
#include <afxext.h>
#include <afxwin.h>

#include <gtest/gtest.h>

#include "TestApp.h"

namespace
{
/// An edit view that can be reached.
class PaperView : public CEditView
{
    DECLARE_DYNCREATE(PaperView)

public:
    using CEditView::OnBeginPrinting;
    using CEditView::OnEndPrinting;
    using CEditView::OnPrint;
};
IMPLEMENT_DYNCREATE(PaperView, CEditView)

class EditViewOnPaper : public testing::Test
{
protected:
    void SetUp() override
    {
        m_frame = new CFrameWnd;
        ASSERT_TRUE(m_frame->Create(nullptr, L"Edit", WS_OVERLAPPEDWINDOW, CRect(0, 0, 300, 200)));
        CCreateContext context;
        context.m_pNewViewClass = RUNTIME_CLASS(PaperView);
        m_view = static_cast<PaperView *>(m_frame->CreateView(&context));
        ASSERT_NE(m_view, nullptr);
        ASSERT_TRUE(m_dc.CreateCompatibleDC(nullptr));
        ASSERT_TRUE(m_bitmap.CreateCompatibleBitmap(&m_dc, 400, 400));
        m_dc.SelectObject(&m_bitmap);
        m_dc.PatBlt(0, 0, 400, 400, WHITENESS);
        TEXTMETRIC metrics{};
        m_dc.GetTextMetrics(&metrics);
        m_line = metrics.tmHeight + metrics.tmExternalLeading;
    }
    void TearDown() override { m_frame->DestroyWindow(); }
    bool IsInked(CRect const & area)
    {
        for (int y = area.top; y < area.bottom; ++y)
        {
            for (int x = area.left; x < area.right; ++x)
            {
                if (m_dc.GetPixel(x, y) != RGB(255, 255, 255))
                    return true;
            }
        }
        return false;
    }

    CFrameWnd * m_frame = nullptr;
    PaperView * m_view = nullptr;
    CBitmap m_bitmap;
    CDC m_dc;
    int m_line = 0;
};

TEST_F(EditViewOnPaper, AsManyLinesAsFitAreInside)
{
    m_view->SetWindowText(L"one\r\ntwo\r\nthree\r\nfour");
    CRect area(0, 0, 200, 2 * m_line + m_line / 2);
    UINT const next = m_view->PrintInsideRect(&m_dc, area, 0, m_view->GetBufferLength());
    EXPECT_EQ(next, 10u); // before "three"
    EXPECT_EQ(area.bottom, 2 * m_line);
    EXPECT_TRUE(IsInked(CRect(0, 0, 100, m_line)));
    EXPECT_TRUE(IsInked(CRect(0, m_line, 100, 2 * m_line)));
    EXPECT_FALSE(IsInked(CRect(0, 2 * m_line, 100, 3 * m_line)));
    // The rest on the next one.
    area = CRect(0, 200, 200, 300);
    EXPECT_EQ(m_view->PrintInsideRect(&m_dc, area, next, m_view->GetBufferLength()), m_view->GetBufferLength());
    EXPECT_EQ(area.bottom, 200 + 2 * m_line);
}

TEST_F(EditViewOnPaper, LongLinesBreakBetweenWords)
{
    m_view->SetWindowText(L"aaaa bbbb cccc");
    int const two = m_dc.GetTextExtent(L"aaaa bbbb c", 11).cx;
    CRect area(0, 0, two, m_line);
    EXPECT_EQ(m_view->PrintInsideRect(&m_dc, area, 0, 14), 10u);
    // A word that is too long breaks anywhere, and an area that is too narrow for anything has a character a line.
    m_view->SetWindowText(L"aaaaaaaa");
    area = CRect(0, 0, m_dc.GetTextExtent(L"aaa", 3).cx, m_line);
    EXPECT_EQ(m_view->PrintInsideRect(&m_dc, area, 0, 8), 3u);
    area = CRect(0, 0, 1, 2 * m_line);
    EXPECT_EQ(m_view->PrintInsideRect(&m_dc, area, 0, 8), 2u);
    area = CRect(0, 0, 100, m_line - 1);
    EXPECT_EQ(m_view->PrintInsideRect(&m_dc, area, 0, 8), 0u); // no room
}

TEST_F(EditViewOnPaper, PagesAreCountedBeforeTheyArePrinted)
{
    CString text;
    for (int line = 0; line < 200; ++line)
        text.AppendFormat(L"Line %d\r\n", line);
    m_view->SetWindowText(text);
    CPrintInfo info;
    info.m_bPreview = TRUE;
    m_view->OnBeginPrinting(&m_dc, &info);
    EXPECT_GE(info.GetMaxPage(), 2u);
    EXPECT_LE(info.GetMaxPage(), 20u);
    info.m_nCurPage = info.GetMaxPage();
    m_view->OnPrint(&m_dc, &info);
    EXPECT_TRUE(IsInked(CRect(0, 0, 400, 400)));
    info.m_nCurPage = info.GetMaxPage() + 1; // nothing, and no harm
    m_view->OnPrint(&m_dc, &info);
    m_view->OnEndPrinting(&m_dc, &info);
}

TEST_F(EditViewOnPaper, TheTextAloneIsTheFile)
{
    CString const text = L"first\r\nsecond \x20AC";
    m_view->SetWindowText(text);
    CMemFile file;
    {
        CArchive archive(&file, CArchive::store);
        m_view->SerializeRaw(archive);
    }
    EXPECT_EQ(file.GetLength(), static_cast<ULONGLONG>(text.GetLength()) * sizeof(wchar_t));
    m_view->SetWindowText(L"");
    file.SeekToBegin();
    {
        CArchive archive(&file, CArchive::load);
        m_view->SerializeRaw(archive);
    }
    CString read;
    m_view->GetWindowText(read);
    EXPECT_EQ(read, text);
}

TEST_F(EditViewOnPaper, TheTextWithItsLengthStandsAmongOthers)
{
    m_view->SetWindowText(L"some text");
    CMemFile file;
    {
        CArchive archive(&file, CArchive::store);
        archive << 7;
        m_view->Serialize(archive);
        archive << 8;
    }
    m_view->SetWindowText(L"");
    file.SeekToBegin();
    CArchive archive(&file, CArchive::load);
    int before = 0;
    int behind = 0;
    archive >> before;
    m_view->Serialize(archive);
    archive >> behind;
    CString read;
    m_view->GetWindowText(read);
    EXPECT_EQ(read, L"some text");
    EXPECT_EQ(before, 7);
    EXPECT_EQ(behind, 8);
}

TEST_F(EditViewOnPaper, ALengthBeyondTheArchiveIsAnException)
{
    CMemFile file;
    {
        CArchive archive(&file, CArchive::store);
        archive << 0xFFFFFFF0u;
        archive << 1;
    }
    file.SeekToBegin();
    CArchive archive(&file, CArchive::load);
    bool thrown = false;
    try
    {
        m_view->Serialize(archive);
    }
    catch (CArchiveException * exception)
    {
        thrown = exception->m_cause == CArchiveException::endOfFile;
        exception->Delete();
    }
    EXPECT_TRUE(thrown);
}
} // namespace
