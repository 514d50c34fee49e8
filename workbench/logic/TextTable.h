#pragma once
// A table of texts as it goes to other programs.

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace workbench
{

/// Titles, and rows with a text for each title.
struct TextTable
{
    struct Column
    {
        std::wstring title;
        bool alignedRight = false;
        bool isNumber = false; ///< its texts are numbers with the present signs
    };
    std::vector<Column> columns;
    std::vector<std::vector<std::wstring>> rows;
};

/// The table as lines that end with carriage return and line feed, tabs between the texts. Tabs and line breaks within
/// a text become blanks.
std::wstring PlainTable(TextTable const & table);

/// The table as comma-separated values by RFC 4180: texts with commas, quotation marks or line ends stand in quotation
/// marks. It is for programs of any region: numbers have a point and no groups.
std::wstring CsvTable(TextTable const & table);

/// Where a table in HTML goes.
enum class HtmlUse
{
    elsewhere, ///< into other programs' pages: with a frame of its own
    own_page   ///< into a page whose styles say how tables look, numbers by the class "number"
};

/// The table as an HTML fragment in plain ASCII: other characters are numeric references. Line breaks within a text are
/// kept; control characters and halves of surrogate pairs are left out.
std::wstring HtmlTable(TextTable const & table, HtmlUse use = HtmlUse::elsewhere);

/// A text as HTML in the same way, and as the value of an attribute with its quotation marks, in one line.
std::wstring HtmlText(std::wstring_view text);
std::wstring HtmlValue(std::wstring_view text);

/// What a file with the table contains: a web page where its name ends in .html or .htm, comma-separated values where
/// it ends in .csv, else lines with tabs; the latter in UTF-8 with its mark. Halves of surrogate pairs come out as
/// question marks.
std::string TableFile(TextTable const & table, std::filesystem::path const & file);

} // namespace workbench
