// Text and fonts of device contexts. What is drawn is never compared by pixel: only where it is.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "Bitmap.h"

namespace
{
constexpr COLORREF white = RGB(255, 255, 255);

class FrameworkGdiText : public testing::Test
{
protected:
    FrameworkGdiText()
    {
        m_font.CreateFont(-20, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                          CLIP_DEFAULT_PRECIS, NONANTIALIASED_QUALITY, DEFAULT_PITCH, L"Tahoma");
        m_previous = m_canvas.Dc().SelectObject(&m_font);
    }
    ~FrameworkGdiText() override { m_canvas.Dc().SelectObject(m_previous); }

    tests::Canvas m_canvas{300, 100};
    CDC & m_dc = m_canvas.Dc();
    CFont m_font;
    CFont * m_previous = nullptr;
};

TEST_F(FrameworkGdiText, ExtentOfAStringIsThatOfItsCharacters)
{
    CSize const whole = m_dc.GetTextExtent(CString(L"Hello"));
    EXPECT_EQ(m_dc.GetTextExtent(L"Hello", 5), whole);
    EXPECT_EQ(m_dc.GetOutputTextExtent(CString(L"Hello")), whole);
    EXPECT_EQ(m_dc.GetOutputTextExtent(L"Hello there", 5), whole);
    EXPECT_LT(m_dc.GetTextExtent(L"Hello", 2).cx, whole.cx);
    EXPECT_EQ(m_dc.GetTextExtent(CString()).cx, 0);
    TEXTMETRIC metrics = {};
    EXPECT_TRUE(m_dc.GetTextMetrics(&metrics));
    EXPECT_EQ(whole.cy, metrics.tmHeight);
    TEXTMETRIC output = {};
    EXPECT_TRUE(m_dc.GetOutputTextMetrics(&output));
    EXPECT_EQ(output.tmHeight, metrics.tmHeight);
    EXPECT_EQ(metrics.tmHeight - metrics.tmInternalLeading, 20);
}

TEST_F(FrameworkGdiText, TextStaysWithinItsExtent)
{
    CString const text(L"Hmm");
    CSize const size = m_dc.GetTextExtent(text);
    EXPECT_TRUE(m_dc.TextOut(10, 20, text));
    CRect const ink = m_canvas.BoundsOfOther(white);
    EXPECT_FALSE(ink.IsRectEmpty());
    EXPECT_GE(ink.left, 9);
    EXPECT_LE(ink.right, 10 + size.cx + 1);
    EXPECT_GE(ink.top, 20);
    EXPECT_LE(ink.bottom, 20 + size.cy);
}

TEST_F(FrameworkGdiText, OpaqueTextOutFillsItsRectangle)
{
    m_dc.SetBkColor(RGB(0, 255, 0));
    CRect const rect(50, 10, 90, 40);
    CString const text(L"a long text that is cut off");
    EXPECT_TRUE(m_dc.ExtTextOut(52, 12, ETO_OPAQUE | ETO_CLIPPED, rect, text, nullptr));
    EXPECT_EQ(m_canvas.BoundsOfOther(white), rect);
    int const distances[] = {40, 40};
    m_canvas.Fill(white);
    m_dc.SetBkMode(TRANSPARENT);
    EXPECT_TRUE(m_dc.ExtTextOut(0, 0, 0, nullptr, L"II", 2, const_cast<int *>(distances)));
    EXPECT_GT(m_canvas.BoundsOfOther(white).right, 40);
}

TEST_F(FrameworkGdiText, DrawTextMeasuresAndAligns)
{
    CString const text(L"Hello");
    CSize const size = m_dc.GetTextExtent(text);
    CRect measured(0, 0, 0, 0);
    EXPECT_EQ(m_dc.DrawText(text, measured, DT_CALCRECT | DT_SINGLELINE), size.cy);
    EXPECT_EQ(measured.Size(), size);
    EXPECT_EQ(m_canvas.Count(white), 300 * 100);
    CRect rect(0, 0, 300, 100);
    m_dc.DrawText(text, rect, DT_RIGHT | DT_BOTTOM | DT_SINGLELINE);
    CRect const ink = m_canvas.BoundsOfOther(white);
    EXPECT_GE(ink.left, 300 - size.cx - 1);
    EXPECT_GE(ink.top, 100 - size.cy);
    DRAWTEXTPARAMS parameters = {};
    parameters.cbSize = sizeof parameters;
    parameters.iLeftMargin = 17;
    CRect withMargin(0, 0, 0, 0);
    m_dc.DrawTextEx(text, withMargin, DT_CALCRECT | DT_SINGLELINE, &parameters);
    EXPECT_EQ(withMargin.Width(), size.cx + 17);
    EXPECT_EQ(parameters.uiLengthDrawn, 5u);
}

TEST_F(FrameworkGdiText, ShortenedTextIsWrittenBackOnlyToABufferOfTheCaller)
{
    CString const text(L"A text much too long for this");
    CString const shared(text);
    CRect rect(0, 0, 80, 40);
    m_dc.DrawText(text, rect, DT_SINGLELINE | DT_END_ELLIPSIS | DT_MODIFYSTRING);
    m_dc.DrawTextEx(text, rect, DT_SINGLELINE | DT_END_ELLIPSIS | DT_MODIFYSTRING, nullptr);
    EXPECT_STREQ(shared, L"A text much too long for this");

    std::array<wchar_t, 64> buffer = {L"A text much too long for this"};
    m_dc.DrawTextEx(buffer.data(), -1, rect, DT_SINGLELINE | DT_END_ELLIPSIS | DT_MODIFYSTRING, nullptr);
    EXPECT_NE(std::wstring(buffer.data()).find(L"..."), std::wstring::npos);
}

TEST_F(FrameworkGdiText, TabsWidenTheText)
{
    int stops[] = {120};
    CString const text(L"a\tb");
    CSize const size = m_dc.GetTabbedTextExtent(text, 1, stops);
    EXPECT_EQ(size.cx, 120 + m_dc.GetTextExtent(L"b", 1).cx);
    EXPECT_EQ(m_dc.GetTabbedTextExtent(text, text.GetLength(), 1, stops), size);
    EXPECT_EQ(m_dc.GetOutputTabbedTextExtent(text, 1, stops), size);
    EXPECT_EQ(m_dc.GetOutputTabbedTextExtent(text, text.GetLength(), 1, stops), size);
    EXPECT_EQ(m_dc.TabbedTextOut(0, 0, text, 1, stops, 0), size);
    EXPECT_GT(m_canvas.BoundsOfOther(white).right, 120);
}

TEST_F(FrameworkGdiText, FaceIsTold)
{
    LOGFONT description = {};
    m_font.GetLogFont(&description);
    CString face(L"before");
    EXPECT_GT(m_dc.GetTextFace(face), 0);
    std::array<wchar_t, LF_FACESIZE> buffer = {};
    EXPECT_GT(m_dc.GetTextFace(LF_FACESIZE, buffer.data()), 0);
    EXPECT_STREQ(face, buffer.data());
    EXPECT_FALSE(face.IsEmpty());
    CDC none;
    EXPECT_EQ(none.GetTextFace(face), 0);
    EXPECT_TRUE(face.IsEmpty());
}

TEST_F(FrameworkGdiText, WidthsOfCharactersAndGlyphs)
{
    int width = 0;
    EXPECT_TRUE(m_dc.GetCharWidth('H', 'H', &width));
    EXPECT_EQ(width, m_dc.GetTextExtent(L"H", 1).cx);
    int output = 0;
    EXPECT_TRUE(m_dc.GetOutputCharWidth('H', 'H', &output));
    EXPECT_EQ(output, width);
    ABC parts = {};
    EXPECT_TRUE(m_dc.GetCharABCWidths('H', 'H', &parts));
    EXPECT_EQ(parts.abcA + static_cast<int>(parts.abcB) + parts.abcC, width);
    ABCFLOAT floatParts = {};
    EXPECT_TRUE(m_dc.GetCharABCWidths('H', 'H', &floatParts));
    EXPECT_NEAR(floatParts.abcfA + floatParts.abcfB + floatParts.abcfC, width, 1.5);
    WORD glyph = 0;
    ::GetGlyphIndices(m_dc, L"H", 1, &glyph, 0);
    int glyphWidth = 0;
    EXPECT_TRUE(m_dc.GetCharWidthI(0, 1, &glyph, &glyphWidth));
    EXPECT_EQ(glyphWidth, width);
    EXPECT_TRUE(m_dc.GetCharABCWidthsI(0, 1, &glyph, &parts));
    CSize size;
    EXPECT_TRUE(m_dc.GetTextExtentPointI(&glyph, 1, &size));
    EXPECT_EQ(size.cx, width);
    int fit = 0;
    EXPECT_TRUE(m_dc.GetTextExtentExPointI(&glyph, 1, 500, &fit, nullptr, &size));
    EXPECT_EQ(fit, 1);
}

TEST_F(FrameworkGdiText, OutlinesAndTablesOfTheFont)
{
    UINT const size = m_dc.GetOutlineTextMetrics(0, nullptr);
    ASSERT_GT(size, sizeof(OUTLINETEXTMETRIC));
    std::vector<BYTE> buffer(size);
    auto * const metrics = reinterpret_cast<OUTLINETEXTMETRIC *>(buffer.data());
    EXPECT_NE(m_dc.GetOutlineTextMetrics(size, metrics), 0u);
    EXPECT_GT(metrics->otmEMSquare, 0u);
    EXPECT_NE(m_dc.GetFontData(0x64616568, 0, nullptr, 0), static_cast<DWORD>(GDI_ERROR)); // "head"
    EXPECT_EQ(m_dc.GetFontData(0x78787878, 0, nullptr, 0), static_cast<DWORD>(GDI_ERROR));
    MAT2 const identity = {{0, 1}, {0, 0}, {0, 0}, {0, 1}};
    GLYPHMETRICS glyph = {};
    EXPECT_GT(m_dc.GetGlyphOutline('H', GGO_NATIVE, &glyph, 0, nullptr, &identity), 0u);
    EXPECT_GT(glyph.gmBlackBoxX, 0u);
}

TEST_F(FrameworkGdiText, CharacterPlacementGivesPositions)
{
    std::array<int, 2> distances = {};
    GCP_RESULTS results = {};
    results.lStructSize = sizeof results;
    results.lpDx = distances.data();
    results.nGlyphs = 2;
    CString text(L"HI");
    DWORD const size = m_dc.GetCharacterPlacement(text, 0, &results, 0);
    EXPECT_EQ(LOWORD(size), m_dc.GetTextExtent(text).cx);
    EXPECT_EQ(distances[0], m_dc.GetTextExtent(L"H", 1).cx);
}

TEST_F(FrameworkGdiText, JustificationWidensBreaks)
{
    CString const text(L"a b");
    int const plain = m_dc.GetTextExtent(text).cx;
    EXPECT_NE(m_dc.SetTextJustification(10, 1), 0);
    EXPECT_EQ(m_dc.GetTextExtent(text).cx, plain + 10);
    m_dc.SetTextJustification(0, 0);
    EXPECT_NE(m_dc.SetMapperFlags(0), static_cast<DWORD>(GDI_ERROR));
}

TEST_F(FrameworkGdiText, GrayStringCallsItsOutputFunction)
{
    static int s_calls = 0;
    s_calls = 0;
    auto const output = [](HDC dc, LPARAM data, int count) -> BOOL {
        ++s_calls;
        return ::TextOut(dc, 0, 0, reinterpret_cast<wchar_t const *>(data), count);
    };
    CBrush black(RGB(0, 0, 0));
    EXPECT_TRUE(m_dc.GrayString(&black, output, reinterpret_cast<LPARAM>(L"Hello"), 5, 10, 10, 80, 30));
    EXPECT_EQ(s_calls, 1);
    CRect const ink = m_canvas.BoundsOfOther(white);
    EXPECT_FALSE(ink.IsRectEmpty());
    EXPECT_GE(ink.left, 10);
}

// A context that counts what reaches the virtual function.
class CountingContext : public CDC
{
public:
    BOOL TextOut(int x, int y, LPCTSTR text, int count) override
    {
        ++m_calls;
        return CDC::TextOut(x, y, text, count);
    }
    int m_calls = 0;
    using CDC::TextOut;
};

TEST_F(FrameworkGdiText, StringOverloadsGoThroughTheVirtualOnes)
{
    CountingContext counting;
    ASSERT_TRUE(counting.CreateCompatibleDC(&m_dc));
    counting.TextOut(0, 0, CString(L"x"));
    EXPECT_EQ(counting.m_calls, 1);
}
} // namespace
