// What the clipboard functions do when the system refuses: every report is a box with the system's text.

#include <afxwin.h>

#include <memory>

#include "clipboard/Clipboard.h"
#include "clipboard_ClipboardTest.h"
#include "frame/CoreLibrary.h"
#include "ImportPatch.h"
#include "TestApp.h"

namespace
{
constexpr wchar_t module_name[] = L"instrument_ui.dll";
constexpr DWORD refused = ERROR_NOT_ENOUGH_QUOTA;
constexpr UINT every_format = 0;

struct Calls
{
    int open = 0;
    int empty = 0;
    int set = 0;
    int close = 0;
    std::vector<HANDLE> freed;
    std::vector<HANDLE> metafiles;
    std::vector<UINT> allocationFlags;
    std::vector<SIZE_T> allocationSizes;
};
Calls g_calls;
UINT g_refusedFormat = every_format;

BOOL WINAPI RefuseToOpen(HWND)
{
    ++g_calls.open;
    ::SetLastError(refused);
    return FALSE;
}
BOOL WINAPI RefuseToEmpty()
{
    ++g_calls.empty;
    ::SetLastError(refused);
    return FALSE;
}
HANDLE WINAPI RefuseToSet(UINT format, HANDLE data)
{
    ++g_calls.set;
    if (g_refusedFormat != every_format && format != g_refusedFormat)
        return ::SetClipboardData(format, data);
    ::SetLastError(refused);
    return nullptr;
}
BOOL WINAPI CountClose()
{
    ++g_calls.close;
    return ::CloseClipboard();
}
HGLOBAL WINAPI RefuseToAllocate(UINT flags, SIZE_T size)
{
    g_calls.allocationFlags.push_back(flags);
    g_calls.allocationSizes.push_back(size);
    ::SetLastError(refused);
    return nullptr;
}
HGLOBAL WINAPI RecordAllocation(UINT flags, SIZE_T size)
{
    g_calls.allocationFlags.push_back(flags);
    g_calls.allocationSizes.push_back(size);
    return ::GlobalAlloc(flags, size);
}
LPVOID WINAPI RefuseToLock(HGLOBAL)
{
    ::SetLastError(refused);
    return nullptr;
}
HGLOBAL WINAPI RecordFree(HGLOBAL memory)
{
    g_calls.freed.push_back(memory);
    return ::GlobalFree(memory);
}
BOOL WINAPI RecordDelete(HENHMETAFILE metafile)
{
    g_calls.metafiles.push_back(metafile);
    return ::DeleteEnhMetaFile(metafile);
}

class ClipboardFailures : public clipboard_tests::ClipboardTest
{
protected:
    void SetUp() override
    {
        ClipboardTest::SetUp();
        g_calls = Calls();
        g_refusedFormat = every_format;
    }

    template <typename Function> void Patch(char const * name, Function * substitute)
    {
        m_patches.emplace_back(std::make_unique<tests::ImportPatch>(module_name, name, substitute));
        ASSERT_TRUE(m_patches.back()->Done()) << name;
    }

    /// One box, of the default style, with the system's text.
    static void ExpectReport()
    {
        std::vector<tests::TestApp::Message> const messages = tests::App().Take();
        ASSERT_EQ(messages.size(), 1U);
        EXPECT_EQ(messages[0].text, SystemErrorText(refused).GetString());
        EXPECT_FALSE(messages[0].text.empty());
        EXPECT_EQ(messages[0].type, static_cast<UINT>(MB_OK));
    }
    static void ExpectNoReport() { EXPECT_TRUE(tests::App().Take().empty()); }

    void TearDown() override
    {
        m_patches.clear();
        ClipboardTest::TearDown();
    }

private:
    std::vector<std::unique_ptr<tests::ImportPatch>> m_patches;
};

HGLOBAL SomeMemory()
{
    return ::GlobalAlloc(GMEM_MOVEABLE, 4);
}

HENHMETAFILE SomeMetafile()
{
    return ::CloseEnhMetaFile(::CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr));
}
} // namespace

TEST_F(ClipboardFailures, AClipboardThatCannotBeOpenedIsReportedOnce)
{
    Patch("OpenClipboard", &RefuseToOpen);
    Patch("EmptyClipboard", &RefuseToEmpty);
    Patch("CloseClipboard", &CountClose);
    Patch("GlobalFree", &RecordFree);
    Patch("DeleteEnhMetaFile", &RecordDelete);
    CString text = L"before";
    HGLOBAL const memory = SomeMemory();
    HENHMETAFILE const metafile = SomeMetafile();

    EXPECT_FALSE(Clipboard::StringToClipboard(L"a"));
    ExpectReport();
    EXPECT_FALSE(Clipboard::StringToClipboard(L""));
    ExpectReport();
    EXPECT_FALSE(Clipboard::HtmlToClipboard(L"a", L"a"));
    ExpectReport();
    EXPECT_FALSE(Clipboard::HtmlToClipboard(nullptr, nullptr));
    ExpectReport();
    EXPECT_FALSE(Clipboard::WmfToClipboard(metafile));
    ExpectReport();
    EXPECT_FALSE(Clipboard::HandleToClipboard(L"InstrumentUiTests.Data", memory));
    ExpectReport();
    EXPECT_FALSE(Clipboard::DataToClipboard(L"InstrumentUiTests.Data", "a", 1));
    ExpectReport();
    EXPECT_FALSE(Clipboard::StringFromClipboard(text));
    ExpectReport();
    EXPECT_EQ(text, L"before");

    EXPECT_EQ(g_calls.open, 8) << "no second attempt";
    EXPECT_EQ(g_calls.empty, 0);
    EXPECT_EQ(g_calls.close, 0);
    EXPECT_TRUE(g_calls.freed.empty());
    EXPECT_TRUE(g_calls.metafiles.empty());
    ::GlobalFree(memory);
    ::DeleteEnhMetaFile(metafile);
}

TEST_F(ClipboardFailures, AClipboardThatCannotBeEmptiedStaysOpen)
{
    Patch("EmptyClipboard", &RefuseToEmpty);
    Patch("CloseClipboard", &CountClose);
    EXPECT_FALSE(Clipboard::StringToClipboard(L"a"));
    ExpectReport();
    EXPECT_EQ(g_calls.empty, 1);
    EXPECT_EQ(g_calls.close, 0);
    EXPECT_TRUE(::CloseClipboard()) << "it is still open";

    EXPECT_FALSE(Clipboard::HtmlToClipboard(L"a", nullptr));
    ExpectReport();
    EXPECT_TRUE(::CloseClipboard());
    HENHMETAFILE const metafile = SomeMetafile();
    EXPECT_FALSE(Clipboard::WmfToClipboard(metafile));
    ExpectReport();
    EXPECT_TRUE(::CloseClipboard());
    EXPECT_TRUE(::DeleteEnhMetaFile(metafile)) << "it is still the caller's";
    EXPECT_FALSE(Clipboard::DataToClipboard(L"InstrumentUiTests.Data", "a", 1));
    ExpectReport();
    EXPECT_TRUE(::CloseClipboard());
    EXPECT_EQ(g_calls.close, 0);
}

TEST_F(ClipboardFailures, SuccessClosesTheClipboardOnce)
{
    Patch("CloseClipboard", &CountClose);
    CString text;
    EXPECT_TRUE(Clipboard::StringToClipboard(L"a"));
    EXPECT_EQ(g_calls.close, 1);
    EXPECT_TRUE(Clipboard::StringFromClipboard(text));
    EXPECT_EQ(g_calls.close, 2);
    EXPECT_TRUE(Clipboard::StringToClipboard(L""));
    EXPECT_EQ(g_calls.close, 3);
    EXPECT_FALSE(Clipboard::StringFromClipboard(text));
    EXPECT_EQ(g_calls.close, 4);
    EXPECT_TRUE(Clipboard::HtmlToClipboard(L"a", L"a"));
    EXPECT_EQ(g_calls.close, 5);
    EXPECT_TRUE(Clipboard::HtmlToClipboard(L"", L"a"));
    EXPECT_EQ(g_calls.close, 6);
    EXPECT_TRUE(Clipboard::WmfToClipboard(SomeMetafile()));
    EXPECT_EQ(g_calls.close, 7);
    EXPECT_TRUE(Clipboard::DataToClipboard(L"InstrumentUiTests.Data", "a", 1));
    EXPECT_EQ(g_calls.close, 8);
}

TEST_F(ClipboardFailures, ReadingEmptiesNothing)
{
    PutNarrow("abc");
    Patch("EmptyClipboard", &RefuseToEmpty);
    CString text;
    EXPECT_TRUE(Clipboard::StringFromClipboard(text));
    EXPECT_EQ(g_calls.empty, 0);
}

TEST_F(ClipboardFailures, TextThatCannotBeSetIsReportedAndItsMemoryKept)
{
    Patch("SetClipboardData", &RefuseToSet);
    Patch("CloseClipboard", &CountClose);
    Patch("GlobalFree", &RecordFree);
    PutNarrow("old");
    EXPECT_FALSE(Clipboard::StringToClipboard(L"a"));
    ExpectReport();
    EXPECT_EQ(g_calls.set, 1);
    EXPECT_EQ(g_calls.close, 1);
    EXPECT_TRUE(g_calls.freed.empty());
    EXPECT_EQ(::CountClipboardFormats(), 0) << "it has been emptied";
}

TEST_F(ClipboardFailures, TextThatCannotBeLockedIsReportedAndNotSet)
{
    Patch("GlobalLock", &RefuseToLock);
    Patch("SetClipboardData", &RefuseToSet);
    Patch("CloseClipboard", &CountClose);
    EXPECT_FALSE(Clipboard::StringToClipboard(L"a"));
    ExpectReport();
    EXPECT_EQ(g_calls.set, 0);
    EXPECT_EQ(g_calls.close, 1);
}

TEST_F(ClipboardFailures, MemoryThatCannotBeHadIsReported)
{
    Patch("GlobalAlloc", &RefuseToAllocate);
    Patch("CloseClipboard", &CountClose);
    EXPECT_FALSE(Clipboard::StringToClipboard(L"abc"));
    ExpectReport();
    EXPECT_FALSE(Clipboard::HtmlToClipboard(L"abc", L"abc"));
    ExpectReport();
    EXPECT_EQ(g_calls.close, 2);
    EXPECT_EQ(g_calls.allocationSizes, (std::vector<SIZE_T>{8, 406}));
    EXPECT_EQ(g_calls.allocationFlags, (std::vector<UINT>{GMEM_MOVEABLE, GMEM_MOVEABLE}));
}

TEST_F(ClipboardFailures, HtmlThatCannotBeLockedIsReported)
{
    Patch("GlobalLock", &RefuseToLock);
    Patch("CloseClipboard", &CountClose);
    EXPECT_FALSE(Clipboard::HtmlToClipboard(L"abc", L"abc"));
    ExpectReport();
    EXPECT_EQ(g_calls.close, 1);
    EXPECT_EQ(::CountClipboardFormats(), 0);
}

TEST_F(ClipboardFailures, HtmlThatCannotBeSetIsReportedAndThePlainTextStillSet)
{
    Patch("SetClipboardData", &RefuseToSet);
    Patch("CloseClipboard", &CountClose);
    g_refusedFormat = HtmlFormat();
    EXPECT_TRUE(Clipboard::HtmlToClipboard(L"<b>a</b>", L"a"));
    ExpectReport();
    EXPECT_EQ(g_calls.set, 2);
    EXPECT_EQ(g_calls.close, 1);
    EXPECT_FALSE(Has(HtmlFormat()));
    EXPECT_EQ(WideText(), L"a");
}

TEST_F(ClipboardFailures, PlainTextThatCannotBeSetIsSilent)
{
    Patch("SetClipboardData", &RefuseToSet);
    g_refusedFormat = CF_UNICODETEXT;
    EXPECT_TRUE(Clipboard::HtmlToClipboard(L"<b>a</b>", L"a"));
    ExpectNoReport();
    EXPECT_TRUE(Has(HtmlFormat()));
    EXPECT_FALSE(Has(CF_UNICODETEXT));
}

TEST_F(ClipboardFailures, AMetafileThatCannotBeSetIsDeleted)
{
    Patch("SetClipboardData", &RefuseToSet);
    Patch("CloseClipboard", &CountClose);
    Patch("DeleteEnhMetaFile", &RecordDelete);
    HENHMETAFILE const metafile = SomeMetafile();
    EXPECT_FALSE(Clipboard::WmfToClipboard(metafile));
    ExpectReport();
    EXPECT_EQ(g_calls.metafiles, std::vector<HANDLE>{metafile});
    EXPECT_EQ(g_calls.close, 1);
}

TEST_F(ClipboardFailures, AHandleThatCannotBeSetIsFreed)
{
    Patch("SetClipboardData", &RefuseToSet);
    Patch("CloseClipboard", &CountClose);
    Patch("GlobalFree", &RecordFree);
    HGLOBAL const memory = SomeMemory();
    EXPECT_FALSE(Clipboard::HandleToClipboard(L"InstrumentUiTests.Data", memory));
    ExpectReport();
    EXPECT_EQ(g_calls.freed, std::vector<HANDLE>{memory});
    EXPECT_EQ(g_calls.close, 1);
}

TEST_F(ClipboardFailures, DataWithoutMemoryFailsSilentlyAndLeavesTheClipboardAlone)
{
    PutNarrow("old");
    {
        tests::ImportPatch const patch(module_name, "GlobalAlloc", &RefuseToAllocate);
        ASSERT_TRUE(patch.Done());
        EXPECT_FALSE(Clipboard::DataToClipboard(L"InstrumentUiTests.Data", "abc", 3));
    }
    ExpectNoReport();
    {
        tests::ImportPatch const patch(module_name, "GlobalLock", &RefuseToLock);
        ASSERT_TRUE(patch.Done());
        EXPECT_FALSE(Clipboard::DataToClipboard(L"InstrumentUiTests.Data", "abc", 3));
    }
    ExpectNoReport();
    EXPECT_FALSE(Clipboard::DataToClipboard(L"InstrumentUiTests.Data", "", 0)) << "no byte, no memory to lock";
    ExpectNoReport();
    EXPECT_EQ(WideText(), L"old");
}

TEST_F(ClipboardFailures, DataIsAllocatedMoveableAndShared)
{
    Patch("GlobalAlloc", &RecordAllocation);
    EXPECT_TRUE(Clipboard::DataToClipboard(L"InstrumentUiTests.Data", "abc", 3));
    EXPECT_EQ(g_calls.allocationFlags, std::vector<UINT>{0x2002});
    EXPECT_EQ(g_calls.allocationSizes, std::vector<SIZE_T>{3});
}

TEST_F(ClipboardFailures, AClipboardOpenElsewhereIsFinal)
{
    // Opened with a window of its own, it belongs to that window.
    HWND const window = ::CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
    ASSERT_TRUE(::OpenClipboard(window));
    EXPECT_FALSE(Clipboard::StringToClipboard(L"a"));
    EXPECT_EQ(tests::App().Take().size(), 1U);
    ::CloseClipboard();
    ::DestroyWindow(window);
    EXPECT_TRUE(Clipboard::StringToClipboard(L"a"));
}
