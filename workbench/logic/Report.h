#pragma once
// A report about recordings as one web page, which has its pictures in it.

#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "logic/RecordingAnalysis.h"
#include "logic/RecordingDetails.h"
#include "logic/RecordingNotes.h"

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

/// What stands above all.
struct ReportHead
{
    std::wstring title;
    std::wstring language; ///< the page's, as "en"
    std::wstring date;     ///< of the report, as the user writes dates
};

/// The page's begin with its title, date and folders, and a table of all recordings with their measures. The parts of a
/// page are plain ASCII and follow one another.
std::string ReportBegin(ReportHead const & head, std::span<ReportedRecording const> recordings);

/// What there is to say about one recording, with its pictures. Those without contents are left out.
std::string ReportSection(ReportedRecording const & recording, std::span<ReportPicture const> pictures);

std::string ReportEnd();

/// What the file of a report about recordings of a folder is called at first, without its ending: such files are sorted
/// by their days.
std::wstring ReportFileName(std::filesystem::path const & folder, int year, int month, int day);

/// Bytes as text by RFC 4648.
std::string Base64(std::string_view bytes);

} // namespace workbench
