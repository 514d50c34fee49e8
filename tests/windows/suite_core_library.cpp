// The working core library: resource module scope, error texts, times.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>

#include "frame/CoreLibrary.h"

namespace
{
HINSTANCE OtherModule()
{
    return ::GetModuleHandleW(L"user32.dll");
}

HINSTANCE ThirdModule()
{
    return ::GetModuleHandleW(L"kernel32.dll");
}

/// Restores the resource module, whatever a test does.
class SuiteResourceScope : public testing::Test
{
protected:
    void SetUp() override { AfxSetResourceHandle(AfxGetInstanceHandle()); }
    void TearDown() override { AfxSetResourceHandle(AfxGetInstanceHandle()); }
};

CString UsersDate(SYSTEMTIME const & time)
{
    wchar_t text[200] = L"";
    ::GetDateFormatW(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &time, nullptr, text, 200);
    return text;
}

CString UsersTime(SYSTEMTIME const & time, DWORD flags)
{
    wchar_t text[200] = L"";
    ::GetTimeFormatW(LOCALE_USER_DEFAULT, flags, &time, nullptr, text, 200);
    return text;
}
} // namespace

TEST_F(SuiteResourceScope, MakesAModuleCurrentForItsLife)
{
    HINSTANCE const former = AfxGetResourceHandle();
    ASSERT_NE(OtherModule(), former);
    {
        CResourceModuleScope const scope(OtherModule());
        EXPECT_EQ(AfxGetResourceHandle(), OtherModule());
        {
            CResourceModuleScope const inner(ThirdModule());
            EXPECT_EQ(AfxGetResourceHandle(), ThirdModule());
        }
        EXPECT_EQ(AfxGetResourceHandle(), OtherModule());
    }
    EXPECT_EQ(AfxGetResourceHandle(), former);
}

TEST_F(SuiteResourceScope, ANullModuleStandsForTheApplication)
{
    CResourceModuleScope const library(OtherModule());
    {
        CResourceModuleScope const scope(nullptr);
        EXPECT_EQ(AfxGetResourceHandle(), ::GetModuleHandleW(nullptr));
        EXPECT_EQ(AfxGetResourceHandle(), AfxGetApp()->m_hInstance);
    }
    EXPECT_EQ(AfxGetResourceHandle(), OtherModule());
}

TEST_F(SuiteResourceScope, EndsThroughItsVirtualDestructor)
{
    EXPECT_TRUE(std::has_virtual_destructor_v<CResourceModuleScope>);
    HINSTANCE const former = AfxGetResourceHandle();
    class Derived : public CResourceModuleScope
    {
    public:
        using CResourceModuleScope::CResourceModuleScope;
    };
    std::unique_ptr<CResourceModuleScope> scope = std::make_unique<Derived>(OtherModule());
    EXPECT_EQ(AfxGetResourceHandle(), OtherModule());
    scope.reset();
    EXPECT_EQ(AfxGetResourceHandle(), former);
}

TEST(SuiteErrorText, GivesTheSystemsTextWithoutALineBreak)
{
    for (DWORD const code : {ERROR_FILE_NOT_FOUND, ERROR_ACCESS_DENIED, ERROR_INVALID_HANDLE})
    {
        wchar_t buffer[1000] = L"";
        DWORD const length = ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code,
                                              0, buffer, 1000, nullptr);
        ASSERT_GT(length, 0U);
        CString const text = SystemErrorText(code);
        ASSERT_FALSE(text.IsEmpty());
        EXPECT_EQ(std::wstring(buffer).rfind(static_cast<wchar_t const *>(text), 0), 0U) << code;
        EXPECT_EQ(text.FindOneOf(L"\r\n"), -1);
        EXPECT_GE(text.GetLength() + 3, static_cast<int>(length)) << "only the end is cut";
    }
    EXPECT_NE(SystemErrorText(ERROR_FILE_NOT_FOUND), SystemErrorText(ERROR_ACCESS_DENIED));
}

TEST(SuiteErrorText, AnUnknownCodeIsShownAsANumber)
{
    EXPECT_EQ(SystemErrorText(0x2ABCDEF0), CString(L"0x2ABCDEF0"));
}

TEST(SuiteDateTimeText, FollowsTheUsersFormats)
{
    CTime const time(2024, 6, 11, 15, 4, 9);
    SYSTEMTIME parts{};
    ASSERT_TRUE(time.GetAsSystemTime(parts));
    CString const date = UsersDate(parts);
    ASSERT_FALSE(date.IsEmpty());
    EXPECT_EQ(UserDateTimeText(time, dtf_date), date);
    EXPECT_EQ(UserDateTimeText(time, dtf_date_time), date + L" " + UsersTime(parts, 0));
    EXPECT_EQ(UserDateTimeText(time, dtf_date_time_without_seconds), date + L" " + UsersTime(parts, TIME_NOSECONDS));
    EXPECT_EQ(UserDateTimeText(time, dtf_time), UsersTime(parts, 0));
    EXPECT_EQ(UserDateTimeText(time, dtf_time_without_seconds), UsersTime(parts, TIME_NOSECONDS));
    EXPECT_NE(UserDateTimeText(time, dtf_time), UserDateTimeText(time, dtf_time_without_seconds));
}

TEST(SuiteDateTimeText, StyleOneIsTheUsersDefault)
{
    CTime const time(2024, 6, 11, 15, 4, 9);
    EXPECT_EQ(UserDateTimeText(time, static_cast<dtf_style_t>(1)), UserDateTimeText(time, dtf_date_time));
}

TEST(SuiteDateTimeText, AnInvalidTimeOrStyleGivesNoText)
{
    for (dtf_style_t const style :
         {dtf_date, dtf_date_time, dtf_date_time_without_seconds, dtf_time, dtf_time_without_seconds})
        EXPECT_TRUE(UserDateTimeText(CTime(static_cast<__time64_t>(-1)), style).IsEmpty());
    EXPECT_TRUE(UserDateTimeText(CTime(2024, 6, 11, 15, 4, 9), static_cast<dtf_style_t>(99)).IsEmpty());
}
