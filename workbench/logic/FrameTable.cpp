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
    std::size_t const first = text.find_first_not_of(L" \t");
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
        bool const isMinus = character == L'\u2212';
        plain += character == decimalSign ? '.' : isMinus ? '-' : character < 0x80 ? static_cast<char>(character) : '?';
    }
    double number = 0.0;
    auto const [end, error] = std::from_chars(plain.data(), plain.data() + plain.size(), number);
    bool const isAll = error == std::errc() && end == plain.data() + plain.size() && std::isfinite(number);
    return isAll ? std::optional(number) : std::nullopt;
}

/// The number, or what stands in its place noted in the filter.
double NumberIn(std::wstring_view text, wchar_t decimalSign, FrameFilter & filter)
{
    std::optional<double> const number = NumberOf(text, decimalSign);
    if (!number && !filter.noNumber)
    {
        filter.noNumber = Trimmed(text);
    }
    return number.value_or(0.0);
}

/// "> 3" and the like.
TableFilter::RangePart ComparisonOf(std::wstring_view text, wchar_t decimalSign, FrameFilter & filter)
{
    bool const isGreater = text.front() == L'>';
    bool const isEqual = text.size() > 1 && text[1] == L'=';
    double const number = NumberIn(text.substr(isEqual ? 2 : 1), decimalSign, filter);
    TableFilter::RangePart range;
    (isGreater ? range.least : range.greatest) =
        isEqual ? number : std::nextafter(number, isGreater ? range.greatest : range.least);
    return range;
}

/// "-20..-10", its ends in either order.
TableFilter::RangePart RangeOf(std::wstring_view text, std::size_t dots, wchar_t decimalSign, FrameFilter & filter)
{
    double const from = NumberIn(text.substr(0, dots), decimalSign, filter);
    double const to = NumberIn(text.substr(dots + 2), decimalSign, filter);
    TableFilter::RangePart range;
    range.least = std::min(from, to);
    range.greatest = std::max(from, to);
    return range;
}

// No more is known of a value than these parts of its unit, and no more goes into exports and copies.
constexpr double level_parts = 1e3;
constexpr double frequency_parts = 1e2;
constexpr double time_parts = 1e6;

void SetRounded(TableValue & value, double number, double parts)
{
    value.SetNumber(std::isfinite(number) ? std::round(number * parts) / parts : number);
}

void SetUnlessUnknown(TableValue & value, float number, double parts)
{
    if (std::isnan(number))
    {
        value.SetBlank();
    }
    else
    {
        SetRounded(value, static_cast<double>(number), parts);
    }
}

} // namespace

bool FrameTable::Read(TableRow row, unsigned int column, TableValue & value) const
{
    if (row >= m_rows->Size())
    {
        return false;
    }
    FrameMeasures const measures = m_rows->At(row);
    switch (column)
    {
    case column_time:
        SetRounded(value, m_rows->Raster().TimeOf(row), time_parts);
        return true;
    case column_peak:
        SetRounded(value, AmplitudeToDecibels(static_cast<double>(measures.peak)), level_parts);
        return true;
    case column_rms:
        SetRounded(value, AmplitudeToDecibels(static_cast<double>(measures.rms)), level_parts);
        return true;
    case column_crest:
        SetUnlessUnknown(value,
                         measures.rms > 0.0F
                             ? static_cast<float>(AmplitudeToDecibels(static_cast<double>(measures.peak) /
                                                                      static_cast<double>(measures.rms)))
                             : FrameMeasures::unknown,
                         level_parts);
        return true;
    case column_frequency:
        SetUnlessUnknown(value, measures.frequency, frequency_parts);
        return true;
    case column_centroid:
        SetUnlessUnknown(value, measures.centroid, frequency_parts);
        return true;
    default:
        return false;
    }
}

FrameFilter ParseFrameFilter(std::wstring_view text, unsigned int column, wchar_t decimalSign)
{
    FrameFilter filter;
    std::wstring_view const wanted = Trimmed(text);
    if (wanted.empty())
    {
        return filter;
    }
    bool const isComparison = wanted.front() == L'<' || wanted.front() == L'>';
    std::size_t const dots = wanted.find(L"..");
    if (!isComparison && dots == std::wstring_view::npos)
    {
        TableFilter::TextPart part;
        part.column = column;
        part.text = wanted;
        filter.rows.texts.push_back(part);
        return filter;
    }
    TableFilter::RangePart range =
        isComparison ? ComparisonOf(wanted, decimalSign, filter) : RangeOf(wanted, dots, decimalSign, filter);
    if (!filter.noNumber)
    {
        range.column = column;
        filter.rows.ranges.push_back(range);
    }
    return filter;
}

} // namespace workbench
