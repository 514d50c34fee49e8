// The edit control with a button, and what is known of a file.

#include <afxdlgs.h>
#include <afxeditbrowsectrl.h>

#include <gtest/gtest.h>

#include "Bitmap.h"
#include "Input.h"
#include "Pump.h"
#include "ScopedWindow.h"

namespace
{
class CountingEdit : public CMFCEditBrowseCtrl
{
public:
    int m_browsed = 0;
    int m_drawn = 0;
    CRect m_place;
    void OnBrowse() override { ++m_browsed; }
    void OnDrawBrowseButton(CDC * pDC, CRect rect, BOOL bIsButtonPressed, BOOL bIsButtonHot) override
    {
        ++m_drawn;
        m_place = rect;
        CMFCEditBrowseCtrl::OnDrawBrowseButton(pDC, rect, bIsButtonPressed, bIsButtonHot);
    }
};

class EditBrowse : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_edit.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, CRect(10, 10, 210, 34), m_host, 5));
        tests::BringToFront(m_host.m_hWnd);
    }
    void TearDown() override { m_edit.DestroyWindow(); }
    int ClientWidth()
    {
        CRect client;
        m_edit.GetClientRect(&client);
        return client.Width();
    }
    CPoint OnButton()
    {
        CRect rect;
        m_edit.GetWindowRect(&rect);
        return CPoint(rect.right - 8, rect.CenterPoint().y);
    }

    tests::ScopedWindow m_host;
    CountingEdit m_edit;
};
} // namespace

TEST_F(EditBrowse, TheButtonTakesRoomFromTheClientArea)
{
    EXPECT_EQ(m_edit.GetMode(), CMFCEditBrowseCtrl::BrowseMode_None);
    int const whole = ClientWidth();
    m_edit.EnableBrowseButton();
    EXPECT_EQ(m_edit.GetMode(), CMFCEditBrowseCtrl::BrowseMode_Default);
    int const beside = ClientWidth();
    EXPECT_LT(beside, whole);
    m_edit.RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_GT(m_edit.m_drawn, 0);
    EXPECT_EQ(m_edit.m_place.Width(), whole - beside);
    m_edit.EnableBrowseButton(TRUE, L"a label that is long");
    EXPECT_LT(ClientWidth(), beside);
    m_edit.EnableBrowseButton(FALSE);
    EXPECT_EQ(ClientWidth(), whole);
}

TEST_F(EditBrowse, ThePictureGivesTheButtonItsWidth)
{
    int const whole = ClientWidth();
    m_edit.EnableBrowseButton();
    m_edit.SetBrowseButtonImage(::LoadIconW(nullptr, IDI_APPLICATION), FALSE);
    EXPECT_EQ(ClientWidth(), whole - 32 - 8);
    CBitmap bitmap;
    bitmap.CreateBitmap(16, 12, 1, 32, nullptr);
    m_edit.SetBrowseButtonImage(static_cast<HBITMAP>(bitmap.Detach()));
    EXPECT_EQ(ClientWidth(), whole - 16 - 8);
    m_edit.RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
}

TEST_F(EditBrowse, AClickOnTheButtonBrowsesAndADragOffItDoesNot)
{
    m_edit.EnableBrowseButton();
    tests::Click(OnButton());
    EXPECT_TRUE(tests::PumpUntil([&] { return m_edit.m_browsed == 1; }));
    EXPECT_NE(::GetCapture(), m_edit.m_hWnd);
    CPoint const button = OnButton();
    tests::Drag(button, button + CSize(-60, 0));
    EXPECT_TRUE(tests::PumpUntil([&] { return ::GetCapture() != m_edit.m_hWnd; }));
    tests::PumpPosted();
    EXPECT_EQ(m_edit.m_browsed, 1);
}

TEST_F(EditBrowse, ADisabledFieldDoesNotBrowse)
{
    m_edit.EnableBrowseButton();
    m_edit.EnableWindow(FALSE);
    tests::Click(OnButton());
    tests::PumpFor(std::chrono::milliseconds(50));
    EXPECT_EQ(m_edit.m_browsed, 0);
}

TEST(FileStatus, TellsNameSizeAndKindOfAFile)
{
    wchar_t folder[MAX_PATH] = {};
    ::GetTempPathW(MAX_PATH, folder);
    CString const path = CString(folder) + L"file status.bin";
    HANDLE const file = ::CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    ::WriteFile(file, "12345", 5, &written, nullptr);
    ::CloseHandle(file);
    CFileStatus status;
    EXPECT_TRUE(CFile::GetStatus(path, status));
    EXPECT_EQ(status.m_size, 5u);
    EXPECT_EQ(CString(status.m_szFullName).CompareNoCase(path), 0);
    EXPECT_EQ(status.m_attribute & CFile::directory, 0);
    EXPECT_GT(status.m_mtime.GetYear(), 2000);
    ::DeleteFileW(path);
    EXPECT_FALSE(CFile::GetStatus(path, status));
    EXPECT_TRUE(CFile::GetStatus(folder, status));
    EXPECT_NE(status.m_attribute & CFile::directory, 0);
    EXPECT_FALSE(CFile::GetStatus(nullptr, status));
    EXPECT_FALSE(CFile::GetStatus(L"", status));
    EXPECT_FALSE(CFile::GetStatus(CString(L'x', 400), status));
}
