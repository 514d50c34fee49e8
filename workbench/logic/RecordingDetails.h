#pragma once
// Everything about one recording as lines of text.

#include <filesystem>
#include <string>
#include <vector>

#include "logic/RecordingAnalysis.h"

namespace workbench
{

/// One line: what it is about, and the text.
struct DetailLine
{
    std::wstring label;
    std::wstring text;

    bool operator==(DetailLine const &) const = default;
};

/// "16-bit PCM", "32-bit float".
std::wstring FormatCoding(RecordingInfo const & info);

/// The lines in the order in which they are shown. Of a recording that could not be read, only the file and the reason.
/// The date is the file's, as the user writes dates; empty leaves the line out.
std::vector<DetailLine> DescribeRecording(std::filesystem::path const & path, RecordingAnalysis const & analysis,
                                          std::wstring const & date);

} // namespace workbench
