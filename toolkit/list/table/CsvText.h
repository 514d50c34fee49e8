#pragma once
// Texts with fields separated by commas, as RFC 4180 has them.

#include <string>
#include <string_view>
#include <vector>

using CsvRecord = std::vector<std::wstring>;

struct CsvReading
{
    std::vector<CsvRecord> records;
    /// False if the text ends within quotes; what was within them is there nevertheless.
    bool complete = true;
};

/// Reads any text. Lines may end in any way, the last one also without an end; an empty line is a record of one empty
/// field. Quotes that do not begin a field, and what follows those that end one, are taken as they are. A byte order
/// mark ahead of all is passed over.
CsvReading ReadCsv(std::wstring_view text, wchar_t separator);

/// The separator that the first record has most of outside quotes: tab, semicolon or comma. The comma where there is
/// none of them.
wchar_t GuessSeparator(std::wstring_view text);

/// Appends a field in quotes if it needs them. alone: it is the only one of its record, which would look like no record
/// at all if it is empty.
void AppendCsvField(std::wstring & text, std::wstring_view field, wchar_t separator, bool alone = false);
