#include "list/XListCtrl.h"

#include <memory>
#include <utility>

#include "frame/InternalMessages.h"
#include "frame/ToolkitResources.h"
#include "list/XListCtrlCursor.h"
#include "list/XListCtrlHold.h"
#include "list/XListCtrlResolution.h"
#include "resources/resource_ids.h"

namespace
{
constexpr UINT last_tool_id = 0xFFFF;
} // namespace

IMPLEMENT_DYNAMIC(CXListCtrl, CListCtrl)

// clang-format off
BEGIN_MESSAGE_MAP(CXListCtrl, CListCtrl)
    ON_NOTIFY_REFLECT_EX(NM_CLICK, &CXListCtrl::OnClick)
    ON_NOTIFY_REFLECT_EX(LVN_COLUMNCLICK, &CXListCtrl::OnColumnClick)
    ON_WM_CREATE()
    ON_NOTIFY_REFLECT(NM_CUSTOMDRAW, &CXListCtrl::OnCustomDraw)
    ON_WM_DESTROY()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_PAINT()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_ERASEBKGND()
    ON_WM_KEYDOWN()
    ON_WM_RBUTTONDOWN()
    ON_WM_NCLBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_CONTEXTMENU()
    ON_WM_TIMER()
    ON_NOTIFY_EX_RANGE(TTN_NEEDTEXTW, 0, last_tool_id, &CXListCtrl::OnToolTipText)
    ON_NOTIFY_EX_RANGE(TTN_NEEDTEXTA, 0, last_tool_id, &CXListCtrl::OnToolTipText)
    ON_REGISTERED_MESSAGE(WM_XCOMBOLIST_VK_ESCAPE, &CXListCtrl::OnComboEscape)
    ON_REGISTERED_MESSAGE(WM_XCOMBOLIST_COMPLETE, &CXListCtrl::OnComboComplete)
    ON_REGISTERED_MESSAGE(WM_XEDIT_KILL_FOCUS, &CXListCtrl::OnXEditKillFocus)
    ON_REGISTERED_MESSAGE(WM_XEDIT_VK_ESCAPE, &CXListCtrl::OnXEditEscape)
END_MESSAGE_MAP()
// clang-format on

CXListCtrl::CXListCtrl()
    : m_sort(std::make_unique<SortState>()),
      m_rows(std::make_unique<RowState>(*this)),
      m_fit(std::make_unique<FitState>()),
      m_editors(std::make_unique<EditorState>()),
      m_paint(std::make_unique<PaintState>()),
      m_drag(std::make_unique<DragState>()),
      m_access(std::make_unique<AccessState>()),
      m_cursor(std::make_unique<CellCursor>(*this)),
      m_resolution(std::make_unique<Resolution>(*this))
{
    GetColors();
}

CXListCtrl::~CXListCtrl()
{
    // While the header's object is still there, which the window would miss otherwise.
    if (m_hWnd != nullptr)
        DestroyWindow();
    EndEditors();
    EndAccess();
}

void CXListCtrl::PreSubclassWindow()
{
    CListCtrl::PreSubclassWindow();
    m_rows->model.memory.Forget();
    m_rows->model.memory.SetInStep(GetItemCount() == 0);
    // Left from rows that a host inserted into a former window while it ended.
    if (m_rows->model.memory.IsInStep())
        m_rows->model.pool.GiveBackAll();
    SetExtendedStyle(GetExtendedStyle() | LVS_EX_FULLROWSELECT);
    if (m_itemToolTips)
    {
        if (CToolTipCtrl * const own = GetToolTips())
            own->Activate(FALSE);
        EnableToolTips(TRUE);
    }
    else
    {
        SetExtendedStyle(GetExtendedStyle() | LVS_EX_INFOTIP);
    }
    SubclassHeaderControl();
    m_resolution->Begin();
}

int CXListCtrl::OnCreate(LPCREATESTRUCT create)
{
    if (CListCtrl::OnCreate(create) == -1)
        return -1;
    SubclassHeaderControl();
    m_resolution->Begin();
    // A window made anew starts with an empty menu as well.
    if (m_popupMenu.GetSafeHmenu() != nullptr)
        m_popupMenu.DestroyMenu();
    m_popupMenu.CreatePopupMenu();
    return 0;
}

void CXListCtrl::SubclassHeaderControl()
{
    if (m_headerSubclassed)
        return;
    // None before the list is complete, or in a display style without columns.
    auto const header = reinterpret_cast<HWND>(::SendMessageW(m_hWnd, LVM_GETHEADER, 0, 0));
    if (header == nullptr || !m_header.SubclassWindow(header))
        return;
    m_headerSubclassed = true;
    m_header.SetList(this);
}

void CXListCtrl::OnDestroy()
{
    m_resolution->End();
    EndAccess();
    EndDragImage();
    EndEditors();
    m_rows->model.pool.GiveBackAll();
    m_rows->model.memory.LoseStep();
    m_headerSubclassed = false;
    CListCtrl::OnDestroy();
}

// Look

void CXListCtrl::SetDisplayStyle(long style)
{
    ModifyStyle(LVS_TYPEMASK, static_cast<DWORD>(style) & LVS_TYPEMASK);
}

long CXListCtrl::GetDisplayStyle()
{
    return static_cast<long>(GetStyle() & LVS_TYPEMASK);
}

void CXListCtrl::SetFullRowSelect()
{
    SetExtendedStyle(GetExtendedStyle() | LVS_EX_FULLROWSELECT);
}

void CXListCtrl::SetHoverSelection()
{
    SetExtendedStyle(GetExtendedStyle() | LVS_EX_TWOCLICKACTIVATE);
}

void CXListCtrl::SetWithCheckboxes()
{
    SetExtendedStyle(GetExtendedStyle() | LVS_EX_CHECKBOXES);
}

void CXListCtrl::SetWithGridlines()
{
    SetExtendedStyle(GetExtendedStyle() | LVS_EX_GRIDLINES);
}

bool CXListCtrl::SetEllipsis(bool ellipsis)
{
    return std::exchange(m_ellipsis, ellipsis);
}

bool CXListCtrl::GetEllipsis() const
{
    return m_ellipsis;
}

void CXListCtrl::SetCellPadding(int padding)
{
    m_cellPadding = padding;
}

int CXListCtrl::GetCellPadding() const
{
    return m_cellPadding;
}

void CXListCtrl::SetEmptyListText(CString const & text)
{
    m_emptyListText = text;
}

void CXListCtrl::SetEmptyListTextDefault()
{
    m_emptyListText = LoadToolkitString(TOOLKIT_STRING_EMPTY_LIST);
}

void CXListCtrl::SetListModified(bool modified)
{
    m_listModified = modified;
}

bool CXListCtrl::GetListModified() const
{
    return m_listModified;
}

// Header

void CXListCtrl::SetHeaderAlignment(unsigned int alignment)
{
    m_header.SetAlignment(alignment);
}

void CXListCtrl::SetHeaderTextColor(COLORREF color)
{
    m_header.SetTextColor(color);
}

void CXListCtrl::SetHeaderUseImageList(bool use)
{
    m_header.SetUseImageList(use);
}

void CXListCtrl::SetHeaderDirectColumnClick()
{
    m_header.SetDirectColumnClick();
}

void CXListCtrl::SetHeaderAutoCheckbox(bool on)
{
    m_headerAutoCheckbox = on;
}

bool CXListCtrl::SetHeaderCheckedState(int col, int state)
{
    if (col < 0 || col >= m_columnCount || state < XHC_NONE || state >= XHC_END || !::IsWindow(m_header.m_hWnd))
        return false;
    HDITEMW item{};
    item.mask = HDI_IMAGE;
    item.iImage = state;
    m_header.SetItem(col, &item);
    return true;
}

int CXListCtrl::GetHeaderCheckedState(int col) const
{
    if (col < 0 || col >= m_columnCount || !::IsWindow(m_header.m_hWnd))
        return -1;
    HDITEMW item{};
    item.mask = HDI_IMAGE;
    return m_header.GetItem(col, &item) ? item.iImage : -1;
}

void CXListCtrl::SetHeaderRemoveAllMarks()
{
    Watch const watch(*this);
    for (int col = 0; watch.IsAlive() && col < m_columnCount; ++col)
        SetHeaderCheckedState(col, XHC_NONE);
}
