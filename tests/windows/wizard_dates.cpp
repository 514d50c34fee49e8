// Controls for dates and times, and for silent films.

#include <afxdtctl.h>

#include <gtest/gtest.h>

#include "Pump.h"
#include "ScopedWindow.h"

namespace
{
constexpr UINT control_id = 7;
constexpr DWORD shown = WS_CHILD | WS_VISIBLE;
CRect const place(10, 10, 250, 200);

class WizardDateTime : public testing::Test
{
protected:
    void Create(DWORD style = 0)
    {
        ASSERT_TRUE(m_control.Create(shown | style, CRect(10, 10, 200, 40), &m_host, control_id));
    }

    tests::ScopedWindow m_host;
    CDateTimeCtrl m_control;
};

class WizardMonthCalendar : public testing::Test
{
protected:
    void Create(DWORD style = 0) { ASSERT_TRUE(m_control.Create(shown | style, place, &m_host, control_id)); }

    tests::ScopedWindow m_host;
    CMonthCalCtrl m_control;
};
} // namespace

TEST_F(WizardDateTime, TakesEachKindOfTime)
{
    Create();
    CTime const time(2024, 2, 29, 13, 14, 15);
    EXPECT_TRUE(m_control.SetTime(&time));
    CTime again;
    EXPECT_EQ(m_control.GetTime(again), static_cast<DWORD>(GDT_VALID));
    EXPECT_TRUE(again == time);
    EXPECT_TRUE(m_control.SetTime(COleDateTime(2001, 2, 3, 4, 5, 6)));
    COleDateTime date;
    EXPECT_TRUE(m_control.GetTime(date));
    EXPECT_EQ(date, COleDateTime(2001, 2, 3, 4, 5, 6));
    SYSTEMTIME parts{};
    EXPECT_EQ(m_control.GetTime(&parts), static_cast<DWORD>(GDT_VALID));
    EXPECT_EQ(parts.wYear, 2001);
    parts.wYear = 1999;
    EXPECT_TRUE(m_control.SetTime(&parts));
    EXPECT_TRUE(m_control.GetTime(date));
    EXPECT_EQ(date.GetYear(), 1999);
}

TEST_F(WizardDateTime, NoDateIsNull)
{
    Create(DTS_SHOWNONE);
    COleDateTime null;
    null.SetStatus(COleDateTime::null);
    EXPECT_TRUE(m_control.SetTime(null));
    COleDateTime date(2024, 1, 1, 0, 0, 0);
    EXPECT_TRUE(m_control.GetTime(date));
    EXPECT_EQ(date.GetStatus(), COleDateTime::null);
    CTime time(2024, 1, 1, 0, 0, 0);
    CTime const before = time;
    EXPECT_EQ(m_control.GetTime(time), static_cast<DWORD>(GDT_NONE));
    EXPECT_TRUE(time == before);
    EXPECT_TRUE(m_control.SetTime(&time));
    EXPECT_TRUE(m_control.SetTime(static_cast<CTime const *>(nullptr)));
    EXPECT_EQ(m_control.GetTime(time), static_cast<DWORD>(GDT_NONE));
}

TEST_F(WizardDateTime, InvalidTimeIsRefused)
{
    Create();
    COleDateTime invalid;
    invalid.SetStatus(COleDateTime::invalid);
    EXPECT_FALSE(m_control.SetTime(invalid));
}

TEST_F(WizardDateTime, KeepsItsLimits)
{
    Create();
    CTime const low(2020, 1, 1, 0, 0, 0);
    CTime const high(2029, 12, 31, 0, 0, 0);
    EXPECT_TRUE(m_control.SetRange(&low, &high));
    CTime lowAgain;
    CTime highAgain;
    EXPECT_EQ(m_control.GetRange(&lowAgain, &highAgain), static_cast<DWORD>(GDTR_MIN | GDTR_MAX));
    EXPECT_EQ(lowAgain.GetYear(), 2020);
    EXPECT_EQ(highAgain.GetYear(), 2029);
    COleDateTime const least(2021, 1, 1, 0, 0, 0);
    EXPECT_TRUE(m_control.SetRange(&least, nullptr));
    COleDateTime leastAgain;
    EXPECT_NE(m_control.GetRange(&leastAgain, nullptr) & GDTR_MIN, 0U);
    EXPECT_EQ(leastAgain.GetYear(), 2021);
}

TEST_F(WizardDateTime, ShowsItsFormat)
{
    Create();
    EXPECT_TRUE(m_control.SetFormat(_T("yyyy'-'MM'-'dd")));
    m_control.SetTime(COleDateTime(2024, 2, 29, 0, 0, 0));
    CString text;
    m_control.GetWindowText(text);
    EXPECT_EQ(text, _T("2024-02-29"));
}

TEST_F(WizardDateTime, KnowsTheLookOfItsCalendar)
{
    Create();
    m_control.SetMonthCalColor(MCSC_TITLEBK, RGB(1, 2, 3));
    EXPECT_EQ(m_control.GetMonthCalColor(MCSC_TITLEBK), RGB(1, 2, 3));
}

TEST_F(WizardDateTime, IsExchangedWithADialog)
{
    Create();
    CDataExchange save(&m_host, TRUE);
    CDataExchange show(&m_host, FALSE);
    CTime time(2010, 11, 12, 13, 14, 15);
    DDX_DateTimeCtrl(&show, control_id, time);
    COleDateTime date;
    DDX_DateTimeCtrl(&save, control_id, date);
    EXPECT_EQ(date, COleDateTime(2010, 11, 12, 13, 14, 15));
    date = COleDateTime(2011, 1, 2, 3, 4, 5);
    DDX_DateTimeCtrl(&show, control_id, date);
    DDX_DateTimeCtrl(&save, control_id, time);
    EXPECT_TRUE(time == CTime(2011, 1, 2, 3, 4, 5));
    CString text;
    DDX_DateTimeCtrl(&save, control_id, text);
    EXPECT_FALSE(text.IsEmpty());
}

TEST_F(WizardDateTime, LimitsAreSetByTheExchange)
{
    Create();
    CDataExchange show(&m_host, FALSE);
    CTime time(2010, 11, 12, 13, 14, 15);
    CTime const low(2010, 1, 1, 0, 0, 0);
    DDX_DateTimeCtrl(&show, control_id, time);
    DDV_MinMaxDateTime(&show, time, &low, nullptr);
    CTime lowAgain;
    EXPECT_EQ(m_control.GetRange(&lowAgain, nullptr), static_cast<DWORD>(GDTR_MIN));
    EXPECT_EQ(lowAgain.GetYear(), 2010);
}

TEST_F(WizardMonthCalendar, SelectsADay)
{
    Create();
    EXPECT_TRUE(m_control.SetCurSel(CTime(2024, 2, 29, 13, 14, 15)));
    CTime time;
    EXPECT_TRUE(m_control.GetCurSel(time));
    EXPECT_TRUE(time == CTime(2024, 2, 29, 0, 0, 0));
    EXPECT_TRUE(m_control.SetCurSel(COleDateTime(2023, 5, 6, 0, 0, 0)));
    COleDateTime date;
    EXPECT_TRUE(m_control.GetCurSel(date));
    EXPECT_EQ(date, COleDateTime(2023, 5, 6, 0, 0, 0));
    SYSTEMTIME parts{};
    EXPECT_TRUE(m_control.GetCurSel(&parts));
    EXPECT_EQ(parts.wMonth, 5);
    COleDateTime first;
    COleDateTime last;
    EXPECT_FALSE(m_control.GetSelRange(first, last));
}

TEST_F(WizardMonthCalendar, SelectsDaysInARow)
{
    Create(MCS_MULTISELECT);
    EXPECT_TRUE(m_control.SetMaxSelCount(10));
    EXPECT_EQ(m_control.GetMaxSelCount(), 10);
    EXPECT_TRUE(m_control.SetSelRange(COleDateTime(2024, 2, 27, 0, 0, 0), COleDateTime(2024, 3, 1, 0, 0, 0)));
    CTime first;
    CTime last;
    EXPECT_TRUE(m_control.GetSelRange(first, last));
    EXPECT_TRUE(first == CTime(2024, 2, 27, 0, 0, 0));
    EXPECT_TRUE(last == CTime(2024, 3, 1, 0, 0, 0));
    EXPECT_FALSE(m_control.SetSelRange(COleDateTime(2024, 2, 1, 0, 0, 0), COleDateTime(2024, 3, 1, 0, 0, 0)));
    CTime day;
    EXPECT_FALSE(m_control.GetCurSel(day));
}

TEST_F(WizardMonthCalendar, KeepsItsLimits)
{
    Create();
    COleDateTime const low(2020, 1, 1, 0, 0, 0);
    COleDateTime const high(2029, 12, 31, 0, 0, 0);
    EXPECT_TRUE(m_control.SetRange(&low, &high));
    COleDateTime lowAgain;
    COleDateTime highAgain;
    EXPECT_EQ(m_control.GetRange(&lowAgain, &highAgain), static_cast<DWORD>(GDTR_MIN | GDTR_MAX));
    EXPECT_EQ(lowAgain.GetYear(), 2020);
    EXPECT_EQ(highAgain.GetYear(), 2029);
    EXPECT_FALSE(m_control.SetCurSel(COleDateTime(2019, 12, 31, 0, 0, 0)));
}

TEST_F(WizardMonthCalendar, KnowsTodayAndItsWeek)
{
    Create();
    m_control.SetToday(COleDateTime(2001, 2, 3, 0, 0, 0));
    COleDateTime today;
    EXPECT_TRUE(m_control.GetToday(today));
    EXPECT_EQ(today, COleDateTime(2001, 2, 3, 0, 0, 0));
    int old = -1;
    m_control.SetFirstDayOfWeek(2, &old);
    BOOL own = FALSE;
    EXPECT_EQ(m_control.GetFirstDayOfWeek(&own), 2);
    EXPECT_GE(old, 0);
    m_control.SetMonthDelta(3);
    EXPECT_EQ(m_control.GetMonthDelta(), 3);
    EXPECT_GT(m_control.GetMaxTodayWidth(), 0U);
}

TEST_F(WizardMonthCalendar, TakesTheSizeThatItNeeds)
{
    ASSERT_TRUE(m_control.Create(shown, CPoint(5, 6), &m_host, control_id));
    CRect needed;
    EXPECT_TRUE(m_control.GetMinReqRect(&needed));
    CRect rect;
    m_control.GetWindowRect(&rect);
    EXPECT_EQ(rect.Size(), needed.Size());
    EXPECT_GT(rect.Width(), 50);
}

TEST_F(WizardMonthCalendar, ShowsMonths)
{
    Create();
    m_control.SetCurSel(COleDateTime(2024, 2, 15, 0, 0, 0));
    COleDateTime first;
    COleDateTime last;
    EXPECT_EQ(m_control.GetMonthRange(first, last, GMR_VISIBLE), 1);
    EXPECT_EQ(first, COleDateTime(2024, 2, 1, 0, 0, 0));
    EXPECT_EQ(last, COleDateTime(2024, 2, 29, 0, 0, 0));
    m_control.SetColor(MCSC_TEXT, RGB(1, 2, 3));
    EXPECT_EQ(m_control.GetColor(MCSC_TEXT), RGB(1, 2, 3));
    MCHITTESTINFO hit{};
    hit.cbSize = sizeof(hit);
    CRect rect;
    m_control.GetClientRect(&rect);
    hit.pt = rect.CenterPoint();
    EXPECT_EQ(m_control.HitTest(&hit), hit.uHit);
    EXPECT_NE(hit.uHit, static_cast<UINT>(MCHT_NOWHERE));
}

TEST_F(WizardMonthCalendar, IsExchangedWithADialog)
{
    Create();
    CDataExchange save(&m_host, TRUE);
    CDataExchange show(&m_host, FALSE);
    COleDateTime date(2010, 11, 12, 0, 0, 0);
    DDX_MonthCalCtrl(&show, control_id, date);
    CTime time;
    DDX_MonthCalCtrl(&save, control_id, time);
    EXPECT_TRUE(time == CTime(2010, 11, 12, 0, 0, 0));
}

TEST(WizardAnimation, HasNothingToPlayWithoutAFilm)
{
    tests::ScopedWindow parent;
    CAnimateCtrl animation;
    ASSERT_TRUE(animation.Create(shown, place, &parent, control_id));
    EXPECT_FALSE(animation.Open(_T("no such film.avi")));
    EXPECT_FALSE(animation.Open(4711U));
    EXPECT_FALSE(animation.IsPlaying());
    EXPECT_FALSE(animation.Play(0, static_cast<UINT>(-1), 1));
    animation.Close();
    animation.DestroyWindow();
    ASSERT_TRUE(animation.CreateEx(WS_EX_CLIENTEDGE, shown, place, &parent, control_id));
    EXPECT_NE(animation.GetExStyle() & WS_EX_CLIENTEDGE, 0U);
}
