#include "list/XListExport.h"

#include <charconv>

namespace
{
/// Enough for any number below.
constexpr std::size_t number_size = 32;
constexpr int significant_digits = 6;
} // namespace

void CListTextBlock::AddField(std::wstring_view text)
{
    if (m_lineBegun)
        m_text += L'\t';
    m_text += text;
    m_lineBegun = true;
}

void CListTextBlock::EndLine()
{
    m_text += L"\r\n";
    m_lineBegun = false;
}

std::wstring ExportedNumber(int value)
{
    char digits[number_size];
    char * const end = std::to_chars(digits, digits + number_size, value).ptr;
    return std::wstring(digits, end);
}

std::wstring ExportedNumber(float value, std::wstring_view decimalSign)
{
    // Independent of the locale that the host has set for the whole process.
    char digits[number_size];
    char * const end = std::to_chars(digits, digits + number_size, static_cast<double>(value),
                                     std::chars_format::general, significant_digits)
                           .ptr;
    std::wstring text;
    for (char const * c = digits; c != end; ++c)
    {
        if (*c == '.')
            text += decimalSign;
        else
            text += static_cast<wchar_t>(*c);
    }
    return text;
}

std::wstring_view ExportedText(std::wstring_view text)
{
    return text.substr(0, exported_text_limit);
}
