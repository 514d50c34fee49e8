#include "logic/TextTable.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "logic/NumberSigns.h"

namespace workbench
{

namespace
{

constexpr char32_t first_lead = 0xD800;
constexpr char32_t first_trail = 0xDC00;
constexpr char32_t end_of_surrogates = 0xE000;
constexpr char32_t end_of_plane = 0x10000;
constexpr char32_t end_of_characters = 0x110000;
constexpr char32_t end_of_printable = 0x7F; // of ASCII

constexpr char utf8_mark[] = "\xEF\xBB\xBF";

constexpr wchar_t row_end[] = L"\r\n";

/// The character that begins at the place, which moves behind it; 0 for one that is none.
char32_t NextCharacter(std::wstring_view text, std::size_t & place)
{
    auto const unit = static_cast<char32_t>(text[place++]);
    if (unit < first_lead || unit >= end_of_surrogates)
    {
        return unit < end_of_characters ? unit : 0;
    }
    if (unit >= first_trail || place == text.size())
    {
        return 0;
    }
    auto const trail = static_cast<char32_t>(text[place]);
    if (trail < first_trail || trail >= end_of_surrogates)
    {
        return 0;
    }
    ++place;
    return end_of_plane + ((unit - first_lead) << 10) + (trail - first_trail);
}

void AppendUtf8(std::string & text, char32_t character)
{
    constexpr char32_t following = 0x80;
    constexpr char32_t bits = 0x3F;
    if (character < 0x80)
    {
        text += static_cast<char>(character);
        return;
    }
    if (character < 0x800)
    {
        text += static_cast<char>(0xC0 | character >> 6);
    }
    else if (character < end_of_plane)
    {
        text += static_cast<char>(0xE0 | character >> 12);
        text += static_cast<char>(following | (character >> 6 & bits));
    }
    else
    {
        text += static_cast<char>(0xF0 | character >> 18);
        text += static_cast<char>(following | (character >> 12 & bits));
        text += static_cast<char>(following | (character >> 6 & bits));
    }
    text += static_cast<char>(following | (character & bits));
}

/// Whether a character stands for itself in HTML.
bool IsPlainHtml(wchar_t character)
{
    return character >= L' ' && character < static_cast<wchar_t>(end_of_printable) && character != L'&' &&
           character != L'<' && character != L'>';
}

void AppendHtml(std::wstring & html, std::wstring_view text)
{
    for (std::size_t place = 0; place < text.size();)
    {
        std::size_t const begin = place;
        while (place < text.size() && IsPlainHtml(text[place]))
        {
            ++place;
        }
        html += text.substr(begin, place - begin);
        if (place == text.size())
        {
            return;
        }
        char32_t const character = NextCharacter(text, place);
        switch (character)
        {
        case U'&':
            html += L"&amp;";
            break;
        case U'<':
            html += L"&lt;";
            break;
        case U'>':
            html += L"&gt;";
            break;
        case U'\n':
            html += L"<br>";
            break;
        case U'\t':
            html += L' ';
            break;
        default:
            if (character > end_of_printable)
            {
                html += L"&#" + std::to_wstring(static_cast<unsigned long>(character)) + L';';
            }
        }
    }
}

void AppendCell(std::wstring & html, std::wstring_view tag, TextTable::Column const & column, std::wstring_view text,
                HtmlUse use)
{
    html += L'<';
    html += tag;
    if (use == HtmlUse::own_page)
    {
        html += column.alignedRight ? L" class=\"number\">" : L">";
    }
    else
    {
        html += column.alignedRight ? L" align=\"right\">" : L" align=\"left\">";
    }
    AppendHtml(html, text);
    html += L"</";
    html += tag;
    html += L'>';
}

void AppendPlain(std::wstring & plain, std::wstring_view text)
{
    for (wchar_t const c : text)
    {
        plain += c == L'\t' || c == L'\r' || c == L'\n' ? L' ' : c;
    }
}

} // namespace

std::wstring PlainTable(TextTable const & table)
{
    std::wstring plain;
    auto const appendLine = [&plain](auto const & cells, auto && textOf) {
        bool first = true;
        for (auto const & cell : cells)
        {
            if (!first)
            {
                plain += L'\t';
            }
            first = false;
            AppendPlain(plain, textOf(cell));
        }
        plain += row_end;
    };
    appendLine(table.columns, [](TextTable::Column const & column) -> std::wstring const & { return column.title; });
    for (std::vector<std::wstring> const & row : table.rows)
    {
        appendLine(row, [](std::wstring const & text) -> std::wstring const & { return text; });
    }
    return plain;
}

std::wstring CsvTable(TextTable const & table)
{
    std::wstring csv;
    auto const append = [&csv](std::wstring_view text, bool isFirst) {
        csv += isFirst ? L"" : L",";
        if (text.find_first_of(L",\"\r\n") == text.npos)
        {
            csv += text;
            return;
        }
        csv += L'"';
        for (wchar_t const character : text)
        {
            csv.append(character == L'"' ? 2 : 1, character);
        }
        csv += L'"';
    };
    for (std::size_t i = 0; i < table.columns.size(); ++i)
    {
        append(table.columns[i].title, i == 0);
    }
    csv += row_end;
    for (std::vector<std::wstring> const & row : table.rows)
    {
        for (std::size_t i = 0; i < table.columns.size(); ++i)
        {
            auto const & text = i < row.size() ? row[i] : std::wstring();
            append(table.columns[i].isNumber ? WithoutSigns(text) : text, i == 0);
        }
        csv += row_end;
    }
    return csv;
}

std::wstring HtmlTable(TextTable const & table, HtmlUse use)
{
    bool const inParts = use == HtmlUse::own_page; // a title that printers repeat on each page
    std::wstring html = inParts ? L"<table>\r\n<thead>\r\n<tr>" : L"<table border=\"1\">\r\n<tr>";
    for (TextTable::Column const & column : table.columns)
    {
        AppendCell(html, L"th", column, column.title, use);
    }
    html += inParts ? L"</tr>\r\n</thead>\r\n<tbody>\r\n" : L"</tr>\r\n";
    for (std::vector<std::wstring> const & row : table.rows)
    {
        html += L"<tr>";
        for (std::size_t i = 0; i < row.size() && i < table.columns.size(); ++i)
        {
            AppendCell(html, L"td", table.columns[i], row[i], use);
        }
        html += L"</tr>\r\n";
    }
    return html + (inParts ? L"</tbody>\r\n</table>" : L"</table>");
}

std::wstring HtmlText(std::wstring_view text)
{
    std::wstring html;
    AppendHtml(html, text);
    return html;
}

std::wstring HtmlValue(std::wstring_view text)
{
    std::wstring inOneLine(text);
    std::ranges::replace(inOneLine, L'\n', L' ');
    std::wstring value = L"\"";
    for (wchar_t const character : HtmlText(inOneLine))
    {
        value += character == L'"' ? std::wstring(L"&quot;") : std::wstring(1, character);
    }
    return value + L'"';
}

std::string TableFile(TextTable const & table, std::filesystem::path const & file)
{
    auto extension = file.extension().wstring();
    for (wchar_t & character : extension)
    {
        character = character >= L'A' && character <= L'Z' ? static_cast<wchar_t>(character | 0x20) : character;
    }
    if (extension == L".html" || extension == L".htm")
    {
        std::string page = "<!DOCTYPE html>\r\n<html><head><meta charset=\"utf-8\"></head><body>\r\n";
        for (wchar_t const character : HtmlTable(table))
        {
            page += static_cast<char>(character); // plain ASCII
        }
        return page + "\r\n</body></html>\r\n";
    }
    std::wstring const wide = extension == L".csv" ? CsvTable(table) : PlainTable(table);
    std::string text = utf8_mark;
    for (std::size_t place = 0; place < wide.size();)
    {
        char32_t const character = NextCharacter(wide, place);
        AppendUtf8(text, character != 0 ? character : U'?');
    }
    return text;
}

} // namespace workbench
