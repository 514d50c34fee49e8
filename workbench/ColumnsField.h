#pragma once

#include <optional>
#include <set>
#include <vector>

#include "controls/XEditBrowseCtrl.h"
#include "frame/LifeWatch.h"

/// A field that shows which columns of the list are chosen, and lists them in an order. Where all are, it says so in
/// the present language.
class CColumnsField : public CXEditBrowseCtrl
{
public:
    CColumnsField();

    /// Shows the columns but for those that are hidden.
    void ShowColumns(std::vector<int> const & order, std::set<int> const & hidden);
    /// Lists the columns in another order, in the present language. What is chosen stays.
    void Arrange(std::vector<int> const & order);
    /// The columns that are not chosen.
    std::set<int> HiddenColumns() const;

    void OnBrowse() override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wide, LPARAM parameter) override;

private:
    std::vector<int> m_columns;                 ///< by their places
    std::optional<std::vector<int>> m_newOrder; ///< that has come while the columns were being chosen
    bool m_isOpen = false;
    LifeSign m_fieldLife;
};
