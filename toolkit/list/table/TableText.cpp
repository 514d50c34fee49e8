#include "list/table/TableText.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{
constexpr long long second = 1000000;
constexpr long long day = 86400 * second;
constexpr int most_second_digits = 6;
constexpr long long powers_of_ten[] = {1, 10, 100, 1000, 10000, 100000, 1000000};
constexpr wchar_t tick_text[] = L"x";

struct Date
{
    long long year;
    int month;
    int day;
};

// The calendar in years that begin in March, so that the leap day is the last one, and in eras of 400 years.
constexpr long long days_of_era = 146097;
constexpr long long days_before_1970 = 719468;

Date DateOf(long long days)
{
    days += days_before_1970;
    long long const era = (days >= 0 ? days : days - (days_of_era - 1)) / days_of_era;
    long long const ofEra = days - era * days_of_era;
    long long const yearOfEra = (ofEra - ofEra / 1460 + ofEra / 36524 - ofEra / 146096) / 365;
    long long const ofYear = ofEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    long long const month = (5 * ofYear + 2) / 153;
    auto const dayOfMonth = static_cast<int>(ofYear - (153 * month + 2) / 5 + 1);
    auto const civilMonth = static_cast<int>(month < 10 ? month + 3 : month - 9);
    return {yearOfEra + era * 400 + (civilMonth <= 2 ? 1 : 0), civilMonth, dayOfMonth};
}

long long DaysOf(Date const & date)
{
    long long const year = date.month <= 2 ? date.year - 1 : date.year;
    long long const era = (year >= 0 ? year : year - 399) / 400;
    long long const yearOfEra = year - era * 400;
    long long const ofYear = (153 * (date.month > 2 ? date.month - 3 : date.month + 9) + 2) / 5 + date.day - 1;
    long long const ofEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + ofYear;
    return era * days_of_era + ofEra - days_before_1970;
}

int DaysOfMonth(long long year, int month)
{
    constexpr int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    bool const leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    return lengths[month - 1] + (month == 2 && leap ? 1 : 0);
}

void AppendNumber(std::wstring & text, long long value, std::size_t digits)
{
    std::wstring const number = std::to_wstring(value);
    if (number.size() < digits)
        text.append(digits - number.size(), L'0');
    text += number;
}

/// Takes so many digits at least and at most; -1 where there are fewer.
long long TakeNumber(std::wstring_view & text, std::size_t least, std::size_t most)
{
    long long value = 0;
    std::size_t count = 0;
    for (; count < most && count < text.size() && text[count] >= L'0' && text[count] <= L'9'; ++count)
        value = value * 10 + (text[count] - L'0');
    if (count < least)
        return -1;
    text.remove_prefix(count);
    return value;
}

bool Take(std::wstring_view & text, wchar_t character)
{
    if (text.empty() || text.front() != character)
        return false;
    text.remove_prefix(1);
    return true;
}

NumberFormat const & PlainFormat()
{
    static NumberFormat const format;
    return format;
}

NumberFormat const & PercentFormat()
{
    static NumberFormat const format{NumberStyle::fixed, 0, false, UnitPlace::cell, L"%"};
    return format;
}

bool ParseTick(TableValue & value, std::wstring_view text)
{
    for (std::wstring_view const each : {L"x", L"X", L"1"})
    {
        if (text == each)
        {
            value.SetTick(true);
            return true;
        }
    }
    if (text != L"0")
        return false;
    value.SetTick(false);
    return true;
}
} // namespace

std::wstring TitleOf(TableColumn const & column)
{
    if (column.format.unitPlace != UnitPlace::header || column.format.unit.empty())
        return column.title;
    return column.title + L" [" + column.format.unit + L']';
}

std::wstring const & NameOf(TableColumn const & column)
{
    return column.name.empty() ? column.title : column.name;
}

std::size_t ShowValue(std::wstring & text, TableValue const & value, TableColumn const & column,
                      TableLocale const & locale)
{
    switch (value.Kind())
    {
    case TableKind::text:
    case TableKind::link:
        text = value.Text();
        break;
    case TableKind::whole:
        return ShowWhole(text, value.Whole(), column.format, locale.decimalSign);
    case TableKind::floating:
        return ShowNumber(text, value.Number(), column.format, locale.decimalSign, value.Text());
    case TableKind::time:
        text = locale.showTime ? locale.showTime(value.Whole(), column.secondDigits)
                               : PlainTime(value.Whole(), column.secondDigits);
        break;
    case TableKind::tick:
        text = value.Whole() != 0 ? tick_text : L"";
        break;
    case TableKind::progress:
        return ShowNumber(text, value.Number(), PercentFormat(), locale.decimalSign);
    case TableKind::blank:
        text.clear();
        break;
    }
    return text.size();
}

bool ParseValue(TableValue & value, std::wstring_view text, TableColumn const & column, TableLocale const & locale)
{
    if (column.kind == TableKind::text || column.kind == TableKind::link)
    {
        if (column.kind == TableKind::text)
            value.SetText(text);
        else
            value.SetLink(text);
        return true;
    }
    text = Trimmed(text);
    if (text.empty() && column.kind == TableKind::tick)
    {
        value.SetTick(false);
        return true;
    }
    value.SetBlank();
    if (text.empty())
        return true;
    switch (column.kind)
    {
    case TableKind::whole: {
        std::optional<long long> const whole = ParseWhole(text, column.format, locale.decimalSign);
        if (whole)
            value.SetWhole(*whole);
        return whole.has_value();
    }
    case TableKind::floating: {
        std::optional<double> number = ParseNumber(text, column.format, locale.decimalSign);
        if (!number)
            number = ParseNumber(text, PlainFormat(), L'.');
        if (number)
            value.SetNumber(*number);
        return number.has_value();
    }
    case TableKind::progress: {
        std::optional<double> number = ParseNumber(text, PercentFormat(), locale.decimalSign);
        if (!number)
            number = ParseNumber(text, PercentFormat(), L'.');
        if (number)
            value.SetProgress(*number);
        return number.has_value();
    }
    case TableKind::time: {
        std::optional<long long> time = locale.parseTime ? locale.parseTime(text) : std::nullopt;
        if (!time)
            time = ParsePlainTime(text);
        if (time)
            value.SetTime(*time);
        return time.has_value();
    }
    case TableKind::tick:
        return ParseTick(value, text);
    default:
        return false;
    }
}

void PlainValue(std::wstring & text, TableValue const & value)
{
    switch (value.Kind())
    {
    case TableKind::floating:
    case TableKind::progress:
        ShowNumber(text, value.Number(), PlainFormat(), L'.');
        break;
    case TableKind::whole:
    case TableKind::tick:
        ShowWhole(text, value.Whole(), PlainFormat(), L'.');
        break;
    case TableKind::time:
        text = PlainTime(value.Whole(), most_second_digits);
        break;
    case TableKind::text:
    case TableKind::link:
        text = value.Text();
        break;
    case TableKind::blank:
        text.clear();
        break;
    }
}

std::wstring PlainTime(long long microseconds, int secondDigits)
{
    secondDigits = std::clamp(secondDigits, 0, most_second_digits);
    long long days = microseconds / day;
    long long ofDay = microseconds % day;
    if (ofDay < 0)
    {
        ofDay += day;
        --days;
    }
    Date const date = DateOf(days);
    std::wstring text;
    if (date.year < 0)
        text.push_back(L'-');
    AppendNumber(text, std::abs(date.year), 4);
    text.push_back(L'-');
    AppendNumber(text, date.month, 2);
    text.push_back(L'-');
    AppendNumber(text, date.day, 2);
    text.push_back(L' ');
    AppendNumber(text, ofDay / second / 3600, 2);
    text.push_back(L':');
    AppendNumber(text, ofDay / second / 60 % 60, 2);
    text.push_back(L':');
    AppendNumber(text, ofDay / second % 60, 2);
    if (secondDigits > 0)
    {
        text.push_back(L'.');
        AppendNumber(text, ofDay % second / powers_of_ten[most_second_digits - secondDigits],
                     static_cast<std::size_t>(secondDigits));
    }
    return text;
}

std::optional<long long> ParsePlainTime(std::wstring_view text)
{
    text = Trimmed(text);
    bool const negative = Take(text, L'-');
    Date date{};
    date.year = TakeNumber(text, 4, 6);
    if (date.year < 0 || !Take(text, L'-'))
        return std::nullopt;
    if (negative)
        date.year = -date.year;
    date.month = static_cast<int>(TakeNumber(text, 2, 2));
    if (date.month < 1 || date.month > 12 || !Take(text, L'-'))
        return std::nullopt;
    date.day = static_cast<int>(TakeNumber(text, 2, 2));
    if (date.day < 1 || date.day > DaysOfMonth(date.year, date.month))
        return std::nullopt;
    long long ofDay = 0;
    if (!text.empty())
    {
        if (!Take(text, L' ') && !Take(text, L'T'))
            return std::nullopt;
        long long const hour = TakeNumber(text, 2, 2);
        if (hour < 0 || hour > 23 || !Take(text, L':'))
            return std::nullopt;
        long long const minute = TakeNumber(text, 2, 2);
        if (minute < 0 || minute > 59)
            return std::nullopt;
        ofDay = (hour * 60 + minute) * 60 * second;
        if (Take(text, L':'))
        {
            long long const seconds = TakeNumber(text, 2, 2);
            if (seconds < 0 || seconds > 59)
                return std::nullopt;
            ofDay += seconds * second;
            if (Take(text, L'.'))
            {
                std::size_t const before = text.size();
                long long const fraction = TakeNumber(text, 1, most_second_digits);
                if (fraction < 0)
                    return std::nullopt;
                ofDay += fraction * powers_of_ten[most_second_digits - static_cast<int>(before - text.size())];
            }
        }
    }
    if (!text.empty())
        return std::nullopt;
    long long days = DaysOf(date);
    // The first day there is, is no whole one: its time is counted back from the next one.
    if (days < 0)
    {
        ++days;
        ofDay -= day;
    }
    constexpr long long last_day = std::numeric_limits<long long>::max() / day;
    if (days > last_day || days < -last_day)
        return std::nullopt;
    long long const whole = days * day;
    if (ofDay > 0 ? whole > std::numeric_limits<long long>::max() - ofDay
                  : whole < std::numeric_limits<long long>::min() - ofDay)
        return std::nullopt;
    return whole + ofDay;
}
