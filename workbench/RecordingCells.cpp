#include "RecordingCells.h"

#include <algorithm>
#include <utility>

#include "frame/CoreLibrary.h"
#include "logic/TextFormat.h"
#include "logic/Texts.h"

namespace workbench
{

namespace
{

std::wstring WithoutBlanks(std::wstring text)
{
    constexpr wchar_t const * blanks = L" \t\r\n";
    std::size_t const last = text.find_last_not_of(blanks);
    text.erase(last == text.npos ? 0 : last + 1);
    text.erase(0, std::min(text.find_first_not_of(blanks), text.size()));
    return text;
}

} // namespace

std::wstring ValueText(CRecordingList::Column column, RecordingAnalysis const & analysis)
{
    RecordingInfo const & info = analysis.info;
    switch (column)
    {
    case CRecordingList::column_duration:
        return FormatDuration(info.frames, info.sampleRate);
    case CRecordingList::column_channels:
        return std::to_wstring(info.channels);
    case CRecordingList::column_rate:
        return FormatThousands(info.sampleRate);
    case CRecordingList::column_peak:
        return FormatLevel(analysis.levels.peak);
    case CRecordingList::column_rms:
        return FormatLevel(analysis.levels.rms);
    case CRecordingList::column_crest:
        return FormatCrestFactor(analysis.levels);
    case CRecordingList::column_loudness:
        return FormatLoudness(analysis.loudness);
    case CRecordingList::column_frequency:
        return FormatFrequency(analysis.tone.frequency);
    case CRecordingList::column_distortion:
        return FormatPercent(analysis.tone.distortion);
    default:
        return {};
    }
}

std::wstring CellText(CRecordingList::Column column, ListedRecording const & recording)
{
    auto const & analysis = recording.analysis;
    bool const isReadable = !(analysis && analysis->problem);
    switch (column)
    {
    case CRecordingList::column_name:
        return recording.file.filename().wstring();
    case CRecordingList::column_date:
        return analysis && analysis->file.lastWrite
                   ? UserDateTimeText(CTime(*analysis->file.lastWrite), dtf_date_time_without_seconds).GetString()
                   : L"";
    case CRecordingList::column_rating:
        return isReadable ? CRecordingList::RatingName(recording.notes.rating) : L"";
    case CRecordingList::column_comment:
        return recording.notes.comment;
    case CRecordingList::column_status:
        return analysis ? analysis->StatusText() : CRecordingList::WaitingText(recording.isBeingRead);
    default:
        return analysis && isReadable ? ValueText(column, *analysis) : std::wstring();
    }
}

RecordingTable::RecordingTable(std::vector<CRecordingList::Column> columns, TextTable table,
                               std::vector<ListedRecording> recordings)
    : m_columns(std::move(columns)),
      m_table(std::move(table)),
      m_recordings(std::move(recordings))
{
    m_table.rows.reserve(m_recordings.size());
}

void RecordingTable::MakeRow()
{
    ListedRecording const & recording = m_recordings[m_table.rows.size()];
    std::vector<std::wstring> texts;
    texts.reserve(m_columns.size());
    for (CRecordingList::Column const column : m_columns)
    {
        texts.push_back(column == CRecordingList::column_reference ? (recording.isReference ? L"x" : L"")
                                                                   : WithoutBlanks(CellText(column, recording)));
    }
    m_table.rows.push_back(std::move(texts));
}

} // namespace workbench
