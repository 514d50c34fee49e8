#pragma once
// What the list's cells say.

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "RecordingList.h"

namespace workbench
{

/// What there is to say about a recording of the list.
struct ListedRecording
{
    std::filesystem::path file;
    RecordingNotes notes;
    std::shared_ptr<RecordingAnalysis const> analysis; ///< null while it is not read
    bool isBeingRead = false;
    bool isReference = false;
};

/// The text of a cell in the present language, with the present signs of numbers. Cells of pictures and marks have
/// none.
std::wstring CellText(CRecordingList::Column column, ListedRecording const & recording);
/// The same of a recording that has been read, for the columns of its values.
std::wstring ValueText(CRecordingList::Column column, RecordingAnalysis const & analysis);

/// Recordings of the list as they were when this was made. Their table can be made on any thread.
class RecordingTable
{
public:
    RecordingTable(std::vector<CRecordingList::Column> columns, TextTable table,
                   std::vector<ListedRecording> recordings);

    std::size_t Rows() const { return m_recordings.size(); }
    /// Makes the next row of the table.
    void MakeRow();
    /// As far as it is made.
    TextTable const & Table() const { return m_table; }

private:
    std::vector<CRecordingList::Column> m_columns;
    TextTable m_table; ///< its columns are those
    std::vector<ListedRecording> m_recordings;
};

} // namespace workbench
