#include "logic/RecordingDetails.h"

#include "logic/TextFormat.h"

namespace workbench
{

std::wstring FormatCoding(RecordingInfo const & info)
{
    return std::to_wstring(info.bitsPerSample) + (info.coding == SampleCoding::Float ? L"-bit float" : L"-bit PCM");
}

std::vector<DetailLine> DescribeRecording(std::filesystem::path const & path, RecordingAnalysis const & analysis,
                                          std::wstring const & date)
{
    std::vector<DetailLine> lines;
    lines.push_back({L"File", path.filename().wstring()});
    lines.push_back({L"Folder", path.parent_path().wstring()});
    if (analysis.file.size)
    {
        auto const bytes = *analysis.file.size;
        lines.push_back({L"Size", FormatThousands(bytes) + (bytes == 1 ? L" byte" : L" bytes")});
    }
    if (!date.empty())
    {
        lines.push_back({L"Date", date});
    }
    if (!analysis.problem)
    {
        auto const & info = analysis.info;
        lines.push_back({L"Format", FormatCoding(info)});
        lines.push_back({L"Channels", std::to_wstring(info.channels)});
        lines.push_back({L"Sample rate", FormatSampleRate(info.sampleRate)});
        lines.push_back({L"Duration", FormatDuration(info.frames, info.sampleRate) + L" (" +
                                          FormatThousands(info.frames) +
                                          (info.frames == 1 ? L" sample)" : L" samples)")});
        lines.push_back({L"Peak level", FormatLevel(analysis.levels.peak) + L" dBFS"});
        lines.push_back({L"RMS level", FormatLevel(analysis.levels.rms) + L" dBFS"});
    }
    lines.push_back({L"Status", analysis.StatusText()});
    return lines;
}

} // namespace workbench
