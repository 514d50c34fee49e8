#include "windows/MenueManager.h"

#include "windows/MenuPlatform.h"

namespace
{
constexpr int not_found = -1;
constexpr unsigned int first_id = 1;

// Numbers of the window system.
constexpr unsigned int item_string = 0;
constexpr unsigned int item_separator = 0x800;

/// The last position that `matches` accepts, or not_found.
template <typename Matches> int LastPosition(CMenu const & menu, Matches matches)
{
    for (int position = MenuPlatform::Instance().ItemCount(menu) - 1; position >= 0; --position)
    {
        if (matches(position))
        {
            return position;
        }
    }
    return not_found;
}
} // namespace

CMenueManager::CMenueManager() : m_nextId(first_id) {}

unsigned int CMenueManager::GetNewID()
{
    return m_nextId++;
}

void CMenueManager::SetNewID(unsigned int id)
{
    m_nextId = id;
}

unsigned int CMenueManager::AppendString(CMenu & menu, CString const & text)
{
    unsigned int const id = GetNewID();
    return MenuPlatform::Instance().Append(menu, item_string, id, text) ? id : 0;
}

bool CMenueManager::AppendSeparator(CMenu & menu)
{
    return MenuPlatform::Instance().Append(menu, item_separator, 0, nullptr);
}

CMenu * CMenueManager::ApplicationMenue()
{
    return MenuPlatform::Instance().MainWindowMenu();
}

void CMenueManager::DrawApplicationMenue()
{
    MenuPlatform::Instance().DrawMainWindowMenuBar();
}

int CMenueManager::FindItem(CMenu const & menu, CString const & text)
{
    MenuPlatform & platform = MenuPlatform::Instance();
    return LastPosition(menu, [&](int position) { return platform.ItemText(menu, position).Compare(text) == 0; });
}

int CMenueManager::FindItem(CMenu const & menu, unsigned int id)
{
    MenuPlatform & platform = MenuPlatform::Instance();
    return LastPosition(menu, [&](int position) { return platform.ItemId(menu, position) == id; });
}

CMenu * CMenueManager::FindSubMenue(CMenu const & menu, CString const & text)
{
    int const position = FindItem(menu, text);
    return position < 0 ? nullptr : MenuPlatform::Instance().SubMenu(menu, position);
}
