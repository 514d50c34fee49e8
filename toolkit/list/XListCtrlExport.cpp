// CXListCtrl: cells as text on the clipboard.

#include "list/XListCtrl.h"

#include <locale.h>
#include <wchar.h>

#include <algorithm>
#include <iterator>

#include "clipboard/Clipboard.h"
#include "frame/CoreLibrary.h"
#include "list/XListCtrlHold.h"
#include "list/XListExport.h"

namespace
{
/// The decimal sign of the system's code page settings.
std::wstring SystemDecimalSign()
{
    struct NumericLocale
    {
        NumericLocale() : handle(_create_locale(LC_NUMERIC, ".ACP")) {}
        NumericLocale(NumericLocale const &) = delete;
        NumericLocale & operator=(NumericLocale const &) = delete;
        ~NumericLocale()
        {
            if (handle != nullptr)
                _free_locale(handle);
        }
        _locale_t handle;
    } const locale;
    wchar_t half[16] = L"";
    if (locale.handle == nullptr || _snwprintf_l(half, std::size(half) - 1, L"%.1f", locale.handle, 0.5) < 3)
        return L".";
    // What stands between the two digits.
    std::wstring_view const text(half);
    return std::wstring(text.substr(1, text.size() - 2));
}

/// A last row or column: the last there is for one that doesn't exist, and none ahead of the first.
int LastOf(int last, int first, int count)
{
    return std::max(last < 0 || last >= count ? count - 1 : last, first);
}
} // namespace

std::wstring CXListCtrl::HeaderTitle(int col) const
{
    wchar_t title[exported_text_limit + 1] = L"";
    HDITEMW item{};
    item.mask = HDI_TEXT;
    item.pszText = title;
    item.cchTextMax = static_cast<int>(std::size(title));
    return m_header.GetItem(col, &item) && item.pszText != nullptr ? item.pszText : L"";
}

bool CXListCtrl::ExportToClipboard(bool withHeader, int firstRow, int lastRow, int firstCol, int lastCol)
{
    int const rows = RowCount();
    if (firstRow >= rows || firstCol >= m_columnCount)
        return false;
    firstRow = std::max(firstRow, 0);
    firstCol = std::max(firstCol, 0);
    lastRow = LastOf(lastRow, firstRow, rows);
    lastCol = LastOf(lastCol, firstCol, m_columnCount);

    CListTextBlock block;
    if (withHeader && ::IsWindow(m_header.m_hWnd))
    {
        for (int col = firstCol; col <= lastCol; ++col)
            block.AddField(HeaderTitle(col));
        block.EndLine();
    }
    std::wstring const decimalSign = SystemDecimalSign();
    auto const dateText = [](CTime const & time) {
        return std::wstring(UserDateTimeText(time, dtf_date_time).GetString());
    };
    Watch const watch(*this);
    for (int row = firstRow; row <= lastRow; ++row)
    {
        if (GetRowData(row) == nullptr)
            continue;
        for (int col = firstCol; col <= lastCol; ++col)
        {
            auto const shownText = [this, row, col] {
                return std::wstring(ReadCellText(row, col, exported_text_limit).View());
            };
            // A column younger than the row has its text alone.
            XLISTCTRLDATA const * const cell = ValidCell(row, col);
            std::shared_ptr<CXListCellKind> const kind = GetCellKind(row, col);
            if (std::optional<CString> const own = kind != nullptr ? kind->ExportText(*cell) : std::nullopt)
                block.AddField(std::wstring_view(own->GetString(), static_cast<std::size_t>(own->GetLength())));
            else
                block.AddField(cell != nullptr ? ExportedCell(*cell, decimalSign, dateText, shownText) : shownText());
            // The parent may have been asked for the text.
            if (!watch.IsAlive())
                return false;
        }
        block.EndLine();
    }
    return Clipboard::StringToClipboard(CString(block.Text().c_str(), static_cast<int>(block.Text().size())));
}
