#pragma once
// CTime, a moment between 1970 and 3000 in seconds, and CTimeSpan, a difference of two.

#include "atlstr.h"

#include <ctime>

class CArchive;

namespace ATL
{
class FRAMEWORK_API CTimeSpan
{
public:
    CTimeSpan() noexcept : m_seconds(0) {}
    CTimeSpan(__time64_t time) noexcept : m_seconds(time) {}
    CTimeSpan(LONG lDays, int nHours, int nMins, int nSecs) noexcept
        : m_seconds(nSecs + 60 * (nMins + 60 * (nHours + 24 * static_cast<__time64_t>(lDays))))
    {
    }

    LONGLONG GetDays() const noexcept { return m_seconds / 86400; }
    LONGLONG GetTotalHours() const noexcept { return m_seconds / 3600; }
    LONG GetHours() const noexcept { return static_cast<LONG>(GetTotalHours() - GetDays() * 24); }
    LONGLONG GetTotalMinutes() const noexcept { return m_seconds / 60; }
    LONG GetMinutes() const noexcept { return static_cast<LONG>(GetTotalMinutes() - GetTotalHours() * 60); }
    LONGLONG GetTotalSeconds() const noexcept { return m_seconds; }
    LONG GetSeconds() const noexcept { return static_cast<LONG>(m_seconds - GetTotalMinutes() * 60); }
    __time64_t GetTimeSpan() const noexcept { return m_seconds; }

    CTimeSpan operator+(CTimeSpan span) const noexcept { return CTimeSpan(m_seconds + span.m_seconds); }
    CTimeSpan operator-(CTimeSpan span) const noexcept { return CTimeSpan(m_seconds - span.m_seconds); }
    CTimeSpan & operator+=(CTimeSpan span) noexcept
    {
        m_seconds += span.m_seconds;
        return *this;
    }
    CTimeSpan & operator-=(CTimeSpan span) noexcept
    {
        m_seconds -= span.m_seconds;
        return *this;
    }
    bool operator==(CTimeSpan span) const noexcept { return m_seconds == span.m_seconds; }
    bool operator!=(CTimeSpan span) const noexcept { return m_seconds != span.m_seconds; }
    bool operator<(CTimeSpan span) const noexcept { return m_seconds < span.m_seconds; }
    bool operator>(CTimeSpan span) const noexcept { return m_seconds > span.m_seconds; }
    bool operator<=(CTimeSpan span) const noexcept { return m_seconds <= span.m_seconds; }
    bool operator>=(CTimeSpan span) const noexcept { return m_seconds >= span.m_seconds; }

    // %D days, %H hours, %M minutes, %S seconds (two digits each but the days), %%.
    CString Format(LPCSTR pFormat) const;
    CString Format(LPCTSTR pszFormat) const;
#if defined(_WIN32)
    CString Format(UINT nID) const;
#endif

    /// Eight bytes in the archive.
    CArchive & Serialize64(CArchive & ar);

private:
    __time64_t m_seconds;
};

class FRAMEWORK_API CTime
{
public:
    static CTime WINAPI GetCurrentTime() noexcept;

    CTime() noexcept : m_time(0) {}
    CTime(__time64_t time) noexcept : m_time(time) {}
    /// Local time. A part out of its range throws CInvalidArgException.
    CTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec, int nDST = -1);
    CTime(WORD wDosDate, WORD wDosTime, int nDST = -1);
    /// Local time. A year before 1900 gives the time 0; else as above.
    CTime(SYSTEMTIME const & st, int nDST = -1);
    /// Universal time. A year before 1900 gives the time 0; else as above.
    CTime(FILETIME const & ft, int nDST = -1);

    CTime & operator=(__time64_t time) noexcept
    {
        m_time = time;
        return *this;
    }
    CTime & operator+=(CTimeSpan span) noexcept
    {
        m_time += span.GetTimeSpan();
        return *this;
    }
    CTime & operator-=(CTimeSpan span) noexcept
    {
        m_time -= span.GetTimeSpan();
        return *this;
    }
    CTimeSpan operator-(CTime time) const noexcept { return CTimeSpan(m_time - time.m_time); }
    CTime operator-(CTimeSpan span) const noexcept { return CTime(m_time - span.GetTimeSpan()); }
    CTime operator+(CTimeSpan span) const noexcept { return CTime(m_time + span.GetTimeSpan()); }
    bool operator==(CTime time) const noexcept { return m_time == time.m_time; }
    bool operator!=(CTime time) const noexcept { return m_time != time.m_time; }
    bool operator<(CTime time) const noexcept { return m_time < time.m_time; }
    bool operator>(CTime time) const noexcept { return m_time > time.m_time; }
    bool operator<=(CTime time) const noexcept { return m_time <= time.m_time; }
    bool operator>=(CTime time) const noexcept { return m_time >= time.m_time; }

    /// Null for a time that has no calendar date (before 1970 or after 3000).
    struct tm * GetGmtTm(struct tm * ptm) const;
    struct tm * GetLocalTm(struct tm * ptm) const;
    bool GetAsSystemTime(SYSTEMTIME & st) const noexcept;
    __time64_t GetTime() const noexcept { return m_time; }
    int GetYear() const noexcept;
    int GetMonth() const noexcept;
    int GetDay() const noexcept;
    int GetHour() const noexcept;
    int GetMinute() const noexcept;
    int GetSecond() const noexcept;
    /// 1 is Sunday.
    int GetDayOfWeek() const noexcept;

    CString Format(LPCTSTR pszFormat) const;
    CString FormatGmt(LPCTSTR pszFormat) const;
#if defined(_WIN32)
    CString Format(UINT nFormatID) const;
    CString FormatGmt(UINT nFormatID) const;
#endif

    /// Eight bytes in the archive.
    CArchive & Serialize64(CArchive & ar);

private:
    __time64_t m_time;
};
} // namespace ATL
