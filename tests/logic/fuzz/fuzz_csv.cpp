// Reads any text as CSV, writes what was read, and reads that again.

#include <cstdint>
#include <cstdlib>

#include "list/table/CsvText.h"

namespace
{
void Require(bool condition)
{
    if (!condition)
        std::abort();
}

/// Two bytes a character, so that all kinds of them occur; beginning with a zero, one byte each.
std::wstring TextOf(std::uint8_t const * data, std::size_t size)
{
    if (size != 0 && data[0] != 0)
        return std::wstring(data, data + size);
    std::wstring text;
    for (std::size_t at = 1; at + 1 < size; at += 2)
        text.push_back(static_cast<wchar_t>(data[at] | data[at + 1] << 8));
    return text;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    std::wstring const text = TextOf(data, size);
    for (wchar_t const separator : {GuessSeparator(text), L',', L';', L'\t'})
    {
        CsvReading const reading = ReadCsv(text, separator);
        std::size_t characters = 0;
        std::wstring written;
        for (CsvRecord const & record : reading.records)
        {
            Require(!record.empty());
            for (std::size_t field = 0; field < record.size(); ++field)
            {
                characters += record[field].size() + 1;
                if (field != 0)
                    written.push_back(separator);
                AppendCsvField(written, record[field], separator, record.size() == 1);
            }
            written += L"\r\n";
        }
        Require(characters <= text.size() + 1);
        CsvReading const again = ReadCsv(written, separator);
        Require(again.complete && again.records == reading.records);
    }
    return 0;
}
