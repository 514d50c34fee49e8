// Waveform and spectrogram as views: zoom, scroll, selection, cursors.

#include <afxcmn.h>
#include <afxwin.h>

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <numbers>
#include <random>

#include "../../../logic/workbench_WavBuilder.h"
#include "Bitmap.h"
#include "DrawingScopes.h"
#include "Graphics.h"
#include "PictureCopy.h"
#include "Playing.h"
#include "PlotParts.h"
#include "Pump.h"
#include "resource.h"
#include "ScopedWindow.h"
#include "SpectrogramView.h"
#include "WaveformPanel.h"
#include "WaveformView.h"

namespace
{
using workbench::FrameRange;
using workbench::TimeMarks;

constexpr UINT view_id = 7;
constexpr int view_width = 600;
constexpr int view_height = 300;

/// A tone that gets louder, in a file.
std::filesystem::path WriteTone(std::size_t frames, char const * name)
{
    std::vector<std::int16_t> samples(frames);
    for (std::size_t i = 0; i < frames; ++i)
    {
        double const loudness = 30000.0 * static_cast<double>(i) / static_cast<double>(frames);
        samples[i] = static_cast<std::int16_t>(loudness *
                                               std::sin(2 * std::numbers::pi * 1000 * static_cast<double>(i) / 48000));
    }
    auto const file = wav::File().Chunk("fmt ", wav::Format(1, 1, 48000, 2, 16)).Chunk("data", wav::Samples16(samples));
    std::filesystem::path path =
        std::filesystem::temp_directory_path() / (std::to_string(::GetCurrentProcessId()) + "_" + name);
    std::ofstream stream(path, std::ios::binary);
    stream.write(reinterpret_cast<char const *>(file.Content().data()),
                 static_cast<std::streamsize>(file.Content().size()));
    return path;
}

/// A view in a window of its own that shows a recording of a second.
template <class View> class PlotTest : public testing::Test
{
protected:
    static constexpr std::uint64_t frames = 480000;

    void SetUp() override
    {
        ASSERT_TRUE(m_view.CreateView(m_host, view_id, m_metrics));
        m_view.MoveWindow(0, 0, view_width, view_height);
        m_path = WriteTone(frames, "plot.wav");
        m_view.m_onMarks = [this] { ++m_changes; };
    }
    void TearDown() override
    {
        m_host.DestroyWindow();
        std::error_code error;
        std::filesystem::remove(m_path, error);
    }

    /// Has the view drawn, so that it knows where its plot is.
    void DrawIt()
    {
        m_view.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        tests::PumpUntil([] { return true; });
    }
    LPARAM Screen(int x, int y)
    {
        CPoint point(x, y);
        m_view.ClientToScreen(&point);
        return MAKELPARAM(point.x, point.y);
    }
    void Wheel(int notches, UINT keys, int x)
    {
        m_view.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(keys, notches * WHEEL_DELTA), Screen(x, view_height / 2));
    }
    void Press(int x, UINT keys = MK_LBUTTON)
    {
        m_view.SendMessage(WM_LBUTTONDOWN, keys, MAKELPARAM(x, view_height / 2));
    }
    void Move(int x) { m_view.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(x, view_height / 2)); }
    void Release(int x) { m_view.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(x, view_height / 2)); }
    void Key(UINT key) { m_view.SendMessage(WM_KEYDOWN, key, 0); }
    FrameRange Shown() const { return m_view.Marks().window.Shown(); }

    workbench::ScreenMetrics m_metrics;
    tests::ScopedWindow m_host{CRect(50, 50, 50 + view_width + 20, 50 + view_height + 40)};
    View m_view;
    std::filesystem::path m_path;
    int m_changes = 0;
};

class WaveformPlot : public PlotTest<CWaveformView>
{
protected:
    void SetUp() override
    {
        PlotTest::SetUp();
        workbench::RecordingAnalyser analyser(m_path);
        while (analyser.Step())
            continue;
        m_analysis = std::make_shared<workbench::RecordingAnalysis const>(analyser.Take());
        m_view.ShowRecording(L"Tone", m_analysis, m_path);
        DrawIt();
        m_plot = m_view.PlotPlace();
        m_changes = 0;
    }

    std::shared_ptr<workbench::RecordingAnalysis const> m_analysis;
    CRect m_plot;
};

class SpectrogramPlot : public PlotTest<CSpectrogramView>
{
protected:
    void SetUp() override
    {
        PlotTest::SetUp();
        m_view.ShowRecording(L"Tone", m_path);
        ASSERT_TRUE(tests::PumpUntil([this] { return !m_view.IsComputing(); }));
        DrawIt();
    }
};
} // namespace

TEST_F(WaveformPlot, ShowsAllAtFirst)
{
    EXPECT_EQ(Shown(), (FrameRange{0, frames}));
    EXPECT_FALSE(m_view.Marks().HasSelection());
}

TEST_F(WaveformPlot, TheWheelZoomsAtThePointer)
{
    int const x = m_plot.left + m_plot.Width() / 4;
    std::uint64_t const held = m_view.Marks().window.FrameAt(m_plot.Width() / 4 - 1, m_plot.Width() - 2);
    Wheel(1, 0, x);
    EXPECT_EQ(Shown().Length(), 320000U);
    DrawIt();
    int const quarter = m_plot.Width() / 4;
    EXPECT_NEAR(m_view.Marks().window.XOf(held, m_plot.Width() - 2), quarter - 1, 1);
    Wheel(-1, 0, x);
    EXPECT_EQ(Shown(), (FrameRange{0, frames}));
    EXPECT_EQ(m_changes, 2);
}

TEST_F(WaveformPlot, TheWheelScrollsWithShiftAndAmplifiesWithCtrl)
{
    Wheel(2, 0, m_plot.left + 1);
    FrameRange const before = Shown();
    Wheel(-1, MK_SHIFT, m_plot.left + 1);
    EXPECT_GT(Shown().first, before.first);
    EXPECT_EQ(Shown().Length(), before.Length());
    FrameRange const scrolled = Shown();
    Wheel(1, MK_CONTROL, m_plot.left + 1);
    EXPECT_GT(m_view.Amplification(), 0);
    EXPECT_EQ(Shown(), scrolled);
}

TEST_F(WaveformPlot, AStripShowsThePartAndScrolls)
{
    int const top = m_view.PlotPlace().top;
    Wheel(4, 0, m_plot.left + 1);
    DrawIt();
    EXPECT_GT(m_view.PlotPlace().top, top) << "there is a strip above the plot";
    std::uint64_t const length = Shown().Length();
    // A press at the strip's right end brings the end of the recording.
    CPoint const end(m_plot.right - 2, m_view.PlotPlace().top - 8);
    m_view.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(end.x, end.y));
    EXPECT_EQ(Shown(), (FrameRange{frames - length, frames}));
    m_view.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(m_plot.left, end.y));
    EXPECT_EQ(Shown(), (FrameRange{0, length}));
    m_view.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(m_plot.left, end.y));
    m_view.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(m_plot.right, end.y));
    EXPECT_EQ(Shown(), (FrameRange{0, length})) << "the button is up";
    Key(VK_MULTIPLY);
    EXPECT_EQ(m_view.PlotPlace().top, top);
}

TEST_F(WaveformPlot, AClickSetsTheCursorAndDraggingSelects)
{
    int const middle = (m_plot.left + m_plot.right) / 2;
    Press(middle);
    Release(middle);
    EXPECT_NEAR(static_cast<double>(*m_view.Cursor()), frames / 2.0, frames / 200.0);
    EXPECT_FALSE(m_view.Marks().HasSelection());
    std::uint64_t const from = *m_view.Cursor();
    Press(middle);
    Move(middle + 50);
    Move(middle + 100);
    Release(middle + 100);
    ASSERT_TRUE(m_view.Marks().HasSelection());
    EXPECT_EQ(m_view.Marks().Selection().first, from);
    EXPECT_EQ(m_view.Marks().Selection().end, *m_view.Cursor());
    Press(middle - 30);
    Release(middle - 30);
    EXPECT_FALSE(m_view.Marks().HasSelection());
}

TEST_F(WaveformPlot, ShiftAndAClickExtend)
{
    Press(m_plot.left + 100);
    Release(m_plot.left + 100);
    std::uint64_t const from = *m_view.Cursor();
    Press(m_plot.left + 200, MK_LBUTTON | MK_SHIFT);
    Release(m_plot.left + 200);
    EXPECT_EQ(m_view.Marks().Selection().first, from);
    Press(m_plot.left + 50, MK_LBUTTON | MK_SHIFT);
    Release(m_plot.left + 50);
    EXPECT_EQ(m_view.Marks().Selection().end, from);
}

TEST_F(WaveformPlot, WhatIsSelectedFillsThePlotByKeyOrDoubleClick)
{
    Press(m_plot.left + 100);
    Move(m_plot.left + 200);
    Release(m_plot.left + 200);
    FrameRange const selection = m_view.Marks().Selection();
    Key(VK_RETURN);
    EXPECT_EQ(Shown(), selection);
    Key(VK_MULTIPLY);
    EXPECT_TRUE(m_view.Marks().window.ShowsAll());
    DrawIt();
    m_view.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(m_plot.left + 150, m_plot.bottom - 10));
    EXPECT_EQ(Shown(), selection);
    Key(VK_ESCAPE);
    EXPECT_FALSE(m_view.Marks().HasSelection());
    m_view.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(m_plot.left + 150, m_plot.bottom - 10));
    EXPECT_TRUE(m_view.Marks().window.ShowsAll());
}

TEST_F(WaveformPlot, KeysZoomAtTheCursorAndScroll)
{
    m_view.MoveCursor(frames / 2);
    Key(VK_ADD);
    EXPECT_EQ(Shown(), (FrameRange{80000, 400000}));
    Key(VK_OEM_PLUS);
    Key(VK_ADD);
    Key(VK_ADD);
    EXPECT_LT(Shown().Length(), 120000U);
    FrameRange const zoomed = Shown();
    Key(VK_NEXT);
    EXPECT_GT(Shown().first, zoomed.first);
    Key(VK_PRIOR);
    EXPECT_EQ(Shown(), zoomed);
    // The cursor is always brought into view.
    Key(VK_END);
    EXPECT_EQ(Shown().end, frames);
    Key(VK_HOME);
    EXPECT_EQ(Shown().first, 0U);
    for (int i = 0; i < 9; ++i)
        Key(VK_OEM_MINUS);
    EXPECT_TRUE(m_view.Marks().window.ShowsAll());
}

TEST_F(WaveformPlot, DraggingBeyondTheEdgeScrolls)
{
    Wheel(8, 0, m_plot.left + 1);
    DrawIt();
    std::uint64_t const end = Shown().end;
    Press(m_plot.left + 20);
    Move(m_plot.right + 100);
    EXPECT_GT(Shown().end, end);
    EXPECT_EQ(*m_view.Cursor(), Shown().end - 1);
    Release(m_plot.right + 100);
}

TEST_F(WaveformPlot, TakesTheSlidersRoomInANarrowPanel)
{
    workbench::ScreenMetrics metrics(192);
    CWaveformPanel panel;
    ASSERT_TRUE(panel.CreatePanel(m_host, view_id + 1, metrics));
    panel.View().ShowRecording(L"Tone", m_analysis, m_path);
    CWnd const & slider = *panel.GetDlgItem(IDC_AMPLIFICATION);
    panel.MoveWindow(0, 0, view_width, view_height);
    EXPECT_TRUE(slider.IsWindowVisible());
    int narrow = metrics.X(25);
    {
        CClientDC dc(&panel);
        workbench::FontScope const font(dc, metrics.Font());
        workbench::PlotMargins const margins(dc, metrics);
        narrow += margins.left + margins.right;
    }
    panel.MoveWindow(0, 0, narrow, view_height);
    EXPECT_FALSE(slider.IsWindowVisible());
    EXPECT_GE(panel.View().PlotPlace().Width(), metrics.X(20));
    panel.MoveWindow(0, 0, view_width, view_height);
    EXPECT_TRUE(slider.IsWindowVisible());
}

TEST_F(WaveformPlot, AnotherRecordingStartsAfresh)
{
    Wheel(4, 0, m_plot.left + 100);
    Press(m_plot.left + 100);
    Move(m_plot.left + 150);
    m_view.ShowText(L"Nothing", L"");
    EXPECT_EQ(Shown(), (FrameRange{0, 0}));
    Move(m_plot.left + 160);
    Release(m_plot.left + 160);
    Wheel(1, 0, m_plot.left + 100);
    Key(VK_ADD);
    Key(VK_RETURN);
    m_view.ShowRecording(L"Tone", m_analysis);
    EXPECT_EQ(m_view.Marks(), TimeMarks(frames));
}

TEST_F(WaveformPlot, TakesMarksOfTheSameRecordingOnly)
{
    TimeMarks marks(frames);
    marks.window.Show({1000, 3000});
    marks.cursor = 2000;
    m_view.SetMarks(marks);
    EXPECT_EQ(m_view.Marks(), marks);
    EXPECT_EQ(m_view.Cursor(), 2000U);
    EXPECT_EQ(m_changes, 0) << "what comes from outside is not told back";
    m_view.SetMarks(TimeMarks(frames - 1));
    EXPECT_EQ(m_view.Marks(), marks);
}

TEST_F(WaveformPlot, SingleSamplesAreSeen)
{
    // 16 samples of a tone of 1,000 Hz are a third of a period: the plot rises and falls by single steps.
    TimeMarks marks(frames);
    marks.window.Show({frames - 48, frames});
    m_view.SetMarks(marks);
    tests::Canvas canvas(view_width, view_height);
    canvas.PrintClient(m_view);
    CRect const inside = m_view.PlotPlace();
    // One period: the trace is above the centre in the first half and below in the second.
    int const centre = inside.CenterPoint().y;
    COLORREF const trace = workbench::TraceColour({}, 0);
    auto const has = [&](int x, int top, int bottom) {
        for (int y = top; y < bottom; ++y)
        {
            if (canvas.Pixel(x, y) == trace)
                return true;
        }
        return false;
    };
    int const quarter = inside.Width() / 4;
    bool const risesFirst = has(inside.left + quarter, inside.top + 1, centre - 10);
    EXPECT_NE(risesFirst, has(inside.left + quarter, centre + 10, inside.bottom - 1));
    EXPECT_NE(risesFirst, has(inside.left + 3 * quarter, inside.top + 1, centre - 10));
}

TEST_F(WaveformPlot, RandomUseStaysInTheRecording)
{
    std::mt19937 random(5);
    UINT const keys[] = {VK_ADD,   VK_SUBTRACT, VK_LEFT, VK_RIGHT,  VK_HOME,   VK_END,     VK_NEXT,
                         VK_PRIOR, VK_UP,       VK_DOWN, VK_RETURN, VK_ESCAPE, VK_MULTIPLY};
    for (int step = 0; step < 2000; ++step)
    {
        int const x = static_cast<int>(random() % 700) - 50;
        switch (random() % 6)
        {
        case 0:
            Wheel(static_cast<int>(random() % 7) - 3, random() % 2 != 0 ? MK_SHIFT : 0, x);
            break;
        case 1:
            Press(x, random() % 2 != 0 ? MK_LBUTTON | MK_SHIFT : MK_LBUTTON);
            break;
        case 2:
            Move(x);
            break;
        case 3:
            Release(x);
            break;
        case 4:
            DrawIt();
            break;
        default:
            Key(keys[random() % std::size(keys)]);
            break;
        }
        TimeMarks const & marks = m_view.Marks();
        ASSERT_LE(marks.window.Shown().end, frames);
        ASSERT_GE(marks.window.Shown().Length(), workbench::TimeWindow::least_frames);
        ASSERT_LT(marks.cursor, frames);
        ASSERT_LE(marks.Selection().end, frames);
    }
}

TEST_F(SpectrogramPlot, TheWheelZoomsAndTheClickReads)
{
    EXPECT_EQ(m_view.Marks(), TimeMarks(frames));
    Wheel(1, 0, view_width / 2);
    EXPECT_EQ(Shown().Length(), 320000U);
    EXPECT_EQ(m_changes, 1);
    EXPECT_EQ(m_view.Reading(), L"");
    Press(view_width / 2);
    Release(view_width / 2);
    EXPECT_NE(m_view.Reading().find(L" Hz, "), std::wstring::npos) << m_view.Reading();
    EXPECT_GT(m_view.Marks().cursor, 0U);
}

TEST_F(SpectrogramPlot, ReadsTheTonesLevel)
{
    TimeMarks marks(frames);
    marks.cursor = frames - 4800;
    m_view.SetMarks(marks);
    // The line that is the loudest reads as 1,000 Hz, on one side or the other.
    std::wstring loudest;
    int best = -1000;
    for (int y = 40; y < view_height - 20; ++y)
    {
        m_view.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(view_width - 110, y));
        m_view.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(view_width - 110, y));
        std::wstring const reading = m_view.Reading();
        std::size_t const at = reading.rfind(L", ");
        int const level =
            at == std::wstring::npos || reading[at + 2] == L'<' ? -1000 : std::stoi(reading.substr(at + 2));
        if (level > best)
        {
            best = level;
            loudest = reading;
        }
    }
    EXPECT_GE(best, -9);
    std::wstring const hertz = loudest.substr(loudest.find(L", ") + 2);
    double const frequency =
        hertz[1] == L',' ? 1000.0 * std::stod(hertz) + std::stod(hertz.substr(2)) : std::stod(hertz);
    EXPECT_NEAR(frequency, 1000.0, 150.0) << loudest;
}

TEST_F(SpectrogramPlot, ANarrowPartIsComputedAnewWhileTheFormerIsSeen)
{
    m_path = WriteTone(4800000, "long.wav");
    m_view.ShowRecording(L"Long", m_path);
    ASSERT_TRUE(tests::PumpUntil([this] { return !m_view.IsComputing(); }));
    TimeMarks marks(4800000);
    marks.window.Show({2400000, 2410000});
    m_view.SetMarks(marks);
    tests::Canvas before(view_width, view_height);
    before.PrintClient(m_view);
    // It is started a moment after the last change.
    ASSERT_TRUE(tests::PumpUntil([this] { return m_view.IsComputing(); }));
    ASSERT_TRUE(tests::PumpUntil([this] { return !m_view.IsComputing(); }));
    tests::Canvas after(view_width, view_height);
    after.PrintClient(m_view);
    EXPECT_FALSE(tests::SamePixels(before, after));
    EXPECT_EQ(m_view.Marks(), marks);
}

TEST_F(SpectrogramPlot, OtherSettingsAreComputedAndKeepTheMarks)
{
    Wheel(2, 0, view_width / 2);
    TimeMarks const marks = m_view.Marks();
    m_view.SetSettings({4096, 75});
    EXPECT_TRUE(m_view.IsComputing());
    ASSERT_TRUE(tests::PumpUntil([this] { return !m_view.IsComputing(); }));
    EXPECT_EQ(m_view.Marks(), marks);
    m_view.SetSettings({4096, 75});
    EXPECT_FALSE(m_view.IsComputing());
}

TEST_F(SpectrogramPlot, OtherSettingsReachThePartShown)
{
    m_path = WriteTone(4800000, "long.wav");
    m_view.ShowRecording(L"Long", m_path);
    ASSERT_TRUE(tests::PumpUntil([this] { return !m_view.IsComputing(); }));
    TimeMarks marks(4800000);
    marks.window.Show({2400000, 2410000});
    m_view.SetMarks(marks);
    m_view.SetSettings({1024, 50});
    // All of it first, and then the part, a moment later.
    for (int job = 0; job < 2; ++job)
    {
        ASSERT_TRUE(tests::PumpUntil([this] { return m_view.IsComputing(); })) << job;
        ASSERT_TRUE(tests::PumpUntil([this] { return !m_view.IsComputing(); })) << job;
    }
}

TEST_F(SpectrogramPlot, OtherSettingsBeforeTheFirstResultKeepTheProgress)
{
    m_path = WriteTone(4800000, "long.wav");
    m_view.ShowRecording(L"Long", m_path);
    m_view.SetSettings({4096, 75});
    EXPECT_TRUE(m_view.IsComputing());
    EXPECT_TRUE(m_view.GetWindow(GW_CHILD)->IsWindowVisible());
    ASSERT_TRUE(tests::PumpUntil([this] { return !m_view.IsComputing(); }));
    EXPECT_FALSE(m_view.GetWindow(GW_CHILD)->IsWindowVisible());
}

TEST_F(SpectrogramPlot, AnEndWhileAPartIsComputed)
{
    m_path = WriteTone(4800000, "long.wav");
    m_view.ShowRecording(L"Long", m_path);
    ASSERT_TRUE(tests::PumpUntil([this] { return !m_view.IsComputing(); }));
    TimeMarks marks(4800000);
    marks.window.Show({2400000, 2800000});
    m_view.SetMarks(marks);
    ASSERT_TRUE(tests::PumpUntil([this] { return m_view.IsComputing(); }));
    m_view.DestroyWindow();
}

namespace
{
/// A device that hears a block whenever it is asked for room.
class QuietDevice : public workbench::AudioDevice
{
public:
    explicit QuietDevice(std::uint64_t & heard) : m_heard(heard) { m_heard = 0; }
    bool Open(std::uint32_t, std::size_t channels) override
    {
        m_channels = channels;
        return true;
    }
    bool HasRoom() const override { return ++m_asked % 2 == 0; }
    void Write(std::span<std::int16_t const> samples) override { m_heard += samples.size() / m_channels; }
    bool IsDone() const override { return true; }
    std::uint64_t FramesHeard() const override { return m_heard; }
    void Pause(bool) override {}

private:
    std::uint64_t & m_heard;
    std::size_t m_channels = 1;
    mutable int m_asked = 0;
};
} // namespace

TEST_F(WaveformPlot, PlayingMovesAMarkThroughIt)
{
    std::uint64_t heard = 0;
    CPlaying playing([&heard] { return std::make_unique<QuietDevice>(heard); });
    std::vector<std::uint64_t> positions;
    playing.m_onMoved = [&](std::optional<std::uint64_t> frame) {
        m_view.ShowPlaying(frame);
        if (frame)
            positions.push_back(*frame);
    };
    playing.Play(m_host, m_path, {48000, 144000});
    EXPECT_TRUE(playing.IsPlaying());
    ASSERT_TRUE(tests::PumpUntil([&] { return !playing.IsPlaying(); }));
    ASSERT_GT(positions.size(), 5U);
    EXPECT_TRUE(std::is_sorted(positions.begin(), positions.end()));
    EXPECT_LT(positions.back(), 144000U);
    EXPECT_EQ(heard, 96000U);
}

TEST_F(WaveformPlot, PlayingTurnsThePageAsLongAsTheUserIsThere)
{
    TimeMarks marks(frames);
    marks.window.Show({0, 100000});
    m_view.SetMarks(marks);
    m_view.ShowPlaying(99000);
    m_view.ShowPlaying(100500);
    EXPECT_EQ(Shown(), (FrameRange{100500, 200500}));
    marks.window.Show({300000, 400000});
    m_view.SetMarks(marks);
    m_view.ShowPlaying(150000);
    m_view.ShowPlaying(450000);
    EXPECT_EQ(Shown(), (FrameRange{300000, 400000})) << "the user has scrolled away";
    m_view.ShowPlaying(std::nullopt);
}

TEST_F(WaveformPlot, TheSpaceBarPlays)
{
    int pressed = 0;
    m_view.m_onPlay = [&pressed] { ++pressed; };
    Key(VK_SPACE);
    EXPECT_EQ(pressed, 1);
}

TEST_F(WaveformPlot, WithoutADeviceTheUserIsTold)
{
    CPlaying playing([] { return std::unique_ptr<workbench::AudioDevice>(); });
    ::SetTimer(m_host.m_hWnd, 99, 10, [](HWND window, UINT, UINT_PTR id, DWORD) {
        if (HWND const box = ::GetLastActivePopup(window); box != window)
        {
            ::KillTimer(window, id);
            ::PostMessageW(box, WM_COMMAND, IDOK, 0);
        }
    });
    playing.Play(m_host, m_path, {});
    EXPECT_FALSE(playing.IsPlaying());
}

TEST_F(WaveformPlot, PlayingEndsWithItsObject)
{
    std::uint64_t heard = 0;
    auto playing = std::make_unique<CPlaying>([&heard] { return std::make_unique<QuietDevice>(heard); });
    int moves = 0;
    playing->m_onMoved = [&moves](auto) { ++moves; };
    playing->Play(m_host, m_path, {});
    playing->m_onMoved = nullptr;
    playing.reset();
    int const before = moves;
    tests::PumpPosted();
    EXPECT_EQ(moves, before);
}

TEST_F(WaveformPlot, IsSavedAsAPicture)
{
    std::filesystem::path const file = m_path.wstring() + L".png";
    auto const draw = [this](CDC & dc, CRect const & rect) { m_view.Print(dc, rect); };
    ASSERT_TRUE(workbench::SavePicture(m_host, CSize(400, 200), draw, file));
    workbench::GraphicsScope const graphics;
    {
        Gdiplus::Bitmap picture(file.c_str());
        ASSERT_EQ(picture.GetLastStatus(), Gdiplus::Ok);
        EXPECT_EQ(picture.GetWidth(), 400U);
        EXPECT_EQ(picture.GetHeight(), 200U);
        Gdiplus::Color corner;
        picture.GetPixel(0, 0, &corner);
        EXPECT_EQ(corner.ToCOLORREF(), RGB(255, 255, 255)) << "white paper";
        int other = 0;
        for (INT x = 0; x < 400; ++x)
        {
            Gdiplus::Color pixel;
            picture.GetPixel(x, 120, &pixel);
            other += pixel.ToCOLORREF() != RGB(255, 255, 255) ? 1 : 0;
        }
        EXPECT_GT(other, 10);
    }
    // Where it can't be written, what was there stays.
    EXPECT_FALSE(workbench::SavePicture(m_host, CSize(0, 0), draw, file));
    EXPECT_TRUE(std::filesystem::exists(file));
    unsigned long reason = 0;
    EXPECT_FALSE(workbench::SavePicture(m_host, CSize(40, 20), draw, L"Z:\\no such folder\\picture.png", &reason));
    EXPECT_EQ(reason, static_cast<unsigned long>(ERROR_PATH_NOT_FOUND));
    EXPECT_FALSE(workbench::SavePicture(m_host, CSize(0, 0), draw, L"Z:\\no such folder\\picture.png", &reason));
    EXPECT_EQ(reason, 0U) << "there is no picture";
    std::error_code error;
    std::filesystem::remove(file, error);
}

TEST_F(WaveformPlot, IsCopiedAsAMetafileAndAsABitmap)
{
    ASSERT_TRUE(workbench::CopyPicture(m_host, CSize(300, 150),
                                       [this](CDC & dc, CRect const & rect) { m_view.Print(dc, rect); }));
    EXPECT_TRUE(::IsClipboardFormatAvailable(CF_ENHMETAFILE));
    ASSERT_TRUE(::IsClipboardFormatAvailable(CF_DIB));
    ASSERT_TRUE(::OpenClipboard(m_host.m_hWnd));
    HANDLE const memory = ::GetClipboardData(CF_DIB);
    auto const * const header =
        static_cast<BITMAPINFOHEADER const *>(memory != nullptr ? ::GlobalLock(memory) : nullptr);
    if (header != nullptr)
    {
        EXPECT_EQ(header->biWidth, 300);
        EXPECT_EQ(header->biHeight, 150);
        ::GlobalUnlock(memory);
    }
    EXPECT_NE(header, nullptr);
    ::EmptyClipboard();
    ::CloseClipboard();
}
