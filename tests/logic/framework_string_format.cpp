// Formatting: the meaning of each directive is that of the Windows C run-time library in both builds.

#include <cstdint>

#include "framework_Support.h"

namespace
{
template <class... Arguments> CString Wide(LPCWSTR format, Arguments... arguments)
{
    CString text;
    text.Format(format, arguments...);
    return text;
}

template <class... Arguments> CStringA Narrow(LPCSTR format, Arguments... arguments)
{
    CStringA text;
    text.Format(format, arguments...);
    return text;
}

void CallFormatV(CString & text, LPCTSTR format, ...)
{
    va_list list;
    va_start(list, format);
    text.FormatV(format, list);
    va_end(list);
}

void CallMessageV(CString & text, LPCTSTR format, ...)
{
    va_list list;
    va_start(list, format);
    text.FormatMessageV(format, &list);
    va_end(list);
}
} // namespace

TEST(FrameworkFormat, StringsOfBothWidths)
{
    EXPECT_STREQ(L"[wide]", Wide(L"[%s]", L"wide"));
    EXPECT_STREQ(L"[narrow]", Wide(L"[%S]", "narrow"));
    EXPECT_STREQ(L"[narrow]", Wide(L"[%hs]", "narrow"));
    EXPECT_STREQ(L"[wide]", Wide(L"[%ls]", L"wide"));
    EXPECT_STREQ(L"[wide]", Wide(L"[%ws]", L"wide"));
    EXPECT_STREQ("[narrow]", Narrow("[%s]", "narrow"));
    EXPECT_STREQ("[wide]", Narrow("[%S]", L"wide"));
    EXPECT_STREQ("[wide]", Narrow("[%ls]", L"wide"));
    EXPECT_STREQ("[narrow]", Narrow("[%hs]", "narrow"));
}

TEST(FrameworkFormat, StringObjectsAreArguments)
{
    CString const wide = L"wide";
    CStringA const narrow = "narrow";
    EXPECT_STREQ(L"wide narrow 7", Wide(L"%s %S %d", wide, narrow, 7));
    EXPECT_STREQ("narrow wide", Narrow("%s %S", narrow, wide));
}

TEST(FrameworkFormat, TheStringItselfMayBeAnArgument)
{
    CString text = L"x";
    text.Format(L"%s%s", text, text);
    EXPECT_STREQ(L"xx", text);
    text.AppendFormat(L"-%s", text);
    EXPECT_STREQ(L"xx-xx", text);
}

TEST(FrameworkFormat, StringWidthAndPrecision)
{
    EXPECT_STREQ(L"[  ab]", Wide(L"[%4s]", L"ab"));
    EXPECT_STREQ(L"[ab  ]", Wide(L"[%-4s]", L"ab"));
    EXPECT_STREQ(L"[ab]", Wide(L"[%.2s]", L"abcd"));
    EXPECT_STREQ(L"[  ab]", Wide(L"[%*.*s]", 4, 2, L"abcd"));
    EXPECT_STREQ(L"[ab  ]", Wide(L"[%*s]", -4, L"ab"));
    EXPECT_STREQ(L"[]", Wide(L"[%.0s]", L"abcd"));
    EXPECT_STREQ(L"[ab]", Wide(L"[%.2S]", "abcd"));
}

TEST(FrameworkFormat, PrecisionReadsNoFurther)
{
    wchar_t const unterminated[] = {L'a', L'b'};
    char const narrow[] = {'c', 'd'};
    EXPECT_STREQ(L"ab cd", Wide(L"%.2s %.2S", unterminated, narrow));
}

TEST(FrameworkFormat, NullStrings)
{
    EXPECT_STREQ(L"(null)", Wide(L"%s", static_cast<LPCWSTR>(nullptr)));
    EXPECT_STREQ("(null)", Narrow("%S", static_cast<LPCWSTR>(nullptr)));
}

TEST(FrameworkFormat, Characters)
{
    EXPECT_STREQ(L"a", Wide(L"%c", L'a'));
    EXPECT_STREQ(L"b", Wide(L"%C", 'b'));
    EXPECT_STREQ(L"c", Wide(L"%hc", 'c'));
    EXPECT_STREQ(L"d", Wide(L"%lc", L'd'));
    EXPECT_STREQ("e", Narrow("%c", 'e'));
    EXPECT_STREQ("f", Narrow("%C", L'f'));
    EXPECT_STREQ(L"  g", Wide(L"%3c", L'g'));
    EXPECT_EQ(3, Wide(L"a%cb", 0).GetLength());
}

TEST(FrameworkFormat, Integers)
{
    EXPECT_STREQ(L"-5 +5  5 005", Wide(L"%d %+d % d %03d", -5, 5, 5, 5));
    EXPECT_STREQ(L"-5", Wide(L"%i", -5));
    EXPECT_STREQ(L"4294967295", Wide(L"%u", 0xFFFFFFFFU));
    EXPECT_STREQ(L"ff FF 0xff 17", Wide(L"%x %X %#x %o", 255, 255, 255, 15));
    EXPECT_STREQ(L"[   42][42   ][00042]", Wide(L"[%5d][%-5d][%05d]", 42, 42, 42));
    EXPECT_STREQ(L"[  007]", Wide(L"[%5.3d]", 7));
    EXPECT_STREQ(L"-1 255", Wide(L"%hhd %hhu", 255, 255));
    EXPECT_STREQ(L"-1 65535", Wide(L"%hd %hu", 65535, 65535));
}

TEST(FrameworkFormat, LongIs32Bits)
{
    LONG const number = -2;
    DWORD const bits = 0xFFFFFFFE;
    EXPECT_STREQ(L"-2 4294967294 fffffffe", Wide(L"%ld %lu %lx", number, bits, bits));
}

TEST(FrameworkFormat, WideIntegers)
{
    LONGLONG const large = -9'000'000'000LL;
    EXPECT_STREQ(L"-9000000000", Wide(L"%I64d", large));
    EXPECT_STREQ(L"-9000000000", Wide(L"%lld", large));
    EXPECT_STREQ(L"-9000000000", Wide(L"%jd", large));
    EXPECT_STREQ(L"18446744073709551615", Wide(L"%I64u", ULONGLONG{0xFFFFFFFFFFFFFFFF}));
    EXPECT_STREQ(L"123456789abcdef", Wide(L"%I64x", ULONGLONG{0x0123456789ABCDEF}));
    EXPECT_STREQ(L"-1", Wide(L"%I32d", -1));
    EXPECT_STREQ(L"5 6 7", Wide(L"%Id %zu %td", INT_PTR{5}, size_t{6}, std::ptrdiff_t{7}));
}

TEST(FrameworkFormat, ManyArgumentsOfMixedKinds)
{
    EXPECT_STREQ(L"1 2.5 a 3 b 4.5 5 6 7 8 9 10",
                 Wide(L"%d %g %s %I64d %S %g %d %d %d %d %d %d", 1, 2.5, L"a", 3LL, "b", 4.5, 5, 6, 7, 8, 9, 10));
}

TEST(FrameworkFormat, FloatingPoint)
{
    EXPECT_STREQ(L"3.14 3.142 -2.500000", Wide(L"%.2f %.3f %f", 3.14159, 3.14159, -2.5));
    EXPECT_STREQ(L"1.5e+10 1.5E+10", Wide(L"%.1e %.1E", 1.5e10, 1.5e10));
    EXPECT_STREQ(L"0.1 1e-05", Wide(L"%g %g", 0.1, 0.00001));
    EXPECT_STREQ(L"[  1.50][1.50  ][001.50]", Wide(L"[%6.2f][%-6.2f][%06.2f]", 1.5, 1.5, 1.5));
    EXPECT_STREQ(L"2.5", Wide(L"%.1lf", 2.5));
    EXPECT_EQ(310, Wide(L"%.0f.", 1e308).GetLength());
}

TEST(FrameworkFormat, PercentAndUnknownDirectives)
{
    EXPECT_STREQ(L"100%", Wide(L"%d%%", 100));
    EXPECT_STREQ(L"y", Wide(L"%y"));
    EXPECT_STREQ(L"a", Wide(L"a%"));
    EXPECT_INVALID_ARG(Wide(L"%n", static_cast<int *>(nullptr)));
}

TEST(FrameworkFormat, Pointers)
{
    EXPECT_STREQ(L"00000000DEADBEEF", Wide(L"%p", reinterpret_cast<void *>(static_cast<std::uintptr_t>(0xDEADBEEF))));
}

TEST(FrameworkFormat, NullFormatIsInvalidAndKeepsTheText)
{
    CString text = L"old";
    EXPECT_INVALID_ARG(text.Format(static_cast<LPCTSTR>(nullptr)));
    EXPECT_STREQ(L"old", text);
}

TEST(FrameworkFormat, AppendFormat)
{
    CString text = L"a";
    text.AppendFormat(L"%d", 1);
    text.AppendFormat(L"%s", L"b");
    EXPECT_STREQ(L"a1b", text);
}

TEST(FrameworkFormat, VariadicForm)
{
    CString text;
    CallFormatV(text, L"%d %s", 5, L"x");
    EXPECT_STREQ(L"5 x", text);
}

TEST(FrameworkFormat, LongResults)
{
    CString const part(L'x', 5000);
    EXPECT_EQ(10'001, Wide(L"%s-%s", part, part).GetLength());
    EXPECT_EQ(3000, Wide(L"%3000d", 1).GetLength());
}

TEST(FrameworkFormat, MessageInsertsByNumber)
{
    CString text;
    text.FormatMessage(L"%2 before %1", L"first", L"second");
    EXPECT_STREQ(L"second before first", text);
    text.FormatMessage(L"%1!s!: %2!d! %3!04x!", CString(L"n"), -5, 255);
    EXPECT_STREQ(L"n: -5 00ff", text);
    text.FormatMessage(L"50%% of %1%! twice: %1", L"it");
    EXPECT_STREQ(L"50% of it! twice: it", text);
    text.FormatMessage(L"end%0 unseen");
    EXPECT_STREQ(L"end", text);
    text.FormatMessage(L"a%nb");
    EXPECT_STREQ(L"a\r\nb", text);
}

TEST(FrameworkFormat, MessageInNarrowText)
{
    CStringA text;
    text.FormatMessage("%1 and %2!u!", "a", 7U);
    EXPECT_STREQ("a and 7", text);
}

TEST(FrameworkFormat, MessageFromAList)
{
    CString text;
    CallMessageV(text, L"%2!d! %1", L"x", 3);
    EXPECT_STREQ(L"3 x", text);
}

TEST(FrameworkFormat, MessageWithoutFormatIsInvalid)
{
    CString text = L"old";
    EXPECT_INVALID_ARG(text.FormatMessage(static_cast<LPCTSTR>(nullptr)));
    EXPECT_STREQ(L"old", text);
}
