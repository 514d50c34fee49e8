#pragma once
// Controls for dates and times.

#define __AFXDTCTL_H__

#include <afxcmn.h>
#include <atlcomtime.h>

#include "detail/ControlHandles.h"

/// Shows one month or more. The control works with the days of SYSTEMTIME; the other kinds of time are converted.
class FRAMEWORK_API CMonthCalCtrl : public CWnd
{
    DECLARE_DYNAMIC(CMonthCalCtrl)

public:
    CMonthCalCtrl();
    ~CMonthCalCtrl() override;
    virtual BOOL Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);
    /// At the point, with the size that the control needs.
    virtual BOOL Create(DWORD dwStyle, POINT const & pt, CWnd * pParentWnd, UINT nID);

    COLORREF GetColor(int nRegion) const { return framework::Send<COLORREF>(m_hWnd, MCM_GETCOLOR, nRegion); }
    COLORREF SetColor(int nRegion, COLORREF ref)
    {
        return framework::Send<COLORREF>(m_hWnd, MCM_SETCOLOR, nRegion, ref);
    }
    /// bLocal: whether the day is not that of the user's locale.
    int GetFirstDayOfWeek(BOOL * pbLocal = nullptr) const;
    BOOL SetFirstDayOfWeek(int iDay, int * lpnOld = nullptr);
    int GetMaxSelCount() const { return framework::Send<int>(m_hWnd, MCM_GETMAXSELCOUNT); }
    BOOL SetMaxSelCount(int nMax) { return framework::Send<BOOL>(m_hWnd, MCM_SETMAXSELCOUNT, nMax); }
    int GetMonthDelta() const { return framework::Send<int>(m_hWnd, MCM_GETMONTHDELTA); }
    int SetMonthDelta(int iDelta) { return framework::Send<int>(m_hWnd, MCM_SETMONTHDELTA, iDelta); }
    BOOL SetDayState(int nMonths, LPMONTHDAYSTATE pStates)
    {
        return framework::Send<BOOL>(m_hWnd, MCM_SETDAYSTATE, nMonths, pStates);
    }
    DWORD HitTest(PMCHITTESTINFO pMCHitTest) { return framework::Send<DWORD>(m_hWnd, MCM_HITTEST, 0, pMCHitTest); }
    BOOL GetMinReqRect(RECT * pRect) const { return framework::Send<BOOL>(m_hWnd, MCM_GETMINREQRECT, 0, pRect); }
    DWORD GetMaxTodayWidth() const { return framework::Send<DWORD>(m_hWnd, MCM_GETMAXTODAYWIDTH); }
    BOOL SizeMinReq(BOOL bRepaint = TRUE);
    LPRECT SizeRectToMin(LPRECT lpRect);

    // With MCS_MULTISELECT these fail.
    BOOL GetCurSel(COleDateTime & refDateTime) const;
    BOOL GetCurSel(CTime & refDateTime) const;
    BOOL GetCurSel(LPSYSTEMTIME pDateTime) const;
    BOOL SetCurSel(COleDateTime const & refDateTime);
    BOOL SetCurSel(CTime const & refDateTime);
    BOOL SetCurSel(LPSYSTEMTIME const pDateTime);

    // Without MCS_MULTISELECT these fail.
    BOOL GetSelRange(COleDateTime & refMinRange, COleDateTime & refMaxRange) const;
    BOOL GetSelRange(CTime & refMinRange, CTime & refMaxRange) const;
    BOOL GetSelRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const;
    BOOL SetSelRange(COleDateTime const & pMinRange, COleDateTime const & pMaxRange);
    BOOL SetSelRange(CTime const & pMinRange, CTime const & pMaxRange);
    BOOL SetSelRange(LPSYSTEMTIME const pMinRange, LPSYSTEMTIME const pMaxRange);

    /// The bits GDTR_MIN and GDTR_MAX say which limits there are.
    DWORD GetRange(COleDateTime * pMinRange, COleDateTime * pMaxRange) const;
    DWORD GetRange(CTime * pMinRange, CTime * pMaxRange) const;
    DWORD GetRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const;
    /// Null: no limit.
    BOOL SetRange(COleDateTime const * pMinRange, COleDateTime const * pMaxRange);
    BOOL SetRange(CTime const * pMinRange, CTime const * pMaxRange);
    BOOL SetRange(LPSYSTEMTIME const pMinRange, LPSYSTEMTIME const pMaxRange);

    /// The number of months shown. dwFlags: GMR_VISIBLE or GMR_DAYSTATE.
    int GetMonthRange(COleDateTime & refMinRange, COleDateTime & refMaxRange, DWORD dwFlags) const;
    int GetMonthRange(CTime & refMinRange, CTime & refMaxRange, DWORD dwFlags) const;
    int GetMonthRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange, DWORD dwFlags) const;

    BOOL GetToday(COleDateTime & refDateTime) const;
    BOOL GetToday(CTime & refDateTime) const;
    BOOL GetToday(LPSYSTEMTIME pDateTime) const;
    void SetToday(COleDateTime const & refDateTime);
    /// Null: the system's day.
    void SetToday(CTime const * pDateTime);
    void SetToday(LPSYSTEMTIME const pDateTime);

    // With common controls of version 6.
    CALID GetCalID() const { return framework::Send<CALID>(m_hWnd, MCM_GETCALID); }
    BOOL SetCalID(CALID calid);
    int GetCalendarBorder() const;
    void SetCalendarBorder(int cxyBorder);
    void SetCalendarBorderDefault();
    int GetCalendarCount() const { return framework::Send<int>(m_hWnd, MCM_GETCALENDARCOUNT); }
    BOOL GetCalendarGridInfo(PMCGRIDINFO pmcGridInfo) const
    {
        return framework::Send<BOOL>(m_hWnd, MCM_GETCALENDARGRIDINFO, 0, pmcGridInfo);
    }
    DWORD GetCurrentView() const { return framework::Send<DWORD>(m_hWnd, MCM_GETCURRENTVIEW); }
    BOOL SetCurrentView(DWORD dwNewView) { return framework::Send<BOOL>(m_hWnd, MCM_SETCURRENTVIEW, 0, dwNewView); }
    BOOL IsMonthView() const { return GetCurrentView() == MCMV_MONTH; }
    BOOL IsYearView() const { return GetCurrentView() == MCMV_YEAR; }
    BOOL IsDecadeView() const { return GetCurrentView() == MCMV_DECADE; }
    BOOL IsCenturyView() const { return GetCurrentView() == MCMV_CENTURY; }
    BOOL SetMonthView() { return SetCurrentView(MCMV_MONTH); }
    BOOL SetYearView() { return SetCurrentView(MCMV_YEAR); }
    BOOL SetDecadeView() { return SetCurrentView(MCMV_DECADE); }
    BOOL SetCenturyView() { return SetCurrentView(MCMV_CENTURY); }
};

/// A field for a date or a time, or for none with DTS_SHOWNONE.
class FRAMEWORK_API CDateTimeCtrl : public CWnd
{
    DECLARE_DYNAMIC(CDateTimeCtrl)

public:
    CDateTimeCtrl();
    ~CDateTimeCtrl() override;
    virtual BOOL Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);

    BOOL SetFormat(LPCTSTR pstrFormat) { return framework::Send<BOOL>(m_hWnd, DTM_SETFORMAT, 0, pstrFormat); }
    COLORREF GetMonthCalColor(int iColor) const { return framework::Send<COLORREF>(m_hWnd, DTM_GETMCCOLOR, iColor); }
    COLORREF SetMonthCalColor(int iColor, COLORREF ref)
    {
        return framework::Send<COLORREF>(m_hWnd, DTM_SETMCCOLOR, iColor, ref);
    }
    CFont * GetMonthCalFont() const { return CFont::FromHandle(framework::Send<HFONT>(m_hWnd, DTM_GETMCFONT)); }
    void SetMonthCalFont(HFONT hFont, BOOL bRedraw = TRUE)
    {
        framework::Send(m_hWnd, DTM_SETMCFONT, hFont, static_cast<LPARAM>(bRedraw));
    }
    /// Some systems have one only while it is open; else null.
    CMonthCalCtrl * GetMonthCalCtrl() const { return framework::SendForWindow<CMonthCalCtrl>(m_hWnd, DTM_GETMONTHCAL); }

    DWORD GetRange(COleDateTime * pMinRange, COleDateTime * pMaxRange) const;
    DWORD GetRange(CTime * pMinRange, CTime * pMaxRange) const;
    BOOL SetRange(COleDateTime const * pMinRange, COleDateTime const * pMaxRange);
    BOOL SetRange(CTime const * pMinRange, CTime const * pMaxRange);

    /// FALSE on a failure. The field without a date has the status null.
    BOOL GetTime(COleDateTime & timeDest) const;
    /// GDT_VALID, GDT_NONE or GDT_ERROR.
    DWORD GetTime(CTime & timeDest) const;
    DWORD GetTime(LPSYSTEMTIME pTimeDest) const;
    BOOL SetTime(COleDateTime const & timeNew);
    /// Null: no date.
    BOOL SetTime(CTime const * pTimeNew);
    BOOL SetTime(LPSYSTEMTIME pTimeNew = nullptr);

    // With common controls of version 6.
    void CloseMonthCal() const { framework::Send(m_hWnd, DTM_CLOSEMONTHCAL); }
    DWORD GetMonthCalStyle() const { return framework::Send<DWORD>(m_hWnd, DTM_GETMCSTYLE); }
    DWORD SetMonthCalStyle(DWORD dwStyle) { return framework::Send<DWORD>(m_hWnd, DTM_SETMCSTYLE, 0, dwStyle); }
    BOOL GetDateTimePickerInfo(LPDATETIMEPICKERINFO pDateTimePickerInfo) const;
    BOOL GetIdealSize(LPSIZE psize) const { return framework::Send<BOOL>(m_hWnd, DTM_GETIDEALSIZE, 0, psize); }
};

FRAMEWORK_API void AFXAPI DDX_DateTimeCtrl(CDataExchange * pDX, int nIDC, CTime & value);
FRAMEWORK_API void AFXAPI DDX_DateTimeCtrl(CDataExchange * pDX, int nIDC, COleDateTime & value);
FRAMEWORK_API void AFXAPI DDX_DateTimeCtrl(CDataExchange * pDX, int nIDC, CString & value);
FRAMEWORK_API void AFXAPI DDX_MonthCalCtrl(CDataExchange * pDX, int nIDC, CTime & value);
FRAMEWORK_API void AFXAPI DDX_MonthCalCtrl(CDataExchange * pDX, int nIDC, COleDateTime & value);

// Behind the exchange of the control: the limits that its user can't leave. Null: none.
FRAMEWORK_API void AFXAPI DDV_MinMaxDateTime(CDataExchange * pDX, CTime & refValue, CTime const * refMinRange,
                                             CTime const * refMaxRange);
FRAMEWORK_API void AFXAPI DDV_MinMaxDateTime(CDataExchange * pDX, COleDateTime & refValue,
                                             COleDateTime const * refMinRange, COleDateTime const * refMaxRange);
FRAMEWORK_API void AFXAPI DDV_MinMaxMonth(CDataExchange * pDX, CTime & refValue, CTime const * refMinRange,
                                          CTime const * refMaxRange);
FRAMEWORK_API void AFXAPI DDV_MinMaxMonth(CDataExchange * pDX, COleDateTime & refValue,
                                          COleDateTime const * refMinRange, COleDateTime const * refMaxRange);
