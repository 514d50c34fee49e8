// What the cells of the list show, and the kinds that they can be.

#include "list/XListCtrl.h"

#include <algorithm>
#include <cstddef>
#include <cwchar>
#include <utility>

#include "list/CellText.h"
#include "list/XListCtrlHold.h"

namespace
{
constexpr COLORREF default_color = static_cast<COLORREF>(-1);
constexpr wchar_t const * default_float_format = L"%5.2f";

// With the end mark. Each number has a buffer of its own: the host hears of a text and may set another number then.
constexpr std::size_t number_length = 50;

wchar_t const * OrEmpty(wchar_t const * text)
{
    return text != nullptr ? text : L"";
}
} // namespace

// Texts and values

bool CXListCtrl::ShowText(int row, int col, wchar_t const * text)
{
    return CListCtrl::SetItemText(row, col, text) != FALSE;
}

void CXListCtrl::Repaint(HeldRow & held, int col)
{
    if (!m_batchInsert)
        UpdateSubItem(held.Row(), col);
}

bool CXListCtrl::SetItemText(int row, int col, wchar_t const * text)
{
    return m_rows->model.SetText(row, col, text);
}

bool CXListCtrl::SetItemText(int row, int col, wchar_t const * text, COLORREF textColor, COLORREF background)
{
    HeldRow held(*this, row);
    if (held.Cell(col) == nullptr)
        return false;
    bool const shown = text == nullptr || ShowText(row, col, text);
    if (XLISTCTRLDATA * const cell = held.Cell(col))
    {
        cell->textColor = textColor != default_color ? textColor : m_paint->standard.windowText;
        cell->backgroundColor = background != default_color ? background : m_paint->standard.window;
        Repaint(held, col);
    }
    return shown;
}

bool CXListCtrl::SetItemText(int row, int col, int value)
{
    wchar_t text[number_length];
    _snwprintf_s(text, number_length, _TRUNCATE, L"%d", value);
    return m_rows->model.SetInteger(row, col, value, text);
}

bool CXListCtrl::SetItemText(int row, int col, float value, wchar_t const * format)
{
    wchar_t text[number_length];
    _snwprintf_s(text, number_length, _TRUNCATE, format != nullptr ? format : default_float_format,
                 static_cast<double>(value));
    return m_rows->model.SetReal(row, col, value, text);
}

bool CXListCtrl::SetItemFloatVal(int row, int col, float value, wchar_t const * text)
{
    if (text == nullptr || *text == L'\0')
        return SetItemText(row, col, value, nullptr);
    return m_rows->model.SetReal(row, col, value, text);
}

bool CXListCtrl::SetItemDatetime(int row, int col, CTime time)
{
    XLISTCTRLDATA * const cell = ValidCell(row, col);
    if (cell == nullptr)
        return false;
    cell->timeValue = time;
    cell->valueType = XLV_DATETIME;
    return true;
}

int CXListCtrl::SetItem(LVITEMW const * item)
{
    if (item == nullptr || item->iItem < 0)
        return -1;
    if (m_hWnd == nullptr)
        return FALSE;
    LVITEMW native = *item;
    // The native word belongs to the row's object.
    native.mask &= ~static_cast<UINT>(LVIF_PARAM);
    HeldRow held(*this, native.iItem);
    int const image = native.iImage;
    int const col = native.iSubItem;
    if (!CListCtrl::SetItem(&native))
        return FALSE;
    XLISTCTRLDATA * const cell = held.Cell(col);
    if (cell == nullptr)
        return FALSE;
    cell->imageIndex = image;
    Repaint(held, col);
    return TRUE;
}

bool CXListCtrl::SetItemImage(int row, int col, int image)
{
    HeldRow held(*this, row);
    XLISTCTRLDATA * const cell = held.Cell(col);
    if (cell == nullptr)
        return false;
    cell->imageIndex = image;
    if (col == 0)
        CListCtrl::SetItem(row, 0, LVIF_IMAGE, nullptr, image, 0, 0, 0);
    if (held.IsListAlive())
        Repaint(held, col);
    return true;
}

// Kinds

bool CXListCtrl::SetEdit(int row, int col, bool on)
{
    return m_rows->model.SetEdit(row, col, on);
}

bool CXListCtrl::SetHyperlink(int row, int col, bool on, bool setColor)
{
    return m_rows->model.SetHyperlink(row, col, on, setColor);
}

bool CXListCtrl::SetProgress(int row, int col, bool showText, wchar_t const * format)
{
    return m_rows->model.SetProgress(row, col, showText, format, m_paint->standard.selection);
}

void CXListCtrl::UpdateProgress(int row, int col, int value, int displayValue)
{
    m_rows->model.UpdateProgress(row, col, value, displayValue);
}

void CXListCtrl::DeleteProgress(int row, int col)
{
    m_rows->model.DeleteProgress(row, col);
}

bool CXListCtrl::SetCustomDraw(int row, int col, std::function<void(int, int, CDC *, CRect const &)> painter)
{
    return m_rows->model.SetCustomDraw(row, col, std::move(painter));
}

void CXListCtrl::UpdateCustomDraw(int row, int col)
{
    UpdateSubItem(row, col);
}

void CXListCtrl::RemoveCustomDraw(int row, int col)
{
    m_rows->model.RemoveCustomDraw(row, col);
}

bool CXListCtrl::SetCellKind(int row, int col, std::shared_ptr<CXListCellKind> kind)
{
    if (ValidCell(row, col) == nullptr)
        return false;
    Watch const watch(*this);
    m_rows->hadKinds = true;
    RowOf(row)->SetKind(static_cast<unsigned int>(col), std::move(kind));
    if (watch.IsAlive())
        UpdateSubItem(row, col);
    return true;
}

std::shared_ptr<CXListCellKind> CXListCtrl::GetCellKind(int row, int col) const
{
    return m_rows->hadKinds && ValidCell(row, col) != nullptr ? RowOf(row)->Kind(static_cast<unsigned int>(col))
                                                              : nullptr;
}

// Combo cells

bool CXListCtrl::SetComboBox(int row, int col, std::map<int, wchar_t const *> const & strings, int selectedId,
                             int defaultId)
{
    XLISTCTRLDATA * const cell = ValidCell(row, col);
    if (cell == nullptr)
        return false;
    cell->comboStrings = strings;
    return InitializeComboBox(row, col, selectedId, defaultId);
}

bool CXListCtrl::SetComboBox(int row, int col, std::map<int, CString> const * strings, int selectedId, int defaultId)
{
    XLISTCTRLDATA * const cell = ValidCell(row, col);
    if (cell == nullptr)
        return false;
    cell->comboStrings.clear();
    if (strings != nullptr)
    {
        for (auto const & [id, text] : *strings)
            cell->comboStrings.emplace_hint(cell->comboStrings.end(), id, text.GetString());
    }
    return InitializeComboBox(row, col, selectedId, defaultId);
}

bool CXListCtrl::SetComboBoxGlobalStrings(int row, int col, int selectedId, int defaultId)
{
    return SetComboBox(row, col, &m_globalComboStrings, selectedId, defaultId);
}

bool CXListCtrl::InitializeComboBox(int row, int col, int selectedId, int defaultId)
{
    return m_rows->model.InitializeCombo(row, col, selectedId, defaultId);
}

bool CXListCtrl::SetComboStyle(int row, int col, bool sorted, int visibleItems)
{
    XLISTCTRLDATA * const cell = ValidCell(row, col);
    if (cell == nullptr)
        return false;
    cell->comboSorted = sorted;
    cell->comboVisibleItems = visibleItems;
    return true;
}

bool CXListCtrl::SetComboSelection(int row, int col, int id)
{
    return m_rows->model.SelectCombo(row, col, id);
}

bool CXListCtrl::SetComboSelection(int row, int col, CString const & text)
{
    XLISTCTRLDATA * const cell = ValidCell(row, col);
    if (cell == nullptr || (cell->properties & XLP_COMBO) == 0)
        return false;
    auto const entry =
        std::find_if(cell->comboStrings.begin(), cell->comboStrings.end(), [&text](auto const & candidate) {
            return std::wcscmp(OrEmpty(candidate.second), text.GetString()) == 0;
        });
    m_rows->model.SelectComboEntry(row, col, *cell, entry != cell->comboStrings.end() ? &*entry : nullptr);
    return true;
}

int CXListCtrl::GetComboCurSel(int row, int col) const
{
    XLISTCTRLDATA const * const cell = ValidCell(row, col);
    return cell != nullptr ? cell->comboCurrentId : -1;
}

CString CXListCtrl::GetComboText(int row, int col)
{
    return IsValidItem(row, col) ? CString(ReadCellText(row, col).Characters()) : CString();
}

// The shared table

void CXListCtrl::GlobalComboStringsReset()
{
    m_globalComboStrings.clear();
}

void CXListCtrl::GlobalComboStringsInsert(int id, CString const & text)
{
    m_globalComboStrings.emplace(id, text);
}

int CXListCtrl::GlobalComboStringsGetId(CString const & text, int fallback) const
{
    for (auto const & [id, candidate] : m_globalComboStrings)
    {
        if (candidate == text)
            return id;
    }
    return fallback;
}

wchar_t const * CXListCtrl::GlobalComboStringsGetText(int id) const
{
    auto const found = m_globalComboStrings.find(id);
    return found != m_globalComboStrings.end() ? found->second.GetString() : L"";
}
