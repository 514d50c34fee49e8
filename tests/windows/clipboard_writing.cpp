// Text, HTML, metafiles and data put on the real clipboard.

#include <afxwin.h>

#include "../logic/clipboard_HtmlBlockReader.h"
#include "clipboard/Clipboard.h"
#include "clipboard_ClipboardTest.h"

namespace
{
class ClipboardWriting : public clipboard_tests::ClipboardTest
{
};

HENHMETAFILE Metafile()
{
    HDC const dc = ::CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
    ::Rectangle(dc, 10, 20, 110, 70);
    return ::CloseEnhMetaFile(dc);
}
} // namespace

TEST_F(ClipboardWriting, TextComesAsUnicodeWithItsTerminator)
{
    ASSERT_TRUE(Clipboard::StringToClipboard(L"50 \u20AC \u03A9\r\nnext"));
    EXPECT_EQ(WideText(), L"50 \u20AC \u03A9\r\nnext");
    std::vector<char> const bytes = Bytes(CF_UNICODETEXT);
    ASSERT_EQ(bytes.size(), 2U * (12 + 1));
    EXPECT_EQ(bytes[24], '\0');
    EXPECT_EQ(bytes[25], '\0');
}

TEST_F(ClipboardWriting, TextReplacesWhatWasThere)
{
    PutNarrow("old");
    ASSERT_TRUE(Clipboard::HtmlToClipboard(L"<b>old</b>", nullptr));
    ASSERT_TRUE(Clipboard::StringToClipboard(L"new"));
    EXPECT_EQ(WideText(), L"new");
    EXPECT_FALSE(Has(HtmlFormat()));
}

TEST_F(ClipboardWriting, AnEmptyTextEmptiesTheClipboard)
{
    PutNarrow("old");
    EXPECT_TRUE(Clipboard::StringToClipboard(L""));
    EXPECT_EQ(::CountClipboardFormats(), 0);
}

TEST_F(ClipboardWriting, ALongTextIsWhole)
{
    std::wstring text;
    for (int line = 0; line < 100000; ++line)
        text += std::to_wstring(line) + L"\r\n";
    ASSERT_TRUE(Clipboard::StringToClipboard(text.c_str()));
    EXPECT_TRUE(WideText() == text);
}

TEST_F(ClipboardWriting, EachFunctionClosesTheClipboard)
{
    Clipboard::StringToClipboard(L"a");
    EXPECT_EQ(::GetOpenClipboardWindow(), nullptr);
    clipboard_tests::OpenScope const open;
    EXPECT_TRUE(open);
}

TEST_F(ClipboardWriting, AnHtmlFragmentIsReadByItsOffsets)
{
    ASSERT_TRUE(Clipboard::HtmlToClipboard(L"<b>\u00B5V</b>", nullptr));
    std::vector<char> const bytes = Bytes(HtmlFormat());
    ASSERT_EQ(bytes.size(), 2U * 9 + 400);
    EXPECT_EQ(std::string(bytes.data()), "Version:0.9\r\n"
                                         "StartHTML:00000107\r\n"
                                         "EndHTML:00000193\r\n"
                                         "StartFragment:00000121\r\n"
                                         "EndFragment:00000156\r\n"
                                         "<!DOCTYPE><html><body>\r\n"
                                         "<!--StartFragment -->\r\n"
                                         "<b>\xC2\xB5V</b>\r\n"
                                         "<!--EndFragment -->\r\n"
                                         "</body>\r\n"
                                         "</html>");
    std::optional<html_block::Reading> const reading = html_block::Read({bytes.data(), bytes.size()});
    ASSERT_TRUE(reading);
    EXPECT_EQ(reading->fragment, "<!--StartFragment -->\r\n<b>\xC2\xB5V</b>\r\n");
    EXPECT_FALSE(Has(CF_UNICODETEXT)) << "no plain text was given";
}

TEST_F(ClipboardWriting, AnHtmlDocumentKeepsItsTags)
{
    ASSERT_TRUE(Clipboard::HtmlToClipboard(L"<html><body><p>x</p></body></html>", nullptr));
    std::vector<char> const bytes = Bytes(HtmlFormat());
    std::optional<html_block::Reading> const reading = html_block::Read({bytes.data(), bytes.size()});
    ASSERT_TRUE(reading);
    EXPECT_EQ(reading->html, "<html><body><p>x</p></body></html>");
    std::string const text(bytes.data());
    EXPECT_EQ(text.find("<html>"), text.rfind("<html>"));
    EXPECT_EQ(text.substr(text.size() - 23), "\r\n<!--EndFragment -->\r\n");
}

TEST_F(ClipboardWriting, PlainTextIsTheAlternativeToTheHtml)
{
    ASSERT_TRUE(Clipboard::HtmlToClipboard(L"<b>x</b>", L"x \u20AC"));
    EXPECT_TRUE(Has(HtmlFormat()));
    EXPECT_EQ(WideText(), L"x \u20AC");
    ASSERT_TRUE(Clipboard::HtmlToClipboard(L"<b>x</b>", L""));
    EXPECT_TRUE(Has(CF_UNICODETEXT));
    EXPECT_EQ(WideText(), L"");
}

TEST_F(ClipboardWriting, EmptyHtmlEmptiesTheClipboardWhateverThePlainText)
{
    for (wchar_t const * const html : {L"", static_cast<wchar_t const *>(nullptr)})
    {
        PutNarrow("old");
        EXPECT_TRUE(Clipboard::HtmlToClipboard(html, L"plain"));
        EXPECT_EQ(::CountClipboardFormats(), 0);
    }
}

TEST_F(ClipboardWriting, AMetafileIsTheClipboardsFromThenOn)
{
    ASSERT_TRUE(Clipboard::WmfToClipboard(Metafile()));
    clipboard_tests::OpenScope const open;
    auto const picture = static_cast<HENHMETAFILE>(::GetClipboardData(CF_ENHMETAFILE));
    ASSERT_NE(picture, nullptr);
    ENHMETAHEADER header{};
    ASSERT_NE(::GetEnhMetaFileHeader(picture, sizeof(header), &header), 0U);
    EXPECT_EQ(header.rclBounds.left, 10);
    EXPECT_EQ(header.rclBounds.top, 20);
    EXPECT_EQ(header.rclBounds.right, 109);
    EXPECT_EQ(header.rclBounds.bottom, 69);
}

TEST_F(ClipboardWriting, DataIsCopiedUnderItsRegisteredFormat)
{
    char data[] = "a\0b\xFF";
    ASSERT_TRUE(Clipboard::DataToClipboard(L"InstrumentUiTests.Data", data, 4));
    data[0] = 'z';
    std::vector<char> const bytes = Bytes(::RegisterClipboardFormatW(L"InstrumentUiTests.Data"));
    ASSERT_EQ(bytes.size(), 4U);
    EXPECT_EQ(bytes, (std::vector<char>{'a', '\0', 'b', '\xFF'}));
}

TEST_F(ClipboardWriting, AHandleIsHandedOver)
{
    HGLOBAL const memory = ::GlobalAlloc(GMEM_MOVEABLE, 3);
    std::memcpy(::GlobalLock(memory), "xyz", 3);
    ::GlobalUnlock(memory);
    ASSERT_TRUE(Clipboard::HandleToClipboard(L"InstrumentUiTests.Handle", memory));
    EXPECT_EQ(Bytes(::RegisterClipboardFormatW(L"InstrumentUiTests.Handle")), (std::vector<char>{'x', 'y', 'z'}));
}
