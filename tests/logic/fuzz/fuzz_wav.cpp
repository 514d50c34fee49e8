// Feeds arbitrary bytes to the WAV reader and checks what it promises about any file.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "logic/LevelMeter.h"
#include "logic/Waveform.h"
#include "logic/WavReader.h"

namespace
{

void Require(bool holds)
{
    if (!holds)
    {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    using namespace workbench;

    auto const bytes = std::as_bytes(std::span(data, size));
    auto opened = WavReader::Open(std::make_unique<MemoryByteSource>(bytes));
    if (auto const * const problem = std::get_if<ReadProblem>(&opened))
    {
        Require(!problem->Text().empty());
        return 0;
    }
    auto & reader = std::get<WavReader>(opened);
    workbench::RecordingInfo const info = reader.Info();
    Require(info.channels > 0 && info.sampleRate > 0 && info.frames > 0 && info.frames <= info.announcedFrames);
    Require(info.frames * info.channels * info.bytesPerSample <= size);

    std::vector<double> samples(std::size_t{info.channels} * 100);
    LevelMeter meter;
    WaveformBuilder builder(info.channels);
    std::uint64_t frames = 0;
    while (std::size_t const count = reader.ReadFrames(samples))
    {
        auto const read = std::span<double const>(samples).first(count * info.channels);
        for (double const sample : read)
        {
            Require(std::abs(sample) <= WavReader::sample_limit);
        }
        meter.Add(read);
        builder.Add(read);
        frames += count;
    }
    Require(frames == info.frames);
    Require(reader.InvalidSamples() <= frames * info.channels);
    workbench::Levels const levels = meter.Result();
    Require(levels.rms <= levels.peak + 1e-9);

    workbench::Waveform const waveform = builder.Finish();
    Require(waveform.Frames() == frames);
    std::size_t const width = 1 + size % 700;
    std::vector<MinMax> const columns = waveform.Columns(waveform.Lanes() - 1, width);
    Require(columns.size() == width);
    for (workbench::MinMax const & column : columns)
    {
        Require(column.least <= column.greatest);
    }
    return 0;
}
