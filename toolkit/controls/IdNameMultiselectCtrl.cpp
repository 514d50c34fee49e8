#include "controls/IdNameMultiselectCtrl.h"

#include <iterator>
#include <memory>
#include <utility>
#include <vector>

#include "access/ControlTarget.h"
#include "controls/IdNameSelection.h"
#include "controls/MultiselectMessages.h"
#include "controls/SmallIcon.h"
#include "frame/RegisteredMessages.h"
#include "frame/ToolkitResources.h"
#include "frame/WindowAlive.h"
#include "layout/WindowDpi.h"
#include "resource_ids.h"

namespace
{
constexpr UINT select_all_id = 32803;
constexpr UINT select_none_id = 32804;
constexpr UINT cancel_id = 32805;
constexpr UINT ok_id = 32806;

/// The strip of buttons has the same height on every screen, at 96 dots an inch.
constexpr int largest_icon = 16;

constexpr DWORD list_style = WS_CHILD | WS_VISIBLE | LVS_LIST | LVS_NOCOLUMNHEADER;
constexpr DWORD shown_button = WS_CHILD | WS_VISIBLE | BS_ICON;
constexpr DWORD hidden_button = WS_CHILD | BS_ICON;

CString const no_name;
} // namespace

/// The list's rows, as long as the control and its list are there; nothing else any more afterwards. A list that is
/// being made is not there yet: it stands no rows. Lives on the stack alone.
class CIdNameMultiselectCtrl::Rows : public id_name::Rows
{
public:
    explicit Rows(CIdNameMultiselectCtrl & control)
        : m_control(control),
          m_made(!control.m_creating),
          m_alive(control.m_list, control.m_life)
    {
    }

    bool IsThere() const { return m_made && m_alive.IsAlive(); }

    int Count() const override { return IsThere() ? m_control.m_list.GetItemCount() : 0; }
    void Clear() override
    {
        if (IsThere())
            m_control.m_list.DeleteAllItems();
    }
    void Insert(int place, wchar_t const * text, int id) override
    {
        if (IsThere())
            m_control.m_list.InsertItem(LVIF_TEXT | LVIF_PARAM, place, text, 0, 0, 0, id);
    }
    CString Text(int row) const override
    {
        wchar_t text[id_name::longest_row_text + 1] = {};
        if (IsThere())
            m_control.m_list.GetItemText(row, 0, text, static_cast<int>(std::size(text)));
        return text;
    }
    int Id(int row) const override
    {
        return IsThere() ? static_cast<int>(m_control.m_list.GetItemData(row)) : id_name::all_items;
    }
    bool IsTicked(int row) const override { return IsThere() && m_control.m_list.GetCheck(row) == 1; }
    void SetTicked(int row, bool ticked) override
    {
        if (IsThere())
            m_control.m_list.SetCheck(row, ticked);
    }
    void SetRedraw(bool redraw)
    {
        if (!IsThere())
            return;
        m_control.m_list.SetRedraw(redraw);
        if (redraw && IsThere())
            m_control.m_list.Invalidate();
    }

private:
    CIdNameMultiselectCtrl & m_control;
    bool m_made;
    WindowAlive m_alive;
};

IMPLEMENT_DYNAMIC(CIdNameMultiselectCtrl, CButton)

BEGIN_MESSAGE_MAP(CIdNameMultiselectCtrl, CButton)
    ON_WM_SIZE()
    ON_WM_DESTROY()
    ON_COMMAND(select_all_id, &CIdNameMultiselectCtrl::OnSelectAll)
    ON_COMMAND(select_none_id, &CIdNameMultiselectCtrl::OnSelectNone)
    ON_COMMAND(cancel_id, &CIdNameMultiselectCtrl::OnCancelButton)
    ON_COMMAND(ok_id, &CIdNameMultiselectCtrl::OnOkButton)
    ON_MESSAGE(multiselect_list_message, &CIdNameMultiselectCtrl::OnListCtrlMessageMessage)
END_MESSAGE_MAP()

CIdNameMultiselectCtrl::CIdNameMultiselectCtrl()
    : m_selectionRetrieved(false),
      m_okCancel(false),
      m_grouped(true),
      m_sorted(false),
      m_showIds(false),
      m_controlsCreated(false),
      m_icons{},
      m_creating(false)
{
}

CIdNameMultiselectCtrl::~CIdNameMultiselectCtrl()
{
    // While the parts are there.
    if (m_hWnd != nullptr)
        DestroyWindow();
    DestroyIcons();
}

// --- Data ---

void CIdNameMultiselectCtrl::SetTheMap(std::map<int, CString> const & map)
{
    m_theMap = map;
}

void CIdNameMultiselectCtrl::AddItem(int id, CString const & name)
{
    m_theMap.emplace(id, name);
}

void CIdNameMultiselectCtrl::ResetTheMap()
{
    m_theMap.clear();
}

std::map<int, CString> const & CIdNameMultiselectCtrl::TheMap() const
{
    return m_theMap;
}

CString const & CIdNameMultiselectCtrl::GetName(int id) const
{
    auto const found = m_theMap.find(id);
    return found != m_theMap.end() ? found->second : no_name;
}

void CIdNameMultiselectCtrl::SetSelection(std::set<int> const & ids)
{
    m_theSelection = ids;
}

void CIdNameMultiselectCtrl::SetSelection(int id)
{
    m_theSelection = {id};
}

void CIdNameMultiselectCtrl::SetSelectionAll()
{
    SetSelection(id_name::all_items);
}

void CIdNameMultiselectCtrl::SetSelectionNone()
{
    m_theSelection.clear();
}

std::set<int> const & CIdNameMultiselectCtrl::TheSelection() const
{
    return m_theSelection;
}

void CIdNameMultiselectCtrl::ShowIds(bool show)
{
    m_showIds = show;
}

void CIdNameMultiselectCtrl::ShowGroupedSelection(bool grouped)
{
    m_grouped = grouped;
}

void CIdNameMultiselectCtrl::SortAlphabetically(bool sort)
{
    m_sorted = sort;
}

void CIdNameMultiselectCtrl::EnableOkCancel()
{
    m_okCancel = true;
}

void CIdNameMultiselectCtrl::SetEmptyMapMessage(CString const & text)
{
    m_emptyMapMessage = text;
}

bool CIdNameMultiselectCtrl::SelectionRetrieved() const
{
    return m_selectionRetrieved;
}

// --- List and selection ---

void CIdNameMultiselectCtrl::RefreshContent()
{
    Rows rows(*this);
    if (!rows.IsThere())
        return;
    m_selectionRetrieved = false;
    rows.SetRedraw(false);
    // Copies: the host may change what it has set while rows come in.
    std::map<int, CString> const map = m_theMap;
    std::set<int> const selection = m_theSelection;
    id_name::Fill(rows, map, selection, {m_grouped, m_sorted, m_showIds}, CString(m_emptyMapMessage));
    if (rows.IsThere() && !map.empty())
        RefreshSelection();
    rows.SetRedraw(true);
}

void CIdNameMultiselectCtrl::ItemEintragen(int id, wchar_t const * name, int startIndex)
{
    Rows rows(*this);
    id_name::Enter(rows, id, name, startIndex, {m_grouped, m_sorted, m_showIds});
}

void CIdNameMultiselectCtrl::RefreshSelection()
{
    LifeWatch const life(m_life);
    Rows rows(*this);
    std::set<int> const selection = m_theSelection;
    id_name::TickSelected(rows, selection);
    if (!life.Over())
        m_selectionRetrieved = false;
}

void CIdNameMultiselectCtrl::RetrieveSelection()
{
    m_selectionRetrieved = true;
    Rows const rows(*this);
    if (!rows.IsThere())
    {
        m_theSelection.clear(); // nothing is ticked
        return;
    }
    std::set<int> ids = id_name::TickedIds(rows, m_theMap.empty());
    if (rows.IsThere())
        m_theSelection.swap(ids);
}

void CIdNameMultiselectCtrl::OnSelectAll()
{
    m_theSelection = id_name::EveryId(m_theMap);
    RefreshSelection();
}

void CIdNameMultiselectCtrl::OnSelectNone()
{
    m_theSelection.clear();
    RefreshSelection();
}

void CIdNameMultiselectCtrl::OnCancelButton()
{
    SendMessageToParent(multiselect_cancelled, 0);
}

void CIdNameMultiselectCtrl::OnOkButton()
{
    LifeWatch const life(m_life);
    RetrieveSelection();
    if (!life.Over())
        SendMessageToParent(multiselect_ok, 0);
}

LRESULT CIdNameMultiselectCtrl::OnListCtrlMessageMessage(WPARAM wParam, LPARAM lParam)
{
    SendMessageToParent(wParam, lParam);
    return 1;
}

void CIdNameMultiselectCtrl::SendMessageToParent(WPARAM wParam, LPARAM lParam)
{
    if (!::IsWindow(m_hWnd))
        return;
    CWnd const * receiver = GetParent();
    if (receiver == nullptr)
        receiver = GetOwner();
    if (receiver != nullptr && ::IsWindow(receiver->m_hWnd))
        ::PostMessageW(receiver->m_hWnd, WM_IDNAME_MULTISELECT_EVENT, wParam, lParam);
}

// --- The window and its parts ---

/// Makes the parts one after the other, and none any more once the control or its window has gone. Lives on the stack
/// alone.
class CIdNameMultiselectCtrl::Parts
{
public:
    explicit Parts(CIdNameMultiselectCtrl & control) : m_control(control), m_alive(control, control.m_life)
    {
        m_control.m_creating = true;
    }
    ~Parts()
    {
        if (m_alive.IsThere())
            m_control.m_creating = false;
    }
    Parts(Parts const &) = delete;
    Parts & operator=(Parts const &) = delete;

    bool MayGoOn() const { return m_alive.IsAlive(); }

    void MakeList(CRect const & place)
    {
        CIdNameMultiselectListCtlr & list = m_control.m_list;
        if (!MayGoOn() || !list.Create(list_style, place, &m_control, multiselect_list_message) || !MayGoOn())
            return;
        list.InsertColumn(0, L"Name", LVCFMT_LEFT, -1, -1);
        if (MayGoOn())
            list.SetExtendedStyle(list.GetExtendedStyle() | multiselect_list_style);
    }
    void MakeButton(CButton & button, wchar_t const * text, bool shown, CRect const & place, UINT id, UINT iconId,
                    HICON & icon)
    {
        DWORD const style = shown ? shown_button : hidden_button;
        if (!MayGoOn() || !button.Create(text, style, place, &m_control, id) || !MayGoOn())
            return;
        if (icon == nullptr)
            icon = LoadSmallToolkitIcon(iconId, largest_icon, m_control.m_dpi);
        button.SetIcon(icon);
    }
    void MakeToolTip()
    {
        CToolTipCtrl & toolTip = m_control.m_toolTip;
        if (!MayGoOn() || !toolTip.Create(&m_control) || !MayGoOn())
            return;
        toolTip.Activate(TRUE);
        AddTool(m_control.m_selectAll, TOOLKIT_STRING_SELECT_ALL);
        AddTool(m_control.m_selectNone, TOOLKIT_STRING_SELECT_NONE);
        AddTool(m_control.m_cancel, TOOLKIT_STRING_CANCEL);
        AddTool(m_control.m_ok, TOOLKIT_STRING_OK);
    }

private:
    void AddTool(CButton & button, UINT textId)
    {
        if (MayGoOn() && button.m_hWnd != nullptr)
            m_control.m_toolTip.AddTool(&button, textId);
    }

    CIdNameMultiselectCtrl & m_control;
    WindowAlive m_alive;
};

void CIdNameMultiselectCtrl::PreSubclassWindow()
{
    CButton::PreSubclassWindow();
    m_creating = false;
    ModifyStyle(0, BS_OWNERDRAW);
    ModifyStyleEx(0, WS_EX_STATICEDGE);
    window_dpi::Begin(*this, m_followsDpi);
}

void CIdNameMultiselectCtrl::CreateControls(CRect & rect)
{
    if (m_creating || m_hWnd == nullptr)
        return;
    CToolkitResourceExchange const exchange;
    if (m_emptyMapMessage.IsEmpty())
        m_emptyMapMessage = LoadToolkitString(TOOLKIT_STRING_NO_ITEMS);
    m_partsArea = rect;
    id_name::Places const places = id_name::PlacesIn(rect, m_okCancel, m_dpi);
    bool const okCancel = m_okCancel;
    {
        Parts parts(*this);
        parts.MakeList(places.list);
        parts.MakeButton(m_selectAll, L"Alle w\u00e4hlen", true, places.selectAll, select_all_id,
                         TOOLKIT_ICON_SELECT_ALL, m_icons[0]);
        parts.MakeButton(m_selectNone, L"Alle abw\u00e4hlen", true, places.selectNone, select_none_id,
                         TOOLKIT_ICON_SELECT_NONE, m_icons[1]);
        parts.MakeButton(m_cancel, L"Abbruch", okCancel, places.cancel, cancel_id, TOOLKIT_ICON_CANCEL, m_icons[2]);
        parts.MakeButton(m_ok, L"OK", okCancel, places.ok, ok_id, TOOLKIT_ICON_OK, m_icons[3]);
        parts.MakeToolTip();
        if (!parts.MayGoOn())
            return;
    }
    m_controlsCreated = true;
    RefreshContent();
}

void CIdNameMultiselectCtrl::DrawItem(LPDRAWITEMSTRUCT item)
{
    if (m_controlsCreated || m_creating)
        return;
    WindowAlive const alive(*this, m_life);
    CRect rect(item->rcItem);
    CreateControls(rect);
    if (alive.IsAlive())
        Invalidate();
}

void CIdNameMultiselectCtrl::OnSize(UINT type, int cx, int cy)
{
    WindowAlive const alive(*this, m_life);
    CButton::OnSize(type, cx, cy);
    if (!alive.IsAlive())
        return;
    CRect rect;
    GetClientRect(&rect);
    rect.DeflateRect(1, 1);
    if (!m_controlsCreated)
    {
        CreateControls(rect);
        return;
    }
    m_partsArea = rect;
    PlaceParts();
}

void CIdNameMultiselectCtrl::PlaceParts()
{
    WindowAlive const alive(*this, m_life);
    id_name::Places const places = id_name::PlacesIn(m_partsArea, m_okCancel, m_dpi);
    struct Part
    {
        CWnd * window;
        CRect const & place;
    };
    for (Part const & part :
         {Part{&m_list, places.list}, Part{&m_selectAll, places.selectAll}, Part{&m_selectNone, places.selectNone},
          Part{&m_cancel, places.cancel}, Part{&m_ok, places.ok}})
    {
        if (!alive.IsAlive())
            return;
        if (part.window->m_hWnd != nullptr)
            part.window->MoveWindow(&part.place);
    }
    for (CButton * const button : {&m_cancel, &m_ok})
    {
        if (!alive.IsAlive())
            return;
        if (button->m_hWnd != nullptr)
            button->ShowWindow(m_okCancel ? SW_SHOW : SW_HIDE);
    }
}

BOOL CIdNameMultiselectCtrl::SetDpi(UINT dpi)
{
    if (!resolution::IsServed(dpi))
        return FALSE;
    if (dpi == m_dpi)
        return TRUE;
    m_dpi = dpi;
    if (!m_controlsCreated)
        return TRUE;
    LifeWatch const life(m_life);
    ScaleIcons();
    if (!life.Over() && m_controlsCreated && m_hWnd != nullptr)
        PlaceParts();
    return TRUE;
}

void CIdNameMultiselectCtrl::FollowDpi(BOOL follow)
{
    window_dpi::Follow(*this, m_followsDpi, follow);
}

// A button shows its icon until it has the next one.
void CIdNameMultiselectCtrl::ScaleIcons()
{
    struct Part
    {
        CButton & button;
        UINT icon;
    };
    Part const parts[] = {{m_selectAll, TOOLKIT_ICON_SELECT_ALL},
                          {m_selectNone, TOOLKIT_ICON_SELECT_NONE},
                          {m_cancel, TOOLKIT_ICON_CANCEL},
                          {m_ok, TOOLKIT_ICON_OK}};
    LifeWatch const life(m_life);
    UINT const dpi = m_dpi;
    std::size_t index = 0;
    for (Part const & part : parts)
    {
        HICON const former = std::exchange(m_icons[index++], LoadSmallToolkitIcon(part.icon, largest_icon, dpi));
        if (part.button.m_hWnd != nullptr)
            part.button.SetIcon(m_icons[index - 1]);
        if (former != nullptr)
            ::DestroyIcon(former);
        if (life.Over() || !m_controlsCreated || m_dpi != dpi)
            return;
    }
}

BOOL CIdNameMultiselectCtrl::PreTranslateMessage(MSG * message)
{
    if (m_toolTip.m_hWnd != nullptr)
    {
        LifeWatch const life(m_life);
        m_toolTip.RelayEvent(message);
        if (life.Over())
            return FALSE;
    }
    return CButton::PreTranslateMessage(message);
}

void CIdNameMultiselectCtrl::OnDestroy()
{
    LifeWatch const life(m_life);
    m_creating = true; // none any more: the parent that hears of the end may size or paint the control
    EndParts();
    if (!life.Over())
        CButton::OnDestroy();
}

void CIdNameMultiselectCtrl::EndParts()
{
    LifeWatch const life(m_life);
    m_controlsCreated = false;
    for (CWnd * const part :
         {static_cast<CWnd *>(&m_toolTip), static_cast<CWnd *>(&m_list), static_cast<CWnd *>(&m_selectAll),
          static_cast<CWnd *>(&m_selectNone), static_cast<CWnd *>(&m_cancel), static_cast<CWnd *>(&m_ok)})
    {
        if (part->m_hWnd != nullptr)
            part->DestroyWindow();
        if (life.Over())
            return;
    }
    DestroyIcons();
}

void CIdNameMultiselectCtrl::DestroyIcons()
{
    for (HICON & icon : m_icons)
    {
        if (icon != nullptr)
            ::DestroyIcon(icon);
        icon = nullptr;
    }
}

// --- What programs that read the screen see ---

namespace
{
/// A group of windows.
class MultiselectAccess final : public ControlTarget
{
public:
    using ControlTarget::ControlTarget;

    std::vector<HWND> ChildWindows() override
    {
        std::vector<HWND> windows;
        for (HWND child = ::GetWindow(Window(), GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
        {
            if (::IsWindowVisible(child))
                windows.push_back(child);
        }
        return windows;
    }

protected:
    accessible::Description DescribeSelf() override
    {
        accessible::ControlFacts facts = Facts();
        facts.focusable = false;
        return accessible::DescribeControl(accessible::Role::grouping, facts);
    }
};
} // namespace

LRESULT CIdNameMultiselectCtrl::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (AsksForControl(message, lParam))
        return AnswerWithObject(std::make_shared<MultiselectAccess>(*this, m_life), wParam);
    window_dpi::Heed(*this, m_followsDpi, message);
    return CButton::DefWindowProc(message, wParam, lParam);
}
