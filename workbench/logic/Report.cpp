#include "logic/Report.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "logic/TextFormat.h"
#include "logic/Texts.h"
#include "logic/TextTable.h"

namespace workbench
{

namespace
{

// The system's colours follow a choice of light or dark; pictures are made for white paper.
constexpr wchar_t styles[] =
    L":root { color-scheme: light dark; }\r\n"
    L"body { background: Canvas; color: CanvasText; font: 15px/1.4 \"Segoe UI\", Arial, sans-serif;"
    L" margin: 2em auto; max-width: 64em; padding: 0 1em; }\r\n"
    L"h1 { font-size: 1.6em; }\r\n"
    L"h2 { border-top: 1px solid GrayText; font-size: 1.2em; margin-top: 2em; padding-top: 1em;"
    L" overflow-wrap: anywhere; }\r\n"
    L".wide { overflow-x: auto; }\r\n"
    L"table { border-collapse: collapse; }\r\n"
    L"th, td { border: 1px solid GrayText; padding: 0.2em 0.6em; text-align: left; vertical-align: top; }\r\n"
    L".number { text-align: right; white-space: nowrap; font-variant-numeric: tabular-nums; }\r\n"
    L"figure { margin: 1em 0; }\r\n"
    L"img { background: #fff; height: auto; max-width: 100%; }\r\n"
    L"figcaption { font-size: 0.9em; }\r\n"
    L"@media print {\r\n"
    L":root { color-scheme: light; }\r\n"
    L"body { font-size: 10pt; margin: 0; max-width: none; padding: 0; }\r\n"
    L".wide { font-size: 8pt; overflow: visible; }\r\n"
    L"th, td { padding: 0.1em 0.3em; }\r\n"
    L"tr, figure { break-inside: avoid; }\r\n"
    L"h2 { break-after: avoid; }\r\n"
    L"}\r\n";

/// What is plain ASCII as it is.
std::string Ascii(std::wstring_view text)
{
    std::string ascii;
    ascii.reserve(text.size());
    for (wchar_t const character : text)
    {
        ascii += static_cast<char>(character);
    }
    return ascii;
}

std::wstring Element(std::wstring_view tag, std::wstring_view text)
{
    return L'<' + std::wstring(tag) + L'>' + HtmlText(text) + L"</" + std::wstring(tag) + L">\r\n";
}

/// The recordings with their measures, a row each.
TextTable OverviewOf(std::span<ReportedRecording const> recordings)
{
    TextTable table;
    table.columns = {{Text(L"Name"), false},          {Text(L"Duration"), true},        {Text(L"Channels"), true},
                     {Text(L"Rate (Hz)"), true},      {Text(L"Peak (dBFS)"), true},     {Text(L"RMS (dBFS)"), true},
                     {Text(L"Crest (dB)"), true},     {Text(L"Loudness (LUFS)"), true}, {Text(L"Frequency (Hz)"), true},
                     {Text(L"Distortion (%)"), true}, {Text(L"Rating"), false},         {Text(L"Comment"), false},
                     {Text(L"Status"), false}};
    for (ReportedRecording const & recording : recordings)
    {
        std::vector<std::wstring> & row = table.rows.emplace_back(table.columns.size());
        row.front() = recording.file.filename().wstring();
        auto const & analysis = recording.analysis;
        if (analysis && !analysis->problem)
        {
            RecordingInfo const & info = analysis->info;
            row = {row.front(),
                   FormatDuration(info.frames, info.sampleRate),
                   std::to_wstring(info.channels),
                   FormatThousands(info.sampleRate),
                   FormatLevel(analysis->levels.peak),
                   FormatLevel(analysis->levels.rms),
                   FormatCrestFactor(analysis->levels),
                   FormatLoudness(analysis->loudness),
                   FormatFrequency(analysis->tone.frequency),
                   FormatPercent(analysis->tone.distortion)};
            row.resize(table.columns.size());
        }
        auto end = row.end();
        *--end = analysis ? analysis->StatusText() : std::wstring(Text(L"not read yet"));
        *--end = recording.notes.comment;
        *--end = recording.rating;
    }
    return table;
}

/// Lines of a label and a text, as a table.
std::wstring LabelledLines(std::span<DetailLine const> lines)
{
    std::wstring html = L"<table>\r\n<tbody>\r\n";
    for (auto const & [label, text] : lines)
    {
        html += L"<tr><th scope=\"row\">" + HtmlText(label) + L"</th><td>" + HtmlText(text) + L"</td></tr>\r\n";
    }
    return html + L"</tbody>\r\n</table>\r\n";
}

/// The folders of the recordings, each once and on a line of its own.
std::wstring FoldersOf(std::span<ReportedRecording const> recordings)
{
    std::vector<std::filesystem::path> folders;
    std::wstring text;
    for (ReportedRecording const & recording : recordings)
    {
        std::filesystem::path const folder = recording.file.parent_path();
        if (std::ranges::find(folders, folder) != folders.end())
        {
            continue;
        }
        text += (folders.empty() ? L"" : L"\n") + folder.wstring();
        folders.push_back(folder);
    }
    return text;
}

} // namespace

std::string ReportBegin(ReportHead const & head, std::span<ReportedRecording const> recordings)
{
    std::wstring const & title = head.title;
    auto page = "<!DOCTYPE html>\r\n<html lang=" + Ascii(HtmlValue(head.language)) + ">\r\n<head>\r\n";
    page += "<meta charset=\"utf-8\">\r\n"
            "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\r\n";
    page += Ascii(Element(L"title", title));
    page += "<style>\r\n" + Ascii(styles) + "</style>\r\n</head>\r\n<body>\r\n";
    page += Ascii(Element(L"h1", title));
    std::vector<DetailLine> const lines{{Text(L"Date"), head.date},
                                        {Text(L"Folder"), FoldersOf(recordings)},
                                        {Text(L"Recordings"), FormatThousands(recordings.size())}};
    page += Ascii(LabelledLines(lines)) + "<h2>" + Ascii(HtmlText(Text(L"Overview"))) + "</h2>\r\n";
    page += "<div class=\"wide\">\r\n" + Ascii(HtmlTable(OverviewOf(recordings), HtmlUse::own_page)) + "\r\n</div>\r\n";
    return page;
}

std::string ReportSection(ReportedRecording const & recording, std::span<ReportPicture const> pictures)
{
    std::wstring html = L"<section>\r\n" + Element(L"h2", recording.file.filename().wstring());
    std::vector<DetailLine> lines;
    if (recording.analysis)
    {
        lines = DescribeRecording(recording.file, *recording.analysis, recording.date);
    }
    for (auto const & [label, text] :
         {std::pair(L"Rating", &recording.rating), std::pair(L"Comment", &recording.notes.comment)})
    {
        if (!text->empty())
        {
            lines.push_back({Text(label), *text});
        }
    }
    if (!lines.empty())
    {
        html += LabelledLines(lines);
    }
    std::string page = Ascii(html);
    for (ReportPicture const & picture : pictures)
    {
        if (!picture.png.empty())
        {
            page += "<figure>\r\n<img src=\"data:image/png;base64," + Base64(picture.png) +
                    "\" alt=" + Ascii(HtmlValue(picture.description + L": " + recording.file.filename().wstring())) +
                    " width=\"" + std::to_string(picture.width) + "\" height=\"" + std::to_string(picture.height) +
                    "\">\r\n" + Ascii(Element(L"figcaption", picture.description)) + "</figure>\r\n";
        }
    }
    return page + "</section>\r\n";
}

std::string ReportEnd()
{
    return "</body>\r\n</html>\r\n";
}

std::wstring ReportFileName(std::filesystem::path const & folder, int year, int month, int day)
{
    auto const digits = [](int number, std::size_t count) {
        std::wstring const text = std::to_wstring(number);
        return std::wstring(count > text.size() ? count - text.size() : 0, L'0') + text;
    };
    auto const name = folder.filename().wstring();
    return Text(L"Report") + (name.empty() ? L"" : L' ' + name) + L' ' + digits(year, 4) + L'-' + digits(month, 2) +
           L'-' + digits(day, 2);
}

std::string Base64(std::string_view bytes)
{
    constexpr char digits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    constexpr std::uint32_t digit_mask = 63;
    std::string text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    auto const at = [bytes](std::size_t place) {
        return place < bytes.size() ? static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[place])) : 0U;
    };
    for (std::size_t place = 0; place < bytes.size(); place += 3)
    {
        unsigned int const group = at(place) << 16 | at(place + 1) << 8 | at(place + 2);
        text += digits[group >> 18];
        text += digits[group >> 12 & digit_mask];
        text += place + 1 < bytes.size() ? digits[group >> 6 & digit_mask] : '=';
        text += place + 2 < bytes.size() ? digits[group & digit_mask] : '=';
    }
    return text;
}

} // namespace workbench
