#include "list/table/CsvText.h"

#include <utility>

namespace
{
constexpr wchar_t byte_order_mark = 0xFEFF;

bool EndsLine(wchar_t character)
{
    return character == L'\n' || character == L'\r';
}
} // namespace

CsvReading ReadCsv(std::wstring_view text, wchar_t separator)
{
    CsvReading reading;
    if (!text.empty() && text.front() == byte_order_mark)
        text.remove_prefix(1);
    std::size_t at = 0;
    while (at < text.size())
    {
        CsvRecord record;
        for (;;)
        {
            std::wstring field;
            if (at < text.size() && text[at] == L'"')
            {
                ++at;
                for (;;)
                {
                    std::size_t const quote = text.find(L'"', at);
                    if (quote == std::wstring_view::npos)
                    {
                        field.append(text.substr(at));
                        at = text.size();
                        reading.complete = false;
                        break;
                    }
                    field.append(text.substr(at, quote - at));
                    at = quote + 1;
                    if (at == text.size() || text[at] != L'"')
                        break;
                    field.push_back(L'"');
                    ++at;
                }
            }
            std::size_t const begin = at;
            while (at < text.size() && text[at] != separator && !EndsLine(text[at]))
                ++at;
            field.append(text.substr(begin, at - begin));
            record.push_back(std::move(field));
            if (at == text.size() || text[at] != separator)
                break;
            ++at;
        }
        if (at < text.size())
            at += text[at] == L'\r' && at + 1 < text.size() && text[at + 1] == L'\n' ? 2 : 1;
        reading.records.push_back(std::move(record));
    }
    return reading;
}

wchar_t GuessSeparator(std::wstring_view text)
{
    constexpr wchar_t separators[] = {L'\t', L';', L','};
    std::size_t counts[3] = {};
    bool quoted = false;
    for (wchar_t const each : text)
    {
        if (each == L'"')
            quoted = !quoted;
        if (quoted)
            continue;
        if (EndsLine(each))
            break;
        for (std::size_t i = 0; i < 3; ++i)
            counts[i] += each == separators[i] ? 1 : 0;
    }
    std::size_t best = 2;
    for (std::size_t i = 2; i-- > 0;)
    {
        if (counts[i] > counts[best] || (counts[i] == counts[best] && counts[i] != 0))
            best = i;
    }
    return separators[best];
}

void AppendCsvField(std::wstring & text, std::wstring_view field, wchar_t separator, bool alone)
{
    bool quoted = alone && field.empty();
    for (wchar_t const each : field)
        quoted = quoted || each == separator || each == L'"' || each == byte_order_mark || EndsLine(each);
    if (!quoted)
    {
        text.append(field);
        return;
    }
    text.push_back(L'"');
    for (wchar_t const each : field)
    {
        if (each == L'"')
            text.push_back(L'"');
        text.push_back(each);
    }
    text.push_back(L'"');
}
