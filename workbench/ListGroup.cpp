#include "ListGroup.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "frame/RegisteredMessages.h"
#include "logic/Texts.h"
#include "RecordingList.h"
#include "resource.h"

using workbench::Text;

namespace
{

// In the order of the box's lines.
constexpr ControlColorSet sets[] = {ControlColorSet::standard, ControlColorSet::dark, ControlColorSet::high_contrast,
                                    ControlColorSet::follow_system};

/// Gives a box the height of the whole lines that it has room for. The box's own style would round twice: by the
/// system's font first, in which it is made.
void TakeWholeLines(CListBox & box)
{
    CRect place;
    box.GetWindowRect(&place);
    CRect inside;
    box.GetClientRect(&inside);
    if (int const line = box.GetItemHeight(0); line > 0)
    {
        box.SetWindowPos(nullptr, 0, 0, place.Width(), place.Height() - inside.Height() % line,
                         SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

} // namespace

BEGIN_MESSAGE_MAP(CListGroup, CSettingsGroup)
    ON_REGISTERED_MESSAGE(WM_XEDITBROWSE_COMPLETED, &CListGroup::OnChosen)
    ON_CBN_SELCHANGE(IDC_CONTRAST, &CListGroup::OnChange)
    ON_CBN_SELCHANGE(IDC_LIST_SCALE, &CListGroup::OnChange)
    ON_BN_CLICKED(IDC_CELL_CURSOR, &CListGroup::OnChange)
    ON_BN_CLICKED(IDC_COLUMN_UP, &CListGroup::OnUp)
    ON_BN_CLICKED(IDC_COLUMN_DOWN, &CListGroup::OnDown)
    ON_LBN_SELCHANGE(IDC_COLUMN_ORDER, &CListGroup::OnOrderChosen)
END_MESSAGE_MAP()

CListGroup::CListGroup() : CSettingsGroup(IDD_SETTINGS_LIST) {}

void CListGroup::DoDataExchange(CDataExchange * exchange)
{
    CSettingsGroup::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_COLUMNS, m_columns);
    DDX_Control(exchange, IDC_CONTRAST, m_contrast);
    DDX_Control(exchange, IDC_LIST_SCALE, m_scale);
    DDX_Control(exchange, IDC_COLUMN_ORDER, m_order);
}

BOOL CListGroup::OnInitDialog()
{
    CSettingsGroup::OnInitDialog();
    m_columns.FollowDpi(TRUE);
    m_columns.PrepareIdNameBrowser();
    m_columns.SetNotifyTag(IDC_COLUMNS);
    Follow(IDC_COLUMNS, CEdges::TOP_LEFT_RIGHT());
    FillBoxes();
    TakeWholeLines(m_order);
    Follow(IDC_COLUMN_ORDER, CEdges::TOP_LEFT_RIGHT());
    Follow(IDC_COLUMN_UP, CEdges::TOP_RIGHT());
    Follow(IDC_COLUMN_DOWN, CEdges::TOP_RIGHT());
    return TRUE;
}

/// The lines of the boxes, in the language of now.
void CListGroup::FillBoxes()
{
    m_contrast.ResetContent();
    for (wchar_t const * const text : {Text(L"Usual colours"), Text(L"Dark"),
                                       Text(L"High contrast (the system's colours)"), Text(L"As the system has it")})
    {
        m_contrast.AddString(text);
    }
    m_scale.ResetContent();
    for (int const percent : workbench::Settings::scales)
    {
        CString text = Text(L"As the system has it");
        if (percent != 0)
        {
            text.Format(L"%d %%", percent);
        }
        m_scale.AddItem(text, percent);
    }
}

void CListGroup::FillOrder(std::vector<int> const & columns)
{
    m_order.ResetContent();
    for (int const column : columns)
    {
        // The check boxes go with the names.
        if (column != CRecordingList::column_check)
        {
            m_order.SetItemData(m_order.AddString(CRecordingList::Title(column)), static_cast<DWORD_PTR>(column));
        }
    }
}

std::vector<int> CListGroup::Order() const
{
    std::vector<int> columns;
    for (int place = 0; place < m_order.GetCount(); ++place)
    {
        columns.push_back(static_cast<int>(m_order.GetItemData(place)));
    }
    return columns;
}

void CListGroup::ShowTexts()
{
    CSettingsGroup::ShowTexts();
    if (m_hWnd == nullptr)
    {
        return;
    }
    m_columns.Arrange(Order());
    int const set = m_contrast.GetCurSel();
    int const scale = m_scale.GetSelectedItemData(0);
    int const chosen = m_order.GetCurSel();
    FillBoxes();
    m_contrast.SetCurSel(set);
    m_scale.SelectItemData(scale);
    FillOrder(Order());
    m_order.SetCurSel(chosen);
}

void CListGroup::Show(workbench::Settings const & settings)
{
    m_columns.ShowColumns(settings.columnOrder, settings.hiddenColumns);
    m_scale.SelectItemData(settings.scale);
    CheckDlgButton(IDC_CELL_CURSOR, settings.cellCursor ? BST_CHECKED : BST_UNCHECKED);
    m_chosen = false;
    ControlColorSet const * const set = std::find(std::begin(sets), std::end(sets), settings.contrast);
    m_contrast.SetCurSel(static_cast<int>(set - std::begin(sets)));
    FillOrder(settings.columnOrder);
    m_order.SetCurSel(0);
    m_moved = false;
    EnableButtons();
}

bool CListGroup::Take(workbench::Settings & settings)
{
    if (m_chosen)
    {
        settings.hiddenColumns = m_columns.HiddenColumns();
    }
    settings.contrast = sets[std::clamp<int>(m_contrast.GetCurSel(), 0, static_cast<int>(std::size(sets)) - 1)];
    settings.scale = m_scale.GetSelectedItemData(settings.scale);
    settings.cellCursor = IsDlgButtonChecked(IDC_CELL_CURSOR) == BST_CHECKED;
    settings.columnOrder = m_moved ? Order() : std::vector<int>{};
    return true;
}

BOOL CListGroup::OnApply()
{
    BOOL const applied = CSettingsGroup::OnApply();
    if (applied)
    {
        m_moved = false; // from here on the order is the list's
        m_chosen = false;
    }
    return applied;
}

void CListGroup::FollowColumns(std::vector<int> const & order)
{
    if (m_moved || m_order.GetSafeHwnd() == nullptr || m_order.GetCount() == 0)
    {
        return;
    }
    int const chosen = m_order.GetCurSel();
    auto const column = chosen >= 0 ? static_cast<int>(m_order.GetItemData(chosen)) : -1;
    FillOrder(order);
    std::vector<int> const columns = Order();
    auto const place = std::ranges::find(columns, column);
    m_order.SetCurSel(place != columns.end() ? static_cast<int>(place - columns.begin()) : -1);
    m_columns.Arrange(columns);
    EnableButtons();
}

/// Moves the chosen column, which stays chosen.
void CListGroup::MoveColumn(int places)
{
    int const from = m_order.GetCurSel();
    int const to = from + places;
    if (from < 0 || to < 0 || to >= m_order.GetCount())
    {
        return;
    }
    CString title;
    m_order.GetText(from, title);
    DWORD_PTR const column = m_order.GetItemData(from);
    m_order.DeleteString(static_cast<UINT>(from));
    m_order.InsertString(to, title);
    m_order.SetItemData(to, column);
    m_order.SetCurSel(to);
    m_columns.Arrange(Order());
    m_moved = true;
    EnableButtons();
    Changed();
}

void CListGroup::OnUp()
{
    MoveColumn(-1);
}

void CListGroup::OnDown()
{
    MoveColumn(1);
}

void CListGroup::OnOrderChosen()
{
    EnableButtons();
}

/// A button that has the focus gives it to the list before it is greyed.
void CListGroup::EnableButtons()
{
    int const chosen = m_order.GetCurSel();
    std::pair<int, bool> const buttons[] = {{IDC_COLUMN_UP, chosen > 0},
                                            {IDC_COLUMN_DOWN, chosen >= 0 && chosen + 1 < m_order.GetCount()}};
    for (auto const & [id, enabled] : buttons)
    {
        CWnd & button = *GetDlgItem(id);
        if (!enabled && GetFocus() == &button)
        {
            m_order.SetFocus();
        }
        button.EnableWindow(enabled);
    }
}

/// Alt and an arrow key move the chosen column, as they do lines in the list.
BOOL CListGroup::PreTranslateMessage(MSG * message)
{
    bool const isArrow = message->wParam == VK_UP || message->wParam == VK_DOWN;
    if (message->message == WM_SYSKEYDOWN && isArrow && m_order.GetSafeHwnd() != nullptr &&
        message->hwnd == m_order.m_hWnd)
    {
        // Otherwise the system takes the Alt key for one that opens the menu, when it is released.
        ::DefWindowProcW(message->hwnd, message->message, message->wParam, message->lParam);
        MoveColumn(message->wParam == VK_UP ? -1 : 1);
        return TRUE;
    }
    return CSettingsGroup::PreTranslateMessage(message);
}

LRESULT CListGroup::OnChosen(WPARAM, LPARAM)
{
    m_columns.SelectionAcknowledged();
    m_chosen = true;
    Changed();
    return 0;
}

void CListGroup::OnChange()
{
    Changed();
}
