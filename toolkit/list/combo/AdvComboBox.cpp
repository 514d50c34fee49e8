#include "list/combo/AdvComboBox.h"

#include <algorithm>
#include <cwchar>

#include "frame/GraphicsScopes.h"
#include "layout/WindowDpi.h"
#include "list/combo/AdvComboBoxWatch.h"
#include "list/combo/AdvComboEdit.h"
#include "list/combo/DropListBox.h"
#include "list/combo/DropWnd.h"

namespace XListCtrl
{
using resolution::Scaled;

namespace
{
constexpr wchar_t class_name[] = L"SuperComboBox";
/// As a class's background brush.
constexpr UINT_PTR class_background = 5;
constexpr UINT edit_id = 108;
constexpr int least_item_height = 10;
constexpr int greatest_item_height = 50;
constexpr int greatest_text_length = 65535;
constexpr int longest_item_margin = 5;

void RegisterComboClass()
{
    WNDCLASS description = {};
    HINSTANCE const instance = AfxGetInstanceHandle();
    if (::GetClassInfo(instance, class_name, &description))
        return;
    description = {};
    description.style = CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS;
    description.lpfnWndProc = ::DefWindowProcW;
    description.hInstance = instance;
    description.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
    description.hbrBackground = reinterpret_cast<HBRUSH>(class_background);
    description.lpszClassName = class_name;
    if (!AfxRegisterClass(&description))
        AfxThrowResourceException();
}

std::wstring TextOf(CWnd const & window)
{
    CString text;
    window.GetWindowText(text);
    return std::wstring(text.GetString(), static_cast<std::size_t>(text.GetLength()));
}

int IndexOf(WPARAM index)
{
    return static_cast<int>(index);
}
} // namespace

BEGIN_MESSAGE_MAP(CAdvComboBox, CWnd)
    ON_WM_CREATE()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEWHEEL()
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_SHOWWINDOW()
    ON_WM_ENABLE()
    ON_WM_CHILDACTIVATE()
    ON_WM_MOUSEMOVE()
    ON_WM_TIMER()
    ON_WM_CHAR()
    ON_WM_KEYDOWN()
    ON_MESSAGE(WM_ADVCOMBO_SELECTED, &CAdvComboBox::OnSelectedItem)
    ON_MESSAGE(WM_ADVCOMBO_TOGGLE_DROP, &CAdvComboBox::OnToggleDrop)
    ON_MESSAGE(WM_ADVCOMBO_CLOSE_DROP, &CAdvComboBox::OnCloseDrop)
    ON_EN_KILLFOCUS(edit_id, &CAdvComboBox::OnEditKillFocus)
    ON_EN_SETFOCUS(edit_id, &CAdvComboBox::OnEditSetFocus)
    ON_EN_CHANGE(edit_id, &CAdvComboBox::OnEditChange)
    ON_EN_UPDATE(edit_id, &CAdvComboBox::OnEditUpdate)
    ON_MESSAGE(CB_ADDSTRING, &CAdvComboBox::OnCbAddString)
    ON_MESSAGE(CB_SETCURSEL, &CAdvComboBox::OnCbSetCurSel)
    ON_MESSAGE(CB_GETCURSEL, &CAdvComboBox::OnCbGetCurSel)
    ON_MESSAGE(CB_SELECTSTRING, &CAdvComboBox::OnCbSelectString)
    ON_MESSAGE(CB_GETCOUNT, &CAdvComboBox::OnCbGetCount)
    ON_MESSAGE(CB_RESETCONTENT, &CAdvComboBox::OnCbResetContent)
    ON_MESSAGE(CB_GETLBTEXT, &CAdvComboBox::OnCbGetLBText)
    ON_MESSAGE(CB_GETLBTEXTLEN, &CAdvComboBox::OnCbGetLBTextLen)
    ON_MESSAGE(CB_GETTOPINDEX, &CAdvComboBox::OnCbGetTopIndex)
    ON_MESSAGE(CB_SETTOPINDEX, &CAdvComboBox::OnCbSetTopIndex)
END_MESSAGE_MAP()

CAdvComboBox::CAdvComboBox(DWORD ctorWord, CWnd * parent)
    : m_ctorWord(ctorWord),
      m_parent(parent),
      m_iter(m_items.end())
{
    RegisterComboClass();
}

CAdvComboBox::~CAdvComboBox()
{
    // Nobody hears of an object that is half gone.
    m_parent = nullptr;
    m_parentWindow = nullptr;
    DiscardDrop();
    DeleteEdit();
    if (m_hWnd != nullptr)
        CWnd::DestroyWindow();
}

BOOL CAdvComboBox::Create(DWORD style, RECT const & rect, CWnd * parent, UINT id)
{
    m_rcCombo = rect;
    m_createdByCode = true;
    m_comboFlags |= combo_edit_inside;
    m_style = style;
    LoadItems(id);
    return CWnd::Create(nullptr, L"", style, m_rcCombo, parent, id);
}

void CAdvComboBox::PreSubclassWindow()
{
    CWnd::PreSubclassWindow();
    if (m_parent == nullptr)
        m_parent = GetParent();
    m_parentWindow = m_parent->GetSafeHwnd();
    LoadItems(0);
    MakeFont();
    if (!m_createdByCode)
        MakeEdit();
}

int CAdvComboBox::OnCreate(LPCREATESTRUCT create)
{
    if (CWnd::OnCreate(create) == -1)
        return -1;
    MakeFont();
    return 0;
}

void CAdvComboBox::OnChildActivate()
{
    Watch const watch(*this);
    MakeFont();
    if (watch.IsAlive() && m_createdByCode)
        MakeEdit();
    if (watch.IsAlive())
        CWnd::OnChildActivate();
}

void CAdvComboBox::PostNcDestroy()
{
    // The drop-down does not end with its combo by itself. What follows concerns a next window of this object.
    DiscardDrop();
    DeleteEdit();
    m_firstPaint = true;
    m_focused = false;
    m_focusNotified = false;
    m_selMade = false;
    m_hot = false;
    m_hotTimer = false;
    CWnd::PostNcDestroy();
}

ComboItems CAdvComboBox::Items() const
{
    CAdvComboBox & self = const_cast<CAdvComboBox &>(*this);
    return ComboItems(self.m_items, m_iter, self.m_curSel, self.m_text);
}

bool CAdvComboBox::HasEditStyle() const
{
    return (GetStyle() & CBS_DROPDOWNLIST) == CBS_DROPDOWN;
}

bool CAdvComboBox::IsDropList() const
{
    return (GetStyle() & CBS_DROPDOWNLIST) == CBS_DROPDOWNLIST;
}

bool CAdvComboBox::HasEdit() const
{
    return m_edit != nullptr && m_edit->m_hWnd != nullptr;
}

void CAdvComboBox::Notify(UINT code)
{
    Watch const watch(*this);
    TellOfNotification(code);
    if (!watch.IsThere())
        return;
    if (m_hWnd != nullptr && ::IsWindow(m_parentWindow))
    {
        WPARAM const wParam = MAKEWPARAM(::GetDlgCtrlID(m_hWnd), code);
        ::SendMessage(m_parentWindow, WM_COMMAND, wParam, reinterpret_cast<LPARAM>(m_hWnd));
    }
}

bool CAdvComboBox::NotifyAlive(UINT code)
{
    Watch const watch(*this);
    Notify(code);
    return watch.IsAlive();
}

void CAdvComboBox::LoadItems(UINT id)
{
    if (id == 0)
        id = static_cast<UINT>(::GetDlgCtrlID(m_hWnd));
    CString lines;
    if (id != 0 && lines.LoadString(id))
        Items().Load(std::wstring(lines.GetString(), static_cast<std::size_t>(lines.GetLength())));
}

void CAdvComboBox::MakeFont()
{
    if (m_font != nullptr)
        return;
    // A window without a font shows its texts in the system's.
    HGDIOBJ font = ::GetStockObject(SYSTEM_FONT);
    if (LRESULT const parents = ::SendMessage(m_parentWindow, WM_GETFONT, 0, 0); parents != 0)
        font = reinterpret_cast<HGDIOBJ>(parents);
    LOGFONT description = {};
    auto made = std::make_unique<CFont>();
    if (::GetObject(font, sizeof(description), &description) == 0 || !made->CreateFontIndirect(&description))
        return;
    m_font = std::move(made);
    SetFont(m_font.get());
}

CRect CAdvComboBox::EditRect() const
{
    CRect rect;
    GetClientRect(rect);
    rect.right -= window_dpi::Metric(SM_CXHSCROLL, m_dpi);
    if ((m_comboFlags & combo_edit_inside) != 0)
    {
        rect.DeflateRect(Scaled(2, m_dpi), Scaled(2, m_dpi));
        rect.left += Scaled(1, m_dpi);
        rect.top += Scaled(2, m_dpi);
    }
    return rect;
}

bool CAdvComboBox::SetDpi(UINT dpi)
{
    if (!resolution::IsServed(dpi))
        return false;
    if (dpi == m_dpi)
        return true;
    m_dpi = dpi;
    if (m_hWnd == nullptr)
        return true;
    m_rcButton = ButtonRect();
    Watch const watch(*this);
    if (HasEdit())
        m_edit->MoveWindow(EditRect());
    if (watch.IsAlive())
        Invalidate();
    return true;
}

void CAdvComboBox::MakeEdit()
{
    if (m_edit != nullptr || !HasEditStyle())
        return;
    DWORD style = WS_CHILD | WS_VISIBLE;
    if ((GetStyle() & CBS_AUTOHSCROLL) != 0)
        style |= ES_AUTOHSCROLL;
    // Ancestors hear of the new window, and may end this one.
    Watch const watch(*this);
    auto * const edit = new CAdvComboEdit;
    m_edit = edit;
    bool const created = edit->Create(style, EditRect(), this, edit_id) != FALSE;
    if (!watch.IsAlive() || m_edit != edit)
        return;
    if (!created)
    {
        DeleteEdit();
        return;
    }
    edit->SetFont(m_font.get());
    edit->SetWindowText(m_text.c_str());
}

void CAdvComboBox::DeleteEdit()
{
    CAdvComboEdit * const edit = m_edit;
    m_edit = nullptr;
    if (edit != nullptr && edit->m_hWnd != nullptr)
        edit->DestroyWindow();
    delete edit;
}

int CAdvComboBox::AddString(LPCTSTR text)
{
    return Items().Add(text);
}

int CAdvComboBox::InsertString(int index, LPCTSTR text)
{
    return Items().Insert(index, text);
}

int CAdvComboBox::DeleteString(int index)
{
    return Items().Delete(index);
}

int CAdvComboBox::GetCount() const
{
    return Items().Count();
}

void CAdvComboBox::ResetContent()
{
    OnCbResetContent(0, 0);
}

int CAdvComboBox::FindString(int start, LPCTSTR text) const
{
    return Items().Find(start, text);
}

int CAdvComboBox::FindStringExact(int start, LPCTSTR text) const
{
    return Items().FindExact(start, text);
}

int CAdvComboBox::SelectString(int start, LPCTSTR text)
{
    int const found = Items().SelectExact(start, text);
    if (found != ComboItems::none && m_hWnd != nullptr)
        Invalidate();
    return found;
}

int CAdvComboBox::GetLBText(int index, LPTSTR buffer) const
{
    combo_item const * const item = Items().At(index);
    if (item == nullptr)
        return ComboItems::none;
    std::wcscpy(buffer, item->text.c_str());
    return static_cast<int>(item->text.size()) + 1;
}

int CAdvComboBox::GetLBText(int index, CString & text) const
{
    combo_item const * const item = Items().At(index);
    if (item == nullptr)
        return ComboItems::none;
    text = item->text.c_str();
    return static_cast<int>(item->text.size()) + 1;
}

int CAdvComboBox::GetLBTextLen(int index) const
{
    combo_item const * const item = Items().At(index);
    return item == nullptr ? ComboItems::none : static_cast<int>(item->text.size()) + 1;
}

std::int64_t CAdvComboBox::GetItemData(int index) const
{
    combo_item const * const item = Items().At(index);
    return item == nullptr ? ComboItems::none : item->data;
}

int CAdvComboBox::SetItemData(int index, std::int64_t data)
{
    combo_item * const item = Items().At(index);
    if (item == nullptr)
        return ComboItems::none;
    item->data = data;
    return 0;
}

int CAdvComboBox::GetItemDisabled(int index) const
{
    combo_item const * const item = Items().At(index);
    return item == nullptr ? ComboItems::none : item->disabled != 0;
}

int CAdvComboBox::SetItemDisabled(int index, bool disabled)
{
    combo_item * const item = Items().At(index);
    if (item == nullptr)
        return ComboItems::none;
    item->disabled = disabled;
    return 0;
}

int CAdvComboBox::GetItemFlag(int index) const
{
    combo_item const * const item = Items().At(index);
    return item == nullptr ? ComboItems::none : static_cast<int>(item->flag);
}

int CAdvComboBox::SetItemFlag(int index, std::uint32_t flag)
{
    combo_item * const item = Items().At(index);
    if (item == nullptr)
        return ComboItems::none;
    item->flag = flag;
    return 0;
}

int CAdvComboBox::GetCurSel() const
{
    return Items().FindExact(ComboItems::none, HasEdit() ? EditText() : m_text);
}

int CAdvComboBox::SetCurSel(int index)
{
    int const selected = Items().Select(index);
    if (m_hWnd != nullptr && (selected != ComboItems::none || index == ComboItems::none))
        Invalidate();
    return selected;
}

std::wstring CAdvComboBox::EditText() const
{
    return HasEdit() ? TextOf(*m_edit) : std::wstring();
}

void CAdvComboBox::GetWindowText(CString & text) const
{
    if (HasEdit())
        m_edit->GetWindowText(text);
    else
        text = m_text.c_str();
}

void CAdvComboBox::SetWindowText(LPCTSTR text)
{
    if (HasEdit())
    {
        m_edit->SetWindowText(text);
        return;
    }
    m_text = text;
    if (m_hWnd != nullptr)
        Invalidate();
}

void CAdvComboBox::ShowText(std::wstring const & text)
{
    std::wstring const shown = text; // the caller's may change meanwhile
    Watch const watch(*this);
    CWnd::SetWindowText(shown.c_str());
    if (watch.IsAlive())
        SetWindowText(shown.c_str());
}

int CAdvComboBox::SetEditSel(int start, int end)
{
    if (!HasEdit())
        return ComboItems::none;
    m_edit->SetSel(start, end);
    return TRUE;
}

DWORD CAdvComboBox::GetEditSel() const
{
    return HasEdit() ? m_edit->GetSel() : static_cast<DWORD>(ComboItems::none);
}

int CAdvComboBox::LimitText(int characters)
{
    if (!HasEdit())
        return ComboItems::none;
    m_edit->LimitText(characters == 0 ? greatest_text_length : characters);
    return TRUE;
}

void CAdvComboBox::GetDroppedControlRect(LPRECT rect) const
{
    if (DropList() != nullptr)
        m_drop->GetWindowRect(rect);
    else if (m_dropRectValid)
        *rect = m_rcDropSaved;
    else
        GetWindowRect(rect);
}

int CAdvComboBox::SetItemHeight(int index, int height)
{
    if (index != -1 || height < least_item_height || height > greatest_item_height)
        return ComboItems::none;
    m_rcButton = ButtonRect();
    return 0;
}

void CAdvComboBox::ModifyComboFlags(DWORD remove, DWORD add)
{
    m_comboFlags &= ~remove;
    if ((add & combo_edit_plain) != 0)
        m_comboFlags &= ~static_cast<DWORD>(combo_edit_inside);
    if ((add & combo_edit_inside) != 0)
    {
        m_comboFlags &= ~static_cast<DWORD>(combo_edit_plain);
        add &= ~static_cast<DWORD>(combo_edit_plain);
    }
    m_comboFlags |= add;
}

int CAdvComboBox::GetLongestItemWidth()
{
    CClientDC dc(this);
    CFont const * const font = GetComboFont();
    SelectScope const selected(dc, font != nullptr ? font->GetSafeHandle() : nullptr);
    TEXTMETRIC metrics = {};
    ::GetTextMetrics(dc, &metrics);
    int longest = 0;
    for (m_iter = m_items.begin(); m_iter != m_items.end(); ++m_iter)
    {
        CSize size;
        ::GetTextExtentPoint32W(dc, m_iter->text.c_str(), static_cast<int>(m_iter->text.size()), &size);
        longest = std::max(longest, static_cast<int>(size.cx + metrics.tmAveCharWidth));
    }
    return longest + window_dpi::Metric(SM_CXVSCROLL, m_dpi) + 2 * window_dpi::Metric(SM_CXEDGE, m_dpi) +
           Scaled(longest_item_margin, m_dpi);
}

LRESULT CAdvComboBox::OnCbAddString(WPARAM, LPARAM text)
{
    return text == 0 ? ComboItems::none : AddString(reinterpret_cast<LPCTSTR>(text));
}

LRESULT CAdvComboBox::OnCbSetCurSel(WPARAM index, LPARAM)
{
    return SetCurSel(IndexOf(index));
}

LRESULT CAdvComboBox::OnCbGetCurSel(WPARAM, LPARAM)
{
    return GetCurSel();
}

LRESULT CAdvComboBox::OnCbSelectString(WPARAM start, LPARAM text)
{
    return text == 0 ? ComboItems::none : SetCurSel(FindStringExact(IndexOf(start), reinterpret_cast<LPCTSTR>(text)));
}

LRESULT CAdvComboBox::OnCbGetCount(WPARAM, LPARAM)
{
    return GetCount();
}

LRESULT CAdvComboBox::OnCbResetContent(WPARAM, LPARAM)
{
    Items().Reset();
    if (m_hWnd == nullptr)
        return 0;
    Watch const watch(*this);
    CWnd::SetWindowText(L"");
    if (watch.IsAlive() && HasEdit())
        m_edit->SetWindowText(L"");
    if (watch.IsAlive())
        Invalidate();
    return 0;
}

LRESULT CAdvComboBox::OnCbGetLBText(WPARAM index, LPARAM buffer)
{
    return buffer == 0 ? ComboItems::none : GetLBText(IndexOf(index), reinterpret_cast<LPTSTR>(buffer));
}

LRESULT CAdvComboBox::OnCbGetLBTextLen(WPARAM index, LPARAM)
{
    return GetLBTextLen(IndexOf(index));
}

LRESULT CAdvComboBox::OnCbGetTopIndex(WPARAM, LPARAM)
{
    CDropListBox * const list = DropList();
    return list == nullptr ? ComboItems::none : list->GetTopIndex();
}

LRESULT CAdvComboBox::OnCbSetTopIndex(WPARAM index, LPARAM)
{
    CDropListBox * const list = DropList();
    return list == nullptr ? ComboItems::none : list->SetTopIdx(IndexOf(index), true);
}

void DDX_AdvComboIndex(CDataExchange * dx, int id, CAdvComboBox & combo, int & index)
{
    dx->PrepareCtrl(id);
    if (dx->m_bSaveAndValidate)
        index = combo.GetCurSel();
    else
        combo.SetCurSel(index);
}

void DDX_AdvComboText(CDataExchange * dx, int id, CAdvComboBox & combo, CString & text)
{
    dx->PrepareCtrl(id);
    if (dx->m_bSaveAndValidate)
        combo.GetWindowText(text);
    else
        combo.SetWindowText(text);
}
} // namespace XListCtrl
