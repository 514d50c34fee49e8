// CTime and CTimeSpan.

#include "framework_Support.h"

TEST(FrameworkTimeSpan, Parts)
{
    CTimeSpan const span(3, 4, 5, 6);
    EXPECT_EQ(3, span.GetDays());
    EXPECT_EQ(4, span.GetHours());
    EXPECT_EQ(5, span.GetMinutes());
    EXPECT_EQ(6, span.GetSeconds());
    EXPECT_EQ(76, span.GetTotalHours());
    EXPECT_EQ(76 * 60 + 5, span.GetTotalMinutes());
    EXPECT_EQ((76 * 60 + 5) * 60 + 6, span.GetTotalSeconds());
    EXPECT_EQ(span.GetTotalSeconds(), span.GetTimeSpan());
    EXPECT_EQ(0, CTimeSpan().GetTimeSpan());
}

TEST(FrameworkTimeSpan, NegativeParts)
{
    CTimeSpan const span(-90061);
    EXPECT_EQ(-1, span.GetDays());
    EXPECT_EQ(-1, span.GetHours());
    EXPECT_EQ(-1, span.GetMinutes());
    EXPECT_EQ(-1, span.GetSeconds());
}

TEST(FrameworkTimeSpan, Arithmetic)
{
    CTimeSpan span(60);
    span += CTimeSpan(30);
    span -= CTimeSpan(10);
    EXPECT_TRUE(span == CTimeSpan(80));
    EXPECT_TRUE(span + CTimeSpan(1) == CTimeSpan(81));
    EXPECT_TRUE(span - CTimeSpan(1) == CTimeSpan(79));
    EXPECT_TRUE(span != CTimeSpan(81));
    EXPECT_TRUE(span < CTimeSpan(81) && span <= CTimeSpan(80) && span > CTimeSpan(79) && span >= CTimeSpan(80));
}

TEST(FrameworkTimeSpan, LongSpansDoNotOverflow)
{
    EXPECT_EQ(100'000LL * 86400, CTimeSpan(100'000, 0, 0, 0).GetTotalSeconds());
}

TEST(FrameworkTimeSpan, Format)
{
    CTimeSpan const span(12, 3, 4, 5);
    EXPECT_STREQ(L"12 days 03:04:05 100%", span.Format(L"%D days %H:%M:%S 100%%"));
    EXPECT_STREQ(L"03", span.Format("%H"));
    EXPECT_STREQ(L"", span.Format(L""));
    EXPECT_INVALID_ARG(span.Format(L"%Y"));
    EXPECT_INVALID_ARG(span.Format(static_cast<LPCTSTR>(nullptr)));
}

TEST(FrameworkTime, PartsOfLocalTime)
{
    CTime const time(2024, 2, 29, 13, 14, 15);
    EXPECT_EQ(2024, time.GetYear());
    EXPECT_EQ(2, time.GetMonth());
    EXPECT_EQ(29, time.GetDay());
    EXPECT_EQ(13, time.GetHour());
    EXPECT_EQ(14, time.GetMinute());
    EXPECT_EQ(15, time.GetSecond());
    EXPECT_EQ(5, time.GetDayOfWeek());
}

TEST(FrameworkTime, InvalidParts)
{
    EXPECT_INVALID_ARG(CTime(1899, 1, 1, 0, 0, 0));
    EXPECT_INVALID_ARG(CTime(3001, 1, 1, 0, 0, 0));
    EXPECT_INVALID_ARG(CTime(1960, 1, 1, 0, 0, 0));
    EXPECT_INVALID_ARG(CTime(2024, 0, 1, 0, 0, 0));
    EXPECT_INVALID_ARG(CTime(2024, 13, 1, 0, 0, 0));
    EXPECT_INVALID_ARG(CTime(2024, 1, 0, 0, 0, 0));
    EXPECT_INVALID_ARG(CTime(2024, 1, 32, 0, 0, 0));
    EXPECT_INVALID_ARG(CTime(2024, 1, 1, 24, 0, 0));
    EXPECT_INVALID_ARG(CTime(2024, 1, 1, 0, 60, 0));
    EXPECT_INVALID_ARG(CTime(2024, 1, 1, 0, 0, 60));
    EXPECT_INVALID_ARG(CTime(2024, 1, 1, -1, 0, 0));
}

TEST(FrameworkTime, DayBehindTheMonthsEndMovesOn)
{
    CTime const time(2023, 2, 30, 0, 0, 0);
    EXPECT_EQ(3, time.GetMonth());
    EXPECT_EQ(2, time.GetDay());
}

TEST(FrameworkTime, FromDosDate)
{
    WORD const date = static_cast<WORD>(((2024 - 1980) << 9) | (5 << 5) | 17);
    WORD const clock = static_cast<WORD>((10 << 11) | (20 << 5) | (30 / 2));
    EXPECT_TRUE(CTime(date, clock) == CTime(2024, 5, 17, 10, 20, 30));
}

TEST(FrameworkTime, SystemTimeRoundTrip)
{
    CTime const time(2024, 5, 17, 10, 20, 30);
    SYSTEMTIME parts{};
    EXPECT_TRUE(time.GetAsSystemTime(parts));
    EXPECT_EQ(2024, parts.wYear);
    EXPECT_EQ(5, parts.wMonth);
    EXPECT_EQ(17, parts.wDay);
    EXPECT_EQ(5, parts.wDayOfWeek);
    EXPECT_EQ(10, parts.wHour);
    EXPECT_EQ(20, parts.wMinute);
    EXPECT_EQ(30, parts.wSecond);
    EXPECT_EQ(0, parts.wMilliseconds);
    EXPECT_TRUE(CTime(parts) == time);
    EXPECT_EQ(0, CTime(SYSTEMTIME{}).GetTime());
    parts.wMonth = 13;
    EXPECT_INVALID_ARG(CTime{parts});
}

TEST(FrameworkTime, FromFileTime)
{
    ULONGLONG const units = (1'700'000'000ULL + 11'644'473'600ULL) * 10'000'000ULL;
    FILETIME const file{static_cast<DWORD>(units), static_cast<DWORD>(units >> 32)};
    EXPECT_EQ(1'700'000'000, CTime(file).GetTime());
    EXPECT_EQ(0, CTime(FILETIME{0, 0}).GetTime());
}

TEST(FrameworkTime, ArithmeticAndOrder)
{
    CTime const base(__time64_t{1'000'000});
    EXPECT_EQ(1'000'060, (base + CTimeSpan(60)).GetTime());
    EXPECT_EQ(999'940, (base - CTimeSpan(60)).GetTime());
    EXPECT_TRUE((base + CTimeSpan(5)) - base == CTimeSpan(5));
    CTime time = base;
    time += CTimeSpan(10);
    time -= CTimeSpan(3);
    EXPECT_EQ(1'000'007, time.GetTime());
    EXPECT_TRUE(base < time && base <= time && time > base && time >= base && time != base);
    time = 1'000'000;
    EXPECT_TRUE(time == base);
}

TEST(FrameworkTime, FormatGmt)
{
    CTime const time(__time64_t{1'700'000'000});
    EXPECT_STREQ(L"2023-11-14 22:13:20", time.FormatGmt(L"%Y-%m-%d %H:%M:%S"));
    EXPECT_STREQ(L"100%", time.FormatGmt(L"100%%"));
    EXPECT_STREQ(L"", time.FormatGmt(L""));
    EXPECT_INVALID_ARG(time.FormatGmt(static_cast<LPCTSTR>(nullptr)));
    EXPECT_EQ(5000, time.FormatGmt(CString(L'x', 5000)).GetLength());
}

TEST(FrameworkTime, FormatIsLocal)
{
    EXPECT_STREQ(L"17.05.2024 10:20:30", CTime(2024, 5, 17, 10, 20, 30).Format(L"%d.%m.%Y %H:%M:%S"));
    EXPECT_STREQ(L"Fri 138", CTime(2024, 5, 17, 10, 20, 30).Format(L"%a %j"));
}

TEST(FrameworkTime, DirectivesAreTheSameEverywhere)
{
    CTime const time(2024, 5, 7, 9, 2, 3);
    EXPECT_STREQ(L"2024-05-07 09:02:03", time.Format(L"%F %T"));
    EXPECT_STREQ(L"05/07/24 09:02 20", time.Format(L"%D %R %C"));
    EXPECT_STREQ(L"[ 7] 2 May", time.Format(L"[%e] %u %h"));
    EXPECT_STREQ(L"7.5.2024 9:2:3", time.Format(L"%#d.%#m.%Y %#H:%#M:%#S"));
    EXPECT_STREQ(L"09:02:03 AM\t\n", time.Format(L"%r%t%n"));
    EXPECT_INVALID_ARG(time.Format(L"%Q"));
    EXPECT_INVALID_ARG(time.Format(L"%"));
}

TEST(FrameworkTime, IsoWeekBelongsToTheYearOfItsThursday)
{
    EXPECT_STREQ(L"2020-53 20", CTime(2021, 1, 3, 12, 0, 0).Format(L"%G-%V %g"));
    EXPECT_STREQ(L"2021-01", CTime(2021, 1, 4, 12, 0, 0).Format(L"%G-%V"));
    EXPECT_STREQ(L"2025-01", CTime(2024, 12, 30, 12, 0, 0).Format(L"%G-%V"));
    EXPECT_STREQ(L"2024-52", CTime(2024, 12, 29, 12, 0, 0).Format(L"%G-%V"));
}

TEST(FrameworkTime, CalendarParts)
{
    std::tm parts{};
    CTime const time(__time64_t{1'700'000'000});
    ASSERT_EQ(&parts, time.GetGmtTm(&parts));
    EXPECT_EQ(2023 - 1900, parts.tm_year);
    EXPECT_EQ(22, parts.tm_hour);
    ASSERT_EQ(&parts, CTime(2024, 5, 17, 10, 20, 30).GetLocalTm(&parts));
    EXPECT_EQ(10, parts.tm_hour);
    EXPECT_INVALID_ARG(time.GetGmtTm(nullptr));
    EXPECT_INVALID_ARG(time.GetLocalTm(nullptr));
}

TEST(FrameworkTime, TimesWithoutADate)
{
    std::tm parts{};
    SYSTEMTIME system{};
    CTime const early(__time64_t{-1});
    CTime const late(__time64_t{32'535'216'000});
    EXPECT_EQ(nullptr, early.GetGmtTm(&parts));
    EXPECT_EQ(nullptr, late.GetLocalTm(&parts));
    EXPECT_FALSE(early.GetAsSystemTime(system));
    EXPECT_EQ(0, early.GetYear());
    EXPECT_INVALID_ARG(early.Format(L"%Y"));
    EXPECT_INVALID_ARG(late.FormatGmt(L"%Y"));
}

TEST(FrameworkTime, CurrentTimeRuns)
{
    CTime const before = CTime::GetCurrentTime();
    EXPECT_GT(before.GetTime(), 1'600'000'000);
    EXPECT_TRUE(CTime::GetCurrentTime() >= before);
    EXPECT_EQ(0, CTime().GetTime());
}
