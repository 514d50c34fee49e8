// The page of the preview, and printing it.

#include "Printing.h"

#include <winspool.h>

#include "../../ImportPatch.h"
#include "MainWindowTest.h"

namespace
{

class WorkbenchPrinting : public tests::MainWindowTest
{
};

BOOL WINAPI NoPrinters(DWORD, LPWSTR, DWORD, LPBYTE, DWORD, LPDWORD bytes, LPDWORD count)
{
    *bytes = 0;
    *count = 0;
    return TRUE;
}

} // namespace

TEST_F(WorkbenchPrinting, APageIsDrawnInItsOwnSizeAndPlayedIntoItsPlace)
{
    CClientDC screen(m_window.get());
    CDC memory;
    ASSERT_TRUE(memory.CreateCompatibleDC(&screen));
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateCompatibleBitmap(&screen, 300, 200));
    CBitmap * const former = memory.SelectObject(&bitmap);
    memory.FillSolidRect(CRect(0, 0, 300, 200), RGB(255, 255, 255));
    CSize drawn(0, 0);
    EXPECT_TRUE(
        workbench::DrawScaled(memory, CRect(100, 50, 200, 100), CSize(1000, 500), [&](CDC & dc, CRect const & rect) {
            drawn = rect.Size();
            dc.FillSolidRect(rect, RGB(0, 0, 255));
            dc.FillSolidRect(CRect(rect.left, rect.top, 500, rect.bottom), RGB(255, 0, 0));
        }));
    EXPECT_EQ(drawn, CSize(1000, 500));
    EXPECT_EQ(memory.GetPixel(110, 60), RGB(255, 0, 0));
    EXPECT_EQ(memory.GetPixel(145, 95), RGB(255, 0, 0));
    EXPECT_EQ(memory.GetPixel(155, 60), RGB(0, 0, 255));
    EXPECT_EQ(memory.GetPixel(195, 95), RGB(0, 0, 255));
    EXPECT_EQ(memory.GetPixel(90, 60), RGB(255, 255, 255));
    EXPECT_EQ(memory.GetPixel(150, 110), RGB(255, 255, 255));
    memory.SelectObject(former);
}

TEST_F(WorkbenchPrinting, APageHasTheProportionsOfPaperWithinItsMargins)
{
    CSize const size = workbench::PageSize();
    EXPECT_NEAR(static_cast<double>(size.cx) / size.cy, 273.0 / 186.0, 0.01);
    EXPECT_GT(size.cx, 800);
}

TEST_F(WorkbenchPrinting, WithoutAPrinterThePreviewSaysSo)
{
    tests::ImportPatch const patch(nullptr, "EnumPrintersW", &NoPrinters);
    ASSERT_TRUE(patch.Done());
    m_window->ShowTargets({Folder(1)});
    ASSERT_TRUE(WaitUntilRead());
    ASSERT_TRUE(m_window->ShowPreview());
    m_window->Preview().GetDlgItem(IDC_PRINT)->SetFocus();
    tests::Key(VK_SPACE);
    std::vector<std::wstring> told;
    ASSERT_TRUE(tests::PumpUntil([&] {
        auto const messages = tests::App().TakeMessages();
        told.insert(told.end(), messages.begin(), messages.end());
        return !told.empty();
    }));
    EXPECT_EQ(told, std::vector<std::wstring>{L"There is no printer."});
    EXPECT_TRUE(m_window->Preview().IsOpen());
}
