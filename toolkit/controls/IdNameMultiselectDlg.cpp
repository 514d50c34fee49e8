#include "controls/IdNameMultiselectDlg.h"

#include "controls/MultiselectMessages.h"
#include "frame/RegisteredMessages.h"
#include "frame/ToolkitResources.h"
#include "layout/Resolution.h"
#include "resource_ids.h"

namespace
{
// Pixels at 96 dots an inch.
constexpr int least_width = 100;
constexpr int least_height = 70;
} // namespace

IMPLEMENT_DYNAMIC(CIdNameMultiselectDlg, CDialogEx)

BEGIN_MESSAGE_MAP(CIdNameMultiselectDlg, CDialogEx)
    ON_REGISTERED_MESSAGE(WM_IDNAME_MULTISELECT_EVENT, &CIdNameMultiselectDlg::OnIdNameMultiselectEvent)
    ON_WM_SIZE()
END_MESSAGE_MAP()

CIdNameMultiselectDlg::CIdNameMultiselectDlg(CWnd * parent)
    : CDialogEx(TOOLKIT_DIALOG_MULTISELECT, parent),
      m_placement(0, 0, 0, 0)
{
    m_control.EnableOkCancel();
}

INT_PTR CIdNameMultiselectDlg::DoModal()
{
    CToolkitResourceExchange const exchange;
    return CDialogEx::DoModal();
}

void CIdNameMultiselectDlg::DoDataExchange(CDataExchange * exchange)
{
    CDialogEx::DoDataExchange(exchange);
    DDX_Control(exchange, TOOLKIT_CONTROL_MULTISELECT, m_control);
}

BOOL CIdNameMultiselectDlg::OnInitDialog()
{
    CDialogEx::OnInitDialog();
    if (!m_placement.IsRectEmpty())
        MoveWindow(&m_placement);
    return TRUE;
}

void CIdNameMultiselectDlg::OnSize(UINT type, int cx, int cy)
{
    CDialogEx::OnSize(type, cx, cy);
    CRect client;
    GetClientRect(&client);
    UINT const dpi = m_control.GetDpi();
    if (client.Width() >= resolution::Scaled(least_width, dpi) &&
        client.Height() >= resolution::Scaled(least_height, dpi) && m_control.m_hWnd != nullptr)
        m_control.MoveWindow(&client);
}

LRESULT CIdNameMultiselectDlg::OnIdNameMultiselectEvent(WPARAM wParam, LPARAM)
{
    if (wParam == multiselect_ok)
        OnOK();
    else if (wParam == multiselect_cancelled)
        OnCancel();
    return 0;
}

void CIdNameMultiselectDlg::OnOK()
{
    if (!m_control.SelectionRetrieved())
        m_control.RetrieveSelection();
    CDialogEx::OnOK();
}
