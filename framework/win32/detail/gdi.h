#pragma once
// The graphics objects and the device contexts they are selected into.

#include <afx.h>
#include <atltypes.h>
#include <windows.h>

#include "FrameworkExport.h"
#include "gdiobjects.h"

class CWnd;

namespace framework
{
struct PrintAccess;
} // namespace framework

// Output goes to m_hDC; questions are answered by m_hAttribDC. Both are the same context unless they were set apart.
class FRAMEWORK_API CDC : public CObject
{
    DECLARE_DYNCREATE(CDC)

public:
    HDC m_hDC;
    HDC m_hAttribDC;

    CDC();
    ~CDC() override;

    static CDC * PASCAL FromHandle(HDC hDC);
    static void PASCAL DeleteTempMap();

    operator HDC() const;
    HDC GetSafeHdc() const;
    CWnd * GetWindow() const;

    BOOL Attach(HDC hDC);
    HDC Detach();
    virtual void SetAttribDC(HDC hDC);
    virtual void SetOutputDC(HDC hDC);
    virtual void ReleaseAttribDC();
    virtual void ReleaseOutputDC();
    BOOL IsPrinting() const;

    CPen * GetCurrentPen() const;
    CBrush * GetCurrentBrush() const;
    CPalette * GetCurrentPalette() const;
    CFont * GetCurrentFont() const;
    CBitmap * GetCurrentBitmap() const;

    BOOL CreateDC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, void const * lpInitData);
    BOOL CreateIC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, void const * lpInitData);
    BOOL CreateCompatibleDC(CDC * pDC);
    BOOL DeleteDC();
    BOOL ResetDC(DEVMODE const * lpDevMode);
    virtual int SaveDC();
    virtual BOOL RestoreDC(int nSavedDC);
    int GetDeviceCaps(int nIndex) const;
    UINT SetBoundsRect(LPCRECT lpRectBounds, UINT flags);
    UINT GetBoundsRect(LPRECT lpRectBounds, UINT flags);
    DWORD GetLayout() const;
    DWORD SetLayout(DWORD dwLayout);
    int EnumObjects(int nObjectType, int(CALLBACK * lpfn)(LPVOID, LPARAM), LPARAM lpData);

    virtual CGdiObject * SelectStockObject(int nIndex);
    CPen * SelectObject(CPen * pPen);
    CBrush * SelectObject(CBrush * pBrush);
    virtual CFont * SelectObject(CFont * pFont);
    CBitmap * SelectObject(CBitmap * pBitmap);
    int SelectObject(CRgn * pRgn);
    CGdiObject * SelectObject(CGdiObject * pObject);
    CPalette * SelectPalette(CPalette * pPalette, BOOL bForceBackground);
    UINT RealizePalette();
    void UpdateColors();

    // Colours and drawing attributes
    CPoint GetBrushOrg() const;
    CPoint SetBrushOrg(int x, int y);
    CPoint SetBrushOrg(POINT point);
    COLORREF GetNearestColor(COLORREF crColor) const;
    COLORREF GetBkColor() const;
    virtual COLORREF SetBkColor(COLORREF crColor);
    int GetBkMode() const;
    int SetBkMode(int nBkMode);
    COLORREF GetTextColor() const;
    virtual COLORREF SetTextColor(COLORREF crColor);
    COLORREF GetDCBrushColor() const;
    COLORREF SetDCBrushColor(COLORREF crColor);
    COLORREF GetDCPenColor() const;
    COLORREF SetDCPenColor(COLORREF crColor);
    int GetPolyFillMode() const;
    int SetPolyFillMode(int nPolyFillMode);
    int GetROP2() const;
    int SetROP2(int nDrawMode);
    int GetStretchBltMode() const;
    int SetStretchBltMode(int nStretchMode);
    BOOL GetColorAdjustment(LPCOLORADJUSTMENT lpColorAdjust) const;
    BOOL SetColorAdjustment(COLORADJUSTMENT const * lpColorAdjust);
    int GetArcDirection() const;
    int SetArcDirection(int nArcDirection);
    float GetMiterLimit() const;
    BOOL SetMiterLimit(float fMiterLimit);
    static CBrush * PASCAL GetHalftoneBrush();

    // Mapping
    int GetGraphicsMode() const;
    int SetGraphicsMode(int iMode);
    BOOL GetWorldTransform(XFORM & rXform) const;
    BOOL SetWorldTransform(XFORM const & rXform);
    BOOL ModifyWorldTransform(XFORM const & rXform, DWORD iMode);
    int GetMapMode() const;
    virtual int SetMapMode(int nMapMode);
    CPoint GetViewportOrg() const;
    virtual CPoint SetViewportOrg(int x, int y);
    CPoint SetViewportOrg(POINT point);
    virtual CPoint OffsetViewportOrg(int nWidth, int nHeight);
    CSize GetViewportExt() const;
    virtual CSize SetViewportExt(int cx, int cy);
    CSize SetViewportExt(SIZE size);
    virtual CSize ScaleViewportExt(int xNum, int xDenom, int yNum, int yDenom);
    CPoint GetWindowOrg() const;
    CPoint SetWindowOrg(int x, int y);
    CPoint SetWindowOrg(POINT point);
    CPoint OffsetWindowOrg(int nWidth, int nHeight);
    CSize GetWindowExt() const;
    virtual CSize SetWindowExt(int cx, int cy);
    CSize SetWindowExt(SIZE size);
    virtual CSize ScaleWindowExt(int xNum, int xDenom, int yNum, int yDenom);
    void DPtoLP(LPPOINT lpPoints, int nCount = 1) const;
    void DPtoLP(LPRECT lpRect) const;
    void DPtoLP(LPSIZE lpSize) const;
    void LPtoDP(LPPOINT lpPoints, int nCount = 1) const;
    void LPtoDP(LPRECT lpRect) const;
    void LPtoDP(LPSIZE lpSize) const;
    void DPtoHIMETRIC(LPSIZE lpSize) const;
    void LPtoHIMETRIC(LPSIZE lpSize) const;
    void HIMETRICtoDP(LPSIZE lpSize) const;
    void HIMETRICtoLP(LPSIZE lpSize) const;

    // Clipping and regions
    virtual int GetClipBox(LPRECT lpRect) const;
    virtual BOOL PtVisible(int x, int y) const;
    BOOL PtVisible(POINT point) const;
    virtual BOOL RectVisible(LPCRECT lpRect) const;
    int SelectClipRgn(CRgn * pRgn);
    int SelectClipRgn(CRgn * pRgn, int nMode);
    int ExcludeClipRect(int x1, int y1, int x2, int y2);
    int ExcludeClipRect(LPCRECT lpRect);
    int ExcludeUpdateRgn(CWnd * pWnd);
    int IntersectClipRect(int x1, int y1, int x2, int y2);
    int IntersectClipRect(LPCRECT lpRect);
    int OffsetClipRgn(int x, int y);
    int OffsetClipRgn(SIZE size);
    BOOL FillRgn(CRgn * pRgn, CBrush * pBrush);
    BOOL FrameRgn(CRgn * pRgn, CBrush * pBrush, int nWidth, int nHeight);
    BOOL InvertRgn(CRgn * pRgn);
    BOOL PaintRgn(CRgn * pRgn);

    // Lines and shapes
    CPoint GetCurrentPosition() const;
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point);
    BOOL LineTo(int x, int y);
    BOOL LineTo(POINT point);
    BOOL AngleArc(int x, int y, int nRadius, float fStartAngle, float fSweepAngle);
    BOOL Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL Arc(LPCRECT lpRect, POINT ptStart, POINT ptEnd);
    BOOL ArcTo(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL ArcTo(LPCRECT lpRect, POINT ptStart, POINT ptEnd);
    BOOL PolyDraw(POINT const * lpPoints, BYTE const * lpTypes, int nCount);
    BOOL Polyline(POINT const * lpPoints, int nCount);
    BOOL PolylineTo(POINT const * lpPoints, int nCount);
    BOOL PolyPolyline(POINT const * lpPoints, DWORD const * lpPolyPoints, int nCount);
    BOOL PolyBezier(POINT const * lpPoints, int nCount);
    BOOL PolyBezierTo(POINT const * lpPoints, int nCount);
    BOOL Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL Chord(LPCRECT lpRect, POINT ptStart, POINT ptEnd);
    BOOL Ellipse(int x1, int y1, int x2, int y2);
    BOOL Ellipse(LPCRECT lpRect);
    BOOL Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL Pie(LPCRECT lpRect, POINT ptStart, POINT ptEnd);
    BOOL Polygon(POINT const * lpPoints, int nCount);
    BOOL PolyPolygon(POINT const * lpPoints, INT const * lpPolyCounts, int nCount);
    BOOL Rectangle(int x1, int y1, int x2, int y2);
    BOOL Rectangle(LPCRECT lpRect);
    BOOL RoundRect(int x1, int y1, int x2, int y2, int x3, int y3);
    BOOL RoundRect(LPCRECT lpRect, POINT point);

    // Simple drawing
    void FillRect(LPCRECT lpRect, CBrush * pBrush);
    void FrameRect(LPCRECT lpRect, CBrush * pBrush);
    void InvertRect(LPCRECT lpRect);
    void FillSolidRect(LPCRECT lpRect, COLORREF clr);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF clr);
    void Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight);
    void Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight);
    void DrawDragRect(LPCRECT lpRect, SIZE size, LPCRECT lpRectLast, SIZE sizeLast, CBrush * pBrush = nullptr,
                      CBrush * pBrushLast = nullptr);
    void DrawFocusRect(LPCRECT lpRect);
    BOOL DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags);
    BOOL DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState);
    BOOL DrawIcon(int x, int y, HICON hIcon);
    BOOL DrawIcon(POINT point, HICON hIcon);
    BOOL DrawState(CPoint pt, CSize size, HBITMAP hBitmap, UINT nFlags, HBRUSH hBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, CBitmap * pBitmap, UINT nFlags, CBrush * pBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, HBRUSH hBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, CBrush * pBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText = TRUE, int nTextLen = 0,
                   HBRUSH hBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText = TRUE, int nTextLen = 0,
                   CBrush * pBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags, HBRUSH hBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags,
                   CBrush * pBrush = nullptr);
    BOOL ScrollDC(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn * pRgnUpdate, LPRECT lpRectUpdate);

    // Bitmaps
    BOOL PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop);
    BOOL BitBlt(int x, int y, int nWidth, int nHeight, CDC * pSrcDC, int xSrc, int ySrc, DWORD dwRop);
    BOOL StretchBlt(int x, int y, int nWidth, int nHeight, CDC * pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                    int nSrcHeight, DWORD dwRop);
    BOOL MaskBlt(int x, int y, int nWidth, int nHeight, CDC * pSrcDC, int xSrc, int ySrc, CBitmap & maskBitmap,
                 int xMask, int yMask, DWORD dwRop);
    BOOL PlgBlt(LPPOINT lpPoint, CDC * pSrcDC, int xSrc, int ySrc, int nWidth, int nHeight, CBitmap & maskBitmap,
                int xMask, int yMask);
    BOOL AlphaBlend(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC * pSrcDC, int xSrc, int ySrc,
                    int nSrcWidth, int nSrcHeight, BLENDFUNCTION blend);
    BOOL TransparentBlt(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC * pSrcDC, int xSrc, int ySrc,
                        int nSrcWidth, int nSrcHeight, UINT clrTransparent);
    BOOL GradientFill(TRIVERTEX * pVertices, ULONG nVertices, void * pMesh, ULONG nMeshElements, DWORD dwMode);
    COLORREF GetPixel(int x, int y) const;
    COLORREF GetPixel(POINT point) const;
    COLORREF SetPixel(int x, int y, COLORREF crColor);
    COLORREF SetPixel(POINT point, COLORREF crColor);
    BOOL SetPixelV(int x, int y, COLORREF crColor);
    BOOL SetPixelV(POINT point, COLORREF crColor);
    BOOL FloodFill(int x, int y, COLORREF crColor);
    BOOL ExtFloodFill(int x, int y, COLORREF crColor, UINT nFillType);

    // Text
    virtual BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount);
    BOOL TextOut(int x, int y, CString const & str);
    virtual BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                            LPINT lpDxWidths);
    BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, CString const & str, LPINT lpDxWidths);
    virtual CSize TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions,
                                LPINT lpnTabStopPositions, int nTabOrigin);
    CSize TabbedTextOut(int x, int y, CString const & str, int nTabPositions, LPINT lpnTabStopPositions,
                        int nTabOrigin);
    virtual int DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat);
    int DrawText(CString const & str, LPRECT lpRect, UINT nFormat);
    virtual int DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpDTParams);
    int DrawTextEx(CString const & str, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpDTParams);
    virtual BOOL GrayString(CBrush * pBrush, BOOL(CALLBACK * lpfnOutput)(HDC, LPARAM, int), LPARAM lpData, int nCount,
                            int x, int y, int nWidth, int nHeight);
    CSize GetTextExtent(LPCTSTR lpszString, int nCount) const;
    CSize GetTextExtent(CString const & str) const;
    CSize GetOutputTextExtent(LPCTSTR lpszString, int nCount) const;
    CSize GetOutputTextExtent(CString const & str) const;
    CSize GetTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions, LPINT lpnTabStopPositions) const;
    CSize GetTabbedTextExtent(CString const & str, int nTabPositions, LPINT lpnTabStopPositions) const;
    CSize GetOutputTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions, LPINT lpnTabStopPositions) const;
    CSize GetOutputTabbedTextExtent(CString const & str, int nTabPositions, LPINT lpnTabStopPositions) const;
    BOOL GetTextExtentExPointI(LPWORD pgiIn, int cgi, int nMaxExtent, LPINT lpnFit, LPINT alpDx, LPSIZE lpSize) const;
    BOOL GetTextExtentPointI(LPWORD pgiIn, int cgi, LPSIZE lpSize) const;
    UINT GetTextAlign() const;
    UINT SetTextAlign(UINT nFlags);
    int GetTextFace(int nCount, LPTSTR lpszFacename) const;
    int GetTextFace(CString & rString) const;
    BOOL GetTextMetrics(LPTEXTMETRIC lpMetrics) const;
    BOOL GetOutputTextMetrics(LPTEXTMETRIC lpMetrics) const;
    int SetTextJustification(int nBreakExtra, int nBreakCount);
    int GetTextCharacterExtra() const;
    int SetTextCharacterExtra(int nCharExtra);
    DWORD GetCharacterPlacement(LPCTSTR lpString, int nCount, int nMaxExtent, LPGCP_RESULTS lpResults,
                                DWORD dwFlags) const;
    DWORD GetCharacterPlacement(CString & str, int nMaxExtent, LPGCP_RESULTS lpResults, DWORD dwFlags) const;

    // Fonts
    BOOL GetCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const;
    BOOL GetCharWidth(UINT nFirstChar, UINT nLastChar, float * lpFloatBuffer) const;
    BOOL GetCharWidthI(UINT giFirst, UINT cgi, LPWORD pgi, LPINT lpBuffer) const;
    BOOL GetOutputCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const;
    BOOL GetCharABCWidths(UINT nFirstChar, UINT nLastChar, LPABC lpabc) const;
    BOOL GetCharABCWidths(UINT nFirstChar, UINT nLastChar, LPABCFLOAT lpABCF) const;
    BOOL GetCharABCWidthsI(UINT giFirst, UINT cgi, LPWORD pgi, LPABC lpabc) const;
    DWORD SetMapperFlags(DWORD dwFlag);
    CSize GetAspectRatioFilter() const;
    DWORD GetFontData(DWORD dwTable, DWORD dwOffset, LPVOID lpData, DWORD cbData) const;
    DWORD GetFontLanguageInfo() const;
    int GetKerningPairs(int nPairs, LPKERNINGPAIR lpkrnpair) const;
    UINT GetOutlineTextMetrics(UINT cbData, LPOUTLINETEXTMETRIC lpotm) const;
    DWORD GetGlyphOutline(UINT nChar, UINT nFormat, LPGLYPHMETRICS lpgm, DWORD cbBuffer, LPVOID lpBuffer,
                          MAT2 const * lpmat2) const;

    // Paths
    BOOL BeginPath();
    BOOL EndPath();
    BOOL AbortPath();
    BOOL CloseFigure();
    BOOL FillPath();
    BOOL StrokePath();
    BOOL StrokeAndFillPath();
    BOOL FlattenPath();
    BOOL WidenPath();
    BOOL SelectClipPath(int nMode);
    int GetPath(LPPOINT lpPoints, LPBYTE lpTypes, int nCount) const;

    // Printing, escapes and metafiles
    int StartDoc(LPDOCINFO lpDocInfo);
    int StartDoc(LPCTSTR lpszDocName);
    int StartPage();
    int EndPage();
    int EndDoc();
    int AbortDoc();
    int SetAbortProc(BOOL(CALLBACK * lpfn)(HDC, int));
    BOOL QueryAbort() const;
    virtual int Escape(int nEscape, int nCount, LPCSTR lpszInData, LPVOID lpOutData);
    int Escape(int nEscape, int nInputSize, LPCSTR lpszInputData, int nOutputSize, LPSTR lpszOutputData);
    int DrawEscape(int nEscape, int nInputSize, LPCSTR lpszInputData);
    BOOL PlayMetaFile(HMETAFILE hMF);
    BOOL PlayMetaFile(HENHMETAFILE hEnhMetaFile, LPCRECT lpBounds);
    BOOL AddMetaFileComment(UINT nDataSize, BYTE const * pCommentData);

private:
    friend struct framework::PrintAccess;

    BOOL(CALLBACK * m_abortProc)(HDC, int);
    bool m_printing; // for a job or its preview, whatever the device is
};

class FRAMEWORK_API CClientDC : public CDC
{
    DECLARE_DYNAMIC(CClientDC)

public:
    explicit CClientDC(CWnd * pWnd);
    ~CClientDC() override;

protected:
    HWND m_hWnd;
};

class FRAMEWORK_API CWindowDC : public CDC
{
    DECLARE_DYNAMIC(CWindowDC)

public:
    explicit CWindowDC(CWnd * pWnd);
    ~CWindowDC() override;

protected:
    HWND m_hWnd;
};

class FRAMEWORK_API CPaintDC : public CDC
{
    DECLARE_DYNAMIC(CPaintDC)

public:
    PAINTSTRUCT m_ps;

    explicit CPaintDC(CWnd * pWnd);
    ~CPaintDC() override;

protected:
    HWND m_hWnd;
};

class FRAMEWORK_API CMetaFileDC : public CDC
{
    DECLARE_DYNAMIC(CMetaFileDC)

public:
    CMetaFileDC();
    ~CMetaFileDC() override;

    BOOL Create(LPCTSTR lpszFilename = nullptr);
    BOOL CreateEnhanced(CDC * pDCRef, LPCTSTR lpszFileName, LPCRECT lpBounds, LPCTSTR lpszDescription);
    HMETAFILE Close();
    HENHMETAFILE CloseEnhanced();
};
