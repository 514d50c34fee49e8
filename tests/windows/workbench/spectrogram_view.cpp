// The workbench's spectrogram view in a real window, on a picture and in a metafile.

#include <afxcmn.h>
#include <afxwin.h>

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <numbers>

#include "../../logic/workbench_WavBuilder.h"
#include "Bitmap.h"
#include "GdiHandleCount.h"
#include "Pump.h"
#include "ScopedWindow.h"
#include "SpectrogramView.h"

namespace
{
constexpr UINT view_id = 7;
constexpr COLORREF outside = RGB(1, 2, 3);

/// Colours of which each can be told from the others, and from everything else on the view.
std::array<unsigned long, CSpectrogramView::colour_count> TestColours()
{
    std::array<unsigned long, CSpectrogramView::colour_count> colours{};
    for (unsigned long i = 0; i < colours.size(); ++i)
        colours[i] = RGB(255, i * 7, 77);
    colours.back() = outside;
    return colours;
}

int EntryOf(COLORREF colour)
{
    auto const colours = TestColours();
    for (std::size_t i = 0; i < workbench::scale_entries; ++i)
    {
        if (colours[i] == colour)
            return static_cast<int>(i);
    }
    return -1;
}

/// Silence, and in its second half a sine of an eighth of the rate, which is a quarter of the axis.
std::filesystem::path WriteRecording(std::size_t frames, char const * name = "half_sine.wav")
{
    std::vector<std::int16_t> samples(frames);
    for (std::size_t i = frames / 2; i < frames; ++i)
        samples[i] = static_cast<std::int16_t>(32767 * std::sin(std::numbers::pi / 4 * static_cast<double>(i)));
    auto const file = wav::File().Chunk("fmt ", wav::Format(1, 1, 48000, 2, 16)).Chunk("data", wav::Samples16(samples));
    std::filesystem::path path =
        std::filesystem::temp_directory_path() / (std::to_string(::GetCurrentProcessId()) + "_" + name);
    std::ofstream stream(path, std::ios::binary);
    stream.write(reinterpret_cast<char const *>(file.Content().data()),
                 static_cast<std::streamsize>(file.Content().size()));
    return path;
}

class SpectrogramView : public testing::Test
{
protected:
    void SetUp() override
    {
        auto const colours = TestColours();
        m_view.SetColours(colours.data());
        ASSERT_TRUE(m_view.CreateView(m_host, view_id, m_metrics));
        m_view.MoveWindow(0, 0, 500, 300);
    }
    void TearDown() override
    {
        m_host.DestroyWindow();
        std::error_code error;
        std::filesystem::remove(m_path, error);
    }

    void ShowAndWait(std::size_t frames)
    {
        m_path = WriteRecording(frames);
        m_view.ShowRecording(L"Half a sine", m_path);
        ASSERT_TRUE(tests::PumpUntil([&] { return !m_view.IsComputing(); }));
    }

    /// Where the spectrogram itself is: the largest block of its colours, left of the legend.
    CRect Plot(tests::Canvas const & canvas)
    {
        CRect m_plot = canvas.BoundsOf([](COLORREF colour) { return EntryOf(colour) == 0; });
        int right = m_plot.left;
        while (right < canvas.Width() && EntryOf(canvas.Pixel(right, m_plot.bottom - 1)) >= 0)
            ++right;
        m_plot.right = right;
        return m_plot;
    }

    CWnd & Progress() { return *m_view.GetWindow(GW_CHILD); }

    workbench::ScreenMetrics m_metrics;
    tests::ScopedWindow m_host{CRect(50, 50, 600, 400)};
    CSpectrogramView m_view;
    std::filesystem::path m_path;
};
} // namespace

TEST_F(SpectrogramView, ShowsTimeToTheRightAndFrequencyUpwards)
{
    ShowAndWait(96000);
    tests::Canvas canvas(500, 300);
    CRect client;
    m_view.GetClientRect(&client);
    canvas.PrintClient(m_view);
    CRect const plot = Plot(canvas);
    ASSERT_GT(plot.Width(), 250);
    ASSERT_GT(plot.Height(), 150);
    // A full-scale sine at a quarter of the axis' height, from the middle on.
    int const line = plot.bottom - plot.Height() / 4;
    auto const highest = [&](int x) {
        int entry = -1;
        for (int y = line - 3; y <= line + 3; ++y)
            entry = std::max(entry, EntryOf(canvas.Pixel(x, y)));
        return entry;
    };
    EXPECT_EQ(highest(plot.left + plot.Width() * 3 / 4), 31);
    EXPECT_EQ(highest(plot.right - 20), 31);
    EXPECT_EQ(highest(plot.left + plot.Width() / 4), 0);
    EXPECT_LT(EntryOf(canvas.Pixel(plot.left + plot.Width() * 3 / 4, plot.top + 20)), 8);
    EXPECT_LT(EntryOf(canvas.Pixel(plot.left + plot.Width() * 3 / 4, plot.bottom - 3)), 8);
    EXPECT_LT(EntryOf(canvas.Pixel(plot.left + plot.Width() * 3 / 4, plot.top + plot.Height() / 4)), 8);
}

TEST_F(SpectrogramView, TheFrameHasTheColourOutsideTheScale)
{
    ShowAndWait(48000);
    tests::Canvas canvas(500, 300);
    canvas.PrintClient(m_view);
    CRect frame = Plot(canvas);
    frame.InflateRect(1, 1);
    EXPECT_EQ(canvas.Pixel(frame.left, frame.top), outside);
    EXPECT_EQ(canvas.Pixel(frame.right - 1, frame.bottom - 1), outside);
    EXPECT_EQ(canvas.Pixel(frame.left, frame.CenterPoint().y), outside);
    EXPECT_NE(canvas.Pixel(frame.left + 1, frame.top + 1), outside);
}

TEST_F(SpectrogramView, TheLegendHasAllColoursInOrder)
{
    ShowAndWait(48000);
    tests::Canvas canvas(500, 300);
    canvas.PrintClient(m_view);
    CRect const plot = Plot(canvas);
    // The first colour to the right of the plot.
    int x = plot.right + 2;
    while (x < 500 && EntryOf(canvas.Pixel(x, plot.CenterPoint().y)) < 0)
        ++x;
    ASSERT_LT(x, 500);
    int expected = 31;
    for (int y = plot.top; y < plot.bottom; ++y)
    {
        int const entry = EntryOf(canvas.Pixel(x + 1, y));
        ASSERT_TRUE(entry == expected || entry == expected - 1) << y << ": " << entry << " after " << expected;
        expected = entry;
    }
    EXPECT_EQ(expected, 0);
}

TEST_F(SpectrogramView, OtherColoursShowAtOnce)
{
    ShowAndWait(48000);
    m_view.UpdateWindow();
    ASSERT_FALSE(m_view.GetUpdateRect(nullptr));
    std::array<unsigned long, CSpectrogramView::colour_count> colours{};
    colours.fill(RGB(0, 200, 100));
    m_view.SetColours(colours.data());
    m_view.SetColours(nullptr);
    EXPECT_TRUE(m_view.GetUpdateRect(nullptr));
    tests::Canvas canvas(500, 300);
    canvas.PrintClient(m_view);
    EXPECT_GT(canvas.Count(RGB(0, 200, 100)), 250 * 150);
    EXPECT_EQ(canvas.Count(outside), 0);
}

TEST_F(SpectrogramView, PaintsOnTheScreenWhatItPrints)
{
    ShowAndWait(48000);
    m_view.UpdateWindow();
    tests::Canvas printed(400, 200);
    printed.PrintClient(m_view);
    tests::Canvas shown(400, 200);
    ASSERT_TRUE(tests::PumpUntil([&] {
        shown.CopyFromScreen(m_view);
        return static_cast<bool>(tests::SamePixels(printed, shown));
    })) << tests::SamePixels(printed, shown).message();
}

TEST_F(SpectrogramView, AProgressBarShowsWhileItIsComputed)
{
    m_path = WriteRecording(24'000'000);
    m_view.ShowRecording(L"Long", m_path);
    EXPECT_TRUE(m_view.IsComputing());
    EXPECT_TRUE(Progress().IsWindowVisible());
    auto & bar = static_cast<CProgressCtrl &>(Progress());
    int lower = -1;
    int upper = -1;
    bar.GetRange(lower, upper);
    EXPECT_EQ(lower, 0);
    EXPECT_EQ(upper, 1000);
    int greatest = 0;
    bool alive = false;
    ASSERT_TRUE(tests::PumpUntil([&] {
        int const position = bar.GetPos();
        EXPECT_GE(position, greatest);
        greatest = position;
        alive = alive || (position > 0 && position < 1000);
        return !m_view.IsComputing();
    }));
    EXPECT_TRUE(alive) << "messages are handled meanwhile";
    EXPECT_FALSE(Progress().IsWindowVisible());
    m_view.ShowRecording(L"Long", m_path);
    EXPECT_EQ(bar.GetPos(), 0) << "it begins anew";
    m_view.ShowText(L"", L"");
}

TEST_F(SpectrogramView, TheProgressBarStaysInTheMiddle)
{
    m_path = WriteRecording(12'000'000);
    m_view.ShowRecording(L"Long", m_path);
    for (CSize const size : {CSize(500, 300), CSize(300, 200), CSize(60, 100)})
    {
        m_view.MoveWindow(0, 0, size.cx, size.cy);
        CRect bar;
        Progress().GetWindowRect(&bar);
        m_view.ScreenToClient(&bar);
        CRect client;
        m_view.GetClientRect(&client);
        EXPECT_LE(std::abs(bar.CenterPoint().x - client.CenterPoint().x), 1);
        EXPECT_GE(bar.left, 0);
        EXPECT_LE(bar.right, client.right);
    }
    m_view.ShowText(L"", L"");
}

TEST_F(SpectrogramView, AnotherRecordingTakesThePlaceOfTheOneBeingComputed)
{
    std::filesystem::path const longPath = WriteRecording(12'000'000, "long.wav");
    m_view.ShowRecording(L"Long", longPath);
    ShowAndWait(48000);
    tests::Canvas canvas(500, 300);
    canvas.PrintClient(m_view);
    EXPECT_GT(Plot(canvas).Width(), 250);

    m_view.ShowRecording(L"Long", longPath);
    m_view.ShowText(L"Nothing", L"is chosen");
    EXPECT_FALSE(m_view.IsComputing());
    tests::PumpFor(std::chrono::milliseconds(100));
    canvas.Fill(0);
    canvas.PrintClient(m_view);
    EXPECT_EQ(canvas.Count(outside), 0) << "no spectrogram comes later";
    std::filesystem::remove(longPath);
}

TEST_F(SpectrogramView, AFileThatCannotBeReadIsToldInItsPlace)
{
    m_view.ShowRecording(L"Missing", "missing.wav");
    ASSERT_TRUE(tests::PumpUntil([&] { return !m_view.IsComputing(); }));
    tests::Canvas canvas(500, 300);
    canvas.PrintClient(m_view);
    EXPECT_EQ(canvas.Count(outside), 0);
    EXPECT_FALSE(canvas.BoundsOf(RGB(168, 40, 32)).IsRectEmpty()) << "text in the colour of problems";
}

TEST_F(SpectrogramView, AViewThatEndsWhileItComputesWaitsForNothing)
{
    m_path = WriteRecording(12'000'000);
    m_view.ShowRecording(L"Long", m_path);
    m_view.DestroyWindow();
    EXPECT_FALSE(m_view.IsComputing());
    tests::PumpPosted();
}

TEST_F(SpectrogramView, DrawsIntoAnyRectangleOfAPicture)
{
    ShowAndWait(48000);
    tests::Canvas whole(420, 260, RGB(9, 9, 9));
    m_view.Draw(whole.Dc(), CRect(20, 10, 420, 250));
    EXPECT_EQ(whole.Count(RGB(9, 9, 9)), 420 * 260 - 400 * 240) << "nothing outside";
    EXPECT_FALSE(Plot(whole).IsRectEmpty());
    tests::Canvas tiny(30, 20);
    m_view.Draw(tiny.Dc(), CRect(0, 0, 30, 20));
    m_view.Draw(tiny.Dc(), CRect(5, 5, 5, 5));
    EXPECT_EQ(tiny.Count(outside), 0) << "no room for a spectrogram";
    tests::Canvas low(300, 70);
    m_view.Draw(low.Dc(), CRect(0, 0, 300, 70));
    EXPECT_EQ(low.Count(outside), 0) << "room for the heading alone";
}

TEST_F(SpectrogramView, EachSizeHasAPictureOfItsOwn)
{
    ShowAndWait(48000);
    tests::Canvas first(400, 240);
    m_view.Draw(first.Dc(), CRect(0, 0, 400, 240));
    ShowAndWait(48000);
    tests::Canvas other(500, 300);
    m_view.Draw(other.Dc(), CRect(0, 0, 500, 300));
    tests::Canvas again(400, 240);
    m_view.Draw(again.Dc(), CRect(0, 0, 400, 240));
    EXPECT_TRUE(tests::SamePixels(first, again));
}

TEST_F(SpectrogramView, AnotherRecordingHasAPictureOfItsOwn)
{
    ShowAndWait(48000);
    tests::Canvas loud(400, 240);
    m_view.Draw(loud.Dc(), CRect(0, 0, 400, 240));
    ASSERT_GT(loud.Count(TestColours()[31], Plot(loud)), 100);
    ShowAndWait(10);
    tests::Canvas quiet(400, 240);
    m_view.Draw(quiet.Dc(), CRect(0, 0, 400, 240));
    EXPECT_EQ(quiet.Count(TestColours()[31], Plot(quiet)), 0);
}

TEST_F(SpectrogramView, DrawsIntoAMetafile)
{
    ShowAndWait(96000);
    CClientDC screen(&m_view);
    CMetaFileDC metafileDc;
    ASSERT_TRUE(metafileDc.CreateEnhanced(&screen, nullptr, nullptr, nullptr));
    metafileDc.SetAttribDC(screen.m_hDC);
    m_view.Draw(metafileDc, CRect(0, 0, 500, 300));
    metafileDc.ReleaseAttribDC();
    HENHMETAFILE const metafile = metafileDc.CloseEnhanced();
    ASSERT_NE(metafile, nullptr);

    tests::Canvas drawn(500, 300);
    m_view.Draw(drawn.Dc(), CRect(0, 0, 500, 300));
    tests::Canvas played(500, 300);
    ENHMETAHEADER header{};
    ::GetEnhMetaFileHeader(metafile, sizeof(header), &header);
    RECT const bounds{header.rclBounds.left, header.rclBounds.top, header.rclBounds.right + 1,
                      header.rclBounds.bottom + 1};
    EXPECT_TRUE(::PlayEnhMetaFile(played.Dc().m_hDC, metafile, &bounds));
    ::DeleteEnhMetaFile(metafile);
    // Playing scales by thousandths, which may move an edge by a pixel or two.
    CRect const plot = Plot(drawn);
    CRect const playedPlot = Plot(played);
    ASSERT_GT(plot.Width(), 250);
    EXPECT_NEAR(playedPlot.left, plot.left, 2);
    EXPECT_NEAR(playedPlot.right, plot.right, 2);
    EXPECT_NEAR(playedPlot.bottom, plot.bottom, 2);
    int const line = plot.bottom - plot.Height() / 4;
    CRect const loud(plot.left + plot.Width() * 3 / 4, line - 4, plot.right - 10, line + 4);
    EXPECT_GE(played.Count(TestColours()[31], loud), loud.Width());
    CRect const silent(plot.left + 4, plot.top + 4, plot.CenterPoint().x - 10, plot.bottom - 4);
    EXPECT_EQ(played.Count(TestColours()[0], silent), silent.Width() * silent.Height());
}

TEST_F(SpectrogramView, ScalesWithTheMappingMode)
{
    ShowAndWait(96000);
    tests::Canvas once(400, 240);
    m_view.Draw(once.Dc(), CRect(0, 0, 400, 240));
    tests::Canvas twice(800, 480);
    int const saved = twice.Dc().SaveDC();
    twice.Dc().SetMapMode(MM_ANISOTROPIC);
    twice.Dc().SetWindowExt(400, 240);
    twice.Dc().SetViewportExt(800, 480);
    m_view.Draw(twice.Dc(), CRect(0, 0, 400, 240));
    twice.Dc().RestoreDC(saved);
    CRect const small = Plot(once);
    CRect const large = Plot(twice);
    EXPECT_NEAR(large.left, 2 * small.left, 12);
    EXPECT_NEAR(large.Width(), 2 * small.Width(), 24);
    EXPECT_NEAR(large.Height(), 2 * small.Height(), 4);
    // It has the device's points, not those of the logical units.
    int differentNeighbours = 0;
    int const left = (large.left + 3) / 2 * 2;
    for (int x = left; x + 1 < large.right - 2; x += 2)
    {
        for (int y = large.top + 4; y < large.bottom - 4; ++y)
            differentNeighbours += twice.Pixel(x, y) != twice.Pixel(x + 1, y) ? 1 : 0;
    }
    EXPECT_GT(differentNeighbours, 20);
}

TEST_F(SpectrogramView, DrawingLeavesNoHandleAndTheContextAsItWas)
{
    ShowAndWait(48000);
    tests::Canvas canvas(500, 300);
    canvas.Dc().SetStretchBltMode(BLACKONWHITE);
    HGDIOBJ const font = ::GetCurrentObject(canvas.Dc().m_hDC, OBJ_FONT);
    EXPECT_EQ(tests::GdiGrowth([&] { m_view.Draw(canvas.Dc(), CRect(0, 0, 500, 300)); }), 0);
    EXPECT_EQ(::GetCurrentObject(canvas.Dc().m_hDC, OBJ_FONT), font);
    EXPECT_EQ(canvas.Dc().GetStretchBltMode(), BLACKONWHITE);
    EXPECT_EQ(tests::GdiGrowth([&] {
                  m_view.Invalidate();
                  m_view.UpdateWindow();
              }),
              0);
}
