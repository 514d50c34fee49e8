// CAdvComboBox: opening and closing of the drop window, and the choice in it.

#include "list/combo/AdvComboBox.h"

#include <algorithm>
#include <iterator>

#include "list/combo/AdvComboBoxWatch.h"
#include "list/combo/AdvComboEdit.h"
#include "list/combo/DropListBox.h"
#include "list/combo/DropWnd.h"

namespace XListCtrl
{
namespace
{
/// A child of the desktop, which never becomes active.
constexpr DWORD drop_style = WS_CHILD | 0x1001;
constexpr UINT drop_id = 6;
} // namespace

CDropListBox * CAdvComboBox::DropList() const
{
    if (m_drop == nullptr || m_drop->m_hWnd == nullptr)
        return nullptr;
    CDropListBox * const list = m_drop->GetListBox();
    return list != nullptr && list->m_hWnd != nullptr ? list : nullptr;
}

void CAdvComboBox::ShowDropDown(bool show)
{
    if (show == (m_drop != nullptr))
        return;
    Watch const watch(*this);
    if (show)
        OnToggleDrop(0, 0);
    else
        OnCloseDrop(0, 0);
    if (watch.IsAlive())
        Invalidate();
}

LRESULT CAdvComboBox::OnToggleDrop(WPARAM, LPARAM)
{
    if (m_dropVisible)
    {
        OnCloseDrop(0, 0);
        return 1;
    }
    if (m_drop == nullptr)
    {
        Watch const watch(*this);
        OpenDrop(m_items);
        if (!watch.IsAlive())
            return 1;
    }
    if (m_drop != nullptr && m_drop->m_hWnd != nullptr)
    {
        m_dropVisible = TRUE;
        m_drop->ShowWindow(SW_SHOW);
    }
    return 1;
}

void CAdvComboBox::OpenDrop(std::list<combo_item> const & items)
{
    CRect rect;
    GetWindowRect(rect);
    rect.top = rect.bottom;
    CRect work;
    if (::SystemParametersInfo(SPI_GETWORKAREA, 0, &work, 0))
        rect.bottom = std::min(rect.bottom, work.bottom);

    Watch const watch(*this);
    auto const count = static_cast<std::int64_t>(items.size());
    auto * const drop = new CDropWnd(this, items, m_comboFlags);
    LifeWatch const dropLife(drop->GetLifeSign());
    m_drop = drop;
    BOOL const created = drop->Create(nullptr, L"", drop_style, rect, CWnd::GetDesktopWindow(), drop_id);
    // Whoever had the mouse capture has heard of it, and can have ended drop window and combo.
    if (!watch.IsAlive() || dropLife.Over())
        return;
    CDropListBox * const list = DropList();
    if (!created || list == nullptr)
    {
        DiscardDrop();
        return;
    }
    if (m_curSel > count - 1)
        m_curSel = 0;
    list->SetCurSel(static_cast<int>(m_curSel));
    drop->SetFont(m_font.get());
    Notify(CBN_DROPDOWN);
}

void CAdvComboBox::DiscardDrop()
{
    CDropWnd * const drop = m_drop;
    m_drop = nullptr;
    m_dropVisible = FALSE;
    if (drop != nullptr && drop->m_hWnd != nullptr)
    {
        drop->ShowWindow(SW_HIDE);
        drop->DestroyWindow();
    }
    delete drop;
}

LRESULT CAdvComboBox::OnCloseDrop(WPARAM, LPARAM)
{
    if (m_drop == nullptr)
    {
        OnComboComplete();
        return 1;
    }
    if (m_drop->m_hWnd != nullptr)
    {
        m_drop->GetWindowRect(m_rcDropSaved);
        m_dropRectValid = true;
    }
    Watch const watch(*this);
    DiscardDrop();
    if (!watch.IsAlive())
        return 1;
    InvalidateButton();
    if (m_selMade)
        m_selMade = false;
    else if (!NotifyAlive(CBN_SELENDCANCEL))
        return 1;
    Notify(CBN_CLOSEUP);
    return 1;
}

LRESULT CAdvComboBox::OnSelectedItem(WPARAM index, LPARAM)
{
    if (m_drop == nullptr || index >= m_drop->GetItems().size())
        return 1;
    std::wstring const text = std::next(m_drop->GetItems().begin(), static_cast<std::ptrdiff_t>(index))->text;
    m_text = text;
    m_curSel = Items().FindExact(0, text);

    Watch const watch(*this);
    CWnd::SetWindowText(text.c_str());
    if (!watch.IsAlive())
        return 1;
    if (HasEditStyle() && HasEdit())
    {
        m_edit->SetWindowText(text.c_str());
        if (watch.IsAlive() && HasEdit())
            m_edit->SetFocus();
        if (watch.IsAlive() && HasEdit())
            m_edit->SetSel(0, -1);
        if (!watch.IsAlive())
            return 1;
    }
    m_selMade = true;
    if (!NotifyAlive(CBN_SELENDOK))
        return 1;
    Invalidate();
    OnCloseDrop(0, 0);
    if (!watch.IsAlive())
        return 1;
    InvalidateButton();
    Notify(CBN_SELCHANGE);
    return 1;
}
} // namespace XListCtrl
