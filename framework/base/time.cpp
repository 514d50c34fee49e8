// CTime and CTimeSpan.

#include "afx.h"

#include <cwchar>
#include <iterator>

#include "TimeText.h"

namespace
{
// 3000-12-31 23:59:59, the last moment that has a date.
constexpr __time64_t last_time = 32535215999;
// 1601-01-01 and 1900-01-01, seen from 1970, in seconds.
constexpr long long file_time_epoch = -11644473600LL;
constexpr long long year_1900 = -2208988800LL;
constexpr unsigned long long file_time_units_per_second = 10'000'000;

bool HasDate(__time64_t time)
{
    return time >= 0 && time <= last_time;
}

bool ToLocal(__time64_t time, std::tm & parts)
{
#if defined(_WIN32)
    return HasDate(time) && _localtime64_s(&parts, &time) == 0;
#else
    std::time_t const plain = time;
    return HasDate(time) && ::localtime_r(&plain, &parts) != nullptr;
#endif
}

bool ToGmt(__time64_t time, std::tm & parts)
{
#if defined(_WIN32)
    return HasDate(time) && _gmtime64_s(&parts, &time) == 0;
#else
    std::time_t const plain = time;
    return HasDate(time) && ::gmtime_r(&plain, &parts) != nullptr;
#endif
}

__time64_t FromLocal(int year, int month, int day, int hour, int minute, int second, int dst)
{
    bool const valid = year >= 1900 && year <= 3000 && month >= 1 && month <= 12 && day >= 1 && day <= 31 &&
                       hour >= 0 && hour <= 23 && minute >= 0 && minute <= 59 && second >= 0 && second <= 59;
    if (!valid)
        AfxThrowInvalidArgException();
    std::tm parts{};
    parts.tm_year = year - 1900;
    parts.tm_mon = month - 1;
    parts.tm_mday = day;
    parts.tm_hour = hour;
    parts.tm_min = minute;
    parts.tm_sec = second;
    parts.tm_isdst = dst;
#if defined(_WIN32)
    __time64_t const time = _mktime64(&parts);
#else
    __time64_t const time = std::mktime(&parts);
#endif
    if (time < 0)
        AfxThrowInvalidArgException();
    return time;
}

int DaysOfYear(int year)
{
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0 ? 366 : 365;
}

// The ISO 8601 year and week: those of the week's Thursday.
void IsoWeek(std::tm const & parts, int & year, int & week)
{
    int const weekday = parts.tm_wday == 0 ? 7 : parts.tm_wday;
    int thursday = parts.tm_yday + 4 - weekday;
    year = parts.tm_year + 1900;
    if (thursday < 0)
        thursday += DaysOfYear(--year);
    else if (thursday >= DaysOfYear(year))
        thursday -= DaysOfYear(year++);
    week = thursday / 7 + 1;
}

// One directive of those that every C library has. The flag # drops leading zeros.
CString FormatSimple(wchar_t directive, bool plain, std::tm const & parts)
{
#if defined(_WIN32)
    // The library knows no year before 1900. With those that come here, no directive shows it.
    std::tm known = parts;
    known.tm_year = known.tm_year < 0 ? 0 : known.tm_year;
    wchar_t const format[] = {L'%', plain ? L'#' : directive, plain ? directive : L'\0', L'\0'};
#else
    wchar_t const format[] = {L'%', directive, L'\0'};
#endif
    wchar_t room[256] = {};
#if defined(_WIN32)
    size_t const length = std::wcsftime(room, std::size(room), format, &known);
#else
    size_t const length = std::wcsftime(room, std::size(room), format, &parts);
#endif
    CString text(room, static_cast<int>(length));
#if !defined(_WIN32)
    if (plain && std::wcschr(L"dHIjmMSUwWyY", directive) != nullptr)
    {
        text.TrimLeft(L'0');
        return text.IsEmpty() ? CString(L'0') : text;
    }
#endif
    return text;
}

CString FormatParts(LPCTSTR format, std::tm const & parts);

CString FormatDirective(wchar_t directive, bool plain, std::tm const & parts)
{
    int year = 0;
    int week = 0;
    IsoWeek(parts, year, week);
    CString text;
    switch (directive)
    {
    case '%':
        return CString(L'%');
    case 'n':
        return CString(L'\n');
    case 't':
        return CString(L'\t');
    case 'D':
        return FormatParts(L"%m/%d/%y", parts);
    case 'F':
        return FormatParts(L"%Y-%m-%d", parts);
    case 'R':
        return FormatParts(L"%H:%M", parts);
    case 'T':
        return FormatParts(L"%H:%M:%S", parts);
    case 'r':
        return FormatParts(L"%I:%M:%S %p", parts);
    case 'h':
        return FormatSimple(L'b', plain, parts);
    case 'e':
        text.Format(L"%2d", parts.tm_mday);
        return text;
    case 'C':
        text.Format(L"%02d", (parts.tm_year + 1900) / 100);
        return text;
    case 'u':
        text.Format(L"%d", parts.tm_wday == 0 ? 7 : parts.tm_wday);
        return text;
    case 'G':
        text.Format(L"%04d", year);
        return text;
    case 'g':
        text.Format(L"%02d", year % 100);
        return text;
    case 'V':
        text.Format(L"%02d", week);
        return text;
    default:
        if (parts.tm_year < 0 && (directive == 'Y' || directive == 'y'))
        {
            text.Format(directive == 'Y' ? L"%d" : L"%02d", (parts.tm_year + 1900) % (directive == 'Y' ? 10000 : 100));
            return text;
        }
        if (parts.tm_year < 0 && (directive == 'c' || directive == 'x'))
            return FormatParts(directive == 'c' ? L"%m/%d/%Y %H:%M:%S" : L"%m/%d/%Y", parts);
        if (directive == 0 || std::wcschr(L"aAbBcdHIjmMpSUwWxXyYzZ", directive) == nullptr)
            AfxThrowInvalidArgException();
        return FormatSimple(directive, plain, parts);
    }
}

CString FormatParts(LPCTSTR format, std::tm const & parts)
{
    if (format == nullptr)
        AfxThrowInvalidArgException();
    CString result;
    for (LPCTSTR at = format; *at != 0; ++at)
    {
        if (*at != '%')
        {
            result += *at;
            continue;
        }
        ++at;
        bool const plain = *at == '#';
        if (plain)
            ++at;
        result += FormatDirective(*at, plain, parts);
    }
    return result;
}

int LocalPart(__time64_t time, int std::tm::*part, int offset)
{
    std::tm parts{};
    return ToLocal(time, parts) ? parts.*part + offset : 0;
}

#if defined(_WIN32)
CString LoadFormat(UINT id)
{
    CString format;
    if (!format.LoadString(id))
        AfxThrowInvalidArgException();
    return format;
}
#endif
} // namespace

namespace framework
{
CString FormatTimeParts(LPCTSTR format, std::tm const & parts)
{
    return FormatParts(format, parts);
}
} // namespace framework

namespace ATL
{
CString CTimeSpan::Format(LPCTSTR pszFormat) const
{
    if (pszFormat == nullptr)
        AfxThrowInvalidArgException();
    CString result;
    for (LPCTSTR at = pszFormat; *at != 0; ++at)
    {
        if (*at != '%')
        {
            result += *at;
            continue;
        }
        switch (*++at)
        {
        case '%':
            result += _T('%');
            break;
        case 'D':
            result.AppendFormat(_T("%I64d"), GetDays());
            break;
        case 'H':
            result.AppendFormat(_T("%02d"), static_cast<int>(GetHours()));
            break;
        case 'M':
            result.AppendFormat(_T("%02d"), static_cast<int>(GetMinutes()));
            break;
        case 'S':
            result.AppendFormat(_T("%02d"), static_cast<int>(GetSeconds()));
            break;
        default:
            AfxThrowInvalidArgException();
        }
    }
    return result;
}

CString CTimeSpan::Format(LPCSTR pFormat) const
{
    if (pFormat == nullptr)
        AfxThrowInvalidArgException();
    return Format(CString(pFormat).GetString());
}

CTime WINAPI CTime::GetCurrentTime() noexcept
{
    return CTime(static_cast<__time64_t>(std::time(nullptr)));
}

CTime::CTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec, int nDST)
    : m_time(FromLocal(nYear, nMonth, nDay, nHour, nMin, nSec, nDST))
{
}

CTime::CTime(WORD wDosDate, WORD wDosTime, int nDST)
    : m_time(FromLocal((wDosDate >> 9) + 1980, (wDosDate >> 5) & 0x0F, wDosDate & 0x1F, wDosTime >> 11,
                       (wDosTime >> 5) & 0x3F, (wDosTime & 0x1F) * 2, nDST))
{
}

CTime::CTime(SYSTEMTIME const & st, int nDST)
    : m_time(st.wYear < 1900 ? 0 : FromLocal(st.wYear, st.wMonth, st.wDay, st.wHour, st.wMinute, st.wSecond, nDST))
{
}

CTime::CTime(FILETIME const & ft, int) : m_time(0)
{
    unsigned long long const units = (static_cast<unsigned long long>(ft.dwHighDateTime) << 32) | ft.dwLowDateTime;
    long long const seconds = static_cast<long long>(units / file_time_units_per_second) + file_time_epoch;
    if (seconds < year_1900)
        return;
    if (!HasDate(seconds))
        AfxThrowInvalidArgException();
    m_time = seconds;
}

struct tm * CTime::GetGmtTm(struct tm * ptm) const
{
    if (ptm == nullptr)
        AfxThrowInvalidArgException();
    return ToGmt(m_time, *ptm) ? ptm : nullptr;
}

struct tm * CTime::GetLocalTm(struct tm * ptm) const
{
    if (ptm == nullptr)
        AfxThrowInvalidArgException();
    return ToLocal(m_time, *ptm) ? ptm : nullptr;
}

bool CTime::GetAsSystemTime(SYSTEMTIME & st) const noexcept
{
    std::tm parts{};
    if (!ToLocal(m_time, parts))
        return false;
    st.wYear = static_cast<WORD>(parts.tm_year + 1900);
    st.wMonth = static_cast<WORD>(parts.tm_mon + 1);
    st.wDayOfWeek = static_cast<WORD>(parts.tm_wday);
    st.wDay = static_cast<WORD>(parts.tm_mday);
    st.wHour = static_cast<WORD>(parts.tm_hour);
    st.wMinute = static_cast<WORD>(parts.tm_min);
    st.wSecond = static_cast<WORD>(parts.tm_sec);
    st.wMilliseconds = 0;
    return true;
}

int CTime::GetYear() const noexcept
{
    return LocalPart(m_time, &std::tm::tm_year, 1900);
}

int CTime::GetMonth() const noexcept
{
    return LocalPart(m_time, &std::tm::tm_mon, 1);
}

int CTime::GetDay() const noexcept
{
    return LocalPart(m_time, &std::tm::tm_mday, 0);
}

int CTime::GetHour() const noexcept
{
    return LocalPart(m_time, &std::tm::tm_hour, 0);
}

int CTime::GetMinute() const noexcept
{
    return LocalPart(m_time, &std::tm::tm_min, 0);
}

int CTime::GetSecond() const noexcept
{
    return LocalPart(m_time, &std::tm::tm_sec, 0);
}

int CTime::GetDayOfWeek() const noexcept
{
    return LocalPart(m_time, &std::tm::tm_wday, 1);
}

CString CTime::Format(LPCTSTR pszFormat) const
{
    std::tm parts{};
    if (!ToLocal(m_time, parts))
        AfxThrowInvalidArgException();
    return FormatParts(pszFormat, parts);
}

CString CTime::FormatGmt(LPCTSTR pszFormat) const
{
    std::tm parts{};
    if (!ToGmt(m_time, parts))
        AfxThrowInvalidArgException();
    return FormatParts(pszFormat, parts);
}

#if defined(_WIN32)
CString CTimeSpan::Format(UINT nID) const
{
    return Format(LoadFormat(nID).GetString());
}

CString CTime::Format(UINT nFormatID) const
{
    return Format(LoadFormat(nFormatID).GetString());
}

CString CTime::FormatGmt(UINT nFormatID) const
{
    return FormatGmt(LoadFormat(nFormatID).GetString());
}
#endif
} // namespace ATL
