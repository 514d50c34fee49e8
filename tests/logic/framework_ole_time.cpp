// COleDateTime and COleDateTimeSpan.

#include <atlcomtime.h>

#include <cmath>
#include <limits>

#include "framework_Support.h"

namespace
{
struct Moment
{
    double days;
    int year;
    int month;
    int day;
    int hour;
    int minute;
    int second;
    int dayOfWeek;
    int dayOfYear;
};

// Numbers of the documented calendar: 0 is 1899-12-30, 2 is 1900-01-01.
Moment const moments[] = {
    {0, 1899, 12, 30, 0, 0, 0, 7, 364},       {0.25, 1899, 12, 30, 6, 0, 0, 7, 364},
    {1, 1899, 12, 31, 0, 0, 0, 1, 365},       {2, 1900, 1, 1, 0, 0, 0, 2, 1},
    {2.5, 1900, 1, 1, 12, 0, 0, 2, 1},        {4.5, 1900, 1, 3, 12, 0, 0, 4, 3},
    {-1, 1899, 12, 29, 0, 0, 0, 6, 363},      {-1.25, 1899, 12, 29, 6, 0, 0, 6, 363},
    {-1.75, 1899, 12, 29, 18, 0, 0, 6, 363},  {60, 1900, 2, 28, 0, 0, 0, 4, 59},
    {61, 1900, 3, 1, 0, 0, 0, 5, 60},         {25569, 1970, 1, 1, 0, 0, 0, 5, 1},
    {36526, 2000, 1, 1, 0, 0, 0, 7, 1},       {36585, 2000, 2, 29, 0, 0, 0, 3, 60},
    {36891, 2000, 12, 31, 0, 0, 0, 1, 366},   {45351, 2024, 2, 29, 0, 0, 0, 5, 60},
    {-657434, 100, 1, 1, 0, 0, 0, 6, 1},      {-657434.75, 100, 1, 1, 18, 0, 0, 6, 1},
    {2958465, 9999, 12, 31, 0, 0, 0, 6, 365}, {2958465.5, 9999, 12, 31, 12, 0, 0, 6, 365},
};
} // namespace

TEST(FrameworkOleTime, StartsAtDayZero)
{
    COleDateTime const date;
    EXPECT_EQ(date.m_dt, 0);
    EXPECT_EQ(date.GetStatus(), COleDateTime::valid);
    EXPECT_EQ(date.GetYear(), 1899);
}

TEST(FrameworkOleTime, TellsPartsOfDays)
{
    for (Moment const & moment : moments)
    {
        COleDateTime const date(moment.days);
        SCOPED_TRACE(moment.days);
        EXPECT_EQ(date.GetStatus(), COleDateTime::valid);
        EXPECT_EQ(date.GetYear(), moment.year);
        EXPECT_EQ(date.GetMonth(), moment.month);
        EXPECT_EQ(date.GetDay(), moment.day);
        EXPECT_EQ(date.GetHour(), moment.hour);
        EXPECT_EQ(date.GetMinute(), moment.minute);
        EXPECT_EQ(date.GetSecond(), moment.second);
        EXPECT_EQ(date.GetDayOfWeek(), moment.dayOfWeek);
        EXPECT_EQ(date.GetDayOfYear(), moment.dayOfYear);
        SYSTEMTIME parts{};
        EXPECT_TRUE(date.GetAsSystemTime(parts));
        EXPECT_EQ(parts.wYear, moment.year);
        EXPECT_EQ(parts.wDayOfWeek, moment.dayOfWeek - 1);
        EXPECT_EQ(parts.wHour, moment.hour);
    }
}

TEST(FrameworkOleTime, MakesDaysOfParts)
{
    for (Moment const & moment : moments)
    {
        COleDateTime const date(moment.year, moment.month, moment.day, moment.hour, moment.minute, moment.second);
        EXPECT_EQ(date.GetStatus(), COleDateTime::valid);
        EXPECT_EQ(date.m_dt, moment.days);
    }
}

TEST(FrameworkOleTime, EverySecondOfADayComesBackOnBothSidesOfDayZero)
{
    for (int const year : {100, 1899, 2024, 9999})
    {
        for (int second = 0; second < 86400; second += 7)
        {
            COleDateTime const date(year, 3, 1, second / 3600, second / 60 % 60, second % 60);
            ASSERT_EQ(date.GetHour() * 3600 + date.GetMinute() * 60 + date.GetSecond(), second) << year;
            ASSERT_EQ(date.GetDay(), 1) << year << ' ' << second;
        }
    }
}

TEST(FrameworkOleTime, EveryDayFollowsTheOneBefore)
{
    int year = 100;
    int month = 1;
    int day = 0;
    for (int number = -657434; number <= 2958465; ++number)
    {
        bool const leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
        int const days[] = {31, leap ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
        if (++day > days[month - 1])
        {
            day = 1;
            year += month == 12 ? 1 : 0;
            month = month % 12 + 1;
        }
        COleDateTime const date(static_cast<DATE>(number));
        SYSTEMTIME parts{};
        date.GetAsSystemTime(parts);
        ASSERT_TRUE(parts.wYear == year && parts.wMonth == month && parts.wDay == day) << number;
    }
    EXPECT_EQ(year, 9999);
}

TEST(FrameworkOleTime, WhatIsNoMomentIsInvalid)
{
    COleDateTime date(2024, 5, 6, 7, 8, 9);
    EXPECT_EQ(date.SetDateTime(2023, 2, 29, 0, 0, 0), 1);
    EXPECT_EQ(date.GetStatus(), COleDateTime::invalid);
    EXPECT_EQ(date.GetYear(), -1);
    EXPECT_EQ(date.GetMonth(), -1);
    EXPECT_EQ(date.GetDay(), -1);
    EXPECT_EQ(date.GetHour(), -1);
    EXPECT_EQ(date.GetMinute(), -1);
    EXPECT_EQ(date.GetSecond(), -1);
    EXPECT_EQ(date.GetDayOfWeek(), -1);
    EXPECT_EQ(date.GetDayOfYear(), -1);
    SYSTEMTIME parts{};
    EXPECT_FALSE(date.GetAsSystemTime(parts));
    EXPECT_EQ(date.Format(L"%Y"), L"Invalid DateTime");

    EXPECT_EQ(date.SetDate(2024, 2, 29), 0);
    EXPECT_EQ(date.GetStatus(), COleDateTime::valid);
    EXPECT_EQ(date.SetDate(1900, 2, 29), 1);
    EXPECT_EQ(date.SetDate(99, 1, 1), 1);
    EXPECT_EQ(date.SetDate(10000, 1, 1), 1);
    EXPECT_EQ(date.SetDate(2024, 0, 1), 1);
    EXPECT_EQ(date.SetDate(2024, 13, 1), 1);
    EXPECT_EQ(date.SetDate(2024, 1, 0), 1);
    EXPECT_EQ(date.SetTime(24, 0, 0), 1);
    EXPECT_EQ(date.SetTime(0, 60, 0), 1);
    EXPECT_EQ(date.SetTime(0, 0, -1), 1);
    EXPECT_EQ(date.SetTime(18, 0, 0), 0);
    EXPECT_EQ(date.m_dt, 0.75);

    EXPECT_EQ(COleDateTime(2958466.0).GetStatus(), COleDateTime::invalid);
    EXPECT_EQ(COleDateTime(-657435.0).GetStatus(), COleDateTime::invalid);
    EXPECT_EQ(COleDateTime(std::numeric_limits<double>::quiet_NaN()).GetStatus(), COleDateTime::invalid);
    EXPECT_EQ(COleDateTime(std::numeric_limits<double>::infinity()).GetStatus(), COleDateTime::invalid);
    COleDateTime forced(1e300);
    forced.SetStatus(COleDateTime::valid);
    EXPECT_EQ(forced.GetYear(), -1);
    // Half a second before the end of the calendar rounds to a day that isn't there.
    EXPECT_EQ(COleDateTime(2958465.999999).GetYear(), -1);
}

TEST(FrameworkOleTime, NullStaysNull)
{
    COleDateTime null;
    null.SetStatus(COleDateTime::null);
    EXPECT_EQ(null.GetYear(), -1);
    EXPECT_EQ(null.Format(L"%Y"), L"");
    COleDateTimeSpan nullSpan;
    nullSpan.SetStatus(COleDateTimeSpan::null);
    EXPECT_EQ(nullSpan.Format(L"%D"), L"");
    COleDateTime const date(2024, 1, 1, 0, 0, 0);
    EXPECT_EQ((null + COleDateTimeSpan(1.0)).GetStatus(), COleDateTime::null);
    EXPECT_EQ((date - nullSpan).GetStatus(), COleDateTime::null);
    EXPECT_EQ((date - null).GetStatus(), COleDateTimeSpan::null);
    EXPECT_EQ((nullSpan + COleDateTimeSpan(1.0)).GetStatus(), COleDateTimeSpan::null);
    COleDateTime invalid;
    invalid.SetStatus(COleDateTime::invalid);
    EXPECT_EQ((invalid + COleDateTimeSpan(1.0)).GetStatus(), COleDateTime::invalid);
    EXPECT_EQ((invalid + nullSpan).GetStatus(), COleDateTime::null);
    EXPECT_EQ((date - invalid).GetStatus(), COleDateTimeSpan::invalid);
    EXPECT_FALSE(null == COleDateTime());
}

TEST(FrameworkOleTime, IsComparedAcrossDayZero)
{
    COleDateTime const morning(-1.25);
    COleDateTime const evening(-1.75);
    COleDateTime const next(0.25);
    EXPECT_TRUE(morning < evening);
    EXPECT_TRUE(evening < next);
    EXPECT_TRUE(next > morning);
    EXPECT_TRUE(morning <= morning);
    EXPECT_TRUE(evening >= morning);
    EXPECT_TRUE(morning == COleDateTime(1899, 12, 29, 6, 0, 0));
    EXPECT_TRUE(morning != evening);
}

TEST(FrameworkOleTime, AddsAndSubtractsAcrossDayZero)
{
    COleDateTime const date(1899, 12, 29, 18, 0, 0);
    COleDateTimeSpan const half(0.5);
    COleDateTime const later = date + half;
    EXPECT_EQ(later.m_dt, 0.25);
    EXPECT_EQ((later - half).m_dt, -1.75);
    EXPECT_EQ((later - date).m_span, 0.5);
    EXPECT_EQ((date - later).m_span, -0.5);
    COleDateTime moved = date;
    moved += COleDateTimeSpan(3, 0, 0, 0);
    EXPECT_EQ(moved, COleDateTime(1900, 1, 1, 18, 0, 0));
    moved -= COleDateTimeSpan(3, 0, 0, 0);
    EXPECT_EQ(moved, date);
    EXPECT_EQ((COleDateTime(9999, 12, 31, 0, 0, 0) + COleDateTimeSpan(1.0)).GetStatus(), COleDateTime::invalid);
    EXPECT_EQ((COleDateTime(100, 1, 1, 0, 0, 0) - COleDateTimeSpan(1.0)).GetStatus(), COleDateTime::invalid);
}

TEST(FrameworkOleTime, ComesFromOtherTimes)
{
    CTime const time(2001, 2, 3, 4, 5, 6);
    EXPECT_EQ(COleDateTime(time.GetTime()), COleDateTime(2001, 2, 3, 4, 5, 6));
    SYSTEMTIME parts{};
    time.GetAsSystemTime(parts);
    COleDateTime date;
    date = parts;
    EXPECT_EQ(date, COleDateTime(2001, 2, 3, 4, 5, 6));
    EXPECT_EQ(COleDateTime(static_cast<WORD>((21 << 9) | (2 << 5) | 3), static_cast<WORD>((4 << 11) | (5 << 5) | 3)),
              date);
    EXPECT_EQ(COleDateTime(static_cast<__time64_t>(-1)).GetStatus(), COleDateTime::invalid);
    parts.wMonth = 13;
    date = parts;
    EXPECT_EQ(date.GetStatus(), COleDateTime::invalid);
    ULONGLONG const units = (static_cast<ULONGLONG>(time.GetTime()) + 11644473600ULL) * 10'000'000;
    FILETIME const stamp{static_cast<DWORD>(units), static_cast<DWORD>(units >> 32)};
    EXPECT_EQ(COleDateTime(stamp).GetYear(), 2001);
    EXPECT_EQ(COleDateTime(stamp).GetMinute(), 5);
    COleDateTime const before(CTime::GetCurrentTime().GetTime());
    COleDateTime const now = COleDateTime::GetCurrentTime();
    EXPECT_GE(now, before);
}

TEST(FrameworkOleTime, IsWrittenAsText)
{
    COleDateTime const date(2024, 2, 29, 13, 4, 5);
    EXPECT_EQ(date.Format(L"%Y-%m-%d %H:%M:%S %j %w"), L"2024-02-29 13:04:05 060 4");
    EXPECT_EQ(COleDateTime(1776, 7, 4, 1, 2, 3).Format(L"%Y-%m-%d %H:%M:%S %y %A"), L"1776-07-04 01:02:03 76 Thursday");
    EXPECT_EQ(COleDateTime(100, 1, 1, 0, 0, 0).Format(L"%Y"), L"100");
    EXPECT_EQ(COleDateTime(9999, 12, 31, 0, 0, 0).Format(L"%d.%m.%Y"), L"31.12.9999");
}

TEST(FrameworkOleTimeSpan, TellsWholeUnits)
{
    COleDateTimeSpan const span(3, 12, 30, 15);
    EXPECT_EQ(span.GetDays(), 3);
    EXPECT_EQ(span.GetHours(), 12);
    EXPECT_EQ(span.GetMinutes(), 30);
    EXPECT_EQ(span.GetSeconds(), 15);
    EXPECT_EQ(span.GetTotalDays(), span.m_span);
    EXPECT_EQ(span.GetTotalHours(), 84);
    EXPECT_EQ(span.GetTotalMinutes(), 84 * 60 + 30);
    EXPECT_EQ(span.GetTotalSeconds(), (84 * 60 + 30) * 60 + 15);
    COleDateTimeSpan const negative = -span;
    EXPECT_EQ(negative.GetDays(), -3);
    EXPECT_EQ(negative.GetHours(), -12);
    EXPECT_EQ(negative.GetSeconds(), -15);
    EXPECT_EQ(static_cast<double>(COleDateTimeSpan(1.5)), 1.5);
}

TEST(FrameworkOleTimeSpan, EverySecondCounts)
{
    for (int second = 0; second < 86400; second += 11)
    {
        COleDateTimeSpan const span(2, 0, 0, second);
        ASSERT_EQ(span.GetHours() * 3600 + span.GetMinutes() * 60 + span.GetSeconds(), second);
        ASSERT_EQ(span.GetDays(), 2);
    }
}

TEST(FrameworkOleTimeSpan, ComputesAndCompares)
{
    COleDateTimeSpan const day(1.0);
    COleDateTimeSpan span = day + COleDateTimeSpan(0.5);
    EXPECT_EQ(span.m_span, 1.5);
    span -= day;
    EXPECT_EQ(span.m_span, 0.5);
    span += day;
    EXPECT_TRUE(span > day);
    EXPECT_TRUE(day < span);
    EXPECT_TRUE(day <= day);
    EXPECT_TRUE(day >= day);
    EXPECT_TRUE(day == COleDateTimeSpan(1, 0, 0, 0));
    EXPECT_TRUE(day != span);
    span = 2.0;
    EXPECT_EQ(span.GetDays(), 2);
}

TEST(FrameworkOleTimeSpan, BeyondTheCalendarIsInvalid)
{
    EXPECT_EQ(COleDateTimeSpan(3615897.0).GetStatus(), COleDateTimeSpan::valid);
    EXPECT_EQ(COleDateTimeSpan(3615898.0).GetStatus(), COleDateTimeSpan::invalid);
    EXPECT_EQ((COleDateTimeSpan(3000000.0) + COleDateTimeSpan(3000000.0)).GetStatus(), COleDateTimeSpan::invalid);
    EXPECT_EQ(COleDateTimeSpan(1e300).Format(L"%D"), L"Invalid DateTimeSpan");
}

TEST(FrameworkOleTimeSpan, IsWrittenAsText)
{
    EXPECT_EQ(COleDateTimeSpan(3, 4, 5, 6).Format(L"%D days %H:%M:%S %%"), L"3 days 04:05:06 %");
}

TEST(FrameworkOleTime, IsArchivedWithItsStatus)
{
    CMemFile file;
    COleDateTime date(2.5);
    COleDateTimeSpan span(-1.5);
    span.SetStatus(COleDateTimeSpan::null);
    {
        CArchive ar(&file, CArchive::store);
        ar << date << span;
    }
    BYTE const expected[] = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 4, 0x40, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xF8, 0xBF};
    ASSERT_EQ(file.GetLength(), sizeof(expected));
    BYTE bytes[sizeof(expected)] = {};
    file.SeekToBegin();
    file.Read(bytes, sizeof(bytes));
    EXPECT_EQ(std::memcmp(bytes, expected, sizeof(expected)), 0);
    date = 0.0;
    span = 0.0;
    file.SeekToBegin();
    CArchive ar(&file, CArchive::load);
    ar >> date >> span;
    EXPECT_EQ(date, COleDateTime(2.5));
    EXPECT_EQ(span.m_span, -1.5);
    EXPECT_EQ(span.GetStatus(), COleDateTimeSpan::null);
}

TEST(FrameworkOleTime, ArchiveWithoutSenseIsInvalid)
{
    BYTE bytes[] = {9, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xF0, 0x7F, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xF0, 0x7F};
    CMemFile file(bytes, sizeof(bytes));
    CArchive ar(&file, CArchive::load);
    COleDateTime date;
    COleDateTimeSpan span;
    ar >> date >> span;
    EXPECT_EQ(date.GetStatus(), COleDateTime::invalid);
    EXPECT_EQ(span.GetStatus(), COleDateTimeSpan::invalid);
}
