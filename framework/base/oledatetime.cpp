// COleDateTime and COleDateTimeSpan.

#include "atlcomtime.h"

#include <cmath>

#include "TimeText.h"

namespace
{
constexpr int seconds_per_day = 86400;
constexpr double half_second = 1.0 / (2.0 * seconds_per_day);
constexpr double most_days_of_span = 3615897;
// The first of January 100 and the last of December 9999.
constexpr long long first_day = -657434;
constexpr long long last_day = 2958465;
// 1899-12-30, counted from 0000-03-01.
constexpr long long day_zero = 693899;
constexpr long long days_per_era = 146097; // of 400 years

bool IsLeap(int year)
{
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int DaysOfMonth(int year, int month)
{
    constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && IsLeap(year) ? 29 : days[month - 1];
}

// Years begin in March here, so that the day of a leap year is a year's last.
long long DayOf(int year, int month, int day)
{
    int const shifted = month <= 2 ? year - 1 : year;
    int const era = shifted / 400;
    int const yearOfEra = shifted % 400;
    int const dayOfYear = (153 * (month > 2 ? month - 3 : month + 9) + 2) / 5 + day - 1;
    int const dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * days_per_era + dayOfEra - day_zero;
}

void DateOf(long long number, int & year, int & month, int & day)
{
    long long const all = number + day_zero;
    long long const era = all / days_per_era;
    auto const dayOfEra = static_cast<int>(all % days_per_era);
    int const yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    int const dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    int const shifted = (5 * dayOfYear + 2) / 153;
    day = dayOfYear - (153 * shifted + 2) / 5 + 1;
    month = shifted < 10 ? shifted + 3 : shifted - 9;
    year = static_cast<int>(era) * 400 + yearOfEra + (month <= 2 ? 1 : 0);
}
} // namespace

namespace ATL
{
COleDateTimeSpan COleDateTimeSpan::Made(double span, DateTimeSpanStatus status) noexcept
{
    COleDateTimeSpan made(span);
    if (status != valid)
        made.m_status = status;
    return made;
}

void COleDateTimeSpan::CheckRange() noexcept
{
    if (!(std::fabs(m_span) <= most_days_of_span))
        m_status = invalid;
}

void COleDateTimeSpan::SetDateTimeSpan(LONG lDays, int nHours, int nMins, int nSecs) noexcept
{
    m_span = lDays + nHours / 24.0 + nMins / (24.0 * 60.0) + nSecs / (24.0 * 60.0 * 60.0);
    m_status = valid;
    CheckRange();
}

double COleDateTimeSpan::Units(double perDay) const noexcept
{
    return std::trunc((m_span + (m_span < 0 ? -half_second : half_second)) * perDay);
}

double COleDateTimeSpan::GetTotalHours() const noexcept
{
    return Units(24);
}

double COleDateTimeSpan::GetTotalMinutes() const noexcept
{
    return Units(24 * 60);
}

double COleDateTimeSpan::GetTotalSeconds() const noexcept
{
    return Units(seconds_per_day);
}

LONG COleDateTimeSpan::GetDays() const noexcept
{
    return static_cast<LONG>(Units(1));
}

LONG COleDateTimeSpan::GetHours() const noexcept
{
    return static_cast<LONG>(std::fmod(GetTotalHours(), 24));
}

LONG COleDateTimeSpan::GetMinutes() const noexcept
{
    return static_cast<LONG>(std::fmod(GetTotalMinutes(), 60));
}

LONG COleDateTimeSpan::GetSeconds() const noexcept
{
    return static_cast<LONG>(std::fmod(GetTotalSeconds(), 60));
}

bool COleDateTimeSpan::operator==(COleDateTimeSpan const & dateSpan) const noexcept
{
    return m_status == dateSpan.m_status && m_span == dateSpan.m_span;
}

bool COleDateTimeSpan::operator!=(COleDateTimeSpan const & dateSpan) const noexcept
{
    return !(*this == dateSpan);
}

bool COleDateTimeSpan::operator<(COleDateTimeSpan const & dateSpan) const noexcept
{
    return m_span < dateSpan.m_span;
}

bool COleDateTimeSpan::operator>(COleDateTimeSpan const & dateSpan) const noexcept
{
    return m_span > dateSpan.m_span;
}

bool COleDateTimeSpan::operator<=(COleDateTimeSpan const & dateSpan) const noexcept
{
    return m_span <= dateSpan.m_span;
}

bool COleDateTimeSpan::operator>=(COleDateTimeSpan const & dateSpan) const noexcept
{
    return m_span >= dateSpan.m_span;
}

COleDateTimeSpan COleDateTimeSpan::operator+(COleDateTimeSpan const & dateSpan) const noexcept
{
    if (m_status == null || dateSpan.m_status == null)
        return Made(0, null);
    if (m_status == invalid || dateSpan.m_status == invalid)
        return Made(0, invalid);
    return COleDateTimeSpan(m_span + dateSpan.m_span);
}

COleDateTimeSpan COleDateTimeSpan::operator-(COleDateTimeSpan const & dateSpan) const noexcept
{
    return *this + -dateSpan;
}

COleDateTimeSpan & COleDateTimeSpan::operator+=(COleDateTimeSpan const dateSpan) noexcept
{
    *this = *this + dateSpan;
    return *this;
}

COleDateTimeSpan & COleDateTimeSpan::operator-=(COleDateTimeSpan const dateSpan) noexcept
{
    *this = *this - dateSpan;
    return *this;
}

CString COleDateTimeSpan::Format(LPCTSTR pFormat) const
{
    if (m_status == null)
        return CString();
    if (m_status == invalid)
        return CString(_T("Invalid DateTimeSpan"));
    return CTimeSpan(static_cast<__time64_t>(GetTotalSeconds())).Format(pFormat);
}

// Parts of a moment.
struct COleDateTime::Parts
{
    int year;
    int month;
    int day;
    int hour;
    int minute;
    int second;
    int dayOfWeek; // 0 is Sunday
    int dayOfYear; // from 1
};

// Before day zero the fraction counts against the days.
double COleDateTime::Days() const noexcept
{
    double const whole = std::trunc(m_dt);
    return whole + std::fabs(m_dt - whole);
}

COleDateTime COleDateTime::FromDays(double days, DateTimeStatus status) noexcept
{
    double const whole = std::floor(days);
    COleDateTime made(whole < 0 ? whole - (days - whole) : days);
    if (status != valid)
        made.m_status = status;
    return made;
}

void COleDateTime::CheckRange() noexcept
{
    double const day = std::trunc(m_dt);
    if (!(day >= first_day && day <= last_day))
        m_status = invalid;
}

bool COleDateTime::GetParts(Parts & parts) const noexcept
{
    double const whole = std::trunc(m_dt);
    if (m_status != valid || !(whole >= first_day && whole <= last_day))
        return false;
    auto day = static_cast<long long>(whole);
    long long seconds = std::llround(std::fabs(m_dt - whole) * seconds_per_day);
    if (seconds == seconds_per_day)
    {
        seconds = 0;
        ++day;
    }
    if (day > last_day)
        return false;
    DateOf(day, parts.year, parts.month, parts.day);
    parts.hour = static_cast<int>(seconds / 3600);
    parts.minute = static_cast<int>(seconds / 60 % 60);
    parts.second = static_cast<int>(seconds % 60);
    // Day zero is a Saturday.
    parts.dayOfWeek = static_cast<int>(((day + 6) % 7 + 7) % 7);
    parts.dayOfYear = static_cast<int>(day - DayOf(parts.year, 1, 1)) + 1;
    return true;
}

int COleDateTime::SetDateTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec) noexcept
{
    bool const moment = nYear >= 100 && nYear <= 9999 && nMonth >= 1 && nMonth <= 12 && nDay >= 1 &&
                        nDay <= DaysOfMonth(nYear, nMonth) && nHour >= 0 && nHour <= 23 && nMin >= 0 && nMin <= 59 &&
                        nSec >= 0 && nSec <= 59;
    if (!moment)
    {
        m_dt = 0;
        m_status = invalid;
        return m_status;
    }
    double const time = (nHour * 3600 + nMin * 60 + nSec) / static_cast<double>(seconds_per_day);
    auto const day = static_cast<double>(DayOf(nYear, nMonth, nDay));
    m_dt = day < 0 ? day - time : day + time;
    m_status = valid;
    return m_status;
}

COleDateTime WINAPI COleDateTime::GetCurrentTime() noexcept
{
    return COleDateTime(CTime::GetCurrentTime().GetTime());
}

COleDateTime::COleDateTime(__time64_t timeSrc) noexcept
{
    std::tm parts{};
    if (CTime(timeSrc).GetLocalTm(&parts) == nullptr)
        m_status = invalid;
    else
        SetDateTime(parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday, parts.tm_hour, parts.tm_min, parts.tm_sec);
}

COleDateTime::COleDateTime(SYSTEMTIME const & systimeSrc) noexcept
{
    SetDateTime(systimeSrc.wYear, systimeSrc.wMonth, systimeSrc.wDay, systimeSrc.wHour, systimeSrc.wMinute,
                systimeSrc.wSecond);
}

COleDateTime::COleDateTime(WORD wDosDate, WORD wDosTime) noexcept
{
    SetDateTime((wDosDate >> 9) + 1980, (wDosDate >> 5) & 0x0F, wDosDate & 0x1F, wDosTime >> 11, (wDosTime >> 5) & 0x3F,
                (wDosTime & 0x1F) * 2);
}

COleDateTime::COleDateTime(FILETIME const & filetimeSrc) noexcept
{
#if defined(_WIN32)
    FILETIME local{};
    SYSTEMTIME parts{};
    if (::FileTimeToLocalFileTime(&filetimeSrc, &local) && ::FileTimeToSystemTime(&local, &parts))
        *this = parts;
    else
        m_status = invalid;
#else
    constexpr unsigned long long units_per_second = 10'000'000;
    constexpr long long epoch = 11644473600LL;
    unsigned long long const units =
        (static_cast<unsigned long long>(filetimeSrc.dwHighDateTime) << 32) | filetimeSrc.dwLowDateTime;
    *this = COleDateTime(static_cast<__time64_t>(static_cast<long long>(units / units_per_second) - epoch));
#endif
}

bool COleDateTime::GetAsSystemTime(SYSTEMTIME & sysTime) const noexcept
{
    Parts parts{};
    if (!GetParts(parts))
        return false;
    sysTime.wYear = static_cast<WORD>(parts.year);
    sysTime.wMonth = static_cast<WORD>(parts.month);
    sysTime.wDayOfWeek = static_cast<WORD>(parts.dayOfWeek);
    sysTime.wDay = static_cast<WORD>(parts.day);
    sysTime.wHour = static_cast<WORD>(parts.hour);
    sysTime.wMinute = static_cast<WORD>(parts.minute);
    sysTime.wSecond = static_cast<WORD>(parts.second);
    sysTime.wMilliseconds = 0;
    return true;
}

int COleDateTime::GetYear() const noexcept
{
    Parts parts{};
    return GetParts(parts) ? parts.year : error;
}

int COleDateTime::GetMonth() const noexcept
{
    Parts parts{};
    return GetParts(parts) ? parts.month : error;
}

int COleDateTime::GetDay() const noexcept
{
    Parts parts{};
    return GetParts(parts) ? parts.day : error;
}

int COleDateTime::GetHour() const noexcept
{
    Parts parts{};
    return GetParts(parts) ? parts.hour : error;
}

int COleDateTime::GetMinute() const noexcept
{
    Parts parts{};
    return GetParts(parts) ? parts.minute : error;
}

int COleDateTime::GetSecond() const noexcept
{
    Parts parts{};
    return GetParts(parts) ? parts.second : error;
}

int COleDateTime::GetDayOfWeek() const noexcept
{
    Parts parts{};
    return GetParts(parts) ? parts.dayOfWeek + 1 : error;
}

int COleDateTime::GetDayOfYear() const noexcept
{
    Parts parts{};
    return GetParts(parts) ? parts.dayOfYear : error;
}

bool COleDateTime::operator==(COleDateTime const & date) const noexcept
{
    return m_status == date.m_status && m_dt == date.m_dt;
}

bool COleDateTime::operator!=(COleDateTime const & date) const noexcept
{
    return !(*this == date);
}

bool COleDateTime::operator<(COleDateTime const & date) const noexcept
{
    return Days() < date.Days();
}

bool COleDateTime::operator>(COleDateTime const & date) const noexcept
{
    return Days() > date.Days();
}

bool COleDateTime::operator<=(COleDateTime const & date) const noexcept
{
    return Days() <= date.Days();
}

bool COleDateTime::operator>=(COleDateTime const & date) const noexcept
{
    return Days() >= date.Days();
}

COleDateTime COleDateTime::operator+(COleDateTimeSpan dateSpan) const noexcept
{
    if (m_status == null || dateSpan.GetStatus() == COleDateTimeSpan::null)
        return FromDays(0, null);
    if (m_status != valid || dateSpan.GetStatus() != COleDateTimeSpan::valid)
        return FromDays(0, invalid);
    return FromDays(Days() + dateSpan.m_span, valid);
}

COleDateTime COleDateTime::operator-(COleDateTimeSpan dateSpan) const noexcept
{
    return *this + -dateSpan;
}

COleDateTimeSpan COleDateTime::operator-(COleDateTime const & date) const noexcept
{
    COleDateTimeSpan span;
    if (m_status == null || date.m_status == null)
        span.SetStatus(COleDateTimeSpan::null);
    else if (m_status != valid || date.m_status != valid)
        span.SetStatus(COleDateTimeSpan::invalid);
    else
        span = Days() - date.Days();
    return span;
}

CString COleDateTime::Format(LPCTSTR lpszFormat) const
{
    if (m_status == null)
        return CString();
    Parts parts{};
    if (!GetParts(parts))
        return CString(_T("Invalid DateTime"));
    std::tm tm{};
    tm.tm_year = parts.year - 1900;
    tm.tm_mon = parts.month - 1;
    tm.tm_mday = parts.day;
    tm.tm_hour = parts.hour;
    tm.tm_min = parts.minute;
    tm.tm_sec = parts.second;
    tm.tm_wday = parts.dayOfWeek;
    tm.tm_yday = parts.dayOfYear - 1;
    tm.tm_isdst = -1;
    return framework::FormatTimeParts(lpszFormat, tm);
}

#if defined(_WIN32)
CString COleDateTimeSpan::Format(UINT nID) const
{
    CString format;
    if (!format.LoadString(nID))
        AfxThrowResourceException();
    return Format(format.GetString());
}

COleDateTime::COleDateTime(VARIANT const & varSrc) noexcept
{
    if (varSrc.vt == VT_NULL)
    {
        m_status = null;
        return;
    }
    VARIANT date;
    ::VariantInit(&date);
    if (FAILED(::VariantChangeType(&date, const_cast<VARIANT *>(&varSrc), 0, VT_DATE)))
    {
        m_status = invalid;
        return;
    }
    m_dt = date.date;
    CheckRange();
}

COleDateTime & COleDateTime::operator=(UDATE const & uDate) noexcept
{
    return *this = uDate.st;
}

bool COleDateTime::GetAsUDATE(UDATE & uDate) const noexcept
{
    Parts parts{};
    if (!GetParts(parts))
        return false;
    GetAsSystemTime(uDate.st);
    uDate.wDayOfYear = static_cast<USHORT>(parts.dayOfYear);
    return true;
}

CString COleDateTime::Format(UINT nFormatID) const
{
    CString format;
    if (!format.LoadString(nFormatID))
        AfxThrowResourceException();
    return Format(format.GetString());
}

CString COleDateTime::Format(DWORD dwFlags, LCID lcid) const
{
    if (m_status == null)
        return CString();
    BSTR text = nullptr;
    if (m_status != valid || FAILED(::VarBstrFromDate(m_dt, lcid, dwFlags, &text)))
        return CString(_T("Invalid DateTime"));
    CString const result(text, static_cast<int>(::SysStringLen(text)));
    ::SysFreeString(text);
    return result;
}

bool COleDateTime::ParseDateTime(LPCTSTR lpszDate, DWORD dwFlags, LCID lcid) noexcept
{
    HRESULT const result =
        ::VarDateFromStr(const_cast<LPOLESTR>(lpszDate != nullptr ? lpszDate : _T("")), lcid, dwFlags, &m_dt);
    m_status = SUCCEEDED(result) ? valid : invalid;
    if (FAILED(result))
        m_dt = result == DISP_E_TYPEMISMATCH ? 0 : -1;
    return SUCCEEDED(result);
}
#endif
} // namespace ATL

// The status, with four bytes, and the days.

CArchive & AFXAPI operator<<(CArchive & ar, ATL::COleDateTime dateSrc)
{
    return ar << static_cast<int>(dateSrc.m_status) << dateSrc.m_dt;
}

CArchive & AFXAPI operator>>(CArchive & ar, ATL::COleDateTime & dateSrc)
{
    int status = 0;
    ar >> status >> dateSrc.m_dt;
    bool const known = status >= ATL::COleDateTime::error && status <= ATL::COleDateTime::null;
    dateSrc.m_status = known ? static_cast<ATL::COleDateTime::DateTimeStatus>(status) : ATL::COleDateTime::invalid;
    return ar;
}

CArchive & AFXAPI operator<<(CArchive & ar, ATL::COleDateTimeSpan dateSpanSrc)
{
    return ar << static_cast<int>(dateSpanSrc.m_status) << dateSpanSrc.m_span;
}

CArchive & AFXAPI operator>>(CArchive & ar, ATL::COleDateTimeSpan & dateSpanSrc)
{
    int status = 0;
    double span = 0;
    ar >> status >> span;
    dateSpanSrc = span;
    if (status == ATL::COleDateTimeSpan::null)
        dateSpanSrc.SetStatus(ATL::COleDateTimeSpan::null);
    else if (status != ATL::COleDateTimeSpan::valid)
        dateSpanSrc.SetStatus(ATL::COleDateTimeSpan::invalid);
    return ar;
}
