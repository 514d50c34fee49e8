#pragma once

#include <vector>

#include "ColumnsField.h"
#include "controls/ComboBoxX.h"
#include "SettingsGroup.h"

/// The columns of the list and their order, how large it is, how keys act in it, and the colours of all lists and
/// controls.
class CListGroup : public CSettingsGroup
{
public:
    CListGroup();

    void Show(workbench::Settings const & settings) override;
    /// The columns stay as they are where the user has chosen none: they can be chosen at the list, too.
    bool Take(workbench::Settings & settings) override;

    /// The user has given the columns another order at the list. One that is being chosen here stays.
    void FollowColumns(std::vector<int> const & order);

    void ShowTexts() override;
    BOOL OnInitDialog() override;
    BOOL OnApply() override;
    BOOL PreTranslateMessage(MSG * message) override;

protected:
    void DoDataExchange(CDataExchange * exchange) override;
    DECLARE_MESSAGE_MAP()

private:
    afx_msg LRESULT OnChosen(WPARAM tag, LPARAM);
    afx_msg void OnChange();
    afx_msg void OnUp();
    afx_msg void OnDown();
    afx_msg void OnOrderChosen();

    void FillBoxes();
    void FillOrder(std::vector<int> const & columns);
    /// The columns in the order that the user sees.
    std::vector<int> Order() const;
    void MoveColumn(int places);
    void EnableButtons();

    CColumnsField m_columns;
    CComboBox m_contrast;
    CComboBoxX m_scale;
    CListBox m_order;
    bool m_chosen = false;
    bool m_moved = false;
};
