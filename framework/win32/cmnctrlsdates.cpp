// Controls for dates and times.

#include <afxdtctl.h>

#include "detail/ControlSupport.h"
#include "detail/DataExchange.h"

IMPLEMENT_DYNAMIC(CMonthCalCtrl, CWnd)
IMPLEMENT_DYNAMIC(CDateTimeCtrl, CWnd)

namespace
{
/// Whether the time can be shown by the controls.
bool ToSystem(COleDateTime const & time, SYSTEMTIME & parts)
{
    return time.GetAsSystemTime(parts);
}

bool ToSystem(CTime const & time, SYSTEMTIME & parts)
{
    return time.GetAsSystemTime(parts);
}

void FromSystem(SYSTEMTIME const & parts, COleDateTime & time)
{
    time = parts;
}

// A day that CTime has no number for is none.
void FromSystem(SYSTEMTIME const & parts, CTime & time)
{
    COleDateTime const date(parts);
    bool const known = date.GetStatus() == COleDateTime::valid && date.GetYear() >= 1970 && date.GetYear() <= 3000;
    time = known ? CTime(date.GetYear(), date.GetMonth(), date.GetDay(), date.GetHour(), date.GetMinute(),
                         date.GetSecond())
                 : CTime();
}

/// Parts of a month calendar's time, which counts whole days.
SYSTEMTIME DayOf(SYSTEMTIME parts)
{
    parts.wHour = parts.wMinute = parts.wSecond = parts.wMilliseconds = 0;
    return parts;
}

template <class Time> BOOL GetPair(HWND window, UINT message, Time & low, Time & high)
{
    SYSTEMTIME range[2] = {};
    if (!framework::Send<BOOL>(window, message, 0, range))
        return FALSE;
    FromSystem(DayOf(range[0]), low);
    FromSystem(DayOf(range[1]), high);
    return TRUE;
}

template <class Time> BOOL SetPair(HWND window, UINT message, Time const & low, Time const & high)
{
    SYSTEMTIME range[2] = {};
    return ToSystem(low, range[0]) && ToSystem(high, range[1]) && framework::Send<BOOL>(window, message, 0, range);
}

template <class Time> DWORD GetLimits(HWND window, UINT message, Time * low, Time * high)
{
    SYSTEMTIME range[2] = {};
    DWORD const limits = framework::Send<DWORD>(window, message, 0, range);
    if (low != nullptr && (limits & GDTR_MIN) != 0)
        FromSystem(range[0], *low);
    if (high != nullptr && (limits & GDTR_MAX) != 0)
        FromSystem(range[1], *high);
    return limits;
}

template <class Time> BOOL SetLimits(HWND window, UINT message, Time const * low, Time const * high)
{
    SYSTEMTIME range[2] = {};
    DWORD limits = 0;
    if (low != nullptr)
    {
        if (!ToSystem(*low, range[0]))
            return FALSE;
        limits |= GDTR_MIN;
    }
    if (high != nullptr)
    {
        if (!ToSystem(*high, range[1]))
            return FALSE;
        limits |= GDTR_MAX;
    }
    return framework::Send<BOOL>(window, message, limits, range);
}

template <class Time> BOOL GetOne(HWND window, UINT message, Time & time)
{
    SYSTEMTIME parts{};
    if (!framework::Send<BOOL>(window, message, 0, &parts))
        return FALSE;
    FromSystem(DayOf(parts), time);
    return TRUE;
}
} // namespace

// COleDateTime has no null of its own in a range: its status says so.
static COleDateTime const * UnlessNull(COleDateTime const * time)
{
    return time != nullptr && time->GetStatus() == COleDateTime::null ? nullptr : time;
}

CMonthCalCtrl::CMonthCalCtrl() = default;

CMonthCalCtrl::~CMonthCalCtrl()
{
    DestroyWindow();
}

BOOL CMonthCalCtrl::Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControl(*this, ICC_DATE_CLASSES, MONTHCAL_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CMonthCalCtrl::Create(DWORD dwStyle, POINT const & pt, CWnd * pParentWnd, UINT nID)
{
    return Create(dwStyle, CRect(pt, CSize(0, 0)), pParentWnd, nID) && SizeMinReq();
}

int CMonthCalCtrl::GetFirstDayOfWeek(BOOL * pbLocal) const
{
    DWORD const result = framework::Send<DWORD>(m_hWnd, MCM_GETFIRSTDAYOFWEEK);
    if (pbLocal != nullptr)
        *pbLocal = HIWORD(result);
    return LOWORD(result);
}

BOOL CMonthCalCtrl::SetFirstDayOfWeek(int iDay, int * lpnOld)
{
    DWORD const result = framework::Send<DWORD>(m_hWnd, MCM_SETFIRSTDAYOFWEEK, 0, iDay);
    if (lpnOld != nullptr)
        *lpnOld = LOWORD(result);
    return HIWORD(result);
}

BOOL CMonthCalCtrl::SizeMinReq(BOOL bRepaint)
{
    CRect rect;
    if (!GetMinReqRect(&rect))
        return FALSE;
    UINT const repaint = bRepaint ? 0 : SWP_NOREDRAW;
    return SetWindowPos(nullptr, 0, 0, rect.Width(), rect.Height(),
                        SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | repaint);
}

LPRECT CMonthCalCtrl::SizeRectToMin(LPRECT lpRect)
{
    framework::Send(m_hWnd, MCM_SIZERECTTOMIN, 0, lpRect);
    return lpRect;
}

BOOL CMonthCalCtrl::GetCurSel(COleDateTime & refDateTime) const
{
    return GetOne(m_hWnd, MCM_GETCURSEL, refDateTime);
}

BOOL CMonthCalCtrl::GetCurSel(CTime & refDateTime) const
{
    return GetOne(m_hWnd, MCM_GETCURSEL, refDateTime);
}

BOOL CMonthCalCtrl::GetCurSel(LPSYSTEMTIME pDateTime) const
{
    return framework::Send<BOOL>(m_hWnd, MCM_GETCURSEL, 0, pDateTime);
}

BOOL CMonthCalCtrl::SetCurSel(COleDateTime const & refDateTime)
{
    SYSTEMTIME parts{};
    return ToSystem(refDateTime, parts) && SetCurSel(&parts);
}

BOOL CMonthCalCtrl::SetCurSel(CTime const & refDateTime)
{
    SYSTEMTIME parts{};
    return ToSystem(refDateTime, parts) && SetCurSel(&parts);
}

BOOL CMonthCalCtrl::SetCurSel(LPSYSTEMTIME const pDateTime)
{
    return framework::Send<BOOL>(m_hWnd, MCM_SETCURSEL, 0, pDateTime);
}

BOOL CMonthCalCtrl::GetSelRange(COleDateTime & refMinRange, COleDateTime & refMaxRange) const
{
    return GetPair(m_hWnd, MCM_GETSELRANGE, refMinRange, refMaxRange);
}

BOOL CMonthCalCtrl::GetSelRange(CTime & refMinRange, CTime & refMaxRange) const
{
    return GetPair(m_hWnd, MCM_GETSELRANGE, refMinRange, refMaxRange);
}

BOOL CMonthCalCtrl::GetSelRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const
{
    SYSTEMTIME range[2] = {};
    if (!framework::Send<BOOL>(m_hWnd, MCM_GETSELRANGE, 0, range))
        return FALSE;
    *pMinRange = range[0];
    *pMaxRange = range[1];
    return TRUE;
}

BOOL CMonthCalCtrl::SetSelRange(COleDateTime const & pMinRange, COleDateTime const & pMaxRange)
{
    return SetPair(m_hWnd, MCM_SETSELRANGE, pMinRange, pMaxRange);
}

BOOL CMonthCalCtrl::SetSelRange(CTime const & pMinRange, CTime const & pMaxRange)
{
    return SetPair(m_hWnd, MCM_SETSELRANGE, pMinRange, pMaxRange);
}

BOOL CMonthCalCtrl::SetSelRange(LPSYSTEMTIME const pMinRange, LPSYSTEMTIME const pMaxRange)
{
    SYSTEMTIME range[2] = {*pMinRange, *pMaxRange};
    return framework::Send<BOOL>(m_hWnd, MCM_SETSELRANGE, 0, range);
}

DWORD CMonthCalCtrl::GetRange(COleDateTime * pMinRange, COleDateTime * pMaxRange) const
{
    return GetLimits(m_hWnd, MCM_GETRANGE, pMinRange, pMaxRange);
}

DWORD CMonthCalCtrl::GetRange(CTime * pMinRange, CTime * pMaxRange) const
{
    return GetLimits(m_hWnd, MCM_GETRANGE, pMinRange, pMaxRange);
}

DWORD CMonthCalCtrl::GetRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const
{
    SYSTEMTIME range[2] = {};
    DWORD const limits = framework::Send<DWORD>(m_hWnd, MCM_GETRANGE, 0, range);
    if (pMinRange != nullptr)
        *pMinRange = range[0];
    if (pMaxRange != nullptr)
        *pMaxRange = range[1];
    return limits;
}

BOOL CMonthCalCtrl::SetRange(COleDateTime const * pMinRange, COleDateTime const * pMaxRange)
{
    return SetLimits(m_hWnd, MCM_SETRANGE, UnlessNull(pMinRange), UnlessNull(pMaxRange));
}

BOOL CMonthCalCtrl::SetRange(CTime const * pMinRange, CTime const * pMaxRange)
{
    return SetLimits(m_hWnd, MCM_SETRANGE, pMinRange, pMaxRange);
}

BOOL CMonthCalCtrl::SetRange(LPSYSTEMTIME const pMinRange, LPSYSTEMTIME const pMaxRange)
{
    SYSTEMTIME range[2] = {};
    DWORD limits = 0;
    if (pMinRange != nullptr)
    {
        range[0] = *pMinRange;
        limits |= GDTR_MIN;
    }
    if (pMaxRange != nullptr)
    {
        range[1] = *pMaxRange;
        limits |= GDTR_MAX;
    }
    return framework::Send<BOOL>(m_hWnd, MCM_SETRANGE, limits, range);
}

int CMonthCalCtrl::GetMonthRange(COleDateTime & refMinRange, COleDateTime & refMaxRange, DWORD dwFlags) const
{
    SYSTEMTIME range[2] = {};
    int const months = GetMonthRange(&range[0], &range[1], dwFlags);
    FromSystem(DayOf(range[0]), refMinRange);
    FromSystem(DayOf(range[1]), refMaxRange);
    return months;
}

int CMonthCalCtrl::GetMonthRange(CTime & refMinRange, CTime & refMaxRange, DWORD dwFlags) const
{
    SYSTEMTIME range[2] = {};
    int const months = GetMonthRange(&range[0], &range[1], dwFlags);
    FromSystem(DayOf(range[0]), refMinRange);
    FromSystem(DayOf(range[1]), refMaxRange);
    return months;
}

int CMonthCalCtrl::GetMonthRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange, DWORD dwFlags) const
{
    SYSTEMTIME range[2] = {};
    int const months = framework::Send<int>(m_hWnd, MCM_GETMONTHRANGE, dwFlags, range);
    *pMinRange = range[0];
    *pMaxRange = range[1];
    return months;
}

BOOL CMonthCalCtrl::GetToday(COleDateTime & refDateTime) const
{
    return GetOne(m_hWnd, MCM_GETTODAY, refDateTime);
}

BOOL CMonthCalCtrl::GetToday(CTime & refDateTime) const
{
    return GetOne(m_hWnd, MCM_GETTODAY, refDateTime);
}

BOOL CMonthCalCtrl::GetToday(LPSYSTEMTIME pDateTime) const
{
    return framework::Send<BOOL>(m_hWnd, MCM_GETTODAY, 0, pDateTime);
}

void CMonthCalCtrl::SetToday(COleDateTime const & refDateTime)
{
    SYSTEMTIME parts{};
    if (ToSystem(refDateTime, parts))
        SetToday(&parts);
}

void CMonthCalCtrl::SetToday(CTime const * pDateTime)
{
    SYSTEMTIME parts{};
    if (pDateTime == nullptr)
        SetToday(static_cast<LPSYSTEMTIME>(nullptr));
    else if (ToSystem(*pDateTime, parts))
        SetToday(&parts);
}

void CMonthCalCtrl::SetToday(LPSYSTEMTIME const pDateTime)
{
    framework::Send(m_hWnd, MCM_SETTODAY, 0, pDateTime);
}

BOOL CMonthCalCtrl::SetCalID(CALID calid)
{
    framework::Send(m_hWnd, MCM_SETCALID, static_cast<WPARAM>(calid));
    return GetCalID() == calid;
}

int CMonthCalCtrl::GetCalendarBorder() const
{
    return framework::Send<int>(m_hWnd, MCM_GETCALENDARBORDER);
}

void CMonthCalCtrl::SetCalendarBorder(int cxyBorder)
{
    framework::Send(m_hWnd, MCM_SETCALENDARBORDER, static_cast<WPARAM>(TRUE), cxyBorder);
}

void CMonthCalCtrl::SetCalendarBorderDefault()
{
    framework::Send(m_hWnd, MCM_SETCALENDARBORDER, static_cast<WPARAM>(FALSE));
}

CDateTimeCtrl::CDateTimeCtrl() = default;

CDateTimeCtrl::~CDateTimeCtrl()
{
    DestroyWindow();
}

BOOL CDateTimeCtrl::Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControl(*this, ICC_DATE_CLASSES, DATETIMEPICK_CLASS, nullptr, dwStyle, rect, pParentWnd,
                                    nID);
}

DWORD CDateTimeCtrl::GetRange(COleDateTime * pMinRange, COleDateTime * pMaxRange) const
{
    return GetLimits(m_hWnd, DTM_GETRANGE, pMinRange, pMaxRange);
}

DWORD CDateTimeCtrl::GetRange(CTime * pMinRange, CTime * pMaxRange) const
{
    return GetLimits(m_hWnd, DTM_GETRANGE, pMinRange, pMaxRange);
}

BOOL CDateTimeCtrl::SetRange(COleDateTime const * pMinRange, COleDateTime const * pMaxRange)
{
    return SetLimits(m_hWnd, DTM_SETRANGE, UnlessNull(pMinRange), UnlessNull(pMaxRange));
}

BOOL CDateTimeCtrl::SetRange(CTime const * pMinRange, CTime const * pMaxRange)
{
    return SetLimits(m_hWnd, DTM_SETRANGE, pMinRange, pMaxRange);
}

BOOL CDateTimeCtrl::GetTime(COleDateTime & timeDest) const
{
    SYSTEMTIME parts{};
    DWORD const result = GetTime(&parts);
    if (result == static_cast<DWORD>(GDT_VALID))
        timeDest = parts;
    else
        timeDest.SetStatus(result == static_cast<DWORD>(GDT_NONE) ? COleDateTime::null : COleDateTime::invalid);
    return result != static_cast<DWORD>(GDT_ERROR);
}

DWORD CDateTimeCtrl::GetTime(CTime & timeDest) const
{
    SYSTEMTIME parts{};
    DWORD const result = GetTime(&parts);
    if (result == static_cast<DWORD>(GDT_VALID))
        FromSystem(parts, timeDest);
    return result;
}

DWORD CDateTimeCtrl::GetTime(LPSYSTEMTIME pTimeDest) const
{
    return framework::Send<DWORD>(m_hWnd, DTM_GETSYSTEMTIME, 0, pTimeDest);
}

BOOL CDateTimeCtrl::SetTime(COleDateTime const & timeNew)
{
    SYSTEMTIME parts{};
    if (timeNew.GetStatus() == COleDateTime::null)
        return SetTime();
    return ToSystem(timeNew, parts) && SetTime(&parts);
}

BOOL CDateTimeCtrl::SetTime(CTime const * pTimeNew)
{
    SYSTEMTIME parts{};
    if (pTimeNew == nullptr)
        return SetTime();
    return ToSystem(*pTimeNew, parts) && SetTime(&parts);
}

BOOL CDateTimeCtrl::SetTime(LPSYSTEMTIME pTimeNew)
{
    // Not every system takes none without a time beside it.
    SYSTEMTIME none{};
    bool const given = pTimeNew != nullptr;
    return framework::Send<BOOL>(m_hWnd, DTM_SETSYSTEMTIME, given ? GDT_VALID : GDT_NONE, given ? pTimeNew : &none);
}

BOOL CDateTimeCtrl::GetDateTimePickerInfo(LPDATETIMEPICKERINFO pDateTimePickerInfo) const
{
    pDateTimePickerInfo->cbSize = sizeof(*pDateTimePickerInfo);
    return framework::Send<BOOL>(m_hWnd, DTM_GETDATETIMEPICKERINFO, 0, pDateTimePickerInfo) != FALSE;
}

namespace
{
template <class Control, class Time> void ExchangeTime(CDataExchange * exchange, int id, Time & value)
{
    HWND const window = exchange->PrepareCtrl(id);
    auto * const control = static_cast<Control *>(CWnd::FromHandle(window));
    if constexpr (std::is_same_v<Control, CDateTimeCtrl>)
    {
        if (exchange->m_bSaveAndValidate)
            control->GetTime(value);
        else if constexpr (std::is_same_v<Time, CTime>)
            control->SetTime(&value);
        else
            control->SetTime(value);
    }
    else if (exchange->m_bSaveAndValidate)
    {
        control->GetCurSel(value);
    }
    else
    {
        control->SetCurSel(value);
    }
}
} // namespace

void AFXAPI DDX_DateTimeCtrl(CDataExchange * pDX, int nIDC, CTime & value)
{
    ExchangeTime<CDateTimeCtrl>(pDX, nIDC, value);
}

void AFXAPI DDX_DateTimeCtrl(CDataExchange * pDX, int nIDC, COleDateTime & value)
{
    ExchangeTime<CDateTimeCtrl>(pDX, nIDC, value);
}

void AFXAPI DDX_DateTimeCtrl(CDataExchange * pDX, int nIDC, CString & value)
{
    CWnd * const control = CWnd::FromHandle(pDX->PrepareCtrl(nIDC));
    if (pDX->m_bSaveAndValidate)
        control->GetWindowText(value);
    else
        control->SetWindowText(value);
}

void AFXAPI DDX_MonthCalCtrl(CDataExchange * pDX, int nIDC, CTime & value)
{
    ExchangeTime<CMonthCalCtrl>(pDX, nIDC, value);
}

void AFXAPI DDX_MonthCalCtrl(CDataExchange * pDX, int nIDC, COleDateTime & value)
{
    ExchangeTime<CMonthCalCtrl>(pDX, nIDC, value);
}

namespace
{
template <class Control, class Time> void LimitLast(CDataExchange * exchange, Time const * low, Time const * high)
{
    ASSERT(low == nullptr || high == nullptr || *low <= *high);
    HWND const control = framework::DataExchangeAccess::LastControl(*exchange);
    if (!exchange->m_bSaveAndValidate && control != nullptr)
        static_cast<Control *>(CWnd::FromHandle(control))->SetRange(low, high);
}
} // namespace

void AFXAPI DDV_MinMaxDateTime(CDataExchange * pDX, CTime &, CTime const * refMinRange, CTime const * refMaxRange)
{
    LimitLast<CDateTimeCtrl>(pDX, refMinRange, refMaxRange);
}

void AFXAPI DDV_MinMaxDateTime(CDataExchange * pDX, COleDateTime &, COleDateTime const * refMinRange,
                               COleDateTime const * refMaxRange)
{
    LimitLast<CDateTimeCtrl>(pDX, refMinRange, refMaxRange);
}

void AFXAPI DDV_MinMaxMonth(CDataExchange * pDX, CTime &, CTime const * refMinRange, CTime const * refMaxRange)
{
    LimitLast<CMonthCalCtrl>(pDX, refMinRange, refMaxRange);
}

void AFXAPI DDV_MinMaxMonth(CDataExchange * pDX, COleDateTime &, COleDateTime const * refMinRange,
                            COleDateTime const * refMaxRange)
{
    LimitLast<CMonthCalCtrl>(pDX, refMinRange, refMaxRange);
}
