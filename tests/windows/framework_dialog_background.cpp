// CDialogEx: a dialog with a background colour or picture.

#include <afxdialogex.h>

#include <gtest/gtest.h>

#include "Bitmap.h"
#include "GdiHandleCount.h"
#include "Pump.h"
#include "resource.h"
#include "ScopedWindow.h"

namespace
{
constexpr COLORREF back = RGB(10, 200, 30);
constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF blue = RGB(0, 0, 255);

/// A filled bitmap of the size.
HBITMAP MakeBitmap(int width, int height, COLORREF colour)
{
    HDC const screen = ::GetDC(nullptr);
    HDC const dc = ::CreateCompatibleDC(screen);
    HBITMAP const bitmap = ::CreateCompatibleBitmap(screen, width, height);
    HGDIOBJ const previous = ::SelectObject(dc, bitmap);
    HBRUSH const brush = ::CreateSolidBrush(colour);
    RECT const all = {0, 0, width, height};
    ::FillRect(dc, &all, brush);
    ::DeleteObject(brush);
    ::SelectObject(dc, previous);
    ::DeleteDC(dc);
    ::ReleaseDC(nullptr, screen);
    return bitmap;
}

class DialogBackground : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dialog.Create(IDD_SIMPLE, m_host));
        CRect client;
        m_dialog.GetClientRect(&client);
        m_size = client.Size();
    }
    void TearDown() override
    {
        if (m_dialog.m_hWnd != nullptr)
            m_dialog.DestroyWindow();
    }
    void Erase(tests::Canvas & canvas)
    {
        m_dialog.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.Dc().GetSafeHdc()));
    }
    HBRUSH AskColour(UINT message, int id, tests::Canvas & canvas)
    {
        return reinterpret_cast<HBRUSH>(
            m_dialog.SendMessage(message, reinterpret_cast<WPARAM>(canvas.Dc().GetSafeHdc()),
                                 reinterpret_cast<LPARAM>(::GetDlgItem(m_dialog.m_hWnd, id))));
    }

    tests::ScopedWindow m_host;
    CDialogEx m_dialog;
    CSize m_size;
};

TEST_F(DialogBackground, ColourFillsTheClientArea)
{
    m_dialog.SetBackgroundColor(back);
    tests::Canvas canvas(m_size.cx, m_size.cy);
    Erase(canvas);
    EXPECT_EQ(canvas.Count(back), m_size.cx * m_size.cy);
}

TEST_F(DialogBackground, WithoutColourTheSystemsStays)
{
    tests::Canvas canvas(m_size.cx, m_size.cy);
    Erase(canvas);
    EXPECT_EQ(canvas.Pixel(1, 1), ::GetSysColor(COLOR_BTNFACE));
    m_dialog.SetBackgroundColor(back);
    m_dialog.SetBackgroundColor(static_cast<COLORREF>(-1));
    Erase(canvas);
    EXPECT_EQ(canvas.Pixel(1, 1), ::GetSysColor(COLOR_BTNFACE));
}

TEST_F(DialogBackground, StaticControlsAreTransparentOnTheColour)
{
    m_dialog.SetBackgroundColor(back);
    tests::Canvas canvas(10, 10);
    canvas.Dc().SetBkMode(OPAQUE);
    HBRUSH const brush = AskColour(WM_CTLCOLORSTATIC, IDC_APPLY, canvas);
    LOGBRUSH description = {};
    ASSERT_NE(::GetObject(brush, sizeof(description), &description), 0);
    EXPECT_EQ(description.lbColor, back);
    EXPECT_EQ(canvas.Dc().GetBkMode(), TRANSPARENT);
}

TEST_F(DialogBackground, EditFieldsKeepTheirOwnBackground)
{
    m_dialog.SetBackgroundColor(back);
    tests::Canvas canvas(10, 10);
    for (UINT const message : {WM_CTLCOLOREDIT, WM_CTLCOLORSTATIC}) // the latter comes from a read-only one
    {
        LOGBRUSH description = {};
        HBRUSH const brush = AskColour(message, IDC_TEXT, canvas);
        ASSERT_NE(::GetObject(brush, sizeof(description), &description), 0);
        EXPECT_NE(description.lbColor, back);
    }
}

TEST_F(DialogBackground, PictureIsTiled)
{
    ASSERT_TRUE(m_dialog.SetBackgroundImage(IDB_BACKGROUND));
    tests::Canvas canvas(m_size.cx, m_size.cy, RGB(1, 2, 3));
    Erase(canvas);
    EXPECT_EQ(canvas.Pixel(0, 0), blue);
    EXPECT_EQ(canvas.Pixel(0, 1), red);
    EXPECT_EQ(canvas.Pixel(5, 2), blue);
    EXPECT_EQ(canvas.Count(blue) + canvas.Count(red), m_size.cx * m_size.cy);
}

TEST_F(DialogBackground, PictureInEachCorner)
{
    struct Corner
    {
        CDialogEx::BackgroundLocation location;
        CPoint origin;
    };
    int const width = 20;
    int const height = 12;
    Corner const corners[] = {
        {CDialogEx::BACKGR_TOPLEFT, {0, 0}},
        {CDialogEx::BACKGR_TOPRIGHT, {m_size.cx - width, 0}},
        {CDialogEx::BACKGR_BOTTOMLEFT, {0, m_size.cy - height}},
        {CDialogEx::BACKGR_BOTTOMRIGHT, {m_size.cx - width, m_size.cy - height}},
    };
    m_dialog.SetBackgroundColor(back);
    for (Corner const & corner : corners)
    {
        m_dialog.SetBackgroundImage(MakeBitmap(width, height, red), corner.location);
        tests::Canvas canvas(m_size.cx, m_size.cy);
        Erase(canvas);
        EXPECT_EQ(canvas.BoundsOf(red), CRect(corner.origin, CSize(width, height)));
        EXPECT_EQ(canvas.BoundsOfOther(red), CRect(CPoint(0, 0), m_size));
        EXPECT_EQ(canvas.Count(back), m_size.cx * m_size.cy - width * height);
    }
}

TEST_F(DialogBackground, MissingPictureIsRefused)
{
    EXPECT_FALSE(m_dialog.SetBackgroundImage(30001));
    m_dialog.SetBackgroundColor(back);
    tests::Canvas canvas(m_size.cx, m_size.cy);
    Erase(canvas);
    EXPECT_EQ(canvas.Count(back), m_size.cx * m_size.cy);
}

TEST_F(DialogBackground, OwnedPictureGoesWithTheNextOne)
{
    HBITMAP const owned = MakeBitmap(4, 4, red);
    HBITMAP const kept = MakeBitmap(4, 4, blue);
    m_dialog.SetBackgroundImage(owned);
    m_dialog.SetBackgroundImage(kept, CDialogEx::BACKGR_TILE, FALSE);
    EXPECT_EQ(::GetObjectType(owned), 0u);
    m_dialog.SetBackgroundImage(nullptr, CDialogEx::BACKGR_TILE);
    EXPECT_EQ(::GetObjectType(kept), static_cast<DWORD>(OBJ_BITMAP));
    ::DeleteObject(kept);
}

TEST_F(DialogBackground, RepaintsAtOnceOnlyWhenAsked)
{
    m_dialog.ShowWindow(SW_SHOW);
    m_dialog.UpdateWindow();
    tests::PumpPosted();
    m_dialog.SetBackgroundColor(back, FALSE);
    EXPECT_FALSE(m_dialog.GetUpdateRect(nullptr));
    tests::Canvas canvas(m_size.cx, m_size.cy);
    canvas.CopyFromScreen(m_dialog.m_hWnd);
    EXPECT_NE(canvas.Pixel(1, 1), back);
    m_dialog.SetBackgroundColor(back);
    canvas.CopyFromScreen(m_dialog.m_hWnd);
    EXPECT_EQ(canvas.Pixel(1, 1), back);
}

TEST_F(DialogBackground, LeavesNoGdiObjectsBehind)
{
    EXPECT_EQ(tests::GdiGrowth([&] {
                  CDialogEx dialog;
                  dialog.SetBackgroundColor(back);
                  dialog.SetBackgroundColor(red);
                  dialog.SetBackgroundImage(MakeBitmap(4, 4, red));
                  ASSERT_TRUE(dialog.Create(IDD_SIMPLE, m_host));
                  tests::Canvas canvas(20, 20);
                  dialog.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.Dc().GetSafeHdc()));
                  dialog.DestroyWindow();
                  tests::PumpPosted();
              }),
              0);
}
} // namespace
