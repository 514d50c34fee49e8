#pragma once
// Everything the workbench knows about one recording, and the reading of it in small steps.

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "logic/FileFacts.h"
#include "logic/LevelMeter.h"
#include "logic/Loudness.h"
#include "logic/ToneMeter.h"
#include "logic/Waveform.h"
#include "logic/WavReader.h"

namespace workbench
{

/// The result of reading a recording: what its file is, and either a problem or all the rest.
struct RecordingAnalysis
{
    FileFacts file;
    std::optional<ReadProblem> problem;
    RecordingInfo info;
    Levels levels{};
    std::optional<double> loudness; ///< in LUFS
    ToneMeasures tone;
    Waveform waveform;
    std::uint64_t invalidSamples = 0;

    /// What there is to say about the file in English: the problem, "cut off" with the duration announced,
    /// "has invalid samples", or "OK".
    std::wstring StatusText() const;

    bool operator==(RecordingAnalysis const &) const = default;
};

/// Reads a recording once, from front to end, in steps.
class RecordingAnalyser
{
public:
    /// The most buckets of the overview, of all lanes together: thousands of recordings have one each. What is shown
    /// large gets its finer one from `WaveformDetail`.
    static constexpr std::size_t most_buckets = 1792;

    /// Opens the source, which may be null.
    explicit RecordingAnalyser(std::unique_ptr<ByteSource> source);

    /// Opens a file.
    explicit RecordingAnalyser(std::filesystem::path const & path);

    /// Takes the next samples, some 30,000 at a time. False when everything is read; to be called until then.
    bool Step();

    /// The result, complete after `Step` gave false. It can be taken once.
    RecordingAnalysis Take();

private:
    std::optional<WavReader> m_reader;
    RecordingAnalysis m_analysis;
    LevelMeter m_levels;
    std::optional<LoudnessMeter> m_loudness;
    std::optional<ToneMeter> m_tone;
    std::optional<WaveformBuilder> m_waveform;
    std::vector<double> m_samples;
};

} // namespace workbench
