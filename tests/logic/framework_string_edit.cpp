// Strings: constructors, operators, parts, searching, changing.

#include "framework_Support.h"

TEST(FrameworkString, Constructors)
{
    EXPECT_STREQ(L"", CString());
    EXPECT_STREQ(L"abc", CString(L"abc"));
    EXPECT_STREQ(L"abc", CString("abc"));
    EXPECT_STREQ("abc", CStringA("abc"));
    EXPECT_STREQ("abc", CStringA(L"abc"));
    EXPECT_STREQ(L"ab", CString(L"abc", 2));
    EXPECT_STREQ(L"ab", CString("abc", 2));
    EXPECT_STREQ(L"x", CString('x'));
    EXPECT_STREQ(L"xxx", CString(L'x', 3));
    EXPECT_STREQ(L"yy", CString('y', 2));
    EXPECT_STREQ(L"", CString(L'x', 0));
    EXPECT_STREQ(L"", CString(static_cast<LPCWSTR>(nullptr)));
    EXPECT_STREQ(L"", CString(static_cast<LPCSTR>(nullptr)));
    EXPECT_STREQ(L"abc", CString(reinterpret_cast<unsigned char const *>("abc")));
    EXPECT_STREQ(L"abc", CString(L"abc", AfxGetStringManager()));
    EXPECT_STREQ(L"ab", CString(L"abc", 2, AfxGetStringManager()));
    EXPECT_STREQ(L"ab", CString("abc", 2, AfxGetStringManager()));
    EXPECT_STREQ(L"", CString(AfxGetStringManager()));
    EXPECT_INVALID_ARG(CString(L"abc", -1));
    EXPECT_INVALID_ARG(CString(static_cast<LPCSTR>(nullptr), 2));
}

TEST(FrameworkString, AssignmentForms)
{
    CString text;
    text = L"wide";
    EXPECT_STREQ(L"wide", text);
    text = "narrow";
    EXPECT_STREQ(L"narrow", text);
    text = L'w';
    EXPECT_STREQ(L"w", text);
    text = 'n';
    EXPECT_STREQ(L"n", text);
    text = reinterpret_cast<unsigned char const *>("bytes");
    EXPECT_STREQ(L"bytes", text);
    text = static_cast<LPCTSTR>(nullptr);
    EXPECT_TRUE(text.IsEmpty());
    CStringA narrow;
    narrow = text = L"chain";
    EXPECT_STREQ("chain", narrow);
}

TEST(FrameworkString, AppendOperators)
{
    CString text = L"a";
    text += L"b";
    text += "c";
    text += 'd';
    text += L'e';
    text += static_cast<unsigned char>('f');
    text += CString(L"g");
    EXPECT_STREQ(L"abcdefg", text);
    text += static_cast<LPCTSTR>(nullptr);
    EXPECT_STREQ(L"abcdefg", text);
}

TEST(FrameworkString, Concatenation)
{
    CString const a = L"a";
    CString const b = L"b";
    EXPECT_STREQ(L"ab", a + b);
    EXPECT_STREQ(L"a-", a + L"-");
    EXPECT_STREQ(L"-a", L"-" + a);
    EXPECT_STREQ(L"ax", a + 'x');
    EXPECT_STREQ(L"xa", 'x' + a);
    EXPECT_STREQ(L"ax", a + L'x');
    EXPECT_STREQ(L"xa", L'x' + a);
    EXPECT_STREQ(L"a", a);
}

TEST(FrameworkString, NarrowTextAboveAsciiIsConverted)
{
#if !defined(_WIN32)
    CString const wide("\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80");
    EXPECT_EQ(3, wide.GetLength());
    EXPECT_EQ(static_cast<wchar_t>(0xE4), wide[0]);
    EXPECT_EQ(static_cast<wchar_t>(0x20AC), wide[1]);
    EXPECT_EQ(static_cast<wchar_t>(0x1F600), wide[2]);
    EXPECT_STREQ("\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80", CStringA(wide));
#else
    wchar_t const text[] = {0x00E4, 0x00DF, 0};
    EXPECT_STREQ(text, CString(CStringA(text)));
#endif
}

#if !defined(_WIN32)
TEST(FrameworkString, InvalidNarrowTextIsReplaced)
{
    EXPECT_STREQ(L"a\xFFFD"
                 L"b",
                 CString("a\xFF"
                         "b"));
    EXPECT_STREQ(L"\xFFFD", CString("\xC3"));
    EXPECT_STREQ(L"\xFFFD\xFFFD", CString("\xC0\x80"));
    EXPECT_STREQ(L"\xFFFD\xFFFD\xFFFD", CString("\xED\xA0\x80"));
    wchar_t const lone[] = {0xD800, 0};
    EXPECT_STREQ("\xEF\xBF\xBD", CStringA(lone));
}

TEST(FrameworkString, SurrogatePairsBecomeOneCharacter)
{
    wchar_t const pair[] = {0xD83D, 0xDE00, 0};
    EXPECT_STREQ("\xF0\x9F\x98\x80", CStringA(pair));
}
#endif

TEST(FrameworkString, ComparisonOperators)
{
    CString const a = L"a";
    CString const b = L"b";
    EXPECT_TRUE(a == CString(L"a"));
    EXPECT_TRUE(a == L"a");
    EXPECT_TRUE(L"a" == a);
    EXPECT_TRUE(a == "a");
    EXPECT_TRUE("a" == a);
    EXPECT_TRUE(a == L'a');
    EXPECT_TRUE(L'a' == a);
    EXPECT_FALSE(CString(L"aa") == L'a');
    EXPECT_TRUE(a != b);
    EXPECT_TRUE(a != L"b");
    EXPECT_TRUE(L"b" != a);
    EXPECT_TRUE(a != "b");
    EXPECT_TRUE("b" != a);
    EXPECT_TRUE(a != L'b');
    EXPECT_TRUE(L'b' != a);
    EXPECT_TRUE(a < b && a < L"b" && L"a" < b);
    EXPECT_TRUE(b > a && b > L"a" && L"b" > a);
    EXPECT_TRUE(a <= b && a <= L"a" && L"a" <= a);
    EXPECT_TRUE(b >= a && b >= L"b" && L"b" >= b);
    EXPECT_FALSE(b < a || b <= a || a > b || a >= b);
    EXPECT_TRUE(CString() == static_cast<LPCTSTR>(nullptr));
}

TEST(FrameworkString, CompareGivesTheSignOfTheOrder)
{
    CString const text = L"bob";
    EXPECT_EQ(0, text.Compare(L"bob"));
    EXPECT_EQ(-1, text.Compare(L"bobby"));
    EXPECT_EQ(1, text.Compare(L"Bob"));
    EXPECT_EQ(1, text.Compare(L""));
    EXPECT_INVALID_ARG(text.Compare(nullptr));
    EXPECT_EQ(0, text.CompareNoCase(L"BOB"));
    EXPECT_EQ(-1, text.CompareNoCase(L"BOC"));
    EXPECT_EQ(1, CStringA("\xE4").Compare("a"));
}

TEST(FrameworkString, CollateOrdersText)
{
    CString const text = L"abc";
    EXPECT_EQ(0, text.Collate(L"abc"));
    EXPECT_LT(text.Collate(L"abd"), 0);
    EXPECT_GT(text.Collate(L"abb"), 0);
    EXPECT_EQ(0, text.CollateNoCase(L"ABC"));
    EXPECT_LT(text.CollateNoCase(L"ABD"), 0);
    EXPECT_EQ(0, CStringA("abc").CollateNoCase("ABC"));
}

TEST(FrameworkString, LeftMidRight)
{
    CString const text = L"abcdef";
    EXPECT_STREQ(L"ab", text.Left(2));
    EXPECT_STREQ(L"abcdef", text.Left(10));
    EXPECT_STREQ(L"", text.Left(-1));
    EXPECT_STREQ(L"ef", text.Right(2));
    EXPECT_STREQ(L"abcdef", text.Right(10));
    EXPECT_STREQ(L"", text.Right(-1));
    EXPECT_STREQ(L"cd", text.Mid(2, 2));
    EXPECT_STREQ(L"cdef", text.Mid(2));
    EXPECT_STREQ(L"ef", text.Mid(4, 100));
    EXPECT_STREQ(L"", text.Mid(6));
    EXPECT_STREQ(L"", text.Mid(100, 2));
    EXPECT_STREQ(L"abcdef", text.Mid(-3));
    EXPECT_STREQ(L"", text.Mid(1, -1));
    EXPECT_STREQ(L"bcdef", text.Mid(1, 0x7fffffff));
}

TEST(FrameworkString, WholePartsShareTheBuffer)
{
    CString const text = L"abc";
    EXPECT_EQ(text.GetString(), text.Left(3).GetString());
    EXPECT_EQ(text.GetString(), text.Mid(0).GetString());
}

TEST(FrameworkString, Spans)
{
    CString const text = L"cabinet";
    EXPECT_STREQ(L"cab", text.SpanIncluding(L"abc"));
    EXPECT_STREQ(L"", text.SpanIncluding(L"xyz"));
    EXPECT_STREQ(L"cabi", text.SpanExcluding(L"nt"));
    EXPECT_STREQ(L"cabinet", text.SpanExcluding(L"xyz"));
    EXPECT_STREQ(L"cabinet", text.SpanExcluding(L""));
    EXPECT_INVALID_ARG(text.SpanIncluding(nullptr));
    EXPECT_INVALID_ARG(text.SpanExcluding(nullptr));
}

TEST(FrameworkString, TokenizeSkipsRunsOfSeparators)
{
    CString const text = L"%First Second#Third";
    int position = 0;
    EXPECT_STREQ(L"First", text.Tokenize(L"% #", position));
    EXPECT_STREQ(L"Second", text.Tokenize(L"% #", position));
    EXPECT_STREQ(L"Third", text.Tokenize(L"% #", position));
    EXPECT_NE(-1, position);
    EXPECT_STREQ(L"", text.Tokenize(L"% #", position));
    EXPECT_EQ(-1, position);
    EXPECT_INVALID_ARG(text.Tokenize(L" ", position));
}

TEST(FrameworkString, TokenizeOfOnlySeparatorsOrNothing)
{
    int position = 0;
    EXPECT_STREQ(L"", CString(L",,,").Tokenize(L",", position));
    EXPECT_EQ(-1, position);
    position = 0;
    EXPECT_STREQ(L"", CString().Tokenize(L",", position));
    EXPECT_EQ(-1, position);
    position = 5;
    EXPECT_STREQ(L"", CString(L"abc").Tokenize(L",", position));
    EXPECT_EQ(-1, position);
}

TEST(FrameworkString, TokenizeWithoutSeparatorsGivesTheRest)
{
    CString const text = L"a b";
    int position = 1;
    EXPECT_STREQ(L" b", text.Tokenize(L"", position));
    EXPECT_STREQ(L"", text.Tokenize(L"", position));
    EXPECT_EQ(-1, position);
}

TEST(FrameworkString, FindText)
{
    CString const text = L"abcdef";
    EXPECT_EQ(2, text.Find(L"cd"));
    EXPECT_EQ(2, text.Find(L"cd", 2));
    EXPECT_EQ(-1, text.Find(L"cd", 3));
    EXPECT_EQ(-1, text.Find(L"x"));
    EXPECT_EQ(0, text.Find(L""));
    EXPECT_EQ(6, text.Find(L"", 6));
    EXPECT_EQ(-1, text.Find(L"", 7));
    EXPECT_EQ(-1, text.Find(L"a", -1));
    EXPECT_EQ(-1, text.Find(static_cast<LPCTSTR>(nullptr)));
}

TEST(FrameworkString, FindCharacter)
{
    CString const text = L"abcabc";
    EXPECT_EQ(2, text.Find(L'c'));
    EXPECT_EQ(5, text.Find(L'c', 3));
    EXPECT_EQ(-1, text.Find(L'x'));
    EXPECT_EQ(-1, text.Find(L'a', 6));
    EXPECT_EQ(-1, text.Find(L'a', -1));
    EXPECT_EQ(5, text.ReverseFind(L'c'));
    EXPECT_EQ(-1, text.ReverseFind(L'x'));
    EXPECT_EQ(1, text.FindOneOf(L"xcb"));
    EXPECT_EQ(-1, text.FindOneOf(L"xyz"));
    EXPECT_EQ(-1, text.FindOneOf(L""));
}

TEST(FrameworkString, DeletePart)
{
    CString text = L"abcdef";
    EXPECT_EQ(5, text.Delete(1));
    EXPECT_STREQ(L"acdef", text);
    EXPECT_EQ(2, text.Delete(2, 100));
    EXPECT_STREQ(L"ac", text);
    EXPECT_EQ(2, text.Delete(5));
    EXPECT_EQ(2, text.Delete(0, 0));
    EXPECT_EQ(2, text.Delete(0, -3));
    EXPECT_EQ(1, text.Delete(-1, 1));
    EXPECT_STREQ(L"c", text);
}

TEST(FrameworkString, InsertText)
{
    CString text = L"ad";
    EXPECT_EQ(4, text.Insert(1, L"bc"));
    EXPECT_STREQ(L"abcd", text);
    EXPECT_EQ(5, text.Insert(100, L'!'));
    EXPECT_STREQ(L"abcd!", text);
    EXPECT_EQ(6, text.Insert(-1, L'<'));
    EXPECT_STREQ(L"<abcd!", text);
    EXPECT_EQ(6, text.Insert(2, L""));
    EXPECT_EQ(6, text.Insert(2, static_cast<LPCTSTR>(nullptr)));
    EXPECT_EQ(12, text.Insert(1, text));
    EXPECT_STREQ(L"<<abcd!abcd!", text);
}

TEST(FrameworkString, RemoveCharacters)
{
    CString text = L"This is a test.";
    CString const keep = text;
    EXPECT_EQ(3, text.Remove(L't') + text.Remove(L'a'));
    EXPECT_STREQ(L"This is  es.", text);
    EXPECT_EQ(0, text.Remove(L'z'));
    EXPECT_STREQ(L"This is a test.", keep);
}

TEST(FrameworkString, ReplaceCharacters)
{
    CString text = L"C++";
    CString const keep = text;
    EXPECT_EQ(2, text.Replace(L'+', L'-'));
    EXPECT_STREQ(L"C--", text);
    EXPECT_EQ(0, text.Replace(L'-', L'-'));
    EXPECT_EQ(0, text.Replace(L'x', L'y'));
    EXPECT_STREQ(L"C++", keep);
}

TEST(FrameworkString, ReplaceText)
{
    CString text = L"one two one";
    EXPECT_EQ(2, text.Replace(L"one", L"three"));
    EXPECT_STREQ(L"three two three", text);
    EXPECT_EQ(2, text.Replace(L"three", L""));
    EXPECT_STREQ(L" two ", text);
    EXPECT_EQ(1, text.Replace(L"two", nullptr));
    EXPECT_STREQ(L"  ", text);
    EXPECT_EQ(0, text.Replace(L"", L"x"));
    EXPECT_EQ(0, text.Replace(L"x", L"y"));
    text = L"aaa";
    EXPECT_EQ(1, text.Replace(L"aa", L"a"));
    EXPECT_STREQ(L"aa", text);
    EXPECT_EQ(2, text.Replace(L"a", text));
    EXPECT_STREQ(L"aaaa", text);
}

TEST(FrameworkString, ReplaceLooksBehindNulls)
{
    CString text(L"a\0a", 3);
    EXPECT_EQ(2, text.Replace(L"a", L"bb"));
    EXPECT_EQ(5, text.GetLength());
}

TEST(FrameworkString, CaseAndOrder)
{
    CString text = L"aBc";
    CString const keep = text;
    EXPECT_STREQ(L"ABC", text.MakeUpper());
    EXPECT_STREQ(L"abc", text.MakeLower());
    EXPECT_STREQ(L"cba", text.MakeReverse());
    EXPECT_STREQ(L"aBc", keep);
    EXPECT_STREQ(L"", CString().MakeReverse());
    EXPECT_STREQ("ABC", CStringA("aBc").MakeUpper());
}

TEST(FrameworkString, TrimWhitespace)
{
    EXPECT_STREQ(L"a b", CString(L" \t a b \r\n").Trim());
    EXPECT_STREQ(L"a ", CString(L" a ").TrimLeft());
    EXPECT_STREQ(L" a", CString(L" a ").TrimRight());
    EXPECT_STREQ(L"", CString(L"   ").Trim());
    EXPECT_STREQ(L"", CString().Trim());
    CString const keep = L" a ";
    CString text = keep;
    text.Trim();
    EXPECT_STREQ(L" a ", keep);
}

TEST(FrameworkString, TrimGivenCharacters)
{
    EXPECT_STREQ(L"a", CString(L"xxaxx").Trim(L'x'));
    EXPECT_STREQ(L"axx", CString(L"xxaxx").TrimLeft(L'x'));
    EXPECT_STREQ(L"xxa", CString(L"xxaxx").TrimRight(L'x'));
    EXPECT_STREQ(L"Soccer", CString(L"****Soccer,???").Trim(L"?*,"));
    EXPECT_STREQ(L"a--", CString(L"-+a--").TrimLeft(L"+-"));
    EXPECT_STREQ(L"-+a", CString(L"-+a--").TrimRight(L"+-"));
    EXPECT_STREQ(L" a ", CString(L" a ").Trim(L""));
    EXPECT_STREQ(L" a ", CString(L" a ").Trim(static_cast<LPCTSTR>(nullptr)));
}

TEST(FrameworkString, EnvironmentVariable)
{
#if defined(_WIN32)
    ::SetEnvironmentVariableW(L"FRAMEWORK_TEST_VARIABLE", L"value");
#else
    ::setenv("FRAMEWORK_TEST_VARIABLE", "value", 1);
#endif
    CString text = L"old";
    EXPECT_TRUE(text.GetEnvironmentVariable(L"FRAMEWORK_TEST_VARIABLE"));
    EXPECT_STREQ(L"value", text);
    EXPECT_FALSE(text.GetEnvironmentVariable(L"FRAMEWORK_TEST_NO_VARIABLE"));
    EXPECT_STREQ(L"", text);
    CStringA narrow;
    EXPECT_TRUE(narrow.GetEnvironmentVariable("FRAMEWORK_TEST_VARIABLE"));
    EXPECT_STREQ("value", narrow);
}

TEST(FrameworkString, ExtractSubString)
{
    CString part = L"old";
    EXPECT_TRUE(AfxExtractSubString(part, L"a,b,,c", 1, L','));
    EXPECT_STREQ(L"b", part);
    EXPECT_TRUE(AfxExtractSubString(part, L"a,b,,c", 2, L','));
    EXPECT_STREQ(L"", part);
    EXPECT_TRUE(AfxExtractSubString(part, L"a\nb", 0));
    EXPECT_STREQ(L"a", part);
    EXPECT_TRUE(AfxExtractSubString(part, L"a,b", 1, L','));
    EXPECT_STREQ(L"b", part);
    EXPECT_FALSE(AfxExtractSubString(part, L"a,b", 2, L','));
    EXPECT_STREQ(L"", part);
    EXPECT_FALSE(AfxExtractSubString(part, nullptr, 0));
}

#if defined(_WIN32)
TEST(FrameworkString, SystemStrings)
{
    CString const text = L"system";
    BSTR string = text.AllocSysString();
    EXPECT_STREQ(L"system", string);
    EXPECT_EQ(6U, ::SysStringLen(string));
    EXPECT_EQ(string, CString(L"another one").SetSysString(&string));
    EXPECT_STREQ(L"another one", string);
    ::SysFreeString(string);
    BSTR const narrow = CStringA("narrow").AllocSysString();
    EXPECT_STREQ(L"narrow", narrow);
    ::SysFreeString(narrow);
}

TEST(FrameworkString, Variants)
{
    VARIANT number;
    ::VariantInit(&number);
    number.vt = VT_I4;
    number.lVal = 42;
    EXPECT_STREQ(L"42", CString(number));
    CString text = L"n=";
    text += number;
    EXPECT_STREQ(L"n=42", text);
    text = number;
    EXPECT_STREQ(L"42", text);
}

TEST(FrameworkString, OemRoundTrip)
{
    CStringA text = "plain";
    text.AnsiToOem();
    text.OemToAnsi();
    EXPECT_STREQ("plain", text);
}

TEST(FrameworkString, MissingResourceLeavesTheText)
{
    CString text = L"old";
    EXPECT_FALSE(text.LoadString(::GetModuleHandle(nullptr), 65000));
    EXPECT_STREQ(L"old", text);
}
#endif
