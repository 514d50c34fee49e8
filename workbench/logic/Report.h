#pragma once
// A report about recordings as one web page, which has its pictures in it.

#include "logic/RecordingAnalysis.h"
#include "logic/RecordingDetails.h"
#include "logic/RecordingNotes.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace workbench
{

/// A recording that a report is about.
struct ReportedRecording
{
    std::filesystem::path file;
    std::shared_ptr<RecordingAnalysis const> analysis; ///< null while it is not read
    RecordingNotes notes;
    std::wstring rating; ///< what it is called; empty for none
    std::wstring date;   ///< the file's, as the user writes dates
};

/// A picture of a recording as a PNG file.
struct ReportPicture
{
    std::wstring description;
    std::string png;
    int width = 0; ///< in pixels of the page
    int height = 0;
};

/// The page's begin with its title and a table of all recordings with their measures. language: the page's, as "en".
/// The parts of a page are plain ASCII and follow one another.
std::string ReportBegin(std::wstring_view title, std::wstring_view language,
                        std::span<ReportedRecording const> recordings);

/// What there is to say about one recording, with its pictures. Those without contents are left out.
std::string ReportSection(ReportedRecording const & recording, std::span<ReportPicture const> pictures);

std::string ReportEnd();

/// Bytes as text by RFC 4648.
std::string Base64(std::string_view bytes);

} // namespace workbench
