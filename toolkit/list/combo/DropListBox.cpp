#include "list/combo/DropListBox.h"

#include <algorithm>

#include "access/NativeEvents.h"
#include "frame/GraphicsScopes.h"
#include "frame/WindowAlive.h"
#include "layout/Resolution.h"
#include "list/combo/AdvComboBox.h"
#include "list/combo/ComboMoves.h"
#include "list/combo/DropScrollBar.h"

namespace XListCtrl
{
namespace
{
// Pixels at 96 dots an inch.
constexpr int font_height = 20;

/// Null for no font.
HGDIOBJ HandleOf(CFont const * font)
{
    return font != nullptr ? font->GetSafeHandle() : nullptr;
}

/// The widths of ASCII characters in the font selected: most of ten thousand texts need not be measured.
class PlainWidths
{
public:
    explicit PlainWidths(CDC & dc)
    {
        TEXTMETRIC metrics = {};
        m_known = ::GetTextMetrics(dc, &metrics) && ::GetCharWidth32W(dc, 0, count - 1, m_widths);
        m_overhang = metrics.tmOverhang;
    }

    /// Whether the text is certainly no wider than that; false if that is not known without measuring it.
    bool IsAtMost(std::wstring const & text, int width) const
    {
        int sum = m_overhang;
        for (wchar_t const character : text)
        {
            if (character >= count)
                return false;
            sum += m_widths[character];
        }
        return m_known && sum <= width;
    }

private:
    static constexpr int count = 128;

    int m_widths[count] = {};
    int m_overhang = 0;
    bool m_known = false;
};
} // namespace

BEGIN_MESSAGE_MAP(CDropListBox, CListBox)
    ON_WM_CREATE()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_MESSAGE(WM_ADVCOMBO_SET_CAPTURE, &CDropListBox::OnSetCapture)
    ON_MESSAGE(WM_ADVCOMBO_RELEASE_CAPTURE, &CDropListBox::OnReleaseCapture)
END_MESSAGE_MAP()

CDropListBox::CDropListBox(CAdvComboBox * combo, CDropScrollBar * scroll)
    : m_combo(combo),
      m_font(std::make_unique<CFont>()),
      m_scroll(scroll)
{
    m_font->CreateFont(font_height, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                       CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH | FF_DONTCARE, L"MS Sans Serif");
}

CDropListBox::~CDropListBox()
{
    if (m_hWnd != nullptr)
        CDropListBox::DestroyWindow();
}

int CDropListBox::OnCreate(LPCREATESTRUCT create)
{
    if (CListBox::OnCreate(create) == -1)
        return -1;
    ShowWindow(SW_HIDE);
    ModifyStyleEx(0, WS_EX_TOOLWINDOW);
    ShowWindow(SW_SHOW);
    SetWindowPos(&wndTop, create->x, create->y, create->cx, create->cy, SWP_SHOWWINDOW);
    SetFont(m_combo->GetComboFont());
    return 0;
}

int CDropListBox::GetVisibleRows() const
{
    CRect client;
    GetClientRect(client);
    return client.Height() / std::max(GetItemHeight(0), 1);
}

int CDropListBox::GetBottomIndex() const
{
    return GetTopIndex() + GetVisibleRows();
}

combo_item const * CDropListBox::GetItem(int index) const
{
    if (m_hWnd == nullptr)
        return nullptr;
    // Straight to the native list: asked for every item when the list ends, and for many in a row of disabled ones.
    auto & self = const_cast<CDropListBox &>(*this);
    LRESULT const data = self.CListBox::DefWindowProc(LB_GETITEMDATA, static_cast<WPARAM>(index), 0);
    return data == LB_ERR ? nullptr : reinterpret_cast<combo_item const *>(data);
}

bool CDropListBox::IsDisabled(int index) const
{
    combo_item const * const item = GetItem(index);
    return item != nullptr && item->disabled != 0;
}

int CDropListBox::SetCurSel(int index)
{
    if (m_allowDisabled == FALSE)
    {
        index = combo_moves::RowToSelect(index, GetCurSel(), [this](int row) {
            combo_item const * const item = GetItem(row);
            if (item == nullptr)
                return combo_moves::RowState::absent;
            return item->disabled != 0 ? combo_moves::RowState::disabled : combo_moves::RowState::enabled;
        });
        if (IsDisabled(index))
            return index;
    }
    WindowAlive const watch(*this, m_life);
    HWND const window = m_hWnd;
    int const result = CListBox::SetCurSel(index);
    if (result == LB_ERR)
        return result;
    m_scroll->SetScrollPos(GetTopIndex());
    if (watch.IsAlive())
    {
        TellUnlessNative(EVENT_OBJECT_FOCUS, window, {index, -1});
        TellUnlessNative(EVENT_OBJECT_SELECTION, window, {index, -1});
    }
    return result;
}

int CDropListBox::SetTopIdx(int index, bool update)
{
    m_lastTop = index;
    int const result = SetTopIndex(index);
    if (update)
        m_scroll->SetScrollPos(index);
    return result;
}

int CDropListBox::AddListItem(combo_item const & item)
{
    m_copies.push_back(std::make_unique<combo_item>(item));
    return AddEntry(*m_copies.back());
}

int CDropListBox::AddEntry(combo_item const & item)
{
    // Straight to the native list, since this is done for every item.
    LRESULT const index = CListBox::DefWindowProc(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item.text.c_str()));
    if (index >= 0)
        CListBox::DefWindowProc(LB_SETITEMDATA, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item));
    return static_cast<int>(index);
}

void CDropListBox::AddListItems(std::list<combo_item> const & items)
{
    constexpr int average_bytes = 40;
    SetRedraw(FALSE);
    InitStorage(static_cast<int>(items.size()), static_cast<UINT>(items.size() * average_bytes));
    for (combo_item const & item : items)
        AddEntry(item);
    SetRedraw(TRUE);
}

bool CDropListBox::GetTextSize(wchar_t const * text, int length, CSize & size)
{
    CClientDC dc(this);
    SelectScope const font(dc, HandleOf(m_combo->GetComboFont()));
    if (!::GetTextExtentPoint32W(dc, text, length, &size))
        return false;
    if ((m_comboFlags & combo_wide_items) != 0)
        size.cx += resolution::Scaled(wide_item_extra, m_combo->GetDpi());
    return true;
}

int CDropListBox::GetWidestText(std::list<combo_item> const & items)
{
    CClientDC dc(this);
    SelectScope const font(dc, HandleOf(m_combo->GetComboFont()));
    int const extra =
        resolution::Scaled((m_comboFlags & combo_wide_items) != 0 ? wide_item_extra : 0, m_combo->GetDpi());
    PlainWidths const widths(dc);
    int widest = -1;
    for (combo_item const & item : items)
    {
        if (widths.IsAtMost(item.text, widest))
            continue;
        CSize size;
        if (::GetTextExtentPoint32W(dc, item.text.c_str(), static_cast<int>(item.text.size()), &size))
            widest = std::max(widest, static_cast<int>(size.cx));
    }
    return widest == -1 ? 0 : widest + extra;
}

int CDropListBox::RowAt(CPoint point) const
{
    return point.y / std::max(GetItemHeight(0), 1) + GetTopIndex();
}

bool CDropListBox::IsOutside(CPoint point) const
{
    CRect client;
    GetClientRect(client);
    return !client.PtInRect(point);
}

void CDropListBox::HandCaptureToParent()
{
    WindowAlive const watch(*this, m_life);
    HWND const parent = ::GetParent(m_hWnd);
    ::ReleaseCapture();
    if (watch.IsAlive())
        ::SendMessage(parent, WM_ADVCOMBO_SET_CAPTURE, 0, 0);
}

void CDropListBox::OnMouseMove(UINT flags, CPoint point)
{
    WindowAlive const watch(*this, m_life);
    // Hosts expect that a point outside goes on to find its row.
    if (IsOutside(point))
        HandCaptureToParent();
    if (!watch.IsAlive())
        return;
    int const row = RowAt(point);
    if (GetItem(row) != nullptr && row != GetCurSel() && !IsDisabled(row))
        SetCurSel(row);
    if (int const top = GetTopIndex(); top != m_lastTop)
    {
        m_lastTop = top;
        m_scroll->SetScrollPos(top);
    }
    CListBox::OnMouseMove(flags, point);
}

void CDropListBox::OnLButtonUp(UINT, CPoint point)
{
    WindowAlive const watch(*this, m_life);
    // Hosts expect that the selection is chosen all the same.
    if (IsOutside(point))
        HandCaptureToParent();
    if (!watch.IsAlive() || IsDisabled(RowAt(point)))
        return;
    int const selected = GetCurSel();
    if (IsDisabled(selected))
        return;
    Choose(selected);
}

void CDropListBox::Choose(int selected)
{
    HWND const combo = m_combo->m_hWnd;
    if (selected != LB_ERR)
        ::PostMessage(combo, WM_ADVCOMBO_SELECTED, static_cast<WPARAM>(selected), 0);
    ::ReleaseCapture();
    ::PostMessage(combo, WM_ADVCOMBO_CLOSE_DROP, 0, 0);
}

LRESULT CDropListBox::OnSetCapture(WPARAM, LPARAM)
{
    SetCapture();
    return 0;
}

LRESULT CDropListBox::OnReleaseCapture(WPARAM, LPARAM)
{
    ::ReleaseCapture();
    return 0;
}

LRESULT CDropListBox::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (AsksForControl(message, lParam))
        return AnswerGetObject(wParam);
    switch (message)
    {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_MOUSEMOVE:
        if (IsDisabled(RowAt(CPoint(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))))))
            return 0;
        break;
    case WM_DESTROY:
        DeleteItems();
        break;
    default:
        break;
    }
    return CListBox::DefWindowProc(message, wParam, lParam);
}

BOOL CDropListBox::DestroyWindow()
{
    DeleteItems();
    return CListBox::DestroyWindow();
}

void CDropListBox::DeleteItems()
{
    if (m_hWnd != nullptr && GetCount() > 0)
    {
        SetRedraw(FALSE);
        ResetContent();
    }
    m_copies.clear();
}
} // namespace XListCtrl
