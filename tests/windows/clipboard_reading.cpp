// Text read from the real clipboard: the narrow text goes before the wide one.

#include <afxwin.h>

#include "clipboard/Clipboard.h"
#include "clipboard_ClipboardTest.h"
#include "ImportPatch.h"

namespace
{
struct Conversion
{
    int room;
    wchar_t * target;
};
std::vector<Conversion> g_conversions;

int WINAPI RecordConversion(UINT codePage, DWORD flags, LPCCH text, int length, LPWSTR target, int room)
{
    g_conversions.push_back({room, target});
    return ::MultiByteToWideChar(codePage, flags, text, length, target, room);
}

HANDLE WINAPI GiveNothing(UINT)
{
    return nullptr;
}

HANDLE WINAPI GiveOnlyWide(UINT format)
{
    return format == CF_UNICODETEXT ? ::GetClipboardData(format) : nullptr;
}

class ClipboardReading : public clipboard_tests::ClipboardTest
{
protected:
    CString m_text{L"before"};
};
} // namespace

TEST_F(ClipboardReading, AnEmptyClipboardGivesNothing)
{
    EXPECT_FALSE(Clipboard::StringFromClipboard(m_text));
    EXPECT_EQ(m_text, L"before");
}

TEST_F(ClipboardReading, OtherDataGivesNothing)
{
    ASSERT_TRUE(Clipboard::DataToClipboard(L"InstrumentUiTests.Data", "x", 1));
    EXPECT_FALSE(Clipboard::StringFromClipboard(m_text));
    EXPECT_EQ(m_text, L"before");
}

TEST_F(ClipboardReading, NarrowTextIsConverted)
{
    PutNarrow("abc \xE4");
    ASSERT_TRUE(Clipboard::StringFromClipboard(m_text));
    wchar_t expected[8];
    int const length = ::MultiByteToWideChar(CP_ACP, 0, "abc \xE4", -1, expected, 8);
    EXPECT_EQ(m_text, CString(expected, length - 1));
}

TEST_F(ClipboardReading, WideTextComesAsItsNarrowConversion)
{
    std::wstring const wide = L"A \u03A9 \u4E2D";
    Put(CF_UNICODETEXT, wide.c_str(), (wide.size() + 1) * sizeof(wchar_t));
    char narrow[64];
    ASSERT_GT(::WideCharToMultiByte(CP_ACP, 0, wide.c_str(), -1, narrow, sizeof(narrow), nullptr, nullptr), 0);
    wchar_t expected[64];
    ::MultiByteToWideChar(CP_ACP, 0, narrow, -1, expected, 64);
    ASSERT_TRUE(Clipboard::StringFromClipboard(m_text));
    EXPECT_EQ(m_text, expected);
    EXPECT_NE(m_text, wide.c_str()) << "not all of it is in the narrow code page";
}

TEST_F(ClipboardReading, TheWideTextStaysIfNoNarrowOneCanBeHad)
{
    tests::ImportPatch const patch(L"instrument_ui.dll", "GetClipboardData", &GiveOnlyWide);
    ASSERT_TRUE(patch.Done());
    std::wstring const wide = L"A \u03A9 \u4E2D";
    Put(CF_UNICODETEXT, wide.c_str(), (wide.size() + 1) * sizeof(wchar_t));
    EXPECT_TRUE(Clipboard::StringFromClipboard(m_text));
    EXPECT_EQ(m_text, wide.c_str());
}

TEST_F(ClipboardReading, FormatsWithoutDataGiveNothing)
{
    tests::ImportPatch const patch(L"instrument_ui.dll", "GetClipboardData", &GiveNothing);
    ASSERT_TRUE(patch.Done());
    PutNarrow("abc");
    EXPECT_FALSE(Clipboard::StringFromClipboard(m_text));
    EXPECT_EQ(m_text, L"before");
}

TEST_F(ClipboardReading, TheClipboardKeepsItsTextAndIsClosed)
{
    PutNarrow("abc");
    ASSERT_TRUE(Clipboard::StringFromClipboard(m_text));
    ASSERT_TRUE(Clipboard::StringFromClipboard(m_text));
    EXPECT_EQ(m_text, L"abc");
    EXPECT_EQ(WideText(), L"abc");
}

TEST_F(ClipboardReading, TextOf1024BytesIsConvertedInMemoryOfItsOwn)
{
    tests::ImportPatch const patch(L"instrument_ui.dll", "MultiByteToWideChar", &RecordConversion);
    ASSERT_TRUE(patch.Done());
    for (std::size_t const length : {0U, 1U, 1022U, 1023U, 1024U, 1025U, 5000U})
    {
        std::string narrow(length, 'x');
        if (length > 0)
            narrow.back() = 'y';
        PutNarrow(narrow);
        g_conversions.clear();
        ASSERT_TRUE(Clipboard::StringFromClipboard(m_text));
        EXPECT_EQ(m_text, CString(narrow.c_str())) << length;
        ASSERT_EQ(g_conversions.size(), 1U);
        EXPECT_EQ(g_conversions[0].room, length < 1024 ? 1024 : static_cast<int>(length) + 1) << length;
    }
}

TEST_F(ClipboardReading, ShorterTextIsConvertedInOneBufferForAll)
{
    tests::ImportPatch const patch(L"instrument_ui.dll", "MultiByteToWideChar", &RecordConversion);
    ASSERT_TRUE(patch.Done());
    g_conversions.clear();
    for (std::size_t const length : {1U, 1023U, 1024U})
    {
        PutNarrow(std::string(length, 'x'));
        ASSERT_TRUE(Clipboard::StringFromClipboard(m_text));
    }
    ASSERT_EQ(g_conversions.size(), 3U);
    EXPECT_EQ(g_conversions[0].target, g_conversions[1].target);
    EXPECT_NE(g_conversions[1].target, g_conversions[2].target);
}

TEST_F(ClipboardReading, TextWithoutTerminatorEndsWithItsMemory)
{
    Put(CF_TEXT, "abcdefgh", 8);
    ASSERT_TRUE(Clipboard::StringFromClipboard(m_text));
    EXPECT_EQ(m_text.Left(7), L"abcdefg");
    EXPECT_LE(m_text.GetLength(), 8);
}
