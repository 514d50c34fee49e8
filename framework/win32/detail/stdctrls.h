#pragma once
// The controls that the system's own window classes offer.

#include <commctrl.h>

#include "ControlMessage.h"
#include "wnd.h"

class CImageList;

class FRAMEWORK_API CStatic : public CWnd
{
    DECLARE_DYNAMIC(CStatic)

public:
    CStatic();
    ~CStatic() override;
    virtual BOOL Create(LPCTSTR lpszText, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID = 0xffff);

    HBITMAP GetBitmap() const { return framework::Send<HBITMAP>(m_hWnd, STM_GETIMAGE, IMAGE_BITMAP); }
    HBITMAP SetBitmap(HBITMAP hBitmap) { return framework::Send<HBITMAP>(m_hWnd, STM_SETIMAGE, IMAGE_BITMAP, hBitmap); }
    HICON GetIcon() const { return framework::Send<HICON>(m_hWnd, STM_GETICON); }
    HICON SetIcon(HICON hIcon) { return framework::Send<HICON>(m_hWnd, STM_SETICON, hIcon); }
    HCURSOR GetCursor() { return framework::Send<HCURSOR>(m_hWnd, STM_GETIMAGE, IMAGE_CURSOR); }
    HCURSOR SetCursor(HCURSOR hCursor) { return framework::Send<HCURSOR>(m_hWnd, STM_SETIMAGE, IMAGE_CURSOR, hCursor); }
    HENHMETAFILE GetEnhMetaFile() const
    {
        return framework::Send<HENHMETAFILE>(m_hWnd, STM_GETIMAGE, IMAGE_ENHMETAFILE);
    }
    HENHMETAFILE SetEnhMetaFile(HENHMETAFILE hMetaFile)
    {
        return framework::Send<HENHMETAFILE>(m_hWnd, STM_SETIMAGE, IMAGE_ENHMETAFILE, hMetaFile);
    }

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * pResult) override;
};

class FRAMEWORK_API CButton : public CWnd
{
    DECLARE_DYNAMIC(CButton)

public:
    CButton();
    ~CButton() override;
    virtual BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);

    UINT GetState() const { return framework::Send<UINT>(m_hWnd, BM_GETSTATE); }
    void SetState(BOOL bHighlight) { framework::Send(m_hWnd, BM_SETSTATE, bHighlight); }
    int GetCheck() const { return framework::Send<int>(m_hWnd, BM_GETCHECK); }
    void SetCheck(int nCheck) { framework::Send(m_hWnd, BM_SETCHECK, nCheck); }
    UINT GetButtonStyle() const;
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE) { framework::Send(m_hWnd, BM_SETSTYLE, nStyle, bRedraw); }
    HICON GetIcon() const { return framework::Send<HICON>(m_hWnd, BM_GETIMAGE, IMAGE_ICON); }
    HICON SetIcon(HICON hIcon) { return framework::Send<HICON>(m_hWnd, BM_SETIMAGE, IMAGE_ICON, hIcon); }
    HBITMAP GetBitmap() const { return framework::Send<HBITMAP>(m_hWnd, BM_GETIMAGE, IMAGE_BITMAP); }
    HBITMAP SetBitmap(HBITMAP hBitmap) { return framework::Send<HBITMAP>(m_hWnd, BM_SETIMAGE, IMAGE_BITMAP, hBitmap); }
    HCURSOR GetCursor() { return framework::Send<HCURSOR>(m_hWnd, BM_GETIMAGE, IMAGE_CURSOR); }
    HCURSOR SetCursor(HCURSOR hCursor) { return framework::Send<HCURSOR>(m_hWnd, BM_SETIMAGE, IMAGE_CURSOR, hCursor); }

    BOOL GetIdealSize(SIZE * psize) { return framework::Send<BOOL>(m_hWnd, BCM_GETIDEALSIZE, 0, psize); }
    BOOL GetImageList(PBUTTON_IMAGELIST pbuttonImagelist)
    {
        return framework::Send<BOOL>(m_hWnd, BCM_GETIMAGELIST, 0, pbuttonImagelist);
    }
    BOOL SetImageList(PBUTTON_IMAGELIST pbuttonImagelist)
    {
        return framework::Send<BOOL>(m_hWnd, BCM_SETIMAGELIST, 0, pbuttonImagelist);
    }
    BOOL GetTextMargin(RECT * pmargin) { return framework::Send<BOOL>(m_hWnd, BCM_GETTEXTMARGIN, 0, pmargin); }
    BOOL SetTextMargin(RECT * pmargin) { return framework::Send<BOOL>(m_hWnd, BCM_SETTEXTMARGIN, 0, pmargin); }
    CString GetNote() const;
    BOOL GetNote(LPTSTR lpszNote, UINT * pcchNote) const;
    UINT GetNoteLength() const { return framework::Send<UINT>(m_hWnd, BCM_GETNOTELENGTH); }
    BOOL SetNote(LPCTSTR lpszNote) { return framework::Send<BOOL>(m_hWnd, BCM_SETNOTE, 0, lpszNote); }
    BOOL SetDropDownState(BOOL fDropDown) { return framework::Send<BOOL>(m_hWnd, BCM_SETDROPDOWNSTATE, fDropDown); }
    BOOL SetElevationRequired(BOOL fElevationRequired)
    {
        return framework::Send<BOOL>(m_hWnd, BCM_SETSHIELD, 0, fElevationRequired);
    }
    BOOL GetSplitInfo(PBUTTON_SPLITINFO pInfo) const
    {
        return framework::Send<BOOL>(m_hWnd, BCM_GETSPLITINFO, 0, pInfo);
    }
    BOOL SetSplitInfo(PBUTTON_SPLITINFO pInfo) { return framework::Send<BOOL>(m_hWnd, BCM_SETSPLITINFO, 0, pInfo); }
    TCHAR GetSplitGlyph() const;
    BOOL SetSplitGlyph(TCHAR chGlyph);
    CImageList * GetSplitImageList() const;
    BOOL SetSplitImageList(CImageList * pSplitImageList);
    BOOL GetSplitSize(LPSIZE pSize) const;
    BOOL SetSplitSize(LPSIZE pSize);
    UINT GetSplitStyle() const;
    BOOL SetSplitStyle(UINT uSplitStyle);

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * pResult) override;
};

class FRAMEWORK_API CEdit : public CWnd
{
    DECLARE_DYNAMIC(CEdit)

public:
    CEdit();
    ~CEdit() override;
    virtual BOOL Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);

    BOOL CanUndo() const { return framework::Send<BOOL>(m_hWnd, EM_CANUNDO); }
    int GetLineCount() const { return framework::Send<int>(m_hWnd, EM_GETLINECOUNT); }
    BOOL GetModify() const { return framework::Send<BOOL>(m_hWnd, EM_GETMODIFY); }
    void SetModify(BOOL bModified = TRUE) { framework::Send(m_hWnd, EM_SETMODIFY, bModified); }
    void GetRect(LPRECT lpRect) const { framework::Send(m_hWnd, EM_GETRECT, 0, lpRect); }
    void SetRect(LPCRECT lpRect) { framework::Send(m_hWnd, EM_SETRECT, 0, lpRect); }
    void SetRectNP(LPCRECT lpRect) { framework::Send(m_hWnd, EM_SETRECTNP, 0, lpRect); }
    DWORD GetSel() const { return framework::Send<DWORD>(m_hWnd, EM_GETSEL); }
    void GetSel(int & nStartChar, int & nEndChar) const;
    void SetSel(DWORD dwSelection, BOOL bNoScroll = FALSE);
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);
    HLOCAL GetHandle() const { return framework::Send<HLOCAL>(m_hWnd, EM_GETHANDLE); }
    void SetHandle(HLOCAL hBuffer) { framework::Send(m_hWnd, EM_SETHANDLE, hBuffer); }
    DWORD GetMargins() const { return framework::Send<DWORD>(m_hWnd, EM_GETMARGINS); }
    void SetMargins(UINT nLeft, UINT nRight)
    {
        framework::Send(m_hWnd, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELONG(nLeft, nRight));
    }
    void SetLimitText(UINT nMax) { framework::Send(m_hWnd, EM_SETLIMITTEXT, nMax); }
    UINT GetLimitText() const { return framework::Send<UINT>(m_hWnd, EM_GETLIMITTEXT); }
    void LimitText(int nChars = 0) { framework::Send(m_hWnd, EM_LIMITTEXT, nChars); }
    CPoint PosFromChar(UINT nChar) const;
    int CharFromPos(CPoint pt) const { return framework::Send<int>(m_hWnd, EM_CHARFROMPOS, 0, MAKELPARAM(pt.x, pt.y)); }
    /// The text is not terminated: the result is its length.
    int GetLine(int nIndex, LPTSTR lpszBuffer) const
    {
        return framework::Send<int>(m_hWnd, EM_GETLINE, nIndex, lpszBuffer);
    }
    int GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const;
    TCHAR GetPasswordChar() const { return framework::Send<TCHAR>(m_hWnd, EM_GETPASSWORDCHAR); }
    void SetPasswordChar(TCHAR ch) { framework::Send(m_hWnd, EM_SETPASSWORDCHAR, ch); }
    int GetFirstVisibleLine() const { return framework::Send<int>(m_hWnd, EM_GETFIRSTVISIBLELINE); }
    BOOL SetReadOnly(BOOL bReadOnly = TRUE) { return framework::Send<BOOL>(m_hWnd, EM_SETREADONLY, bReadOnly); }

    void EmptyUndoBuffer() { framework::Send(m_hWnd, EM_EMPTYUNDOBUFFER); }
    BOOL FmtLines(BOOL bAddEOL) { return framework::Send<BOOL>(m_hWnd, EM_FMTLINES, bAddEOL); }
    int LineFromChar(int nIndex = -1) const { return framework::Send<int>(m_hWnd, EM_LINEFROMCHAR, nIndex); }
    int LineIndex(int nLine = -1) const { return framework::Send<int>(m_hWnd, EM_LINEINDEX, nLine); }
    int LineLength(int nLine = -1) const { return framework::Send<int>(m_hWnd, EM_LINELENGTH, nLine); }
    void LineScroll(int nLines, int nChars = 0) { framework::Send(m_hWnd, EM_LINESCROLL, nChars, nLines); }
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE)
    {
        framework::Send(m_hWnd, EM_REPLACESEL, bCanUndo, lpszNewText);
    }
    void SetTabStops() { framework::Send(m_hWnd, EM_SETTABSTOPS); }
    BOOL SetTabStops(int const & cxEachStop) { return framework::Send<BOOL>(m_hWnd, EM_SETTABSTOPS, 1, &cxEachStop); }
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops)
    {
        return framework::Send<BOOL>(m_hWnd, EM_SETTABSTOPS, nTabStops, rgTabStops);
    }
    BOOL Undo() { return framework::Send<BOOL>(m_hWnd, EM_UNDO); }
    void Clear() { framework::Send(m_hWnd, WM_CLEAR); }
    void Copy() { framework::Send(m_hWnd, WM_COPY); }
    void Cut() { framework::Send(m_hWnd, WM_CUT); }
    void Paste() { framework::Send(m_hWnd, WM_PASTE); }

    CString GetCueBanner() const;
    BOOL GetCueBanner(LPWSTR lpszText, int cchText) const
    {
        return framework::Send<BOOL>(m_hWnd, EM_GETCUEBANNER, lpszText, cchText);
    }
    BOOL SetCueBanner(LPCWSTR lpszText, BOOL fDrawWhenFocused = FALSE)
    {
        return framework::Send<BOOL>(m_hWnd, EM_SETCUEBANNER, fDrawWhenFocused, lpszText);
    }
    BOOL GetHighlight(int * pichStart, int * pichEnd) const;
    void SetHighlight(int ichStart, int ichEnd) { framework::Send(m_hWnd, EM_SETHILITE, ichStart, ichEnd); }
    BOOL ShowBalloonTip(PEDITBALLOONTIP pEditBalloonTip)
    {
        return framework::Send<BOOL>(m_hWnd, EM_SHOWBALLOONTIP, 0, pEditBalloonTip);
    }
    BOOL ShowBalloonTip(LPCWSTR lpszTitle, LPCWSTR lpszText, INT ttiIcon = TTI_NONE);
    BOOL HideBalloonTip() { return framework::Send<BOOL>(m_hWnd, EM_HIDEBALLOONTIP); }
};

class FRAMEWORK_API CScrollBar : public CWnd
{
    DECLARE_DYNAMIC(CScrollBar)

public:
    CScrollBar();
    ~CScrollBar() override;
    virtual BOOL Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);

    int GetScrollPos() const { return ::GetScrollPos(m_hWnd, SB_CTL); }
    int SetScrollPos(int nPos, BOOL bRedraw = TRUE) { return ::SetScrollPos(m_hWnd, SB_CTL, nPos, bRedraw); }
    void GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const { ::GetScrollRange(m_hWnd, SB_CTL, lpMinPos, lpMaxPos); }
    void SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw = TRUE)
    {
        ::SetScrollRange(m_hWnd, SB_CTL, nMinPos, nMaxPos, bRedraw);
    }
    void ShowScrollBar(BOOL bShow = TRUE) { ::ShowScrollBar(m_hWnd, SB_CTL, bShow); }
    BOOL EnableScrollBar(UINT nArrowFlags = ESB_ENABLE_BOTH) { return ::EnableScrollBar(m_hWnd, SB_CTL, nArrowFlags); }
    BOOL SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    BOOL GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    int GetScrollLimit();
    BOOL GetScrollBarInfo(PSCROLLBARINFO pScrollInfo) const;
};

#include "listctrls.h"
