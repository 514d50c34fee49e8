// CEditView: its text in archives and on paper.

#include <afxdlgs.h>
#include <afxext.h>

#include <algorithm>

#include "detail/PrintSupport.h"

namespace
{
constexpr UINT step = 0x10000; // characters that are read at a time
constexpr int tab_characters = 8;

/// What is left of an archive, or so many characters of it, as a text.
CString ReadText(CArchive & ar, ULONGLONG count)
{
    CString text;
    while (count > 0)
    {
        auto const wanted = static_cast<UINT>(std::min<ULONGLONG>(count, step));
        CString part;
        UINT const read = ar.Read(part.GetBufferSetLength(static_cast<int>(wanted)), wanted * sizeof(TCHAR));
        part.ReleaseBufferSetLength(static_cast<int>(read / sizeof(TCHAR)));
        text += part;
        count -= wanted;
        if (read < wanted * sizeof(TCHAR))
            AfxThrowArchiveException(CArchiveException::endOfFile);
    }
    return text;
}

/// The page without its margins.
CRect PageArea(CDC const & dc)
{
    CRect area = framework::PrintableArea(dc.m_hAttribDC);
    area.DeflateRect(dc.GetDeviceCaps(LOGPIXELSX) / 2, dc.GetDeviceCaps(LOGPIXELSY) / 2);
    return area;
}

/// Where the next line of a text starts.
int NextLine(CString const & text, int end, int stop)
{
    if (end < stop && text[end] == L'\r')
        ++end;
    if (end < stop && text[end] == L'\n')
        ++end;
    return end;
}
} // namespace

void CEditView::SerializeRaw(CArchive & ar)
{
    if (ar.IsStoring())
    {
        CString text;
        GetWindowText(text);
        ar.Write(text.GetString(), static_cast<UINT>(text.GetLength()) * static_cast<UINT>(sizeof(TCHAR)));
        return;
    }
    // The archive reads from the file's place on.
    CFile const * const file = ar.GetFile();
    ULONGLONG const left = file->GetLength() - file->GetPosition();
    SetWindowText(ReadText(ar, left / sizeof(TCHAR)));
}

void CEditView::Serialize(CArchive & ar)
{
    if (ar.IsStoring())
    {
        ar << static_cast<DWORD>(GetBufferLength());
        SerializeRaw(ar);
        return;
    }
    DWORD length = 0;
    ar >> length;
    SetWindowText(ReadText(ar, length));
}

CFont * CEditView::GetPrinterFont() const
{
    return m_printerFont;
}

void CEditView::SetPrinterFont(CFont * pFont)
{
    m_printerFont = pFont;
}

/// Breaks lines between words, or anywhere where a word is too long.
UINT CEditView::LayOut(CDC & dc, CString const & text, RECT & layout, UINT start, UINT stop, bool output) const
{
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(&metrics);
    int const height = std::max<int>(metrics.tmHeight + metrics.tmExternalLeading, 1);
    int tab = std::max<int>(metrics.tmAveCharWidth * tab_characters, 1);
    int const width = std::max<int>(layout.right - layout.left, 1);
    int const last = std::min(static_cast<int>(stop), text.GetLength());
    int at = static_cast<int>(start);
    int y = layout.top;
    auto const extent = [&](int from, int count) {
        return static_cast<int>(dc.GetTabbedTextExtent(text.GetString() + from, count, 1, &tab).cx);
    };
    while (at < last && y + height <= layout.bottom)
    {
        int end = at;
        while (end < last && text[end] != L'\r' && text[end] != L'\n')
            ++end;
        int next = NextLine(text, end, last);
        if (extent(at, end - at) > width)
        {
            int fits = 1; // at least one character
            int tooMany = end - at;
            while (tooMany - fits > 1)
            {
                int const middle = (fits + tooMany) / 2;
                (extent(at, middle) <= width ? fits : tooMany) = middle;
            }
            int cut = at + fits;
            while (cut > at && text[cut] != L' ' && text[cut] != L'\t')
                --cut;
            end = cut > at ? cut : at + fits;
            next = end;
            while (next < last && text[next] == L' ')
                ++next;
        }
        if (output)
            dc.TabbedTextOut(layout.left, y, text.GetString() + at, end - at, 1, &tab, layout.left);
        at = next;
        y += height;
    }
    layout.bottom = y;
    return static_cast<UINT>(at);
}

UINT CEditView::PrintInsideRect(CDC * pDC, RECT & rectLayout, UINT nIndexStart, UINT nIndexStop)
{
    CString text;
    GetWindowText(text);
    return LayOut(*pDC, text, rectLayout, nIndexStart, nIndexStop, true);
}

BOOL CEditView::OnPreparePrinting(CPrintInfo * pInfo)
{
    return DoPreparePrinting(pInfo);
}

void CEditView::OnBeginPrinting(CDC * pDC, CPrintInfo * pInfo)
{
    if (pInfo == nullptr)
        return;
    LOGFONT font{};
    CFont * const own = GetFont();
    if (m_printerFont != nullptr)
        m_printerFont->GetLogFont(&font);
    else if (own != nullptr)
    {
        own->GetLogFont(&font);
        CClientDC screen(this);
        font.lfHeight = ::MulDiv(font.lfHeight, pDC->GetDeviceCaps(LOGPIXELSY), screen.GetDeviceCaps(LOGPIXELSY));
        font.lfWidth = 0;
    }
    else
    {
        font.lfHeight = -::MulDiv(10, pDC->GetDeviceCaps(LOGPIXELSY), 72); // ten points
        ::lstrcpy(font.lfFaceName, L"Courier New");
    }
    m_pageFont.DeleteObject();
    m_pageFont.CreateFontIndirect(&font);
    GetWindowText(m_pageText);
    // All pages are found now, so that the number of the last one is known.
    m_pageStarts.RemoveAll();
    m_pageStarts.Add(0);
    CFont * const former = pDC->SelectObject(&m_pageFont);
    auto const length = static_cast<UINT>(m_pageText.GetLength());
    constexpr UINT most_pages = 0xFFFE;
    for (UINT at = 0; at < length && static_cast<UINT>(m_pageStarts.GetSize()) < most_pages;)
    {
        CRect area = PageArea(*pDC);
        UINT const next = LayOut(*pDC, m_pageText, area, at, length, false);
        if (next >= length || next == at)
            break;
        m_pageStarts.Add(next);
        at = next;
    }
    pDC->SelectObject(former);
    pInfo->SetMaxPage(static_cast<UINT>(m_pageStarts.GetSize()));
    // A dialog has asked for all pages before there were any.
    PRINTDLG & job = pInfo->m_pPD->m_pd;
    job.nToPage = std::min(job.nToPage, job.nMaxPage);
}

void CEditView::OnPrint(CDC * pDC, CPrintInfo * pInfo)
{
    auto const page = static_cast<INT_PTR>(pInfo->m_nCurPage) - 1;
    if (page < 0 || page >= m_pageStarts.GetSize())
        return;
    CFont * const former = pDC->SelectObject(&m_pageFont);
    CRect area = PageArea(*pDC);
    LayOut(*pDC, m_pageText, area, m_pageStarts[page], static_cast<UINT>(m_pageText.GetLength()), true);
    pDC->SelectObject(former);
}

void CEditView::OnEndPrinting(CDC *, CPrintInfo *)
{
    m_pageFont.DeleteObject();
    m_pageText.Empty();
    m_pageStarts.RemoveAll();
}
