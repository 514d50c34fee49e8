#include "WindowMenu.h"

#include <algorithm>

#include "resource.h"

void CWindowMenu::SetMenu(CString const & text)
{
    m_text = text;
}

CMenu * CWindowMenu::Menu() const
{
    CMenu const * const bar = CMenueManager::ApplicationMenue();
    return bar != nullptr ? CMenueManager::FindSubMenue(*bar, m_text) : nullptr;
}

/// The least identifier that no item has; beyond the last one if all are in use.
UINT CWindowMenu::FreeId() const
{
    UINT id = ID_DIALOG_FIRST;
    while (std::ranges::find(m_items, id, &Item::id) != m_items.end())
    {
        ++id;
    }
    return id;
}

void CWindowMenu::Add(CWnd & window, CString const & text)
{
    Remove(window);
    CMenu * const menu = Menu();
    UINT const free = FreeId();
    if (menu == nullptr || free > ID_DIALOG_LAST)
    {
        return;
    }
    if (m_items.empty())
    {
        m_manager.AppendSeparator(*menu);
    }
    m_manager.SetNewID(free);
    if (unsigned int const id = m_manager.AppendString(*menu, text); id != 0)
    {
        m_items.push_back({&window, id});
    }
    CMenueManager::DrawApplicationMenue();
}

void CWindowMenu::Remove(CWnd & window)
{
    auto const found = std::ranges::find(m_items, &window, &Item::window);
    if (found == m_items.end())
    {
        return;
    }
    if (CMenu * const menu = Menu())
    {
        menu->DeleteMenu(static_cast<UINT>(CMenueManager::FindItem(*menu, found->id)), MF_BYPOSITION);
        if (m_items.size() == 1) // with the last one, the separator above it
        {
            menu->DeleteMenu(static_cast<UINT>(CMenueManager::FindItem(*menu, 0u)), MF_BYPOSITION);
        }
        CMenueManager::DrawApplicationMenue();
    }
    m_items.erase(found);
}

bool CWindowMenu::Activate(UINT id)
{
    auto const found = std::ranges::find(m_items, id, &Item::id);
    if (found == m_items.end())
    {
        return false;
    }
    CWnd & window = *found->window;
    if (window.IsIconic())
    {
        window.ShowWindow(SW_RESTORE);
    }
    if (auto * const frame = DYNAMIC_DOWNCAST(CMDIChildWnd, &window))
    {
        frame->GetMDIFrame()->SetActiveWindow();
        frame->MDIActivate();
        frame->SetFocus();
    }
    else
    {
        window.SetActiveWindow();
    }
    return true;
}

void CWindowMenu::CloseAll()
{
    std::vector<Item> const items = m_items; // each one that closes takes itself out
    for (Item const & item : items)
    {
        if (std::ranges::find(m_items, item.window, &Item::window) == m_items.end())
        {
            continue; // it has gone with another one
        }
        if (item.window->IsKindOf(RUNTIME_CLASS(CFrameWnd)))
        {
            item.window->SendMessage(WM_CLOSE);
        }
        else
        {
            item.window->SendMessage(WM_COMMAND, IDCANCEL); // not WM_CLOSE, which a dialog only posts on
        }
    }
}
