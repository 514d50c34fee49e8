#include "logic/RecordingAnalysis.h"

#include <algorithm>
#include <utility>

#include "logic/TextFormat.h"
#include "logic/Texts.h"

namespace workbench
{

namespace
{

constexpr std::size_t samples_per_step = 32768;

} // namespace

std::wstring RecordingAnalysis::StatusText() const
{
    if (problem)
    {
        return problem->Text();
    }
    if (info.IsCutOff())
    {
        return std::wstring(Text(L"cut off, should be")) + L' ' + FormatDuration(info.announcedFrames, info.sampleRate);
    }
    if (invalidSamples > 0)
    {
        return Text(L"has invalid samples");
    }
    return Text(L"OK");
}

RecordingAnalyser::RecordingAnalyser(std::unique_ptr<ByteSource> source)
{
    auto opened = WavReader::Open(std::move(source));
    if (auto const * const problem = std::get_if<ReadProblem>(&opened))
    {
        m_analysis.problem = *problem;
        return;
    }
    m_reader.emplace(std::move(std::get<WavReader>(opened)));
    std::size_t const channels = m_reader->Info().channels;
    m_waveform.emplace(channels, most_buckets / std::clamp<std::size_t>(channels, 1, WaveformBuilder::maximum_lanes));
    m_loudness.emplace(m_reader->Info().sampleRate, channels);
    m_tone.emplace(m_reader->Info().sampleRate, channels, m_reader->Info().frames);
    m_samples.resize(std::max<std::size_t>(samples_per_step / channels, 1) * channels);
}

RecordingAnalyser::RecordingAnalyser(std::filesystem::path const & path)
    : RecordingAnalyser(std::unique_ptr<ByteSource>(FileByteSource::Open(path)))
{
    m_analysis.file = ReadFileFacts(path);
}

bool RecordingAnalyser::Step()
{
    if (!m_reader)
    {
        return false;
    }
    std::size_t const frames = m_reader->ReadFrames(m_samples);
    auto const samples = std::span<double const>(m_samples).first(frames * m_reader->Info().channels);
    m_levels.Add(samples);
    m_loudness->Add(samples);
    m_tone->Add(samples);
    m_waveform->Add(samples);
    return frames > 0;
}

RecordingAnalysis RecordingAnalyser::Take()
{
    if (m_reader)
    {
        m_analysis.info = m_reader->Info();
        m_analysis.invalidSamples = m_reader->InvalidSamples();
        m_analysis.levels = m_levels.Result();
        m_analysis.loudness = m_loudness->Result();
        m_analysis.tone = m_tone->Result();
        m_analysis.waveform = m_waveform->Finish();
    }
    return std::move(m_analysis);
}

} // namespace workbench
