#pragma once

#include <map>

#include "ColumnsField.h"
#include "SettingsGroup.h"

/// The columns of the list.
class CListGroup : public CSettingsGroup
{
public:
    CListGroup();

    void Show(workbench::Settings const & settings) override;
    /// The columns stay as they are where the user has chosen none: they can be chosen at the list, too.
    bool Take(workbench::Settings & settings) override;

    BOOL OnInitDialog() override;

protected:
    void DoDataExchange(CDataExchange * exchange) override;
    DECLARE_MESSAGE_MAP()

private:
    afx_msg LRESULT OnChosen(WPARAM tag, LPARAM);

    CColumnsField m_columns;
    bool m_chosen = false;
};
