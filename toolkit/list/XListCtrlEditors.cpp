// CXListCtrl: the edit field and the combo box that lie over a cell while it is being changed.

#include "list/XListCtrl.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "colours/ControlColors.h"
#include "frame/RegisteredMessages.h"
#include "list/XCombo.h"
#include "list/XEdit.h"
#include "list/XListCtrlCursor.h"
#include "list/XListCtrlHold.h"
#include "list/XListCtrlResolution.h"

namespace
{
constexpr UINT_PTR unlock_update_timer = 1;
constexpr UINT_PTR cancel_combo_timer = 2;
constexpr UINT_PTR complete_combo_timer = 3;
constexpr UINT_PTR show_combo_text_timer = 4;
/// Milliseconds: enough to leave the stack of the combo that asked for the end.
constexpr UINT combo_delay = 50;
/// Milliseconds until the list is painted again after a combo was opened over it.
constexpr UINT unlock_delay = 50;

// Pixels at 96 dots an inch.
constexpr int least_edit_column = 5;
constexpr int edit_left = 2;
constexpr int edit_right = 4;
constexpr UINT edit_id = 99;
constexpr DWORD edit_style = WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL;

constexpr int least_combo_width = 20;
constexpr wchar_t const * combo_class = L"SuperComboBox";
constexpr DWORD combo_style = WS_POPUP | WS_VISIBLE | CBS_DROPDOWNLIST;

/// The alignment of an edit over a column of that format.
DWORD EditAlignment(int format)
{
    switch (format & LVCFMT_JUSTIFYMASK)
    {
    case LVCFMT_LEFT:
        return ES_LEFT;
    case LVCFMT_RIGHT:
        return ES_RIGHT;
    default:
        return ES_CENTER;
    }
}

/// Ends an editor's window with its object.
struct EndsEditor
{
    void operator()(XListCtrl::CXEdit * edit) const { edit->End(); }
    void operator()(XListCtrl::CXCombo * combo) const
    {
        if (::IsWindow(combo->m_hWnd))
            combo->DestroyWindow();
        delete combo;
    }
};
using EditOwner = std::unique_ptr<XListCtrl::CXEdit, EndsEditor>;
using ComboOwner = std::unique_ptr<XListCtrl::CXCombo, EndsEditor>;
} // namespace

// --- Edit ---

void CXListCtrl::DrawEditControl(int row, int col)
{
    // The host hears of the scrolling, of the text asked for and of the focus.
    HeldRow held(*this, row);
    XLISTCTRLDATA const * const cell = held.Cell(col);
    if (cell == nullptr || (cell->properties & XLP_ENABLED) == 0 ||
        GetColumnWidth(col) < m_resolution->Scaled(least_edit_column))
        return;
    if (!EnsureVisible(row, TRUE) || held.Row() != row)
        return;

    int edge = 0;
    for (int i = 0; i < col; ++i)
        edge += GetColumnWidth(i);
    CRect area;
    GetItemRect(row, &area, LVIR_BOUNDS);
    CRect client;
    GetClientRect(&client);
    int const beyond = edge + area.left;
    if (beyond < 0 || beyond > client.right)
    {
        Scroll(CSize(beyond, 0));
        area.left -= beyond;
    }
    if (!held.IsListAlive() || held.Row() != row || held.Cell(col) == nullptr)
        return;
    LVCOLUMNW column{};
    column.mask = LVCF_FMT;
    GetColumn(col, &column);
    area.bottom += 1;
    area.left += edge + m_resolution->Scaled(edit_left);
    area.right = std::min(area.left + GetColumnWidth(col) - m_resolution->Scaled(edit_right), client.right);

    CString const text(ReadCellText(row, col).Characters());
    if (!held.IsListAlive())
        return;
    EndEdit();
    if (held.Row() != row || held.Cell(col) == nullptr)
        return;
    m_editors->savedText = text;
    // Not the list's before it is complete: the host may end the list meanwhile.
    EditOwner edit(new XListCtrl::CXEdit(this, text));
    edit->SetDpi(m_resolution->Dpi());
    bool const created = edit->Create(edit_style | EditAlignment(column.fmt), area, this, edit_id) != FALSE;
    if (!held.IsListAlive())
        return;
    EndEdit();
    // One that is closing has lost the focus already, when nobody could take its text.
    if (!held.IsListAlive() || !created || !::IsWindow(edit->m_hWnd) || edit->IsClosing())
        return;
    if (m_cursor->IsOn())
        edit->GiveTabsToList();
    m_editors->edit = edit.release();
    m_editors->editRow = row;
    m_editors->editCol = col;
    m_editors->savedText = text;
    if (::GetFocus() != m_editors->edit->m_hWnd)
        m_editors->edit->SetFocus();
}

void CXListCtrl::EndEdit()
{
    if (XListCtrl::CXEdit * const edit = std::exchange(m_editors->edit, nullptr))
        edit->End();
}

LRESULT CXListCtrl::OnXEditKillFocus(WPARAM, LPARAM)
{
    if (m_editors->edit == nullptr || !::IsWindow(m_editors->edit->m_hWnd))
        return 0;
    // The host hears of each step; what belongs to this edit is kept apart from an edit that it may open meanwhile.
    Watch const watch(*this);
    int const row = m_editors->editRow;
    int const col = m_editors->editCol;
    CString const before = m_editors->savedText;
    CString text;
    m_editors->edit->GetWindowText(text);
    if (!watch.IsAlive())
        return 0;
    EndEdit();
    if (!watch.IsAlive())
        return 0;
    SetItemText(row, col, text);
    if (!watch.IsAlive() || text == before)
        return 0;
    // The cell that stands there now, whichever row that is.
    if (XLISTCTRLDATA * const cell = ValidCell(row, col))
        TakeUserChange(*cell, row, col, WM_XLISTCTRL_EDIT_END);
    return 0;
}

LRESULT CXListCtrl::OnXEditEscape(WPARAM, LPARAM)
{
    Watch const watch(*this);
    int const row = m_editors->editRow;
    int const col = m_editors->editCol;
    CString const before = m_editors->savedText;
    EndEdit();
    if (!watch.IsAlive())
        return 0;
    // The cell that was edited last gets its former text back even if its edit is gone, as hosts expect.
    CListCtrl::SetItemText(row, col, before);
    if (watch.IsAlive())
        UpdateSubItem(row, col);
    return 0;
}

// --- Combo ---

void CXListCtrl::DrawComboBoxControl(int row, int col)
{
    HeldRow held(*this, row);
    XLISTCTRLDATA const * cell = held.Cell(col);
    if (!IsValidItem(row, col) || cell == nullptr || (cell->properties & XLP_ENABLED) == 0 ||
        (cell->properties & XLP_COMBO) == 0 || cell->comboStrings.empty())
    {
        return;
    }
    CRect place;
    if (!GetSubItemRect(row, col, LVIR_BOUNDS, place))
        return;
    place.top -= 1;
    m_editors->comboRect = place;
    if (place.Width() < m_resolution->Scaled(least_combo_width))
        return;
    EndCombo();
    cell = held.Cell(col);
    if (cell == nullptr || held.Row() != row)
        return;

    ClientToScreen(&place);
    place.left += 1;
    DWORD const style = combo_style | (cell->comboSorted ? CBS_SORT : 0);
    // Not the list's before it is complete: it takes the activation, of which the host hears.
    ComboOwner combo(new XListCtrl::CXCombo(this));
    combo->SetDpi(m_resolution->Dpi());
    bool const created = combo->CreateEx(WS_EX_CONTROLPARENT, combo_class, L"", style, place, this, 0) != FALSE;
    if (!held.IsListAlive())
        return;
    EndCombo();
    if (!held.IsListAlive())
        return;
    cell = held.Cell(col);
    if (cell == nullptr || held.Row() != row || (created && !::IsWindow(combo->m_hWnd)))
        return;
    m_editors->combo = combo.release();
    ++m_editors->comboOpenings;
    if (!created)
        return;
    // Its owner is the list's frame, whose choice of colours may be another one than the list's.
    if (ControlColorSet const set = control_colors::SetOf(m_hWnd);
        set != control_colors::SetOf(m_editors->combo->m_hWnd))
        control_colors::UseFor(m_editors->combo->m_hWnd, set);
    m_editors->comboRow = row;
    m_editors->comboCol = col;
    m_editors->updateLocked = LockWindowUpdate() != FALSE || m_editors->updateLocked;

    CString current;
    for (auto const & [id, text] : cell->comboStrings)
    {
        if (text == nullptr || *text == L'\0')
            continue;
        m_editors->combo->SetItemData(m_editors->combo->AddString(text), id);
        if (id == cell->comboCurrentId)
            current = text;
    }
    m_editors->combo->SetMaxVisible(cell->comboVisibleItems);
    int selected = current.IsEmpty() ? 0 : m_editors->combo->FindStringExact(-1, current);
    if (selected < 0)
        selected = 0;
    m_editors->combo->SetCurSel(selected);
    m_editors->savedText.Empty();
    m_editors->combo->GetLBText(selected, m_editors->savedText);
    if (SetTimer(unlock_update_timer, unlock_delay, nullptr) == 0)
        UnlockUpdate();
    m_editors->combo->Invalidate();
    m_editors->combo->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    if (held.IsListAlive() && m_editors->combo != nullptr)
        m_editors->combo->BringWindowToTop();
}

void CXListCtrl::EndCombo()
{
    ComboOwner const combo(std::exchange(m_editors->combo, nullptr));
    if (combo == nullptr)
        return;
    // Neither what it has told nor the loss of the focus by its end is meant for a combo that opens after it.
    combo->SetClosing();
    if (m_hWnd != nullptr)
    {
        KillTimer(cancel_combo_timer);
        KillTimer(complete_combo_timer);
    }
}

void CXListCtrl::CloseCombo()
{
    if (m_editors->combo == nullptr)
        return;
    Watch const watch(*this);
    UpdateSubItem(m_editors->comboRow, m_editors->comboCol);
    HWND const focus = ::GetFocus();
    bool const focused =
        focus != nullptr && (focus == m_editors->combo->m_hWnd || ::IsChild(m_editors->combo->m_hWnd, focus));
    EndCombo();
    // With the combo's window the focus would leave the list, and the keyboard with it.
    if (focused && watch.IsAlive())
        SetFocus();
}

void CXListCtrl::UnlockUpdate()
{
    m_editors->updateLocked = false;
    ::LockWindowUpdate(nullptr);
}

bool CXListCtrl::GetComboChoice(CString & text, int & id)
{
    int const selected = m_editors->combo->GetCurSel();
    if (selected < 0)
        return false;
    m_editors->combo->GetLBText(selected, text);
    id = static_cast<int>(m_editors->combo->GetItemData(selected));
    return true;
}

void CXListCtrl::TakeComboChoice()
{
    if (m_editors->combo == nullptr)
        return;
    Watch const watch(*this);
    int const row = m_editors->comboRow;
    int const col = m_editors->comboCol;
    unsigned int const opening = m_editors->comboOpenings;
    CString text;
    int id = 0;
    if (ValidCell(row, col) != nullptr && GetComboChoice(text, id))
    {
        CListCtrl::SetItemText(row, col, text);
        if (!watch.IsAlive())
            return;
        // The cell that stands there now: the host has heard of the text.
        XLISTCTRLDATA * const cell = ValidCell(row, col);
        if (cell != nullptr && cell->comboCurrentId != id)
        {
            cell->comboCurrentId = id;
            TakeUserChange(*cell, row, col, WM_XLISTCTRL_COMBO_SELECTION);
        }
        else
            UpdateSubItem(row, col);
    }
    // Another one that the host has opened meanwhile stays.
    if (watch.IsAlive() && m_editors->comboOpenings == opening)
        CloseCombo();
}

void CXListCtrl::ShowComboChoice()
{
    CString text;
    int id = 0;
    if (m_editors->combo == nullptr || ValidCell(m_editors->comboRow, m_editors->comboCol) == nullptr ||
        !GetComboChoice(text, id))
        return;
    Watch const watch(*this);
    int const row = m_editors->comboRow;
    int const col = m_editors->comboCol;
    CListCtrl::SetItemText(row, col, text);
    if (watch.IsAlive())
        UpdateSubItem(row, col);
}

LRESULT CXListCtrl::OnComboEscape(WPARAM, LPARAM)
{
    SetTimer(cancel_combo_timer, combo_delay, nullptr);
    return 0;
}

LRESULT CXListCtrl::OnComboComplete(WPARAM, LPARAM)
{
    SetTimer(complete_combo_timer, combo_delay, nullptr);
    return 0;
}

void CXListCtrl::EndEditors()
{
    if (m_editors->updateLocked)
        UnlockUpdate();
    EndEdit();
    EndCombo();
}

void CXListCtrl::OnTimer(UINT_PTR id)
{
    Watch const watch(*this);
    switch (id)
    {
    case unlock_update_timer:
        KillTimer(id);
        UnlockUpdate();
        break;
    case cancel_combo_timer:
        KillTimer(id);
        CloseCombo();
        break;
    case complete_combo_timer:
        KillTimer(id);
        TakeComboChoice();
        break;
    case show_combo_text_timer:
        KillTimer(id);
        ShowComboChoice();
        break;
    default:
        break;
    }
    if (watch.IsAlive())
        CListCtrl::OnTimer(id);
}
