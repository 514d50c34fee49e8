#pragma once
// The text that a block of cells is exported as, without any window.

#include <cstddef>
#include <string>
#include <string_view>

#include "list/CellKind.h"
#include "list/XListCtrlData.h"

/// Characters of a title or of a text shown that are exported; the rest is cut.
constexpr int exported_text_limit = 199;

/// Lines of fields: a tab between two fields, carriage return and line feed behind each line. Fields are taken as they
/// are, with any tab or line break in them.
class CListTextBlock
{
public:
    void AddField(std::wstring_view text);
    void EndLine();
    std::wstring const & Text() const { return m_text; }

private:
    std::wstring m_text;
    bool m_lineBegun = false;
};

/// A whole number in decimal digits.
std::wstring ExportedNumber(int value);
/// A number as printf's "%g" writes it, with that decimal sign: six significant digits, no zeros at the end.
std::wstring ExportedNumber(float value, std::wstring_view decimalSign);
/// The first exported_text_limit characters.
std::wstring_view ExportedText(std::wstring_view text);

/// A cell as text, by its value where it has one. dateText(CTime) gives a date as text, shownText() the text that the
/// cell shows; each is asked only where it is needed.
template <class DateText, class ShownText> std::wstring ExportedCell(XLISTCTRLDATA const & cell,
                                                                     std::wstring_view decimalSign,
                                                                     DateText && dateText, ShownText && shownText)
{
    switch (ExportedValue(cell))
    {
    case CellValue::integer:
        return ExportedNumber(cell.intValue);
    case CellValue::real:
        return ExportedNumber(cell.floatValue, decimalSign);
    case CellValue::time:
        return std::wstring(dateText(cell.timeValue));
    case CellValue::text:
    case CellValue::percent:
    case CellValue::own:
    case CellValue::none:
        break;
    }
    return std::wstring(ExportedText(shownText()));
}
