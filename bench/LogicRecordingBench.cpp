// Looking at a recording of one hour: what a picture of its waveform takes at any zoom, beside the time that a film
// gives it.

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <future>
#include <random>
#include <string>
#include <vector>

#include "logic/RecordingAnalysis.h"
#include "logic/WaveformDetail.h"
#include "LogicBench.h"
#include "Measure.h"

namespace
{
constexpr std::uint32_t sample_rate = 48000;
constexpr std::uint64_t frame_count = 3600ULL * sample_rate;
constexpr std::uint32_t frame_bytes = 4; // two channels of 16 bits
constexpr std::size_t picture_width = 1000;
constexpr double picture_time = 1e9 / 30; // nanoseconds

void Put(std::ofstream & stream, std::uint64_t value, int bytes)
{
    for (int i = 0; i < bytes; ++i)
        stream.put(static_cast<char>(value >> (8 * i)));
}

/// A recording of an hour, of which most is a hole in the file: what is read of it costs the same.
class Hour
{
public:
    Hour() : path(std::filesystem::temp_directory_path() / ("hour-" + std::to_string(std::random_device{}()) + ".wav"))
    {
        {
            std::ofstream stream(path, std::ios::binary);
            std::uint64_t const bytes = frame_count * frame_bytes;
            stream << "RIFF";
            Put(stream, bytes + 36, 4);
            stream << "WAVEfmt ";
            for (auto const [value, size] : std::array<std::array<std::uint32_t, 2>, 7>{{{16, 4},
                                                                                         {1, 2},
                                                                                         {2, 2},
                                                                                         {sample_rate, 4},
                                                                                         {sample_rate * frame_bytes, 4},
                                                                                         {frame_bytes, 2},
                                                                                         {16, 2}}})
                Put(stream, value, static_cast<int>(size));
            stream << "data";
            Put(stream, bytes, 4);
        }
        std::filesystem::resize_file(path, 44 + frame_count * frame_bytes);
    }
    ~Hour()
    {
        std::error_code ignored;
        std::filesystem::remove(path, ignored);
    }
    Hour(Hour const &) = delete;
    Hour & operator=(Hour const &) = delete;

    std::filesystem::path const path;
};

/// The longest that one of the pictures takes on the way from the recording's beginning to its end in small steps.
double SlowestPicture(workbench::WaveformDetail & detail, std::uint64_t length, int steps)
{
    double slowest = 0;
    workbench::TimeWindow window(frame_count);
    window.Show({frame_count / 3, frame_count / 3 + length});
    for (int i = 0; i < steps; ++i)
    {
        slowest = std::max(slowest, bench::Nanoseconds([&] { detail.Columns(window.Shown(), picture_width); }));
        window.Scroll(0.1);
    }
    return slowest;
}
} // namespace

bool bench::LookingAtAnHour()
{
    Hour const hour;
    auto analysis = std::make_shared<workbench::RecordingAnalysis>();
    double const reading = Nanoseconds([&] {
        workbench::RecordingAnalyser analyser(hour.path);
        while (analyser.Step())
            continue;
        *analysis = analyser.Take();
    });
    std::vector<char> block(65536);
    double const copying = Nanoseconds([&] {
        std::ifstream stream(hour.path, std::ios::binary);
        while (stream.read(block.data(), static_cast<std::streamsize>(block.size())))
            continue;
    });
    bool met = Report("reading an hour of two channels with all measures beside reading its bytes, a frame",
                      reading / frame_count, copying / frame_count, 100.0);

    std::promise<void> refined;
    workbench::WaveformDetail detail(analysis, hour.path, [&refined] { refined.set_value(); });
    // Wide enough that the finer overview is made.
    double const first = Nanoseconds([&] { detail.Columns({0, frame_count / 100}, picture_width); });
    met = Report("the first picture of a part, before there is a finer overview, beside a thirtieth of a second", first,
                 picture_time, 1.0) &&
          met;
    if (detail.IsRefining())
        refined.get_future().wait();
    for (std::uint64_t const seconds : {3600, 600, 60, 10, 1})
    {
        met = Report("scrolling through an hour, " + std::to_string(seconds) +
                         " s shown, the slowest picture beside a thirtieth of a second",
                     SlowestPicture(detail, seconds * sample_rate, 50), picture_time, 1.0) &&
              met;
    }
    workbench::TimeWindow window(frame_count);
    double slowest = 0;
    for (int i = 0; i < 60; ++i)
    {
        window.Zoom(i < 30 ? 1 / 1.5 : 1.5, 0.37);
        slowest = std::max(slowest, Nanoseconds([&] { detail.Columns(window.Shown(), picture_width); }));
    }
    return Report("zooming an hour in and out, the slowest picture beside a thirtieth of a second", slowest,
                  picture_time, 1.0) &&
           met;
}
