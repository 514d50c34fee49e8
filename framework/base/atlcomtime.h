#pragma once
// COleDateTime, a moment between the years 100 and 9999, and COleDateTimeSpan, a difference of two.

#include "afx.h"

#if defined(_WIN32)
#include <oleauto.h>
#endif

#ifndef LANG_USER_DEFAULT
#define LANG_USER_DEFAULT (MAKELANGID(LANG_NEUTRAL, SUBLANG_DEFAULT))
#endif
#ifndef VAR_TIMEVALUEONLY
#define VAR_TIMEVALUEONLY (static_cast<DWORD>(0x00000001))
#define VAR_DATEVALUEONLY (static_cast<DWORD>(0x00000002))
#endif

namespace ATL
{
/// A difference in days. What is computed from one that isn't valid isn't valid either.
class FRAMEWORK_API COleDateTimeSpan
{
public:
    enum DateTimeSpanStatus
    {
        valid = 0,
        invalid = 1,
        null = 2
    };

    double m_span = 0;
    DateTimeSpanStatus m_status = valid;

    COleDateTimeSpan() noexcept = default;
    COleDateTimeSpan(double dblSpanSrc) noexcept : m_span(dblSpanSrc) { CheckRange(); }
    COleDateTimeSpan(LONG lDays, int nHours, int nMins, int nSecs) noexcept
    {
        SetDateTimeSpan(lDays, nHours, nMins, nSecs);
    }
    COleDateTimeSpan & operator=(double dblSpanSrc) noexcept
    {
        *this = COleDateTimeSpan(dblSpanSrc);
        return *this;
    }

    void SetStatus(DateTimeSpanStatus status) noexcept { m_status = status; }
    DateTimeSpanStatus GetStatus() const noexcept { return m_status; }
    void SetDateTimeSpan(LONG lDays, int nHours, int nMins, int nSecs) noexcept;

    double GetTotalDays() const noexcept { return m_span; }
    /// Whole ones, as those below.
    double GetTotalHours() const noexcept;
    double GetTotalMinutes() const noexcept;
    double GetTotalSeconds() const noexcept;
    LONG GetDays() const noexcept;
    LONG GetHours() const noexcept;
    LONG GetMinutes() const noexcept;
    LONG GetSeconds() const noexcept;

    operator double() const noexcept { return m_span; }
    bool operator==(COleDateTimeSpan const & dateSpan) const noexcept;
    bool operator!=(COleDateTimeSpan const & dateSpan) const noexcept;
    bool operator<(COleDateTimeSpan const & dateSpan) const noexcept;
    bool operator>(COleDateTimeSpan const & dateSpan) const noexcept;
    bool operator<=(COleDateTimeSpan const & dateSpan) const noexcept;
    bool operator>=(COleDateTimeSpan const & dateSpan) const noexcept;
    COleDateTimeSpan operator+(COleDateTimeSpan const & dateSpan) const noexcept;
    COleDateTimeSpan operator-(COleDateTimeSpan const & dateSpan) const noexcept;
    COleDateTimeSpan & operator+=(COleDateTimeSpan const dateSpan) noexcept;
    COleDateTimeSpan & operator-=(COleDateTimeSpan const dateSpan) noexcept;
    COleDateTimeSpan operator-() const noexcept { return Made(-m_span, m_status); }

    /// %D days, %H hours, %M minutes, %S seconds, %%. Empty when null.
    CString Format(LPCTSTR pFormat) const;
#if defined(_WIN32)
    CString Format(UINT nID) const;
#endif

private:
    static COleDateTimeSpan Made(double span, DateTimeSpanStatus status) noexcept;
    double Units(double perDay) const noexcept;
    void CheckRange() noexcept;
};

/// Days since 1899-12-30, with the time of the day as their fraction, which counts forwards before that day, too: -1.25
/// is six o'clock on 1899-12-29. What asks for a part of a moment that isn't valid is given -1.
class FRAMEWORK_API COleDateTime
{
public:
    enum DateTimeStatus
    {
        error = -1,
        valid = 0,
        invalid = 1,
        null = 2
    };

    DATE m_dt = 0;
    DateTimeStatus m_status = valid;

    static COleDateTime WINAPI GetCurrentTime() noexcept;

    COleDateTime() noexcept = default;
    COleDateTime(DATE dtSrc) noexcept : m_dt(dtSrc) { CheckRange(); }
    /// Shown as local time.
    COleDateTime(__time64_t timeSrc) noexcept;
    /// Local time.
    COleDateTime(SYSTEMTIME const & systimeSrc) noexcept;
    /// Universal time, shown as local time.
    COleDateTime(FILETIME const & filetimeSrc) noexcept;
    COleDateTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec) noexcept
    {
        SetDateTime(nYear, nMonth, nDay, nHour, nMin, nSec);
    }
    COleDateTime(WORD wDosDate, WORD wDosTime) noexcept;
    COleDateTime & operator=(DATE dtSrc) noexcept { return Assign(COleDateTime(dtSrc)); }
    COleDateTime & operator=(__time64_t const & timeSrc) noexcept { return Assign(COleDateTime(timeSrc)); }
    COleDateTime & operator=(SYSTEMTIME const & systimeSrc) noexcept { return Assign(COleDateTime(systimeSrc)); }
    COleDateTime & operator=(FILETIME const & filetimeSrc) noexcept { return Assign(COleDateTime(filetimeSrc)); }
#if defined(_WIN32)
    COleDateTime(VARIANT const & varSrc) noexcept;
    COleDateTime & operator=(VARIANT const & varSrc) noexcept
    {
        return Assign(COleDateTime(varSrc));
    }
    COleDateTime & operator=(UDATE const & uDate) noexcept;
    bool GetAsUDATE(UDATE & uDate) const noexcept;
#endif

    void SetStatus(DateTimeStatus status) noexcept
    {
        m_status = status;
    }
    DateTimeStatus GetStatus() const noexcept
    {
        return m_status;
    }
    bool GetAsSystemTime(SYSTEMTIME & sysTime) const noexcept;
    int GetYear() const noexcept;
    int GetMonth() const noexcept;
    int GetDay() const noexcept;
    int GetHour() const noexcept;
    int GetMinute() const noexcept;
    int GetSecond() const noexcept;
    /// 1 is Sunday.
    int GetDayOfWeek() const noexcept;
    /// 1 is the first of January.
    int GetDayOfYear() const noexcept;

    operator DATE() const noexcept
    {
        return m_dt;
    }
    bool operator==(COleDateTime const & date) const noexcept;
    bool operator!=(COleDateTime const & date) const noexcept;
    bool operator<(COleDateTime const & date) const noexcept;
    bool operator>(COleDateTime const & date) const noexcept;
    bool operator<=(COleDateTime const & date) const noexcept;
    bool operator>=(COleDateTime const & date) const noexcept;
    COleDateTime operator+(COleDateTimeSpan dateSpan) const noexcept;
    COleDateTime operator-(COleDateTimeSpan dateSpan) const noexcept;
    COleDateTime & operator+=(COleDateTimeSpan dateSpan) noexcept
    {
        return Assign(*this + dateSpan);
    }
    COleDateTime & operator-=(COleDateTimeSpan dateSpan) noexcept
    {
        return Assign(*this - dateSpan);
    }
    COleDateTimeSpan operator-(COleDateTime const & date) const noexcept;

    /// 0 when the parts are a moment, else 1, and the status is invalid.
    int SetDateTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec) noexcept;
    int SetDate(int nYear, int nMonth, int nDay) noexcept
    {
        return SetDateTime(nYear, nMonth, nDay, 0, 0, 0);
    }
    int SetTime(int nHour, int nMin, int nSec) noexcept
    {
        return SetDateTime(1899, 12, 30, nHour, nMin, nSec);
    }

    /// By the directives of strftime. Empty when null.
    CString Format(LPCTSTR lpszFormat) const;
#if defined(_WIN32)
    CString Format(UINT nFormatID) const;
    /// As the user's locale has it; dwFlags: VAR_TIMEVALUEONLY, VAR_DATEVALUEONLY.
    CString Format(DWORD dwFlags = 0, LCID lcid = LANG_USER_DEFAULT) const;
    bool ParseDateTime(LPCTSTR lpszDate, DWORD dwFlags = 0, LCID lcid = LANG_USER_DEFAULT) noexcept;
#endif

private:
    struct Parts;

    COleDateTime & Assign(COleDateTime const & date) noexcept
    {
        m_dt = date.m_dt;
        m_status = date.m_status;
        return *this;
    }
    static COleDateTime FromDays(double days, DateTimeStatus status) noexcept;
    double Days() const noexcept;
    void CheckRange() noexcept;
    bool GetParts(Parts & parts) const noexcept;
};
} // namespace ATL

FRAMEWORK_API CArchive & AFXAPI operator<<(CArchive & ar, ATL::COleDateTime dateSrc);
FRAMEWORK_API CArchive & AFXAPI operator>>(CArchive & ar, ATL::COleDateTime & dateSrc);
FRAMEWORK_API CArchive & AFXAPI operator<<(CArchive & ar, ATL::COleDateTimeSpan dateSpanSrc);
FRAMEWORK_API CArchive & AFXAPI operator>>(CArchive & ar, ATL::COleDateTimeSpan & dateSpanSrc);
