#include "DetailsDialog.h"

#include "logic/Texts.h"
#include "resource.h"

using workbench::Text;

namespace
{

// In dialog units.
constexpr int label_room = 76;
CSize const preferred_size(300, 192);

bool IsKeyDown(int key)
{
    return ::GetKeyState(key) < 0;
}

} // namespace

BEGIN_MESSAGE_MAP(CDetailsDialog, CWorkbenchDialog)
    ON_WM_CONTEXTMENU()
END_MESSAGE_MAP()

CDetailsDialog::CDetailsDialog(CWnd & owner) : CWorkbenchDialog(IDD_DETAILS, L"Recording Details", owner) {}

void CDetailsDialog::Refresh(std::vector<workbench::DetailLine> lines)
{
    if (lines.empty())
    {
        return;
    }
    m_lines = std::move(lines);
    if (IsOpen())
    {
        Fill();
    }
}

bool CDetailsDialog::Show(std::vector<workbench::DetailLine> lines)
{
    Refresh(std::move(lines));
    return Open(Text(L"Recording Details"));
}

void CDetailsDialog::ShowTexts()
{
    ShowTemplateTexts(Text(L"Recording Details"));
}

BOOL CDetailsDialog::OnInitDialog()
{
    CWorkbenchDialog::OnInitDialog();
    Fill();
    D3dLayoutChild(IDC_DETAIL_TEXT, CEdges::TOP_LEFT_BOTTOM_RIGHT(), nullptr);
    D3dLayoutChild(IDCANCEL, CEdges::BOTTOM_RIGHT(), nullptr);
    D3dLayoutComplete(CDialogResizer::RESIZE_BOTH);
    Enlarge(preferred_size);
    // The focus on the text would select it.
    GetDlgItem(IDCANCEL)->SetFocus();
    return FALSE;
}

void CDetailsDialog::Fill()
{
    std::wstring text;
    for (workbench::DetailLine const & line : m_lines)
    {
        text += line.label + L":\t" + line.text + L"\r\n";
    }
    auto & field = static_cast<CEdit &>(*GetDlgItem(IDC_DETAIL_TEXT));
    field.SetTabStops(label_room);
    field.SetWindowText(text.c_str());
}

BOOL CDetailsDialog::PreTranslateMessage(MSG * message)
{
    if (message->message == WM_KEYDOWN && IsKeyDown(VK_CONTROL) && m_actions)
    {
        Actions const actions = m_actions();
        auto const & action = message->wParam == VK_PRIOR  ? actions.previous
                              : message->wParam == VK_NEXT ? actions.next
                                                           : nullptr;
        if (action)
        {
            action();
            return TRUE;
        }
    }
    return CWorkbenchDialog::PreTranslateMessage(message);
}

void CDetailsDialog::OnContextMenu(CWnd *, CPoint point)
{
    if (point == CPoint(-1, -1)) // by the keyboard
    {
        CRect place;
        GetFocus()->GetWindowRect(&place);
        point = CPoint(place.left, place.bottom);
    }
    auto const actions = m_actions ? m_actions() : Actions();
    CPopupConfig popup;
    popup.Add(Text(L"&Previous recording\tCtrl+Page Up"), actions.previous);
    popup.Add(Text(L"&Next recording\tCtrl+Page Down"), actions.next);
    popup.AddSeparator();
    popup.Add(Text(L"Show in the &list"), actions.showInList);
    popup.Add(Text(L"Set as &reference"), actions.setReference);
    ActivatePopup(popup, point.x, point.y);
}
