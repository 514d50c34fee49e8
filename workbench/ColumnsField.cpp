#include "ColumnsField.h"

#include <utility>

#include "logic/Texts.h"
#include "RecordingColumns.h"

CColumnsField::CColumnsField()
{
    m_dialog.m_control.ShowGroupedSelection(false);
}

void CColumnsField::ShowColumns(std::vector<int> const & order, std::set<int> const & hidden)
{
    m_columns = workbench::HideableColumns(order);
    SetTheMap(workbench::ColumnNames(m_columns));
    SetSelection(workbench::ShownColumns(m_columns, hidden));
    UpdateSelectionText();
}

void CColumnsField::Arrange(std::vector<int> const & order)
{
    if (m_isOpen)
    {
        m_newOrder = order; // the places that are ticked are those of the former one
        return;
    }
    std::set<int> const hidden = HiddenColumns();
    ShowColumns(order, hidden);
}

std::set<int> CColumnsField::HiddenColumns() const
{
    return workbench::HiddenColumns(m_columns, TheSelection());
}

void CColumnsField::OnBrowse()
{
    if (m_isOpen)
    {
        return;
    }
    LifeWatch const life(m_fieldLife);
    m_isOpen = true;
    CXEditBrowseCtrl::OnBrowse();
    if (life.Over())
    {
        return;
    }
    m_isOpen = false;
    if (std::optional<std::vector<int>> const order = std::exchange(m_newOrder, std::nullopt))
    {
        Arrange(*order);
    }
}

LRESULT CColumnsField::WindowProc(UINT message, WPARAM wide, LPARAM parameter)
{
    // The field itself keeps the word for all in the language of its first use.
    if (message == WM_SETTEXT && TheSelection().contains(workbench::every_column))
    {
        parameter = reinterpret_cast<LPARAM>(workbench::Text(L"(all)"));
    }
    return CXEditBrowseCtrl::WindowProc(message, wide, parameter);
}
