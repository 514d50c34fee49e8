#include "DetailsDialog.h"

#include "logic/Texts.h"
#include "resource.h"

using workbench::Text;

namespace
{

constexpr int most_lines = 11;

bool IsKeyDown(int key)
{
    return ::GetKeyState(key) < 0;
}

} // namespace

BEGIN_MESSAGE_MAP(CDetailsDialog, CWorkbenchDialog)
    ON_WM_CONTEXTMENU()
END_MESSAGE_MAP()

CDetailsDialog::CDetailsDialog(CWnd & owner) : CWorkbenchDialog(IDD_DETAILS, L"Recording Details", owner) {}

bool CDetailsDialog::Show(std::vector<workbench::DetailLine> lines)
{
    m_lines = std::move(lines);
    if (IsOpen())
    {
        Fill();
    }
    return Open(Text(L"Recording Details"));
}

BOOL CDetailsDialog::OnInitDialog()
{
    CWorkbenchDialog::OnInitDialog();
    LOGFONT font{};
    GetFont()->GetLogFont(&font);
    font.lfWeight = FW_BOLD;
    m_boldFont.DeleteObject();
    m_boldFont.CreateFontIndirect(&font);
    GetDlgItem(IDC_DETAIL_TEXT_FIRST)->SetFont(&m_boldFont);
    Fill();
    for (int i = 0; i < most_lines; ++i)
    {
        D3dLayoutChild(IDC_DETAIL_TEXT_FIRST + i, CEdges::TOP_LEFT_RIGHT(), nullptr);
    }
    D3dLayoutChild(IDCANCEL, CEdges::BOTTOM_RIGHT(), nullptr);
    D3dLayoutComplete(CDialogResizer::RESIZE_HORIZONTAL);
    // The focus on a text would select it.
    GetDlgItem(IDCANCEL)->SetFocus();
    return FALSE;
}

void CDetailsDialog::Fill()
{
    for (int i = 0; i < most_lines; ++i)
    {
        auto & label = *GetDlgItem(IDC_DETAIL_LABEL_FIRST + i);
        auto & text = *GetDlgItem(IDC_DETAIL_TEXT_FIRST + i);
        auto const used = i < static_cast<int>(m_lines.size());
        auto const & line = used ? m_lines[static_cast<std::size_t>(i)] : workbench::DetailLine();
        label.SetWindowText(used ? (line.label + L':').c_str() : L"");
        text.SetWindowText(line.text.c_str());
        text.ShowWindow(used ? SW_SHOWNA : SW_HIDE);
    }
}

BOOL CDetailsDialog::PreTranslateMessage(MSG * message)
{
    if (message->message == WM_KEYDOWN && IsKeyDown(VK_CONTROL) && m_actions)
    {
        auto const actions = m_actions();
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
