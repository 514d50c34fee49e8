#pragma once
// The clipboard before and after a test is empty; what a test reads from it comes by the system's functions.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace clipboard_tests
{
/// Opens the clipboard for its scope.
class OpenScope
{
public:
    OpenScope() : m_open(::OpenClipboard(nullptr) != FALSE) {}
    ~OpenScope()
    {
        if (m_open)
            ::CloseClipboard();
    }
    OpenScope(OpenScope const &) = delete;
    OpenScope & operator=(OpenScope const &) = delete;
    explicit operator bool() const { return m_open; }

private:
    bool m_open;
};

class ClipboardTest : public testing::Test
{
protected:
    void SetUp() override { Empty(); }
    void TearDown() override
    {
        // A clipboard left open could not be opened by other programs.
        ::CloseClipboard();
        Empty();
    }

    static void Empty()
    {
        OpenScope const open;
        ASSERT_TRUE(open);
        ASSERT_TRUE(::EmptyClipboard());
    }

    static bool Has(UINT format) { return ::IsClipboardFormatAvailable(format) != FALSE; }
    static UINT HtmlFormat() { return ::RegisterClipboardFormatW(L"HTML Format"); }

    /// The whole memory of a format.
    static std::vector<char> Bytes(UINT format)
    {
        OpenScope const open;
        HGLOBAL const memory = ::GetClipboardData(format);
        if (memory == nullptr)
            return {};
        auto const * const bytes = static_cast<char const *>(::GlobalLock(memory));
        std::vector<char> result(bytes, bytes + ::GlobalSize(memory));
        ::GlobalUnlock(memory);
        return result;
    }

    static std::wstring WideText()
    {
        std::vector<char> const bytes = Bytes(CF_UNICODETEXT);
        std::wstring text(bytes.size() / sizeof(wchar_t), L'\0');
        std::memcpy(text.data(), bytes.data(), text.size() * sizeof(wchar_t));
        return text.substr(0, text.find(L'\0'));
    }

    /// Puts bytes there without the functions under test.
    static void Put(UINT format, void const * bytes, std::size_t size)
    {
        OpenScope const open;
        ASSERT_TRUE(open);
        ASSERT_TRUE(::EmptyClipboard());
        HGLOBAL const memory = ::GlobalAlloc(GMEM_MOVEABLE, size);
        std::memcpy(::GlobalLock(memory), bytes, size);
        ::GlobalUnlock(memory);
        ASSERT_NE(::SetClipboardData(format, memory), nullptr);
    }
    static void PutNarrow(std::string const & text) { Put(CF_TEXT, text.c_str(), text.size() + 1); }
};
} // namespace clipboard_tests
