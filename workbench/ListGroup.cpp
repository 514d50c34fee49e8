#include "ListGroup.h"

#include "RecordingColumns.h"
#include "frame/RegisteredMessages.h"
#include "resource.h"

BEGIN_MESSAGE_MAP(CListGroup, CSettingsGroup)
    ON_REGISTERED_MESSAGE(WM_XEDITBROWSE_COMPLETED, &CListGroup::OnChosen)
END_MESSAGE_MAP()

CListGroup::CListGroup() : CSettingsGroup(IDD_SETTINGS_LIST) {}

void CListGroup::DoDataExchange(CDataExchange * exchange)
{
    CSettingsGroup::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_COLUMNS, m_columns);
}

BOOL CListGroup::OnInitDialog()
{
    CSettingsGroup::OnInitDialog();
    m_columns.SetTheMap(workbench::ColumnNames());
    m_columns.PrepareIdNameBrowser();
    m_columns.SetNotifyTag(IDC_COLUMNS);
    Follow(IDC_COLUMNS, CEdges::TOP_LEFT_RIGHT());
    return TRUE;
}

void CListGroup::Show(workbench::Settings const & settings)
{
    m_columns.SetSelection(workbench::ShownColumns(settings.hiddenColumns));
    m_columns.UpdateSelectionText();
    m_chosen = false;
}

bool CListGroup::Take(workbench::Settings & settings)
{
    if (m_chosen)
    {
        settings.hiddenColumns = workbench::HiddenColumns(m_columns.TheSelection());
    }
    return true;
}

LRESULT CListGroup::OnChosen(WPARAM, LPARAM)
{
    m_columns.SelectionAcknowledged();
    m_chosen = true;
    Changed();
    return 0;
}
