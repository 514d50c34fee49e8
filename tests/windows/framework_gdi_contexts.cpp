// Device contexts: handles, selection, saved state, and those of windows.

#include <afxwin.h>

#include <gtest/gtest.h>

#include "Bitmap.h"
#include "GdiHandleCount.h"
#include "Pump.h"
#include "ScopedWindow.h"

namespace
{
constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF blue = RGB(0, 0, 255);
constexpr COLORREF white = RGB(255, 255, 255);

template <class Action> bool ThrowsResourceException(Action action)
{
    try
    {
        action();
    }
    catch (CResourceException * exception)
    {
        exception->Delete();
        return true;
    }
    return false;
}

// A context whose output and attribute contexts are two, as those of a print preview are.
class SplitContext
{
public:
    SplitContext()
    {
        dc.SetOutputDC(output.Dc());
        dc.SetAttribDC(attributes.Dc());
    }
    ~SplitContext()
    {
        dc.ReleaseOutputDC();
        dc.ReleaseAttribDC();
    }
    SplitContext(SplitContext const &) = delete;
    SplitContext & operator=(SplitContext const &) = delete;

    tests::Canvas output{20, 20};
    tests::Canvas attributes{20, 20};
    CDC dc;
};

TEST(FrameworkGdiContexts, NewContextHasNoHandle)
{
    CDC dc;
    EXPECT_EQ(dc.m_hDC, nullptr);
    EXPECT_EQ(dc.m_hAttribDC, nullptr);
    EXPECT_EQ(dc.GetSafeHdc(), nullptr);
    EXPECT_FALSE(dc.DeleteDC());
    EXPECT_FALSE(dc.Attach(nullptr));
    EXPECT_FALSE(dc.CreateDC(L"no such driver", nullptr, nullptr, nullptr));
    EXPECT_EQ(dc.m_hDC, nullptr);
}

[[gnu::no_sanitize("null")]] HDC SafeHandleThroughNull(CDC * dc)
{
    CDC * volatile const hidden = dc; // or the compiler takes it for an error
    return hidden->GetSafeHdc();
}

TEST(FrameworkGdiContexts, SafeHandleThroughNullPointerIsNull)
{
    EXPECT_EQ(SafeHandleThroughNull(nullptr), nullptr);
}

TEST(FrameworkGdiContexts, AttachSetsBothHandlesAndDetachClearsThem)
{
    HDC const handle = ::CreateCompatibleDC(nullptr);
    CDC dc;
    EXPECT_TRUE(dc.Attach(handle));
    EXPECT_EQ(dc.m_hDC, handle);
    EXPECT_EQ(dc.m_hAttribDC, handle);
    EXPECT_EQ(CDC::FromHandle(handle), &dc);
    EXPECT_EQ(static_cast<HDC>(dc), handle);
    EXPECT_EQ(dc.Detach(), handle);
    EXPECT_EQ(dc.m_hDC, nullptr);
    EXPECT_EQ(dc.m_hAttribDC, nullptr);
    CDC * const temporary = CDC::FromHandle(handle);
    EXPECT_NE(temporary, &dc);
    EXPECT_EQ(temporary->m_hAttribDC, handle);
    EXPECT_EQ(CDC::FromHandle(handle), temporary);
    CDC::DeleteTempMap();
    EXPECT_EQ(::GetObjectType(handle), static_cast<DWORD>(OBJ_MEMDC));
    ::DeleteDC(handle);
}

TEST(FrameworkGdiContexts, TemporaryObjectThatWasDetachedServesItsHandleAgain)
{
    HDC const handle = ::CreateCompatibleDC(nullptr);
    CDC * const temporary = CDC::FromHandle(handle);
    EXPECT_EQ(temporary->Detach(), handle);
    CDC * const again = CDC::FromHandle(handle);
    EXPECT_EQ(again, temporary);
    EXPECT_EQ(again->m_hDC, handle);
    EXPECT_EQ(again->m_hAttribDC, handle);
    CDC::DeleteTempMap();
    ::DeleteDC(handle);
}

TEST(FrameworkGdiContexts, DestructorDeletesTheContext)
{
    tests::GdiBalance const balance;
    HDC handle = nullptr;
    {
        CDC dc;
        ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
        handle = dc.m_hDC;
    }
    EXPECT_EQ(::GetObjectType(handle), 0u);
    CDC dc;
    ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
    EXPECT_TRUE(dc.DeleteDC());
    EXPECT_EQ(dc.m_hDC, nullptr);
}

TEST(FrameworkGdiContexts, DisplayAndInformationContextsTellTheDevice)
{
    CDC display;
    CDC information;
    ASSERT_TRUE(display.CreateDC(L"DISPLAY", nullptr, nullptr, nullptr));
    ASSERT_TRUE(information.CreateIC(L"DISPLAY", nullptr, nullptr, nullptr));
    EXPECT_EQ(display.GetDeviceCaps(TECHNOLOGY), DT_RASDISPLAY);
    EXPECT_EQ(information.GetDeviceCaps(LOGPIXELSX), display.GetDeviceCaps(LOGPIXELSX));
    EXPECT_FALSE(display.IsPrinting());
    CDC unattached;
    EXPECT_FALSE(unattached.IsPrinting());
}

TEST(FrameworkGdiContexts, SelectObjectGivesTheObjectSelectedBefore)
{
    tests::Canvas canvas(10, 10);
    CDC & dc = canvas.Dc();
    CPen pen(PS_SOLID, 1, red);
    CBrush brush(blue);
    CFont font;
    font.CreatePointFont(90, L"Tahoma");
    CPen * const firstPen = dc.SelectObject(&pen);
    CBrush * const firstBrush = dc.SelectObject(&brush);
    CFont * const firstFont = dc.SelectObject(&font);
    ASSERT_NE(firstPen, nullptr);
    EXPECT_TRUE(firstPen->IsKindOf(RUNTIME_CLASS(CPen)));
    EXPECT_TRUE(firstBrush->IsKindOf(RUNTIME_CLASS(CBrush)));
    EXPECT_TRUE(firstFont->IsKindOf(RUNTIME_CLASS(CFont)));
    EXPECT_EQ(dc.GetCurrentPen(), &pen);
    EXPECT_EQ(dc.GetCurrentBrush(), &brush);
    EXPECT_EQ(dc.GetCurrentFont(), &font);
    EXPECT_EQ(dc.GetCurrentBitmap()->m_hObject, canvas.Bitmap());
    EXPECT_NE(dc.GetCurrentPalette(), nullptr);
    EXPECT_EQ(dc.SelectObject(firstPen), &pen);
    EXPECT_EQ(dc.SelectObject(firstBrush), &brush);
    EXPECT_EQ(dc.SelectObject(firstFont), &font);

    CGdiObject * const asObject = &brush;
    CGdiObject * const previous = dc.SelectObject(asObject);
    EXPECT_EQ(dc.GetCurrentBrush(), &brush);
    dc.SelectObject(previous);
}

TEST(FrameworkGdiContexts, SelectingNothingGivesNull)
{
    tests::Canvas canvas(10, 10);
    CPen empty;
    EXPECT_EQ(canvas.Dc().SelectObject(&empty), nullptr);
    EXPECT_EQ(canvas.Dc().SelectObject(static_cast<CFont *>(nullptr)), nullptr);
}

TEST(FrameworkGdiContexts, SelectedBitmapReceivesTheDrawing)
{
    CClientDC screen(nullptr);
    CDC memory;
    CBitmap bitmap;
    ASSERT_TRUE(memory.CreateCompatibleDC(&screen));
    ASSERT_TRUE(bitmap.CreateCompatibleBitmap(&screen, 5, 5));
    CBitmap * const previous = memory.SelectObject(&bitmap);
    ASSERT_NE(previous, nullptr);
    memory.FillSolidRect(0, 0, 5, 5, red);
    EXPECT_EQ(memory.GetPixel(4, 4), red);
    EXPECT_EQ(memory.GetPixel(5, 5), CLR_INVALID);
    EXPECT_EQ(memory.SelectObject(previous), &bitmap);
}

TEST(FrameworkGdiContexts, StockObjectsAreSelected)
{
    tests::Canvas canvas(10, 10);
    CDC & dc = canvas.Dc();
    dc.SelectStockObject(BLACK_PEN);
    CGdiObject * const previous = dc.SelectStockObject(NULL_PEN);
    ASSERT_NE(previous, nullptr);
    EXPECT_EQ(previous->m_hObject, ::GetStockObject(BLACK_PEN));
    EXPECT_EQ(dc.GetCurrentPen()->m_hObject, ::GetStockObject(NULL_PEN));
    dc.SelectStockObject(DC_BRUSH);
    dc.SetDCBrushColor(blue);
    EXPECT_EQ(dc.GetDCBrushColor(), blue);
    dc.SetDCPenColor(red);
    EXPECT_EQ(dc.GetDCPenColor(), red);
    dc.PatBlt(0, 0, 10, 10, PATCOPY);
    EXPECT_EQ(canvas.Count(blue), 100);
}

TEST(FrameworkGdiContexts, SavedStateIsRestored)
{
    tests::Canvas canvas(10, 10);
    CDC & dc = canvas.Dc();
    dc.SetTextColor(red);
    int const saved = dc.SaveDC();
    EXPECT_GT(saved, 0);
    CBrush brush(blue);
    dc.SetTextColor(blue);
    dc.SelectObject(&brush);
    EXPECT_TRUE(dc.RestoreDC(saved));
    EXPECT_EQ(dc.GetTextColor(), red);
    EXPECT_NE(dc.GetCurrentBrush(), &brush);
    EXPECT_FALSE(dc.RestoreDC(saved));
}

TEST(FrameworkGdiContexts, AttributesGoToBothContextsAndAreReadFromTheAttributeContext)
{
    SplitContext split;
    CDC & dc = split.dc;
    ::SetTextColor(split.attributes.Dc(), blue);
    EXPECT_EQ(dc.SetTextColor(red), blue);
    EXPECT_EQ(::GetTextColor(split.output.Dc()), red);
    EXPECT_EQ(::GetTextColor(split.attributes.Dc()), red);
    ::SetBkColor(split.output.Dc(), blue);
    EXPECT_EQ(dc.GetBkColor(), ::GetBkColor(split.attributes.Dc()));
    CBrush brush(red);
    CBrush * const previous = dc.SelectObject(&brush);
    EXPECT_EQ(::GetCurrentObject(split.output.Dc(), OBJ_BRUSH), brush.m_hObject);
    EXPECT_EQ(::GetCurrentObject(split.attributes.Dc(), OBJ_BRUSH), brush.m_hObject);
    dc.SelectObject(previous);
    dc.SetViewportOrg(3, 4);
    EXPECT_EQ(split.output.Dc().GetViewportOrg(), CPoint(3, 4));
    EXPECT_EQ(dc.GetViewportOrg(), CPoint(3, 4));
}

TEST(FrameworkGdiContexts, DrawingGoesToTheOutputContextOnly)
{
    SplitContext split;
    split.dc.FillSolidRect(0, 0, 20, 20, red);
    EXPECT_EQ(split.output.Count(red), 400);
    EXPECT_EQ(split.attributes.Count(white), 400);
    EXPECT_EQ(split.dc.GetBkColor(), red);
}

TEST(FrameworkGdiContexts, CurrentPositionOfBothContextsMovesTogether)
{
    SplitContext split;
    CDC & dc = split.dc;
    EXPECT_EQ(dc.MoveTo(2, 3), CPoint(0, 0));
    EXPECT_EQ(dc.MoveTo(CPoint(4, 5)), CPoint(2, 3));
    dc.LineTo(9, 5);
    EXPECT_EQ(dc.GetCurrentPosition(), CPoint(9, 5));
    POINT const points[] = {{9, 9}, {2, 9}};
    EXPECT_TRUE(dc.PolylineTo(points, 2));
    EXPECT_EQ(dc.GetCurrentPosition(), CPoint(2, 9));
    EXPECT_EQ(split.output.Dc().GetCurrentPosition(), CPoint(2, 9));
}

TEST(FrameworkGdiContexts, SavedStateOfTwoContextsIsRestoredByTheLastLevel)
{
    SplitContext split;
    ::SaveDC(split.output.Dc()); // the levels now differ
    split.dc.SetTextColor(red);
    EXPECT_EQ(split.dc.SaveDC(), -1);
    split.dc.SetTextColor(blue);
    EXPECT_TRUE(split.dc.RestoreDC(-1));
    EXPECT_EQ(::GetTextColor(split.output.Dc()), red);
    EXPECT_EQ(::GetTextColor(split.attributes.Dc()), red);
}

TEST(FrameworkGdiContexts, ClipPathOfTheOutputReachesTheAttributeContext)
{
    SplitContext split;
    CDC & dc = split.dc;
    dc.BeginPath();
    dc.Rectangle(2, 2, 12, 12);
    dc.EndPath();
    EXPECT_TRUE(dc.SelectClipPath(RGN_COPY));
    CRect output;
    CRect attributes;
    EXPECT_NE(split.output.Dc().GetClipBox(output), ERROR);
    EXPECT_NE(split.attributes.Dc().GetClipBox(attributes), ERROR);
    EXPECT_EQ(output, attributes);
    EXPECT_TRUE(output.PtInRect(CPoint(5, 5)));
    EXPECT_FALSE(output.PtInRect(CPoint(15, 15)));
    EXPECT_FALSE(dc.SelectClipPath(RGN_COPY)); // the path is used up
}

TEST(FrameworkGdiContexts, EnumObjectsGivesPens)
{
    CClientDC screen(nullptr);
    int count = 0;
    screen.EnumObjects(
        OBJ_PEN,
        [](LPVOID, LPARAM data) -> int {
            ++*reinterpret_cast<int *>(data);
            return 1;
        },
        reinterpret_cast<LPARAM>(&count));
    EXPECT_GT(count, 0);
}

TEST(FrameworkGdiContexts, ClientContextIsReleasedWithItsScope)
{
    tests::ScopedWindow window;
    tests::GdiBalance const balance;
    {
        CClientDC client(&window);
        EXPECT_EQ(client.GetWindow(), &window);
        EXPECT_EQ(CDC::FromHandle(client.m_hDC), &client);
        CRect box;
        client.GetClipBox(box);
        CRect area;
        window.GetClientRect(area);
        EXPECT_EQ(box, area);
    }
    {
        CWindowDC whole(&window);
        CPoint origin;
        ::GetDCOrgEx(whole, &origin);
        CRect frame;
        window.GetWindowRect(frame);
        EXPECT_EQ(origin, frame.TopLeft());
    }
    CWindowDC screen(nullptr);
    EXPECT_NE(screen.m_hDC, nullptr);
}

TEST(FrameworkGdiContexts, ContextOfADeadWindowThrows)
{
    CWnd dead;
    dead.m_hWnd = reinterpret_cast<HWND>(static_cast<UINT_PTR>(0x7FFE));
    EXPECT_TRUE(ThrowsResourceException([&] { CClientDC dc(&dead); }));
    EXPECT_TRUE(ThrowsResourceException([&] { CWindowDC dc(&dead); }));
    EXPECT_TRUE(ThrowsResourceException([&] { CPaintDC dc(&dead); }));
    dead.m_hWnd = nullptr;
}

TEST(FrameworkGdiContexts, PaintContextValidatesTheWindow)
{
    tests::ScopedWindow window;
    CRect const dirty(10, 10, 30, 40);
    window.ValidateRect(nullptr);
    window.InvalidateRect(dirty);
    {
        CPaintDC dc(&window);
        EXPECT_EQ(CRect(dc.m_ps.rcPaint), dirty);
        EXPECT_EQ(dc.m_ps.hdc, dc.m_hDC);
        EXPECT_NE(dc.ExcludeUpdateRgn(&window), ERROR);
    }
    CRect rest;
    EXPECT_FALSE(::GetUpdateRect(window, rest, FALSE));
}

TEST(FrameworkGdiContexts, PaintContextIsGivenBack)
{
    tests::ScopedWindow window;
    EXPECT_EQ(tests::GdiGrowth([&] {
                  window.InvalidateRect(nullptr);
                  CPaintDC dc(&window);
              }),
              0);
}

TEST(FrameworkGdiContexts, InstalledFunctionIsAskedWhetherToGoOn)
{
    tests::Canvas canvas(4, 4);
    CDC & dc = canvas.Dc();
    EXPECT_TRUE(dc.QueryAbort()); // nobody to ask
    EXPECT_GT(dc.SetAbortProc([](HDC, int) -> BOOL { return FALSE; }), 0);
    EXPECT_FALSE(dc.QueryAbort());
    dc.Attach(dc.Detach());
    EXPECT_TRUE(dc.QueryAbort());
}

TEST(FrameworkGdiContexts, DocumentOnSomethingElseThanAPrinterFails)
{
    CDC none;
    EXPECT_LE(none.StartDoc(L"document"), 0);
    DOCINFO info = {};
    info.cbSize = sizeof info;
    EXPECT_LE(none.StartDoc(&info), 0);
    EXPECT_LE(none.StartPage(), 0);
    EXPECT_LE(none.EndPage(), 0);
    EXPECT_LE(none.EndDoc(), 0);
    EXPECT_LE(none.AbortDoc(), 0);
}
} // namespace
