#pragma once
// Progress bar, slider and spin button: controls that show a position within a range.

#include "ControlHandles.h"
#include "tooltipctrl.h"

class FRAMEWORK_API CProgressCtrl : public CWnd
{
    DECLARE_DYNAMIC(CProgressCtrl)

public:
    CProgressCtrl();
    ~CProgressCtrl() override;
    virtual BOOL Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);

    void SetRange(short nLower, short nUpper) { framework::Send(m_hWnd, PBM_SETRANGE, 0, MAKELPARAM(nLower, nUpper)); }
    void SetRange32(int nLower, int nUpper) { framework::Send(m_hWnd, PBM_SETRANGE32, nLower, nUpper); }
    void GetRange(int & nLower, int & nUpper);
    int GetPos() { return framework::Send<int>(m_hWnd, PBM_GETPOS); }
    int SetPos(int nPos) { return framework::Send<int>(m_hWnd, PBM_SETPOS, nPos); }
    int OffsetPos(int nPos) { return framework::Send<int>(m_hWnd, PBM_DELTAPOS, nPos); }
    int SetStep(int nStep) { return framework::Send<int>(m_hWnd, PBM_SETSTEP, nStep); }
    int GetStep() const { return framework::Send<int>(m_hWnd, PBM_GETSTEP); }
    int StepIt() { return framework::Send<int>(m_hWnd, PBM_STEPIT); }
    COLORREF GetBkColor() const { return framework::Send<COLORREF>(m_hWnd, PBM_GETBKCOLOR); }
    COLORREF SetBkColor(COLORREF clrNew) { return framework::Send<COLORREF>(m_hWnd, PBM_SETBKCOLOR, 0, clrNew); }
    COLORREF GetBarColor() const { return framework::Send<COLORREF>(m_hWnd, PBM_GETBARCOLOR); }
    COLORREF SetBarColor(COLORREF clrBar) { return framework::Send<COLORREF>(m_hWnd, PBM_SETBARCOLOR, 0, clrBar); }
    BOOL SetMarquee(BOOL fMarqueeMode, int nInterval)
    {
        return framework::Send<BOOL>(m_hWnd, PBM_SETMARQUEE, fMarqueeMode, nInterval);
    }
    int GetState() const { return framework::Send<int>(m_hWnd, PBM_GETSTATE); }
    int SetState(int iState) { return framework::Send<int>(m_hWnd, PBM_SETSTATE, iState); }
};

class FRAMEWORK_API CSliderCtrl : public CWnd
{
    DECLARE_DYNAMIC(CSliderCtrl)

public:
    CSliderCtrl();
    ~CSliderCtrl() override;
    virtual BOOL Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);

    int GetLineSize() const { return framework::Send<int>(m_hWnd, TBM_GETLINESIZE); }
    int SetLineSize(int nSize) { return framework::Send<int>(m_hWnd, TBM_SETLINESIZE, 0, nSize); }
    int GetPageSize() const { return framework::Send<int>(m_hWnd, TBM_GETPAGESIZE); }
    int SetPageSize(int nSize) { return framework::Send<int>(m_hWnd, TBM_SETPAGESIZE, 0, nSize); }
    int GetRangeMax() const { return framework::Send<int>(m_hWnd, TBM_GETRANGEMAX); }
    int GetRangeMin() const { return framework::Send<int>(m_hWnd, TBM_GETRANGEMIN); }
    void GetRange(int & nMin, int & nMax) const;
    void SetRangeMin(int nMin, BOOL bRedraw = FALSE) { framework::Send(m_hWnd, TBM_SETRANGEMIN, bRedraw, nMin); }
    void SetRangeMax(int nMax, BOOL bRedraw = FALSE) { framework::Send(m_hWnd, TBM_SETRANGEMAX, bRedraw, nMax); }
    void SetRange(int nMin, int nMax, BOOL bRedraw = FALSE);
    void GetSelection(int & nMin, int & nMax) const;
    void SetSelection(int nMin, int nMax);
    void GetChannelRect(LPRECT lprc) const { framework::Send(m_hWnd, TBM_GETCHANNELRECT, 0, lprc); }
    void GetThumbRect(LPRECT lprc) const { framework::Send(m_hWnd, TBM_GETTHUMBRECT, 0, lprc); }
    int GetThumbLength() const { return framework::Send<int>(m_hWnd, TBM_GETTHUMBLENGTH); }
    void SetThumbLength(int nLength) { framework::Send(m_hWnd, TBM_SETTHUMBLENGTH, nLength); }
    int GetPos() const { return framework::Send<int>(m_hWnd, TBM_GETPOS); }
    void SetPos(int nPos) { framework::Send(m_hWnd, TBM_SETPOS, TRUE, nPos); }
    UINT GetNumTics() const { return framework::Send<UINT>(m_hWnd, TBM_GETNUMTICS); }
    DWORD * GetTicArray() const { return framework::Send<DWORD *>(m_hWnd, TBM_GETPTICS); }
    int GetTic(int nTic) const { return framework::Send<int>(m_hWnd, TBM_GETTIC, nTic); }
    int GetTicPos(int nTic) const { return framework::Send<int>(m_hWnd, TBM_GETTICPOS, nTic); }
    BOOL SetTic(int nTic) { return framework::Send<BOOL>(m_hWnd, TBM_SETTIC, 0, nTic); }
    void SetTicFreq(int nFreq) { framework::Send(m_hWnd, TBM_SETTICFREQ, nFreq); }
    CWnd * GetBuddy(BOOL fLocation = TRUE) const
    {
        return framework::SendForWindow<CWnd>(m_hWnd, TBM_GETBUDDY, fLocation);
    }
    CWnd * SetBuddy(CWnd * pWndBuddy, BOOL fLocation = TRUE)
    {
        return framework::SendForWindow<CWnd>(m_hWnd, TBM_SETBUDDY, fLocation, framework::HandleOf(pWndBuddy));
    }
    CToolTipCtrl * GetToolTips() const { return framework::SendForWindow<CToolTipCtrl>(m_hWnd, TBM_GETTOOLTIPS); }
    void SetToolTips(CToolTipCtrl * pWndTip) { framework::Send(m_hWnd, TBM_SETTOOLTIPS, framework::HandleOf(pWndTip)); }
    int SetTipSide(int nLocation) { return framework::Send<int>(m_hWnd, TBM_SETTIPSIDE, nLocation); }

    void ClearSel(BOOL bRedraw = FALSE) { framework::Send(m_hWnd, TBM_CLEARSEL, bRedraw); }
    void ClearTics(BOOL bRedraw = FALSE) { framework::Send(m_hWnd, TBM_CLEARTICS, bRedraw); }
};

class FRAMEWORK_API CSpinButtonCtrl : public CWnd
{
    DECLARE_DYNAMIC(CSpinButtonCtrl)

public:
    CSpinButtonCtrl();
    ~CSpinButtonCtrl() override;
    virtual BOOL Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);

    BOOL SetAccel(int nAccel, UDACCEL * pAccel) { return framework::Send<BOOL>(m_hWnd, UDM_SETACCEL, nAccel, pAccel); }
    UINT GetAccel(int nAccel, UDACCEL * pAccel) const
    {
        return framework::Send<UINT>(m_hWnd, UDM_GETACCEL, nAccel, pAccel);
    }
    int SetBase(int nBase) { return framework::Send<int>(m_hWnd, UDM_SETBASE, nBase); }
    UINT GetBase() const { return framework::Send<UINT>(m_hWnd, UDM_GETBASE); }
    CWnd * SetBuddy(CWnd * pWndBuddy)
    {
        return framework::SendForWindow<CWnd>(m_hWnd, UDM_SETBUDDY, framework::HandleOf(pWndBuddy));
    }
    CWnd * GetBuddy() const { return framework::SendForWindow<CWnd>(m_hWnd, UDM_GETBUDDY); }
    int SetPos(int nPos);
    int GetPos() const { return framework::Send<int>(m_hWnd, UDM_GETPOS); }
    int SetPos32(int nPos) { return framework::Send<int>(m_hWnd, UDM_SETPOS32, 0, nPos); }
    int GetPos32(LPBOOL lpbError = nullptr) const { return framework::Send<int>(m_hWnd, UDM_GETPOS32, 0, lpbError); }
    void SetRange(short nLower, short nUpper) { framework::Send(m_hWnd, UDM_SETRANGE, 0, MAKELPARAM(nUpper, nLower)); }
    void SetRange32(int nLower, int nUpper) { framework::Send(m_hWnd, UDM_SETRANGE32, nLower, nUpper); }
    /// The low word is the upper limit, the high word the lower one.
    DWORD GetRange() const { return framework::Send<DWORD>(m_hWnd, UDM_GETRANGE); }
    void GetRange(int & lower, int & upper) const;
    void GetRange32(int & lower, int & upper) const { framework::Send(m_hWnd, UDM_GETRANGE32, &lower, &upper); }
};
