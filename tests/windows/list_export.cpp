// A list's cells as text on the clipboard.

#include <locale.h>
#include <wchar.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdarg>
#include <iterator>
#include <string>

#include "clipboard_ClipboardTest.h"
#include "frame/CoreLibrary.h"
#include "ImportPatch.h"
#include "ListTestHost.h"
#include "TestApp.h"

namespace
{
class ListExport : public clipboard_tests::ClipboardTest
{
protected:
    /// Three columns "c0" to "c2", and rows of texts named by place.
    void Fill(int rows)
    {
        m_host.Fill(3, rows);
        for (int row = 0; row < rows; ++row)
        {
            for (int col = 0; col < 3; ++col)
                m_list.SetItemText(row, col, (std::to_wstring(row) + L"." + std::to_wstring(col)).c_str());
        }
    }
    tests::ListHost m_host;
    tests::TestList & m_list = m_host.list;
};

TEST_F(ListExport, EverythingWithoutTitles)
{
    Fill(2);
    EXPECT_TRUE(m_list.ExportToClipboard(false, 0, -1, 0, -1));
    EXPECT_EQ(WideText(), L"0.0\t0.1\t0.2\r\n1.0\t1.1\t1.2\r\n");
    EXPECT_FALSE(Has(HtmlFormat()));
}

TEST_F(ListExport, EverythingWithTitles)
{
    Fill(1);
    EXPECT_TRUE(m_list.ExportToClipboard(true, 0, -1, 0, -1));
    EXPECT_EQ(WideText(), L"c0\tc1\tc2\r\n0.0\t0.1\t0.2\r\n");
}

TEST_F(ListExport, ALastRowAheadOfTheFirstMeansTheFirst)
{
    Fill(8);
    EXPECT_TRUE(m_list.ExportToClipboard(true, 5, 2, 0, 0));
    EXPECT_EQ(WideText(), L"c0\r\n5.0\r\n");
    EXPECT_TRUE(m_list.ExportToClipboard(false, 5, 5, 2, 1));
    EXPECT_EQ(WideText(), L"5.2\r\n");
}

TEST_F(ListExport, RangesEndAtTheLastRowAndColumn)
{
    Fill(4);
    EXPECT_TRUE(m_list.ExportToClipboard(false, 2, 4, 1, 3));
    EXPECT_EQ(WideText(), L"2.1\t2.2\r\n3.1\t3.2\r\n");
    EXPECT_TRUE(m_list.ExportToClipboard(true, 1, 2, 1, 1));
    EXPECT_EQ(WideText(), L"c1\r\n1.1\r\n2.1\r\n");
    EXPECT_TRUE(m_list.ExportToClipboard(false, 3, 99, 2, 99));
    EXPECT_EQ(WideText(), L"3.2\r\n");
}

TEST_F(ListExport, AFirstRowOrColumnPastTheEndGivesFalseAndLeavesTheClipboard)
{
    Fill(2);
    ASSERT_TRUE(m_list.ExportToClipboard(false, 1, 1, 1, 1));
    EXPECT_FALSE(m_list.ExportToClipboard(true, 2, -1, 0, -1));
    EXPECT_FALSE(m_list.ExportToClipboard(true, 0, -1, 3, -1));
    EXPECT_EQ(WideText(), L"1.1\r\n");
}

TEST_F(ListExport, ANegativeFirstRowOrColumnMeansTheFirst)
{
    Fill(2);
    EXPECT_TRUE(m_list.ExportToClipboard(false, -3, 0, -2, 1));
    EXPECT_EQ(WideText(), L"0.0\t0.1\r\n");
}

TEST_F(ListExport, AnEmptyListGivesFalse)
{
    EXPECT_FALSE(m_list.ExportToClipboard(true, 0, -1, 0, -1));
    m_host.Fill(3, 0);
    EXPECT_FALSE(m_list.ExportToClipboard(true, 0, -1, 0, -1));
    EXPECT_FALSE(m_list.ExportToClipboard(false, 0, 0, 0, 0));
}

TEST_F(ListExport, AListWithoutAWindowGivesFalse)
{
    Fill(2);
    m_list.DestroyWindow();
    EXPECT_FALSE(m_list.ExportToClipboard(true, 0, -1, 0, -1));
}

TEST_F(ListExport, CellsWithAValueGiveThatAndNotTheirText)
{
    m_host.Fill(3, 2);
    m_list.SetItemFloatVal(0, 0, 3.5F, L"3.50");
    m_list.SetItemText(0, 1, 48000);
    m_list.SetItemFloatVal(0, 2, 0.0F, L"silence");
    CTime const time(2024, 3, 9, 17, 5, 6);
    m_list.SetItemText(1, 0, L"some day");
    m_list.SetItemDatetime(1, 0, time);
    ASSERT_EQ(m_list.GetItemText(0, 0), L"3.50");
    EXPECT_TRUE(m_list.ExportToClipboard(false, 0, 0, 0, -1));
    EXPECT_EQ(WideText(), L"3.5\t48000\t0\r\n");
    EXPECT_TRUE(m_list.ExportToClipboard(false, 1, 1, 0, 0));
    EXPECT_EQ(WideText(), std::wstring(UserDateTimeText(time, dtf_date_time).GetString()) + L"\r\n");
}

TEST_F(ListExport, ChecksAndCombosGiveTheirText)
{
    m_host.Fill(3, 1);
    m_list.SetItemText(0, 0, L"");
    m_list.SetCheckbox(0, 0, XLC_CHECKED);
    m_list.SetComboBox(0, 1, {{1, L"one"}, {2, L"two"}}, 2, 1);
    m_list.SetItemText(0, 2, L"checked text");
    m_list.SetCheckbox(0, 2, XLC_UNCHECKED);
    EXPECT_TRUE(m_list.ExportToClipboard(false, 0, -1, 0, -1));
    EXPECT_EQ(WideText(), L"\ttwo\tchecked text\r\n");
}

TEST_F(ListExport, TabsAndLineBreaksOfATextStay)
{
    m_host.Fill(1, 1);
    m_list.SetItemText(0, 0, L"a\tb\r\nc");
    EXPECT_TRUE(m_list.ExportToClipboard(false, 0, -1, 0, -1));
    EXPECT_EQ(WideText(), L"a\tb\r\nc\r\n");
}

TEST_F(ListExport, TextsAndTitlesAreCutBehind199Characters)
{
    std::wstring const text(199, L'x');
    m_list.AddColumn((text + L"y").c_str(), LVCFMT_LEFT, 50);
    m_list.AddItem((text + L"yz").c_str(), nullptr, 0);
    m_list.AddItem(text.c_str(), nullptr, 0);
    EXPECT_TRUE(m_list.ExportToClipboard(true, 0, -1, 0, -1));
    EXPECT_EQ(WideText(), text + L"\r\n" + text + L"\r\n" + text + L"\r\n");
}

TEST_F(ListExport, LinesMayBeLongerThan2000Characters)
{
    std::wstring const text(199, L'x');
    m_host.Fill(15, 1);
    std::wstring expected;
    for (int col = 0; col < 15; ++col)
    {
        m_list.SetItemText(0, col, text.c_str());
        expected += (col > 0 ? L"\t" : L"") + text;
    }
    EXPECT_TRUE(m_list.ExportToClipboard(false, 0, -1, 0, -1));
    EXPECT_EQ(WideText(), expected + L"\r\n");
}

TEST_F(ListExport, RowsWithoutCellsGiveNoLine)
{
    Fill(2);
    m_list.InsertForeignItem(1, L"foreign");
    EXPECT_TRUE(m_list.ExportToClipboard(false, 0, -1, 0, 0));
    EXPECT_EQ(WideText(), L"0.0\r\n1.0\r\n");
    // Nothing at all leaves the clipboard empty.
    EXPECT_TRUE(m_list.ExportToClipboard(false, 1, 1, 0, 0));
    EXPECT_FALSE(Has(CF_UNICODETEXT));
}

TEST_F(ListExport, AColumnYoungerThanARowGivesItsText)
{
    m_host.Fill(2, 1);
    m_list.AddColumn(L"late", LVCFMT_LEFT, 30);
    m_list.CListCtrl::SetItemText(0, 2, L"native");
    EXPECT_TRUE(m_list.ExportToClipboard(true, 0, -1, 1, -1));
    EXPECT_EQ(WideText(), L"c1\tlate\r\n\tnative\r\n");
}

BOOL WINAPI RefuseToOpen(HWND)
{
    return FALSE;
}

TEST_F(ListExport, ARefusingClipboardGivesFalse)
{
    Fill(1);
    tests::ImportPatch const patch(L"instrument_ui.dll", "OpenClipboard", &RefuseToOpen);
    ASSERT_TRUE(patch.Done());
    EXPECT_FALSE(m_list.ExportToClipboard(false, 0, -1, 0, -1));
    EXPECT_EQ(tests::App().TakeMessages().size(), 1U);
}

// --- The locale of numbers ---

/// Writes numbers as a German system does.
int WriteGerman(wchar_t * buffer, std::size_t size, wchar_t const * format, _locale_t locale, ...)
{
    EXPECT_NE(locale, nullptr);
    _locale_t const german = ::_create_locale(LC_NUMERIC, "German");
    va_list arguments;
    va_start(arguments, locale);
    int const length = ::_vsnwprintf_l(buffer, size, format, german, arguments);
    va_end(arguments);
    ::_free_locale(german);
    return length;
}
int FailToWrite(wchar_t *, std::size_t, wchar_t const *, _locale_t, ...)
{
    return -1;
}

class ListExportLocale : public ListExport
{
protected:
    void SetUp() override
    {
        ListExport::SetUp();
        m_host.Fill(2, 1);
        m_list.SetItemFloatVal(0, 0, 1234.5F, L"");
        m_list.SetItemText(0, 1, -1234567);
    }
};

TEST_F(ListExportLocale, IsThatOfTheSystemsCodePage)
{
    _locale_t const locale = ::_create_locale(LC_NUMERIC, ".ACP");
    ASSERT_NE(locale, nullptr);
    wchar_t expected[50];
    ::_snwprintf_l(expected, std::size(expected), L"%g\t%d\r\n", locale, 1234.5, -1234567);
    ::_free_locale(locale);
    EXPECT_TRUE(m_list.ExportToClipboard(false, 0, -1, 0, -1));
    EXPECT_EQ(WideText(), expected);
}

TEST_F(ListExportLocale, GivesTheDecimalSign)
{
    tests::ImportPatch const patch(L"instrument_ui.dll", "_snwprintf_l", &WriteGerman);
    ASSERT_TRUE(patch.Done());
    EXPECT_TRUE(m_list.ExportToClipboard(false, 0, -1, 0, -1));
    EXPECT_EQ(WideText(), L"1234,5\t-1234567\r\n");
}

TEST_F(ListExportLocale, WithoutADecimalSignItIsAPoint)
{
    tests::ImportPatch const patch(L"instrument_ui.dll", "_snwprintf_l", &FailToWrite);
    ASSERT_TRUE(patch.Done());
    EXPECT_TRUE(m_list.ExportToClipboard(false, 0, -1, 0, -1));
    EXPECT_EQ(WideText(), L"1234.5\t-1234567\r\n");
}

TEST_F(ListExportLocale, IsNotTheOneThatTheHostHasSet)
{
    std::string const former = ::setlocale(LC_NUMERIC, nullptr);
    ASSERT_NE(::setlocale(LC_NUMERIC, "German"), nullptr);
    bool const done = m_list.ExportToClipboard(false, 0, -1, 0, 0);
    ::setlocale(LC_NUMERIC, former.c_str());
    EXPECT_TRUE(done);
    _locale_t const locale = ::_create_locale(LC_NUMERIC, ".ACP");
    wchar_t expected[50];
    ::_snwprintf_l(expected, std::size(expected), L"%g\r\n", locale, 1234.5);
    ::_free_locale(locale);
    EXPECT_EQ(WideText(), expected);
}

/// Blocks in use in all heaps of the process.
int HeapBlocks()
{
    HANDLE heaps[64];
    DWORD const count = std::min<DWORD>(::GetProcessHeaps(static_cast<DWORD>(std::size(heaps)), heaps),
                                        static_cast<DWORD>(std::size(heaps)));
    int blocks = 0;
    for (DWORD i = 0; i < count; ++i)
    {
        PROCESS_HEAP_ENTRY entry{};
        while (::HeapWalk(heaps[i], &entry))
        {
            if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0)
                ++blocks;
        }
    }
    return blocks;
}

TEST_F(ListExportLocale, IsGivenBack)
{
    constexpr int exports = 50;
    m_list.ExportToClipboard(true, 0, -1, 0, -1);
    int const before = HeapBlocks();
    ASSERT_GT(before, 0);
    for (int i = 0; i < exports; ++i)
        ASSERT_TRUE(m_list.ExportToClipboard(true, 0, -1, 0, -1));
    EXPECT_LT(HeapBlocks(), before + exports);
}
} // namespace
