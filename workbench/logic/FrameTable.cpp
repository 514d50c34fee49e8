#include "logic/FrameTable.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>
#include <string>

#include "logic/LevelMeter.h"

namespace workbench
{

namespace
{

std::wstring_view Trimmed(std::wstring_view text)
{
    auto const first = text.find_first_not_of(L" \t");
    return first == std::wstring_view::npos ? std::wstring_view()
                                            : text.substr(first, text.find_last_not_of(L" \t") + 1 - first);
}

/// The number that all of the text is, with the decimal sign or a point.
std::optional<double> NumberOf(std::wstring_view text, wchar_t decimalSign)
{
    std::string plain;
    for (wchar_t const character : Trimmed(text))
    {
        // The sign that tables show is as good as the keyboard's.
        auto const isMinus = character == L'\u2212';
        plain += character == decimalSign ? '.' : isMinus ? '-' : character < 0x80 ? static_cast<char>(character) : '?';
    }
    double number = 0.0;
    auto const [end, error] = std::from_chars(plain.data(), plain.data() + plain.size(), number);
    auto const isAll = error == std::errc() && end == plain.data() + plain.size() && std::isfinite(number);
    return isAll ? std::optional(number) : std::nullopt;
}

/// "> 3" and the like.
std::optional<TableFilter::RangePart> ComparisonOf(std::wstring_view text, wchar_t decimalSign)
{
    if (text.empty() || (text.front() != L'<' && text.front() != L'>'))
    {
        return std::nullopt;
    }
    auto const isGreater = text.front() == L'>';
    auto const isEqual = text.size() > 1 && text[1] == L'=';
    auto const number = NumberOf(text.substr(isEqual ? 2 : 1), decimalSign);
    if (!number)
    {
        return std::nullopt;
    }
    TableFilter::RangePart range;
    (isGreater ? range.least : range.greatest) =
        isEqual ? *number : std::nextafter(*number, isGreater ? range.greatest : range.least);
    return range;
}

/// "-20..-10", its ends in either order.
std::optional<TableFilter::RangePart> RangeOf(std::wstring_view text, wchar_t decimalSign)
{
    auto const dots = text.find(L"..");
    if (dots == std::wstring_view::npos)
    {
        return std::nullopt;
    }
    auto const from = NumberOf(text.substr(0, dots), decimalSign);
    auto const to = NumberOf(text.substr(dots + 2), decimalSign);
    if (!from || !to)
    {
        return std::nullopt;
    }
    TableFilter::RangePart range;
    range.least = std::min(*from, *to);
    range.greatest = std::max(*from, *to);
    return range;
}

void SetUnlessUnknown(TableValue & value, float number)
{
    if (std::isnan(number))
    {
        value.SetBlank();
    }
    else
    {
        value.SetNumber(static_cast<double>(number));
    }
}

} // namespace

bool FrameTable::Read(TableRow row, unsigned int column, TableValue & value) const
{
    if (row >= m_rows->Size())
    {
        return false;
    }
    auto const measures = m_rows->At(row);
    switch (column)
    {
    case column_time:
        value.SetNumber(m_rows->Raster().TimeOf(row));
        return true;
    case column_peak:
        value.SetNumber(AmplitudeToDecibels(static_cast<double>(measures.peak)));
        return true;
    case column_rms:
        value.SetNumber(AmplitudeToDecibels(static_cast<double>(measures.rms)));
        return true;
    case column_crest:
        SetUnlessUnknown(value, measures.rms > 0.0F
                                    ? static_cast<float>(AmplitudeToDecibels(static_cast<double>(measures.peak) /
                                                                             static_cast<double>(measures.rms)))
                                    : FrameMeasures::unknown);
        return true;
    case column_frequency:
        SetUnlessUnknown(value, measures.frequency);
        return true;
    case column_centroid:
        SetUnlessUnknown(value, measures.centroid);
        return true;
    default:
        return false;
    }
}

TableFilter ParseFrameFilter(std::wstring_view text, unsigned int column, wchar_t decimalSign)
{
    TableFilter filter;
    auto const wanted = Trimmed(text);
    if (wanted.empty())
    {
        return filter;
    }
    auto range = ComparisonOf(wanted, decimalSign);
    if (!range)
    {
        range = RangeOf(wanted, decimalSign);
    }
    if (range)
    {
        range->column = column;
        filter.ranges.push_back(*range);
        return filter;
    }
    TableFilter::TextPart part;
    part.column = column;
    part.text = wanted;
    filter.texts.push_back(part);
    return filter;
}

} // namespace workbench
