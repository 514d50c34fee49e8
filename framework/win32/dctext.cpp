// Text and fonts of device contexts.

#include <vector>

#include "detail/GdiHandles.h"

using framework::HandleOf;
using framework::OnBoth;

namespace
{
CSize UnpackedSize(DWORD packed)
{
    return {static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed))};
}
} // namespace

BOOL CDC::TextOut(int x, int y, LPCTSTR lpszString, int nCount)
{
    return ::TextOut(m_hDC, x, y, lpszString, nCount);
}

BOOL CDC::TextOut(int x, int y, CString const & str)
{
    return TextOut(x, y, str, str.GetLength());
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount, LPINT lpDxWidths)
{
    return ::ExtTextOut(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, CString const & str, LPINT lpDxWidths)
{
    return ExtTextOut(x, y, nOptions, lpRect, str, static_cast<UINT>(str.GetLength()), lpDxWidths);
}

CSize CDC::TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions, LPINT lpnTabStopPositions,
                         int nTabOrigin)
{
    LONG const size = ::TabbedTextOut(m_hDC, x, y, lpszString, nCount, nTabPositions, lpnTabStopPositions, nTabOrigin);
    return UnpackedSize(static_cast<DWORD>(size));
}

CSize CDC::TabbedTextOut(int x, int y, CString const & str, int nTabPositions, LPINT lpnTabStopPositions,
                         int nTabOrigin)
{
    return TabbedTextOut(x, y, str, str.GetLength(), nTabPositions, lpnTabStopPositions, nTabOrigin);
}

int CDC::DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat)
{
    return ::DrawText(m_hDC, lpszString, nCount, lpRect, nFormat);
}

int CDC::DrawText(CString const & str, LPRECT lpRect, UINT nFormat)
{
    // The text is the caller's and is not shortened, whatever the format says.
    return DrawText(str, str.GetLength(), lpRect, nFormat & ~DT_MODIFYSTRING);
}

int CDC::DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpDTParams)
{
    return ::DrawTextEx(m_hDC, lpszString, nCount, lpRect, nFormat, lpDTParams);
}

int CDC::DrawTextEx(CString const & str, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpDTParams)
{
    LPTSTR const text = const_cast<LPTSTR>(static_cast<LPCTSTR>(str));
    return DrawTextEx(text, str.GetLength(), lpRect, nFormat & ~DT_MODIFYSTRING, lpDTParams);
}

BOOL CDC::GrayString(CBrush * pBrush, BOOL(CALLBACK * lpfnOutput)(HDC, LPARAM, int), LPARAM lpData, int nCount, int x,
                     int y, int nWidth, int nHeight)
{
    return ::GrayString(m_hDC, static_cast<HBRUSH>(HandleOf(pBrush)), lpfnOutput, lpData, nCount, x, y, nWidth,
                        nHeight);
}

CSize CDC::GetTextExtent(LPCTSTR lpszString, int nCount) const
{
    SIZE size = {};
    ::GetTextExtentPoint32(m_hAttribDC, lpszString, nCount, &size);
    return size;
}

CSize CDC::GetTextExtent(CString const & str) const
{
    return GetTextExtent(str, str.GetLength());
}

CSize CDC::GetOutputTextExtent(LPCTSTR lpszString, int nCount) const
{
    SIZE size = {};
    ::GetTextExtentPoint32(m_hDC, lpszString, nCount, &size);
    return size;
}

CSize CDC::GetOutputTextExtent(CString const & str) const
{
    return GetOutputTextExtent(str, str.GetLength());
}

CSize CDC::GetTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions, LPINT lpnTabStopPositions) const
{
    return UnpackedSize(::GetTabbedTextExtent(m_hAttribDC, lpszString, nCount, nTabPositions, lpnTabStopPositions));
}

CSize CDC::GetTabbedTextExtent(CString const & str, int nTabPositions, LPINT lpnTabStopPositions) const
{
    return GetTabbedTextExtent(str, str.GetLength(), nTabPositions, lpnTabStopPositions);
}

CSize CDC::GetOutputTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions, LPINT lpnTabStopPositions) const
{
    return UnpackedSize(::GetTabbedTextExtent(m_hDC, lpszString, nCount, nTabPositions, lpnTabStopPositions));
}

CSize CDC::GetOutputTabbedTextExtent(CString const & str, int nTabPositions, LPINT lpnTabStopPositions) const
{
    return GetOutputTabbedTextExtent(str, str.GetLength(), nTabPositions, lpnTabStopPositions);
}

BOOL CDC::GetTextExtentExPointI(LPWORD pgiIn, int cgi, int nMaxExtent, LPINT lpnFit, LPINT alpDx, LPSIZE lpSize) const
{
    return ::GetTextExtentExPointI(m_hAttribDC, pgiIn, cgi, nMaxExtent, lpnFit, alpDx, lpSize);
}

BOOL CDC::GetTextExtentPointI(LPWORD pgiIn, int cgi, LPSIZE lpSize) const
{
    return ::GetTextExtentPointI(m_hAttribDC, pgiIn, cgi, lpSize);
}

UINT CDC::GetTextAlign() const
{
    return ::GetTextAlign(m_hAttribDC);
}

UINT CDC::SetTextAlign(UINT nFlags)
{
    return OnBoth(
        *this, [=](HDC dc) { return ::SetTextAlign(dc, nFlags); }, static_cast<UINT>(GDI_ERROR));
}

int CDC::GetTextFace(int nCount, LPTSTR lpszFacename) const
{
    return ::GetTextFace(m_hAttribDC, nCount, lpszFacename);
}

int CDC::GetTextFace(CString & rString) const
{
    int const size = ::GetTextFace(m_hAttribDC, 0, nullptr);
    if (size <= 0)
    {
        rString.Empty();
        return 0;
    }
    std::vector<TCHAR> face(static_cast<size_t>(size) + 1);
    int const copied = ::GetTextFace(m_hAttribDC, size, face.data());
    rString = face.data();
    return copied;
}

BOOL CDC::GetTextMetrics(LPTEXTMETRIC lpMetrics) const
{
    return ::GetTextMetrics(m_hAttribDC, lpMetrics);
}

BOOL CDC::GetOutputTextMetrics(LPTEXTMETRIC lpMetrics) const
{
    return ::GetTextMetrics(m_hDC, lpMetrics);
}

int CDC::SetTextJustification(int nBreakExtra, int nBreakCount)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetTextJustification(dc, nBreakExtra, nBreakCount); });
}

int CDC::GetTextCharacterExtra() const
{
    return ::GetTextCharacterExtra(m_hAttribDC);
}

int CDC::SetTextCharacterExtra(int nCharExtra)
{
    constexpr int invalid_width = static_cast<int>(0x80000000);
    return OnBoth(
        *this, [=](HDC dc) { return ::SetTextCharacterExtra(dc, nCharExtra); }, invalid_width);
}

DWORD CDC::GetCharacterPlacement(LPCTSTR lpString, int nCount, int nMaxExtent, LPGCP_RESULTS lpResults,
                                 DWORD dwFlags) const
{
    return ::GetCharacterPlacement(m_hAttribDC, lpString, nCount, nMaxExtent, lpResults, dwFlags);
}

DWORD CDC::GetCharacterPlacement(CString & str, int nMaxExtent, LPGCP_RESULTS lpResults, DWORD dwFlags) const
{
    return GetCharacterPlacement(str, str.GetLength(), nMaxExtent, lpResults, dwFlags);
}

BOOL CDC::GetCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const
{
    return ::GetCharWidth32(m_hAttribDC, nFirstChar, nLastChar, lpBuffer);
}

BOOL CDC::GetCharWidth(UINT nFirstChar, UINT nLastChar, float * lpFloatBuffer) const
{
    return ::GetCharWidthFloat(m_hAttribDC, nFirstChar, nLastChar, lpFloatBuffer);
}

BOOL CDC::GetCharWidthI(UINT giFirst, UINT cgi, LPWORD pgi, LPINT lpBuffer) const
{
    return ::GetCharWidthI(m_hAttribDC, giFirst, cgi, pgi, lpBuffer);
}

BOOL CDC::GetOutputCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const
{
    return ::GetCharWidth32(m_hDC, nFirstChar, nLastChar, lpBuffer);
}

BOOL CDC::GetCharABCWidths(UINT nFirstChar, UINT nLastChar, LPABC lpabc) const
{
    return ::GetCharABCWidths(m_hAttribDC, nFirstChar, nLastChar, lpabc);
}

BOOL CDC::GetCharABCWidths(UINT nFirstChar, UINT nLastChar, LPABCFLOAT lpABCF) const
{
    return ::GetCharABCWidthsFloat(m_hAttribDC, nFirstChar, nLastChar, lpABCF);
}

BOOL CDC::GetCharABCWidthsI(UINT giFirst, UINT cgi, LPWORD pgi, LPABC lpabc) const
{
    return ::GetCharABCWidthsI(m_hAttribDC, giFirst, cgi, pgi, lpabc);
}

DWORD CDC::SetMapperFlags(DWORD dwFlag)
{
    return OnBoth(
        *this, [=](HDC dc) { return ::SetMapperFlags(dc, dwFlag); }, static_cast<DWORD>(GDI_ERROR));
}

CSize CDC::GetAspectRatioFilter() const
{
    SIZE filter = {};
    ::GetAspectRatioFilterEx(m_hAttribDC, &filter);
    return filter;
}

DWORD CDC::GetFontData(DWORD dwTable, DWORD dwOffset, LPVOID lpData, DWORD cbData) const
{
    return ::GetFontData(m_hAttribDC, dwTable, dwOffset, lpData, cbData);
}

DWORD CDC::GetFontLanguageInfo() const
{
    return ::GetFontLanguageInfo(m_hAttribDC);
}

int CDC::GetKerningPairs(int nPairs, LPKERNINGPAIR lpkrnpair) const
{
    return static_cast<int>(::GetKerningPairs(m_hAttribDC, static_cast<DWORD>(nPairs), lpkrnpair));
}

UINT CDC::GetOutlineTextMetrics(UINT cbData, LPOUTLINETEXTMETRIC lpotm) const
{
    return ::GetOutlineTextMetrics(m_hAttribDC, cbData, lpotm);
}

DWORD CDC::GetGlyphOutline(UINT nChar, UINT nFormat, LPGLYPHMETRICS lpgm, DWORD cbBuffer, LPVOID lpBuffer,
                           MAT2 const * lpmat2) const
{
    return ::GetGlyphOutline(m_hAttribDC, nChar, nFormat, lpgm, cbBuffer, lpBuffer, lpmat2);
}
